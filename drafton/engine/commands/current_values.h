// The values that new entities get, kept and set all at once.
#pragma once

#include "drafton/engine/commands/dimension_overrides.h"
#include "drafton/engine/commands/hatch_options.h"

namespace drafton {

class CurrentValues {
 public:
  /// Those of the drawing and of the program.
  explicit CurrentValues(const CommandContext& context);

  /// Takes over what an entity has: the properties of all entities, and the style, size, block or
  /// fill of its kind.
  void take(const OdDbEntity& entity);
  /// True after taking over a hatch that is filled with a gradient.
  bool hasGradient() const { return m_hatch.fill.kind == HatchFill::Kind::kGradient; }
  void makeCurrent(const CommandContext& context) const;

 private:
  OdDbObjectId m_layer, m_linetype, m_textStyle, m_dimStyle, m_plotStyle;
  OdDb::PlotStyleNameType m_plotStyleType;
  OdCmColor m_color;
  double m_linetypeScale;
  OdDb::LineWeight m_lineWeight;
  OdCmTransparency m_transparency;
  double m_textHeight;
  std::vector<DimensionVariable> m_dimVariables;
  OdVariant m_block;
  HatchOptions m_hatch;
};

} // namespace drafton
