// Boxes around what entities show.
#pragma once

#include "drawing/graphics/world_draw.h"

namespace odgi {

/// How deep blocks are looked into that stand in each other: nobody draws so deep, but a file may,
/// and each level takes of the stack.
inline constexpr std::size_t kDeepestBlock = 100;

} // namespace odgi

/// Measures what is shown, blocks included; a block within itself counts for nothing, and neither
/// do those that are nested deeper than odgi::kDeepestBlock.
class OdGiMeasure : public OdGiWorldDraw {
 public:
  explicit OdGiMeasure(double deviation = 1e-3)
    : m_deviation(deviation) {}

  const OdGeExtents3d& extents() const { return m_box; }

  double deviation() const override { return m_deviation; }
  void polyline(std::span<const OdGePoint3d> points, bool closed) override;
  void arc(const OdGiArc& arc) override;
  void area(const OdGiRings& rings) override;
  void gradient(const OdGiRings& rings, const OdGiGradient& gradient) override;
  void strokes(std::span<const OdGePoint3d> ends) override;
  void text(const OdGiTextRun& run) override;
  void point(const OdGePoint3d& position, const OdGeVector3d& normal) override;
  void block(OdDbObjectId block, const OdGeMatrix3d& transform, const OdDbEntity& insert) override;
  void image(const OdDbRasterImage&) override { m_hasBoxOfItsOwn = true; }
  void viewport(const OdDbViewport&) override { m_hasBoxOfItsOwn = true; }
  void setPieceColor(const std::optional<OdCmColor>&) override {}

 private:
  void add(const OdGePoint3d& p) { m_box.addPoint(m_transform ? *m_transform * p : p); }
  void addBoxOf(const OdDbEntity& entity);

  OdGeExtents3d m_box;
  std::optional<OdGeMatrix3d> m_transform; ///< of the block that is at hand
  std::vector<OdDbObjectId> m_open;        ///< blocks that are at hand
  int m_left = 1'000'000;                  ///< how many entities are still looked at piece by piece
  double m_deviation;
  bool m_hasBoxOfItsOwn = false; ///< pictures and viewports are not shown by pieces
};
