// The root of all frame objects: an atomic intrusive reference count and a run-time class.
#pragma once

#include "frame/string.h"

#include <atomic>

class OdRxClass;
template <class T>
class OdSmartPtr;
class OdRxObject;
using OdRxObjectPtr = OdSmartPtr<OdRxObject>;

/// A reference-counted object with a class description.
///
/// A new object has a count of 1, which belongs to whoever made it (see odrxMake). The object dies
/// with its last reference. A class description can be deleted while objects of the class live, so
/// no destructor may look at it.
class OdRxObject {
 public:
  OdRxObject(const OdRxObject&) = delete;
  OdRxObject& operator=(const OdRxObject&) = delete;

  void addRef() const noexcept { m_refs.fetch_add(1, std::memory_order_relaxed); }
  /// Drops one reference; the last one deletes the object.
  void release() const noexcept {
    if (m_refs.fetch_sub(1, std::memory_order_acq_rel) == 1) delete this;
  }
  int numRefs() const noexcept { return m_refs.load(std::memory_order_relaxed); }

  /// The description of the object's class; null if that class is not registered (any more).
  virtual OdRxClass* isA() const;
  /// This object seen as `wanted`, or null if its class is neither that nor derived from it.
  /// No reference is taken.
  virtual OdRxObject* queryX(const OdRxClass* wanted) const;
  bool isKindOf(const OdRxClass* wanted) const { return queryX(wanted) != nullptr; }

  /// A deep copy. Raises OdError(eNotApplicable) for classes that cannot be copied.
  virtual OdRxObjectPtr clone() const;

  using OdRxDescribed = OdRxObject;
  /// The description of OdRxObject itself; always there.
  static OdRxClass* desc();

 protected:
  explicit OdRxObject(int refs = 1)
    : m_refs(refs) {}
  virtual ~OdRxObject();

 private:
  mutable std::atomic<int> m_refs;
};
