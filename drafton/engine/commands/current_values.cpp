#include "drafton/engine/commands/current_values.h"

#include "drafton/engine/value_parser.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/dimension.h"
#include "drawing/entities/hatch.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/text.h"

#include <algorithm>

namespace drafton {
namespace {

const auto kTextHeight = QStringLiteral("TEXTSIZE");
const auto kBlock = QStringLiteral("INSNAME");

/// The variables of a dimension style.
std::vector<DimensionVariable> variablesOf(OdDbObjectId id) {
  const OdDbDimStyleTableRecordPtr style = id.openObject();
  std::vector<DimensionVariable> variables;
  if (!style) return variables;
  for (const OdDbDimVarInfo& row : oddbDimVars())
    if (const auto value = style->variable(QLatin1String(row.name)))
      variables.push_back({QLatin1String(row.name), *value});
  return variables;
}

HatchFill fillOf(const OdDbHatch& hatch, HatchFill fill) {
  if (hatch.isGradient()) {
    fill.kind = HatchFill::Kind::kGradient;
    const auto name = std::find(kGradientNames.begin(), kGradientNames.end(), hatch.gradientName());
    if (name != kGradientNames.end())
      fill.gradient = static_cast<int>(name - kGradientNames.begin()) + 1;
    fill.gradientAngle = hatch.gradientAngle();
    fill.isCentered = hatch.gradientShift() == 0;
    fill.gradientColors = {hatch.gradientColor1(), hatch.gradientColor2()};
    return fill;
  }
  fill.name = hatch.patternName();
  fill.kind = hatch.isSolidFill()                                ? HatchFill::Kind::kSolid
              : hatch.patternType() == OdDbHatch::kUserDefined   ? HatchFill::Kind::kUserDefined
              : hatch.patternType() == OdDbHatch::kCustomDefined ? HatchFill::Kind::kCustom
                                                                 : HatchFill::Kind::kPredefined;
  fill.angle = hatch.patternAngle();
  fill.scale = hatch.patternScale();
  fill.spacing = hatch.patternSpace();
  fill.isDouble = hatch.patternDouble();
  return fill;
}

} // namespace

CurrentValues::CurrentValues(const CommandContext& context)
  : m_layer(context.database().currentLayer())
  , m_linetype(context.database().currentLinetype())
  , m_textStyle(context.database().currentTextStyle())
  , m_dimStyle(context.database().currentDimStyle())
  , m_plotStyle(context.database().currentPlotStyleId())
  , m_plotStyleType(context.database().currentPlotStyleType())
  , m_color(context.database().currentColor())
  , m_linetypeScale(context.database().currentLinetypeScale())
  , m_lineWeight(context.database().currentLineWeight())
  , m_transparency(context.database().currentTransparency())
  , m_textHeight(context.database().sysVarReal("TEXTSIZE"))
  , m_dimVariables(dimensionVariables(context.database()))
  , m_hatch(hatchOptions(context)) {
  context.variables().get(kBlock, m_block);
}

void CurrentValues::take(const OdDbEntity& entity) {
  m_layer = entity.layerId();
  m_linetype = entity.linetypeId();
  m_plotStyleType = entity.plotStyleNameType();
  m_plotStyle = entity.plotStyleNameId();
  m_color = entity.color();
  m_linetypeScale = entity.linetypeScale();
  m_lineWeight = entity.lineWeight();
  m_transparency = entity.transparency();
  if (const auto* const text = odrxCast<OdDbText>(&entity)) {
    m_textStyle = text->textStyle();
    m_textHeight = text->height();
  }
  if (const auto* const text = odrxCast<OdDbMText>(&entity)) {
    m_textStyle = text->textStyle();
    m_textHeight = text->textHeight();
  }
  if (const auto* const dimension = odrxCast<OdDbDimension>(&entity)) {
    m_dimStyle = dimension->dimensionStyle();
    m_dimVariables = variablesOf(m_dimStyle);
  }
  if (const auto* const insert = odrxCast<OdDbBlockReference>(&entity))
    m_block = insert->blockName();
  if (const auto* const hatch = odrxCast<OdDbHatch>(&entity))
    m_hatch.fill = fillOf(*hatch, m_hatch.fill);
}

void CurrentValues::makeCurrent(const CommandContext& context) const {
  OdDbDatabase& database = context.database();
  database.setCurrentLayer(m_layer);
  if (!m_linetype.isNull()) database.setCurrentLinetype(m_linetype);
  if (!m_textStyle.isNull()) database.setCurrentTextStyle(m_textStyle);
  if (!m_dimStyle.isNull()) database.setCurrentDimStyle(m_dimStyle);
  for (const DimensionVariable& variable : m_dimVariables)
    database.setSysVar(variable.name, variable.value);
  database.setCurrentPlotStyle(m_plotStyleType, m_plotStyle);
  database.setCurrentColor(m_color);
  database.setCurrentLinetypeScale(m_linetypeScale);
  database.setCurrentLineWeight(m_lineWeight);
  database.setCurrentTransparency(m_transparency);
  database.setSysVar(kTextHeight, m_textHeight);
  context.variables().set(kBlock, m_block);
  // Patterns and gradients have variables of their own.
  HatchOptions gradient = m_hatch;
  gradient.fill.kind = HatchFill::Kind::kGradient;
  if (!hasGradient()) keepOptions(context, m_hatch);
  keepOptions(context, gradient);
}

} // namespace drafton
