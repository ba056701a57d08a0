// Copies within a drawing and between drawings.
#include "drawing/database.h"
#include "drawing/dxf/residue.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/hatch.h"
#include "drawing/entities/raster_image.h"
#include "drawing/objects/named_styles.h"

#include "drawing/contents/audit.h"
#include "drawing/contents/house.h"

#include <QTemporaryDir>

using namespace oddbtest;

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
