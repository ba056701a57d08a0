// Moving the points and lengths of kept tags. Not for use outside of the library.
#pragma once

#include "drawing/dxf/kept_tags.h"
#include "drawing/geometry/matrix.h"

#include <span>

namespace oddb {

/// What a group code stands for.
struct TagMotion {
  enum Kind : std::uint8_t {
    kPoint,
    kVector,    ///< turns and grows
    kDirection, ///< turns and keeps its length
    kLength,    ///< grows with a uniform scale
    kNormal,    ///< of a plane that has a right-handed frame: a mirror turns it to the other side
  };
  int code = 0;
  Kind kind = kPoint;
};

/// The motion of a code; null if it has none.
const TagMotion* motionOf(std::span<const TagMotion> motions, int code);

/// Applies a transformation to tags.
class TagMover {
 public:
  explicit TagMover(const OdGeMatrix3d& transform);

  /// True if all lengths grow alike.
  bool isUniform() const { return m_isUniform; }
  double scale() const { return m_scale; }
  const OdGeMatrix3d& transform() const { return m_transform; }
  bool mirrors() const { return m_mirrors; }
  /// True if it turns around the z axis at most, so that flat things stay in their plane.
  bool staysInPlane() const { return m_staysInPlane; }

  /// Moves the tag at an index; points take the two tags behind it along, whose codes are greater
  /// by 10 and 20. False if the tag is no number.
  bool move(OdDbKeptTags& tags, std::size_t index, TagMotion::Kind kind) const;

 private:
  OdGeMatrix3d m_transform;
  double m_scale = 1;
  bool m_isUniform = false, m_mirrors = false, m_staysInPlane = false;
};

} // namespace oddb
