// The areas that a user chooses to be filled.
#pragma once

#include "drafton/engine/boundary/boundary_search.h"
#include "drafton/engine/boundary/boundary_sources.h"
#include "drafton/engine/command_context.h"
#include "drafton/engine/hatch_loops.h"

#include <memory>
#include <optional>

namespace drafton {

/// Collects areas around points and within objects. What cannot be an area is told.
class HatchAreas {
 public:
  explicit HatchAreas(const CommandContext& context)
    : m_context(context) {}

  /// Adds the area around a point; false, and a message, if there is none.
  bool addAround(const OdGePoint3d& point, IslandStyle style, double gap);
  /// Adds what objects enclose; false, and a message, if they enclose nothing.
  bool addWithin(const std::vector<OdDbObjectId>& objects, IslandStyle style, double gap);
  /// Takes the last choice back; false if there is none.
  bool takeBack();

  bool isEmpty() const { return m_choices.empty(); }
  /// The loops of all areas, each area's outer one first. Where an area fills an island of another
  /// one, the line between them is no loop.
  std::vector<HatchLoop> loops() const;
  /// The points around which areas were found.
  std::vector<OdGePoint2d> seeds() const;
  /// The height of the first point or object.
  double elevation() const { return m_elevation; }

 private:
  struct Choice {
    BoundaryLoops flat; ///< in the coordinates of the origin
    std::vector<HatchLoop> loops;
    std::optional<OdGePoint2d> seed;
  };
  void keep(BoundaryLoops flat, const BoundarySources& sources, bool isPicked);
  /// True if some area lies within an island of another one.
  bool hasAreaInIsland() const;
  std::vector<HatchLoop> joinedLoops() const;
  bool isChosen(const OdGePoint3d& flatPoint) const;

  const CommandContext& m_context;
  std::vector<Choice> m_choices;
  // Made for the first point: the drawing does not change while areas are chosen.
  OdGePoint3d m_origin;
  bool m_hasOrigin = false;
  double m_elevation = 0;
  std::unique_ptr<BoundarySources> m_visible;
  std::unique_ptr<BoundarySearch> m_search;
  double m_gap = 0;
};

} // namespace drafton
