// Copies within a drawing, between drawings, and external references.
#include "drawing/database.h"
#include "drawing/dxf/residue.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/hatch.h"
#include "drawing/entities/raster_image.h"
#include "drawing/objects/group.h"
#include "drawing/objects/named_styles.h"
#include "drawing/objects/xref_manager.h"

#include "drawing/contents/audit.h"
#include "drawing/contents/support.h"
#include "drawing/entities/python_script.h"

#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

using namespace oddbtest;

namespace {

OdDbObjectId blockNamed(const OdDbDatabase& db, const char* name) {
  return db.getBlockTableId().openAs<OdDbBlockTable>()->getAt(OdString::fromUtf8(name));
}
OdDbObjectId layerNamed(const OdDbDatabase& db, const char* name) {
  return db.getLayerTableId().openAs<OdDbLayerTable>()->getAt(OdString::fromUtf8(name));
}

/// A drawing with an insert of nested blocks on layers of their own.
OdDbDatabasePtr house() {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const OdDbObjectId walls = addLayer(*db, QStringLiteral("Wände"), 3);
  const OdDbObjectId door = addBlock(*db, QStringLiteral("DOOR"));
  entitiesOf(door)[0]->objectId().openAs<OdDbEntity>(OdDb::kForWrite)->setLayer(walls);
  const OdDbObjectId room = addBlock(*db, QStringLiteral("ROOM"));
  const auto nested = odrxMake<OdDbBlockReference>(door, OdGePoint3d{5, 0, 0});
  room.openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->appendOdDbEntity(nested);
  const auto insert = odrxMake<OdDbBlockReference>(room, OdGePoint3d{1, 1, 0});
  const auto attribute = odrxMake<OdDbAttribute>();
  attribute->setTag(QStringLiteral("NAME"));
  attribute->setTextString(QStringLiteral("Küche"));
  insert->appendAttribute(attribute);
  addTo(*db, insert);
  return db;
}

} // namespace

TEST(Cloning, CopiesEntitiesWithWhatBelongsToThem) {
  const OdDbDatabasePtr db = house();
  const OdDbObjectId insert = entitiesOf(db->getModelSpaceId())[0]->objectId();
  OdDbIdMapping mapping;
  db->deepCloneObjects({insert}, db->getModelSpaceId(), mapping);
  const OdDbBlockReferencePtr copy = mapping.find(insert).safeOpenObject();
  const OdDbBlockReferencePtr original = insert.safeOpenObject();
  EXPECT_EQ(copy->blockTableRecord(), original->blockTableRecord());
  ASSERT_EQ(copy->attributes().size(), 1u);
  EXPECT_NE(copy->attributes()[0]->objectId(), original->attributes()[0]->objectId());
  EXPECT_EQ(copy->attributes()[0]->textString(), QStringLiteral("Küche"));
  EXPECT_EQ(copy->ownerId(), db->getModelSpaceId());
  EXPECT_EQ(auditOf(*db), "");
}

TEST(Cloning, LetsReferencesAmongTheCopiesGoToTheCopies) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const OdDbObjectId circle =
      addTo(*db, odrxMake<OdDbCircle>(OdGePoint3d(), OdGeVector3d::zAxis(), 5.0));
  const auto hatch = odrxMake<OdDbHatch>();
  OdDbHatchLoop loop;
  loop.flags = OdDbHatchLoop::kPolyline;
  loop.vertices = {{{-5, 0}, 1}, {{5, 0}, 1}};
  loop.sources = {circle};
  hatch->appendLoop(loop);
  hatch->setAssociative(true);
  const OdDbObjectId hatchId = addTo(*db, hatch);

  OdDbIdMapping both;
  db->deepCloneObjects({circle, hatchId}, db->getModelSpaceId(), both);
  EXPECT_EQ(both.find(hatchId).openAs<OdDbHatch>()->getAssocObjIds(),
            std::vector<OdDbObjectId>{both.find(circle)});
  // Alone, the copy within the drawing still follows the original.
  OdDbIdMapping alone;
  db->deepCloneObjects({hatchId}, db->getModelSpaceId(), alone);
  EXPECT_EQ(alone.find(hatchId).openAs<OdDbHatch>()->getAssocObjIds(),
            std::vector<OdDbObjectId>{circle});
  // In another drawing it follows nothing.
  const OdDbDatabasePtr other = db->wblock({hatchId}, OdGePoint3d());
  const OdDbHatchPtr taken = entitiesOf(other->getModelSpaceId())[0]->clone();
  EXPECT_TRUE(taken->getAssocObjIds().empty());
}

