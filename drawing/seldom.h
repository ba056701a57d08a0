// Values that hardly any object has.
#pragma once

#include <memory>

/// A T that is mostly as a new T is. As long as it is so it takes the room of one pointer.
template <class T>
class OdDbSeldom {
 public:
  OdDbSeldom() = default;
  OdDbSeldom(const OdDbSeldom& other)
    : m_value(other.m_value ? std::make_unique<T>(*other.m_value) : nullptr) {}
  OdDbSeldom(OdDbSeldom&&) noexcept = default;
  OdDbSeldom& operator=(OdDbSeldom other) noexcept {
    m_value = std::move(other.m_value);
    return *this;
  }

  const T& operator*() const { return m_value ? *m_value : s_preset; }
  const T* operator->() const { return &**this; }
  /// True if the value may differ from that of a new T.
  bool isSet() const { return m_value != nullptr; }

  /// From now on the value takes room.
  T& edit() {
    if (!m_value) m_value = std::make_unique<T>();
    return *m_value;
  }
  /// Sets one member: nothing is kept for a value that is that of a new T.
  template <class M>
  void set(M T::*member, const M& value) {
    if (!m_value) {
      if (value == s_preset.*member) return;
      m_value = std::make_unique<T>();
    }
    (*m_value).*member = value;
    if (*m_value == s_preset) m_value.reset();
  }
  bool operator==(const OdDbSeldom& other) const { return **this == *other; }

 private:
  inline static const T s_preset{};
  std::unique_ptr<T> m_value;
};
