// Small smooth areas straight into a picture's memory.
#pragma once

#include <QPointF>
#include <QRect>
#include <QRgb>

#include <span>
#include <vector>

namespace drafton {

/// A side of an area, in pixels from the upper left corner of the area's box.
struct AreaEdge {
  float x0, y0, x1, y1;
};

/// An area of few pixels: letters, arrow heads, the small parts of hatches.
struct SmallArea {
  QRect box; ///< pixels of the picture
  QRgb color = 0;
  bool isOddEven = false; ///< else whatever a ring goes around is inside
  std::uint32_t firstEdge = 0, edgeCount = 0;
};

/// Fills small areas by summing up what their sides cover. What a pixel gets does not depend on
/// what else is drawn. For one thread.
class SmallAreas {
 public:
  /// Larger boxes are none of small areas.
  static bool fits(const QRectF& box) {
    constexpr double kWidest = 500, kMost = 8000;
    return box.width() < kWidest && box.height() < kWidest && box.width() * box.height() < kMost;
  }

  /// `bits` is the memory of a picture in Format_RGB32 or Format_ARGB32_Premultiplied that has the
  /// whole of `clip`.
  void fill(uchar* bits, qsizetype bytesPerLine, const QRect& clip, const SmallArea& area,
            std::span<const AreaEdge> edges);

 private:
  void addEdge(const AreaEdge& edge, int stride);

  std::vector<float> m_sums;
};

} // namespace drafton
