#include "drafton/engine/command_processor.h"

#include "engine/support/engine_fixture.h"
#include "engine/support/test_commands.h"

using namespace drafton;

namespace {

class CommandProcessorTest : public EngineFixture {
 protected:
  CommandProcessorTest() { engine().commands().add(testCommands()); }

  std::size_t entityCount() {
    std::size_t count = 0;
    const auto space = database().getModelSpaceId().openAs<OdDbBlockTableRecord>();
    for (auto at = space->newIterator(); !at->done(); at->step()) ++count;
    return count;
  }
  bool isIdle() { return !document().processor().isBusy(); }
  void addLayer(const char16_t* name) {
    auto layer = odrxMake<OdDbLayerTableRecord>();
    layer->setName(OdString::fromUtf16(name));
    database().getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite)->add(layer);
  }
  bool hasLayer(const char16_t* name) {
    return database().getLayerTableId().openAs<OdDbLayerTable>()->has(OdString::fromUtf16(name));
  }
};

struct AnswerRow {
  const char* typed;
  const char* shown; ///< what must stand in the output
};

class Answers : public CommandProcessorTest, public ::testing::WithParamInterface<AnswerRow> {};

constexpr AnswerRow kAnswers[] = {
    {"ASKPOINT 1,2\n", "got 1 2 0"},
    {"ASKPOINT @1,2\n", "got 1 2 0"},
    {"ASKPOINT 5<90\n", "got 10 5 0"},
    {"ASKPOINT c\n", "got option Close"},
    {"ASKPOINT _undo\n", "got option Undo"},
    {"ASKPOINT \n", "got nothing"},
    {"ASKPOINT x 1,1\n", "Invalid point."},
    {"ASKPOINT x 1,1\n", "got 1 1 0"},
    {"ASKPOINT \n", "Point or [Close/Undo]: "},
    {"ASKDISTANCE 7\n", "got 7"},
    {"ASKDISTANCE \n", "got 10"},
    {"ASKDISTANCE \n", "Distance <10>: "},
    {"ASKDISTANCE 1,1 4,5\n", "got 5"},
    {"ASKDISTANCE 1,1 4,5\n", "Specify second point: "},
    {"ASKDISTANCE -1 2\n", "The value must be greater than zero."},
    {"ASKDISTANCE 1,1 1,1 2,1\n", "The value must be greater than zero."},
    {"ASKDISTANCE x 2\n", "Invalid distance: a number or a point is needed."},
    {"ASKANGLE 45\n", "got 45"},
    {"ASKANGLE \n", "got 90"},
    {"ASKANGLE \n", "Angle <90>: "},
    {"ASKANGLE 0,0 0,-3\n", "got 270"},
    {"ASKANGLE 1,1 1,1 2,1\n", "The two points must differ."},
    {"ASKINTEGER 3\n", "got 3"},
    {"ASKINTEGER 3.5 4\n", "Invalid whole number."},
    {"ASKINTEGER -3 4\n", "The value must not be negative."},
    {"ASKINTEGER \n4\n", "A whole number is needed."},
    {"ASKREAL 2.5\n", "got 2.5"},
    {"ASKREAL r\n", "got option Reference"},
    {"ASKREAL 0 1\n", "The value must not be zero."},
    {"ASKTEXT abc\n", "got <abc>"},
    {"ASKTEXT \"a b\"\n", "got <a b>"},
    {"ASKTEXT \"\"\n", "got <>"},
    {"ASKTEXT \"open\n", "got <\"open>"},
    {"ASKTEXT \n", "got nothing"},
    {"ASKWORDS a b c\n", "got <a b c>"},
    {"ASKWORDS \"a b\"\n", "got <a b>"},
    {"ASKWORDS \n", "got <some words>"},
    {"ASKWORDS c:\\a;b\n", "got <c:\\a;b>"},
    {"ASKKEYWORD b\n", "got option Blue"},
    {"ASKKEYWORD \n", "got option Green"},
    {"ASKKEYWORD \n", "Choose [Red/Green/Blue] <Green>: "},
    {"ASKKEYWORD x r\n", "Invalid option."},
    {"_askreal 2\n", "got 2"},
    {"'_.AskReal 2\n", "got 2"},
    {"NOSUCH\n", "Unknown command \"NOSUCH\"."},
};

