#include "drawing/checks.h"
#include "drawing/objects/layout.h"

namespace {

/// The standard scales by their numbers: so many sheet units for so many drawing units.
struct Scale {
  double paper, drawing;
};
constexpr Scale kScales[] = {
    {1, 1},        {1.0 / 128, 12}, {1.0 / 64, 12}, {1.0 / 32, 12}, {1.0 / 16, 12}, {3.0 / 32, 12},
    {1.0 / 8, 12}, {3.0 / 16, 12},  {1.0 / 4, 12},  {3.0 / 8, 12},  {1.0 / 2, 12},  {3.0 / 4, 12},
    {1, 12},       {3, 12},         {6, 12},        {12, 12},       {1, 1},         {1, 2},
    {1, 4},        {1, 8},          {1, 10},        {1, 16},        {1, 20},        {1, 30},
    {1, 40},       {1, 50},         {1, 100},       {2, 1},         {4, 1},         {8, 1},
    {10, 1},       {100, 1},        {1000, 1},
};

bool isKnown(int type) { return type >= 0 && type < static_cast<int>(std::size(kScales)); }

} // namespace

OdDbPlotSettings::OdDbPlotSettings() = default;

void OdDbPlotSettings::assignFrom(const OdDbObject& other) {
  OdDbObject::assignFrom(other);
  m_plot = static_cast<const OdDbPlotSettings&>(other).m_plot;
}

void OdDbPlotSettings::copyPlot(const OdDbPlotSettings& other) {
  assertWriteEnabled();
  // Which of the tabs it is, is no matter of plotting.
  const int own = m_plot.flags & kModelType;
  m_plot = other.m_plot;
  m_plot.flags = (m_plot.flags & ~kModelType) | own;
}

void OdDbPlotSettings::setPlotSettingsName(const OdString& name) {
  assertWriteEnabled();
  m_plot.pageSetup = name;
}

void OdDbPlotSettings::setPlotCfgName(const OdString& name) {
  assertWriteEnabled();
  m_plot.device = name;
}

void OdDbPlotSettings::setCanonicalMediaName(const OdString& name) {
  assertWriteEnabled();
  m_plot.media = name;
}

void OdDbPlotSettings::setCurrentStyleSheet(const OdString& name) {
  assertWriteEnabled();
  m_plot.styleSheet = name;
}

void OdDbPlotSettings::setPlotPaperSize(double width, double height) {
  odcheck::positive(width);
  odcheck::positive(height);
  assertWriteEnabled();
  m_plot.paperWidth = width;
  m_plot.paperHeight = height;
}

void OdDbPlotSettings::getPlotPaperMargins(double& left, double& bottom, double& right,
                                           double& top) const {
  left = m_plot.left;
  bottom = m_plot.bottom;
  right = m_plot.right;
  top = m_plot.top;
}

void OdDbPlotSettings::setPlotPaperMargins(double left, double bottom, double right, double top) {
  for (const double margin : {left, bottom, right, top}) odcheck::finite(margin);
  assertWriteEnabled();
  m_plot.left = left;
  m_plot.bottom = bottom;
  m_plot.right = right;
  m_plot.top = top;
}

void OdDbPlotSettings::setPlotOrigin(const OdGePoint2d& origin) {
  odcheck::finite(origin);
  assertWriteEnabled();
  m_plot.originX = origin.x;
  m_plot.originY = origin.y;
}

void OdDbPlotSettings::setPlotPaperUnits(PlotPaperUnits units) {
  assertWriteEnabled();
  m_plot.units = units;
}

void OdDbPlotSettings::setPlotRotation(PlotRotation rotation) {
  assertWriteEnabled();
  m_plot.rotation = rotation;
}

void OdDbPlotSettings::setPlotType(PlotType type) {
  assertWriteEnabled();
  m_plot.plotType = type;
}

void OdDbPlotSettings::getPlotWindowArea(OdGePoint2d& lower, OdGePoint2d& upper) const {
  lower = {m_plot.windowMinX, m_plot.windowMinY};
  upper = {m_plot.windowMaxX, m_plot.windowMaxY};
}

void OdDbPlotSettings::setPlotWindowArea(const OdGePoint2d& lower, const OdGePoint2d& upper) {
  odcheck::finite(lower);
  odcheck::finite(upper);
  assertWriteEnabled();
  m_plot.windowMinX = lower.x;
  m_plot.windowMinY = lower.y;
  m_plot.windowMaxX = upper.x;
  m_plot.windowMaxY = upper.y;
}

void OdDbPlotSettings::setPlotFlag(Flag flag, bool on) {
  assertWriteEnabled();
  m_plot.flags = on ? m_plot.flags | flag : m_plot.flags & ~flag;
}

void OdDbPlotSettings::setStdScaleType(int type) {
  if (!isKnown(type))
    throw OdError(eInvalidInput, QStringLiteral("%1 is no standard scale").arg(type));
  assertWriteEnabled();
  const Scale& scale = kScales[type];
  m_plot.standardScale = type;
  m_plot.scaleFactor = scale.paper / scale.drawing;
  m_plot.numerator = scale.paper;
  m_plot.denominator = scale.drawing;
}

double OdDbPlotSettings::getStdScale() const {
  const int type = m_plot.standardScale;
  if (isKnown(type) && type != OdDbPlotSettings::kScaleToFit)
    return kScales[type].paper / kScales[type].drawing;
  return std::isfinite(m_plot.scaleFactor) && m_plot.scaleFactor > 0 ? m_plot.scaleFactor : 1;
}

void OdDbPlotSettings::getCustomPrintScale(double& numerator, double& denominator) const {
  numerator = m_plot.numerator;
  denominator = m_plot.denominator;
}

void OdDbPlotSettings::setCustomPrintScale(double numerator, double denominator) {
  odcheck::positive(numerator);
  odcheck::positive(denominator);
  assertWriteEnabled();
  m_plot.numerator = numerator;
  m_plot.denominator = denominator;
}

double OdDbPlotSettings::plotScale() const {
  if (useStandardScale() || !(m_plot.denominator > 0) || !(m_plot.numerator > 0))
    return getStdScale();
  return m_plot.numerator / m_plot.denominator;
}
