// The classes of the drawing database, and their registration.
#include "drawing/database.h"
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
#include "drawing/res_buf.h"

#define CLASS(Class, Parent) ODRX_DEFINE_MEMBERS(Class, Parent, #Class)

CLASS(OdResBuf, OdRxObject);
CLASS(OdDbObject, OdRxObject);
CLASS(OdDbEntity, OdDbObject);
CLASS(OdDbCurve, OdDbEntity);
CLASS(OdDbLine, OdDbCurve);
CLASS(OdDbCircle, OdDbCurve);
CLASS(OdDbArc, OdDbCurve);
CLASS(OdDbPolyline, OdDbCurve);
CLASS(OdDbEllipse, OdDbCurve);
CLASS(OdDbSpline, OdDbCurve);
CLASS(OdDb2dPolyline, OdDbCurve);
CLASS(OdDbLeader, OdDbCurve);
CLASS(OdDbVertex, OdDbEntity);
CLASS(OdDbPoint, OdDbEntity);
CLASS(OdDbSolid, OdDbEntity);
CLASS(OdDbTrace, OdDbSolid);
CLASS(OdDbFace, OdDbEntity);
CLASS(OdDbXline, OdDbEntity);
CLASS(OdDbRay, OdDbXline);
CLASS(OdDbMText, OdDbEntity);
CLASS(OdDbText, OdDbEntity);
CLASS(OdDbAttributeText, OdDbText);
CLASS(OdDbAttributeDefinition, OdDbAttributeText);
CLASS(OdDbAttribute, OdDbAttributeText);
CLASS(OdDbBlockReference, OdDbEntity);
CLASS(OdDbHatch, OdDbEntity);
CLASS(OdDbDimension, OdDbEntity);
CLASS(OdDbAlignedDimension, OdDbDimension);
CLASS(OdDbRotatedDimension, OdDbAlignedDimension);
CLASS(OdDbRadialDimension, OdDbDimension);
CLASS(OdDbDiametricDimension, OdDbDimension);
CLASS(OdDb2LineAngularDimension, OdDbDimension);
CLASS(OdDb3PointAngularDimension, OdDbDimension);
CLASS(OdDbOrdinateDimension, OdDbDimension);
CLASS(OdDbArcDimension, OdDbDimension);
CLASS(OdDbReadDimension, OdDbDimension);
CLASS(OdDbRasterImage, OdDbEntity);
CLASS(OdDbViewport, OdDbEntity);
CLASS(OdDbGroup, OdDbObject);
CLASS(OdDbRasterImageDef, OdDbObject);
CLASS(OdDbRasterImageDefReactor, OdDbObject);
CLASS(OdDbPlotSettings, OdDbObject);
CLASS(OdDbLayout, OdDbPlotSettings);
CLASS(OdDbRawEntity, OdDbEntity);
CLASS(OdDbRawObject, OdDbObject);
CLASS(OdDbDictionary, OdDbObject);
CLASS(OdDbDictionaryVar, OdDbObject);
CLASS(OdDbSymbolTableRecord, OdDbObject);
CLASS(OdDbLayerTableRecord, OdDbSymbolTableRecord);
CLASS(OdDbLinetypeTableRecord, OdDbSymbolTableRecord);
CLASS(OdDbTextStyleTableRecord, OdDbSymbolTableRecord);
CLASS(OdDbDimStyleTableRecord, OdDbSymbolTableRecord);
CLASS(OdDbBlockTableRecord, OdDbSymbolTableRecord);
CLASS(OdDbKeptRecord, OdDbSymbolTableRecord);
CLASS(OdDbAbstractViewTableRecord, OdDbKeptRecord);
CLASS(OdDbViewTableRecord, OdDbAbstractViewTableRecord);
CLASS(OdDbViewportTableRecord, OdDbAbstractViewTableRecord);
CLASS(OdDbUCSTableRecord, OdDbKeptRecord);
CLASS(OdDbRegAppTableRecord, OdDbSymbolTableRecord);
CLASS(OdDbSymbolTable, OdDbObject);
CLASS(OdDbLayerTable, OdDbSymbolTable);
CLASS(OdDbLinetypeTable, OdDbSymbolTable);
CLASS(OdDbTextStyleTable, OdDbSymbolTable);
CLASS(OdDbDimStyleTable, OdDbSymbolTable);
CLASS(OdDbBlockTable, OdDbSymbolTable);
CLASS(OdDbViewTable, OdDbSymbolTable);
CLASS(OdDbViewportTable, OdDbSymbolTable);
CLASS(OdDbUCSTable, OdDbSymbolTable);
CLASS(OdDbRegAppTable, OdDbSymbolTable);
CLASS(OdDbDatabase, OdRxObject);

#undef CLASS

namespace {

template <class Class>
void add() {
  if constexpr (!std::is_abstract_v<Class>) Class::s_factory = odrxFactory<Class>;
  Class::rxInit();
}

template <class... Classes>
void addAll() {
  (add<Classes>(), ...);
}

/// Registers the classes when the library is loaded, bases before what derives from them.
const bool g_registered = [] {
  addAll<OdResBuf, OdDbObject, OdDbEntity, OdDbCurve, OdDbLine, OdDbCircle, OdDbArc, OdDbPolyline,
         OdDbEllipse, OdDbSpline, OdDb2dPolyline, OdDbLeader, OdDbVertex, OdDbPoint, OdDbSolid,
         OdDbTrace, OdDbFace, OdDbXline, OdDbRay, OdDbMText, OdDbText, OdDbAttributeText,
         OdDbAttributeDefinition, OdDbAttribute, OdDbBlockReference, OdDbHatch, OdDbDimension,
         OdDbAlignedDimension, OdDbRotatedDimension, OdDbRadialDimension, OdDbDiametricDimension,
         OdDb2LineAngularDimension, OdDb3PointAngularDimension, OdDbOrdinateDimension,
         OdDbArcDimension, OdDbReadDimension, OdDbRasterImage, OdDbViewport, OdDbGroup,
         OdDbRasterImageDef, OdDbRasterImageDefReactor, OdDbPlotSettings, OdDbLayout, OdDbRawEntity,
         OdDbRawObject, OdDbDictionary, OdDbDictionaryVar, OdDbSymbolTableRecord,
         OdDbLayerTableRecord, OdDbLinetypeTableRecord, OdDbTextStyleTableRecord,
         OdDbDimStyleTableRecord, OdDbBlockTableRecord, OdDbKeptRecord, OdDbAbstractViewTableRecord,
         OdDbViewTableRecord, OdDbViewportTableRecord, OdDbUCSTableRecord, OdDbRegAppTableRecord,
         OdDbSymbolTable, OdDbLayerTable, OdDbLinetypeTable, OdDbTextStyleTable, OdDbDimStyleTable,
         OdDbBlockTable, OdDbViewTable, OdDbViewportTable, OdDbUCSTable, OdDbRegAppTable,
         OdDbDatabase>();
  return true;
}();

} // namespace
