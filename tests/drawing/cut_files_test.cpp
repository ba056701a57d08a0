// Small drawings that end at every one of their bytes.
#include "drawing/database.h"
#include "drawing/support/binary_drawing.h"

#include <gtest/gtest.h>

namespace {

/// All that can be cut differently: a header, records, entities of several kinds, objects.
constexpr char kSmall[] =
    "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  9\n$LTSCALE\n 40\n2.5\n  0\nENDSEC\n"
    "  0\nSECTION\n  2\nTABLES\n  0\nTABLE\n  2\nLAYER\n  5\n2\n330\n0\n100\nAcDbSymbolTable\n"
    " 70\n1\n  0\nLAYER\n  5\n10\n330\n2\n100\nAcDbSymbolTableRecord\n100\nAcDbLayerTableRecord\n"
    "  2\nW\n 70\n0\n 62\n7\n  6\nContinuous\n  0\nENDTAB\n  0\nENDSEC\n"
    "  0\nSECTION\n  2\nENTITIES\n"
    "  0\nLINE\n  5\nA1\n100\nAcDbEntity\n  8\nW\n100\nAcDbLine\n 10\n1.5\n 20\n-2\n 30\n0\n"
    " 11\n3e2\n 21\n4\n 31\n0\n"
    "  0\nLWPOLYLINE\n  5\nA2\n100\nAcDbEntity\n  8\nW\n100\nAcDbPolyline\n 90\n2\n 70\n1\n"
    " 10\n1\n 20\n2\n 42\n0.5\n 10\n3\n 20\n4\n"
    "  0\nTEXT\n  5\nA3\n100\nAcDbEntity\n  8\nW\n100\nAcDbText\n 10\n1\n 20\n2\n 40\n2.5\n"
    "  1\nwords\\U+00E4\n100\nAcDbText\n"
    "  0\nMYSTERY\n  5\nA4\n102\n{ACAD_REACTORS\n330\nA1\n102\n}\n100\nAcDbEntity\n  8\nW\n"
    "100\nAcDbMystery\n310\n0102\n1001\nACAD\n1070\n7\n  0\nENDSEC\n"
    "  0\nSECTION\n  2\nOBJECTS\n  0\nDICTIONARY\n  5\nC\n330\n0\n100\nAcDbDictionary\n281\n1\n"
    "  3\nNAME\n350\nD\n  0\nDICTIONARY\n  5\nD\n330\nC\n100\nAcDbDictionary\n  0\nENDSEC\n"
    "  0\nEOF\n";

/// Opens `whole` cut at each byte. Gives how many of the pieces could be opened.
int openEveryPiece(const QByteArray& whole, qsizetype unseenEnd) {
  int opened = 0;
  for (qsizetype size = 0; size < whole.size(); ++size) {
    try {
      const OdDbDatabasePtr db = OdDbDatabase::readDxf(whole.left(size), QStringLiteral("cut.dxf"));
      EXPECT_EQ(db->unknownContent().isEmpty(), size >= whole.size() - unseenEnd) << size;
      ++opened;
      // What is left of it is a drawing like any other.
      if (size % 16 != 0) continue;
      const QByteArray saved = db->writeDxf();
      const OdDbDatabasePtr back = OdDbDatabase::readDxf(saved, QStringLiteral("saved.dxf"));
      EXPECT_EQ(back->unknownContent(), QStringList()) << size;
    } catch (const OdFileError& e) {
      EXPECT_TRUE(e.path().startsWith(QLatin1String("cut.dxf"))) << size;
      EXPECT_FALSE(e.reason().isEmpty()) << size;
    }
  }
  return opened;
}

} // namespace

TEST(CutFiles, TextCutAtAnyByteIsRefusedOrOpensWithAReport) {
  const QByteArray whole = kSmall;
  ASSERT_EQ(OdDbDatabase::readDxf(whole, QStringLiteral("whole.dxf"))->unknownContent(),
            QStringList());
  // The last line end may be missing.
  EXPECT_GT(openEveryPiece(whole, 1), 500);
}

TEST(CutFiles, BinaryFileCutAtAnyByteIsRefusedOrOpensWithAReport) {
  const QByteArray whole = binaryDrawing(kSmall);
  ASSERT_EQ(OdDbDatabase::readDxf(whole, QStringLiteral("whole.dxf"))->unknownContent(),
            QStringList());
  EXPECT_GT(openEveryPiece(whole, 0), 400);
}

TEST(CutFiles, CutInARecordSaysSoAndNotWhatTheRecordLacks) {
  const QByteArray whole = kSmall;
  const qsizetype name = whole.indexOf("AcDbLayerTableRecord\n") + 21;
  try {
    OdDbDatabase::readDxf(whole.left(name), QStringLiteral("cut.dxf"));
    FAIL() << "opened without its tables";
  } catch (const OdFileError& e) {
    EXPECT_EQ(e.reason(), QStringLiteral("the file ends too early"));
  }
}
