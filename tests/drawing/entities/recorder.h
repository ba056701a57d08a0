// Doubles that look at what entities show.
#pragma once

#include "drawing/graphics/world_draw.h"

#include <gtest/gtest.h>

/// Keeps every piece that is shown.
class Recorder : public OdGiWorldDraw {
 public:
  explicit Recorder(double deviation = 0.01)
    : m_deviation(deviation) {}

  struct Line {
    std::vector<OdGePoint3d> points;
    bool closed;
  };
  std::vector<Line> lines;
  std::vector<OdGiArc> arcs;
  struct Endless {
    OdGePoint3d origin;
    OdGeVector3d direction;
    bool bothWays;
  };
  std::vector<Endless> endlessLines;
  std::vector<OdGiRings> areas;
  std::vector<OdGiTextRun> texts;
  std::vector<OdGePoint3d> points;
  std::vector<std::pair<OdDbObjectId, OdGeMatrix3d>> blocks;
  std::vector<std::optional<OdCmColor>> colors;
  std::vector<OdDbObjectId> linetypes;

  double deviation() const override { return m_deviation; }
  void polyline(std::span<const OdGePoint3d> line, bool closed) override {
    lines.push_back({{line.begin(), line.end()}, closed});
  }
  void arc(const OdGiArc& arc) override { arcs.push_back(arc); }
  void endless(const OdGePoint3d& origin, const OdGeVector3d& direction, bool bothWays) override {
    endlessLines.push_back({origin, direction, bothWays});
  }
  void area(const OdGiRings& rings) override { areas.push_back(rings); }
  void gradient(const OdGiRings& rings, const OdGiGradient&) override { areas.push_back(rings); }
  void strokes(std::span<const OdGePoint3d>) override {}
  void text(const OdGiTextRun& run) override { texts.push_back(run); }
  void point(const OdGePoint3d& position, const OdGeVector3d&) override {
    points.push_back(position);
  }
  void block(OdDbObjectId block, const OdGeMatrix3d& transform, const OdDbEntity&) override {
    blocks.emplace_back(block, transform);
  }
  void image(const OdDbRasterImage&) override {}
  void viewport(const OdDbViewport&) override {}
  void setPieceColor(const std::optional<OdCmColor>& color) override { colors.push_back(color); }
  void setPieceLinetype(OdDbObjectId linetype) override { linetypes.push_back(linetype); }

 private:
  double m_deviation;
};

/// Letters that are all one unit wide and reach a quarter below the line.
class FixedWidth : public OdGiTextMetrics {
 public:
  FixedWidth() { setCurrent(this); }
  ~FixedWidth() override { setCurrent(nullptr); }
  double advance(const OdString& text, const OdGiFont&) const override {
    return static_cast<double>(text.size());
  }
  double descent(const OdGiFont&) const override { return 0.25; }
};

inline void expectNear(const OdGePoint3d& a, const OdGePoint3d& b, double slack = 1e-9) {
  EXPECT_LE(a.distanceTo(b), slack) << "(" << a.x << ", " << a.y << ", " << a.z << ") is not ("
                                    << b.x << ", " << b.y << ", " << b.z << ")";
}
