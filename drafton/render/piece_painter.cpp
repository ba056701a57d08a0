#include "drafton/render/piece_painter.h"

#include "drafton/render/endless_line.h"
#include "drafton/render/pixel_mix.h"
#include "drawing/patterns/line_shapes.h"

#include <algorithm>
#include <cmath>

namespace drafton {
namespace {

/// Lines of more corners have none shorter than this, in pixels.
constexpr double kShortest = 1.2;
/// Line types' texts and shapes reach no further from their line, in their own sizes.
constexpr double kOrnamentReach = 12;
constexpr double kMoreThanWhole = 1e-6;

/// True for the direction of a text that stands on its head, or reads downwards.
bool isRunningBackwards(const OdGeVector3d& along) {
  const double tiny = 1e-9 * along.length();
  return along.x < -tiny || (along.x <= tiny && along.y < 0);
}

} // namespace

DrawingScales::DrawingScales(const OdDbDatabase& database)
  : linetypeScale(database.sysVarReal("LTSCALE"))
  , pointMode(static_cast<int>(database.sysVarInt("PDMODE")))
  , pointSize(database.sysVarReal("PDSIZE")) {
  dashesByPaper = database.sysVarInt("PSLTSCALE") != 0;
  if (!(linetypeScale > 0)) linetypeScale = 1;
  if (const auto weight = database.getSysVar(QStringLiteral("LWDEFAULT")))
    if (const auto* value = std::get_if<std::int64_t>(&*weight))
      defaultWeight = static_cast<double>(*value);
}

PiecePainter::PiecePainter(Surface& surface, const RenderOptions& options,
                           const DrawingScales& scales)
  : m_surface(surface)
  , m_options(options)
  , m_scales(scales) {}

void PiecePainter::setProjection(const Projection& projection, double scale) {
  m_projection = &projection;
  m_scale = scale;
}

void PiecePainter::setStyle(const Style& style, const DashPattern& linetype) {
  m_style = style;
  m_linetype = &linetype;
  m_color = withAlpha(m_options.ground.paint(style.color), style.alpha);
  m_width = 1;
  if (m_options.showsLineWeights) {
    const double weight =
        style.lineWeight < 0 ? m_scales.defaultWeight : static_cast<double>(style.lineWeight);
    m_width = weight / 100 * m_options.pixelsPerMillimetre;
  }
}

void PiecePainter::setHalo(QRgb color, double extraWidth) {
  m_haloColor = color;
  m_haloWidth = extraWidth;
}

void PiecePainter::applyColor(const Piece& piece) {
  QRgb color = m_color;
  if (piece.hasColor) {
    // By layer and by block mean the entity's own colour, as it is resolved already.
    const auto method = static_cast<OdCmColor::Method>(piece.color >> 24);
    if (method == OdCmColor::kByACI || method == OdCmColor::kByColor)
      color = withAlpha(m_options.ground.paint(piece.color), m_style.alpha);
    else if (method == OdCmColor::kNone)
      color = m_options.ground.color();
  }
  if (m_haloWidth > 0) color = m_haloColor;
  m_surface.setPen(color, m_width + m_haloWidth);
}

void PiecePainter::draw(const ShapeList& list, const Piece& piece, const QRectF& itemBox) {
  applyColor(piece);
  switch (piece.kind) {
  case PieceKind::kPolyline:
  case PieceKind::kRing:
    polyline(list.pointsOf(piece), piece.kind == PieceKind::kRing);
    break;
  case PieceKind::kArc:
    arc(list.arcs[piece.first]);
    break;
  case PieceKind::kXline:
  case PieceKind::kRay:
    endless(list.pointsOf(piece), piece.kind == PieceKind::kXline);
    break;
  case PieceKind::kWide: {
    const WidePiece& line = list.wides[piece.first];
    wide(list.pointsOf(line), line.dashesRunThrough);
    break;
  }
  case PieceKind::kArea:
    area(list, list.areas[piece.first]);
    break;
  case PieceKind::kGradient:
    gradient(list, list.gradients[piece.first]);
    break;
  case PieceKind::kStrokes:
    strokes(list, piece, itemBox);
    break;
  case PieceKind::kPattern:
    pattern(list, list.patterns[piece.first]);
    break;
  case PieceKind::kText:
    text(list.texts[piece.first], static_cast<double>(piece.length));
    break;
  case PieceKind::kPoint:
    mark(list.marks[piece.first]);
    break;
  case PieceKind::kBlock:
  case PieceKind::kImage:
  case PieceKind::kViewport:
    break; // these hold drawings of their own
  }
}

void PiecePainter::drawSpeck(const QPointF& at) {
  m_surface.setPen(m_haloWidth > 0 ? m_haloColor : m_color, m_haloWidth);
  m_surface.dot(at);
}

bool PiecePainter::isDashed() const {
  if (m_linetype == nullptr || m_linetype->isContinuous()) return false;
  const double length = m_linetype->length() * m_scales.linetypeScale * m_style.linetypeScale *
                        m_windowScale * m_scale;
  return length >= kFinestPattern;
}

void PiecePainter::polyline(std::span<const OdGePoint3d> points, bool closed) {
  if (points.size() > 1 && isDashed())
    dashed(points, closed);
  else
    plainLine(points, closed);
}

void PiecePainter::endless(std::span<const OdGePoint3d> points, bool bothWays) {
  const OdGeVector3d way = points[1] - points[0];
  const double reach = 2 * m_surface.penWidth();
  const auto seen = seenPart(points[0], way, bothWays, *m_projection,
                             m_surface.clipRect().adjusted(-reach, -reach, reach, reach));
  if (!seen) return;
  auto [first, last] = *seen;
  if (isDashed()) {
    // Whole patterns from the point on, so that dashes stay where they are however much is seen.
    const double pattern =
        m_linetype->length() * m_scales.linetypeScale * m_style.linetypeScale * m_windowScale;
    first = bothWays ? (std::floor(first / pattern) - 1) * pattern : 0;
    // A little more than whole, so that rounding does not leave one out.
    last = (std::ceil(last / pattern) + 1 + kMoreThanWhole) * pattern;
  }
  const OdGePoint3d ends[] = {points[0] + way * first, points[0] + way * last};
  polyline(ends, false);
}

void PiecePainter::plainLine(std::span<const OdGePoint3d> points, bool closed) {
  const Projection& project = *m_projection;
  if (points.size() == 2 && !closed) return m_surface.line(project(points[0]), project(points[1]));
  m_buffer.clear();
  for (const OdGePoint3d& p : points) {
    const QPointF at = project(p);
    // Corners that fall into one pixel are one; many short lines would also be too dark.
    if (m_options.simplifies && !m_buffer.empty() && &p != &points.back() &&
        (at - m_buffer.back()).manhattanLength() < kShortest)
      continue;
    m_buffer.push_back(at);
  }
  m_surface.polyline(m_buffer, closed);
}

void PiecePainter::dashed(std::span<const OdGePoint3d> points, bool closed, double halfWidth,
                          DashWalker::DrawDash drawDash) {
  const double scale = m_scales.linetypeScale * m_style.linetypeScale * m_windowScale;
  double reach = 2 * m_surface.penWidth() + 2 * halfWidth * m_scale;
  for (const DashOrnament& o : m_linetype->ornaments())
    reach = std::max(reach, kOrnamentReach * std::abs(o.scale) * scale * m_scale);
  DashWalker walker(
      m_surface, *m_projection, *m_linetype, scale, reach,
      [this](const DashOrnament& o, const OdGePoint3d& at, const OdGeVector3d& along) {
        ornament(o, at, along);
      },
      std::move(drawDash));
  walker.draw(points, closed);
}

void PiecePainter::ornament(const DashOrnament& ornament, const OdGePoint3d& at,
                            const OdGeVector3d& along) {
  const double scale = m_scales.linetypeScale * m_style.linetypeScale * m_windowScale;
  const OdGeVector3d across{-along.y, along.x, 0};
  const OdGePoint3d origin =
      at + along * (ornament.offset.x * scale) + across * (ornament.offset.y * scale);
  const OdGeVector3d base = ornament.isAbsolute ? OdGeVector3d::xAxis() : along;
  const OdGeVector3d up = ornament.isAbsolute ? OdGeVector3d::yAxis() : across;
  const double size = ornament.scale * scale;
  const double c = std::cos(ornament.angle) * size, s = std::sin(ornament.angle) * size;
  OdGeVector3d x = base * c + up * s, y = up * c - base * s;
  const bool isUpsideDown = ornament.isUpright && isRunningBackwards(x);
  if (!ornament.text.isEmpty()) {
    OdGiTextRun run;
    run.text = ornament.text;
    run.font = ornament.font;
    const double advance = OdGiTextMetrics::current().advance(run.text, run.font);
    // Round its middle, so that it stays in its gap.
    run.origin = isUpsideDown ? origin + x * advance + y : origin;
    run.along = isUpsideDown ? -x : x;
    run.up = isUpsideDown ? -y : y;
    return text(run, advance);
  }
  if (isUpsideDown) {
    x = -x;
    y = -y;
  }
  const OdLineShape* const shape = odpattern::findShape(ornament.shape);
  if (shape == nullptr) return;
  for (const auto& line : odpattern::shapeLines(*shape)) {
    std::vector<QPointF> shown;
    for (const OdGePoint2d& p : line) shown.push_back((*m_projection)(origin + x * p.x + y * p.y));
    m_surface.polyline(shown, false);
  }
}

} // namespace drafton
