// VIEWPORT.
#pragma once

#include "drawing/entities/entity.h"

/// A window of a layout through which the model is seen. The first one of a layout is the sheet
/// itself.
class OdDbViewport : public OdDbEntity {
  ODDB_CONCRETE(OdDbViewport, "VIEWPORT")

  enum StatusFlag : int {
    kPerspective = 0x1,
    kFrontClip = 0x2,
    kBackClip = 0x4,
    kUcsFollow = 0x8,
    kLocked = 0x4000,
    kNonRectClip = 0x10000,
    kOff = 0x20000
  };

  /// The middle on the sheet.
  const OdGePoint3d& centerPoint() const { return m_viewport.center; }
  void setCenterPoint(const OdGePoint3d& center);
  /// Sizes on the sheet, above 0.
  double width() const { return m_viewport.width; }
  void setWidth(double width);
  double height() const { return m_viewport.height; }
  void setHeight(double height);
  /// 1 for the sheet itself, 0 while off.
  int number() const { return m_viewport.number; }
  void setNumber(int number);
  bool isOn() const;
  void setOn(bool on);
  /// True for the window that stands for the sheet.
  bool isOverall() const { return m_viewport.number == 1; }

  /// The middle of the view, in the plane that is looked at.
  OdGePoint2d viewCenter() const { return m_viewport.viewCenter; }
  void setViewCenter(const OdGePoint2d& center);
  /// How much of the model is seen from the lower to the upper edge; above 0.
  double viewHeight() const { return m_viewport.viewHeight; }
  void setViewHeight(double height);
  const OdGePoint3d& viewTarget() const { return m_viewport.target; }
  void setViewTarget(const OdGePoint3d& target);
  /// From the target to the eye.
  const OdGeVector3d& viewDirection() const { return m_viewport.direction; }
  void setViewDirection(const OdGeVector3d& direction);
  /// Radians.
  double twistAngle() const { return m_viewport.twist; }
  void setTwistAngle(double angle);
  double lensLength() const { return m_viewport.lens; }
  /// Sheet units by model units.
  double customScale() const;
  /// Above 0; changes the height of the view.
  void setCustomScale(double scale);
  bool isLocked() const { return m_viewport.status & kLocked; }
  void setLocked(bool locked);
  int statusFlags() const { return m_viewport.status; }
  bool isLayerFrozen(OdDbObjectId layer) const;
  const std::vector<OdDbObjectId>& frozenLayers() const { return m_viewport.frozenLayers; }
  void setFrozenLayers(std::vector<OdDbObjectId> layers);
  /// The closed entity that cuts the view out; null for a rectangle.
  OdDbObjectId nonRectClipEntityId() const { return m_viewport.clipEntity; }
  void setNonRectClipEntityId(OdDbObjectId entity);

  /// From the model to the sheet, for a view without perspective.
  OdGeMatrix3d modelToPaper() const;
  /// The edge on the sheet: the rectangle, or chords of the cutting entity.
  std::vector<OdGePoint3d> boundary(double deviation) const;

  void worldDraw(OdGiWorldDraw& draw) const override;
  bool getGeomExtents(OdGeExtents3d& extents) const override;
  bool transformBy(const OdGeMatrix3d& transform) override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

  /// What the file knows of a viewport; angles in radians.
  struct Data {
    OdGePoint3d center;
    double width = 1, height = 1;
    int statusId = 2, number = 2;
    OdGePoint2d viewCenter, snapBase, snapSpacing{10, 10}, gridSpacing{10, 10};
    OdGeVector3d direction = OdGeVector3d::zAxis();
    OdGePoint3d target;
    double lens = 50, frontClip = 0, backClip = 0, viewHeight = 1, snapAngle = 0, twist = 0;
    int circleZoom = 1000;
    std::vector<OdDbObjectId> frozenLayers;
    int status = 0x8060; ///< of a new one: no grid, the sign of the coordinate system in its corner
    OdDbObjectId clipEntity;
  };

 private:
  Data m_viewport;
};
using OdDbViewportPtr = OdSmartPtr<OdDbViewport>;
