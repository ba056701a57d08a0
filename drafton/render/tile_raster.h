// Many thin lines and small areas into a picture, part by part.
#pragma once

#include "drafton/render/small_areas.h"
#include "drafton/render/thin_lines.h"

#include <QPolygonF>

#include <atomic>
#include <memory>

namespace drafton {

/// Gathers lines and small areas and draws them tile by tile, in their order within each: a tile
/// stays in the processor's nearest memory, and other threads can take some. What was gathered is
/// on the picture after flush().
class TileRaster {
 public:
  /// `bits` is the memory of a picture in a format that suits ThinLines; nobody else touches it
  /// except after flush().
  TileRaster(uchar* bits, qsizetype bytesPerLine, const QSize& size);
  ~TileRaster();
  TileRaster(const TileRaster&) = delete;
  TileRaster& operator=(const TileRaster&) = delete;

  /// Nothing is drawn outside of it from now on.
  void setClip(const QRect& clip);
  /// Not premultiplied.
  void setColor(QRgb color) { m_color = color; }
  void line(const QPointF& from, const QPointF& to);
  /// Rings, closed by themselves. `box` is around them; it has to fit SmallAreas.
  void area(std::span<const QPolygonF> rings, const QRectF& box, bool isOddEven);

  void flush();

 private:
  struct Batch;
  struct Command;
  void add(const Command& command, const QRect& pixels);
  void submit();
  void finishRunning();

  uchar* m_bits;
  qsizetype m_bytesPerLine;
  QRect m_bounds, m_clip;
  int m_columns, m_rows; // of tiles
  QRgb m_color = 0;
  std::shared_ptr<Batch> m_filling, m_running;
};

} // namespace drafton
