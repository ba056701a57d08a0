// How dimensions of angles and of arcs are drawn.
#include "drawing/entities/dimension_block.h"
#include "drawing/entities/dimension_kinds.h"
#include "drawing/entities/dimension_text.h"

namespace {

OdGeVector3d unit(double angle) { return {std::cos(angle), std::sin(angle), 0}; }
double directionOf(const OdGeVector3d& v) { return std::atan2(v.y, v.x); }

/// The arc of a dimension in its plane, counterclockwise; where the extension lines begin.
struct Bow {
  OdGePoint3d center;
  double radius = 0, from = 0, sweep = 0;
  std::optional<OdGePoint3d> first, second; ///< none: no extension line

  double to() const { return from + sweep; }
  OdGePoint3d pointAt(double angle) const { return center + unit(angle) * radius; }
};

/// How far a text reaches from its middle along a direction, with a gap.
double reach(const OdGePoint2d& size, double gap, double turn, const OdGeVector3d& direction) {
  return std::abs(direction.dotProduct(unit(turn))) * (size.x / 2 + gap) +
         std::abs(direction.dotProduct(unit(turn + kOdaPi / 2))) * (size.y / 2 + gap);
}

/// The text of an arc, as the style and the dimension have it.
struct Label {
  OdGePoint2d size;
  double turn;
  OdGePoint3d middle;
  double angle; ///< at which it stands, seen from the centre

