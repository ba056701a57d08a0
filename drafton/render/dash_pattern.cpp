#include "drafton/render/dash_pattern.h"

#include "drawing/entities/text_font.h"

#include <algorithm>
#include <cmath>

namespace drafton {

DashPattern::DashPattern(const OdDbLinetypeTableRecord& linetype) {
  for (int i = 0; i < linetype.numDashes(); ++i) {
    Dash dash{.length = linetype.dashLengthAt(i)};
    const std::uint16_t shape = linetype.shapeNumberAt(i);
    if (const OdString& text = linetype.textAt(i); !text.isEmpty() || shape != 0) {
      dash.ornament = static_cast<int>(m_ornaments.size());
      m_ornaments.push_back({.text = text,
                             .font = oddbFontOf(linetype.shapeStyleAt(i)),
                             .shape = shape,
                             .scale = linetype.shapeScaleAt(i),
                             .angle = linetype.shapeRotationAt(i),
                             .offset = linetype.shapeOffsetAt(i),
                             .isAbsolute = linetype.shapeIsUcsOrientedAt(i),
                             .isUpright = linetype.shapeIsUprightAt(i)});
    }
    m_dashes.push_back(dash);
  }
  measure();
}

DashPattern::DashPattern(std::vector<Dash> dashes)
  : m_dashes(std::move(dashes)) {
  measure();
}

void DashPattern::measure() {
  for (const Dash& dash : m_dashes) m_length += std::abs(dash.length);
  // A line type that shows nothing, or has no length, would leave lines without a trace or draw
  // them for ever.
  const bool shows = std::ranges::any_of(
      m_dashes, [](const Dash& dash) { return dash.length >= 0 || dash.ornament >= 0; });
  if (std::isfinite(m_length) && m_length > 0 && shows) return;
  m_dashes.clear();
  m_ornaments.clear();
  m_length = 0;
}

std::optional<double> DashPattern::endFor(double lineLength) const {
  if (m_dashes.empty()) return std::nullopt;
  const double first = std::max(0.0, m_dashes.front().length);
  const double repeats = std::floor(lineLength / m_length);
  if (repeats < 1) return std::nullopt;
  // Each end has half of what whole patterns leave, and half of the dash that they lack.
  return (lineLength - repeats * m_length + first) / 2;
}

} // namespace drafton
