#include "drawing/dxf/makers.h"

#include "drawing/entities/arc.h"
#include "drawing/entities/attribute.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/dimension_kinds.h"
#include "drawing/entities/ellipse.h"
#include "drawing/entities/face.h"
#include "drawing/entities/hatch.h"
#include "drawing/entities/leader.h"
#include "drawing/entities/line.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/point.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/polyline2d.h"
#include "drawing/entities/raster_image.h"
#include "drawing/entities/solid.h"
#include "drawing/entities/spline.h"
#include "drawing/entities/text.h"
#include "drawing/entities/viewport.h"
#include "drawing/entities/xline.h"
#include "drawing/objects/group.h"
#include "drawing/objects/image_def.h"
#include "drawing/objects/layout.h"
#include "drawing/objects/raw_object.h"

#include <unordered_map>

namespace {

template <class T, class Base>
OdSmartPtr<Base> make() {
  return {new T, kOdRxObjAttach};
}

template <class Base>
struct Maker {
  std::string_view name;
  OdSmartPtr<Base> (*make)();
};

constexpr Maker<OdDbEntity> kEntities[] = {
    {"LINE", make<OdDbLine, OdDbEntity>},
    {"LWPOLYLINE", make<OdDbPolyline, OdDbEntity>},
    {"CIRCLE", make<OdDbCircle, OdDbEntity>},
    {"ARC", make<OdDbArc, OdDbEntity>},
    {"TEXT", make<OdDbText, OdDbEntity>},
    {"ELLIPSE", make<OdDbEllipse, OdDbEntity>},
    {"SPLINE", make<OdDbSpline, OdDbEntity>},
    {"POLYLINE", make<OdDb2dPolyline, OdDbEntity>},
    {"VERTEX", make<OdDbVertex, OdDbEntity>},
    {"POINT", make<OdDbPoint, OdDbEntity>},
    {"SOLID", make<OdDbSolid, OdDbEntity>},
    {"TRACE", make<OdDbTrace, OdDbEntity>},
    {"3DFACE", make<OdDbFace, OdDbEntity>},
    {"XLINE", make<OdDbXline, OdDbEntity>},
    {"RAY", make<OdDbRay, OdDbEntity>},
    {"MTEXT", make<OdDbMText, OdDbEntity>},
    {"ATTDEF", make<OdDbAttributeDefinition, OdDbEntity>},
    {"ATTRIB", make<OdDbAttribute, OdDbEntity>},
    {"LEADER", make<OdDbLeader, OdDbEntity>},
    {"INSERT", make<OdDbBlockReference, OdDbEntity>},
    {"HATCH", make<OdDbHatch, OdDbEntity>},
    {"DIMENSION", make<OdDbReadDimension, OdDbEntity>},
    {"ARC_DIMENSION", make<OdDbArcDimension, OdDbEntity>},
    {"IMAGE", make<OdDbRasterImage, OdDbEntity>},
    {"VIEWPORT", make<OdDbViewport, OdDbEntity>},
};

constexpr Maker<OdDbObject> kObjects[] = {
    {"DICTIONARY", make<OdDbDictionary, OdDbObject>},
    {"ACDBDICTIONARYWDFLT", [] { return OdDbObjectPtr(odrxMake<OdDbDictionary>(true)); }},
    {"GROUP", make<OdDbGroup, OdDbObject>},
    {"IMAGEDEF", make<OdDbRasterImageDef, OdDbObject>},
    {"IMAGEDEF_REACTOR", make<OdDbRasterImageDefReactor, OdDbObject>},
    {"LAYOUT", make<OdDbLayout, OdDbObject>},
    {"PLOTSETTINGS", make<OdDbPlotSettings, OdDbObject>},
    {"DICTIONARYVAR", make<OdDbDictionaryVar, OdDbObject>},
};

// In the order of OdDbDatabaseData::Table.
constexpr Maker<OdDbSymbolTable> kTables[] = {
    {"VPORT", make<OdDbViewportTable, OdDbSymbolTable>},
    {"LTYPE", make<OdDbLinetypeTable, OdDbSymbolTable>},
    {"LAYER", make<OdDbLayerTable, OdDbSymbolTable>},
    {"STYLE", make<OdDbTextStyleTable, OdDbSymbolTable>},
    {"VIEW", make<OdDbViewTable, OdDbSymbolTable>},
    {"UCS", make<OdDbUCSTable, OdDbSymbolTable>},
    {"APPID", make<OdDbRegAppTable, OdDbSymbolTable>},
    {"DIMSTYLE", make<OdDbDimStyleTable, OdDbSymbolTable>},
    {"BLOCK_RECORD", make<OdDbBlockTable, OdDbSymbolTable>},
};
static_assert(std::size(kTables) == OdDbDatabaseData::kTableCount);

template <class Raw, class Base, std::size_t N>
OdSmartPtr<Base> made(const Maker<Base> (&makers)[N], std::string_view name) {
  static const auto byName = [&] {
    std::unordered_map<std::string_view, const Maker<Base>*> all;
    for (const auto& maker : makers) all.emplace(maker.name, &maker);
    return all;
  }();
  // Neighbours are mostly of one kind.
  thread_local const Maker<Base>* recent = makers;
  if (recent->name == name) return recent->make();
  const auto at = byName.find(name);
  if (at != byName.end()) {
    recent = at->second;
    return recent->make();
  }
  return odrxMake<Raw>(QByteArray(name.data(), static_cast<qsizetype>(name.size())));
}

} // namespace

OdDbEntityPtr oddxf::makeEntity(std::string_view name) {
  return made<OdDbRawEntity>(kEntities, name);
}

OdDbObjectPtr oddxf::makeObject(std::string_view name) {
  return made<OdDbRawObject>(kObjects, name);
}

std::string_view oddxf::tableName(std::size_t table) { return kTables[table].name; }
OdDbSymbolTablePtr oddxf::makeTable(std::size_t table) { return kTables[table].make(); }
