#include "drawing/entities/raster_image.h"

#include "drawing/checks.h"
#include "drawing/database.h"
#include "drawing/graphics/world_draw.h"
#include "drawing/object_reactors.h"

namespace {

void checkPercent(int value) {
  if (value < 0 || value > 100)
    throw OdError(eInvalidInput, QStringLiteral("%1 is not between 0 and 100").arg(value));
}

} // namespace

OdDbRasterImage::OdDbRasterImage() = default;

void OdDbRasterImage::assignFrom(const OdDbObject& other) {
  OdDbEntity::assignFrom(other);
  m_image = static_cast<const OdDbRasterImage&>(other).m_image;
}

OdRxObjectPtr OdDbRasterImage::clone() const {
  const OdDbRasterImagePtr copy = OdDbEntity::clone();
  copy->m_image.reactor = {};
  return copy;
}

void OdDbRasterImage::setImageDefId(OdDbObjectId definition) {
  assertWriteEnabled();
  m_image.definition = definition;
  const OdDbObjectPtr object = definition.openObject();
  if (const auto* const def = odrxCast<OdDbRasterImageDef>(object.get())) {
    // The edges stay; there are other pixels along them.
    OdGePoint3d origin;
    OdGeVector3d u, v;
    getOrientation(origin, u, v);
    m_image.size = def->size();
    setOrientation(origin, u, v);
  }
  if (database()) addReactor();
}

void OdDbRasterImage::getOrientation(OdGePoint3d& origin, OdGeVector3d& u, OdGeVector3d& v) const {
  origin = m_image.origin;
  u = m_image.u * m_image.size.x;
  v = m_image.v * m_image.size.y;
}

void OdDbRasterImage::setOrientation(const OdGePoint3d& origin, const OdGeVector3d& u,
                                     const OdGeVector3d& v) {
  odcheck::finite(origin);
  odcheck::positive(u.crossProduct(v).length());
  assertWriteEnabled();
  m_image.origin = origin;
  m_image.u = u * (1 / m_image.size.x);
  m_image.v = v * (1 / m_image.size.y);
}

void OdDbRasterImage::setImageSize(const OdGePoint2d& pixels) {
  odcheck::positive(pixels.x);
  odcheck::positive(pixels.y);
  assertWriteEnabled();
  m_image.size = pixels;
}

void OdDbRasterImage::setDisplayOpt(DisplayOpt option, bool on) {
  assertWriteEnabled();
  m_image.display = on ? m_image.display | option : m_image.display & ~option;
}

void OdDbRasterImage::setBrightness(int value) {
  checkPercent(value);
  assertWriteEnabled();
  m_image.brightness = value;
}

void OdDbRasterImage::setContrast(int value) {
  checkPercent(value);
  assertWriteEnabled();
  m_image.contrast = value;
}

void OdDbRasterImage::setFade(int value) {
  checkPercent(value);
  assertWriteEnabled();
  m_image.fade = value;
}

void OdDbRasterImage::setClipBoundary(std::vector<OdGePoint2d> corners) {
  for (const OdGePoint2d& p : corners) odcheck::finite(p);
  if (corners.size() == 1) throw OdError(eInvalidInput, QStringLiteral("One point is no boundary"));
  assertWriteEnabled();
  m_image.clipping = !corners.empty();
  if (corners.empty()) {
    m_image.clipType = kRect;
    m_image.boundary.clear();
    return;
  }
  m_image.display |= kClip;
  m_image.clipType = corners.size() == 2 ? kRect : kPoly;
  // Files repeat the first corner of a polygon at its end.
  if (corners.size() > 2 && corners.front() != corners.back()) corners.push_back(corners.front());
  m_image.boundary = std::move(corners);
}

void OdDbRasterImage::setClipInverted(bool inverted) {
  assertWriteEnabled();
  m_image.inverted = inverted;
}

OdGeMatrix3d OdDbRasterImage::pixelToWorld() const {
  // Pixels are counted from the middle of the upper left one, downwards.
  const OdGePoint3d upperLeft =
      m_image.origin + m_image.v * (m_image.size.y - 0.5) + m_image.u * 0.5;
  return OdGeMatrix3d::coordSystem(upperLeft, m_image.u, -m_image.v,
                                   m_image.u.crossProduct(m_image.v).normal());
}

std::vector<OdGePoint3d> OdDbRasterImage::corners() const {
  OdGePoint3d origin;
  OdGeVector3d u, v;
  getOrientation(origin, u, v);
  return {origin, origin + u, origin + u + v, origin + v};
}

std::vector<OdGePoint3d> OdDbRasterImage::shownBoundary() const {
  if (!isClipped() || isClipInverted() || m_image.boundary.size() < 2) return corners();
  const OdGeMatrix3d toWorld = pixelToWorld();
  std::vector<OdGePoint2d> pixels = m_image.boundary;
  if (m_image.clipType == kRect || pixels.size() == 2) {
    const OdGePoint2d a = pixels[0];
    const OdGePoint2d b = pixels[1];
    pixels = {a, {b.x, a.y}, b, {a.x, b.y}};
  } else if (pixels.front() == pixels.back()) {
    pixels.pop_back();
  }
  std::vector<OdGePoint3d> points;
  for (const OdGePoint2d& p : pixels) points.push_back(toWorld * OdGePoint3d{p.x, p.y, 0});
  return points;
}

void OdDbRasterImage::worldDraw(OdGiWorldDraw& draw) const { draw.image(*this); }

bool OdDbRasterImage::getGeomExtents(OdGeExtents3d& extents) const {
  extents = {};
  for (const OdGePoint3d& p : shownBoundary()) extents.addPoint(p);
  return true;
}

bool OdDbRasterImage::transformBy(const OdGeMatrix3d& transform) {
  Data moved = m_image;
  moved.origin = transform * m_image.origin;
  moved.u = transform * m_image.u;
  moved.v = transform * m_image.v;
  if (!odcheck::areFinite(moved.origin, moved.u, moved.v) ||
      !(moved.u.crossProduct(moved.v).length() > 0))
    return false;
  assertWriteEnabled();
  m_image = std::move(moved);
  return true;
}

void OdDbRasterImage::enteredDatabase() {
  m_image.reactor = {};
  addReactor();
}

void OdDbRasterImage::addReactor() {
  const OdDbObjectPtr definition = m_image.definition.openObject(OdDb::kForWrite);
  if (!definition) return;
  OdDbObjectPtr reactor = m_image.reactor.openObject();
  if (!reactor) {
    const auto made = odrxMake<OdDbRasterImageDefReactor>();
    made->setImage(objectId());
    m_image.reactor = database()->addObject(made, objectId());
  }
  oddb::addPersistentReactor(*definition, m_image.reactor);
}
