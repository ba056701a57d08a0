#include "drawing/graphics/measure.h"

#include "drawing/tables/block_table.h"

#include <algorithm>

void OdGiMeasure::polyline(std::span<const OdGePoint3d> points, bool) {
  for (const OdGePoint3d& p : points) add(p);
}

void OdGiMeasure::arc(const OdGiArc& arc) {
  OdGiArc seen = arc;
  if (m_transform) {
    seen.center = *m_transform * arc.center;
    seen.u = *m_transform * arc.u;
    seen.v = *m_transform * arc.v;
  }
  m_box.addExt(odgi::extentsOf(seen));
}

void OdGiMeasure::area(const OdGiRings& rings) {
  for (const auto& ring : rings)
    for (const OdGePoint3d& p : ring) add(p);
}

void OdGiMeasure::gradient(const OdGiRings& rings, const OdGiGradient&) { area(rings); }
void OdGiMeasure::strokes(std::span<const OdGePoint3d> ends) { polyline(ends, false); }

void OdGiMeasure::text(const OdGiTextRun& run) {
  const OdGiTextMetrics& metrics = OdGiTextMetrics::current();
  const OdGeVector3d width =
      run.along * metrics.advance(run.text, run.font) +
      run.along.normal() * (run.up.length() * run.tracking * static_cast<double>(run.text.size()));
  const OdGeVector3d below = run.up * -metrics.descent(run.font);
  if (run.font.vertical) {
    // One letter below the other, each as wide as it is, in the middle of the line.
    const OdGeVector3d down = run.up * -static_cast<double>(run.text.size());
    const OdGeVector3d half = run.along * 0.5;
    for (const OdGePoint3d& p : {run.origin + half, run.origin - half}) {
      add(p);
      add(p + down);
    }
    return;
  }
  for (const OdGePoint3d& p : {run.origin, run.origin + width}) {
    add(p + below);
    add(p + run.up);
  }
}

void OdGiMeasure::point(const OdGePoint3d& position, const OdGeVector3d&) { add(position); }

void OdGiMeasure::addBoxOf(const OdDbEntity& entity) {
  OdGeExtents3d box;
  if (!entity.getGeomExtents(box)) return;
  const OdGePoint3d& a = box.minPoint();
  const OdGePoint3d& b = box.maxPoint();
  for (const double x : {a.x, b.x})
    for (const double y : {a.y, b.y})
      for (const double z : {a.z, b.z}) add({x, y, z});
}

void OdGiMeasure::block(OdDbObjectId blockId, const OdGeMatrix3d& transform, const OdDbEntity&) {
  const auto block = odrxCast<OdDbBlockTableRecord>(blockId.openObject().get());
  if (!block || m_open.size() >= odgi::kDeepestBlock ||
      std::find(m_open.begin(), m_open.end(), blockId) != m_open.end())
    return;
  const std::optional<OdGeMatrix3d> outer = m_transform;
  m_transform = outer ? *outer * transform : transform;
  m_open.push_back(blockId);
  for (const auto it = block->newIterator(); !it->done() && m_left > 0; it->step()) {
    --m_left;
    const OdDbEntityPtr entity = it->entity();
    m_hasBoxOfItsOwn = false;
    entity->worldDraw(*this);
    if (m_hasBoxOfItsOwn) addBoxOf(*entity);
  }
  m_open.pop_back();
  m_transform = outer;
}
