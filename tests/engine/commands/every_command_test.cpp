// What holds for every command, tried with every row of the tables of scripts.

#include "engine/commands/command_fixture.h"

namespace {

class EveryCommand : public CommandFixture, public ::testing::WithParamInterface<Script> {
 protected:
  void setUpDrawing() {
    restart(withProgramFolder());
    runScript(GetParam().setup);
    ASSERT_FALSE(isRunning()) << "the setup does not end";
    console().clear();
    console().troubles.clear();
  }
  QStringList words() { return wordsOf(GetParam().words); }

  void expectResult() {
    EXPECT_FALSE(isRunning()) << "still asks: " << prompt().toStdString();
    EXPECT_TRUE(console().troubles.isEmpty()) << console().troubles.join(u'\n').toStdString();
    const OdString wanted = OdString::fromUtf16(GetParam().result).split(u';').join(u'\n');
    EXPECT_EQ(GetParam().describe(database()).toStdString(), wanted.toStdString())
        << output().toStdString();
  }
};

/// A command that is done in one step, which can be undone.
class CommandWithOneStep : public EveryCommand {};

/// The keyword that a word means at the prompt, written out.
OdString inFull(const drafton::InputRequest* request, const OdString& word) {
  const std::optional<OdString> keyword =
      request && !word.isEmpty() ? request->keywords().match(word) : std::nullopt;
  return keyword ? u'_' + keyword->toLower() : word;
}

} // namespace

TEST_P(EveryCommand, DoesWhatItSays) {
  setUpDrawing();
  typeWords(words());
  expectResult();
}

TEST_P(EveryCommand, TakesKeywordsInFullAndWithAnUnderscore) {
  setUpDrawing();
  for (const OdString& word : words()) type(inFull(request(), word) + u'\n');
  expectResult();
}

TEST_P(EveryCommand, AsksAgainAfterNonsense) {
  setUpDrawing();
  for (const OdString& word : words()) {
    const OdString asked = prompt();
    typeNonsense();
    EXPECT_EQ(prompt().toStdString(), asked.toStdString());
    type(word + u'\n');
  }
  expectResult();
}

TEST_P(EveryCommand, CancelAtEveryPromptLeavesTheDrawingAsItWas) {
  setUpDrawing();
  const QByteArray before = dxf();
  const std::size_t depth = database().undoDepth();
  const QStringList all = words();
  int cancelled = 0;
  for (qsizetype count = 1; count <= all.size(); ++count) {
    SCOPED_TRACE(all.mid(0, count).join(u'|').toStdString());
    typeWords(all.mid(0, count));
    if (!isRunning()) break;
    type(QStringLiteral("^C"));
    ++cancelled;
    EXPECT_FALSE(isRunning());
    EXPECT_EQ(dxf(), before);
    EXPECT_EQ(database().undoDepth(), depth);
  }
  EXPECT_TRUE(cancelled > 0 || all.size() == 1);
}

TEST_P(CommandWithOneStep, UndoTakesItBackAndRedoDoesItAgain) {
  setUpDrawing();
  const QByteArray before = dxf();
  const std::size_t depth = database().undoDepth();
  typeWords(words());
  const QByteArray after = dxf();
  if (database().undoDepth() == depth) {
    EXPECT_EQ(after, before);
    return;
  }
  EXPECT_EQ(database().undoDepth(), depth + 1) << "one command is one step";
  type(QStringLiteral("U\n"));
  EXPECT_EQ(dxf(), before);
  type(QStringLiteral("REDO\n"));
  EXPECT_EQ(dxf(), after);
}

namespace {

std::string nameOf(const ::testing::TestParamInfo<Script>& row) {
  const QStringList words = OdString::fromUtf16(row.param.words).split(u'|');
  return words.front().section(u'-', -1).toStdString() + "_" + row.param.name;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Scripts, EveryCommand, ::testing::ValuesIn(allScripts()), nameOf);
INSTANTIATE_TEST_SUITE_P(Scripts, CommandWithOneStep, ::testing::ValuesIn(drawingScripts()),
                         nameOf);
