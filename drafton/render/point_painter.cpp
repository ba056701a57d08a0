// Draws points as the drawing's variables have them look.
#include "drafton/render/chords.h"
#include "drafton/render/piece_painter.h"

#include <algorithm>
#include <cmath>

namespace drafton {
namespace {

/// Points without a size are this part of the picture's height.
constexpr double kUsualPointPart = 0.05;

} // namespace

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
