// A palette with a folder of its own, for tests of its pictures.
#pragma once

#include "catalog/database.h"
#include "frame/file_path.h"
#include "images/image_home.h"
#include "images/image_impl.h"
#include "images/image_list_impl.h"
#include "images/picture_file.h"
#include "support/golden.h"
#include "support/module_fixture.h"

#include <QDir>
#include <QTemporaryDir>

namespace testhost {

struct ImageFixture : ModuleFixture {
  ImageFixture() {
    tc::setImageHome({[](const tc::OdTcDatabase* database) { return database->getPath(); },
                      [](const tc::OdTcDatabase* database) { return database->isExporting(); },
                      [](tc::OdTcDatabase* database, const OdString& problem) {
                        database->noteUnsavedPicture(problem);
                      },
                      nullptr});
    palette->setPath(stored(QStringLiteral("palette.dtc")));
  }

  /// The stored path of a file in the test's folder.
  OdString stored(const QString& name) const { return odpath::fromPlatform(folder.filePath(name)); }
  bool exists(const QString& name) const { return QFile::exists(folder.filePath(name)); }
  /// Paints a picture file of one colour.
  void makePicture(const QString& name, int size, QRgb color) const {
    QDir(folder.path()).mkpath(QFileInfo(name).path());
    QImage picture(size, size, QImage::Format_ARGB32);
    picture.fill(color);
    ASSERT_TRUE(picture.save(folder.filePath(name)));
  }
  /// Reads an image as it stands in the palette's file.
  OdSmartPtr<tc::OdTcImageImpl> readImage(const QByteArray& attributes) const {
    struct Root : PartsRoot {
      tc::OdTcDatabase* palette = nullptr;
      tc::OdTcDatabase* database() const override { return palette; }
    };
    auto root = odrxMake<Root>();
    root->palette = palette;
    const QByteArray document = "<Palette><Image " + attributes + "/></Palette>";
    tc::makePaletteFiler()->openPalette(odrxMake<OdMemoryStream>(document), root, false);
    auto* const image = dynamic_cast<tc::OdTcImageImpl*>(root->parts.at(0).get());
    image->setOwner(palette);
    return OdSmartPtr<tc::OdTcImageImpl>(image);
  }
  OdSmartPtr<tc::OdTcImageImpl> newImage(std::int32_t kind) const {
    auto image = odrxMake<tc::OdTcImageImpl>();
    image->setOwner(palette);
    image->setSizeKind(kind);
    return image;
  }

  QTemporaryDir folder;
  tc::OdTcDatabasePtr palette = tc::OdTcDatabase::createObject();
};

} // namespace testhost
