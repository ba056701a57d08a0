// The road of one click.
#include "catalog/catalog_fixture.h"
#include "drawing/database.h"
#include "properties/property_bag.h"
#include "support/recording_agent.h"
#include "tools/hatch_tool.h"
#include "tools/tool_data.h"

#include <functional>

namespace {

using namespace testhost;

/// A general property that records what is done with it.
class RecordingProperty : public OdTcPersistImpl<OdTcDatabaseProperty> {
 public:
  RecordingProperty(OdString name, QStringList& log)
    : m_name(std::move(name))
    , m_log(log) {}

  OdString getDisplayName() const override { return m_name; }
  void applyToDatabase(OdDbDatabase* database) override {
    m_log << u"apply "_s + m_name;
    m_database = database;
    if (fails) throw OdError(eInvalidInput, u"refused"_s);
  }
  void restoreToDatabase(OdDbDatabase* database) override {
    m_log << u"restore "_s + m_name;
    EXPECT_EQ(database, m_database);
  }
  bool captureFromObject(const OdDbObject*) override { return false; }
  OdTcPropertyBasicInfo* getBasicInfo() const override { return nullptr; }
  OdTcPropertyCreateInfo* getCreateInfo() const override { return nullptr; }
  OdVariant getValue() const override { return {}; }
  void setValue(const OdVariant&) override {}
  bool isVisible() const override { return true; }
  bool isEnabled() const override { return true; }
  bool offersCurrent() const override { return false; }
  void setOffersCurrent(bool) override {}
  bool isFrozen() const override { return false; }
  void setFrozen(bool) override {}

  bool fails = false;

 private:
  OdString m_name;
  QStringList& m_log;
  OdDbDatabase* m_database = nullptr;
};

struct ToolRunTest : CatalogFixture {
  TestDocument& document = theHost().documents.open(u"A.dxf"_s);
  OdDbDatabasePtr database = OdDbDatabase::createDatabase();
  TcEditorReactor* const guard = TcEditorReactor::instance();

  ToolRunTest() { document.databaseOfDocument = database; }

