// How an image learns where its palette's file lies.
#pragma once

#include "frame/string.h"

#include <QSet>

#include <cstdint>

namespace tc {

class OdTcDatabase;

/// What an image asks of the palette that it belongs to. Palettes stand above images, so the
/// functions are handed in from there when the classes are put together; until then no image has a
/// file.
struct OdTcImageHome {
  /// The stored path of the palette's file; empty if it has none.
  OdString (*pathOf)(const OdTcDatabase* database) = nullptr;
  /// True while the palette is being written to another place.
  bool (*isExporting)(const OdTcDatabase* database) = nullptr;
  /// Tells the palette, which is being written, that a picture of it cannot be: the file and the
  /// reason, in words for the user.
  void (*noteUnsaved)(OdTcDatabase* database, const OdString& problem) = nullptr;
  /// Those of the picture files that an item of the palette, or of the catalog that it is in, shows
  /// or may show. The files are told by keys, as pictureFileKey() gives them.
  QSet<OdString> (*stillShown)(const OdTcDatabase* database, const QSet<OdString>& keys) = nullptr;
};

void setImageHome(const OdTcImageHome& home);

/// The path of the palette's file, or empty.
OdString imageHomePath(const OdTcDatabase* database);
/// The stored path of a picture under a palette: beside its file or, while it is exported, in a
/// folder named after the new file. Empty without a palette or its path.
OdString imageFilePath(const OdTcDatabase* database, const OdString& src);
/// True while the palette is being written to another place, where its own pictures stay unchanged.
bool isBeingExported(const OdTcDatabase* database);
/// `src` joined to the folder of a palette file.
OdString imagePathBeside(const OdString& palettePath, const OdString& src);
/// True if the picture lies in the folder of the palette file or below, and is no device. A `src`
/// from a file can lead anywhere; nothing is written or deleted outside.
bool isBelowPalette(const OdString& palettePath, const OdString& imagePath);

/// A number for the path of a palette file that images are read from, kept for good; 0 for none.
std::uint32_t imageHomeNumber(const OdString& palettePath);
/// The path of that number.
OdString numberedImageHome(std::uint32_t number);

/// Tells the palette of a picture that could not be written with it.
void noteUnsavedPicture(OdTcDatabase* database, const OdString& problem);
/// One name for each file, however its path is spelled.
OdString pictureFileKey(const OdString& path);
/// Deletes files of pictures that were the palette's, by their stored paths: pictures in a folder
/// for them below its own, which nothing shows any more. Others stay.
void removePictureFiles(const OdTcDatabase* database, const QStringList& files);

} // namespace tc
