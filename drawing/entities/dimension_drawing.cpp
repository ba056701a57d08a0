// How dimensions are drawn.
#include "drawing/entities/dimension_block.h"
#include "drawing/entities/dimension_kinds.h"
#include "drawing/entities/dimension_text.h"

namespace {

OdGeVector3d unit(double angle) { return {std::cos(angle), std::sin(angle), 0}; }

OdGePoint3d between(const OdGePoint3d& a, const OdGePoint3d& b) { return a + (b - a) * 0.5; }

/// A text beside or in a dimension line.
struct Label {
  OdGePoint2d size;
  double turn = 0;
  OdGePoint3d middle = {};
};

/// What a radius and a diameter have in common.
struct Round {
  OdGePoint3d center, tip;
  double radius = 0;
  bool isDiameter = false;

  OdGeVector3d out() const { return (tip - center).normal(); }
  OdGePoint3d far() const { return center - out() * radius; }
  /// Where a line through the circle to the tip begins.
  OdGePoint3d beginning() const { return isDiameter ? far() : center; }
  int arrows() const { return isDiameter ? 2 : 1; }
};

/// True if the text stands within the circle.
bool isTextWithin(const oddb::DimensionBlock& block, const OdDbDimension& dimension,
                  const Round& round, double textWidth) {
  // Of an arrow, with a little of a line behind it.
  constexpr double kArrowRoom = 1.5;
  const OdDbDimension::Data& data = dimension.dimensionData();
  if (!dimension.isUsingDefaultTextPosition())
    return data.textMiddle.distanceTo(round.center) < round.radius;
  // A leader says that the text was put outside, be there room inside or not.
  if (data.leaderLength > 0) return false;
  return round.arrows() * round.radius >
         textWidth + 2 * block.gap() + round.arrows() * block.arrowSize() * kArrowRoom;
}

/// Where a text within the circle stands that nobody placed: in the line or above it.
OdGePoint3d middleWithin(const oddb::DimensionBlock& block, const Round& round, const Label& label,
                         bool isAbove) {
  const OdGePoint3d middle = between(round.beginning(), round.tip);
  if (!isAbove) return middle;
  return middle + unit(label.turn + kOdaPi / 2) * (label.size.y / 2 + block.gap());
}

/// The arrow across the circle, if it is a diameter's; gives how far lines stay away from it.
double farArrow(oddb::DimensionBlock& block, const Round& round) {
  return round.isDiameter ? block.arrow(round.far(), -round.out(), false) : 0;
}

/// Draws the line within the circle, with the text in it.
void drawWithin(oddb::DimensionBlock& block, const Round& round, const Label& label) {
  const OdGeVector3d out = round.out();
  const double back = block.arrow(round.tip, out, true);
  const double front = farArrow(block, round);
  block.dimensionLine(round.beginning() + out * front, round.tip - out * back, label.middle,
                      label.size, label.turn);
}

/// The level end of a leader, before the text.
struct Landing {
  OdGePoint3d knee;
  OdGeVector3d towardsText; ///< of length 1
};

/// Before a text that was placed.
Landing landingBefore(const oddb::DimensionBlock& block, const Round& round, const Label& label) {
  const OdGeVector3d way{label.middle.x < round.tip.x ? -1.0 : 1.0, 0, 0};
  return {label.middle - way * (label.size.x / 2 + block.gap() + block.arrowSize()), way};
}

/// Where the leader comes to by itself.
Landing usualLanding(const oddb::DimensionBlock& block, const OdDbDimension& dimension,
                     const Round& round) {
  const OdGeVector3d out = round.out();
  const double arrow = block.arrowSize(), told = dimension.dimensionData().leaderLength;
  const double leader = told > 0 ? told : 2 * arrow;
  return {round.tip + out * std::max(leader, arrow), {out.x < -1e-9 ? -1.0 : 1.0, 0, 0}};
}

/// Draws the leader from outside to the tip, and the centre that it points to.
void drawOutside(oddb::DimensionBlock& block, const Round& round, const Landing& landing) {
  block.dimensionLine(landing.knee, landing.knee + landing.towardsText * block.arrowSize());
  const OdGeVector3d towards = (round.tip - landing.knee).normal();
  const double back = block.arrow(round.tip, towards, true);
  block.dimensionLine(landing.knee, round.tip - towards * back);
  if (block.vars().dimtofl) {
    const double front = farArrow(block, round);
    block.dimensionLine(round.beginning() + round.out() * front, round.tip);
  }
  block.centerMark(round.center, round.radius);
}

/// Draws it; gives the middle of the text.
OdGePoint3d drawRound(oddb::DimensionBlock& block, const OdDbDimension& dimension,
                      const Round& round, const OdString& text) {
  const OdDbDimVarValues& v = block.vars();
  const bool isPlaced = !dimension.isUsingDefaultTextPosition();
  Label label{block.textSize(text)};
  const bool isWithin = isTextWithin(block, dimension, round, label.size.x);
  // The text stands level outside, and along the line inside unless the style says otherwise.
  const bool isLevel = isWithin ? v.dimtih : true;
  const OdGeVector3d out = round.out();
  label.turn = oddb::textTurn(dimension, isLevel, std::atan2(out.y, out.x));
  label.middle = dimension.dimensionData().textMiddle;
  if (isWithin) {
    if (!isPlaced) label.middle = middleWithin(block, round, label, v.dimtad != 0 && !isLevel);
    drawWithin(block, round, label);
  } else {
    const Landing landing =
        isPlaced ? landingBefore(block, round, label) : usualLanding(block, dimension, round);
    if (!isPlaced)
      label.middle =
          landing.knee + landing.towardsText * (block.arrowSize() + block.gap() + label.size.x / 2);
    drawOutside(block, round, landing);
  }
  block.text(text, label.middle, label.turn);
  return label.middle;
}

/// A dimension line that is straight, in the dimension's plane.
struct Straight {
  OdGePoint3d from, to;
  OdGeVector3d along; ///< of length 1
};

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
  const double gap = block.gap(), arrow = arrowOf(block);
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
  const double gap = block.gap(), arrow = arrowOf(block);
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
  label.turn = oddb::textTurn(*this, isLevel, std::atan2(line.along.y, line.along.x));
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
  drawn.textMiddle = drawRound(block, *this, round, text);
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
  drawn.textMiddle = drawRound(block, *this, round, text);
  for (const OdGePoint3d& p : {tip, far}) block.definitionPoint(p);
  return true;
}
