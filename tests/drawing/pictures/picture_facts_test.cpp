#include "drawing/pictures/picture_facts.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QtEndian>

#include <gtest/gtest.h>

namespace {

QImage detailed() {
  QImage picture(40, 30, QImage::Format_RGB32);
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      picture.setPixel(x, y, qRgb(x * y % 251, (x * 7 + y) % 256, (x ^ y) % 256));
  return picture;
}

QByteArray encoded(const QImage& picture, const char* format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  EXPECT_TRUE(buffer.open(QIODevice::WriteOnly) && picture.save(&buffer, format));
  return bytes;
}

QByteArray gif() {
  QFile file(QStringLiteral(TEST_DATA_DIR "/pictures/animated.gif"));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return file.readAll();
}

OdPictureFacts factsOf(QByteArray bytes) {
  QBuffer buffer(&bytes);
  EXPECT_TRUE(buffer.open(QIODevice::ReadOnly));
  const OdPictureFacts facts = oddbPictureFacts(buffer);
  EXPECT_EQ(buffer.pos(), 0);
  return facts;
}

template <class T>
QByteArray& put(QByteArray& bytes, qsizetype at, T value) {
  value = qToLittleEndian(value);
  return bytes.replace(at, sizeof(T), QByteArray(reinterpret_cast<const char*>(&value), sizeof(T)));
}

struct Row {
  const char* format;
  const char* kind;
  qsizetype marks; ///< bytes by which the kind is told
};

class PictureFacts : public testing::TestWithParam<Row> {};

TEST_P(PictureFacts, TellACutPictureWhereverItIsCut) {
  const QByteArray whole = encoded(detailed(), GetParam().format);
  EXPECT_EQ(factsOf(whole).kind, GetParam().kind);
  EXPECT_FALSE(factsOf(whole).isCut);
  EXPECT_FALSE(factsOf(whole + "what others put behind it").isCut);
  for (qsizetype length = GetParam().marks; length < whole.size(); ++length)
    ASSERT_TRUE(factsOf(whole.left(length)).isCut) << length << " of " << whole.size();
}

INSTANTIATE_TEST_SUITE_P(Kinds, PictureFacts,
                         testing::Values(Row{"PNG", "png", 8}, Row{"JPG", "jpeg", 3},
                                         Row{"BMP", "bmp", 2}, Row{"TIFF", "tiff", 4}));

TEST(PictureFactsOfFiles, CountOnlyTheFirstPictureOfAnAnimation) {
  const QByteArray whole = gif();
  constexpr qsizetype kFirstPictureEnds = 0x50;
  EXPECT_EQ(factsOf(whole).kind, "gif");
  for (qsizetype length = 6; length < whole.size(); ++length)
    ASSERT_EQ(factsOf(whole.left(length)).isCut, length < kFirstPictureEnds) << length;
}

TEST(PictureFactsOfFiles, PassAThumbnailWithinAPhotograph) {
  const QByteArray thumbnail = encoded(detailed().scaled(8, 8), "JPG");
  const QByteArray whole = encoded(detailed(), "JPG");
  QByteArray segment("\xFF\xE1", 2);
  const auto length = qToBigEndian(static_cast<std::uint16_t>(thumbnail.size() + 2));
  segment += QByteArray(reinterpret_cast<const char*>(&length), sizeof(length)) + thumbnail;
  const QByteArray photo = whole.left(2) + segment + whole.mid(2);
  EXPECT_FALSE(factsOf(photo).isCut);
  EXPECT_TRUE(factsOf(photo.chopped(2)).isCut) << "the end of the thumbnail is not the picture's";
}

TEST(PictureFactsOfFiles, TellADamagedPartOfAPng) {
  QByteArray bytes = encoded(detailed(), "PNG");
  const qsizetype data = bytes.indexOf("IDAT") + 20;
  bytes[data] = static_cast<char>(bytes[data] ^ 1);
  EXPECT_TRUE(factsOf(bytes).isCut);
  // What is no part of the picture may be damaged: here its resolution.
  bytes = encoded(detailed(), "PNG");
  const qsizetype extra = bytes.indexOf("pHYs");
  ASSERT_GT(extra, 0);
  bytes[extra + 5] = static_cast<char>(bytes[extra + 5] ^ 1);
  EXPECT_FALSE(factsOf(bytes).isCut);
}

TEST(PictureFactsOfFiles, HaveTheSizeAlsoOfACutPicture) {
  for (const char* const format : {"PNG", "JPG", "BMP"}) {
    const QByteArray bytes = encoded(detailed(), format);
    for (const QByteArray& part : {bytes, bytes.chopped(100)}) {
      EXPECT_EQ(factsOf(part).width, 40) << format;
      EXPECT_EQ(factsOf(part).height, 30) << format;
    }
  }
}

TEST(PictureFactsOfFiles, HaveTheSizeOfBitmaps) {
  QByteArray bytes = encoded(detailed(), "BMP");
  EXPECT_EQ(factsOf(bytes).width, 40);
  EXPECT_EQ(factsOf(bytes).height, 30);
  put<std::int32_t>(bytes, 22, -30); // from top to bottom
  EXPECT_EQ(factsOf(bytes).height, 30);
  EXPECT_FALSE(factsOf(bytes).isCut);
  for (const std::int32_t side : {INT32_MAX, INT32_MIN, 60000}) {
    put<std::int32_t>(bytes, 22, side);
    EXPECT_EQ(factsOf(bytes).height, std::abs(std::int64_t{side}));
    EXPECT_TRUE(factsOf(bytes).isCut);
  }
  put<std::int32_t>(bytes, 18, INT32_MAX);
  put<std::uint16_t>(bytes, 28, 0xFFFF);
  EXPECT_TRUE(factsOf(bytes).isCut);
  // A header of the first kind has short numbers.
  QByteArray old("BM");
  old.resize(26);
  put<std::uint32_t>(old, 10, 26);
  put<std::uint32_t>(old, 14, 12);
  put<std::uint16_t>(old, 18, 4);
  put<std::uint16_t>(old, 20, 2);
  put<std::uint16_t>(old, 22, 1);
  put<std::uint16_t>(old, 24, 8);
  EXPECT_EQ(factsOf(old).width, 4);
  EXPECT_EQ(factsOf(old).height, 2);
  EXPECT_TRUE(factsOf(old + QByteArray(7, 0)).isCut);
  EXPECT_FALSE(factsOf(old + QByteArray(8, 0)).isCut);
}

TEST(PictureFactsOfFiles, OfAHostileTiffAreNoEndlessSearch) {
  const QByteArray sound = encoded(detailed(), "TIFF");
  const auto directory = qFromLittleEndian<std::uint32_t>(sound.constData() + 4);
  const auto count = qFromLittleEndian<std::uint16_t>(sound.constData() + directory);
  const auto withNumbers = [&](qsizetype at, std::uint32_t number) {
    QByteArray bytes = sound;
    for (int i = 0; i < count; ++i) {
      const qsizetype entry = directory + 2 + i * 12;
      const auto tag = qFromLittleEndian<std::uint16_t>(bytes.constData() + entry);
      if (tag == 273 || tag == 279) put<std::uint32_t>(bytes, entry + at, number);
    }
    return bytes;
  };
  constexpr qsizetype kCount = 4, kValue = 8;
  EXPECT_FALSE(factsOf(withNumbers(kCount, 0)).isCut) << "decoders find out";
  EXPECT_TRUE(factsOf(withNumbers(kCount, 0xFFFFFFFF)).isCut);
  EXPECT_TRUE(factsOf(withNumbers(kValue, 0xFFFFFFFF)).isCut);
  QByteArray elsewhere = sound;
  EXPECT_TRUE(factsOf(put<std::uint32_t>(elsewhere, 4, 0xFFFFFFF0)).isCut);
}

TEST(PictureFactsOfFiles, AreUnknownOfAnythingElse) {
  for (const QByteArray& bytes : {QByteArray(), QByteArray("  0\nSECTION\n"), QByteArray(100, 0)}) {
    EXPECT_EQ(factsOf(bytes).kind, QByteArray());
    EXPECT_FALSE(factsOf(bytes).isCut);
  }
  QFile stream(QStringLiteral("/dev/zero"));
  if (stream.open(QIODevice::ReadOnly)) {
    EXPECT_EQ(oddbPictureFacts(stream).kind, QByteArray());
  }
}

} // namespace
