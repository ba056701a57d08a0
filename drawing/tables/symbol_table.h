// Symbol tables: named records of a drawing.
#pragma once

#include "drawing/object.h"

#include <QHash>

#include <vector>

/// A record with a name in a symbol table.
class OdDbSymbolTableRecord : public OdDbObject {
  ODRX_DECLARE_MEMBERS(OdDbSymbolTableRecord);

 public:
  const OdString& getName() const { return m_name; }
  /// Raises OdDbError(eInvalidName) for an empty name, (eDuplicateRecordName) if the table has
  /// another record of that name.
  void setName(const OdString& name);
  /// The flags of the file's code 70; bits that no accessor knows are kept.
  int flags() const { return m_flags; }
  /// True for what came with an external reference.
  bool isDependent() const { return m_flags & kDependent; }
  void setIsDependent(bool dependent);
  /// Takes over all of a record of the same class but its name.
  void replaceBy(const OdDbSymbolTableRecord& other);

  void assignFrom(const OdDbObject& other) override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;
  /// The subclass marker behind that of all records ("AcDbLayerTableRecord").
  virtual const char* dxfSubclass() const = 0;
  /// Such a record is known by what it says, not by a name.
  virtual bool mayBeNameless() const { return false; }

 protected:
  OdDbSymbolTableRecord();
  void setFlag(int bit, bool on);
  bool hasFlag(int bit) const { return m_flags & bit; }
  /// Writes the fields behind the name; the flags here.
  virtual void dxfOutFields(OdDbDxfOut& out) const;

 private:
  static constexpr int kDependent = 16;
  static constexpr int kResolved = 32;
  OdString m_name;
  int m_flags = 0;
};
using OdDbSymbolTableRecordPtr = OdSmartPtr<OdDbSymbolTableRecord>;

class OdDbSymbolTableIterator;
using OdDbSymbolTableIteratorPtr = std::unique_ptr<OdDbSymbolTableIterator>;

/// Records by name. Names are compared without regard to case.
class OdDbSymbolTable : public OdDbObject {
  ODRX_DECLARE_MEMBERS(OdDbSymbolTable);

 public:
  /// The id of a record that is not erased; null if there is none.
  OdDbObjectId getAt(const OdString& name) const;
  bool has(const OdString& name) const { return !getAt(name).isNull(); }
  /// Puts a new record into the table and so into the drawing. Raises OdDbError
  /// (eDuplicateRecordName, eInvalidName, eAlreadyInDatabase, eNotOpenForWrite).
  OdDbObjectId add(OdDbSymbolTableRecord* record);
  /// Walks the records that are not erased, in the order of the table.
  OdDbSymbolTableIteratorPtr newIterator(bool skipErased = true) const;
  /// All records in the order of the table, erased ones included.
  const std::vector<OdDbObjectId>& recordIds() const { return m_records; }

  void assignFrom(const OdDbObject& other) override;
  const char* dxfName() const override { return "TABLE"; }
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  /// The name of the records in files ("LAYER").
  virtual const char* dxfRecordName() const = 0;
  /// A fresh record of the table's class.
  virtual OdDbSymbolTableRecordPtr newRecord() const = 0;

 protected:
  OdDbSymbolTable();

 private:
  friend class OdDbDatabase;
  friend class OdDbSymbolTableRecord;
  friend class OdDbObject;
  friend class OdDbUndo;
  void attach(OdDbObjectId id);
  void renamed() { m_indexed = false; }

  std::vector<OdDbObjectId> m_records;
  mutable QHash<OdString, OdDbObjectId> m_index;
  mutable bool m_indexed = false;
};
using OdDbSymbolTablePtr = OdSmartPtr<OdDbSymbolTable>;

/// A walk over a table.
class OdDbSymbolTableIterator {
 public:
  OdDbSymbolTableIterator(const OdDbSymbolTable& table, bool skipErased);

  bool done() const { return m_at >= m_table->recordIds().size(); }
  void step();
  OdDbObjectId getRecordId() const { return m_table->recordIds()[m_at]; }
  OdDbSymbolTableRecordPtr getRecord(OdDb::OpenMode mode = OdDb::kForRead) const;

 private:
  void skip();
  OdSmartPtr<OdDbSymbolTable> m_table;
  std::size_t m_at = 0;
  bool m_skipErased;
};

/// Declares a table and says what its records are called.
#define ODDB_TABLE(Class, Record, DXF_NAME)                                                        \
  class Class : public OdDbSymbolTable {                                                           \
    ODRX_DECLARE_MEMBERS(Class);                                                                   \
                                                                                                   \
   public:                                                                                         \
    const char* dxfRecordName() const override { return DXF_NAME; }                                \
    OdDbSymbolTableRecordPtr newRecord() const override { return odrxMake<Record>(); }             \
                                                                                                   \
   protected:                                                                                      \
    OdDbObjectPtr newInstance() const override { return odrxMake<Class>(); }                       \
  };                                                                                               \
  using Class##Ptr = OdSmartPtr<Class>;                                                            \
  using Record##Ptr = OdSmartPtr<Record>
