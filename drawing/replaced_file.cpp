#include "drawing/replaced_file.h"

#include "frame/error.h"
#include "frame/file_lock.h"
#include "frame/file_path.h"

#include <QFileInfo>

OdDbReplacedFile::OdDbReplacedFile(const OdString& path)
  : m_stamp(OdDbFileStamp::of(path)) {
  if (const QFileInfo info(odpath::toPlatform(path)); info.exists() && !info.isFile())
    throw OdFileError(eFileAccess, path, QStringLiteral("it is not a file"));
  expectUnlocked();
}

void OdDbReplacedFile::expectUntouched() const {
  if (OdDbFileStamp::of(m_stamp.path) != m_stamp)
    throw OdFileError(eFileAccess, m_stamp.path,
                      QStringLiteral("another program changed it while the new one was written"));
  expectUnlocked();
}

void OdDbReplacedFile::expectUnlocked() const {
  if (odpath::isLockedByOthers(m_stamp.path))
    throw OdFileError(eFileAccess, m_stamp.path, QStringLiteral("another program has locked it"));
}
