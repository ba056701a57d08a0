#include "engine/commands/scripts.h"

namespace {

std::vector<Script> joined(std::initializer_list<std::span<const Script>> tables) {
  std::vector<Script> all;
  for (const auto& table : tables) all.insert(all.end(), table.begin(), table.end());
  return all;
}

} // namespace

std::vector<Script> drawingScripts() {
  return joined({lineScripts(),      polylineScripts(), circleScripts(),    arcScripts(),
                 rectangleScripts(), textScripts(),     attributeScripts(), modifyScripts(),
                 zoomScripts(),      setvarScripts(),   layerScripts(),     editScripts(),
                 selectionScripts(), propertyScripts(), shapeScripts(),     dimensionScripts(),
                 hatchScripts(),     boundaryScripts(), blockScripts(),     referenceScripts(),
                 layoutScripts(),    joiningScripts()});
}

std::vector<Script> allScripts() {
  std::vector<Script> all = drawingScripts();
  for (const auto& table : {historyScripts(), documentScripts()})
    all.insert(all.end(), table.begin(), table.end());
  return all;
}
