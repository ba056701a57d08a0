// Drawings that show others.
#include "drawing/database.h"
#include "drawing/entities/block_reference.h"
#include "drawing/objects/xref_manager.h"

#include "drawing/contents/audit.h"
#include "drawing/contents/house.h"

#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

using namespace oddbtest;

namespace {

/// A folder with drawings that refer to each other.
struct XRefs : testing::Test {
  QTemporaryDir folder;

  OdString path(const char* name) const { return folder.filePath(QLatin1String(name)); }
  void save(OdDbDatabase& db, const char* name) {
    db.setFileName(path(name));
    db.writeFile(path(name));
  }
  /// A drawing that shows another one.
  OdDbDatabasePtr showing(const char* name, const char* other, bool overlay = false) {
    const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
    db->setFileName(path(name));
    const OdDbObjectId block = OdDbXRefMan::attach(*db, QLatin1String(other), OdString(), overlay);
    addTo(*db, odrxMake<OdDbBlockReference>(block, OdGePoint3d()));
    return db;
  }
};

} // namespace

TEST_F(XRefs, ShowWhatTheFileHas) {
  save(*house(), "house.dxf");
  const OdDbDatabasePtr db = showing("site.dxf", "house.dxf");
  const OdDbObjectId block = blockNamed(*db, "house");
  const auto record = block.openAs<OdDbBlockTableRecord>();
  EXPECT_TRUE(record->isFromExternalReference());
  EXPECT_FALSE(record->isFromOverlayReference());
  EXPECT_FALSE(record->isUnloaded());
  EXPECT_EQ(record->pathName(), QStringLiteral("house.dxf"));
  ASSERT_EQ(entitiesOf(block).size(), 1u);
  const OdDbObjectId layer = layerNamed(*db, "house|Wände");
  ASSERT_FALSE(layer.isNull());
  EXPECT_TRUE(layer.openAs<OdDbLayerTableRecord>()->isDependent());
  EXPECT_FALSE(blockNamed(*db, "house|DOOR").isNull());
  OdGeExtents3d box;
  EXPECT_TRUE(entitiesOf(db->getModelSpaceId())[0]->getGeomExtents(box));
}

TEST_F(XRefs, AreSavedAsNothingButAReference) {
  save(*house(), "house.dxf");
  const OdDbDatabasePtr db = showing("site.dxf", "house.dxf");
  layerNamed(*db, "house|Wände").openAs<OdDbLayerTableRecord>(OdDb::kForWrite)->setIsOff(true);
  EXPECT_EQ(auditOf(*db), "");
  const QByteArray saved = db->writeDxf();
  EXPECT_FALSE(saved.contains("house|DOOR"));
  const OdDbDatabasePtr again = OdDbDatabase::readDxf(saved, path("site.dxf"));
  again->setFileName(path("site.dxf"));
  EXPECT_TRUE(entitiesOf(blockNamed(*again, "house")).empty());
  const auto reports = OdDbXRefMan::loadAll(*again);
  ASSERT_EQ(reports.size(), 1u);
  EXPECT_EQ(reports[0].result, OdDbXRefMan::Result::kLoaded);
  EXPECT_EQ(entitiesOf(blockNamed(*again, "house")).size(), 1u);
  // What the user has made of a layer stays.
  EXPECT_TRUE(layerNamed(*again, "house|Wände").openAs<OdDbLayerTableRecord>()->isOff());
  EXPECT_EQ(again->writeDxf().size(), saved.size());
}

TEST_F(XRefs, AreLoadedAnewWithWhatTheFileHasNow) {
  const OdDbDatabasePtr other = house();
  save(*other, "house.dxf");
  const OdDbDatabasePtr db = showing("site.dxf", "house.dxf");
  addTo(*other, odrxMake<OdDbLine>(OdGePoint3d(), OdGePoint3d{1, 1, 0}));
  save(*other, "house.dxf");
  OdDbXRefMan::load(blockNamed(*db, "house"));
  EXPECT_EQ(entitiesOf(blockNamed(*db, "house")).size(), 2u);
  OdDbXRefMan::unload(blockNamed(*db, "house"));
  EXPECT_TRUE(entitiesOf(blockNamed(*db, "house")).empty());
  EXPECT_TRUE(blockNamed(*db, "house").openAs<OdDbBlockTableRecord>()->isUnloaded());
}

TEST_F(XRefs, TellOfAMissingFile) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  db->setFileName(path("site.dxf"));
  std::vector<OdDbXRefMan::Report> reports;
  const OdDbObjectId block =
      OdDbXRefMan::attach(*db, QStringLiteral("gone\\none.dxf"), OdString(), false, &reports);
  ASSERT_EQ(reports.size(), 1u);
  EXPECT_EQ(reports[0].result, OdDbXRefMan::Result::kFileMissing);
  EXPECT_TRUE(reports[0].message.contains(QLatin1String("none.dxf")));
  EXPECT_EQ(OdDbXRefMan::state(*block.openAs<OdDbBlockTableRecord>()).result,
            OdDbXRefMan::Result::kFileMissing);
  EXPECT_EQ(auditOf(*db), "");
}

