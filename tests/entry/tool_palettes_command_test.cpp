#include "module/entry/tool_palettes_command.h"

#include "catalog/group.h"
#include "catalog/palette_manager.h"
#include "module/entry/module_functions.h"
#include "module/entry/static_commands.h"
#include "support/module_fixture.h"
#include "tools/execute_tool_command.h"
#include "ui/windowless_palette_set.h"

namespace {

using testhost::host;
using namespace tc;

struct ToolPalettesCommandTest : testhost::ModuleFixture {
  ToolPalettesCommandTest() { host().forgetCommands(); }
  ~ToolPalettesCommandTest() override { host().forgetCommands(); }

  KVPtr<ICmdProcess> command = KVPtr<ICmdProcess>::attach(TcCmd::create());

  static bool isRecorded() {
    testhost::TestProfile* const startup = host().application.store->at(QStringLiteral("Startup"));
    return startup && startup->values.contains(QStringLiteral("ToolPalettes"));
  }
};

TEST_F(ToolPalettesCommandTest, LinkingTheLayersRegistersNothing) {
  EXPECT_TRUE(host().commands.isEmpty());
}

TEST_F(ToolPalettesCommandTest, RegistersItsCommandsWithFactoriesThatAreReleased) {
  registerStaticCommands();
  ASSERT_EQ(host().commands.keys(),
            QStringList({QStringLiteral("ToolPalettes"), QStringLiteral("ToolPalettesExport"),
                         QStringLiteral("ToolPalettesImport"), QStringLiteral("ToolPalettesMake"),
                         QStringLiteral("ToolPalettesOpen"), QStringLiteral("__executetool")}));
  const testhost::RegisteredCommand palettes = host().commands[QStringLiteral("ToolPalettes")];
  EXPECT_EQ(palettes.group, QStringLiteral("HOST"));
  EXPECT_EQ(palettes.flags, 0u);
  EXPECT_EQ(palettes.creator, &TcCmd::create);
  const testhost::RegisteredCommand hidden = host().commands[QStringLiteral("__executetool")];
  EXPECT_EQ(hidden.group, QStringLiteral("HOST"));
  EXPECT_EQ(hidden.flags, 0u);
  EXPECT_EQ(hidden.function, &executeToolCommand);
  EXPECT_EQ(host().liveFactories, 0);
}

TEST_F(ToolPalettesCommandTest, AHostWithoutAFactoryGetsNoCommands) {
  host().switchOff(testhost::kCommandFactory);
  registerStaticCommands();
  EXPECT_TRUE(host().commands.isEmpty());
}

TEST_F(ToolPalettesCommandTest, OpensClosesAndShowsTheWindow) {
  EXPECT_FALSE(isRecorded());
  EXPECT_EQ(command->Run(), 0);
  ITcUiPaletteSet* const window = ITcUiPaletteSet::instance();
  ASSERT_TRUE(window);
  EXPECT_TRUE(window->isVisible());
  EXPECT_TRUE(odtcToolPaletteVisible());
  EXPECT_TRUE(isRecorded());

  EXPECT_EQ(command->Run(), 0);
  EXPECT_FALSE(window->isVisible());
  EXPECT_FALSE(odtcToolPaletteVisible());
  EXPECT_FALSE(isRecorded());

  EXPECT_EQ(command->Run(), 0);
  EXPECT_EQ(ITcUiPaletteSet::instance(), window) << "the window is made once";
  EXPECT_TRUE(window->isVisible());
  EXPECT_TRUE(odtcToolPaletteVisible());
  EXPECT_TRUE(isRecorded());
}

TEST_F(ToolPalettesCommandTest, ShowsTheWindowWithItsThreeArguments) {
  struct RecordingWindow : ITcUiPaletteSet {
    QStringList& calls;
    explicit RecordingWindow(QStringList& record)
      : calls(record) {}
    bool queryInterface(std::string_view, void**) override { return false; }
    bool isVisible() const override { return false; }
    void show(int how, int activate, int update) override {
      calls << QStringLiteral("show %1 %2 %3").arg(how).arg(activate).arg(update);
    }
    void close() override { calls << QStringLiteral("close"); }
    void refresh() override {}
  };
  QStringList calls;
  ITcUiPaletteSet::setInstance(std::make_unique<RecordingWindow>(calls));
  command->Run();
  command->Run();
  EXPECT_EQ(calls, QStringList({QStringLiteral("show 1 0 1"), QStringLiteral("close")}));
}

TEST_F(ToolPalettesCommandTest, WorksWithoutASettingsStore) {
  host().switchOff(testhost::kProfile);
  EXPECT_EQ(command->Run(), 0);
  EXPECT_TRUE(odtcToolPaletteVisible());
  EXPECT_EQ(command->Run(), 0);
  EXPECT_FALSE(odtcToolPaletteVisible());
}

TEST_F(ToolPalettesCommandTest, IsCheckedWhileTheWindowIsVisible) {
  EXPECT_EQ(command->state(), 1);
  command->Run();
  EXPECT_EQ(command->state(), 3);
  command->Run();
  EXPECT_EQ(command->state(), 1);
}

TEST_F(ToolPalettesCommandTest, AnswersForTheCommandInterface) {
  EXPECT_TRUE(kvQuery<ICmdProcess>(command.get()));
  EXPECT_FALSE(kvQuery<IRunContext>(command.get()));
  command->cancel();
  command->finish();
  EXPECT_EQ(command->addRef(), 2u);
  EXPECT_EQ(command->release(), 1u);
}

struct Context : CKVUnknownImpl<IRunContext> {
  IHostDocument* document() override { return nullptr; }
};

TEST_F(ToolPalettesCommandTest, HoldsOneReferenceToItsContext) {
  const auto refs = [](IKVUnknown* object) {
    object->addRef();
    return object->release();
  };
  const KVPtr<Context> first = kvMake<Context>();
  const KVPtr<Context> second = kvMake<Context>();
  command->setContext(first.get());
  command->setContext(first.get());
  EXPECT_EQ(command->context(), first.get());
  EXPECT_EQ(refs(first.get()), 2u);
  command->setContext(second.get());
  EXPECT_EQ(refs(first.get()), 1u);
  EXPECT_EQ(refs(second.get()), 2u);
  command = nullptr;
  EXPECT_EQ(refs(second.get()), 1u);
}

// --- the exported functions

TEST_F(ToolPalettesCommandTest, GivesTheManagerWithoutAReference) {
  const int refs = OdTcPaletteManager::instance()->numRefs();
  EXPECT_EQ(odtcToolPaletteManager(), OdTcPaletteManager::instance());
  EXPECT_EQ(OdTcPaletteManager::instance()->numRefs(), refs);
}

struct AddReactorSpy {
  OdTcGroupPtr item = OdTcGroup::createObject();
  bool isAdded() {
    // A reactor that was not there cannot be removed.
    OdTcCatalogItemReactor* const reactor = paletteSetPart<ITcUiSelection>()->itemReactor();
    const bool was = item->removeReactor(reactor);
    if (was) item->addReactor(reactor);
    return was;
  }
};

TEST_F(ToolPalettesCommandTest, BeforeTheWindowIsOpenedThereIsNoSelection) {
  const OdTcGroupPtr item = OdTcGroup::createObject();
  EXPECT_EQ(odtcGetSelectedItem(), nullptr);
  odtcInitReactor(item);
  odtcUninitReactor(item);
  odtcInitReactor(nullptr);
  command->Run();
  EXPECT_FALSE(item->removeReactor(paletteSetPart<ITcUiSelection>()->itemReactor()));
}

TEST_F(ToolPalettesCommandTest, TellsTheWindowsSelection) {
  command->Run();
  EXPECT_EQ(odtcGetSelectedItem(), nullptr);
  const OdTcGroupPtr item = OdTcGroup::createObject();
  static_cast<WindowlessPaletteSet*>(ITcUiPaletteSet::instance())->select(item);
  EXPECT_EQ(odtcGetSelectedItem(), item.get());
}

TEST_F(ToolPalettesCommandTest, LetsTheWindowHearOfAnItem) {
  command->Run();
  AddReactorSpy spy;
  odtcInitReactor(spy.item);
  EXPECT_TRUE(spy.isAdded());
  odtcUninitReactor(spy.item);
  EXPECT_FALSE(spy.isAdded());
  odtcInitReactor(nullptr);
  odtcUninitReactor(nullptr);
}

} // namespace
