// The parts of the model tab's window.
#pragma once

#include "drawing/geometry/geometry.h"
#include "drawing/tables/symbol_table.h"

class OdDbKeptTags;

/// A part of the model tab's window, and what of the drawing it shows. Several records share the
/// name *Active. What is not told here is kept as the file has it.
class OdDbViewportTableRecord : public OdDbSymbolTableRecord {
  ODRX_DECLARE_MEMBERS(OdDbViewportTableRecord);

 public:
  /// The middle of the view, in the plane that is looked at.
  OdGePoint2d centerPoint() const;
  /// Raises OdError(eInvalidInput) for a number that is not finite.
  void setCenterPoint(const OdGePoint2d& center);
  /// How much of the drawing is seen from the lower to the upper edge; above 0.
  double height() const;
  /// Raises OdError(eInvalidInput) unless the number is finite and above 0; so do the next.
  void setHeight(double height);
  /// Width by height; above 0.
  double aspect() const;
  void setAspect(double aspect);

  const char* dxfName() const override { return "VPORT"; }
  const char* dxfSubclass() const override { return "AcDbViewportTableRecord"; }

 protected:
  OdDbObjectPtr newInstance() const override { return odrxMake<OdDbViewportTableRecord>(); }
  void enteredDatabase() override;

 private:
  OdDbKeptTags kept() const;
  void keep(const OdDbKeptTags& tags);
};

ODDB_TABLE(OdDbViewportTable, OdDbViewportTableRecord, "VPORT");
