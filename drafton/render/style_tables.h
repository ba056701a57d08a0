// The layers and line types of a drawing as drawing needs them.
#pragma once

#include "drafton/render/dash_pattern.h"
#include "drawing/database.h"

#include <memory>
#include <unordered_map>

namespace drafton {

/// A layer's looks.
struct LayerState {
  OdDbObjectId id;
  std::uint32_t color = 0;    ///< the value of an OdCmColor
  std::uint32_t linetype = 0; ///< a number of StyleTables
  OdDb::LineWeight lineWeight = OdDb::kLnWtByLwDefault;
  std::uint8_t alpha = 255;
  bool isOff = false, isFrozen = false, isPlottable = true;
};

/// The layers and line types of one drawing by small numbers, which stay the same as long as this
/// lives.
class StyleTables {
 public:
  static constexpr std::uint32_t kLayerZero = 0;
  static constexpr std::uint32_t kContinuous = 0, kByLayer = 1, kByBlock = 2;

  explicit StyleTables(const OdDbDatabase& database);

  /// The number of a layer; that of layer 0 for what is none.
  std::uint32_t layerNumber(OdDbObjectId layer);
  const LayerState& layer(std::uint32_t number) const { return m_layers[number]; }
  /// The number of a line type; kByLayer for what is none.
  std::uint32_t linetypeNumber(OdDbObjectId linetype);
  const DashPattern& linetype(std::uint32_t number) const { return *m_linetypes[number].pattern; }

  /// Reads all of them again.
  void refresh();

 private:
  struct Linetype {
    OdDbObjectId id;
    std::unique_ptr<DashPattern> pattern;
  };
  void read(LayerState& layer);
  static void read(Linetype& linetype);

  std::vector<LayerState> m_layers;
  std::vector<Linetype> m_linetypes;
  std::unordered_map<OdDbObjectId, std::uint32_t> m_layerNumbers, m_linetypeNumbers;
};

} // namespace drafton
