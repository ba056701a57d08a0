// What movements leave of entities as it stood.
#include "drawing/contents/kept_entity.h"
#include "drawing/entities/ellipse.h"
#include "drawing/entities/hatch.h"
#include "drawing/entities/recorder.h"

using namespace oddbtest;

namespace {

const OdGeMatrix3d kShift = OdGeMatrix3d::translation({5, 6, 0});
const OdGeMatrix3d kMirror = OdGeMatrix3d::mirroring({}, {3, -1, 0});
const OdGeMatrix3d kTurned = OdGeMatrix3d::rotation(kOdaPi / 6, OdGeVector3d::zAxis());

QByteArray square(const QByteArray& tags, const char* name, const char* solid) {
  return head("HATCH") + "100|AcDbHatch|10|0.0|20|0.0|30|0.0|210|0.0|220|0.0|230|1.0|2|" + name +
         "|70|" + solid +
         "|71|0|91|1|92|2|72|0|73|1|93|4|10|0.0|20|0.0|10|4.0|20|0.0|10|4.0|20|4.0|10|0.0|20|4.0|"
         "97|0|75|0|76|1|" +
         tags + "98|0";
}

/// The entity's entry of the file, a tag in each line.
QStringList entryOf(const OdDbDatabase& database, const char* name) {
  QByteArray file = database.writeDxf();
  file.replace("\r\n", "\n");
  const qsizetype from = file.indexOf(QByteArray("\n") + name + "\n", file.indexOf("\nENTITIES\n"));
  const QStringList lines =
      QString::fromUtf8(file.mid(from, file.indexOf("\n  0\n", from) - from)).split(u'\n');
  QStringList tags;
  for (qsizetype i = 2; i + 1 < lines.size(); i += 2)
    tags << lines[i].trimmed() + u' ' + lines[i + 1].trimmed();
  return tags;
}

} // namespace

TEST(MovedValues, OnlyPlacesChangeWhenAnEntityIsShifted) {
  // Directions, angles and sizes as programs write them: not of length 1, beyond a full turn.
  struct Row {
    const char* name;
    QByteArray tags;
    QList<int> places; ///< codes of x and y that move
  };
  const Row rows[] = {
      {"ELLIPSE",
       "100|AcDbEllipse|10|1.0|20|2.0|30|3.0|11|4.0|21|0.0|31|0.0|210|0.0|220|0.0|230|-1.0|40|0.5|"
       "41|0.3|42|-1.2",
       {10, 20}},
      {"ELLIPSE",
       "100|AcDbEllipse|10|1.0|20|2.0|30|3.0|11|4.0|21|0.0|31|0.0|40|1.0|41|7.0|42|9.5",
       {10, 20}},
      {"ARC", "100|AcDbCircle|10|1.0|20|2.0|30|0.0|40|3.0|100|AcDbArc|50|-30.0|51|400.0", {10, 20}},
      {"TEXT",
       "100|AcDbText|10|1.0|20|2.0|30|0.0|40|2.5|1|Note|50|-45.0|39|0.1|100|AcDbText",
       {10, 20}},
      {"MTEXT",
       "100|AcDbMText|10|1.0|20|2.0|30|0.0|40|2.5|41|30.0|71|1|72|1|1|Note|50|400.0",
       {10, 20}},
      {"MTEXT",
       "100|AcDbMText|10|1.0|20|2.0|30|0.0|40|2.5|41|30.0|71|1|72|1|1|Note|11|3.0|21|4.0|31|0.0",
       {10, 20}},
      {"XLINE", "100|AcDbXline|10|1.0|20|2.0|30|0.0|11|3.0|21|4.0|31|0.0", {10, 20}},
      {"POINT", "100|AcDbPoint|10|1.0|20|2.0|30|0.0|50|-20.0", {10, 20}},
      {"INSERT", "100|AcDbBlockReference|2|*Model_Space|10|1.0|20|2.0|30|0.0|50|-90.0", {10, 20}},
      {"LEADER",
       "100|AcDbLeader|3|Standard|71|1|72|0|73|3|74|0|75|0|40|2.0|41|5.0|76|2|10|0.0|20|0.0|30|0.0|"
       "10|1.0|20|1.0|30|0.0|211|2.0|221|0.0|231|0.0",
       {10, 20}},
  };
  for (const Row& row : rows) {
    const OdDbDatabasePtr db = drawingWith(head(row.name) + row.tags);
    const QStringList before = entryOf(*db, row.name);
    ASSERT_TRUE(first(*db)->transformBy(kShift)) << row.name;
    const QStringList after = entryOf(*db, row.name);
    ASSERT_EQ(after.size(), before.size()) << row.name;
    int moved = 0;
    for (qsizetype i = 0; i < before.size(); ++i) {
      const bool isPlace = row.places.contains(before[i].section(u' ', 0, 0).toInt());
      moved += isPlace ? 1 : 0;
      EXPECT_EQ(after[i] != before[i], isPlace)
          << row.name << ": " << before[i].toStdString() << " became " << after[i].toStdString();
    }
    EXPECT_GE(moved, 2) << row.name;
  }
}

