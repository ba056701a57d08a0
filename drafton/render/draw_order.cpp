#include "drafton/render/draw_order.h"

#include "drawing/objects/sort_order.h"

#include <algorithm>
#include <numeric>

namespace drafton {

std::vector<std::uint32_t> drawOrder(OdDbObjectId block, const std::vector<ShapeItem>& items) {
  const auto handles = oddbSortHandles(block);
  if (handles.empty()) return {};
  std::vector<std::uint64_t> keys;
  keys.reserve(items.size());
  for (const ShapeItem& item : items) {
    const auto found = handles.find(item.id);
    keys.push_back(found != handles.end() ? found->second : item.id.getHandle());
  }
  std::vector<std::uint32_t> order(items.size());
  std::iota(order.begin(), order.end(), 0u);
  std::ranges::stable_sort(order, {}, [&](std::uint32_t i) { return keys[i]; });
  return order;
}

} // namespace drafton
