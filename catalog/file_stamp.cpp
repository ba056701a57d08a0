#include "catalog/file_stamp.h"

#include "frame/error.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "host/host_locator.h"
#include "persistence/path_operations.h"

#include <QFileInfo>

#include <cstdlib>

namespace tc {
namespace {

/// Servers set the time of a file some moments after it was written.
constexpr qint64 kTolerance = 2000; // milliseconds

/// A path for the copy that no file has yet: when the file was last written tells copies apart.
OdString copyFor(const OdString& path, const QDateTime& written, const OdString& folder) {
  const OdString time = written.toString(QStringLiteral("yyyyMMddThhmmss"));
  OdString copy;
  int number = 0;
  do {
    const OdString end = number == 0 ? OdString() : QStringLiteral("-%1").arg(number);
    copy = QStringLiteral("%1\\%2 %3%4.%5")
               .arg(folder, odpath::titleOf(path), time, end, odpath::extensionOf(path));
    ++number;
  } while (odrxSystemServices()->fileExists(copy));
  return copy;
}

} // namespace

FileStamp::State FileStamp::stateOf(const OdString& path) {
  const QFileInfo info(odpath::toPlatform(path));
  return info.isFile() ? State{info.size(), info.lastModified()} : State{};
}

void FileStamp::note(const OdString& path) {
  m_path = path;
  m_state = stateOf(path);
}

bool FileStamp::isChanged(const OdString& path) const {
  if (m_path.isEmpty() || !odpath::samePlace(path, m_path)) return false;
  const State now = stateOf(path);
  if (now.bytes != m_state.bytes) return true;
  return now.bytes >= 0 && std::llabs(m_state.time.msecsTo(now.time)) > kTolerance;
}

void FileStamp::keepBefore(const OdString& target) const {
  if (!isChanged(target) || !host::application()) return;
  const State now = stateOf(target);
  if (now.bytes < 0) return;
  const OdString folder = baseFolder() + QStringLiteral("\\Replaced");
  if (!odrxSystemServices()->createFolder(folder))
    throw OdFileError(eFileAccess, folder,
                      host::translate(QStringLiteral("the folder cannot be made")));
  const OdString copy = copyFor(target, now.time, folder);
  odrxSystemServices()->copyFile(target, copy);
  host::print(QStringLiteral("\n") +
              host::translate(QStringLiteral("The file %1, which another program has written since "
                                             "it was read, is kept as %2"))
                  .arg(target, copy));
}

} // namespace tc
