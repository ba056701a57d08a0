#include "drawing/entities/viewport.h"

#include "drawing/checks.h"
#include "drawing/entities/curve.h"
#include "drawing/graphics/world_draw.h"

#include <algorithm>

OdDbViewport::OdDbViewport() = default;

void OdDbViewport::assignFrom(const OdDbObject& other) {
  OdDbEntity::assignFrom(other);
  m_viewport = static_cast<const OdDbViewport&>(other).m_viewport;
}

void OdDbViewport::setCenterPoint(const OdGePoint3d& center) {
  odcheck::finite(center);
  assertWriteEnabled();
  m_viewport.center = center;
}

void OdDbViewport::setWidth(double width) {
  odcheck::positive(width);
  assertWriteEnabled();
  m_viewport.width = width;
}

void OdDbViewport::setHeight(double height) {
  odcheck::positive(height);
  assertWriteEnabled();
  m_viewport.height = height;
}

void OdDbViewport::setNumber(int number) {
  assertWriteEnabled();
  m_viewport.number = number;
  m_viewport.statusId = number;
}

bool OdDbViewport::isOn() const { return !(m_viewport.status & kOff) && m_viewport.statusId != 0; }

void OdDbViewport::setOn(bool on) {
  assertWriteEnabled();
  m_viewport.status = on ? m_viewport.status & ~kOff : m_viewport.status | kOff;
  if (on && m_viewport.statusId == 0) m_viewport.statusId = std::max(m_viewport.number, 2);
}

void OdDbViewport::setViewCenter(const OdGePoint2d& center) {
  odcheck::finite(center);
  assertWriteEnabled();
  m_viewport.viewCenter = center;
}

void OdDbViewport::setViewHeight(double height) {
  odcheck::positive(height);
  assertWriteEnabled();
  m_viewport.viewHeight = height;
}

void OdDbViewport::setViewTarget(const OdGePoint3d& target) {
  odcheck::finite(target);
  assertWriteEnabled();
  m_viewport.target = target;
}

void OdDbViewport::setViewDirection(const OdGeVector3d& direction) {
  const OdGeVector3d d = odcheck::direction(direction);
  assertWriteEnabled();
  m_viewport.direction = d;
}

void OdDbViewport::setTwistAngle(double angle) {
  odcheck::finite(angle);
  assertWriteEnabled();
  m_viewport.twist = angle;
}

double OdDbViewport::customScale() const {
  return m_viewport.viewHeight > 0 ? m_viewport.height / m_viewport.viewHeight : 1;
}

void OdDbViewport::setCustomScale(double scale) {
  odcheck::positive(scale);
  setViewHeight(m_viewport.height / scale);
}

void OdDbViewport::setLocked(bool locked) {
  assertWriteEnabled();
  m_viewport.status = locked ? m_viewport.status | kLocked : m_viewport.status & ~kLocked;
}

bool OdDbViewport::isLayerFrozen(OdDbObjectId layer) const {
  return std::find(m_viewport.frozenLayers.begin(), m_viewport.frozenLayers.end(), layer) !=
         m_viewport.frozenLayers.end();
}

void OdDbViewport::setFrozenLayers(std::vector<OdDbObjectId> layers) {
  assertWriteEnabled();
  m_viewport.frozenLayers = std::move(layers);
}

void OdDbViewport::setNonRectClipEntityId(OdDbObjectId entity) {
  assertWriteEnabled();
  m_viewport.clipEntity = entity;
  m_viewport.status =
      entity.isNull() ? m_viewport.status & ~kNonRectClip : m_viewport.status | kNonRectClip;
}

OdGeMatrix3d OdDbViewport::modelToPaper() const {
  const OdGeMatrix3d toView = OdGeMatrix3d::rotation(m_viewport.twist, OdGeVector3d::zAxis()) *
                              OdGeMatrix3d::planeToWorld(m_viewport.direction.normal()).inverse() *
                              OdGeMatrix3d::translation(-m_viewport.target.asVector());
  const OdGeVector3d middle{m_viewport.viewCenter.x, m_viewport.viewCenter.y, 0};
  return OdGeMatrix3d::translation(m_viewport.center.asVector()) *
         OdGeMatrix3d::scaling(customScale()) * OdGeMatrix3d::translation(-middle) * toView;
}

std::vector<OdGePoint3d> OdDbViewport::boundary(double deviation) const {
  std::vector<OdGePoint3d> points;
  if (m_viewport.status & kNonRectClip) {
    const OdDbObjectPtr object = m_viewport.clipEntity.openObject();
    const auto* const curve = odrxCast<OdDbCurve>(object.get());
    if (curve && curve->hasShape())
      for (const OdGeCurveSegment& piece : curve->segments(deviation)) {
        if (piece.isLine())
          points.push_back(piece.start);
        else
          odgi::appendChords({piece.center, piece.u, piece.v, piece.from, piece.sweep}, deviation,
                             points);
      }
    if (points.size() > 2) return points;
    points.clear();
  }
  const OdGeVector3d x{m_viewport.width / 2, 0, 0};
  const OdGeVector3d y{0, m_viewport.height / 2, 0};
  const OdGePoint3d& c = m_viewport.center;
  return {c - x - y, c + x - y, c + x + y, c - x + y};
}

void OdDbViewport::worldDraw(OdGiWorldDraw& draw) const { draw.viewport(*this); }

bool OdDbViewport::getGeomExtents(OdGeExtents3d& extents) const {
  extents = {};
  // The sheet itself is no thing that stands on it.
  if (isOverall()) return false;
  for (const OdGePoint3d& p : boundary(1e-3 * m_viewport.height)) extents.addPoint(p);
  return true;
}

bool OdDbViewport::transformBy(const OdGeMatrix3d& transform) {
  // The window stays upright; what it shows grows with it.
  const double size = (transform * OdGeVector3d::xAxis()).length();
  const OdGePoint3d center = transform * m_viewport.center;
  if (!odcheck::areFinite(size, center) || !(size > 0)) return false;
  assertWriteEnabled();
  m_viewport.center = center;
  m_viewport.width *= size;
  m_viewport.height *= size;
  return true;
}
