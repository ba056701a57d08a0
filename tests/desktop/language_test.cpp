#include "drafton/desktop/language.h"

#include "drafton/desktop/action_table.h"
#include "drafton/desktop/drafting_aids.h"
#include "drafton/desktop/object_snap.h"
#include "drafton/desktop/options_dialog.h"
#include "drafton/engine/command_menu.h"
#include "drafton/engine/translator.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

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

/// Texts that stand in the code between the tables.
TEST_F(LanguageTest, EverythingThatTheWindowSaysIsTranslated) {
  const QRegularExpression call(
      QStringLiteral("translated\\(\\s*((?:u\"(?:[^\"\\\\]|\\\\.)*\"\\s*)+)"));
  const QRegularExpression piece(QStringLiteral("u\"((?:[^\"\\\\]|\\\\.)*)\""));
  const QDir folder(QStringLiteral(SOURCE_DIR "/drafton/desktop"));
  int texts = 0;
  for (const QString& name : folder.entryList({QStringLiteral("*.cpp")}, QDir::Files)) {
    QFile file(folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString source = QString::fromUtf8(file.readAll());
    for (auto calls = call.globalMatch(source); calls.hasNext();) {
      QString text;
      for (auto pieces = piece.globalMatch(calls.next().captured(1)); pieces.hasNext();)
        text += pieces.next().captured(1);
      check(text.replace(QStringLiteral("\\\""), QStringLiteral("\"")));
      ++texts;
    }
  }
  EXPECT_GT(texts, 80);
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
  EXPECT_GT(count, 250);
}

TEST_F(LanguageTest, EnglishAndUnknownLanguagesStayAsTheyAre) {
  EXPECT_FALSE(loadLanguage(QStringLiteral(BINARY_DIR), QStringLiteral("English")));
  EXPECT_EQ(translated(u"Layer"), QStringLiteral("Layer"));
  EXPECT_EQ(translated(u"Color"), QStringLiteral("Color"));
  EXPECT_FALSE(loadLanguage(QStringLiteral("/nowhere"), QStringLiteral("Deutsch")));
}

} // namespace
