// Views of windows on sheets, in files that have them as extended data.
#include "drawing/database.h"
#include "drawing/entities/python_script.h"
#include "drawing/entities/viewport.h"

#include <QTemporaryDir>

namespace {

/// A window on the sheet of a file of that version. `more` stands in its subclass, `data` behind.
OdDbDatabasePtr read(const char* version, const QByteArray& more, const QByteArray& data) {
  return OdDbDatabase::readDxf(QByteArray("  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\n") +
                                   version +
                                   "\n  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n  0\nVIEWPORT\n  "
                                   "5\n2E\n100\nAcDbEntity\n 67\n1\n"
                                   "  8\n0\n100\nAcDbViewport\n 10\n105\n 20\n80\n 30\n0\n "
                                   "40\n200\n 41\n150\n 68\n1\n 69\n2\n" +
                                   more + data + "  0\nENDSEC\n  0\nEOF\n",
                               QStringLiteral("old.dxf"));
}

OdDbViewportPtr windowOf(const OdDbDatabase& db) {
  return db.getOdDbObjectId(OdDbHandle(0x2E)).openAs<OdDbViewport>();
}

/// The data, with a height, a mode and a layer.
QByteArray view(const char* height, const char* mode = "0", const char* layer = "Doors") {
  return QByteArray(
             "1001\nACAD\n1000\nMVIEW\n1002\n{\n1070\n16\n1010\n1\n1020\n2\n1030\n3\n1010\n0\n"
             "1020\n0\n1030\n1\n1040\n90\n1040\n") +
         height + "\n1040\n50\n1040\n25\n1040\n50\n1040\n0\n1040\n0\n1070\n" + mode +
         "\n1070\n100\n1070\n1\n1070\n3\n1070\n0\n1070\n1\n1070\n1\n1070\n2\n1040\n45\n1040\n0\n"
         "1040\n0\n1040\n1\n1040\n1\n1040\n2\n1040\n2\n1070\n1\n1002\n{\n1003\n" +
         layer + "\n1002\n}\n1002\n}\n";
}

} // namespace

TEST(OldView, OfR14IsTaken) {
  const OdDbDatabasePtr db = read("AC1014", "", view("60", "25") + "1000\nmine\n");
  const OdDbViewportPtr window = windowOf(*db);
  EXPECT_EQ(window->viewHeight(), 60);
  EXPECT_EQ(window->viewCenter(), (OdGePoint2d{50, 25}));
  EXPECT_EQ(window->viewTarget(), (OdGePoint3d{1, 2, 3}));
  EXPECT_NEAR(window->twistAngle(), kOdaPi / 2, 1e-15);
  EXPECT_EQ(window->statusFlags(),
            25 | 0x80 | 0x20 | 0x40 | 0x200 | 0x400 | 0x2000 | 0x800 | 0x8000);
  const OdDbObjectId doors =
      db->getLayerTableId().openAs<OdDbLayerTable>()->getAt(QStringLiteral("Doors"));
  EXPECT_TRUE(window->isLayerFrozen(doors));
  // What else the application keeps stays.
  const QByteArray saved = db->writeDxf(OdDb::kR2000);
  EXPECT_TRUE(saved.contains("1001\nACAD\n1000\nmine\n")) << saved.toStdString();
  EXPECT_FALSE(saved.contains("MVIEW"));
}

TEST(OldView, YieldsToThatOfNewerFiles) {
  const QByteArray newer = " 12\n7\n 22\n8\n 45\n9\n";
  const OdDbDatabasePtr db = read("AC1015", newer, view("60"));
  EXPECT_EQ(windowOf(*db)->viewHeight(), 9);
  EXPECT_EQ(windowOf(*db)->viewCenter(), (OdGePoint2d{7, 8}));
  EXPECT_TRUE(windowOf(*db)->frozenLayers().empty());
  EXPECT_TRUE(db->writeDxf().contains("MVIEW"));
}

TEST(OldView, ThatIsDamagedIsToldAndKept) {
  QByteArray cut = view("60");
  cut.truncate(cut.indexOf("1070\n100\n"));
  for (const QByteArray& data :
       {view("0"), view("-1"), view("nan"), view("1e999"), view("x"), cut}) {
    const OdDbDatabasePtr db = read("AC1014", "", data);
    EXPECT_FALSE(db->readNotes().filter(QStringLiteral("view of a window")).isEmpty());
    EXPECT_EQ(windowOf(*db)->viewHeight(), 1);
    EXPECT_TRUE(db->writeDxf(OdDb::kR2000).contains("MVIEW"));
  }
}

TEST(OldView, OfR12IsAsAnotherProgramSeesIt) {
  QTemporaryDir folder;
  const QString theirs = folder.filePath(QStringLiteral("theirs.dxf"));
  const QString ours = folder.filePath(QStringLiteral("ours.dxf"));
  runScript("old_views.py", {QStringLiteral("make"), theirs});
  OdDbDatabase::readFile(theirs)->writeFile(ours);
  EXPECT_EQ(runScript("old_views.py", {QStringLiteral("compare"), ours}).toStdString(), "");
}
