#include "drafton/render/small_areas.h"

#include "drafton/render/pixel_mix.h"

#include <algorithm>
#include <cmath>

namespace drafton {
namespace {

int roundedUp(float number) {
  const int whole = static_cast<int>(number);
  return whole + (static_cast<float>(whole) < number ? 1 : 0);
}

} // namespace

/// Adds, row by row, how much more than the pixel to the left each pixel has to the right of the
/// edge. Summed up from the left these are the parts of pixels that are inside.
void SmallAreas::addEdge(const AreaEdge& edge, int stride) {
  if (edge.y0 == edge.y1) return;
  const bool isDown = edge.y0 < edge.y1;
  const float direction = isDown ? 1.F : -1.F;
  const AreaEdge e = isDown ? edge : AreaEdge{edge.x1, edge.y1, edge.x0, edge.y0};
  const float slope = (e.x1 - e.x0) / (e.y1 - e.y0);
  float x = e.x0;
  // Numbers are 0 or more here, so that cutting off is rounding down.
  const int last = roundedUp(e.y1);
  for (int row = static_cast<int>(e.y0); row < last; ++row) {
    float* const sums = m_sums.data() + row * stride;
    const auto top = static_cast<float>(row);
    const float height = std::min(top + 1, e.y1) - std::max(top, e.y0);
    const float next = x + slope * height, ink = height * direction;
    const float left = std::min(x, next), right = std::max(x, next);
    x = next;
    const int first = static_cast<int>(left), end = roundedUp(right);
    const auto leftPixel = static_cast<float>(first);
    if (end <= first + 1) {
      const float beyond = 0.5F * (left + right) - leftPixel;
      sums[first] += ink * (1 - beyond);
      sums[first + 1] += ink * beyond;
      continue;
    }
    // A trapezoid over several pixels: a triangle, even steps, a triangle.
    const float each = 1 / (right - left);
    const float inFirst = left - leftPixel, inLast = right - static_cast<float>(end) + 1;
    const float firstArea = 0.5F * each * (1 - inFirst) * (1 - inFirst);
    const float lastArea = 0.5F * each * inLast * inLast;
    sums[first] += ink * firstArea;
    if (end == first + 2) {
      sums[first + 1] += ink * (1 - firstArea - lastArea);
    } else {
      const float second = each * (1.5F - inFirst);
      sums[first + 1] += ink * (second - firstArea);
      for (int i = first + 2; i < end - 1; ++i) sums[i] += ink * each;
      const float beforeLast = second + static_cast<float>(end - first - 3) * each;
      sums[end - 1] += ink * (1 - beforeLast - lastArea);
    }
    sums[end] += ink * lastArea;
  }
}

void SmallAreas::fill(uchar* bits, qsizetype bytesPerLine, const QRect& clip, const SmallArea& area,
                      std::span<const AreaEdge> edges) {
  // A column more on the right for what ends at the border.
  const int stride = area.box.width() + 2;
  m_sums.assign(static_cast<std::size_t>(stride) * static_cast<std::size_t>(area.box.height() + 1),
                0.F);
  for (const AreaEdge& edge : edges) addEdge(edge, stride);
  const QRect seen = area.box & clip;
  const auto full = static_cast<float>(qAlpha(area.color) * 256 / 255);
  const QRgb color = area.color | 0xFF000000u;
  for (int y = seen.top(); y <= seen.bottom(); ++y) {
    const float* const sums = m_sums.data() + (y - area.box.top()) * stride;
    auto* const pixels = reinterpret_cast<QRgb*>(bits + y * bytesPerLine);
    float sum = 0;
    for (int x = area.box.left(); x <= seen.right(); ++x) {
      sum += sums[x - area.box.left()];
      float part = std::abs(sum);
      if (area.isOddEven && part > 1) {
        part = std::fmod(part, 2.F);
        part = part > 1 ? 2 - part : part;
      }
      const auto ink = static_cast<unsigned>(std::min(part, 1.F) * full + 0.5F);
      if (ink != 0 && x >= seen.left()) pixels[x] = mixed(pixels[x], color, ink);
    }
  }
}

} // namespace drafton
