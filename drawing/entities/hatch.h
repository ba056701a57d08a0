// HATCH.
#pragma once

#include "drawing/entities/entity.h"
#include "drawing/entities/hatch_loop.h"
#include "drawing/graphics/world_draw.h"
#include "drawing/patterns/hatch_pattern.h"

/// An area with holes, filled with a pattern, a colour or a gradient.
class OdDbHatch : public OdDbEntity {
  ODDB_CONCRETE(OdDbHatch, "HATCH")

  enum HatchStyle : std::uint8_t {
    kNormal = 0, ///< every second area inside another is empty
    kOuter = 1,  ///< only the outermost areas are filled, without their islands
    kIgnore = 2  ///< islands count for nothing
  };
  /// Where the pattern comes from.
  enum HatchPatternType : std::uint8_t { kUserDefined = 0, kPreDefined = 1, kCustomDefined = 2 };

  // --- boundary

  unsigned numLoops() const { return static_cast<unsigned>(m_hatch.loops.size()); }
  /// Raises OdError_InvalidIndex.
  const OdDbHatchLoop& loopAt(unsigned index) const;
  void appendLoop(const OdDbHatchLoop& loop);
  void removeLoopAt(unsigned index);
  void setLoops(std::vector<OdDbHatchLoop> loops);
  HatchStyle hatchStyle() const { return static_cast<HatchStyle>(m_hatch.style); }
  void setHatchStyle(HatchStyle style);
  /// The boundary follows the entities that its loops name as their sources.
  bool associative() const { return m_hatch.associative != 0; }
  void setAssociative(bool associative);
  /// The sources of all loops, each once.
  std::vector<OdDbObjectId> getAssocObjIds() const;
  /// The plane's height along its normal.
  double elevation() const { return m_hatch.elevation.z; }
  void setElevation(double elevation);
  const OdGeVector3d& normal() const { return m_hatch.normal; }
  void setNormal(const OdGeVector3d& normal);
  /// The points that were clicked into, in the plane.
  const std::vector<OdGePoint2d>& seedPoints() const { return m_hatch.seeds; }
  void setSeedPoints(std::vector<OdGePoint2d> points);
  /// Closed rings in world coordinates: what lies in an odd number of them is filled. Style and
  /// islands are accounted for.
  OdGiRings filledRings(double deviation) const;
  /// The same in the plane of the hatch.
  std::vector<std::vector<OdGePoint2d>> filledPlaneRings(double deviation) const;
  /// The filled area in square units, within chords.
  double getArea() const;

  // --- pattern

  HatchPatternType patternType() const {
    return static_cast<HatchPatternType>(m_hatch.patternType);
  }
  const OdString& patternName() const { return m_hatch.patternName; }
  /// Sets type, name and the definition's lines from a pattern at scale 1 and angle 0, placed by
  /// the hatch's angle and scale. "SOLID" fills the area.
  void setPattern(HatchPatternType type, const OdString& name, const OdHatchPattern& pattern = {});
  /// Only type and name; the lines stay.
  void setPattern(HatchPatternType type, const OdString& name,
                  std::vector<OdHatchPatternLine> placedLines);
  bool isSolidFill() const { return m_hatch.solid != 0; }
  double patternAngle() const { return m_hatch.patternAngle; }
  /// Turns the lines with it. Radians.
  void setPatternAngle(double angle);
  double patternScale() const { return m_hatch.patternScale; }
  /// Above 0. Scales the lines with it.
  void setPatternScale(double scale);
  /// Of a user-defined pattern: lines so far apart, and across as well if double. The file keeps
  /// the distance as the scale.
  double patternSpace() const { return m_hatch.patternScale; }
  void setPatternSpace(double space);
  bool patternDouble() const { return m_hatch.patternDouble != 0; }
  void setPatternDouble(bool isDouble);
  const std::vector<OdHatchPatternLine>& patternLines() const { return m_hatch.lines; }
  /// The point from which the pattern starts, in the plane.
  OdGePoint2d originPoint() const { return m_hatch.origin; }
  /// Moves the lines with it.
  void setOriginPoint(const OdGePoint2d& origin);
  /// The area behind a pattern; none for no colour.
  const OdCmColor& backgroundColor() const { return m_hatch.background; }
  void setBackgroundColor(const OdCmColor& color);

