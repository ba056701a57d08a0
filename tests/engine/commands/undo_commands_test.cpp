#include "drawing/entities/line.h"
#include "engine/commands/command_fixture.h"

namespace {

class UndoCommands : public CommandFixture {
 protected:
  /// Draws lines, each a command of its own.
  void drawLines(int count) {
    for (int i = 0; i < count; ++i) type(QStringLiteral("LINE 0,%1 10,%1 \n").arg(m_next++));
  }
  int lines() {
    const OdString text = describeEntities(database());
    return text.isEmpty() ? 0 : static_cast<int>(text.count(u'\n')) + 1;
  }

 private:
  int m_next = 0;
};

} // namespace

TEST_F(UndoCommands, UndoGoesBackByNumber) {
  drawLines(5);
  type(QStringLiteral("UNDO 3\n"));
  EXPECT_EQ(lines(), 2);
  EXPECT_TRUE(console().shows(QStringLiteral("LINE LINE LINE")));
  type(QStringLiteral("UNDO \n"));
  EXPECT_EQ(lines(), 1) << "one by default";
}

TEST_F(UndoCommands, StepsOfToolsAreToldAsThat) {
  database().startUndoRecord(QStringLiteral("__executetool"));
  database()
      .getModelSpaceId()
      .openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
      ->appendOdDbEntity(odrxMake<OdDbLine>(OdGePoint3d(), OdGePoint3d(1, 0, 0)));
  database().endUndoRecord();
  type(QStringLiteral("U\nREDO\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("Tool"))) << output().toStdString();
  EXPECT_FALSE(console().shows(QStringLiteral("__"))) << output().toStdString();
}

TEST_F(UndoCommands, UndoRefusesNumbersBelowOne) {
  drawLines(2);
  type(QStringLiteral("UNDO 0 -1 1.5 1\n"));
  EXPECT_EQ(lines(), 1);
}

TEST_F(UndoCommands, UndoBeyondTheBeginningUndoesEverything) {
  drawLines(2);
  type(QStringLiteral("UNDO 100\n"));
  EXPECT_EQ(lines(), 0);
  EXPECT_TRUE(console().shows(QStringLiteral("Everything has been undone.")));
  type(QStringLiteral("U\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("There is nothing to undo.")));
}

TEST_F(UndoCommands, RedoDoesAgainWhatTheLastUndoTookBack) {
  drawLines(5);
  type(QStringLiteral("UNDO 3\nU\n"));
  EXPECT_EQ(lines(), 1);
  type(QStringLiteral("REDO\n"));
  EXPECT_EQ(lines(), 2);
  type(QStringLiteral("REDO\n"));
  EXPECT_EQ(lines(), 5);
  type(QStringLiteral("REDO\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("There is nothing to redo.")));
}

TEST_F(UndoCommands, NewStepEndsWhatCouldBeRedone) {
  drawLines(3);
  type(QStringLiteral("UNDO 2\n"));
  drawLines(1);
  type(QStringLiteral("REDO\n"));
  EXPECT_EQ(lines(), 2);
  EXPECT_TRUE(console().shows(QStringLiteral("There is nothing to redo.")));
}

TEST_F(UndoCommands, CommandThatChangesNothingIsNoStep) {
  drawLines(1);
  type(QStringLiteral("LINE 0,0 ^C"));
  type(QStringLiteral("PLINE 0,0 \n"));
  type(QStringLiteral("U\n"));
  EXPECT_EQ(lines(), 0);
}

TEST_F(UndoCommands, BackGoesToTheMarkAndTakesItAway) {
  drawLines(1);
  type(QStringLiteral("UNDO M\n"));
  drawLines(1);
  type(QStringLiteral("UNDO _mark\n"));
  drawLines(2);
  type(QStringLiteral("UNDO B\n"));
  EXPECT_EQ(lines(), 2);
  EXPECT_TRUE(console().shows(QStringLiteral("Mark encountered.")));
  type(QStringLiteral("UNDO _back\n"));
  EXPECT_EQ(lines(), 1);
}

TEST_F(UndoCommands, BackWithoutAMarkAsksBeforeItUndoesEverything) {
  drawLines(2);
  type(QStringLiteral("UNDO B N\n"));
  EXPECT_EQ(lines(), 2);
  type(QStringLiteral("UNDO B\n\n"));
  EXPECT_EQ(lines(), 0);
}

TEST_F(UndoCommands, CancelAtThePromptsChangesNothing) {
  drawLines(2);
  const QByteArray before = dxf();
  type(QStringLiteral("UNDO ^C"));
  EXPECT_EQ(dxf(), before);
  type(QStringLiteral("UNDO B ^C"));
  EXPECT_EQ(dxf(), before);
  EXPECT_FALSE(isRunning());
}

TEST_F(UndoCommands, GroupIsTakenBackAndDoneAgainAtOnce) {
  drawLines(1);
  type(QStringLiteral("UNDO BE\n"));
  drawLines(3);
  type(QStringLiteral("UNDO E\n"));
  drawLines(1);
  type(QStringLiteral("U\n"));
  EXPECT_EQ(lines(), 4);
  type(QStringLiteral("U\n"));
  EXPECT_EQ(lines(), 1);
  type(QStringLiteral("REDO\n"));
  EXPECT_EQ(lines(), 4);
}

TEST_F(UndoCommands, OpenGroupIsNotLeftByUndo) {
  drawLines(2);
  type(QStringLiteral("UNDO _begin\n"));
  drawLines(1);
  type(QStringLiteral("UNDO 3\n"));
  EXPECT_EQ(lines(), 2);
  EXPECT_TRUE(console().shows(QStringLiteral("The beginning of the group is reached.")));
  type(QStringLiteral("UNDO _end\nU\n"));
  EXPECT_EQ(lines(), 1);
}

TEST_F(UndoCommands, EndWithoutBeginIsTold) {
  type(QStringLiteral("UNDO E\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("No group is open.")));
}

TEST_F(UndoCommands, UndoToTheStartAndRedoToTheEndGiveTheSameDrawing) {
  const QByteArray start = dxf();
  for (const Script& script : allScripts()) {
    runScript(script.setup);
    runScript(script.words);
    // In a drawing with other things in it a script may have something left to ask.
    if (isRunning()) type(QStringLiteral("^C"));
  }
  const QByteArray end = dxf();
  ASSERT_NE(start, end);

  type(QStringLiteral("UNDO 100000\n"));
  EXPECT_EQ(dxf(), start);
  type(QStringLiteral("REDO\n"));
  EXPECT_EQ(dxf(), end);

  while (database().hasUndo()) type(QStringLiteral("U\n"));
  EXPECT_EQ(dxf(), start);
  while (database().hasRedo()) type(QStringLiteral("REDO\n"));
  EXPECT_EQ(dxf(), end);
}
