#include "drawing/database.h"
#include "drawing/entities/line.h"
#include "images/gradient_picture.h"
#include "images/image_fixture.h"
#include "properties/gradient_names.h"
#include "render/golden_picture.h"
#include "support/failing_services.h"

#include <QPainter>

#include <functional>

namespace {

using namespace tc;
using testhost::host;

OdString text(const char16_t* s) { return OdString::fromUtf16(s); }

struct PreviewTest : testhost::ImageFixture {
  OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();

  OdDbObjectId addBlock(const char16_t* name) {
    const auto table = drawing->getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite);
    const auto block = odrxMake<OdDbBlockTableRecord>();
    block->setName(text(name));
    const OdDbObjectId id = table->add(block);
    block->appendOdDbEntity(odrxMake<OdDbLine>(OdGePoint3d{10, 20, 0}, OdGePoint3d{30, 24, 0}));
    return id;
  }
};

QColor at(const QImage& picture, double x, double y) {
  return picture.pixelColor(static_cast<int>(x * picture.width()),
                            static_cast<int>(y * picture.height()));
}

TEST_F(PreviewTest, ShowsABlockInAViewATenthLargerThanItAndIsNamedAfterIt) {
  const auto image = newImage(3);
  ASSERT_TRUE(image->makeFromBlock(addBlock(u"Door")));
  EXPECT_EQ(host().previews.asked, QStringList(text(u"objects 1 32")));
  EXPECT_EQ(host().previews.view.minPoint(), (OdGePoint3d{9, 19.8, 0}));
  EXPECT_EQ(host().previews.view.maxPoint(), (OdGePoint3d{31, 24.2, 0}));
  EXPECT_EQ(image->src(), text(u"\\Images\\Door32.png"));
  EXPECT_EQ(image->getBitmap().width(), 32);
  EXPECT_EQ(image->format(), 6);
}

TEST_F(PreviewTest, OfALayoutIsNamedAfterTheDrawing) {
  drawing->setFileName(text(u"C:\\plans\\House.dxf"));
  const auto image = newImage(4);
  ASSERT_TRUE(image->makeFromBlock(drawing->getModelSpaceId()));
  EXPECT_EQ(image->src(), text(u"\\Images\\House64.png"));
}

TEST_F(PreviewTest, OfABlockTakesAFreshNameWhereTheFileOfItsOwnExists) {
  makePicture(QStringLiteral("Images/Door32.png"), 32, qRgb(0, 0, 0));
  const auto image = newImage(3);
  ASSERT_TRUE(image->makeFromBlock(addBlock(u"Door")));
  EXPECT_TRUE(image->src().startsWith(text(u"\\Images\\Block tool instrument_{")))
      << image->src().toStdString();
}

TEST_F(PreviewTest, OfABlockHasANameThatFilesCanHave) {
  struct Row {
    const char16_t* block;
    const char16_t* name;
  };
  const Row rows[] = {{u"Door/left:2", u"\\Images\\Doorleft232.png"},
                      {u"*U12", u"\\Images\\U1232.png"},
                      {u"T\u00fcr <1>", u"\\Images\\T\u00fcr 132.png"},
                      {u"..\\..\\x", u"\\Images\\....x32.png"}};
  for (const Row& row : rows) {
    const auto image = newImage(3);
    ASSERT_TRUE(image->makeFromBlock(addBlock(row.block)));
    EXPECT_EQ(image->src(), text(row.name));
  }
  const auto nameless = newImage(3);
  ASSERT_TRUE(nameless->makeFromBlock(addBlock(u"?*")));
  EXPECT_TRUE(nameless->src().startsWith(text(u"\\Images\\Block tool instrument_{")));
  const auto endless = newImage(3);
  ASSERT_TRUE(endless->makeFromBlock(addBlock(std::u16string(250, u'x').c_str())));
  EXPECT_LT(endless->src().size(), 100);
}

TEST_F(PreviewTest, OfAnEntityHasAFreshName) {
  const OdDbObjectId block = addBlock(u"Door");
  const auto line = block.openAs<OdDbBlockTableRecord>()->entityIds().front();
  const auto image = newImage(1);
  ASSERT_TRUE(image->makeFromBlock(line));
  EXPECT_TRUE(image->src().startsWith(text(u"\\Images\\Block tool instrument_{")));
}

