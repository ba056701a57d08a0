// Finds out what comes along with a copied object.
#include "drawing/cloning/cloner.h"
#include "drawing/objects/image_def.h"
#include "drawing/objects/raw_object.h"
#include "frame/file_path.h"

namespace {

using Data = OdDbDatabaseData;

bool isAnonymous(const OdString& name) { return name.startsWith(u'*'); }

std::optional<Data::Table> tableOf(const OdDbDatabase& database, OdDbObjectId owner) {
  const auto& tables = database.data().tables;
  const auto* const at = std::find(std::begin(tables), std::end(tables), owner);
  if (owner.isNull() || at == std::end(tables)) return std::nullopt;
  return static_cast<Data::Table>(at - std::begin(tables));
}

/// Records that every drawing has under these names, and that mean the same in each.
bool isCommon(const OdString& name, Data::Table table) {
  static constexpr std::pair<Data::Table, const char*> kNames[] = {
      {Data::kLayers, "0"},          {Data::kLinetypes, "ByLayer"},
      {Data::kLinetypes, "ByBlock"}, {Data::kLinetypes, "Continuous"},
      {Data::kViewports, "*Active"},
  };
  if (table == Data::kRegApps) return true;
  return std::any_of(std::begin(kNames), std::end(kNames), [&](const auto& row) {
    return row.first == table && name.compare(QLatin1String(row.second), Qt::CaseInsensitive) == 0;
  });
}

/// The entry for the same file of shapes: such entries have no names.
OdDbObjectId sameShapeFile(const OdDbSymbolTable& styles, const OdDbSymbolTableRecord& record) {
  const auto* const wanted = odrxCast<OdDbTextStyleTableRecord>(&record);
  for (const auto it = styles.newIterator(); wanted && !it->done(); it->step()) {
    const OdDbSymbolTableRecordPtr each = it->getRecord();
    const auto* const style = odrxCast<OdDbTextStyleTableRecord>(each.get());
    if (style && style->isShapeFile() &&
        style->fileName().compare(wanted->fileName(), Qt::CaseInsensitive) == 0)
      return style->objectId();
  }
  return {};
}

} // namespace

oddb::Cloner::Cloner(OdDbDatabase& source, OdDbDatabase& target, OdDbIdMapping& mapping,
                     OdDb::DuplicateRecordCloning policy, OdString prefix)
  : m_source(source)
  , m_target(target)
  , m_mapping(mapping)
  , m_policy(policy)
  , m_prefix(std::move(prefix))
  , m_encoding(target.data().encoding) {
  target.data().undo.willAppend();
}

OdDbHandle oddb::Cloner::reserveHandle() {
  OdDbDatabaseData& d = m_target.data();
  while (d.byHandle.find(d.handseed) != OdDbHandleTable::kNone) ++d.handseed;
  return d.handseed++;
}

oddb::Cloner::Item& oddb::Cloner::addItem(OdDbObjectId source, OdDbObjectId owner,
                                          ObjectEntry entry) {
  Item& item = m_items.emplace_back();
  item.source = source;
  item.owner = owner;
  item.handle = reserveHandle();
  item.entry = std::move(entry);
  m_mapping.assign({source, OdDbObjectId(&m_target.data().stubFor(item.handle)), true});
  return item;
}

void oddb::Cloner::add(OdDbObjectId id, OdDbObjectId newOwner) {
  if (m_mapping.contains(id)) return;
  const OdDbObjectPtr object = id.openObject();
  if (!object) return;
  const auto* const entity = odrxCast<OdDbEntity>(object.get());
  if (entity && accepts && !accepts(*entity)) return;
  std::vector<ObjectEntry> entries = entriesOf(*object);
  addItem(id, newOwner, std::move(entries.front()));
  const OdDbObjectId copy = m_mapping.find(id);
  for (std::size_t i = 1; i < entries.size(); ++i) {
    const OdDbObjectId follower = m_source.getOdDbObjectId(entries[i].handle);
    addItem(follower, copy, std::move(entries[i])).follows = true;
  }
}

void oddb::Cloner::addEntitiesOf(OdDbObjectId blockId, OdDbObjectId newBlock) {
  const auto block = blockId.openAs<OdDbBlockTableRecord>();
  addBlockContents(*block, newBlock);
}

void oddb::Cloner::addBlockContents(const OdDbBlockTableRecord& block, OdDbObjectId newBlock) {
  for (const OdDbObjectId id : block.entityIds())
    if (id.isValid()) add(id, newBlock);
}

