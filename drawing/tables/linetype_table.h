// Line types.
#pragma once

#include "drawing/geometry/geometry.h"
#include "drawing/tables/symbol_table.h"

/// A line type: dashes, dots and gaps, some of which may carry a shape or a text. An index outside
/// the dashes raises OdError_InvalidIndex.
class OdDbLinetypeTableRecord : public OdDbSymbolTableRecord {
  ODDB_CONCRETE(OdDbLinetypeTableRecord, "LTYPE")

  const OdString& comments() const { return m_linetype.comments; }
  void setComments(const OdString& text);
  double patternLength() const { return m_linetype.patternLength; }
  void setPatternLength(double length);
  int numDashes() const { return static_cast<int>(m_linetype.dashes.size()); }
  /// New dashes have length 0 and carry nothing.
  void setNumDashes(int count);
  /// Above 0 a dash, 0 a dot, below 0 a gap.
  double dashLengthAt(int index) const { return dash(index).length; }
  void setDashLengthAt(int index, double length);

  /// The text style of a text, or the style that stands for a shape file; null for a plain dash.
  OdDbObjectId shapeStyleAt(int index) const { return dash(index).style; }
  void setShapeStyleAt(int index, OdDbObjectId style);
  double shapeScaleAt(int index) const { return dash(index).scale; }
  void setShapeScaleAt(int index, double scale);
  /// Radians.
  double shapeRotationAt(int index) const { return dash(index).rotation; }
  void setShapeRotationAt(int index, double angle);
  const OdGePoint2d& shapeOffsetAt(int index) const { return dash(index).offset; }
  void setShapeOffsetAt(int index, const OdGePoint2d& offset);
  /// The rotation is against the drawing and not against the line.
  bool shapeIsUcsOrientedAt(int index) const { return dash(index).ucsOriented; }
  void setShapeIsUcsOrientedAt(int index, bool oriented);
  /// The text or shape is turned round where it would stand on its head.
  bool shapeIsUprightAt(int index) const { return dash(index).isUpright; }
  void setShapeIsUprightAt(int index, bool upright);
  /// 0 if the dash carries no shape.
  std::uint16_t shapeNumberAt(int index) const { return dash(index).shapeNumber; }
  void setShapeNumberAt(int index, std::uint16_t number);
  /// Empty if the dash carries no text.
  const OdString& textAt(int index) const { return dash(index).text; }
  void setTextAt(int index, const OdString& text);

  const char* dxfSubclass() const override { return "AcDbLinetypeTableRecord"; }
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;

 protected:
  void dxfOutFields(OdDbDxfOut& out) const override;

 private:
  struct Dash {
    double length = 0, scale = 1, rotation = 0;
    OdGePoint2d offset;
    OdDbObjectId style;
    OdString text;
    std::uint16_t shapeNumber = 0;
    bool ucsOriented = false, isUpright = false;
    std::uint8_t typeBits = 0; ///< as the file has them
  };
  struct Data {
    OdString comments;
    double patternLength = 0;
    std::vector<Dash> dashes;
  };
  const Dash& dash(int index) const;
  Dash& editDash(int index);

  Data m_linetype;
};

/// The drawing's line types; ByLayer, ByBlock and Continuous are always there.
ODDB_TABLE(OdDbLinetypeTable, OdDbLinetypeTableRecord, "LTYPE");
