// DIMENSION.
#pragma once

#include "drawing/entities/entity.h"
#include "drawing/tables/dim_style_table.h"

namespace oddb {
class DimensionBlock;
}

/// What all dimensions have. A dimension is shown by a block of its own, which recomputeDimBlock()
/// draws. One that was read without a block shows what that would draw.
class OdDbDimension : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbDimension);

 public:
  /// Of the file's code 70.
  enum Kind : int {
    kRotated = 0,
    kAligned = 1,
    kAngular = 2,
    kDiametric = 3,
    kRadial = 4,
    k3PointAngular = 5,
    kOrdinate = 6,
    kArcLength = 8
  };
  /// Flags beside the kind.
  enum Flag : int { kOwnBlock = 32, kOrdinateIsX = 64, kTextPlaced = 128 };

  virtual Kind kind() const = 0;

  /// Also takes the current dimension style.
  void setDatabaseDefaults(const OdDbDatabase& database) override;

  OdDbObjectId dimBlockId() const { return m_dimension.block; }
  void setDimBlockId(OdDbObjectId block);
  OdDbObjectId dimensionStyle() const { return m_dimension.style; }
  void setDimensionStyle(OdDbObjectId style);
  /// Takes the place of the measured value; empty or "<>" for that value itself, which "<>" stands
  /// for within other text. A blank for no text.
  const OdString& dimensionText() const { return m_dimension.text; }
  void setDimensionText(const OdString& text);
  /// The middle of the text, in world coordinates.
  OdGePoint3d textPosition() const;
  /// Puts the text there; the dimension keeps it there.
  void setTextPosition(const OdGePoint3d& position);
  bool isUsingDefaultTextPosition() const { return !(m_dimension.flags & kTextPlaced); }
  void useDefaultTextPosition();
  /// Radians.
  double textRotation() const { return m_dimension.textRotation; }
  void setTextRotation(double angle);
  double horizontalRotation() const { return m_dimension.horizontalDirection; }
  void setHorizontalRotation(double angle);
  const OdGeVector3d& normal() const { return m_dimension.normal; }
  void setNormal(const OdGeVector3d& normal);
  double elevation() const { return m_dimension.definition.z; }

  /// The value that is measured now: a length in drawing units, or radians.
  virtual double getMeasurement() const = 0;
  /// The text as it is shown: the value by the style's units, with its prefix, suffix and
  /// tolerances.
  OdString displayedText() const;
  /// The style's variables with what this dimension has otherwise.
  OdDbDimVarValues dimVars() const;
  /// What this dimension has otherwise than its style: kept as extended data of the file.
  void setDimVarOverride(const OdString& name, const OdDbVarValue& value);

  /// Draws the dimension anew into its block, which is made if there is none. False for one
  /// whose points tell no angle, or without a drawing.
  bool recomputeDimBlock();

  void worldDraw(OdGiWorldDraw& draw) const override;
  /// Moves the points. What is moved or turned keeps its picture; else the block is drawn anew
  /// where that is possible.
  bool transformBy(const OdGeMatrix3d& transform) override;
  /// Into what the block consists of.
  bool explode(std::vector<OdDbEntityPtr>& pieces) const override;
  OdRxObjectPtr clone() const override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;
  void assignFrom(const OdDbObject& other) override;

  /// What the file knows of a dimension. Which points count is a matter of the kind.
  struct Data {
    OdDbObjectId block, style;
    int version = 0, flags = kOwnBlock, attachment = 5, spacingStyle = 1, flipFirst = 0,
        flipSecond = 0, spare74 = 0;
    OdString text;
    double spacingFactor = 1, measurement = -1, textRotation = 0, horizontalDirection = 0;
    /// In world coordinates.
    OdGePoint3d definition, first, second, third;
    OdGePoint3d textMiddle, insertion, arcPoint; ///< in the coordinates of the plane
    OdGeVector3d normal = OdGeVector3d::zAxis();
    bool obliqueFirst = false; ///< the file tells the slant among what all dimensions have
    double rotation = 0, oblique = 0, leaderLength = 0;
    // Of arc lengths.
    double arcStart = 0, arcEnd = 0;
    int isPartial = 0, hasLeader = 0;
    OdGePoint3d leaderFirst, leaderSecond;
  };
  const Data& dimensionData() const { return m_dimension; }

 protected:
  OdDbDimension();
  void enteredDatabase() override;
  /// The subclasses behind AcDbDimension.
  virtual void dxfOutKind(OdDbDxfOut& out) const = 0;
  /// From the block's coordinates to the world's.
  OdGeMatrix3d blockTransform() const;
  /// The block that shows this dimension alone; made if there is none.
  OdDbObjectId ownBlock();
  /// Puts the pieces of the dimension into `block`, and what it finds out on the way (the place of
  /// the text) into `drawn`, which holds the dimension as it is. False for one whose points tell no
  /// angle.
  virtual bool layOut(oddb::DimensionBlock& block, Data& drawn) const = 0;
  /// Before a change that the picture does not follow by itself.
  void aboutToChange();
  Data m_dimension;

 private:
  std::optional<oddb::DimensionBlock> laidOut(Data& drawn) const;
  void unshareBlock();
  void moveBlock(OdGeMatrix3d transform);
  // A copy shows the block of its original until it comes to a drawing.
  bool m_blockIsShared = false;
  bool m_pictureIsOld = false; ///< values were changed since the block was drawn
  OdGeMatrix3d m_pendingMove;  ///< of such a copy, since it was made
};
using OdDbDimensionPtr = OdSmartPtr<OdDbDimension>;
