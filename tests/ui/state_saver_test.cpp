#include "ui/state_saver.h"

#include "support/module_fixture.h"

namespace {

using testhost::host;
using namespace tc;

struct StateSaverTest : testhost::ModuleFixture {
  static OdVariant text(const char* value) { return OdVariant(OdString(QLatin1String(value))); }
  static testhost::TestProfile& section() {
    return host().application.store->made(QStringLiteral("cmddata/ToolPaletteManager"));
  }
};

TEST_F(StateSaverTest, AFirstRunSeesNoKeys) {
  const TcUiStateSaver saver;
  for (const char* key : {"ActiveView", "IconSize", "ViewStyle", "NameClmn", "DescClmn", "Col0",
                          "Col1", "ExpandedItems", "LastSelected", "SplitterPos", "DlgW", "DlgH",
                          "DlgX", "DlgY", "PreviewStyle"}) {
    OdVariant value = std::int32_t{42};
    EXPECT_FALSE(saver.read(QLatin1String(key), value)) << key;
    EXPECT_EQ(value.toInt32(), 42) << "the default is left alone";
  }
}

TEST_F(StateSaverTest, AnswersForItsOwnInterfaceOnly) {
  TcUiStateSaver saver;
  void* found = nullptr;
  EXPECT_TRUE(saver.queryInterface(ITcUiStateSaver::kId, &found));
  EXPECT_EQ(found, static_cast<ITcUiStateSaver*>(&saver));
  EXPECT_FALSE(saver.queryInterface("ITcUiMenuBuilder", &found));
  EXPECT_EQ(found, nullptr);
}

TEST_F(StateSaverTest, WritesIntoTheNodeOfTheModule) {
  TcUiStateSaver saver;
  OdVariant width = std::int32_t{180};
  saver.write(QStringLiteral("Col0"), width);
  EXPECT_TRUE(width.isVoid()) << "the variant is cleared after use";
  ASSERT_TRUE(section().values.contains(QStringLiteral("Col0")));
  EXPECT_EQ(section().values[QStringLiteral("Col0")].type(), OdVariant::kInt32);
  OdVariant found;
  EXPECT_TRUE(saver.read(QStringLiteral("Col0"), found));
  EXPECT_EQ(found.toInt32(), 180);
}

TEST_F(StateSaverTest, KeepsTextsAsTheyStand) {
  TcUiStateSaver saver;
  OdVariant ids = text("{A}||{B}");
  saver.write(QStringLiteral("ExpandedItems"), ids);
  EXPECT_TRUE(ids.isVoid());
  OdVariant found;
  ASSERT_TRUE(saver.read(QStringLiteral("ExpandedItems"), found));
  EXPECT_EQ(found.toString(), QStringLiteral("{A}||{B}"));
}

TEST_F(StateSaverTest, WhatIsStoredSharesNoMemoryWithTheModule) {
  TcUiStateSaver saver;
  OdVariant selected = OdVariant(OdString(QStringLiteral("{literal}")));
  saver.write(QStringLiteral("LastSelected"), selected);
  const auto& values = section().values;
  ASSERT_EQ(values.size(), 1);
  EXPECT_NE(OdString(values.firstKey()).data_ptr().d_ptr(), nullptr);
  EXPECT_NE(values.first().toString().data_ptr().d_ptr(), nullptr);
}

TEST_F(StateSaverTest, BothSaversShareOneStore) {
  TcUiStateSaver views;
  OdVariant style = std::int32_t{2};
  OdTcStateSaverImpl::instance()->write(QStringLiteral("PreviewStyle"), style);
  OdVariant found;
  EXPECT_TRUE(views.read(QStringLiteral("PreviewStyle"), found));
  EXPECT_EQ(found.toInt32(), 2);
  OdVariant active = std::int32_t{0};
  views.write(QStringLiteral("ActiveView"), active);
  EXPECT_TRUE(OdTcStateSaverImpl::instance()->read(QStringLiteral("ActiveView"), found));
  EXPECT_EQ(found.toInt32(), 0);
}

class MissingStoreTest : public StateSaverTest, public testing::WithParamInterface<const char*> {};

TEST_P(MissingStoreTest, ReadsFailSoftlyAndWritesDoNothing) {
  ::host::setModuleDirectory(nullptr);
  host().switchOff(GetParam());
  TcUiStateSaver saver;
  OdVariant value = std::int32_t{1};
  saver.write(QStringLiteral("ActiveView"), value);
  EXPECT_TRUE(value.isVoid());
  value = std::int32_t{7};
  EXPECT_FALSE(saver.read(QStringLiteral("ActiveView"), value));
  EXPECT_EQ(value.toInt32(), 7);
}

INSTANTIATE_TEST_SUITE_P(Missing, MissingStoreTest,
                         testing::Values("application", "profile", "main module"));

TEST_F(StateSaverTest, ReleasesItsSectionWhenItDies) {
  KVPtr<testhost::TestProfile> node(&section());
  const unsigned long before = node->addRef();
  node->release();
  {
    const TcUiStateSaver saver;
    EXPECT_EQ(node->addRef(), before + 1);
    node->release();
  }
  EXPECT_EQ(node->addRef(), before);
  node->release();
}

} // namespace
