// Draws texts.
#include "drafton/render/chords.h"
#include "drafton/render/piece_painter.h"
#include "drafton/render/pixel_mix.h"
#include "drafton/render/text_shapes.h"

#include <algorithm>

namespace drafton {
namespace {

/// Texts lower than this are shown as strips.
constexpr double kLowestText = 3;

} // namespace

/// Where a text of height 1 comes to lie on the picture.
struct PiecePainter::TextPlace {
  QPointF origin, along, up;

  double height() const { return lengthOf(up); }
  QPointF operator()(const QPointF& p) const { return origin + along * p.x() + up * p.y(); }
  QTransform transform() const {
    return {along.x(), along.y(), up.x(), up.y(), origin.x(), origin.y()};
  }
  /// Where the text may have ink.
  QRectF reach(double advance, double depth) const {
    constexpr double kAround = 2;
    const double reach =
        lengthOf(along) * (std::abs(advance) + kAround) + lengthOf(up) * (depth + kAround);
    return {origin.x() - reach, origin.y() - reach, 2 * reach, 2 * reach};
  }
};

void PiecePainter::text(const OdGiTextRun& run, double advance) {
  const TextPlace place{(*m_projection)(run.origin), (*m_projection)(run.along),
                        (*m_projection)(run.up)};
  const QRgb color = textColor(run);
  if (m_options.simplifies && place.height() < kLowestText) return textStrip(place, advance, color);
  const double depth =
      run.font.vertical ? TextShapes::kColumnStep * static_cast<double>(run.text.size()) : 0;
  if (!m_surface.clipRect().intersects(place.reach(advance, depth))) return;
  const TextShape& shape = TextShapes::instance().shape(run.text, run.font, run.tracking);
  m_surface.setPen(color, m_width);
  const bool hasBars = run.underlined || run.overlined || run.struckThrough;
  if (m_options.simplifies && !hasBars && place.height() < TextShapes::kContourHeight)
    return textContours(shape, place);
  if (m_surface.hasFonts() && !hasBars && !shape.letters.isEmpty())
    return textLetters(shape, place, color);
  textOutline(shape, place, run);
}

QRgb PiecePainter::textColor(const OdGiTextRun& run) const {
  if (m_haloWidth > 0) return m_haloColor;
  if (!run.color || run.color->isByLayer() || run.color->isByBlock()) return m_color;
  return withAlpha(m_options.ground.paint(run.color->color()), m_style.alpha);
}

void PiecePainter::textStrip(const TextPlace& place, double advance, QRgb color) {
  const QPointF from = place.origin + place.up * 0.5;
  m_surface.setPen(withAlpha(color, static_cast<std::uint8_t>(qAlpha(color) / 2)),
                   std::max(1.0, place.height() * 0.7));
  m_surface.line(from, from + place.along * advance);
}

void PiecePainter::textContours(const TextShape& shape, const TextPlace& place) {
  const auto& contours = place.height() < TextShapes::kCoarseHeight ? shape.coarse : shape.contours;
  if (m_rings.size() < contours.size()) m_rings.resize(contours.size());
  for (std::size_t i = 0; i < contours.size(); ++i) {
    m_rings[i].resize(contours[i].size());
    std::ranges::transform(contours[i], m_rings[i].begin(), place);
  }
  m_surface.fill(std::span(m_rings).first(contours.size()), Qt::WindingFill);
}

/// Letters are smaller in the file than their outlines, and can be searched for.
void PiecePainter::textLetters(const TextShape& shape, const TextPlace& place, QRgb color) {
  QPainter& painter = m_surface.painter();
  const QTransform before = painter.transform();
  painter.setTransform(shape.lettersToUnit * place.transform(), true);
  painter.setPen(QColor::fromRgba(color));
  for (const QGlyphRun& letters : shape.letters) painter.drawGlyphRun({0, 0}, letters);
  painter.setTransform(before);
}

void PiecePainter::textOutline(const TextShape& shape, const TextPlace& place,
                               const OdGiTextRun& run) {
  const QTransform placed = place.transform();
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

} // namespace drafton
