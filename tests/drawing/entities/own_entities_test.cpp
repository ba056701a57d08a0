// Entities that we made, read by another program.
#include "drawing/database.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/attribute_definition.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/ellipse.h"
#include "drawing/entities/leader.h"
#include "drawing/entities/line.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/point.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/polyline2d.h"
#include "drawing/entities/solid.h"
#include "drawing/entities/spline.h"

#include "drawing/entities/python_script.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

namespace {

const OdGeVector3d kZ = OdGeVector3d::zAxis();

/// One of each, in a new drawing.
OdDbDatabasePtr drawing() {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const auto space = db->getModelSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  const auto add = [&](const OdDbEntityPtr& entity) {
    entity->setDatabaseDefaults(*db);
    space->appendOdDbEntity(entity);
  };
  add(odrxMake<OdDbLine>(OdGePoint3d{1, 2, 3}, OdGePoint3d{4, 5, 6}));
  add(odrxMake<OdDbCircle>(OdGePoint3d{1, 2, 3}, kZ, 4));
  add(odrxMake<OdDbArc>(OdGePoint3d{1, 2, 3}, kZ, 4, kOdaPi / 6, kOdaPi));
  add(odrxMake<OdDbEllipse>(OdGePoint3d{1, 2, 3}, kZ, OdGeVector3d{4, 0, 0}, 0.5, 0, 2));
  add(odrxMake<OdDbSpline>(std::vector<OdGePoint3d>{{0, 0, 0}, {1, 2, 0}, {3, 1, 0}, {4, 4, 0}}));
  add(odrxMake<OdDbSpline>(2, std::vector<OdGePoint3d>{{0, 0, 0}, {1, 2, 0}, {3, 1, 0}},
                           std::vector<double>{0, 0, 0, 1, 1, 1}, std::vector<double>{1, 2, 1}));
  add(odrxMake<OdDbPoint>(OdGePoint3d{7, 8, 9}));
  add(odrxMake<OdDbSolid>(OdGePoint3d{0, 0, 0}, OdGePoint3d{4, 0, 0}, OdGePoint3d{0, 3, 0},
                          OdGePoint3d{4, 3, 0}));
  const auto light = odrxMake<OdDbPolyline>();
  light->addVertexAt(0, {0, 0}, 0.5, 1, 2);
  light->addVertexAt(1, {5, 0});
  add(light);
  for (const auto kind : {OdDb2dPolyline::k2d, OdDb2dPolyline::k3d, OdDb2dPolyline::kMesh}) {
    const auto poly = odrxMake<OdDb2dPolyline>(kind);
    for (int i = 0; i < 4; ++i) poly->addVertexAt(poly->numVerts(), {1.0 * i, 1.0 * (i % 2), 0});
    if (kind == OdDb2dPolyline::kMesh) poly->setMeshSize(2, 2);
    add(poly);
  }
  const auto mtext = odrxMake<OdDbMText>();
  mtext->setContents(QStringLiteral("Größe\\P") + QString(600, u'x'));
  mtext->setLocation({3, 2, 1});
  mtext->setWidth(40);
  mtext->setRotation(kOdaPi / 4);
  mtext->setAttachment(OdDbMText::kMiddleRight);
  mtext->setBackgroundFill(true);
  mtext->setBackgroundFillColor(OdCmColor::fromRgb(10, 20, 30));
  add(mtext);
  const auto definition = odrxMake<OdDbAttributeDefinition>();
  definition->setTag(QStringLiteral("NUMBER"));
  definition->setPrompt(QStringLiteral("Which?"));
  definition->setTextString(QStringLiteral("12"));
  definition->setPreset(true);
  add(definition);
  const auto leader = odrxMake<OdDbLeader>();
  leader->appendVertex({0, 0, 0});
  leader->appendVertex({5, 5, 0});
  add(leader);
  return db;
}

QJsonArray readByOthers(const OdDbDatabasePtr& db, OdDb::DwgVersion version) {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("ours.dxf"));
  db->writeFile(path, version);
  const QByteArray text = runScript("entities_a.py", {QStringLiteral("show"), path});
  const QJsonDocument shown = QJsonDocument::fromJson(text);
  // What stands before it are problems that the other program found.
  EXPECT_TRUE(shown.isArray()) << text.left(2000).toStdString();
  return shown.array();
}

std::vector<double> numbers(const QJsonValue& value) {
  std::vector<double> all;
  for (const QJsonValue& v : value.toArray()) all.push_back(v.toDouble());
  return all;
}

using Numbers = std::vector<double>;

} // namespace

class OwnEntities : public testing::TestWithParam<OdDb::DwgVersion> {};

TEST_P(OwnEntities, AreWhatWasMade) {
  const QJsonArray all = readByOthers(drawing(), GetParam());
  ASSERT_EQ(all.size(), 15);
  const auto at = [&](int index, const char* name) {
    return all[index].toObject().value(QLatin1String(name));
  };
  const char* const kTypes[] = {"LINE",     "CIRCLE",   "ARC",   "ELLIPSE",    "SPLINE",
                                "SPLINE",   "POINT",    "SOLID", "LWPOLYLINE", "POLYLINE",
                                "POLYLINE", "POLYLINE", "MTEXT", "ATTDEF",     "LEADER"};
  for (int i = 0; i < 15; ++i) EXPECT_EQ(at(i, "type").toString(), QLatin1String(kTypes[i]));
  EXPECT_EQ(numbers(at(0, "end")), Numbers({4, 5, 6}));
  EXPECT_EQ(at(1, "radius").toDouble(), 4);
  EXPECT_EQ(at(2, "start_angle").toDouble(), 30);
  EXPECT_EQ(numbers(at(3, "major_axis")), Numbers({4, 0, 0}));
  EXPECT_EQ(at(4, "fit_points").toArray().size(), 4);
  EXPECT_EQ(numbers(at(5, "weights")), Numbers({1, 2, 1}));
  EXPECT_EQ(numbers(at(6, "location")), Numbers({7, 8, 9}));
  EXPECT_EQ(numbers(at(7, "vtx3")), Numbers({4, 3, 0}));
  EXPECT_EQ(numbers(at(8, "points").toArray()[0]), Numbers({0, 0, 1, 2, 0.5}));
  EXPECT_EQ(at(9, "vertices").toArray().size(), 4);
  EXPECT_EQ(at(10, "flags").toInt(), 8);
  EXPECT_EQ(at(11, "m_count").toInt(), 2);
  EXPECT_EQ(at(12, "text").toString(), QStringLiteral("Größe\\P") + QString(600, u'x'));
  EXPECT_NEAR(at(12, "rotation").toDouble(), 45, 1e-9);
  EXPECT_EQ(at(12, "attachment_point").toInt(), 6);
  if (GetParam() >= OdDb::kR2004) {
    EXPECT_EQ(at(12, "bg_fill_true_color").toInt(), 0x0A141E);
  }
  EXPECT_EQ(at(13, "tag").toString(), QStringLiteral("NUMBER"));
  EXPECT_EQ(at(13, "prompt").toString(), QStringLiteral("Which?"));
  EXPECT_EQ(at(13, "flags").toInt(), 8);
  EXPECT_EQ(at(14, "vertices").toArray().size(), 2);
}

INSTANTIATE_TEST_SUITE_P(Versions, OwnEntities,
                         testing::Values(OdDb::kR2000, OdDb::kR2007, OdDb::kR2010, OdDb::kR2013,
                                         OdDb::kR2018));
