#include "frame/file_path.h"

#include <gtest/gtest.h>

namespace {

struct PathParts {
  const char16_t* path;
  const char *folder, *name, *title, *extension;
  bool isRelative;
};

TEST(FilePath, IsTakenApartAtEitherSeparator) {
  const PathParts cases[] = {
      {u"C:\\a\\b.DTC", "C:\\a", "b.DTC", "b", "dtc", false},
      {u"C:/a/b.dtc", "C:/a", "b.dtc", "b", "dtc", false},
      {u"a\\b/c.d.e", "a\\b", "c.d.e", "c.d", "e", true},
      {u"b", "", "b", "b", "", true},
      {u"\\b", "", "b", "b", "", false},
      {u"a.b\\c", "a.b", "c", "c", "", true},
      {u"a\\.hidden", "a", ".hidden", ".hidden", "hidden", true},
      {u"a\\", "a", "", "", "", true},
      {u"", "", "", "", "", true},
      {u"c:x", "", "c:x", "c:x", "", false},
      {u"1:x", "", "1:x", "1:x", "", true},
  };
  for (const PathParts& c : cases) {
    const OdString path = OdString::fromUtf16(c.path);
    const std::string shown = path.toStdString();
    EXPECT_EQ(odpath::folderOf(path).toStdString(), c.folder) << shown;
    EXPECT_EQ(odpath::fileNameOf(path).toStdString(), c.name) << shown;
    EXPECT_EQ(odpath::titleOf(path).toStdString(), c.title) << shown;
    EXPECT_EQ(odpath::extensionOf(path).toStdString(), c.extension) << shown;
    EXPECT_EQ(odpath::isRelative(path), c.isRelative) << shown;
  }
}

TEST(FilePath, ComesFromThePlatformWithBackslashes) {
  EXPECT_EQ(odpath::fromPlatform(QStringLiteral("/a/b c")), QStringLiteral("\\a\\b c"));
  EXPECT_EQ(odpath::fromPlatform(odpath::toPlatform(QStringLiteral("\\a/b\\c"))),
            QStringLiteral("\\a\\b\\c"));
}

TEST(FilePath, NamesTheSamePlaceInManyWays) {
  const auto same = [](const char16_t* a, const char16_t* b) {
    return odpath::samePlace(OdString::fromUtf16(a), OdString::fromUtf16(b));
  };
  EXPECT_TRUE(same(u"\\a\\b", u"/a/b"));
  EXPECT_TRUE(same(u"\\a\\.\\b", u"\\a\\b"));
  EXPECT_TRUE(same(u"\\a\\c\\..\\b", u"\\a\\b"));
  EXPECT_TRUE(same(u"\\a\\b\\", u"\\a\\b"));
  EXPECT_FALSE(same(u"\\a\\b", u"\\a\\bc"));
}

} // namespace
