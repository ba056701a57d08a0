// What is asked of a picture.
#pragma once

#include "drafton/render/style.h"

#include <QRect>

#include <unordered_set>

namespace drafton {

struct RenderOptions {
  Ground ground{qRgb(255, 255, 255)};
  /// Only this part of the picture is drawn, in pixels of the device; all of it if it is empty.
  QRect part;
  /// Layers that are not plotted are left out.
  bool isPlotting = false;
  /// Lines have their weights; else all have the width of a pixel.
  bool showsLineWeights = true;
  /// Pixels of a millimetre of line weight.
  double pixelsPerMillimetre = 96 / 25.4;
  /// What is too small to be seen may be drawn as less: right for pixels, wrong for what can be
  /// enlarged afterwards.
  bool simplifies = true;
  /// So many references within blocks are drawn for one entity of a space; a few that stand for
  /// four others each, thirty levels deep, would never end.
  std::size_t mostNestedBlocks = 1'000'000;
  /// So many cells of an insert in rows and columns are drawn in full; of more, some all over.
  std::size_t mostCells = 250'000;
  /// Entities of the block that is drawn which stand out; null for none.
  const std::unordered_set<OdDbObjectId>* highlighted = nullptr;
  QRgb highlightColor = qRgb(0, 120, 215);
  /// Entities of the drawing's own block that are left out, as others are drawn in their place;
  /// null for none.
  const std::unordered_set<OdDbObjectId>* hidden = nullptr;
};

} // namespace drafton