TEST_P(Answers, AreTakenOrRefused) {
  type(OdString::fromLatin1(GetParam().typed));
  EXPECT_TRUE(console().shows(OdString::fromLatin1(GetParam().shown)))
      << GetParam().typed << " gave:\n"
      << output().toStdString();
  EXPECT_TRUE(isIdle());
}

INSTANTIATE_TEST_SUITE_P(All, Answers, ::testing::ValuesIn(kAnswers));

struct MacroRow {
  const char* macro;
  std::size_t lines;
};

class Macros : public CommandProcessorTest, public ::testing::WithParamInterface<MacroRow> {};

constexpr MacroRow kMacros[] = {
    {"^C^C_DRAW 0,0 100,0 ^M", 1},
    {"_DRAW 0,0 1,0 2,0 ;", 2},
    {"DRAW;0,0;1,0;;", 1},
    {"'_DRAW 0,0 1,0 \n", 1},
    {"DRAW 0,0 1,0 ^CDRAW 0,0 1,0 2,0 ;", 2},
    {"DRAW 0,0 1,0 ;DRAW 5,5 6,6 ;", 2},
};

TEST_P(Macros, Draw) {
  send(OdString::fromLatin1(GetParam().macro));
  EXPECT_EQ(entityCount(), GetParam().lines) << output().toStdString();
  EXPECT_TRUE(isIdle());
}

INSTANTIATE_TEST_SUITE_P(All, Macros, ::testing::ValuesIn(kMacros));

} // namespace

TEST_F(CommandProcessorTest, SendingReturnsBeforeAnythingRuns) {
  document().commandInput()->sendText(QStringLiteral("DRAW 0,0 1,0 ;"));
  EXPECT_EQ(entityCount(), 0u);
  EXPECT_GT(input().queued, 0);
  engine().run();
  EXPECT_EQ(entityCount(), 1u);
}

TEST_F(CommandProcessorTest, AMacroPausesForOneAnswerOfTheUser) {
  send(QStringLiteral("DRAW \\10,0 \\;"));
  EXPECT_EQ(prompt(), QStringLiteral("From: "));
  type(QStringLiteral("0,0\n"));
  EXPECT_EQ(entityCount(), 1u) << "10,0 came from the macro";
  EXPECT_EQ(prompt(), QStringLiteral("To: "));
  type(QStringLiteral("x\n"));
  EXPECT_FALSE(isIdle()) << "an invalid answer does not end the pause";
  type(QStringLiteral("20,0\n"));
  EXPECT_EQ(entityCount(), 2u);
  EXPECT_TRUE(isIdle());
}

TEST_F(CommandProcessorTest, AClickAnswersAPause) {
  send(QStringLiteral("DRAW \\10,0 ;"));
  EXPECT_TRUE(document().processor().givePoint({1, 2, 0}));
  engine().run();
  EXPECT_EQ(entityCount(), 1u);
  EXPECT_FALSE(document().processor().givePoint({1, 2, 0})) << "nothing asks any more";
}

TEST_F(CommandProcessorTest, TheUsersCancelDropsTheRestOfAMacro) {
  send(QStringLiteral("DRAW \\10,0 ;DRAW 0,0 1,1 ;"));
  type(QStringLiteral("^C"));
  EXPECT_TRUE(isIdle());
  EXPECT_EQ(entityCount(), 0u);
  EXPECT_EQ(events({QStringLiteral("cancelled")}), QStringList(QStringLiteral("cancelled DRAW")));
}

