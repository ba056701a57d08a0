// The scripts leave no command and no keyword out.

#include "engine/commands/command_fixture.h"

#include <map>
#include <set>

namespace {

class ScriptCoverage : public CommandFixture {
 protected:
  /// The questions by their words, with the keywords that scripts have not chosen there.
  std::map<OdString, std::set<OdString>> m_unused;

  void typeAll(const char16_t* words) {
    for (const OdString& word : wordsOf(words)) {
      if (const drafton::InputRequest* const asked = request()) note(*asked, word);
      type(word + u'\n');
    }
  }

 private:
  void note(const drafton::InputRequest& asked, const OdString& word) {
    const QStringList& keywords = asked.keywords().words();
    if (keywords.isEmpty()) return;
    const OdString shown = asked.shown();
    const OdString question = shown.left(shown.indexOf(u'[')) + u'[' + keywords.join(u'/') + u']';
    const auto [row, isNew] = m_unused.try_emplace(question);
    if (isNew) row->second.insert(keywords.begin(), keywords.end());
    if (const std::optional<OdString> keyword = asked.keywords().match(word))
      row->second.erase(*keyword);
  }
};

} // namespace

TEST_F(ScriptCoverage, EveryCommandHasScripts) {
  std::set<drafton::CommandBody> used;
  for (const Script& script : allScripts()) {
    const OdString name = wordsOf(script.words).front();
    const auto command = engine().commands().findTyped(name);
    // A variable's name is a command, too.
    OdVariant value;
    if (command)
      used.insert(command->body);
    else
      EXPECT_TRUE(variables().get(name, value)) << script.name;
  }
  for (const OdString& name : engine().commands().namesIn(QStringLiteral("DRAFTON")))
    EXPECT_TRUE(used.count(engine().commands().find(name)->body)) << name.toStdString();
}

TEST_F(ScriptCoverage, EveryKeywordIsTypedSomewhere) {
  for (const Script& script : allScripts()) {
    restart(withProgramFolder());
    typeAll(script.setup);
    typeAll(script.words);
  }
  for (const auto& [question, keywords] : m_unused)
    for (const OdString& keyword : keywords)
      ADD_FAILURE() << keyword.toStdString() << " is never typed at: " << question.toStdString();
}
