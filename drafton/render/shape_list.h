// What entities show, recorded for drawing again and again.
#pragma once

#include "drafton/render/block_array.h"
#include "drawing/entities/entity.h"
#include "drawing/graphics/world_draw.h"
#include "drawing/patterns/hatch_pattern.h"

namespace drafton {

enum class PieceKind : std::uint8_t {
  kPolyline, ///< points
  kRing,     ///< points, closed
  kArc,
  kXline, ///< a point and the next one along a line without ends
  kRay,   ///< the same, from the point on
  kWide,  ///< a line with a width of its own
  kArea,
  kGradient,
  kStrokes, ///< pairs of points
  kPattern,
  kText,
  kPoint,
  kBlock,
  kImage,
  kViewport,
};

/// One piece of an entity. `first` is an index into what its kind is kept in.
struct Piece {
  PieceKind kind;
  bool hasColor = false;      ///< `color` counts and not that of the entity
  std::uint16_t linetype = 0; ///< above 0: one before this in the list, not that of the entity
  std::uint32_t first = 0, count = 0;
  std::uint32_t color = 0;
  float length = 0; ///< of all strokes together; the advance of a text
};

/// Rings that stand one behind another.
struct AreaPiece {
  std::uint32_t firstRing = 0, ringCount = 0;
};

/// Points that stand one behind another.
struct WidePiece {
  std::uint32_t first = 0, count = 0;
  bool dashesRunThrough = false;
};

struct GradientPiece {
  OdGiGradient gradient;
  AreaPiece area;
};

/// The area of a hatch with its pattern. How much of the pattern is worth drawing depends on the
/// view: few lines are recorded, many are made for the part that is seen.
struct PatternPiece {
  AreaPiece area;
  std::vector<OdHatchPatternLine> lines;
  OdGeMatrix3d toWorld;                           ///< from the plane of rings and lines
  std::vector<std::vector<OdGePoint2d>> rings;    ///< empty if the strokes are recorded
  std::uint32_t firstStroke = 0, strokeCount = 0; ///< ends in the points
  double ink = 0;                                 ///< the length of its lines in an area of 1
};

struct PointPiece {
  OdGePoint3d position;
  OdGeVector3d normal;
};

struct BlockPiece {
  OdDbObjectId block;
  OdGeMatrix3d transform;  ///< of the first cell of an array
  std::uint32_t array = 0; ///< counted from 1; 0 for a single one
};

/// An image or a viewport; `own` only if it is in no drawing.
struct ObjectPiece {
  OdDbObjectId id;
  OdDbEntityPtr own;

  OdDbObjectPtr open() const { return own ? OdDbObjectPtr(own) : id.openObject(); }
};

/// Pieces of many entities in few arrays, so that drawing runs through memory in order.
class ShapeList {
 public:
  std::vector<Piece> pieces;
  std::vector<OdGePoint3d> points;
  std::vector<std::uint32_t> ringSizes; ///< rings stand in `points` one behind another
  std::vector<std::uint32_t> ringStarts;
  std::vector<OdGiArc> arcs;
  std::vector<OdGiWidePoint> widePoints;
  std::vector<WidePiece> wides;
  std::vector<AreaPiece> areas;
  std::vector<GradientPiece> gradients;
  std::vector<PatternPiece> patterns;
  std::vector<OdGiTextRun> texts;
  std::vector<PointPiece> marks;
  std::vector<BlockPiece> blocks;
  std::vector<ArrayPiece> arrays;
  std::vector<ObjectPiece> objects;
  std::vector<OdDbObjectId> linetypes; ///< of pieces that differ from their entities

  std::span<const OdGePoint3d> pointsOf(const Piece& piece) const {
    return std::span(points).subspan(piece.first, piece.count);
  }
  std::span<const OdGiWidePoint> pointsOf(const WidePiece& wide) const {
    return std::span(widePoints).subspan(wide.first, wide.count);
  }
  std::span<const OdGePoint3d> ring(std::uint32_t index) const {
    return std::span(points).subspan(ringStarts[index], ringSizes[index]);
  }
};

} // namespace drafton
