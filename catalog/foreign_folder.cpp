#include "catalog/foreign_folder.h"

#include "frame/file_path.h"

#include <QDir>
#include <QFileInfo>

namespace tc {

ForeignFolder::ForeignFolder(const OdString& folder)
  : m_folder(odpath::toPlatform(folder))
  , m_realPlace(
        QFileInfo(m_folder.isEmpty() ? QStringLiteral(".") : m_folder).canonicalFilePath()) {
  if (m_folder.isEmpty()) m_folder = QStringLiteral(".");
  if (!m_realPlace.endsWith(u'/')) m_realPlace += u'/';
}

OdString ForeignFolder::nameIn(const OdString& folder, const OdString& wanted) {
  if (QFileInfo::exists(folder + u'/' + wanted)) return wanted;
  auto known = m_folded.find(folder);
  if (known == m_folded.end()) {
    known = m_folded.insert(folder, {});
    const auto kinds = QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot;
    for (const OdString& name : QDir(folder).entryList(kinds, QDir::Name | QDir::Reversed))
      known->insert(name.toCaseFolded(), name);
  }
  return known->value(wanted.toCaseFolded());
}

ForeignFolder::Found ForeignFolder::find(const OdString& inside) {
  OdString path = m_folder;
  for (const OdString& segment : inside.split(u'\\', Qt::SkipEmptyParts)) {
    const OdString name = nameIn(path, segment);
    if (name.isEmpty()) return {};
    path += u'/' + name;
  }
  const QFileInfo info(path);
  const OdString real = info.canonicalFilePath();
  if (real.isEmpty() || info.isDir()) return {};
  if (!real.startsWith(m_realPlace) || !info.isFile()) return {{}, true};
  return {odpath::fromPlatform(path), false};
}

} // namespace tc
