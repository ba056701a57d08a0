#include "drafton/previews/preview_service.h"

#include "drawing/database.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/hatch.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/text.h"
#include "drawing/patterns/pattern_file.h"
#include "frame/file_path.h"
#include "render/golden_picture.h"

#include <QBuffer>
#include <QPainter>
#include <QTemporaryDir>

#include <cmath>

namespace {

using namespace drafton;
using render_test::looksLike;

constexpr int kSizes[] = {16, 32, 64};
constexpr QRgb kLight = qRgb(255, 255, 255), kDark = qRgb(30, 30, 30);

OdString text(const char16_t* s) { return OdString::fromUtf16(s); }

const OdHatchPatternFile& patterns() {
  static const OdHatchPatternFile file = OdHatchPatternFile::read(
      odpath::fromPlatform(QStringLiteral(SOURCE_DIR "/drafton/engine/data/draftoniso.pat")));
  return file;
}

/// Rows of pictures, each in all sizes, on a light and on a dark ground.
class ContactSheet {
 public:
  void add(const std::function<QImage(int pixels)>& make) {
    std::vector<QImage> row;
    for (const int pixels : kSizes) row.push_back(make(pixels));
    m_rows.push_back(std::move(row));
  }
  QImage image() const {
    constexpr int kGap = 4, kHeight = 64 + kGap, kHalf = 16 + 32 + 64 + 4 * kGap;
    QImage sheet(2 * kHalf, static_cast<int>(m_rows.size()) * kHeight, QImage::Format_RGB32);
    QPainter painter(&sheet);
    painter.fillRect(0, 0, kHalf, sheet.height(), QColor::fromRgb(kLight));
    painter.fillRect(kHalf, 0, kHalf, sheet.height(), QColor::fromRgb(kDark));
    for (std::size_t i = 0; i < m_rows.size(); ++i)
      for (const int left : {0, kHalf}) {
        int x = left + kGap;
        for (const QImage& picture : m_rows[i]) {
          painter.drawImage(x, static_cast<int>(i) * kHeight + kGap / 2, picture);
          x += picture.width() + kGap;
        }
      }
    return sheet;
  }

 private:
  std::vector<std::vector<QImage>> m_rows;
};

class Previews : public testing::Test {
 protected:
  OdDbBlockTableRecordPtr newBlock(const OdString& name) {
    auto block = odrxMake<OdDbBlockTableRecord>();
    block->setName(name);
    drawing->getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite)->add(block);
    return block;
  }
  static OdDbPolylinePtr polyline(std::initializer_list<OdGePoint2d> corners, bool closed = true) {
    auto line = odrxMake<OdDbPolyline>();
    for (const OdGePoint2d& corner : corners) line->addVertexAt(line->numVerts(), corner, 0);
    line->setClosed(closed);
    return line;
  }
  static OdDbHatchPtr filled(double x0, double y0, double x1, double y1, int color) {
    auto hatch = odrxMake<OdDbHatch>();
    OdDbHatchLoop loop;
    loop.flags = OdDbHatchLoop::kExternal | OdDbHatchLoop::kPolyline;
    loop.vertices = {{{x0, y0}, 0}, {{x1, y0}, 0}, {{x1, y1}, 0}, {{x0, y1}, 0}};
    hatch->appendLoop(loop);
    hatch->setColor(OdCmColor::fromColorIndex(color));
    return hatch;
  }
  template <class T>
  static OdSmartPtr<T> colored(OdSmartPtr<T> entity, int color) {
    entity->setColor(OdCmColor::fromColorIndex(color));
    return entity;
  }

