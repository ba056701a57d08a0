// Layouts, viewports, images and named objects.
#include "drawing/entities/polyline.h"
#include "drawing/entities/raster_image.h"
#include "drawing/entities/viewport.h"
#include "drawing/objects/group.h"
#include "drawing/objects/layout.h"
#include "drawing/objects/named_styles.h"

#include "drawing/contents/audit.h"
#include "drawing/contents/support.h"
#include "drawing/entities/python_script.h"

#include <QTemporaryDir>

using namespace oddbtest;

namespace {

QStringList namesOf(const OdDbDatabase& db) {
  QStringList names;
  for (const OdDbLayoutPtr& layout : oddb::layouts(db)) names << layout->getLayoutName();
  return names;
}

} // namespace

TEST(Layouts, OfANewDrawingAreTheModelAndOneSheet) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  EXPECT_EQ(namesOf(*db), QStringList({QStringLiteral("Model"), QStringLiteral("Layout1")}));
  const auto active = oddb::activeLayout(*db).openAs<OdDbLayout>();
  EXPECT_TRUE(active->isModelType());
  EXPECT_EQ(active->getStdScale(), 1);
  EXPECT_EQ(active->getBlockTableRecordId(), db->getModelSpaceId());
  EXPECT_EQ(auditOf(*db), "");
}

TEST(Layouts, AreMadeShownRenamedAndDeleted) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const OdDbObjectId second = oddb::createLayout(*db, QStringLiteral("Zweites Blatt"));
  const OdDbObjectId block = second.openAs<OdDbLayout>()->getBlockTableRecordId();
  EXPECT_THROW(oddb::createLayout(*db, QStringLiteral("zweites blatt")), OdDbError);
  EXPECT_THROW(oddb::createLayout(*db, QString()), OdDbError);
  block.openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
      ->appendOdDbEntity(odrxMake<OdDbLine>(OdGePoint3d(), OdGePoint3d{1, 1, 0}));
  EXPECT_EQ(auditOf(*db), "");

  oddb::setActiveLayout(*db, second);
  EXPECT_EQ(db->getCurrentSpaceId(), block);
  EXPECT_EQ(db->getPaperSpaceId(), block);
  EXPECT_EQ(oddb::activeLayout(*db), second);
  EXPECT_EQ(auditOf(*db), "");
  // What is shown in the file is shown again.
  const OdDbDatabasePtr again = OdDbDatabase::readDxf(db->writeDxf(), QStringLiteral("again"));
  EXPECT_EQ(oddb::activeLayout(*again).openAs<OdDbLayout>()->getLayoutName(),
            QStringLiteral("Zweites Blatt"));
  EXPECT_EQ(entitiesOf(again->getPaperSpaceId()).size(), 2u);

  second.openAs<OdDbLayout>(OdDb::kForWrite)->setLayoutName(QStringLiteral("Plan"));
  EXPECT_EQ(oddb::findLayout(*db, QStringLiteral("PLAN")), second);
  EXPECT_THROW(second.openAs<OdDbLayout>(OdDb::kForWrite)->setLayoutName(QStringLiteral("model")),
               OdDbError);
  oddb::deleteLayout(*db, second);
  EXPECT_EQ(namesOf(*db), QStringList({QStringLiteral("Model"), QStringLiteral("Layout1")}));
  const auto whyNot = [&](const char* name) {
    try {
      oddb::deleteLayout(*db, oddb::findLayout(*db, QLatin1String(name)));
    } catch (const OdError& error) {
      return error.description();
    }
    return OdString();
  };
  EXPECT_EQ(whyNot("Layout1"),
            QStringLiteral("The layout \"Layout1\" cannot be deleted: it is the last one"));
  EXPECT_EQ(whyNot("Model"),
            QStringLiteral("The layout \"Model\" cannot be deleted: it is the model"));
  EXPECT_EQ(auditOf(*db), "");
}

