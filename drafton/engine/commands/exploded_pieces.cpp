#include "drafton/engine/commands/exploded_pieces.h"

#include "drafton/engine/translator.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/hatch.h"
#include "drawing/entities/leader.h"

namespace drafton {
namespace {

OdDbBlockTableRecordPtr blockOf(const OdDbEntity& whole) {
  const auto* const insert = odrxCast<OdDbBlockReference>(&whole);
  return insert ? insert->blockTableRecord().openObject() : OdDbObjectPtr();
}

/// Which entity became which, within one cell of an insert.
using Copies = std::unordered_map<OdDbObjectId, OdDbObjectId>;

OdDbObjectId copyOf(const Copies& copies, OdDbObjectId original) {
  const auto at = copies.find(original);
  return at == copies.end() ? OdDbObjectId() : at->second;
}

void relink(OdDbEntity& piece, const Copies& copies) {
  if (auto* const leader = odrxCast<OdDbLeader>(&piece)) {
    if (!leader->annotationObjId().isNull())
      leader->attachAnnotation(copyOf(copies, leader->annotationObjId()), leader->annoType());
  } else if (auto* const hatch = odrxCast<OdDbHatch>(&piece); hatch && hatch->associative()) {
    std::vector<OdDbHatchLoop> loops;
    bool areThere = true;
    for (unsigned i = 0; i < hatch->numLoops(); ++i) {
      loops.push_back(hatch->loopAt(i));
      for (OdDbObjectId& source : loops.back().sources) {
        source = copyOf(copies, source);
        areThere = areThere && !source.isNull();
      }
    }
    if (!areThere)
      for (OdDbHatchLoop& loop : loops) loop.sources.clear();
    hatch->setLoops(std::move(loops));
    hatch->setAssociative(areThere);
  }
}

} // namespace

void appendPieces(OdDbBlockTableRecord& space, const OdDbEntity& whole,
                  const std::vector<OdDbEntityPtr>& pieces) {
  std::vector<OdDbObjectId> made;
  for (const OdDbEntityPtr& piece : pieces) made.push_back(space.appendOdDbEntity(piece));
  const OdDbBlockTableRecordPtr block = blockOf(whole);
  if (!block) return;
  const std::vector<OdDbObjectId> originals = block->entityIds();
  // Where entities fell into several pieces nobody knows which of them is meant.
  const bool isOneToOne = !originals.empty() && made.size() % originals.size() == 0 &&
                          made.size() / originals.size() ==
                              static_cast<const OdDbBlockReference&>(whole).cellTransforms().size();
  for (std::size_t from = 0; from < made.size();) {
    const std::size_t count = isOneToOne ? originals.size() : made.size();
    Copies copies;
    if (isOneToOne)
      for (std::size_t i = 0; i < count; ++i) copies.emplace(originals[i], made[from + i]);
    for (std::size_t i = 0; i < count; ++i) relink(*pieces[from + i], copies);
    from += count;
  }
}

OdString explodingFault(const OdDbEntity& whole) {
  const OdDbBlockTableRecordPtr block = blockOf(whole);
  if (!block) return {};
  const OdGeMatrix3d transform = static_cast<const OdDbBlockReference&>(whole).blockTransform();
  for (const auto at = block->newIterator(); !at->done(); at->step()) {
    const OdDbEntityPtr entity = at->entity();
    std::vector<OdDbEntityPtr> parts;
    if (!entity->getTransformedCopy(transform) && !entity->explode(parts))
      return translated(u"Block \"%1\" stays whole: its %2 cannot take the shape of the insert.")
          .arg(block->getName(), QLatin1String(entity->dxfName()));
  }
  return {};
}

} // namespace drafton
