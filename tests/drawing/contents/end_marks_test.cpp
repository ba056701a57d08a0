// Corners of polylines and attributes of inserts, which end with a mark of their own.
#include "drawing/contents/kept_entity.h"

using namespace oddbtest;

TEST(EndMarks, AreAddedWhereAFileLacksThem) {
  const QByteArray corner = "0|VERTEX|5|F1|330|F0|100|AcDbEntity|8|0|100|AcDbVertex|100|"
                            "AcDb3dPolylineVertex|10|1.0|20|2.0|30|0.0|70|32|";
  const QByteArray path =
      head("POLYLINE") + "100|AcDb3dPolyline|66|1|10|0.0|20|0.0|30|0.0|70|8|" + corner;
  const QByteArray insert =
      head("INSERT") + "100|AcDbBlockReference|66|1|2|*Model_Space|10|0.0|20|0.0|30|0.0|" +
      head("ATTRIB", "F1") +
      "100|AcDbText|10|0.0|20|0.0|30|0.0|40|1.0|1|x|100|AcDbAttribute|2|T|70|0|";
  for (const QByteArray& tags : {path, insert}) {
    // At the end of the entities, and before another one.
    for (const QByteArray& more :
         {QByteArray(), head("POINT", "F9") + "100|AcDbPoint|10|0.0|20|0.0|30|0.0|"}) {
      const OdDbDatabasePtr db = drawingWith((tags + more).chopped(1));
      const QByteArray file = db->writeDxf();
      const qsizetype end = file.indexOf("\nSEQEND\n");
      ASSERT_GE(end, 0);
      EXPECT_TRUE(file.mid(end, 16).startsWith("\nSEQEND\n  5\n")) << "it has a handle";
      EXPECT_EQ(file.count("\nSEQEND\n"), 1);
      EXPECT_EQ(OdDbDatabase::readDxf(file, QStringLiteral("again"))->writeDxf(), file);
    }
  }
}
