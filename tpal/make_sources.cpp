#include "tpal/make_sources.h"

#include "frame/file_path.h"
#include "persistence/value_storage.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

namespace tpal {
namespace {

using tc::OdTcValueStorageImpl;

/// The files in a folder and below that tools can be made of.
QStringList filesBelow(const QString& folder) {
  const QStringList extensions =
      OdTcValueStorageImpl::drawingExtensions() + OdTcValueStorageImpl::imageExtensions();
  const QSet<OdString> known(extensions.begin(), extensions.end());
  QStringList files;
  QDirIterator each(folder, QDir::Files, QDirIterator::Subdirectories);
  while (each.hasNext()) {
    const QString path = each.next();
    if (known.contains(odpath::extensionOf(path))) files << path;
  }
  files.sort();
  return files;
}

} // namespace

MakeSources findSources(const QStringList& words) {
  MakeSources found;
  QSet<QString> seen;
  const auto takeFile = [&](const QString& path) {
    if (seen.contains(path)) return;
    seen.insert(path);
    found.sources.push_back({MakeSource::Kind::kFile, odpath::fromPlatform(path), {}});
  };
  for (const OdString& word : words) {
    const QFileInfo info(odpath::toPlatform(word));
    const QString path = info.absoluteFilePath();
    if (info.isDir()) {
      const QStringList files = filesBelow(path);
      if (files.isEmpty())
        found.problems.push_back(
            {odpath::fromPlatform(path), QStringLiteral("there is nothing in the folder")});
      for (const QString& file : files) takeFile(file);
    } else if (info.exists()) {
      takeFile(path);
    } else {
      found.sources.push_back({MakeSource::Kind::kCommand, word, {}});
    }
  }
  return found;
}

bool isDrawing(const MakeSource& source) {
  return source.kind == MakeSource::Kind::kFile &&
         OdTcValueStorageImpl::drawingExtensions().contains(odpath::extensionOf(source.word));
}

} // namespace tpal
