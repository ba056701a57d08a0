#include "host/integration/editor_reactor.h"

#include "catalog/tool.h"
#include "support/module_fixture.h"
#include "support/recording_agent.h"

#include <QRegularExpression>

namespace {

using testhost::host;
using namespace tc;

struct EditorReactorTest : testhost::ModuleFixture {
  testhost::TestDocument& other = host().documents.open(QStringLiteral("B.dxf"));
  testhost::TestDocument& here = host().documents.open(QStringLiteral("A.dxf"));
  TcEditorReactor& guard = *TcEditorReactor::instance();

  OdTcToolPtr makeTool(const OdString& name) {
    OdTcToolPtr tool = OdTcTool::createObject();
    tool->setName(name);
    tool->setToolType(OdTcTool::kRegular);
    tool->setActionAgent(odrxMake<testhost::RecordingAgent>(name));
    return tool;
  }
  static bool isFinished(const OdString& name) {
    return host().log.contains(QLatin1String("end ") + name);
  }
};

TEST_F(EditorReactorTest, StartsIdleAndArmed) {
  EXPECT_FALSE(guard.isRunning());
  EXPECT_TRUE(guard.isArmed());
  EXPECT_TRUE(guard.canRun(&here));
  EXPECT_TRUE(guard.toolName().isEmpty());
  EXPECT_TRUE(guard.documentName().isEmpty());
  EXPECT_EQ(IToolGuard::instance(), &guard);
}

TEST_F(EditorReactorTest, NamesTheRunningToolAndItsDocument) {
  const OdTcToolPtr tool = makeTool(QStringLiteral("Door"));
  tool->execute(&here);
  EXPECT_TRUE(guard.isRunning());
  EXPECT_EQ(guard.tool(), tool.get());
  EXPECT_EQ(guard.toolName(), QStringLiteral("Door"));
  EXPECT_EQ(guard.documentName(), QStringLiteral("A.dxf"));
  EXPECT_TRUE(guard.canRun(&here));
  EXPECT_FALSE(guard.canRun(&other));
}

// --- states and events

enum class Event { kEnded, kCancelled, kFailed };
enum class Outcome { kStays, kFinished, kForgotten };

struct Step {
  const char* name;
  bool isPending; ///< a cancel of the module's own is still to come
  Event event;
  const char* command;
  bool inOtherDocument;
  Outcome outcome;
  bool isArmedAfter;
};

void PrintTo(const Step& step, std::ostream* out) { *out << step.name; }

constexpr Step kSteps[] = {
    {"EndFinishes", false, Event::kEnded, "LINE", false, Outcome::kFinished, true},
    {"EndElsewhereStays", false, Event::kEnded, "LINE", true, Outcome::kStays, true},
    {"EndWhilePendingFinishes", true, Event::kEnded, "LINE", false, Outcome::kFinished, false},
    {"CloseForgets", false, Event::kEnded, "CloseDocument", false, Outcome::kForgotten, true},
    {"CloseElsewhereForgets", false, Event::kEnded, "CloseDocument", true, Outcome::kForgotten,
     true},
    {"ExitForgets", false, Event::kEnded, "Exit", false, Outcome::kForgotten, true},
    {"CloseInLowerCaseFinishes", false, Event::kEnded, "closedocument", false, Outcome::kFinished,
     true},
    {"ExitInCapitalsFinishes", false, Event::kEnded, "EXIT", false, Outcome::kFinished, true},
    {"NewDocumentStays", false, Event::kEnded, "NewDocument", false, Outcome::kStays, true},
    {"NewDocumentInCapitalsStays", false, Event::kEnded, "NEWDOCUMENT", false, Outcome::kStays,
     true},
    {"OpenDocumentStays", false, Event::kEnded, "opendocument", false, Outcome::kStays, true},
    {"ImportStays", false, Event::kEnded, "Import", false, Outcome::kStays, true},
    {"CancelFinishes", false, Event::kCancelled, "LINE", false, Outcome::kFinished, true},
    {"CancelElsewhereStays", false, Event::kCancelled, "LINE", true, Outcome::kStays, true},
    {"PendingCancelStaysAndArms", true, Event::kCancelled, "LINE", false, Outcome::kStays, true},
    {"PendingCancelElsewhereStaysPending", true, Event::kCancelled, "LINE", true, Outcome::kStays,
     false},
    {"FailureFinishes", false, Event::kFailed, "LINE", false, Outcome::kFinished, true},
    {"FailureElsewhereStays", false, Event::kFailed, "LINE", true, Outcome::kStays, true},
    {"FailureWhilePendingFinishes", true, Event::kFailed, "LINE", false, Outcome::kFinished, false},
    {"FailedCloseFinishes", false, Event::kFailed, "CloseDocument", false, Outcome::kFinished,
     true},
};

struct EditorReactorStepTest : EditorReactorTest, testing::WithParamInterface<Step> {};

TEST_P(EditorReactorStepTest, GoesWhereTheTableSays) {
  const Step& step = GetParam();
  const OdTcToolPtr before = makeTool(QStringLiteral("Before"));
  if (step.isPending) before->execute(&here);
  const OdTcToolPtr tool = makeTool(QStringLiteral("Door"));
  tool->execute(&here);
  ASSERT_EQ(guard.isArmed(), !step.isPending);
  host().log.clear();
  if (step.inOtherDocument) host().documents.activate(other);

  const OdString command = QLatin1String(step.command);
  switch (step.event) {
  case Event::kEnded:
    host().events.commandEnded(command);
    break;
  case Event::kCancelled:
    host().events.commandCancelled(command);
    break;
  case Event::kFailed:
    host().events.commandFailed(command);
    break;
  }

  EXPECT_EQ(guard.tool() == tool.get(), step.outcome == Outcome::kStays);
  EXPECT_EQ(isFinished(QStringLiteral("Door")), step.outcome == Outcome::kFinished);
  EXPECT_EQ(tool->runningDocument(), step.outcome == Outcome::kStays ? &here : nullptr);
  EXPECT_EQ(guard.isArmed(), step.isArmedAfter);
}

INSTANTIATE_TEST_SUITE_P(Steps, EditorReactorStepTest, testing::ValuesIn(kSteps),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(EditorReactorTest, AnEventWithoutAToolDoesNothing) {
  host().events.commandEnded(QStringLiteral("LINE"));
  host().events.commandCancelled(QStringLiteral("LINE"));
  host().events.commandFailed(QStringLiteral("LINE"));
  host().events.commandEnded(QStringLiteral("Exit"));
  EXPECT_FALSE(guard.isRunning());
  EXPECT_TRUE(guard.isArmed());
}

TEST_F(EditorReactorTest, TheSecondCancelAfterAReplacedToolFinishesTheNewOne) {
  const OdTcToolPtr first = makeTool(QStringLiteral("First"));
  first->execute(&here);
  const OdTcToolPtr second = makeTool(QStringLiteral("Second"));
  second->execute(&here);
  EXPECT_TRUE(isFinished(QStringLiteral("First")));
  host().events.commandCancelled(QStringLiteral("LINE"));
  EXPECT_TRUE(guard.isArmed());
  EXPECT_EQ(guard.tool(), second.get());
  host().events.commandCancelled(QStringLiteral("LINE"));
  EXPECT_FALSE(guard.isRunning());
  EXPECT_TRUE(isFinished(QStringLiteral("Second")));
}

TEST_F(EditorReactorTest, WithoutADocumentManagerTheToolStaysEntered) {
  const OdTcToolPtr tool = makeTool(QStringLiteral("Door"));
  tool->execute(&here);
  host().switchOff(testhost::kDocumentManager);
  host().events.commandEnded(QStringLiteral("LINE"));
  host().events.commandCancelled(QStringLiteral("LINE"));
  host().events.commandFailed(QStringLiteral("LINE"));
  EXPECT_EQ(guard.tool(), tool.get());
}

TEST_F(EditorReactorTest, StoppingFinishesTheToolAndExpectsTheCancel) {
  const OdTcToolPtr tool = makeTool(QStringLiteral("Door"));
  tool->execute(&here);
  guard.stopTool();
  EXPECT_FALSE(guard.isRunning());
  EXPECT_FALSE(guard.isArmed());
  EXPECT_TRUE(isFinished(QStringLiteral("Door")));
}

TEST_F(EditorReactorTest, StoppingWithoutAToolStaysArmed) {
  guard.stopTool();
  EXPECT_TRUE(guard.isArmed());
}

TEST_F(EditorReactorTest, EnteringAToolLeavesArmedAlone) {
  const OdTcToolPtr tool = makeTool(QStringLiteral("Door"));
  tool->execute(&here);
  guard.stopTool();
  guard.setTool(tool);
  EXPECT_FALSE(guard.isArmed());
  guard.clear();
  EXPECT_FALSE(guard.isArmed());
}

TEST_F(EditorReactorTest, ForgetsAToolThatDies) {
  OdTcToolPtr tool = makeTool(QStringLiteral("Door"));
  tool->execute(&here);
  const OdTcToolPtr another = makeTool(QStringLiteral("Window"));
  guard.forget(another);
  EXPECT_TRUE(guard.isRunning());
  tool = nullptr;
  EXPECT_FALSE(guard.isRunning());
  host().events.commandEnded(QStringLiteral("LINE"));
}

TEST_F(EditorReactorTest, TheAwaitedCancelArmsEvenIfNoToolCameAfter) {
  const OdTcToolPtr tool = makeTool(QStringLiteral("Door"));
  tool->execute(&here);
  guard.stopTool();
  host().events.commandCancelled(QStringLiteral("LINE"));
  EXPECT_TRUE(guard.isArmed());
  tool->execute(&here);
  host().events.commandCancelled(QStringLiteral("LINE"));
  EXPECT_FALSE(guard.isRunning());
}

TEST_F(EditorReactorTest, DropsAToolWhoseDocumentIsClosedWithoutACommand) {
  const OdTcToolPtr tool = makeTool(QStringLiteral("Door"));
  tool->execute(&here);
  host().events.documentToBeDestroyed(&other);
  EXPECT_EQ(guard.tool(), tool.get());
  host().events.documentToBeDestroyed(&here);
  EXPECT_FALSE(guard.isRunning());
  EXPECT_EQ(tool->runningDocument(), nullptr);
  EXPECT_FALSE(tool->isRunningMark());
  EXPECT_FALSE(isFinished(QStringLiteral("Door"))) << "nothing is left to be put back";
  tool->execute(&other);
  EXPECT_EQ(tool->runningDocument(), &other);
}

TEST_F(EditorReactorTest, GoesOnWhenAnotherDocumentIsClosed) {
  const OdTcToolPtr tool = makeTool(QStringLiteral("Door"));
  tool->execute(&here);
  host().documents.activate(other);
  host().events.commandWillStart(QStringLiteral("CloseDocument"));
  host().events.documentToBeDestroyed(&other);
  host().documents.activate(here);
  host().events.commandEnded(QStringLiteral("CloseDocument"));
  EXPECT_EQ(guard.tool(), tool.get());
  EXPECT_EQ(tool->runningDocument(), &here);
  EXPECT_FALSE(isFinished(QStringLiteral("Door")));
  host().events.commandEnded(QStringLiteral("LINE"));
  EXPECT_FALSE(guard.isRunning());
  EXPECT_TRUE(isFinished(QStringLiteral("Door"))) << "what it set is put back in the open document";
}

TEST_F(EditorReactorTest, GoesWithItsDocumentWhateverDocumentIsCurrentThen) {
  const OdTcToolPtr tool = makeTool(QStringLiteral("Door"));
  tool->execute(&here);
  host().events.commandWillStart(QStringLiteral("CloseDocument"));
  host().documents.activate(other);
  host().events.commandEnded(QStringLiteral("CloseDocument"));
  EXPECT_FALSE(guard.isRunning());
  EXPECT_FALSE(isFinished(QStringLiteral("Door")));
}

TEST_F(EditorReactorTest, AClosingThatWasGivenUpSaysNothingOfTheNext) {
  host().documents.activate(other);
  host().events.commandWillStart(QStringLiteral("CloseDocument"));
  host().events.commandCancelled(QStringLiteral("CloseDocument"));
  host().documents.activate(here);
  const OdTcToolPtr tool = makeTool(QStringLiteral("Door"));
  tool->execute(&here);
  host().events.commandWillStart(QStringLiteral("CloseDocument"));
  host().events.commandEnded(QStringLiteral("CloseDocument"));
  EXPECT_FALSE(guard.isRunning());
}

TEST_F(EditorReactorTest, IsOfTheHostsReactorClasses) {
  EXPECT_EQ(guard.isA()->name(), QStringLiteral("TcEditorReactor"));
  EXPECT_TRUE(guard.isKindOf(HostEditorReactor::desc()));
  EXPECT_TRUE(guard.isKindOf(OdEditorReactor::desc()));
  EXPECT_TRUE(TcEditorReactorEx::desc()->isDerivedFrom(HostEditorReactor::desc()));
}

// --- the road of one click

TEST_F(EditorReactorTest, ASecondToolInTheSameDocumentCancelsTheFirst) {
  const OdTcToolPtr first = makeTool(QStringLiteral("First"));
  first->execute(&here);
  host().log.clear();
  const OdTcToolPtr second = makeTool(QStringLiteral("Second"));
  second->execute(&here);
  const QStringList steps =
      host().log.filter(QRegularExpression(QStringLiteral("send|begin|end|exec")));
  EXPECT_EQ(steps, QStringList({QStringLiteral("send A.dxf ^C"), QStringLiteral("end First"),
                                QStringLiteral("begin Second"), QStringLiteral("execute Second"),
                                QStringLiteral("send A.dxf Second")}));
}

TEST_F(EditorReactorTest, LocksTheDocumentWhileTheGeneralPropertiesAreApplied) {
  const OdTcToolPtr tool = makeTool(QStringLiteral("Door"));
  tool->execute(&here);
  EXPECT_EQ(host().log,
            QStringList({QStringLiteral("lock A.dxf EXECUTETOOL 4 1"),
                         QStringLiteral("unlock A.dxf"), QStringLiteral("begin Door"),
                         QStringLiteral("execute Door"), QStringLiteral("send A.dxf Door")}));
  ASSERT_EQ(host().documents.locks.size(), 1u);
  EXPECT_EQ(host().documents.locks[0].reserved, nullptr);
  host().log.clear();
  host().events.commandEnded(QStringLiteral("LINE"));
  EXPECT_EQ(host().log, QStringList(QStringLiteral("end Door"))) << "finishing does not lock";
}

TEST_F(EditorReactorTest, AToolWithoutAnAgentRunsEmpty) {
  const OdTcToolPtr tool = OdTcTool::createObject();
  tool->setToolType(OdTcTool::kRegular);
  tool->execute(&here);
  EXPECT_TRUE(guard.isRunning());
  host().events.commandEnded(QStringLiteral("LINE"));
  EXPECT_FALSE(guard.isRunning());
  EXPECT_TRUE(here.sent.isEmpty());
}

TEST_F(EditorReactorTest, AToolInAnotherDocumentIsRefusedWithAMessage) {
  const OdTcToolPtr first = makeTool(QStringLiteral("Door"));
  first->execute(&here);
  host().log.clear();
  makeTool(QStringLiteral("Window"))->execute(&other);
  EXPECT_EQ(host().log,
            QStringList(QStringLiteral("print \nExecution canceled. Tool \"Door\" is already "
                                       "running in document \"A.dxf\"")));
  EXPECT_EQ(guard.tool(), first.get());
  EXPECT_TRUE(guard.isArmed());
}

struct RefreshCounter : IRefreshSink {
  int count = 0;
  void refreshProperties() override { ++count; }
};

TEST_F(EditorReactorTest, OnlyTheExactVariableAsksForARefresh) {
  const OdSmartPtr<TcEditorReactorEx> reactor = TcEditorReactorEx::desc()->create();
  RefreshCounter sink;
  host().events.addReactor(reactor);
  host().events.sysVarChanged(nullptr, QStringLiteral("RefreshProperties"));
  reactor->setSink(&sink);
  host().events.sysVarChanged(nullptr, QStringLiteral("REFRESHPROPERTIES"));
  host().events.sysVarChanged(nullptr, QStringLiteral("CLAYER"));
  EXPECT_EQ(sink.count, 0);
  host().events.sysVarChanged(nullptr, QStringLiteral("RefreshProperties"));
  EXPECT_EQ(sink.count, 1);
  reactor->setSink(nullptr);
  host().events.sysVarChanged(nullptr, QStringLiteral("RefreshProperties"));
  EXPECT_EQ(sink.count, 1);
}

} // namespace