TEST(Layouts, AreAsTheyWereAfterUndo) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const QByteArray before = db->writeDxf();
  db->startUndoRecord(QStringLiteral("LAYOUT"));
  const OdDbObjectId second = oddb::createLayout(*db, QStringLiteral("Second"));
  oddb::setActiveLayout(*db, second);
  db->endUndoRecord();
  const QByteArray after = db->writeDxf();
  db->undo();
  EXPECT_EQ(db->writeDxf(), before);
  db->redo();
  EXPECT_EQ(db->writeDxf(), after);
}

TEST(Layouts, KnowTheStandardScales) {
  const auto plot = odrxMake<OdDbPlotSettings>();
  EXPECT_EQ(plot->getStdScale(), 1);
  const std::pair<int, double> rows[] = {{1, 1.0 / 1536}, {8, 1.0 / 48}, {12, 1.0 / 12}, {15, 1},
                                         {16, 1},         {17, 0.5},     {25, 0.02},     {26, 0.01},
                                         {27, 2},         {30, 10},      {32, 1000}};
  for (const auto& [type, scale] : rows) {
    plot->setStdScaleType(type);
    EXPECT_NEAR(plot->getStdScale(), scale, 1e-12) << type;
    double given = 0;
    plot->getStdScale(given);
    EXPECT_NEAR(given, scale, 1e-12);
  }
  EXPECT_THROW(plot->setStdScaleType(33), OdError);
  plot->setUseStandardScale(false);
  plot->setCustomPrintScale(1, 75);
  EXPECT_NEAR(plot->plotScale(), 1.0 / 75, 1e-12);
  EXPECT_THROW(plot->setPlotPaperSize(0, 10), OdError);
}

TEST(Viewports, ShowTheModelAtTheirScale) {
  const auto view = odrxMake<OdDbViewport>();
  view->setCenterPoint({100, 50, 0});
  view->setWidth(80);
  view->setHeight(40);
  view->setViewCenter({7, 8});
  view->setViewHeight(20);
  EXPECT_EQ(view->customScale(), 2);
  const OdGePoint3d p = view->modelToPaper() * OdGePoint3d{8, 10, 0};
  EXPECT_NEAR(p.x, 102, 1e-9);
  EXPECT_NEAR(p.y, 54, 1e-9);
  view->setCustomScale(0.5);
  EXPECT_EQ(view->viewHeight(), 80);
  view->setTwistAngle(kOdaPi / 2);
  const OdGePoint3d turned = view->modelToPaper() * OdGePoint3d{8, -7, 0};
  EXPECT_NEAR(turned.x, 100, 1e-9);
  EXPECT_NEAR(turned.y, 50, 1e-9);
  EXPECT_EQ(view->boundary(0.1).size(), 4u);
  view->setOn(false);
  EXPECT_FALSE(view->isOn());
  view->setOn(true);
  EXPECT_TRUE(view->isOn());
}

TEST(Viewports, MayBeCutByAnEntity) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const auto sheet = db->getPaperSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  const auto edge = odrxMake<OdDbPolyline>();
  for (const OdGePoint2d& p : {OdGePoint2d{0, 0}, {50, 0}, {25, 40}})
    edge->addVertexAt(edge->numVerts(), p);
  edge->setClosed(true);
  const OdDbObjectId edgeId = sheet->appendOdDbEntity(edge);
  const auto view = odrxMake<OdDbViewport>();
  view->setNonRectClipEntityId(edgeId);
  view->setFrozenLayers({addLayer(*db, QStringLiteral("Hidden"))});
  sheet->appendOdDbEntity(view);
  EXPECT_EQ(view->boundary(0.1).size(), 3u);
  EXPECT_TRUE(view->isLayerFrozen(view->frozenLayers()[0]));
  EXPECT_EQ(auditOf(*db), "");
}

