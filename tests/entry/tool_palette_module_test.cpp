#include "module/entry/tool_palette_module.h"

#include "catalog/palette_manager.h"
#include "host/host_locator.h"
#include "host/integration/editor_reactor.h"
#include "host/integration/editor_reactor_ex.h"
#include "module/entry/class_table.h"
#include "module/entry/singletons.h"
#include "persistence/value_storage.h"
#include "support/test_host.h"
#include "tools/command_conveyor.h"
#include "tools/conveyor_impl.h"
#include "tools/tool_buffer.h"
#include "ui/palette_set.h"
#include "ui/state_saver.h"

#include <gtest/gtest.h>

namespace {

using testhost::host;
using namespace tc;

/// Which of the module's parts are there, in one line.
OdString state() {
  const std::pair<const char*, bool> parts[] = {
      {"classes", odrxFindClass(QStringLiteral("OdTcTool")) != nullptr},
      {"reactorClass", odrxFindClass(QStringLiteral("TcEditorReactor")) != nullptr},
      {"reactorExClass", odrxFindClass(QStringLiteral("TcEditorReactorEx")) != nullptr},
      {"storage", OdTcValueStorageImpl::instance() != nullptr},
      {"manager", OdTcPaletteManager::instance() != nullptr},
      {"reactor", TcEditorReactor::instance() != nullptr && IToolGuard::instance() != nullptr},
      {"reactorEx", TcEditorReactorEx::instance() != nullptr},
      {"images", OdTcConveyorImpl::instance() != nullptr},
      {"saver", OdTcStateSaverImpl::instance() != nullptr},
      {"buffer", OdTcToolBuffer::instance() != nullptr},
      {"conveyor", OdTcCommandConveyor::instance() != nullptr},
  };
  QStringList there;
  for (const auto& [name, isThere] : parts)
    if (isThere) there << QLatin1String(name);
  return there.join(QLatin1Char(' '));
}

const OdString kAllParts = QStringLiteral(
    "classes reactorClass reactorExClass storage manager reactor reactorEx images saver buffer "
    "conveyor");

struct ToolPaletteModuleTest : testing::Test {
  ToolPaletteModuleTest() {
    host().reset();
    ::host::setModuleDirectory(nullptr);
    // A folder without a catalog shows in the log when the catalogs are loaded.
    host().application.settings[QStringLiteral("ToolPaletteDir")] =
        QStringLiteral("C:\\no such folder");
  }
  OdSmartPtr<OdTcModule> module = OdTcModule::instance(nullptr);
};

TEST_F(ToolPaletteModuleTest, ComesUpAndGoesDownInItsOrder) {
  QStringList states;
  const auto note = [&](const char* when) {
    return [&states, when] { states << QLatin1String(when) + QStringLiteral(": ") + state(); };
  };
  host().events.onAdd = note("reactor added");
  host().completion.onRegister = note("source registered");
  host().events.onRemove = note("reactor removed");
  host().completion.onRemove = note("source removed");

  module->initApp();
  EXPECT_EQ(host().log,
            QStringList({QStringLiteral("addReactor TcEditorReactor"),
                         QStringLiteral("addReactor TcEditorReactorEx"),
                         QStringLiteral("print \nError: cannot find catalog file: C:\\no such "
                                        "folder\\DrfTcCatalog.dtc"),
                         QStringLiteral("registerSource tools")}));
  EXPECT_EQ(host().events.reactors,
            (std::vector<HostEditorReactor*>{TcEditorReactor::instance(),
                                             TcEditorReactorEx::instance()}));

  host().log.clear();
  module->uninitApp();
  EXPECT_EQ(host().log,
            QStringList({QStringLiteral("removeReactor"), QStringLiteral("removeReactor"),
                         QStringLiteral("removeSource tools")}));
  const OdString withoutClasses = QStringLiteral(
      "reactor removed: reactorClass reactorExClass storage manager reactor reactorEx images saver "
      "buffer conveyor");
  EXPECT_EQ(states, QStringList({QStringLiteral("reactor added: ") + kAllParts,
                                 QStringLiteral("reactor added: ") + kAllParts,
                                 QStringLiteral("source registered: ") + kAllParts, withoutClasses,
                                 withoutClasses, QStringLiteral("source removed: ")}));
  EXPECT_EQ(state(), OdString());
}

TEST_F(ToolPaletteModuleTest, RegistersItsClassesUnderItsName) {
  module->initApp();
  for (const char* name :
       {"OdTcPersist", "OdTcCommandConveyor", "TcEditorReactor", "TcEditorReactorEx"})
    EXPECT_EQ(odrxFindClass(QLatin1String(name))->appName(), QStringLiteral("ToolPaletteManager"));
  module->uninitApp();
}

TEST_F(ToolPaletteModuleTest, ClearsTheVisibleFlagAtItsStart) {
  setPaletteSetShown(true);
  module->initApp();
  EXPECT_FALSE(isPaletteSetShown());
  module->uninitApp();
}

TEST_F(ToolPaletteModuleTest, AFailedRegistrationLeavesWhatCameBefore) {
  OdRxClass* const squatter =
      newOdRxClass(QStringLiteral("TcEditorReactorEx"), HostEditorReactor::desc());
  try {
    module->initApp();
    FAIL() << "no error";
  } catch (const OdError& error) {
    EXPECT_EQ(error.code(), 313);
  }
  EXPECT_EQ(state(), QStringLiteral("classes reactorClass reactorExClass"));
  EXPECT_TRUE(host().log.isEmpty());
  deleteOdRxClass(squatter);
  TcEditorReactor::rxUninit();
  unregisterModuleClasses();
}

TEST_F(ToolPaletteModuleTest, StoppingWithoutAStartRaises) {
  try {
    module->uninitApp();
    FAIL() << "no error";
  } catch (const OdError& error) {
    EXPECT_EQ(error.code(), 255);
  }
}

TEST_F(ToolPaletteModuleTest, StartsAndStopsInABareHost) {
  for (const std::string_view service :
       {testhost::kMainModule, testhost::kServices, testhost::kDocumentManager,
        testhost::kEditorEvents, testhost::kCompletionRegistry, testhost::kApplication,
        testhost::kProfile, testhost::kCommandFactory, testhost::kParameterSets,
        IHostMessages::kId})
    host().switchOff(service);
  module->initApp();
  EXPECT_EQ(state(), kAllParts);
  module->uninitApp();
  EXPECT_EQ(state(), OdString());
  EXPECT_TRUE(host().log.isEmpty());
}

TEST_F(ToolPaletteModuleTest, ObjectsOutliveTheModulesStop) {
  module->initApp();
  const OdTcPaletteManagerPtr manager(OdTcPaletteManager::instance());
  const TcEditorReactorPtr reactor(TcEditorReactor::instance());
  const OdRxObjectPtr tool = odrxFindClass(QStringLiteral("OdTcTool"))->create();
  module->uninitApp();
  EXPECT_EQ(manager->numRefs(), 1);
  EXPECT_EQ(reactor->numRefs(), 1);
  EXPECT_EQ(tool->isA(), nullptr);
}

TEST_F(ToolPaletteModuleTest, TheWindowGoesWhenTheModuleStops) {
  module->initApp();
  ITcUiPaletteSet::setInstance(makePaletteSet());
  module->uninitApp();
  EXPECT_EQ(ITcUiPaletteSet::instance(), nullptr);
}

TEST_F(ToolPaletteModuleTest, ANewSettingRefreshesOnlyAVisibleWindow) {
  struct CountingWindow : ITcUiPaletteSet {
    int& refreshed;
    bool& visible;
    CountingWindow(int& r, bool& v)
      : refreshed(r)
      , visible(v) {}
    bool queryInterface(std::string_view, void**) override { return false; }
    bool isVisible() const override { return visible; }
    void show(int, int, int) override {}
    void close() override {}
    void refresh() override { ++refreshed; }
  };
  int refreshed = 0;
  bool visible = true;
  module->initApp();
  host().application.change(QStringLiteral("ToolPaletteDir"), QStringLiteral("C:\\another"));
  ITcUiPaletteSet::setInstance(std::make_unique<CountingWindow>(refreshed, visible));
  host().application.change(QStringLiteral("ToolPaletteDir"), QStringLiteral("C:\\a third"));
  EXPECT_EQ(refreshed, 1);
  visible = false;
  host().application.change(QStringLiteral("ToolPaletteDir"), QStringLiteral("C:\\a fourth"));
  EXPECT_EQ(refreshed, 1);
  module->uninitApp();
}

TEST_F(ToolPaletteModuleTest, ASecondSingletonReplacesTheFirst) {
  module->initApp();
  const OdTcPaletteManagerPtr first(OdTcPaletteManager::instance());
  createSingletons();
  EXPECT_NE(OdTcPaletteManager::instance(), first.get());
  EXPECT_EQ(first->numRefs(), 1);
  host().events.reactors.clear();
  module->uninitApp();
}

TEST_F(ToolPaletteModuleTest, ThereIsOneModuleObject) {
  EXPECT_EQ(OdTcModule::instance(nullptr), module.get());
  EXPECT_EQ(module->moduleName(), QStringLiteral("ToolPaletteManager"));
}

TEST_F(ToolPaletteModuleTest, ANewModuleObjectBeginsWithoutReferences) {
  module = nullptr;
  int handle = 0;
  OdTcModule* const made = OdTcModule::instance(&handle);
  EXPECT_EQ(made->numRefs(), 0);
  EXPECT_EQ(made->moduleHandle(), &handle);
  module = made;
}

} // namespace
