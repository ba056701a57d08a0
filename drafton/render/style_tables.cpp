#include "drafton/render/style_tables.h"

#include "drawing/tables/layer_transparency.h"

namespace drafton {
namespace {

/// The layer of dimensions' definition points never gets onto paper.
constexpr const char16_t* kDefinitionPoints = u"Defpoints";

} // namespace

StyleTables::StyleTables(const OdDbDatabase& database) {
  for (const OdDbObjectId id : {database.getLinetypeContinuousId(), database.getLinetypeByLayerId(),
                                database.getLinetypeByBlockId()}) {
    m_linetypeNumbers.emplace(id, static_cast<std::uint32_t>(m_linetypes.size()));
    m_linetypes.push_back({id, std::make_unique<DashPattern>()});
  }
  layerNumber(database.getLayerZeroId());
}

void StyleTables::read(Linetype& linetype) {
  const OdDbObjectPtr object = linetype.id.openObject();
  const auto* record = odrxCast<OdDbLinetypeTableRecord>(object);
  *linetype.pattern = record != nullptr ? DashPattern(*record) : DashPattern();
}

void StyleTables::read(LayerState& layer) {
  const OdDbObjectPtr object = layer.id.openObject();
  const auto* record = odrxCast<OdDbLayerTableRecord>(object);
  LayerState state{.id = layer.id};
  if (record != nullptr) {
    state.color = record->color().color();
    state.linetype = record->linetypeObjectId().isNull()
                         ? kContinuous
                         : linetypeNumber(record->linetypeObjectId());
    state.lineWeight = record->lineWeight();
    state.alpha = oddbLayerTransparency(*record).alpha();
    state.isOff = record->isOff();
    state.isFrozen = record->isFrozen();
    state.isPlottable =
        record->isPlottable() &&
        record->getName().compare(QStringView(kDefinitionPoints), Qt::CaseInsensitive) != 0;
  } else {
    state.color = OdCmColor::fromColorIndex(OdCmColor::kACIforeground).color();
  }
  layer = state;
}

std::uint32_t StyleTables::layerNumber(OdDbObjectId layer) {
  if (const auto found = m_layerNumbers.find(layer); found != m_layerNumbers.end())
    return found->second;
  const OdDbObjectPtr object = layer.openObject();
  if (odrxCast<OdDbLayerTableRecord>(object) == nullptr && !m_layers.empty()) return kLayerZero;
  const auto number = static_cast<std::uint32_t>(m_layers.size());
  m_layerNumbers.emplace(layer, number);
  LayerState state{.id = layer};
  read(state);
  m_layers.push_back(state);
  return number;
}

std::uint32_t StyleTables::linetypeNumber(OdDbObjectId linetype) {
  if (const auto found = m_linetypeNumbers.find(linetype); found != m_linetypeNumbers.end())
    return found->second;
  const OdDbObjectPtr object = linetype.openObject();
  if (odrxCast<OdDbLinetypeTableRecord>(object) == nullptr) return kByLayer;
  const auto number = static_cast<std::uint32_t>(m_linetypes.size());
  m_linetypeNumbers.emplace(linetype, number);
  m_linetypes.push_back({linetype, std::make_unique<DashPattern>()});
  read(m_linetypes.back());
  return number;
}

void StyleTables::refresh() {
  for (LayerState& layer : m_layers) read(layer);
  for (std::size_t i = kByBlock + 1; i < m_linetypes.size(); ++i) read(m_linetypes[i]);
}

} // namespace drafton
