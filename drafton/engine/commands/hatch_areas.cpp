#include "drafton/engine/commands/hatch_areas.h"

#include "drafton/engine/boundary/object_loops.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/value_parser.h"
#include "drawing/database.h"

#include <algorithm>

namespace drafton {

bool HatchAreas::addAround(const OdGePoint3d& point, IslandStyle style, double gap) {
  if (!m_hasOrigin) {
    m_origin = {point.x, point.y, 0};
    m_hasOrigin = true;
  }
  if (!m_visible)
    m_visible = std::make_unique<BoundarySources>(visibleSources(m_context.database(), m_origin));
  if (!m_search || m_gap != gap) {
    m_search = std::make_unique<BoundarySearch>(m_visible->curves, m_visible->texts, m_origin, gap);
    m_gap = gap;
  }
  const OdGePoint3d flat = flatPoint(point, m_origin);
  if (isChosen(flat)) {
    m_context.print(translated(u"This area is chosen already."));
    return false;
  }
  BoundarySearch::Result result = m_search->around(flat, style);
  switch (result.outcome) {
  case BoundarySearch::Outcome::kFound:
    break;
  case BoundarySearch::Outcome::kOnCurve:
    m_context.print(translated(u"The point lies on a boundary. Choose a point inside of an area."));
    return false;
  case BoundarySearch::Outcome::kOpen:
    m_context.print(translated(u"There is no closed boundary around the point."));
    m_context.print(
        gap > 0
            ? translated(u"Gaps up to %1 are closed; HPGAPTOL changes that.").arg(shownReal(gap))
            : translated(u"Gaps are not closed; HPGAPTOL changes that."));
    return false;
  }
  if (m_choices.empty()) m_elevation = point.z;
  keep(std::move(result.loops), *m_visible, true);
  m_choices.back().seed = OdGePoint2d{point.x, point.y};
  return true;
}

bool HatchAreas::addWithin(const std::vector<OdDbObjectId>& objects, IslandStyle style,
                           double gap) {
  if (!m_hasOrigin) {
    m_origin = middleOf(objects);
    m_hasOrigin = true;
  }
  const BoundarySources sources = sourcesOf(objects, m_origin);
  BoundaryLoops loops = loopsWithin(sources, style, gap);
  if (loops.empty()) {
    m_context.print(translated(u"The objects enclose no area."));
    return false;
  }
  if (isChosen(loops.front().innerPoint())) {
    m_context.print(translated(u"This area is chosen already."));
    return false;
  }
  if (m_choices.empty()) m_elevation = middleOf(objects).z;
  keep(std::move(loops), sources, false);
  return true;
}

void HatchAreas::keep(BoundaryLoops flat, const BoundarySources& sources, bool isPicked) {
  std::vector<HatchLoop> loops = placedLoops(flat, sources, m_elevation, isPicked);
  m_choices.push_back({std::move(flat), std::move(loops), {}});
}

bool HatchAreas::takeBack() {
  if (m_choices.empty()) return false;
  m_choices.pop_back();
  return true;
}

bool HatchAreas::isChosen(const OdGePoint3d& flatPoint) const {
  return std::any_of(m_choices.begin(), m_choices.end(),
                     [&](const Choice& choice) { return isInArea(choice.flat, flatPoint); });
}

std::vector<HatchLoop> HatchAreas::loops() const {
  if (hasAreaInIsland()) return joinedLoops();
  std::vector<HatchLoop> all;
  for (const Choice& choice : m_choices)
    all.insert(all.end(), choice.loops.begin(), choice.loops.end());
  return all;
}

std::vector<HatchLoop> HatchAreas::joinedLoops() const {
  BoundaryLoops flat;
  std::vector<const HatchLoop*> all;
  for (const Choice& choice : m_choices)
    for (std::size_t i = 0; i < choice.flat.size(); ++i) {
      flat.push_back(choice.flat[i]);
      flat.back().curves = {static_cast<PlanarGraph::Index>(all.size())};
      all.push_back(&choice.loops[i]);
    }
  OdGeExtents3d box;
  for (const BoundaryLoop& loop : flat) box.addExt(loop.box);
  std::vector<HatchLoop> joined;
  for (const BoundaryLoop& loop : withoutTexts(flat, {}, drawingTolerance(box, m_origin))) {
    HatchLoop placed{placedLoop(loop, m_origin, m_elevation), {}, true};
    for (const PlanarGraph::Index part : loop.curves)
      for (const OdDbObjectId& source : all[part]->sources)
        if (std::find(placed.sources.begin(), placed.sources.end(), source) == placed.sources.end())
          placed.sources.push_back(source);
    joined.push_back(std::move(placed));
  }
  return joined;
}

std::vector<OdGePoint2d> HatchAreas::seeds() const {
  std::vector<OdGePoint2d> points;
  for (const Choice& choice : m_choices)
    if (choice.seed) points.push_back(*choice.seed);
  return points;
}

bool HatchAreas::hasAreaInIsland() const {
  for (const Choice& inner : m_choices)
    for (const Choice& outer : m_choices)
      if (&inner != &outer && outer.flat.front().contains(inner.flat.front().innerPoint()))
        return true;
  return false;
}

} // namespace drafton
