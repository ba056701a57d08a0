// Entities that are kept as the file had them, and still shown.
#include "drawing/contents/kept_entity.h"
#include "drawing/entities/line.h"
#include "drawing/objects/raw_object.h"
#include "drawing/tables/block_table.h"
#include "render/picture_fixture.h"

using namespace render_test;
using oddbtest::drawingWith;
using oddbtest::head;

namespace {

/// The block of a table with two columns and two rows.
void addTableBlock(OdDbDatabase& database) {
  const auto block = odrxMake<OdDbBlockTableRecord>();
  block->setName(QStringLiteral("*T1"));
  database.getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite)->add(block);
  for (const double y : {0.0, -5.0, -10.0})
    block->appendOdDbEntity(odrxMake<OdDbLine>(OdGePoint3d{0, y, 0}, OdGePoint3d{30, y, 0}));
  for (const double x : {0.0, 12.0, 30.0})
    block->appendOdDbEntity(odrxMake<OdDbLine>(OdGePoint3d{x, 0, 0}, OdGePoint3d{x, -10, 0}));
  const auto text = odrxMake<OdDbText>();
  text->setTextString(QStringLiteral("Door"));
  text->setPosition({13, -4, 0});
  text->setHeight(2.5);
  block->appendOdDbEntity(text);
}

} // namespace

TEST(KeptEntities, AreShownAndStayReadableInMirrors) {
  const QByteArray tolerance =
      "100|AcDbFcf|3|Standard|10|-35.0|20|-8.0|30|0.0|1|{\\Fgdt;r}%%v0.5%%vA"
      "^J{\\Fgdt;b}%%v0.1|11|1.0|21|0.0|31|0.0|";
  const QByteArray table =
      "100|AcDbBlockReference|2|*T1|10|2.0|20|-5.0|30|0.0|100|AcDbTable|342|0|"
      "11|1.0|21|0.0|31|0.0|90|22|91|2|92|2|141|5.0|141|5.0|142|12.0|142|18.0|";
  const QByteArray trace =
      "100|AcDbTrace|10|-35.0|20|-28.0|30|0.0|11|-35.0|21|-24.0|31|0.0|12|-5.0|"
      "22|-28.0|32|0.0|13|-5.0|23|-20.0|33|0.0|";
  QByteArray other = oddbtest::leaderWithText() + '|';
  other.replace("|5|F0|", "|5|F1|");
  const OdDbDatabasePtr db =
      drawingWith(oddbtest::leaderWithText() + '|' + other + head("TOLERANCE", "F2") + tolerance +
                  head("ACAD_TABLE", "F3") + table + head("ACAD_TABLE", "F4") + table +
                  head("TRACE", "F5") + trace.chopped(1));
  addTableBlock(*db);
  const auto all = oddbtest::entitiesOf(db->getModelSpaceId());
  ASSERT_EQ(all.size(), 6u);
  const auto mirror = [&](std::size_t i, const OdGeMatrix3d& by) {
    const OdDbEntityPtr entity = all[i]->objectId().openObject(OdDb::kForWrite);
    auto* const kept = odrxCast<OdDbRawEntity>(entity.get());
    EXPECT_TRUE(kept && kept->mirrorReadably(by));
  };
  mirror(1, OdGeMatrix3d::mirroring({-2, 0, 0}, OdGeVector3d::xAxis()));
  mirror(4, OdGeMatrix3d::mirroring({0, -17, 0}, OdGeVector3d::yAxis()));
  Scene scene(*db);
  EXPECT_TRUE(looksLike(modelPicture(*db, scene, boxOf(-38, -31, 38, 15), {640, 400}), "kept"));
}
