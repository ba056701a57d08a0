// Texts in all the ways that they can stand.
#include "drawing/entities/arc.h"
#include "drawing/entities/line.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/point.h"
#include "drawing/patterns/linetype_file.h"
#include "render/picture_fixture.h"

#include <algorithm>

namespace render_test {
namespace {

class TextPictures : public PictureTest {
 protected:
  /// A small cross.
  void mark(double x, double y) {
    for (const OdGeVector3d& arm : {OdGeVector3d{2, 0, 0}, OdGeVector3d{0, 2, 0}}) {
      auto line = odrxMake<OdDbLine>(OdGePoint3d{x, y, 0} - arm, OdGePoint3d{x, y, 0} + arm);
      line->setColor(OdCmColor::fromColorIndex(1));
      add(line);
    }
  }
  OdDbMTextPtr addMText(const OdString& contents, double x, double y) {
    auto text = odrxMake<OdDbMText>();
    text->setDatabaseDefaults(database());
    text->setContents(contents);
    text->setLocation({x, y, 0});
    text->setTextHeight(7);
    add(text);
    return text;
  }
};

TEST_F(TextPictures, FastenedAtAllTheirPoints) {
  struct Column {
    OdDb::TextHorzMode mode;
    double x;
  };
  struct Row {
    OdDb::TextVertMode mode;
    double y;
  };
  for (const Row& row : {Row{OdDb::kTextBase, 25}, Row{OdDb::kTextBottom, 50},
                         Row{OdDb::kTextVertMid, 75}, Row{OdDb::kTextTop, 100}}) {
    for (const Column& column : {Column{OdDb::kTextLeft, 15}, Column{OdDb::kTextCenter, 95},
                                 Column{OdDb::kTextRight, 175}}) {
      const OdDbTextPtr text = addText(QStringLiteral("Ägypten"), column.x, row.y, 9);
      text->setHorizontalMode(column.mode);
      text->setVerticalMode(row.mode);
      text->setAlignmentPoint({column.x, row.y, 0});
      mark(column.x, row.y);
    }
  }
  for (const auto mode : {OdDb::kTextAlign, OdDb::kTextFit}) {
    const double y = mode == OdDb::kTextFit ? -40 : -18;
    const OdDbTextPtr text = addText(QStringLiteral("Fit between"), 15, y, 9);
    text->setHorizontalMode(mode);
    text->setPosition({15, y, 0});
    text->setAlignmentPoint({175, y + 6, 0});
    mark(15, y);
    mark(175, y + 6);
  }
  const OdDbTextPtr middle = addText(QStringLiteral("Middle"), 95, -62, 9);
  middle->setHorizontalMode(OdDb::kTextMid);
  middle->setAlignmentPoint({95, -62, 0});
  mark(95, -62);
  EXPECT_TRUE(looksLike(picture(0, -72, 190, 115, {480, 472}), "text_alignments"));
}

TEST_F(TextPictures, MirroredAndUpright) {
  addText(QStringLiteral("Backwards"), 80, 60, 12)->mirrorInX(true);
  addText(QStringLiteral("Upside down"), 0, 30, 12)->mirrorInY(true);
  auto style = odrxMake<OdDbTextStyleTableRecord>();
  style->setName(QStringLiteral("Upright"));
  style->setIsVertical(true);
  const OdDbObjectId upright =
      database().getTextStyleTableId().openAs<OdDbTextStyleTable>(OdDb::kForWrite)->add(style);
  addText(QStringLiteral("Column"), 120, 70, 9)->setTextStyle(upright);
  const OdDbTextPtr turned = addText(QStringLiteral("Turned"), 0, 0, 12);
  turned->setRotation(-0.3);
  turned->setOblique(-0.4);
  turned->setWidthFactor(1.4);
  EXPECT_TRUE(looksLike(picture(-10, -40, 150, 80), "text_mirrored"));
}

TEST_F(TextPictures, OfSeveralLinesFastenedAtAllTheirPoints) {
  for (int i = 0; i < 9; ++i) {
    const double x = 45 + i % 3 * 85, y = 165 - i / 3 * 60;
    const OdDbMTextPtr text = addMText(QStringLiteral("First line\\Ptwo\\Pand three"), x, y);
    text->setAttachment(static_cast<OdDbMText::AttachmentPoint>(i + 1));
    mark(x, y);
  }
  EXPECT_TRUE(looksLike(picture(0, 0, 270, 210, {480, 373}), "mtext_attachments"));
}

TEST_F(TextPictures, CodesOfNoColourMeanThatOfTheText) {
  const auto shown = [&](const char16_t* contents) {
    const OdDbMTextPtr text = addMText(OdString::fromUtf16(contents), 5, 40);
    text->setColor(OdCmColor::fromColorIndex(1));
    const QImage image = picture(0, 0, 100, 75);
    text->erase();
    return image;
  };
  const QImage red = shown(u"Words");
  EXPECT_EQ(shown(u"\\C0;Words"), red);
  EXPECT_EQ(shown(u"\\C256;Words"), red);
  EXPECT_NE(shown(u"\\C5;Words"), red);
}

TEST_F(TextPictures, VerticalOnesAreSeenWhereOnlyTheirEndIs) {
  const auto style = odrxMake<OdDbTextStyleTableRecord>();
  style->setName(QStringLiteral("Column"));
  style->setFileName(QStringLiteral("txt.shx"));
  style->setIsVertical(true);
  const OdDbObjectId id =
      database().getTextStyleTableId().openAs<OdDbTextStyleTable>(OdDb::kForWrite)->add(style);
  addText(OdString(20, u'H'), 0, 0, 10)->setTextStyle(id);
  const QImage image = picture(-20, -220, 20, -190, {320, 240});
  const QRgb ground = image.pixel(0, 0);
  bool isDrawn = false;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) isDrawn |= image.pixel(x, y) != ground;
  EXPECT_TRUE(isDrawn);
}

TEST_F(TextPictures, OnAreasOfAColourOrOfTheGround) {
  for (int i = 0; i < 12; ++i)
    add(odrxMake<OdDbLine>(OdGePoint3d{0, i * 8.0, 0}, OdGePoint3d{200, i * 8.0 + 10, 0}));
  const OdDbMTextPtr ground = addMText(QStringLiteral("On the ground"), 10, 80);
  ground->setBackgroundFill(true);
  ground->setUseBackgroundColor(true);
  const OdDbMTextPtr yellow = addMText(QStringLiteral("On yellow\\Pwith more around"), 90, 50);
  yellow->setBackgroundFill(true);
  yellow->setBackgroundFillColor(OdCmColor::fromRgb(255, 240, 120));
  yellow->setBackgroundScaleFactor(2);
  yellow->setRotation(0.2);
  EXPECT_TRUE(looksLike(picture(0, 0, 200, 100, {480, 240}), "mtext_mask"));
  RenderOptions dark;
  dark.ground = Ground(qRgb(20, 30, 50));
  EXPECT_TRUE(looksLike(picture(0, 0, 200, 100, {480, 240}, dark), "mtext_mask_dark"));
}

TEST_F(TextPictures, MTextsFlowInTheirWidthWithTheirCodes) {
  addMText(QStringLiteral("\\pi-6,l6;-^IAn indented paragraph that is longer than its line\\P"
                          "-^Iand another\\P\\pi0,l0,qc;centred\\P\\pqr;at the right\\P"
                          "\\pql;{\\W1.5;wide} {\\Q20;leaning} {\\T2;apart} \\U+2300 %%c %%p"),
           5, 105)
      ->setWidth(130);
  const OdDbMTextPtr spaced = addMText(QStringLiteral("Lines\\Pwith more\\Proom"), 150, 105);
  spaced->setLineSpacingFactor(2);
  EXPECT_TRUE(looksLike(picture(0, 0, 210, 110, {540, 283}), "mtext_codes"));
}

} // namespace
} // namespace render_test
