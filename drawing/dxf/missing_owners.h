// The owners of objects in files that do not name them.
#pragma once

#include "drawing/database_data.h"

#include <unordered_map>

class OdDbDictionary;

/// Files of R13 and R14 do not tell to whom an object of the OBJECTS section belongs: a dictionary
/// names its entries, and an object its extension dictionary.
class OdDbDxfMissingOwners {
 public:
  explicit OdDbDxfMissingOwners(OdDbDatabaseData& data)
    : m_data(data) {}

  /// Notes what a dictionary without a named owner has.
  void note(const OdDbDictionary& dictionary);
  /// The owner of an object that is about to enter the drawing under a handle; null if nobody has
  /// told. A dictionary that comes behind its entries is found by the reactors of these.
  OdDbObjectId of(const OdDbObject& object, OdDbHandle handle);

 private:
  void gatherExtensions();

  OdDbDatabaseData& m_data;
  std::unordered_map<OdDbObjectId, OdDbObjectId> m_owners; ///< by what they own
  std::uint32_t m_looked = 0; ///< how many objects were asked for their extension dictionaries
};
