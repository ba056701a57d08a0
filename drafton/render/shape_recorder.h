// Records what an entity shows.
#pragma once

#include "drafton/render/shape_list.h"

class OdDbHatch;

namespace drafton {

/// Adds the pieces of entities to a list and measures them. Blocks are recorded by reference; the
/// box of such a piece is for the caller to add.
class ShapeRecorder : public OdGiWorldDraw {
 public:
  /// Chords leave their curves by no more than `deviation`.
  ShapeRecorder(ShapeList& list, double deviation)
    : m_list(list)
    , m_deviation(deviation) {}

  /// Records all that an entity shows.
  void record(const OdDbEntity& entity);

  /// The box around all pieces since the last call, blocks excepted.
  OdGeExtents3d takeBox() { return std::exchange(m_box, {}); }
  /// True if pieces since the last call could be finer with a smaller deviation.
  bool takeIsCoarse() { return std::exchange(m_isCoarse, false); }

  /// True if pieces since the last call have no end, so that their box says nothing.
  bool takeIsEndless() { return std::exchange(m_isEndless, false); }

  double deviation() const override { return m_deviation; }
  void polyline(std::span<const OdGePoint3d> points, bool closed) override;
  void arc(const OdGiArc& arc) override;
  void endless(const OdGePoint3d& origin, const OdGeVector3d& direction, bool bothWays) override;
  void wideLine(std::span<const OdGiWidePoint> points, bool dashesRunThrough) override;
  void area(const OdGiRings& rings) override;
  void gradient(const OdGiRings& rings, const OdGiGradient& gradient) override;
  void strokes(std::span<const OdGePoint3d> ends) override;
  void text(const OdGiTextRun& run) override;
  void point(const OdGePoint3d& position, const OdGeVector3d& normal) override;
  void block(OdDbObjectId block, const OdGeMatrix3d& transform, const OdDbEntity& insert) override;
  void image(const OdDbRasterImage& image) override;
  void viewport(const OdDbViewport& viewport) override;
  void setPieceColor(const std::optional<OdCmColor>& color) override { m_color = color; }
  void setPieceLinetype(OdDbObjectId linetype) override;

 private:
  void addObject(PieceKind kind, const OdDbEntity& entity, std::span<const OdGePoint3d> corners);
  void add(PieceKind kind, std::size_t first, std::size_t count);
  void addPoints(std::span<const OdGePoint3d> points);
  bool areFinite(std::span<const OdGePoint3d> points) const;
  void pattern(const OdDbHatch& hatch);
  AreaPiece addRings(const OdGiRings& rings);

  ShapeList& m_list;
  double m_deviation;
  OdGeExtents3d m_box;
  bool m_isCoarse = false, m_isEndless = false;
  std::optional<OdCmColor> m_color;
  const OdDbEntity* m_arrayOf = nullptr; ///< whose cells are recorded: all of them as one piece
  std::uint16_t m_linetype = 0;
};

} // namespace drafton
