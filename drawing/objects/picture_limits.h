// How large pictures may be that are shown.
#pragma once

#include <cstdint>

namespace oddb {

/// True for pictures that nobody has the memory to look at: more pixels than a sheet of the largest
/// size has when it is scanned finely. They stay in drawings, and are not shown.
constexpr bool isTooLargePicture(int width, int height) {
  constexpr std::int64_t kMostPixels = 200'000'000;
  return std::int64_t{width} * height > kMostPixels;
}

} // namespace oddb
