#include "host/host_locator.h"

#include "frame/dynamic_library.h"
#include "host/exports.h"
#include "support/test_host.h"

#include <gtest/gtest.h>

namespace {

using testhost::host;

int g_view = 0;
int g_kvac = 0;
int g_core = 0;
int g_named = 0;

/// A process with the modules and exports that a test names.
class TestDirectory : public ::host::ModuleDirectory {
 public:
  TestDirectory() { m_former = ::host::setModuleDirectory(this); }
  ~TestDirectory() override { ::host::setModuleDirectory(m_former); }

  QMap<OdString, OdModuleHandle> modules;
  QMap<std::pair<OdModuleHandle, QByteArray>, void*> exports;
  QStringList asked;

  template <class F>
  void offer(OdModuleHandle module, const char* name, F function) {
    exports[{module, name}] = reinterpret_cast<void*>(function);
  }
  OdModuleHandle mainExecutable() override { return this; }
  OdModuleHandle loadedModule(const OdString& name) override {
    asked << name;
    return modules.value(name);
  }
  void* procAddress(OdModuleHandle module, const char* name) override {
    return exports.value({module, name});
  }

 private:
  ::host::ModuleDirectory* m_former;
};

OdModuleHandle giveNamed() { return &g_named; }
const char16_t* giveName() { return u"theview"; }
void makeFactoryOfNamed(ICmdFactory** factory) {
  *factory = nullptr;
  g_named = 1;
}
void makeFactoryOfView(ICmdFactory** factory) {
  *factory = nullptr;
  g_view = 1;
}
void makeFactoryOfKvac(ICmdFactory** factory) {
  *factory = nullptr;
  g_kvac = 1;
}
OdModuleHandle giveKvac() { return &g_kvac; }
IHostApplication* giveNoApp() { return nullptr; }
IHostApplication* giveApp() { return &host().application; }
void* createApp(const char* id) {
  return std::string_view(id) == "CLSID_APP" ? static_cast<IHostApplication*>(&host().application)
                                             : nullptr;
}

struct HostLocatorTest : testing::Test {
  HostLocatorTest() { host().reset(); }
};

TEST_F(HostLocatorTest, TakesTheExecutablesOwnAnswerFirst) {
  TestDirectory process;
  process.offer(&process, hostexport::kGetMainDllInstance, giveNamed);
  process.modules[QStringLiteral("hbview.dll")] = &g_view;
  EXPECT_EQ(::host::mainModule(), &g_named);
  EXPECT_TRUE(process.asked.isEmpty());
}

TEST_F(HostLocatorTest, FallsBackToTheViewModule) {
  TestDirectory process;
  process.modules[QStringLiteral("hbview.dll")] = &g_view;
  process.modules[QStringLiteral("KvAcApp.dll")] = &g_core;
  process.offer(&g_core, hostexport::kGetMainDllInstanceEx, giveKvac);
  EXPECT_EQ(::host::mainModule(), &g_view);
}

TEST_F(HostLocatorTest, AsksTheApplicationModuleLast) {
  TestDirectory process;
  process.modules[QStringLiteral("KvAcApp.dll")] = &g_core;
  process.offer(&g_core, hostexport::kGetMainDllInstanceEx, giveKvac);
  EXPECT_EQ(::host::mainModule(), &g_kvac);
  EXPECT_EQ(process.asked,
            QStringList({QStringLiteral("hbview.dll"), QStringLiteral("KvAcApp.dll")}));
}

TEST_F(HostLocatorTest, WithoutAHostEveryServiceIsMissing) {
  TestDirectory process;
  EXPECT_EQ(::host::mainModule(), nullptr);
  EXPECT_EQ(::host::services(), nullptr);
  EXPECT_EQ(::host::documentManager(), nullptr);
  EXPECT_EQ(::host::curDocument(), nullptr);
  EXPECT_EQ(::host::application(), nullptr);
  EXPECT_FALSE(::host::newCmdFactory());
  EXPECT_FALSE(::host::newMemParam());
  EXPECT_FALSE(::host::profileSection(QStringLiteral("cmddata")));
  EXPECT_EQ(::host::translate(QStringLiteral("Tools")), QStringLiteral("Tools"));
  EXPECT_TRUE(::host::commandRouteMap().isEmpty());
  ::host::print(QStringLiteral("\nheard by nobody"));
}

TEST_F(HostLocatorTest, FindsTheCommandFactoryInTheModuleThatTheExecutableNames) {
  g_named = g_view = g_kvac = 0;
  TestDirectory process;
  process.offer(&process, hostexport::kGetMainDllName, giveName);
  process.modules[QStringLiteral("theview")] = &g_named;
  process.modules[QStringLiteral("hbview")] = &g_view;
  process.offer(&g_named, hostexport::kNewCmdFactory, makeFactoryOfNamed);
  process.offer(&g_view, hostexport::kNewCmdFactory, makeFactoryOfView);
  ::host::newCmdFactory();
  EXPECT_EQ(g_named, 1);
  EXPECT_EQ(g_view, 0);
}

const char16_t* giveNoName() { return nullptr; }
const char16_t* giveEmptyName() { return u""; }

TEST_F(HostLocatorTest, AnExecutableWithoutAModuleNameIsTheMainModuleItself) {
  g_named = 0;
  TestDirectory process;
  process.offer(&process, hostexport::kGetMainDllName, giveNoName);
  process.offer(&process, hostexport::kNewCmdFactory, makeFactoryOfNamed);
  ::host::newCmdFactory();
  EXPECT_EQ(g_named, 1);
}

TEST_F(HostLocatorTest, ANameOfNoLoadedModuleLeavesTheSearchToTheViewModule) {
  for (const auto name : {giveName, giveEmptyName}) {
    g_named = g_view = 0;
    TestDirectory process;
    process.offer(&process, hostexport::kGetMainDllName, name);
    process.offer(&process, hostexport::kNewCmdFactory, makeFactoryOfNamed);
    process.modules[QStringLiteral("hbview")] = &g_view;
    process.offer(&g_view, hostexport::kNewCmdFactory, makeFactoryOfView);
    ::host::newCmdFactory();
    EXPECT_EQ(g_named, 0);
    EXPECT_EQ(g_view, 1);
  }
}

TEST_F(HostLocatorTest, FindsTheCommandFactoryInTheViewModuleThenInTheApplicationModule) {
  g_named = g_view = g_kvac = 0;
  TestDirectory process;
  process.modules[QStringLiteral("KvAcApp.dll")] = &g_core;
  process.offer(&g_core, hostexport::kGetMainDllInstanceEx, giveKvac);
  process.offer(&g_kvac, hostexport::kNewCmdFactory, makeFactoryOfKvac);
  ::host::newCmdFactory();
  EXPECT_EQ(g_kvac, 1);
  process.modules[QStringLiteral("hbview")] = &g_view;
  process.offer(&g_view, hostexport::kNewCmdFactory, makeFactoryOfView);
  ::host::newCmdFactory();
  EXPECT_EQ(g_view, 1);
}

TEST_F(HostLocatorTest, FindsTheApplicationInOneOfThreePlaces) {
  {
    TestDirectory process;
    process.modules[QStringLiteral("KvAcApp.dll")] = &g_core;
    process.offer(&g_core, hostexport::kGetApp, giveApp);
    EXPECT_EQ(::host::application(), &host().application);
  }
  {
    TestDirectory process;
    process.offer(&process, hostexport::kGetMainDllInstance, giveNamed);
    process.offer(&g_named, hostexport::kGetApp, giveApp);
    EXPECT_EQ(::host::application(), &host().application);
  }
  {
    TestDirectory process;
    process.modules[QStringLiteral("KViCore.dll")] = &g_core;
    process.offer(&g_core, hostexport::kCreateObject, createApp);
    EXPECT_EQ(::host::application(), &host().application);
  }
}

TEST_F(HostLocatorTest, AsksAgainForAnApplicationThatWasMissing) {
  TestDirectory process;
  process.offer(&process, hostexport::kGetMainDllInstance, giveNamed);
  process.offer(&g_named, hostexport::kGetApp, giveNoApp);
  EXPECT_EQ(::host::application(), nullptr);
  process.offer(&g_named, hostexport::kGetApp, giveApp);
  EXPECT_EQ(::host::application(), &host().application);
}

TEST_F(HostLocatorTest, FindsTheExportsOfTheProcessItself) {
  EXPECT_EQ(::host::mainModule(), oddynlib::mainExecutable());
  EXPECT_EQ(::host::services(), &host());
  EXPECT_EQ(::host::documentManager(), &host().documents);
  EXPECT_EQ(::host::application(), &host().application);
  EXPECT_TRUE(::host::newCmdFactory());
  EXPECT_EQ(host().liveFactories, 0);
  EXPECT_TRUE(::host::newMemParam());
  host().routeMap = QStringLiteral("C:\\host\\routes.xml");
  EXPECT_EQ(::host::commandRouteMap(), host().routeMap);
}

TEST_F(HostLocatorTest, GivesOnlyTheServicesThatTheHostHas) {
  EXPECT_TRUE(::host::service<IHostMessages>());
  EXPECT_TRUE(::host::service<IHostCommandService>());
  host().switchOff(IHostMessages::kId);
  EXPECT_FALSE(::host::service<IHostMessages>());
  host().switchOff(testhost::kServices);
  EXPECT_FALSE(::host::service<IHostCommandService>());
}

TEST_F(HostLocatorTest, TranslatesWhatTheHostKnows) {
  host().translations[QStringLiteral("Tools")] = QStringLiteral("Werkzeuge");
  EXPECT_EQ(::host::translate(QStringLiteral("Tools")), QStringLiteral("Werkzeuge"));
  EXPECT_EQ(::host::translate(QStringLiteral("Groups")), QStringLiteral("Groups"));
}

TEST_F(HostLocatorTest, WhatIsPrintedOutlivesTheTextThatWasGiven) {
  // The host may keep the line; a literal would vanish with the library that it stands in.
  ::host::print(QStringLiteral("\na literal"));
  ASSERT_EQ(host().messages.printed, QStringList(QStringLiteral("\na literal")));
  EXPECT_NE(host().messages.printed.first().data_ptr().d_ptr(), nullptr);
}

} // namespace
