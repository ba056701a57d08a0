// Hair lines straight into a picture's memory.
#pragma once

#include <QImage>
#include <QRect>

namespace drafton {

/// A line with its ends in parts of a pixel: what is drawn of it does not depend on what else of
/// the picture is drawn at the same time.
struct ThinLine {
  static constexpr int kShift = 8, kPixel = 1 << kShift;
  std::int32_t x0, y0, x1, y1;
};

/// Rounds a line's ends, which may lie anywhere as long as they are finite. False for one that is
/// too far from all pictures.
bool roundLine(QPointF from, QPointF to, ThinLine& line);

/// Draws lines of one pixel's width, smoothed, into the memory of a picture: a drawing has hundreds
/// of thousands of them, and the way through a painter costs many times the drawing itself.
class ThinLines {
 public:
  /// `bits` is the memory of a picture in Format_RGB32 or Format_ARGB32_Premultiplied.
  ThinLines(uchar* bits, qsizetype bytesPerLine, const QSize& size);

  static bool suits(QImage::Format format) {
    return format == QImage::Format_RGB32 || format == QImage::Format_ARGB32_Premultiplied;
  }

  /// Nothing is drawn outside of it.
  void setClip(const QRect& clip);
  /// Not premultiplied.
  void setColor(QRgb color);
  void draw(const ThinLine& line);

 private:
  static constexpr unsigned kFull = 256;
  template <bool kIsSteep>
  void draw(std::int32_t along0, std::int32_t across0, std::int32_t along1, std::int32_t across1);
  template <bool kIsSteep, bool kIsInside>
  void walk(std::int32_t along0, std::int32_t across0, std::int32_t along1, std::int32_t across1);

  uchar* m_bits;
  qsizetype m_bytesPerLine;
  QRect m_bounds;
  int m_left = 0, m_top = 0, m_right = -1, m_bottom = -1; // of the clip, all within
  unsigned m_alpha = kFull;
  QRgb m_color = 0; // opaque
};

/// Narrows the part of a line through `from` that lies between two factors of `way` to what is
/// inside of a rectangle. False if nothing is.
bool narrowTo(const QRectF& rect, const QPointF& from, const QPointF& way, double& enters,
              double& leaves);
/// Cuts a line at a rectangle. False if nothing of it is inside; else the parts of the way, 0 to 1,
/// at which it enters and leaves.
bool clipLine(const QRectF& rect, const QPointF& from, const QPointF& to, double& enters,
              double& leaves);

} // namespace drafton
