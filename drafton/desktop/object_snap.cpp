#include "drafton/desktop/object_snap.h"

#include "drafton/desktop/snap_places.h"
#include "drafton/engine/boundary/curve_meetings.h"

#include <algorithm>

namespace drafton {
namespace {

/// Crossings are looked for among so many pieces at the cursor.
constexpr std::size_t kMostCrossed = 40;

double flatDistance(const OdGePoint3d& a, const OdGePoint3d& b) {
  return std::hypot(a.x - b.x, a.y - b.y);
}

void appendCrossings(const OdGeCurveSegments& segments, const SnapQuestion& question,
                     std::vector<Snap>& places) {
  OdGeCurveSegments near;
  for (const OdGeCurveSegment& segment : segments) {
    const OdGePoint3d closest = segment.pointAt(segment.closestTo(question.at));
    if (flatDistance(closest, question.at) <= question.reach)
      appendFlat(segment, question.at, near);
    if (near.size() >= kMostCrossed) break;
  }
  std::vector<CurveMeeting> meetings;
  for (std::size_t i = 0; i < near.size(); ++i)
    for (std::size_t k = i + 1; k < near.size(); ++k) {
      meetings.clear();
      appendMeetings(near[i], near[k], question.reach * 1e-6, meetings);
      for (const CurveMeeting& meeting : meetings) {
        const OdGePoint3d at = near[i].pointAt(meeting.onFirst);
        places.push_back(
            {SnapKind::kIntersection, {at.x + question.at.x, at.y + question.at.y, question.at.z}});
      }
    }
}

/// The lower, the sooner a snap is taken; by its distance among equals.
int rankOf(const Snap& snap, bool isNear) {
  if (!isNear) return 2;
  return snap.kind == SnapKind::kNearest ? 1 : 0;
}

} // namespace

std::optional<Snap> findSnap(std::span<const OdDbEntityPtr> entities,
                             const SnapQuestion& question) {
  if (question.kinds & kSnapsOff) return std::nullopt;
  OdGeCurveSegments segments;
  std::vector<Snap> places;
  for (const OdDbEntityPtr& entity : entities) appendSnapParts(*entity, segments, places);
  for (const OdGeCurveSegment& segment : segments) appendSegmentSnaps(segment, question, places);
  if (question.kinds & static_cast<int>(SnapKind::kIntersection))
    appendCrossings(segments, question, places);

  std::optional<Snap> best;
  std::pair<int, double> bestRank;
  for (const Snap& snap : places) {
    if (!(question.kinds & static_cast<int>(snap.kind))) continue;
    const double distance = flatDistance(snap.point, question.at);
    const bool isNear = distance <= question.reach;
    if (!isNear && snap.kind != SnapKind::kCenter) continue;
    const std::pair<int, double> rank{rankOf(snap, isNear), distance};
    if (best && bestRank <= rank) continue;
    best = snap;
    bestRank = rank;
  }
  return best;
}

} // namespace drafton
