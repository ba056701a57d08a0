#include "drafton/previews/stored_preview.h"

#include "drafton/previews/preview_service.h"
#include "drawing/database.h"
#include "drawing/dxf/binary_source.h"
#include "drawing/entities/text.h"
#include "frame/file_path.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

namespace {

using namespace drafton;

class StoredPreviews : public testing::Test {
 protected:
  QString file() const { return m_folder.filePath(QStringLiteral("drawing.dxf")); }
  OdString path() const { return odpath::fromPlatform(file()); }
  void write(const QByteArray& bytes) const {
    QFile out(file());
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(bytes);
  }
  QByteArray read() const {
    QFile in(file());
    EXPECT_TRUE(in.open(QIODevice::ReadOnly));
    return in.readAll();
  }

  QTemporaryDir m_folder;
};

QImage picture() {
  QImage image(40, 20, QImage::Format_RGB32);
  image.fill(qRgb(10, 120, 200));
  image.setPixel(0, 0, qRgb(255, 0, 0));
  return image;
}

/// As a drawing keeps it.
QByteArray bitmapOf(const QImage& image) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "BMP");
  return bytes.mid(14);
}

OdDbDatabasePtr drawingWith(const QByteArray& preview) {
  const OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  drawing->setThumbnail(preview);
  return drawing;
}

QByteArray binaryTag(int code, const QByteArray& value) {
  QByteArray tag;
  tag += static_cast<char>(code & 0xFF);
  tag += static_cast<char>(code >> 8);
  return tag + value;
}
QByteArray binaryText(int code, const char* value) {
  return binaryTag(code, QByteArray(value) + '\0');
}

} // namespace

TEST_F(StoredPreviews, AreReadFromTextFiles) {
  drawingWith(bitmapOf(picture()))->writeFile(path());
  const QImage found = readStoredPreview(path());
  ASSERT_EQ(found.size(), QSize(40, 20));
  EXPECT_EQ(found.pixel(0, 0), qRgb(255, 0, 0));
  EXPECT_EQ(found.pixel(39, 19), qRgb(10, 120, 200));
}

TEST_F(StoredPreviews, AreReadWithTheLineEndsOfOtherSystems) {
  drawingWith(bitmapOf(picture()))->writeFile(path());
  QByteArray bytes = read();
  bytes.replace("\r\n", "\n");
  write(bytes);
  EXPECT_EQ(readStoredPreview(path()).size(), QSize(40, 20));
  bytes.replace("\n", "\r\n");
  write(bytes);
  EXPECT_EQ(readStoredPreview(path()).size(), QSize(40, 20));
}

TEST_F(StoredPreviews, AreReadFromBinaryFiles) {
  QByteArray bytes("AutoCAD Binary DXF\r\n\x1A\0", 22);
  bytes += binaryText(0, "SECTION") + binaryText(2, "THUMBNAILIMAGE");
  const QByteArray bitmap = bitmapOf(picture());
  bytes += binaryTag(90, QByteArray("\x28\x0d\0\0", 4));
  for (qsizetype i = 0; i < bitmap.size(); i += 127) {
    const QByteArray piece = bitmap.mid(i, 127);
    bytes += binaryTag(310, QByteArray(1, static_cast<char>(piece.size())) + piece);
  }
  bytes += binaryText(0, "ENDSEC") + binaryText(0, "EOF");
  write(bytes);
  EXPECT_EQ(readStoredPreview(path()).pixel(0, 0), qRgb(255, 0, 0));
}

TEST_F(StoredPreviews, AreFoundBehindATextThatNamesTheirSection) {
  const OdDbDatabasePtr drawing = drawingWith(bitmapOf(picture()));
  auto words = odrxMake<OdDbText>();
  words->setDatabaseDefaults(*drawing);
  words->setTextString(QStringLiteral("THUMBNAILIMAGE"));
  drawing->getModelSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->appendOdDbEntity(words);
  drawing->writeFile(path());
  ASSERT_EQ(read().count("THUMBNAILIMAGE"), 2);
  EXPECT_EQ(readStoredPreview(path()).size(), QSize(40, 20));
}

TEST_F(StoredPreviews, MayBeLargerThanWhatIsReadAtFirst) {
  QImage large(400, 300, QImage::Format_RGB32);
  large.fill(qRgb(1, 2, 3));
  drawingWith(bitmapOf(large))->writeFile(path());
  EXPECT_EQ(readStoredPreview(path()).size(), large.size());
}

