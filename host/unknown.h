// The host's component interfaces: query by interface identity, plain reference counts.
#pragma once

#include <string_view>
#include <type_traits>
#include <utility>

/// The identity of an interface: its name, which never changes.
using KVInterfaceId = std::string_view;

/// Base of the host's component interfaces. Everything behind them lives on the main thread, so the
/// counts are plain.
class IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IKVUnknown";

  /// Gives the object as the interface `id` with a new reference in `out`; false, and null in
  /// `out`, if the object does not have it.
  virtual bool queryInterface(KVInterfaceId id, void** out) = 0;
  virtual unsigned long addRef() = 0;
  virtual unsigned long release() = 0;

 protected:
  ~IKVUnknown() = default;
};

/// One reference to a component.
template <class T>
class KVPtr {
 public:
  KVPtr() = default;
  KVPtr(std::nullptr_t) {}
  KVPtr(T* object)
    : m_object(object) {
    if (m_object) m_object->addRef();
  }
  KVPtr(const KVPtr& other)
    : KVPtr(other.m_object) {}
  template <class U>
  requires std::is_convertible_v<U*, T*> KVPtr(const KVPtr<U>& other)
    : KVPtr(static_cast<T*>(other.get())) {}
  KVPtr(KVPtr&& other) noexcept
    : m_object(std::exchange(other.m_object, nullptr)) {}
  ~KVPtr() { reset(); }
  KVPtr& operator=(KVPtr other) noexcept {
    std::swap(m_object, other.m_object);
    return *this;
  }

  T* get() const { return m_object; }
  T* operator->() const { return m_object; }
  explicit operator bool() const { return m_object != nullptr; }

  void reset() {
    if (m_object) std::exchange(m_object, nullptr)->release();
  }
  /// The place for a function that fills an out-pointer with a reference of ours.
  T** out() {
    reset();
    return &m_object;
  }
  /// Takes over a reference that the caller holds.
  static KVPtr attach(T* object) {
    KVPtr result;
    result.m_object = object;
    return result;
  }

 private:
  T* m_object = nullptr;
};

/// `object` as the interface T, or null.
template <class T, class U>
KVPtr<T> kvQuery(U* object) {
  void* found = nullptr;
  if (!object || !object->queryInterface(T::kId, &found)) return nullptr;
  return KVPtr<T>::attach(static_cast<T*>(found));
}

/// Implements the counts, and a query that answers for T alone.
template <class T>
class CKVUnknownImpl : public T {
 public:
  CKVUnknownImpl() = default;
  CKVUnknownImpl(const CKVUnknownImpl&) = delete;
  CKVUnknownImpl& operator=(const CKVUnknownImpl&) = delete;
  virtual ~CKVUnknownImpl() = default;

  bool queryInterface(KVInterfaceId id, void** out) override {
    if (id != T::kId && id != IKVUnknown::kId) {
      *out = nullptr;
      return false;
    }
    *out = static_cast<T*>(this);
    addRef();
    return true;
  }
  unsigned long addRef() override { return ++m_refs; }
  unsigned long release() override {
    const unsigned long left = --m_refs;
    if (left == 0) delete this;
    return left;
  }

 private:
  unsigned long m_refs = 1;
};

/// A new component with its one reference in the pointer.
template <class T, class... Args>
KVPtr<T> kvMake(Args&&... args) {
  return KVPtr<T>::attach(new T(std::forward<Args>(args)...));
}