void oddb::Cloner::gather() {
  // The list grows while it is walked.
  for (; m_gathered < m_items.size(); ++m_gathered) {
    m_gatheringFor = m_mapping.find(m_items[m_gathered].source);
    gatherReferences(ObjectEntry(m_items[m_gathered].entry));
  }
}

void oddb::Cloner::gatherReferences(const ObjectEntry& entry) {
  for (TagWalk walk(entry); !walk.done(); walk.step()) {
    const OdDbKeptTags::Tag& tag = walk.tag();
    if (const auto name = walk.nameReference()) {
      followName(tag, *name);
      continue;
    }
    const ReferenceKind kind = walk.handleReference();
    if (kind == ReferenceKind::kNone || kind == ReferenceKind::kSoftPointer) continue;
    const QByteArray text = tag.value.trimmed();
    const auto handle =
        OdDbHandle::fromText({text.constData(), static_cast<std::size_t>(text.size())});
    if (handle && !handle->isNull()) followHandle(*handle, kind, m_gatheringFor);
  }
}

void oddb::Cloner::followName(const OdDbKeptTags::Tag& tag, const NameReference& reference) {
  if (!isAcross() && !reference.isOwned) return;
  const auto table = m_source.data().tables[reference.table].openAs<OdDbSymbolTable>();
  const OdDbObjectId id = table->getAt(OdString::fromUtf8(tag.value));
  if (!id.isNull()) addNamed(id);
}

void oddb::Cloner::followHandle(OdDbHandle handle, ReferenceKind kind, OdDbObjectId newOwner) {
  const OdDbObjectId id = m_source.getOdDbObjectId(handle);
  const OdDbObjectPtr object = id.openObject();
  if (!object || m_mapping.contains(id)) return;
  const bool isTable = odrxCast<OdDbSymbolTable>(object.get()) != nullptr;
  if (isTable || id == m_source.getNamedObjectsDictionaryId()) return;
  if (kind == ReferenceKind::kOwner) {
    add(id, newOwner);
  } else if (isAcross() && !odrxCast<OdDbEntity>(object.get())) {
    // Entities come with their blocks, not by being pointed at.
    addNamed(id);
  }
}

OdDbObjectId oddb::Cloner::addNamed(OdDbObjectId id) {
  if (const OdDbObjectId known = m_mapping.find(id); !known.isNull()) return known;
  const OdDbObjectPtr object = id.openObject();
  if (!object) return {};
  if (const auto* const record = odrxCast<OdDbSymbolTableRecord>(object.get())) {
    const auto table = tableOf(m_source, record->ownerId());
    return table ? addRecord(*record, *table) : OdDbObjectId();
  }
  const OdDbObjectPtr owner = object->ownerId().openObject();
  if (const auto* const dictionary = odrxCast<OdDbDictionary>(owner.get()))
    return addToDictionary(*object, *dictionary);
  return {};
}

bool oddb::Cloner::isReserved(const OdString& name, Data::Table table) const {
  return table == Data::kBlocks && !m_reservedBlock.isEmpty() &&
         name.compare(m_reservedBlock, Qt::CaseInsensitive) == 0;
}

OdString oddb::Cloner::freeName(const OdString& name,
                                const std::function<bool(const OdString&)>& isTaken) const {
  for (int i = 0;; ++i) {
    const OdString mangled = QStringLiteral("%1$%2$%3").arg(m_prefix).arg(i).arg(name);
    if (!isTaken(mangled)) return mangled;
  }
}

oddb::Cloner::RecordPlace oddb::Cloner::placeOf(const OdDbSymbolTableRecord& record,
                                                Data::Table table, const OdDbSymbolTable& records) {
  const OdString name = record.getName();
  const bool isBlock = table == Data::kBlocks;
  if (name.isEmpty()) return {.existing = sameShapeFile(records, record)};
  if (isBlock && isAnonymous(name)) {
    const OdDbObjectId made = addAnonymousBlock(m_target, name.size() > 1 ? name[1] : u'U');
    // The name is taken from now on; what the block is comes with the copy.
    return {.name = made.openAs<OdDbBlockTableRecord>()->getName(), .replaced = made};
  }
  const OdDbObjectId existing = records.getAt(name);
  if (isCommon(name, table)) return {.name = name, .existing = existing};
  const auto isTaken = [&](const OdString& wanted) {
    if (records.has(wanted)) return true;
    return std::any_of(m_items.begin(), m_items.end(), [&](const Item& item) {
      return item.newName.compare(wanted, Qt::CaseInsensitive) == 0;
    });
  };
  if (isReserved(name, table)) return {.name = freeName(name, isTaken)};
  if (m_policy == OdDb::kDrcXrefMangleName) {
    const OdString mangled = m_prefix + u'|' + name;
    const OdDbObjectId former = records.getAt(mangled);
    if (isBlock) return {.name = mangled, .replaced = former};
    // What the user has changed of a layer since stays.
    return {.name = mangled, .existing = former};
  }
  if (existing.isNull()) return {.name = name};
  if (m_policy == OdDb::kDrcIgnore) return {.name = name, .existing = existing};
  if (m_policy == OdDb::kDrcReplace) return {.name = name, .replaced = existing};
  return {.name = freeName(name, isTaken)};
}

