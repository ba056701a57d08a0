#include "images/image_fixture.h"

#include <QImageReader>
#include <QPainter>

namespace {

using namespace tc;
using testhost::host;
using testhost::written;

OdString text(const char16_t* s) { return OdString::fromUtf16(s); }

struct ImageTest : testhost::ImageFixture {};

struct SizeRow {
  std::int32_t kind;
  int pixels;
  const char16_t* suffix;
};
class ImageSizeTest : public ImageTest, public testing::WithParamInterface<SizeRow> {};

TEST_P(ImageSizeTest, GivesThePictureItsPixelsAndItsName) {
  makePicture(QStringLiteral("door.png"), 10, qRgb(255, 0, 0));
  const auto image = newImage(GetParam().kind);
  ASSERT_TRUE(image->setSrcFromFile(stored(QStringLiteral("door.png"))));
  EXPECT_EQ(image->getBitmap().width(), GetParam().pixels);
  EXPECT_EQ(image->getBitmap().height(), GetParam().pixels);
  EXPECT_EQ(image->cx(), static_cast<std::uint32_t>(GetParam().pixels));
  EXPECT_EQ(image->src(), text(u"\\Images\\door") + text(GetParam().suffix) + text(u".png"));
  EXPECT_EQ(image->format(), 6);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ImageSizeTest,
                         testing::Values(SizeRow{0, 16, u"32"}, SizeRow{1, 16, u"16"},
                                         SizeRow{2, 24, u"32"}, SizeRow{3, 32, u"32"},
                                         SizeRow{4, 64, u"64"}, SizeRow{99, 16, u"32"},
                                         SizeRow{-1, 16, u"32"}));

TEST_F(ImageTest, WithoutASourceWritesNoneAndSavesNothing) {
  const auto image = newImage(3);
  const QByteArray bytes = written(image);
  EXPECT_FALSE(bytes.contains("src"));
  EXPECT_TRUE(bytes.contains("cx=\"32\" cy=\"32\""));
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 0);
}

TEST_F(ImageTest, SavesItsPictureOnceBesideThePalette) {
  makePicture(QStringLiteral("in/door.png"), 10, qRgb(255, 0, 0));
  const auto image = newImage(3);
  ASSERT_TRUE(image->setSrcFromFile(stored(QStringLiteral("in/door.png"))));
  EXPECT_FALSE(exists(QStringLiteral("Images/door32.png")));
  written(image);
  ASSERT_TRUE(exists(QStringLiteral("Images/door32.png")));
  // Something else under that name shows that the second write leaves the file alone.
  makePicture(QStringLiteral("Images/door32.png"), 5, qRgb(0, 255, 0));
  image->setOwner(palette);
  written(image);
  image->setOwner(palette);
  EXPECT_EQ(image->getBitmap().width(), 5) << "the cached picture was released, the file is read";
}

TEST_F(ImageTest, MissingFileWithoutAPictureSavesNothing) {
  const auto image = readImage("cx=\"32\" cy=\"32\" src=\"\\Images\\gone.png\"");
  EXPECT_TRUE(image->getBitmap().isNull());
  EXPECT_TRUE(written(image).contains("src=\"\\Images\\gone.png\""));
  EXPECT_FALSE(exists(QStringLiteral("Images")));
}

TEST_F(ImageTest, ResourceImageNeverMakesAFile) {
  for (const char16_t* const library : {u"%ProgramBtnRes%", u"acadbtn.xmx"}) {
    const auto image = newImage(3);
    image->setResource(text(library), text(u"LINE"));
    EXPECT_TRUE(image->isResource());
    host().icons.images[text(u"LINE")] = QImage(32, 32, QImage::Format_ARGB32);
    EXPECT_FALSE(image->getBitmap().isNull());
    written(image);
    image->setOwner(palette);
    EXPECT_EQ(image->fullPath(), OdString());
  }
  EXPECT_FALSE(exists(QStringLiteral("Images")));
  const auto other = newImage(3);
  other->setResource(text(u"ACADBTN.xmx"), text(u"LINE"));
  EXPECT_FALSE(other->isResource()) << "names of libraries are compared exactly";
}

