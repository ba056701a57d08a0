#include "persistence/path_operations.h"

#include "frame/file_path.h"
#include "host/host_locator.h"
#include "persistence/path_macros.h"
#include "persistence/value_storage.h"
#include "support/failing_services.h"
#include "support/test_host.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace tc;

namespace {

/// System services with a user's folder of the test's choice.
class UserFolder : public testhost::FailingServices {
 public:
  OdString folder = QStringLiteral("C:\\Users\\me");
  OdString userProfileFolder() override { return folder; }
};

class Paths : public testing::Test {
 protected:
  void SetUp() override {
    testhost::host().reset();
    host::setModuleDirectory(nullptr); // forgets the application that an earlier test had
    testhost::host().application.userFolder = QStringLiteral("C:\\Users\\me\\data");
  }
  static void withoutHost() {
    testhost::host().switchOff(testhost::kApplication);
    host::setModuleDirectory(nullptr);
  }
  static void set(const char* name, const char16_t* value) {
    testhost::host().application.settings[QString::fromLatin1(name)] = OdString::fromUtf16(value);
  }
  static std::string expanded(const char16_t* in) {
    OdString out = QStringLiteral("(unchanged)");
    const bool done = expandPath(OdString::fromUtf16(in), out);
    return (done ? "+" : "-") + out.toStdString();
  }
  static std::string collapsed(const char16_t* in) {
    OdString out = QStringLiteral("(unchanged)");
    const bool done = collapsePath(OdString::fromUtf16(in), out);
    return (done ? "+" : "-") + out.toStdString();
  }

