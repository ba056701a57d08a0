// INSERT.
#pragma once

#include "drawing/entities/attribute.h"

#include <QHash>

/// The components of a scaling along three axes.
struct OdGeScale3d {
  double sx = 1, sy = 1, sz = 1;
  bool operator==(const OdGeScale3d&) const = default;
};

/// A block shown at a place, with the texts that it fills in; or in rows and columns.
class OdDbBlockReference : public OdDbEntity {
  ODDB_CONCRETE(OdDbBlockReference, "INSERT")

  explicit OdDbBlockReference(OdDbObjectId block, const OdGePoint3d& position = {});

  OdDbObjectId blockTableRecord() const { return m_insert.block; }
  void setBlockTableRecord(OdDbObjectId block);
  /// The name of the block; empty if there is none.
  OdString blockName() const;
  /// Where the base point of the block comes to stand, in world coordinates.
  OdGePoint3d position() const;
  void setPosition(const OdGePoint3d& position);
  OdGeScale3d scaleFactors() const { return m_insert.scale; }
  /// Negative factors mirror. Raises OdError(eInvalidInput) for a factor of 0.
  void setScaleFactors(const OdGeScale3d& scale);
  /// Radians, in the plane of the insert.
  double rotation() const { return m_insert.rotation; }
  void setRotation(double angle);
  const OdGeVector3d& normal() const { return m_insert.normal; }
  void setNormal(const OdGeVector3d& normal);

  /// An insert in rows and columns.
  bool isMInsert() const { return m_insert.columns > 1 || m_insert.rows > 1; }
  int numColumns() const { return m_insert.columns; }
  int numRows() const { return m_insert.rows; }
  double columnSpacing() const { return m_insert.columnSpacing; }
  double rowSpacing() const { return m_insert.rowSpacing; }
  /// Counts from 1 on, distances along the turned axes of the insert and untouched by its scale.
  /// Raises OdError(eInvalidInput) for a count outside of 1 to 32767.
  void setArray(int columns, int rows, double columnSpacing, double rowSpacing);

  /// From the block's coordinates to those of the insert, as the block's base point and the insert
  /// tell it; for an array that of the first cell.
  OdGeMatrix3d blockTransform() const;
  /// The transformation of every cell, row by row.
  std::vector<OdGeMatrix3d> cellTransforms() const;

  /// The attributes in their order. While the insert is in no drawing they are its own.
  std::vector<OdDbAttributePtr> attributes(OdDb::OpenMode mode = OdDb::kForRead) const;
  /// Gives a new attribute to the insert, and so to its drawing.
  OdDbObjectId appendAttribute(OdDbAttribute* attribute);
  /// One attribute for each definition of the block that is not constant, with the given values by
  /// tag (in any case) or those of the definitions.
  void appendAttributesFromBlock(const QHash<OdString, OdString>& values = {});
  /// The attribute of a tag, in any case; null if there is none.
  OdDbAttributePtr attribute(const OdString& tag, OdDb::OpenMode mode = OdDb::kForRead) const;

  void worldDraw(OdGiWorldDraw& draw) const override;
  /// False for what would turn right angles of the block's axes into others.
  bool transformBy(const OdGeMatrix3d& transform) override;
  /// What the block consists of, moved and with its own properties; nested inserts that cannot
  /// take their shape are taken apart themselves. Attributes fall back to their definitions.
  bool explode(std::vector<OdDbEntityPtr>& pieces) const override;

  OdRxObjectPtr clone() const override;
  bool takesFollowers() const override { return true; }
  void addFollower(OdDbEntity& follower) override;
  void dxfOutFollowers(OdDbDxfOut& out) const override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

  /// What the file knows of an insert; the position in the coordinates of its plane.
  struct Data {
    OdDbObjectId block;
    OdGePoint3d position;
    OdGeScale3d scale;
    double rotation = 0, columnSpacing = 0, rowSpacing = 0;
    int columns = 1, rows = 1;
    OdGeVector3d normal = OdGeVector3d::zAxis();
    std::vector<OdDbObjectId> attributes;
    OdDbObjectId end; ///< the end mark behind the attributes
  };

 protected:
  void enteredDatabase() override;

 private:
  bool explodeCell(const OdGeMatrix3d& transform, std::vector<OdDbEntityPtr>& pieces,
                   std::vector<OdDbObjectId>& open) const;
  void addEnd();

  Data m_insert;
  std::vector<OdDbAttributePtr> m_own; ///< attributes of an insert that is in no drawing
};
using OdDbBlockReferencePtr = OdSmartPtr<OdDbBlockReference>;

/// Looks at an insert as that of a block with parameters. Such blocks are shown by the anonymous
/// block that holds their present state, and all that tells of their parameters is kept.
class OdDbDynBlockReference {
 public:
  explicit OdDbDynBlockReference(OdDbObjectId insert)
    : m_insert(insert) {}

  OdDbObjectId blockId() const { return m_insert; }
  /// True if the insert shows a state of a block with parameters.
  bool isDynamicBlock() const;
  /// The block with the parameters; for an insert of a plain block that block.
  OdDbObjectId dynamicBlockTableRecord() const;
  /// The anonymous block that is shown in its place; null for an insert of a plain block.
  OdDbObjectId anonymousBlockTableRecord() const;

 private:
  OdDbObjectId m_insert;
};
