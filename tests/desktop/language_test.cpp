#include "drafton/desktop/language.h"

#include "desktop/desktop_fixture.h"
#include "drafton/desktop/access_keys.h"
#include "drafton/desktop/action_table.h"
#include "drafton/desktop/drafting_aids.h"
#include "drafton/desktop/object_snap.h"
#include "drafton/desktop/options_dialog.h"
#include "drafton/engine/command_menu.h"
#include "drafton/engine/translator.h"
#include "module/string_table.h"
#include "properties/gradient_names.h"

#include <QCoreApplication>
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
  ~LanguageTest() override { loadLanguage(QStringLiteral(BINARY_DIR), QStringLiteral("English")); }

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

/// A text of a source file, put together from its pieces and without escapes.
struct Literal {
  QString text;
  bool isHandedOver; ///< it is handed to a function that translates
};

QString unescaped(QString text) {
  constexpr std::pair<QLatin1String, QLatin1String> kEscapes[] = {
      {QLatin1String("\\n"), QLatin1String("\n")},
      {QLatin1String("\\r"), QLatin1String("\r")},
      {QLatin1String("\\\""), QLatin1String("\"")},
      {QLatin1String("\\\\"), QLatin1String("\\")}};
  for (const auto& [escape, meant] : kEscapes) text.replace(escape, meant);
  return text;
}

QList<Literal> literalsOf(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error(path.toStdString());
  QString source = QString::fromUtf8(file.readAll());
  static const QRegularExpression noise(QStringLiteral("//[^\n]*|#include[^\n]*|R\"\\(.*?\\)\""),
                                        QRegularExpression::DotMatchesEverythingOption);
  static const QRegularExpression literal(
      QStringLiteral("(\\b(?:translate|translated|tr)\\(\\s*(?:QStringLiteral\\(\\s*)?)?"
                     "((?:u?\"(?:[^\"\\\\\n]|\\\\.)*\"(?:_s)?\\s*)+)"));
  static const QRegularExpression piece(QStringLiteral("u?\"((?:[^\"\\\\\n]|\\\\.)*)\""));
  source.remove(noise);
  QList<Literal> all;
  for (auto found = literal.globalMatch(source); found.hasNext();) {
    const QRegularExpressionMatch match = found.next();
    QString text;
    for (auto pieces = piece.globalMatch(match.captured(2)); pieces.hasNext();)
      text += pieces.next().captured(1);
    all << Literal{unescaped(text), !match.captured(1).isEmpty()};
  }
  return all;
}

/// Texts of several words that nobody sees as they are: keys of files, what only a developer is
/// told, markup, and the words of the menus that are the same in every language.
const QSet<QString>& keptTexts() {
  static const QSet<QString> texts = [] {
    QSet<QString> all = {QStringLiteral("Visual style"),
                         QStringLiteral("The class of a record has no factory"),
                         QStringLiteral("The first reserved operation of a palette"),
                         QStringLiteral("The second reserved operation of a palette")};
    for (const char* const file : {"/ui/menu_builder.cpp", "/ui/window/item_tip.cpp"})
      for (const Literal& literal : literalsOf(QStringLiteral(SOURCE_DIR) + QLatin1String(file)))
        all << literal.text;
    return all;
  }();
  return texts;
}