TEST(Cloning, IsUndoneAndDoneAgain) {
  const OdDbDatabasePtr db = house();
  const OdDbObjectId insert = entitiesOf(db->getModelSpaceId())[0]->objectId();
  const QByteArray before = db->writeDxf();
  db->startUndoRecord(QStringLiteral("COPY"));
  OdDbIdMapping mapping;
  db->deepCloneObjects({insert}, db->getModelSpaceId(), mapping);
  db->endUndoRecord();
  const QByteArray after = db->writeDxf();
  db->undo();
  EXPECT_EQ(db->writeDxf(), before);
  db->redo();
  EXPECT_EQ(db->writeDxf(), after);
}

TEST(Cloning, TakesABlockToADrawingOfItsOwn) {
  const OdDbDatabasePtr db = house();
  db->setSysVar(QStringLiteral("LTSCALE"), 7.5);
  const OdDbObjectId room = blockNamed(*db, "ROOM");
  room.openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->setOrigin({1, 2, 3});
  const QByteArray before = db->writeDxf();
  const OdDbDatabasePtr made = db->wblock(room);
  EXPECT_EQ(db->writeDxf(), before);
  EXPECT_EQ(entitiesOf(made->getModelSpaceId()).size(), 3u);
  EXPECT_EQ(made->sysVarPoint("INSBASE"), (OdGePoint3d{1, 2, 3}));
  EXPECT_EQ(made->sysVarReal("LTSCALE"), 7.5);
  const OdDbObjectId walls = layerNamed(*made, "WÄNDE");
  ASSERT_FALSE(walls.isNull());
  EXPECT_EQ(walls.openAs<OdDbLayerTableRecord>()->color(), OdCmColor::fromColorIndex(3));
  const OdDbObjectId door = blockNamed(*made, "DOOR");
  ASSERT_FALSE(door.isNull());
  EXPECT_EQ(entitiesOf(door)[0]->layerId(), walls);
  EXPECT_TRUE(blockNamed(*made, "ROOM").isNull());
  EXPECT_EQ(auditOf(*made), "");
}

TEST(Cloning, TakesEntitiesToADrawingOfTheirOwn) {
  const OdDbDatabasePtr db = house();
  const OdDbObjectId insert = entitiesOf(db->getModelSpaceId())[0]->objectId();
  const OdDbDatabasePtr made = db->wblock({insert}, OdGePoint3d{1, 0, 0});
  const auto taken = entitiesOf(made->getModelSpaceId());
  ASSERT_EQ(taken.size(), 1u);
  const auto* const copy = odrxCast<OdDbBlockReference>(taken[0].get());
  EXPECT_EQ(copy->position(), (OdGePoint3d{0, 1, 0}));
  EXPECT_EQ(copy->attributes()[0]->textString(), QStringLiteral("Küche"));
  EXPECT_EQ(auditOf(*made), "");
}

TEST(Cloning, InsertsADrawingAsABlock) {
  const OdDbDatabasePtr source = house();
  source->setSysVar(QStringLiteral("INSBASE"), OdGePoint3d{4, 5, 0});
  source->setSysVar(QStringLiteral("INSUNITS"), std::int64_t{6});
  const QByteArray before = source->writeDxf();
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  // What the drawing has already stays.
  addLayer(*db, QStringLiteral("WÄNDE"), 5);
  const OdDbObjectId mine = addBlock(*db, QStringLiteral("door"));
  const OdDbObjectId house = db->insert(QStringLiteral("HOUSE"), source.get());
  EXPECT_EQ(source->writeDxf(), before);
  const auto block = house.openAs<OdDbBlockTableRecord>();
  EXPECT_EQ(block->getName(), QStringLiteral("HOUSE"));
  EXPECT_EQ(block->origin(), (OdGePoint3d{4, 5, 0}));
  EXPECT_EQ(block->blockInsertUnits(), 6);
  const auto inserted = entitiesOf(house);
  ASSERT_EQ(inserted.size(), 1u);
  const OdDbObjectId room = odrxCast<OdDbBlockReference>(inserted[0].get())->blockTableRecord();
  EXPECT_EQ(room, blockNamed(*db, "ROOM"));
  const auto* const nested = odrxCast<OdDbBlockReference>(entitiesOf(room)[2].get());
  EXPECT_EQ(nested->blockTableRecord(), mine);
  EXPECT_EQ(layerNamed(*db, "WÄNDE").openAs<OdDbLayerTableRecord>()->color(),
            OdCmColor::fromColorIndex(5));
  EXPECT_EQ(auditOf(*db), "");
}

