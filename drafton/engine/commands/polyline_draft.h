// A polyline while it is being drawn.
#pragma once

#include "drafton/engine/commands/arc_path.h"
#include "drawing/database.h"

#include <vector>

namespace drafton {

/// Grows piece by piece in the drawing, and can lose its last piece again.
class PolylineDraft {
 public:
  /// The widths of one piece at its ends.
  struct Widths {
    double start = 0, end = 0;
  };

  /// All pieces lie at the height of `start`.
  PolylineDraft(OdDbDatabase& database, const OdGePoint3d& start, Widths widths);

  std::size_t pieces() const { return m_pieces.size(); }
  const OdGePoint3d& start() const { return m_start; }
  const OdGePoint3d& end() const;
  /// The direction of travel at the end; along x before the first piece.
  double direction() const;

  /// Of the next piece.
  const Widths& widths() const { return m_widths; }
  void setWidths(Widths widths) { m_widths = widths; }

  /// Appends a straight or curved piece that starts at end(). The pieces behind it are as wide as
  /// it ends.
  void add(const ArcPath& piece);
  /// A piece that could be appended, as an entity of no drawing.
  OdDbEntityPtr shown(const ArcPath& piece) const;
  /// False if there is no piece to take back.
  bool takeBack();
  /// Ends the polyline with a piece back to its start.
  void close(double bulge);

 private:
  struct Piece {
    ArcPath path;
    Widths widths;
  };
  OdDbDatabase& m_database;
  OdGePoint3d m_start;
  Widths m_widths;
  std::vector<Piece> m_pieces;
  OdDbObjectId m_polyline;
};

} // namespace drafton
