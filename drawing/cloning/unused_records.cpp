#include "drawing/cloning/unused_records.h"

#include "drawing/cloning/object_tags.h"

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

 private:
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
