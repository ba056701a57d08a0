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

/// A dimension line that is straight, in the dimension's plane.
struct Straight {
  OdGePoint3d from, to;
  OdGeVector3d along; ///< of length 1
};

/// A text beside or in a dimension line.
struct Label {
  OdGePoint2d size;
  double turn = 0;
  OdGePoint3d middle = {};
};

double gapOf(const oddb::DimensionBlock& block) {
  return std::abs(block.scaled(block.vars().dimgap));
}

/// The length of an arrow, or of the tick in its place.
double arrowOf(const oddb::DimensionBlock& block) {
  const double tick = block.vars().dimtsz;
  return tick > 0 ? block.scaled(tick) : block.arrowSize();
}

/// What stands between the extension lines, and not outside.
struct Fit {
  bool textIsInside, arrowsAreInside;
};

/// `length` is that of the dimension line.
Fit fitBetween(const oddb::DimensionBlock& block, double length, double textWidth) {
  // Of two arrows, with a little of a line between them.
  constexpr double kArrowsRoom = 2.5;
  const OdDbDimVarValues& v = block.vars();
  const double gap = gapOf(block), arrow = arrowOf(block);
  const bool isTick = v.dimtsz > 0;
  const bool textFits = length >= textWidth + 2 * gap || v.dimtix;
  const bool arrowsFit = length >= kArrowsRoom * arrow || isTick;
  const bool bothFit = length >= textWidth + 2 * gap + 2 * arrow;
  Fit fit{bothFit || v.dimtix, bothFit || isTick};
  // Where not both have room, the style says what goes out first: arrows (1), text (2), the one
  // that does not fit (3), or both (0).
  if (!bothFit) {
    if (v.dimatfit == 1 || v.dimatfit == 3) fit.textIsInside = textFits;
    if (v.dimatfit == 2 || (v.dimatfit == 3 && !textFits)) fit.arrowsAreInside = arrowsFit;
  }
  return fit;
}

/// Where the style has the middle of the text.
OdGePoint3d usualMiddle(const oddb::DimensionBlock& block, const Straight& line, const Fit& fit,
                        const Label& label, bool isLevel) {
  const OdDbDimVarValues& v = block.vars();
  const double gap = gapOf(block), arrow = arrowOf(block);
  const double half = label.size.x / 2 + gap;
  OdGePoint3d middle = between(line.from, line.to);
  if (!fit.textIsInside)
    middle = line.to + line.along * (half + (fit.arrowsAreInside ? 0 : 2 * arrow));
  else if (v.dimjust == 1)
    middle = line.from + line.along * (half + arrow);
  else if (v.dimjust == 2)
    middle = line.to - line.along * (half + arrow);
  const OdGeVector3d up = unit(label.turn + kOdaPi / 2);
  // Above the line, or a part of its height away from it.
  if (v.dimtad != 0 && !isLevel)
    return middle + up * ((v.dimtad == 4 ? -1 : 1) * (label.size.y / 2 + gap));
  if (v.dimtad == 0 && v.dimtvp != 0) return middle + up * (v.dimtvp * block.textHeight());
  return middle;
}

void drawLine(oddb::DimensionBlock& block, const Straight& line, const Fit& fit,
              const Label& label) {
  const OdDbDimVarValues& v = block.vars();
  const OdGeVector3d& along = line.along;
  if (fit.arrowsAreInside) {
    const double back1 = block.arrow(line.from, -along, true);
    const double back2 = block.arrow(line.to, along, false);
    block.dimensionLine(line.from + along * (back1 - block.scaled(back1 > 0 ? 0 : v.dimdle)),
                        line.to - along * (back2 - block.scaled(back2 > 0 ? 0 : v.dimdle)),
                        label.middle, label.size, label.turn);
    return;
  }
  block.arrow(line.from, along, true);
  block.arrow(line.to, -along, false);
  if (!v.dimsoxd) {
    const double arrow = arrowOf(block);
    block.dimensionLine(line.from - along * arrow, line.from - along * (2 * arrow));
    block.dimensionLine(line.to + along * arrow, line.to + along * (2 * arrow));
  }
  if (v.dimtofl) block.dimensionLine(line.from, line.to, label.middle, label.size, label.turn);
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
  Straight line{foot(p1), foot(p2), d};
  const OdGeVector3d way = line.to - line.from;
  const double length = way.length();
  if (length > 0) line.along = way * (1 / length);
  block.extensionLine(p1, line.from, true);
  block.extensionLine(p2, line.to, false);

  const OdString text = displayedText();
  Label label{block.textSize(text)};
  const Fit fit = fitBetween(block, length, label.size.x);
  const bool isLevel = fit.textIsInside ? v.dimtih : v.dimtoh;
  label.turn = textRotation() != 0 ? textRotation()
               : isLevel           ? 0
                                   : readableAngle(std::atan2(line.along.y, line.along.x));
  label.middle = isUsingDefaultTextPosition() ? usualMiddle(block, line, fit, label, isLevel)
                                              : m_dimension.textMiddle;
  drawLine(block, line, fit, label);
  block.text(text, label.middle, label.turn);
  for (const OdGePoint3d& p : {p1, p2, line.to}) block.definitionPoint(p);

  drawn.definition = OdGeMatrix3d::planeToWorld(normal()) * line.to;
  drawn.textMiddle = label.middle;
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
