// How dimensions are drawn.
#include "drawing/entities/dimension_block.h"
#include "drawing/entities/dimension_kinds.h"
#include "drawing/entities/dimension_text.h"

namespace {

using oddb::readableAngle;

OdGeVector3d unit(double angle) { return {std::cos(angle), std::sin(angle), 0}; }

OdGePoint3d between(const OdGePoint3d& a, const OdGePoint3d& b) { return a + (b - a) * 0.5; }

/// What a radius and a diameter have in common.
struct Round {
  OdGePoint3d center, tip;
  double radius = 0;
  bool isDiameter = false;
};

/// Draws it; gives the middle of the text.
OdGePoint3d drawRound(oddb::DimensionBlock& block, const OdDbDimension& dimension,
                      const Round& round, const OdString& text, const OdGePoint3d& placed) {
  const OdDbDimVarValues& v = block.vars();
  const OdGePoint2d size = block.textSize(text);
  const OdGeVector3d out = (round.tip - round.center).normal();
  const double arrow = block.arrowSize();
  const double gap = std::abs(block.scaled(v.dimgap));
  const double room = (round.isDiameter ? 2 : 1) * round.radius;
  const bool isPlaced = !dimension.isUsingDefaultTextPosition();
  bool inside = room > size.x + 2 * gap + (round.isDiameter ? 2 : 1) * arrow * 1.5;
  // A leader says that the text was put outside, be there room inside or not.
  if (isPlaced)
    inside = placed.distanceTo(round.center) < round.radius;
  else if (dimension.dimensionData().leaderLength > 0)
    inside = false;
  // The text stands level outside, and along the line inside unless the style says otherwise.
  const bool isLevel = inside ? v.dimtih : true;
  const double lineAngle = std::atan2(out.y, out.x);
  const double turn = dimension.textRotation() != 0 ? dimension.textRotation()
                      : isLevel                     ? 0
                                                    : readableAngle(lineAngle);
  const OdGePoint3d far = round.center - out * round.radius;
  OdGePoint3d middle = placed;
  if (inside) {
    const OdGePoint3d from = round.isDiameter ? far : round.center;
    const bool isAbove = v.dimtad != 0 && !isLevel;
    if (!isPlaced) {
      middle = between(from, round.tip);
      if (isAbove) middle = middle + unit(turn + kOdaPi / 2) * (size.y / 2 + gap);
    }
    const double back = block.arrow(round.tip, out, true);
    const double front = round.isDiameter ? block.arrow(far, -out, false) : 0;
    block.dimensionLine(from + out * front, round.tip - out * back, middle, size, turn);
  } else {
    const double side = out.x < -1e-9 ? -1 : 1;
    const OdGeVector3d level{side, 0, 0};
    const double leader = dimension.dimensionData().leaderLength > 0
                              ? dimension.dimensionData().leaderLength
                              : 2 * arrow;
    OdGePoint3d knee = round.tip + out * std::max(leader, arrow);
    if (isPlaced) {
      const double toText = placed.x < round.tip.x ? -1 : 1;
      knee = placed - OdGeVector3d{toText, 0, 0} * (size.x / 2 + gap + arrow);
      block.dimensionLine(knee, knee + OdGeVector3d{toText, 0, 0} * arrow);
    } else {
      block.dimensionLine(knee, knee + level * arrow);
      middle = knee + level * (arrow + gap + size.x / 2);
    }
    const OdGeVector3d towards = (round.tip - knee).normal();
    const double back = block.arrow(round.tip, towards, true);
    block.dimensionLine(knee, round.tip - towards * back);
    if (v.dimtofl) {
      const OdGePoint3d from = round.isDiameter ? far : round.center;
      const double front = round.isDiameter ? block.arrow(far, -out, false) : 0;
      block.dimensionLine(from + out * front, round.tip);
    }
    block.centerMark(round.center, round.radius);
  }
  block.text(text, middle, turn);
  return middle;
}

} // namespace

