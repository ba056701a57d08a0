#include "drawing/entities/attribute_definition.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"
#include "render/picture_fixture.h"

#include <array>

namespace render_test {
namespace {

class BlockPictures : public PictureTest {
 protected:
  OdDbPolylinePtr frame(double x0, double y0, double x1, double y1) {
    auto made = odrxMake<OdDbPolyline>();
    made->addVertexAt(0, {x0, y0});
    made->addVertexAt(1, {x1, y0});
    made->addVertexAt(2, {x1, y1});
    made->addVertexAt(3, {x0, y1});
    made->setClosed(true);
    return made;
  }
  OdDbBlockReferencePtr insert(OdDbObjectId block, double x, double y) {
    auto made = odrxMake<OdDbBlockReference>(block, OdGePoint3d{x, y, 0});
    add(made);
    return made;
  }
  /// A flag on a pole: unlike its mirror image, and unlike itself upside down.
  OdDbObjectId flag() {
    const OdDbObjectId block = addBlock(u"Flag");
    addTo(block, odrxMake<OdDbLine>(OdGePoint3d{0, 0, 0}, OdGePoint3d{0, 20, 0}));
    auto cloth = odrxMake<OdDbPolyline>();
    cloth->addVertexAt(0, {0, 20});
    cloth->addVertexAt(1, {12, 16});
    cloth->addVertexAt(2, {0, 12});
    cloth->setColor(OdCmColor::fromColorIndex(1));
    addTo(block, cloth);
    return block;
  }
};

TEST_F(BlockPictures, InsertsScaledMirroredTurnedAndInRows) {
  const OdDbObjectId block = flag();
  insert(block, -100, 40);
  insert(block, -60, 40)->setScaleFactors({-1, 1, 1});
  insert(block, -40, 60)->setScaleFactors({1, -1, 1});
  insert(block, 0, 40)->setScaleFactors({2, 0.7, 1});
  insert(block, 60, 40)->setRotation(-kOdaPi / 3);
  const OdDbBlockReferencePtr rows = insert(block, -100, -70);
  rows->setArray(5, 3, 18, 30);
  const OdDbBlockReferencePtr turned = insert(block, 40, -70);
  turned->setArray(3, 2, 20, 30);
  turned->setRotation(0.4);
  EXPECT_TRUE(looksLike(picture(-110, -80, 110, 80), "insert"));
}

TEST_F(BlockPictures, RowsAndColumnsAreOnePieceHoweverMany) {
  const OdDbObjectId dot = addBlock(u"Dot");
  addTo(dot, odrxMake<OdDbCircle>(OdGePoint3d{}, OdGeVector3d::zAxis(), 0.3));
  insert(dot, 0, 0)->setArray(3000, 3000, 1, 1);
  const BlockShapes* const shapes = scene().shapes(database().getModelSpaceId(), 1);
  ASSERT_NE(shapes, nullptr);
  EXPECT_EQ(shapes->list().blocks.size(), 1u);
  // Far away all of it is there, and nearby each of them.
  const QImage all = picture(0, 0, 2999, 2999, {200, 200});
  for (const QPoint p : {QPoint(5, 5), QPoint(195, 5), QPoint(5, 195), QPoint(195, 195)})
    EXPECT_LT(qGray(all.pixel(p)), 255) << p.x() << ' ' << p.y();
  int inked = 0;
  for (int y = 10; y < 190; ++y)
    for (int x = 10; x < 190; ++x) inked += qGray(all.pixel(x, y)) < 255;
  EXPECT_EQ(inked, 180 * 180);
  const QImage corner = picture(2990.5, 2990.5, 3000.5, 3000.5, {200, 200});
  // The last one stands at 2999, and nothing behind it.
  const auto inkAround = [&](double x, double y) {
    int ink = 0;
    const int cx = static_cast<int>((x - 2990.5) * 20), cy = static_cast<int>((3000.5 - y) * 20);
    for (int j = -8; j <= 8; ++j)
      for (int i = -8; i <= 8; ++i) ink += qGray(corner.pixel(cx + i, cy + j)) < 200;
    return ink;
  };
  EXPECT_GT(inkAround(2999, 2999), 10);
  EXPECT_GT(inkAround(2991, 2995), 10);
  EXPECT_EQ(inkAround(3000, 2999), 0);
}

TEST(BlockArray, CellsOfAPartAreFoundAndThinnedOut) {
  const ArrayPiece array{1000, 500, OdGeVector3d{2, 0, 0}, OdGeVector3d{0, 3, 0}};
  const QRectF cell(0, -1, 1, 1);
  const QPointF right(2, 0), up(0, -3);
  const CellRange some = cellsWithin(QRectF(100, -100, 10, 10), cell, array, right, up);
  EXPECT_LE(some.firstColumn, 50);
  EXPECT_GE(some.lastColumn, 55);
  EXPECT_LE(some.count(), 60u);
  EXPECT_TRUE(cellsWithin(QRectF(-500, -100, 10, 10), cell, array, right, up).isEmpty());
  EXPECT_EQ(cellsWithin(QRectF(0, 0, 1, 1), cell, array, {}, {}).count(), 500'000u)
      << "all on one place";
  CellRange all = cellsWithin(QRectF(-1e6, -1e6, 2e6, 2e6), cell, array, right, up);
  EXPECT_EQ(all.count(), 500'000u);
  thinOut(all, right, up, 1, 1'000'000);
  EXPECT_EQ(all.count(), 500'000u);
  thinOut(all, right, up, 6, 1'000'000);
  EXPECT_EQ(all.columnStep, 3);
  EXPECT_EQ(all.rowStep, 2);
  thinOut(all, right, up, 0, 1000);
  EXPECT_LE(all.count(), 1000u);
  EXPECT_GT(all.count(), 100u);
  thinOut(all, {}, {}, 1, 1000);
  EXPECT_EQ(all.count(), 1u);
}

TEST_F(BlockPictures, LayerZeroAndByBlockComeFromTheOutermostInsertThatSaysThem) {
  const OdDbObjectId green = addLayer(u"Green", 3), blue = addLayer(u"Blue", 5);
  const OdDbObjectId inner = addBlock(u"Inner");
  addTo(inner, frame(0, 0, 10, 10));
  auto byBlock = frame(12, 0, 22, 10);
  byBlock->setColor(OdCmColor(OdCmColor::kByBlock));
  addTo(inner, byBlock);
  auto own = frame(24, 0, 34, 10);
  own->setLayer(blue);
  own->setColor(OdCmColor());
  addTo(inner, own);

  const OdDbObjectId outer = addBlock(u"Outer");
  auto nested = odrxMake<OdDbBlockReference>(inner, OdGePoint3d{0, 0, 0});
  nested->setColor(OdCmColor(OdCmColor::kByBlock));
  addTo(outer, nested);

  auto placed = odrxMake<OdDbBlockReference>(outer, OdGePoint3d{0, 0, 0});
  placed->setLayer(green);
  placed->setColor(OdCmColor::fromColorIndex(1));
  add(placed);
  const QImage image = picture(-2, -2, 36, 12, {380, 140});
  // Lines between two pixels share their ink: the colour that is missing tells.
  const auto lacks = [&](int x) {
    const QColor seen = image.pixelColor(x, 120);
    return std::array{seen.red() < 200, seen.green() < 200, seen.blue() < 200};
  };
  // Layer 0 takes the layer of the insert, by block its colour, a layer of its own stays.
  EXPECT_EQ(lacks(70), (std::array{true, false, true}));
  EXPECT_EQ(lacks(190), (std::array{false, true, true}));
  EXPECT_EQ(lacks(310), (std::array{true, true, false}));
}

TEST_F(BlockPictures, AttributesTakeThePlaceOfTheirDefinitions) {
  const OdDbObjectId block = addBlock(u"Tag");
  addTo(block, frame(0, 0, 60, 20));
  auto definition = odrxMake<OdDbAttributeDefinition>();
  definition->setDatabaseDefaults(database());
  definition->setTag(QStringLiteral("NUMBER"));
  definition->setTextString(QStringLiteral("000"));
  definition->setPosition({5, 5, 0});
  definition->setHeight(10);
  addTo(block, definition);
  insert(block, 0, 0)
      ->appendAttributesFromBlock({{QStringLiteral("NUMBER"), QStringLiteral("A-17")}});
  insert(block, 0, 30)->appendAttributesFromBlock();
  EXPECT_TRUE(looksLike(picture(-5, -5, 75, 55), "attribute"));
}

TEST_F(BlockPictures, ABlockThatContainsItselfEnds) {
  const OdDbObjectId block = addBlock(u"Snake");
  addTo(block, frame(0, 0, 10, 10));
  addTo(block, odrxMake<OdDbBlockReference>(block, OdGePoint3d{20, 0, 0}));
  insert(block, 0, 0);
  const QImage image = picture(-5, -5, 40, 15);
  EXPECT_NE(image, QImage());
  EXPECT_EQ(scene().boxOf(block, 1).maxPoint().x, 10);
}

TEST_F(BlockPictures, BlocksNestedDeeperThanAnybodyDrawsAreDrawnAsFarAsTheyGo) {
  OdDbObjectId block = addBlock(u"Deep");
  addTo(block, frame(0, 0, 10, 10));
  for (int level = 0; level < 20000; ++level) {
    const OdDbObjectId outer =
        addBlock(OdString(QStringLiteral("D%1").arg(level)).toStdU16String().c_str());
    addTo(outer, odrxMake<OdDbBlockReference>(block, OdGePoint3d{0, 0, 0}));
    block = outer;
  }
  addTo(block, frame(0, 0, 20, 20));
  const OdDbBlockReferencePtr reference = insert(block, 0, 0);
  EXPECT_NE(picture(-5, -5, 40, 40), QImage());
  EXPECT_EQ(scene().boxOf(block, 1).maxPoint().x, 20);
  OdGeExtents3d box;
  ASSERT_TRUE(reference->getGeomExtents(box));
  EXPECT_EQ(box.maxPoint().x, 20);
}

TEST_F(BlockPictures, BlocksThatFanOutWithoutEndAreDrawnWithinTheirBounds) {
  OdDbObjectId block = addBlock(u"Fan0");
  addTo(block, frame(0, 0, 10, 10));
  const std::u16string base = u"Fan";
  for (char16_t level = u'A'; level < u'A' + 24; ++level) {
    const OdDbObjectId outer = addBlock((base + level).c_str());
    for (const double at : {0.0, 1.0, 2.0, 3.0})
      addTo(outer, odrxMake<OdDbBlockReference>(block, OdGePoint3d{at, at, 0}));
    block = outer;
  }
  insert(block, 0, 0);
  add(frame(-30, -30, -20, -20));
  RenderOptions options;
  options.mostNestedBlocks = 1000;
  const QImage image = picture(-40, -40, 100, 100, {280, 280}, options);
  const auto inkIn = [&](QRect part) {
    for (int y = part.top(); y <= part.bottom(); ++y)
      for (int x = part.left(); x <= part.right(); ++x)
        if (image.pixel(x, y) != qRgb(255, 255, 255)) return true;
    return false;
  };
  EXPECT_TRUE(inkIn({75, 150, 40, 50}));
  // What comes after the block is drawn whole.
  EXPECT_TRUE(inkIn({15, 235, 30, 30}));
}

TEST_F(BlockPictures, LayersThatAreOffFrozenOrNotPlotted) {
  const OdDbObjectId layer = addLayer(u"L", 1);
  auto line = odrxMake<OdDbLine>(OdGePoint3d{0, 0, 0}, OdGePoint3d{100, 0, 0});
  line->setLayer(layer);
  add(line);
  const auto isSeen = [&](RenderOptions options = {}) {
    const QImage image = picture(0, -10, 100, 10, {100, 20}, options);
    for (int y = 0; y < 20; ++y)
      if (image.pixel(50, y) != qRgb(255, 255, 255)) return true;
    return false;
  };
  const auto record = [&] { return layer.openAs<OdDbLayerTableRecord>(OdDb::kForWrite); };
  EXPECT_TRUE(isSeen());
  record()->setIsOff(true);
  EXPECT_FALSE(isSeen());
  record()->setIsOff(false);
  record()->setIsFrozen(true);
  EXPECT_FALSE(isSeen());
  record()->setIsFrozen(false);
  record()->setIsPlottable(false);
  EXPECT_TRUE(isSeen());
  RenderOptions plot;
  plot.isPlotting = true;
  EXPECT_FALSE(isSeen(plot));
}

TEST_F(BlockPictures, AnInsertOnALayerThatIsOffShowsWhatHasLayersOfItsOwn) {
  const OdDbObjectId off = addLayer(u"Off", 1), other = addLayer(u"Other", 5);
  const OdDbObjectId block = addBlock(u"Two");
  addTo(block, odrxMake<OdDbLine>(OdGePoint3d{0, 2, 0}, OdGePoint3d{10, 2, 0}));
  auto own = odrxMake<OdDbLine>(OdGePoint3d{0, 8, 0}, OdGePoint3d{10, 8, 0});
  own->setLayer(other);
  addTo(block, own);
  auto placed = odrxMake<OdDbBlockReference>(block, OdGePoint3d{0, 0, 0});
  placed->setLayer(off);
  add(placed);
  const auto seenAt = [&](double height) {
    const QImage image = picture(0, 0, 10, 10, {100, 100});
    const int y = static_cast<int>(100 - height * 10);
    return image.pixel(50, y) != qRgb(255, 255, 255) ||
           image.pixel(50, y - 1) != qRgb(255, 255, 255);
  };
  off.openAs<OdDbLayerTableRecord>(OdDb::kForWrite)->setIsOff(true);
  EXPECT_FALSE(seenAt(2));
  EXPECT_TRUE(seenAt(8));
  off.openAs<OdDbLayerTableRecord>(OdDb::kForWrite)->setIsFrozen(true);
  EXPECT_FALSE(seenAt(8));
}

TEST_F(BlockPictures, TheForegroundColourFollowsTheGround) {
  add(odrxMake<OdDbLine>(OdGePoint3d{0, 0.05, 0}, OdGePoint3d{10, 0.05, 0}));
  const auto darkest = [&](QRgb ground) {
    RenderOptions options;
    options.ground = Ground(ground);
    const QImage image = picture(0, -1, 10, 1, {100, 20}, options);
    int low = 255, high = 0;
    for (int y = 0; y < 20; ++y) {
      low = std::min(low, qGray(image.pixel(50, y)));
      high = std::max(high, qGray(image.pixel(50, y)));
    }
    return std::pair(low, high);
  };
  EXPECT_LT(darkest(qRgb(255, 255, 255)).first, 100);
  EXPECT_GT(darkest(qRgb(30, 30, 30)).second, 150);
}

TEST_F(BlockPictures, TransparencyWeightsAndOrder) {
  int color = 1;
  double x = -90;
  for (const int percent : {0, 30, 60, 90}) {
    auto hatch = hatchOf(x, -60, x + 60, 0);
    hatch->setColor(OdCmColor::fromColorIndex(color++));
    hatch->setTransparency(OdCmTransparency::fromPercent(percent));
    add(hatch);
    x += 40;
  }
  double y = 10;
  for (const int weight : {0, 25, 50, 100, 211}) {
    auto line = odrxMake<OdDbPolyline>();
    line->addVertexAt(0, {-90, y});
    line->addVertexAt(1, {0, y + 4});
    line->addVertexAt(2, {90, y});
    line->setLineWeight(static_cast<OdDb::LineWeight>(weight));
    add(line);
    y += 13;
  }
  EXPECT_TRUE(looksLike(picture(-110, -80, 110, 80), "transparency_weight"));
}

TEST_F(BlockPictures, EntitiesAreDrawnInTheOrderThatTheirTableTells) {
  auto red = hatchOf(0, 0, 10, 10), blue = hatchOf(0, 0, 10, 10);
  red->setColor(OdCmColor::fromColorIndex(1));
  blue->setColor(OdCmColor::fromColorIndex(5));
  const OdDbObjectId redId = add(red), blueId = add(blue);
  EXPECT_EQ(picture(0, 0, 10, 10, {20, 20}).pixel(10, 10), qRgb(0, 0, 255));

  // The table as files have it: beside the block, with each entity and the handle that counts.
  const auto handle = [](OdDbObjectId id) { return id.getHandle().ascii().toLatin1(); };
  const QByteArray space = handle(database().getModelSpaceId());
  QByteArray file = database().writeDxf();
  const QByteArray dictionary = "F001", table = "F002";
  const QByteArray head = "BLOCK_RECORD\r\n  5\r\n" + space + "\r\n";
  const bool hasReturns = file.contains("\r\n");
  const auto lines = [&](QByteArray text) {
    return hasReturns ? text : text.replace("\r\n", "\n");
  };
  ASSERT_TRUE(file.contains(lines(head)));
  file.replace(lines(head), lines(head + "102\r\n{ACAD_XDICTIONARY\r\n360\r\n" + dictionary +
                                  "\r\n102\r\n}\r\n"));
  const QByteArray objects = lines("OBJECTS\r\n");
  const qsizetype end = file.indexOf(lines("  0\r\nENDSEC\r\n"), file.indexOf(objects));
  ASSERT_GT(end, 0);
  file.insert(end, lines("  0\r\nDICTIONARY\r\n  5\r\n" + dictionary + "\r\n330\r\n" + space +
                         "\r\n100\r\nAcDbDictionary\r\n280\r\n1\r\n281\r\n1\r\n  3\r\n"
                         "ACAD_SORTENTS\r\n360\r\n" +
                         table + "\r\n  0\r\nSORTENTSTABLE\r\n  5\r\n" + table + "\r\n330\r\n" +
                         dictionary + "\r\n100\r\nAcDbSortentsTable\r\n330\r\n" + space +
                         "\r\n331\r\n" + handle(redId) + "\r\n  5\r\n" + handle(blueId) +
                         "\r\n331\r\n" + handle(blueId) + "\r\n  5\r\n" + handle(redId) + "\r\n"));
  const OdDbDatabasePtr sorted = OdDbDatabase::readDxf(file, QStringLiteral("sorted.dxf"));
  Scene other(*sorted);
  QImage image(20, 20, QImage::Format_RGB32);
  image.fill(Qt::white);
  View view;
  view.size = image.size();
  render(image, other, sorted->getModelSpaceId(), view.fitted(sorted->extents()), {});
  EXPECT_EQ(image.pixel(10, 10), qRgb(255, 0, 0));
}

TEST_F(BlockPictures, HighlightedHiddenAndTransientEntities) {
  const OdDbObjectId circle =
      add(odrxMake<OdDbCircle>(OdGePoint3d{-50, 0, 0}, OdGeVector3d::zAxis(), 30));
  const OdDbObjectId gone =
      add(odrxMake<OdDbCircle>(OdGePoint3d{0, 0, 0}, OdGeVector3d::zAxis(), 30));
  const std::unordered_set<OdDbObjectId> highlighted{circle}, hidden{gone};
  RenderOptions options;
  options.highlighted = &highlighted;
  options.hidden = &hidden;
  auto dragged = odrxMake<OdDbCircle>(OdGePoint3d{50, 0, 0}, OdGeVector3d::zAxis(), 20);
  dragged->setColor(OdCmColor::fromColorIndex(1));
  const OdDbEntityPtr transient[] = {OdDbEntityPtr(dragged)};
  QImage image(320, 240, QImage::Format_RGB32);
  image.fill(Qt::white);
  OdGeExtents3d box;
  box.addPoint({-110, -80, 0});
  box.addPoint({110, 80, 0});
  View view;
  view.size = image.size();
  render(image, scene(), database().getModelSpaceId(), view.fitted(box), options, transient);
  EXPECT_TRUE(looksLike(image, "highlight"));
}

} // namespace
} // namespace render_test