OdDbObjectId oddb::Cloner::addRecord(const OdDbSymbolTableRecord& record, Data::Table table) {
  const auto block = odrxCast<OdDbBlockTableRecord>(&record);
  // The spaces are where blocks come from; what refers to them is left without.
  if (block && block->isLayout()) return {};
  const auto records = m_target.data().tables[table].openAs<OdDbSymbolTable>(OdDb::kForWrite);
  const OdString name = record.getName();
  const RecordPlace place = placeOf(record, table, *records);
  if (!place.existing.isNull()) {
    if (place.name != name) m_names[{table, name.toCaseFolded()}] = place.name;
    m_mapping.assign({record.objectId(), place.existing, false});
    return place.existing;
  }
  std::vector<ObjectEntry> entries = entriesOf(record);
  Item& item = addItem(record.objectId(), records->objectId(), std::move(entries.front()));
  item.newName = place.name;
  item.replaced = place.replaced;
  if (!place.replaced.isNull()) m_mapping.assign({record.objectId(), place.replaced, true});
  const OdDbObjectId copy = m_mapping.find(record.objectId());
  m_names[{table, name.toCaseFolded()}] = place.name;
  if (block) addBlockContents(*block, copy);
  return copy;
}

OdDbObjectId oddb::Cloner::targetDictionary(OdDbObjectId id) {
  if (id == m_source.getNamedObjectsDictionaryId()) return m_target.getNamedObjectsDictionaryId();
  if (const OdDbObjectId known = m_mapping.find(id); !known.isNull()) return known;
  const OdDbObjectPtr object = id.openObject();
  const OdDbObjectPtr above = object ? object->ownerId().openObject() : nullptr;
  const auto* const parent = odrxCast<OdDbDictionary>(above.get());
  const OdString name = parent ? parent->nameAt(id) : OdString();
  const OdDbObjectId container =
      name.isEmpty() ? OdDbObjectId() : targetDictionary(parent->objectId());
  if (container.isNull()) return {};
  const OdDbDictionaryPtr dictionary = container.safeOpenObject(OdDb::kForWrite);
  OdDbObjectId found = dictionary->getAt(name);
  if (found.isNull()) found = dictionary->setAt(name, odrxMake<OdDbDictionary>());
  const OdDbObjectPtr opened = found.openObject();
  return odrxCast<OdDbDictionary>(opened.get()) ? found : OdDbObjectId();
}

OdDbObjectId oddb::Cloner::addToDictionary(const OdDbObject& object,
                                           const OdDbDictionary& dictionary) {
  const OdDbObjectId container = targetDictionary(dictionary.objectId());
  OdString name = dictionary.nameAt(object.objectId());
  const OdDbObjectPtr opened = container.openObject(OdDb::kForWrite);
  auto* const target = odrxCast<OdDbDictionary>(opened.get());
  if (!target || name.isEmpty()) return {};
  const OdDbObjectId existing = target->getAt(name);
  if (!existing.isNull()) {
    const OdDbObjectPtr other = existing.openObject();
    const auto* const picture = odrxCast<OdDbRasterImageDef>(&object);
    const auto* const otherPicture = odrxCast<OdDbRasterImageDef>(other.get());
    // Two pictures may well have one name.
    const bool differs = picture && otherPicture &&
                         odpath::fromPlatform(picture->sourceFileName()) !=
                             odpath::fromPlatform(otherPicture->sourceFileName());
    if (!differs) {
      m_mapping.assign({object.objectId(), existing, false});
      return existing;
    }
    name = freeName(name, [&](const OdString& wanted) { return !target->getAt(wanted).isNull(); });
  }
  std::vector<ObjectEntry> entries = entriesOf(object);
  Item& item = addItem(object.objectId(), container, std::move(entries.front()));
  item.newName = name;
  item.dictionary = container;
  const OdDbObjectId copy = m_mapping.find(object.objectId());
  target->setEntry(name, copy);
  return copy;
}
