// Pictures of many tools at once.
#pragma once

#include "tpal/loaded_catalog.h"

#include <array>
#include <functional>

namespace tpal {

/// A picture in bytes, and the name that it would like to have.
struct MadePicture {
  int pixels = 0;
  OdString src; ///< relative to the folder of the palette
  QByteArray png;
};

/// The pictures of one tool, of the smallest first; none if one of them could not be made.
struct MadePictures {
  std::vector<MadePicture> pictures;
  OdString problem; ///< why there are none
};

/// Makes the pictures of tools on all cores, or on this one where the host has previews for one
/// thread only. Tools are looked at but not changed; each thread reads the files that it needs for
/// itself. `take` is called in this thread, for each tool in order.
void makePictures(const std::vector<tc::OdTcToolPtr>& tools,
                  const std::function<void(std::size_t index, const MadePictures& made)>& take);

} // namespace tpal
