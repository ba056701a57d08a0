// Undo to the start and redo to the end of a long run of every command.

#include "engine/commands/command_fixture.h"

#include <QFile>

namespace {

/// Keeps the drawing's text for each number of steps that can be undone.
class UndoEverything : public CommandFixture {
 protected:
  /// Types the script; a line that starts with ; is a remark.
  void typeScript() {
    QFile file(QStringLiteral(TEST_DATA_DIR "/every_command.scr"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    restart(withProgramFolder());
    m_states = {dxf()};
    const QStringList lines = m_folder.expanded(OdString::fromUtf8(file.readAll())).split(u'\n');
    for (qsizetype i = 0; i + 1 < lines.size(); ++i) {
      if (lines[i].startsWith(u';')) continue;
      type(lines[i] + u'\n');
      ASSERT_TRUE(console().troubles.isEmpty())
          << "line " << i + 1 << ": " << console().troubles.join(u'\n').toStdString() << "\n"
          << output().right(2000).toStdString();
      if (!isRunning() && database().undoDepth() == m_states.size()) m_states.push_back(dxf());
      ASSERT_TRUE(isRunning() || database().undoDepth() + 1 == m_states.size())
          << "line " << i + 1 << " ends more than one command that changes something";
    }
    ASSERT_FALSE(isRunning()) << "still asks: " << prompt().toStdString();
  }

  std::vector<QByteArray> m_states;

 private:
  ScriptFolder m_folder;
};

} // namespace

TEST_F(UndoEverything, GivesTheSameDrawingAtEachStepBackAndForth) {
  typeScript();
  if (HasFatalFailure()) return;
  EXPECT_GT(m_states.size(), 30u);
  for (std::size_t step = m_states.size() - 1; step > 0; --step) {
    const OdString name = database().undoName();
    ASSERT_TRUE(database().undo());
    EXPECT_EQ(dxf(), m_states[step - 1]) << "undone: step " << step << ", " << name.toStdString();
  }
  EXPECT_FALSE(database().undo());
  for (std::size_t step = 1; step < m_states.size(); ++step) {
    const OdString name = database().redoName();
    ASSERT_TRUE(database().redo());
    EXPECT_EQ(dxf(), m_states[step]) << "done again: step " << step << ", " << name.toStdString();
  }
  EXPECT_FALSE(database().redo());
}

TEST_F(UndoEverything, TheScriptUsesEveryCommandThatChangesDrawings) {
  typeScript();
  if (HasFatalFailure()) return;
  QStringList documentNames;
  for (const drafton::NativeCommand& row : drafton::documentCommands())
    documentNames << OdString::fromUtf16(row.name);
  const QStringList used = events({QStringLiteral("ended")});
  QStringList missing;
  for (const OdString& name : engine().commands().namesIn(QStringLiteral("DRAFTON")))
    if (!documentNames.contains(name) && !used.contains(QStringLiteral("ended ") + name) &&
        !engine().commands().find(name)->has(drafton::kNoUndoStep))
      missing << name;
  EXPECT_TRUE(missing.isEmpty()) << "not in the script: "
                                 << missing.join(QStringLiteral(", ")).toStdString();
}

TEST_F(UndoEverything, WhatIsSavedIsReadBackTheSame) {
  typeScript();
  if (HasFatalFailure()) return;
  const OdDbDatabasePtr read = OdDbDatabase::readDxf(dxf(), QStringLiteral("memory"));
  EXPECT_TRUE(read->unknownContent().isEmpty()) << read->unknownContent().join(u'\n').toStdString();
  EXPECT_EQ(read->writeDxf(), dxf());
}