  /// A leaf, its swing and its frame.
  OdDbObjectId door() {
    const auto block = newBlock(text(u"Door"));
    block->appendOdDbEntity(polyline({{0, 0}, {40, 0}, {40, 885}, {0, 885}}));
    block->appendOdDbEntity(colored(
        odrxMake<OdDbArc>(OdGePoint3d{0, 0, 0}, OdGeVector3d::zAxis(), 885.0, 0.0, kOdaPi / 2), 8));
    block->appendOdDbEntity(polyline({{-60, -120}, {0, -120}, {0, 0}, {-60, 0}}));
    block->appendOdDbEntity(polyline({{885, -120}, {945, -120}, {945, 0}, {885, 0}}));
    return block->objectId();
  }
  /// A crown with branches.
  OdDbObjectId tree() {
    const auto block = newBlock(text(u"Tree"));
    block->appendOdDbEntity(
        colored(odrxMake<OdDbCircle>(OdGePoint3d{0, 0, 0}, OdGeVector3d::zAxis(), 2500.0), 3));
    for (int i = 0; i < 12; ++i) {
      const double angle = i * kOdaPi / 6;
      block->appendOdDbEntity(
          colored(odrxMake<OdDbLine>(OdGePoint3d{0, 0, 0}, OdGePoint3d{2200 * std::cos(angle),
                                                                       2200 * std::sin(angle), 0}),
                  i % 2 ? 3 : 2));
    }
    return block->objectId();
  }
  /// Areas in all colours that are hard to see somewhere.
  OdDbObjectId colors() {
    const auto block = newBlock(text(u"Colors"));
    const int shown[] = {7, 2, 5, 250, 255, 1};
    for (int i = 0; i < 6; ++i)
      block->appendOdDbEntity(
          filled(i % 3 * 10, i / 3 * 10, i % 3 * 10 + 9, i / 3 * 10 + 9, shown[i]));
    return block->objectId();
  }
  /// A frame with heavy and light lines, and a word.
  OdDbObjectId title() {
    const auto block = newBlock(text(u"Title"));
    const auto frame = polyline({{0, 0}, {180, 0}, {180, 60}, {0, 60}});
    frame->setLineWeight(OdDb::LineWeight(70));
    block->appendOdDbEntity(frame);
    block->appendOdDbEntity(odrxMake<OdDbLine>(OdGePoint3d{0, 20, 0}, OdGePoint3d{180, 20, 0}));
    block->appendOdDbEntity(odrxMake<OdDbLine>(OdGePoint3d{90, 0, 0}, OdGePoint3d{90, 60, 0}));
    auto words = odrxMake<OdDbText>();
    words->setDatabaseDefaults(*drawing);
    words->setTextString(text(u"A-101"));
    words->setPosition({100, 32, 0});
    words->setHeight(16);
    block->appendOdDbEntity(words);
    return block->objectId();
  }
  QImage show(OdDbObjectId id, int pixels) {
    const OdDbObjectPtr object = id.openObject();
    OdGeExtents3d box;
    if (const auto* block = odrxCast<OdDbBlockTableRecord>(object.get()))
      box = block->extents();
    else
      odrxCast<OdDbEntity>(object.get())->getGeomExtents(box);
    const OdGeVector3d margin = (box.maxPoint() - box.minPoint()) * 0.05;
    OdGeExtents3d view;
    view.addPoint(box.minPoint() + -margin);
    view.addPoint(box.maxPoint() + margin);
    const OdDbObjectId objects[] = {id};
    return service->renderObjects(objects, view, pixels);
  }

  OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  KVPtr<PreviewService> service = kvMake<PreviewService>(
      [](const OdString& name, const OdString&) -> std::optional<OdHatchPattern> {
        const OdHatchPattern* const found = patterns().find(name);
        return found ? std::optional(*found) : std::nullopt;
      });
};

double luminance(QRgb pixel) {
  const auto linear = [](int part) {
    const double value = part / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(pixel)) + 0.7152 * linear(qGreen(pixel)) +
         0.0722 * linear(qBlue(pixel));
}

TEST_F(Previews, OfBlocksAreLegibleInEverySizeOnLightAndDark) {
  ContactSheet sheet;
  for (const OdDbObjectId block : {door(), tree(), colors(), title()})
    sheet.add([&](int pixels) { return show(block, pixels); });
  EXPECT_TRUE(looksLike(sheet.image(), "preview_blocks"));
}