bool OdDbAlignedDimension::layOut(oddb::DimensionBlock& block, Data& drawn) const {
  const OdDbDimVarValues& v = block.vars();
  const OdGeMatrix3d toPlane = OdGeMatrix3d::planeToWorld(normal()).inverse();
  const OdGePoint3d p1 = toPlane * m_dimension.first;
  const OdGePoint3d p2 = toPlane * m_dimension.second;
  const OdGePoint3d at = toPlane * m_dimension.definition;
  const OdGeVector3d d = unit(lineAngle());
  const OdGeVector3d n{-d.y, d.x, 0};
  // Extension lines stand on the dimension line unless they are slanted.
  OdGeVector3d e = m_dimension.oblique != 0 ? unit(m_dimension.oblique) : n;
  if (std::abs(e.dotProduct(n)) < 1e-6) e = n;
  const auto foot = [&](const OdGePoint3d& p) {
    return p + e * ((at - p).dotProduct(n) / e.dotProduct(n));
  };
  OdGePoint3d q1 = foot(p1);
  OdGePoint3d q2 = foot(p2);
  block.extensionLine(p1, q1, true);
  block.extensionLine(p2, q2, false);

  const OdString text = displayedText();
  const OdGePoint2d size = block.textSize(text);
  const double gap = std::abs(block.scaled(v.dimgap));
  const double arrow = v.dimtsz > 0 ? block.scaled(v.dimtsz) : block.arrowSize();
  const OdGeVector3d way = q2 - q1;
  const double length = way.length();
  const OdGeVector3d along = length > 0 ? way * (1 / length) : d;
  const bool textFits = length >= size.x + 2 * gap || v.dimtix;
  const bool arrowsFit = length >= 2.5 * arrow || v.dimtsz > 0;
  const bool bothFit = length >= size.x + 2 * gap + 2 * arrow;
  // Where not both have room, the style says what goes out first: arrows (1), text (2), or both
  // (0).
  bool textInside = bothFit || v.dimtix;
  bool arrowsInside = bothFit || v.dimtsz > 0;
  if (!bothFit) {
    if (v.dimatfit == 1 || v.dimatfit == 3) textInside = textFits;
    if (v.dimatfit == 2 || (v.dimatfit == 3 && !textFits)) arrowsInside = arrowsFit;
  }
  const bool isLevel = textInside ? v.dimtih : v.dimtoh;
  const double turn = textRotation() != 0 ? textRotation()
                      : isLevel           ? 0
                                          : readableAngle(std::atan2(along.y, along.x));
  OdGePoint3d middle = m_dimension.textMiddle;
  if (isUsingDefaultTextPosition()) {
    middle = between(q1, q2);
    const double half = size.x / 2 + gap;
    if (textInside && v.dimjust == 1) middle = q1 + along * (half + arrow);
    if (textInside && v.dimjust == 2) middle = q2 - along * (half + arrow);
    if (!textInside) middle = q2 + along * (half + (arrowsInside ? 0 : 2 * arrow));
    const OdGeVector3d up = unit(turn + kOdaPi / 2);
    // Above the line, or a part of its height away from it.
    if (v.dimtad != 0 && !isLevel)
      middle = middle + up * ((v.dimtad == 4 ? -1 : 1) * (size.y / 2 + gap));
    else if (v.dimtad == 0 && v.dimtvp != 0)
      middle = middle + up * (v.dimtvp * block.textHeight());
  }
  if (arrowsInside) {
    const double back1 = block.arrow(q1, -along, true);
    const double back2 = block.arrow(q2, along, false);
    block.dimensionLine(q1 + along * (back1 - block.scaled(back1 > 0 ? 0 : v.dimdle)),
                        q2 - along * (back2 - block.scaled(back2 > 0 ? 0 : v.dimdle)), middle, size,
                        turn);
  } else {
    block.arrow(q1, along, true);
    block.arrow(q2, -along, false);
    if (!v.dimsoxd) {
      block.dimensionLine(q1 - along * arrow, q1 - along * (2 * arrow));
      block.dimensionLine(q2 + along * arrow, q2 + along * (2 * arrow));
    }
    if (v.dimtofl) block.dimensionLine(q1, q2, middle, size, turn);
  }
  block.text(text, middle, turn);
  for (const OdGePoint3d& p : {p1, p2, q2}) block.definitionPoint(p);

  drawn.definition = OdGeMatrix3d::planeToWorld(normal()) * q2;
  drawn.textMiddle = middle;
  return true;
}

bool OdDbRadialDimension::layOut(oddb::DimensionBlock& block, Data& drawn) const {
  const OdGeMatrix3d toPlane = OdGeMatrix3d::planeToWorld(normal()).inverse();
  const Round round{toPlane * center(), toPlane * chordPoint(), getMeasurement(), false};
  const OdString text = oddb::dimensionText(dimensionText(), getMeasurement(), false, block.vars(),
                                            QStringLiteral("R"));
  drawn.textMiddle = drawRound(block, *this, round, text, m_dimension.textMiddle);
  for (const OdGePoint3d& p : {round.center, round.tip}) block.definitionPoint(p);
  return true;
}

bool OdDbDiametricDimension::layOut(oddb::DimensionBlock& block, Data& drawn) const {
  const OdGeMatrix3d toPlane = OdGeMatrix3d::planeToWorld(normal()).inverse();
  const OdGePoint3d tip = toPlane * chordPoint();
  const OdGePoint3d far = toPlane * farChordPoint();
  const Round round{between(tip, far), tip, getMeasurement() / 2, true};
  const OdString text = oddb::dimensionText(dimensionText(), getMeasurement(), false, block.vars(),
                                            QStringLiteral("%%c"));
  drawn.textMiddle = drawRound(block, *this, round, text, m_dimension.textMiddle);
  for (const OdGePoint3d& p : {tip, far}) block.definitionPoint(p);
  return true;
}
