// How an entity looks once its layer and its blocks are asked.
#pragma once

#include "drafton/render/style_tables.h"
#include "drawing/entities/entity.h"

#include <QRgb>

#include <optional>

namespace drafton {

/// An entity's own properties, as far as they are seen.
struct Traits {
  std::uint32_t layer = StyleTables::kLayerZero;
  std::uint32_t linetype = StyleTables::kByLayer;
  std::uint32_t color = OdCmColor().color(); ///< the value of an OdCmColor
  std::uint32_t transparency = 0;            ///< the value of an OdCmTransparency
  double linetypeScale = 1;
  OdDb::LineWeight lineWeight = OdDb::kLnWtByLayer;

  Traits() = default;
  Traits(const OdDbEntity& entity, StyleTables& tables);
};

/// What is left when by layer and by block are resolved.
struct Style {
  std::uint32_t layer = StyleTables::kLayerZero;
  std::uint32_t linetype = StyleTables::kContinuous;
  std::uint32_t color = OdCmColor::fromColorIndex(OdCmColor::kACIforeground).color();
  double linetypeScale = 1;
  OdDb::LineWeight lineWeight = OdDb::kLnWtByLwDefault;
  std::uint8_t alpha = 255;
};

/// Which layers are seen.
struct LayerFilter {
  bool isPlotting = false;      ///< layers that are not plotted are not seen
  std::vector<bool> frozenHere; ///< by the numbers of layers; what is beyond is not frozen

  bool shows(std::uint32_t number, const LayerState& layer) const {
    return !layer.isOff && !isFrozen(number, layer) && (layer.isPlottable || !isPlotting);
  }
  bool isFrozen(std::uint32_t number, const LayerState& layer) const {
    return layer.isFrozen || (number < frozenHere.size() && frozenHere[number]);
  }
};

/// The looks of an entity within an insert (null outside of blocks): what is on layer 0 in a block
/// takes the insert's layer, and what is by block the insert's values.
Style resolved(const Traits& traits, const StyleTables& tables, const Style* insert);

/// The foreground colour on a ground of any tone.
inline constexpr QRgb kNeutralTone = qRgb(122, 122, 122);

/// What is made of colours: a plot style table may leave greys of them, or the foreground alone.
enum class Tones { kColors, kGrays, kForeground };

/// What the picture is drawn on, and the palette colours that depend on it.
class Ground {
 public:
  explicit Ground(QRgb color);
  /// A transparent ground behind which anything may lie: no colour comes near to white or black.
  static Ground ofAnyTone();

  QRgb color() const { return m_color; }
  bool isDark() const { return m_isDark; }
  /// The colour to paint with, opaque. `value` is that of an OdCmColor; the foreground colour is
  /// white on dark ground, black on light ground and grey where the ground is not known.
  QRgb paint(std::uint32_t value) const;
  /// The same for areas that turn from one colour into another: where all else has the foreground's
  /// tone they have greys, as they would be seen no more.
  QRgb shade(std::uint32_t value) const;
  /// The same ground, painted on in such tones.
  Ground withTones(Tones tones) const;
  bool operator==(const Ground&) const = default;

 private:
  QRgb plainPaint(std::uint32_t value) const;

  QRgb m_color;
  bool m_isDark;
  bool m_isAnyTone = false;
  Tones m_tones = Tones::kColors;
};

} // namespace drafton
