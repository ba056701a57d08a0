// Rows and columns of a block that one insert shows.
#pragma once

#include "drawing/geometry/matrix.h"

#include <QPointF>
#include <QRectF>

#include <cstddef>

namespace drafton {

/// How the cells of an insert follow each other; the first one is where the insert stands.
struct ArrayPiece {
  int columns = 1, rows = 1;
  OdGeVector3d right, up; ///< from a cell to the next column and to the next row

  OdGeVector3d toCell(int column, int row) const { return right * column + up * row; }
};

/// Some of the columns and rows: every `columnStep`th column from the first to the last.
struct CellRange {
  int firstColumn = 0, lastColumn = -1, columnStep = 1;
  int firstRow = 0, lastRow = -1, rowStep = 1;

  bool isEmpty() const { return lastColumn < firstColumn || lastRow < firstRow; }
  std::size_t count() const;
};

/// The cells that touch `part` of a picture. `cell` is the box of the first one there, `right` and
/// `up` are the ways to the next ones.
CellRange cellsWithin(const QRectF& part, const QRectF& cell, const ArrayPiece& array,
                      const QPointF& right, const QPointF& up);

/// Leaves cells out as long as the next one that stays is no farther than `closest`, and more of
/// them, evenly, if there are more than `most` still.
void thinOut(CellRange& range, const QPointF& right, const QPointF& up, double closest,
             std::size_t most);

} // namespace drafton
