#include "drawing/objects/xref_manager.h"

#include "drawing/cloning/cloner.h"
#include "drawing/entities/block_reference.h"
#include "drawing/objects/stored_path.h"
#include "frame/file_path.h"

namespace {

using Result = OdDbXRefMan::Result;
using Report = OdDbXRefMan::Report;

void eraseContents(OdDbBlockTableRecord& block) {
  for (const auto it = block.newIterator(); !it->done(); it->step())
    it->entity(OdDb::kForWrite)->erase();
}

/// The records "NAME|..." of one table.
void eraseDependents(OdDbObjectId tableId, const OdString& name) {
  const auto table = tableId.openAs<OdDbSymbolTable>();
  for (const auto it = table->newIterator(); !it->done(); it->step())
    if (it->getRecord()->getName().startsWith(name + u'|', Qt::CaseInsensitive))
      it->getRecord(OdDb::kForWrite)->erase();
}

/// Marks what a saved drawing lacks. Layers, line types and text styles stay: users change them.
void markTransient(OdDbDatabase& database, const OdDbIdMapping& mapping) {
  OdDbDatabaseData& data = database.data();
  for (const OdDbIdMapping::Pair& pair : mapping.pairs()) {
    const OdDbObjectPtr object = pair.value.openObject();
    if (!pair.isCloned || !object || odrxCast<OdDbLayerTableRecord>(object.get()) ||
        odrxCast<OdDbLinetypeTableRecord>(object.get()) ||
        odrxCast<OdDbTextStyleTableRecord>(object.get()) ||
        odrxCast<OdDbRegAppTableRecord>(object.get()))
      continue;
    data.transient.insert(pair.value);
  }
}

bool isOverlayInsert(const OdDbEntity& entity) {
  const auto* const insert = odrxCast<OdDbBlockReference>(&entity);
  const OdDbObjectPtr object = insert ? insert->blockTableRecord().openObject() : OdDbObjectPtr();
  const auto* const block = odrxCast<OdDbBlockTableRecord>(object.get());
  return block && block->isFromOverlayReference();
}

/// Loads with the files in mind that are being loaded around it.
class Loader {
 public:
  explicit Loader(std::vector<Report>& reports)
    : m_reports(reports) {}

  void load(OdDbObjectId blockId, int depth = 0) {
    const auto block = blockId.openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
    const std::size_t own = m_reports.size();
    m_reports.push_back({Result::kLoaded, block->getName(), block->pathName(), {}});
    const auto tell = [&](Result result, const OdString& message) {
      m_reports[own].result = result;
      m_reports[own].message = message;
      if (result != Result::kNotAnXRef) block->setIsUnloaded(true);
    };
    if (!block->isFromExternalReference()) {
      tell(Result::kNotAnXRef,
           QStringLiteral("The block \"%1\" is no external reference").arg(block->getName()));
      return;
    }
    OdDbDatabase& host = *block->database();
    if (m_open.empty()) m_open.push_back(host.fileName());
    const OdString path = OdDbXRefMan::resolvedPath(*block);
    if (path.isEmpty() && oddb::isNoFile(block->pathName(), host.fileName())) {
      tell(Result::kUnreadable, QStringLiteral("%1: it is not a file").arg(block->pathName()));
      return;
    }
    if (path.isEmpty()) {
      tell(Result::kFileMissing,
           QStringLiteral("The file \"%1\" cannot be found").arg(block->pathName()));
      return;
    }
    m_reports[own].path = path;
    constexpr int kDeepest = 32;
    const bool isOpen = std::any_of(m_open.begin(), m_open.end(), [&](const OdString& open) {
      return !open.isEmpty() && odpath::samePlace(open, path);
    });
    if (isOpen || depth > kDeepest) {
      tell(Result::kCircular,
           QStringLiteral("The file \"%1\" refers back to itself").arg(block->pathName()));
      return;
    }
    OdDbDatabasePtr other;
    try {
      other = OdDbDatabase::readFile(path);
    } catch (const OdError& error) {
      tell(Result::kUnreadable, error.description());
      return;
    }
    m_open.push_back(path);
    loadNested(*other, depth);
    m_open.pop_back();
    take(*block, *other);
  }

 private:
  void loadNested(OdDbDatabase& database, int depth) {
    const auto blocks = database.getBlockTableId().openAs<OdDbBlockTable>();
    std::vector<OdDbObjectId> nested;
    for (const auto it = blocks->newIterator(); !it->done(); it->step()) {
      const OdDbBlockTableRecordPtr record = it->getRecord();
      if (record->isFromExternalReference() && !record->isFromOverlayReference())
        nested.push_back(record->objectId());
    }
    for (const OdDbObjectId id : nested) load(id, depth + 1);
  }