TEST_F(ImageTest, ForeignResourceNameGivesItsLastPartInLowerCase) {
  host().icons.images[text(u"line")] = QImage(16, 16, QImage::Format_ARGB32);
  const auto image = newImage(3);
  image->setResource(text(u"acadbtn.xmx"), text(u"RCDATA_16_LINE"));
  EXPECT_EQ(image->getBitmap().size(), QSize(32, 32)) << "scaled to the image's own size";
  image->setResource(text(u"acadbtn.xmx"), text(u"RCDATA_16_NONE"));
  EXPECT_TRUE(image->getBitmap().isNull());
  host().switchOff(IHostIconService::kId);
  image->setResource(text(u"acadbtn.xmx"), text(u"RCDATA_16_LINE"));
  EXPECT_TRUE(image->getBitmap().isNull());
}

TEST_F(ImageTest, ButtonThatTheProgramLacksIsShownFromItsFile) {
  makePicture(QStringLiteral("line.png"), 8, qRgb(1, 2, 3));
  const auto image = newImage(3);
  image->setResource(text(u"acadbtn.xmx"), text(u"RCDATA_16_NONE"));
  ASSERT_TRUE(image->loadFromFile(stored(QStringLiteral("line.png"))));
  image->releaseBitmap();
  EXPECT_EQ(image->getBitmap().size(), QSize(8, 8));
  image->releaseBitmap();
  host().icons.images[text(u"none")] = QImage(16, 16, QImage::Format_ARGB32);
  EXPECT_EQ(image->getBitmap().size(), QSize(32, 32)) << "the icon comes first";
}

TEST_F(ImageTest, WithoutAPaletteHasNoFile) {
  const auto image = odrxMake<OdTcImageImpl>();
  image->setSizeKind(3);
  image->setResource(text(u"\\Images\\a.png"), OdString());
  EXPECT_EQ(image->fullPath(), OdString());
  EXPECT_EQ(imageFilePath(nullptr, image->src()), OdString());
  EXPECT_TRUE(image->getBitmap().isNull());
}

TEST_F(ImageTest, ButtonOfAFileThatAsksForAGiantIsShownAsItIs) {
  host().icons.images[text(u"line")] = QImage(64, 64, QImage::Format_ARGB32);
  const auto image =
      readImage("cx=\"64\" cy=\"40000000\" src=\"acadbtn.xmx\" resource=\"RCDATA_16_LINE\"");
  EXPECT_EQ(image->getBitmap().size(), QSize(64, 64));
}

TEST_F(ImageTest, DecodesTheFileBesideThePaletteWhenItIsAsked) {
  makePicture(QStringLiteral("Images/a.png"), 64, qRgb(1, 2, 3));
  const auto image = readImage("cx=\"64\" cy=\"64\" src=\"\\Images\\a.png\"");
  EXPECT_EQ(image->sizeKind(), 4);
  EXPECT_EQ(image->fullPath(), stored(QStringLiteral("Images/a.png")));
  EXPECT_EQ(image->getBitmap().pixelColor(0, 0), QColor(1, 2, 3));
}

TEST_F(ImageTest, PaletteThatIsSavedElsewhereTakesItsPicturesAlong) {
  makePicture(QStringLiteral("Images/a.png"), 64, qRgb(1, 2, 3));
  const auto image = readImage("cx=\"64\" cy=\"64\" src=\"\\Images\\a.png\"");
  palette->setPath(stored(QStringLiteral("other/copy.dtc")));
  written(image);
  EXPECT_TRUE(exists(QStringLiteral("other/Images/a.png")));
}

TEST_F(ImageTest, ExportedPictureComesBackWithTheImport) {
  makePicture(QStringLiteral("Images/a.png"), 64, qRgb(1, 2, 3));
  auto image = readImage("cx=\"64\" cy=\"64\" src=\"\\Images\\a.png\"");
  palette->setPath(stored(QStringLiteral("out/Doors.xtp")));
  palette->setExporting(true);
  written(image);
  palette->setExporting(false);
  EXPECT_TRUE(exists(QStringLiteral("out/Doors/Images/a.png")));
  QFile::remove(folder.filePath(QStringLiteral("Images/a.png")));
  image = readImage("cx=\"64\" cy=\"64\" src=\"\\Images\\a.png\"");
  EXPECT_EQ(image->getBitmap().pixelColor(0, 0), QColor(1, 2, 3));
}