TEST(Cloning, InsertsOneBlockUnderAnotherName) {
  const OdDbDatabasePtr source = house();
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const OdDbObjectId made =
      db->insert(QStringLiteral("room"), QStringLiteral("CHAMBER"), source.get());
  EXPECT_EQ(entitiesOf(made).size(), 3u);
  EXPECT_TRUE(blockNamed(*db, "ROOM").isNull());
  EXPECT_FALSE(blockNamed(*db, "DOOR").isNull());
  EXPECT_THROW(db->insert(QStringLiteral("NONE"), QStringLiteral("X"), source.get()), OdDbError);
  EXPECT_THROW(db->insert(QStringLiteral("X"), db.get()), OdError);
}

TEST(Cloning, NeverLetsABlockContainItself) {
  const OdDbDatabasePtr source = house();
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  // The drawing inserts a block of the name under which it is inserted itself.
  const OdDbObjectId made = db->insert(QStringLiteral("ROOM"), source.get());
  const auto* const insert = odrxCast<OdDbBlockReference>(entitiesOf(made)[0].get());
  EXPECT_NE(insert->blockTableRecord(), made);
  OdGeExtents3d box;
  EXPECT_TRUE(insert->getGeomExtents(box));
  EXPECT_EQ(auditOf(*db), "");
}

TEST(Cloning, CopiesBlocksThatContainThemselvesOnce) {
  const OdDbDatabasePtr db = house();
  const OdDbObjectId room = blockNamed(*db, "ROOM"), door = blockNamed(*db, "DOOR");
  // Files may have circles, though nobody can draw them.
  for (const auto& [inside, block] : {std::pair(door, room), std::pair(room, room)})
    block.openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
        ->appendOdDbEntity(odrxMake<OdDbBlockReference>(inside, OdGePoint3d{1, 2, 0}));
  door.openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
      ->appendOdDbEntity(odrxMake<OdDbBlockReference>(room, OdGePoint3d{1, 2, 0}));
  const OdDbDatabasePtr made = db->wblock(room);
  const OdDbObjectId copy = blockNamed(*made, "ROOM");
  ASSERT_TRUE(copy.isValid());
  EXPECT_EQ(entitiesOf(copy).size(), entitiesOf(room).size());
  EXPECT_EQ(entitiesOf(blockNamed(*made, "DOOR")).size(), entitiesOf(door).size());
  EXPECT_EQ(entitiesOf(made->getModelSpaceId()).size(), entitiesOf(room).size());
  EXPECT_EQ(made->getBlockTableId().openAs<OdDbBlockTable>()->recordIds().size(), 4u);
}

TEST(Cloning, WhatIsSaidOfABlockGoesWithIt) {
  const OdDbDatabasePtr db = house();
  const OdDbObjectId room = blockNamed(*db, "ROOM");
  const OdString words = QStringLiteral("A room with one door");
  room.openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->setComments(words);
  // As a drawing, in a file, and as a block again.
  const OdDbDatabasePtr made =
      OdDbDatabase::readDxf(db->wblock(room)->writeDxf(), QStringLiteral("room.dxf"));
  const OdDbDatabasePtr target = OdDbDatabase::createDatabase();
  const OdDbObjectId again = target->insert(QStringLiteral("KITCHEN"), made.get());
  EXPECT_EQ(again.openAs<OdDbBlockTableRecord>()->comments(), words);
  const OdDbObjectId taken =
      target->insert(QStringLiteral("ROOM"), QStringLiteral("PARLOUR"), db.get());
  EXPECT_EQ(taken.openAs<OdDbBlockTableRecord>()->comments(), words);
  // With an insert it comes as a block within.
  std::vector<OdDbObjectId> all;
  for (const OdDbEntityPtr& e : entitiesOf(db->getModelSpaceId())) all.push_back(e->objectId());
  EXPECT_EQ(blockNamed(*db->wblock(all, {}), "ROOM").openAs<OdDbBlockTableRecord>()->comments(),
            words);
  // What replaces a block has its own words, or none.
  target->insert(QStringLiteral("KITCHEN"), house().get());
  EXPECT_EQ(again.openAs<OdDbBlockTableRecord>()->comments(), OdString());
}

