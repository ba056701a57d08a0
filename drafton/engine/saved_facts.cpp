#include "drafton/engine/saved_facts.h"

#include "drawing/objects/layout.h"
#include "drawing/variable_recording.h"
#include "frame/system_services.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <unordered_map>

namespace drafton {
namespace {

/// Where the header tells what a space takes up.
struct ExtentsRow {
  OdDbObjectId (OdDbDatabase::*space)() const;
  const char* least;
  const char* greatest;
};
constexpr ExtentsRow kExtents[] = {{&OdDbDatabase::getModelSpaceId, "EXTMIN", "EXTMAX"},
                                   {&OdDbDatabase::getPaperSpaceId, "PEXTMIN", "PEXTMAX"}};

struct Box {
  OdGePoint3d least, greatest;
};

double held(double value) {
  constexpr double kMost = std::numeric_limits<double>::max();
  return std::isnan(value) ? 0 : std::clamp(value, -kMost, kMost);
}

OdGePoint3d held(const OdGePoint3d& p) { return {held(p.x), held(p.y), held(p.z)}; }

Box boxOf(OdDbObjectId space) {
  // What an empty space tells, as the format has it: nothing is within.
  constexpr double kNothing = 1e20;
  const OdDbBlockTableRecordPtr block = space.openObject();
  const OdGeExtents3d box = block ? block->extents() : OdGeExtents3d();
  if (box.isEmpty()) return {{kNothing, kNothing, kNothing}, {-kNothing, -kNothing, -kNothing}};
  // Where something reaches beyond all numbers, the box ends at the last one.
  return {held(box.minPoint()), held(box.maxPoint())};
}

void set(OdDbDatabase& database, const char* name, double value) {
  database.setSysVar(QLatin1String(name), value);
}

/// The day by its number, and the part of it that is over.
double daysOf(const QDateTime& time) {
  constexpr double kDay = 24 * 60 * 60 * 1000;
  return static_cast<double>(time.date().toJulianDay()) + time.time().msecsSinceStartOfDay() / kDay;
}

/// Sets one time, as the clock on the wall shows it and as all places of the world agree on it.
void setTime(OdDbDatabase& database, const char* local, const char* universal,
             const OdTimeStamp& time) {
  set(database, local, daysOf(time.universalTime().toLocalTime()));
  set(database, universal, daysOf(time.universalTime()));
}

} // namespace

void tellExtents(OdDbDatabase& database) {
  if (!database.isModified()) return;
  const oddb::VariableRecording unrecorded(&database, false);
  std::unordered_map<OdDbObjectId, Box> boxes;
  const auto measured = [&](OdDbObjectId space) {
    const auto found = boxes.find(space);
    return found != boxes.end() ? found->second : boxes.emplace(space, boxOf(space)).first->second;
  };
  for (const ExtentsRow& row : kExtents) {
    const Box box = measured((database.*row.space)());
    database.setSysVar(QLatin1String(row.least), box.least);
    database.setSysVar(QLatin1String(row.greatest), box.greatest);
  }
  for (const OdDbLayoutPtr& layout : oddb::layouts(database)) {
    const Box box = measured(layout->getBlockTableRecordId());
    OdGePoint3d least, greatest;
    layout->getExtents(least, greatest);
    if (least == box.least && greatest == box.greatest) continue;
    layout->upgradeOpen();
    layout->setExtents(box.least, box.greatest);
  }
}

void tellTimes(OdDbDatabase& database, const OdTimeStamp& since, bool isNew) {
  if (!database.isModified()) return;
  const oddb::VariableRecording unrecorded(&database, false);
  const OdTimeStamp now = odrxSystemServices()->currentTime();
  if (isNew) setTime(database, "TDCREATE", "TDUCREATE", since);
  setTime(database, "TDUPDATE", "TDUUPDATE", now);
  // A clock that was put back gives nothing to subtract.
  const double spent = daysOf(now.universalTime()) - daysOf(since.universalTime());
  set(database, "TDINDWG", database.sysVarReal("TDINDWG") + std::max(spent, 0.0));
}

} // namespace drafton
