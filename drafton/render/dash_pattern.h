// Line types ready for drawing.
#pragma once

#include "drawing/graphics/text_metrics.h"
#include "drawing/tables/linetype_table.h"

namespace drafton {

/// Patterns and dashes of fewer pixels are one line to the eye.
inline constexpr double kFinestPattern = 3;

/// What stands in a line type behind a dash.
struct DashOrnament {
  OdString text; ///< empty for a shape
  OdGiFont font;
  std::uint16_t shape = 0;
  double scale = 1, angle = 0;
  OdGePoint2d offset;
  bool isAbsolute = false; ///< turned against the drawing
  bool isUpright = false;  ///< turned round where it would stand on its head
};

/// A line type's dashes.
class DashPattern {
 public:
  struct Dash {
    double length = 0; ///< above 0 a dash, 0 a dot, below 0 a gap
    int ornament = -1; ///< a number of ornaments()
  };

  /// Continuous.
  DashPattern() = default;
  explicit DashPattern(const OdDbLinetypeTableRecord& linetype);
  explicit DashPattern(std::vector<Dash> dashes);

  bool isContinuous() const { return m_dashes.empty(); }
  double length() const { return m_length; }
  const std::vector<Dash>& dashes() const { return m_dashes; }
  const std::vector<DashOrnament>& ornaments() const { return m_ornaments; }
  /// How long the first dash is at both ends of a line of a length (in the pattern's units), so
  /// that they look alike; nothing if the line is too short for the pattern, and is then drawn
  /// continuous.
  std::optional<double> endFor(double lineLength) const;

 private:
  void measure();

  std::vector<Dash> m_dashes;
  std::vector<DashOrnament> m_ornaments;
  double m_length = 0;
};

} // namespace drafton