TEST_F(ImageTest, PictureOfAnExchangeFileIsFoundInTheFolderNamedLikeIt) {
  makePicture(QStringLiteral("Foreign/Images/b.png"), 32, qRgb(9, 9, 9));
  palette->setPath(stored(QStringLiteral("Foreign.xtp")));
  const auto image = readImage("cx=\"32\" cy=\"32\" src=\".\\Images\\b.png\"");
  EXPECT_EQ(image->src(), text(u"\\.\\Images\\b.png"));
  EXPECT_EQ(image->getBitmap().width(), 32);
  // Its picture goes with the palette into the catalog.
  palette->setPath(stored(QStringLiteral("Palettes/foreign.dtc")));
  written(image);
  EXPECT_TRUE(exists(QStringLiteral("Palettes/Images/b.png")));
  palette->setPath(stored(QStringLiteral("Foreign.xtp")));
  EXPECT_EQ(readImage("cx=\"32\" src=\".\\Images\\gone.png\"")->src(),
            text(u".\\Images\\gone.png"));
}

TEST_F(ImageTest, NameThatIsTakenIsReplacedByAFreshOne) {
  makePicture(QStringLiteral("door.png"), 10, qRgb(255, 0, 0));
  makePicture(QStringLiteral("Images/door32.png"), 10, qRgb(0, 0, 255));
  host().translations[text(u"Raster tool instrument")] = text(u"Bild");
  const auto image = newImage(3);
  ASSERT_TRUE(image->setSrcFromFile(stored(QStringLiteral("door.png"))));
  EXPECT_TRUE(image->src().startsWith(text(u"\\Images\\Bild_{"))) << image->src().toStdString();
}

TEST_F(ImageTest, UnreadableFileChangesNothing) {
  QFile broken(folder.filePath(QStringLiteral("broken.png")));
  ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
  broken.write("no picture");
  broken.close();
  const auto image = newImage(3);
  image->setResource(text(u"%ProgramBtnRes%"), text(u"LINE"));
  for (const char* const name : {"broken.png", "gone.png", "."}) {
    EXPECT_FALSE(image->setSrcFromFile(stored(QLatin1String(name))));
    EXPECT_FALSE(image->loadFromFile(stored(QLatin1String(name))));
  }
  EXPECT_EQ(image->src(), text(u"%ProgramBtnRes%"));
}

TEST_F(ImageTest, NothingIsWrittenOutsideThePalettesFolder) {
  makePicture(QStringLiteral("in/palette/x.png"), 10, qRgb(255, 0, 0));
  palette->setPath(stored(QStringLiteral("in/palette/p.dtc")));
  const auto image = newImage(3);
  ASSERT_TRUE(image->loadFromFile(stored(QStringLiteral("in/palette/x.png"))));
  const QImage picture = image->getBitmap();
  image->setBitmap(picture, text(u"\\..\\..\\escaped.png"));
  written(image);
  EXPECT_FALSE(exists(QStringLiteral("escaped.png")));
}

struct FormatRow {
  std::int32_t code;
  const char* name;
  const char* result;
  const char* kind; ///< what the file is, whatever its name says
};
class ImageFormatTest : public ImageTest, public testing::WithParamInterface<FormatRow> {};

TEST_P(ImageFormatTest, PicksTheFormatByItsCode) {
  makePicture(QStringLiteral("a.png"), 10, qRgb(255, 0, 0));
  const auto image = newImage(3);
  ASSERT_TRUE(image->loadFromFile(stored(QStringLiteral("a.png"))));
  const QString name = QLatin1String(GetParam().name);
  const QString result = QLatin1String(GetParam().result);
  EXPECT_TRUE(image->saveTo(stored(name), GetParam().code));
  ASSERT_TRUE(exists(result));
  EXPECT_EQ(image->fullPath(), stored(result));
  QImageReader reader(folder.filePath(result));
  reader.setDecideFormatFromContent(true);
  EXPECT_EQ(reader.format(), GetParam().kind);
  EXPECT_EQ(reader.read().size(), QSize(10, 10));
}

