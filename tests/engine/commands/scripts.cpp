#include "engine/commands/scripts.h"

std::vector<Script> allScripts() {
  std::vector<Script> all;
  for (const auto& table :
       {lineScripts(), polylineScripts(), circleScripts(), arcScripts(), rectangleScripts(),
        textScripts(), attributeScripts(), modifyScripts(), zoomScripts(), setvarScripts(),
        layerScripts(), editScripts(), propertyScripts(), shapeScripts(), dimensionScripts(),
        hatchScripts(), boundaryScripts()})
    all.insert(all.end(), table.begin(), table.end());
  return all;
}
