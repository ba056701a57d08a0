#include "tpal/catalog_lock.h"

#include "frame/file_path.h"
#include "frame/system_services.h"
#include "persistence/path_operations.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

namespace tpal {
namespace {

OdString lockFileIn(const OdString& folder) {
  return QDir(odpath::toPlatform(folder))
      .filePath(OdString::fromUtf16(tc::kCatalogFileName) + QLatin1String(".lock"));
}

/// The system's reason why a file cannot be made. The lock itself does not tell.
OdString whyNotWritable(const OdString& file) {
  QTemporaryFile probe(file + QLatin1String(".XXXXXX"));
  if (probe.open() && probe.write("1") == 1 && probe.flush())
    return QStringLiteral("another program uses %1").arg(file);
  return probe.errorString();
}

} // namespace

CatalogLock::CatalogLock(const OdString& folder, const Arguments& arguments, Console& console)
  : m_made(folder)
  , m_file(lockFileIn(folder))
  , m_lock(m_file) {
  // A run that takes long is no dead one. One that died is told by its process number, but only
  // on the machine that it ran on.
  m_lock.setStaleLockTime(0);
  if (odrxSystemServices()->createFolder(odpath::fromPlatform(folder)))
    acquire(arguments.wait, console);
  else
    console.err << "tpal: the folder " << folder << " cannot be made\n";
}

void CatalogLock::acquire(int seconds, Console& console) {
  m_isHeld = m_lock.tryLock(0);
  if (!m_isHeld && m_lock.error() == QLockFile::LockFailedError && seconds > 0) {
    console.err << "tpal: waiting for " << holder() << ", which writes this catalog\n";
    console.err.flush();
    m_isHeld = m_lock.tryLock(seconds * 1000);
  }
  if (m_isHeld) return;
  if (m_lock.error() == QLockFile::LockFailedError)
    console.err << "tpal: " << holder() << " writes this catalog; nothing was changed. If that has "
                << "ended, delete " << m_file << "\n";
  else
    console.err << "tpal: the folder " << QFileInfo(m_file).path()
                << " cannot be written to: " << whyNotWritable(m_file) << "; nothing was changed\n";
}

OdString CatalogLock::holder() const {
  qint64 process = 0;
  OdString machine, program;
  if (!m_lock.getLockInfo(&process, &machine, &program)) return QStringLiteral("another program");
  return QStringLiteral("%1 on %2 (process %3)").arg(program, machine).arg(process);
}

} // namespace tpal
