// How a drawing is looked at.
#pragma once

#include "drawing/geometry/extents.h"
#include "drawing/geometry/matrix.h"

#include <QPointF>
#include <QRectF>
#include <QTransform>

#include <optional>

namespace drafton {

/// An affine map from the drawing onto a picture: x to the right, y down, in pixels.
class Projection {
 public:
  Projection() = default;
  Projection(std::array<double, 4> x, std::array<double, 4> y)
    : m_x(x)
    , m_y(y) {}

  QPointF operator()(const OdGePoint3d& p) const {
    return {m_x[0] * p.x + m_x[1] * p.y + m_x[2] * p.z + m_x[3],
            m_y[0] * p.x + m_y[1] * p.y + m_y[2] * p.z + m_y[3]};
  }
  QPointF operator()(const OdGeVector3d& v) const {
    return {m_x[0] * v.x + m_x[1] * v.y + m_x[2] * v.z, m_y[0] * v.x + m_y[1] * v.y + m_y[2] * v.z};
  }
  /// What shows a block's coordinates that `placed` takes to those of this projection.
  Projection after(const OdGeMatrix3d& placed) const;
  /// The box on the picture around a box of the drawing.
  QRectF boxOf(const OdGeExtents3d& box) const;
  /// The longest way on the picture of a length of 1 in the drawing.
  double scale() const;
  /// Where the xy plane goes, as a map of the plane.
  QTransform planeTransform() const { return {m_x[0], m_y[0], m_x[1], m_y[1], m_x[3], m_y[3]}; }
  /// Where the xy plane of other coordinates goes.
  QTransform planeOf(const OdGeMatrix3d& placed) const { return after(placed).planeTransform(); }

 private:
  std::array<double, 4> m_x{1, 0, 0, 0}, m_y{0, -1, 0, 0};
};

/// The part of the xy plane that is under a rectangle of the picture; nothing if the plane is seen
/// from the side or askew, where heights count.
std::optional<QRectF> planeUnder(const QRectF& rect, const Projection& projection);

/// A parallel view of the drawing.
struct View {
  /// What `center` is counted from.
  OdGePoint3d target;
  /// From the target to the eye; any length above 0.
  OdGeVector3d direction = OdGeVector3d::zAxis();
  /// Turns the drawing clockwise on the picture, in radians.
  double twist = 0;
  /// The middle of the picture, in the plane that is looked at, from the target, after the twist.
  OdGePoint2d center;
  /// Pixels of a drawing unit; above 0.
  double scale = 1;
  /// Of the picture, in pixels.
  QSizeF size{1, 1};
  /// Where the picture's upper left corner is on the device.
  QPointF origin;
  /// The target's axes meet in the corner of a pixel: see settled().
  bool isSettled = false;

  Projection projection() const;
  QRectF rect() const { return {origin, size}; }
  /// The place under a pixel, in the plane through the target that faces the eye.
  OdGePoint3d unproject(const QPointF& pixel) const;

  /// The view in the same direction that shows all of a box; `margin` is the part of the picture
  /// that stays free all around. An empty box, or one without size, gives a scale of 1 around it.
  View fitted(const OdGeExtents3d& box, double margin = 0) const;
  /// Moved by pixels on the picture.
  View panned(const QPointF& pixels) const;
  /// Moved by half a pixel at most, so that pixels part the drawing in the same way in all settled
  /// views of the same direction, twist and scale.
  View settled() const;
  /// Nearer by a factor; what is at a pixel stays there.
  View zoomed(double factor, const QPointF& pixel) const;

  /// The axes of the picture in the drawing: to the right, up, and towards the eye.
  std::array<OdGeVector3d, 3> axes() const;
};

} // namespace drafton