TEST_F(CommandProcessorTest, AMacroThatCancelsTakesThePlaceOfAPausedOne) {
  send(QStringLiteral("DRAW \\10,0 ;"));
  send(QStringLiteral("^C^CDRAW 0,0 1,1 2,2 ;"));
  EXPECT_EQ(entityCount(), 2u);
  EXPECT_TRUE(isIdle());
}

TEST_F(CommandProcessorTest, ACancelWithNothingRunningIsNoEvent) {
  type(QStringLiteral("^C^C"));
  EXPECT_TRUE(events().isEmpty());
}

TEST_F(CommandProcessorTest, EnterAloneRunsNothing) {
  type(QStringLiteral("\n \n"));
  EXPECT_TRUE(events().isEmpty());
  EXPECT_TRUE(console().troubles.isEmpty());
}

TEST_F(CommandProcessorTest, NamesInEventsAreThoseOfTheRegistration) {
  type(QStringLiteral("_newdocument\n"));
  EXPECT_EQ(
      events({QStringLiteral("start"), QStringLiteral("ended")}),
      QStringList({QStringLiteral("start NewDocument"), QStringLiteral("ended NewDocument")}));
}

TEST_F(CommandProcessorTest, ACancelAtAnyPromptLeavesTheDrawingAsItWas) {
  const QByteArray before = database().writeDxf();
  for (const char* typed : {"DRAW ^C", "DRAW 0,0 ^C", "DRAW 0,0 1,1 ^C", "DRAW 0,0 1,1 2,2 x ^C",
                            "NEST 0,0 1,1 ^C", "ASKDISTANCE 1,1 ^C", "ASKTEXT \"a b^C"}) {
    type(OdString::fromLatin1(typed));
    EXPECT_TRUE(isIdle()) << typed;
    EXPECT_EQ(entityCount(), 0u) << typed;
  }
  EXPECT_EQ(database().writeDxf(), before);
  EXPECT_FALSE(database().hasUndo());
}

