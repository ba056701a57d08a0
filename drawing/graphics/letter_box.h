// Where letters stand, and how a mirror moves them so that they can still be read.
#pragma once

#include "drawing/geometry/extents.h"
#include "drawing/graphics/world_draw.h"

#include <optional>

/// The rectangle around letters.
struct OdGiLetterFrame {
  OdGePoint3d middle;
  OdGeVector3d along, up; ///< of length 1, at right angles
};

/// The movement that brings letters to where a mirror shows them: their middle and their base line
/// come to stand there, and they can be read.
OdGeMatrix3d odgiReadableMirror(const OdGiLetterFrame& letters, const OdGeMatrix3d& mirror);

/// Measures letters along the base line of the first of them, or the frames that are drawn around
/// them.
class OdGiLetterBox : public OdGiWorldDraw {
 public:
  enum class Of : std::uint8_t { kLetters, kFrames };

  explicit OdGiLetterBox(Of of = Of::kLetters)
    : m_of(of) {}

  /// Nothing if nothing was shown.
  std::optional<OdGiLetterFrame> frame() const;
  /// Stands at a place in the place of letters.
  void moveTo(const OdGePoint3d& place);

  double deviation() const override { return 1; }
  void polyline(std::span<const OdGePoint3d> points, bool closed) override;
  void area(const OdGiRings&) override {}
  void gradient(const OdGiRings&, const OdGiGradient&) override {}
  void strokes(std::span<const OdGePoint3d>) override {}
  void text(const OdGiTextRun& run) override;
  void point(const OdGePoint3d&, const OdGeVector3d&) override {}
  void block(OdDbObjectId, const OdGeMatrix3d&, const OdDbEntity&) override {}
  void image(const OdDbRasterImage&) override {}
  void viewport(const OdDbViewport&) override {}
  void setPieceColor(const std::optional<OdCmColor>&) override {}

 private:
  void begin(const OdGeVector3d& along, const OdGeVector3d& up);
  void add(const OdGePoint3d& corner);

  Of m_of;
  OdGeExtents3d m_box;
  OdGeVector3d m_along, m_up, m_normal;
};
