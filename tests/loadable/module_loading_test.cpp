#include "frame/dynamic_library.h"
#include "frame/module_loader.h"
#include "frame/rx_class.h"
#include "support/test_host.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using testhost::host;

const OdString kLibrary = QStringLiteral(BINARY_DIR "/ToolPaletteManager.so");

bool isLoaded() { return oddynlib::loadedModule(kLibrary) != nullptr; }

struct ModuleLoadingTest : testing::Test {
  ModuleLoadingTest() {
    host().reset();
    host().forgetCommands();
    host().application.userFolder = folder.path();
    host().application.settings[QStringLiteral("ToolPaletteDir")] = folder.path();
  }
  QTemporaryDir folder;
};

TEST_F(ModuleLoadingTest, TheModuleObjectIsMadeOnce) {
  const OdModuleHandle handle = oddynlib::load(kLibrary, nullptr);
  ASSERT_TRUE(handle);
  const auto create = oddynlib::function<OdRxCreateModuleObject>(handle, "odrxCreateModuleObject");
  OdRxModule* first = nullptr;
  OdRxModule* second = nullptr;
  create(handle, &first);
  create(handle, &second);
  ASSERT_TRUE(first);
  EXPECT_EQ(first, second);
  EXPECT_EQ(first->numRefs(), 0);
  EXPECT_EQ(first->moduleHandle(), handle);
  EXPECT_EQ(first->moduleName(), QStringLiteral("ToolPaletteManager"));
  first->addRef();
  first->release();
  oddynlib::unload(handle);
}

TEST_F(ModuleLoadingTest, SpeaksThisVersionOfTheModuleInterface) {
  const OdModuleHandle handle = oddynlib::load(kLibrary, nullptr);
  ASSERT_TRUE(handle);
  unsigned v[4] = {};
  oddynlib::function<OdRxGetApiVersion>(handle, "odrxGetAPIVersion")(&v[0], &v[1], &v[2], &v[3]);
  EXPECT_EQ(v[0], 4u);
  EXPECT_EQ(v[1], 3u);
  EXPECT_EQ(v[2], 1u);
  EXPECT_EQ(v[3], 0u);
  oddynlib::unload(handle);
}

TEST_F(ModuleLoadingTest, LoadingAloneRegistersTheCommands) {
  const OdModuleHandle handle = oddynlib::load(kLibrary, nullptr);
  ASSERT_TRUE(handle);
  EXPECT_EQ(host().commands.keys(),
            QStringList({QStringLiteral("ToolPalettes"), QStringLiteral("ToolPalettesExport"),
                         QStringLiteral("ToolPalettesImport"), QStringLiteral("ToolPalettesMake"),
                         QStringLiteral("ToolPalettesOpen"), QStringLiteral("__executetool")}));
  EXPECT_EQ(host().liveFactories, 0);
  EXPECT_FALSE(odrxFindClass(QStringLiteral("OdTcPersist"))) << "nothing else is up yet";
  oddynlib::unload(handle);
  EXPECT_EQ(host().commands.size(), 6) << "the registrations are not taken back";
}

TEST_F(ModuleLoadingTest, RunsFromLoadingToUnloadingAHundredTimes) {
  const QStringList classes = odrxClassNames();
  for (int round = 0; round < 100; ++round) {
    OdRxModuleLoader loader;
    OdString reason;
    OdRxModule* const module = loader.load(kLibrary, &reason);
    ASSERT_TRUE(module) << reason.toStdString();
    ASSERT_EQ(host().completion.sources.keys(), QStringList(QStringLiteral("tools")));
    ASSERT_EQ(host().events.reactors.size(), 2u);

    // A tool outlives the stop: the last that the module does is to give up its source.
    OdRxObjectPtr survivor = odrxFindClass(QStringLiteral("OdTcTool"))->create();
    ASSERT_TRUE(survivor);
    bool isWithoutClass = false;
    host().completion.onRemove = [&] {
      isWithoutClass = survivor->isA() == nullptr && survivor->numRefs() == 1;
      survivor = nullptr;
    };
    ASSERT_TRUE(host().runCommand(QStringLiteral("ToolPalettes")));
    ASSERT_TRUE(host().runCommand(QStringLiteral("__executetool")));

    ASSERT_TRUE(loader.unload(module));
    ASSERT_TRUE(isWithoutClass);
    ASSERT_FALSE(isLoaded()) << "round " << round;
    ASSERT_EQ(odrxClassNames(), classes);
    ASSERT_TRUE(host().events.reactors.empty());
    ASSERT_TRUE(host().completion.sources.isEmpty());
    ASSERT_TRUE(host().application.reactors.empty());
  }
}

