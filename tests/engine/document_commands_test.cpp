#include "drafton/engine/document_manager.h"

#include "engine/support/engine_fixture.h"
#include "engine/support/test_commands.h"
#include "frame/file_path.h"

#include <QFile>
#include <QTemporaryDir>

using namespace drafton;

namespace {

class DocumentCommandsTest : public EngineFixture {
 protected:
  DocumentCommandsTest() { engine().commands().add(testCommands()); }

  OdString path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }
  std::size_t openDocuments() { return engine().documents().documents().size(); }
  void draw() { type(QStringLiteral("DRAW 0,0 10,10 \n")); }
  QByteArray bytesOf(const OdString& file) {
    QFile f(file);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
  }

  QTemporaryDir m_folder;
};

} // namespace

TEST_F(DocumentCommandsTest, SavesUnderANameWithBlanksAndOpensAgain) {
  draw();
  type(QStringLiteral("SaveAs ") + path("a b.dxf") + u'\n');
  EXPECT_FALSE(document().isModified());
  EXPECT_EQ(document().name(), QStringLiteral("a b.dxf"));
  type(QStringLiteral("CloseDocument\n"));
  EXPECT_EQ(openDocuments(), 0u);
  type(QStringLiteral("OpenDocument \"") + path("a b.dxf") + QStringLiteral("\"\n"));
  ASSERT_EQ(openDocuments(), 1u);
  EXPECT_FALSE(database().extents().isEmpty());
  EXPECT_EQ(variable("DWGTITLED").toInt32(), 1);
}

TEST_F(DocumentCommandsTest, ANameWithoutExtensionMeansADxfFile) {
  type(QStringLiteral("SaveAs ") + path("plain") + u'\n');
  EXPECT_TRUE(QFile::exists(path("plain.dxf")));
}

TEST_F(DocumentCommandsTest, OtherExtensionsAreRefused) {
  type(QStringLiteral("SaveAs ") + path("a.dwg") + u'\n');
  EXPECT_FALSE(QFile::exists(path("a.dwg")));
  EXPECT_EQ(events().last(), QStringLiteral("failed SaveAs"));
}

TEST_F(DocumentCommandsTest, ReplacingAFileIsAsked) {
  type(QStringLiteral("SaveAs ") + path("a.dxf") + u'\n');
  const QByteArray before = bytesOf(path("a.dxf"));
  type(QStringLiteral("NewDocument\n"));
  draw();
  type(QStringLiteral("SaveAs ") + path("a.dxf") + QStringLiteral("\n\n"));
  EXPECT_EQ(bytesOf(path("a.dxf")), before);
  EXPECT_EQ(events().last(), QStringLiteral("cancelled SaveAs"));
  type(QStringLiteral("SaveAs ") + path("a.dxf") + QStringLiteral("\ny\n"));
  EXPECT_NE(bytesOf(path("a.dxf")), before);
}

TEST_F(DocumentCommandsTest, SavingKeepsTheFormerFileIfAskedTo) {
  type(QStringLiteral("SaveAs ") + path("a.dxf") + u'\n');
  const QByteArray before = bytesOf(path("a.dxf"));
  draw();
  variables().set(QStringLiteral("ISAVEBAK"), 0);
  type(QStringLiteral("Save\n"));
  EXPECT_FALSE(QFile::exists(path("a.bak")));
  variables().set(QStringLiteral("ISAVEBAK"), 1);
  draw();
  type(QStringLiteral("Save\n"));
  EXPECT_TRUE(QFile::exists(path("a.bak")));
  EXPECT_NE(bytesOf(path("a.dxf")), before);
}

TEST_F(DocumentCommandsTest, ASaveThatFailsNamesFileAndReasonAndLosesNothing) {
  draw();
  type(QStringLiteral("SaveAs ") + path("missing/a.dxf") + u'\n');
  EXPECT_TRUE(console().shows(path("missing/a.dxf")));
  EXPECT_EQ(events().last(), QStringLiteral("failed SaveAs"));
  EXPECT_TRUE(document().isModified());
  EXPECT_EQ(document().name(), QStringLiteral("Drawing1.dxf"));
}

