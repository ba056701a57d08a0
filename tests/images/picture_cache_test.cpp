#include "images/picture_cache.h"

#include "images/image_fixture.h"

namespace {

using namespace tc;

/// Puts the limit back.
struct PictureCacheTest : testhost::ImageFixture {
  PictureCacheTest()
    : m_limit(cache().limit())
    , m_size(cache().size()) {}
  ~PictureCacheTest() override {
    EXPECT_EQ(cache().size(), m_size) << "pictures count beyond their end";
    cache().setLimit(m_limit);
  }
  static PictureCache& cache() { return PictureCache::instance(); }
  static QImage picture() {
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(Qt::red);
    return image;
  }
  static constexpr qsizetype kBytes = qsizetype{16} * 16 * 4;

  qsizetype m_limit, m_size;
};

TEST_F(PictureCacheTest, GivesUpThePictureThatWasNotLookedAtForLongest) {
  cache().setLimit(m_size + 2 * kBytes);
  PictureCache::Entry first, second, third;
  for (PictureCache::Entry* const entry : {&first, &second, &third}) entry->bitmap = picture();
  cache().use(first);
  cache().use(second);
  cache().use(first);
  cache().use(third);
  EXPECT_FALSE(first.bitmap.isNull());
  EXPECT_TRUE(second.bitmap.isNull());
  EXPECT_FALSE(third.bitmap.isNull());
  EXPECT_EQ(cache().size(), m_size + 2 * kBytes);
}

TEST_F(PictureCacheTest, CountsCopiesAndForgetsWhatIsDestroyed) {
  PictureCache::Entry entry;
  entry.bitmap = picture();
  {
    const PictureCache::Entry uncounted(entry);
    EXPECT_EQ(cache().size(), m_size);
    cache().use(entry);
    cache().use(entry);
    const PictureCache::Entry counted(entry);
    EXPECT_EQ(cache().size(), m_size + 2 * kBytes);
  }
  EXPECT_EQ(cache().size(), m_size + kBytes);
  cache().drop(entry);
  cache().drop(entry);
  EXPECT_EQ(cache().size(), m_size);
  EXPECT_FALSE(entry.bitmap.isNull());
}

TEST_F(PictureCacheTest, ShowsAPictureThatIsLargerThanTheLimit) {
  makePicture(QStringLiteral("Images/a.png"), 64, qRgb(1, 2, 3));
  cache().setLimit(m_size + kBytes);
  const auto image = readImage("cx=\"64\" cy=\"64\" src=\"\\Images\\a.png\"");
  EXPECT_EQ(image->getBitmap().width(), 64);
  EXPECT_EQ(image->getBitmap().width(), 64);
  EXPECT_LE(cache().size(), cache().limit());
}

TEST_F(PictureCacheTest, BoundsThePicturesOfAPalette) {
  makePicture(QStringLiteral("Images/a.png"), 16, qRgb(1, 2, 3));
  cache().setLimit(m_size + 10 * kBytes);
  std::vector<OdSmartPtr<OdTcImageImpl>> images;
  for (int i = 0; i < 50; ++i) {
    images.push_back(readImage("cx=\"16\" cy=\"16\" src=\"\\Images\\a.png\""));
    EXPECT_FALSE(images.back()->getBitmap().isNull());
    EXPECT_LE(cache().size(), cache().limit());
  }
  EXPECT_EQ(cache().size(), cache().limit());
  // Those that were given up are decoded again.
  for (const auto& image : images) EXPECT_EQ(image->getBitmap().pixelColor(0, 0), QColor(1, 2, 3));
}

TEST_F(PictureCacheTest, KeepsAMadePictureUntilItIsSaved) {
  cache().setLimit(m_size);
  const auto image = newImage(1);
  ASSERT_TRUE(image->makeFromGradient(QStringLiteral("LINEAR"), OdCmColor::fromRgb(1, 2, 3),
                                      OdCmColor::fromRgb(1, 2, 3)));
  EXPECT_FALSE(image->getBitmap().isNull());
  EXPECT_FALSE(image->getBitmap().isNull()) << "it could not be decoded again";
  testhost::written(image);
  EXPECT_EQ(image->getBitmap().pixelColor(0, 0), QColor(1, 2, 3));
}

TEST_F(PictureCacheTest, IsEmptiedByThoseThatGiveTheirPicturesUp) {
  makePicture(QStringLiteral("Images/a.png"), 16, qRgb(1, 2, 3));
  const auto image = readImage("cx=\"16\" cy=\"16\" src=\"\\Images\\a.png\"");
  image->getBitmap();
  EXPECT_EQ(cache().size(), m_size + kBytes);
  const OdRxObjectPtr copy = image->clone();
  EXPECT_EQ(cache().size(), m_size + 2 * kBytes);
  image->releaseBitmap();
  EXPECT_EQ(cache().size(), m_size + kBytes);
}

} // namespace