TEST_F(StoredPreviews, AreFoundBehindManyTextsAndLinesWithoutEnd) {
  drawingWith(bitmapOf(picture()))->writeFile(path());
  const QByteArray bytes = read();
  QByteArray comments;
  for (int i = 0; i < 900; ++i) comments += "999\nTHUMBNAILIMAGE\n";
  write(comments + "999\nTHUMBNAILIMAGE" + QByteArray(100000, 'x') + '\n' + bytes);
  EXPECT_EQ(readStoredPreview(path()).size(), QSize(40, 20));
}

TEST_F(StoredPreviews, AreFoundAcrossThePiecesThatTheSearchReads) {
  drawingWith(bitmapOf(picture()))->writeFile(path());
  const QByteArray bytes = read();
  const qsizetype name = sizeof("THUMBNAILIMAGE") - 1, at = bytes.indexOf("THUMBNAILIMAGE");
  // The first piece ends a million bytes behind the mark of binary files, which is looked for
  // first.
  constexpr qsizetype kEnd = (1 << 20) + OdDbDxfBinarySource::kMark.size();
  for (const qsizetype before : {qsizetype{1}, name / 2, name - 1}) {
    const QByteArray line("999\n"), filler(kEnd - before - at - line.size() - 1, 'x');
    write(line + filler + '\n' + bytes);
    ASSERT_EQ(read().indexOf("THUMBNAILIMAGE"), kEnd - before);
    EXPECT_EQ(readStoredPreview(path()).size(), QSize(40, 20)) << before;
  }
}

TEST_F(StoredPreviews, OfSixteenColorsAndWithAlphaAreReadToo) {
  const QImage few = picture().convertToFormat(QImage::Format_Indexed8);
  EXPECT_EQ(pictureOfPreview(bitmapOf(few)).size(), QSize(40, 20));
  QByteArray png;
  QBuffer buffer(&png);
  buffer.open(QIODevice::WriteOnly);
  picture().save(&buffer, "PNG");
  EXPECT_EQ(pictureOfPreview(png).size(), QSize(40, 20));
}

TEST_F(StoredPreviews, AreNothingWhereThereIsNoPicture) {
  EXPECT_TRUE(readStoredPreview(path()).isNull());
  EXPECT_TRUE(readStoredPreview(odpath::fromPlatform(m_folder.path())).isNull());
  OdDbDatabase::createDatabase()->writeFile(path());
  EXPECT_TRUE(readStoredPreview(path()).isNull());
  const QByteArray bitmap = bitmapOf(picture());
  for (const qsizetype length : {qsizetype{0}, qsizetype{3}, qsizetype{39}, qsizetype{60}}) {
    drawingWith(bitmap.left(length))->writeFile(path());
    readStoredPreview(path()); // whatever it gives, it ends
  }
  drawingWith(QByteArray(4000, '\xFF'))->writeFile(path());
  EXPECT_TRUE(readStoredPreview(path()).isNull());
  drawingWith(bitmap)->writeFile(path());
  const QByteArray whole = read();
  write(whole.left(whole.indexOf("THUMBNAILIMAGE") + 20));
  EXPECT_TRUE(readStoredPreview(path()).isNull());
}

TEST_F(StoredPreviews, KeepTheirProportionsInASquare) {
  drawingWith(bitmapOf(picture()))->writeFile(path());
  const auto service =
      kvMake<PreviewService>([](const OdString&, const OdString&) { return std::nullopt; });
  const QImage square = service->storedPreview(path(), 32);
  ASSERT_EQ(square.size(), QSize(32, 32));
  EXPECT_EQ(qAlpha(square.pixel(16, 2)), 0);
  EXPECT_EQ(qAlpha(square.pixel(16, 16)), 255);
}

