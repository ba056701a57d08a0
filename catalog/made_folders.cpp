#include "catalog/made_folders.h"

#include "frame/file_path.h"

#include <QDir>
#include <QFileInfo>

namespace tc {

MadeFolders::MadeFolders(const OdString& folder) {
  OdString path = odpath::toPlatform(folder);
  while (!path.isEmpty() && !QFileInfo::exists(path)) {
    m_missing << path;
    const OdString above = QFileInfo(path).path();
    if (above == path) break;
    path = above;
  }
}

MadeFolders::~MadeFolders() {
  // What holds something stays.
  for (const OdString& folder : m_missing) QDir().rmdir(folder);
}

} // namespace tc
