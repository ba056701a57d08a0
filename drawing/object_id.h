// References to objects of a drawing.
#pragma once

#include "drawing/enums.h"
#include "drawing/handle.h"
#include "frame/smart_ptr.h"

#include <functional>

class OdDbDatabase;
class OdDbObject;
struct OdDbStub;
using OdDbObjectPtr = OdSmartPtr<OdDbObject>;

/// A light reference to an object, valid as long as the drawing lives: also while the object is
/// erased, and while the step that made it is undone.
class OdDbObjectId {
 public:
  OdDbObjectId() = default;
  explicit OdDbObjectId(OdDbStub* stub)
    : m_stub(stub) {}

  bool isNull() const { return m_stub == nullptr; }
  /// True if an object that is not erased stands behind the id.
  bool isValid() const;
  bool isErased() const;
  OdDbHandle getHandle() const;
  OdDbDatabase* database() const;

  /// The object, or null if there is none or it is erased and `openErased` does not allow that.
  OdDbObjectPtr openObject(OdDb::OpenMode mode = OdDb::kForRead, bool openErased = false) const;
  /// As openObject; raises OdError (eNullObjectId, eWasErased) instead of giving null.
  OdDbObjectPtr safeOpenObject(OdDb::OpenMode mode = OdDb::kForRead, bool openErased = false) const;
  /// The object as T. Raises OdError, and OdError_NotThatKindOfClass for another class.
  template <class T>
  OdSmartPtr<T> openAs(OdDb::OpenMode mode = OdDb::kForRead) const {
    return safeOpenObject(mode);
  }

  OdDbStub* stub() const { return m_stub; }
  explicit operator bool() const { return m_stub != nullptr; }
  bool operator==(const OdDbObjectId&) const = default;
  bool operator<(const OdDbObjectId& other) const { return std::less<>()(m_stub, other.m_stub); }

 private:
  OdDbStub* m_stub = nullptr;
};

template <>
struct std::hash<OdDbObjectId> {
  std::size_t operator()(const OdDbObjectId& id) const noexcept {
    return std::hash<OdDbStub*>()(id.stub());
  }
};
inline std::size_t qHash(const OdDbObjectId& id, std::size_t seed = 0) {
  return std::hash<OdDbObjectId>()(id) ^ seed;
}
