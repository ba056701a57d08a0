// Layouts and how they are plotted.
#pragma once

#include "drawing/geometry/extents.h"
#include "drawing/object.h"

/// How a sheet is plotted.
class OdDbPlotSettings : public OdDbObject {
  ODDB_CONCRETE(OdDbPlotSettings, "PLOTSETTINGS")

  enum PlotPaperUnits : std::uint8_t { kInches = 0, kMillimeters = 1, kPixels = 2 };
  enum PlotRotation : std::uint8_t { k0degrees, k90degrees, k180degrees, k270degrees };
  enum PlotType : std::uint8_t { kDisplay, kExtents, kLimits, kView, kWindow, kLayout };
  enum Flag : int {
    kPlotViewportBorders = 0x1,
    kShowPlotStyles = 0x2,
    kPlotCentered = 0x4,
    kPlotHidden = 0x8,
    kUseStandardScale = 0x10,
    kPlotPlotStyles = 0x20,
    kScaleLineweights = 0x40,
    kPrintLineweights = 0x80,
    kDrawViewportsFirst = 0x200,
    kModelType = 0x400,
    kUpdatePaper = 0x800,
    kZoomToPaperOnUpdate = 0x1000,
    kInitializing = 0x2000,
    kPrevPlotInit = 0x4000
  };

  /// Takes over how another sheet is plotted.
  void copyPlot(const OdDbPlotSettings& other);
  const OdString& plotSettingsName() const { return m_plot.pageSetup; }
  void setPlotSettingsName(const OdString& name);
  const OdString& getPlotCfgName() const { return m_plot.device; }
  void setPlotCfgName(const OdString& name);
  const OdString& getCanonicalMediaName() const { return m_plot.media; }
  void setCanonicalMediaName(const OdString& name);
  const OdString& getCurrentStyleSheet() const { return m_plot.styleSheet; }
  void setCurrentStyleSheet(const OdString& name);
  const OdString& getPlotViewName() const { return m_plot.view; }
  /// The sheet in millimetres, before it is turned. Raises OdError(eInvalidInput) unless above 0.
  OdGePoint2d getPlotPaperSize() const { return {m_plot.paperWidth, m_plot.paperHeight}; }
  void setPlotPaperSize(double width, double height);
  /// What cannot be printed on at the edges, in millimetres.
  void getPlotPaperMargins(double& left, double& bottom, double& right, double& top) const;
  void setPlotPaperMargins(double left, double bottom, double right, double top);
  /// Where the plot starts on the sheet, in millimetres.
  OdGePoint2d getPlotOrigin() const { return {m_plot.originX, m_plot.originY}; }
  void setPlotOrigin(const OdGePoint2d& origin);
  PlotPaperUnits plotPaperUnits() const { return static_cast<PlotPaperUnits>(m_plot.units); }
  void setPlotPaperUnits(PlotPaperUnits units);
  PlotRotation plotRotation() const { return static_cast<PlotRotation>(m_plot.rotation); }
  void setPlotRotation(PlotRotation rotation);
  PlotType plotType() const { return static_cast<PlotType>(m_plot.plotType); }
  void setPlotType(PlotType type);
  void getPlotWindowArea(OdGePoint2d& lower, OdGePoint2d& upper) const;
  void setPlotWindowArea(const OdGePoint2d& lower, const OdGePoint2d& upper);
  int plotFlags() const { return m_plot.flags; }
  bool plotFlag(Flag flag) const { return m_plot.flags & flag; }
  void setPlotFlag(Flag flag, bool on);

  /// The standard scale that is as large as the paper allows.
  static constexpr int kScaleToFit = 0;
  bool useStandardScale() const { return plotFlag(kUseStandardScale); }
  void setUseStandardScale(bool use) { setPlotFlag(kUseStandardScale, use); }
  /// The number of the standard scale: 0 to fit, 16 for 1:1 and so on.
  int stdScaleType() const { return m_plot.standardScale; }
  /// Also sets the factor and the custom scale. Raises OdError(eInvalidInput) for an unknown
  /// number.
  void setStdScaleType(int type);
  /// Sheet units by drawing units of the standard scale; 1 if the settings say nothing that counts.
  double getStdScale() const;
  void getStdScale(double& scale) const { scale = getStdScale(); }
  /// So many sheet units for so many drawing units, if no standard scale is used.
  void getCustomPrintScale(double& numerator, double& denominator) const;
  void setCustomPrintScale(double numerator, double denominator);
  /// The scale that counts.
  double plotScale() const;

  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

