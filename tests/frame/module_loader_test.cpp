#include "frame/module_loader.h"

#include "frame/dynamic_library.h"
#include "frame/error.h"

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
      {"hollow", "it gives no module object"},
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

TEST_F(ModuleLoader, SaysWhyAFileIsNoLibrary) {
  QFile whole(path("good"));
  ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
  const QByteArray library = whole.readAll();
  const QByteArray contents[] = {"",
                                 "no library at all\n",
                                 library.left(4),
                                 library.left(1000),
                                 library.left(5000),
                                 QByteArray(100000, '\0')};
  OdRxModuleLoader loader;
  for (const QByteArray& bytes : contents) {
    const QString file = m_folder.filePath(QStringLiteral("broken.so"));
    QFile broken(file);
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly | QIODevice::Truncate));
    broken.write(bytes);
    broken.close();
    OdString reason;
    EXPECT_EQ(loader.load(file, &reason), nullptr) << bytes.size();
    EXPECT_TRUE(reason.contains(QStringLiteral("broken.so"))) << reason.toStdString();
  }
  for (const QString& place : {QString(), m_folder.path(), m_folder.path() + QStringLiteral("/")}) {
    OdString reason;
    EXPECT_EQ(loader.load(place, &reason), nullptr) << place.toStdString();
    EXPECT_FALSE(reason.isEmpty()) << place.toStdString();
  }
  EXPECT_EQ(loader.load(m_folder.path(), nullptr), nullptr) << "nobody asks for the reason";
  EXPECT_EQ(log(), "");
}

TEST_F(ModuleLoader, StartsALibraryOnceWhateverPathItGoesBy) {
  OdRxModuleLoader loader;
  OdRxModule* const module = loader.load(path("good"), nullptr);
  ASSERT_NE(module, nullptr);
  const QString link = m_folder.filePath(QStringLiteral("link.so"));
  ASSERT_TRUE(QFile::link(path("good"), link));
  OdString backslashes = path("good");
  backslashes.replace(u'/', u'\\');
  for (const OdString& other :
       {link, backslashes, QStringLiteral(BINARY_DIR "/../bin/./loader_good.so")})
    EXPECT_EQ(loader.load(other, nullptr), module) << other.toStdString();
  EXPECT_EQ(log(), "init ");
  EXPECT_TRUE(loader.unload(module));
  EXPECT_EQ(log(), "init uninit ");
  EXPECT_EQ(oddynlib::loadedModule(path("good")), nullptr) << "no load is left over";
}

TEST_F(ModuleLoader, CanLoadAModuleAgainAfterItWasUnloaded) {
  OdRxModuleLoader loader;
  for (int round = 0; round < 3; ++round) {
    OdRxModule* const module = loader.load(path("good"), nullptr);
    ASSERT_NE(module, nullptr);
    EXPECT_TRUE(loader.unload(module));
  }
  EXPECT_EQ(log(), "init uninit init uninit init uninit ");
  EXPECT_FALSE(loader.unload(nullptr));
}

TEST_F(ModuleLoader, StopsInTheReverseOrderWhateverOneOfThemRaises) {
  {
    OdRxModuleLoader loader;
    ASSERT_NE(loader.load(path("good"), nullptr), nullptr);
    ASSERT_NE(loader.load(path("stubborn"), nullptr), nullptr);
  }
  EXPECT_EQ(log(), "init init uninit uninit ");
  EXPECT_EQ(oddynlib::loadedModule(path("good")), nullptr);
  EXPECT_NE(oddynlib::loadedModule(path("stubborn")), nullptr) << "something may point into it";
}

TEST_F(ModuleLoader, HandsOnWhatAModuleRaisesAtItsStop) {
  OdRxModuleLoader loader;
  OdRxModule* const module = loader.load(path("stubborn"), nullptr);
  ASSERT_NE(module, nullptr);
  EXPECT_THROW(loader.unload(module), OdError);
  EXPECT_FALSE(loader.unload(module)) << "it is stopped once";
  EXPECT_EQ(loader.find(QStringLiteral("loader_module")), nullptr);
}

TEST(DynamicLibrary, FindsExportsOfTheProgramItself) {
  EXPECT_NE(oddynlib::mainExecutable(), nullptr);
  EXPECT_NE(oddynlib::procAddress(oddynlib::mainExecutable(), "malloc"), nullptr);
  EXPECT_EQ(oddynlib::procAddress(oddynlib::mainExecutable(), "noSuchFunction"), nullptr);
  EXPECT_EQ(oddynlib::procAddress(nullptr, "malloc"), nullptr);
  EXPECT_EQ(oddynlib::loadedModule(QStringLiteral("no_such_module.dll")), nullptr);
  EXPECT_EQ(oddynlib::loadedModule(OdString()), nullptr) << "that is not the program itself";
  EXPECT_NE(oddynlib::loadedModule(QStringLiteral("odframe.dll")), nullptr)
      << "by its bare name, in whatever folder it stands";
}

} // namespace
