// What programs in the field can hand us.
#include "drawing/database.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace {

OdString messageOf(const QByteArray& bytes) {
  try {
    OdDbDatabase::readDxf(bytes, QStringLiteral("bad.dxf"));
  } catch (const OdDbFileError& e) {
    return e.description();
  }
  return {};
}

/// A whole drawing with `entities` in its model space.
QByteArray drawingWith(const QByteArray& entities) {
  QByteArray text = OdDbDatabase::createDatabase()->writeDxf();
  return text.replace("  2\nENTITIES\n", "  2\nENTITIES\n" + entities);
}

QByteArray line(const QByteArray& handle, const QByteArray& x) {
  return "  0\nLINE\n  5\n" + handle + "\n330\n1F\n100\nAcDbEntity\n  8\n0\n100\nAcDbLine\n 10\n" +
         x + "\n 20\n2\n 30\n0\n 11\n3\n 21\n4\n 31\n0\n";
}

std::size_t entitiesIn(const OdDbDatabasePtr& db) {
  return db->getModelSpaceId().openAs<OdDbBlockTableRecord>()->entityIds().size();
}

OdDbDatabasePtr read(const QByteArray& bytes) {
  return OdDbDatabase::readDxf(bytes, QStringLiteral("bad.dxf"));
}

} // namespace

TEST(HostileDrawing, WhatIsNoDrawingIsRefusedWithItsPathLineAndReason) {
  EXPECT_EQ(messageOf(""), QLatin1String("bad.dxf:1: the file is empty"));
  EXPECT_EQ(messageOf("%PDF-1.4\n"),
            QLatin1String("bad.dxf:1: this is a PDF document and not a drawing"));
  EXPECT_TRUE(messageOf("AC1032\0\0\0").contains(QLatin1String("DWG")));
  EXPECT_TRUE(messageOf("hello\nworld\n").contains(QLatin1String("\"hello\" stands where")));
  EXPECT_TRUE(messageOf(QByteArray(1'000'000, 'x')).startsWith(QLatin1String("bad.dxf:1: ")));
  EXPECT_TRUE(messageOf("0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC9999\n0\nENDSEC\n0\nEOF\n")
                  .contains(QLatin1String("AC9999")));
}

TEST(HostileDrawing, GroupCodeThatIsNoNumberIsToldWithItsLine) {
  const OdString message = messageOf("0\nSECTION\n2\nTABLES\nabc\nTABLE\n");
  EXPECT_EQ(message, QLatin1String("bad.dxf:5: \"abc\" stands where a group code is expected"));
}

TEST(HostileDrawing, CutAnywhereItIsRefusedOrOpensWithAReport) {
  const QByteArray whole = drawingWith(line("100", "1") + line("101", "2"));
  const qsizetype entities = whole.indexOf("ENTITIES");
  int opened = 0;
  for (qsizetype size = 0; size < whole.size() - 4; size += 37) {
    try {
      const OdDbDatabasePtr db = read(whole.left(size));
      EXPECT_FALSE(db->unknownContent().isEmpty()) << size;
      EXPECT_GT(size, entities);
      db->writeDxf();
      ++opened;
    } catch (const OdDbFileError& e) {
      EXPECT_TRUE(e.path().startsWith(QLatin1String("bad.dxf"))) << size;
    }
  }
  EXPECT_GT(opened, 0);
}

TEST(HostileDrawing, EntityWithANumberThatIsNotFiniteIsLeftOutAndTold) {
  for (const char* bad : {"nan", "inf", "-inf", "1e999", "", "1.2.3", "zero"}) {
    const OdDbDatabasePtr db = read(drawingWith(line("100", bad) + line("101", "2")));
    EXPECT_EQ(entitiesIn(db), 1u) << bad;
    ASSERT_FALSE(db->unknownContent().isEmpty());
    EXPECT_TRUE(db->unknownContent()[0].contains(QLatin1String("group code 10"))) << bad;
  }
}

