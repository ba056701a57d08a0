#include "drafton/render/style.h"

namespace drafton {
namespace {

constexpr OdCmColor::Method methodOf(std::uint32_t value) {
  return static_cast<OdCmColor::Method>(value >> 24);
}

constexpr std::uint32_t kForeground =
    std::uint32_t{OdCmColor::kByACI} << 24 | OdCmColor::kACIforeground;

} // namespace

Traits::Traits(const OdDbEntity& entity, StyleTables& tables)
  : layer(tables.layerNumber(entity.layerId()))
  , linetype(tables.linetypeNumber(entity.linetypeId()))
  , color(entity.color().color())
  , transparency(entity.transparency().value())
  , linetypeScale(entity.linetypeScale())
  , lineWeight(entity.lineWeight()) {}

Style resolved(const Traits& traits, const StyleTables& tables, const Style* insert) {
  Style style;
  style.layer =
      insert != nullptr && traits.layer == StyleTables::kLayerZero ? insert->layer : traits.layer;
  const LayerState& layer = tables.layer(style.layer);
  static const Style outside;
  const Style& block = insert != nullptr ? *insert : outside;

  switch (methodOf(traits.color)) {
  case OdCmColor::kByLayer:
    style.color = layer.color;
    break;
  case OdCmColor::kByBlock:
    style.color = block.color;
    break;
  default:
    style.color = traits.color;
  }
  const OdCmTransparency transparency = OdCmTransparency::fromValue(traits.transparency);
  if (transparency.isByLayer())
    style.alpha = layer.alpha;
  else
    style.alpha = transparency.isByBlock() ? block.alpha : transparency.alpha();
  if (traits.linetype == StyleTables::kByLayer)
    style.linetype = layer.linetype;
  else
    style.linetype = traits.linetype == StyleTables::kByBlock ? block.linetype : traits.linetype;
  style.linetypeScale = traits.linetypeScale;
  if (traits.lineWeight == OdDb::kLnWtByLayer)
    style.lineWeight = layer.lineWeight;
  else
    style.lineWeight =
        traits.lineWeight == OdDb::kLnWtByBlock ? block.lineWeight : traits.lineWeight;
  return style;
}

Ground::Ground(QRgb color)
  : m_color(color)
  , m_isDark(qGray(color) < 128) {}

QRgb Ground::paint(std::uint32_t value) const {
  const OdCmColor::Method method = methodOf(value);
  if (method == OdCmColor::kByColor) return 0xFF000000u | (value & 0xFFFFFFu);
  const bool isForeground =
      method != OdCmColor::kByACI || (value & 0xFFFFu) == 0 || value == kForeground;
  if (isForeground) return m_isDark ? qRgb(255, 255, 255) : qRgb(0, 0, 0);
  return 0xFF000000u | OdCmColor::lookUpRGB(static_cast<std::uint8_t>(value));
}

} // namespace drafton
