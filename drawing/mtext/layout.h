// Where the letters of MTEXT come to stand.
#pragma once

#include "drawing/geometry/geometry.h"
#include "drawing/mtext/format.h"

/// Columns beside each other.
struct OdMTextColumns {
  enum Kind : std::uint8_t { kNone, kStatic, kDynamic };
  Kind kind = kNone;
  int count = 0;
  double width = 0, gutter = 0, height = 0; ///< height: of all columns; 0 if each has its own
  bool autoHeight = false, reversed = false;
  std::vector<double> heights; ///< of each column, if they differ
};

/// What a layout depends on besides the pieces.
struct OdMTextFrame {
  double height = 1;    ///< of the text, by which distances of lines go
  double width = 0;     ///< at which lines wrap; 0: never
  int attachment = 1;   ///< 1 top left, row by row, to 9 bottom right
  double spacing = 1;   ///< the factor for the distance of lines
  bool exactly = false; ///< that distance counts for higher letters, too
  OdMTextColumns columns;
};

/// Letters in one line of a layout.
struct OdMTextRun {
  OdString text;
  OdMTextFormat format; ///< its height is that of the run
  double x = 0, y = 0;  ///< the left end of the base line
  double width = 0;
};

/// A layout: x along the lines, y up, the attachment point at the origin.
struct OdMTextLayout {
  std::vector<OdMTextRun> runs;
  /// Lines of stacks: pairs of ends.
  std::vector<OdGePoint2d> strokes;
  double left = 0, right = 0, top = 0, bottom = 0; ///< the box around the text
  int lines = 0;
};

namespace odmtext {

/// The distance of base lines by the height of the letters.
constexpr double kLineDistance = 5.0 / 3.0;

OdMTextLayout layOut(const std::vector<OdMTextPiece>& pieces, const OdMTextFrame& frame,
                     const OdGiTextMetrics& metrics);

} // namespace odmtext
