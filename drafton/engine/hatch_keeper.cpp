#include "drafton/engine/hatch_keeper.h"

#include "drafton/engine/boundary/boundary_search.h"
#include "drafton/engine/boundary/object_loops.h"
#include "drafton/engine/hatch_loops.h"
#include "drawing/entities/hatch.h"
#include "drawing/object_reactors.h"

#include <algorithm>

namespace drafton {
namespace {

OdGeExtents3d boxOf(const OdDbHatch& hatch) {
  OdGeExtents3d box;
  hatch.getGeomExtents(box);
  return box;
}

/// The place in `now` that a point has in `before`.
OdGePoint3d movedAlong(const OdGePoint3d& point, const OdGeExtents3d& before,
                       const OdGeExtents3d& now) {
  const OdGeVector3d size = before.maxPoint() - before.minPoint();
  const OdGeVector3d newSize = now.maxPoint() - now.minPoint();
  const OdGeVector3d within = point - before.minPoint();
  const auto part = [](double length, double whole) { return whole > 0 ? length / whole : 0.5; };
  return now.minPoint() +
         OdGeVector3d{part(within.x, size.x) * newSize.x, part(within.y, size.y) * newSize.y, 0};
}

bool isFlat(const OdDbHatch& hatch) { return hatch.normal() == OdGeVector3d::zAxis(); }

/// True if each loop that has sources runs along them.
bool liesOnItsSources(const OdDbHatch& hatch) {
  for (unsigned i = 0; i < hatch.numLoops(); ++i) {
    const OdDbHatchLoop& loop = hatch.loopAt(i);
    if (loop.sources.empty()) continue;
    const OdGeCurveSegments pieces = loop.segments(0);
    if (pieces.empty()) continue;
    const BoundarySources sources = sourcesOf(loop.sources, pieces.front().start);
    const double tolerance = 10 * drawingTolerance(boxAround(sources.curves), sources.origin);
    // Bridges over gaps lie on no source, so one piece is enough.
    const bool touches = std::any_of(pieces.begin(), pieces.end(), [&](const auto& piece) {
      const OdGePoint3d middle = flatPoint(piece.pointAt(0.5), sources.origin);
      return std::any_of(sources.curves.begin(), sources.curves.end(), [&](const auto& curve) {
        return curve.pointAt(curve.closestTo(middle)).distanceTo(middle) <= tolerance;
      });
    });
    if (!touches) return false;
  }
  return true;
}

/// Files list at the boundary who follows it; other programs rely on that.
void tellSources(const OdDbHatch& hatch, bool follows) {
  for (const OdDbObjectId source : hatch.getAssocObjIds()) {
    const OdDbObjectPtr object = source.openObject(OdDb::kForWrite);
    if (!object) continue;
    if (follows)
      oddb::addPersistentReactor(*object, hatch.objectId());
    else
      oddb::removePersistentReactor(*object, hatch.objectId());
  }
}

void letGo(OdDbHatch& hatch) {
  tellSources(hatch, false);
  std::vector<OdDbHatchLoop> loops;
  for (unsigned i = 0; i < hatch.numLoops(); ++i) {
    loops.push_back(hatch.loopAt(i));
    loops.back().sources.clear();
  }
  hatch.setLoops(std::move(loops));
  hatch.setAssociative(false);
}

/// The area around a seed, or around where it went when the boundary was moved or scaled; the seed
/// goes there.
BoundaryLoops areaAround(const BoundarySearch& search, OdGePoint3d& seed,
                         const OdGeExtents3d& before, IslandStyle style) {
  const OdGeExtents3d now = boxAround(search.curves());
  for (const OdGePoint3d& point : {seed, movedAlong(seed, before, now)}) {
    BoundarySearch::Result found = search.around(point, style);
    if (found.outcome != BoundarySearch::Outcome::kFound) continue;
    seed = point;
    return std::move(found.loops);
  }
  return {};
}

OdGeExtents3d shifted(const OdGeExtents3d& box, const OdGePoint3d& origin) {
  OdGeExtents3d result;
  if (box.isEmpty()) return result;
  result.addPoint(flatPoint(box.minPoint(), origin));
  result.addPoint(flatPoint(box.maxPoint(), origin));
  return result;
}

} // namespace

HatchKeeper::HatchKeeper(OdDbDatabase& database)
  : m_database(database) {
  m_database.addReactor(this);
}

HatchKeeper::~HatchKeeper() { m_database.removeReactor(this); }

void HatchKeeper::objectAppended(const OdDbDatabase&, OdDbObjectId id) {
  const OdDbObjectPtr object = id.openObject();
  if (!odrxCast<OdDbHatch>(object.get())) return;
  m_hatches.push_back(id);
  m_touched.insert(id);
}

void HatchKeeper::findHatches() {
  if (std::exchange(m_knowsHatches, true)) return;
  m_hatches.clear();
  const auto blocks = m_database.getBlockTableId().openAs<OdDbBlockTable>();
  for (const auto block = blocks->newIterator(); !block->done(); block->step())
    for (const auto at = OdDbBlockTableRecordPtr(block->getRecord())->newIterator(); !at->done();
         at->step())
      if (const OdDbEntityPtr entity = at->entity(); odrxCast<OdDbHatch>(entity.get()))
        m_hatches.push_back(at->objectId());
}

void HatchKeeper::follow(double gap) {
  m_database.deliverChanges();
  if (m_touched.empty()) return;
  findHatches();
  for (const OdDbObjectId hatch : std::vector(m_hatches)) follow(hatch, gap);
  // What was told to the boundaries is no change of theirs.
  m_database.deliverChanges();
  m_touched.clear();
}

void HatchKeeper::follow(OdDbObjectId id, double gap) {
  const OdDbObjectPtr object = id.openObject();
  const auto* const read = odrxCast<OdDbHatch>(object.get());
  if (!read || !read->associative() || !isFlat(*read)) return;
  const std::vector<OdDbObjectId> sources = read->getAssocObjIds();
  const auto isTouched = [&](OdDbObjectId source) { return m_touched.contains(source); };
  const bool hasNewSources = std::any_of(sources.begin(), sources.end(), isTouched);
  if (!hasNewSources && !isTouched(id)) return;
  const auto hatch = id.openAs<OdDbHatch>(OdDb::kForWrite);
  const bool areThere = std::all_of(sources.begin(), sources.end(), [](OdDbObjectId source) {
    return OdDbObjectPtr(source.openObject()).get() != nullptr;
  });
  if (!areThere || (hasNewSources ? !hasNewBoundary(*hatch, gap) : !liesOnItsSources(*hatch)))
    letGo(*hatch);
  else
    tellSources(*hatch, true);
}

bool HatchKeeper::hasNewBoundary(OdDbHatch& hatch, double gap) const {
  const std::vector<OdDbObjectId> objects = hatch.getAssocObjIds();
  tellSources(hatch, false);
  const auto style = static_cast<IslandStyle>(hatch.hatchStyle());
  std::vector<OdGePoint2d> seeds = hatch.seedPoints();
  const OdGeExtents3d before = boxOf(hatch);
  BoundarySources sources =
      sourcesOf(objects, before.isEmpty() ? OdGePoint3d() : before.minPoint());
  std::vector<BoundaryLoops> areas;
  if (seeds.empty()) {
    areas.push_back(loopsWithin(sources, style, gap));
  } else {
    const BoundarySources seen = visibleSources(m_database, sources.origin);
    const BoundarySearch search(sources.curves, seen.texts, sources.origin, gap);
    for (OdGePoint2d& seed : seeds) {
      OdGePoint3d point = flatPoint({seed.x, seed.y, 0}, sources.origin);
      areas.push_back(areaAround(search, point, shifted(before, sources.origin), style));
      seed = {point.x + sources.origin.x, point.y + sources.origin.y};
    }
  }
  std::vector<HatchLoop> loops;
  for (const BoundaryLoops& area : areas) {
    if (area.empty()) return false;
    for (HatchLoop& loop : placedLoops(area, sources, hatch.elevation(), !seeds.empty()))
      loops.push_back(std::move(loop));
  }
  hatch.setLoops(boundaryOf(loops, true));
  hatch.setSeedPoints(std::move(seeds));
  return true;
}

} // namespace drafton
