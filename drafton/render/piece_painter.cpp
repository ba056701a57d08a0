#include "drafton/render/piece_painter.h"

#include "drafton/render/endless_line.h"
#include "drafton/render/gradient_brush.h"
#include "drafton/render/text_shapes.h"
#include "drawing/patterns/line_shapes.h"
#include "drawing/patterns/pattern_strokes.h"

#include <algorithm>
#include <cmath>

namespace drafton {
namespace {

/// How far a chord may leave its curve, in pixels.
constexpr double kChordError = 0.2;
/// Lines of more corners have none shorter than this, in pixels.
constexpr double kShortest = 1.2;
/// Arcs with more chords than this are cut down to what is seen of them.
constexpr int kManyChords = 400;
constexpr int kDeepestCut = 40;
/// A painter's curves end some ten thousand pixels away.
constexpr double kFarRadius = 20000;
/// Texts lower than this are shown as strips.
constexpr double kLowestText = 3;
/// The part of an area's pixels that a pattern may cover before it is thinned out.
constexpr double kDensestStrokes = 0.6;
/// How much colour stands for a pattern that is too dense or too large to draw.
constexpr double kLightestTint = 0.25, kDarkestTint = 0.75;
/// Line types' texts and shapes reach no further from their line, in their own sizes.
constexpr double kOrnamentReach = 12;
/// Points without a size are this part of the picture's height.
constexpr double kUsualPointPart = 0.05;
constexpr double kMoreThanWhole = 1e-6;
/// Dashes are walked along chords of an arc.
constexpr int kMostDashChords = 20000;

QRgb withAlpha(QRgb color, std::uint8_t alpha) { return (color & 0xFFFFFFu) | QRgb{alpha} << 24; }

double lengthOf(const QPointF& p) { return std::sqrt(QPointF::dotProduct(p, p)); }

/// Where a text may have ink.
QRectF placedReach(const QPointF& along, const QPointF& up, const QPointF& origin, double advance,
                   double depth) {
  constexpr double kAround = 2;
  const double reach =
      lengthOf(along) * (std::abs(advance) + kAround) + lengthOf(up) * (depth + kAround);
  return {origin.x() - reach, origin.y() - reach, 2 * reach, 2 * reach};
}

/// Chords of an arc whose radius on the picture is `radius`.
int chordCount(double radius, double sweep) {
  if (!(radius > kChordError)) return 1;
  // The cosine of small angles, solved for the angle.
  const double step = 2 * std::sqrt(2 * kChordError / radius);
  return static_cast<int>(std::clamp(std::ceil(std::abs(sweep) / step), 1.0, 1e7));
}

/// True for the direction of a text that stands on its head, or reads downwards.
bool isRunningBackwards(const OdGeVector3d& along) {
  const double tiny = 1e-9 * along.length();
  return along.x < -tiny || (along.x <= tiny && along.y < 0);
}

/// Cosine and sine, for small angles without the price of exact ones.
std::pair<double, double> turnBy(double angle) {
  constexpr double kSmall = 0.4;
  if (std::abs(angle) > kSmall) return {std::cos(angle), std::sin(angle)};
  const double q = angle * angle;
  return {1 - q / 2 * (1 - q / 12 * (1 - q / 30 * (1 - q / 56 * (1 - q / 90)))),
          angle * (1 - q / 6 * (1 - q / 20 * (1 - q / 42 * (1 - q / 72))))};
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

void PiecePainter::arc(const OdGiArc& arc) {
  const Projection& project = *m_projection;
  const double radius = std::max(lengthOf(project(arc.u)), lengthOf(project(arc.v)));
  const int count = chordCount(radius, arc.sweep);
  if (isDashed()) {
    m_chords.clear();
    const int chords = std::min(count, kMostDashChords);
    for (int i = 0; i <= chords; ++i)
      m_chords.push_back(arc.pointAt(arc.start + arc.sweep * i / chords));
    return dashed(m_chords, false);
  }
  if (!m_options.simplifies && std::abs(radius) < kFarRadius) return smoothArc(arc);
  const QPointF first = project(arc.pointAt(arc.start));
  if (count > kManyChords) {
    const QPointF last = project(arc.pointAt(arc.start + arc.sweep));
    // Halves of a turn at most, so that a chord tells where its arc may reach.
    const int parts = 8;
    QPointF from = first;
    for (int i = 0; i < parts; ++i) {
      const double t0 = arc.start + arc.sweep * i / parts;
      const double t1 = arc.start + arc.sweep * (i + 1) / parts;
      const QPointF to = i + 1 == parts ? last : project(arc.pointAt(t1));
      arcPart(arc, t0, t1, from, to, 0);
      from = to;
    }
    return;
  }
  // The points turn on by the same angle each time, which needs one sine and cosine in all.
  const QPointF center = project(arc.center), u = project(arc.u), v = project(arc.v);
  const auto [turnCos, turnSin] = turnBy(arc.sweep / count);
  double c = 1, s = 0;
  if (arc.start != 0) {
    c = std::cos(arc.start);
    s = std::sin(arc.start);
  }
  const bool closed = arc.isClosed();
  m_buffer.clear();
  for (int i = 0; i <= count - (closed && count > 2 ? 1 : 0); ++i) {
    m_buffer.push_back(center + u * c + v * s);
    const double next = c * turnCos - s * turnSin;
    s = s * turnCos + c * turnSin;
    c = next;
  }
  m_surface.polyline(m_buffer, closed && count > 2);
}

/// An arc as a curve, for pages.
void PiecePainter::smoothArc(const OdGiArc& arc) {
  const Projection& project = *m_projection;
  const QPointF center = project(arc.center), u = project(arc.u), v = project(arc.v);
  const int parts = std::max(1, static_cast<int>(std::ceil(std::abs(arc.sweep) / (kOdaPi / 2))));
  const double step = arc.sweep / parts;
  // How far the handles of a curve reach along its tangents.
  const double reach = 4.0 / 3 * std::tan(step / 4);
  QPainterPath path;
  const auto at = [&](double angle) { return u * std::cos(angle) + v * std::sin(angle); };
  const auto along = [&](double angle) { return v * std::cos(angle) - u * std::sin(angle); };
  path.moveTo(center + at(arc.start));
  for (int i = 0; i < parts; ++i) {
    const double from = arc.start + step * i, to = from + step;
    path.cubicTo(center + at(from) + along(from) * reach, center + at(to) - along(to) * reach,
                 center + at(to));
  }
  if (arc.isClosed()) path.closeSubpath();
  m_surface.outline(path);
}

void PiecePainter::arcPart(const OdGiArc& arc, double from, double to, const QPointF& a,
                           const QPointF& b, int depth) {
  const Projection& project = *m_projection;
  const double radius = std::max(lengthOf(project(arc.u)), lengthOf(project(arc.v)));
  const double angle = std::abs(to - from);
  // How far the arc leaves its chord.
  const double rise = radius * angle * angle / 8;
  const double reach = rise + m_surface.penWidth();
  const QRectF box = QRectF(a, b).normalized().adjusted(-reach, -reach, reach, reach);
  if (!box.intersects(m_surface.clipRect())) return;
  if (rise < kChordError || depth > kDeepestCut) return m_surface.line(a, b);
  const double middle = (from + to) / 2;
  const QPointF at = project(arc.pointAt(middle));
  arcPart(arc, from, middle, a, at, depth + 1);
  arcPart(arc, middle, to, at, b, depth + 1);
}

std::vector<QPolygonF> PiecePainter::ringsOf(const ShapeList& list, const AreaPiece& area) const {
  std::vector<QPolygonF> rings(area.ringCount);
  for (std::uint32_t r = 0; r < area.ringCount; ++r) {
    const auto ring = list.ring(area.firstRing + r);
    rings[r].reserve(static_cast<qsizetype>(ring.size()));
    for (const OdGePoint3d& p : ring) rings[r] << (*m_projection)(p);
  }
  return rings;
}

void PiecePainter::area(const ShapeList& list, const AreaPiece& area) {
  if (area.ringCount == 1) {
    // What is thinner than a pixel is a line, so that it does not fade away.
    const auto ring = list.ring(area.firstRing);
    double doubled = 0, around = 0;
    QPointF before = (*m_projection)(ring.back());
    for (const OdGePoint3d& p : ring) {
      const QPointF at = (*m_projection)(p);
      doubled += before.x() * at.y() - before.y() * at.x();
      around += lengthOf(at - before);
      before = at;
    }
    if (std::abs(doubled) < around) return plainLine(ring, true);
  }
  m_surface.fill(ringsOf(list, area), Qt::OddEvenFill);
}

void PiecePainter::gradient(const ShapeList& list, const GradientPiece& piece) {
  const double c = std::cos(piece.gradient.angle), s = std::sin(piece.gradient.angle);
  QPolygonF corners;
  QPainterPath path;
  for (const QPolygonF& ring : ringsOf(list, piece.area)) {
    corners << ring;
    path.addPolygon(ring);
    path.closeSubpath();
  }
  const QBrush brush =
      gradientBrush(piece.gradient, corners, (*m_projection)(OdGeVector3d{c, s, 0}),
                    (*m_projection)(OdGeVector3d{-s, c, 0}), m_options.ground, m_style.alpha);
  m_surface.painter().fillPath(m_surface.cut(std::move(path)), brush);
}

void PiecePainter::strokes(const ShapeList& list, const Piece& piece, const QRectF& itemBox) {
  const auto ends = list.pointsOf(piece);
  const double extent = std::max(1.0, itemBox.width() * itemBox.height());
  const double ink =
      std::max(static_cast<double>(piece.length) * m_scale, static_cast<double>(ends.size()) / 2);
  std::size_t every = 1;
  if (m_options.simplifies && ink > extent * kDensestStrokes)
    every = static_cast<std::size_t>(std::ceil(ink / (extent * kDensestStrokes)));
  for (std::size_t i = 0; i + 1 < ends.size(); i += 2 * every) stroke(ends[i], ends[i + 1]);
}

void PiecePainter::stroke(const OdGePoint3d& from, const OdGePoint3d& to) {
  const QPointF a = (*m_projection)(from), b = (*m_projection)(to);
  if (a == b)
    m_surface.dot(a);
  else
    m_surface.line(a, b);
}

void PiecePainter::pattern(const ShapeList& list, const PatternPiece& pattern) {
  const double cover = m_scale > 0 ? pattern.ink / m_scale : 0;
  if (m_haloWidth > 0 || !m_options.simplifies || cover < kDensestStrokes) {
    const auto ends = std::span(list.points).subspan(pattern.firstStroke, pattern.strokeCount);
    for (std::size_t i = 0; i + 1 < ends.size(); i += 2) stroke(ends[i], ends[i + 1]);
    if (pattern.rings.empty() || seenStrokes(pattern)) return;
  }
  // The eye sees a tint where lines are so close.
  const double tint = std::clamp(cover, kLightestTint, kDarkestTint);
  m_surface.setPen(withAlpha(m_color, static_cast<std::uint8_t>(qAlpha(m_color) * tint)), m_width);
  m_surface.fill(ringsOf(list, pattern.area), Qt::OddEvenFill);
}

/// Draws the part of a large pattern that is seen; false if that is still too much.
bool PiecePainter::seenStrokes(const PatternPiece& pattern) {
  bool canInvert = false;
  const QTransform back = m_projection->planeOf(pattern.toWorld).inverted(&canInvert);
  if (!canInvert) return false;
  const QRectF seen = back.mapRect(m_surface.clipRect());
  odpattern::Rings rings;
  for (const auto& ring : pattern.rings) {
    QPolygonF polygon;
    for (const OdGePoint2d& p : ring) polygon << QPointF(p.x, p.y);
    auto& cut = rings.emplace_back();
    for (const QPointF& p : cutPolygon(polygon, seen)) cut.push_back({p.x(), p.y()});
    if (cut.size() < 3) rings.pop_back();
  }
  m_ends.clear();
  if (!odpattern::appendStrokes(rings, pattern.lines, odpattern::kUsualLimit, m_ends)) return false;
  for (std::size_t i = 0; i + 1 < m_ends.size(); i += 2)
    stroke(pattern.toWorld * OdGePoint3d{m_ends[i].x, m_ends[i].y, 0},
           pattern.toWorld * OdGePoint3d{m_ends[i + 1].x, m_ends[i + 1].y, 0});
  return true;
}

void PiecePainter::text(const OdGiTextRun& run, double advance) {
  const QPointF along = (*m_projection)(run.along), up = (*m_projection)(run.up);
  const QPointF origin = (*m_projection)(run.origin);
  QRgb color = m_color;
  if (run.color && !run.color->isByLayer() && !run.color->isByBlock())
    color = withAlpha(m_options.ground.paint(run.color->color()), m_style.alpha);
  if (m_haloWidth > 0) color = m_haloColor;
  if (m_options.simplifies && lengthOf(up) < kLowestText) {
    const QPointF from = origin + up * 0.5;
    m_surface.setPen(withAlpha(color, static_cast<std::uint8_t>(qAlpha(color) / 2)),
                     std::max(1.0, lengthOf(up) * 0.7));
    m_surface.line(from, from + along * advance);
    return;
  }
  const QRectF reach = placedReach(
      along, up, origin, advance,
      run.font.vertical ? TextShapes::kColumnStep * static_cast<double>(run.text.size()) : 0);
  if (!m_surface.clipRect().intersects(reach)) return;
  const TextShape& shape = TextShapes::instance().shape(run.text, run.font, run.tracking);
  const QTransform placed(along.x(), along.y(), up.x(), up.y(), origin.x(), origin.y());
  m_surface.setPen(color, m_width);
  const bool hasBars = run.underlined || run.overlined || run.struckThrough;
  if (m_options.simplifies && !hasBars && lengthOf(up) < TextShapes::kContourHeight) {
    const auto& contours = lengthOf(up) < TextShapes::kCoarseHeight ? shape.coarse : shape.contours;
    if (m_rings.size() < contours.size()) m_rings.resize(contours.size());
    for (std::size_t i = 0; i < contours.size(); ++i) {
      m_rings[i].resize(contours[i].size());
      std::ranges::transform(contours[i], m_rings[i].begin(),
                             [&](const QPointF& p) { return origin + along * p.x() + up * p.y(); });
    }
    return m_surface.fill(std::span(m_rings).first(contours.size()), Qt::WindingFill);
  }
  if (m_surface.hasFonts() && !hasBars && !shape.letters.isEmpty()) {
    // Letters are smaller in the file than their outlines, and can be searched for.
    QPainter& painter = m_surface.painter();
    const QTransform before = painter.transform();
    painter.setTransform(shape.lettersToUnit * placed, true);
    painter.setPen(QColor::fromRgba(color));
    for (const QGlyphRun& letters : shape.letters) painter.drawGlyphRun({0, 0}, letters);
    painter.setTransform(before);
    return;
  }
  QPainterPath path = m_surface.cut(placed.map(shape.path));
  path.setFillRule(Qt::WindingFill);
  // Where the lines of text stand: under, over and through it.
  constexpr double kUnder = -0.2, kOver = 1.2, kThrough = 0.45, kThick = 0.07;
  const auto bar = [&](bool wanted, double height) {
    if (!wanted) return;
    QPainterPath line;
    line.addRect(QRectF(0, height - kThick / 2, shape.advance, kThick));
    path.addPath(placed.map(line));
  };
  bar(run.underlined, kUnder);
  bar(run.overlined, kOver);
  bar(run.struckThrough, kThrough);
  m_surface.fill(path);
}

void PiecePainter::mark(const PointPiece& point) {
  // The form in the low bits, a circle and a square around it above.
  constexpr int kNothing = 1, kPlus = 2, kCross = 3, kTick = 4, kCircle = 32, kSquare = 64;
  const int form = m_scales.pointMode & 7;
  const QPointF at = (*m_projection)(point.position);
  if (form == 0) m_surface.dot(at);
  double size = m_scales.pointSize * m_scale;
  if (m_scales.pointSize <= 0) {
    const double part = m_scales.pointSize < 0 ? -m_scales.pointSize / 100 : kUsualPointPart;
    size = part * m_pictureHeight;
  }
  const double half = size / 2;
  const auto stroke = [&](double x0, double y0, double x1, double y1) {
    m_surface.line(at + QPointF(x0, y0), at + QPointF(x1, y1));
  };
  if (form == kPlus) {
    stroke(-size, 0, size, 0);
    stroke(0, -size, 0, size);
  } else if (form == kCross) {
    stroke(-size, -size, size, size);
    stroke(-size, size, size, -size);
  } else if (form == kTick) {
    stroke(0, 0, 0, -half);
  } else if (form != kNothing && form != 0) {
    m_surface.dot(at);
  }
  m_buffer.clear();
  if (m_scales.pointMode & kCircle) {
    const int count = std::max(8, chordCount(half, 2 * kOdaPi));
    for (int i = 0; i < count; ++i)
      m_buffer.push_back(at + QPointF(half * std::cos(2 * kOdaPi * i / count),
                                      half * std::sin(2 * kOdaPi * i / count)));
    m_surface.polyline(m_buffer, true);
  }
  if (m_scales.pointMode & kSquare) {
    m_buffer = {at + QPointF(-half, -half), at + QPointF(half, -half), at + QPointF(half, half),
                at + QPointF(-half, half)};
    m_surface.polyline(m_buffer, true);
  }
}

} // namespace drafton
