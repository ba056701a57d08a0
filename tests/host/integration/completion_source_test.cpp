#include "host/integration/completion_source.h"

#include "catalog/catalog.h"
#include "catalog/palette_manager.h"
#include "catalog/tool_palette.h"
#include "support/module_fixture.h"
#include "support/recording_agent.h"
#include "support/test_repetition.h"

#include <QTemporaryDir>

namespace {

using testhost::host;
using namespace tc;

struct CompletionSourceTest : testhost::ModuleFixture {
  CompletionSourceTest() {
    registerToolSource();
    OdTcPaletteManager::instance()->openCatalog(
        folder.filePath(QStringLiteral("DrfTcCatalog.dtc")));
    OdString path;
    OdTcPaletteManager::instance()->catalogsEnum()->next(path, catalog);
  }

  OdTcGroupPtr addGroup(OdTcList* list, const OdString& name) {
    OdTcGroupPtr group = OdTcGroup::createObject();
    group->setName(name);
    list->add(group);
    return group;
  }
  OdTcToolPalettePtr addPalette(const OdString& name, const QStringList& tools) {
    OdTcToolPalettePtr palette = OdTcToolPalette::createObject();
    palette->setName(name);
    palette->suspendAutoSave();
    catalog->addPalette(palette);
    for (const OdString& text : tools) {
      OdTcToolPtr tool = OdTcTool::createObject();
      tool->setName(text);
      tool->setToolType(OdTcTool::kRegular);
      tool->setActionAgent(odrxMake<testhost::RecordingAgent>(text));
      palette->addItem(tool);
    }
    return palette;
  }
  void refer(OdTcGroup* group, OdTcToolPalette* palette) {
    OdTcPaletteSoftRefPtr reference = OdTcPaletteSoftRef::createObject();
    reference->setId(palette->id());
    group->contents()->add(reference);
  }
  static QStringList texts() {
    QStringList all;
    for (const auto& entry : host().completion.offers(QStringLiteral("tools"))) all << entry->text;
    return all;
  }

