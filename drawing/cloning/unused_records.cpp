#include "drawing/cloning/unused_records.h"

#include "drawing/cloning/object_tags.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/dimension.h"
#include "drawing/objects/raw_object.h"

#include <algorithm>
#include <unordered_set>

namespace {

using Data = OdDbDatabaseData;

constexpr Data::Table kTables[] = {Data::kBlocks,     Data::kLayers,    Data::kLinetypes,
                                   Data::kTextStyles, Data::kDimStyles, Data::kRegApps};

/// Header variables that name blocks.
constexpr const char* kBlockVars[] = {"DIMBLK", "DIMBLK1", "DIMBLK2", "DIMLDRBLK"};

bool isAlwaysThere(const OdDbSymbolTableRecord& record, Data::Table table) {
  static constexpr std::pair<Data::Table, const char*> kNames[] = {
      {Data::kLayers, "0"},
      {Data::kLinetypes, "ByLayer"},
      {Data::kLinetypes, "ByBlock"},
      {Data::kRegApps, "ACAD"},
      {Data::kTextStyles, "Standard"},
      {Data::kDimStyles, "Standard"},
      {Data::kLinetypes, "Continuous"},
  };
  // Shapes are found in the files of the styles without names, whichever has them.
  if (record.getName().isEmpty()) return true;
  if (const auto* const block = odrxCast<OdDbBlockTableRecord>(&record))
    return block->isLayout() || block->isFromExternalReference();
  return std::any_of(std::begin(kNames), std::end(kNames), [&](const auto& row) {
    return row.first == table &&
           record.getName().compare(QLatin1String(row.second), Qt::CaseInsensitive) == 0;
  });
}

/// Walks from object to object over everything that one says of another.
class Walk {
 public:
  explicit Walk(const OdDbDatabase& database)
    : m_database(database) {}

  void add(OdDbObjectId id) {
    if (!id.isNull() && m_seen.insert(id).second) m_open.push_back(id);
  }
  void addNamed(Data::Table table, const OdString& name) {
    add(m_database.data().tables[table].openAs<OdDbSymbolTable>()->getAt(name));
  }
  void run() {
    while (!m_open.empty()) {
      const OdDbObjectId id = m_open.back();
      m_open.pop_back();
      if (const OdDbObjectPtr object = id.openObject()) visit(*object);
    }
  }
  bool hasSeen(OdDbObjectId id) const { return m_seen.contains(id); }
  /// What has been come to.
  const std::unordered_set<OdDbObjectId>& seen() const { return m_seen; }
  /// As if the object had been come to.
  void visit(const OdDbObject& object) {
    // That a table has a record is no use of it.
    if (odrxCast<OdDbSymbolTable>(&object)) return;
    if (const auto* const block = odrxCast<OdDbBlockTableRecord>(&object)) {
      for (const OdDbObjectId entity : block->entityIds()) add(entity);
      add(block->blockBeginId());
      add(block->blockEndId());
    }
    for (const oddb::ObjectEntry& entry : oddb::entriesOf(object))
      for (oddb::TagWalk walk(entry); !walk.done(); walk.step()) follow(walk);
  }

 private:
  void follow(const oddb::TagWalk& walk) {
    const OdDbKeptTags::Tag& tag = walk.tag();
    if (const auto name = walk.nameReference()) {
      addNamed(name->table, OdString::fromUtf8(tag.value));
    } else if (!walk.pointsBack() && walk.handleReference() != oddb::ReferenceKind::kNone) {
      const QByteArray text = tag.value.trimmed();
      if (const auto handle =
              OdDbHandle::fromText({text.constData(), static_cast<std::size_t>(text.size())}))
        add(m_database.getOdDbObjectId(*handle));
    }
  }

