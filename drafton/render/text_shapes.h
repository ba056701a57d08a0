// The outlines of texts.
#pragma once

#include "drawing/graphics/text_metrics.h"

#include <QGlyphRun>
#include <QHash>
#include <QPainterPath>
#include <QPolygonF>
#include <QStringList>
#include <QTransform>

#include <memory>
#include <vector>

namespace drafton {

/// A text as outlines: the height of capitals is 1, the base line runs from the origin to the
/// right, y points up.
struct TextShape {
  QPainterPath path;
  /// The same with chords in the place of curves: for small texts, and for larger ones.
  std::vector<QPolygonF> coarse, contours;
  /// The same as letters of fonts, for devices that have fonts; empty for upright columns.
  QList<QGlyphRun> letters;
  QTransform lettersToUnit;
  double advance = 0;
};

/// Makes outlines of texts and keeps those that were used. It needs a QGuiApplication; without one
/// texts have no outlines and estimated widths. For one thread.
class TextShapes : public OdGiTextMetrics {
 public:
  /// How far the characters of upright columns stand below each other, in heights.
  static constexpr double kColumnStep = 1.5;
  /// Contours are smooth enough for texts up to so many pixels.
  static constexpr double kCoarseHeight = 7, kContourHeight = 48;

  TextShapes();
  ~TextShapes() override;

  /// The calling thread's own; made with its first call.
  static TextShapes& instance();
  /// Has texts measured with fonts from now on, in the calling thread.
  static void install();

  /// `tracking` is added behind each character. The result is valid until the next call.
  const TextShape& shape(const OdString& text, const OdGiFont& font, double tracking = 0);

  double advance(const OdString& text, const OdGiFont& font) const override;
  double descent(const OdGiFont& font) const override;

 private:
  struct Face;
  Face& face(const OdGiFont& font) const;
  static TextShape horizontal(const Face& face, const OdString& text, double tracking);
  static TextShape vertical(const Face& face, const OdString& text, double tracking);

  mutable QStringList m_families;
  mutable QHash<OdString, std::shared_ptr<Face>> m_faces;
  QHash<OdString, TextShape> m_shapes;
  mutable QHash<OdString, double> m_advances;
};

} // namespace drafton