  OdGeVector3d out() const { return unit(angle); }
};

/// What stands between the extension lines, and not outside.
struct Fit {
  bool textIsInside, arrowsAreInside;
};

Fit fitOf(const oddb::DimensionBlock& block, const Bow& bow, double textWidth, bool isPlaced) {
  // Of two arrows, with a little of a line between them.
  constexpr double kArrowsRoom = 2.5;
  const OdDbDimVarValues& v = block.vars();
  const double length = bow.radius * bow.sweep, room = textWidth + 2 * block.gap();
  const bool textFits = length >= room || v.dimtix || isPlaced;
  const bool arrowsFit =
      v.dimtsz > 0 || length >= (textFits ? room : 0) + kArrowsRoom * block.arrowSize();
  return {textFits, arrowsFit};
}

Label labelOf(const oddb::DimensionBlock& block, const OdDbDimension& dimension, const Bow& bow,
              const Fit& fit, const OdGePoint2d& size) {
  const OdDbDimVarValues& v = block.vars();
  const OdGePoint3d& placed = dimension.dimensionData().textMiddle;
  const bool isPlaced = !dimension.isUsingDefaultTextPosition();
  double angle = bow.from + bow.sweep / 2;
  if (isPlaced && placed.distanceTo(bow.center) > 0) angle = directionOf(placed - bow.center);
  const bool isLevel = fit.textIsInside ? v.dimtih : v.dimtoh;
  Label label{size, oddb::textTurn(dimension, isLevel, angle - kOdaPi / 2), placed, angle};
  if (isPlaced) return label;
  label.middle = bow.center + label.out() * bow.radius;
  const double gap = block.gap();
  if (!fit.textIsInside)
    label.middle = label.middle + label.out() * reach(size, gap, label.turn, label.out());
  else if (v.dimtad != 0 && !isLevel)
    label.middle = label.middle +
                   unit(label.turn + kOdaPi / 2) * ((v.dimtad == 4 ? -1 : 1) * (size.y / 2 + gap));
  return label;
}

/// Draws the arrows, and what leads to them from outside. Gives the angles that the arc leaves to
/// them at its ends.
std::pair<double, double> drawArrows(oddb::DimensionBlock& block, const Bow& bow, bool areInside) {
  const double r = bow.radius;
  // An arrow is a chord of the arc.
  const double step = block.arrowSize() / r;
  double backs[2] = {0, 0};
  for (const int end : {0, 1}) {
    const double angle = end == 0 ? bow.from : bow.to();
    const double inward = (end == 0 ? step : -step) * (areInside ? 1 : -1);
    const OdGeVector3d way = unit(angle + inward / 2 + (inward > 0 ? -kOdaPi / 2 : kOdaPi / 2));
    backs[end] = block.arrow(bow.pointAt(angle), way, end == 0) / r;
    if (!areInside && !block.vars().dimsoxd)
      block.dimensionArc(bow.center, r, angle + inward, inward);
  }
  return {backs[0], backs[1]};
}

/// Draws the arc between two angles. It leaves room for the text that stands on it.
void drawArc(oddb::DimensionBlock& block, const Bow& bow, const Label& label, double begin,
             double end) {
  const double r = bow.radius, gap = block.gap();
  const double across = std::abs(label.middle.distanceTo(bow.center) - r);
  const double half = reach(label.size, gap, label.turn, {-label.out().y, label.out().x, 0}) / r;
  const double at = bow.from + odgeNormalAngle(label.angle - bow.from);
  const bool isOnArc =
      label.size.x > 0 && across < reach(label.size, gap, label.turn, label.out()) - 1e-9;
  if (isOnArc && at - half < end && at + half > begin) {
    block.dimensionArc(bow.center, r, begin, at - half - begin);
    block.dimensionArc(bow.center, r, at + half, end - at - half);
  } else {
    block.dimensionArc(bow.center, r, begin, end - begin);
  }
}

/// Draws it; gives the middle of the text.
OdGePoint3d drawBow(oddb::DimensionBlock& block, const OdDbDimension& dimension, const Bow& bow,
                    const OdString& text) {
  if (bow.first) block.extensionLine(*bow.first, bow.pointAt(bow.from), true);
  if (bow.second) block.extensionLine(*bow.second, bow.pointAt(bow.to()), false);
  const OdGePoint2d size = block.textSize(text);
  const Fit fit = fitOf(block, bow, size.x, !dimension.isUsingDefaultTextPosition());
  const Label label = labelOf(block, dimension, bow, fit, size);
  const auto [back1, back2] = drawArrows(block, bow, fit.arrowsAreInside);
  if (fit.arrowsAreInside)
    drawArc(block, bow, label, bow.from + back1, bow.to() - back2);
  else if (block.vars().dimtofl)
    drawArc(block, bow, label, bow.from, bow.to());
  block.text(text, label.middle, label.turn);
  return label.middle;
}

/// From a centre with two points and one on the arc.
Bow bowOf(const OdGePoint3d& center, const OdGePoint3d& p1, const OdGePoint3d& p2,
          const OdGePoint3d& onArc) {
  Bow bow{center, onArc.distanceTo(center), directionOf(p1 - center), 0, p1, p2};
  bow.sweep = odgeNormalAngle(directionOf(p2 - center) - bow.from);
  if (odgeNormalAngle(directionOf(onArc - center) - bow.from) > bow.sweep) {
    bow.from += bow.sweep;
    bow.sweep = 2 * kOdaPi - bow.sweep;
    std::swap(bow.first, bow.second);
  }
  return bow;
}

/// Where the extension line of a measured line begins; none if the arc meets the line itself.
std::optional<OdGePoint3d> extensionStart(const OdGePoint3d& start, const OdGePoint3d& end,
                                          const OdGePoint3d& vertex, const OdGeVector3d& way,
                                          double radius) {
  const double a = (start - vertex).dotProduct(way), b = (end - vertex).dotProduct(way);
  if (radius >= std::min(a, b) && radius <= std::max(a, b)) return std::nullopt;
  return std::abs(a - radius) < std::abs(b - radius) ? start : end;
}

/// From two lines and a point in one of their four angles. None for parallel lines.
std::optional<Bow> bowOfLines(const OdGePoint3d& start1, const OdGePoint3d& end1,
                              const OdGePoint3d& start2, const OdGePoint3d& end2,
                              const OdGePoint3d& onArc) {
  OdGeVector3d a = (end1 - start1).normal(), b = (end2 - start2).normal();
  const double cross = a.x * b.y - a.y * b.x;
  if (std::abs(cross) < 1e-12) return std::nullopt;
  const OdGeVector3d between = start2 - start1;
  const OdGePoint3d vertex = start1 + a * ((between.x * b.y - between.y * b.x) / cross);
  const OdGeVector3d to = onArc - vertex;
  if ((to.x * b.y - to.y * b.x) / cross < 0) a = -a;
  if ((a.x * to.y - a.y * to.x) / (a.x * b.y - a.y * b.x) < 0) b = -b;
  Bow bow{vertex,
          to.length(),
          directionOf(a),
          odgeNormalAngle(directionOf(b) - directionOf(a)),
          extensionStart(start1, end1, vertex, a, to.length()),
          extensionStart(start2, end2, vertex, b, to.length())};
  if (bow.sweep > kOdaPi) {
    bow.from += bow.sweep;
    bow.sweep = 2 * kOdaPi - bow.sweep;
    std::swap(bow.first, bow.second);
  }
  return bow;
}

bool canBeDrawn(const Bow& bow) { return bow.radius > 0 && std::isfinite(bow.radius); }

/// The drawing of a dimension that is told by a vertex, a point on either side and one on its bow.
template <class Dimension>
bool layOutBow(oddb::DimensionBlock& block, const Dimension& dimension, const OdString& text,
               OdGePoint3d& drawnMiddle) {
  const OdGeMatrix3d toPlane = OdGeMatrix3d::planeToWorld(dimension.normal()).inverse();
  const OdGePoint3d points[] = {toPlane * dimension.centerPoint(),
                                toPlane * dimension.xLine1Point(),
                                toPlane * dimension.xLine2Point(), toPlane * dimension.arcPoint()};
  const Bow bow = bowOf(points[0], points[1], points[2], points[3]);
  if (!canBeDrawn(bow)) return false;
  drawnMiddle = drawBow(block, dimension, bow, text);
  for (const OdGePoint3d& p : points) block.definitionPoint(p);
  return true;
}

} // namespace

