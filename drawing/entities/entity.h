// The base of everything that is drawn.
#pragma once

#include "drawing/color.h"
#include "drawing/geometry/extents.h"
#include "drawing/geometry/matrix.h"
#include "drawing/object.h"
#include "drawing/transparency.h"

#include <vector>

class OdDbEntity;
class OdGiWorldDraw;
using OdDbEntityPtr = OdSmartPtr<OdDbEntity>;

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
  OdCmColor color() const;
  void setColor(const OdCmColor& color);
  OdDbObjectId linetypeId() const { return m_common.linetype; }
  OdString linetype() const;
  void setLinetype(OdDbObjectId linetype);
  double linetypeScale() const;
  void setLinetypeScale(double scale);
  OdDb::LineWeight lineWeight() const { return static_cast<OdDb::LineWeight>(m_common.lineWeight); }
  void setLineWeight(OdDb::LineWeight weight);
  OdCmTransparency transparency() const;
  void setTransparency(OdCmTransparency transparency);
  OdDb::PlotStyleNameType plotStyleNameType() const {
    return static_cast<OdDb::PlotStyleNameType>(m_common.plotStyleType);
  }
  OdDbObjectId plotStyleNameId() const;
  OdString plotStyleName() const;
  /// `id` counts only with kPlotStyleNameById.
  void setPlotStyleName(OdDb::PlotStyleNameType type, OdDbObjectId id = OdDbObjectId());
  bool isVisible() const { return !m_common.invisible; }
  void setVisibility(bool visible);
  /// Layer, colour and the rest as `other` has them.
  void setPropertiesFrom(const OdDbEntity& other);

  /// The box around the entity in world coordinates; false if it has none. As it stands, what
  /// worldDraw() shows is measured.
  virtual bool getGeomExtents(OdGeExtents3d& extents) const;
  /// Shows the entity piece by piece. Nothing for one that has no shape.
  virtual void worldDraw(OdGiWorldDraw& draw) const;
  /// Moves, turns, scales or mirrors the entity. False if the entity cannot take the shape that it
  /// would have to take (a circle under unequal scales, or one where numbers end); it is then
  /// unchanged.
  virtual bool transformBy(const OdGeMatrix3d& transform) = 0;
  /// A moved copy that belongs to no drawing. Where the entity itself cannot take the shape, it is
  /// one that can: a circle becomes an ellipse. Null if there is none.
  virtual OdDbEntityPtr getTransformedCopy(const OdGeMatrix3d& transform) const;
  /// Adds the entities that the entity consists of, which belong to no drawing. False, and nothing
  /// added, if it is not made of others.
  virtual bool explode(std::vector<OdDbEntityPtr>& pieces) const;

  void assignFrom(const OdDbObject& other) override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;
  /// The entity that this one turned out to be when all of its tags were read; null: itself.
  virtual OdDbEntityPtr readAs() const { return nullptr; }
  /// True if vertices or attributes that stand behind the entity in a file belong to it.
  virtual bool takesFollowers() const { return false; }
  /// Takes such an entity, or the end mark, while a file is read.
  virtual void addFollower(OdDbEntity&) {}
  /// Writes what follows the entity, the end mark included.
  virtual void dxfOutFollowers(OdDbDxfOut&) const {}

 protected:
  OdDbEntity();

 private:
  friend class OdDbBlockTableRecord;
  friend class OdDbDxfIn;
  /// What nearly every entity has; the rest is among the extras.
  struct Common {
    OdDbObjectId layer, linetype;
    std::uint32_t color = OdCmColor().color();
    std::int16_t lineWeight = OdDb::kLnWtByLayer;
    std::uint8_t plotStyleType = OdDb::kPlotStyleNameByLayer;
    bool invisible = false;
  };
  /// Sets a member of the extras; nothing is made for a value that all entities start with.
  template <class M>
  void setExtra(M OdDbObjectExtras::*member, const M& value);
  void storeColor(const OdCmColor& color);
  void storeColorNames(const OdCmColor& color);
  Common m_common;
};
