// External references of drawings that are opened.
#include "block_fixture.h"

#include "drafton/engine/engine.h"
#include "drawing/objects/xref_manager.h"

#include <QFile>

namespace {

using Result = OdDbXRefMan::Result;

class OpenedReferences : public BlockFixture {
 protected:
  /// A drawing file that shows another one beside it.
  void writeShowing(const char* name, const QStringList& others) {
    const OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
    drawing->setFileName(odpath::fromPlatform(path(name)));
    for (const QString& other : others) {
      const OdDbObjectId block = OdDbXRefMan::attach(*drawing, other, OdString(), false);
      opened(drawing->getModelSpaceId())->appendOdDbEntity(odrxMake<OdDbBlockReference>(block));
    }
    drawing->writeFile(odpath::fromPlatform(path(name)));
  }
  void open(const char* name) {
    console().clear();
    engine().documents().open(odpath::fromPlatform(path(name)));
  }
  OdDbBlockTableRecordPtr blockNamed(const char16_t* name) {
    return database()
        .getBlockTableId()
        .openAs<OdDbBlockTable>()
        ->getAt(OdString::fromUtf16(name))
        .openObject();
  }
  Result stateOf(const char16_t* name) { return OdDbXRefMan::state(*blockNamed(name)).result; }
  QByteArray bytesOf(const char* name) {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  /// Writes another value for the flags of a block.
  void setFlags(const char* name, const QByteArray& block, int flags) {
    QByteArray bytes = bytesOf(name);
    const qsizetype at = bytes.indexOf("\n 70\n", bytes.indexOf("AcDbBlockBegin\n  2\n" + block));
    ASSERT_GT(at, 0);
    const qsizetype value = at + 5;
    bytes.replace(value, bytes.indexOf('\n', value) - value, QByteArray::number(flags));
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  /// The flags of a block in a saved drawing.
  int flagsIn(const QByteArray& bytes, const QByteArray& block) {
    const qsizetype at = bytes.indexOf("\n 70\n", bytes.indexOf("AcDbBlockBegin\n  2\n" + block));
    return bytes.mid(at + 5, bytes.indexOf('\n', at + 5) - at - 5).trimmed().toInt();
  }
};

} // namespace

TEST_F(OpenedReferences, AreLoadedAndShown) {
  writeDrawing("wheel.dxf", 2);
  writeShowing("car.dxf", {QStringLiteral("wheel.dxf")});
  writeShowing("street.dxf", {QStringLiteral("car.dxf")});
  open("street.dxf");
  OdGeExtents3d box;
  ASSERT_TRUE(inserts().at(0)->getGeomExtents(box)) << output().toStdString();
  EXPECT_NEAR(box.maxPoint().x, 2, 1e-9);
  EXPECT_FALSE(document().isModified());
  EXPECT_EQ(database().undoDepth(), 0);
  EXPECT_EQ(output(), OdString());
  type(QStringLiteral("XREF\n?\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("\"car\"  attached  car.dxf  loaded")))
      << output().toStdString();
  EXPECT_TRUE(console().shows(QStringLiteral("\"car|wheel\"  attached  wheel.dxf  loaded")));
}

TEST_F(OpenedReferences, ThatAreMissingAreToldAndTheRestOpens) {
  writeDrawing("wheel.dxf", 2);
  writeShowing("car.dxf", {QStringLiteral("gone.dxf"), QStringLiteral("wheel.dxf")});
  const QByteArray before = bytesOf("car.dxf");
  open("car.dxf");
  EXPECT_TRUE(console().shows(QStringLiteral("The file of \"gone\" was not found: gone.dxf")))
      << output().toStdString();
  EXPECT_EQ(stateOf(u"gone"), Result::kFileMissing);
  EXPECT_EQ(stateOf(u"wheel"), Result::kLoaded);
  type(QStringLiteral("XREF\n?\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("\"gone\"  attached  gone.dxf  not found")));
  // It is looked for again when the drawing is opened again.
  EXPECT_EQ(flagsIn(database().writeDxf(), "gone"), flagsIn(before, "gone"));
  writeDrawing("gone.dxf", 7);
  engine().documents().close(document());
  open("car.dxf");
  EXPECT_EQ(stateOf(u"gone"), Result::kLoaded);
}