TEST(MovedValues, EllipsesAreSeenFromTheSideFromWhichTheyWere) {
  const OdGeVector3d below{0, 0, -1};
  for (const OdGeMatrix3d& transform :
       {kTurned, kMirror, kShift * OdGeMatrix3d::scaling(2), OdGeMatrix3d::scaling(2, 3, 1)})
    for (const OdGeVector3d& normal : {below, OdGeVector3d::zAxis()}) {
      const auto ellipse =
          odrxMake<OdDbEllipse>(OdGePoint3d{1, 2, 3}, normal, OdGeVector3d{4, 3, 0}, 0.6, 0.5, 2.0);
      const OdGePoint3d middle = transform * ellipse->getPointAtParam(1.25);
      const OdGePoint3d ends[] = {transform * ellipse->getStartPoint(),
                                  transform * ellipse->getEndPoint()};
      ASSERT_TRUE(ellipse->transformBy(transform));
      EXPECT_EQ(ellipse->normal(), normal);
      const bool mirrors = transform.det() < 0;
      expectNear(mirrors ? ellipse->getEndPoint() : ellipse->getStartPoint(), ends[0]);
      expectNear(mirrors ? ellipse->getStartPoint() : ellipse->getEndPoint(), ends[1]);
      if (transform.isUniScaledOrtho()) {
        expectNear(
            ellipse->getPointAtParam((ellipse->getStartParam() + ellipse->getEndParam()) / 2),
            middle);
        EXPECT_EQ(ellipse->radiusRatio(), 0.6);
      }
    }
}

TEST(MovedValues, FillingsGetNoValuesOfPatterns) {
  const QByteArray gradient = "450|1|451|0|460|0.5|461|0.0|452|0|462|0.0|453|2|463|0.0|421|255|463|"
                              "1.0|421|65280|470|LINEAR";
  for (const QByteArray& more : {QByteArray(), gradient})
    for (const OdGeMatrix3d& transform :
         {kShift, kTurned, kMirror, OdGeMatrix3d::scaling(2), OdGeMatrix3d::scaling(2, 1, 1)}) {
      const OdDbDatabasePtr db =
          drawingWith(square({}, "SOLID", "1") + (more.isEmpty() ? "" : "|" + more));
      ASSERT_TRUE(first(*db)->transformBy(transform));
      for (const int code : {52, 41, 77}) EXPECT_EQ(valuesOf(*db, "HATCH", code), "") << code;
    }
  // What a file told of it stays.
  const OdDbDatabasePtr told = drawingWith(square("52|30.0|41|2.0|77|0|", "SOLID", "1"));
  ASSERT_TRUE(first(*told)->transformBy(kTurned * OdGeMatrix3d::scaling(2)));
  EXPECT_EQ(valuesOf(*told, "HATCH", 52), "30");
  EXPECT_EQ(valuesOf(*told, "HATCH", 41), "2");
  // A pattern turns and grows.
  const OdDbDatabasePtr lines = drawingWith(
      square("52|30.0|41|2.0|77|0|78|1|53|30.0|43|0.0|44|0.0|45|-1.0|46|1.0|79|0|", "LINES", "0"));
  ASSERT_TRUE(first(*lines)->transformBy(kTurned * OdGeMatrix3d::scaling(2)));
  EXPECT_EQ(valuesOf(*lines, "HATCH", 52), "60");
  EXPECT_EQ(valuesOf(*lines, "HATCH", 41), "4");
}

TEST(MovedValues, NoZeroIsNegative) {
  const QByteArray flat[] = {
      head("CIRCLE") + "100|AcDbCircle|10|1.0|20|2.0|30|0.0|40|3.0",
      head("ARC") + "100|AcDbCircle|10|1.0|20|2.0|30|0.0|40|3.0|100|AcDbArc|50|30.0|51|90.0",
      head("LWPOLYLINE") +
          "100|AcDbPolyline|90|3|70|1|10|0.0|20|0.0|10|1.0|20|0.0|42|0.5|10|1.0|20|1.0",
      head("MTEXT") + "100|AcDbMText|10|1.0|20|2.0|30|0.0|40|2.5|71|1|1|Note|11|1.0|21|0.0|31|0.0",
      head("INSERT") + "100|AcDbBlockReference|2|*Model_Space|10|1.0|20|2.0|30|0.0",
      head("TOLERANCE") + "100|AcDbFcf|3|Standard|10|1.0|20|2.0|30|0.0|1|A|210|0.0|220|0.0|230|1.0|"
                          "11|1.0|21|0.0|31|0.0",
      square({}, "SOLID", "1"),
      leaderWithText(),
  };
  for (const QByteArray& tags : flat)
    for (const OdGeMatrix3d& transform :
         {kTurned, kMirror, OdGeMatrix3d::mirroring({}, OdGeVector3d::xAxis()),
          OdGeMatrix3d::mirroring({}, OdGeVector3d::zAxis())}) {
      const OdDbDatabasePtr db = drawingWith(tags);
      const QByteArray name = tags.split('|').at(1);
      ASSERT_TRUE(first(*db)->transformBy(transform)) << name.constData();
      for (const QString& tag : entryOf(*db, name.constData()))
        EXPECT_FALSE(tag.endsWith(QLatin1String(" -0.0")))
            << name.constData() << ": " << tag.toStdString();
    }
}
