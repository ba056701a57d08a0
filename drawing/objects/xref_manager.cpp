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

/// A block with what its file has, or an empty one.
bool isEmpty(const OdDbBlockTableRecord& block) { return block.newIterator()->done(); }

void eraseLoaded(OdDbBlockTableRecord& block) {
  if (isEmpty(block)) return;
  eraseContents(block);
  eraseDependents(block.database()->getBlockTableId(), block.getName());
}

/// What can be told of a reference without reading its file.
Report lookAt(const OdDbBlockTableRecord& block) {
  Report report{Result::kLoaded, block.getName(), block.pathName(), {}};
  const auto tell = [&](Result result, const OdString& message) {
    report.result = result;
    report.message = message;
  };
  const OdString drawing = block.database()->fileName();
  const OdString path = OdDbXRefMan::resolvedPath(block);
  if (!block.isFromExternalReference())
    tell(Result::kNotAnXRef,
         QStringLiteral("The block \"%1\" is no external reference").arg(block.getName()));
  else if (!path.isEmpty())
    report.path = path;
  else if (oddb::isNoFile(block.pathName(), drawing))
    tell(Result::kUnreadable, QStringLiteral("%1: it is not a file").arg(block.pathName()));
  else
    tell(Result::kFileMissing,
         QStringLiteral("The file \"%1\" cannot be found").arg(block.pathName()));
  return report;
}

void tellCircle(Report& report, const OdDbBlockTableRecord& block) {
  report.result = Result::kCircular;
  report.message = QStringLiteral("The file \"%1\" refers back to itself").arg(block.pathName());
}

void tellUnreadable(Report& report, const OdError& error) {
  report.result = Result::kUnreadable;
  report.message = error.description();
}

/// Those to load when a drawing is opened. Those within others come with them.
std::vector<OdDbObjectId> referencesOf(const OdDbDatabase& database) {
  std::vector<OdDbObjectId> references;
  const auto blocks = database.getBlockTableId().openAs<OdDbBlockTable>();
  for (const auto it = blocks->newIterator(); !it->done(); it->step()) {
    const OdDbBlockTableRecordPtr block = it->getRecord();
    if (block->isFromExternalReference() && !block->isUnloaded() && !OdDbXRefMan::owns(*block))
      references.push_back(block->objectId());
  }
  return references;
}

/// True for a block whose file is the drawing itself or that of a reference around it.
bool isWithinItself(const OdDbBlockTableRecord& block, const OdString& path) {
  if (odpath::samePlace(block.database()->fileName(), path)) return true;
  // Those around it have the names that its own begins with.
  const auto blocks = block.database()->getBlockTableId().openAs<OdDbBlockTable>();
  OdString name = block.getName();
  for (qsizetype at = name.lastIndexOf(u'|'); at > 0; at = name.lastIndexOf(u'|')) {
    name.truncate(at);
    const OdDbBlockTableRecordPtr around = blocks->getAt(name).openObject();
    if (around && odpath::samePlace(OdDbXRefMan::resolvedPath(*around), path)) return true;
  }
  return false;
}

/// Loads with the files in mind that are being loaded around it.
class Loader {
 public:
  explicit Loader(std::vector<Report>& reports)
    : m_reports(reports) {}

  void load(OdDbObjectId blockId, int depth = 0) {
    const auto block = blockId.openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
    const std::size_t own = m_reports.size();
    m_reports.push_back(lookAt(*block));
    if (block->isUnloaded() && block->isFromExternalReference()) block->setIsUnloaded(false);
    if (m_reports[own].result == Result::kLoaded) check(m_reports[own], *block, depth);
    if (m_reports[own].result == Result::kLoaded) read(own, *block, depth);
    const Result result = m_reports[own].result;
    if (result != Result::kLoaded && result != Result::kNotAnXRef) eraseLoaded(*block);
  }

 private:
  /// Looks for circles, and for heaps of files that refer to others twice and more.
  void check(Report& report, const OdDbBlockTableRecord& block, int depth) {
    constexpr int kDeepest = 32, kMost = 1000;
    if (m_open.empty()) m_open.push_back(block.database()->fileName());
    const bool isOpen = std::any_of(m_open.begin(), m_open.end(), [&](const OdString& open) {
      return !open.isEmpty() && odpath::samePlace(open, report.path);
    });
    if (isOpen) return tellCircle(report, block);
    if (depth < kDeepest && ++m_count <= kMost) return;
    report.result = Result::kTooMany;
    report.message =
        depth < kDeepest
            ? QStringLiteral("More than %1 references are not loaded").arg(kMost)
            : QStringLiteral("References deeper than %1 drawings are not loaded").arg(kDeepest);
  }

  void read(std::size_t own, OdDbBlockTableRecord& block, int depth) {
    const OdString path = m_reports[own].path;
    m_open.push_back(path);
    try {
      const OdDbDatabasePtr other = OdDbDatabase::readFile(path);
      loadNested(*other, depth);
      take(block, *other);
    } catch (const OdError& error) {
      tellUnreadable(m_reports[own], error);
    }
    m_open.pop_back();
  }

  void loadNested(OdDbDatabase& database, int depth) {
    for (const OdDbObjectId id : referencesOf(database))
      if (!id.openAs<OdDbBlockTableRecord>()->isFromOverlayReference()) load(id, depth + 1);
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
  }

  std::vector<Report>& m_reports;
  std::vector<OdString> m_open;
  int m_count = 0;
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
  const bool wasModified = database.isModified();
  Loader loader(reports);
  for (const OdDbObjectId id : referencesOf(database)) loader.load(id);
  if (!wasModified && !reports.empty()) database.setSaved();
  return reports;
}

Report OdDbXRefMan::state(const OdDbBlockTableRecord& block) {
  Report report = lookAt(block);
  if (report.result == Result::kNotAnXRef) return report;
  if (!isEmpty(block)) {
    report.result = Result::kLoaded;
  } else if (block.isUnloaded()) {
    report.result = Result::kUnloaded;
  } else if (report.result == Result::kLoaded && isWithinItself(block, report.path)) {
    tellCircle(report, block);
  } else if (report.result == Result::kLoaded) {
    // A drawing without entities and a file that is no drawing look alike from here.
    try {
      OdDbDatabase::readFile(report.path);
    } catch (const OdError& error) {
      tellUnreadable(report, error);
    }
  }
  return report;
}

void OdDbXRefMan::unload(OdDbObjectId blockId) {
  const auto block = blockId.openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  if (!block->isFromExternalReference()) return;
  eraseLoaded(*block);
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
  block->setIsFromExternalReference(false);
  block->setPathName(OdString());
  block->database()->insert(block->getName(), source, true);
  block->setOrigin(source->sysVarPoint("INSBASE"));
  block->setBlockInsertUnits(static_cast<int>(source->sysVarInt("INSUNITS")));
  return true;
}
