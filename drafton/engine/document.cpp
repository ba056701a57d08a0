#include "drafton/engine/document.h"

#include "drafton/engine/drawing_files.h"
#include "drafton/engine/dxf_versions.h"
#include "drafton/engine/engine.h"
#include "drafton/engine/preview_keeper.h"
#include "drafton/engine/saved_facts.h"
#include "drawing/variable_recording.h"
#include "frame/file_path.h"
#include "frame/system_services.h"

namespace drafton {

Document::Document(Engine& engine, OdDbDatabasePtr database, OdString name)
  : m_engine(engine)
  , m_database(std::move(database))
  , m_name(std::move(name))
  , m_variables(engine, this)
  , m_hatchKeeper(*m_database)
  , m_since(odrxSystemServices()->currentTime())
  , m_processor(engine, this) {
  m_database->addReactor(this);
  // What changes outside of commands is lent and put back.
  oddb::recordVariables(*m_database, false);
}

Document::~Document() { m_database->removeReactor(this); }

OdString Document::name() const {
  const OdString file = m_database->fileName();
  return file.isEmpty() ? m_name : odpath::fileNameOf(file);
}

void Document::updateHatches() {
  OdVariant gap;
  m_variables.get(QStringLiteral("HPGAPTOL"), gap);
  m_hatchKeeper.follow(gap.toDouble());
}

void Document::beginClosing() { m_isClosing = true; }

void Document::headerSysVarChanged(const OdDbDatabase&, const OdString& name) {
  m_engine.events().fire([&](HostEditorReactor& r) { r.sysVarChanged(m_database.get(), name); });
}

bool Document::lock(const OdString& name) {
  if (m_isClosing) return false;
  if (m_locks++ > 0) return true;
  // Changes under the lock must not go away with a command that is about to be cancelled.
  m_processor.takePendingCancels();
  if (m_processor.isBusy()) return true;
  m_database->startUndoRecord(name);
  m_lockStep = name;
  return true;
}

void Document::resumeLockStep() {
  if (m_lockStep) m_database->startUndoRecord(*m_lockStep);
}

double Document::elevation() const {
  return m_database->sysVarReal(m_database->sysVarInt("TILEMODE") != 0 ? "ELEVATION"
                                                                       : "PELEVATION");
}

void Document::unlock() {
  if (m_locks == 0 || --m_locks > 0) return;
  if (std::exchange(m_lockStep, {})) m_database->endUndoRecord();
  m_database->deliverChanges();
}

QStringList Document::lostBySaving() const {
  QStringList lost = m_database->unknownContent();
  const OdString file = odpath::toPlatform(m_database->fileName()) + u':';
  for (OdString& each : lost)
    if (each.startsWith(file)) each = translated(u"line %1").arg(each.mid(file.size()));
  return lost;
}

void Document::save(const OdString& path) {
  if (!lostBySaving().isEmpty() && !this->path().isEmpty() && odpath::samePlace(path, this->path()))
    throw CommandFailure(
        translated(u"%1 holds content that Drafton cannot write (%2): saving over it would lose "
                   u"it. Save the drawing under another name.")
            .arg(name(), lostBySaving().join(QStringLiteral(", "))));
  keepBackup(path);
  keepPreview(m_engine, *this);
  const OdDb::DwgVersion version = savingVersion(m_engine, *this);
  const OdDb::DwgVersion former = m_database->originalFileVersion();
  const bool isChosen = m_values.contains(QStringLiteral("DXFVERSION"));
  tellTimes(*m_database, m_since, this->path().isEmpty());
  writeDrawing(m_engine, *m_database, path, version);
  m_since = odrxSystemServices()->currentTime();
  if (version != former && !isChosen && !this->path().isEmpty())
    m_engine.print(translated(u"The drawing was read as %1 and is saved as %2.")
                       .arg(dxfVersionName(former), dxfVersionName(version)));
  // A new drawing stays what it was saved as, whatever new ones become later.
  setDxfVersion(m_engine, this, dxfVersionName(version));
  m_database->setFileName(path);
  m_database->setSaved();
}

void Document::keepBackup(const OdString& path) {
  OdVariant keep;
  OdRxSystemServices* const files = odrxSystemServices();
  if (!m_variables.get(QStringLiteral("ISAVEBAK"), keep) || !keep.toBool()) return;
  if (!files->fileExists(path)) return;
  const OdString backup = path.left(path.size() - odpath::fileNameOf(path).size()) +
                          odpath::titleOf(path) + QLatin1String(".bak");
  if (odpath::samePlace(backup, path)) return;
  if (files->fileExists(backup)) files->removeFile(backup);
  files->copyFile(path, backup);
}

} // namespace drafton
