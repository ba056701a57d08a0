#include "images/image_home.h"

#include "frame/file_path.h"
#include "frame/system_services.h"
#include "persistence/foreign_paths.h"
#include "persistence/path_operations.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <vector>

namespace tc {
namespace {

OdTcImageHome g_home;
/// The paths of the palette files that images were read from; number 0 stands for none.
std::vector<OdString> g_numbered(1);

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

/// What nobody would take for a tool's picture is none, whatever a file says.
bool isPictureInItsFolder(const OdString& path) {
  static constexpr std::array<QStringView, 10> kPictures = {
      u"png", u"bmp", u"jpg", u"jpeg", u"gif", u"tif", u"tiff", u"ico", u"wmf", u"emf"};
  const OdString folder = odpath::folderOf(plainForm(path));
  const OdString extension = odpath::extensionOf(path);
  return folder.endsWith(QLatin1String("\\Images"), Qt::CaseInsensitive) &&
         std::ranges::any_of(kPictures, [&](QStringView known) { return extension == known; });
}

} // namespace

void setImageHome(const OdTcImageHome& home) { g_home = home; }

OdString imageHomePath(const OdTcDatabase* database) {
  return database && g_home.pathOf ? g_home.pathOf(database) : OdString();
}

std::uint32_t imageHomeNumber(const OdString& palettePath) {
  if (palettePath.isEmpty()) return 0;
  // Images come in runs from one file, so the last path is nearly always the one.
  std::size_t number = g_numbered.size() - 1;
  while (number > 0 && g_numbered[number] != palettePath) --number;
  if (number == 0) {
    number = g_numbered.size();
    g_numbered.push_back(palettePath);
  }
  return static_cast<std::uint32_t>(number);
}

OdString numberedImageHome(std::uint32_t number) { return g_numbered[number]; }

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

void noteUnsavedPicture(OdTcDatabase* database, const OdString& problem) {
  if (database && g_home.noteUnsaved) g_home.noteUnsaved(database, problem);
}

OdString pictureFileKey(const OdString& path) { return plainForm(path).toCaseFolded(); }

void removePictureFiles(const OdTcDatabase* database, const QStringList& files) {
  const OdString palette = imageHomePath(database);
  QHash<OdString, OdString> byKey;
  for (const OdString& file : files)
    if (isBelowPalette(palette, file) && isPictureInItsFolder(file))
      byKey.insert(pictureFileKey(file), file);
  if (byKey.isEmpty()) return;
  if (g_home.stillShown)
    for (const OdString& key :
         g_home.stillShown(database, QSet<OdString>(byKey.keyBegin(), byKey.keyEnd())))
      byKey.remove(key);
  for (const OdString& file : byKey) odrxSystemServices()->removeFile(file);
}

bool isBelowPalette(const OdString& palettePath, const OdString& imagePath) {
  const OdString folder = plainForm(odpath::folderOf(palettePath));
  const OdString image = plainForm(imagePath);
  return !palettePath.isEmpty() && image.startsWith(folder + u'\\') &&
         whyOutside(image.mid(folder.size())).isEmpty();
}

} // namespace tc
