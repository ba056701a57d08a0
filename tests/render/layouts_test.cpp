#include "drafton/render/pick.h"
#include "drafton/render/sheet.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/raster_image.h"
#include "drawing/entities/viewport.h"
#include "drawing/patterns/linetype_file.h"
#include "frame/file_path.h"
#include "render/picture_fixture.h"

#include <QDir>
#include <QPainter>
#include <QTemporaryDir>

namespace render_test {
namespace {

class LayoutPictures : public PictureTest {
 protected:
  OdDbLayoutPtr sheet() {
    const OdDbObjectId id = oddb::createLayout(database(), QStringLiteral("Sheet"));
    auto layout = id.openAs<OdDbLayout>(OdDb::kForWrite);
    layout->setPlotPaperSize(297, 210);
    layout->setPlotPaperMargins(10, 10, 10, 10);
    return layout;
  }
  OdDbViewportPtr window(const OdDbLayout& layout, double x, double y, double w, double h) {
    auto made = odrxMake<OdDbViewport>();
    made->setCenterPoint({x, y, 0});
    made->setWidth(w);
    made->setHeight(h);
    made->setViewHeight(h);
    addTo(layout.getBlockTableRecordId(), made);
    return made;
  }
  std::function<OdGeExtents3d()> drawnIn(const OdDbLayout& layout) {
    return [this, block = layout.getBlockTableRecordId()] {
      scene().update();
      return scene().boxOf(block, 0.1);
    };
  }
  OdGeExtents3d paperOf(const OdDbLayout& layout) { return sheetOf(layout, drawnIn(layout)).paper; }
  QImage sheetPicture(const OdDbLayout& layout) {
    QImage image(594, 420, QImage::Format_RGB32);
    View view;
    view.size = image.size();
    view = view.fitted(paperOf(layout), 0.05);
    {
      QPainter painter(&image);
      drawSheet(painter, layout, sheetOf(layout, drawnIn(layout)), view, qRgb(128, 128, 128),
                qRgb(255, 255, 255));
    }
    render(image, scene(), layout.getBlockTableRecordId(), view, {});
    return image;
  }
  void fillModel() {
    const OdLinetypeFile file =
        OdLinetypeFile::read(QStringLiteral(SOURCE_DIR "/drafton/engine/data/draftoniso.lin"));
    auto circle = odrxMake<OdDbCircle>(OdGePoint3d{0, 0, 0}, OdGeVector3d::zAxis(), 40);
    add(circle);
    auto axis = odrxMake<OdDbLine>(OdGePoint3d{-60, 0, 0}, OdGePoint3d{60, 0, 0});
    axis->setLinetype(file.find(QStringLiteral("DASHED"))->addTo(database()));
    axis->setColor(OdCmColor::fromColorIndex(1));
    add(axis);
    auto extra = odrxMake<OdDbLine>(OdGePoint3d{0, -60, 0}, OdGePoint3d{0, 60, 0});
    m_layer = addLayer(u"Extra", 5);
    extra->setLayer(m_layer);
    add(extra);
    addText(QStringLiteral("Model"), -20, 10, 10);
  }

