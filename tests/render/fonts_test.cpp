#include "drafton/render/font_table.h"
#include "drafton/render/text_shapes.h"

#include <gtest/gtest.h>

namespace render_test {
namespace {

using namespace drafton;

OdGiFont file(const char16_t* name) {
  OdGiFont font;
  font.file = OdString::fromUtf16(name);
  return font;
}

TEST(FontTable, FindsSubstitutesByTheFirstLineThatFits) {
  const FontTable table = FontTable::parse("; comment\n"
                                           "romans.shx;Serif;bold\n"
                                           "no family\n"
                                           ";;\n"
                                           "*.shx;Strokes\n"
                                           "Arial;Sans;bold italic\n"
                                           "*;Anything\n");
  const auto family = [&](const OdGiFont& font) {
    return table.fontFor(font, {}).families().at(0);
  };
  EXPECT_EQ(family(file(u"RomanS.SHX")), QStringLiteral("Serif"));
  EXPECT_TRUE(table.fontFor(file(u"romans.shx"), {}).bold());
  EXPECT_EQ(family(file(u"C:\\fonts\\romans")), QStringLiteral("Serif"));
  EXPECT_EQ(family(file(u"other.shx")), QStringLiteral("Strokes"));
  EXPECT_EQ(family(file(u"")), QStringLiteral("Strokes"));
  EXPECT_EQ(family(file(u"thing.ttf")), QStringLiteral("Anything"));
  OdGiFont arial;
  arial.typeface = QStringLiteral("arial");
  EXPECT_EQ(family(arial), QStringLiteral("Sans"));
  EXPECT_TRUE(table.fontFor(arial, {}).italic());
}

TEST(FontTable, TakesAnInstalledTypefaceAsItIs) {
  const FontTable table = FontTable::parse("Arial;Sans\n*;Anything\n");
  OdGiFont arial;
  arial.typeface = QStringLiteral("Arial");
  EXPECT_EQ(table.fontFor(arial, {QStringLiteral("Arial")}).families().at(0),
            QStringLiteral("Arial"));
  EXPECT_EQ(table.fontFor(file(u"Arial.ttf"), {QStringLiteral("Arial")}).families().at(0),
            QStringLiteral("Arial"));
}

TEST(FontTable, TheProgramsOwnTableKnowsTheUsualFonts) {
  const FontTable& table = FontTable::standard();
  for (const char16_t* name : {u"txt.shx", u"romans", u"isocp.shx", u"unheard-of.shx"})
    EXPECT_TRUE(table.fontFor(file(name), {}).families().at(0).startsWith(QStringLiteral("DejaVu")))
        << OdString::fromUtf16(name).toStdString();
}

TEST(TextShapes, CapitalsAreOneHighAndStandOnTheBaseLine) {
  const TextShape& shape = TextShapes::instance().shape(QStringLiteral("H"), file(u"txt.shx"));
  const QRectF box = shape.path.boundingRect();
  EXPECT_NEAR(box.height(), 1, 0.02);
  EXPECT_NEAR(box.top(), 0, 0.02);
  EXPECT_GT(shape.advance, box.width());
}

TEST(TextShapes, WidthsAddUpAndBlanksCount) {
  const TextShapes& shapes = TextShapes::instance();
  const OdGiFont font = file(u"txt.shx");
  const double one = shapes.advance(QStringLiteral("A"), font);
  EXPECT_NEAR(shapes.advance(QStringLiteral("AAA"), font), 3 * one, 1e-3);
  EXPECT_GT(shapes.advance(QStringLiteral("A "), font), one);
  EXPECT_GT(shapes.descent(font), 0.1);
  EXPECT_LT(shapes.descent(font), 0.6);
}

TEST(TextShapes, TrackingMovesTheLaterCharacters) {
  const OdGiFont font = file(u"txt.shx");
  TextShapes& shapes = TextShapes::instance();
  const double plain = shapes.shape(QStringLiteral("HH"), font).path.boundingRect().width();
  const double wide = shapes.shape(QStringLiteral("HH"), font, 0.5).path.boundingRect().width();
  EXPECT_NEAR(wide - plain, 0.5, 0.02);
}

TEST(TextShapes, UprightTextsGoDown) {
  OdGiFont font = file(u"txt.shx");
  font.vertical = true;
  const QRectF box = TextShapes::instance().shape(QStringLiteral("HHH"), font).path.boundingRect();
  EXPECT_GT(box.height(), 3);
  EXPECT_LT(box.width(), 1.2);
}

} // namespace
} // namespace render_test