  QTemporaryDir folder;
  OdTcCatalog* catalog = nullptr;
};

TEST_F(CompletionSourceTest, OffersTheToolsOfPalettesInGroupsOfAnyDepth) {
  const OdTcGroupPtr outer = addGroup(catalog->groups(), QStringLiteral("Outer"));
  const OdTcGroupPtr inner = addGroup(outer->contents(), QStringLiteral("Inner"));
  refer(outer,
        addPalette(QStringLiteral("P1"), {QStringLiteral("Door"), QStringLiteral("Window")}));
  refer(inner, addPalette(QStringLiteral("P2"), {QStringLiteral("Stair")}));
  EXPECT_EQ(texts(), QStringList({QStringLiteral("Stair"), QStringLiteral("Door"),
                                  QStringLiteral("Window")}));
}

TEST_F(CompletionSourceTest, ShowsTheNameBehindAPrefix) {
  const OdTcGroupPtr group = addGroup(catalog->groups(), QStringLiteral("G"));
  refer(group, addPalette(QStringLiteral("P"), {QStringLiteral("Door")}));
  const auto offers = host().completion.offers(QStringLiteral("tools"));
  ASSERT_EQ(offers.size(), 1u);
  EXPECT_EQ(offers[0]->displayText, QStringLiteral("TOOL:Door"));
  EXPECT_EQ(offers[0]->kind, 0);
  EXPECT_EQ(offers[0]->flags, 0u);
  ASSERT_TRUE(offers[0]->pictogram);
  EXPECT_TRUE(offers[0]->pictogram->image(16).isNull()) << "the tool has no picture";
}

TEST_F(CompletionSourceTest, OffersTwoToolsOfOneNameTwice) {
  const OdTcGroupPtr group = addGroup(catalog->groups(), QStringLiteral("G"));
  refer(group, addPalette(QStringLiteral("P"), {QStringLiteral("Door"), QStringLiteral("Door")}));
  EXPECT_EQ(texts(), QStringList({QStringLiteral("Door"), QStringLiteral("Door")}));
}

TEST_F(CompletionSourceTest, OffersAPaletteOfTwoGroupsOnce) {
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"), {QStringLiteral("Door")});
  refer(addGroup(catalog->groups(), QStringLiteral("G1")), palette);
  refer(addGroup(catalog->groups(), QStringLiteral("G2")), palette);
  EXPECT_EQ(texts(), QStringList(QStringLiteral("Door")));
}

TEST_F(CompletionSourceTest, OffersWhatIsThereAndReadsNoPalettesThatWait) {
  const OdTcGroupPtr group = addGroup(catalog->groups(), QStringLiteral("G"));
  for (const char16_t* name : {u"Door", u"Window"}) {
    const OdString text = OdString::fromUtf16(name);
    const OdTcToolPalettePtr palette = addPalette(text, {text});
    refer(group, palette);
    ASSERT_TRUE(palette->save());
  }
  ASSERT_TRUE(catalog->save());
  ASSERT_TRUE(catalog->beginLoad(OdString(catalog->path())));
  EXPECT_EQ(texts(), QStringList());
  ASSERT_TRUE(catalog->loading()->loadNext());
  EXPECT_EQ(texts(), QStringList(QStringLiteral("Door")));
  EXPECT_EQ(catalog->loading()->pendingCount(), 1);
  ASSERT_TRUE(catalog->loading()->loadNext());
  EXPECT_EQ(texts(), QStringList({QStringLiteral("Door"), QStringLiteral("Window")}));
}

TEST_F(CompletionSourceTest, PassesOverAReferenceThatLeadsNowhere) {
  const OdTcGroupPtr group = addGroup(catalog->groups(), QStringLiteral("G"));
  OdTcPaletteSoftRefPtr reference = OdTcPaletteSoftRef::createObject();
  reference->setId(QStringLiteral("{0}"));
  group->contents()->add(reference);
  EXPECT_TRUE(texts().isEmpty());
}

TEST_F(CompletionSourceTest, OffersNothingWhenTheOptionIsOff) {
  refer(addGroup(catalog->groups(), QStringLiteral("G")),
        addPalette(QStringLiteral("P"), {QStringLiteral("Door")}));
  testhost::TestProfile& section = host().application.store->made(QStringLiteral("CommandLine"));
  section.values[QStringLiteral("completetools")] = false;
  EXPECT_TRUE(texts().isEmpty());
  section.values[QStringLiteral("completetools")] = OdString(QStringLiteral("0"));
  EXPECT_TRUE(texts().isEmpty());
  section.values[QStringLiteral("completetools")] = std::int32_t{1};
  EXPECT_EQ(texts().size(), 1);
}

TEST_F(CompletionSourceTest, AnOptionThatWasNeverSetIsOn) {
  EXPECT_TRUE(isToolCompletionOn());
  EXPECT_FALSE(host().application.store->at(QStringLiteral("CommandLine")))
      << "asking must not create the option";
  host().switchOff(testhost::kProfile);
  EXPECT_TRUE(isToolCompletionOn());
}

TEST_F(CompletionSourceTest, AChoiceRunsTheToolInTheCurrentDocument) {
  refer(addGroup(catalog->groups(), QStringLiteral("G")),
        addPalette(QStringLiteral("P"), {QStringLiteral("Door")}));
  const auto offers = host().completion.offers(QStringLiteral("tools"));
  ASSERT_EQ(offers.size(), 1u);
  offers[0]->action->run();
  EXPECT_FALSE(TcEditorReactor::instance()->isRunning()) << "there is no document";
  testhost::TestDocument& document = host().documents.open(QStringLiteral("A.dxf"));
  offers[0]->action->run();
  EXPECT_EQ(document.sent, QStringList(QStringLiteral("Door")));
  EXPECT_TRUE(TcEditorReactor::instance()->isRunning());
}

TEST_F(CompletionSourceTest, AChoiceIsWhatTheHostRepeats) {
  const auto repetition = kvMake<testhost::TestRepetition>();
  host().offer<IHostRepetition>(repetition.get());
  refer(addGroup(catalog->groups(), QStringLiteral("G")),
        addPalette(QStringLiteral("P"), {QStringLiteral("Door"), QStringLiteral("Window")}));
  const auto offers = host().completion.offers(QStringLiteral("tools"));
  ASSERT_EQ(offers.size(), 2u);
  offers[1]->action->run();
  EXPECT_FALSE(repetition->last) << "there is no document";
  host().documents.open(QStringLiteral("A.dxf"));
  offers[1]->action->run();
  ASSERT_TRUE(repetition->last);
  EXPECT_EQ(repetition->last->name(), offers[1]->text);
  repetition->last.reset();
}

TEST_F(CompletionSourceTest, AChoicePassesTheGuard) {
  refer(addGroup(catalog->groups(), QStringLiteral("G")),
        addPalette(QStringLiteral("P"), {QStringLiteral("Door"), QStringLiteral("Window")}));
  const auto offers = host().completion.offers(QStringLiteral("tools"));
  ASSERT_EQ(offers.size(), 2u);
  host().documents.open(QStringLiteral("A.dxf"));
  offers[0]->action->run();
  testhost::TestDocument& other = host().documents.open(QStringLiteral("B.dxf"));
  offers[1]->action->run();
  EXPECT_TRUE(other.sent.isEmpty());
  ASSERT_EQ(host().messages.printed.size(), 1);
  EXPECT_TRUE(host().messages.printed[0].contains(QStringLiteral("\"Door\"")));
}

TEST_F(CompletionSourceTest, AnOfferKeepsItsToolAlive) {
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"), {QStringLiteral("Door")});
  refer(addGroup(catalog->groups(), QStringLiteral("G")), palette);
  const auto offers = host().completion.offers(QStringLiteral("tools"));
  ASSERT_EQ(offers.size(), 1u);
  OdTcTool* const tool = palette->enumTools()->next();
  palette->removeItem(tool->id());
  testhost::TestDocument& document = host().documents.open(QStringLiteral("A.dxf"));
  offers[0]->action->run();
  EXPECT_EQ(document.sent.size(), 1);
}

TEST_F(CompletionSourceTest, IsRemovedByAnEmptyProvider) {
  removeToolSource();
  EXPECT_FALSE(host().completion.sources.contains(QStringLiteral("tools")));
  host().switchOff(testhost::kCompletionRegistry);
  registerToolSource();
  EXPECT_TRUE(host().completion.sources.isEmpty());
}

} // namespace
