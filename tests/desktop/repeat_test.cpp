// What Enter runs again.
#include "desktop/desktop_fixture.h"

using namespace drafton;

namespace {

/// Has commands that do nothing, under the names that modules give theirs.
class RepeatTest : public DesktopFixture {
 protected:
  RepeatTest() {
    for (const char* const name : {"NOTHING", "ToolPalettes"}) {
      RegisteredCommand command;
      command.name = QString::fromLatin1(name);
      command.function = [] {};
      desktop().engine().commands().add(command);
    }
  }
};

TEST_F(RepeatTest, EnterAndSpaceOnTheEmptyLineRepeatTheLastCommand) {
  type("CIRCLE 0,0 2 ");
  press(Qt::Key_Return);
  ASSERT_TRUE(desktop().isBusy());
  type("1,1 1 ");
  press(Qt::Key_Space);
  type("2,2 1 ");
  EXPECT_EQ(entities().size(), 3u);
}

TEST_F(RepeatTest, OnlyWhatTheUserGaveIsRepeated) {
  desktop().engine().settings().set({QStringLiteral("Startup")}, QStringLiteral("NOTHING"), 1);
  desktop().engine().runStartupCommands();
  document().commandInput()->sendText(QStringLiteral("NOTHING "));
  QApplication::processEvents();
  EXPECT_TRUE(history().contains(QStringLiteral("NOTHING")));
  EXPECT_EQ(desktop().lastRun(), QStringLiteral("ZOOM")) << "what the fixture has typed";

  window().actions().find(u"CIRCLE")->trigger();
  type("0,0 2 ");
  document().commandInput()->sendText(QStringLiteral("^C^CLINE 0,0 1,1  "));
  QApplication::processEvents();
  desktop().engine().currentProcessor().run(QStringLiteral("NOTHING"), nullptr);
  ASSERT_EQ(entities().size(), 2u);
  press(Qt::Key_Return);
  EXPECT_EQ(document().processor().runningCommands(), QStringList{QStringLiteral("CIRCLE")});
}

TEST_F(RepeatTest, WhatAModuleOffersIsRepeatedInPlaceOfTheCommandsThatItTypes) {
  struct Tool : CKVUnknownImpl<IHostRepeatable> {
    int runs = 0;
    OdString name() const override { return QStringLiteral("Door"); }
    void repeat() override {
      ++runs;
      Engine::current()->documents().current()->commandInput()->sendText(
          QStringLiteral("^C^CNOTHING "));
    }
  };
  const auto repetition = kvQuery<IHostRepetition>(&desktop().engine().services());
  ASSERT_TRUE(repetition);
  const auto tool = kvMake<Tool>();
  repetition->userRan(tool.get());
  EXPECT_EQ(desktop().lastRun(), QStringLiteral("Door"));
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
    press(key);
    QApplication::processEvents();
  }
  EXPECT_EQ(tool->runs, 2);
  EXPECT_EQ(desktop().lastRun(), QStringLiteral("Door"));
  type("CIRCLE 0,0 1 ");
  EXPECT_EQ(desktop().lastRun(), QStringLiteral("CIRCLE"));
  repetition->userRan(tool.get());
  stop();
  repetition->userRan(tool.get());
}

TEST_F(RepeatTest, WhatOpensAndClosesAndTheTabsOfLayoutsAreNotRepeated) {
  type("ToolPalettes ");
  EXPECT_EQ(desktop().lastRun(), QStringLiteral("ZOOM"));
  QTabBar& tabs = window().documents().layoutTabs();
  QTest::mouseClick(&tabs, Qt::LeftButton, Qt::NoModifier, tabs.tabRect(1).center());
  EXPECT_EQ(tabs.currentIndex(), 1);
  EXPECT_EQ(desktop().lastRun(), QStringLiteral("ZOOM"));
}

} // namespace