  const OdDbDatabase& m_database;
  std::unordered_set<OdDbObjectId> m_seen;
  std::vector<OdDbObjectId> m_open;
};

/// Current values and the settings of dimensions.
void addHeader(const OdDbDatabase& database, Walk& walk) {
  for (const OdDbVarValue& value : database.data().vars)
    if (const auto* const id = std::get_if<OdDbObjectId>(&value)) walk.add(*id);
  for (const char* const name : kBlockVars) walk.addNamed(Data::kBlocks, database.sysVarText(name));
}

} // namespace

std::vector<OdDbObjectId> oddb::unusedRecords(const OdDbDatabase& database) {
  Walk walk(database);
  addHeader(database, walk);
  walk.add(database.getNamedObjectsDictionaryId());
  std::vector<OdDbObjectId> candidates;
  for (std::size_t table = 0; table < Data::kTableCount; ++table) {
    const bool mayGo =
        std::find(std::begin(kTables), std::end(kTables), table) != std::end(kTables);
    const auto records = database.data().tables[table].openAs<OdDbSymbolTable>();
    for (const auto it = records->newIterator(); !it->done(); it->step()) {
      if (mayGo && !isAlwaysThere(*it->getRecord(), static_cast<Data::Table>(table)))
        candidates.push_back(it->getRecordId());
      else
        walk.add(it->getRecordId());
    }
  }
  walk.run();
  std::erase_if(candidates, [&](OdDbObjectId id) { return walk.hasSeen(id); });
  return candidates;
}

namespace {

using Ids = std::unordered_set<OdDbObjectId>;

/// The block if programs have named it.
const OdDbBlockTableRecord* anonymous(const OdDbObjectPtr& object) {
  const auto* const block = odrxCast<OdDbBlockTableRecord>(object.get());
  return block && block->getName().startsWith(u'*') && !block->isLayout() ? block : nullptr;
}

/// Adds the anonymous blocks by which an entity is shown.
void addShown(const OdDbObject& entity, Ids& blocks) {
  const auto add = [&](OdDbObjectId id) {
    if (anonymous(id.openObject())) blocks.insert(id);
  };
  if (const auto* const insert = odrxCast<OdDbBlockReference>(&entity)) {
    add(insert->blockTableRecord());
  } else if (const auto* const dimension = odrxCast<OdDbDimension>(&entity)) {
    add(dimension->dimBlockId());
  } else if (odrxCast<OdDbRawEntity>(&entity)) {
    Walk walk(*entity.database());
    walk.visit(entity);
    for (const OdDbObjectId id : walk.seen()) add(id);
  }
}

/// Those that showed what is erased, and those within them.
Ids blocksOfErased(const OdDbDatabase& database) {
  Ids found;
  const OdDbStubPool& stubs = database.data().stubs;
  for (std::uint32_t i = 0; i < stubs.size(); ++i)
    if (const OdDbObject* const object = stubs[i].object.get(); object && object->isErased())
      addShown(*object, found);
  std::vector<OdDbObjectId> open(found.begin(), found.end());
  while (!open.empty()) {
    const OdDbObjectPtr object = open.back().openObject();
    open.pop_back();
    Ids within;
    for (const auto it = anonymous(object)->newIterator(); !it->done(); it->step())
      addShown(*it->entity(), within);
    for (const OdDbObjectId id : within)
      if (found.insert(id).second) open.push_back(id);
  }
  return found;
}

} // namespace

std::unordered_set<OdDbObjectId> oddb::orphanedBlocks(const OdDbDatabase& database) {
  Ids blocks = blocksOfErased(database);
  if (blocks.empty()) return blocks;
  // Whatever else is saved keeps what it needs, used or not.
  Walk walk(database);
  addHeader(database, walk);
  walk.add(database.getNamedObjectsDictionaryId());
  for (const OdDbObjectId table : database.data().tables) {
    const auto records = table.openAs<OdDbSymbolTable>();
    for (const auto it = records->newIterator(); !it->done(); it->step())
      if (!blocks.contains(it->getRecordId())) walk.add(it->getRecordId());
  }
  walk.run();
  std::erase_if(blocks, [&](OdDbObjectId id) { return walk.hasSeen(id); });
  return blocks;
}
