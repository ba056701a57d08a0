// Saved views, the user's coordinate systems and the parts of the model tab's window.
#include "drawing/database.h"
#include "drawing/tables/plain_tables.h"
#include "drawing/tables/viewport_table.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

const OdGeVector3d kZ = OdGeVector3d::zAxis();

template <class Table, class Record>
OdSmartPtr<Record> added(OdDbObjectId tableId, const QString& name) {
  const auto record = odrxMake<Record>();
  record->setName(name);
  tableId.openAs<Table>(OdDb::kForWrite)->add(record);
  return record;
}

void setAll(OdDbAbstractViewTableRecord& view) {
  view.setCenterPoint({4, 5});
  view.setHeight(33);
  view.setWidth(44);
  view.setTarget({1, 2, 3});
  view.setViewDirection({0, -3, 4});
  view.setViewTwist(kOdaPi / 6);
  view.setLensLength(35);
}

void expectAll(const OdDbAbstractViewTableRecord& view) {
  EXPECT_EQ(view.centerPoint(), OdGePoint2d(4, 5));
  EXPECT_EQ(view.height(), 33);
  EXPECT_NEAR(view.width(), 44, 1e-12);
  EXPECT_EQ(view.target(), OdGePoint3d(1, 2, 3));
  EXPECT_EQ(view.viewDirection(), OdGeVector3d(0, -3, 4));
  EXPECT_NEAR(view.viewTwist(), kOdaPi / 6, 1e-12);
  EXPECT_EQ(view.lensLength(), 35);
}

} // namespace

TEST(Views, AreSavedWithAllTheirValues) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const auto view =
      added<OdDbViewTable, OdDbViewTableRecord>(db->getViewTableId(), QStringLiteral("Front"));
  setAll(*view);
  view->setIsPaperspaceView(true);
  const OdDbDatabasePtr back = OdDbDatabase::readDxf(db->writeDxf(), QString());
  const auto table = back->getViewTableId().openAs<OdDbViewTable>();
  const auto read = table->getAt(QStringLiteral("FRONT")).openAs<OdDbViewTableRecord>();
  expectAll(*read);
  EXPECT_TRUE(read->isPaperspaceView());
}

TEST(Views, BeginByLookingFromAbove) {
  const auto view = odrxMake<OdDbViewTableRecord>();
  EXPECT_EQ(view->viewDirection(), kZ);
  EXPECT_EQ(view->height(), 1);
  EXPECT_EQ(view->width(), 1);
  EXPECT_EQ(view->lensLength(), 50);
  EXPECT_EQ(view->viewTwist(), 0);
  EXPECT_FALSE(view->isPaperspaceView());
}

TEST(Views, RefuseWhatIsNoView) {
  const auto view = odrxMake<OdDbViewTableRecord>();
  const double nan = std::nan("");
  const std::function<void()> wrong[] = {
      [&] { view->setHeight(0); },
      [&] { view->setWidth(-1); },
      [&] {
        view->setCenterPoint({nan, 0});
      },
      [&] {
        view->setTarget({0, nan, 0});
      },
      [&] { view->setViewDirection({}); },
      [&] { view->setLensLength(0); },
      [&] { view->setViewTwist(nan); },
  };
  for (const auto& each : wrong) EXPECT_THROW(each(), OdError);
  EXPECT_EQ(view->residue(), nullptr);
}

TEST(Views, AreChangedBackByUndo) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const OdDbObjectId id =
      added<OdDbViewTable, OdDbViewTableRecord>(db->getViewTableId(), QStringLiteral("A"))
          ->objectId();
  const QByteArray before = db->writeDxf();
  db->startUndoRecord(QStringLiteral("VIEW"));
  setAll(*id.openAs<OdDbViewTableRecord>(OdDb::kForWrite));
  db->startUndoRecord(QStringLiteral("NEXT"));
  expectAll(*id.openAs<OdDbViewTableRecord>());
  db->undo();
  EXPECT_EQ(db->writeDxf(), before);
  db->redo();
  expectAll(*id.openAs<OdDbViewTableRecord>());
}

TEST(ViewportRecords, AreSavedWithAllTheirValues) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const auto port = added<OdDbViewportTable, OdDbViewportTableRecord>(db->getViewportTableId(),
                                                                      QStringLiteral("Left"));
  setAll(*port);
  port->setCorners({0.25, 0.5}, {0.75, 1});
  const OdDbDatabasePtr back = OdDbDatabase::readDxf(db->writeDxf(), QString());
  const auto read = back->getViewportTableId()
                        .openAs<OdDbViewportTable>()
                        ->getAt(QStringLiteral("Left"))
                        .openAs<OdDbViewportTableRecord>();
  expectAll(*read);
  EXPECT_EQ(read->lowerLeftCorner(), OdGePoint2d(0.25, 0.5));
  EXPECT_EQ(read->upperRightCorner(), OdGePoint2d(0.75, 1));
  EXPECT_NEAR(read->aspect(), 44.0 / 33, 1e-12);
}

TEST(ViewportRecords, FillTheWindowAtFirst) {
  const auto port = odrxMake<OdDbViewportTableRecord>();
  EXPECT_EQ(port->lowerLeftCorner(), OdGePoint2d(0, 0));
  EXPECT_EQ(port->upperRightCorner(), OdGePoint2d(1, 1));
  EXPECT_THROW(port->setAspect(0), OdError);
}

TEST(CoordinateSystems, AreSavedAndLeadToTheWorld) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const auto ucs =
      added<OdDbUCSTable, OdDbUCSTableRecord>(db->getUCSTableId(), QStringLiteral("Turned"));
  EXPECT_EQ(ucs->xAxis(), OdGeVector3d::xAxis());
  EXPECT_EQ(ucs->yAxis(), OdGeVector3d::yAxis());
  ucs->setOrigin({1, 2, 3});
  ucs->setAxes({0, 2, 0}, {0, 0, 5});
  const OdDbDatabasePtr back = OdDbDatabase::readDxf(db->writeDxf(), QString());
  const auto read = back->getUCSTableId()
                        .openAs<OdDbUCSTable>()
                        ->getAt(QStringLiteral("Turned"))
                        .openAs<OdDbUCSTableRecord>();
  EXPECT_EQ(read->origin(), OdGePoint3d(1, 2, 3));
  EXPECT_EQ(read->xAxis(), OdGeVector3d::yAxis());
  EXPECT_EQ(read->yAxis(), kZ);
  EXPECT_EQ(read->toWorld() * OdGePoint3d(10, 20, 30), OdGePoint3d(31, 12, 23));
}

TEST(CoordinateSystems, RefuseAxesThatDoNotStandOnEachOther) {
  const auto ucs = odrxMake<OdDbUCSTableRecord>();
  EXPECT_THROW(ucs->setAxes({1, 0, 0}, {1, 1, 0}), OdError);
  EXPECT_THROW(ucs->setAxes({1, 0, 0}, {}), OdError);
  EXPECT_EQ(ucs->yAxis(), OdGeVector3d::yAxis());
}
