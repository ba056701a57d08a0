#include "drawing/objects/file_references.h"

#include "drawing/database.h"
#include "drawing/objects/dictionary.h"
#include "drawing/objects/image_def.h"
#include "drawing/objects/stored_path.h"
#include "frame/file_path.h"

#include <QDir>
#include <QFileInfo>

namespace {

OdString whole(const OdString& path) {
  const QString absolute = QFileInfo(odpath::toPlatform(path)).absoluteFilePath();
  return odpath::fromPlatform(QDir::cleanPath(absolute));
}

/// The absolute path; null for one that is to stay.
OdString rebased(const OdString& path, const OdString& drawing) {
  if (path.isEmpty() || !odpath::isRelative(path)) return {};
  const OdString found = oddb::findStoredFile(path, drawing);
  return whole(found.isEmpty() ? odpath::folderOf(drawing) + u'\\' + path : found);
}

void rebaseReferences(OdDbDatabase& database) {
  const auto blocks = database.getBlockTableId().openAs<OdDbBlockTable>();
  for (const auto at = blocks->newIterator(); !at->done(); at->step()) {
    const OdDbBlockTableRecordPtr block = at->getRecord(OdDb::kForWrite);
    if (!block->isFromExternalReference()) continue;
    const OdString path = rebased(block->pathName(), database.fileName());
    if (!path.isNull()) block->setPathName(path);
  }
}

void rebasePictures(OdDbDatabase& database) {
  const OdDbDictionaryPtr pictures = OdDbRasterImageDef::imageDictionary(database).openObject();
  if (!pictures) return;
  for (const auto& [name, id] : pictures->entries()) {
    const OdDbObjectPtr object = id.openObject(OdDb::kForWrite);
    auto* const picture = odrxCast<OdDbRasterImageDef>(object.get());
    const OdString path =
        picture ? rebased(picture->sourceFileName(), database.fileName()) : OdString();
    if (!path.isNull()) picture->setSourceFileName(path);
  }
}

} // namespace

void oddbRebaseFileReferences(OdDbDatabase& database, const OdString& target) {
  const OdString own = database.fileName();
  if (own.isEmpty() || (!target.isEmpty() && odpath::samePlace(odpath::folderOf(whole(own)),
                                                               odpath::folderOf(whole(target)))))
    return;
  rebaseReferences(database);
  rebasePictures(database);
}
