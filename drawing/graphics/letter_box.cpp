#include "drawing/graphics/letter_box.h"

namespace {

/// True for a direction that is read from the lower or the right side of a sheet.
bool isReadable(const OdGeVector3d& along) {
  constexpr double kLevel = 1e-9;
  return along.x > kLevel || (std::abs(along.x) <= kLevel && along.y > 0);
}

} // namespace

OdGeMatrix3d odgiReadableMirror(const OdGiLetterFrame& letters, const OdGeMatrix3d& mirror) {
  // The image of the letters' frame is left-handed. Turning one of its axes round makes it right
  // again; the one that leaves the text more as it was.
  OdGeVector3d along = (mirror * letters.along).normal();
  OdGeVector3d up = (mirror * letters.up).normal();
  const double kept = along.dotProduct(letters.along);
  constexpr double kUpright = 1e-9;
  const bool keepsAlong = std::abs(kept) > kUpright ? kept > 0 : isReadable(along);
  (keepsAlong ? up : along) = keepsAlong ? -up : -along;
  const OdGeMatrix3d before = OdGeMatrix3d::coordSystem(letters.middle, letters.along, letters.up,
                                                        letters.along.crossProduct(letters.up));
  return OdGeMatrix3d::coordSystem(mirror * letters.middle, along, up, along.crossProduct(up)) *
         before.inverse();
}

void OdGiLetterBox::begin(const OdGeVector3d& along, const OdGeVector3d& up) {
  if (!m_box.isEmpty()) return;
  m_along = along.normal();
  m_normal = m_along.crossProduct(up).normal();
  m_up = m_normal.crossProduct(m_along);
}

void OdGiLetterBox::add(const OdGePoint3d& corner) {
  const OdGeVector3d v = corner.asVector();
  m_box.addPoint({v.dotProduct(m_along), v.dotProduct(m_up), v.dotProduct(m_normal)});
}

void OdGiLetterBox::polyline(std::span<const OdGePoint3d> points, bool) {
  constexpr std::size_t kCorners = 4;
  if (m_of != Of::kFrames || points.size() != kCorners) return;
  // From the upper left corner to the right and round.
  begin(points[1] - points[0], points[0] - points[3]);
  for (const OdGePoint3d& corner : points) add(corner);
}

void OdGiLetterBox::text(const OdGiTextRun& run) {
  if (m_of != Of::kLetters) return;
  begin(run.along, run.up);
  const double width = OdGiTextMetrics::current().advance(run.text, run.font) +
                       run.tracking * static_cast<double>(run.text.size());
  for (const OdGePoint3d& corner : {run.origin, run.origin + run.along * width, run.origin + run.up,
                                    run.origin + run.along * width + run.up})
    add(corner);
}

void OdGiLetterBox::moveTo(const OdGePoint3d& place) {
  m_box = OdGeExtents3d();
  add(place);
}

std::optional<OdGiLetterFrame> OdGiLetterBox::frame() const {
  if (m_box.isEmpty() || m_normal.isZeroLength()) return std::nullopt;
  const OdGeVector3d m = (m_box.minPoint().asVector() + m_box.maxPoint().asVector()) * 0.5;
  return OdGiLetterFrame{OdGePoint3d() + m_along * m.x + m_up * m.y + m_normal * m.z, m_along,
                         m_up};
}