TEST(Cloning, TreatsTakenNamesAsToldTo) {
  const OdDbDatabasePtr source = house();
  std::vector<OdDbObjectId> all;
  for (const OdDbEntityPtr& e : entitiesOf(source->getModelSpaceId())) all.push_back(e->objectId());
  all.push_back(layerNamed(*source, "WÄNDE"));
  for (const auto policy : {OdDb::kDrcIgnore, OdDb::kDrcReplace, OdDb::kDrcMangleName}) {
    const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
    const OdDbObjectId mine = addLayer(*db, QStringLiteral("Wände"), 5);
    OdDbIdMapping mapping;
    db->wblockCloneObjects(all, db->getModelSpaceId(), mapping, policy);
    const OdDbObjectId became = mapping.find(all.back());
    EXPECT_EQ(became == mine, policy != OdDb::kDrcMangleName);
    EXPECT_EQ(mine.openAs<OdDbLayerTableRecord>()->color(),
              OdCmColor::fromColorIndex(policy == OdDb::kDrcReplace ? 3 : 5));
    const OdString name = became.openAs<OdDbLayerTableRecord>()->getName();
    EXPECT_EQ(name == QStringLiteral("$0$Wände"), policy == OdDb::kDrcMangleName);
    EXPECT_EQ(entitiesOf(blockNamed(*db, "DOOR"))[0]->layerId(), became);
    EXPECT_EQ(auditOf(*db), "");
  }
}

TEST(Cloning, BringsPicturesWithTheirImages) {
  const auto withImage = [](const char* path) {
    const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
    const auto definition = odrxMake<OdDbRasterImageDef>();
    definition->setSourceFileName(QLatin1String(path));
    definition->setSize({640, 480});
    const OdDbDictionaryPtr pictures =
        OdDbRasterImageDef::createImageDictionary(*db).safeOpenObject(OdDb::kForWrite);
    const OdDbObjectId id = pictures->setAt(QStringLiteral("house"), definition);
    const auto image = odrxMake<OdDbRasterImage>();
    image->setImageDefId(id);
    image->setOrientation({1, 2, 0}, {64, 0, 0}, {0, 48, 0});
    addTo(*db, image);
    return db;
  };
  const OdDbDatabasePtr source = withImage("a.png");
  EXPECT_EQ(auditOf(*source), "");
  for (const bool same : {true, false}) {
    const OdDbDatabasePtr db = withImage(same ? "a.png" : "b.png");
    db->insert(OdGeMatrix3d::translation({100, 0, 0}), source.get());
    const auto images = entitiesOf(db->getModelSpaceId());
    ASSERT_EQ(images.size(), 2u);
    const auto* const mine = odrxCast<OdDbRasterImage>(images[0].get());
    const auto* const taken = odrxCast<OdDbRasterImage>(images[1].get());
    EXPECT_EQ(mine->imageDefId() == taken->imageDefId(), same);
    EXPECT_EQ(taken->imageDefId().openAs<OdDbRasterImageDef>()->sourceFileName(),
              QStringLiteral("a.png"));
    EXPECT_EQ(taken->origin(), (OdGePoint3d{101, 2, 0}));
    const auto definition = taken->imageDefId().openAs<OdDbRasterImageDef>();
    const QByteArray handle = taken->reactorId().getHandle().ascii().toLatin1();
    EXPECT_TRUE(definition->residue()->groups.contains(handle));
    EXPECT_EQ(auditOf(*db), "");
  }
}

TEST(Cloning, CopiesWhatNobodyKnows) {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("theirs.dxf"));
  runScript("contents.py", {QStringLiteral("make"), QStringLiteral("R2018"), path});
  const OdDbDatabasePtr source = OdDbDatabase::readFile(path);
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  db->insert(QStringLiteral("ALL"), source.get());
  EXPECT_EQ(entitiesOf(blockNamed(*db, "ALL")).size(),
            entitiesOf(source->getModelSpaceId()).size());
  EXPECT_EQ(auditOf(*db), "");
  const OdDbDatabasePtr whole = source->wblock();
  EXPECT_EQ(auditOf(*whole), "");
  // All that is drawn, and all named objects, are as they were.
  const auto here = entitiesOf(source->getModelSpaceId());
  const auto there = entitiesOf(whole->getModelSpaceId());
  ASSERT_EQ(here.size(), there.size());
  for (std::size_t i = 0; i < here.size(); ++i) EXPECT_EQ(here[i]->handle(), there[i]->handle());
  for (const auto kind : {oddb::NamedKind::kGroup, oddb::NamedKind::kLayout,
                          oddb::NamedKind::kMaterial, oddb::NamedKind::kMLineStyle})
    EXPECT_EQ(oddb::namesOf(*source, kind), oddb::namesOf(*whole, kind));
}