  /// A regular tool with two recorded properties and an agent that types its name.
  OdTcToolPtr runnable(const OdString& name) const {
    const OdTcToolPtr made = tool(name);
    made->setToolType(OdTcTool::kRegular);
    made->setActionAgent(odrxMake<RecordingAgent>(name));
    made->getGeneralProperties()->clear();
    for (const OdString& property : {name + u".one"_s, name + u".two"_s})
      made->getGeneralProperties()->add(odrxMake<RecordingProperty>(property, theHost().log));
    theHost().log.clear();
    return made;
  }
};

TEST_F(ToolRunTest, LocksAppliesUnlocksAndThenLetsTheAgentBeginAndType) {
  const OdTcToolPtr one = runnable(u"T"_s);
  one->execute(&document);
  EXPECT_EQ(theHost().log,
            QStringList({u"lock A.dxf EXECUTETOOL 4 1"_s, u"apply T.one"_s, u"apply T.two"_s,
                         u"unlock A.dxf"_s, u"begin T"_s, u"execute T"_s, u"send A.dxf T"_s}));
  EXPECT_TRUE(one->isRunningMark());
  EXPECT_EQ(one->runningDocument(), &document);
  EXPECT_EQ(guard->tool(), one.get());
}

TEST_F(ToolRunTest, TheEndOfTheCommandPutsEverythingBackWithoutALock) {
  const OdTcToolPtr one = runnable(u"T"_s);
  one->execute(&document);
  theHost().log.clear();
  theHost().events.commandEnded(u"LINE"_s);
  EXPECT_EQ(theHost().log, QStringList({u"restore T.one"_s, u"restore T.two"_s, u"end T"_s}));
  EXPECT_EQ(one->runningDocument(), nullptr);
  EXPECT_FALSE(one->isRunningMark());
  EXPECT_FALSE(guard->isRunning());
  theHost().log.clear();
  one->finish();
  EXPECT_TRUE(theHost().log.isEmpty()) << "without a run there is nothing to finish";
}

TEST_F(ToolRunTest, WhatTheAgentHidesIsNeitherAppliedNorRestored) {
  const OdTcToolPtr one = runnable(u"T"_s);
  one->getActionAgent()->propertyFilter()->add(u"T.one"_s);
  one->execute(&document);
  one->finish();
  EXPECT_EQ(theHost().log.filter(u"T.one"_s), QStringList());
  EXPECT_EQ(theHost().log.filter(u"T.two"_s), QStringList({u"apply T.two"_s, u"restore T.two"_s}));
}

TEST_F(ToolRunTest, ASecondToolInTheDocumentCancelsTheFirstAndSurvivesTheCancel) {
  const OdTcToolPtr first = runnable(u"F"_s);
  const OdTcToolPtr second = runnable(u"S"_s);
  first->execute(&document);
  theHost().log.clear();
  second->execute(&document);
  EXPECT_EQ(theHost().log,
            QStringList({u"send A.dxf ^C"_s, u"restore F.one"_s, u"restore F.two"_s, u"end F"_s,
                         u"lock A.dxf EXECUTETOOL 4 1"_s, u"apply S.one"_s, u"apply S.two"_s,
                         u"unlock A.dxf"_s, u"begin S"_s, u"execute S"_s, u"send A.dxf S"_s}));
  theHost().events.commandCancelled(u"LINE"_s);
  EXPECT_EQ(guard->tool(), second.get());
  theHost().events.commandCancelled(u"LINE"_s);
  EXPECT_FALSE(guard->isRunning());
}

TEST_F(ToolRunTest, AToolInAnotherDocumentIsRefusedWithAMessage) {
  const OdTcToolPtr first = runnable(u"F"_s);
  const OdTcToolPtr second = runnable(u"S"_s);
  first->execute(&document);
  TestDocument& other = theHost().documents.open(u"B.dxf"_s);
  theHost().log.clear();
  second->execute(&other);
  EXPECT_EQ(theHost().log,
            QStringList(u"print \nExecution canceled. Tool \"F\" is already running in "
                        u"document \"A.dxf\""_s));
  EXPECT_EQ(guard->tool(), first.get());
  EXPECT_EQ(second->runningDocument(), nullptr);
}

TEST_F(ToolRunTest, AHatchToolOfNoKindSendsNothingAndIsEnteredAllTheSame) {
  const OdTcToolPtr odd = runnable(u"O"_s);
  const auto agent = odrxMake<OdTcToolHatchCommandImpl>();
  agent->setHatchPatternSource(2);
  odd->setActionAgent(agent);
  odd->execute(&document);
  EXPECT_EQ(theHost().log, QStringList({u"lock A.dxf EXECUTETOOL 4 1"_s, u"apply O.one"_s,
                                        u"apply O.two"_s, u"unlock A.dxf"_s}));
  EXPECT_EQ(guard->tool(), odd.get());
  TestDocument& other = theHost().documents.open(u"B.dxf"_s);
  theHost().log.clear();
  runnable(u"S"_s)->execute(&other);
  EXPECT_TRUE(wasTold({u"Tool \"O\" is already running in document \"A.dxf\""_s}));
  theHost().documents.activate(document);
  theHost().log.clear();
  theHost().events.commandEnded(u"LINE"_s);
  EXPECT_EQ(theHost().log, QStringList({u"restore O.one"_s, u"restore O.two"_s}));
  EXPECT_FALSE(guard->isRunning());
}

TEST_F(ToolRunTest, WithoutAnAgentAppliesAndRestoresItsPropertiesAndNothingElse) {
  const OdTcToolPtr one = runnable(u"T"_s);
  one->setActionAgent(nullptr);
  one->execute(&document);
  theHost().events.commandEnded(u"LINE"_s);
  EXPECT_EQ(theHost().log,
            QStringList({u"lock A.dxf EXECUTETOOL 4 1"_s, u"apply T.one"_s, u"apply T.two"_s,
                         u"unlock A.dxf"_s, u"restore T.one"_s, u"restore T.two"_s}));
}

TEST_F(ToolRunTest, AnEmptyBagChangesNothing) {
  const OdTcToolPtr one = runnable(u"T"_s);
  one->getGeneralProperties()->clear();
  one->execute(&document);
  one->finish();
  EXPECT_TRUE(theHost().log.filter(u"apply"_s).isEmpty());
  EXPECT_TRUE(theHost().log.contains(u"end T"_s));
}

TEST_F(ToolRunTest, OnlyARegularToolRuns) {
  for (const std::uint32_t type : {0u, 3u, 4u}) {
    const OdTcToolPtr one = runnable(u"T"_s);
    one->setToolType(type);
    one->execute(&document);
    EXPECT_EQ(theHost().log, QStringList(u"print \nTool \"T\" cannot be run."_s)) << type;
    EXPECT_FALSE(guard->isRunning());
  }
}

TEST_F(ToolRunTest, ALockedDrawingIsToldAndLeftAlone) {
  const OdTcToolPtr one = runnable(u"T"_s);
  theHost().documents.refuseLocks = true;
  one->execute(&document);
  EXPECT_TRUE(wasTold({u"Tool \"T\" cannot be run"_s, u"locked"_s}));
  EXPECT_TRUE(theHost().log.filter(u"apply"_s).isEmpty());
  EXPECT_FALSE(theHost().log.contains(u"execute T"_s));
  EXPECT_FALSE(guard->isRunning());
  EXPECT_EQ(one->runningDocument(), nullptr);
}

TEST_F(ToolRunTest, WithoutADatabaseTheAgentRunsAllTheSame) {
  document.databaseOfDocument = nullptr;
  const OdTcToolPtr one = runnable(u"T"_s);
  one->execute(&document);
  one->finish();
  EXPECT_TRUE(theHost().log.filter(u"apply"_s).isEmpty());
  EXPECT_TRUE(theHost().log.filter(u"restore"_s).isEmpty());
  EXPECT_TRUE(theHost().log.contains(u"execute T"_s));
  EXPECT_TRUE(theHost().log.contains(u"end T"_s));
}

TEST_F(ToolRunTest, WithoutADocumentNothingHappens) {
  const OdTcToolPtr one = runnable(u"T"_s);
  one->execute(nullptr);
  EXPECT_TRUE(theHost().log.isEmpty());
}

TEST_F(ToolRunTest, AFailureOnTheWayInPutsBackWhatWasApplied) {
  const OdTcToolPtr one = runnable(u"T"_s);
  const auto failing = odrxMake<RecordingProperty>(u"bad"_s, theHost().log);
  failing->fails = true;
  one->getGeneralProperties()->add(failing);
  EXPECT_THROW(one->execute(&document), OdError);
  EXPECT_TRUE(theHost().documents.locked.empty());
  EXPECT_TRUE(theHost().log.contains(u"restore T.one"_s));
  EXPECT_FALSE(guard->isRunning());
  EXPECT_EQ(one->runningDocument(), nullptr);
}

TEST_F(ToolRunTest, AToolThatDiesWhileItRunsLeavesTheGuard) {
  OdTcToolPtr one = runnable(u"T"_s);
  one->execute(&document);
  one = nullptr;
  EXPECT_FALSE(guard->isRunning());
  theHost().events.commandEnded(u"LINE"_s);
  EXPECT_FALSE(theHost().log.contains(u"end T"_s));
}

TEST_F(ToolRunTest, AToolThatIsRemovedWhileItRunsPutsEverythingBackFirst) {
  const OdTcToolPalettePtr holder = palette(u"P"_s);
  const auto expectFinished = [&](const std::function<void()>& leave) {
    const OdTcToolPtr one = runnable(u"T"_s);
    holder->addItem(one);
    one->execute(&document);
    theHost().log.clear();
    leave();
    EXPECT_EQ(theHost().log, QStringList({u"restore T.one"_s, u"restore T.two"_s, u"end T"_s}));
    EXPECT_FALSE(guard->isRunning());
    EXPECT_EQ(one->runningDocument(), nullptr);
  };
  expectFinished([&] { holder->removeItem(holder->enumTools()->next()->id()); });
  expectFinished([&] {
    holder->enumTools()->next()->setToolType(OdTcTool::kText);
    holder->stripUnsupportedTools();
  });
}

TEST_F(ToolRunTest, AToolThatIsRemovedInItsOwnPreparationRunsNoFurther) {
  const OdTcToolPalettePtr holder = palette(u"P"_s);
  struct Leaving : RecordingAgent {
    using RecordingAgent::RecordingAgent;
    OdTcToolPalette* holder = nullptr;
    void beginExecution(IHostDocument*) override {
      holder->removeItem(holder->enumTools()->next()->id());
    }
  };
  const OdTcToolPtr one = runnable(u"T"_s);
  const auto agent = odrxMake<Leaving>(u"T"_s);
  agent->holder = holder;
  one->setActionAgent(agent);
  holder->addItem(one);
  one->execute(&document);
  EXPECT_FALSE(theHost().log.contains(u"execute T"_s));
  EXPECT_TRUE(theHost().log.contains(u"restore T.one"_s));
  EXPECT_FALSE(guard->isRunning());
}

TEST_F(ToolRunTest, AToolThatGoesWithItsPalettePutsEverythingBackFirst) {
  const OdTcCatalogPtr catalog = load(writeTwoPalettes(u"c"_s));
  OdTcToolPalette* const holder = catalog->findPalette(u"A"_s);
  {
    const OdTcToolPtr one = runnable(u"T"_s);
    holder->addItem(one);
    one->execute(&document);
  }
  theHost().log.clear();
  ASSERT_TRUE(catalog->removeItem(u"A"_s));
  EXPECT_EQ(theHost().log, QStringList({u"restore T.one"_s, u"restore T.two"_s, u"end T"_s}));
  EXPECT_FALSE(guard->isRunning());
}

TEST_F(ToolRunTest, AToolThatSomebodyHoldsRunsOnWithoutItsPalette) {
  const OdTcToolPtr one = runnable(u"T"_s);
  {
    const OdTcToolPalettePtr holder = palette(u"P"_s);
    holder->addItem(one);
    one->execute(&document);
  }
  EXPECT_EQ(guard->tool(), one.get());
  theHost().events.commandEnded(u"LINE"_s);
  EXPECT_TRUE(theHost().log.contains(u"end T"_s));
}

TEST_F(ToolRunTest, RunsWithoutAGuard) {
  IToolGuard::setInstance(nullptr);
  const OdTcToolPtr one = runnable(u"T"_s);
  one->execute(&document);
  EXPECT_TRUE(theHost().log.contains(u"execute T"_s));
  one->finish();
  EXPECT_EQ(one->runningDocument(), nullptr);
  IToolGuard::setInstance(guard);
}

} // namespace