TEST_F(Previews, OfPatternsRepeatAFewTimes) {
  ContactSheet sheet;
  for (const char16_t* const name :
       {u"ANSI31", u"ANSI37", u"BRICK", u"GRAVEL", u"EARTH", u"DOTS", u"SOLID"})
    sheet.add([&](int pixels) { return service->renderPattern(text(name), {}, pixels); });
  EXPECT_TRUE(looksLike(sheet.image(), "preview_patterns"));
}

TEST_F(Previews, OfLinesOfTheUsersOwnShowTheirAngleAndWhatCrossesThem) {
  ContactSheet sheet;
  for (const double angle : {0.0, kOdaPi / 4, 1.2})
    for (const bool isCrosswise : {false, true})
      sheet.add([&](int pixels) { return service->renderUserPattern(angle, isCrosswise, pixels); });
  EXPECT_TRUE(looksLike(sheet.image(), "preview_user_patterns"));
  // An angle that is no number, or so large that nothing of it is left, is some angle all the same.
  for (const double angle : {std::nan(""), HUGE_VAL, 1e300})
    EXPECT_FALSE(service->renderUserPattern(angle, true, 32).isNull());
}

TEST_F(Previews, OfDrawingsAndLayoutsShowWhatIsInThem) {
  // A house of blocks in the model, its sheet, and the picture that the drawing's file keeps.
  const auto model = drawing->getModelSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  const OdDbObjectId leaf = door(), crown = tree();
  model->appendOdDbEntity(polyline({{0, 0}, {9000, 0}, {9000, 6000}, {0, 6000}}));
  model->appendOdDbEntity(odrxMake<OdDbBlockReference>(leaf, OdGePoint3d{2000, 0, 0}));
  model->appendOdDbEntity(odrxMake<OdDbBlockReference>(crown, OdGePoint3d{12000, 3000, 0}));
  const auto layouts = drawing->getBlockTableId().openAs<OdDbBlockTable>();
  const auto paper =
      layouts->getAt(text(u"*Paper_Space")).openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  paper->appendOdDbEntity(polyline({{0, 0}, {297, 0}, {297, 210}, {0, 210}}));
  paper->appendOdDbEntity(polyline({{180, 10}, {287, 10}, {287, 50}, {180, 50}}));
  paper->appendOdDbEntity(filled(20, 70, 160, 190, 5));
  QImage stored = show(model->objectId(), 128);
  QImage sheetOfPaper(stored.size(), QImage::Format_RGB32);
  sheetOfPaper.fill(Qt::white);
  QPainter(&sheetOfPaper).drawImage(0, 0, stored);
  QByteArray bitmap;
  QBuffer buffer(&bitmap);
  ASSERT_TRUE(buffer.open(QIODevice::WriteOnly));
  sheetOfPaper.save(&buffer, "BMP");
  drawing->setThumbnail(bitmap.mid(14));
  const QTemporaryDir folder;
  const OdString file = odpath::fromPlatform(folder.filePath(QStringLiteral("house.dxf")));
  drawing->writeFile(file);

  ContactSheet sheet;
  sheet.add([&](int pixels) { return show(model->objectId(), pixels); });
  sheet.add([&](int pixels) { return show(paper->objectId(), pixels); });
  sheet.add([&](int pixels) { return service->storedPreview(file, pixels); });
  EXPECT_TRUE(looksLike(sheet.image(), "preview_drawings"));
}

TEST_F(Previews, OfFilesWithoutAPictureAreSheetsWithTheirKind) {
  ContactSheet sheet;
  for (const char16_t* const file : {u"C:\\plans\\house.dxf", u"site.DWG", u"photo.jpeg", u"notes"})
    sheet.add([&](int pixels) { return service->fileIcon(text(file), pixels); });
  EXPECT_TRUE(looksLike(sheet.image(), "preview_files"));
}

