// What is told before a drawing is saved for older programs.
#include "drawing/version_losses.h"

#include "drawing/entities/block_reference.h"
#include "drawing/entities/hatch.h"
#include "drawing/entities/line.h"
#include "drawing/tables/block_table.h"
#include "drawing/tables/dim_style_table.h"
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

TEST_F(VersionLosses, NameTheVariablesOfDimensionStyles) {
  const auto styles = m_database->getDimStyleTableId().openAs<OdDbDimStyleTable>(OdDb::kForWrite);
  const auto style = odrxMake<OdDbDimStyleTableRecord>();
  style->setName(QStringLiteral("S"));
  style->setDimscale(2);
  styles->add(style);
  EXPECT_EQ(in(OdDb::kR2000), QStringList());
  style->setDimfxl(3);
  style->setDimfxlon(true);
  style->setDimjogang(1);
  style->setDimarcsym(2);
  style->setDimtfill(2);
  style->setDimtfillclr(OdCmColor::fromColorIndex(3));
  for (const auto set :
       {&OdDbDimStyleTableRecord::setDimltype, &OdDbDimStyleTableRecord::setDimltex1,
        &OdDbDimStyleTableRecord::setDimltex2})
    (*style.*set)(m_database->getLinetypeContinuousId());
  style->setDimtxtdirection(true);
  const QStringList newest{QStringLiteral("DIMTXTDIRECTION")};
  const QStringList all = QStringLiteral("DIMFXL DIMJOGANG DIMTFILL DIMTFILLCLR DIMARCSYM DIMFXLON "
                                         "DIMTXTDIRECTION DIMLTYPE DIMLTEX1 DIMLTEX2")
                              .split(u' ');
  EXPECT_EQ(in(OdDb::kR2000), all);
  EXPECT_EQ(in(OdDb::kR2004), all);
  EXPECT_EQ(in(OdDb::kR2007), newest);
  EXPECT_EQ(in(OdDb::kR2010), QStringList());
  // What is named is what a file lacks.
  const OdDbDatabasePtr old =
      OdDbDatabase::readDxf(m_database->writeDxf(OdDb::kR2000), QStringLiteral("old.dxf"));
  const auto read = old->getDimStyleTableId()
                        .openAs<OdDbDimStyleTable>()
                        ->getAt(QStringLiteral("S"))
                        .openAs<OdDbDimStyleTableRecord>();
  EXPECT_EQ(read->dimscale(), 2);
  EXPECT_EQ(read->dimfxl(), OdDbDimVarValues().dimfxl);
}

TEST_F(VersionLosses, AreNotToldOfVariablesThatAnOldFileHasAllTheSame) {
  QByteArray text = m_database->writeDxf(OdDb::kR2000);
  const qsizetype at = text.indexOf(" 40\n", text.indexOf("AcDbDimStyleTableRecord"));
  text.insert(at, " 49\n7.5\n");
  m_database = OdDbDatabase::readDxf(text, QStringLiteral("old.dxf"));
  EXPECT_EQ(in(OdDb::kR2000), QStringList());
  EXPECT_TRUE(m_database->writeDxf(OdDb::kR2000).contains(" 49\n7.5\n"));
}
