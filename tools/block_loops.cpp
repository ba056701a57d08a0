#include "tools/block_loops.h"

#include "drawing/database.h"
#include "drawing/entities/block_reference.h"

#include <map>
#include <vector>

namespace tc {
namespace {

std::vector<OdDbObjectId> insertedBlocks(OdDbObjectId block) {
  std::vector<OdDbObjectId> inserted;
  const OdDbBlockTableRecordPtr record = block.openObject();
  if (!record || record->isFromExternalReference()) return inserted;
  for (const auto at = record->newIterator(); !at->done(); at->step())
    if (const auto* const insert = odrxCast<OdDbBlockReference>(at->entity().get()))
      inserted.push_back(insert->blockTableRecord());
  return inserted;
}

/// One block on the way down.
struct Step {
  OdDbObjectId block;
  std::vector<OdDbObjectId> inserted;
  std::size_t next = 0;
};

} // namespace

bool hasBlockLoop(OdDbObjectId block) {
  enum class State { kOpen, kDone };
  std::map<OdDbObjectId, State> seen;
  // Not by recursion: files of other people nest as deeply as they like.
  std::vector<Step> way;
  const auto enter = [&](OdDbObjectId id) {
    seen[id] = State::kOpen;
    way.push_back({id, insertedBlocks(id)});
  };
  enter(block);
  while (!way.empty()) {
    Step& step = way.back();
    if (step.next == step.inserted.size()) {
      seen[step.block] = State::kDone;
      way.pop_back();
      continue;
    }
    const OdDbObjectId inner = step.inserted[step.next++];
    const auto known = seen.find(inner);
    if (known == seen.end())
      enter(inner);
    else if (known->second == State::kOpen)
      return true;
  }
  return false;
}

} // namespace tc