  UserFolder m_services;
};

TEST_F(Paths, ExpandTheUsersFolder) {
  EXPECT_EQ(expanded(u"%UserProfileFolder%\\x"), "+C:\\Users\\me\\x");
  EXPECT_EQ(expanded(u"a %UserProfileFolder% b"), "+a C:\\Users\\me b");
}

TEST_F(Paths, OfOneFileHaveTheSameFoldersFromBeginningToEnd) {
  set("Shx", u"C:\\fonts");
  {
    const HeldPathMacros file{OdString()};
    EXPECT_EQ(expanded(u"%ShxFolder%\\x"), "+C:\\fonts\\x");
    set("Shx", u"D:\\fonts");
    {
      const HeldPathMacros inner{OdString()};
      EXPECT_EQ(expanded(u"%ShxFolder%\\x"), "+C:\\fonts\\x");
    }
    EXPECT_EQ(collapsed(u"C:\\fonts\\x"), "+%ShxFolder%\\x");
  }
  EXPECT_EQ(expanded(u"%ShxFolder%\\x"), "+D:\\fonts\\x");
  const HeldPathMacros next{OdString()};
  set("Shx", u"E:\\fonts");
  EXPECT_EQ(expanded(u"%ShxFolder%\\x"), "+E:\\fonts\\x");
}

TEST_F(Paths, ExpandTheFirstMacroInOrderOfText) {
  set("Shx", u"C:\\f1;C:\\f2");
  EXPECT_EQ(expanded(u"%UserProfileFolder%\\%ShxFolder%"), "+%UserProfileFolder%\\C:\\f1");
}

TEST_F(Paths, OfMacrosHaveTheSeparatorsOfFilesHoweverTheSettingIsTyped) {
  set("ToolPaletteDir", u"/home/me/tools");
  set("Shx", u"/usr/fonts;/home/me/fonts");
  EXPECT_EQ(expanded(u"%UserProfileSamplesFolder%\\x"), "+\\home\\me\\tools\\x");
  EXPECT_EQ(collapsed(u"\\home\\me\\tools\\x"), "+%UserProfileSamplesFolder%\\x");
  EXPECT_EQ(collapsed(u"\\home\\me\\fonts\\x"), "+%ShxFolder%\\x");
}

TEST_F(Paths, ExpandTheSamplesFolderAsOneText) {
  set("ToolPaletteDir", u"C:\\a;C:\\b");
  EXPECT_EQ(expanded(u"%UserProfileSamplesFolder%\\x"), "+C:\\a;C:\\b\\x");
}

TEST_F(Paths, StayWithoutAMacro) {
  EXPECT_EQ(expanded(u"C:\\x"), "-(unchanged)");
  EXPECT_EQ(expanded(u"%userprofilefolder%\\x"), "-(unchanged)");
  EXPECT_EQ(expanded(u"%ProgramBtnRes%"), "-(unchanged)");
}

TEST_F(Paths, PassOverAMacroWithoutValue) {
  EXPECT_EQ(expanded(u"%ShxFolder%\\%UserProfileFolder%"), "+%ShxFolder%\\C:\\Users\\me");
  EXPECT_EQ(collapsed(u"D:\\x"), "-(unchanged)");
  set("Shx", u"");
  set("ToolPaletteDir", u"");
  EXPECT_EQ(expanded(u"%ShxFolder%\\x"), "-(unchanged)");
  EXPECT_EQ(collapsed(u"D:\\x"), "-(unchanged)");
}

TEST_F(Paths, CollapseTheFirstFolderThatIsMet) {
  set("Shx", u"C:\\f1;C:\\f2");
  EXPECT_EQ(collapsed(u"C:\\f2\\a.shx"), "+%ShxFolder%\\a.shx");
  EXPECT_EQ(collapsed(u"C:\\Users\\me\\a"), "+%UserProfileFolder%\\a");
  EXPECT_EQ(collapsed(u"x C:\\Users\\me y"), "+x %UserProfileFolder% y");
  EXPECT_EQ(collapsed(u"c:\\users\\me\\a"), "-(unchanged)");
}

TEST_F(Paths, CollapseTheFirstMacroInOrderOfTextIfTwoMatch) {
  set("Shx", u"C:\\Users\\me\\fonts");
  set("ToolPaletteDir", u"C:\\Users\\me\\tools");
  EXPECT_EQ(collapsed(u"C:\\Users\\me\\fonts\\a.shx"), "+%ShxFolder%\\a.shx");
  EXPECT_EQ(collapsed(u"C:\\Users\\me\\tools\\a"), "+%UserProfileFolder%\\tools\\a")
      << "the longer folder belongs to a later macro";
  set("Shx", u"D:\\fonts");
  EXPECT_EQ(collapsed(u"C:\\Users\\me|D:\\fonts"), "+C:\\Users\\me|%ShxFolder%")
      << "the order of the macros counts, not that of the path";
}

TEST_F(Paths, CollapseTheFirstValueOfAMacroThatTheyHold) {
  set("Shx", u"C:\\none;C:\\f2;C:\\f1");
  EXPECT_EQ(collapsed(u"C:\\f1|C:\\f2"), "+C:\\f1|%ShxFolder%");
}

TEST_F(Paths, StayWithoutAUsersFolder) {
  m_services.folder.clear();
  set("Shx", u"C:\\f1");
  EXPECT_EQ(expanded(u"%ShxFolder%\\x"), "-(unchanged)");
  EXPECT_EQ(collapsed(u"C:\\f1\\x"), "-(unchanged)");
}

TEST_F(Paths, StayWithoutAHost) {
  set("Shx", u"C:\\f1");
  withoutHost();
  EXPECT_EQ(expanded(u"%ShxFolder%\\x"), "-(unchanged)");
  EXPECT_EQ(expanded(u"%UserProfileFolder%\\x"), "+C:\\Users\\me\\x");
}

TEST_F(Paths, OfFilesExpandOnlyFromTheirStart) {
  EXPECT_EQ(expandedStoredPath(QStringLiteral("%UserProfileFolder%\\x")),
            QStringLiteral("C:\\Users\\me\\x"));
  EXPECT_EQ(expandedStoredPath(QStringLiteral("a\\%UserProfileFolder%\\x")),
            QStringLiteral("a\\%UserProfileFolder%\\x"));
  EXPECT_EQ(expandedStoredPath(QStringLiteral("%Other%\\x")), QStringLiteral("%Other%\\x"));
  EXPECT_EQ(expandedStoredPath(OdString()), OdString());
}

TEST_F(Paths, OfFilesExpandToTheCatalogThatTheFileIsIn) {
  set("ToolPaletteDir", u"C:\\a; C:/b;;C:\\b\\inner\\;C:\\bb");
  const auto inFileAt = [](const char16_t* file) {
    const HeldPathMacros held{OdString::fromUtf16(file)};
    return expandedStoredPath(QStringLiteral("%UserProfileSamplesFolder%\\x")).toStdString();
  };
  EXPECT_EQ(inFileAt(u"C:\\b\\Palettes\\p.dtc"), "C:\\b\\x");
  EXPECT_EQ(inFileAt(u"C:\\bb\\Palettes\\p.dtc"), "C:\\bb\\x");
  EXPECT_EQ(inFileAt(u"C:\\b\\inner\\Palettes\\p.dtc"), "C:\\b\\inner\\\\x");
  set("ToolPaletteDir", u"C:\\a;C:\\b\\inner\\;C:\\b");
  EXPECT_EQ(inFileAt(u"C:\\b\\inner\\Palettes\\p.dtc"), "C:\\b\\inner\\\\x");
  EXPECT_EQ(inFileAt(u"D:\\p.xtp"), "C:\\a\\x") << "the first, where nothing tells";
  EXPECT_EQ(inFileAt(u""), "C:\\a\\x");
  set("ToolPaletteDir", u"C:\\a;b");
  EXPECT_EQ(inFileAt(u"C:\\a;b\\Palettes\\p.dtc"), "C:\\a;b\\x") << "one folder of that name";
  set("ToolPaletteDir", u"C:/b");
  EXPECT_EQ(inFileAt(u"D:\\p.xtp"), "C:\\b\\x") << "a setting may be typed as the system has paths";
}

TEST_F(Paths, OfFilesInNoCatalogExpandToTheOneThatHasWhatTheyName) {
  QTemporaryDir one, two;
  ASSERT_TRUE(QFile(two.filePath(QStringLiteral("door.dxf"))).open(QIODevice::WriteOnly));
  set("ToolPaletteDir", (one.path() + u';' + two.path()).toStdU16String().c_str());
  EXPECT_EQ(expandedStoredPath(QStringLiteral("%UserProfileSamplesFolder%\\door.dxf")),
            odpath::fromPlatform(two.filePath(QStringLiteral("door.dxf"))));
}

TEST_F(Paths, OfFilesInOneOfSeveralCatalogsKeepTheMacro) {
  set("ToolPaletteDir", u"C:\\a;C:\\b");
  const HeldPathMacros held{QStringLiteral("C:\\b\\Palettes\\p.dtc")};
  EXPECT_EQ(collapsedStoredPath(QStringLiteral("C:\\b")), QStringLiteral("C:\\b"));
  for (const char16_t* path : {u"C:\\b\\x", u"C:\\a\\x", u"C:\\bb\\x", u"C:\\b", u"x\\C:\\b\\x"}) {
    const OdString text = OdString::fromUtf16(path);
    EXPECT_EQ(expandedStoredPath(collapsedStoredPath(text)), text);
  }
  EXPECT_EQ(collapsedStoredPath(QStringLiteral("C:\\b\\x")),
            QStringLiteral("%UserProfileSamplesFolder%\\x"));
  EXPECT_EQ(collapsedStoredPath(QStringLiteral("C:\\a\\x")), QStringLiteral("C:\\a\\x"))
      << "from here the macro would lead to the other folder";
}

TEST_F(Paths, OfFilesCollapseOnlyToWhatComesBack) {
  set("Shx", u"C:\\f1;C:\\f2");
  for (const char16_t* path : {u"C:\\Users\\me\\x", u"C:\\f1\\x", u"C:\\f2\\x", u"D:\\x",
                               u"D:\\C:\\Users\\me\\x", u"", u"%ShxFolder"}) {
    const OdString text = OdString::fromUtf16(path);
    EXPECT_EQ(expandedStoredPath(collapsedStoredPath(text)), text);
  }
  EXPECT_EQ(collapsedStoredPath(QStringLiteral("C:\\Users\\me\\x")),
            QStringLiteral("%UserProfileFolder%\\x"));
  EXPECT_EQ(collapsedStoredPath(QStringLiteral("D:\\C:\\Users\\me\\x")),
            QStringLiteral("D:\\C:\\Users\\me\\x"));
}

struct Pair {
  const char16_t* in;
  const char* out;
};

TEST_F(Paths, AreNormalised) {
  const Pair cases[] = {
      {u"C:\\a\\b\\..\\c", "C:\\a\\c"},
      {u"\\..\\a", "\\..\\a"},
      {u"C:\\a\\.\\b", "C:\\a\\b"},
      {u"C:\\a\\.\\.\\.\\b", "C:\\a\\b"},
      {u"C:\\a\\b\\c\\..\\..\\d", "C:\\a\\d"},
      {u"C:\\a\\..\\b\\..\\c", "C:\\c"},
      {u"C:\\..\\a", "C:\\..\\a"},
      {u"a\\..\\b", "a\\..\\b"},
      {u"C:\\a\\..", "C:\\a\\.."},
      {u"C:\\a..\\..b\\c", "C:\\a..\\..b\\c"},
      {u"\\a\\..\\..\\b", "\\..\\b"},
      {u"\\\\srv\\share\\..\\x", "\\\\srv\\x"},
      {u"\\.\\a", "\\a"},
      {u"a\\.\\..\\b", "a\\..\\b"},
      {u"C:\\a\\b\\.\\..\\c", "C:\\a\\c"},
      {u"C:/a/../b", "C:/a/../b"},
      {u".", "."},
      {u"..", ".."},
      {u"\\..\\", "\\..\\"},
      {u"", ""},
  };
  for (const Pair& c : cases) {
    OdString path = OdString::fromUtf16(c.in);
    normalizePath(path);
    EXPECT_EQ(path.toStdString(), c.out) << OdString::fromUtf16(c.in).toStdString();
  }
}

TEST_F(Paths, AreNormalisedInReasonableTimeWhateverTheirLength) {
  OdString path = QStringLiteral("C:") + QStringLiteral("\\a\\..").repeated(20000) +
                  QStringLiteral("\\.").repeated(20000) + QStringLiteral("\\x");
  normalizePath(path);
  EXPECT_EQ(path, QStringLiteral("C:\\x"));
}

struct Combination {
  const char16_t* relative;
  const char16_t* base;
  const char* result;
};

TEST_F(Paths, AreCombinedWithTheFolderOfABaseFile) {
  const Combination cases[] = {
      {u"x.png", u"", "x.png"},
      {u"x.png", u"file.dtc", "x.png"},
      {u".", u"C:\\a\\file.dtc", "C:\\a"},
      {u".\\", u"C:\\a\\file.dtc", "C:\\a"},
      {u"x.png", u"C:\\a\\file.dtc", "C:\\a\\x.png"},
      {u"\\x.png", u"C:\\a\\file.dtc", "C:\\a\\x.png"},
      {u"/x.png", u"C:\\a\\file.dtc", "C:\\a/x.png"},
      {u"x.png", u"C:/a/file.dtc", "C:/a\\x.png"},
      {u"x.png", u"C:\\a/file.dtc", "C:\\a\\x.png"},
      {u".\\Images\\x.png", u"C:\\a\\file.dtc", "C:\\a\\Images\\x.png"},
      {u"..\\x.png", u"C:\\a\\b\\file.dtc", "C:\\a\\x.png"},
      {u"", u"C:\\a\\file.dtc", "C:\\a\\"},
      {u"x", u"C:\\a\\", "C:\\a\\x"},
      {u".", u"\\file.dtc", ""},
      {u"..", u"C:\\a\\file.dtc", "C:\\a\\.."},
      {u"..\\..\\..\\x", u"C:\\a\\file.dtc", "C:\\..\\..\\x"},
      {u"D:\\x", u"C:\\a\\file.dtc", "C:\\a\\D:\\x"},
  };
  for (const Combination& c : cases)
    EXPECT_EQ(
        combinePath(OdString::fromUtf16(c.relative), OdString::fromUtf16(c.base)).toStdString(),
        c.result);
}

TEST_F(Paths, LoseWhatNoFileNameHolds) {
  const Pair cases[] = {{u"a/b:c", "abc"},
                        {u"\\<>/?:;*|,='\"", ""},
                        {u"K\u00fcche 1.2", "K\xC3\xBC"
                                            "che 1.2"},
                        {u"(a) [b] {c} %d% & e!", "(a) [b] {c} %d% & e!"},
                        {u"", ""}};
  for (const Pair& c : cases) {
    OdString name = OdString::fromUtf16(c.in);
    cleanFileName(name);
    EXPECT_EQ(name.toStdString(), c.out);
  }
}

TEST_F(Paths, AreSplitAtSemicolons) {
  const auto split = [](const char16_t* text) {
    return splitPathList(OdString::fromUtf16(text)).join(u'|').toStdString();
  };
  EXPECT_EQ(split(u"a;;b"), "a|b");
  EXPECT_EQ(split(u";b;a;"), "b|a");
  EXPECT_EQ(split(u" a ; b "), " a | b ");
  EXPECT_EQ(splitPathList(QStringLiteral("a")), QStringList(QStringLiteral("a")));
  EXPECT_EQ(splitPathList(OdString()), QStringList(OdString()));
  EXPECT_TRUE(splitPathList(QStringLiteral(";")).isEmpty());
  EXPECT_TRUE(splitPathList(QStringLiteral(";;;")).isEmpty());
  EXPECT_EQ(splitPathList(QStringLiteral("  ")), QStringList(QStringLiteral("  ")));
  EXPECT_EQ(split(u"b;a;b"), "b|a|b") << "what stands twice is given twice";
}

TEST_F(Paths, AreRelativeWithoutSeparatorOrDrive) {
  for (const char* path : {"a", "a\\b", "..\\a", ""})
    EXPECT_TRUE(isRelativePath(QString::fromLatin1(path))) << path;
  for (const char* path : {"C:\\a", "\\a", "/a", "\\\\srv\\a", "c:a"})
    EXPECT_FALSE(isRelativePath(QString::fromLatin1(path))) << path;
}

TEST_F(Paths, AreMadeRelativeSegmentBySegment) {
  const Combination cases[] = {
      {u"C:\\a\\b\\c.dtc", u"C:\\a", "b\\c.dtc"},
      {u"C:\\a\\b\\c.dtc", u"C:\\a\\", "b\\c.dtc"},
      {u"C:\\a\\c.dtc", u"C:\\a\\b\\d", "..\\..\\c.dtc"},
      {u"C:\\ab\\c.dtc", u"C:\\a", "..\\ab\\c.dtc"},
      {u"C:\\a", u"C:\\a", "."},
      {u"\\home\\a\\c", u"/home/b", "..\\a\\c"},
      {u"D:\\c", u"C:\\a", "(none)"},
      {u"\\a\\c", u"\\b", "(none)"},
      {u"", u"C:\\a", "(none)"},
      {u"C:\\a", u"", "(none)"},
  };
  for (const Combination& c : cases) {
    OdString out;
    const bool done =
        makeRelativePath(OdString::fromUtf16(c.relative), OdString::fromUtf16(c.base), out);
    EXPECT_EQ(done ? out.toStdString() : "(none)", c.result);
  }
}

TEST_F(Paths, OfTheModulesOwnFoldersFollowTheUsersData) {
  EXPECT_EQ(baseFolder(), QStringLiteral("C:\\Users\\me\\data\\ToolPalette"));
  EXPECT_EQ(defaultCatalogFile(),
            QStringLiteral("C:\\Users\\me\\data\\ToolPalette\\DrfTcCatalog.dtc"));
  EXPECT_EQ(defaultPalettesFolder(), QStringLiteral("C:\\Users\\me\\data\\ToolPalette\\Palettes"));
  EXPECT_EQ(defaultImagesFolder(),
            QStringLiteral("C:\\Users\\me\\data\\ToolPalette\\Palettes\\Images"));
}

TEST_F(Paths, OfTheModulesOwnFoldersBeginWithTheSeparatorWithoutAHost) {
  withoutHost();
  EXPECT_EQ(baseFolder(), QStringLiteral("\\ToolPalette"));
  EXPECT_EQ(defaultCatalogFile(), QStringLiteral("\\ToolPalette\\DrfTcCatalog.dtc"));
}

TEST_F(Paths, OfACatalogsPalettesAreGivenEvenIfTheyCannotBeMade) {
  QTemporaryDir temporary;
  m_services.deniedFolder = temporary.path();
  const OdString folder = odpath::fromPlatform(temporary.path());
  EXPECT_EQ(palettesFolderOf(folder + QStringLiteral("\\DrfTcCatalog.dtc")),
            folder + QStringLiteral("\\Palettes"));
  EXPECT_FALSE(QDir(temporary.filePath(QStringLiteral("Palettes"))).exists());
}

TEST_F(Paths, OfACatalogsPalettesAreMadeWhenTheyAreAskedFor) {
  QTemporaryDir temporary;
  const OdString folder = temporary.path();
  EXPECT_EQ(palettesFolderOf(folder + QStringLiteral("\\DrfTcCatalog.dtc")),
            folder + QStringLiteral("\\Palettes"));
  EXPECT_TRUE(QDir(folder + QStringLiteral("/Palettes")).exists());
}

TEST_F(Paths, OfACatalogWithoutFolderAreTheNameAlone) {
  m_services.deniedFolder = QStringLiteral("Palettes");
  EXPECT_EQ(palettesFolderOf(QStringLiteral("DrfTcCatalog.dtc")), QStringLiteral("Palettes"));
}

TEST_F(Paths, AreConfiguredInTheHost) {
  const auto storage = odrxMake<OdTcValueStorageImpl>();
  EXPECT_EQ(storage->toolPaletteFolders(), OdString());
  set("ToolPaletteDir", u"C:\\a;C:\\b");
  set("Shx", u"C:\\f");
  EXPECT_EQ(storage->toolPaletteFolders(), QStringLiteral("C:\\a;C:\\b"));
  EXPECT_EQ(storage->fontFolders(), QStringLiteral("C:\\f"));
  withoutHost();
  EXPECT_EQ(storage->fontFolders(), OdString());
}

TEST_F(Paths, StorageIsThereBetweenStartAndStop) {
  EXPECT_EQ(OdTcValueStorageImpl::instance(), nullptr);
  const auto storage = odrxMake<OdTcValueStorageImpl>();
  OdTcValueStorageImpl::setInstance(storage);
  EXPECT_EQ(OdTcValueStorageImpl::instance(), storage.get());
  OdTcValueStorageImpl::setInstance(nullptr);
  EXPECT_EQ(OdTcValueStorageImpl::instance(), nullptr);
}

} // namespace
