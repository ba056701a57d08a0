// The scripts leave no command and no keyword out.

#include "engine/commands/command_fixture.h"

#include <QRegularExpression>

#include <set>
#include <tuple>

namespace {

class ScriptCoverage : public CommandFixture {
 protected:
  /// What a keyword stands for: at a question, and in a list that several questions have.
  struct Offer {
    OdString question, keywords, keyword;
    bool operator<(const Offer& other) const {
      return std::tie(question, keywords, keyword) <
             std::tie(other.question, other.keywords, other.keyword);
    }
  };
  std::set<Offer> m_offers;
  std::set<std::pair<OdString, OdString>> m_typed; ///< the question, or the list, and the keyword

  void typeAll(const char16_t* words) {
    for (const OdString& word : wordsOf(words)) {
      if (const drafton::InputRequest* const asked = request()) note(*asked, word);
      type(word + u'\n');
    }
  }
  bool isTyped(const Offer& offer) const {
    return m_typed.count({offer.question, offer.keyword}) ||
           m_typed.count({offer.keywords, offer.keyword});
  }

 private:
  void note(const drafton::InputRequest& asked, const OdString& word) {
    const QStringList& words = asked.keywords().words();
    if (words.isEmpty()) return;
    // The folder is another one each time.
    static const QRegularExpression kPath(QStringLiteral("\\S*qt_temp\\S*"));
    const OdString question = asked.shown().section(u'[', 0, 0).remove(kPath);
    // Yes and No answer what the question asks; other words mean the same everywhere.
    OdString list = words.join(u'/');
    if (list == QLatin1String("Yes/No")) list += question;
    for (const OdString& keyword : words) m_offers.insert({question, list, keyword});
    if (const std::optional<OdString> keyword = asked.keywords().match(word)) {
      m_typed.insert({question, *keyword});
      m_typed.insert({list, *keyword});
    }
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
  for (const Offer& offer : m_offers)
    EXPECT_TRUE(isTyped(offer)) << offer.keyword.toStdString()
                                << " is never typed at: " << offer.question.toStdString();
}
