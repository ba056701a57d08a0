// Draws single pieces of entities.
#pragma once

#include "drafton/render/dash_walker.h"
#include "drafton/render/render_options.h"
#include "drafton/render/shape_list.h"

namespace drafton {

struct TextShape;

/// How points look, and how line types are scaled, as the drawing's variables tell.
struct DrawingScales {
  double linetypeScale = 1;
  int pointMode = 0;
  double pointSize = 0;      ///< above 0 in drawing units, else parts of a hundred of the picture
  double defaultWeight = 25; ///< hundredths of a millimetre
  /// Dashes seen through a window have their lengths on the sheet.
  bool dashesByPaper = true;

  explicit DrawingScales(const OdDbDatabase& database);
  bool operator==(const DrawingScales&) const = default;
};

/// Draws pieces on a surface through one projection.
class PiecePainter {
 public:
  PiecePainter(Surface& surface, const RenderOptions& options, const DrawingScales& scales);

  /// The projection that pieces drawn from now on go through; it must live as long. `scale` is its
  /// scale, which is not for nothing.
  void setProjection(const Projection& projection, double scale);
  /// The looks of the pieces drawn from now on.
  void setStyle(const Style& style, const DashPattern& linetype);
  /// In a window that line types do not grow with, their lengths are multiplied by this.
  void setWindowScale(double factor) { m_windowScale = factor; }
  /// In pixels; points without a size are a part of it.
  void setPictureHeight(double height) { m_pictureHeight = height; }
  /// Draws all lines in one colour and wider by some pixels; 0 ends that.
  void setHalo(QRgb color, double extraWidth);

  void draw(const ShapeList& list, const Piece& piece, const QRectF& itemBox);
  /// The trace of something too small to be seen.
  void drawSpeck(const QPointF& at);
  void polyline(std::span<const OdGePoint3d> points, bool closed);
  /// A closed thin continuous line in the style's colour.
  void drawFrame(std::span<const OdGePoint3d> corners);
  /// A raster image with its frame; a missing one as a frame with its name.
  void drawImage(const OdDbRasterImage& image);

  Surface& surface() { return m_surface; }
  QRgb color() const { return m_color; }

 private:
  void applyColor(const Piece& piece);
  void endless(std::span<const OdGePoint3d> points, bool bothWays);
  void plainLine(std::span<const OdGePoint3d> points, bool closed);
  void arc(const OdGiArc& arc);
  void smoothArc(const OdGiArc& arc);
  void seenArc(const OdGiArc& arc);
  void chordArc(const OdGiArc& arc, int count);
  void arcPart(const OdGiArc& arc, double from, double to, const QPointF& a, const QPointF& b,
               int depth);
  bool isDashed() const;
  void dashed(std::span<const OdGePoint3d> points, bool closed, double halfWidth = 0,
              DashWalker::DrawDash drawDash = {});
  void ornament(const DashOrnament& ornament, const OdGePoint3d& at, const OdGeVector3d& along);
  void stroke(const OdGePoint3d& from, const OdGePoint3d& to);
  std::vector<QPolygonF> ringsOf(const ShapeList& list, const AreaPiece& area) const;
  void wide(std::span<const OdGiWidePoint> points, bool dashesRunThrough);
  void dashedWide(std::span<const OdGiWidePoint> points, std::vector<QPolygonF>& rings);
  void area(const ShapeList& list, const AreaPiece& area);
  void gradient(const ShapeList& list, const GradientPiece& piece);
  void pattern(const ShapeList& list, const PatternPiece& pattern);
  bool seenStrokes(const PatternPiece& pattern);
  void strokes(const ShapeList& list, const Piece& piece, const QRectF& itemBox);
  struct TextPlace;
  void text(const OdGiTextRun& run, double advance);
  QRgb textColor(const OdGiTextRun& run) const;
  void textStrip(const TextPlace& place, double advance, QRgb color);
  void textContours(const TextShape& shape, const TextPlace& place);
  void textLetters(const TextShape& shape, const TextPlace& place, QRgb color);
  void textOutline(const TextShape& shape, const TextPlace& place, const OdGiTextRun& run);
  void mark(const PointPiece& point);
  void drawPicture(const QImage& picture, const QTransform& placed, const OdDbRasterImage& image,
                   std::span<const OdGePoint3d> edge);
  void drawMissing(const OdString& name, std::span<const OdGePoint3d> corners);

  Surface& m_surface;
  const RenderOptions& m_options;
  const DrawingScales& m_scales;
  const Projection* m_projection = nullptr;
  double m_scale = 1; // of the projection
  double m_windowScale = 1;
  double m_pictureHeight = 1;
  Style m_style;
  const DashPattern* m_linetype = nullptr;
  QRgb m_color = 0;
  double m_width = 1;
  QRgb m_haloColor = 0;
  double m_haloWidth = 0;
  std::vector<QPointF> m_buffer;
  std::vector<QPolygonF> m_rings;
  std::vector<OdGePoint3d> m_chords;
  std::vector<OdGePoint2d> m_ends;
};

} // namespace drafton
