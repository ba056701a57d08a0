// External references: XATTACH and XREF.
#include "drawing/objects/xref_manager.h"
#include "engine/blocks/block_fixture.h"

#include <QDir>

#include <sys/stat.h>

namespace {

class ReferenceTest : public BlockFixture {
 protected:
  /// A drawing with a line on a layer, an insert, and records of some kinds.
  void writePlan(const char* name) {
    const OdDbDatabasePtr plan = OdDbDatabase::createDatabase();
    const auto dashes = odrxMake<OdDbLinetypeTableRecord>();
    dashes->setName(QStringLiteral("Dashes"));
    plan->getLinetypeTableId().openAs<OdDbLinetypeTable>(OdDb::kForWrite)->add(dashes);
    const auto walls = odrxMake<OdDbLayerTableRecord>();
    walls->setName(QStringLiteral("Walls"));
    walls->setLinetypeObjectId(dashes->objectId());
    plan->getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite)->add(walls);
    const auto notes = odrxMake<OdDbTextStyleTableRecord>();
    notes->setName(QStringLiteral("Notes"));
    plan->getTextStyleTableId().openAs<OdDbTextStyleTable>(OdDb::kForWrite)->add(notes);
    const OdDbObjectId door = addBlock(*plan, u"Door");
    opened(door)->appendOdDbEntity(odrxMake<OdDbLine>(OdGePoint3d{}, OdGePoint3d{1, 0, 0}));
    const auto space = opened(plan->getModelSpaceId());
    const auto line = odrxMake<OdDbLine>(OdGePoint3d{}, OdGePoint3d{5, 0, 0});
    line->setLayer(walls->objectId());
    space->appendOdDbEntity(line);
    const auto text = odrxMake<OdDbText>();
    text->setTextString(QStringLiteral("plan"));
    text->setTextStyle(notes->objectId());
    space->appendOdDbEntity(text);
    space->appendOdDbEntity(odrxMake<OdDbBlockReference>(door));
    plan->writeFile(odpath::fromPlatform(path(name)));
  }
};

/// Makes a folder the working one for a while.
class WorkingFolder {
 public:
  explicit WorkingFolder(const QString& folder) { QDir::setCurrent(folder); }
  ~WorkingFolder() { QDir::setCurrent(m_former); }
  WorkingFolder(const WorkingFolder&) = delete;
  WorkingFolder& operator=(const WorkingFolder&) = delete;

 private:
  QString m_former = QDir::currentPath();
};

TEST_F(ReferenceTest, IsAttachedAndShown) {
  writeDrawing("wheel.dxf", 2);
  words("XATTACH|" + path("wheel.dxf") + "||1,1|||");
  ASSERT_EQ(inserts().size(), 1u) << output().toStdString();
  const auto block = inserts()[0]->blockTableRecord().openAs<OdDbBlockTableRecord>();
  EXPECT_TRUE(block->isFromExternalReference());
  EXPECT_FALSE(block->isFromOverlayReference());
  OdGeExtents3d box;
  ASSERT_TRUE(inserts()[0]->getGeomExtents(box));
  EXPECT_NEAR(box.maxPoint().x, 3, 1e-9);
}

TEST_F(ReferenceTest, ByAModuleIsAnOverlayIfTold) {
  writeDrawing("wheel.dxf", 2);
  EXPECT_TRUE(runWith(u"XATTACH",
                      {{u"ToolPaletteCall", odpath::fromPlatform(path("wheel.dxf"))},
                       {u"XATT_REFTYPE", std::int32_t{2}},
                       {u"XATT_SCALE", 2.0},
                       {u"XATT_ROTATION", kOdaPi},
                       {u"XATT_PROMPT_ROTATION", std::int32_t{0}},
                       {u"XATT_IS_EXPLODE", std::int32_t{0}}},
                      {"3,3"}));
  ASSERT_EQ(inserts().size(), 1u) << output().toStdString();
  EXPECT_TRUE(
      inserts()[0]->blockTableRecord().openAs<OdDbBlockTableRecord>()->isFromOverlayReference());
  EXPECT_DOUBLE_EQ(inserts()[0]->rotation(), kOdaPi);
  EXPECT_EQ(inserts()[0]->scaleFactors().sx, 2);
}