TEST_F(Previews, HaveContrastOnWhiteAndOnBlack) {
  const QImage picture = show(colors(), 64);
  int opaque = 0;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) {
      const QRgb pixel = picture.pixel(x, y);
      if (qAlpha(pixel) != 255) continue;
      ++opaque;
      ASSERT_GE(1.05 / (luminance(pixel) + 0.05), 2.9) << x << ' ' << y;
      ASSERT_GE((luminance(pixel) + 0.05) / (luminance(kDark) + 0.05), 2.9) << x << ' ' << y;
    }
  EXPECT_GT(opaque, 1000);
}

TEST_F(Previews, HaveATransparentGround) {
  const QImage picture = show(door(), 32);
  EXPECT_EQ(qAlpha(picture.pixel(31, 0)), 0);
  EXPECT_TRUE(picture.hasAlphaChannel());
}

TEST_F(Previews, ShowEdgesInOneRowOfPixels) {
  const auto block = newBlock(text(u"Box"));
  block->appendOdDbEntity(polyline({{0, 0}, {100, 0}, {100, 100}, {0, 100}}));
  const QImage picture = show(block->objectId(), 16);
  int strong = 0, faint = 0;
  for (int y = 0; y < 16; ++y) {
    const int alpha = qAlpha(picture.pixel(8, y));
    strong += alpha > 200;
    faint += alpha > 0 && alpha <= 200;
  }
  EXPECT_EQ(strong, 2);
  EXPECT_EQ(faint, 0);
}

TEST_F(Previews, OfEntitiesShowThoseAlone) {
  const OdDbObjectId block = colors();
  const auto ids = block.openAs<OdDbBlockTableRecord>()->entityIds();
  const QImage one = show(ids.front(), 32);
  ASSERT_FALSE(one.isNull());
  EXPECT_EQ(qAlpha(one.pixel(16, 16)), 255);
}

TEST_F(Previews, AreNotMadeOfNothing) {
  OdGeExtents3d view;
  view.addPoint({0, 0, 0});
  view.addPoint({1, 1, 0});
  const OdDbObjectId empty[] = {newBlock(text(u"Empty"))->objectId()};
  EXPECT_TRUE(service->renderObjects(empty, view, 32).isNull());
  EXPECT_TRUE(service->renderObjects({}, view, 32).isNull());
  const OdDbObjectId none[] = {OdDbObjectId()};
  EXPECT_TRUE(service->renderObjects(none, view, 32).isNull());
  const OdDbObjectId layer[] = {drawing->getLayerTableId()};
  EXPECT_TRUE(service->renderObjects(layer, view, 32).isNull());
  const OdDbObjectId block[] = {door()};
  EXPECT_TRUE(service->renderObjects(block, OdGeExtents3d(), 32).isNull());
  for (const int pixels : {0, -1, 1 << 20}) {
    EXPECT_TRUE(service->renderObjects(block, view, pixels).isNull());
    EXPECT_TRUE(service->renderPattern(text(u"ANSI31"), {}, pixels).isNull());
    EXPECT_TRUE(service->fileIcon(text(u"a.dxf"), pixels).isNull());
    EXPECT_TRUE(service->renderUserPattern(0, false, pixels).isNull());
  }
  EXPECT_TRUE(service->renderPattern(text(u"no such pattern"), {}, 32).isNull());
}

TEST_F(Previews, OfABlockThatContainsItselfEnd) {
  const auto block = newBlock(text(u"Loop"));
  block->appendOdDbEntity(odrxMake<OdDbLine>(OdGePoint3d{0, 0, 0}, OdGePoint3d{10, 10, 0}));
  auto insert = odrxMake<OdDbBlockReference>();
  insert->setBlockTableRecord(block->objectId());
  block->appendOdDbEntity(insert);
  OdGeExtents3d view;
  view.addPoint({-1, -1, 0});
  view.addPoint({11, 11, 0});
  const OdDbObjectId objects[] = {block->objectId()};
  EXPECT_FALSE(service->renderObjects(objects, view, 32).isNull());
}

} // namespace
