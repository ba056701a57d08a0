#include "drafton/engine/selection.h"

#include "drafton/engine/engine.h"
#include "drafton/engine/entity_outline.h"

#include <algorithm>
#include <unordered_set>

namespace drafton {
namespace {

/// An entity that can be chosen, with its box.
struct Candidate {
  OdDbObjectId id;
  OdGeExtents3d box;
};

bool isReachable(const OdDbEntity& entity) {
  if (!entity.isVisible()) return false;
  const OdDbLayerTableRecordPtr layer = entity.layerId().openObject();
  return !layer || !(layer->isOff() || layer->isFrozen() || layer->isLocked());
}

std::vector<Candidate> candidates(OdDbDatabase& database) {
  std::vector<Candidate> found;
  const auto space = database.getCurrentSpaceId().openAs<OdDbBlockTableRecord>();
  for (auto at = space->newIterator(); !at->done(); at->step()) {
    const OdDbEntityPtr entity = at->entity();
    if (!entity || !isReachable(*entity)) continue;
    Candidate candidate{at->objectId(), {}};
    entity->getGeomExtents(candidate.box);
    found.push_back(candidate);
  }
  return found;
}

OdGeExtents3d boxOf(const OdGePoint3d& a, const OdGePoint3d& b) {
  OdGeExtents3d box;
  box.addPoint(a);
  box.addPoint(b);
  return box;
}

bool isInside(const OdGeExtents3d& inner, const OdGeExtents3d& outer) {
  return !inner.isEmpty() && inner.minPoint().x >= outer.minPoint().x &&
         inner.minPoint().y >= outer.minPoint().y && inner.maxPoint().x <= outer.maxPoint().x &&
         inner.maxPoint().y <= outer.maxPoint().y;
}

bool meets(const OdGeExtents3d& a, const OdGeExtents3d& b) {
  return !a.isEmpty() && a.minPoint().x <= b.maxPoint().x && b.minPoint().x <= a.maxPoint().x &&
         a.minPoint().y <= b.maxPoint().y && b.minPoint().y <= a.maxPoint().y;
}

/// How far a point may lie from what it picks. Without a view a thousandth of the drawing stands
/// for a pixel.
double pickDistance(CommandContext& context) {
  OdVariant pixels;
  context.variables().get(QStringLiteral("PICKBOX"), pixels);
  const OdDbObjectId space = context.database().getCurrentSpaceId();
  const OdGeExtents3d box = space.openAs<OdDbBlockTableRecord>()->extents();
  if (box.isEmpty()) return 0;
  const OdGeVector3d size = box.maxPoint() - box.minPoint();
  return pixels.toDouble() * std::max({size.x, size.y, 1e-6}) / 1000;
}

/// One running choice.
class Chooser {
 public:
  explicit Chooser(CommandContext& context)
    : m_context(context) {}

  void add(const Selection& found, bool removing);
  void undo();
  Selection all() const {
    return candidatesThat([](const OdGeExtents3d&) { return true; });
  }
  Selection last() const;
  Selection previous() const;
  Selection at(const OdGePoint3d& point) const;
  Selection inWindow(const OdGePoint3d& a, const OdGePoint3d& b) const;
  Selection crossing(const OdGePoint3d& a, const OdGePoint3d& b) const;
  Selection byHandle(const OdString& handle) const;
  const Selection& chosen() const { return m_chosen; }

 private:
  template <class Test>
  Selection candidatesThat(const Test& test) const {
    Selection found;
    for (const Candidate& candidate : candidates(m_context.database()))
      if (test(candidate.box)) found.push_back(candidate.id);
    return found;
  }