TEST(HostileDrawing, DuplicateHandleGetsANewOneAndIsTold) {
  const OdDbDatabasePtr db = read(drawingWith(line("100", "1") + line("100", "2")));
  EXPECT_EQ(entitiesIn(db), 2u);
  ASSERT_EQ(db->unknownContent().size(), 1);
  EXPECT_TRUE(db->unknownContent()[0].contains(QLatin1String("handle 100")));
}

TEST(HostileDrawing, HandleAtTheEndOfTheRangeLeavesRoomForNewOnes) {
  const OdDbDatabasePtr db = read(drawingWith(line("FFFFFFFFFFFFFFFF", "1")));
  EXPECT_EQ(db->unknownContent().size(), 1);
  const auto space = db->getModelSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  EXPECT_FALSE(space->appendOdDbEntity(odrxMake<OdDbLine>()).isNull());
}

TEST(HostileDrawing, VertexCountOfTwoBillionTakesNoMemory) {
  const OdDbDatabasePtr db =
      read(drawingWith("  0\nLWPOLYLINE\n  5\n100\n330\n1F\n100\nAcDbEntity\n  8\n0\n100\n"
                       "AcDbPolyline\n 90\n2000000000\n 70\n0\n 10\n1\n 20\n2\n"));
  const auto space = db->getModelSpaceId().openAs<OdDbBlockTableRecord>();
  EXPECT_EQ(space->entityIds().at(0).openAs<OdDbPolyline>()->numVerts(), 1u);
}

TEST(HostileDrawing, MillionEmptySectionsAreNothing) {
  QByteArray text = OdDbDatabase::createDatabase()->writeDxf();
  QByteArray sections;
  for (int i = 0; i < 1'000'000; ++i) sections += "0\nSECTION\n0\nENDSEC\n";
  text.replace("  0\nEOF\n", sections + "  0\nEOF\n");
  EXPECT_EQ(read(text)->unknownContent(), QStringList());
}

TEST(HostileDrawing, UnknownLayerIsMadeAndNoted) {
  const OdDbDatabasePtr db =
      read(drawingWith(line("100", "1").replace("  8\n0\n", "  8\nNOWHERE\n")));
  EXPECT_EQ(db->unknownContent(), QStringList());
  EXPECT_EQ(db->readNotes().size(), 1);
  EXPECT_TRUE(db->getLayerTableId().openAs<OdDbLayerTable>()->has(QStringLiteral("nowhere")));
}

TEST(HostileDrawing, LayersThatStandBeforeTheirLineTypesKeepThem) {
  QByteArray text = OdDbDatabase::createDatabase()->writeDxf();
  const QByteArray end = "  0\nENDTAB\n";
  const qsizetype from = text.indexOf("  0\nTABLE\n  2\nLTYPE\n");
  const QByteArray linetypes = text.mid(from, text.indexOf(end, from) + end.size() - from);
  text.remove(from, linetypes.size());
  const OdDbDatabasePtr without = read(text);
  EXPECT_EQ(without->unknownContent(), QStringList());
  EXPECT_FALSE(without->readNotes().isEmpty());
  const qsizetype layers = text.indexOf("  0\nTABLE\n  2\nLAYER\n");
  text.insert(text.indexOf(end, layers) + end.size(), linetypes);
  for (const OdDbDatabasePtr& db : {without, read(text)}) {
    EXPECT_EQ(db->unknownContent(), QStringList());
    const auto zero = db->getLayerZeroId().openAs<OdDbLayerTableRecord>();
    EXPECT_EQ(zero->linetypeObjectId(), db->getLinetypeContinuousId());
    EXPECT_EQ(read(db->writeDxf())->readNotes(), QStringList());
  }
}

