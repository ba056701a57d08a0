#include "drafton/engine/translator.h"

#include "engine/support/catalogue_file.h"
#include "engine/support/engine_fixture.h"
#include "engine/support/test_commands.h"
#include "frame/dynamic_library.h"
#include "host/exports.h"

#include <QTemporaryDir>

using namespace drafton;

namespace {

/// An engine whose user reads German.
class TranslationTest : public EngineFixture {
 protected:
  TranslationTest() {
    QFile file(m_folder.filePath(QStringLiteral("de.qm")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(catalogueOf({{"Close", QStringLiteral("Schließen")},
                            {"Undo", QStringLiteral("Zurück")},
                            {"Red", QStringLiteral("Gelb")},
                            {"Green", QStringLiteral("Rot")},
                            {"Blue", QStringLiteral("ein Blau")},
                            {"Choose", QStringLiteral("Wähle")},
                            {"%1 or [%2]", QStringLiteral("%1 oder [%2]")}}));
    file.close();
    EXPECT_TRUE(Translator::instance().load(file.fileName()));
    engine().commands().add(testCommands());
  }
  ~TranslationTest() override { Translator::instance().clear(); }

  bool answers(const char16_t* typed, const char* shown) {
    console().clear();
    type(OdString::fromUtf16(typed));
    return console().shows(OdString::fromLatin1(shown));
  }

 private:
  QTemporaryDir m_folder;
};

TEST_F(TranslationTest, KeywordsAreShownInTheUsersLanguage) {
  type(QStringLiteral("ASKPOINT "));
  EXPECT_EQ(prompt(), QStringLiteral("Point oder [Schließen/Zurück]: "));
  type(QStringLiteral("^CASKKEYWORD "));
  EXPECT_EQ(prompt(), QStringLiteral("Wähle [Gelb/Rot/Blue] <Rot>: "))
      << "a word with a blank could not be typed";
}

TEST_F(TranslationTest, KeywordsAreTypedInTheUsersLanguageAndInEnglish) {
  EXPECT_TRUE(answers(u"ASKPOINT schließen\n", "got option Close"));
  EXPECT_TRUE(answers(u"ASKPOINT z\n", "got option Undo"));
  EXPECT_TRUE(answers(u"ASKPOINT c\n", "got option Close"));
  EXPECT_TRUE(answers(u"ASKKEYWORD \n", "got option Green"));
}

TEST_F(TranslationTest, TheUsersWordGoesBeforeAnEnglishOneUnlessItIsMarked) {
  EXPECT_TRUE(answers(u"ASKKEYWORD r\n", "got option Green")) << "Rot";
  EXPECT_TRUE(answers(u"ASKKEYWORD _r\n", "got option Red"));
  EXPECT_TRUE(answers(u"ASKKEYWORD g\n", "got option Red")) << "Gelb";
  EXPECT_TRUE(answers(u"ASKKEYWORD _g\n", "got option Green"));
  EXPECT_TRUE(answers(u"ASKKEYWORD _gelb r\n", "Invalid option."));
}

TEST_F(TranslationTest, ModulesGetTheSameTexts) {
  const auto translate =
      oddynlib::function<hostexport::Translate>(oddynlib::mainExecutable(), hostexport::kTranslate);
  ASSERT_TRUE(translate);
  OdString out;
  EXPECT_TRUE(translate(QStringLiteral("Green"), out));
  EXPECT_EQ(out, QStringLiteral("Rot"));
  EXPECT_FALSE(translate(QStringLiteral("Violet"), out));
}

} // namespace
