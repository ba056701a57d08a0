// What files before R2000 leave out.
#include "drawing/database.h"
#include "drawing/objects/dictionary.h"

#include <gtest/gtest.h>

namespace {

/// A file of that version with these sections behind its header.
OdDbDatabasePtr read(const char* version, const QByteArray& sections) {
  return OdDbDatabase::readDxf(QByteArray("  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\n") +
                                   version + "\n  0\nENDSEC\n" + sections + "  0\nEOF\n",
                               QStringLiteral("old.dxf"));
}

QByteArray section(const char* name, const QByteArray& tags) {
  return QByteArray("  0\nSECTION\n  2\n") + name + "\n" + tags + "  0\nENDSEC\n";
}

OdDbHandle ownerOf(const OdDbDatabase& db, std::uint64_t handle) {
  return db.getOdDbObjectId(OdDbHandle(handle)).safeOpenObject()->ownerId().getHandle();
}

} // namespace

TEST(OldFiles, OwnersThatR14DoesNotNameAreFound) {
  const OdDbDatabasePtr db = read(
      "AC1014",
      section(
          "ENTITIES",
          "  0\nLINE\n  5\n28\n102\n{ACAD_XDICTIONARY\n360\nE5\n102\n}\n100\nAcDbEntity\n  8\n0\n"
          "100\nAcDbLine\n 10\n0\n 20\n0\n 11\n1\n 21\n1\n") +
          section("OBJECTS",
                  // The root, a group of the drawing within it, and one that stands before its own.
                  "  0\nDICTIONARY\n  5\nC0\n100\nAcDbDictionary\n  3\nACAD_GROUP\n350\nD0\n"
                  "  3\nMINE\n350\nD1\n"
                  "  0\nDICTIONARY\n  5\nD0\n102\n{ACAD_REACTORS\n330\nC0\n102\n}\n100\n"
                  "AcDbDictionary\n"
                  "  0\nXRECORD\n  5\nF0\n102\n{ACAD_REACTORS\n330\nD1\n102\n}\n100\nAcDbXrecord\n"
                  "  1\nx\n"
                  "  0\nDICTIONARY\n  5\nD1\n100\nAcDbDictionary\n  3\nX\n350\nF0\n"
                  "  0\nDICTIONARY\n  5\nE5\n100\nAcDbDictionary\n"));
  EXPECT_EQ(db->unknownContent(), QStringList());
  EXPECT_EQ(ownerOf(*db, 0xD0), OdDbHandle(0xC0));
  EXPECT_EQ(ownerOf(*db, 0xD1), OdDbHandle(0xC0));
  EXPECT_EQ(ownerOf(*db, 0xF0), OdDbHandle(0xD1));
  EXPECT_EQ(ownerOf(*db, 0xE5), OdDbHandle(0x28));
  EXPECT_EQ(ownerOf(*db, 0xC0), OdDbHandle());
}

TEST(OldFiles, BlocksOfR12AreNamedBeforeTheyCome) {
  const QByteArray insert = "  0\nINSERT\n  8\n0\n  2\nINNER\n 10\n0\n 20\n0\n";
  const QByteArray outer =
      "  0\nBLOCK\n  8\n0\n  2\nOUTER\n 70\n0\n 10\n0\n 20\n0\n" + insert + "  0\nENDBLK\n  8\n0\n";
  const QByteArray inner = "  0\nBLOCK\n  8\n0\n  2\nINNER\n 70\n0\n 10\n0\n 20\n0\n"
                           "  0\nPOINT\n  8\n0\n 10\n1\n 20\n2\n  0\nENDBLK\n  8\n0\n";
  const auto notesOf = [](const OdDbDatabase& db) {
    return db.readNotes().filter(QStringLiteral("INNER"));
  };
  EXPECT_EQ(notesOf(*read("AC1009", section("BLOCKS", outer + inner))), QStringList());
  // One that does not come at all is told, once.
  const QStringList told =
      notesOf(*read("AC1009", section("BLOCKS", outer) + section("ENTITIES", insert)));
  ASSERT_EQ(told.size(), 1);
  EXPECT_TRUE(told[0].endsWith(QStringLiteral("the block \"INNER\" is missing and was added")));
}

TEST(OldFiles, ArrowsThatR12DrawsByItselfAreNotMissing) {
  const OdDbDatabasePtr db =
      read("AC1009", section("TABLES", "  0\nTABLE\n  2\nDIMSTYLE\n 70\n1\n  0\nDIMSTYLE\n  2\n"
                                       "TICKS\n 70\n0\n  5\nARCHTICK\n  0\nENDTAB\n"));
  EXPECT_EQ(db->readNotes().filter(QStringLiteral("ARCHTICK")), QStringList());
}

TEST(OldFiles, TheWindowOfAnR12FileReplacesThatOfTheNewDrawing) {
  const OdDbDatabasePtr db =
      read("AC1009", section("TABLES", "  0\nTABLE\n  2\nVPORT\n 70\n1\n  0\nVPORT\n  2\n*ACTIVE\n"
                                       " 70\n0\n 40\n77\n  0\nENDTAB\n"));
  const auto windows = db->getViewportTableId().openAs<OdDbViewportTable>();
  ASSERT_EQ(windows->recordIds().size(), 1U);
  EXPECT_EQ(windows->recordIds()[0].openAs<OdDbViewportTableRecord>()->height(), 77);
}
