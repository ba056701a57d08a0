#include "drafton/engine/snap_kinds.h"

#include <gtest/gtest.h>

using namespace drafton;

namespace {

TEST(SnapKinds, AreAskedForByTheBeginningOfTheirWord) {
  EXPECT_EQ(snapKindsOf(u"END"), 1);
  EXPECT_EQ(snapKindsOf(u"endp"), 1);
  EXPECT_EQ(snapKindsOf(u"_mid"), 2);
  EXPECT_EQ(snapKindsOf(u"per"), 128);
  EXPECT_EQ(snapKindsOf(u"none"), 0);
  for (const char16_t* other : {u"", u"en", u"endx", u"3", u"n", u"_", u"12,5"})
    EXPECT_FALSE(snapKindsOf(other)) << OdString::fromUtf16(other).toStdString();
}

TEST(SnapKinds, HaveAWordEachThatAsksForThem) {
  for (const SnapRow& row : snapKinds())
    EXPECT_EQ(snapKindsOf(snapWord(row.kind)), static_cast<int>(row.kind));
}

} // namespace
