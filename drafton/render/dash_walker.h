// Draws lines in their line types.
#pragma once

#include "drafton/render/dash_pattern.h"
#include "drafton/render/surface.h"
#include "drafton/render/view.h"

#include <functional>
#include <span>

namespace drafton {

/// Walks a path and draws the dashes of a pattern along it.
class DashWalker {
 public:
  /// Draws an ornament of the pattern that stands at a place of the path; `along` is the path's
  /// direction there, of length 1.
  using DrawOrnament = std::function<void(const DashOrnament& ornament, const OdGePoint3d& at,
                                          const OdGeVector3d& along)>;

  /// Draws a dash in the place of a line on the surface: from and to are lengths along the path,
  /// equal for a dot.
  using DrawDash = std::function<void(double from, double to)>;

  /// `scale` multiplies the pattern's lengths to those of the path. Ornaments reach no further than
  /// `reach` pixels.
  DashWalker(Surface& surface, const Projection& projection, const DashPattern& pattern,
             double scale, double reach, DrawOrnament drawOrnament, DrawDash drawDash = {});

  /// The points are in the coordinates that the projection takes.
  void draw(std::span<const OdGePoint3d> points, bool closed);

 private:
  struct Stretch;
  void segment(const OdGePoint3d& from, const OdGePoint3d& to);
  void dashes(const Stretch& stretch, double first, double last);
  void solid(const Stretch& stretch, double first, double last);
  void goOnBehind(const Stretch& stretch);
  bool isTooFine(double length, double pixels) const;
  void seek(double position);
  void startDash(std::size_t dash, double position);
  void addPoint(const QPointF& point, double position);
  void endDash();

  Surface& m_surface;
  const Projection& m_projection;
  const DashPattern& m_pattern;
  double m_scale;
  QRectF m_seen;
  DrawOrnament m_drawOrnament;
  DrawDash m_drawDash;

  double m_start = 0;            // how long the first dash is at the beginning of the path
  double m_lastStart = 0;        // where the first dash begins that runs to the end of the path
  double m_position = 0;         // along the path
  std::size_t m_dash = 0;        // the dash that is being drawn
  double m_left = 0;             // of it
  std::vector<QPointF> m_points; // of the dash that is being drawn
  double m_from = 0, m_to = 0;   // along the path, of that dash
};

} // namespace drafton
