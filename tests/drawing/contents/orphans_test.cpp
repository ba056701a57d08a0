// Blocks that programs have made for entities which are erased.
#include "drawing/entities/block_reference.h"
#include "drawing/entities/dimension_kinds.h"
#include "drawing/entities/line.h"

#include "drawing/contents/audit.h"
#include "drawing/contents/support.h"

using namespace oddbtest;

namespace {

class Orphans : public ::testing::Test {
 protected:
  OdDbObjectId addDimension() {
    const auto dimension = odrxMake<OdDbAlignedDimension>();
    dimension->setXLine2Point({10, 0, 0});
    dimension->setDimLinePoint({5, 3, 0});
    const OdDbObjectId id = addTo(*m_db, dimension);
    id.openAs<OdDbDimension>(OdDb::kForWrite)->recomputeDimBlock();
    return id;
  }
  static OdDbObjectId blockOf(OdDbObjectId dimension) {
    return dimension.openAs<OdDbDimension>()->dimBlockId();
  }
  void erase(OdDbObjectId id) { id.safeOpenObject(OdDb::kForWrite)->erase(); }
  bool saves(const OdString& name) {
    const OdDbDatabasePtr saved = OdDbDatabase::readDxf(m_db->writeDxf(), QStringLiteral("x"));
    return saved->getBlockTableId().openAs<OdDbBlockTable>()->has(name);
  }
  OdString nameOf(OdDbObjectId block) { return block.openAs<OdDbBlockTableRecord>()->getName(); }

  OdDbDatabasePtr m_db = OdDbDatabase::createDatabase();
};

} // namespace

TEST_F(Orphans, OfErasedDimensionsAreNotSavedAndComeBackByUndo) {
  const QByteArray empty = m_db->writeDxf();
  m_db->startUndoRecord(QStringLiteral("DIM"));
  const OdDbObjectId dimension = addDimension();
  const OdString name = nameOf(blockOf(dimension));
  ASSERT_TRUE(name.startsWith(QLatin1String("*D")));
  m_db->startUndoRecord(QStringLiteral("ERASE"));
  const QByteArray with = m_db->writeDxf();
  EXPECT_TRUE(saves(name));
  erase(dimension);
  m_db->endUndoRecord();
  EXPECT_FALSE(saves(name));
  EXPECT_EQ(auditOf(*m_db), "");
  m_db->setSaved();
  EXPECT_FALSE(saves(name)) << "saved again";
  m_db->undo();
  EXPECT_EQ(m_db->writeDxf(), with);
  m_db->redo();
  EXPECT_FALSE(saves(name));
  m_db->undo();
  m_db->undo();
  EXPECT_EQ(m_db->writeDxf(), empty);
}

TEST_F(Orphans, WhatAnotherEntityOrAnUnusedBlockStillShowsIsSaved) {
  const OdDbObjectId first = addDimension(), second = addDimension();
  const OdDbObjectId shared = blockOf(first);
  second.openAs<OdDbDimension>(OdDb::kForWrite)->setDimBlockId(shared);
  erase(first);
  EXPECT_TRUE(saves(nameOf(shared)));
  const auto holder = odrxMake<OdDbBlockTableRecord>();
  holder->setName(QStringLiteral("HOLDER"));
  m_db->getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite)->add(holder);
  holder->appendOdDbEntity(odrxMake<OdDbBlockReference>(shared, OdGePoint3d()));
  erase(second);
  EXPECT_TRUE(saves(nameOf(shared))) << "an unused block is saved with all that it needs";
  EXPECT_EQ(auditOf(*m_db), "");
}

TEST_F(Orphans, OnesWithinOthersGoWithThemAndNamedOnesStay) {
  const auto made = [&](char letter) {
    return oddb::addAnonymousBlock(*m_db, QLatin1Char(letter));
  };
  const OdDbObjectId outer = made('U'), inner = made('X');
  const auto put = [&](OdDbObjectId block, const OdDbEntityPtr& entity) {
    return block.openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->appendOdDbEntity(entity);
  };
  put(inner, odrxMake<OdDbLine>(OdGePoint3d{}, OdGePoint3d{1, 0, 0}));
  put(outer, odrxMake<OdDbBlockReference>(inner, OdGePoint3d()));
  const auto named = odrxMake<OdDbBlockTableRecord>();
  named->setName(QStringLiteral("BOLT"));
  m_db->getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite)->add(named);
  const OdDbObjectId one = addTo(*m_db, odrxMake<OdDbBlockReference>(outer, OdGePoint3d()));
  const OdDbObjectId other =
      addTo(*m_db, odrxMake<OdDbBlockReference>(named->objectId(), OdGePoint3d()));
  EXPECT_TRUE(saves(nameOf(outer)) && saves(nameOf(inner)));
  erase(one);
  erase(other);
  EXPECT_FALSE(saves(nameOf(outer)) || saves(nameOf(inner)));
  EXPECT_TRUE(saves(QStringLiteral("BOLT")));
  EXPECT_EQ(auditOf(*m_db), "");
}

TEST_F(Orphans, ThatAFileHasAreKept) {
  const OdDbObjectId dimension = addDimension();
  const OdString name = nameOf(blockOf(dimension));
  QByteArray file = m_db->writeDxf();
  file.replace("\r\n", "\n");
  const qsizetype from = file.indexOf("  0\nDIMENSION\n", file.indexOf("\nENTITIES\n"));
  file.remove(from, file.indexOf("  0\nENDSEC\n", from) - from);
  const OdDbDatabasePtr read = OdDbDatabase::readDxf(file, QStringLiteral("x"));
  EXPECT_EQ(read->writeDxf(), file) << name.toStdString();
}
