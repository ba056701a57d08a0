// The base of everything that is drawn.
#pragma once

#include "drawing/color.h"
#include "drawing/geometry/extents.h"
#include "drawing/geometry/matrix.h"
#include "drawing/object.h"
#include "drawing/transparency.h"

class OdGiWorldDraw;

/// A drawn object with the properties that all of them share. A new entity has nothing set: it is
/// on no layer until its space gives it layer 0, or setDatabaseDefaults() the current values.
class OdDbEntity : public OdDbObject {
  ODRX_DECLARE_MEMBERS(OdDbEntity);

 public:
  /// Takes the drawing's current colour, layer, line type, line type scale, line weight, plot style
  /// and transparency.
  virtual void setDatabaseDefaults(const OdDbDatabase& database);

  OdDbObjectId layerId() const { return m_common.layer; }
  OdString layer() const;
  /// `layer` is a record of the same drawing's layer table; a null id raises OdDbError.
  void setLayer(OdDbObjectId layer);
  const OdCmColor& color() const { return m_common.color; }
  void setColor(const OdCmColor& color);
  OdDbObjectId linetypeId() const { return m_common.linetype; }
  OdString linetype() const;
  void setLinetype(OdDbObjectId linetype);
  double linetypeScale() const { return m_common.linetypeScale; }
  void setLinetypeScale(double scale);
  OdDb::LineWeight lineWeight() const { return m_common.lineWeight; }
  void setLineWeight(OdDb::LineWeight weight);
  OdCmTransparency transparency() const { return m_common.transparency; }
  void setTransparency(OdCmTransparency transparency);
  OdDb::PlotStyleNameType plotStyleNameType() const { return m_common.plotStyleType; }
  OdDbObjectId plotStyleNameId() const { return m_common.plotStyle; }
  OdString plotStyleName() const;
  /// `id` counts only with kPlotStyleNameById.
  void setPlotStyleName(OdDb::PlotStyleNameType type, OdDbObjectId id = OdDbObjectId());
  bool isVisible() const { return m_common.visible; }
  void setVisibility(bool visible);
  /// Layer, colour and the rest as `other` has them.
  void setPropertiesFrom(const OdDbEntity& other);

  /// The box around the entity in world coordinates; false if it has none.
  virtual bool getGeomExtents(OdGeExtents3d& extents) const = 0;
  /// Shows the entity piece by piece. Nothing for one that has no shape.
  virtual void worldDraw(OdGiWorldDraw& draw) const;
  /// Moves, turns, scales or mirrors the entity. False if the entity cannot take the shape that it
  /// would have to take (a circle under unequal scales, or one where numbers end); it is then
  /// unchanged.
  virtual bool transformBy(const OdGeMatrix3d& transform) = 0;

  void assignFrom(const OdDbObject& other) override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

 protected:
  OdDbEntity();

 private:
  friend class OdDbBlockTableRecord;
  friend class OdDbDxfIn;
  struct Common {
    OdDbObjectId layer, linetype, plotStyle;
    OdCmColor color;
    double linetypeScale = 1;
    OdCmTransparency transparency;
    OdDb::LineWeight lineWeight = OdDb::kLnWtByLayer;
    OdDb::PlotStyleNameType plotStyleType = OdDb::kPlotStyleNameByLayer;
    bool visible = true;
  };
  Common m_common;
};
using OdDbEntityPtr = OdSmartPtr<OdDbEntity>;