TEST_F(DocumentCommandsTest, AnUnreadableDrawingIsNamedWithTheReason) {
  type(QStringLiteral("OpenDocument ") + path("none.dxf") + u'\n');
  EXPECT_TRUE(console().shows(path("none.dxf")));
  EXPECT_EQ(events().last(), QStringLiteral("failed OpenDocument"));
  EXPECT_EQ(openDocuments(), 1u);
}

TEST_F(DocumentCommandsTest, AnOpenDrawingIsOnlyActivated) {
  type(QStringLiteral("SaveAs ") + path("a.dxf") + u'\n');
  type(QStringLiteral("NewDocument\nOpenDocument ") + path("a.dxf") + u'\n');
  EXPECT_EQ(openDocuments(), 2u);
  EXPECT_EQ(document().name(), QStringLiteral("a.dxf"));
}

TEST_F(DocumentCommandsTest, ClosingAsksForChanges) {
  draw();
  type(QStringLiteral("CloseDocument c\n"));
  EXPECT_EQ(openDocuments(), 1u);
  EXPECT_EQ(events().last(), QStringLiteral("cancelled CloseDocument"));
  type(QStringLiteral("CloseDocument n\n"));
  EXPECT_EQ(openDocuments(), 0u);
}

TEST_F(DocumentCommandsTest, ClosingCanSaveUnderANewName) {
  draw();
  type(QStringLiteral("CloseDocument y\n") + path("kept.dxf") + u'\n');
  EXPECT_EQ(openDocuments(), 0u);
  EXPECT_TRUE(QFile::exists(path("kept.dxf")));
}

TEST_F(DocumentCommandsTest, ADocumentGoesBeforeItsCommandEnds) {
  type(QStringLiteral("NewDocument\n"));
  log().clear();
  type(QStringLiteral("closedocument\n"));
  EXPECT_EQ(events(),
            QStringList(
                {QStringLiteral("start CloseDocument"), QStringLiteral("destroyed Drawing2.dxf"),
                 QStringLiteral("activated Drawing1.dxf"), QStringLiteral("ended CloseDocument")}));
}

TEST_F(DocumentCommandsTest, WithoutADrawingOnlyWhatNeedsNoneRuns) {
  type(QStringLiteral("CloseDocument\nASKTEXT x\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("No drawing is open.")));
  type(QStringLiteral("NewDocument\n"));
  EXPECT_EQ(openDocuments(), 1u);
}

TEST_F(DocumentCommandsTest, ExitSettlesAllDrawings) {
  draw();
  type(QStringLiteral("NewDocument\n"));
  draw();
  type(QStringLiteral("Exit n c\n"));
  EXPECT_FALSE(engine().isExiting());
  EXPECT_EQ(openDocuments(), 2u);
  type(QStringLiteral("Exit n n\n"));
  EXPECT_TRUE(engine().isExiting());
  EXPECT_EQ(openDocuments(), 0u);
  EXPECT_EQ(events().last(), QStringLiteral("ended Exit"));
}

TEST_F(DocumentCommandsTest, SettingsAreShownAndChanged) {
  type(QStringLiteral("SETTING Shx /fonts one;/two\n"));
  OdString value;
  EXPECT_TRUE(engine().application().setting(QStringLiteral("Shx"), value));
  EXPECT_EQ(value, QStringLiteral("/fonts one;/two"));
  type(QStringLiteral("SETTING Shx\n"));
  EXPECT_EQ(prompt(), QStringLiteral("Enter the new value </fonts one;/two>: "));
  type(QStringLiteral("\"\"\n"));
  EXPECT_TRUE(engine().application().setting(QStringLiteral("Shx"), value));
  EXPECT_TRUE(value.isEmpty());
}
