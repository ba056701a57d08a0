// What entities show of themselves.
#pragma once

#include "drawing/color.h"
#include "drawing/geometry/extents.h"
#include "drawing/geometry/matrix.h"
#include "drawing/graphics/text_metrics.h"
#include "drawing/object_id.h"

#include <optional>
#include <span>
#include <vector>

class OdDbEntity;
class OdDbRasterImage;
class OdDbViewport;

/// A part of a circle or an ellipse, also one seen askew: center + u cos t + v sin t, for t from
/// `start` over `sweep` (radians, either sign; at most a full turn).
struct OdGiArc {
  OdGePoint3d center;
  OdGeVector3d u, v;
  double start = 0, sweep = 2 * kOdaPi;

  OdGePoint3d pointAt(double t) const { return center + u * std::cos(t) + v * std::sin(t); }
  bool isClosed() const { return std::abs(sweep) >= 2 * kOdaPi; }
};

/// A line of characters in one font, codes resolved.
struct OdGiTextRun {
  OdString text;
  OdGiFont font;
  /// The left end of the base line, in world coordinates.
  OdGePoint3d origin;
  /// Along the base line and up to the height of a capital; their lengths are the height of the
  /// text, `along` times the width factor. Slant and mirroring are in their directions.
  OdGeVector3d along, up;
  /// Added behind each character, as a part of the height.
  double tracking = 0;
  bool underlined = false, overlined = false, struckThrough = false;
  /// In place of the entity's colour.
  std::optional<OdCmColor> color;
};

/// The filling of an area that goes from one colour to another.
struct OdGiGradient {
  OdString name;    ///< "LINEAR", "INVSPHERICAL" and the like, in capitals
  double angle = 0; ///< radians
  double shift = 0; ///< 0 centred to 1 moved
  OdCmColor first, second;
};

/// A place of a line with a width of its own: its middle and its two edges.
struct OdGiWidePoint {
  OdGePoint3d middle, left, right;
  bool startsPiece = false; ///< the first of a piece, which goes as far as the next one starts
};

/// Closed rings of corners in world coordinates; what lies in an odd number of them is inside.
using OdGiRings = std::vector<std::vector<OdGePoint3d>>;

/// Takes the shape of an entity piece by piece, in world coordinates. Drawing, measuring, picking
/// and exploding are all done by what implements this. The entity's own properties (layer, colour,
/// line type) are known to the one who asks; an entity tells only where a piece differs.
class OdGiWorldDraw {
 public:
  virtual ~OdGiWorldDraw() = default;

  /// How far a chord may leave its curve, in drawing units; above 0.
  virtual double deviation() const = 0;

  /// A line through the points, in the entity's line type.
  virtual void polyline(std::span<const OdGePoint3d> points, bool closed) = 0;
  /// A curve in the entity's line type. As it stands, chords of it are given to polyline().
  virtual void arc(const OdGiArc& arc);
  /// A line without end from `origin` along `direction`, in the entity's line type; to the other
  /// side too if `bothWays`. As it stands nothing: it has no box.
  virtual void endless(const OdGePoint3d& origin, const OdGeVector3d& direction, bool bothWays);
  /// A line with a width of its own, in the entity's line type, which starts anew with each piece
  /// unless it runs through. As it stands the outlines of the pieces are given to area().
  virtual void wideLine(std::span<const OdGiWidePoint> points, bool dashesRunThrough);
  /// An area in the entity's colour.
  virtual void area(const OdGiRings& rings) = 0;
  virtual void gradient(const OdGiRings& rings, const OdGiGradient& gradient) = 0;
  /// A pattern's lines: pairs of ends, always continuous.
  virtual void strokes(std::span<const OdGePoint3d> ends) = 0;
  virtual void text(const OdGiTextRun& run) = 0;
  /// A point in the way that PDMODE asks for.
  virtual void point(const OdGePoint3d& position, const OdGeVector3d& normal) = 0;
  /// The entities of a block, moved by `transform`; layer 0 and by-block values come from `insert`.
  virtual void block(OdDbObjectId block, const OdGeMatrix3d& transform,
                     const OdDbEntity& insert) = 0;
  virtual void image(const OdDbRasterImage& image) = 0;
  virtual void viewport(const OdDbViewport& viewport) = 0;

  /// The colour of the pieces that follow; nothing gives the entity's own again.
  /// OdCmColor::kNone is that of the ground on which the drawing is shown.
  virtual void setPieceColor(const std::optional<OdCmColor>& color) = 0;
  /// The line type of the pieces that follow; a null id gives the entity's own again. As it stands
  /// nothing.
  virtual void setPieceLinetype(OdDbObjectId linetype);
};

namespace odgi {

/// Adds chords of an arc to `points`, both ends included, so that none leaves it by more than
/// `deviation`.
void appendChords(const OdGiArc& arc, double deviation, std::vector<OdGePoint3d>& points);
/// The outline of a piece of a wide line, and how many of the points belong to the piece.
std::size_t outlineOf(std::span<const OdGiWidePoint> points, std::vector<OdGePoint3d>& ring);
/// The box around an arc, exactly.
OdGeExtents3d extentsOf(const OdGiArc& arc);

} // namespace odgi
