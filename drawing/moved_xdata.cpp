#include "drawing/moved_xdata.h"

#include "drawing/dxf/kept_tags.h"
#include "drawing/dxf/residue.h"
#include "drawing/objects/moved_tags.h"

namespace {

using oddb::TagMotion;

/// What of extended data belongs to the world. A plain point (1010) does not.
constexpr TagMotion kMotions[] = {
    {1011, TagMotion::kPoint},  {1012, TagMotion::kVector}, {1013, TagMotion::kDirection},
    {1041, TagMotion::kLength}, {1042, TagMotion::kLength},
};

} // namespace

void oddb::transformXData(OdDbEntity& entity, const OdGeMatrix3d& transform) {
  if (!entity.residue() || entity.residue()->xdata.isEmpty()) return;
  OdDbKeptTags kept(entity.residue()->xdata);
  TagMover mover(transform);
  bool any = false;
  for (std::size_t i = 0; i < kept.tags.size(); ++i)
    if (const TagMotion* const motion = motionOf(kMotions, kept.tags[i].code))
      any = mover.move(kept, i, motion->kind) || any;
  if (any) entity.editResidue().xdata = kept.lines();
}

bool oddb::transformWithXData(OdDbEntity& entity, const OdGeMatrix3d& transform) {
  if (!entity.transformBy(transform)) return false;
  transformXData(entity, transform);
  return true;
}
