// Saved views, and the parts of the model tab's window.
#pragma once

#include "drawing/geometry/matrix.h"
#include "drawing/tables/kept_record.h"

/// What of the drawing is seen, and from where. What is not told here is kept as the file has it.
class OdDbAbstractViewTableRecord : public OdDbKeptRecord {
  ODRX_DECLARE_MEMBERS(OdDbAbstractViewTableRecord);

 public:
  /// The middle of the view, in the plane that is looked at.
  OdGePoint2d centerPoint() const;
  /// Raises OdError(eInvalidInput) for a number that is not finite; so do all setters.
  void setCenterPoint(const OdGePoint2d& center);
  /// How much of the drawing is seen from the lower to the upper edge; above 0.
  double height() const;
  void setHeight(double height);
  /// How much is seen from the left to the right edge; above 0.
  virtual double width() const = 0;
  virtual void setWidth(double width) = 0;
  OdGePoint3d target() const;
  void setTarget(const OdGePoint3d& target);
  /// From the target to the eye; never without length.
  OdGeVector3d viewDirection() const;
  void setViewDirection(const OdGeVector3d& direction);
  /// Radians.
  double viewTwist() const;
  void setViewTwist(double angle);
  double lensLength() const;
  void setLensLength(double length);

 protected:
  /// The codes of the fields.
  struct Codes {
    int center, direction, target, height, width, lens, twist;
  };
  OdDbAbstractViewTableRecord();
  virtual const Codes& codes() const = 0;
};

/// A saved view.
class OdDbViewTableRecord : public OdDbAbstractViewTableRecord {
  ODRX_DECLARE_MEMBERS(OdDbViewTableRecord);

 public:
  double width() const override;
  void setWidth(double width) override;
  bool isPaperspaceView() const { return hasFlag(1); }
  void setIsPaperspaceView(bool paper) { setFlag(1, paper); }
  const char* dxfName() const override { return "VIEW"; }
  const char* dxfSubclass() const override { return "AcDbViewTableRecord"; }

 protected:
  OdDbObjectPtr newInstance() const override { return odrxMake<OdDbViewTableRecord>(); }
  const Codes& codes() const override;
  void enteredDatabase() override;
};

ODDB_TABLE(OdDbViewTable, OdDbViewTableRecord, "VIEW");

/// A coordinate system of the user's.
class OdDbUCSTableRecord : public OdDbKeptRecord {
  ODRX_DECLARE_MEMBERS(OdDbUCSTableRecord);

 public:
  OdGePoint3d origin() const;
  void setOrigin(const OdGePoint3d& origin);
  /// Of length 1.
  OdGeVector3d xAxis() const;
  OdGeVector3d yAxis() const;
  /// Raises OdError(eInvalidInput) unless both have a length and stand on each other.
  void setAxes(const OdGeVector3d& x, const OdGeVector3d& y);
  /// From its coordinates to the world's.
  OdGeMatrix3d toWorld() const;
  const char* dxfName() const override { return "UCS"; }
  const char* dxfSubclass() const override { return "AcDbUCSTableRecord"; }

 protected:
  OdDbObjectPtr newInstance() const override { return odrxMake<OdDbUCSTableRecord>(); }
  void enteredDatabase() override;
};

ODDB_TABLE(OdDbUCSTable, OdDbUCSTableRecord, "UCS");
