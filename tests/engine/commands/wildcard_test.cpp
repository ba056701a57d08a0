#include "drafton/engine/commands/wildcard.h"

#include <gtest/gtest.h>

using drafton::matchesWildcard;

namespace {

struct Row {
  const char16_t* name;
  const char16_t* pattern;
  bool matches;
};

constexpr Row kRows[] = {
    {u"Walls", u"Walls", true},
    {u"Walls", u"WALLS", true},
    {u"Walls", u"Wall", false},
    {u"Walls", u"*", true},
    {u"", u"*", true},
    {u"", u"", true},
    {u"Walls", u"W*", true},
    {u"Walls", u"*s", true},
    {u"Walls", u"*x*", false},
    {u"Walls", u"W?lls", true},
    {u"Walls", u"?", false},
    {u"A1", u"@#", true},
    {u"1A", u"@#", false},
    {u"A-1", u"@.#", true},
    {u"AB1", u"@.#", false},
    {u"Wall", u"[VW]all", true},
    {u"Ball", u"[~VW]all", true},
    {u"Wall", u"[~VW]all", false},
    {u"c", u"[a-f]", true},
    {u"C", u"[a-f]", true},
    {u"g", u"[a-f]", false},
    {u"-", u"[a-]", true},
    {u"Walls", u"~W*", false},
    {u"Doors", u"~W*", true},
    {u"Doors", u"W*,D*", true},
    {u"Roof", u"W*,D*", false},
    {u"a*b", u"a`*b", true},
    {u"axb", u"a`*b", false},
    {u"a[b", u"a[b", true},
    {u"axb", u"a[b", false},
    {u"aab", u"*ab", true},
    {u"abcabd", u"*abd", true},
    {u"x", u"x**", true},
    {u"a", u"a`", false},
    {u"]", u"[]]", false},
};

} // namespace

TEST(Wildcard, MatchesAsTheTableSays) {
  for (const Row& row : kRows)
    EXPECT_EQ(matchesWildcard(row.name, row.pattern), row.matches)
        << QString::fromUtf16(row.name).toStdString() << " against "
        << QString::fromUtf16(row.pattern).toStdString();
}

TEST(Wildcard, ManyStarsTakeNoLongerThanOne) {
  const QString name(10'000, u'a');
  QString pattern;
  for (int i = 0; i < 200; ++i) pattern += QStringLiteral("*a");
  EXPECT_FALSE(matchesWildcard(name, QString(pattern + u'b')));
  EXPECT_TRUE(matchesWildcard(name, pattern));
}