bool OdDb2LineAngularDimension::layOut(oddb::DimensionBlock& block, Data& drawn) const {
  const OdGeMatrix3d toPlane = OdGeMatrix3d::planeToWorld(normal()).inverse();
  const OdGePoint3d points[] = {toPlane * xLine1Start(), toPlane * xLine1End(),
                                toPlane * xLine2Start(), toPlane * xLine2End()};
  const auto bow = bowOfLines(points[0], points[1], points[2], points[3], m_dimension.arcPoint);
  if (!bow || !canBeDrawn(*bow)) return false;
  drawn.textMiddle = drawBow(block, *this, *bow, displayedText());
  for (const OdGePoint3d& p : points) block.definitionPoint(p);
  block.definitionPoint(m_dimension.arcPoint);
  return true;
}

bool OdDb3PointAngularDimension::layOut(oddb::DimensionBlock& block, Data& drawn) const {
  return layOutBow(block, *this, displayedText(), drawn.textMiddle);
}

bool OdDbArcDimension::layOut(oddb::DimensionBlock& block, Data& drawn) const {
  return layOutBow(block, *this, displayedText(), drawn.textMiddle);
}

bool OdDbOrdinateDimension::layOut(oddb::DimensionBlock& block, Data& drawn) const {
  const OdGeMatrix3d toPlane = OdGeMatrix3d::planeToWorld(normal()).inverse();
  const OdGePoint3d start = toPlane * definingPoint(), end = toPlane * leaderEndPoint();
  // The leader goes across the axis that is measured along.
  const double axis = -horizontalRotation();
  OdGeVector3d way = unit(isUsingXAxis() ? axis + kOdaPi / 2 : axis);
  if ((end - start).dotProduct(way) < 0) way = -way;
  const OdGeVector3d side{-way.y, way.x, 0};
  const double length = (end - start).dotProduct(way), aside = (end - start).dotProduct(side);
  if (std::abs(aside) <= 1e-9 * (1 + length)) {
    block.extensionLine(start, end - way * block.scaled(block.vars().dimexe), true);
  } else {
    // The leader steps aside before it comes to the text.
    const double leg = std::min(2 * block.arrowSize(), length / 3);
    const OdGePoint3d late = end - way * leg;
    const OdGePoint3d early = late - way * leg - side * aside;
    block.extensionLine(start, early - way * block.scaled(block.vars().dimexe), true);
    block.dimensionLine(early, late);
    block.dimensionLine(late, end);
  }
  const OdString text = displayedText();
  const OdGePoint2d size = block.textSize(text);
  const double turn = textRotation() != 0 ? textRotation() : oddb::readableAngle(directionOf(way));
  if (isUsingDefaultTextPosition())
    drawn.textMiddle = end + way * reach(size, block.gap(), turn, way);
  block.text(text, drawn.textMiddle, turn);
  for (const OdGePoint3d& p : {toPlane * origin(), start, end}) block.definitionPoint(p);
  return true;
}