TEST(Cloning, OfAWholeDrawingLeavesOutWhatNothingUses) {
  const OdDbDatabasePtr db = house();
  addLayer(*db, QStringLiteral("Unused"));
  const OdDbObjectId current = addLayer(*db, QStringLiteral("Current"));
  db->setCurrentLayer(current);
  const OdDbObjectId inUnused = addLayer(*db, QStringLiteral("In an unused block"));
  const OdDbObjectId outer = addBlock(*db, QStringLiteral("OUTER"));
  const OdDbObjectId inner = addBlock(*db, QStringLiteral("INNER"));
  entitiesOf(inner)[0]->objectId().openAs<OdDbEntity>(OdDb::kForWrite)->setLayer(inUnused);
  outer.openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
      ->appendOdDbEntity(odrxMake<OdDbBlockReference>(inner, OdGePoint3d()));
  // A line type that only a layer has, and a style that only it has.
  const auto style = odrxMake<OdDbTextStyleTableRecord>();
  style->setName(QStringLiteral("Letters"));
  const OdDbObjectId styleId =
      db->getTextStyleTableId().openAs<OdDbTextStyleTable>(OdDb::kForWrite)->add(style);
  const auto linetype = odrxMake<OdDbLinetypeTableRecord>();
  linetype->setName(QStringLiteral("Gas"));
  linetype->setNumDashes(2);
  linetype->setShapeStyleAt(1, styleId);
  linetype->setTextAt(1, QStringLiteral("GAS"));
  const OdDbObjectId linetypeId =
      db->getLinetypeTableId().openAs<OdDbLinetypeTable>(OdDb::kForWrite)->add(linetype);
  layerNamed(*db, "Wände")
      .openAs<OdDbLayerTableRecord>(OdDb::kForWrite)
      ->setLinetypeObjectId(linetypeId);
  const auto lonely = odrxMake<OdDbLinetypeTableRecord>();
  lonely->setName(QStringLiteral("Lonely"));
  db->getLinetypeTableId().openAs<OdDbLinetypeTable>(OdDb::kForWrite)->add(lonely);

  const QByteArray before = db->writeDxf();
  const OdDbDatabasePtr whole = db->wblock();
  EXPECT_EQ(db->writeDxf(), before);
  for (const char* const gone : {"Unused", "In an unused block"})
    EXPECT_TRUE(layerNamed(*whole, gone).isNull()) << gone;
  for (const char* const there : {"0", "Current", "Wände"})
    EXPECT_FALSE(layerNamed(*whole, there).isNull()) << there;
  for (const char* const gone : {"OUTER", "INNER"})
    EXPECT_TRUE(blockNamed(*whole, gone).isNull()) << gone;
  for (const char* const there : {"ROOM", "DOOR", "*Model_Space"})
    EXPECT_FALSE(blockNamed(*whole, there).isNull()) << there;
  const auto linetypes = whole->getLinetypeTableId().openAs<OdDbLinetypeTable>();
  EXPECT_TRUE(linetypes->has(QStringLiteral("Gas")));
  EXPECT_FALSE(linetypes->has(QStringLiteral("Lonely")));
  const auto styles = whole->getTextStyleTableId().openAs<OdDbTextStyleTable>();
  EXPECT_TRUE(styles->has(QStringLiteral("Letters")));
  EXPECT_TRUE(styles->has(QStringLiteral("Standard")));
  EXPECT_EQ(whole->currentLayer(), layerNamed(*whole, "Current"));
  EXPECT_EQ(auditOf(*whole), "");
  const OdDbDatabasePtr again = OdDbDatabase::readDxf(whole->writeDxf(), QString());
  EXPECT_TRUE(again->unknownContent().isEmpty());
  EXPECT_TRUE(blockNamed(*again, "OUTER").isNull());
}

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