TEST_F(ModuleLoadingTest, NothingThatTheHostKeepsPointsIntoTheLibrary) {
  {
    OdRxModuleLoader loader;
    ASSERT_TRUE(loader.load(kLibrary, nullptr));
    host().runCommand(QStringLiteral("ToolPalettes"));
    host().application.change(QStringLiteral("ToolPaletteDir"), QStringLiteral("C:\\gone"));
  }
  ASSERT_FALSE(isLoaded());
  // The library's memory is gone: to read a text that stood in it would crash.
  EXPECT_EQ(
      host().commands.keys().join(QLatin1Char(' ')),
      QStringLiteral(
          "ToolPalettes ToolPalettesExport ToolPalettesImport ToolPalettesMake ToolPalettesOpen "
          "__executetool"));
  for (const testhost::RegisteredCommand& command : host().commands)
    EXPECT_EQ(command.group, QStringLiteral("HOST"));
  EXPECT_EQ(host().messages.printed.size(), 2) << "a folder without a catalog, twice";
  EXPECT_TRUE(host().messages.printed.join(QString()).contains(QStringLiteral("C:\\gone")));
  const testhost::TestProfile* const startup =
      host().application.store->at(QStringLiteral("Startup"));
  ASSERT_TRUE(startup);
  EXPECT_EQ(startup->values.keys(), QStringList(QStringLiteral("ToolPalettes")));
  EXPECT_EQ(startup->values.first().toString(), QStringLiteral("ToolPalettes"));
  QStringList sections = host().application.store->sections.keys();
  EXPECT_TRUE(sections.contains(QStringLiteral("cmddata")));
}

TEST_F(ModuleLoadingTest, WhatAToolLeavesInTheHostOutlivesTheLibrary) {
  host().application.settings[QStringLiteral("ToolPaletteDir")] =
      QStringLiteral(SOURCE_DIR "/samples/catalog");
  testhost::TestDocument& document = host().documents.open(QStringLiteral("A.dxf"));
  {
    OdRxModuleLoader loader;
    ASSERT_TRUE(loader.load(kLibrary, nullptr));
    const auto offers = host().completion.offers(QStringLiteral("tools"));
    ASSERT_GE(offers.size(), 2u);
    offers[0]->action->run();
    offers[1]->action->run();
    host().events.commandCancelled(QStringLiteral("LINE"));
    host().events.commandEnded(QStringLiteral("LINE"));
  }
  ASSERT_FALSE(isLoaded());
  ASSERT_EQ(document.sent.size(), 3);
  EXPECT_EQ(document.sent[1], QStringLiteral("^C"));
  ASSERT_EQ(host().documents.locks.size(), 2u);
  for (const auto& lock : host().documents.locks)
    EXPECT_EQ(lock.commandName, QStringLiteral("EXECUTETOOL"));
}

TEST_F(ModuleLoadingTest, ASecondLoadGivesTheSameModule) {
  OdRxModuleLoader loader;
  OdRxModule* const module = loader.load(kLibrary, nullptr);
  ASSERT_TRUE(module);
  EXPECT_EQ(loader.load(kLibrary, nullptr), module) << "it is loaded already";
  EXPECT_EQ(loader.find(QStringLiteral("ToolPaletteManager")), module);
  loader.unloadAll();
  EXPECT_FALSE(isLoaded());
}

TEST_F(ModuleLoadingTest, LoadsIntoABareHost) {
  host().switchOff(testhost::kMainModule);
  host().switchOff(testhost::kCommandFactory);
  OdRxModuleLoader loader;
  EXPECT_TRUE(loader.load(kLibrary, nullptr));
  EXPECT_TRUE(host().commands.isEmpty());
  EXPECT_TRUE(host().log.isEmpty());
}

} // namespace
