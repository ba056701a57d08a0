// The base of everything that a drawing keeps.
#pragma once

#include "drawing/errors.h"
#include "drawing/object_id.h"
#include "frame/rx_members.h"

#include <memory>

class OdDbDxfIn;
class OdDbDxfOut;
struct OdDbDxfResidue;
struct OdDbObjectExtras;
struct OdDbDxfTag;

/// An object with a handle and an owner. It is made with odrxMake, filled, and then given to its
/// container (a block, a table, a dictionary), which puts it into the drawing.
///
/// Objects of a drawing are reached through their ids and opened for reading or writing. A setter
/// on an object that is open for reading raises OdDbError(eNotOpenForWrite); objects that are not
/// in a drawing can always be set. Setters keep the former state for undo by themselves.
class OdDbObject : public OdRxObject {
  ODRX_DECLARE_MEMBERS(OdDbObject);

 public:
  /// The id in its drawing; null before the object is given to one.
  OdDbObjectId objectId() const;
  OdDbHandle handle() const;
  OdDbDatabase* database() const;
  OdDbObjectId ownerId() const { return m_owner; }
  bool isDBRO() const { return m_stub != nullptr; }

  /// Makes an object that was opened for reading writable.
  void upgradeOpen();
  /// Ends writing: further setters are refused, and reactors learn of the change.
  void downgradeOpen();
  bool isWriteEnabled() const;

  bool isErased() const;
  /// Erases the object, or takes that back. An erased object keeps its place and handle, is not
  /// saved and is not found by iterators.
  void erase(bool erasing = true);

  /// A copy of the object and its data, which belongs to no drawing. References stay as they are.
  OdRxObjectPtr clone() const override;
  /// Takes over the data of an object of the same class; identity, owner and place stay.
  virtual void assignFrom(const OdDbObject& other);

  /// The name of the class in DXF files ("LINE").
  virtual const char* dxfName() const = 0;
  /// The code of the object's handle in files.
  virtual int dxfHandleCode() const { return 5; }

  /// Takes one tag of the object; false if it is not understood, which keeps it as it is.
  virtual bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in);
  /// Called behind the last tag of the object.
  virtual void dxfInEnd(OdDbDxfIn&) {}
  /// Writes the object behind its handle and owner: subclass by subclass.
  virtual void dxfOut(OdDbDxfOut& out) const;
  /// Writes the extended data that the class understands.
  virtual void dxfOutXData(OdDbDxfOut&) const {}
  /// Tags of the object that nobody understood, or null.
  const OdDbDxfResidue* residue() const;
  /// As a setter: what is kept now can be undone.
  OdDbDxfResidue& editResidue();

 protected:
  OdDbObject();
  ~OdDbObject() override;
  /// Called first by every setter: checks that the object may be changed and keeps its state.
  void assertWriteEnabled();
  /// Called when a new object was put into a drawing by a program, not by a file.
  virtual void enteredDatabase() {}
  /// A fresh object of the same class.
  virtual OdDbObjectPtr newInstance() const = 0;

 private:
  friend class OdDbEntity;
  friend class OdDbDatabase;
  friend struct OdDbDatabaseData;
  friend class OdDbUndo;
  friend class OdDbObjectId;
  friend class OdDbDxfIn;

  // A drawing has millions of these: the first line fits behind the count of references.
  std::uint32_t m_undoStep : 29 = 0; ///< the last step that keeps the object's former state
  std::uint32_t m_erased : 1 = 0;
  std::uint32_t m_writeEnabled : 1 = 0;
  std::uint32_t m_changePending : 1 = 0; ///< reactors have still to learn of a change
  OdDbStub* m_stub = nullptr;
  OdDbObjectId m_owner;
  std::unique_ptr<OdDbObjectExtras> m_extras;
};

/// Declares the members that every concrete class of the database overrides in the same way.
#define ODDB_CONCRETE(Class, DXF_NAME)                                                             \
  ODRX_DECLARE_MEMBERS(Class);                                                                     \
                                                                                                   \
 public:                                                                                           \
  Class();                                                                                         \
  const char* dxfName() const override { return DXF_NAME; }                                        \
  void assignFrom(const OdDbObject& other) override;                                               \
                                                                                                   \
 protected:                                                                                        \
  OdDbObjectPtr newInstance() const override { return odrxMake<Class>(); }                         \
                                                                                                   \
 public:
