// What a palette of another program says besides what the classes of this system take from it.
#pragma once

#include "frame/string.h"

#include <cstdint>
#include <vector>

class TiXmlElement;

namespace tc {

/// One tool of such a palette, whether or not an object came of it.
struct OdTcForeignTool {
  OdString name;
  /// The element in the tool's data that no class here has; empty if there is none.
  OdString record;
  /// The macro that stands in that record as text.
  OdString macro;
  /// Bit n is set if the tool's picture number n is one for dark windows.
  std::uint32_t darkImages = 0;
};

/// Gathered while the file is read, since the document is gone afterwards.
struct OdTcForeignContent {
  /// The element of the document itself.
  OdString root;
  /// The folder of the pictures, as the file names it; null if it names none.
  OdString dependentFilesPath;
  /// In the order of the file.
  std::vector<OdTcForeignTool> tools;
  /// As OdTcForeignTool::darkImages, for the pictures of the palette itself.
  std::uint32_t darkImages = 0;
  /// True if the user was told in a message box that the file holds no palette.
  bool isReported = false;
};

/// Looks the palette's element over. It goes no deeper than the records of the tools, so large
/// trees below these cost nothing.
void gatherForeignContent(const TiXmlElement& root, const TiXmlElement& palette,
                          OdTcForeignContent& content);

} // namespace tc
