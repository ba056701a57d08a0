#include "ui/menu_builder.h"

#include "catalog/catalog.h"
#include "catalog/tool.h"
#include "catalog/tool_palette.h"
#include "support/module_fixture.h"

namespace {

using testhost::host;
using namespace tc;

struct MenuOwner : ITcUiMenuOwner {
  void menuCommand(int) override {}
};

/// Writes down what it would show.
struct WritingBuilder : TcUiMenuBuilder {
  QStringList shown;
  void popUp(const TcUiMenuEntries& entries) override {
    QStringList words;
    for (const auto& [command, text] : entries)
      words << QStringLiteral("%1 %2").arg(command).arg(text);
    shown << words.join(QLatin1Char('|'));
  }
};

struct MenuBuilderTest : testhost::ModuleFixture {
  WritingBuilder builder;
  MenuOwner owner;

  OdString menuOf(OdTcCatalogItem* item) {
    builder.shown.clear();
    builder.showItemMenu(item);
    return builder.shown.isEmpty() ? QStringLiteral("(none)") : builder.shown.first();
  }
};

TEST_F(MenuBuilderTest, ShowsTheMenuOfEachClass) {
  builder.setOwnerWindow(&owner);
  EXPECT_EQ(menuOf(OdTcCatalog::createObject()),
            QStringLiteral("101 Create group|102 Create palette|100 Rename|103 Import palette"));
  EXPECT_EQ(menuOf(OdTcGroup::createObject()),
            QStringLiteral("200 Create group|203 Rename|202 Remove"));
  EXPECT_EQ(menuOf(OdTcToolPalette::createObject()),
            QStringLiteral("303 Add tool|300 Rename|301 Remove from group|302 Delete"));
  EXPECT_EQ(menuOf(OdTcTool::createObject()), QString()) << "an entry with an empty list";
  EXPECT_EQ(menuOf(OdTcPaletteSoftRef::createObject()), QStringLiteral("(none)"));
  EXPECT_EQ(menuOf(nullptr), QStringLiteral("(none)"));
  builder.setOwnerWindow(nullptr);
  EXPECT_EQ(menuOf(OdTcGroup::createObject()), QStringLiteral("(none)"));
}

TEST_F(MenuBuilderTest, AnswersForItsOwnInterfaceOnly) {
  void* found = nullptr;
  EXPECT_TRUE(builder.queryInterface(ITcUiMenuBuilder::kId, &found));
  EXPECT_EQ(found, static_cast<ITcUiMenuBuilder*>(&builder));
  EXPECT_FALSE(builder.queryInterface("ITcUiStateSaver", &found));
  EXPECT_EQ(found, nullptr);
}

TEST_F(MenuBuilderTest, DoesNotTranslateTheWords) {
  host().translations[QStringLiteral("Rename")] = QStringLiteral("Umbenennen");
  const TcUiMenuBuilder fresh;
  EXPECT_EQ(fresh.entriesOf(OdTcGroup::desc())->at(1).second, QStringLiteral("Rename"));
}

TEST_F(MenuBuilderTest, GoesByTheExactClass) {
  EXPECT_EQ(builder.entriesOf(OdTcCatalogItem::desc()), nullptr);
  EXPECT_EQ(builder.entriesOf(OdTcPersist::desc()), nullptr);
  ASSERT_TRUE(builder.entriesOf(OdTcTool::desc()));
  EXPECT_TRUE(builder.entriesOf(OdTcTool::desc())->empty());
}

TEST_F(MenuBuilderTest, RemembersTheItemEvenWithoutAMenu) {
  const OdTcPaletteSoftRefPtr reference = OdTcPaletteSoftRef::createObject();
  builder.showItemMenu(reference);
  EXPECT_EQ(builder.currentItem(), reference.get());
  const OdTcGroupPtr group = OdTcGroup::createObject();
  builder.showItemMenu(group);
  EXPECT_EQ(builder.currentItem(), group.get());
}

TEST_F(MenuBuilderTest, KeepsOneValueForItsCaller) {
  EXPECT_TRUE(builder.extra().isVoid());
  builder.setExtra(std::int32_t{12});
  EXPECT_EQ(builder.extra().toInt32(), 12);
}

} // namespace
