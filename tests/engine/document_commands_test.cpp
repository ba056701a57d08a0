#include "drafton/engine/document_manager.h"

#include "engine/support/engine_fixture.h"
#include "engine/support/test_commands.h"
#include "frame/file_path.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <functional>

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

  /// Opens a drawing with a point whose place is no number, which leaves it out.
  void openForeign() {
    QFile file(path("foreign.dxf"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("0\nSECTION\n2\nENTITIES\n"
               "0\nLINE\n8\n0\n10\n1\n20\n2\n11\n3\n21\n4\n"
               "0\nPOINT\n8\n0\n10\neast\n20\n2\n0\nENDSEC\n0\nEOF\n");
    file.close();
    ASSERT_TRUE(QDir(m_folder.path()).mkpath(QStringLiteral("other")));
    type(QStringLiteral("OpenDocument ") + path("foreign.dxf") + u'\n');
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

TEST_F(DocumentCommandsTest, MessagesNameAFileOnceAndAsItsSystemDoes) {
  openForeign();
  QFile cut(path("cut.dxf"));
  ASSERT_TRUE(cut.open(QIODevice::WriteOnly));
  cut.write("0\nSECTION\n2\nHEADER\n9\n$DWGCODEPAGE\n3\nANSI_0000\n0\nENDSEC\n0\nEOF\n");
  cut.close();
  type(QStringLiteral("OpenDocument ") + path("cut.dxf") + u'\n');
  EXPECT_TRUE(console().shows(path("cut.dxf") + QStringLiteral(":1: the code page ANSI_0000")))
      << output().toStdString();
  EXPECT_TRUE(console().shows(QStringLiteral("foreign.dxf holds content that Drafton does not understand: line 21: ")))
      << output().toStdString();
  draw();
  type(QStringLiteral("SaveAs ") + path("foreign.dxf") + u'\n');
  for (const QString& line : output().split(u'\n')) {
    const bool isPrompt = line.startsWith(QLatin1String("Enter"));
    EXPECT_LE(line.count(m_folder.path()), isPrompt ? 2 : 1) << line.toStdString();
    EXPECT_FALSE(line.contains(u'\\')) << line.toStdString();
  }
}

/// Notes which document is the current one when commands are cancelled.
class CancelWitness : public HostEditorReactor {
 public:
  explicit CancelWitness(Engine& engine)
    : m_engine(engine) {}
  void commandCancelled(const OdString& name) override {
    Document* const current = m_engine.documents().current();
    seen << name + QStringLiteral(" in ") + (current ? current->name() : QString());
    if (onCancel) onCancel();
  }
  QStringList seen;
  std::function<void()> onCancel;

 private:
  Engine& m_engine;
};

class CancelledBehindTest : public DocumentCommandsTest {
 protected:
  CancelledBehindTest() {
    engine().events().addReactor(m_witness.get());
    m_behind = &document();
    type(QStringLiteral("LINE 1,1 "));
    engine().documents().newDocument();
    log().clear();
  }
  ~CancelledBehindTest() override { engine().events().removeReactor(m_witness.get()); }

  Document* m_behind = nullptr;
  OdSmartPtr<CancelWitness> m_witness = odrxMake<CancelWitness>(engine());
};

TEST_F(CancelledBehindTest, IsToldWithItsDocumentAsTheCurrentOne) {
  Document& front = document();
  ASSERT_NE(&front, m_behind);
  engine().cancelAll();
  EXPECT_EQ(m_witness->seen, QStringList(QStringLiteral("LINE in ") + m_behind->name()));
  EXPECT_EQ(&document(), &front) << "the active one stays that";
  EXPECT_TRUE(events({QStringLiteral("activated")}).isEmpty()) << "and nobody sees another";
}

TEST_F(CancelledBehindTest, IsToldInTheDocumentThatIsClosed) {
  Document& front = document();
  const OdString name = m_behind->name();
  engine().documents().close(*m_behind);
  EXPECT_EQ(m_witness->seen, QStringList(QStringLiteral("LINE in ") + name));
  EXPECT_EQ(&document(), &front);
}

TEST_F(CancelledBehindTest, AReactorMayCloseTheActiveDocumentMeanwhile) {
  Document& front = document();
  m_witness->onCancel = [&] { engine().documents().close(front); };
  engine().cancelAll();
  ASSERT_EQ(openDocuments(), 1u);
  EXPECT_EQ(&document(), m_behind);
  EXPECT_EQ(events({QStringLiteral("activated")}).size(), 1) << "of that the window is told";
}

TEST_F(CancelledBehindTest, AReactorMayCloseItsDocumentMeanwhile) {
  Document& front = document();
  m_witness->onCancel = [&] { engine().documents().close(*m_behind); };
  engine().cancelAll();
  ASSERT_EQ(openDocuments(), 1u);
  EXPECT_EQ(&document(), &front);
}

TEST_F(DocumentCommandsTest, SavesInTheVersionThatIsChosen) {
  const auto versionOf = [&](const char* name) {
    return OdDbDatabase::readFile(odpath::fromPlatform(path(name)))->originalFileVersion();
  };
  draw();
  type(QStringLiteral("SaveAs Version\nR2000\n") + path("a.dxf") + u'\n');
  EXPECT_TRUE(console().shows(
      QStringLiteral("Enter the version of DXF [R2000/R2004/R2007/R2010/R2013/R2018] <R2018>: ")))
      << output().toStdString();
  EXPECT_EQ(versionOf("a.dxf"), OdDb::kR2000);
  type(QStringLiteral("Save\n"));
  EXPECT_EQ(versionOf("a.dxf"), OdDb::kR2000);
  type(QStringLiteral("DXFVERSION AC1024 SaveAs ") + path("b.dxf") + u'\n');
  EXPECT_EQ(versionOf("b.dxf"), OdDb::kR2010);
  type(QStringLiteral("DXFVERSION R12 R2013 NEWDXFVERSION R2007 NewDocument SaveAs ") +
       path("c.dxf") + u'\n');
  EXPECT_EQ(versionOf("c.dxf"), OdDb::kR2007);
  type(QStringLiteral("NEWDXFVERSION 2018 Save\n"));
  EXPECT_EQ(versionOf("c.dxf"), OdDb::kR2007);
  EXPECT_FALSE(console().shows(QStringLiteral("was read as"))) << output().toStdString();
}

TEST_F(DocumentCommandsTest, SavesOverTheChangesOfOthersOnlyWhenTold) {
  draw();
  type(QStringLiteral("SaveAs ") + path("a.dxf") + u'\n');
  draw();
  QFile other(path("a.dxf"));
  ASSERT_TRUE(other.open(QIODevice::Append));
  other.write("999\nby somebody else\n");
  other.close();
  const QByteArray theirs = bytesOf(path("a.dxf"));
  const OdString question =
      path("a.dxf") + QStringLiteral(" since it was opened. Save over it? [Yes/No] <No>: ");
  for (const OdString& words :
       {QStringLiteral("Save\n\n"), QStringLiteral("Save\nn\n"), QStringLiteral("Save\n^C"),
        QStringLiteral("SaveAs ") + path("a.dxf") + QStringLiteral("\nn\n")}) {
    console().clear();
    type(words);
    EXPECT_TRUE(console().shows(QStringLiteral("Another program has changed ") + question))
        << output().toStdString();
    EXPECT_EQ(bytesOf(path("a.dxf")), theirs);
    EXPECT_TRUE(document().isModified());
  }
  type(QStringLiteral("Save\ny\n"));
  EXPECT_FALSE(document().isModified());
  EXPECT_FALSE(bytesOf(path("a.dxf")).contains("somebody else"));
  console().clear();
  draw();
  ASSERT_TRUE(QFile::remove(path("a.dxf")));
  type(QStringLiteral("Save\n"));
  EXPECT_TRUE(QFile::exists(path("a.dxf"))) << "nothing is lost by saving a file that is gone";
  EXPECT_FALSE(console().shows(QStringLiteral("Another program")));
}

TEST_F(DocumentCommandsTest, TellsThatAnOldDrawingBecomesANewerOne) {
  QFile file(path("old.dxf"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n10\n1\n20\n2\n11\n3\n21\n4\n"
             "0\nENDSEC\n0\nEOF\n");
  file.close();
  type(QStringLiteral("OpenDocument ") + path("old.dxf") + QStringLiteral("\nSave\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("The drawing was read as R12 and is saved as R2000.")))
      << output().toStdString();
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

TEST_F(DocumentCommandsTest, ADrawingWithUnknownContentIsNotSavedOverItself) {
  openForeign();
  const QByteArray before = bytesOf(path("foreign.dxf"));
  ASSERT_FALSE(document().lostBySaving().isEmpty());
  draw();
  for (const OdString& command :
       {QStringLiteral("Save\n"), QStringLiteral("SaveAs ") + path("foreign.dxf") + u'\n',
        QStringLiteral("SaveAs ") + path("other/../foreign.dxf") + u'\n'}) {
    console().clear();
    type(command);
    EXPECT_TRUE(console().shows(QStringLiteral("saving over it would lose it")))
        << command.toStdString();
    EXPECT_TRUE(console().shows(QStringLiteral("POINT"))) << "it says what";
    EXPECT_TRUE(bytesOf(path("foreign.dxf")) == before);
    EXPECT_TRUE(document().isModified());
  }
  EXPECT_FALSE(QFile::exists(path("foreign.bak")));
}

TEST_F(DocumentCommandsTest, ACopyThatLacksUnknownContentIsAsked) {
  openForeign();
  type(QStringLiteral("SaveAs ") + path("copy.dxf") + u'\n');
  EXPECT_TRUE(prompt().startsWith(QStringLiteral("The copy will lack"))) << prompt().toStdString();
  EXPECT_TRUE(prompt().contains(QStringLiteral("POINT")));
  type(QStringLiteral("\n"));
  EXPECT_FALSE(QFile::exists(path("copy.dxf"))) << "no by default";
  EXPECT_EQ(events().last(), QStringLiteral("cancelled SaveAs"));
  EXPECT_EQ(document().name(), QStringLiteral("foreign.dxf"));
  type(QStringLiteral("SaveAs ") + path("copy.dxf") + QStringLiteral("\ny\n"));
  EXPECT_TRUE(bytesOf(path("copy.dxf")).contains("LINE"));
  EXPECT_EQ(document().name(), QStringLiteral("copy.dxf"));
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
