#include "frame/module_loader.h"

#include "frame/dynamic_library.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class ModuleLoader : public testing::Test {
 protected:
  void SetUp() override { qputenv("LOADED_MODULE_LOG", logPath().toLocal8Bit()); }
  QString logPath() const { return m_folder.filePath(QStringLiteral("log")); }
  QByteArray log() const {
    QFile file(logPath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  static OdString path(const char* kind) {
    return QStringLiteral(BINARY_DIR "/loader_%1.so").arg(QLatin1String(kind));
  }
  QTemporaryDir m_folder;
};

TEST_F(ModuleLoader, StartsAndStopsAModuleOnce) {
  {
    OdRxModuleLoader loader;
    OdString reason;
    OdRxModule* const module = loader.load(path("good"), &reason);
    ASSERT_NE(module, nullptr) << reason.toStdString();
    EXPECT_EQ(loader.load(path("good"), nullptr), module);
    EXPECT_EQ(loader.find(QStringLiteral("loader_module")), module);
    EXPECT_EQ(loader.find(QStringLiteral("other")), nullptr);
    EXPECT_EQ(log(), "init ");
    EXPECT_TRUE(loader.unload(module));
    EXPECT_FALSE(loader.unload(module));
    EXPECT_EQ(log(), "init uninit ");
  }
  EXPECT_EQ(log(), "init uninit ");
}

TEST_F(ModuleLoader, StopsWhatIsStillLoadedAtItsEnd) {
  {
    OdRxModuleLoader loader;
    ASSERT_NE(loader.load(path("good"), nullptr), nullptr);
  }
  EXPECT_EQ(log(), "init uninit ");
}

TEST_F(ModuleLoader, UnloadsTheLibraryItself) {
  OdRxModuleLoader loader;
  OdRxModule* const module = loader.load(path("good"), nullptr);
  ASSERT_NE(module, nullptr);
  EXPECT_NE(oddynlib::loadedModule(path("good")), nullptr);
  loader.unload(module);
  EXPECT_EQ(oddynlib::loadedModule(path("good")), nullptr);
}

struct Refusal {
  const char* kind;
  const char* reason;
};

TEST_F(ModuleLoader, SaysWhyALibraryIsNotLoaded) {
  const Refusal cases[] = {
      {"failing", "it does not want to"},
      {"outdated", "it was built for version 4.3.0.0 of the module interface, this is 4.3.1.0"},
      {"foreign", "it is not a module"},
      {"missing", "loader_missing.so"},
  };
  OdRxModuleLoader loader;
  for (const Refusal& c : cases) {
    OdString reason;
    EXPECT_EQ(loader.load(path(c.kind), &reason), nullptr) << c.kind;
    EXPECT_NE(reason.toStdString().find(c.reason), std::string::npos) << reason.toStdString();
    // What the failing one registered may point into it, so it stays.
    const bool stays = OdString::fromLatin1(c.kind) == QLatin1String("failing");
    EXPECT_EQ(oddynlib::loadedModule(path(c.kind)) != nullptr, stays) << c.kind;
  }
  EXPECT_EQ(log(), "init "); // it was never started, so nothing stops it
}

TEST(DynamicLibrary, FindsExportsOfTheProgramItself) {
  EXPECT_NE(oddynlib::mainExecutable(), nullptr);
  EXPECT_NE(oddynlib::procAddress(oddynlib::mainExecutable(), "malloc"), nullptr);
  EXPECT_EQ(oddynlib::procAddress(oddynlib::mainExecutable(), "noSuchFunction"), nullptr);
  EXPECT_EQ(oddynlib::procAddress(nullptr, "malloc"), nullptr);
  EXPECT_EQ(oddynlib::loadedModule(QStringLiteral("no_such_module.dll")), nullptr);
}

} // namespace