TEST(HostileDrawing, UnknownCodePageIsTold) {
  QByteArray text = OdDbDatabase::createDatabase()->writeDxf(OdDb::kR2000);
  text.replace("ANSI_1252", "ANSI_0000");
  const OdDbDatabasePtr db = read(text);
  EXPECT_EQ(db->unknownContent(), QStringList());
  ASSERT_EQ(db->readNotes().size(), 1);
  EXPECT_TRUE(db->readNotes()[0].contains(QLatin1String("ANSI_0000")));
}

TEST(HostileDrawing, BytesOutsideOfTheEncodingAreTold) {
  const OdDbDatabasePtr db =
      read(drawingWith(line("100", "1").replace("  8\n0\n", "  8\nW\xE4nde\n")));
  EXPECT_EQ(db->unknownContent().size(), 1);
}

TEST(HostileDrawing, SectionsNobodyKnowsAreWrittenBack) {
  const QByteArray section = "  0\nSECTION\n  2\nMYSTERY\n  0\nTHING\n  1\nvalue\n  0\nENDSEC\n";
  QByteArray text = OdDbDatabase::createDatabase()->writeDxf();
  text.replace("  0\nEOF\n", section + "  0\nEOF\n");
  const OdDbDatabasePtr db = read(text);
  EXPECT_EQ(db->unknownContent(), QStringList());
  EXPECT_TRUE(db->writeDxf() == text);
}

TEST(HostileDrawing, LineEndsAndByteOrderMarkDoNotMatter) {
  const QByteArray text = drawingWith(line("100", "1"));
  QByteArray windows = "\xEF\xBB\xBF" + text;
  windows.replace("\n", "\r\n");
  const OdDbDatabasePtr db = read(windows);
  EXPECT_EQ(db->unknownContent(), QStringList());
  EXPECT_TRUE(db->writeDxf() == read(text)->writeDxf());
}

TEST(HostileDrawing, FolderAndMissingFileAreToldApart) {
  QTemporaryDir folder;
  EXPECT_THROW(OdDbDatabase::readFile(folder.path()), OdFileError);
  try {
    OdDbDatabase::readFile(folder.filePath(QStringLiteral("none.dxf")));
    FAIL();
  } catch (const OdFileError& e) {
    EXPECT_EQ(e.code(), eFileNotFound);
  }
  EXPECT_THROW(OdDbDatabase::readFile(QStringLiteral("/dev/zero")), OdFileError);
}

TEST(HostileDrawing, SavesOfOddPlacesAreReadAsTheyWereMeant) {
  const QByteArray old = "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1009\n0\nENDSEC\n";
  const QByteArray today = "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1032\n0\nENDSEC\n";
  const QByteArray odd[] = {
      // A vertex of no polyline.
      old + "0\nSECTION\n2\nENTITIES\n0\nVERTEX\n5\n95\n8\n0\n10\n1.0\n20\n1.0\n30\n0.0\n70\n0\n"
            "0\nENDSEC\n0\nEOF\n",
      // A dash's offset before the first dash.
      today +
          "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLTYPE\n5\n5\n0\nLTYPE\n5\n32\n100\n"
          "AcDbSymbolTableRecord\n100\nAcDbLinetypeTableRecord\n2\nD\n70\n0\n44\n65\n3\n\n72\n65\n"
          "73\n1\n40\n4.5\n49\n3.0\n74\n0\n0\nENDTAB\n0\nENDSEC\n0\nEOF\n",
      // A group of an application without its end.
      today +
          "0\nSECTION\n2\nOBJECTS\n0\nIMAGEDEF\n5\n94\n102\n{ACAD_X\n1\nhere\n0\nXRECORD\n5\n95\n"
          "0\nENDSEC\n0\nEOF\n",
  };
  for (const QByteArray& file : odd) {
    const OdDbDatabasePtr db = read(file);
    EXPECT_EQ(db->unknownContent(), QStringList()) << file.constData();
    const QByteArray saved = db->writeDxf();
    const OdDbDatabasePtr again = read(saved);
    EXPECT_EQ(again->readNotes(), QStringList()) << file.constData();
    EXPECT_TRUE(again->writeDxf() == saved) << file.constData();
  }
}
