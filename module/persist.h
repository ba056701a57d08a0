// The root of everything that is stored in a catalog or palette file.
#pragma once

#include "frame/rx_members.h"
#include "frame/variant.h"
#include "module/export.h"

namespace tc {

class OdTcCatalog;
class OdTcDatabase;
class OdTcFiler;

/// A stored object: an owner link by which it finds its catalog and its database, a two-phase read
/// and a one-phase write that turn it into one XML element.
///
/// References run from parent to child only; the owner is a plain pointer.
class OdTcPersist : public OdRxObject {
  ODRX_DECLARE_MEMBERS_EX(OdTcPersist, TC_API);

 public:
  /// Phase one: hands each attribute of the filer's current element to readField, in ascending
  /// order of name.
  virtual bool readAttributes(OdTcFiler* filer) = 0;
  /// Phase two: hands what each child element holds to readField, until the filer has no more.
  virtual bool readElements(OdTcFiler* filer) = 0;
  /// Writes the attributes and child elements into the filer's current parent.
  virtual void write(OdTcFiler* filer) = 0;

  virtual void setOwner(OdTcPersist* owner) = 0;
  /// The name of the XML element.
  virtual OdString elementName() const = 0;
  virtual void setTag(const OdString& tag) = 0;
  virtual OdTcPersist* owner() const = 0;
  virtual OdTcPersist* ownerNoRef() const = 0;
  /// The palette database above this object, or null.
  virtual OdTcDatabase* database() const = 0;
  /// The catalog above this object, or null.
  virtual OdTcCatalog* catalog() const = 0;
  virtual bool isContainer(const OdString& name) const = 0;
  virtual OdString displayName() const = 0;
  /// Sets the owner and lets the database above, if there is one, take note of this object.
  virtual void setOwnerInDatabase(OdTcPersist* owner, const OdString& name) = 0;
  /// Sets the owner and lets the catalog above, if there is one, take note of this object.
  virtual void setOwnerInCatalog(OdTcPersist* owner) = 0;
  /// Sets the owner and tells nobody.
  virtual void setOwnerQuiet(OdTcPersist* owner) = 0;

  virtual OdString tag() const = 0;

  /// Passes `object` up the owner chain to the database, which keeps note of it. Objects without a
  /// database above them drop it.
  virtual void noteInDatabase(OdTcPersist* object) = 0;
  /// The same, for the catalog.
  virtual void noteInCatalog(OdTcPersist* object) = 0;
  /// Passes `object` up the owner chain to the catalog, which keeps no note of it any more, nor of
  /// what stands below it.
  virtual void forgetInCatalog(OdTcPersist* object) = 0;

  /// Writes the fields in their fixed order; a derived class writes those of its base first.
  virtual void writeFields(OdTcFiler* filer) = 0;
  /// Stores the value if the name (compared exactly) is one of this class's own; false otherwise. A
  /// derived class asks its base first. An object of the wrong class raises
  /// OdError_NotThatKindOfClass; a bad number becomes what the parse yields.
  virtual bool readField(const OdString& name, const OdVariant& value) = 0;
};
using OdTcPersistPtr = OdSmartPtr<OdTcPersist>;

} // namespace tc