  /// What the file knows of plotting.
  struct Data {
    OdString pageSetup, device = QStringLiteral("none_device"), media, view, styleSheet;
    double left = 7.5, bottom = 20, right = 7.5, top = 20, paperWidth = 420, paperHeight = 297,
           originX = 0, originY = 0, windowMinX = 0, windowMinY = 0, windowMaxX = 0, windowMaxY = 0,
           numerator = 1, denominator = 1, scaleFactor = 1, imageX = 0, imageY = 0;
    int flags = 688, units = 1, rotation = 0, plotType = 5, standardScale = 16, shade = 0,
        resolution = 2, customDpi = 300;
  };

 protected:
  Data m_plot;
};
using OdDbPlotSettingsPtr = OdSmartPtr<OdDbPlotSettings>;

/// A sheet, or the model's tab: its place among the tabs, its limits, and the block that it shows.
class OdDbLayout : public OdDbPlotSettings {
  ODRX_DECLARE_MEMBERS(OdDbLayout);

 public:
  OdDbLayout();
  const char* dxfName() const override { return "LAYOUT"; }

  const OdString& getLayoutName() const { return m_layout.name; }
  /// Also renames the entry in the dictionary of layouts. Raises OdDbError (eInvalidName,
  /// eDuplicateRecordName).
  void setLayoutName(const OdString& name);
  OdDbObjectId getBlockTableRecordId() const { return m_layout.block; }
  void setBlockTableRecordId(OdDbObjectId block);
  /// The place among the tabs; the model has 0.
  int getTabOrder() const { return m_layout.tabOrder; }
  void setTabOrder(int order);
  bool isModelType() const { return m_plot.flags & kModelType; }
  void getLimits(OdGePoint2d& lower, OdGePoint2d& upper) const;
  void setLimits(const OdGePoint2d& lower, const OdGePoint2d& upper);
  /// The box around what stands on it, as it was told last; the greater is below the lower one if
  /// there is nothing.
  void getExtents(OdGePoint3d& lower, OdGePoint3d& upper) const;
  void setExtents(const OdGePoint3d& lower, const OdGePoint3d& upper);
  const OdGePoint3d& getInsertionBase() const { return m_layout.base; }
  /// The viewport that was worked in last; null if there was none.
  OdDbObjectId activeViewportId() const { return m_layout.viewport; }

  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;
  void assignFrom(const OdDbObject& other) override;

  /// What the file knows of a layout.
  struct LayoutData {
    OdString name;
    int flags = 1, tabOrder = 1, orthographicView = 0;
    OdGePoint2d limitsMin, limitsMax{420, 297};
    OdGePoint3d base, extentsMin{1e20, 1e20, 1e20}, extentsMax{-1e20, -1e20, -1e20};
    double elevation = 0;
    OdGePoint3d ucsOrigin, ucsX{1, 0, 0}, ucsY{0, 1, 0};
    OdDbObjectId block, viewport, ucs, baseUcs;
  };

 protected:
  OdDbObjectPtr newInstance() const override { return odrxMake<OdDbLayout>(); }

 private:
  LayoutData m_layout;
};
using OdDbLayoutPtr = OdSmartPtr<OdDbLayout>;

/// The tabs of a drawing.
namespace oddb {

/// In the order of their tabs, the model first.
std::vector<OdDbLayoutPtr> layouts(const OdDbDatabase& database);
/// By its name in any case; null if there is none.
OdDbObjectId findLayout(const OdDbDatabase& database, const OdString& name);
/// The layout whose block is drawn in now.
OdDbObjectId activeLayout(const OdDbDatabase& database);
/// Makes a sheet with its block, behind all others. Raises OdDbError (eInvalidName,
/// eDuplicateRecordName).
OdDbObjectId createLayout(OdDbDatabase& database, const OdString& name);
/// Takes a sheet away, with all that stands on it. Raises OdError(eNotApplicable) for the model and
/// for the last sheet.
void deleteLayout(OdDbDatabase& database, OdDbObjectId layout);
/// Makes a tab the one that is drawn in. The block of the sheet that is shown has the name
/// *Paper_Space: names go round with it.
void setActiveLayout(OdDbDatabase& database, OdDbObjectId layout);

} // namespace oddb
