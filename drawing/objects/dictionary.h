// Dictionaries: named objects.
#pragma once

#include "drawing/object.h"

#include <vector>

/// Objects by name. Names are compared exactly.
class OdDbDictionary : public OdDbObject {
  ODRX_DECLARE_MEMBERS(OdDbDictionary);

 public:
  OdDbDictionary();
  /// `withDefault` makes the class that answers unknown names with an object of its own.
  explicit OdDbDictionary(bool withDefault);
  const char* dxfName() const override;
  void assignFrom(const OdDbObject& other) override;

  struct Entry {
    OdString name;
    OdDbObjectId id;
  };

  /// Null if there is no object of that name that is not erased.
  OdDbObjectId getAt(const OdString& name) const;
  /// The name of an entry; empty if the object is not in the dictionary.
  OdString nameAt(OdDbObjectId id) const;
  /// Puts a new object into the dictionary, and so into the drawing; an entry of the name is
  /// replaced.
  OdDbObjectId setAt(const OdString& name, OdDbObject* object);
  /// Enters an object that is in the drawing already, or comes to it; nothing is put into the
  /// drawing.
  void setEntry(const OdString& name, OdDbObjectId id);
  /// Gives an entry another name. Raises OdDbError (eInvalidName, eDuplicateRecordName).
  void setName(OdDbObjectId id, const OdString& name);
  /// Forgets an entry; the object stays. False if there is none of that name.
  bool remove(const OdString& name);
  /// The object that answers unknown names; null if there is none.
  OdDbObjectId defaultId() const { return m_default; }
  const std::vector<Entry>& entries() const { return m_entries; }

  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

 protected:
  OdDbObjectPtr newInstance() const override;

 private:
  std::vector<Entry> m_entries;
  bool m_withDefault = false;
  int m_hardOwner = -1, m_cloning = -1; ///< -1: not in the file
  // The code of the entries' references: 350 soft, 360 hard.
  int m_entryCode = 350;
  OdString m_pendingName;
  OdDbObjectId m_default; ///< what answers unknown names
};
using OdDbDictionaryPtr = OdSmartPtr<OdDbDictionary>;

/// A text under a name: the place of variables that came after the header's.
class OdDbDictionaryVar : public OdDbObject {
  ODDB_CONCRETE(OdDbDictionaryVar, "DICTIONARYVAR")

  const OdString& value() const { return m_value; }
  void setValue(const OdString& value);

  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

 private:
  int m_schema = 0;
  OdString m_value;
};
using OdDbDictionaryVarPtr = OdSmartPtr<OdDbDictionaryVar>;
