// IMAGE.
#pragma once

#include "drawing/entities/entity.h"
#include "drawing/objects/image_def.h"

/// A picture from a file, laid as a parallelogram into the drawing, and possibly cut out.
class OdDbRasterImage : public OdDbEntity {
  ODDB_CONCRETE(OdDbRasterImage, "IMAGE")

  enum DisplayOpt : int {
    kShow = 1,
    kShowUnAligned = 2, ///< also if turned
    kClip = 4,
    kTransparent = 8
  };
  enum ClipBoundaryType : std::uint8_t { kInvalid = 0, kRect = 1, kPoly = 2 };

  /// The picture's definition; a reactor between both is kept by this.
  OdDbObjectId imageDefId() const { return m_image.definition; }
  void setImageDefId(OdDbObjectId definition);
  OdDbObjectId reactorId() const { return m_image.reactor; }
  /// Makes sure that the definition knows of the image; the image does this by itself.
  void addReactor();
  /// The lower left corner, and the whole lower and left edge, in world coordinates.
  void getOrientation(OdGePoint3d& origin, OdGeVector3d& u, OdGeVector3d& v) const;
  /// Raises OdError(eInvalidInput) for edges that enclose no area.
  void setOrientation(const OdGePoint3d& origin, const OdGeVector3d& u, const OdGeVector3d& v);
  const OdGePoint3d& origin() const { return m_image.origin; }
  /// In pixels, as the definition had them when the image was made; at least 1.
  OdGePoint2d imageSize() const { return m_image.size; }
  void setImageSize(const OdGePoint2d& pixels);

  bool isDisplayed() const { return m_image.display & kShow; }
  bool isDisplayOptSet(DisplayOpt option) const { return m_image.display & option; }
  void setDisplayOpt(DisplayOpt option, bool on);
  /// 0 to 100. Raise OdError(eInvalidInput) outside; so do the next.
  int brightness() const { return m_image.brightness; }
  void setBrightness(int value);
  int contrast() const { return m_image.contrast; }
  void setContrast(int value);
  int fade() const { return m_image.fade; }
  void setFade(int value);

  bool isClipped() const { return m_image.clipping != 0 && (m_image.display & kClip); }
  ClipBoundaryType clipBoundaryType() const {
    return static_cast<ClipBoundaryType>(m_image.clipType);
  }
  /// The corners in pixels from the upper left one, where the file has its half pixel less: two
  /// opposite ones of a rectangle, or a polygon.
  const std::vector<OdGePoint2d>& clipBoundary() const { return m_image.boundary; }
  /// Two points give a rectangle, more a polygon; none takes the clipping away.
  void setClipBoundary(std::vector<OdGePoint2d> corners);
  /// What lies outside of the boundary is shown in place of what lies inside.
  bool isClipInverted() const { return m_image.inverted != 0; }
  void setClipInverted(bool inverted);

  /// The corners of the whole picture, counterclockwise from the lower left one.
  std::vector<OdGePoint3d> corners() const;
  /// The corners of what is shown: those of the clip boundary, or of the whole. In world
  /// coordinates, without the first one repeated.
  std::vector<OdGePoint3d> shownBoundary() const;
  /// From pixels, from the upper left corner down, to world coordinates.
  OdGeMatrix3d pixelToWorld() const;

  void worldDraw(OdGiWorldDraw& draw) const override;
  bool getGeomExtents(OdGeExtents3d& extents) const override;
  bool transformBy(const OdGeMatrix3d& transform) override;
  OdRxObjectPtr clone() const override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

  /// What the file knows of an image.
  struct Data {
    OdDbObjectId definition, reactor;
    int version = 0, display = kShow | kShowUnAligned | kClip, clipping = 0, brightness = 50,
        contrast = 50, fade = 0, clipType = kRect, inverted = 0;
    OdGePoint3d origin;
    OdGeVector3d u = OdGeVector3d::xAxis(), v = OdGeVector3d::yAxis(); ///< of one pixel
    OdGePoint2d size{1, 1};
    std::vector<OdGePoint2d> boundary; ///< as in the file
  };

 protected:
  void enteredDatabase() override;

 private:
  Data m_image;
};
using OdDbRasterImagePtr = OdSmartPtr<OdDbRasterImage>;
