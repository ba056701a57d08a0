#include "drafton/render/style.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace drafton {
namespace {

constexpr OdCmColor::Method methodOf(std::uint32_t value) {
  return static_cast<OdCmColor::Method>(value >> 24);
}

constexpr std::uint32_t kForeground =
    std::uint32_t{OdCmColor::kByACI} << 24 | OdCmColor::kACIforeground;

/// The least and the greatest luminance that a colour may have to be seen both on white and on a
/// nearly black ground: the contrast is about 3 to 1 on either side.
constexpr double kLeastLuminance = 0.14, kGreatestLuminance = 0.3;

using LinearColor = std::array<double, 3>;

double linear(int part) {
  const double value = part / 255.0;
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}
int encoded(double part) {
  const double value = part <= 0.0031308 ? part * 12.92 : 1.055 * std::pow(part, 1 / 2.4) - 0.055;
  return static_cast<int>(std::lround(std::clamp(value, 0.0, 1.0) * 255));
}
double luminance(const LinearColor& color) {
  return 0.2126 * color[0] + 0.7152 * color[1] + 0.0722 * color[2];
}

/// The colour in its own hue, made lighter or darker until it can be seen anywhere.
QRgb legibleOnAnyTone(QRgb rgb) {
  LinearColor color = {linear(qRed(rgb)), linear(qGreen(rgb)), linear(qBlue(rgb))};
  const double light = luminance(color);
  if (light >= kLeastLuminance && light <= kGreatestLuminance) return rgb;
  const double white = light < kLeastLuminance ? (kLeastLuminance - light) / (1 - light) : 0.0;
  const double factor = light > kGreatestLuminance ? kGreatestLuminance / light : 1.0;
  for (double& part : color) part = (part + (1 - part) * white) * factor;
  return qRgb(encoded(color[0]), encoded(color[1]), encoded(color[2]));
}

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

Ground Ground::ofAnyTone() {
  Ground ground(qRgba(0, 0, 0, 0));
  ground.m_isAnyTone = true;
  return ground;
}

Ground Ground::withTones(Tones tones) const {
  Ground ground = *this;
  ground.m_tones = tones;
  return ground;
}

QRgb Ground::shade(std::uint32_t value) const {
  return m_tones == Tones::kForeground ? withTones(Tones::kGrays).paint(value) : paint(value);
}

QRgb Ground::paint(std::uint32_t value) const {
  if (m_tones == Tones::kForeground) value = kForeground;
  QRgb plain = plainPaint(value);
  if (m_tones == Tones::kGrays) plain = qRgb(qGray(plain), qGray(plain), qGray(plain));
  return m_isAnyTone ? legibleOnAnyTone(plain) : plain;
}

QRgb Ground::plainPaint(std::uint32_t value) const {
  const OdCmColor::Method method = methodOf(value);
  if (method == OdCmColor::kByColor) return 0xFF000000u | (value & 0xFFFFFFu);
  const bool isForeground =
      method != OdCmColor::kByACI || (value & 0xFFFFu) == 0 || value == kForeground;
  if (isForeground && m_isAnyTone) return kNeutralTone;
  if (isForeground) return m_isDark ? qRgb(255, 255, 255) : qRgb(0, 0, 0);
  return 0xFF000000u | OdCmColor::lookUpRGB(static_cast<std::uint8_t>(value));
}

} // namespace drafton