TEST_F(PreviewTest, ThatFailsLeavesTheSourceAsItWas) {
  const auto image = newImage(3);
  image->setResource(text(u"old"), OdString());
  host().previews.canRender = host().previews.hasStoredPreview = host().previews.hasFileIcon =
      false;
  EXPECT_FALSE(image->makeFromBlock(addBlock(u"Door")));
  EXPECT_FALSE(image->makeFromBlock(OdDbObjectId()));
  EXPECT_FALSE(image->makeFromPattern(text(u"ANSI31"), {}, std::nullopt));
  EXPECT_FALSE(image->makeFromUserPattern(0.5, true));
  EXPECT_FALSE(image->makeFromDrawing(text(u"C:\\a.dxf")));
  EXPECT_FALSE(image->setSrcFromFile(stored(QStringLiteral("missing.png"))));
  host().switchOff(IHostPreviewService::kId);
  EXPECT_FALSE(image->makeFromBlock(addBlock(u"Window")));
  EXPECT_FALSE(image->makeFromPattern(text(u"ANSI31"), {}, std::nullopt));
  EXPECT_FALSE(image->makeFromUserPattern(0.5, true));
  EXPECT_FALSE(image->makeFromDrawing(text(u"C:\\a.dxf")));
  EXPECT_EQ(image->src(), text(u"old"));
}

TEST_F(PreviewTest, OfAPatternComesFromTheHostUnderAFreshName) {
  const auto image = newImage(4);
  ASSERT_TRUE(image->makeFromPattern(text(u"ANSI31"), {}, OdCmColor::fromRgb(1, 2, 3)));
  EXPECT_EQ(host().previews.asked, QStringList(text(u"pattern ANSI31 64")));
  EXPECT_TRUE(image->src().startsWith(text(u"\\Images\\Hatch tool instrument_{")));
}

TEST_F(PreviewTest, OfAPatternIsLookedForInItsFile) {
  const auto image = newImage(4);
  ASSERT_TRUE(image->makeFromPattern(text(u"MINE"), text(u"C:\\mine.pat"), std::nullopt));
  EXPECT_EQ(host().previews.asked, QStringList(text(u"pattern MINE of C:\\mine.pat 64")));
}

TEST_F(PreviewTest, OfLinesOfTheUsersOwnComesFromTheHostUnderAFreshName) {
  const auto image = newImage(3);
  ASSERT_TRUE(image->makeFromUserPattern(0.5, true));
  EXPECT_EQ(host().previews.asked, QStringList(text(u"lines at 0.5 crossed 32")));
  EXPECT_TRUE(image->src().startsWith(text(u"\\Images\\Hatch tool instrument_{")));
}

TEST_F(PreviewTest, OfASolidWithAColourIsASquareOfItWithoutTheHost) {
  host().switchOff(IHostPreviewService::kId);
  const auto image = newImage(3);
  ASSERT_TRUE(image->makeFromPattern(text(u"solid"), {}, OdCmColor::fromRgb(10, 200, 30)));
  const QImage picture = image->getBitmap();
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x) ASSERT_EQ(picture.pixelColor(x, y), QColor(10, 200, 30));
}

TEST_F(PreviewTest, OfADrawingFileIsTheOneItKeepsOrElseTheIconOfItsKind) {
  const auto image = newImage(3);
  ASSERT_TRUE(image->makeFromDrawing(text(u"C:\\plans\\House.dxf")));
  EXPECT_EQ(image->src(), text(u"\\Images\\House32.png"));
  host().previews.hasStoredPreview = false;
  ASSERT_TRUE(image->makeFromDrawing(text(u"C:\\plans\\Barn.dxf")));
  EXPECT_EQ(image->src(), text(u"\\Images\\Barn32.png"));
  EXPECT_EQ(host().previews.asked, QStringList({text(u"stored C:\\plans\\House.dxf 32"),
                                                text(u"stored C:\\plans\\Barn.dxf 32"),
                                                text(u"icon C:\\plans\\Barn.dxf 32")}));
}

TEST_F(PreviewTest, OfADrawingFileTakesAFreshNameWhereTheFileOfItsOwnExists) {
  makePicture(QStringLiteral("Images/House32.png"), 32, qRgb(0, 0, 0));
  const auto image = newImage(3);
  ASSERT_TRUE(image->makeFromDrawing(text(u"C:\\plans\\House.dxf")));
  EXPECT_TRUE(image->src().startsWith(text(u"\\Images\\Block tool instrument_{")))
      << image->src().toStdString();
}

