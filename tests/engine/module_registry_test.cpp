#include "drafton/engine/module_registry.h"

#include "engine/support/engine_fixture.h"
#include "engine/support/test_commands.h"
#include "frame/dynamic_library.h"
#include "frame/file_path.h"

using namespace drafton;

namespace {

OdString modulePath(const char* name) {
  return odpath::fromPlatform(QStringLiteral(BINARY_DIR "/") + QLatin1String(name) +
                              QStringLiteral(".so"));
}

class ModuleRegistryTest : public EngineFixture {
 protected:
  ModuleRegistryTest() { engine().commands().add(testCommands()); }

  OdRxModule* load(const char* name = "engine_test_module") {
    return engine().modules().load(modulePath(name), &m_reason);
  }
  QStringList moduleCommands() { return engine().commands().namesIn(QStringLiteral("HOST")); }

  /// How many things the sources of the command line offer.
  int offers() {
    int count = 0;
    engine().completion().ask([&](const auto&) { ++count; });
    return count;
  }

  OdString m_reason;
};

} // namespace

TEST_F(ModuleRegistryTest, AModulesFunctionAsksSynchronously) {
  ASSERT_TRUE(load()) << m_reason.toStdString();
  input().lines = {QStringLiteral("Some Word"), QStringLiteral("Some More words")};
  type(QStringLiteral("AskTexts\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("Module asks: ")));
  // The first text ends at its blank and is raised; the second one takes what is left of the line.
  EXPECT_TRUE(console().shows(QStringLiteral("module got 'SOME' and 'Word'")))
      << output().toStdString();
}

TEST_F(ModuleRegistryTest, TheTextOfAHiddenCommandIsTakenAsItWasSent) {
  ASSERT_TRUE(load());
  send(QStringLiteral("AskTexts^Mfirst \"<block>\" "));
  EXPECT_TRUE(document().processor().isBusy() ||
              console().shows(QStringLiteral("module saw a cancel")) ||
              console().shows(QStringLiteral("and ''")));
  console().clear();
  document().commandInput()->sendText(QStringLiteral("AskTexts^Mfirst \"<block>\" "));
  document().commandInput()->sendText(QStringLiteral("\n"));
  engine().run();
  EXPECT_TRUE(console().shows(QStringLiteral("module got 'FIRST' and '\"<block>\" '")))
      << output().toStdString();
}

TEST_F(ModuleRegistryTest, AWaitingModuleCommandIsCancelled) {
  ASSERT_TRUE(load());
  input().lines = {QStringLiteral("^C")};
  type(QStringLiteral("AskTexts\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("module saw a cancel")));
  EXPECT_EQ(events(),
            QStringList({QStringLiteral("start AskTexts"), QStringLiteral("cancelled AskTexts")}));
}

TEST_F(ModuleRegistryTest, AModuleRunsACommandOfTheHostInsideItsOwn) {
  ASSERT_TRUE(load());
  send(QStringLiteral("__runnested WORD "));
  EXPECT_TRUE(console().shows(QStringLiteral("word: from the module")));
  EXPECT_TRUE(console().shows(QStringLiteral("nested run ended")));
  EXPECT_EQ(events(),
            QStringList({QStringLiteral("start __runnested"), QStringLiteral("start WORD"),
                         QStringLiteral("ended WORD"), QStringLiteral("ended __runnested")}));
}

TEST_F(ModuleRegistryTest, ANestedCommandWaitsAndItsChangesAreOneStep) {
  ASSERT_TRUE(load());
  input().lines = {QStringLiteral("0,0 1,1 2,2 ")};
  type(QStringLiteral("__runnested DRAW\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("nested run ended")));
  EXPECT_EQ(database().undoDepth(), 1u);
  EXPECT_EQ(database().undoName(), QStringLiteral("__runnested"));
}

TEST_F(ModuleRegistryTest, ACancelEndsBothCommandsWithOneEvent) {
  ASSERT_TRUE(load());
  input().lines = {QStringLiteral("0,0 1,1 ^C")};
  type(QStringLiteral("__runnested DRAW\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("nested run did not end")));
  EXPECT_EQ(events({QStringLiteral("cancelled")}),
            QStringList(QStringLiteral("cancelled __runnested")));
  EXPECT_FALSE(database().hasUndo());
}

TEST_F(ModuleRegistryTest, AFailureInAModuleIsToldAndGoesNoFurther) {
  ASSERT_TRUE(load());
  type(QStringLiteral("FailInModule\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("the module does not like it")));
  EXPECT_EQ(events().last(), QStringLiteral("failed FailInModule"));
}

TEST_F(ModuleRegistryTest, ACommandObjectIsMadeForEachRunAndKnowsItsDocument) {
  ASSERT_TRUE(load());
  type(QStringLiteral("greet\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("greetings to Drawing1.dxf")));
  EXPECT_TRUE(console().shows(QStringLiteral("module heard Greet")));
  EXPECT_EQ(events().last(), QStringLiteral("ended Greet"));
}

TEST_F(ModuleRegistryTest, AnOfferOfAModuleRunsByItsText) {
  ASSERT_TRUE(load());
  EXPECT_FALSE(engine().completion().runOffer(QStringLiteral("tools"), QStringLiteral("TOOL:No")));
  EXPECT_TRUE(
      engine().completion().runOffer(QStringLiteral("tools"), QStringLiteral("TOOL:Hello")));
  EXPECT_FALSE(console().shows(QStringLiteral("greetings"))) << "it only types";
  engine().run();
  EXPECT_TRUE(console().shows(QStringLiteral("greetings")));
}

TEST_F(ModuleRegistryTest, AModuleHearsOfChangedSettings) {
  ASSERT_TRUE(load());
  type(QStringLiteral("SETTING ToolPaletteDir /a b;/c\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("module sees ToolPaletteDir = /a b;/c")));
}

TEST_F(ModuleRegistryTest, UnloadingLeavesNothingOfTheModule) {
  OdRxModule* const module = load();
  ASSERT_TRUE(module);
  EXPECT_EQ(moduleCommands().size(), 4);
  EXPECT_EQ(load(), module) << "it is loaded once";
  EXPECT_GT(offers(), 0);
  EXPECT_TRUE(engine().modules().unload(module));
  EXPECT_FALSE(engine().modules().unload(module));
  EXPECT_TRUE(moduleCommands().isEmpty());
  EXPECT_EQ(offers(), 0);
  EXPECT_FALSE(oddynlib::loadedModule(modulePath("engine_test_module")));
  // Neither the reactor nor the watcher, which the module left behind, is called.
  type(QStringLiteral("greet\nSETTING ToolPaletteDir /x\nWORD\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("Unknown command \"greet\"")));
  EXPECT_FALSE(console().shows(QStringLiteral("module")));
}

TEST_F(ModuleRegistryTest, AModuleCanComeAndGoAgain) {
  for (int i = 0; i < 20; ++i) {
    OdRxModule* const module = load();
    ASSERT_TRUE(module) << m_reason.toStdString();
    EXPECT_EQ(moduleCommands().size(), 4);
    ASSERT_TRUE(engine().modules().unload(module));
  }
}

TEST_F(ModuleRegistryTest, AModuleThatFailsAtItsStartLeavesNothing) {
  EXPECT_FALSE(load("engine_failing_module"));
  EXPECT_TRUE(m_reason.contains(QStringLiteral("does not start today")));
  EXPECT_TRUE(moduleCommands().isEmpty());
  EXPECT_EQ(offers(), 0);
  type(QStringLiteral("SETTING ToolPaletteDir /x\nWORD\n"));
  EXPECT_FALSE(console().shows(QStringLiteral("module sees")));
}

TEST_F(ModuleRegistryTest, AModuleOfAnotherVersionIsRefusedAndLeavesNothing) {
  EXPECT_FALSE(load("engine_old_module"));
  EXPECT_TRUE(m_reason.contains(QStringLiteral("3.3.1.0"))) << m_reason.toStdString();
  EXPECT_TRUE(moduleCommands().isEmpty());
}

TEST_F(ModuleRegistryTest, DraftonGoesOnWithoutItsModule) {
  restart({.settingsFile = {}, .userDataFolder = {}, .programFolder = QStringLiteral("\\nowhere")});
  EXPECT_FALSE(engine().loadModule(QStringLiteral("ToolPaletteManager")));
  EXPECT_TRUE(console().shows(QStringLiteral("/nowhere/ToolPaletteManager.so is not loaded")));
  type(QStringLiteral("NewDocument\n"));
  EXPECT_EQ(events({QStringLiteral("ended")}).size(), 1);
}

TEST_F(ModuleRegistryTest, ALibraryThatIsNoModuleIsRefused) {
  const OdString path = odpath::fromPlatform(QStringLiteral(BINARY_DIR "/libodframe.so"));
  EXPECT_FALSE(engine().modules().load(path, &m_reason));
  EXPECT_EQ(m_reason, QStringLiteral("it is not a module"));
}
