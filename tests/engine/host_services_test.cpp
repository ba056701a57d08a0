#include "drafton/engine/host_services.h"

#include "drafton/engine/command_menu.h"
#include "engine/support/engine_fixture.h"
#include "frame/dynamic_library.h"
#include "frame/file_path.h"
#include "host/clipboard.h"
#include "host/clipboard_payload.h"
#include "host/command_menu.h"
#include "host/exports.h"
#include "host/hatch_settings.h"
#include "host/selection.h"

#include <QFile>
#include <QTemporaryDir>
#include <QXmlStreamReader>

using namespace drafton;

namespace {

class HostServicesTest : public EngineFixture {
 protected:
  template <class F>
  F exported(const char* name) {
    return oddynlib::function<F>(oddynlib::mainExecutable(), name);
  }
};

} // namespace

TEST_F(HostServicesTest, TheProgramExportsWhatModulesLookFor) {
  const auto instance = exported<hostexport::GetMainDllInstance>(hostexport::kGetMainDllInstance);
  ASSERT_TRUE(instance);
  EXPECT_EQ(instance(), oddynlib::mainExecutable());
  const auto name = exported<hostexport::GetMainDllName>(hostexport::kGetMainDllName);
  ASSERT_TRUE(name);
  EXPECT_EQ(name(), nullptr) << "the program itself";
  const auto lead = exported<hostexport::GetHostFuncPtr>(hostexport::kGetHostFuncPtr);
  ASSERT_TRUE(lead);
  EXPECT_EQ(lead(1), nullptr);
  EXPECT_EQ(lead(hostexport::kServicesIndex)(), static_cast<IHostServices*>(&engine().services()));
  EXPECT_EQ(exported<hostexport::GetApp>(hostexport::kGetApp)(), &engine().application());
  KVPtr<IMemParam> parameters;
  exported<hostexport::NewMemParam>(hostexport::kNewMemParam)(parameters.out());
  ASSERT_TRUE(parameters);
  parameters->setValue(QStringLiteral("b"), 1);
  parameters->setValue(QStringLiteral("a"), 2);
  parameters->setValue(QStringLiteral("b"), 3);
  EXPECT_EQ(parameters->names(), QStringList({QStringLiteral("b"), QStringLiteral("a")}));
  OdVariant value;
  EXPECT_TRUE(parameters->value(QStringLiteral("b"), value));
  EXPECT_EQ(value, OdVariant(3));
  EXPECT_FALSE(parameters->value(QStringLiteral("B"), value));
}

TEST_F(HostServicesTest, WithoutAnEngineTheExportsGiveNothing) {
  stop();
  EXPECT_EQ(exported<hostexport::GetApp>(hostexport::kGetApp)(), nullptr);
  const auto lead = exported<hostexport::GetHostFuncPtr>(hostexport::kGetHostFuncPtr);
  EXPECT_EQ(lead(hostexport::kServicesIndex)(), nullptr);
  KVPtr<ICmdFactory> factory;
  exported<hostexport::NewCmdFactory>(hostexport::kNewCmdFactory)(factory.out());
  EXPECT_FALSE(factory);
  EXPECT_EQ(odrxFindClass(QStringLiteral("HostEditorReactor")), nullptr);
}

TEST_F(HostServicesTest, TheReactorClassesAreRegistered) {
  ASSERT_TRUE(HostEditorReactor::desc());
  EXPECT_EQ(HostEditorReactor::desc()->parent(), OdEditorReactor::desc());
}

TEST_F(HostServicesTest, GivesItsServicesByIdentity) {
  IHostServices* const services = &engine().services();
  EXPECT_TRUE(kvQuery<IHostMessages>(services));
  EXPECT_TRUE(kvQuery<IHostCommandMenu>(services));
  EXPECT_TRUE(kvQuery<IProfile>(services));
  EXPECT_FALSE(kvQuery<IRunContext>(services));
  const KVPtr<IHostHatchSettings> hatch = kvQuery<IHostHatchSettings>(services);
  ASSERT_TRUE(hatch);
  OdVariant value;
  hatch->set(QStringLiteral("hatch_type"), 2);
  EXPECT_TRUE(kvQuery<IHostHatchSettings>(services)->get(QStringLiteral("hatch_type"), value));
  EXPECT_EQ(value, OdVariant(2));
  EXPECT_TRUE(hatch->get(QStringLiteral("hatch_pattern_file"), value));
  EXPECT_FALSE(hatch->get(QStringLiteral("other"), value));
}