TEST_F(CommandProcessorTest, AFailedCommandIsToldAndTakenBack) {
  type(QStringLiteral("FAIL\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("this command always fails")));
  EXPECT_EQ(console().troubles.size(), 1);
  EXPECT_EQ(entityCount(), 0u);
  EXPECT_EQ(events().last(), QStringLiteral("failed FAIL"));
}

TEST_F(CommandProcessorTest, TextBehindAFailedCommandIsDropped) {
  send(QStringLiteral("FAIL DRAW 0,0 1,1 ;"));
  EXPECT_EQ(entityCount(), 0u);
  send(QStringLiteral("NOSUCH DRAW 0,0 1,1 ;"));
  EXPECT_EQ(entityCount(), 0u);
  EXPECT_EQ(console().troubles.size(), 2);
}

TEST_F(CommandProcessorTest, InputThatEndsInsideANestedCommandCancelsBoth) {
  type(QStringLiteral("NEST 0,0 1,1\n"));
  EXPECT_TRUE(isIdle());
  EXPECT_EQ(entityCount(), 0u);
  EXPECT_EQ(events().last(), QStringLiteral("cancelled NEST"));
}

TEST_F(CommandProcessorTest, ANestedCommandReadsItsInputWhileTheOuterOneStands) {
  input().lines = {QStringLiteral("0,0"), QStringLiteral("1,1"), QStringLiteral("")};
  type(QStringLiteral("NEST\n"));
  EXPECT_TRUE(isIdle());
  EXPECT_TRUE(console().shows(QStringLiteral("inner ended")));
  EXPECT_EQ(events(), QStringList({QStringLiteral("start NEST"), QStringLiteral("start DRAW"),
                                   QStringLiteral("ended DRAW"), QStringLiteral("ended NEST")}));
  EXPECT_EQ(entityCount(), 2u);
  EXPECT_EQ(database().undoDepth(), 1u);
  database().undo();
  EXPECT_EQ(entityCount(), 0u);
}

TEST_F(CommandProcessorTest, ANestedCommandThatDoesNotEndTakesBackOnlyItsOwn) {
  for (const char* name : {"NESTFAIL", "NESTREFUSE"}) {
    type(OdString::fromLatin1(name) + u'\n');
    EXPECT_TRUE(isIdle());
    EXPECT_TRUE(console().shows(QStringLiteral("inner did not end"))) << name;
    EXPECT_EQ(entityCount(), 2u) << name;
    EXPECT_EQ(events().last(), QStringLiteral("ended ") + OdString::fromLatin1(name));
    EXPECT_EQ(database().undoDepth(), 1u);
    database().undo();
    EXPECT_EQ(entityCount(), 0u) << name;
  }
}

TEST_F(CommandProcessorTest, ANestedCommandHasAStepIfNoneIsAroundIt) {
  input().lines = {QStringLiteral("0,0"), QStringLiteral("1,1"), QStringLiteral("")};
  type(QStringLiteral("OUTDRAW\n"));
  EXPECT_EQ(entityCount(), 1u);
  EXPECT_EQ(database().undoName(), QStringLiteral("DRAW"));
  type(QStringLiteral("OUTSIDE\n"));
  EXPECT_EQ(entityCount(), 3u) << "what runs outside of every step is not taken back";
  EXPECT_EQ(database().undoDepth(), 1u);
}

TEST_F(CommandProcessorTest, ALockGoesOnWithItsStepBehindACommand) {
  DocumentManager& documents = engine().documents();
  ASSERT_TRUE(documents.lockDocument(&document(), IHostDocumentManager::kWriteLock,
                                     QStringLiteral("EXECUTETOOL"), nullptr, 1));
  EXPECT_TRUE(document().processor().run(QStringLiteral("NESTFAIL"), nullptr));
  addLayer(u"Lent");
  documents.unlockDocument(&document());
  EXPECT_EQ(database().undoName(), QStringLiteral("EXECUTETOOL"));
  database().undo();
  EXPECT_FALSE(hasLayer(u"Lent"));
  EXPECT_EQ(database().undoName(), QStringLiteral("NESTFAIL"));
}

TEST_F(CommandProcessorTest, ReactorsOfADrawingHearOfChangesAfterEveryInput) {
  struct Counter : OdDbDatabaseReactor {
    void objectModified(const OdDbDatabase&, OdDbObjectId) override { ++count; }
    int count = 0;
  } counter;
  database().addReactor(&counter);
  type(QStringLiteral("LAYER\ncolor\n3\n0\n"));
  EXPECT_FALSE(isIdle());
  EXPECT_EQ(counter.count, 1);
  type(QStringLiteral("^C"));
  EXPECT_EQ(counter.count, 2) << "it is put back";
  type(QStringLiteral("ZOOM\n"));
  EXPECT_TRUE(document().processor().givePoint({0, 0, 0}));
  EXPECT_TRUE(document().processor().givePoint({5, 5, 0}));
  EXPECT_EQ(counter.count, 3);
  database().removeReactor(&counter);
}

TEST_F(CommandProcessorTest, OneCancelOfNestedCommandsIsOneEvent) {
  input().lines = {QStringLiteral("0,0 1,1 ^C")};
  type(QStringLiteral("NEST\n"));
  EXPECT_TRUE(isIdle());
  EXPECT_EQ(events({QStringLiteral("cancelled"), QStringLiteral("ended")}),
            QStringList(QStringLiteral("cancelled NEST")));
  EXPECT_EQ(entityCount(), 0u);
}

TEST_F(CommandProcessorTest, ANestedCommandThatGivesUpByItselfTellsItsOwnEnd) {
  type(QStringLiteral("NESTREFUSE\n"));
  EXPECT_EQ(events(),
            QStringList({QStringLiteral("start NESTREFUSE"), QStringLiteral("start REFUSE"),
                         QStringLiteral("cancelled REFUSE"), QStringLiteral("ended NESTREFUSE")}));
}

TEST_F(CommandProcessorTest, RelativePointsFollowTheLastPoint) {
  type(QStringLiteral("DRAW 1,1 @2,0 @3<90 \n"));
  EXPECT_NEAR(document().lastPoint().distanceTo({3, 4, 0}), 0, 1e-9);
  EXPECT_EQ(entityCount(), 2u);
}

TEST_F(CommandProcessorTest, AWordWithoutEndIsRefusedAndForgotten) {
  const OdString huge(3 << 20, u'x');
  type(huge + u'\n');
  EXPECT_TRUE(console().shows(QStringLiteral("The text is longer than")));
  type(QStringLiteral("ASKTEXT ") + huge + QStringLiteral("\nshort\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("got <short>")));
}

TEST_F(CommandProcessorTest, TheRestOfAMacroFollowsIntoANewDrawing) {
  Document& first = document();
  send(QStringLiteral("_NewDocument DRAW 0,0 1,1 ;"));
  EXPECT_NE(&document(), &first);
  EXPECT_EQ(entityCount(), 1u);
}

TEST_F(CommandProcessorTest, ALockGoesBeforeTheStepOfACommandThatIsAboutToBeCancelled) {
  type(QStringLiteral("DRAW 0,0 1,1 "));
  document().commandInput()->sendText(QStringLiteral("^C"));
  DocumentManager& documents = engine().documents();
  ASSERT_TRUE(documents.lockDocument(&document(), IHostDocumentManager::kWriteLock,
                                     QStringLiteral("EXECUTETOOL"), nullptr, 1));
  addLayer(u"Lent");
  variables().set(QStringLiteral("TEXTSIZE"), 7.0);
  documents.unlockDocument(&document());
  engine().run();
  EXPECT_TRUE(isIdle());
  EXPECT_EQ(entityCount(), 0u);
  EXPECT_EQ(variable("TEXTSIZE").toDouble(), 7.0);
  EXPECT_TRUE(hasLayer(u"Lent"));
  EXPECT_EQ(database().undoName(), QStringLiteral("EXECUTETOOL"));
  EXPECT_EQ(events({QStringLiteral("cancelled")}).size(), 1);
}

TEST_F(CommandProcessorTest, AValueThatIsLentIsNoPartOfAnyStep) {
  variables().set(QStringLiteral("TEXTSIZE"), 7.0);
  type(QStringLiteral("DRAW 0,0 1,1 "));
  variables().set(QStringLiteral("TEXTSIZE"), 2.5);
  type(QStringLiteral("^C"));
  EXPECT_EQ(variable("TEXTSIZE").toDouble(), 2.5) << "a cancel leaves what was put back";
  EXPECT_EQ(database().undoDepth(), 0u);
}

TEST_F(CommandProcessorTest, AValueThatACommandSetsIsPartOfItsStep) {
  type(QStringLiteral("SETVAR TEXTSIZE 7\n"));
  EXPECT_EQ(database().undoName(), QStringLiteral("SETVAR"));
  database().undo();
  EXPECT_EQ(variable("TEXTSIZE").toDouble(), 2.5);
}

TEST_F(CommandProcessorTest, ADocumentThatIsNotOpenCannotBeLocked) {
  EXPECT_FALSE(engine().documents().lockDocument(nullptr, 4, QStringLiteral("X"), nullptr, 1));
}

TEST_F(CommandProcessorTest, ClosingADrawingEndsTheCommandThatWaitsInIt) {
  type(QStringLiteral("DRAW 0,0 "));
  engine().documents().newDocument();
  Document* const waiting = engine().documents().documents().front().get();
  ASSERT_TRUE(waiting->processor().isBusy());
  log().clear();
  engine().documents().close(*waiting);
  EXPECT_EQ(events(), QStringList({QStringLiteral("cancelled DRAW"),
                                   QStringLiteral("destroyed Drawing1.dxf")}));
}

TEST_F(CommandProcessorTest, AnEngineCanEndWhileACommandWaits) {
  type(QStringLiteral("DRAW 0,0 1,1 "));
  stop();
  EXPECT_EQ(events().last(), QStringLiteral("start DRAW")) << "the reactor was taken away before";
}
