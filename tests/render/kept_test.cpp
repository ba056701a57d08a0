// What is shown though it is not ours: entities that are kept as the file had them, and other
// drawings.
#include "drawing/contents/kept_entity.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/line.h"
#include "drawing/objects/raw_object.h"
#include "drawing/objects/xref_manager.h"
#include "drawing/tables/block_table.h"
#include "drawing/tables/layer_table.h"
#include "render/picture_fixture.h"

#include <QDataStream>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>

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

/// A piece of what an application draws of its entity: kind and numbers, the length in front.
QByteArray piece(int kind, std::initializer_list<std::int32_t> whole,
                 std::initializer_list<double> reals) {
  QByteArray bytes;
  QDataStream stream(&bytes, QIODevice::WriteOnly);
  stream.setByteOrder(QDataStream::LittleEndian);
  stream << static_cast<std::int32_t>(8 + 4 * whole.size() + 8 * reals.size())
         << static_cast<std::int32_t>(kind);
  for (const std::int32_t n : whole) stream << n;
  for (const double r : reals) stream << r;
  return bytes;
}

/// The tags of such a picture, as they stand in an entity.
QByteArray pictureTags(const QList<QByteArray>& pieces) {
  const QByteArray all = pieces.join();
  QByteArray bytes;
  QDataStream stream(&bytes, QIODevice::WriteOnly);
  stream.setByteOrder(QDataStream::LittleEndian);
  stream << static_cast<std::int32_t>(all.size() + 8) << static_cast<std::int32_t>(pieces.size());
  bytes += all;
  return "160|" + QByteArray::number(bytes.size()) + "|310|" + bytes.toHex().toUpper() + '|';
}

} // namespace

TEST(KeptEntities, OfApplicationsAreShownByTheirGraphic) {
  constexpr int kCircle = 2, kPolygon = 7, kPolyline = 6, kColor = 14, kFilled = 20;
  const QByteArray graphic =
      pictureTags({piece(kPolyline, {3}, {0, 0, 0, 20, 0, 0, 20, 10, 0}), piece(kColor, {1}, {}),
                   piece(kCircle, {}, {10, 14, 0, 4, 0, 0, 1}), piece(kFilled, {1}, {}),
                   piece(kColor, {3}, {}), piece(kPolygon, {3}, {24, 0, 0, 36, 0, 0, 30, 12, 0})});
  const OdDbDatabasePtr db =
      drawingWith("0|ACME_WALL|5|F0|100|AcDbEntity|8|0|" + graphic + "100|AcmeWall|90|1");
  Scene scene(*db);
  EXPECT_TRUE(looksLike(modelPicture(*db, scene, boxOf(-2, -2, 38, 20), {400, 220}), "proxy"));
}

TEST(KeptEntities, AHelixIsShownAsTheCurveThatItIs) {
  // One turn seen from above: a cubic over four spans.
  QByteArray points;
  for (int i = 0; i < 13; ++i) {
    const double angle = 3.14159265358979 * i / 6;
    points += "10|" + QByteArray::number(10 * std::cos(angle)) + "|20|" +
              QByteArray::number(10 * std::sin(angle)) + "|30|" + QByteArray::number(i) + '|';
  }
  QByteArray knots;
  for (int i = 0; i < 17; ++i) knots += "40|" + QByteArray::number(std::clamp(i - 3, 0, 10)) + '|';
  const OdDbDatabasePtr db =
      drawingWith(head("HELIX") + "100|AcDbSpline|70|8|71|3|72|17|73|13|74|0|" + knots + points +
                  "100|AcDbHelix|90|29|91|63|10|0.0|20|0.0|30|0.0|11|10.0|21|0.0|31|0.0|12|0.0|22|"
                  "0.0|32|1.0|40|10.0|41|1.0|42|12.0|290|1|280|1");
  Scene scene(*db);
  EXPECT_TRUE(looksLike(modelPicture(*db, scene, boxOf(-12, -12, 12, 12), {240, 240}), "helix"));
}

TEST(ExternalReferences, AreShownWithTheirLayersAndTheNestedOnes) {
  const QTemporaryDir folder;
  const auto line = [](OdDbDatabase& db, const OdGePoint3d& from, const OdGePoint3d& to,
                       int color) {
    const auto layer = odrxMake<OdDbLayerTableRecord>();
    layer->setName(QStringLiteral("Walls"));
    layer->setColor(OdCmColor::fromColorIndex(color));
    const auto entity = odrxMake<OdDbLine>(from, to);
    entity->setLayer(db.getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite)->add(layer));
    db.getModelSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->appendOdDbEntity(entity);
  };
  const auto refer = [](OdDbDatabase& db, const OdString& file, const OdGePoint3d& at) {
    const OdDbObjectId block = OdDbXRefMan::attach(db, file, OdString(), false);
    const auto insert = odrxMake<OdDbBlockReference>(block, at);
    db.getModelSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->appendOdDbEntity(insert);
    return insert;
  };
  const OdString inner = folder.filePath(QStringLiteral("inner.dxf"));
  const OdString outer = folder.filePath(QStringLiteral("outer.dxf"));
  const OdDbDatabasePtr nested = OdDbDatabase::createDatabase();
  line(*nested, {0, 0, 0}, {10, 10, 0}, 1);
  nested->writeFile(inner);
  const OdDbDatabasePtr shown = OdDbDatabase::createDatabase();
  line(*shown, {0, 0, 0}, {20, 0, 0}, 5);
  refer(*shown, inner, {20, 0, 0});
  shown->writeFile(outer);
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  line(*db, {0, -2, 0}, {60, -2, 0}, 3);
  refer(*db, outer, {0, 0, 0});
  refer(*db, outer, {35, 12, 0})->setRotation(0.5);
  Scene scene(*db);
  EXPECT_TRUE(looksLike(modelPicture(*db, scene, boxOf(-3, -5, 65, 38), {544, 344}), "xref"));
}

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