TEST_F(HostServicesTest, FindsCommandsWithoutRegardToCase) {
  const auto commands = kvQuery<IHostCommandService>(&engine().services());
  EXPECT_FALSE(commands->findCommand(QStringLiteral("NOSUCH")));
  const KVPtr<IHostCommand> command = commands->findCommand(QStringLiteral("newdocument"));
  ASSERT_TRUE(command);
  EXPECT_TRUE(command->run(nullptr));
  EXPECT_EQ(document().name(), QStringLiteral("Drawing2.dxf"));
}

TEST_F(HostServicesTest, EveryCommandOfTheMenuIsThere) {
  const auto menu = kvQuery<IHostCommandMenu>(&engine().services());
  for (int i = 0; i < menu->count(); ++i) {
    const HostMenuEntry entry = menu->entry(i);
    EXPECT_TRUE(entry.isCommand);
    EXPECT_TRUE(engine().commands().find(entry.commandName)) << entry.commandName.toStdString();
    EXPECT_EQ(entry.shortText.count(u'&'), 1);
    EXPECT_TRUE(entry.macro.contains(entry.commandName));
  }
  EXPECT_FALSE(menu->entry(-1).isCommand);
  EXPECT_FALSE(menu->entry(menu->count()).isCommand);
}

TEST_F(HostServicesTest, TheRouteMapLeadsFromKnownClassesToCommandsOfTheMenu) {
  QFile file(QStringLiteral(SOURCE_DIR "/drafton/engine/data/command_routes.xml"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  QXmlStreamReader xml(&file);
  const auto menu = kvQuery<IHostCommandMenu>(&engine().services());
  QStringList inMenu;
  for (int i = 0; i < menu->count(); ++i) inMenu << menu->entry(i).commandName;
  int classes = 0;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == QLatin1String("OdRxClassInfo")) {
      const OdString name = xml.attributes().value(QLatin1String("className")).toString();
      const OdRxClass* const known = odrxFindClass(name);
      ASSERT_TRUE(known) << name.toStdString();
      EXPECT_TRUE(known->isDerivedFrom(OdDbEntity::desc())) << name.toStdString();
      ++classes;
    } else if (xml.name() == QLatin1String("StartCommand")) {
      const OdString name = xml.attributes().value(QLatin1String("name")).toString();
      EXPECT_TRUE(inMenu.contains(name)) << name.toStdString();
    }
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  EXPECT_GT(classes, 15);
}

TEST_F(HostServicesTest, TheMenuHasEachCommandOnce) {
  // What other rows do as well, and what is typed by modules only.
  const QStringList others = {QStringLiteral("U"), QStringLiteral("InsertBlock"),
                              QStringLiteral("FASTHATCHCMD"), QStringLiteral("FASTGRADIENTCMD")};
  QStringList wanted, shown;
  for (const OdString& name : engine().commands().namesIn(QStringLiteral("DRAFTON")))
    if (!name.startsWith(u'-') && !others.contains(name)) wanted << name;
  for (const drafton::MenuRow& row : drafton::commandMenu())
    shown << OdString::fromUtf16(row.command);
  wanted.sort();
  shown.sort();
  EXPECT_EQ(shown.join(u' ').toStdString(), wanted.join(u' ').toStdString());
}

TEST_F(HostServicesTest, TheListForOtherProgramsHasTheRowsOfTheMenu) {
  QFile file(QStringLiteral(SOURCE_DIR "/drafton/engine/data/command_menu.xml"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  QXmlStreamReader xml(&file);
  QStringList listed, shown;
  while (!xml.atEnd())
    if (xml.readNext() == QXmlStreamReader::StartElement &&
        xml.name() == QLatin1String("MenuCommand")) {
      const auto attributes = xml.attributes();
      for (const char* name : {"name", "label", "tip", "macro"})
        listed << attributes.value(QLatin1String(name)).toString();
    }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  for (const drafton::MenuRow& row : drafton::commandMenu())
    for (const char16_t* text : {row.command, row.label, row.tip, row.macro})
      shown << OdString::fromUtf16(text);
  EXPECT_EQ(listed, shown);
}

/// The temporary files stand in a folder of their own.
class CopiedDrawingsTest : public HostServicesTest {
 protected:
  CopiedDrawingsTest() { qputenv("TMPDIR", QFile::encodeName(m_folder.path())); }
  ~CopiedDrawingsTest() override {
    stop();
    m_former.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", m_former);
  }
  void copy() { type(QStringLiteral("LINE 0,0 1,1 \nCOPYCLIP ALL \n")); }
  QStringList drawings() const { return QDir(m_folder.path()).entryList(QDir::Files); }

 private:
  QTemporaryDir m_folder;
  QByteArray m_former = qgetenv("TMPDIR");
};

TEST_F(CopiedDrawingsTest, GoWithWhatReplacesThemAndWithTheProgram) {
  copy();
  const QStringList first = drawings();
  ASSERT_EQ(first.size(), 1);
  copy();
  ASSERT_EQ(drawings().size(), 1);
  EXPECT_NE(drawings(), first);
  stop();
  EXPECT_EQ(drawings(), QStringList());
}

TEST_F(CopiedDrawingsTest, StayIfSomebodyHasAskedForThem) {
  const auto clipboard = kvQuery<IHostClipboard>(&engine().services());
  const int format = clipboard->registerFormat(kHostClipboardFormat.toString());
  copy();
  EXPECT_FALSE(clipboard->data(format).isEmpty());
  clipboard->setData(format, "x");
  EXPECT_EQ(drawings().size(), 1);
}

TEST_F(CopiedDrawingsTest, AreTheOnlyFilesThatGo) {
  const auto clipboard = kvQuery<IHostClipboard>(&engine().services());
  const int format = clipboard->registerFormat(kHostClipboardFormat.toString());
  const QString other = QDir::temp().filePath(QStringLiteral("plan.dxf"));
  QFile file(other);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.close();
  clipboard->setData(format, *hostclipboard::toBytes({odpath::fromPlatform(other), {}, {}}));
  clipboard->setData(format, "x");
  EXPECT_TRUE(QFile::exists(other));
}

TEST_F(HostServicesTest, CopiedObjectsStandOnTheClipboardWithADrawingOfTheirOwn) {
  const auto clipboard = kvQuery<IHostClipboard>(&engine().services());
  ASSERT_TRUE(clipboard);
  const int format = clipboard->registerFormat(kHostClipboardFormat.toString());
  EXPECT_EQ(clipboard->registerFormat(kHostClipboardFormat.toString()), format);
  EXPECT_NE(clipboard->registerFormat(QStringLiteral("AutoCAD.r15")), format);
  EXPECT_TRUE(clipboard->data(format).isEmpty());
  type(QStringLiteral("LINE 0,0 10,0 \nCIRCLE 0,0 5\nCOPYCLIP Last \n"));
  const HostClipboardPayload payload = hostclipboard::fromBytes(clipboard->data(format));
  ASSERT_EQ(payload.entities.size(), 1u);
  const OdDbObjectId copied = database().getOdDbObjectId(payload.entities[0]);
  EXPECT_EQ(copied.openObject()->isA()->name(), QStringLiteral("OdDbCircle"));
  const OdDbDatabasePtr drawing = OdDbDatabase::readFile(payload.drawing);
  const OdDbBlockTableRecordPtr space = drawing->getModelSpaceId().openObject();
  EXPECT_EQ(space->entityIds().size(), 1u);
  const OdString name = odpath::fileNameOf(payload.drawing);
  EXPECT_EQ(name, name.toLower());
  EXPECT_TRUE(QFile::remove(odpath::toPlatform(payload.drawing)));
  clipboard->setData(clipboard->registerFormat(QStringLiteral("AutoCAD.r15")), "x");
  EXPECT_TRUE(clipboard->data(format).isEmpty()) << "what is new takes the place of everything";
}

TEST_F(HostServicesTest, ModulesLetTheUserChooseObjects) {
  const auto selection = kvQuery<IHostSelection>(&engine().services());
  ASSERT_TRUE(selection);
  type(QStringLiteral("LINE 0,0 10,0 \nCIRCLE 0,0 5\n"));
  EXPECT_TRUE(selection->choose(document()).empty()) << "nobody answers";
  type(QStringLiteral("QSELECT LINE * * \nInclude\n"));
  const std::vector<OdDbObjectId> chosen = selection->choose(document());
  ASSERT_EQ(chosen.size(), 1u) << "what was chosen before counts";
  EXPECT_EQ(chosen[0].openObject()->isA()->name(), QStringLiteral("OdDbLine"));
}

TEST_F(HostServicesTest, ADrawingIsSavedAsLongAsItsFileHasAllOfIt) {
  const auto isSaved = exported<hostexport::IsObjectSaved>(hostexport::kIsObjectSaved);
  ASSERT_TRUE(isSaved);
  EXPECT_FALSE(isSaved(&document())) << "it has no file";
  const QTemporaryDir folder;
  const OdString path = folder.filePath(QStringLiteral("a.dxf"));
  type(QStringLiteral("LINE 0,0 10,0 \n"));
  document().save(odpath::fromPlatform(path));
  EXPECT_TRUE(isSaved(&document()));
  type(QStringLiteral("CIRCLE 0,0 5\n"));
  EXPECT_FALSE(isSaved(&document()));
  document().save(odpath::fromPlatform(path));
  ASSERT_TRUE(QFile::remove(path));
  EXPECT_FALSE(isSaved(&document()));
}

TEST_F(HostServicesTest, ATickedMessageIsNotShownAgain) {
  const auto messages = kvQuery<IHostMessages>(&engine().services());
  const OdString id = QStringLiteral("ToolPaletteManager\\MTMsg");
  const auto show = [&] {
    console().clear();
    return messages->messageBoxWithCheckBox(id, QStringLiteral("text"), QStringLiteral("cap"), 0);
  };
  EXPECT_FALSE(show());
  EXPECT_TRUE(console().shows(QStringLiteral("text")));
  console().ticksBoxes = true;
  EXPECT_TRUE(show());
  EXPECT_TRUE(console().shows(QStringLiteral("text")));
  EXPECT_TRUE(show());
  EXPECT_FALSE(console().shows(QStringLiteral("text")));
}

TEST_F(HostServicesTest, WithoutACatalogueTextsStayAsTheyAre) {
  OdString out;
  const auto translate = exported<hostexport::Translate>(hostexport::kTranslate);
  EXPECT_FALSE(translate(QStringLiteral("Tool Palettes"), out));
  EXPECT_EQ(translated(u"Tool Palettes"), QStringLiteral("Tool Palettes"));
  EXPECT_FALSE(Translator::instance().load(QStringLiteral("/nowhere.qm")));
}

TEST_F(HostServicesTest, TheRouteMapNamesCommandsThatAreThere) {
  OdString path;
  const auto routes = exported<hostexport::GetCmdRouteMap>(hostexport::kGetCmdRouteMap);
  EXPECT_FALSE(routes(path)) << "there is no program folder";
  restart({.settingsFile = {},
           .userDataFolder = {},
           .programFolder = odpath::fromPlatform(QStringLiteral(BINARY_DIR))});
  ASSERT_TRUE(routes(path));
  QFile file(odpath::toPlatform(path));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  int found = 0;
  for (const QByteArray& line : file.readAll().split('\n')) {
    const auto valueOf = [&](const char* attribute) {
      const QByteArray start = QByteArray(attribute) + "=\"";
      const qsizetype at = line.indexOf(start);
      if (at < 0) return OdString();
      const qsizetype from = at + start.size();
      return OdString::fromUtf8(line.mid(from, line.indexOf('"', from) - from));
    };
    if (line.contains("OdRxClassInfo")) {
      EXPECT_TRUE(odrxFindClass(valueOf("className"))) << line.constData();
    }
    if (!line.contains("StartCommand")) continue;
    EXPECT_TRUE(engine().commands().find(valueOf("name"))) << line.constData();
    ++found;
  }
  EXPECT_GE(found, 5);
}

TEST_F(HostServicesTest, StartupCommandsAreRunAndUnknownOnesNamed) {
  QTemporaryDir folder;
  const OdString file = folder.filePath(QStringLiteral("d.ini"));
  {
    SettingsStore store(file);
    store.set({QStringLiteral("Startup")}, QStringLiteral("NewDocument"), QStringLiteral(""));
    store.set({QStringLiteral("Startup")}, QStringLiteral("ToolPalettes"), QStringLiteral(""));
  }
  restart({.settingsFile = file, .userDataFolder = {}, .programFolder = {}});
  engine().runStartupCommands();
  EXPECT_EQ(document().name(), QStringLiteral("Drawing2.dxf"));
  EXPECT_TRUE(console().shows(QStringLiteral("\"ToolPalettes\" is not known")));
}
