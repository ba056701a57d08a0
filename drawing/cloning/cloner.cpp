#include "drawing/cloning/cloner.h"

#include "drawing/dxf/in.h"
#include "drawing/dxf/makers.h"
#include "drawing/entities/raster_image.h"
#include "drawing/objects/raw_object.h"

namespace {

using Data = OdDbDatabaseData;
using Tags = oddb::ObjectTags;

constexpr int kGroup = 102;

/// In which order copies are made: what is found by name comes before what names it.
int phaseOf(const QByteArray& dxfName) {
  static constexpr const char* kFirst[] = {"APPID", "STYLE", "LTYPE", "BLOCK_RECORD"};
  static constexpr const char* kSecond[] = {"LAYER", "DIMSTYLE", "VIEW", "UCS", "VPORT"};
  const auto is = [&](const char* name) { return dxfName == name; };
  if (std::any_of(std::begin(kFirst), std::end(kFirst), is)) return 0;
  return std::any_of(std::begin(kSecond), std::end(kSecond), is) ? 1 : 2;
}

/// Characters by their numbers, for drawings whose kept lines stand in a code page.
QByteArray escaped(const QByteArray& utf8) {
  if (std::all_of(utf8.begin(), utf8.end(),
                  [](char c) { return static_cast<signed char>(c) >= 0; }))
    return utf8;
  QByteArray bytes;
  for (const QChar c : OdString::fromUtf8(utf8)) {
    if (c.unicode() < 128)
      bytes += static_cast<char>(c.unicode());
    else
      bytes += "\\U+" + QByteArray::number(c.unicode(), 16).rightJustified(4, '0').toUpper();
  }
  return bytes;
}

OdDbObjectPtr newObject(const QByteArray& dxfName, OdDbObjectId owner, bool isEntity) {
  const OdDbObjectPtr container = owner.openObject();
  if (const auto* const table = odrxCast<OdDbSymbolTable>(container.get()))
    return OdDbObjectPtr(table->newRecord());
  const std::string_view name(dxfName.constData(), static_cast<std::size_t>(dxfName.size()));
  if (isEntity) return OdDbObjectPtr(oddxf::makeEntity(name));
  return oddxf::makeObject(name);
}

} // namespace

OdDbObjectId oddb::Cloner::idOf(OdDbHandle sourceHandle) const {
  const OdDbObjectId id = m_source.getOdDbObjectId(sourceHandle);
  if (id.isNull()) return {};
  if (const OdDbObjectId copy = m_mapping.find(id); !copy.isNull()) return copy;
  // Within one drawing what is not copied is still there.
  return isAcross() ? OdDbObjectId() : id;
}

OdString oddb::Cloner::translatedName(const QByteArray& name, Data::Table table) const {
  const OdString text = OdString::fromUtf8(name);
  const auto at = m_names.find({table, text.toCaseFolded()});
  return at == m_names.end() ? text : at->second;
}

void oddb::Cloner::translate(Item& item) const {
  Tags tags;
  tags.reserve(item.entry.tags.size());
  for (TagWalk walk(item.entry); !walk.done(); walk.step()) {
    OdDbKeptTags::Tag tag = walk.tag();
    if (const auto name = walk.nameReference()) {
      tag.value = translatedName(tag.value, name->table).toUtf8();
    } else if (walk.handleReference() != ReferenceKind::kNone) {
      const QByteArray text = tag.value.trimmed();
      const auto handle =
          OdDbHandle::fromText({text.constData(), static_cast<std::size_t>(text.size())});
      const OdDbObjectId id = handle ? idOf(*handle) : OdDbObjectId();
      // A reactor that stays behind does not watch the copy; within one drawing neither.
      const bool isCopied = handle && m_mapping.contains(m_source.getOdDbObjectId(*handle));
      if (walk.isReactor() && (id.isNull() || !isCopied)) continue;
      tag.value = id.isNull() ? QByteArray("0") : id.getHandle().ascii().toLatin1();
    }
    if (m_encoding != "UTF-8") tag.value = escaped(tag.value);
    // A group of which nothing is left says nothing.
    const bool endsGroup = tag.code == kGroup && tag.value.trimmed() == "}";
    if (endsGroup && !tags.empty() && tags.back().code == kGroup &&
        tags.back().value.startsWith('{')) {
      tags.pop_back();
      continue;
    }
    tags.push_back(std::move(tag));
  }
  item.entry.tags = std::move(tags);
}

void oddb::Cloner::run() {
  gather();
  for (Item& item : m_items) translate(item);
  for (int phase = 0; phase < 3; ++phase)
    for (Item& item : m_items)
      if (phaseOf(item.entry.dxfName) == phase) make(item);
  // Pictures learn of images once both are there.
  for (const Item& item : m_items) {
    const OdDbObjectPtr made = m_mapping.find(item.source).openObject(OdDb::kForWrite);
    if (auto* const image = odrxCast<OdDbRasterImage>(made.get())) image->addReactor();
  }
}

void oddb::Cloner::make(Item& item) {
  const OdDbObjectPtr original = item.source.openObject(OdDb::kForRead, true);
  const bool isEntity = odrxCast<OdDbEntity>(original.get()) != nullptr;
  OdDbObjectPtr object = newObject(item.entry.dxfName, item.owner, isEntity);
  EntrySource source(item.entry.tags);
  OdDbDxfIn in(m_target, source, QStringLiteral("(copy)"));
  if (m_encoding != "UTF-8") in.setCodePage(m_target.sysVarText("DWGCODEPAGE").toStdString());
  in.readTags(*object);
  if (auto* const entity = odrxCast<OdDbEntity>(object.get()))
    if (const OdDbEntityPtr other = entity->readAs()) object = OdDbObjectPtr(other);
  auto* const record = odrxCast<OdDbSymbolTableRecord>(object.get());
  if (record && !item.newName.isEmpty() && record->getName() != item.newName)
    record->setName(item.newName);
  if (!item.replaced.isNull()) {
    const OdDbObjectPtr existing = item.replaced.safeOpenObject(OdDb::kForWrite);
    auto* const block = odrxCast<OdDbBlockTableRecord>(existing.get());
    if (block) {
      for (const auto it = block->newIterator(); !it->done(); it->step())
        it->entity(OdDb::kForWrite)->erase();
      static_cast<OdDbBlockTableRecord&>(*object).setBounds(block->blockBeginId(),
                                                            block->blockEndId());
    }
    existing->upgradeOpen();
    static_cast<OdDbSymbolTableRecord&>(*existing).replaceBy(*record);
    finish(item, *existing);
    return;
  }
  m_target.addObject(object, item.owner, item.handle);
  finish(item, *object);
}

void oddb::Cloner::finish(Item& item, OdDbObject& object) {
  if (auto* const block = odrxCast<OdDbBlockTableRecord>(&object)) {
    const OdDbObjectPtr original = item.source.openObject();
    block->takeBegin(static_cast<const OdDbBlockTableRecord&>(*original));
    block->ensureBounds();
    if (m_policy == OdDb::kDrcXrefMangleName) block->setIsDependent(true);
  } else if (auto* const record = odrxCast<OdDbSymbolTableRecord>(&object)) {
    if (m_policy == OdDb::kDrcXrefMangleName && item.newName.contains(u'|'))
      record->setIsDependent(true);
  }
  auto* const entity = odrxCast<OdDbEntity>(&object);
  if (!entity) return;
  if (item.follows && m_leader) {
    m_leader->addFollower(*entity);
    return;
  }
  m_leader = OdDbEntityPtr(entity);
}
