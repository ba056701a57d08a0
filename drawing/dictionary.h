// Dictionaries: named objects.
#pragma once

#include "drawing/object.h"

#include <vector>

/// Objects by name. Names are compared exactly.
class OdDbDictionary : public OdDbObject {
  ODDB_CONCRETE(OdDbDictionary, "DICTIONARY")

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
  const std::vector<Entry>& entries() const { return m_entries; }

  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

 private:
  std::vector<Entry> m_entries;
  int m_hardOwner = -1, m_cloning = 1;
  // The code of the entries' references: 350 soft, 360 hard.
  int m_entryCode = 350;
  OdString m_pendingName;
};
using OdDbDictionaryPtr = OdSmartPtr<OdDbDictionary>;
