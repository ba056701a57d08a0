#include "drawing/entities/raster_image.h"
#include "drawing/entities/viewport.h"
#include "drawing/objects/layout.h"
#include "drawing/objects/xref_manager.h"
#include "engine/blocks/block_fixture.h"

#include <QDir>
#include <QImage>

#include <sys/stat.h>

namespace {

// --- BLOCK and WBLOCK

class BlockTest : public BlockFixture {};

TEST_F(BlockTest, TakesObjectsOutOfTheDrawingIntoABlock) {
  words("LINE|5,5|9,5||BLOCK|Bar|5,5|all||");
  EXPECT_FALSE(isBusy()) << output().toStdString();
  EXPECT_TRUE(all<OdDbLine>().empty());
  ASSERT_TRUE(hasBlock(u"Bar"));
  words("INSERT|Bar|1,1|||");
  OdGeExtents3d box;
  ASSERT_TRUE(inserts().at(0)->getGeomExtents(box));
  EXPECT_EQ(box.minPoint(), (OdGePoint3d{1, 1, 0}));
  EXPECT_EQ(box.maxPoint(), (OdGePoint3d{5, 1, 0}));
}

TEST_F(BlockTest, RedefinesABlockOnlyIfToldTo) {
  addLineBlock(u"Bar");
  words("LINE|0,0|0,1||BLOCK|Bar|");
  EXPECT_FALSE(isBusy());
  EXPECT_EQ(all<OdDbLine>().size(), 1u);
  words("BLOCK|Bar|y|0,0|all||");
  EXPECT_TRUE(all<OdDbLine>().empty());
  words("INSERT|*Bar|0,0|||");
  ASSERT_EQ(all<OdDbLine>().size(), 1u);
  EXPECT_EQ(all<OdDbLine>()[0]->endPoint(), (OdGePoint3d{0, 1, 0}));
}

TEST_F(BlockTest, RefusesToContainItself) {
  addLineBlock(u"Bar");
  words("INSERT|Bar|0,0|||");
  const QByteArray before = database().writeDxf();
  words("BLOCK|Bar|y|0,0|all||");
  EXPECT_TRUE(console().shows(QStringLiteral("Block \"Bar\" would contain itself.")));
  EXPECT_EQ(database().writeDxf(), before);
}

TEST_F(BlockTest, RefusesNamesThatRecordsCannotHave) {
  words("BLOCK|a:b");
  EXPECT_TRUE(isBusy());
  EXPECT_TRUE(console().shows(QStringLiteral("is no name for a block")));
  type(QStringLiteral("^C"));
}

TEST_F(BlockTest, IsUndoneAtOnce) {
  words("LINE|5,5|9,5|");
  const QByteArray before = database().writeDxf();
  words("BLOCK|Bar|5,5|all||U");
  EXPECT_EQ(database().writeDxf(), before);
}

TEST_F(BlockTest, IsWrittenToAFileByItsName) {
  addLineBlock(u"Bar");
  words("WBLOCK|" + path("bar.dxf") + "|=");
  EXPECT_FALSE(isBusy());
  EXPECT_TRUE(QFile::exists(path("bar.dxf"))) << output().toStdString();
}

TEST_F(BlockTest, WritesABlockTheWholeDrawingOrChosenObjects) {
  addLineBlock(u"Bar");
  words("LINE|5,5|9,5|");
  words("WBLOCK|" + path("block.dxf") + "|Bar");
  words("WBLOCK|" + path("whole.dxf") + "|*");
  words("WBLOCK|" + path("part.dxf") + "||5,5|all|");
  const auto lineOf = [&](const char* name) {
    const OdDbDatabasePtr drawing = OdDbDatabase::readFile(odpath::fromPlatform(path(name)));
    const auto space = drawing->getModelSpaceId().openAs<OdDbBlockTableRecord>();
    EXPECT_EQ(space->entityIds().size(), 1u) << name;
    const OdDbLinePtr line = space->newIterator()->entity();
    return std::pair(line->startPoint(), line->endPoint());
  };
  EXPECT_EQ(lineOf("block.dxf"), std::pair(OdGePoint3d{}, OdGePoint3d{10, 0, 0}));
  EXPECT_EQ(lineOf("whole.dxf"), std::pair(OdGePoint3d{5, 5, 0}, OdGePoint3d{9, 5, 0}));
  EXPECT_EQ(lineOf("part.dxf"), std::pair(OdGePoint3d{}, OdGePoint3d{4, 0, 0}));
  EXPECT_EQ(all<OdDbLine>().size(), 1u) << "what was chosen stays";
}

TEST_F(BlockTest, ReplacesAFileOnlyIfToldTo) {
  writeDrawing("old.dxf", 3);
  addLineBlock(u"Bar");
  words("WBLOCK|" + path("old.dxf") + "|");
  EXPECT_FALSE(isBusy());
  EXPECT_TRUE(OdDbDatabase::readFile(odpath::fromPlatform(path("old.dxf")))
                  ->getModelSpaceId()
                  .openAs<OdDbBlockTableRecord>()
                  ->newIterator()
                  ->entity()
                  ->isKindOf(OdDbCircle::desc()));
}

// --- external references

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

// --- pictures

class RasterTest : public BlockFixture {
 protected:
  void writePicture(const char* name) {
    QImage picture(40, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(path(name)));
  }
};

TEST_F(RasterTest, IsOneUnitWideAtScaleOneAndKeepsItsProportions) {
  writePicture("photo.png");
  words("INSERTRASTER|" + path("photo.png") + "|1,2|4|0");
  const auto images = all<OdDbRasterImage>();
  ASSERT_EQ(images.size(), 1u) << output().toStdString();
  OdGePoint3d origin;
  OdGeVector3d u, v;
  images[0]->getOrientation(origin, u, v);
  EXPECT_EQ(origin, (OdGePoint3d{1, 2, 0}));
  EXPECT_NEAR(u.length(), 4, 1e-9);
  EXPECT_NEAR(v.length(), 2, 1e-9);
}

TEST_F(RasterTest, ByAModuleTakesNamePathScaleAndRotation) {
  writePicture("photo.png");
  EXPECT_TRUE(runWith(u"INSERTRASTER",
                      {{u"PathScaleRotationNoDialog", QStringLiteral("PathScaleRotationNoDialog")},
                       {u"DefName", QStringLiteral("Site")},
                       {u"Path", odpath::fromPlatform(path("photo.png"))},
                       {u"Scale", 3.0},
                       {u"Rotation", kOdaPi / 2}},
                      {"5,5"}));
  const auto images = all<OdDbRasterImage>();
  ASSERT_EQ(images.size(), 1u) << output().toStdString();
  const OdDbRasterImageDefPtr definition = images[0]->imageDefId().openObject();
  EXPECT_EQ(definition->name(), QStringLiteral("Site"));
  EXPECT_TRUE(
      odpath::samePlace(definition->activeFileName(), odpath::fromPlatform(path("photo.png"))));
  OdGePoint3d origin;
  OdGeVector3d u, v;
  images[0]->getOrientation(origin, u, v);
  EXPECT_NEAR(u.y, 3, 1e-9);
}

TEST_F(RasterTest, OfOneFileShareTheirDefinition) {
  writePicture("photo.png");
  words("INSERTRASTER|" + path("photo.png") + "|1,2|4|0");
  words("INSERTRASTER|" + path("photo.png") + "|5,2|4|0");
  const auto images = all<OdDbRasterImage>();
  ASSERT_EQ(images.size(), 2u);
  EXPECT_EQ(images[0]->imageDefId(), images[1]->imageDefId());
}

TEST_F(RasterTest, StandInTheFileAsOtherProgramsHereFindThem) {
  writePicture("photo.png");
  words("INSERTRASTER|" + path("photo.png") + "|1,2|4|0");
  EXPECT_TRUE(database().writeDxf().contains('\n' + path("photo.png").toUtf8() + '\n'))
      << output().toStdString();
}

TEST_F(RasterTest, RefusesDevicesAndPipesWithoutReadingThem) {
  ASSERT_EQ(mkfifo(path("pipe.png").toLocal8Bit().constData(), 0600), 0);
  const QByteArray before = database().writeDxf();
  for (const QString& device :
       {QStringLiteral("/dev/zero"), QStringLiteral("/dev/tty"), path("pipe.png")}) {
    words("INSERTRASTER|" + device);
    EXPECT_TRUE(console().shows(device + QStringLiteral(" is not a file.")))
        << output().toStdString();
    EXPECT_FALSE(runWith(u"INSERTRASTER", {{u"Path", odpath::fromPlatform(device)}}, {}));
    EXPECT_FALSE(isBusy());
  }
  EXPECT_EQ(database().writeDxf(), before);
}

TEST_F(RasterTest, RefusesWhatIsNoPictureAndAScaleOfNothing) {
  writeDrawing("plan.dxf", 1);
  writePicture("photo.png");
  words("INSERTRASTER|" + path("plan.dxf"));
  EXPECT_TRUE(console().shows(QStringLiteral("cannot be read as a picture")))
      << output().toStdString();
  ASSERT_TRUE(QFile::copy(path("photo.png"), path("cut.png")));
  QFile cut(path("cut.png"));
  ASSERT_TRUE(cut.resize(cut.size() - 4));
  words("INSERTRASTER|" + path("cut.png"));
  EXPECT_TRUE(console().shows(QStringLiteral("cannot be read as a picture: its end is missing")))
      << output().toStdString();
  EXPECT_FALSE(runWith(u"INSERTRASTER",
                       {{u"Path", odpath::fromPlatform(path("photo.png"))}, {u"Scale", 0.0}}, {}));
  EXPECT_TRUE(all<OdDbRasterImage>().empty());
}

// --- layouts

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