  static void take(OdDbBlockTableRecord& block, OdDbDatabase& other) {
    OdDbDatabase& host = *block.database();
    eraseContents(block);
    OdDbIdMapping mapping;
    oddb::Cloner cloner(other, host, mapping, OdDb::kDrcXrefMangleName, block.getName());
    // Overlays are there for those who work in the file itself.
    cloner.accepts = [](const OdDbEntity& entity) { return !isOverlayInsert(entity); };
    cloner.addEntitiesOf(other.getModelSpaceId(), block.objectId());
    cloner.run();
    markTransient(host, mapping);
    block.upgradeOpen();
    block.setOrigin(other.sysVarPoint("INSBASE"));
    block.setBlockInsertUnits(static_cast<int>(other.sysVarInt("INSUNITS")));
    block.setIsUnloaded(false);
  }

  std::vector<Report>& m_reports;
  std::vector<OdString> m_open;
};

/// Takes away all that was loaded of a reference.
void forget(OdDbBlockTableRecord& block) {
  eraseContents(block);
  for (const OdDbObjectId table : block.database()->data().tables)
    eraseDependents(table, block.getName());
}

OdString freeName(const OdDbBlockTable& blocks, const OdString& name) {
  OdString free = name;
  for (int i = 1; blocks.has(free); ++i) free = name + u'_' + OdString::number(i);
  return free;
}

} // namespace

bool OdDbXRefMan::owns(const OdDbSymbolTableRecord& record) {
  return record.isDependent() || record.getName().contains(u'|');
}

OdString OdDbXRefMan::resolvedPath(const OdDbBlockTableRecord& block) {
  return oddb::findStoredFile(block.pathName(),
                              block.database() ? block.database()->fileName() : OdString());
}

std::vector<Report> OdDbXRefMan::load(OdDbBlockTableRecord* block) {
  return load(block->objectId());
}

std::vector<Report> OdDbXRefMan::load(OdDbObjectId block) {
  std::vector<Report> reports;
  Loader(reports).load(block);
  return reports;
}

std::vector<Report> OdDbXRefMan::loadAll(OdDbDatabase& database) {
  std::vector<Report> reports;
  std::vector<OdDbObjectId> references;
  const auto blocks = database.getBlockTableId().openAs<OdDbBlockTable>();
  for (const auto it = blocks->newIterator(); !it->done(); it->step()) {
    const OdDbBlockTableRecordPtr block = it->getRecord();
    // Those within others come with them.
    if (block->isFromExternalReference() && !owns(*block)) references.push_back(block->objectId());
  }
  for (const OdDbObjectId id : references) Loader(reports).load(id);
  return reports;
}

void OdDbXRefMan::unload(OdDbObjectId blockId) {
  const auto block = blockId.openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  if (!block->isFromExternalReference()) return;
  eraseContents(*block);
  eraseDependents(block->database()->getBlockTableId(), block->getName());
  block->setIsUnloaded(true);
}

OdDbObjectId OdDbXRefMan::attach(OdDbDatabase& database, const OdString& path, const OdString& name,
                                 bool overlay, std::vector<Report>* reports) {
  const auto blocks = database.getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite);
  const auto block = odrxMake<OdDbBlockTableRecord>();
  block->setName(freeName(*blocks, name.isEmpty() ? odpath::titleOf(path) : name));
  block->setPathName(path);
  block->setIsFromExternalReference(true, overlay);
  const OdDbObjectId id = blocks->add(block);
  const std::vector<Report> told = load(id);
  if (reports) reports->insert(reports->end(), told.begin(), told.end());
  return id;
}

bool OdDbXRefMan::detach(OdDbObjectId blockId) {
  const auto block = blockId.openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  if (!block->isFromExternalReference()) return false;
  for (const OdDbObjectId insert : block->getBlockReferenceIds())
    insert.safeOpenObject(OdDb::kForWrite)->erase();
  forget(*block);
  block->erase();
  return true;
}

bool OdDbXRefMan::bind(OdDbObjectId blockId, const OdDbDatabasePtr& source) {
  const auto block = blockId.openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  if (!block->isFromExternalReference()) return false;
  forget(*block);
  block->setIsUnloaded(true);
  block->setIsFromExternalReference(false);
  block->setPathName(OdString());
  block->database()->insert(block->getName(), source, true);
  block->setOrigin(source->sysVarPoint("INSBASE"));
  block->setBlockInsertUnits(static_cast<int>(source->sysVarInt("INSUNITS")));
  return true;
}
