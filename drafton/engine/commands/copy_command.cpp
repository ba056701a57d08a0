// COPY.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/displacement.h"
#include "drafton/engine/commands/modified_entities.h"
#include "drafton/engine/commands/previews.h"
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
    m_runs.push_back(copyEntities(m_context, m_originals, by(OdGeMatrix3d::translation(shift)),
                                  u"%1 could not be copied."));
  }

  /// False if there is no copy.
  bool takeBack() {
    if (m_runs.empty()) return false;
    for (const OdDbObjectId& id : m_runs.back()) id.safeOpenObject(OdDb::kForWrite)->erase();
    m_runs.pop_back();
    return true;
  }

  const Selection& originals() const { return m_originals; }
  bool isEmpty() const { return m_runs.empty(); }

 private:
  CommandContext& m_context;
  const Selection& m_originals;
  std::vector<Selection> m_runs;
};

constexpr QLatin1String kMode("COPYMODE"); // 0: several copies, 1: one

bool copiesOnce(CommandContext& context) {
  OdVariant mode;
  return context.variables().get(kMode, mode) && mode.toInt32() == 1;
}

Task<void> askMode(CommandContext& context) {
  const QStringView now = copiesOnce(context) ? u"Single" : u"Multiple";
  const Answer<OdString> mode = co_await context.input().keyword(
      {.text = u"Enter a copy mode option", .keywords = u"Single Multiple", .defaultValue = now});
  context.variables().set(kMode, mode.is(u"Single") ? 1 : 0);
}

/// The base point; empty if a displacement is wanted.
Task<Answer<OdGePoint3d>> askBase(CommandContext& context) {
  for (;;) {
    const Answer<OdGePoint3d> base =
        co_await context.input().point({.text = u"Specify base point",
                                        .keywords = u"Displacement mOde",
                                        .enterText = u"Displacement"});
    if (base.isValue()) co_return base;
    if (!base.is(u"mOde")) co_return {};
    co_await askMode(context);
  }
}

Task<void> askCopies(CommandContext& context, CopyMaker& maker, Answer<OdGePoint3d> base) {
  const bool once = copiesOnce(context);
  const auto moved = [&](const OdGePoint3d& to) {
    return movedShapes(maker.originals(), by(OdGeMatrix3d::translation(to - base.value)));
  };
  for (;;) {
    const bool isFirst = maker.isEmpty();
    // Typed offsets are measured from the base point, however many copies there are.
    context.setLastPoint(base.value);
    const QStringView keywords = once ? QStringView() : QStringView(u"Exit Undo");
    const QStringView enter =
        isFirst ? QStringView(u"use first point as displacement") : QStringView(u"Exit");
    const Answer<OdGePoint3d> second =
        co_await context.input().point({.text = u"Specify second point",
                                        .keywords = keywords,
                                        .base = base.value,
                                        .enterText = enter,
                                        .preview = moved});
    if (second.is(u"Exit")) co_return;
    if (second.is(u"Undo")) {
      if (!maker.takeBack()) context.print(translated(u"There is nothing to undo."));
      continue;
    }
    maker.copyBy(second.isValue() ? second.value - base.value : displacementOf(base));
    if (second.isEmpty() || once) co_return;
  }
}

} // namespace

Task<void> copy(CommandContext& context) {
  const Selection chosen = co_await selectObjects(context);
  if (chosen.empty()) co_return;
  CopyMaker maker(context, chosen);
  context.print(copiesOnce(context) ? translated(u"Current settings: Copy mode = Single")
                                    : translated(u"Current settings: Copy mode = Multiple"));
  const Answer<OdGePoint3d> base = co_await askBase(context);
  if (base.isValue()) {
    co_await askCopies(context, maker, base);
    co_return;
  }
  const OdGeVector3d shift = co_await askDisplacement(context);
  maker.copyBy(shift);
}

} // namespace drafton
