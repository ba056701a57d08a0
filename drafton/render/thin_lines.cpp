#include "drafton/render/thin_lines.h"

#include "drafton/render/pixel_mix.h"

#include <algorithm>
#include <cmath>

namespace drafton {
namespace {

/// No picture is as large; what is beyond is cut, so that parts of pixels have their numbers.
constexpr double kFar = 1 << 20;

/// Rounds down to parts of a pixel.
std::int32_t parts(double pixels) {
  constexpr std::int32_t kAbove = 1 << 30;
  return static_cast<std::int32_t>(pixels * ThinLine::kPixel + (kAbove + 0.5)) - kAbove;
}

bool isFar(const QPointF& p) { return !(std::abs(p.x()) < kFar && std::abs(p.y()) < kFar); }

} // namespace

bool narrowTo(const QRectF& rect, const QPointF& from, const QPointF& way, double& enters,
              double& leaves) {
  const auto cut = [&](double start, double delta, double low, double high) {
    if (delta == 0) return start >= low && start <= high;
    double t0 = (low - start) / delta, t1 = (high - start) / delta;
    if (t0 > t1) std::swap(t0, t1);
    enters = std::max(enters, t0);
    leaves = std::min(leaves, t1);
    return enters <= leaves;
  };
  return cut(from.x(), way.x(), rect.left(), rect.right()) &&
         cut(from.y(), way.y(), rect.top(), rect.bottom());
}

bool clipLine(const QRectF& rect, const QPointF& from, const QPointF& to, double& enters,
              double& leaves) {
  enters = 0;
  leaves = 1;
  return narrowTo(rect, from, to - from, enters, leaves);
}

bool roundLine(QPointF from, QPointF to, ThinLine& line) {
  if (isFar(from) || isFar(to)) {
    double enters = 0, leaves = 1;
    if (!clipLine(QRectF(-kFar, -kFar, 2 * kFar, 2 * kFar), from, to, enters, leaves)) return false;
    const QPointF way = to - from;
    to = from + way * leaves;
    from += way * enters;
  }
  line = {parts(from.x()), parts(from.y()), parts(to.x()), parts(to.y())};
  return true;
}

ThinLines::ThinLines(uchar* bits, qsizetype bytesPerLine, const QSize& size)
  : m_bits(bits)
  , m_bytesPerLine(bytesPerLine)
  , m_bounds(QPoint(0, 0), size) {
  setClip(m_bounds);
}

void ThinLines::setClip(const QRect& clip) {
  const QRect cut = clip & m_bounds;
  m_left = cut.left();
  m_top = cut.top();
  m_right = cut.right();
  m_bottom = cut.bottom();
}

void ThinLines::setColor(QRgb color) {
  m_alpha = static_cast<unsigned>(qAlpha(color)) * kFull / 255;
  m_color = color | 0xFF000000u;
}

void ThinLines::draw(const ThinLine& line) {
  if (std::abs(line.y1 - line.y0) > std::abs(line.x1 - line.x0))
    draw<true>(line.y0, line.x0, line.y1, line.x1);
  else
    draw<false>(line.x0, line.y0, line.x1, line.y1);
}

template <bool kIsSteep>
void ThinLines::draw(std::int32_t along0, std::int32_t across0, std::int32_t along1,
                     std::int32_t across1) {
  if (along0 > along1) {
    std::swap(along0, along1);
    std::swap(across0, across1);
  }
  // The pixels that may have ink; the ends reach on to the middles of their pixels.
  const int first = along0 >> ThinLine::kShift;
  const int last = std::max(first, (along1 - 1) >> ThinLine::kShift);
  const auto [low, high] = std::minmax(across0, across1);
  const int near = (low - ThinLine::kPixel) >> ThinLine::kShift;
  const int far = (high >> ThinLine::kShift) + 1;
  const int alongLow = kIsSteep ? m_top : m_left, alongHigh = kIsSteep ? m_bottom : m_right;
  const int acrossLow = kIsSteep ? m_left : m_top, acrossHigh = kIsSteep ? m_right : m_bottom;
  if (first >= alongLow && last <= alongHigh && near >= acrossLow && far <= acrossHigh)
    walk<kIsSteep, true>(along0, across0, along1, across1);
  else if (first <= alongHigh && last >= alongLow && near <= acrossHigh && far >= acrossLow)
    walk<kIsSteep, false>(along0, across0, along1, across1);
}

/// Steps along the longer axis and shares each step's ink between the two pixels across.
template <bool kIsSteep, bool kIsInside>
void ThinLines::walk(std::int32_t along0, std::int32_t across0, std::int32_t along1,
                     std::int32_t across1) {
  constexpr int kPixel = ThinLine::kPixel, kFine = 32, kMore = kFine - ThinLine::kShift;
  const int length = along1 - along0;
  // How far a step leads across, and where the middle of the first pixel is, finely.
  const auto step = length > 0 ? static_cast<std::int64_t>(double(across1 - across0) / length *
                                                           double(std::int64_t{1} << kFine))
                               : 0;
  int first = along0 >> ThinLine::kShift;
  int last = std::max(first, (along1 - 1) >> ThinLine::kShift);
  // A line always shows at least one pixel, and the ends cover a part of their pixels only.
  const auto covered = [&](int at) {
    const int part = std::min(along1, (at + 1) * kPixel) - std::max(along0, at * kPixel);
    return std::max(part, first == last ? kPixel / 2 : kPixel / 10);
  };
  const unsigned firstInk = static_cast<unsigned>(covered(first)) * m_alpha >> ThinLine::kShift;
  const unsigned lastInk = static_cast<unsigned>(covered(last)) * m_alpha >> ThinLine::kShift;
  std::int64_t across = (std::int64_t{across0 - kPixel / 2} << kMore) +
                        ((first * kPixel + kPixel / 2 - along0) * step >> ThinLine::kShift);
  const int start = first, end = last;
  if constexpr (!kIsInside) {
    first = std::max(first, kIsSteep ? m_top : m_left);
    last = std::min(last, kIsSteep ? m_bottom : m_right);
    across += (first - start) * step;
  }
  const PixelPair pair(m_color);
  const auto pixel = [&](int x, int y) {
    return reinterpret_cast<QRgb*>(m_bits + y * m_bytesPerLine) + x;
  };
  const auto put = [&](int at, unsigned ink) {
    const int near = static_cast<int>(across >> kFine);
    const unsigned farInk = (static_cast<unsigned>(across >> (kFine - 8)) & 0xFF) * ink >> 8;
    if constexpr (kIsInside) {
      if constexpr (kIsSteep)
        pair.mixNext(pixel(near, at), ink - farInk, farInk);
      else
        pair.mix(pixel(at, near), pixel(at, near + 1), ink - farInk, farInk);
    } else {
      const auto one = [&](int side, unsigned part) {
        const int x = kIsSteep ? side : at, y = kIsSteep ? at : side;
        if (x < m_left || x > m_right || y < m_top || y > m_bottom) return;
        *pixel(x, y) = mixed(*pixel(x, y), m_color, part);
      };
      one(near, ink - farInk);
      one(near + 1, farInk);
    }
    across += step;
  };
  int at = first;
  if (at == start && at <= last) put(at++, firstInk);
  for (const int whole = std::min(last, end - 1); at <= whole; ++at) put(at, m_alpha);
  if (at == end && at <= last) put(at, lastInk);
}

} // namespace drafton
