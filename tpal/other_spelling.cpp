#include "tpal/other_spelling.h"

#include "frame/file_path.h"

#include <QDir>
#include <QFileInfo>

namespace tpal {

OdString OtherSpelling::hint(const OdString& path) {
  const bool isOfOtherSystem = path.startsWith(QLatin1String("\\\\")) || path.mid(1, 1) == u":";
  if (isOfOtherSystem) return {};
  const auto found = onDisk(QFileInfo(odpath::toPlatform(path)).absoluteFilePath());
  return found ? QStringLiteral("; it is spelled otherwise: %1").arg(*found) : OdString();
}

std::optional<OdString> OtherSpelling::onDisk(const OdString& path) {
  const QFileInfo info(path);
  if (info.exists() || info.isRoot()) return path;
  const auto folder = onDisk(info.path());
  if (!folder) return std::nullopt;
  auto known = m_folders.constFind(*folder);
  if (known == m_folders.constEnd()) {
    Names names;
    for (const OdString& name : QDir(*folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot))
      names.insert(name.toLower(), name);
    known = m_folders.insert(*folder, names);
  }
  const auto name = known->constFind(info.fileName().toLower());
  if (name == known->constEnd()) return std::nullopt;
  return QDir(*folder).filePath(*name);
}

} // namespace tpal