TEST_F(PreviewTest, FreshNameThatIsTakenIsReplacedOnceAndNotTestedAgain) {
  const auto name = [](const char16_t* label, const char16_t* id) {
    return text(u"\\Images\\") + text(label) + u'_' + text(id) + text(u".png");
  };
  const auto take = [&](const OdString& src) {
    makePicture(odpath::toPlatform(src).mid(1), 8, qRgb(0, 0, 0));
  };
  for (const char16_t* const label :
       {u"Block tool instrument", u"Hatch tool instrument", u"Raster tool instrument"})
    for (const char16_t* const id : {u"{1}", u"{2}"}) take(name(label, id));
  makePicture(QStringLiteral("Images/door32.png"), 8, qRgb(0, 0, 0));
  makePicture(QStringLiteral("Images/Door32.png"), 8, qRgb(0, 0, 0));
  makePicture(QStringLiteral("door.png"), 8, qRgb(255, 0, 0));
  const OdDbObjectId block = addBlock(u"Door");
  const auto made = [&](const QStringList& ids, const std::function<bool(OdTcImageImpl&)>& make) {
    testhost::FailingServices services;
    services.ids = ids;
    const auto image = newImage(3);
    EXPECT_TRUE(make(*image));
    return image->src();
  };
  const OdCmColor red = OdCmColor::fromRgb(255, 0, 0);
  struct Row {
    const char16_t* label;
    std::function<bool(OdTcImageImpl&)> make;
  };
  const Row rows[] = {
      {u"Hatch tool instrument",
       [&](OdTcImageImpl& image) { return image.makeFromGradient(text(u"LINEAR"), red, red); }},
      // A title that is taken leads to the same names.
      {u"Block tool instrument", [&](OdTcImageImpl& image) { return image.makeFromBlock(block); }},
      {u"Raster tool instrument",
       [&](OdTcImageImpl& image) {
         return image.setSrcFromFile(stored(QStringLiteral("door.png")));
       }},
  };
  const QStringList free{text(u"{1}"), text(u"{9}")}, taken{text(u"{1}"), text(u"{2}")};
  for (const Row& row : rows) {
    EXPECT_EQ(made(free, row.make), name(row.label, u"{9}"));
    EXPECT_EQ(made(taken, row.make), name(row.label, u"{2}")) << "as it stands";
  }
}

TEST_F(PreviewTest, TwoToolsOfOnePictureFileInOnePaletteHaveDifferentNames) {
  makePicture(QStringLiteral("door.png"), 10, qRgb(255, 0, 0));
  const auto first = newImage(3), second = newImage(3);
  ASSERT_TRUE(first->setSrcFromFile(stored(QStringLiteral("door.png"))));
  testhost::written(first);
  ASSERT_TRUE(second->setSrcFromFile(stored(QStringLiteral("door.png"))));
  EXPECT_EQ(first->src(), text(u"\\Images\\door32.png"));
  EXPECT_TRUE(second->src().startsWith(text(u"\\Images\\Raster tool instrument_{")));
}

TEST_F(PreviewTest, OfAnUnknownGradientIsLinear) {
  const OdCmColor red = OdCmColor::fromRgb(255, 0, 0), blue = OdCmColor::fromRgb(0, 0, 255);
  EXPECT_EQ(gradientPicture(text(u"PLAID"), red, blue, 32),
            gradientPicture(text(u"LINEAR"), red, blue, 32));
  // Names are compared exactly.
  EXPECT_EQ(gradientPicture(text(u"spherical"), red, blue, 32),
            gradientPicture(text(u"LINEAR"), red, blue, 32));
}

TEST_F(PreviewTest, EveryGradientHasAPictureOfItsOwn) {
  const OdCmColor red = OdCmColor::fromRgb(255, 0, 0), blue = OdCmColor::fromRgb(0, 0, 255);
  std::vector<QImage> seen;
  for (const GradientRow& row : kGradients) {
    const QImage picture = gradientPicture(row.key.toString(), red, blue, 64);
    for (const QImage& other : seen) EXPECT_NE(picture, other) << row.key.toString().toStdString();
    seen.push_back(picture);
  }
}