TEST(Images, AreCutAndMoved) {
  const auto image = odrxMake<OdDbRasterImage>();
  image->setImageSize({200, 100});
  image->setOrientation({10, 20, 0}, {20, 0, 0}, {0, 10, 0});
  const auto corners = image->corners();
  EXPECT_EQ(corners[2], (OdGePoint3d{30, 30, 0}));
  // Pixels count from the upper left.
  const OdGePoint3d p = image->pixelToWorld() * OdGePoint3d{-0.5, -0.5, 0};
  EXPECT_NEAR(p.x, 10, 1e-9);
  EXPECT_NEAR(p.y, 30, 1e-9);
  image->setClipBoundary({{49.5, 24.5}, {149.5, 74.5}});
  ASSERT_EQ(image->shownBoundary().size(), 4u);
  OdGeExtents3d box;
  ASSERT_TRUE(image->getGeomExtents(box));
  EXPECT_NEAR(box.minPoint().x, 15, 1e-9);
  EXPECT_NEAR(box.maxPoint().y, 27.5, 1e-9);
  image->setClipBoundary({{0, 0}, {100, 0}, {50, 50}});
  EXPECT_EQ(image->clipBoundaryType(), OdDbRasterImage::kPoly);
  EXPECT_EQ(image->shownBoundary().size(), 3u);
  image->setClipBoundary({});
  EXPECT_FALSE(image->isClipped());
  ASSERT_TRUE(image->transformBy(OdGeMatrix3d::rotation(kOdaPi / 2, OdGeVector3d::zAxis())));
  EXPECT_NEAR(image->origin().x, -20, 1e-9);
  EXPECT_FALSE(image->transformBy(OdGeMatrix3d::scaling(0)));
  EXPECT_THROW(image->setBrightness(101), OdError);
  EXPECT_THROW(image->setClipBoundary({{0, 0}}), OdError);
}

TEST(Groups, HoldTheirEntities) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const OdDbObjectId a = addTo(*db, odrxMake<OdDbLine>(OdGePoint3d(), OdGePoint3d{1, 0, 0}));
  const OdDbObjectId b = addTo(*db, odrxMake<OdDbLine>(OdGePoint3d(), OdGePoint3d{2, 0, 0}));
  const auto group = odrxMake<OdDbGroup>();
  const OdDbDictionaryPtr groups =
      oddb::createNamedDictionary(*db, oddb::NamedKind::kGroup).safeOpenObject(OdDb::kForWrite);
  groups->setAt(QStringLiteral("PAIR"), group);
  group->append(a);
  group->append(b);
  group->append(a);
  EXPECT_EQ(group->numEntities(), 2u);
  EXPECT_EQ(group->getName(), QStringLiteral("PAIR"));
  EXPECT_EQ(auditOf(*db), "");
  a.safeOpenObject(OdDb::kForWrite)->erase();
  EXPECT_EQ(group->allEntityIds(), std::vector<OdDbObjectId>{b});
  EXPECT_EQ(auditOf(*db), "");
  group->remove(b);
  EXPECT_EQ(group->numEntities(), 0u);
}

TEST(NamedStyles, AreFoundByName) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  using oddb::NamedKind;
  EXPECT_EQ(oddb::namesOf(*db, NamedKind::kPlotStyle), QStringList{QStringLiteral("Normal")});
  EXPECT_EQ(oddb::namesOf(*db, NamedKind::kMLineStyle), QStringList{QStringLiteral("Standard")});
  EXPECT_EQ(oddb::namesOf(*db, NamedKind::kTableStyle), QStringList{QStringLiteral("Standard")});
  EXPECT_TRUE(oddb::namesOf(*db, NamedKind::kMaterial).contains(QStringLiteral("Global")));
  const OdDbObjectId style =
      oddb::findNamed(*db, NamedKind::kTableStyle, QStringLiteral("STANDARD"));
  ASSERT_TRUE(style.isValid());
  EXPECT_EQ(oddb::nameOf(style), QStringLiteral("Standard"));
  EXPECT_TRUE(oddb::findNamed(*db, NamedKind::kTableStyle, QStringLiteral("x")).isNull());
}
