// PAGESETUP: the sheet of a layout and how it is plotted.

#include "drafton/engine/blocks/block_commands.h"
#include "drafton/engine/commands/shown_values.h"
#include "drafton/engine/page_paper.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/value_parser.h"
#include "drawing/database.h"
#include "drawing/objects/layout.h"

#include <array>

namespace drafton {
namespace {

constexpr double kLargestSide = 100000;

/// "420x297", in millimetres.
std::optional<OdGePoint2d> parseSize(const OdString& typed) {
  const QStringList sides = typed.split(u'x', Qt::KeepEmptyParts, Qt::CaseInsensitive);
  if (sides.size() != 2) return std::nullopt;
  const std::optional<double> width = parseReal(sides[0]), height = parseReal(sides[1]);
  if (!width || !height || !(*width > 0) || !(*height > 0)) return std::nullopt;
  if (*width > kLargestSide || *height > kLargestSide) return std::nullopt;
  return OdGePoint2d{*width, *height};
}

OdString shownSize(const OdGePoint2d& size) { return shownReal(size.x) + u'x' + shownReal(size.y); }

Task<void> askPaper(CommandContext& context, OdDbLayout& layout) {
  CommandInput& input = context.input();
  const OdString now = shownSize(layout.getPlotPaperSize());
  for (;;) {
    const Answer<OdString> typed = co_await input.string(
        {.text = u"Enter paper size (A0 to A4, or width x height in millimetres as 420x297)",
         .defaultValue = QStringView(now)});
    if (const auto size = parseSize(typed.value)) {
      setPaper(layout, *size);
      co_return;
    }
    for (const PagePaper& paper : pagePapers()) {
      if (typed.value.compare(QStringView(paper.name), Qt::CaseInsensitive) != 0) continue;
      const Answer<OdString> way = co_await input.keyword({.text = u"Enter orientation",
                                                           .keywords = u"Portrait Landscape",
                                                           .defaultValue = u"Landscape"});
      const OdGePoint2d size = way.is(u"Portrait") ? OdGePoint2d{paper.width, paper.height}
                                                   : OdGePoint2d{paper.height, paper.width};
      setPaper(layout, size);
      co_return;
    }
    context.print(translated(u"There is no paper size \"%1\".").arg(typed.value.left(60)));
  }
}

Task<void> askMargins(CommandContext& context, OdDbLayout& layout) {
  std::array<double, 4> margins{};
  layout.getPlotPaperMargins(margins[0], margins[1], margins[2], margins[3]);
  static constexpr QStringView kQuestions[] = {u"Specify left margin", u"Specify bottom margin",
                                               u"Specify right margin", u"Specify top margin"};
  for (std::size_t i = 0; i < margins.size(); ++i) {
    const QStringView question = kQuestions[i];
    const Answer<double> margin = co_await context.input().distance(
        {.text = question, .defaultValue = margins[i], .range = NumberRange::kNotNegative});
    margins[i] = margin.value;
  }
  const OdGePoint2d paper = layout.getPlotPaperSize();
  if (margins[0] + margins[2] >= paper.x || margins[1] + margins[3] >= paper.y)
    throw CommandFailure(translated(u"The margins leave nothing of the sheet."));
  layout.setPlotPaperMargins(margins[0], margins[1], margins[2], margins[3]);
}

Task<void> askScale(CommandContext& context, OdDbLayout& layout) {
  CommandInput& input = context.input();
  const Answer<double> paper = co_await input.real({.text = u"Enter plotted millimetres",
                                                    .keywords = u"Fit",
                                                    .defaultValue = 1,
                                                    .range = NumberRange::kPositive});
  if (paper.is(u"Fit")) {
    layout.setUseStandardScale(true);
    layout.setStdScaleType(OdDbPlotSettings::kScaleToFit);
    co_return;
  }
  const Answer<double> drawing = co_await input.real({.text = u"Enter drawing units for them",
                                                      .defaultValue = 1,
                                                      .range = NumberRange::kPositive});
  layout.setUseStandardScale(false);
  layout.setCustomPrintScale(paper.value, drawing.value);
}

Task<void> askStyleTable(CommandContext& context, OdDbLayout& layout) {
  const OdString now = layout.getCurrentStyleSheet();
  const Answer<OdString> table =
      co_await context.input().string({.text = u"Enter plot style table, . for none",
                                       .allowBlanks = true,
                                       .defaultValue = QStringView(now)});
  layout.setCurrentStyleSheet(table.value == u"." ? OdString() : table.value);
}

Task<void> askWindow(CommandContext& context, OdDbLayout& layout) {
  const Answer<OdGePoint3d> first =
      co_await context.input().point({.text = u"Specify first corner"});
  for (;;) {
    const Answer<OdGePoint3d> second = co_await context.input().point(
        {.text = u"Specify opposite corner", .base = first.value, .band = RubberBand::kBox});
    const OdGePoint3d &a = first.value, &b = second.value;
    if (a.x != b.x && a.y != b.y) {
      layout.setPlotWindowArea({std::min(a.x, b.x), std::min(a.y, b.y)},
                               {std::max(a.x, b.x), std::max(a.y, b.y)});
      layout.setPlotType(OdDbPlotSettings::kWindow);
      co_return;
    }
    context.print(translated(u"The corners must differ."));
  }
}

Task<void> askArea(CommandContext& context, OdDbLayout& layout) {
  const Answer<OdString> area = co_await context.input().keyword(
      {.text = u"Enter what is plotted", .keywords = u"Layout Extents Window"});
  if (area.is(u"Window")) co_return co_await askWindow(context, layout);
  layout.setPlotType(area.is(u"Extents") ? OdDbPlotSettings::kExtents : OdDbPlotSettings::kLayout);
}

struct PageOption {
  const char16_t* keyword;
  Task<void> (*ask)(CommandContext& context, OdDbLayout& layout);
};

constexpr PageOption kOptions[] = {
    {u"Paper", askPaper},      {u"Margins", askMargins}, {u"Scale", askScale},
    {u"Table", askStyleTable}, {u"Area", askArea},
};

} // namespace

Task<void> pageSetup(CommandContext& context) {
  const OdDbLayoutPtr layout =
      oddb::activeLayout(context.database()).safeOpenObject(OdDb::kForWrite);
  for (;;) {
    double left = 0, bottom = 0, right = 0, top = 0;
    layout->getPlotPaperMargins(left, bottom, right, top);
    context.print(translated(u"Sheet of \"%1\": %2 mm, margins %3, %4, %5, %6")
                      .arg(layout->getLayoutName(), shownSize(layout->getPlotPaperSize()),
                           shownReal(left), shownReal(bottom), shownReal(right), shownReal(top)));
    const Answer<OdString> option =
        co_await context.input().keyword({.text = u"Enter an option",
                                          .keywords = u"Paper Margins Scale Table Area",
                                          .allowEmpty = true});
    if (option.isEmpty()) break;
    for (const PageOption& each : kOptions)
      if (option.is(each.keyword)) co_await each.ask(context, *layout);
  }
  fitSheetToPaper(*layout);
}

} // namespace drafton
