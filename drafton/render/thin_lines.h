// Hair lines straight into a picture's memory.
#pragma once

#include <QImage>
#include <QRect>

namespace drafton {

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
  /// The ends may lie anywhere, as long as they are finite.
  void draw(QPointF from, QPointF to);

 private:
  static constexpr unsigned kFull = 256;
  template <bool kIsSteep, bool kIsInside>
  void walk(double along0, double across0, double along1, double across1);

  uchar* m_bits;
  qsizetype m_bytesPerLine;
  QRect m_bounds, m_clip;
  unsigned m_alpha = kFull;
  QRgb m_color = 0; // opaque
};

/// Cuts a line at a rectangle. False if nothing of it is inside; else the parts of the way, 0 to 1,
/// at which it enters and leaves.
bool clipLine(const QRectF& rect, const QPointF& from, const QPointF& to, double& enters,
              double& leaves);

} // namespace drafton
