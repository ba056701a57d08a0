// Sheets and their views: LAYOUT, MVIEW, VPLAYER, PAGESETUP.
#include "drawing/entities/viewport.h"
#include "drawing/objects/layout.h"
#include "engine/blocks/block_fixture.h"

namespace {

class LayoutTest : public BlockFixture {
 protected:
  QStringList names() {
    QStringList all;
    for (const OdDbLayoutPtr& one : oddb::layouts(database())) all << one->getLayoutName();
    return all;
  }
  QString current() {
    const OdDbLayoutPtr active = oddb::activeLayout(database()).openObject();
    return active->getLayoutName();
  }
};

TEST_F(LayoutTest, IsMadeChosenRenamedCopiedAndDeleted) {
  const qsizetype before = names().size();
  words("LAYOUT|n|Sheet");
  EXPECT_TRUE(names().contains(QStringLiteral("Sheet")));
  words("LAYOUT|s|Sheet");
  EXPECT_EQ(current(), QStringLiteral("Sheet"));
  words("LINE|0,0|5,5||LAYOUT|c|Sheet|Second");
  words("LAYOUT|s|Second");
  EXPECT_EQ(all<OdDbLine>().size(), 1u) << "what stands on a sheet is copied with it";
  words("LAYOUT|r|Second|Third|LAYOUT|d|Third");
  EXPECT_EQ(names().size(), before + 1);
  words("MODEL");
  EXPECT_EQ(current(), QStringLiteral("Model"));
  EXPECT_TRUE(all<OdDbLine>().empty());
}

TEST_F(LayoutTest, RefusesTakenNamesAndTheModel) {
  words("LAYOUT|n|Sheet|LAYOUT|n|sheet");
  EXPECT_TRUE(isBusy());
  EXPECT_TRUE(console().shows(QStringLiteral("There is a layout \"sheet\" already.")));
  type(QStringLiteral("^C"));
  words("LAYOUT|d|Model");
  EXPECT_TRUE(console().shows(QStringLiteral("The model cannot be deleted.")));
}

TEST_F(LayoutTest, ViewShowsAllOfTheModel) {
  words("LINE|0,0|100,50||LAYOUT|n|Sheet|LAYOUT|s|Sheet|MVIEW|10,10|210,110");
  std::vector<OdDbViewportPtr> views;
  for (const OdDbViewportPtr& view : all<OdDbViewport>())
    if (!view->isOverall()) views.push_back(view);
  ASSERT_EQ(views.size(), 1u) << output().toStdString();
  EXPECT_EQ(views[0]->centerPoint(), (OdGePoint3d{110, 60, 0}));
  const OdGeMatrix3d toPaper = views[0]->modelToPaper();
  const OdGePoint3d corner = toPaper * OdGePoint3d{100, 50, 0};
  EXPECT_LT(corner.x, 210);
  EXPECT_LT(corner.y, 110);
  EXPECT_GT(corner.x, 180);
}

TEST_F(LayoutTest, ViewTakesAScale) {
  words("LINE|0,0|100,50||LAYOUT|n|Sheet|LAYOUT|s|Sheet|MVIEW|10,10|210,110");
  words("MVIEW|s|l||0.5");
  for (const OdDbViewportPtr& view : all<OdDbViewport>())
    if (!view->isOverall()) {
      EXPECT_NEAR(view->customScale(), 0.5, 1e-12);
    }
  words("MODEL|MVIEW");
  EXPECT_TRUE(console().shows(QStringLiteral("Views of the model stand on layouts.")));
}

TEST_F(LayoutTest, ViewShowsThePartOfTheModelThatIsWanted) {
  words("LINE|0,0|1000,500||LAYOUT|n|Sheet|LAYOUT|s|Sheet|MVIEW|10,10|210,110");
  words("MVIEW|w|l||100,100|140,120");
  std::vector<OdDbViewportPtr> views = all<OdDbViewport>();
  const OdGeMatrix3d toPaper = views.back()->modelToPaper();
  EXPECT_LT((toPaper * OdGePoint3d{100, 100, 0}).distanceTo({10, 10, 0}), 1e-9);
  EXPECT_LT((toPaper * OdGePoint3d{140, 120, 0}).distanceTo({210, 110, 0}), 1e-9);
  words("MVIEW|w|l||5,5|5,9");
  EXPECT_TRUE(isBusy()) << "a part without a width";
  type(QStringLiteral("^C"));
}

TEST_F(LayoutTest, FreezesLayersInOneView) {
  words("LAYER|n|DIM50,DIM100||LAYOUT|n|Sheet|LAYOUT|s|Sheet|MVIEW|10,10|210,110");
  words("VPLAYER|f|DIM*|l|||");
  const OdDbViewportPtr view = all<OdDbViewport>().back();
  const auto layers = database().getLayerTableId().openAs<OdDbLayerTable>();
  const OdDbObjectId of50 = layers->getAt(QStringLiteral("DIM50"));
  const OdDbObjectId of100 = layers->getAt(QStringLiteral("DIM100"));
  EXPECT_TRUE(view->isLayerFrozen(of50));
  EXPECT_TRUE(view->isLayerFrozen(of100));
  words("VPLAYER|t|DIM50|l||?|l|||");
  EXPECT_FALSE(view->isLayerFrozen(of50));
  EXPECT_TRUE(view->isLayerFrozen(of100));
  EXPECT_TRUE(console().shows(QStringLiteral("Layers frozen in view 2: DIM100")));
  EXPECT_FALSE(layers->getAt(QStringLiteral("DIM100")).openAs<OdDbLayerTableRecord>()->isFrozen());
  words("MODEL|VPLAYER");
  EXPECT_TRUE(console().shows(QStringLiteral("Views of the model stand on layouts.")));
}

TEST_F(LayoutTest, SheetGetsItsPaperAndMargins) {
  words("LAYOUT|n|Sheet|LAYOUT|s|Sheet|PAGESETUP|p|a1|l|m|20|10|10|10|s|1|2|t|mono.ctb|");
  EXPECT_FALSE(isBusy()) << output().toStdString();
  const OdDbLayoutPtr sheet = oddb::activeLayout(database()).openObject();
  EXPECT_EQ(sheet->getPlotPaperSize(), (OdGePoint2d{841, 594}));
  EXPECT_EQ(sheet->getCanonicalMediaName(), QStringLiteral("ISO_A1_(841.00_x_594.00_MM)"));
  EXPECT_EQ(sheet->getCurrentStyleSheet(), QStringLiteral("mono.ctb"));
  EXPECT_DOUBLE_EQ(sheet->plotScale(), 0.5);
  double left = 0, bottom = 0, right = 0, top = 0;
  sheet->getPlotPaperMargins(left, bottom, right, top);
  EXPECT_EQ((std::vector{left, bottom, right, top}), (std::vector<double>{20, 10, 10, 10}));
  const OdDbViewportPtr overall = all<OdDbViewport>().front();
  EXPECT_EQ(overall->width(), 841);
  EXPECT_EQ(overall->centerPoint(), (OdGePoint3d{400.5, 287, 0}));
  words("PAGESETUP|p|500x300|");
  EXPECT_EQ(sheet->getPlotPaperSize(), (OdGePoint2d{500, 300}));
}

TEST_F(LayoutTest, WhatIsPlottedAndAtWhichScaleIsSet) {
  words("LAYOUT|s|Layout1|PAGESETUP|a|e|s|f|");
  EXPECT_FALSE(isBusy()) << output().toStdString();
  const OdDbLayoutPtr sheet = oddb::activeLayout(database()).openObject();
  EXPECT_EQ(sheet->plotType(), OdDbPlotSettings::kExtents);
  EXPECT_TRUE(sheet->useStandardScale());
  EXPECT_EQ(sheet->stdScaleType(), OdDbPlotSettings::kScaleToFit);
  words("PAGESETUP|a|w|30,5|30,9|10,20|");
  EXPECT_TRUE(console().shows(QStringLiteral("The corners must differ.")))
      << "no height, no window";
  EXPECT_EQ(sheet->plotType(), OdDbPlotSettings::kWindow);
  OdGePoint2d low, high;
  sheet->getPlotWindowArea(low, high);
  EXPECT_EQ(low, (OdGePoint2d{10, 5}));
  EXPECT_EQ(high, (OdGePoint2d{30, 20}));
  words("PAGESETUP|a|l|p|letter|l|");
  EXPECT_EQ(sheet->plotType(), OdDbPlotSettings::kLayout);
  EXPECT_EQ(sheet->getPlotPaperSize(), (OdGePoint2d{279.4, 215.9}));
  EXPECT_EQ(sheet->getCanonicalMediaName(), QStringLiteral("ANSI_Letter_(279.40_x_215.90_MM)"));
}

TEST_F(LayoutTest, SheetRefusesPaperThatIsNone) {
  words("LAYOUT|n|Sheet|LAYOUT|s|Sheet|PAGESETUP|p|A9");
  EXPECT_TRUE(console().shows(QStringLiteral("There is no paper size \"A9\".")));
  for (const char* size : {"0x5", "5x-1", "1e9x5", "5x5x5", "x"}) {
    words(QLatin1String(size));
    EXPECT_TRUE(
        console().shows(QStringLiteral("There is no paper size \"%1\".").arg(QLatin1String(size))));
  }
  words("297x210|m|150|0|147|0");
  EXPECT_TRUE(console().shows(QStringLiteral("The margins leave nothing of the sheet.")));
  const OdDbLayoutPtr sheet = oddb::activeLayout(database()).openObject();
  EXPECT_EQ(sheet->getPlotPaperSize(), (OdGePoint2d{420, 297})) << "all of it is taken back";
}

} // namespace