TEST_F(XRefs, TellOfDevicesAndPipesAndDoNotReadThem) {
  ASSERT_EQ(mkfifo(path("pipe.dxf").toLocal8Bit().constData(), 0600), 0);
  const OdString pipe = path("pipe.dxf");
  for (const OdString& device : {QStringLiteral("/dev/zero"), QStringLiteral("/dev/tty"), pipe,
                                 QStringLiteral("pipe.dxf")}) {
    const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
    db->setFileName(path("site.dxf"));
    std::vector<OdDbXRefMan::Report> reports;
    const OdDbObjectId block =
        OdDbXRefMan::attach(*db, device, QStringLiteral("D"), false, &reports);
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].result, OdDbXRefMan::Result::kUnreadable);
    EXPECT_EQ(reports[0].message, device + QStringLiteral(": it is not a file"));
    EXPECT_TRUE(entitiesOf(block).empty());
  }
}

TEST_F(XRefs, TellOfAFileThatIsNoDrawing) {
  QFile file(path("bad.dxf"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("%PDF-1.4 nothing");
  file.close();
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  db->setFileName(path("site.dxf"));
  std::vector<OdDbXRefMan::Report> reports;
  OdDbXRefMan::attach(*db, QStringLiteral("bad.dxf"), OdString(), false, &reports);
  EXPECT_EQ(reports[0].result, OdDbXRefMan::Result::kUnreadable);
  EXPECT_TRUE(reports[0].message.contains(QLatin1String("PDF")))
      << reports[0].message.toStdString();
}

TEST_F(XRefs, ReachThroughEachOther) {
  save(*house(), "house.dxf");
  save(*showing("street.dxf", "house.dxf"), "street.dxf");
  const OdDbDatabasePtr db = showing("town.dxf", "street.dxf");
  OdGeExtents3d box;
  EXPECT_TRUE(entitiesOf(db->getModelSpaceId())[0]->getGeomExtents(box));
  EXPECT_FALSE(blockNamed(*db, "street|house").isNull());
  EXPECT_EQ(auditOf(*db), "");
}

TEST_F(XRefs, DoNotShowTheOverlaysOfOthers) {
  save(*house(), "house.dxf");
  save(*showing("street.dxf", "house.dxf", true), "street.dxf");
  const OdDbDatabasePtr db = showing("town.dxf", "street.dxf");
  EXPECT_TRUE(entitiesOf(blockNamed(*db, "street")).empty());
  EXPECT_TRUE(blockNamed(*db, "street|house").isNull());
}

TEST_F(XRefs, GoRoundInCirclesOnlyOnce) {
  save(*OdDbDatabase::createDatabase(), "a.dxf");
  save(*showing("b.dxf", "a.dxf"), "b.dxf");
  save(*showing("a.dxf", "b.dxf"), "a.dxf");
  const OdDbDatabasePtr db = OdDbDatabase::readFile(path("a.dxf"));
  db->setFileName(path("a.dxf"));
  const auto reports = OdDbXRefMan::loadAll(*db);
  ASSERT_EQ(reports.size(), 2u);
  EXPECT_EQ(reports[0].result, OdDbXRefMan::Result::kLoaded);
  EXPECT_EQ(reports[1].result, OdDbXRefMan::Result::kCircular);
  // Of itself.
  const OdDbDatabasePtr self = OdDbDatabase::createDatabase();
  self->setFileName(path("a.dxf"));
  std::vector<OdDbXRefMan::Report> told;
  OdDbXRefMan::attach(*self, QStringLiteral("a.dxf"), OdString(), false, &told);
  EXPECT_EQ(told[0].result, OdDbXRefMan::Result::kCircular);
}

TEST_F(XRefs, GoWithTheirInsertsWhenDetached) {
  save(*house(), "house.dxf");
  const OdDbDatabasePtr db = showing("site.dxf", "house.dxf");
  EXPECT_FALSE(OdDbXRefMan::detach(db->getModelSpaceId()));
  EXPECT_TRUE(OdDbXRefMan::detach(blockNamed(*db, "house")));
  EXPECT_TRUE(entitiesOf(db->getModelSpaceId()).empty());
  EXPECT_TRUE(blockNamed(*db, "house").isNull());
  EXPECT_TRUE(layerNamed(*db, "house|Wände").isNull());
  EXPECT_EQ(auditOf(*db), "");
}
