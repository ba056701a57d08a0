#include "drafton/render/picture_file.h"

#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/objects/layout.h"
#include "frame/error.h"
#include "render/picture_fixture.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <QTemporaryDir>

#include <array>

namespace render_test {
namespace {

class PictureFiles : public PictureTest {
 protected:
  PictureFiles() {
    add(odrxMake<OdDbCircle>(OdGePoint3d{50, 50, 0}, OdGeVector3d::zAxis(), 40));
    add(odrxMake<OdDbLine>(OdGePoint3d{0, 0, 0}, OdGePoint3d{100, 100, 0}));
    addText(QStringLiteral("Text"), 20, 80, 12);
  }
  PictureRequest request(const char* name) const {
    PictureRequest made;
    made.file = m_folder.filePath(QLatin1String(name));
    return made;
  }
  static QByteArray bytesOf(const OdString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  /// The page's corners in points; all -1 if the file tells none.
  static std::array<double, 4> mediaBox(const QByteArray& bytes) {
    std::array<double, 4> box{-1, -1, -1, -1};
    const qsizetype at = bytes.indexOf("/MediaBox [");
    if (at < 0) return box;
    const QByteArray inside = bytes.mid(at + 11, bytes.indexOf(']', at) - at - 11).simplified();
    const QList<QByteArray> numbers = inside.split(' ');
    for (qsizetype i = 0; i < 4 && i < numbers.size(); ++i)
      box[static_cast<std::size_t>(i)] = numbers[i].toDouble();
    return box;
  }

  QTemporaryDir m_folder;
};

TEST_F(PictureFiles, PngHasTheSizeAndTheBackground) {
  PictureRequest wanted = request("a.png");
  wanted.size = {200, 150};
  wanted.background = QColor(Qt::darkBlue);
  writePicture(database(), wanted);
  const QImage image(wanted.file);
  EXPECT_EQ(image.size(), QSize(200, 150));
  EXPECT_EQ(image.pixelColor(2, 75), QColor(Qt::darkBlue));
  EXPECT_TRUE(looksLike(image, "file"));
}

TEST_F(PictureFiles, PngCanBeTransparent) {
  PictureRequest wanted = request("a.PNG");
  wanted.size = {200, 150};
  wanted.background = QColor(Qt::transparent);
  writePicture(database(), wanted);
  const QImage image(wanted.file);
  EXPECT_EQ(qAlpha(image.pixel(2, 75)), 0);
}

TEST_F(PictureFiles, AWindowShowsItsPart) {
  PictureRequest wanted = request("a.png");
  wanted.size = {100, 100};
  wanted.window = QRectF(45, 45, 10, 10);
  writePicture(database(), wanted);
  const QImage image(wanted.file);
  // Only the slanted line runs through here.
  EXPECT_LT(qGray(image.pixel(50, 49)), 200);
  EXPECT_LT(qGray(image.pixel(10, 89)), 200);
  EXPECT_EQ(image.pixel(10, 10), qRgb(255, 255, 255));
}

TEST_F(PictureFiles, SvgShowsTheSame) {
  PictureRequest wanted = request("a.svg");
  wanted.size = {200, 150};
  writePicture(database(), wanted);
  QSvgRenderer renderer(wanted.file);
  ASSERT_TRUE(renderer.isValid());
  EXPECT_EQ(renderer.viewBox(), QRect(0, 0, 200, 150));
  QImage image(200, 150, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  renderer.render(&painter);
  painter.end();
  EXPECT_TRUE(looksLike(image, "svg"));
}

TEST_F(PictureFiles, SvgHasEachThinCurveAsOnePath) {
  PictureRequest wanted = request("a.svg");
  wanted.size = {800, 800};
  writePicture(database(), wanted);
  const QByteArray bytes = bytesOf(wanted.file);
  // The circle, the line and the letters.
  const auto elements = bytes.count("<path") + bytes.count("<polyline") + bytes.count("<polygon");
  EXPECT_GE(elements, 3);
  EXPECT_LT(elements, 12);
}

TEST_F(PictureFiles, PdfHasOnePageOfTheSize) {
  PictureRequest wanted = request("a.pdf");
  wanted.size = {960, 480};
  writePicture(database(), wanted);
  const QByteArray bytes = bytesOf(wanted.file);
  EXPECT_TRUE(bytes.startsWith("%PDF-"));
  // 96 pixels make an inch of 72 points.
  EXPECT_EQ(mediaBox(bytes), (std::array{0.0, 0.0, 720.0, 360.0}));
  EXPECT_TRUE(bytes.contains("/Count 1"));
}

TEST_F(PictureFiles, PdfHasLettersAndNotTheirOutlines) {
  PictureRequest wanted = request("a.pdf");
  writePicture(database(), wanted);
  const QByteArray bytes = bytesOf(wanted.file);
  EXPECT_TRUE(bytes.contains("/Type /Font\n") || bytes.contains("/Type /Font "));
  EXPECT_TRUE(bytes.contains("/ToUnicode"));
}

TEST_F(PictureFiles, LayoutsShowTheirSheet) {
  const OdDbObjectId id = oddb::createLayout(database(), QStringLiteral("A4 across"));
  id.openAs<OdDbLayout>(OdDb::kForWrite)->setPlotPaperSize(297, 210);
  PictureRequest wanted = request("a.pdf");
  wanted.layout = QStringLiteral("a4 ACROSS");
  writePicture(database(), wanted);
  const auto box = mediaBox(bytesOf(wanted.file));
  EXPECT_NEAR(box[2], 297 / 25.4 * 72, 1);
  EXPECT_NEAR(box[3], 210 / 25.4 * 72, 1);
}

TEST_F(PictureFiles, LayoutsAreDrawnAtTheirPlotScaleAndCutByTheirWindow) {
  const OdDbObjectId id = oddb::createLayout(database(), QStringLiteral("Half"));
  {
    auto layout = id.openAs<OdDbLayout>(OdDb::kForWrite);
    layout->setPlotPaperSize(200, 100);
    layout->setPlotPaperMargins(0, 0, 0, 0);
    layout->setUseStandardScale(false);
    layout->setCustomPrintScale(1, 2);
    const OdDbHatchPtr hatch = hatchOf(0, 0, 300, 100);
    hatch->setColor(OdCmColor::fromColorIndex(1));
    addTo(layout->getBlockTableRecordId(), hatch);
  }
  PictureRequest wanted = request("a.png");
  wanted.layout = QStringLiteral("Half");
  wanted.size = {400, 200};
  writePicture(database(), wanted);
  const QRgb red = qRgb(255, 0, 0), white = qRgb(255, 255, 255);
  const QImage half(wanted.file);
  EXPECT_EQ(half.pixel(295, 195), red);
  EXPECT_EQ(half.pixel(305, 195), white);
  EXPECT_EQ(half.pixel(295, 95), white);
  {
    auto layout = id.openAs<OdDbLayout>(OdDb::kForWrite);
    layout->setPlotType(OdDbPlotSettings::kWindow);
    layout->setPlotWindowArea({100, 0}, {200, 50});
  }
  writePicture(database(), wanted);
  const QImage cut(wanted.file);
  EXPECT_EQ(cut.pixel(5, 195), red);
  EXPECT_EQ(cut.pixel(95, 155), red);
  EXPECT_EQ(cut.pixel(105, 195), white);
  EXPECT_EQ(cut.pixel(95, 145), white);
}

TEST_F(PictureFiles, AnUnknownLayoutIsNamedWithThoseThatAreThere) {
  PictureRequest wanted = request("a.png");
  wanted.layout = QStringLiteral("Nowhere");
  try {
    writePicture(database(), wanted);
    FAIL() << "no error";
  } catch (const OdError& error) {
    EXPECT_TRUE(error.description().contains(QStringLiteral("Nowhere")));
    EXPECT_TRUE(error.description().contains(QStringLiteral("Model")));
  }
  EXPECT_FALSE(QFile::exists(wanted.file));
}

TEST_F(PictureFiles, AFolderThatIsNotThereIsAnError) {
  PictureRequest wanted = request("a.png");
  wanted.file = m_folder.filePath(QStringLiteral("none/a.png"));
  EXPECT_THROW(writePicture(database(), wanted), OdFileError);
}

TEST_F(PictureFiles, AnEmptyDrawingGivesAnEmptyPicture) {
  const OdDbDatabasePtr empty = OdDbDatabase::createDatabase();
  PictureRequest wanted = request("a.png");
  wanted.size = {20, 10};
  writePicture(*empty, wanted);
  EXPECT_EQ(QImage(wanted.file).pixel(10, 5), qRgb(255, 255, 255));
}

} // namespace
} // namespace render_test
