#include "desktop/desktop_fixture.h"
#include "drawing/entities/line.h"

#include <QTimer>

using namespace drafton;

namespace {

using EventInputTest = DesktopFixture;

/// Modules put off what a click on a tool asks for until their own window has done its part.
void putOff(CommandProcessor& processor, const char16_t* macro) {
  QMetaObject::invokeMethod(
      qApp, [&processor, macro] { processor.sendText(OdString::fromUtf16(macro)); },
      Qt::QueuedConnection);
}

// --- commands of modules, which wait on the stack

int g_asked = 0;
OdString g_answer;
IHostUserInput::Result g_result;

void askSynchronously() {
  ++g_asked;
  g_result = Engine::current()->documents().current()->userInput()->getString(
      IHostUserInput::kKeepCase, QStringLiteral("What? "), g_answer);
}

class WaitingModuleTest : public DesktopFixture {
 protected:
  WaitingModuleTest() {
    g_asked = 0;
    g_answer.clear();
    RegisteredCommand command;
    command.name = QStringLiteral("ASKME");
    command.function = askSynchronously;
    desktop().engine().commands().add(command);
  }
  /// Does something once the command waits. What is only put off would come before it.
  void later(std::function<void()> action) { QTimer::singleShot(1, &window(), std::move(action)); }
};

TEST_F(WaitingModuleTest, GetsItsAnswerWhileTheWindowLives) {
  later([&] {
    EXPECT_TRUE(desktop().input().isWaiting());
    type("yes ");
  });
  type("ASKME ");
  EXPECT_EQ(g_answer, QStringLiteral("yes"));
  EXPECT_FALSE(desktop().isBusy());
}

TEST_F(WaitingModuleTest, TextThatAModuleSendsMeanwhileIsTakenUp) {
  later([&] { document().commandInput()->sendText(QStringLiteral("sent ")); });
  type("ASKME ");
  EXPECT_EQ(g_answer, QStringLiteral("sent"));
}

TEST_F(WaitingModuleTest, IsCancelledWhenTheWindowIsClosed) {
  later([&] { window().close(); });
  type("ASKME ");
  EXPECT_EQ(g_result, IHostUserInput::Result::kCancelled);
  QTRY_VERIFY_WITH_TIMEOUT(!window().isVisible(), 2000);
  EXPECT_EQ(desktop().document(), nullptr);
}

TEST_F(WaitingModuleTest, IsCancelledWhenItsDrawingIsClosed) {
  later([&] { window().actions().find(u"close")->trigger(); });
  type("ASKME ");
  EXPECT_EQ(g_result, IHostUserInput::Result::kCancelled);
  QTRY_VERIFY_WITH_TIMEOUT(desktop().document() == nullptr, 2000);
}

TEST_F(WaitingModuleTest, EscEndsIt) {
  later([&] { press(Qt::Key_Escape); });
  type("ASKME ");
  EXPECT_EQ(g_result, IHostUserInput::Result::kCancelled);
  EXPECT_EQ(g_asked, 1);
}

TEST_F(WaitingModuleTest, EscEndsItWhereItWasClickedJustBefore) {
  putOff(document().processor(), u"ASKME ");
  press(Qt::Key_Escape);
  EXPECT_EQ(g_asked, 1);
  EXPECT_EQ(g_result, IHostUserInput::Result::kCancelled);
  EXPECT_FALSE(desktop().isBusy());
}

TEST_F(WaitingModuleTest, EscEndsItWhereItIsAboutToBeTakenUp) {
  document().processor().sendText(QStringLiteral("ASKME "));
  press(Qt::Key_Escape);
  EXPECT_EQ(g_asked, 1);
  EXPECT_EQ(g_result, IHostUserInput::Result::kCancelled);
  EXPECT_FALSE(desktop().isBusy());
}

TEST_F(WaitingModuleTest, GetsTheAnswerThatIsTypedRightBehindTheClick) {
  putOff(document().processor(), u"ASKME ");
  type("yes ");
  EXPECT_EQ(g_answer, QStringLiteral("yes"));
  EXPECT_EQ(g_asked, 1);
  EXPECT_FALSE(desktop().isBusy());
}

TEST_F(WaitingModuleTest, IsAnsweredWhereWhatWasPutOffWaits) {
  QMetaObject::invokeMethod(
      qApp, [&] { desktop().type(QStringLiteral("ASKME\n")); }, Qt::QueuedConnection);
  later([&] { document().commandInput()->sendText(QStringLiteral("sent ")); });
  press(Qt::Key_Escape);
  EXPECT_EQ(g_answer, QStringLiteral("sent"));
}

TEST_F(WaitingModuleTest, HearsOfWhatIsSentThoughSomethingWasSentBeforeItWaited) {
  document().processor().sendText(QStringLiteral(" "));
  QMetaObject::invokeMethod(
      qApp, [&] { document().processor().run(QStringLiteral("ASKME"), nullptr); },
      Qt::QueuedConnection);
  later([&] { document().processor().sendText(QStringLiteral("sent ")); });
  press(Qt::Key_Escape);
  EXPECT_EQ(g_answer, QStringLiteral("sent"));
}

TEST_F(WaitingModuleTest, WhatItRunsGetsTheClickRightBehindIt) {
  RegisteredCommand command;
  command.name = QStringLiteral("RUNLINE");
  command.function = [] { Engine::current()->currentProcessor().run(QStringLiteral("LINE"), {}); };
  desktop().engine().commands().add(command);
  const QPoint first = at(1, 2), second = at(4, 6);
  later([&] {
    QTest::mouseClick(&canvas(), Qt::LeftButton, {}, second);
    press(Qt::Key_Return);
  });
  putOff(document().processor(), u"RUNLINE ");
  QTest::mouseClick(&canvas(), Qt::LeftButton, {}, first);
  ASSERT_TRUE(only<OdDbLine>());
  EXPECT_NEAR(only<OdDbLine>()->startPoint().x, 1, 0.1);
  EXPECT_NEAR(only<OdDbLine>()->endPoint().x, 4, 0.1);
}

TEST_F(WaitingModuleTest, TheNextToolGetsTheClickRightBehindIt) {
  const QPoint first = at(1, 2);
  later([&] {
    putOff(document().processor(), u"^C^C_LINE ");
    QTest::mouseClick(&canvas(), Qt::LeftButton, {}, first);
  });
  type("ASKME ");
  EXPECT_EQ(g_result, IHostUserInput::Result::kCancelled);
  QApplication::processEvents();
  type("4,6 ");
  press(Qt::Key_Return);
  ASSERT_TRUE(only<OdDbLine>());
  EXPECT_NEAR(only<OdDbLine>()->startPoint().y, 2, 0.1);
}

TEST_F(EventInputTest, EscEndsToolsThatWereClickedJustBefore) {
  for (int i = 0; i < 3; ++i) putOff(document().processor(), u"^C^C_LINE 0,0 5,5 ");
  press(Qt::Key_Escape);
  EXPECT_FALSE(desktop().isBusy());
  QApplication::processEvents();
  EXPECT_FALSE(desktop().isBusy()) << "nothing starts behind the Esc";
  EXPECT_TRUE(entities().empty());
  type("LINE 0,0 1,1  ");
  EXPECT_EQ(entities().size(), 1u);
}

TEST_F(EventInputTest, AnswersGoToToolsThatWereClickedJustBefore) {
  putOff(document().processor(), u"^C^C_LINE ");
  click(1, 2);
  type("4,6 ");
  press(Qt::Key_Return);
  EXPECT_FALSE(desktop().isBusy());
  ASSERT_TRUE(only<OdDbLine>());
  EXPECT_EQ(only<OdDbLine>()->endPoint(), (OdGePoint3d{4, 6, 0}));
  putOff(document().processor(), u"^C^C_CIRCLE ");
  type("0,0 1\n");
  EXPECT_EQ(entities().size(), 2u);
  putOff(document().processor(), u"^C^C_LINE 0,0 ");
  window().actions().find(u"CIRCLE")->trigger();
  EXPECT_EQ(document().processor().runningCommands(), QStringList{QStringLiteral("CIRCLE")});
}

} // namespace