/// The module asks the host for its words, so they stand in the host's catalogue.
TEST_F(LanguageTest, EverythingThatTheModuleSaysIsTranslated) {
  for (const tc::string_table::Row& row : tc::string_table::kRows)
    check(QStringView(row.text).toString());
  for (const tc::GradientRow& row : tc::kGradients) check(row.display.toString());

  static const QRegularExpression words(
      QStringLiteral("^(?=.* ).*[A-Za-z]{2,}[^A-Za-z]+[A-Za-z]{2,}|^[A-Z][a-z]+\\.[A-Z]"),
      QRegularExpression::DotMatchesEverythingOption);
  int texts = 0;
  for (const char* const folder : {"module", "persistence", "properties", "images", "tools",
                                   "catalog", "host", "ui", "editors"}) {
    QDirIterator files(QStringLiteral(SOURCE_DIR "/") + QLatin1String(folder),
                       {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
      for (const Literal& literal : literalsOf(files.next())) {
        if (!literal.isHandedOver &&
            (!words.match(literal.text).hasMatch() || keptTexts().contains(literal.text)))
          continue;
        ++texts;
        check(literal.text);
      }
  }
  EXPECT_GT(texts, 230);
  m_missing.removeDuplicates();
  EXPECT_EQ(m_missing, QStringList()) << m_missing.join(u'\n').toStdString();
}

/// Words of one piece stand in tables, where a text is told from a key by its place only.
TEST_F(LanguageTest, SingleWordsOfTheModulesTablesAreTranslated) {
  struct Table {
    const char* file;
    const char* row; ///< what stands around the texts of the table
  };
  constexpr Table kTables[] = {
      {"tools/block_tool.cpp", "AuxScale::\\w+, u\"\\w+\", (u\"[^\"]+\")"},
      {"tools/block_tool.cpp", "choice\\(\\d, (u\"[^\"]+\")\\)"},
      {"tools/hatch_tool.cpp", "numbered\\(std::array<QStringView, \\d>\\{([^}]+)\\}"},
      {"tools/hatch_tool.cpp", "kNoAuxScale = (u\"[^\"]+\")"},
      {"tools/hatch_tool.cpp", "kAuxScales = \\{([^}]+)\\}"},
      {"properties/value_words.h", "QStringView k\\w+ = (u\"[^\"]+\")"},
      {"properties/layer_table_record_impl.h", "what\\(\\)[^{]*\\{ return (u\"[^\"]+\")"},
      {"catalog/tool_palette_impl.cpp", "OdTcTool::k\\w+, (u\"[^\"]+\")"},
      {"ui/window/palette_window.cpp", "kCommand\\w+Style, (u\"[^\"]+\")"},
      {"ui/window/toolbar.cpp", "StringId::k\\w+, (u\"[^\"]+\")"},
      {"ui/window/item_list_model.cpp", "translate\\(section [^;]+;"},
      {"module/entry/exchange_commands.cpp", "ask\\([^;]*?(u\"[^\"]+\")\\)"},
      {"module/entry/make_command.cpp", "ask\\([^;]*?(u\"[^\"]+\")\\)"},
  };
  const QRegularExpression piece(QStringLiteral("\"([^\"]+)\""));
  for (const Table& table : kTables) {
    QFile file(QStringLiteral(SOURCE_DIR "/") + QLatin1String(table.file));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << table.file;
    const QString source = QString::fromUtf8(file.readAll());
    int found = 0;
    for (auto rows = QRegularExpression(QLatin1String(table.row)).globalMatch(source);
         rows.hasNext();)
      for (auto texts = piece.globalMatch(rows.next().captured(0)); texts.hasNext(); ++found)
        check(texts.next().captured(1));
    EXPECT_GT(found, 0) << table.file << ": " << table.row;
  }
  // Of the scales only the words are shown, not their keys.
  for (const char* const key : {"DIMSCALE", "PLOTSCALE", "NONE"})
    m_missing.removeAll(QLatin1String(key));
  EXPECT_EQ(m_missing, QStringList()) << m_missing.join(u'\n').toStdString();
}

TEST_F(LanguageTest, QtsOwnButtonsAreTranslatedToo) {
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Abbrechen"));
  EXPECT_FALSE(loadLanguage(QStringLiteral(BINARY_DIR), QStringLiteral("English")));
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Cancel"));
}

/// What goes into files or to the command line stays the same in every language.
TEST_F(LanguageTest, KeysStayAsTheyAre) {
  for (const char16_t* const key : {u"_USER", u"ByLayer", u"ByBlock", u"ByDefault", u"Continuous"})
    EXPECT_EQ(translated(key), QString::fromUtf16(key));
}

TEST_F(LanguageTest, PlacesForValuesAndAccessKeysComeAlong) {
  QFile file(QStringLiteral(SOURCE_DIR "/drafton/desktop/translations/drafton_de.ts"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QRegularExpression message(
      QStringLiteral("<source>(.*?)</source>\\s*<translation>(.*?)</translation>"),
      QRegularExpression::DotMatchesEverythingOption);
  const QString text = QString::fromUtf8(file.readAll());
  int count = 0;
  for (auto all = message.globalMatch(text); all.hasNext(); ++count) {
    const auto match = all.next();
    const QString source = match.captured(1), target = match.captured(2);
    EXPECT_FALSE(target.isEmpty()) << source.toStdString();
    for (const char* place : {"%1", "%2", "%3", "%s"})
      EXPECT_EQ(source.count(QLatin1String(place)), target.count(QLatin1String(place)))
          << source.toStdString();
    EXPECT_EQ(source.startsWith(u'\n'), target.startsWith(u'\n')) << source.toStdString();
    EXPECT_EQ(source.endsWith(u'\n'), target.endsWith(u'\n')) << source.toStdString();
    EXPECT_EQ(source.count(u'|'), target.count(u'|')) << source.toStdString();
    EXPECT_EQ(source.contains(QLatin1String("&amp;")), target.contains(QLatin1String("&amp;")))
        << source.toStdString();
  }
  EXPECT_GT(count, 1000);
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
