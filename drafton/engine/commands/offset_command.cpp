// OFFSET.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/offset_curves.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/value_parser.h"
#include "drawing/database.h"

namespace drafton {
namespace {

constexpr QLatin1String kDistance("OFFSETDIST"); // below 0: through a point

struct OffsetModes {
  std::optional<double> distance; ///< none: through a point
  bool erases = false;
  bool usesCurrentLayer = false;
};

double savedDistance(const CommandContext& context) {
  OdVariant value;
  context.variables().get(kDistance, value);
  return value.toDouble();
}

void printModes(const CommandContext& context, const OffsetModes& modes) {
  context.print(translated(u"Current settings: Erase source=%1  Layer=%2")
                    .arg(modes.erases ? translated(u"Yes") : translated(u"No"),
                         modes.usesCurrentLayer ? translated(u"Current") : translated(u"Source")));
}

/// Distance and modes.
Task<OffsetModes> askModes(CommandContext& context) {
  CommandInput& input = context.input();
  OffsetModes modes;
  for (;;) {
    printModes(context, modes);
    const double saved = savedDistance(context);
    const std::optional<double> usual = saved > 0 ? std::optional(saved) : std::nullopt;
    const Answer<double> answer = co_await input.distance({.text = u"Specify offset distance",
                                                           .keywords = u"Through Erase Layer",
                                                           .defaultValue = usual,
                                                           .range = NumberRange::kPositive,
                                                           .allowEmpty = true});
    if (answer.is(u"Erase")) {
      const Answer<OdString> erase =
          co_await input.keyword({.text = u"Erase source object after offsetting?",
                                  .keywords = u"Yes No",
                                  .defaultValue = u"No"});
      modes.erases = erase.is(u"Yes");
    } else if (answer.is(u"Layer")) {
      const Answer<OdString> layer =
          co_await input.keyword({.text = u"Enter layer option for offset objects",
                                  .keywords = u"Current Source",
                                  .defaultValue = u"Source"});
      modes.usesCurrentLayer = layer.is(u"Current");
    } else {
      if (answer.isValue()) modes.distance = answer.value;
      context.variables().set(kDistance, modes.distance.value_or(-1));
      co_return modes;
    }
  }
}

/// The offsets of one run.
class OffsetMaker {
 public:
  OffsetMaker(CommandContext& context, const OffsetModes& modes)
    : m_context(context)
    , m_modes(modes) {}

  /// The curves made; empty, and a message, if there are none.
  Selection make(OdDbObjectId source, const OdGePoint3d& side) {
    const OdDbCurvePtr curve = source.openObject(OdDb::kForWrite);
    const std::vector<OdDbEntityPtr> curves = offsetTowards(*curve, side, m_modes.distance);
    if (curves.empty()) {
      m_context.print(translated(u"The object cannot be offset there."));
      return {};
    }
    const auto owner = curve->ownerId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
    Step step;
    for (const OdDbEntityPtr& entity : curves) {
      if (m_modes.usesCurrentLayer) entity->setLayer(m_context.database().currentLayer());
      step.made.push_back(owner->appendOdDbEntity(entity));
    }
    if (m_modes.erases) {
      curve->erase();
      step.erased = source;
    }
    m_steps.push_back(step);
    return step.made;
  }

  /// False if there is nothing to take back.
  bool takeBack() {
    if (m_steps.empty()) return false;
    for (const OdDbObjectId& id : m_steps.back().made) id.safeOpenObject(OdDb::kForWrite)->erase();
    if (!m_steps.back().erased.isNull()) unerase(m_steps.back().erased);
    m_steps.pop_back();
    return true;
  }

  bool isThrough() const { return !m_modes.distance; }

 private:
  struct Step {
    Selection made;
    OdDbObjectId erased;
  };
  static void unerase(const OdDbObjectId& id);

  CommandContext& m_context;
  OffsetModes m_modes;
  std::vector<Step> m_steps;
};

void OffsetMaker::unerase(const OdDbObjectId& id) {
  id.safeOpenObject(OdDb::kForWrite, true)->erase(false);
}

void takeBack(CommandContext& context, OffsetMaker& maker) {
  if (!maker.takeBack()) context.print(translated(u"There is nothing to undo."));
}

/// Where the offset of a curve goes.
Task<Answer<OdGePoint3d>> askSide(CommandContext& context, bool isThrough, bool isMultiple) {
  const QStringView question =
      isThrough ? u"Specify through point" : u"Specify point on side to offset";
  const QStringView keywords = isMultiple ? u"Exit Undo" : u"Exit Multiple Undo";
  const QStringView enter = isMultiple ? u"next object" : u"Exit";
  co_return co_await context.input().point(
      {.text = question, .keywords = keywords, .enterText = enter});
}

/// Offsets of one curve. False if the command is to end.
Task<bool> offsetOne(CommandContext& context, OffsetMaker& maker, OdDbObjectId curve) {
  bool isMultiple = false;
  OdDbObjectId from = curve;
  for (;;) {
    const Answer<OdGePoint3d> side = co_await askSide(context, maker.isThrough(), isMultiple);
    if (side.isEmpty()) co_return true;
    if (side.is(u"Exit")) co_return false;
    if (side.is(u"Undo")) {
      takeBack(context, maker);
      co_return true;
    }
    if (side.is(u"Multiple")) {
      isMultiple = true;
      continue;
    }
    const Selection made = maker.make(from, side.value);
    if (!isMultiple && !made.empty()) co_return true;
    // Each further one lies beside the one before it.
    if (!made.empty()) from = made.front();
  }
}

} // namespace

Task<void> offset(CommandContext& context) {
  const OffsetModes modes = co_await askModes(context);
  OffsetMaker maker(context, modes);
  for (;;) {
    const PickedEntity picked =
        co_await selectEntity(context, u"Select object to offset", u"Exit Undo");
    if (picked.keyword == QLatin1String("Undo")) {
      takeBack(context, maker);
      continue;
    }
    if (picked.id.isNull()) co_return;
    if (!canBeOffset(picked.id)) {
      context.print(translated(u"That object cannot be offset."));
      continue;
    }
    const bool goesOn = co_await offsetOne(context, maker, picked.id);
    if (!goesOn) co_return;
  }
}

} // namespace drafton
