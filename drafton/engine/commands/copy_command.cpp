// COPY.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/displacement.h"
#include "drafton/engine/commands/drawing_session.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"

namespace drafton {
namespace {

/// The copies of one run, so that they can be taken back one after another.
class CopyMaker {
 public:
  CopyMaker(CommandContext& context, const Selection& originals)
    : m_context(context)
    , m_originals(originals) {}

  void copyBy(const OdGeVector3d& shift) {
    Selection made;
    int failed = 0;
    for (const OdDbObjectId& id : m_originals) {
      const auto original = id.openAs<OdDbEntity>();
      const OdDbEntityPtr copy = original->clone();
      if (!displace(*copy, shift)) {
        ++failed;
        continue;
      }
      const auto owner = original->ownerId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
      made.push_back(owner->appendOdDbEntity(copy));
    }
    m_runs.push_back(std::move(made));
    if (failed > 0) m_context.print(translated(u"%1 could not be copied.").arg(failed));
  }

  /// False if there is no copy.
  bool takeBack() {
    if (m_runs.empty()) return false;
    for (const OdDbObjectId& id : m_runs.back()) id.safeOpenObject(OdDb::kForWrite)->erase();
    m_runs.pop_back();
    return true;
  }

  bool isEmpty() const { return m_runs.empty(); }

 private:
  CommandContext& m_context;
  const Selection& m_originals;
  std::vector<Selection> m_runs;
};

Task<void> askMode(CommandContext& context) {
  bool& once = DrawingSession::of(context).copiesOnce;
  const QStringView now = once ? u"Single" : u"Multiple";
  const Answer<OdString> mode = co_await context.input().keyword(
      {.text = u"Enter a copy mode option", .keywords = u"Single Multiple", .defaultValue = now});
  once = mode.is(u"Single");
}

/// The base point; none if a displacement is wanted.
Task<std::optional<OdGePoint3d>> askBase(CommandContext& context) {
  for (;;) {
    const Answer<OdGePoint3d> base = co_await context.input().point(
        {.text = u"Specify base point", .keywords = u"Displacement mOde", .allowEmpty = true});
    if (base.isValue()) co_return base.value;
    if (!base.is(u"mOde")) co_return std::nullopt;
    co_await askMode(context);
  }
}

Task<void> askCopies(CommandContext& context, CopyMaker& maker, OdGePoint3d base) {
  const bool once = DrawingSession::of(context).copiesOnce;
  for (;;) {
    const bool isFirst = maker.isEmpty();
    const QStringView question =
        isFirst ? u"Specify second point (Enter: use first point as displacement)"
                : u"Specify second point";
    // Typed offsets are measured from the base point, however many copies there are.
    context.setLastPoint(base);
    const QStringView keywords = once ? QStringView() : QStringView(u"Exit Undo");
    const Answer<OdGePoint3d> second = co_await context.input().point(
        {.text = question, .keywords = keywords, .base = base, .allowEmpty = true});
    if (second.is(u"Exit")) co_return;
    if (second.is(u"Undo")) {
      if (!maker.takeBack()) context.print(translated(u"There is nothing to undo."));
      continue;
    }
    if (second.isValue())
      maker.copyBy(second.value - base);
    else if (isFirst)
      maker.copyBy(base.asVector());
    if (second.isEmpty() || once) co_return;
  }
}

} // namespace

Task<void> copy(CommandContext& context) {
  const Selection chosen = co_await selectObjects(context);
  if (chosen.empty()) co_return;
  CopyMaker maker(context, chosen);
  const bool once = DrawingSession::of(context).copiesOnce;
  context.print(once ? translated(u"Current settings: Copy mode = Single")
                     : translated(u"Current settings: Copy mode = Multiple"));
  const std::optional<OdGePoint3d> base = co_await askBase(context);
  if (base) {
    co_await askCopies(context, maker, *base);
    co_return;
  }
  const OdGeVector3d shift = co_await askDisplacement(context);
  maker.copyBy(shift);
}

} // namespace drafton
