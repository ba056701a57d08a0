#include "drawing/tables/view_table.h"

#include "drawing/checks.h"

namespace {

constexpr double kUsualLens = 50;

double above0(double value, double otherwise) { return value > 0 ? value : otherwise; }

OdGeVector3d directionOr(const OdGePoint3d& p, const OdGeVector3d& otherwise) {
  const OdGeVector3d v = p.asVector();
  return v.isZeroLength() ? otherwise : v;
}

// Of a coordinate system.
constexpr int kOrigin = 10;
constexpr int kX = 11;
constexpr int kY = 12;

} // namespace

OdDbAbstractViewTableRecord::OdDbAbstractViewTableRecord() = default;

OdGePoint2d OdDbAbstractViewTableRecord::centerPoint() const { return pair(codes().center); }
void OdDbAbstractViewTableRecord::setCenterPoint(const OdGePoint2d& center) {
  setPair(codes().center, center);
}

double OdDbAbstractViewTableRecord::height() const { return above0(real(codes().height, 1), 1); }
void OdDbAbstractViewTableRecord::setHeight(double height) {
  odcheck::positive(height);
  setReal(codes().height, height);
}

OdGePoint3d OdDbAbstractViewTableRecord::target() const { return triple(codes().target); }
void OdDbAbstractViewTableRecord::setTarget(const OdGePoint3d& target) {
  setTriple(codes().target, target);
}

OdGeVector3d OdDbAbstractViewTableRecord::viewDirection() const {
  return directionOr(triple(codes().direction, {0, 0, 1}), OdGeVector3d::zAxis());
}
void OdDbAbstractViewTableRecord::setViewDirection(const OdGeVector3d& direction) {
  odcheck::direction(direction);
  setTriple(codes().direction, {direction.x, direction.y, direction.z});
}

double OdDbAbstractViewTableRecord::viewTwist() const {
  return real(codes().twist, 0) * (kOdaPi / 180);
}
void OdDbAbstractViewTableRecord::setViewTwist(double angle) {
  setReal(codes().twist, angle * (180 / kOdaPi));
}

double OdDbAbstractViewTableRecord::lensLength() const {
  return above0(real(codes().lens, kUsualLens), kUsualLens);
}
void OdDbAbstractViewTableRecord::setLensLength(double length) {
  odcheck::positive(length);
  setReal(codes().lens, length);
}

const OdDbAbstractViewTableRecord::Codes& OdDbViewTableRecord::codes() const {
  static constexpr Codes kCodes{10, 11, 12, 40, 41, 42, 50};
  return kCodes;
}

double OdDbViewTableRecord::width() const { return above0(real(codes().width, 1), 1); }
void OdDbViewTableRecord::setWidth(double width) {
  odcheck::positive(width);
  setReal(codes().width, width);
}

void OdDbViewTableRecord::enteredDatabase() {
  OdDbKeptTags presets;
  const std::pair<int, double> reals[] = {{40, 1},  {10, 0}, {20, 0}, {41, 1}, {11, 0},
                                          {21, 0},  {31, 1}, {12, 0}, {22, 0}, {32, 0},
                                          {42, 50}, {43, 0}, {44, 0}, {50, 0}};
  for (const auto& [code, value] : reals) presets.setReal(code, value);
  for (const int code : {71, 281, 72}) presets.set(code, "0");
  preset(presets);
}

OdGePoint3d OdDbUCSTableRecord::origin() const { return triple(kOrigin); }
void OdDbUCSTableRecord::setOrigin(const OdGePoint3d& origin) { setTriple(kOrigin, origin); }

OdGeVector3d OdDbUCSTableRecord::xAxis() const {
  return directionOr(triple(kX, {1, 0, 0}), OdGeVector3d::xAxis()).normal();
}
OdGeVector3d OdDbUCSTableRecord::yAxis() const {
  return directionOr(triple(kY, {0, 1, 0}), OdGeVector3d::yAxis()).normal();
}

void OdDbUCSTableRecord::setAxes(const OdGeVector3d& x, const OdGeVector3d& y) {
  const OdGeVector3d u = odcheck::direction(x);
  const OdGeVector3d v = odcheck::direction(y);
  if (std::abs(u.dotProduct(v)) > 1e-6)
    throw OdError(eInvalidInput, QStringLiteral("The axes do not stand on each other"));
  setTriple(kX, {u.x, u.y, u.z});
  setTriple(kY, {v.x, v.y, v.z});
}

OdGeMatrix3d OdDbUCSTableRecord::toWorld() const {
  const OdGeVector3d x = xAxis();
  const OdGeVector3d y = yAxis();
  return OdGeMatrix3d::coordSystem(origin(), x, y, x.crossProduct(y));
}

void OdDbUCSTableRecord::enteredDatabase() {
  OdDbKeptTags presets;
  const std::pair<int, double> reals[] = {{10, 0}, {20, 0}, {30, 0}, {11, 1}, {21, 0},
                                          {31, 0}, {12, 0}, {22, 1}, {32, 0}};
  for (const auto& [code, value] : reals) presets.setReal(code, value);
  presets.set(79, "0");
  presets.setReal(146, 0);
  preset(presets);
}
