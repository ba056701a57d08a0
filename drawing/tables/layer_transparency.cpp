#include "drawing/tables/layer_transparency.h"

#include "drawing/dxf/kept_tags.h"
#include "drawing/dxf/residue.h"

namespace {

constexpr int kApplication = 1001, kLong = 1071;

} // namespace

OdCmTransparency oddbLayerTransparency(const OdDbLayerTableRecord& layer) {
  const OdCmTransparency solid = OdCmTransparency::fromAlpha(255);
  if (layer.residue() == nullptr || layer.residue()->xdata.isEmpty()) return solid;
  bool inside = false;
  for (const OdDbKeptTags::Tag& tag : OdDbKeptTags(layer.residue()->xdata).tags) {
    if (tag.code == kApplication) inside = tag.value.trimmed() == "AcCmTransparency";
    if (!inside || tag.code != kLong) continue;
    bool isNumber = false;
    const qlonglong value = tag.value.trimmed().toLongLong(&isNumber);
    if (!isNumber) return solid;
    const auto told = OdCmTransparency::fromValue(static_cast<std::uint32_t>(value));
    return told.method() == OdCmTransparency::kByAlpha ? told : solid;
  }
  return solid;
}
