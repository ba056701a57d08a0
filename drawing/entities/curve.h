// The base of entities that are one line, straight or curved.
#pragma once

#include "drawing/entities/entity.h"
#include "drawing/geometry/curve_segment.h"

/// A curve with a start, an end and a parameter in between.
///
/// The parameter is: the distance along a line; the angle (radians) of a circle, an arc or an
/// ellipse, counted on where it passes a full turn; the corner's number and a part of the piece
/// behind it along a polyline; that of the knots for a spline. What takes a parameter raises
/// OdError(eInvalidInput) outside of the curve, and for a polyline without corners.
class OdDbCurve : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbCurve);

 public:
  virtual bool isClosed() const = 0;
  virtual double getStartParam() const = 0;
  virtual double getEndParam() const = 0;
  /// In world coordinates.
  virtual OdGePoint3d getPointAtParam(double param) const = 0;
  /// The derivative by the parameter.
  virtual OdGeVector3d getFirstDeriv(double param) const = 0;
  /// Adds the pieces of the curve in their order, in world coordinates: exact ones for all but
  /// splines, whose chords leave them by no more than `deviation` (0: a ten thousandth of their
  /// size). Widths and thickness count for nothing.
  virtual void appendSegments(OdGeCurveSegments& segments, double deviation = 0) const = 0;
  /// The curves at a distance: to the right of the running direction for a positive one (outwards
  /// for circles and for what runs counterclockwise), to the left for a negative one. Empty if
  /// nothing is left of it. The new curves have this curve's properties and are in no drawing.
  virtual std::vector<OdDbEntityPtr> getOffsetCurves(double distance) const = 0;
  /// Turns the curve's direction round. False for one that has a fixed direction (circle, arc).
  virtual bool reverseCurve() { return false; }

  /// False for a curve without any point.
  bool hasShape() const;
  OdGePoint3d getStartPoint() const { return getPointAtParam(getStartParam()); }
  OdGePoint3d getEndPoint() const { return getPointAtParam(getEndParam()); }
  OdGeCurveSegments segments(double deviation = 0) const;
  double length() const;
  /// The place of the curve that is nearest to a point; its parameter if wanted.
  virtual OdGePoint3d getClosestPointTo(const OdGePoint3d& point, double* param = nullptr) const;
  /// Lengths along the curve from its start. Past an end the end is meant.
  virtual double getDistAtParam(double param) const;
  virtual double getParamAtDist(double distance) const;
  OdGePoint3d getPointAtDist(double distance) const {
    return getPointAtParam(getParamAtDist(distance));
  }
  /// The pieces between parameters that rise from the first to the last; of a closed curve the last
  /// piece runs through its start into the first. False, and nothing added, if the curve cannot be
  /// split there.
  virtual bool getSplitCurves(const std::vector<double>& params,
                              std::vector<OdDbEntityPtr>& pieces) const;
  /// The area that the curve encloses, its ends joined by a line; 0 for one that is not flat.
  double getArea() const;

  /// Shows the pieces, and their copy at the height of the thickness if there is one. Unless
  /// dashesRunThrough(), each piece starts the pattern of the line type anew.
  void worldDraw(OdGiWorldDraw& draw) const override;
  bool getGeomExtents(OdGeExtents3d& extents) const override;

 protected:
  OdDbCurve();
  virtual bool dashesRunThrough() const { return true; }
  /// False if the entity's line type is known to have no gaps.
  bool mayHaveDashes() const;
  /// The thickness as a direction with its length.
  virtual OdGeVector3d rise() const { return {}; }
  /// The parameter within the curve; raises OdError(eInvalidInput) unless it is near to it.
  double checkedParam(double param) const;
};
using OdDbCurvePtr = OdSmartPtr<OdDbCurve>;
