#include "drafton/render/block_array.h"

#include <algorithm>
#include <cmath>

namespace drafton {
namespace {

std::size_t stepsOf(int first, int last, int step) {
  return last < first ? 0 : static_cast<std::size_t>((last - first) / step) + 1;
}

/// A number of cells that may be far beyond all that there are.
int clamped(double value, int least, int most) {
  return static_cast<int>(std::clamp(value, static_cast<double>(least), static_cast<double>(most)));
}

int stepFor(const QPointF& way, double closest, int cells) {
  const double length = std::hypot(way.x(), way.y());
  return length * cells <= closest ? std::max(1, cells)
                                   : clamped(std::floor(closest / length), 1, std::max(1, cells));
}

} // namespace

std::size_t CellRange::count() const {
  return stepsOf(firstColumn, lastColumn, columnStep) * stepsOf(firstRow, lastRow, rowStep);
}

CellRange cellsWithin(const QRectF& part, const QRectF& cell, const ArrayPiece& array,
                      const QPointF& right, const QPointF& up) {
  CellRange all{0, array.columns - 1, 1, 0, array.rows - 1, 1};
  // A cell is in it if its upper left corner is within this.
  const QRectF corners(part.left() - cell.width() - cell.left(),
                       part.top() - cell.height() - cell.top(), part.width() + cell.width(),
                       part.height() + cell.height());
  const double det = right.x() * up.y() - right.y() * up.x();
  if (!std::isfinite(det) || det == 0) return all;
  double leastColumn = HUGE_VAL, mostColumn = -HUGE_VAL, leastRow = HUGE_VAL, mostRow = -HUGE_VAL;
  for (const QPointF& p :
       {corners.topLeft(), corners.topRight(), corners.bottomLeft(), corners.bottomRight()}) {
    const double column = (p.x() * up.y() - p.y() * up.x()) / det;
    const double row = (right.x() * p.y() - right.y() * p.x()) / det;
    if (!std::isfinite(column) || !std::isfinite(row)) return all;
    leastColumn = std::min(leastColumn, column);
    mostColumn = std::max(mostColumn, column);
    leastRow = std::min(leastRow, row);
    mostRow = std::max(mostRow, row);
  }
  all.firstColumn = clamped(std::floor(leastColumn), 0, array.columns);
  all.lastColumn = clamped(std::ceil(mostColumn), -1, array.columns - 1);
  all.firstRow = clamped(std::floor(leastRow), 0, array.rows);
  all.lastRow = clamped(std::ceil(mostRow), -1, array.rows - 1);
  return all;
}

void thinOut(CellRange& range, const QPointF& right, const QPointF& up, double closest,
             std::size_t most) {
  if (range.isEmpty()) return;
  range.columnStep = stepFor(right, closest, range.lastColumn - range.firstColumn + 1);
  range.rowStep = stepFor(up, closest, range.lastRow - range.firstRow + 1);
  const std::size_t count = range.count();
  if (count <= most) return;
  const auto factor = std::ceil(std::sqrt(static_cast<double>(count) / static_cast<double>(most)));
  range.columnStep *= static_cast<int>(factor);
  range.rowStep *= static_cast<int>(factor);
  // One of both may have too few cells to be thinned.
  while (range.count() > most) {
    range.columnStep *= 2;
    range.rowStep *= 2;
  }
}

} // namespace drafton
