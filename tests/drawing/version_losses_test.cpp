// What is told before a drawing is saved for older programs.
#include "drawing/version_losses.h"

#include "drawing/entities/block_reference.h"
#include "drawing/entities/hatch.h"
#include "drawing/entities/line.h"
#include "drawing/tables/block_table.h"
#include "drawing/tables/layer_table.h"

#include <gtest/gtest.h>

namespace {

class VersionLosses : public testing::Test {
 protected:
  void add(OdDbEntity* entity) {
    m_database->getModelSpaceId()
        .openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
        ->appendOdDbEntity(entity);
  }
  QStringList in(OdDb::DwgVersion version) { return oddb::lossesInVersion(*m_database, version); }

  OdDbDatabasePtr m_database = OdDbDatabase::createDatabase();
};

} // namespace

TEST_F(VersionLosses, AreNoneInAPlainDrawing) {
  add(odrxMake<OdDbLine>(OdGePoint3d{}, OdGePoint3d{1, 0, 0}));
  EXPECT_EQ(in(OdDb::kR2000), QStringList());
}

TEST_F(VersionLosses, NameEachKindOnceAndOnlyForVersionsWithoutIt) {
  for (int i = 0; i < 2; ++i) {
    const auto line = odrxMake<OdDbLine>(OdGePoint3d{}, OdGePoint3d{1, 0, 0});
    line->setColor(OdCmColor::fromRgb(1, 2, 3));
    line->setTransparency(OdCmTransparency::fromPercent(50));
    add(line);
  }
  const auto hatch = odrxMake<OdDbHatch>();
  hatch->setGradient(true);
  add(hatch);
  EXPECT_EQ(in(OdDb::kR2000),
            QStringList({QStringLiteral("true colours"), QStringLiteral("transparencies"),
                         QStringLiteral("gradients")}));
  EXPECT_EQ(in(OdDb::kR2004), QStringList());
}

TEST_F(VersionLosses, AreFoundInLayersAndInBlocksThatAreNotShown) {
  const auto layer = odrxMake<OdDbLayerTableRecord>();
  layer->setName(QStringLiteral("L"));
  layer->setColor(OdCmColor::fromRgb(1, 2, 3));
  m_database->getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite)->add(layer);
  EXPECT_EQ(in(OdDb::kR2000), QStringList(QStringLiteral("true colours")));

  const auto block = odrxMake<OdDbBlockTableRecord>();
  block->setName(QStringLiteral("B"));
  m_database->getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite)->add(block);
  const auto line = odrxMake<OdDbLine>(OdGePoint3d{}, OdGePoint3d{1, 0, 0});
  line->setTransparency(OdCmTransparency::fromPercent(50));
  block->appendOdDbEntity(line);
  EXPECT_EQ(in(OdDb::kR2000),
            QStringList({QStringLiteral("true colours"), QStringLiteral("transparencies")}));
}
