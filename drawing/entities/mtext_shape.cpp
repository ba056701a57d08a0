// What a text of several lines looks like.
#include "drawing/database.h"
#include "drawing/entities/line.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/text.h"
#include "drawing/entities/text_font.h"
#include "drawing/graphics/world_draw.h"
#include "drawing/mtext/parser.h"

OdMTextLayout OdDbMText::layout() const {
  OdMTextFormat start;
  start.height = m_mtext.height;
  start.font = oddbFontOf(m_mtext.style);
  start.font.vertical = false;
  if (const auto style = odrxCast<OdDbTextStyleTableRecord>(m_mtext.style.openObject().get())) {
    if (style->xScale() > 0) start.widthFactor = style->xScale();
    start.oblique = style->obliquingAngle();
  }
  OdMTextFrame frame;
  frame.height = m_mtext.height;
  frame.width = width();
  frame.attachment = attachment();
  frame.spacing = m_mtext.spacingFactor;
  frame.exactly = lineSpacingStyle() == kExactly;
  frame.columns = m_mtext.columns;
  return odmtext::layOut(odmtext::parse(m_mtext.contents, start), frame,
                         OdGiTextMetrics::current());
}

OdGeMatrix3d OdDbMText::layoutToWorld() const {
  const OdGeVector3d x = direction();
  return OdGeMatrix3d::coordSystem(m_mtext.location, x, m_mtext.normal.crossProduct(x),
                                   m_mtext.normal);
}

double OdDbMText::actualWidth() const {
  const OdMTextLayout shown = layout();
  return shown.right - shown.left;
}

double OdDbMText::actualHeight() const {
  const OdMTextLayout shown = layout();
  return shown.top - shown.bottom;
}

std::vector<OdGiTextRun> OdDbMText::runsOf(const OdMTextLayout& shown) const {
  const OdGeMatrix3d toWorld = layoutToWorld();
  const OdGeVector3d x = toWorld * OdGeVector3d::xAxis();
  const OdGeVector3d y = toWorld * OdGeVector3d::yAxis();
  std::vector<OdGiTextRun> all;
  for (const OdMTextRun& r : shown.runs) {
    const OdMTextFormat& f = r.format;
    OdGiTextRun run;
    run.text = r.text;
    run.font = f.font;
    run.origin = toWorld * OdGePoint3d{r.x, r.y, 0};
    run.along = x * (f.height * f.widthFactor);
    run.up = (y + x * std::tan(f.oblique)) * f.height;
    // The room that the tracking adds is shared by all letters.
    if (f.tracking != 1 && !r.text.isEmpty())
      run.tracking =
          r.width * (1 - 1 / f.tracking) / (f.height * static_cast<double>(r.text.size()));
    run.underlined = f.underlined;
    run.overlined = f.overlined;
    run.struckThrough = f.struckThrough;
    run.color = f.color;
    all.push_back(run);
  }
  return all;
}

void OdDbMText::worldDraw(OdGiWorldDraw& draw) const {
  const OdMTextLayout shown = layout();
  if (shown.runs.empty()) return;
  const OdGeMatrix3d toWorld = layoutToWorld();
  const auto space = [&](double x, double y) { return toWorld * OdGePoint3d{x, y, 0}; };
  if (backgroundFillOn() || hasFrame()) {
    const double more = (backgroundScaleFactor() - 1) * textHeight();
    const double left = shown.left - more, right = shown.right + more;
    const double low = shown.bottom - more, high = shown.top + more;
    const std::vector<OdGePoint3d> ring = {space(left, low), space(right, low), space(right, high),
                                           space(left, high)};
    if (backgroundFillOn()) {
      draw.setPieceColor(useBackgroundColorOn() ? OdCmColor(OdCmColor::kNone)
                                                : backgroundFillColor());
      draw.area({ring});
      draw.setPieceColor({});
    }
    if (hasFrame()) draw.polyline(ring, true);
  }
  for (const OdGiTextRun& run : runsOf(shown)) draw.text(run);
  for (std::size_t i = 0; i + 1 < shown.strokes.size(); i += 2) {
    const OdGePoint3d ends[] = {space(shown.strokes[i].x, shown.strokes[i].y),
                                space(shown.strokes[i + 1].x, shown.strokes[i + 1].y)};
    draw.polyline(ends, false);
  }
}

bool OdDbMText::explode(std::vector<OdDbEntityPtr>& pieces) const {
  const OdMTextLayout shown = layout();
  const std::vector<OdGiTextRun> runs = runsOf(shown);
  for (std::size_t i = 0; i < runs.size(); ++i) {
    const OdMTextFormat& f = shown.runs[i].format;
    const auto text = odrxMake<OdDbText>();
    text->setPropertiesFrom(*this);
    if (f.color) text->setColor(*f.color);
    text->setNormal(normal());
    text->setPosition(runs[i].origin);
    text->setRotation(rotation());
    text->setHeight(f.height);
    text->setWidthFactor(f.widthFactor);
    text->setOblique(f.oblique);
    text->setTextStyle(textStyle());
    OdString string = OdString(runs[i].text).replace(QChar(0xA0), u' ');
    if (f.underlined) string.prepend(QStringLiteral("%%u"));
    if (f.overlined) string.prepend(QStringLiteral("%%o"));
    if (f.struckThrough) string.prepend(QStringLiteral("%%k"));
    text->setTextString(string);
    pieces.push_back(text);
  }
  const OdGeMatrix3d toWorld = layoutToWorld();
  for (std::size_t i = 0; i + 1 < shown.strokes.size(); i += 2) {
    const auto line = odrxMake<OdDbLine>(
        toWorld * OdGePoint3d{shown.strokes[i].x, shown.strokes[i].y, 0},
        toWorld * OdGePoint3d{shown.strokes[i + 1].x, shown.strokes[i + 1].y, 0});
    line->setPropertiesFrom(*this);
    pieces.push_back(line);
  }
  return true;
}