  CommandContext& m_context;
  Selection m_chosen;
  std::vector<Selection> m_history;
};

void Chooser::add(const Selection& found, bool removing) {
  const std::unordered_set<OdDbObjectId> now(m_chosen.begin(), m_chosen.end());
  Selection next = m_chosen;
  if (removing) {
    const std::unordered_set<OdDbObjectId> doomed(found.begin(), found.end());
    std::erase_if(next, [&](const OdDbObjectId& id) { return doomed.contains(id); });
  } else {
    std::copy_if(found.begin(), found.end(), std::back_inserter(next),
                 [&](const OdDbObjectId& id) { return !now.contains(id); });
  }
  m_history.push_back(std::exchange(m_chosen, std::move(next)));
  m_context.print(translated(u"%1 found, %2 in total").arg(found.size()).arg(m_chosen.size()));
}

void Chooser::undo() {
  if (m_history.empty()) return m_context.print(translated(u"There is nothing to undo."));
  m_chosen = std::move(m_history.back());
  m_history.pop_back();
}

Selection Chooser::last() const {
  const Selection every = all();
  return every.empty() ? Selection() : Selection{every.back()};
}

Selection Chooser::previous() const {
  Selection found;
  const OdDbObjectId space = m_context.database().getCurrentSpaceId();
  for (const OdDbObjectId& id : m_context.document().previousSelection())
    if (const OdDbEntityPtr entity = id.openObject();
        entity && entity->ownerId() == space && isReachable(*entity))
      found.push_back(id);
  return found;
}

Selection Chooser::at(const OdGePoint3d& point) const {
  // What is drawn last lies on top.
  const std::vector<Candidate> all = candidates(m_context.database());
  const double reach = pickDistance(m_context);
  for (auto candidate = all.rbegin(); candidate != all.rend(); ++candidate) {
    const OdDbEntityPtr entity = candidate->id.openObject();
    if (entity && distanceTo(outlineOf(*entity), point) <= reach) return {candidate->id};
  }
  return {};
}

Selection Chooser::inWindow(const OdGePoint3d& a, const OdGePoint3d& b) const {
  const OdGeExtents3d window = boxOf(a, b);
  return candidatesThat([&](const OdGeExtents3d& box) { return isInside(box, window); });
}

Selection Chooser::crossing(const OdGePoint3d& a, const OdGePoint3d& b) const {
  Selection found;
  const OdGeExtents3d window = boxOf(a, b);
  for (const Candidate& candidate : candidates(m_context.database())) {
    if (!meets(candidate.box, window)) continue;
    const OdDbEntityPtr entity = candidate.id.openObject();
    if (isInside(candidate.box, window) || (entity && meetsBox(outlineOf(*entity), window)))
      found.push_back(candidate.id);
  }
  return found;
}

Selection Chooser::byHandle(const OdString& handle) const {
  const std::optional<OdDbHandle> number = OdDbHandle::fromText(handle.toLatin1().toStdString());
  const OdDbObjectId id = number ? m_context.database().getOdDbObjectId(*number) : OdDbObjectId();
  // What belongs to an entity, or bounds the space, has a handle as well.
  const Selection every = all();
  return std::find(every.begin(), every.end(), id) != every.end() ? Selection{id} : Selection();
}

Task<Selection> askWindow(CommandContext& context, const Chooser& chooser, bool crossing) {
  const Answer<OdGePoint3d> first =
      co_await context.input().point({.text = u"Specify first corner"});
  const Answer<OdGePoint3d> second =
      co_await context.input().point({.text = u"Specify opposite corner", .base = first.value});
  co_return crossing ? chooser.crossing(first.value, second.value)
                     : chooser.inWindow(first.value, second.value);
}

} // namespace

Task<Selection> selectObjects(CommandContext& context, QStringView prompt) {
  const OdString question = prompt.toString();
  Chooser chooser(context);
  bool removing = false;
  for (;;) {
    const Answer<OdGePoint3d> answer = co_await context.input().point(
        {.text = removing ? QStringView(u"Remove objects") : QStringView(question),
         .keywords = u"Window Crossing ALL Last Previous Add Remove Handle Undo",
         .allowEmpty = true});
    if (answer.isEmpty()) break;
    if (answer.is(u"Add") || answer.is(u"Remove")) {
      removing = answer.is(u"Remove");
      continue;
    }
    if (answer.is(u"Undo")) {
      chooser.undo();
      continue;
    }
    Selection found;
    if (answer.is(u"ALL")) found = chooser.all();
    if (answer.is(u"Last")) found = chooser.last();
    if (answer.is(u"Previous")) found = chooser.previous();
    if (answer.is(u"Window")) found = co_await askWindow(context, chooser, false);
    if (answer.is(u"Crossing")) found = co_await askWindow(context, chooser, true);
    if (answer.is(u"Handle")) {
      const Answer<OdString> handle =
          co_await context.input().string({.text = u"Enter the handle"});
      found = chooser.byHandle(handle.value);
    }
    if (answer.isValue()) {
      found = chooser.at(answer.value);
      if (found.empty()) {
        // An empty place begins a window: to the right what is inside, to the left what is met.
        const Answer<OdGePoint3d> corner = co_await context.input().point(
            {.text = u"Specify opposite corner", .base = answer.value});
        found = corner.value.x < answer.value.x ? chooser.crossing(answer.value, corner.value)
                                                : chooser.inWindow(answer.value, corner.value);
      }
    }
    chooser.add(found, removing);
  }
  if (!chooser.chosen().empty()) context.document().previousSelection() = chooser.chosen();
  co_return chooser.chosen();
}

} // namespace drafton