INSTANTIATE_TEST_SUITE_P(
    Codes, ImageFormatTest,
    testing::Values(FormatRow{1, "x", "x.bmp", "bmp"}, FormatRow{3, "x", "x.ico", "ico"},
                    FormatRow{5, "x", "x.jpeg", "jpeg"}, FormatRow{6, "x", "x.png", "png"},
                    FormatRow{8, "x", "x.tiff", "tiff"}, FormatRow{77, "x", "x.png", "png"},
                    FormatRow{0, "x", "x.png", "png"}, FormatRow{6, "x.bmp", "x.bmp", "png"},
                    FormatRow{-1, "x.jpg", "x.jpg", "jpeg"}, FormatRow{-1, "x.bmp", "x.bmp", "bmp"},
                    FormatRow{-1, "x.tif", "x.tif", "tiff"}, FormatRow{-1, "x", "x.png", "png"}));

TEST_F(ImageTest, NamesAFormatThatCannotBeWrittenAndWritesNothing) {
  EXPECT_EQ(formatExtension(2), text(u"wmf"));
  EXPECT_EQ(formatExtension(4), text(u"emf"));
  EXPECT_EQ(formatExtension(7), text(u"gif"));
  EXPECT_EQ(formatExtension(8), text(u"tiff"));
  makePicture(QStringLiteral("a.png"), 10, qRgb(255, 0, 0));
  const auto image = newImage(3);
  ASSERT_TRUE(image->loadFromFile(stored(QStringLiteral("a.png"))));
  // Metafiles are drawings, and of GIF there is only a reader.
  for (const std::int32_t code : {2, 4, 7}) {
    EXPECT_FALSE(image->saveTo(stored(QStringLiteral("x")), code));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList(QStringLiteral("a.png")));
  }
}

TEST_F(ImageTest, SavingWithoutAPictureOrWithoutAFolderFails) {
  const auto image = newImage(3);
  EXPECT_FALSE(image->saveTo(stored(QStringLiteral("x.png")), 6));
  makePicture(QStringLiteral("a.png"), 10, qRgb(255, 0, 0));
  ASSERT_TRUE(image->loadFromFile(stored(QStringLiteral("a.png"))));
  EXPECT_FALSE(image->saveTo(stored(QStringLiteral("gone/x.png")), 6));
  EXPECT_EQ(image->fullPath(), stored(QStringLiteral("a.png")));
}

TEST_F(ImageTest, CopyAtAnotherSizeHasItsOwnNameUnlessItIsAnIcon) {
  makePicture(QStringLiteral("a.png"), 10, qRgb(255, 0, 0));
  const auto image = newImage(4);
  ASSERT_TRUE(image->setSrcFromFile(stored(QStringLiteral("a.png"))));
  const OdTcImagePtr small = image->cloneAtSize(1);
  EXPECT_EQ(small->getBitmap().width(), 16);
  EXPECT_TRUE(small->src().startsWith(text(u"\\Images\\Block tool instrument_{")));
  image->setResource(text(u"%ProgramBtnRes%"), text(u"LINE"));
  const OdTcImagePtr icon = image->cloneAtSize(2);
  EXPECT_EQ(icon->src(), image->src());
  EXPECT_EQ(icon->resource(), text(u"LINE"));
  EXPECT_EQ(icon->cx(), 24u);
}

TEST_F(ImageTest, DrawsAtItsPlaceAndGivesThePictureUp) {
  makePicture(QStringLiteral("a.png"), 4, qRgb(255, 0, 0));
  const auto image = newImage(3);
  ASSERT_TRUE(image->loadFromFile(stored(QStringLiteral("a.png"))));
  QImage canvas(20, 20, QImage::Format_ARGB32);
  canvas.fill(Qt::white);
  QPainter painter(&canvas);
  image->draw(&painter, 5, 6, 32, 32);
  painter.end();
  EXPECT_EQ(canvas.pixelColor(5, 6), QColor(255, 0, 0));
  EXPECT_EQ(canvas.pixelColor(8, 9), QColor(255, 0, 0));
  EXPECT_EQ(canvas.pixelColor(4, 6), QColor(Qt::white));
  EXPECT_EQ(canvas.pixelColor(9, 9), QColor(Qt::white));
}

TEST_F(ImageTest, StaysSmall) { EXPECT_LE(sizeof(OdTcImageImpl), 80u); }

} // namespace