namespace {

template <class T>
QByteArray littleEndian(T value) {
  value = qToLittleEndian(value);
  return QByteArray(reinterpret_cast<const char*>(&value), sizeof(T));
}

struct DwgPicture {
  char kind;
  QByteArray bytes;
};

/// The beginning of a DWG file, with pictures in the section that its header names.
QByteArray dwgWith(const std::vector<DwgPicture>& pictures) {
  const QByteArray mark = QByteArray::fromHex("1F256D07D43628289D57CA3F9D44102B");
  constexpr std::uint32_t kSection = 0x100;
  QByteArray file("AC1032");
  file.resize(0x0D);
  file += littleEndian(kSection);
  file.resize(kSection);
  QByteArray rows, contents;
  const auto first = static_cast<std::uint32_t>(kSection + 16 + 4 + 1 + 9 * pictures.size());
  for (const DwgPicture& picture : pictures) {
    rows += picture.kind + littleEndian(first + static_cast<std::uint32_t>(contents.size())) +
            littleEndian(static_cast<std::uint32_t>(picture.bytes.size()));
    contents += picture.bytes;
  }
  return file + mark + littleEndian(static_cast<std::uint32_t>(contents.size())) +
         static_cast<char>(pictures.size()) + rows + contents + QByteArray(200, '\x55');
}

QByteArray pngOf(const QImage& image) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return bytes;
}

const DwgPicture kHeader{1, QByteArray(80, 0)};

} // namespace

TEST_F(StoredPreviews, AreReadFromDwgFiles) {
  for (const DwgPicture& kept :
       {DwgPicture{2, bitmapOf(picture())}, DwgPicture{6, pngOf(picture())}}) {
    write(dwgWith({kHeader, kept}));
    const QImage found = readStoredPreview(path());
    ASSERT_EQ(found.size(), QSize(40, 20)) << int{kept.kind};
    EXPECT_EQ(found.pixel(0, 0), qRgb(255, 0, 0));
    EXPECT_EQ(found.pixel(39, 19), qRgb(10, 120, 200));
  }
  QImage other(8, 8, QImage::Format_RGB32);
  other.fill(Qt::green);
  write(dwgWith({kHeader, {2, bitmapOf(other)}, {6, pngOf(picture())}}));
  EXPECT_EQ(readStoredPreview(path()).size(), QSize(40, 20)) << "the better one";
  write(dwgWith({kHeader, {2, bitmapOf(other)}, {6, QByteArray()}}));
  EXPECT_EQ(readStoredPreview(path()).size(), QSize(8, 8));
}

TEST_F(StoredPreviews, OfDwgFilesWithoutAPictureAreNone) {
  for (const std::vector<DwgPicture>& pictures : {std::vector<DwgPicture>{},
                                                  {kHeader},
                                                  {kHeader, {3, QByteArray("a metafile")}},
                                                  {{6, QByteArray("no PNG")}}}) {
    write(dwgWith(pictures));
    EXPECT_TRUE(readStoredPreview(path()).isNull());
  }
}

TEST_F(StoredPreviews, ThatAreDamagedAreNoneWithoutAWordOfTheDecoder) {
  const QByteArray whole = pngOf(picture());
  QByteArray damaged = whole;
  damaged[damaged.indexOf("IDAT") + 10] =
      static_cast<char>(damaged[damaged.indexOf("IDAT") + 10] ^ 1);
  testing::internal::CaptureStderr();
  for (const QByteArray& bytes : {whole.left(60), whole.chopped(4), damaged})
    EXPECT_TRUE(pictureOfPreview(bytes).isNull());
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(pictureOfPreview(whole).size(), QSize(40, 20));
}

TEST_F(StoredPreviews, OfHostileDwgFilesAreNone) {
  const QByteArray sound = dwgWith({kHeader, {2, bitmapOf(picture())}});
  for (qsizetype length = 0; length < 0x100 + 40; ++length) {
    write(sound.left(length));
    EXPECT_TRUE(readStoredPreview(path()).isNull()) << length;
  }
  constexpr qsizetype kSeeker = 0x0D, kRow = 0x100 + 16 + 4 + 1 + 9;
  for (const qsizetype at : {kSeeker, kRow + 1, kRow + 5})
    for (const std::uint32_t value : {0u, 1u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu, 0xFFFFFFF0u}) {
      QByteArray hostile = sound;
      write(hostile.replace(at, 4, littleEndian(value)));
      EXPECT_TRUE(readStoredPreview(path()).isNull()) << at << ' ' << value;
    }
  QByteArray marked = sound;
  marked[0x100] = 0;
  write(marked);
  EXPECT_TRUE(readStoredPreview(path()).isNull());
}