TEST_F(ReferenceTest, StandsInTheFileAsOtherProgramsHereFindIt) {
  writeDrawing("wheel.dxf", 2);
  words("XATTACH|" + path("wheel.dxf") + "||1,1|||");
  const QByteArray written = '\n' + path("wheel.dxf").toUtf8() + '\n';
  EXPECT_TRUE(database().writeDxf().contains(written)) << output().toStdString();
  // A module's path and a new one of XREF, too.
  words("XREF|D|wheel");
  EXPECT_FALSE(database().writeDxf().contains(written));
  EXPECT_TRUE(runWith(u"XATTACH", {{u"ToolPaletteCall", odpath::fromPlatform(path("wheel.dxf"))}},
                      {"3,3", "0"}));
  EXPECT_TRUE(database().writeDxf().contains(written)) << output().toStdString();
  writeDrawing("car.dxf", 2);
  words("XREF|P|wheel|" + path("car.dxf"));
  EXPECT_TRUE(database().writeDxf().contains('\n' + path("car.dxf").toUtf8() + '\n'))
      << output().toStdString();
}

TEST_F(ReferenceTest, KeepsAPathOfAFileThatIsEnteredAgain) {
  writeDrawing("wheel.dxf", 2);
  words("XATTACH|" + path("wheel.dxf") + "||1,1|||");
  QByteArray file = database().writeDxf();
  file.replace(path("wheel.dxf").toUtf8(), ".\\wheel.dxf");
  QFile host(path("host.dxf"));
  ASSERT_TRUE(host.open(QIODevice::WriteOnly));
  host.write(file);
  host.close();
  words("OpenDocument|" + path("host.dxf"));
  ASSERT_TRUE(database().writeDxf().contains("\n.\\wheel.dxf\n")) << output().toStdString();
  words("XREF|P|wheel|");
  EXPECT_TRUE(console().shows(QStringLiteral("\"wheel\" loaded: ") + path("./wheel.dxf")))
      << output().toStdString();
  EXPECT_TRUE(database().writeDxf().contains("\n.\\wheel.dxf\n"));
}

TEST_F(ReferenceTest, TheSameFileIsAttachedOnce) {
  writeDrawing("wheel.dxf", 2);
  words("XATTACH|" + path("wheel.dxf") + "||1,1|||");
  words("XATTACH|" + path("wheel.dxf") + "||5,5|||");
  ASSERT_EQ(inserts().size(), 2u);
  EXPECT_EQ(inserts()[0]->blockTableRecord(), inserts()[1]->blockTableRecord());
}

TEST_F(ReferenceTest, DevicesAndPipesAreNamedAndNotRead) {
  ASSERT_EQ(mkfifo(path("pipe.dxf").toLocal8Bit().constData(), 0600), 0);
  const QByteArray before = database().writeDxf();
  for (const QString& device :
       {QStringLiteral("/dev/zero"), QStringLiteral("/dev/tty"), path("pipe.dxf")})
    for (const char* command : {"XATTACH ", "INSERT ", "INSERT a="}) {
      console().clear();
      type(QLatin1String(command) + device + u'\n');
      // One of them has something to ask first.
      if (isBusy()) type(QStringLiteral("\n"));
      EXPECT_TRUE(console().shows(device + QStringLiteral(" is not a file.")))
          << output().toStdString();
      EXPECT_FALSE(isBusy());
    }
  EXPECT_EQ(database().writeDxf(), before);
}

