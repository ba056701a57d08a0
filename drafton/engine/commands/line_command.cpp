// LINE.

#include "drafton/engine/commands/arc_path.h"
#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/drawn_end.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/commands/previews.h"
#include "drafton/engine/translator.h"
#include "drawing/entities/line.h"

#include <vector>

namespace drafton {
namespace {

/// The lines of one run, end to end.
class LineChain {
 public:
  LineChain(CommandContext& context, const OdGePoint3d& start)
    : m_context(context)
    , m_points{start} {}

  const OdGePoint3d& start() const { return m_points.front(); }
  const OdGePoint3d& end() const { return m_points.back(); }
  bool canClose() const { return m_lines.size() >= 2; }

  /// By value: closing goes to the first of the very points that grow here.
  void lineTo(OdGePoint3d point) {
    const OdDbLinePtr line = odrxMake<OdDbLine>(end(), point);
    m_lines.push_back(addNewThickEntity(m_context.database(), *line));
    m_points.push_back(point);
    m_context.setLastPoint(point);
  }

  /// False if there is nothing to take back.
  bool takeBack() {
    if (m_lines.empty()) return false;
    m_lines.back().safeOpenObject(OdDb::kForWrite)->erase();
    m_lines.pop_back();
    m_points.pop_back();
    m_context.setLastPoint(end());
    return true;
  }

 private:
  CommandContext& m_context;
  std::vector<OdGePoint3d> m_points;
  std::vector<OdDbObjectId> m_lines;
};

/// Asks where to begin; Enter goes on from what was drawn last.
Task<DrawnEnd> askStart(CommandContext& context) {
  for (;;) {
    const Answer<OdGePoint3d> first =
        co_await context.input().point({.text = u"Specify first point", .allowEmpty = true});
    if (first.isValue()) co_return DrawnEnd{.point = first.value};
    if (const auto last = lastDrawnEnd(context.database(), context.lastPoint())) co_return *last;
    context.print(translated(u"There is no line or arc to continue."));
  }
}

} // namespace

Task<void> line(CommandContext& context) {
  CommandInput& input = context.input();
  const DrawnEnd begin = co_await askStart(context);
  LineChain chain(context, begin.point);
  context.setLastPoint(begin.point);
  if (begin.isCurved) {
    // A line that goes on from an arc keeps its direction, only the length is free.
    const Answer<double> length = co_await input.distance(
        {.text = u"Length of line", .base = begin.point, .range = NumberRange::kNotZero});
    chain.lineTo(pointAlong(begin.point, begin.direction, length.value));
  }
  const auto nextLine = [&](const OdGePoint3d& to) {
    return lineShape(context.database(), chain.end(), to);
  };
  for (;;) {
    const QStringView keywords = chain.canClose() ? u"Close Undo" : u"Undo";
    const Answer<OdGePoint3d> next = co_await input.point({.text = u"Specify next point",
                                                           .keywords = keywords,
                                                           .base = chain.end(),
                                                           .allowEmpty = true,
                                                           .preview = nextLine});
    if (next.isEmpty()) co_return;
    if (next.is(u"Close")) {
      chain.lineTo(chain.start());
      co_return;
    }
    if (next.isValue())
      chain.lineTo(next.value);
    else if (!chain.takeBack())
      context.print(translated(u"All segments already undone."));
  }
}

} // namespace drafton
