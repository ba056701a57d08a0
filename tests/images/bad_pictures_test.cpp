// Picture files as they come from the field, and folders that cannot take pictures.
#include "images/image_fixture.h"
#include "support/data_file.h"
#include "support/failing_services.h"

#include <QBuffer>
#include <QDirIterator>
#include <QtEndian>

#include <sys/resource.h>

namespace {

using namespace tc;
using testhost::dataFile;
using testhost::written;

OdString text(const char16_t* s) { return OdString::fromUtf16(s); }

constexpr QRgb kRed = qRgb(200, 0, 0), kGreen = qRgb(0, 160, 0);

QByteArray encoded(const QImage& picture, const char* format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  picture.save(&buffer, format);
  return bytes;
}

QImage plain(int width, int height, QImage::Format format, QRgb color) {
  QImage picture(width, height, format);
  picture.fill(QColor::fromRgba(color));
  return picture;
}

QByteArray png(QImage::Format format = QImage::Format_ARGB32, QRgb color = kRed) {
  return encoded(plain(40, 40, format, color), "PNG");
}

template <class T>
QByteArray bigEndian(T value) {
  value = qToBigEndian(value);
  return QByteArray(reinterpret_cast<const char*>(&value), sizeof(value));
}

/// A file that tells of 60,000 by 60,000 pixels and has hardly any.
QByteArray hugePng() {
  QByteArray bytes = png();
  bytes.replace(16, 8, bigEndian<std::uint32_t>(60000) + bigEndian<std::uint32_t>(60000));
  // The checksum of the header's chunk.
  std::uint32_t sum = 0xFFFFFFFF;
  for (const char byte : bytes.mid(12, 17)) {
    sum ^= static_cast<std::uint8_t>(byte);
    for (int bit = 0; bit < 8; ++bit) sum = sum >> 1 ^ (sum & 1 ? 0xEDB88320 : 0);
  }
  return bytes.replace(29, 4, bigEndian(~sum));
}
QByteArray hugeJpeg() {
  QByteArray bytes = encoded(plain(8, 8, QImage::Format_RGB32, kRed), "JPG");
  const qsizetype frame = bytes.indexOf(QByteArray("\xFF\xC0\x00\x11", 4));
  return bytes.replace(frame + 5, 4,
                       bigEndian<std::uint16_t>(60000) + bigEndian<std::uint16_t>(60000));
}
QByteArray hugeBmp() {
  QByteArray bytes = encoded(plain(8, 8, QImage::Format_RGB32, kRed), "BMP");
  const auto side = qToLittleEndian<std::uint32_t>(60000);
  for (const qsizetype at : {18, 22})
    bytes.replace(at, 4, QByteArray(reinterpret_cast<const char*>(&side), 4));
  return bytes;
}

/// A picture that no packing makes small, in some kind of file.
QByteArray detailed(const char* format) {
  QImage picture(80, 60, QImage::Format_RGB32);
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      picture.setPixel(x, y, qRgb(x * y % 251, (x * 7 + y) % 256, (x ^ y) % 256));
  return encoded(picture, format);
}
QByteArray half(const QByteArray& bytes) { return bytes.left(bytes.size() / 2); }

struct Row {
  const char* name;
  QString file; ///< the extension may lie
  QByteArray (*bytes)();
  bool isPicture;
  QRgb middle = kRed;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

const Row kRows[] = {
    {"nothing", QStringLiteral("a.png"), [] { return QByteArray(); }, false},
    {"no picture", QStringLiteral("a.png"), [] { return QByteArray("a text, no picture"); }, false},
    {"a drawing", QStringLiteral("a.png"), [] { return QByteArray("  0\nSECTION\n  2\nHEADER\n"); },
     false},
    {"cut in its header", QStringLiteral("a.png"), [] { return png().left(20); }, false},
    {"cut in its pixels", QStringLiteral("a.png"), [] { return png().left(60); }, false},
    {"photograph that is cut", QStringLiteral("a.jpg"), [] { return half(detailed("JPG")); },
     false},
    {"photograph without its end", QStringLiteral("a.jpg"),
     [] { return detailed("JPG").chopped(2); }, false},
    {"bitmap that is cut", QStringLiteral("a.bmp"), [] { return half(detailed("BMP")); }, false},
    {"bitmap without its last pixel", QStringLiteral("a.bmp"),
     [] { return detailed("BMP").chopped(1); }, false},
    {"animated, cut in its first picture", QStringLiteral("a.gif"),
     [] { return dataFile(QStringLiteral("pictures/animated.gif")).left(76); }, false},
    {"TIFF that is cut", QStringLiteral("a.tiff"), [] { return half(detailed("TIFF")); }, false},
    {"TIFF", QStringLiteral("a.tiff"),
     [] { return encoded(plain(40, 40, QImage::Format_RGB32, kRed), "TIFF"); }, true},
    {"damaged", QStringLiteral("a.png"), [] { return png().replace(50, 4, "\0\0\0\0"); }, false},
    {"huge", QStringLiteral("a.png"), hugePng, false},
    {"huge photograph", QStringLiteral("a.jpg"), hugeJpeg, false},
    {"huge bitmap", QStringLiteral("a.bmp"), hugeBmp, false},
    {"one pixel", QStringLiteral("a.png"),
     [] { return encoded(plain(1, 1, QImage::Format_RGB32, kRed), "PNG"); }, true},
    {"animated, of which the first picture counts", QStringLiteral("a.gif"),
     [] { return dataFile(QStringLiteral("pictures/animated.gif")); }, true, kGreen},
    {"of printing inks", QStringLiteral("a.jpg"),
     [] { return dataFile(QStringLiteral("pictures/cmyk.jpg")); }, true, qRgb(254, 0, 0)},
    {"of 16 bits a colour", QStringLiteral("a.png"), [] { return png(QImage::Format_RGBA64); },
     true},
    {"grey of 16 bits", QStringLiteral("a.png"),
     [] { return dataFile(QStringLiteral("pictures/grey16.png")); }, true, qRgb(156, 156, 156)},
    {"half transparent", QStringLiteral("a.png"),
     [] { return png(QImage::Format_ARGB32, qRgba(200, 0, 0, 128)); }, true, qRgba(200, 0, 0, 128)},
    {"with the extension of another kind", QStringLiteral("a.jpg"), [] { return png(); }, true},
    {"without an extension", QStringLiteral("a"), [] { return png(); }, true},
    {"with the extension of a drawing", QStringLiteral("a.dxf"), [] { return png(); }, true},
};

class PictureFile : public testhost::ImageFixture, public testing::WithParamInterface<Row> {
 protected:
  PictureFile() {
    list->setOwner(palette);
    write(GetParam().file, GetParam().bytes());
  }
  void write(const QString& name, const QByteArray& bytes) const {
    QFile file(folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  OdString path() const { return stored(GetParam().file); }
  QByteArray bytes(const QString& name) const {
    QFile file(folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  static void expectNear(QRgb is, QRgb wanted) {
    const std::pair<int, int> parts[] = {{qRed(is), qRed(wanted)},
                                         {qGreen(is), qGreen(wanted)},
                                         {qBlue(is), qBlue(wanted)},
                                         {qAlpha(is), qAlpha(wanted)}};
    for (const auto& [part, wantedPart] : parts)
      EXPECT_NEAR(part, wantedPart, 3) << QColor::fromRgba(is).name().toStdString();
  }

  OdSmartPtr<OdTcImageListImpl> list = odrxMake<OdTcImageListImpl>();
};

TEST_P(PictureFile, GivesThreePicturesOrLeavesTheFormerOnes) {
  makePicture(QStringLiteral("door.png"), 40, kGreen);
  ASSERT_TRUE(list->setFromFile(stored(QStringLiteral("door.png"))));
  written(list);
  list->setOwner(palette);
  const QByteArray before = written(list), former = bytes(QStringLiteral("Images/door64.png"));
  ASSERT_FALSE(former.isEmpty());
  list->setOwner(palette);
  ASSERT_EQ(list->setFromFile(path()), GetParam().isPicture);
  if (!GetParam().isPicture) {
    EXPECT_EQ(written(list), before);
    EXPECT_EQ(bytes(QStringLiteral("Images/door64.png")), former);
    return;
  }
  for (const int kind : {1, 3, 4}) {
    const QImage picture = list->findBySize(kind)->getBitmap();
    ASSERT_EQ(picture.width(), pixelsOfKind(kind));
    expectNear(picture.pixel(picture.width() / 2, picture.height() / 2), GetParam().middle);
  }
}

TEST_P(PictureFile, IsShownOrNotAndStaysAsItIs) {
  const QByteArray src = "\\" + GetParam().file.toUtf8();
  const auto image = readImage("cx=\"32\" cy=\"32\" src=\"" + src + "\"");
  const QImage picture = image->getBitmap();
  ASSERT_EQ(!picture.isNull(), GetParam().isPicture);
  if (!picture.isNull())
    expectNear(picture.pixel(picture.width() / 2, picture.height() / 2), GetParam().middle);
  EXPECT_LE(picture.depth(), 32);
  EXPECT_TRUE(written(image).contains("src=\"" + src + "\""));
  EXPECT_EQ(bytes(GetParam().file), GetParam().bytes());
}

TEST_P(PictureFile, IsToldByNameAndNotByItsDecoder) {
  // Qt's own lines tell no name, and would stand beside what the program says.
  testing::internal::CaptureStderr();
  loadPicture(path());
  loadReducedPicture(path());
  const OdString why = whyNoPicture(path());
  const std::string printed = testing::internal::GetCapturedStderr();
  EXPECT_TRUE(why.startsWith(path())) << why.toStdString();
  EXPECT_EQ(printed, "");
}

TEST_P(PictureFile, TakesNoMoreMemoryThanThePicturesNeed) {
  const auto most = [] {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
  };
  const long before = most();
  loadPicture(path());
  loadReducedPicture(path());
  EXPECT_LT(most() - before, 64 << 10) << "in kilobytes";
}

INSTANTIATE_TEST_SUITE_P(Rows, PictureFile, testing::ValuesIn(kRows));

struct PictureFolder : testhost::ImageFixture {
  OdSmartPtr<OdTcImageImpl> made() {
    const auto image = newImage(1);
    EXPECT_TRUE(image->makeFromGradient(text(u"LINEAR"), OdCmColor::fromRgb(200, 0, 0),
                                        OdCmColor::fromRgb(200, 0, 0)));
    return image;
  }
};

TEST_F(PictureFolder, PhotographStaysAsItsPixelsLie) {
  // As the drawing shows it, whatever its camera says of how it was held.
  const OdString path = odpath::fromPlatform(QStringLiteral(TEST_DATA_DIR "/pictures/turned.jpg"));
  for (const QImage& picture : {loadPicture(path), loadReducedPicture(path)}) {
    ASSERT_EQ(picture.size(), QSize(16, 8));
    EXPECT_GT(qRed(picture.pixel(2, 4)), 150);
    EXPECT_GT(qBlue(picture.pixel(13, 4)), 150);
  }
}

TEST_F(PictureFolder, PhotographIsReducedWhileItIsDecoded) {
  QImage photo(2000, 1000, QImage::Format_RGB32);
  for (int y = 0; y < photo.height(); ++y)
    for (int x = 0; x < photo.width(); ++x) photo.setPixel(x, y, x < 1000 ? kRed : kGreen);
  ASSERT_TRUE(photo.save(folder.filePath(QStringLiteral("photo.jpg")), "JPG"));
  const QImage picture = loadReducedPicture(stored(QStringLiteral("photo.jpg")));
  ASSERT_EQ(picture.size(), QSize(256, 256));
  EXPECT_NEAR(qRed(picture.pixel(40, 128)), 200, 6);
  EXPECT_NEAR(qGreen(picture.pixel(216, 128)), 160, 6);
}

TEST_F(PictureFolder, ThatIsReadOnlyKeepsThePictureInMemoryUntilItCanBeSaved) {
  const auto image = made();
  QByteArray first;
  {
    testhost::FailingServices services;
    services.deniedFolder = stored(QStringLiteral("Images"));
    first = written(image);
    image->setOwner(palette);
  }
  EXPECT_FALSE(exists(QStringLiteral("Images")));
  EXPECT_EQ(image->getBitmap().pixel(3, 3), kRed);
  EXPECT_EQ(written(image), first);
  EXPECT_EQ(QDir(folder.filePath(QStringLiteral("Images"))).entryList(QDir::Files).size(), 1);
}

TEST_F(PictureFolder, ThatWasReadOnlyGetsItsPictureAlsoAfterAnExport) {
  const auto image = made();
  {
    testhost::FailingServices services;
    services.deniedFolder = stored(QStringLiteral("Images"));
    written(image);
    image->setOwner(palette);
  }
  const OdString home = palette->getPath();
  for (int time = 0; time < 2; ++time) { // the second finds the copy of the first
    palette->setPath(stored(QStringLiteral("out/copy.xtp")));
    palette->setExporting(true);
    written(image);
    palette->setExporting(false);
    palette->setPath(home);
    image->setOwner(palette);
    EXPECT_EQ(
        QDir(folder.filePath(QStringLiteral("out/copy/Images"))).entryList(QDir::Files).size(), 1);
  }
  EXPECT_FALSE(exists(QStringLiteral("Images")));
  written(image);
  EXPECT_EQ(QDir(folder.filePath(QStringLiteral("Images"))).entryList(QDir::Files).size(), 1);
}

TEST_F(PictureFolder, ThatIsMissingIsMade) {
  written(made());
  EXPECT_EQ(QDir(folder.filePath(QStringLiteral("Images"))).entryList(QDir::Files).size(), 1);
}

TEST_F(PictureFolder, ThatIsAFileStaysOne) {
  QFile file(folder.filePath(QStringLiteral("Images")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("mine");
  file.close();
  const auto image = made();
  EXPECT_TRUE(written(image).contains("src=\"\\Images\\"));
  EXPECT_EQ(image->getBitmap().pixel(3, 3), kRed);
  EXPECT_EQ(file.size(), 4);
}

TEST_F(PictureFolder, OnAFullDiskGetsNoHalfPictureAndKeepsTheFormerOne) {
  const auto image = made();
  makePicture(QStringLiteral("mine.png"), 16, kGreen);
  {
    testhost::FailingServices services;
    services.bytesLeft = 40;
    EXPECT_FALSE(image->saveTo(stored(QStringLiteral("mine.png")), 6));
    services.bytesLeft = 40;
    written(image);
    image->setOwner(palette);
  }
  EXPECT_EQ(QImage(folder.filePath(QStringLiteral("mine.png"))).pixel(0, 0), kGreen);
  const auto files = QDir::Files;
  EXPECT_EQ(QDir(folder.path()).entryList(files), QStringList(QStringLiteral("mine.png")));
  EXPECT_TRUE(QDir(folder.filePath(QStringLiteral("Images"))).entryList(files).isEmpty());
  written(image);
  EXPECT_EQ(QDir(folder.filePath(QStringLiteral("Images"))).entryList(files).size(), 1);
}

TEST_F(PictureFolder, ThatTakesNoPicturesIsToldToThePalette) {
  const OdString images = stored(QStringLiteral("Images"));
  const auto problemOf = [&](const OdSmartPtr<OdTcImageImpl>& image) {
    const qsizetype before = palette->unsavedPictures().size();
    written(image);
    image->setOwner(palette);
    const QStringList problems = palette->unsavedPictures();
    EXPECT_EQ(problems.size(), before + 1);
    // Always the picture's own file comes first, then the reason.
    EXPECT_TRUE(problems.back().startsWith(images + image->src().mid(7) + QLatin1String(": ")))
        << problems.back().toStdString();
    return problems.back();
  };
  const auto image = made();
  {
    testhost::FailingServices services;
    services.deniedFolder = images;
    EXPECT_TRUE(problemOf(image).endsWith(text(u"the folder %1 cannot be made").arg(images)));
    services.deniedFolder.clear();
    services.bytesLeft = 40;
    EXPECT_TRUE(problemOf(image).endsWith(text(u"No space left on device")));
    services.bytesLeft.reset();
    services.deniedFolder = images; // which is there by now
    EXPECT_TRUE(QDir(folder.filePath(QStringLiteral("Images"))).exists());
  }
  QDir(folder.filePath(QStringLiteral("Images"))).removeRecursively();
  QFile file(folder.filePath(QStringLiteral("Images")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.close();
  EXPECT_TRUE(problemOf(image).endsWith(text(u"%1 is a file and no folder").arg(images)));
  ASSERT_TRUE(file.remove());
  const qsizetype before = palette->unsavedPictures().size();
  written(image);
  EXPECT_EQ(palette->unsavedPictures().size(), before) << "now it is saved";
}

TEST_F(PictureFolder, ThatTakesNoPicturesOfAnExportIsToldToThePalette) {
  const auto image = made();
  QDir(folder.path()).mkpath(QStringLiteral("out"));
  palette->setPath(stored(QStringLiteral("out/copy.xtp")));
  palette->setExporting(true);
  testhost::FailingServices services;
  services.deniedFolder = stored(QStringLiteral("out/copy"));
  written(image);
  palette->setExporting(false);
  EXPECT_EQ(palette->unsavedPictures().size(), 1);
}

TEST_F(PictureFolder, SaysWhyAPictureIsNotShown) {
  const auto why = [&](const char* name, const QByteArray& bytes) {
    QFile file(folder.filePath(QLatin1String(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    const OdString path = stored(QLatin1String(name));
    EXPECT_TRUE(loadReducedPicture(path).isNull());
    const OdString words = whyNoPicture(path);
    EXPECT_TRUE(words.startsWith(path)) << words.toStdString();
    return words.mid(path.size());
  };
  const OdString huge = text(u" is too large to be shown: 60000 by 60000 pixels");
  EXPECT_EQ(why("a.png", hugePng()), huge);
  EXPECT_EQ(why("lying.jpg", hugePng()), huge);
  EXPECT_EQ(why("a.jpg", hugeJpeg()), huge);

  EXPECT_EQ(why("a.bmp", hugeBmp()), huge);

  const OdString none = text(u" is no picture that can be shown");
  EXPECT_EQ(why("empty.png", {}), none);
  EXPECT_EQ(why("text.png", "Dear reader"), none);
  const OdString cut = none + text(u": its end is missing");
  EXPECT_EQ(why("cut.png", png().left(60)), cut);
  EXPECT_EQ(why("cut.jpg", half(detailed("JPG"))), cut);
  EXPECT_EQ(why("lying.gif", half(detailed("BMP"))), cut);
  EXPECT_EQ(whyNoPicture(stored(QStringLiteral("no.png"))),
            text(u"there is no file ") + stored(QStringLiteral("no.png")));
  QDir(folder.path()).mkpath(QStringLiteral("sub.png"));
  EXPECT_EQ(whyNoPicture(stored(QStringLiteral("sub.png"))),
            stored(QStringLiteral("sub.png")) + text(u" is a folder"));
}

class PictureSource : public PictureFolder, public testing::WithParamInterface<const char16_t*> {};

TEST_P(PictureSource, ThatLeadsElsewhereIsNeitherWrittenNorDeleted) {
  palette->setPath(stored(QStringLiteral("in/palette/p.dtc")));
  QDir(folder.path()).mkpath(QStringLiteral("in/palette"));
  const auto files = [&] {
    QStringList all;
    QDirIterator at(folder.path(), QDir::Files | QDir::System | QDir::Hidden,
                    QDirIterator::Subdirectories);
    while (at.hasNext()) all << at.next();
    all.sort();
    return all;
  };
  makePicture(QStringLiteral("escaped.png"), 8, kGreen);
  makePicture(QStringLiteral("in/escaped.png"), 8, kGreen);
  const QStringList before = files();
  const OdString src = text(GetParam());
  const auto list = odrxMake<OdTcImageListImpl>();
  list->setOwner(palette);
  const auto image = newImage(3);
  image->setBitmap(plain(32, 32, QImage::Format_ARGB32, kRed), src);
  list->add(image);
  const QByteArray bytes = written(list);
  EXPECT_EQ(files(), before);
  list->setOwner(palette);
  EXPECT_EQ(image->src(), src);
  EXPECT_EQ(image->getBitmap().pixel(0, 0), kRed);
  EXPECT_TRUE(bytes.contains("cx=\"32\""));
  list->removeAll(true);
  EXPECT_EQ(files(), before);
}

INSTANTIATE_TEST_SUITE_P(Rows, PictureSource,
                         testing::Values(u"\\..\\escaped.png", u"\\Images\\..\\..\\escaped.png",
                                         u"../escaped.png", u"\\..\\..\\escaped.png",
                                         u"C:\\Windows\\escaped.png", u"\\Images\\C:\\x.png",
                                         u"\\Images\\CON", u"\\Images\\nul.png",
                                         u"\\Images\\COM1.png", u"\\LPT9\\x.png",
                                         u"\\Images\\a:stream.png"));

} // namespace
