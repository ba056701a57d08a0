#include "images/image_home.h"

#include "frame/file_path.h"
#include "persistence/foreign_paths.h"
#include "persistence/path_operations.h"

namespace tc {
namespace {

OdTcImageHome g_home;

OdString joined(const OdString& folder, const OdString& src) {
  const bool isSeparated = src.startsWith(u'\\') || src.startsWith(u'/');
  return folder + (isSeparated ? QString() : QStringLiteral("\\")) + src;
}

/// With one kind of separator and without steps back, so that beginnings can be compared.
OdString plainForm(const OdString& path) {
  OdString plain = path;
  plain.replace(u'/', u'\\');
  normalizePath(plain);
  return plain;
}

} // namespace

void setImageHome(const OdTcImageHome& home) { g_home = home; }

OdString imageHomePath(const OdTcDatabase* database) {
  return database && g_home.pathOf ? g_home.pathOf(database) : OdString();
}

bool isBeingExported(const OdTcDatabase* database) {
  return g_home.isExporting && g_home.isExporting(database);
}

OdString imagePathBeside(const OdString& palettePath, const OdString& src) {
  return palettePath.isEmpty() ? OdString() : joined(odpath::folderOf(palettePath), src);
}

OdString imageFilePath(const OdTcDatabase* database, const OdString& src) {
  const OdString path = imageHomePath(database);
  if (path.isEmpty() || !isBeingExported(database)) return imagePathBeside(path, src);
  // An exported palette has its pictures in a folder of its own; that folder is where they are
  // looked for when the palette comes back, so "Images" must not stand there twice.
  OdString folder = odpath::folderOf(path) + u'\\' + odpath::titleOf(path);
  if (!plainForm(joined({}, src)).startsWith(QLatin1String("\\Images\\")))
    folder += QLatin1String("\\Images");
  return joined(folder, src);
}

bool isBelowPalette(const OdString& palettePath, const OdString& imagePath) {
  const OdString folder = plainForm(odpath::folderOf(palettePath));
  const OdString image = plainForm(imagePath);
  return !palettePath.isEmpty() && image.startsWith(folder + u'\\') &&
         whyOutside(image.mid(folder.size())).isEmpty();
}

} // namespace tc
