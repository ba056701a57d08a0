// Inserts: where they stand, how they move, what they fall into.
#include "drawing/database.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/ellipse.h"
#include "drawing/entities/line.h"

#include "drawing/contents/support.h"

using namespace oddbtest;

namespace {

void expectNear(const OdGePoint3d& a, const OdGePoint3d& b) {
  EXPECT_NEAR(a.x, b.x, 1e-9);
  EXPECT_NEAR(a.y, b.y, 1e-9);
  EXPECT_NEAR(a.z, b.z, 1e-9);
}

struct Inserts : testing::Test {
  OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  OdDbObjectId door = addBlock(*db, QStringLiteral("DOOR"));

  OdDbBlockReferencePtr add(const OdGePoint3d& at = {}) {
    const auto insert = odrxMake<OdDbBlockReference>(door, at);
    addTo(*db, insert);
    return insert;
  }
};

} // namespace

TEST_F(Inserts, PutTheBasePointOfTheBlockAtTheirPosition) {
  door.openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->setOrigin({1, 2, 0});
  const auto insert = add({10, 20, 0});
  insert->setScaleFactors({2, 3, 1});
  insert->setRotation(kOdaPi / 2);
  expectNear(insert->blockTransform() * OdGePoint3d{1, 2, 0}, {10, 20, 0});
  expectNear(insert->blockTransform() * OdGePoint3d{2, 2, 0}, {10, 22, 0});
  expectNear(insert->blockTransform() * OdGePoint3d{1, 3, 0}, {7, 20, 0});
}

TEST_F(Inserts, FollowEveryTransformationThatKeepsTheirRightAngles) {
  const OdGeMatrix3d all[] = {
      OdGeMatrix3d::translation({3, -4, 5}),
      OdGeMatrix3d::rotation(0.7, OdGeVector3d::zAxis(), {1, 2, 0}),
      OdGeMatrix3d::rotation(1.1, OdGeVector3d{0.36, 0.48, 0.8}, {1, 2, 3}),
      OdGeMatrix3d::scaling(2.5, {1, 1, 1}),
      OdGeMatrix3d::mirroring({2, 0, 0}, OdGeVector3d::xAxis()),
      OdGeMatrix3d::mirroring({2, 1, 0}, OdGeVector3d{0.6, 0.8, 0}),
      OdGeMatrix3d::mirroring({0, 0, 1}, OdGeVector3d::zAxis()),
  };
  for (const OdGeScale3d& scale : {OdGeScale3d{1, 1, 1}, OdGeScale3d{2, -3, 0.5}}) {
    for (const OdGeMatrix3d& transform : all) {
      const auto insert = add({10, 20, 30});
      insert->setScaleFactors(scale);
      insert->setRotation(0.4);
      insert->setArray(2, 2, 5, -7);
      const std::vector<OdGeMatrix3d> before = insert->cellTransforms();
      ASSERT_TRUE(insert->transformBy(transform));
      const std::vector<OdGeMatrix3d> after = insert->cellTransforms();
      for (std::size_t i = 0; i < before.size(); ++i)
        for (const OdGePoint3d& p : {OdGePoint3d{0, 0, 0}, {1, 2, 3}, {-4, 5, 1}})
          expectNear(after[i] * p, transform * (before[i] * p));
    }
  }
}

TEST_F(Inserts, RefuseToBeSlanted) {
  const auto insert = add({1, 2, 0});
  insert->setRotation(0.5);
  const OdGePoint3d before = insert->position();
  EXPECT_FALSE(insert->transformBy(OdGeMatrix3d::scaling(2, 1, 1)));
  EXPECT_EQ(insert->position(), before);
  EXPECT_FALSE(insert->transformBy(OdGeMatrix3d::scaling(0)));
}

TEST_F(Inserts, TakeTheirAttributesAlong) {
  const auto definition = odrxMake<OdDbAttributeDefinition>();
  definition->setTag(QStringLiteral("NUMBER"));
  definition->setTextString(QStringLiteral("0"));
  definition->setPosition({1, 2, 0});
  door.openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->appendOdDbEntity(definition);
  const auto insert = odrxMake<OdDbBlockReference>(door, OdGePoint3d{10, 0, 0});
  insert->appendAttributesFromBlock({{QStringLiteral("number"), QStringLiteral("12")}});
  ASSERT_EQ(insert->attributes().size(), 1u);
  addTo(*db, insert);
  const OdDbAttributePtr attribute = insert->attribute(QStringLiteral("number"));
  ASSERT_TRUE(attribute);
  EXPECT_TRUE(attribute->isDBRO());
  EXPECT_EQ(attribute->textString(), QStringLiteral("12"));
  expectNear(attribute->position(), {11, 2, 0});
  insert->upgradeOpen();
  insert->transformBy(OdGeMatrix3d::translation({0, 5, 0}));
  expectNear(insert->attributes()[0]->position(), {11, 7, 0});

  // A copy has attributes of its own.
  const OdDbBlockReferencePtr copy = insert->clone();
  addTo(*db, copy);
  ASSERT_EQ(copy->attributes().size(), 1u);
  EXPECT_NE(copy->attributes()[0]->objectId(), insert->attributes()[0]->objectId());
  copy->transformBy(OdGeMatrix3d::translation({100, 0, 0}));
  expectNear(insert->attributes()[0]->position(), {11, 7, 0});
}

