// Enumerators.
#pragma once

#include "frame/smart_ptr.h"

#include <utility>

namespace tc {

/// Walks the elements of a container. The container must not change during a walk.
template <class T>
class OdTcEnum : public OdRxObject {
 public:
  /// The next element, or null at the end and from then on. Borrowed from the container.
  virtual T* next() = 0;
  /// Goes back to the first element.
  virtual void reset() = 0;
};
template <class T>
using OdTcEnumPtr = OdSmartPtr<OdTcEnum<T>>;

/// Turns a container's element into the pointer that the enumerator gives.
struct DirectAccessor {
  template <class Element>
  static auto* get(const Element& element) {
    return element.get();
  }
};

/// Holds the container by a strong reference to the object that has it.
template <class T, class Container, class Accessor = DirectAccessor>
class OdTcEnumImpl : public OdTcEnum<T> {
 public:
  /// `holder` keeps `container` alive.
  OdTcEnumImpl(const OdRxObject* holder, const Container& container)
    : m_holder(const_cast<OdRxObject*>(holder))
    , m_container(container) {}

  T* next() override {
    if (m_position >= m_container.size()) return nullptr;
    return static_cast<T*>(Accessor::get(m_container[m_position++]));
  }
  void reset() override { m_position = 0; }

 private:
  OdRxObjectPtr m_holder;
  const Container& m_container;
  decltype(std::declval<Container>().size()) m_position = 0;
};

} // namespace tc
