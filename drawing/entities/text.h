// TEXT.
#pragma once

#include "drawing/entities/entity.h"
#include "drawing/geometry/extrusion.h"
#include "drawing/graphics/world_draw.h"

/// One line of text.
class OdDbText : public OdDbEntity {
  ODDB_CONCRETE(OdDbText, "TEXT")

  /// Also takes the current text style and text height.
  void setDatabaseDefaults(const OdDbDatabase& database) override;

  /// The text with its %% codes.
  const OdString& textString() const { return m_text.string; }
  virtual void setTextString(const OdString& text);
  /// The left end of the base line, in world coordinates.
  OdGePoint3d position() const;
  void setPosition(const OdGePoint3d& position);
  /// Where the text is fastened, in world coordinates; counts unless left and base are set.
  OdGePoint3d alignmentPoint() const;
  void setAlignmentPoint(const OdGePoint3d& point);
  double height() const { return m_text.height; }
  /// Raises OdError(eInvalidInput) unless above 0.
  void setHeight(double height);
  /// Radians, in the text's plane.
  double rotation() const { return m_text.rotation; }
  void setRotation(double angle);
  double widthFactor() const { return m_text.widthFactor; }
  void setWidthFactor(double factor);
  double oblique() const { return m_text.oblique; }
  void setOblique(double angle);
  OdDbObjectId textStyle() const { return m_text.style; }
  void setTextStyle(OdDbObjectId style);
  OdDb::TextHorzMode horizontalMode() const;
  void setHorizontalMode(OdDb::TextHorzMode mode);
  OdDb::TextVertMode verticalMode() const;
  void setVerticalMode(OdDb::TextVertMode mode);
  /// True if the position counts, false if the alignment point does.
  bool isDefaultAlignment() const;
  bool isMirroredInX() const;
  void mirrorInX(bool mirror);
  bool isMirroredInY() const;
  void mirrorInY(bool mirror);
  double thickness() const { return m_text.extrusion.thickness(); }
  void setThickness(double thickness);
  const OdGeVector3d& normal() const { return m_text.extrusion.normal(); }
  void setNormal(const OdGeVector3d& normal);

  /// Moves the position to the left end of the base line as the text is fastened, and sets rotation
  /// and width factor where both points decide about them.
  void adjustAlignment();
  /// What is shown, one run for each change of lines above and below.
  std::vector<OdGiTextRun> runs() const;

  void worldDraw(OdGiWorldDraw& draw) const override;
  OdDbEntityPtr getTransformedCopy(const OdGeMatrix3d& transform) const override;
  bool transformBy(const OdGeMatrix3d& transform) override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

  /// What the file knows of a text; points in the coordinates of its plane, angles in radians.
  struct Data {
    OdGePoint3d position, alignment;
    double height = 1, rotation = 0, widthFactor = 1, oblique = 0;
    OdDbExtrusion extrusion;
    OdString string;
    OdDbObjectId style;
    int generation = 0, horizontal = 0, vertical = 0;
  };

 protected:
  /// For attributes, which have the same fields and say them elsewhere.
  void textOut(OdDbDxfOut& out) const;
  void putAlignment(OdDbDxfOut& out) const;
  void setVerticalField(int mode) { m_text.vertical = mode; }
  /// The runs of another text in this one's place and look.
  std::vector<OdGiTextRun> runsOf(const OdString& text) const;

 private:
  struct Place;
  Place placeOf(const OdString& text) const;
  Data m_text;
};
using OdDbTextPtr = OdSmartPtr<OdDbText>;