TEST_F(Inserts, AreUndoneTogetherWithTheirAttributes) {
  const QByteArray before = db->writeDxf();
  db->startUndoRecord(QStringLiteral("INSERT"));
  const auto insert = add({1, 2, 0});
  const auto attribute = odrxMake<OdDbAttribute>();
  attribute->setTag(QStringLiteral("A"));
  insert->appendAttribute(attribute);
  insert->transformBy(OdGeMatrix3d::translation({5, 0, 0}));
  db->endUndoRecord();
  const QByteArray after = db->writeDxf();
  ASSERT_TRUE(db->undo());
  EXPECT_EQ(db->writeDxf(), before);
  ASSERT_TRUE(db->redo());
  EXPECT_EQ(db->writeDxf(), after);
}

TEST_F(Inserts, FallIntoWhatTheBlockConsistsOf) {
  const auto insert = add({10, 0, 0});
  insert->setScaleFactors({2, 1, 1});
  insert->setArray(2, 1, 100, 0);
  std::vector<OdDbEntityPtr> pieces;
  ASSERT_TRUE(insert->explode(pieces));
  ASSERT_EQ(pieces.size(), 4u);
  const auto* const line = odrxCast<OdDbLine>(pieces[0].get());
  ASSERT_TRUE(line);
  expectNear(line->endPoint(), {12, 0, 0});
  // A circle under unequal scales is an ellipse.
  EXPECT_TRUE(odrxCast<OdDbEllipse>(pieces[1].get()));
  expectNear(odrxCast<OdDbLine>(pieces[2].get())->startPoint(), {110, 0, 0});
}

TEST_F(Inserts, TakeNestedInsertsApartThatWouldBeSlanted) {
  const OdDbObjectId outer = addBlock(*db, QStringLiteral("OUTER"));
  const auto nested = odrxMake<OdDbBlockReference>(door, OdGePoint3d{1, 1, 0});
  nested->setRotation(0.5);
  outer.openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->appendOdDbEntity(nested);
  const auto insert = odrxMake<OdDbBlockReference>(outer);
  insert->setScaleFactors({2, 1, 1});
  std::vector<OdDbEntityPtr> pieces;
  ASSERT_TRUE(insert->explode(pieces));
  EXPECT_EQ(pieces.size(), 4u);
  for (const OdDbEntityPtr& piece : pieces) EXPECT_FALSE(odrxCast<OdDbBlockReference>(piece.get()));
}

TEST_F(Inserts, OfABlockWithinItselfEndSomewhere) {
  door.openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
      ->appendOdDbEntity(odrxMake<OdDbBlockReference>(door, OdGePoint3d{5, 0, 0}));
  const auto insert = add();
  OdGeExtents3d box;
  EXPECT_TRUE(insert->getGeomExtents(box));
  std::vector<OdDbEntityPtr> pieces;
  EXPECT_TRUE(insert->explode(pieces));
  // Slanted, the inner insert would have to be taken apart again and again.
  insert->setRotation(0.5);
  insert->setScaleFactors({2, 1, 1});
  const auto outer = odrxMake<OdDbBlockReference>(addBlock(*db, QStringLiteral("OUTER")));
  pieces.clear();
  EXPECT_TRUE(outer->explode(pieces));
}

TEST_F(Inserts, AreRefusedWithoutBlockScaleOrCells) {
  EXPECT_THROW(odrxMake<OdDbBlockReference>(OdDbObjectId()), OdDbError);
  const auto insert = add();
  EXPECT_THROW(insert->setScaleFactors({1, 0, 1}), OdError);
  EXPECT_THROW(insert->setArray(0, 1, 1, 1), OdError);
  EXPECT_THROW(insert->setArray(1, 40000, 1, 1), OdError);
  EXPECT_THROW(insert->setRotation(std::nan("")), OdError);
}

TEST_F(Inserts, AreFoundByTheirBlock) {
  const auto insert = add();
  const auto block = door.openAs<OdDbBlockTableRecord>();
  EXPECT_EQ(block->getBlockReferenceIds(), std::vector<OdDbObjectId>{insert->objectId()});
  EXPECT_FALSE(block->hasAttributeDefinitions());
}