  OdDbObjectId m_layer;
};

TEST_F(LayoutPictures, TheModelHasAPaperOnceItsPlotWasSetUp) {
  auto line = odrxMake<OdDbLine>(OdGePoint3d{100, 100, 0}, OdGePoint3d{1100, 300, 0});
  add(line);
  const OdDbLayoutPtr model =
      oddb::findLayout(database(), QStringLiteral("Model")).safeOpenObject(OdDb::kForWrite);
  EXPECT_FALSE(hasPaper(*model));
  EXPECT_TRUE(plotOf(*model, drawnIn(*model)).paper.isEmpty());
  model->setPlotPaperSize(400, 300);
  model->setPlotPaperMargins(50, 0, 50, 0);
  model->setPlotType(OdDbPlotSettings::kExtents);
  model->setUseStandardScale(false);
  model->setCustomPrintScale(1, 4);
  EXPECT_TRUE(hasPaper(*model));
  const Sheet sheet = plotOf(*model, drawnIn(*model));
  EXPECT_EQ(sheet.paper.minPoint().x, 100 - 50 * 4);
  EXPECT_EQ(sheet.paper.maxPoint().x, 100 - 50 * 4 + 400 * 4);
  EXPECT_EQ(sheet.scale, 0.25);
  EXPECT_TRUE(sheetOf(*model, drawnIn(*model)).paper.isEmpty()) << "a canvas shows none";
  // Set up for a printer elsewhere, with whatever the screen showed there.
  model->setPlotType(OdDbPlotSettings::kDisplay);
  EXPECT_FALSE(hasPaper(*model));
  model->setPlotCfgName(QStringLiteral("Plotter in the hall"));
  const Sheet whole = plotOf(*model, drawnIn(*model));
  const double middle = (whole.paper.minPoint().x + whole.paper.maxPoint().x) / 2;
  EXPECT_NEAR(middle, 600, 1e-9) << "all of it in the middle of the paper";
}

TEST_F(LayoutPictures, PlotStylesLeaveTonesOfColors) {
  const OdDbLayoutPtr layout = sheet();
  EXPECT_EQ(tonesOf(*layout), Tones::kColors);
  layout->setCurrentStyleSheet(QStringLiteral("Monochrome.CTB"));
  EXPECT_EQ(tonesOf(*layout), Tones::kForeground);
  layout->setCurrentStyleSheet(QStringLiteral("grayscale.stb"));
  EXPECT_EQ(tonesOf(*layout), Tones::kGrays);
  layout->setPlotFlag(OdDbPlotSettings::kPlotPlotStyles, false);
  EXPECT_EQ(tonesOf(*layout), Tones::kColors) << "they are not plotted with";
  const Ground paper(qRgb(255, 255, 255)), board(qRgb(0, 0, 0));
  const std::uint32_t red = OdCmColor::fromColorIndex(1).color();
  EXPECT_EQ(paper.withTones(Tones::kForeground).paint(red), qRgb(0, 0, 0));
  EXPECT_EQ(board.withTones(Tones::kForeground).paint(red), qRgb(255, 255, 255));
  const QRgb gray = paper.withTones(Tones::kGrays).paint(red);
  EXPECT_EQ(gray, qRgb(qGray(qRgb(255, 0, 0)), qGray(qRgb(255, 0, 0)), qGray(qRgb(255, 0, 0))));
  EXPECT_EQ(paper.withTones(Tones::kForeground).shade(red), gray) << "what is graded is still seen";
}

TEST_F(LayoutPictures, WindowsWithScalesTwistFrozenLayersAndOtherShapes) {
  fillModel();
  const OdDbLayoutPtr layout = sheet();
  window(*layout, 65, 140, 110, 90);
  const OdDbViewportPtr half = window(*layout, 180, 140, 100, 90);
  half->setCustomScale(0.5);
  half->setFrozenLayers({m_layer});
  const OdDbViewportPtr twisted = window(*layout, 65, 45, 110, 80);
  twisted->setTwistAngle(kOdaPi / 6);
  auto edge = odrxMake<OdDbCircle>(OdGePoint3d{180, 45, 0}, OdGeVector3d::zAxis(), 38);
  const OdDbObjectId edgeId = addTo(layout->getBlockTableRecordId(), edge);
  const OdDbViewportPtr round = window(*layout, 180, 45, 76, 76);
  round->setNonRectClipEntityId(edgeId);
  const OdDbViewportPtr off = window(*layout, 255, 140, 40, 90);
  off->setOn(false);
  const OdDbViewportPtr askew = window(*layout, 250, 45, 50, 76);
  askew->setViewDirection({1, -1, 1});
  EXPECT_TRUE(looksLike(sheetPicture(*layout), "layout"));
}

TEST_F(LayoutPictures, WindowOnALayerThatIsNotPlottedShowsTheModelWithoutItsEdge) {
  add(odrxMake<OdDbCircle>(OdGePoint3d{0, 0, 0}, OdGeVector3d::zAxis(), 30));
  const OdDbLayoutPtr layout = sheet();
  const OdDbObjectId edges = addLayer(u"Edges", 1);
  edges.openAs<OdDbLayerTableRecord>(OdDb::kForWrite)->setIsPlottable(false);
  window(*layout, 100, 100, 100, 100)->setLayer(edges);
  const auto hasEdge = [&](bool isPlotting) {
    QImage image(594, 420, QImage::Format_RGB32);
    image.fill(Qt::white);
    View view;
    view.size = image.size();
    view = view.fitted(paperOf(*layout), 0);
    RenderOptions options;
    options.isPlotting = isPlotting;
    render(image, scene(), layout->getBlockTableRecordId(), view, options);
    const QPointF circle = view.projection()(OdGePoint3d{130, 100, 0});
    EXPECT_LT(qGray(image.pixel(circle.toPoint())), 200) << "the model";
    const QPointF edge = view.projection()(OdGePoint3d{150, 100, 0});
    return qGray(image.pixel(edge.toPoint())) < 200;
  };
  EXPECT_TRUE(hasEdge(false));
  EXPECT_FALSE(hasEdge(true));
}

TEST_F(LayoutPictures, SheetsTurnWithTheirMargins) {
  const OdDbLayoutPtr layout = sheet();
  layout->setPlotPaperMargins(10, 20, 30, 40);
  EXPECT_EQ(paperOf(*layout).minPoint(), (OdGePoint3d{-10, -20, 0}));
  EXPECT_EQ(paperOf(*layout).maxPoint(), (OdGePoint3d{287, 190, 0}));
  layout->setPlotRotation(OdDbPlotSettings::k90degrees);
  EXPECT_EQ(paperOf(*layout).minPoint(), (OdGePoint3d{-20, -30, 0}));
  EXPECT_EQ(paperOf(*layout).maxPoint(), (OdGePoint3d{190, 267, 0}));
  layout->setPlotRotation(OdDbPlotSettings::k0degrees);
  layout->setPlotPaperUnits(OdDbPlotSettings::kInches);
  EXPECT_NEAR(paperOf(*layout).maxPoint().x, 287 / 25.4, 1e-9);
}

TEST_F(LayoutPictures, WindowsArePickedByTheirEdges) {
  const OdDbLayoutPtr layout = sheet();
  const OdDbObjectId frame = window(*layout, 100, 100, 60, 40)->objectId();
  View view;
  view.size = {400, 400};
  view.center = {100, 100};
  Picker picker(scene(), layout->getBlockTableRecordId(), view);
  EXPECT_EQ(picker.at(view.projection()(OdGePoint3d{130, 100, 0}), 2), std::vector{frame});
  EXPECT_TRUE(picker.at(view.projection()(OdGePoint3d{110, 95, 0}), 2).empty());
}

TEST_F(LayoutPictures, HiddenFramesOfWindowsDoNotHideTheModel) {
  fillModel();
  const OdDbLayoutPtr layout = sheet();
  const OdDbViewportPtr shown = window(*layout, 100, 100, 120, 120);
  const auto picture = [&] {
    QImage image(200, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    OdGeExtents3d box;
    box.addPoint({39, 39, 0});
    box.addPoint({161, 161, 0});
    View view;
    view.size = image.size();
    RenderOptions options;
    options.isPlotting = true;
    render(image, scene(), layout->getBlockTableRecordId(), view.fitted(box), options);
    return image;
  };
  constexpr QRgb kGreen = qRgb(0, 255, 0), kBlue = qRgb(0, 0, 255);
  const auto count = [](const QImage& image, QRgb color) {
    int found = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) {
        const QRgb at = image.pixel(x, y);
        found += qRed(at) < 200 &&
                 (color == kGreen ? qGreen(at) > qBlue(at) + 50 : qBlue(at) > qGreen(at) + 50);
      }
    return found;
  };
  const OdDbObjectId hidden = addLayer(u"Frames", 3);
  shown->setLayer(hidden);
  const QImage framed = picture();
  const int green = count(framed, kGreen);
  EXPECT_GT(green, 300);
  const int blue = count(framed, kBlue);
  EXPECT_GT(blue, 20);
  for (const bool off : {true, false}) {
    auto layer = hidden.openAs<OdDbLayerTableRecord>(OdDb::kForWrite);
    layer->setIsOff(off);
    layer->setIsPlottable(off);
    const QImage bare = picture();
    EXPECT_EQ(count(bare, kGreen), 0);
    EXPECT_EQ(count(bare, kBlue), blue);
  }
}

TEST_F(LayoutPictures, SheetsFollowTheirPlotScaleAndWhatIsPlotted) {
  const OdDbLayoutPtr layout = sheet();
  addTo(layout->getBlockTableRecordId(),
        odrxMake<OdDbLine>(OdGePoint3d{50, 20, 0}, OdGePoint3d{150, 60, 0}));
  layout->setPlotOrigin({5, 7});
  layout->setUseStandardScale(false);
  layout->setCustomPrintScale(1, 2);
  EXPECT_EQ(paperOf(*layout).minPoint(), (OdGePoint3d{-30, -34, 0}));
  EXPECT_EQ(paperOf(*layout).maxPoint(), (OdGePoint3d{564, 386, 0}));
  EXPECT_EQ(sheetOf(*layout, drawnIn(*layout)).scale, 0.5);

  // From the corner of the extents, also beside a window that stands for the sheet.
  const OdDbViewportPtr whole = window(*layout, 0, 0, 1000, 1000);
  whole->setNumber(1);
  layout->setPlotType(OdDbPlotSettings::kExtents);
  EXPECT_EQ(paperOf(*layout).minPoint(), (OdGePoint3d{50 - 30, 20 - 34, 0}));
  layout->setPlotFlag(OdDbPlotSettings::kPlotCentered, true);
  EXPECT_EQ(paperOf(*layout).minPoint(), (OdGePoint3d{100 - 297, 40 - 210, 0}));
  EXPECT_EQ(paperOf(*layout).maxPoint(), (OdGePoint3d{100 + 297, 40 + 210, 0}));
  EXPECT_TRUE(sheetOf(*layout, drawnIn(*layout)).shown.isEmpty());

  // As large as the paper allows: 277 x 190 millimetres can be printed on.
  layout->setUseStandardScale(true);
  layout->setStdScaleType(0);
  layout->setPlotType(OdDbPlotSettings::kWindow);
  layout->setPlotWindowArea({0, 0}, {554, 200});
  const Sheet fitted = sheetOf(*layout, drawnIn(*layout));
  EXPECT_NEAR(fitted.scale, 0.5, 1e-12);
  EXPECT_NEAR(fitted.paper.minPoint().x, -20, 1e-9);
  EXPECT_NEAR(fitted.paper.minPoint().y, 100 - 210, 1e-9);
  EXPECT_EQ(fitted.shown.maxPoint(), (OdGePoint3d{554, 200, 0}));
  layout->setPlotType(OdDbPlotSettings::kLimits);
  layout->setLimits({0, 0}, {100, 190});
  EXPECT_NEAR(sheetOf(*layout, drawnIn(*layout)).scale, 1, 1e-12);
  layout->setPlotType(OdDbPlotSettings::kDisplay);
  EXPECT_EQ(sheetOf(*layout, drawnIn(*layout)).shown.maxPoint().y, 297);
}

class ImagePictures : public PictureTest {
 protected:
  /// A picture file of four colours with an edge.
  OdString file() {
    QImage image(64, 48, QImage::Format_RGB32);
    for (int y = 0; y < 48; ++y)
      for (int x = 0; x < 64; ++x)
        image.setPixel(x, y,
                       x < 32 ? (y < 24 ? qRgb(220, 60, 40) : qRgb(240, 220, 80))
                              : (y < 24 ? qRgb(60, 120, 220) : qRgb(60, 170, 90)));
    const QString path = m_folder.filePath(QStringLiteral("four.png"));
    image.save(path);
    return odpath::fromPlatform(path);
  }
  OdDbRasterImagePtr place(const OdString& path, double x, double y) {
    auto definition = odrxMake<OdDbRasterImageDef>();
    definition->setSourceFileName(path);
    definition->setSize({64, 48});
    const OdDbObjectId dictionary = OdDbRasterImageDef::createImageDictionary(database());
    const OdDbObjectId id = dictionary.openAs<OdDbDictionary>(OdDb::kForWrite)
                                ->setAt(OdString::number(m_count++), definition);
    auto image = odrxMake<OdDbRasterImage>();
    image->setImageDefId(id);
    image->setImageSize({64, 48});
    image->setOrientation({x, y, 0}, {64, 0, 0}, {0, 48, 0});
    add(image);
    return image;
  }