TEST_F(OpenedReferences, ThatSomebodyUnloadedStayUnloaded) {
  writeDrawing("wheel.dxf", 2);
  writeShowing("car.dxf", {QStringLiteral("wheel.dxf")});
  open("car.dxf");
  type(QStringLiteral("XREF\nu\n*\nXREF\n?\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("\"wheel\"  attached  wheel.dxf  unloaded")))
      << output().toStdString();
  const QByteArray saved = database().writeDxf();
  EXPECT_EQ(flagsIn(saved, "wheel") & (4 | 32 | 64), 4 | 64);
  type(QStringLiteral("U\n"));
  EXPECT_EQ(stateOf(u"wheel"), Result::kLoaded);
  type(QStringLiteral("REDO\nSAVE\n"));
  EXPECT_EQ(flagsIn(bytesOf("car.dxf"), "wheel") & (4 | 32 | 64), 4 | 64) << output().toStdString();
  writeShowing("street.dxf", {QStringLiteral("car.dxf")});
  engine().documents().close(document());
  open("car.dxf");
  EXPECT_EQ(output(), OdString());
  EXPECT_EQ(stateOf(u"wheel"), Result::kUnloaded);
  OdGeExtents3d box;
  EXPECT_FALSE(inserts().at(0)->getGeomExtents(box));
  // Nor is it there in drawings that show this one.
  open("street.dxf");
  EXPECT_EQ(stateOf(u"car|wheel"), Result::kUnloaded);
  open("car.dxf");
  type(QStringLiteral("XREF\nr\n*\n"));
  EXPECT_EQ(stateOf(u"wheel"), Result::kLoaded);
  EXPECT_EQ(flagsIn(database().writeDxf(), "wheel") & 32, 32);
}

TEST_F(OpenedReferences, OfProgramsThatTellNothingAreLoadedAndWrittenAsTheyWere) {
  writeDrawing("wheel.dxf", 2);
  for (const int flags : {4, 36, 100, 8, 12, 44}) {
    writeShowing("car.dxf", {QStringLiteral("wheel.dxf")});
    setFlags("car.dxf", "wheel", flags);
    open("car.dxf");
    EXPECT_EQ(stateOf(u"wheel"), Result::kLoaded) << flags;
    EXPECT_EQ(flagsIn(database().writeDxf(), "wheel"), flags);
    engine().documents().close(document());
  }
}

TEST_F(OpenedReferences, InCirclesAreToldAndEndSomewhere) {
  writeDrawing("a.dxf", 1);
  writeShowing("b.dxf", {QStringLiteral("a.dxf")});
  writeShowing("a.dxf", {QStringLiteral("b.dxf"), QStringLiteral("a.dxf")});
  open("a.dxf");
  EXPECT_TRUE(console().shows(QStringLiteral("\"b\" is left out")) ||
              console().shows(QStringLiteral("\"a\" is left out")))
      << output().toStdString();
  EXPECT_EQ(stateOf(u"b"), Result::kLoaded);
  EXPECT_EQ(stateOf(u"b|a"), Result::kCircular);
  EXPECT_EQ(stateOf(u"a"), Result::kCircular);
}

TEST_F(OpenedReferences, BehindEachOtherAreLoadedToABound) {
  writeDrawing("0.dxf", 3);
  for (int i = 1; i <= 40; ++i) {
    // Attached while there is no such file, so that writing is quick.
    const QByteArray name = QByteArray::number(i) + ".dxf";
    writeShowing(name.constData(), {QStringLiteral("%1x.dxf").arg(i - 1)});
    QFile file(path(name.constData()));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QByteArray bytes = file.readAll().replace("x.dxf", ".dxf");
    file.resize(0);
    file.seek(0);
    file.write(bytes);
  }
  open("40.dxf");
  EXPECT_TRUE(console().shows(QStringLiteral("References deeper than 32 drawings")))
      << output().toStdString();
  OdGeExtents3d box;
  EXPECT_FALSE(inserts().at(0)->getGeomExtents(box));
  open("20.dxf");
  EXPECT_EQ(output(), OdString());
  EXPECT_TRUE(inserts().at(0)->getGeomExtents(box));
}

