#include "drafton/desktop/drafting_aids.h"

#include <algorithm>
#include <cmath>

namespace drafton {
namespace {

// In the order of the status bar.
constexpr AidRow kAids[] = {
    {Aid::kGrid, u"GRID", u"Show a grid", Qt::Key_F7, "GRIDMODE", 1, false},
    {Aid::kOrtho, u"ORTHO", u"Draw along x and y only", Qt::Key_F8, "ORTHOMODE", 1, false},
    {Aid::kPolar, u"POLAR", u"Hold the cursor to round angles", Qt::Key_F10, "AUTOSNAP", 8, false},
    {Aid::kSnap, u"OSNAP", u"Snap to places of objects", Qt::Key_F3, "OSMODE", kSnapsOff, true},
};

const AidRow& rowOf(Aid aid) { return *std::ranges::find(kAids, aid, &AidRow::aid); }

} // namespace

std::span<const AidRow> draftingAids() { return kAids; }

bool DraftingAids::isOn(Aid aid) {
  const AidRow& row = rowOf(aid);
  const bool isSet = (m_desktop.variable(row.variable).toInt32() & row.bit) != 0;
  return m_desktop.document() && isSet != row.isOff;
}

void DraftingAids::set(Aid aid, bool on) {
  const AidRow& row = rowOf(aid);
  const int now = m_desktop.variable(row.variable).toInt32();
  m_desktop.setVariable(row.variable, on != row.isOff ? now | row.bit : now & ~row.bit);
  // Two that hold the cursor at once would pull against each other.
  if (on && aid == Aid::kOrtho && isOn(Aid::kPolar)) set(Aid::kPolar, false);
  if (on && aid == Aid::kPolar && isOn(Aid::kOrtho)) set(Aid::kOrtho, false);
}

int DraftingAids::snapKinds() { return m_desktop.variable("OSMODE").toInt32(); }

std::optional<OdGePoint3d> DraftingAids::tracked(const OdGePoint3d& point, const OdGePoint3d& base,
                                                 double reach) {
  const OdGeVector3d way = point - base;
  if (isOn(Aid::kOrtho))
    return std::abs(way.x) >= std::abs(way.y) ? OdGePoint3d{point.x, base.y, point.z}
                                              : OdGePoint3d{base.x, point.y, point.z};
  if (!isOn(Aid::kPolar) || (way.x == 0 && way.y == 0)) return std::nullopt;
  const double step = m_desktop.variable("POLARANG").toDouble() * kOdaPi / 180;
  if (!(step > 0)) return std::nullopt;
  const double angle = std::round(std::atan2(way.y, way.x) / step) * step;
  const double c = std::cos(angle), s = std::sin(angle);
  // How far along the line, and how far beside it.
  const double along = way.x * c + way.y * s;
  if (std::abs(way.y * c - way.x * s) > reach) return std::nullopt;
  return OdGePoint3d{base.x + along * c, base.y + along * s, point.z};
}

CursorPlace DraftingAids::lead(const SnapQuestion& question, std::span<const OdDbEntityPtr> near) {
  CursorPlace place{question.at, {}, {}};
  place.snap = findSnap(near, question);
  if (place.snap) {
    place.point = place.snap->point;
  } else if (const auto held = question.base ? tracked(question.at, *question.base, question.reach)
                                             : std::nullopt) {
    place.point = *held;
    place.trackedFrom = question.base;
  }
  return place;
}

CursorPlace DraftingAids::lead(const OdGePoint3d& point, std::optional<OdGePoint3d> base,
                               std::span<const OdDbEntityPtr> near, double reach) {
  return lead({.at = point, .reach = reach, .kinds = snapKinds(), .base = base}, near);
}

CursorPlace DraftingAids::lead(const OdGePoint3d& point, const InputRequest& request,
                               std::span<const OdDbEntityPtr> near, double reach) {
  if (!request.takesPoints() || request.picks()) return {point, {}, {}};
  SnapQuestion question{
      .at = point, .reach = reach, .kinds = request.snapKinds().value_or(snapKinds()), .base = {}};
  // Opposite corners lie askew: no line holds them.
  if (request.band() == RubberBand::kLine) question.base = request.base();
  return lead(question, near);
}

} // namespace drafton
