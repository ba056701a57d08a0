#include "drafton/engine/page_paper.h"

#include "drawing/database.h"
#include "drawing/entities/viewport.h"

#include <algorithm>
#include <cmath>

namespace drafton {
namespace {

constexpr PagePaper kPapers[] = {
    {u"A0", u"ISO", 841, 1189},         {u"A1", u"ISO", 594, 841},
    {u"A2", u"ISO", 420, 594},          {u"A3", u"ISO", 297, 420},
    {u"A4", u"ISO", 210, 297},          {u"Letter", u"ANSI", 215.9, 279.4},
    {u"Tabloid", u"ANSI", 279.4, 431.8}};

/// Files round to less than this.
constexpr double kSameSide = 0.2;

bool isSide(double one, double other) { return std::abs(one - other) < kSameSide; }

/// The name by which plotters know a sheet.
OdString mediaName(const OdGePoint2d& size) {
  const PagePaper* const paper = findPaper(size);
  const OdString name = paper ? QStringLiteral("%1_%2").arg(OdString::fromUtf16(paper->series),
                                                            OdString::fromUtf16(paper->name))
                              : QStringLiteral("CUSTOM");
  const auto side = [](double length) { return OdString::number(length, 'f', 2); };
  return QStringLiteral("%1_(%2_x_%3_MM)").arg(name, side(size.x), side(size.y));
}

} // namespace

std::span<const PagePaper> pagePapers() { return kPapers; }

const PagePaper* findPaper(const OdGePoint2d& size) {
  const auto at = std::ranges::find_if(kPapers, [&](const PagePaper& paper) {
    return isSide(std::min(size.x, size.y), paper.width) &&
           isSide(std::max(size.x, size.y), paper.height);
  });
  return at == std::end(kPapers) ? nullptr : at;
}

void setPaper(OdDbLayout& layout, const OdGePoint2d& size) {
  layout.setPlotPaperUnits(OdDbPlotSettings::kMillimeters);
  layout.setPlotRotation(OdDbPlotSettings::k0degrees);
  layout.setPlotPaperSize(size.x, size.y);
  layout.setCanonicalMediaName(mediaName(size));
}

void fitSheetToPaper(OdDbLayout& layout) {
  if (layout.isModelType()) return;
  const OdGePoint2d paper = layout.getPlotPaperSize();
  double left = 0, bottom = 0, right = 0, top = 0;
  layout.getPlotPaperMargins(left, bottom, right, top);
  layout.setLimits({-left, -bottom}, {paper.x - left, paper.y - bottom});
  const OdGePoint2d middle{paper.x / 2 - left, paper.y / 2 - bottom};
  const auto space = layout.getBlockTableRecordId().openAs<OdDbBlockTableRecord>();
  for (auto at = space->newIterator(); !at->done(); at->step()) {
    const OdDbEntityPtr entity = at->entity();
    auto* const view = odrxCast<OdDbViewport>(entity);
    if (!view || !view->isOverall()) continue;
    view->upgradeOpen();
    view->setCenterPoint({middle.x, middle.y, 0});
    view->setWidth(paper.x);
    view->setHeight(paper.y);
    view->setViewCenter(middle);
    view->setViewHeight(paper.y);
  }
}

} // namespace drafton
