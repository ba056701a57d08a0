// Copies objects within a drawing or into another. Not for use outside of the library.
#pragma once

#include "drawing/cloning/object_tags.h"

#include <deque>
#include <map>

namespace oddb {

/// Copies objects by what their file entries say, so that objects of every class are treated alike:
/// those that nobody knows as well as all others. First everything that comes along is gathered and
/// gets its new handle, then the copies are made.
class Cloner {
 public:
  Cloner(OdDbDatabase& source, OdDbDatabase& target, OdDbIdMapping& mapping,
         OdDb::DuplicateRecordCloning policy, OdString prefix = OdString());

  /// An object goes to an owner: an entity to a block, any other to whatever owns it.
  void add(OdDbObjectId object, OdDbObjectId newOwner);
  /// All entities of a block go to another block.
  void addEntitiesOf(OdDbObjectId block, OdDbObjectId newBlock);
  /// The record, layout or other thing with a name becomes one of the target by the policy.
  OdDbObjectId addNamed(OdDbObjectId object);
  /// A record of this name is given another name, whatever the policy says: it would be mistaken
  /// for the one that is made.
  void setReservedBlock(const OdString& name) { m_reservedBlock = name; }
  /// Entities are gathered only if this says so.
  std::function<bool(const OdDbEntity&)> accepts;

  /// Makes the copies.
  void run();

 private:
  struct Item {
    OdDbObjectId source, owner;
    OdDbHandle handle;
    ObjectEntry entry;
    bool follows = false;    ///< belongs to the item before that does not follow
    OdDbObjectId replaced;   ///< the record that takes over what was copied
    OdString newName;        ///< of a record; empty: its own
    OdDbObjectId dictionary; ///< of the target, where it stands under newName
  };

  /// How a record comes into the target.
  struct RecordPlace {
    OdString name = {};         ///< of the copy, or of the target's own record that serves
    OdDbObjectId existing = {}; ///< the target's own record that serves; null: a copy is made
    OdDbObjectId replaced = {}; ///< the record that takes over what is copied
  };

  bool isAcross() const { return &m_source != &m_target; }
  OdDbHandle reserveHandle();
  Item& addItem(OdDbObjectId source, OdDbObjectId owner, ObjectEntry entry);
  void gather();
  void gatherReferences(const ObjectEntry& entry);
  void followName(const OdDbKeptTags::Tag& tag, const NameReference& reference);
  void followHandle(OdDbHandle handle, ReferenceKind kind, OdDbObjectId ownerOfOwned);
  OdDbObjectId addRecord(const OdDbSymbolTableRecord& record, OdDbDatabaseData::Table table);
  RecordPlace placeOf(const OdDbSymbolTableRecord& record, OdDbDatabaseData::Table table,
                      const OdDbSymbolTable& records);
  OdDbObjectId addToDictionary(const OdDbObject& object, const OdDbDictionary& dictionary);
  OdDbObjectId targetDictionary(OdDbObjectId dictionary);
  void addBlockContents(const OdDbBlockTableRecord& block, OdDbObjectId newBlock);
  OdString freeName(const OdString& name,
                    const std::function<bool(const OdString&)>& isTaken) const;
  bool isReserved(const OdString& name, OdDbDatabaseData::Table table) const;

  void translate(Item& item) const;
  OdString translatedName(const QByteArray& name, OdDbDatabaseData::Table table) const;
  void make(Item& item);
  void finish(Item& item, OdDbObject& object);
  OdDbObjectId idOf(OdDbHandle sourceHandle) const;

  OdDbDatabase& m_source;
  OdDbDatabase& m_target;
  OdDbIdMapping& m_mapping;
  OdDb::DuplicateRecordCloning m_policy;
  OdString m_prefix, m_reservedBlock;
  std::deque<Item> m_items;
  std::size_t m_gathered = 0;
  OdDbObjectId m_gatheringFor;
  std::map<std::pair<int, OdString>, OdString> m_names; ///< by table and folded name
  OdDbEntityPtr m_leader;
  QByteArray m_encoding;
};

} // namespace oddb
