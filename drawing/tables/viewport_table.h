// The parts of the model tab's window.
#pragma once

#include "drawing/tables/view_table.h"

/// A part of the model tab's window, and what of the drawing it shows. Several records share the
/// name *Active.
class OdDbViewportTableRecord : public OdDbAbstractViewTableRecord {
  ODRX_DECLARE_MEMBERS(OdDbViewportTableRecord);

 public:
  /// Width by height; above 0.
  double aspect() const;
  void setAspect(double aspect);
  double width() const override { return height() * aspect(); }
  void setWidth(double width) override { setAspect(width / height()); }
  /// Its corners in the window, whose lower left one is (0, 0) and whose upper right one (1, 1).
  OdGePoint2d lowerLeftCorner() const;
  OdGePoint2d upperRightCorner() const;
  void setCorners(const OdGePoint2d& lowerLeft, const OdGePoint2d& upperRight);

  const char* dxfName() const override { return "VPORT"; }
  const char* dxfSubclass() const override { return "AcDbViewportTableRecord"; }

 protected:
  OdDbObjectPtr newInstance() const override { return odrxMake<OdDbViewportTableRecord>(); }
  const Codes& codes() const override;
  void enteredDatabase() override;
};

ODDB_TABLE(OdDbViewportTable, OdDbViewportTableRecord, "VPORT");