TEST_F(ReferenceTest, FileThatIsMissingOrBrokenAttachesNothing) {
  const QByteArray before = database().writeDxf();
  words("XATTACH|" + path("missing.dxf") + "|");
  EXPECT_TRUE(console().shows(QStringLiteral("There is no file")));
  QFile file(path("broken.dxf"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("no drawing");
  file.close();
  words("XATTACH|" + path("broken.dxf") + "|");
  // The refusal brings its reason along.
  EXPECT_TRUE(
      console().shows(path("broken.dxf") +
                      QStringLiteral(" was not attached: The file of \"broken\" cannot be read: ")))
      << output().toStdString();
  QDir().mkpath(path("folder.dxf"));
  words("XATTACH|" + path("folder.dxf") + "|");
  EXPECT_TRUE(console().shows(path("folder.dxf") + QStringLiteral(" is not a file.")))
      << output().toStdString();
  EXPECT_EQ(database().writeDxf(), before);
}

TEST_F(ReferenceTest, IsListedReloadedUnloadedAndDetached) {
  writeDrawing("wheel.dxf", 2);
  words("XATTACH|" + path("wheel.dxf") + "||0,0||||XREF|?");
  ASSERT_EQ(inserts().size(), 1u);
  EXPECT_TRUE(console().shows(QStringLiteral("\"wheel\"  attached"))) << output().toStdString();
  writeDrawing("wheel.dxf", 5);
  words("XREF|r|wheel");
  OdGeExtents3d box;
  ASSERT_TRUE(inserts()[0]->getGeomExtents(box));
  EXPECT_NEAR(box.maxPoint().x, 5, 1e-9);
  words("XREF|u|*");
  EXPECT_FALSE(inserts()[0]->getGeomExtents(box));
  words("XREF|d|wheel");
  EXPECT_TRUE(inserts().empty());
  EXPECT_FALSE(hasBlock(u"wheel"));
  words("XREF|d|wheel");
  EXPECT_TRUE(console().shows(QStringLiteral("No external reference fits \"wheel\".")));
}

TEST_F(ReferenceTest, StaysWholeAndKeepsItsBlocks) {
  writePlan("plan.dxf");
  words("XATTACH|" + path("plan.dxf") + "||0,0||||LINE|0,0|1,1|");
  words("EXPLODE|all||");
  EXPECT_TRUE(
      console().shows(QStringLiteral("\"plan\" is an external reference and cannot be exploded.")));
  ASSERT_EQ(inserts().size(), 1u) << output().toStdString();
  EXPECT_EQ(inserts()[0]->blockName(), QStringLiteral("plan"));
  ASSERT_TRUE(hasBlock(u"plan|Door"));
  type(QStringLiteral("INSERT\nplan|Door\n"));
  EXPECT_FALSE(isBusy());
  EXPECT_TRUE(console().shows(QStringLiteral("\"plan|Door\" belongs to an external reference.")))
      << output().toStdString();
}

TEST_F(ReferenceTest, LendsItsRecordsToNobody) {
  writePlan("plan.dxf");
  words("XATTACH|" + path("plan.dxf") + "||0,0||||LINE|0,0|1,1|");
  ASSERT_TRUE(
      database().getLayerTableId().openAs<OdDbLayerTable>()->has(QStringLiteral("plan|Walls")));
  const QByteArray before = database().writeDxf();
  for (const char* const run : {
           "LAYER\ns\nplan|Walls\n",
           "CHPROP\nlast\n\nla\nplan|Walls\n",
           "CHPROP\nlast\n\nlt\nplan|Dashes\n",
           "CLAYER\nplan|Walls\n",
           "CELTYPE\nplan|Dashes\n",
           "TEXTSTYLE\nplan|Notes\n",
           "LINETYPE\ns\nplan|Dashes\n",
           "STYLE\nplan|Notes\n",
           "TEXT\ns\nplan|Notes\n",
       }) {
    type(QString::fromLatin1(run));
    EXPECT_TRUE(isBusy()) << run << output().toStdString();
    type(QStringLiteral("^C"));
    EXPECT_EQ(database().writeDxf(), before) << run;
  }
  EXPECT_FALSE(database().setSysVar(QStringLiteral("CLAYER"), QStringLiteral("plan|Walls")));
  words("XREF|d|*");
  EXPECT_FALSE(
      database().getLayerTableId().openAs<OdDbLayerTable>()->has(QStringLiteral("plan|Walls")));
}

TEST_F(ReferenceTest, NestedReferencesFollowTheOneThatHasThem) {
  writeDrawing("wheel.dxf", 2);
  const OdDbDatabasePtr car = OdDbDatabase::createDatabase();
  const OdDbObjectId wheel = OdDbXRefMan::attach(*car, odpath::fromPlatform(path("wheel.dxf")),
                                                 QStringLiteral("wheel"), false);
  opened(car->getModelSpaceId())->appendOdDbEntity(odrxMake<OdDbBlockReference>(wheel));
  car->writeFile(odpath::fromPlatform(path("car.dxf")));
  words("XATTACH|" + path("car.dxf") + "||0,0||||XREF|?");
  ASSERT_TRUE(hasBlock(u"car|wheel")) << output().toStdString();
  EXPECT_TRUE(console().shows(QStringLiteral("\"car|wheel\"  attached")));
  words("XREF|r|*");
  EXPECT_FALSE(isBusy());
  OdGeExtents3d box;
  ASSERT_TRUE(inserts().at(0)->getGeomExtents(box));
  EXPECT_NEAR(box.maxPoint().x, 2, 1e-9);
  words("XREF|u|*");
  EXPECT_FALSE(inserts().at(0)->getGeomExtents(box));
  words("XREF|r|*|XREF|d|*");
  EXPECT_FALSE(isBusy());
  EXPECT_TRUE(inserts().empty()) << output().toStdString();
  EXPECT_FALSE(hasBlock(u"car"));
  EXPECT_FALSE(hasBlock(u"car|wheel"));
  // One that follows another is not taken by itself.
  words("XATTACH|" + path("car.dxf") + "||0,0||||XREF|d|car*wheel");
  EXPECT_TRUE(console().shows(QStringLiteral("No external reference fits \"car*wheel\".")));
  EXPECT_TRUE(hasBlock(u"car|wheel"));
}

TEST_F(ReferenceTest, OfOneFileIsOneHoweverItIsSpelled) {
  writeDrawing("wheel.dxf", 2);
  const WorkingFolder inside(path("."));
  words("XATTACH|wheel.dxf||0,0||||XATTACH|./wheel.dxf||5,0||||XATTACH|wheel||5,0||||XATTACH|" +
        path("wheel.dxf") + "||9,0|||");
  ASSERT_EQ(inserts().size(), 4u) << output().toStdString();
  for (const OdDbBlockReferencePtr& insert : inserts())
    EXPECT_EQ(insert->blockName(), QStringLiteral("wheel"));
  const OdDbBlockTableRecordPtr block = inserts()[0]->blockTableRecord().openObject();
  EXPECT_EQ(block->pathName(), QFileInfo(path("wheel.dxf")).canonicalFilePath());
}

TEST_F(ReferenceTest, DrawingIsNotPutIntoItselfHoweverItIsSpelled) {
  writeDrawing("house.dxf", 2);
  const WorkingFolder inside(path("."));
  database().setFileName(QStringLiteral("house.dxf"));
  for (const QString& name : {QStringLiteral("house"), QStringLiteral("./house.dxf"),
                              QStringLiteral("B=house.dxf"), path("house.dxf")}) {
    words("INSERT|" + name);
    EXPECT_FALSE(isBusy()) << name.toStdString();
    EXPECT_TRUE(console().shows(QStringLiteral("A drawing cannot be inserted into itself.")))
        << name.toStdString() << output().toStdString();
    console().clear();
  }
  words("XATTACH|house.dxf|");
  EXPECT_TRUE(console().shows(QStringLiteral("A drawing cannot be attached to itself.")));
}

TEST_F(ReferenceTest, IsBoundWithItsLayers) {
  const OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  const auto layers = drawing->getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite);
  const auto walls = odrxMake<OdDbLayerTableRecord>();
  walls->setName(QStringLiteral("Walls"));
  const OdDbObjectId layer = layers->add(walls);
  const auto line = odrxMake<OdDbLine>(OdGePoint3d{10, 10, 0}, OdGePoint3d{20, 10, 0});
  opened(drawing->getModelSpaceId())->appendOdDbEntity(line);
  line->setLayer(layer);
  drawing->setSysVar(QStringLiteral("INSBASE"), OdGePoint3d{10, 10, 0});
  drawing->writeFile(odpath::fromPlatform(path("plan.dxf")));
  words("XATTACH|" + path("plan.dxf") + "||0,0|||");
  OdGeExtents3d before, after;
  ASSERT_TRUE(inserts()[0]->getGeomExtents(before));
  words("XREF|b|plan");
  ASSERT_TRUE(inserts()[0]->getGeomExtents(after));
  EXPECT_LT(after.minPoint().distanceTo(before.minPoint()), 1e-9);
  EXPECT_LT(after.maxPoint().distanceTo(before.maxPoint()), 1e-9);
  const auto table = database().getLayerTableId().openAs<OdDbLayerTable>();
  EXPECT_TRUE(table->has(QStringLiteral("Walls")));
  EXPECT_FALSE(table->has(QStringLiteral("plan|Walls")));
  // It stays when the file goes.
  ASSERT_TRUE(QFile::remove(path("plan.dxf")));
  const OdDbDatabasePtr read =
      OdDbDatabase::readDxf(database().writeDxf(), QStringLiteral("memory"));
  const auto blocks = read->getBlockTableId().openAs<OdDbBlockTable>();
  const OdDbBlockTableRecordPtr plan = blocks->getAt(QStringLiteral("plan")).openObject();
  ASSERT_TRUE(plan);
  EXPECT_FALSE(plan->isFromExternalReference());
  EXPECT_EQ(plan->entityIds().size(), 1u);
}

TEST_F(ReferenceTest, IsNotBoundWithoutItsFile) {
  writeDrawing("wheel.dxf", 2);
  words("XATTACH|" + path("wheel.dxf") + "||0,0|||");
  ASSERT_TRUE(QFile::remove(path("wheel.dxf")));
  const QByteArray before = database().writeDxf();
  words("XREF|b|wheel");
  EXPECT_TRUE(console().shows(QStringLiteral("The file of \"wheel\" was not found")))
      << output().toStdString();
  EXPECT_EQ(database().writeDxf(), before);
}

} // namespace