TEST_F(PreviewTest, OfGradientsLookAsTheGoldenOnes) {
  // Nine rows in three sizes, on a light and on a dark ground.
  constexpr int kGap = 4, kHeight = 64 + kGap, kHalf = 16 + 32 + 64 + 4 * kGap;
  QImage sheet(2 * kHalf, 9 * kHeight, QImage::Format_RGB32);
  QPainter painter(&sheet);
  painter.fillRect(0, 0, kHalf, sheet.height(), Qt::white);
  painter.fillRect(kHalf, 0, kHalf, sheet.height(), qRgb(30, 30, 30));
  for (std::size_t i = 0; i < kGradients.size(); ++i)
    for (const int left : {0, kHalf}) {
      int x = left + kGap;
      for (const int pixels : {16, 32, 64}) {
        painter.drawImage(x, static_cast<int>(i) * kHeight + kGap / 2,
                          gradientPicture(kGradients[i].key.toString(),
                                          OdCmColor::fromRgb(30, 90, 200),
                                          OdCmColor::fromRgb(250, 200, 60), pixels));
        x += pixels + kGap;
      }
    }
  painter.end();
  EXPECT_TRUE(render_test::looksLike(sheet, "preview_gradients"));
}

/// Writes a picture with a sun over a meadow, so that directions show.
void writeScene(const QString& file, QSize size, int alpha) {
  QImage picture(size, QImage::Format_ARGB32);
  picture.fill(QColor(90, 160, 230, alpha));
  QPainter painter(&picture);
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  painter.setRenderHint(QPainter::Antialiasing);
  const double width = size.width(), height = size.height();
  painter.fillRect(QRectF(0, 0.7 * height, width, 0.3 * height), QColor(60, 140, 40, alpha));
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(250, 200, 30, alpha));
  painter.drawEllipse(QPointF(0.2 * width, 0.3 * height), 0.15 * height, 0.15 * height);
  painter.end();
  ASSERT_TRUE(picture.save(file));
}

TEST_F(PreviewTest, OfPictureFilesLookAsTheGoldenOnes) {
  // Rows of files in three sizes, on a light and on a dark ground.
  writeScene(folder.filePath(QStringLiteral("wide.png")), {40, 20}, 255);
  writeScene(folder.filePath(QStringLiteral("half.png")), {80, 80}, 128);
  writeScene(folder.filePath(QStringLiteral("photo.png")), {1200, 900}, 255);
  makePicture(QStringLiteral("one.png"), 1, qRgb(200, 60, 20));
  QStringList files;
  for (const char* const own : {"wide.png", "half.png", "photo.png", "one.png"})
    files << stored(QLatin1String(own));
  for (const char* const given : {"grey16.png", "cmyk.jpg", "turned.jpg", "animated.gif"})
    files << odpath::fromPlatform(QStringLiteral(TEST_DATA_DIR "/pictures/") +
                                  QLatin1String(given));
  constexpr int kGap = 4, kHeight = 64 + kGap, kHalf = 16 + 32 + 64 + 4 * kGap;
  QImage sheet(2 * kHalf, static_cast<int>(files.size()) * kHeight, QImage::Format_RGB32);
  QPainter painter(&sheet);
  painter.fillRect(0, 0, kHalf, sheet.height(), Qt::white);
  painter.fillRect(kHalf, 0, kHalf, sheet.height(), qRgb(30, 30, 30));
  for (int row = 0; row < files.size(); ++row) {
    const QImage picture = loadReducedPicture(files[row]);
    ASSERT_FALSE(picture.isNull()) << files[row].toStdString();
    int x = kGap;
    for (const int kind : {1, 3, 4}) {
      const auto image = newImage(kind);
      ASSERT_TRUE(image->setSrcFromPicture(picture, files[row]));
      for (const int left : {0, kHalf})
        painter.drawImage(left + x, row * kHeight + kGap / 2, image->getBitmap());
      x += pixelsOfKind(kind) + kGap;
    }
  }
  painter.end();
  EXPECT_TRUE(render_test::looksLike(sheet, "preview_rasters"));
}

TEST_F(PreviewTest, OfALinearGradientGoesFromTheFirstColourToTheSecond) {
  const QImage picture = gradientPicture(text(u"LINEAR"), OdCmColor::fromRgb(255, 0, 0),
                                         OdCmColor::fromRgb(0, 0, 255), 64);
  EXPECT_GT(at(picture, 0, 0.5).red(), 240);
  EXPECT_GT(at(picture, 0.99, 0.5).blue(), 240);
  const QImage ball = gradientPicture(text(u"INVSPHERICAL"), OdCmColor::fromRgb(255, 0, 0),
                                      OdCmColor::fromRgb(0, 0, 255), 64);
  EXPECT_GT(at(ball, 0.5, 0.5).red(), 240);
  EXPECT_GT(at(ball, 0, 0).blue(), 240);
}

} // namespace