  // --- gradient

  bool isGradient() const { return m_hatch.gradient != 0; }
  /// Makes the hatch a gradient, or a plain filling again.
  void setGradient(bool on);
  /// "LINEAR", "INVSPHERICAL" and the like.
  const OdString& gradientName() const { return m_hatch.gradientName; }
  void setGradientName(const OdString& name);
  double gradientAngle() const { return m_hatch.gradientAngle; }
  void setGradientAngle(double angle);
  /// 0 centred, 1 moved to the upper left.
  double gradientShift() const { return m_hatch.gradientShift; }
  void setGradientShift(double shift);
  bool gradientOneColorMode() const { return m_hatch.oneColor != 0; }
  void setGradientOneColorMode(bool on);
  /// How light the second colour of a one-colour gradient is: 0 black, 1 white.
  double shadeTintValue() const { return m_hatch.tint; }
  void setShadeTintValue(double tint);
  OdCmColor gradientColor1() const { return m_hatch.color1; }
  /// Of a one-colour gradient what the tint makes of the first one.
  OdCmColor gradientColor2() const;
  void setGradientColors(const OdCmColor& first, const OdCmColor& second);

  void worldDraw(OdGiWorldDraw& draw) const override;
  bool getGeomExtents(OdGeExtents3d& extents) const override;
  bool transformBy(const OdGeMatrix3d& transform) override;
  OdDbEntityPtr getTransformedCopy(const OdGeMatrix3d& transform) const override;
  /// Into the lines of the pattern; false for a filling.
  bool explode(std::vector<OdDbEntityPtr>& pieces) const override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

  /// What the file knows of a hatch; points in the coordinates of its plane, angles in radians.
  struct Data {
    OdGePoint3d elevation; ///< only z says something
    OdGeVector3d normal = OdGeVector3d::zAxis();
    OdString patternName = QStringLiteral("SOLID");
    int solid = 1, associative = 0, style = 0, patternType = 1, patternDouble = 0;
    double patternAngle = 0, patternScale = 1, pixelSize = 0;
    std::vector<OdDbHatchLoop> loops;
    std::vector<OdHatchPatternLine> lines;
    std::vector<OdGePoint2d> seeds;
    int gradient = 0, gradientReserved = 0, oneColor = 0, colorCount = 2;
    double gradientAngle = 0, gradientShift = 0, tint = 0;
    double colorValue1 = 0, colorValue2 = 1;
    int colorIndex1 = -1, colorIndex2 = -1; ///< told beside true colours; below 0: not told
    OdCmColor color1 = OdCmColor::fromRgb(0, 0, 255), color2 = OdCmColor::fromRgb(255, 255, 153);
    OdString gradientName = QStringLiteral("LINEAR");
    OdGePoint2d origin;
    OdCmColor background = OdCmColor(OdCmColor::kNone);
  };

 protected:
  void enteredDatabase() override;

 private:
  /// Where in the file entry the tag at hand stands.
  enum class Stage : std::uint8_t { kHead, kLoops, kPattern, kSeeds, kGradient };

  void relayLines(double factor, double turn);
  void keepXData();
  void readXData();
  bool readLoopTag(const OdDbDxfTag& tag, OdDbDxfIn& in);
  bool readEdgeTag(const OdDbDxfTag& tag, OdDbDxfIn& in);
  bool readPatternTag(const OdDbDxfTag& tag, OdDbDxfIn& in);
  bool readGradientTag(const OdDbDxfTag& tag, OdDbDxfIn& in);
  Data m_hatch;
  Stage m_stage = Stage::kHead; ///< while reading
  bool m_secondColor = false;   ///< while reading
  int m_colorsRead = 0;         ///< while reading
};
using OdDbHatchPtr = OdSmartPtr<OdDbHatch>;