  QTemporaryDir m_folder;
  int m_count = 0;
};

TEST_F(ImagePictures, WholeTurnedClippedTonedAndMissing) {
  const OdString path = file();
  place(path, -105, 20);
  const OdDbRasterImagePtr turned = place(path, 0, 0);
  turned->setOrientation({0, 10, 0}, {50, 30, 0}, {-20, 34, 0});
  place(path, -105, -70)->setClipBoundary({{8, 8}, {40, 40}});
  const OdDbRasterImagePtr polygon = place(path, -35, -70);
  polygon->setClipBoundary({{0, 0}, {64, 0}, {32, 48}});
  const OdDbRasterImagePtr pale = place(path, 40, 20);
  pale->setOrientation({62, 20, 0}, {44, 0, 0}, {0, 33, 0});
  pale->setFade(70);
  place(odpath::fromPlatform(m_folder.filePath(QStringLiteral("lost.png"))), 40, -70);
  EXPECT_TRUE(looksLike(picture(-110, -80, 110, 80, {440, 320}), "image"));
}

TEST_F(ImagePictures, AFolderOrADamagedFileIsMissing) {
  QFile damaged(m_folder.filePath(QStringLiteral("damaged.png")));
  ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
  damaged.write("\x89PNG\r\n\x1a\n and nothing that belongs to it");
  damaged.close();
  place(odpath::fromPlatform(damaged.fileName()), 0, 0);
  place(odpath::fromPlatform(m_folder.path()), 80, 0);
  const QImage image = picture(-5, -5, 150, 55);
  EXPECT_FALSE(image.isNull());
}

} // namespace
} // namespace render_test
