// What a text looks like.
#include "drawing/checks.h"
#include "drawing/database.h"
#include "drawing/entities/plane_transform.h"
#include "drawing/entities/text.h"
#include "drawing/entities/text_font.h"
#include "drawing/mtext/text_codes.h"

OdGiFont oddbFontOf(OdDbObjectId styleId) {
  OdGiFont font;
  const auto style = odrxCast<OdDbTextStyleTableRecord>(styleId.openObject().get());
  if (!style) {
    font.file = QStringLiteral("txt");
    return font;
  }
  font.file = style->fileName();
  font.bigFile = style->bigFontFileName();
  font.typeface = style->font().typeFace;
  font.bold = style->font().bold;
  font.italic = style->font().italic;
  font.vertical = style->isVertical();
  return font;
}

/// Where a text stands in its plane.
struct OdDbText::Place {
  OdGePoint2d origin;  ///< the start of the base line
  double rotation = 0; ///< of the line that the text follows
  double height = 1, widthFactor = 1;
  double width = 0; ///< of the whole text
};

OdDbText::Place OdDbText::placeOf(const OdString& text) const {
  const OdGiTextMetrics& metrics = OdGiTextMetrics::current();
  const OdGiFont font = oddbFontOf(m_text.style);
  const OdString plain = odtext::plain(text);
  Place place;
  place.height = m_text.height;
  place.widthFactor = m_text.widthFactor;
  place.rotation = m_text.rotation;
  const double letters = font.vertical ? static_cast<double>(plain.size())
                                       : metrics.advance(plain, font) * m_text.widthFactor;
  place.width = letters * place.height;
  if (isDefaultAlignment()) {
    place.origin = {m_text.position.x, m_text.position.y};
    return place;
  }
  if (m_text.horizontal == OdDb::kTextAlign || m_text.horizontal == OdDb::kTextFit) {
    const OdGeVector3d between = m_text.alignment - m_text.position;
    const double distance = std::hypot(between.x, between.y);
    place.origin = {m_text.position.x, m_text.position.y};
    if (!(distance > 0) || !(place.width > 0)) return place;
    place.rotation = std::atan2(between.y, between.x);
    (m_text.horizontal == OdDb::kTextAlign ? place.height : place.widthFactor) *=
        distance / place.width;
    place.width = distance;
    return place;
  }
  double left = 0;
  double low = 0;
  const bool isMiddle = m_text.horizontal == OdDb::kTextMid;
  if (isMiddle || m_text.horizontal == OdDb::kTextCenter) left = -place.width / 2;
  if (m_text.horizontal == OdDb::kTextRight) left = -place.width;
  if (m_text.vertical == OdDb::kTextTop) low = -place.height;
  if (isMiddle || m_text.vertical == OdDb::kTextVertMid) low = -place.height / 2;
  if (m_text.vertical == OdDb::kTextBottom) low = metrics.descent(font) * place.height;
  if (isMirroredInX()) left = -left;
  if (isMirroredInY()) low = -low;
  const double c = std::cos(place.rotation);
  const double s = std::sin(place.rotation);
  place.origin = {m_text.alignment.x + c * left - s * low, m_text.alignment.y + s * left + c * low};
  return place;
}

void OdDbText::adjustAlignment() {
  if (isDefaultAlignment()) return;
  const Place place = placeOf(m_text.string);
  assertWriteEnabled();
  if (m_text.horizontal == OdDb::kTextAlign || m_text.horizontal == OdDb::kTextFit) {
    m_text.rotation = place.rotation;
    m_text.height = place.height;
    m_text.widthFactor = place.widthFactor;
  } else {
    m_text.position = {place.origin.x, place.origin.y, m_text.alignment.z};
  }
}

std::vector<OdGiTextRun> OdDbText::runs() const { return runsOf(m_text.string); }

std::vector<OdGiTextRun> OdDbText::runsOf(const OdString& text) const {
  const Place place = placeOf(text);
  const OdGeMatrix3d toWorld = OdGeMatrix3d::planeToWorld(normal());
  const double sx = isMirroredInX() ? -1 : 1;
  const double sy = isMirroredInY() ? -1 : 1;
  const OdGeVector3d x{std::cos(place.rotation), std::sin(place.rotation), 0};
  const OdGeVector3d y{-x.y, x.x, 0};
  const double h = place.height;
  OdGiTextRun run;
  run.font = oddbFontOf(m_text.style);
  run.along = toWorld * (x * (h * place.widthFactor * sx));
  run.up = toWorld * (y * (h * sy) + x * (std::tan(m_text.oblique) * h * sx));
  const bool onAlignment = !isDefaultAlignment() && m_text.horizontal != OdDb::kTextAlign &&
                           m_text.horizontal != OdDb::kTextFit;
  run.origin = toWorld * OdGePoint3d{place.origin.x, place.origin.y,
                                     onAlignment ? m_text.alignment.z : m_text.position.z};
  std::vector<OdGiTextRun> all;
  for (const OdTextPiece& piece : odtext::pieces(text)) {
    run.text = piece.text;
    run.underlined = piece.underlined;
    run.overlined = piece.overlined;
    run.struckThrough = piece.struckThrough;
    all.push_back(run);
    if (run.font.vertical)
      run.origin = run.origin - run.up * static_cast<double>(piece.text.size());
    else
      run.origin =
          run.origin + run.along * OdGiTextMetrics::current().advance(piece.text, run.font);
  }
  return all;
}

void OdDbText::worldDraw(OdGiWorldDraw& draw) const {
  for (const OdGiTextRun& run : runs()) draw.text(run);
}

OdDbEntityPtr OdDbText::getTransformedCopy(const OdGeMatrix3d& transform) const {
  if (const OdDbEntityPtr moved = OdDbEntity::getTransformedCopy(transform)) return moved;
  // Letters between a slanted base line and slanted strokes: their slant and width make up for it.
  const std::vector<OdGiTextRun> shown = runs();
  if (shown.empty()) return {};
  const OdGeVector3d along = transform * shown.front().along;
  const OdGeVector3d up = transform * shown.front().up;
  OdGeVector3d n = along.crossProduct(up);
  if (!(n.lengthSqrd() > 0) || !odcheck::isFinite(n)) return {};
  n = n.normal();
  const OdDbTextPtr copy = clone();
  Data& data = copy->m_text;
  const OdGeMatrix3d toPlane = OdGeMatrix3d::planeToWorld(n).inverse();
  const OdGeVector3d flat = toPlane * along;
  const OdGeVector3d x = along.normal();
  data.extrusion.setThickness(thickness() * (transform * normal()).length());
  data.extrusion.setNormal(n);
  data.height = (up - x * x.dotProduct(up)).length();
  data.widthFactor = along.length() / data.height;
  data.oblique = std::atan2(x.dotProduct(up), data.height);
  data.rotation = odgeNormalAngle(std::atan2(flat.y, flat.x));
  data.generation = 0;
  data.position = toPlane * (transform * shown.front().origin);
  data.alignment = toPlane * (transform * alignmentPoint());
  if (!odcheck::areFinite(data.position, data.alignment, data.height, data.widthFactor)) return {};
  return copy;
}
