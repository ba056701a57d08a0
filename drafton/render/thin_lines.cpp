#include "drafton/render/thin_lines.h"

#include <algorithm>
#include <cmath>

namespace drafton {
namespace {

constexpr unsigned kFull = 256;

/// All four parts of a colour times `factor` / 256.
QRgb scaled(QRgb color, unsigned factor) {
  const QRgb even = ((color & 0xFF00FFu) * factor >> 8) & 0xFF00FFu;
  const QRgb odd = (color >> 8 & 0xFF00FFu) * factor & 0xFF00FF00u;
  return even | odd;
}

} // namespace

bool clipLine(const QRectF& rect, const QPointF& from, const QPointF& to, double& enters,
              double& leaves) {
  enters = 0;
  leaves = 1;
  const auto cut = [&](double start, double delta, double low, double high) {
    if (delta == 0) return start >= low && start <= high;
    double t0 = (low - start) / delta, t1 = (high - start) / delta;
    if (t0 > t1) std::swap(t0, t1);
    enters = std::max(enters, t0);
    leaves = std::min(leaves, t1);
    return enters <= leaves;
  };
  return cut(from.x(), to.x() - from.x(), rect.left(), rect.right()) &&
         cut(from.y(), to.y() - from.y(), rect.top(), rect.bottom());
}

ThinLines::ThinLines(uchar* bits, qsizetype bytesPerLine, const QSize& size)
  : m_bits(bits)
  , m_bytesPerLine(bytesPerLine)
  , m_bounds(QPoint(0, 0), size)
  , m_clip(m_bounds) {}

void ThinLines::setClip(const QRect& clip) { m_clip = clip & m_bounds; }

void ThinLines::setColor(QRgb color) {
  m_alpha = static_cast<unsigned>(qAlpha(color));
  m_color = qPremultiply(color);
}

inline void ThinLines::blend(int x, int y, unsigned coverage) {
  if (x < m_clip.left() || x > m_clip.right() || y < m_clip.top() || y > m_clip.bottom()) return;
  auto* const pixel = reinterpret_cast<QRgb*>(m_bits + y * m_bytesPerLine) + x;
  const unsigned cover = m_alpha * coverage / 255;
  *pixel = scaled(m_color, coverage) + scaled(*pixel, kFull - std::min(cover, kFull));
}

/// Steps along the longer axis and shares each step's ink between the two pixels across.
void ThinLines::draw(QPointF from, QPointF to) {
  if (m_clip.isEmpty()) return;
  double enters = 0, leaves = 1;
  if (!clipLine(QRectF(m_clip).adjusted(-1, -1, 1, 1), from, to, enters, leaves)) return;
  const QPointF way = to - from;
  to = from + way * leaves;
  from = from + way * enters;
  double dx = std::abs(to.x() - from.x()), dy = std::abs(to.y() - from.y());
  const bool isSteep = dy > dx;
  double along0 = isSteep ? from.y() : from.x(), across0 = isSteep ? from.x() : from.y();
  double along1 = isSteep ? to.y() : to.x(), across1 = isSteep ? to.x() : to.y();
  if (along0 > along1) {
    std::swap(along0, along1);
    std::swap(across0, across1);
  }
  const double length = along1 - along0;
  const double slope = length > 1e-9 ? (across1 - across0) / length : 0;
  // Pixel centres are at halves. A line always shows at least one pixel.
  const int first = static_cast<int>(std::floor(along0));
  const int last = std::max(first, static_cast<int>(std::ceil(along1)) - 1);
  constexpr double kFraction = 65536;
  auto across =
      static_cast<std::int64_t>((across0 + (first + 0.5 - along0) * slope - 0.5) * kFraction);
  const auto step = static_cast<std::int64_t>(slope * kFraction);
  for (int at = first; at <= last; ++at, across += step) {
    // The ends cover a part of their pixels only.
    unsigned ink = kFull;
    if (at == first || at == last) {
      const double covered = std::min(along1, at + 1.0) - std::max(along0, double(at));
      ink = static_cast<unsigned>(std::clamp(covered, first == last ? 0.5 : 0.1, 1.0) * kFull);
    }
    const int whole = static_cast<int>(across >> 16);
    const unsigned far = static_cast<unsigned>(across >> 8 & 0xFF) * ink >> 8;
    const unsigned near = ink - far;
    if (isSteep) {
      if (near != 0) blend(whole, at, near);
      if (far != 0) blend(whole + 1, at, far);
    } else {
      if (near != 0) blend(at, whole, near);
      if (far != 0) blend(at, whole + 1, far);
    }
  }
}

} // namespace drafton