TEST_F(OpenedReferences, ThatDoubleWithEachDrawingAreLoadedToABound) {
  // 2 to the power of 20 files, if nobody counted.
  writeDrawing("0.dxf", 3);
  for (int i = 1; i <= 20; ++i) {
    const OdString other = QStringLiteral("%1.dxf").arg(i - 1);
    const OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
    for (const char16_t* const name : {u"A", u"B"}) {
      const OdDbObjectId block = addBlock(*drawing, name);
      opened(block)->setIsFromExternalReference(true);
      opened(block)->setPathName(other);
    }
    drawing->writeFile(odpath::fromPlatform(path(qPrintable(QStringLiteral("%1.dxf").arg(i)))));
  }
  open("20.dxf");
  EXPECT_TRUE(console().shows(QStringLiteral("More than 1000 references are not loaded")))
      << output().left(2000).toStdString();
}

TEST_F(OpenedReferences, ThatAreNoDrawingsAreTold) {
  QFile file(path("bad.dxf"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("%PDF-1.4 nothing");
  file.close();
  writeShowing("car.dxf", {QStringLiteral("bad.dxf")});
  open("car.dxf");
  EXPECT_TRUE(console().shows(QStringLiteral("The file of \"bad\" cannot be read")))
      << output().toStdString();
  EXPECT_EQ(stateOf(u"bad"), Result::kUnreadable);
  // An empty drawing is one.
  OdDbDatabase::createDatabase()->writeFile(odpath::fromPlatform(path("bad.dxf")));
  type(QStringLiteral("XREF\nr\n*\n"));
  EXPECT_EQ(stateOf(u"bad"), Result::kLoaded);
}

TEST_F(OpenedReferences, GoWhenTheirPathLeadsNowhere) {
  writeDrawing("wheel.dxf", 2);
  writeShowing("car.dxf", {QStringLiteral("wheel.dxf")});
  writeShowing("street.dxf", {QStringLiteral("car.dxf")});
  open("street.dxf");
  type(QStringLiteral("XREF\np\ncar\n/nowhere/none.dxf\n"));
  EXPECT_EQ(stateOf(u"car"), Result::kFileMissing);
  EXPECT_FALSE(hasBlock(u"car|wheel"));
  type(QStringLiteral("U\n"));
  EXPECT_TRUE(hasBlock(u"car|wheel"));
}

TEST_F(OpenedReferences, OfInsertedDrawingsAreShown) {
  writeDrawing("wheel.dxf", 2);
  writeShowing("car.dxf", {QStringLiteral("wheel.dxf"), QStringLiteral("gone.dxf")});
  words("INSERT|" + path("car.dxf") + "|0,0|||");
  ASSERT_EQ(inserts().size(), 1u) << output().toStdString();
  OdGeExtents3d box;
  EXPECT_TRUE(inserts()[0]->getGeomExtents(box));
  EXPECT_EQ(stateOf(u"wheel"), Result::kLoaded);
  EXPECT_TRUE(console().shows(QStringLiteral("The file of \"gone\" was not found")));
  // They are saved as paths here as well.
  EXPECT_FALSE(database().writeDxf().contains("AcDbCircle"));
}

TEST_F(OpenedReferences, PathsOfOtherSystemsAreShownAsHereAndStayAsTheyStand) {
  writeDrawing("wheel.dxf", 2);
  writeShowing("car.dxf", {QStringLiteral("old/wheel.dxf")});
  const QByteArray bytes = bytesOf("car.dxf").replace("old/wheel.dxf", "old\\wheel.dxf");
  QFile file(path("car.dxf"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes);
  file.close();
  open("car.dxf");
  type(QStringLiteral("XREF\np\nwheel\n\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("\"wheel\": old/wheel.dxf")))
      << output().toStdString();
  EXPECT_FALSE(output().contains(u'\\')) << output().toStdString();
  EXPECT_TRUE(database().writeDxf().contains("old\\wheel.dxf"));
}
