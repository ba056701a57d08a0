#include "drafton/render/thin_lines.h"

#include <algorithm>
#include <cmath>

namespace drafton {
namespace {

/// Less ink than this, of 256, is not seen.
constexpr unsigned kFaint = 10;

/// Goes the part `ink` / 256 of the way from one colour to another, in all channels at once.
inline QRgb mixed(QRgb from, QRgb to, unsigned ink) {
  constexpr QRgb kOdd = 0xFF00FFu;
  const QRgb low = (from & kOdd) + (((to & kOdd) - (from & kOdd)) * ink >> 8);
  const QRgb high = (from >> 8 & kOdd) + (((to >> 8 & kOdd) - (from >> 8 & kOdd)) * ink >> 8);
  return (low & kOdd) | (high & kOdd) << 8;
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
  m_alpha = static_cast<unsigned>(qAlpha(color)) * kFull / 255;
  m_color = color | 0xFF000000u;
}

void ThinLines::draw(QPointF from, QPointF to) {
  if (m_clip.isEmpty()) return;
  // Most lines are seen as a whole, with the pixels beside them.
  const double left = m_clip.left() + 1, right = m_clip.right() - 1;
  const double top = m_clip.top() + 1, bottom = m_clip.bottom() - 1;
  const bool isInside = from.x() >= left && from.x() <= right && to.x() >= left &&
                        to.x() <= right && from.y() >= top && from.y() <= bottom && to.y() >= top &&
                        to.y() <= bottom;
  if (!isInside) {
    double enters = 0, leaves = 1;
    if (!clipLine(QRectF(m_clip).adjusted(-1, -1, 1, 1), from, to, enters, leaves)) return;
    const QPointF way = to - from;
    to = from + way * leaves;
    from = from + way * enters;
  }
  const bool isSteep = std::abs(to.y() - from.y()) > std::abs(to.x() - from.x());
  if (isSteep ? from.y() > to.y() : from.x() > to.x()) std::swap(from, to);
  if (isSteep) {
    if (isInside)
      walk<true, true>(from.y(), from.x(), to.y(), to.x());
    else
      walk<true, false>(from.y(), from.x(), to.y(), to.x());
  } else if (isInside) {
    walk<false, true>(from.x(), from.y(), to.x(), to.y());
  } else {
    walk<false, false>(from.x(), from.y(), to.x(), to.y());
  }
}

/// Steps along the longer axis and shares each step's ink between the two pixels across.
template <bool kIsSteep, bool kIsInside>
void ThinLines::walk(double along0, double across0, double along1, double across1) {
  const double length = along1 - along0;
  const double slope = length > 1e-9 ? (across1 - across0) / length : 0;
  // Pixel centres are at halves. A line always shows at least one pixel.
  const int first = static_cast<int>(std::floor(along0));
  const int last = std::max(first, static_cast<int>(std::ceil(along1)) - 1);
  constexpr double kFraction = 65536;
  auto across =
      static_cast<std::int64_t>((across0 + (first + 0.5 - along0) * slope - 0.5) * kFraction);
  const auto step = static_cast<std::int64_t>(slope * kFraction);
  const auto put = [&](int x, int y, unsigned ink) {
    if constexpr (!kIsInside)
      if (x < m_clip.left() || x > m_clip.right() || y < m_clip.top() || y > m_clip.bottom())
        return;
    QRgb& pixel = reinterpret_cast<QRgb*>(m_bits + y * m_bytesPerLine)[x];
    pixel = mixed(pixel, m_color, ink);
  };
  for (int at = first; at <= last; ++at, across += step) {
    unsigned ink = m_alpha;
    // The ends cover a part of their pixels only.
    if (at == first || at == last) {
      const double covered = std::min(along1, at + 1.0) - std::max(along0, double(at));
      ink = static_cast<unsigned>(std::clamp(covered, first == last ? 0.5 : 0.1, 1.0) * m_alpha);
    }
    const int whole = static_cast<int>(across >> 16);
    const unsigned far = static_cast<unsigned>(across >> 8 & 0xFF) * ink >> 8;
    const unsigned near = ink - far;
    if (near >= kFaint) kIsSteep ? put(whole, at, near) : put(at, whole, near);
    if (far >= kFaint) kIsSteep ? put(whole + 1, at, far) : put(at, whole + 1, far);
  }
}

} // namespace drafton
