// The frame's smart pointer.
#pragma once

#include "frame/error.h"
#include "frame/rx_class.h"
#include "frame/rx_object.h"

#include <type_traits>
#include <utility>

/// Tag: take over the reference that the caller holds.
enum OdRxObjMod { kOdRxObjAttach };

namespace od_detail {
[[noreturn]] void raiseNotThatKind(const OdRxObject* found, const OdRxClass* wanted);
} // namespace od_detail

/// One strong reference to a frame object.
///
/// Going to a base is free. Going to a derived class is checked against the object's class
/// description and raises OdError_NotThatKindOfClass when the object is of another class; a null
/// pointer converts to a null pointer.
template <class T>
class OdSmartPtr {
 public:
  OdSmartPtr() = default;
  OdSmartPtr(std::nullptr_t) {}
  OdSmartPtr(T* object, OdRxObjMod)
    : m_object(object) {}
  OdSmartPtr(const OdSmartPtr& other)
    : m_object(other.m_object) {
    acquire();
  }
  OdSmartPtr(OdSmartPtr&& other) noexcept
    : m_object(std::exchange(other.m_object, nullptr)) {}

  template <class U>
  requires std::is_base_of_v<OdRxObject, U> || std::is_same_v<OdRxObject, U> OdSmartPtr(U* object)
    : m_object(convert(object)) {
    acquire();
  }
  template <class U>
  requires(!std::is_same_v<U, T>) OdSmartPtr(const OdSmartPtr<U>& other)
    : m_object(convert(other.get())) {
    acquire();
  }

  ~OdSmartPtr() { drop(); }

  OdSmartPtr& operator=(OdSmartPtr other) noexcept {
    std::swap(m_object, other.m_object);
    return *this;
  }

  T* get() const { return m_object; }
  T* operator->() const { return m_object; }
  T& operator*() const { return *m_object; }
  operator T*() const { return m_object; }
  bool isNull() const { return m_object == nullptr; }
  explicit operator bool() const { return m_object != nullptr; }

  /// Gives the reference away; the pointer becomes null.
  T* detach() { return std::exchange(m_object, nullptr); }
  /// Takes over a reference that the caller holds.
  void attach(T* object) {
    drop();
    m_object = object;
  }

 private:
  template <class U>
  static T* convert(U* object) {
    if constexpr (std::is_convertible_v<U*, T*>) {
      return object;
    } else {
      static_assert(std::is_same_v<typename T::OdRxDescribed, T>,
                    "a class without a description of its own cannot be told from its base");
      if (!object) return nullptr;
      if (OdRxObject* found = object->queryX(T::desc())) return static_cast<T*>(found);
      od_detail::raiseNotThatKind(object, T::desc());
    }
  }
  void acquire() const {
    if (m_object) m_object->addRef();
  }
  void drop() {
    if (m_object) std::exchange(m_object, nullptr)->release();
  }

  T* m_object = nullptr;
};

/// A new object of the concrete class T, with its one reference in the pointer.
template <class T, class... Args>
OdSmartPtr<T> odrxMake(Args&&... args) {
  return OdSmartPtr<T>(new T(std::forward<Args>(args)...), kOdRxObjAttach);
}

/// `object` seen as T without a new reference, or null if it is of another class.
template <class T>
T* odrxCast(const OdRxObject* object) {
  static_assert(std::is_same_v<typename T::OdRxDescribed, T>,
                "a class without a description of its own cannot be told from its base");
  return object ? static_cast<T*>(object->queryX(T::desc())) : nullptr;
}
