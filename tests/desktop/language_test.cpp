#include "drafton/desktop/language.h"

#include "desktop/desktop_fixture.h"
#include "drafton/desktop/access_keys.h"
#include "drafton/desktop/action_table.h"
#include "drafton/desktop/drafting_aids.h"
#include "drafton/desktop/object_snap.h"
#include "drafton/desktop/options_dialog.h"
#include "drafton/engine/command_menu.h"
#include "drafton/engine/translator.h"

#include <QDirIterator>
#include <QFile>
#include <QMenuBar>
#include <QRegularExpression>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace drafton;

namespace {

class LanguageTest : public ::testing::Test {
 protected:
  LanguageTest() {
    EXPECT_TRUE(loadLanguage(QStringLiteral(BINARY_DIR), QStringLiteral("Deutsch")));
  }
  ~LanguageTest() override { Translator::instance().clear(); }

  void check(const OdString& text) {
    OdString out;
    if (!text.isEmpty() && !Translator::instance().translate(text, out)) m_missing << text;
  }
  void check(const char16_t* text) {
    if (text) check(OdString::fromUtf16(text));
  }
  QStringList m_missing;
};

TEST_F(LanguageTest, EverythingInTheTablesIsTranslated) {
  for (const ActionRow& row : actionTable()) {
    check(row.text);
    check(row.tip);
  }
  for (const MenuTitle& title : menuTitles()) check(title.title);
  for (const ToolbarTitle& title : toolbarTitles()) check(title.title);
  for (const AidRow& row : draftingAids()) {
    check(row.label);
    check(row.tip);
  }
  for (const SnapRow& row : snapKinds()) check(row.name);
  for (const OptionRow& row : optionTable()) check(row.label);
  for (const MenuRow& row : commandMenu()) {
    check(row.label);
    check(row.tip);
  }
  EXPECT_EQ(m_missing, QStringList()) << m_missing.join(u'\n').toStdString();
}

/// Texts that stand in the code between the tables, and the questions of commands.
TEST_F(LanguageTest, EverythingThatTheProgramSaysIsTranslated) {
  const QRegularExpression text(
      QStringLiteral("(translated\\(|\\.text = |)\\s*((?:u\"(?:[^\"\\\\]|\\\\.)*\"\\s*)+)"));
  const QRegularExpression piece(QStringLiteral("u\"((?:[^\"\\\\]|\\\\.)*)\""));
  // In tables nothing stands before them.
  const QRegularExpression sentence(
      QStringLiteral("^(Enter|Specify|Select|Invalid|There|The|An?) .* "));
  int texts = 0;
  for (const char* const folder : {"desktop", "engine", "render", "program"}) {
    QDirIterator files(QStringLiteral(SOURCE_DIR "/drafton/") + QLatin1String(folder),
                       {QStringLiteral("*.cpp")}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
      QFile file(files.next());
      ASSERT_TRUE(file.open(QIODevice::ReadOnly));
      const QString source = QString::fromUtf8(file.readAll());
      for (auto found = text.globalMatch(source); found.hasNext();) {
        const QRegularExpressionMatch literal = found.next();
        QString said;
        for (auto pieces = piece.globalMatch(literal.captured(2)); pieces.hasNext();)
          said += pieces.next().captured(1);
        if (literal.captured(1).isEmpty() && !sentence.match(said).hasMatch()) continue;
        ++texts;
        check(said.replace(QStringLiteral("\\\""), QStringLiteral("\"")));
      }
    }
  }
  EXPECT_GT(texts, 500);
  EXPECT_EQ(m_missing, QStringList()) << m_missing.join(u'\n').toStdString();
}

TEST_F(LanguageTest, PlacesForValuesAndAccessKeysComeAlong) {
  QFile file(QStringLiteral(SOURCE_DIR "/drafton/desktop/translations/drafton_de.ts"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QRegularExpression message(
      QStringLiteral("<source>(.*?)</source>\\s*<translation>(.*?)</translation>"));
  const QString text = QString::fromUtf8(file.readAll());
  int count = 0;
  for (auto all = message.globalMatch(text); all.hasNext(); ++count) {
    const auto match = all.next();
    const QString source = match.captured(1), target = match.captured(2);
    EXPECT_FALSE(target.isEmpty()) << source.toStdString();
    for (const char* place : {"%1", "%2"})
      EXPECT_EQ(source.contains(QLatin1String(place)), target.contains(QLatin1String(place)))
          << source.toStdString();
    EXPECT_EQ(source.contains(QLatin1String("&amp;")), target.contains(QLatin1String("&amp;")))
        << source.toStdString();
  }
  EXPECT_GT(count, 700);
}

/// The access keys that more than one of the texts has.
QStringList sharedKeys(const QStringList& texts) {
  QMap<QChar, QStringList> byKey;
  for (const QString& text : texts)
    if (const qsizetype at = text.indexOf(u'&'); at >= 0 && at + 1 < text.size())
      byKey[text[at + 1].toUpper()] << text;
  QStringList shared;
  for (const QStringList& same : byKey)
    if (same.size() > 1) shared << same.join(QStringLiteral(" = "));
  return shared;
}

void expectKeysOfTheirOwn() {
  QMap<MenuId, QStringList> menus;
  for (const ActionRow& row : actionTable()) menus[row.menu] << textsOf(row).text;
  QStringList bar, rows, shared;
  for (const MenuTitle& title : menuTitles()) bar << translated(title.title);
  for (const OptionRow& row : optionTable()) rows << translated(row.label);
  shared << sharedKeys(bar) << sharedKeys(rows);
  for (const QStringList& texts : menus) shared << sharedKeys(texts);
  EXPECT_EQ(shared, QStringList()) << shared.join(u'\n').toStdString();
}

TEST_F(LanguageTest, AccessKeysOfAMenuDiffer) {
  expectKeysOfTheirOwn();
  Translator::instance().clear();
  expectKeysOfTheirOwn();
}

TEST(AccessKeys, BeginningsOfWordsComeFirstAndGivenOnesStay) {
  EXPECT_EQ(withAccessKeys({QStringLiteral("Line"), QStringLiteral("&Copy"),
                            QStringLiteral("Color"), QStringLiteral("Linear Dimension")}),
            (QStringList{QStringLiteral("&Line"), QStringLiteral("&Copy"), QStringLiteral("C&olor"),
                         QStringLiteral("Linear &Dimension")}));
  EXPECT_EQ(withAccessKeys({QStringLiteral("&Save"), QStringLiteral("&Same")}),
            (QStringList{QStringLiteral("&Save"), QStringLiteral("S&ame")}))
      << "one of two that are alike gets another";
  EXPECT_EQ(withAccessKeys({QStringLiteral("ab"), QStringLiteral("a")}),
            (QStringList{QStringLiteral("a&b"), QStringLiteral("&a")}))
      << "who can, makes room";
  EXPECT_EQ(
      withAccessKeys({QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("A && &B\tCtrl+Q")}),
      (QStringList{QStringLiteral("&a"), QStringLiteral("a"), QStringLiteral("A && &B\tCtrl+Q")}))
      << "where there are no letters left there is no key";
}

/// The window in a language.
class MenuKeysTest : public DesktopFixture, public ::testing::WithParamInterface<const char*> {
 protected:
  MenuKeysTest() {
    stop();
    if (loadLanguage(QStringLiteral(BINARY_DIR), QString::fromLatin1(GetParam())))
      m_isLoaded = true;
    start();
  }
  ~MenuKeysTest() override {
    stop();
    Translator::instance().clear();
  }
  /// Looks through a menu and those below it.
  void check(QMenu& menu) {
    // Some are filled when they are opened.
    Q_EMIT menu.aboutToShow();
    QStringList texts;
    for (QAction* const action : menu.actions()) {
      if (action->isSeparator()) continue;
      ++m_entries;
      texts << action->text();
      const QString plain = QString(action->text()).remove(QStringLiteral("&&"));
      EXPECT_EQ(plain.count(u'&'), 1) << action->text().toStdString();
      if (action->menu()) check(*action->menu());
    }
    const QStringList shared = sharedKeys(texts);
    EXPECT_EQ(shared, QStringList()) << shared.join(u'\n').toStdString();
  }
  bool m_isLoaded = false;
  int m_entries = 0;
};

TEST_P(MenuKeysTest, EveryMenuAndEntryHasOneOfItsOwn) {
  EXPECT_EQ(m_isLoaded, GetParam() == std::string_view("Deutsch"));
  dialogs.toSave = path("this & that.dxf");
  window().actions().find(u"saveAs")->trigger();
  QStringList bar;
  for (QAction* const title : window().menuBar()->actions()) {
    bar << title->text();
    EXPECT_EQ(title->text().count(u'&'), 1) << title->text().toStdString();
    check(*title->menu());
  }
  EXPECT_EQ(sharedKeys(bar), QStringList());
  check(*window().statusLine().toggle(Aid::kSnap)->menu());
  EXPECT_GT(m_entries, 100);
}

INSTANTIATE_TEST_SUITE_P(Languages, MenuKeysTest, ::testing::Values("English", "Deutsch"),
                         [](const auto& each) { return std::string(each.param); });

TEST_F(LanguageTest, EnglishAndUnknownLanguagesStayAsTheyAre) {
  EXPECT_FALSE(loadLanguage(QStringLiteral(BINARY_DIR), QStringLiteral("English")));
  EXPECT_EQ(translated(u"Layer"), QStringLiteral("Layer"));
  EXPECT_EQ(translated(u"Color"), QStringLiteral("Color"));
  EXPECT_FALSE(loadLanguage(QStringLiteral("/nowhere"), QStringLiteral("Deutsch")));
}

} // namespace
