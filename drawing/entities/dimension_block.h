// Draws dimensions. Not for use outside of the library.
#pragma once

#include "drawing/entities/dimension.h"
#include "drawing/entities/text_font.h"

namespace oddb {

/// An angle at which a text can be read from below or from the right.
double readableAngle(double angle);
/// How the text of a dimension is turned: as the dimension itself says, or else level or along a
/// line.
double textTurn(const OdDbDimension& dimension, bool isLevel, double lineAngle);

/// Collects the pieces of a dimension in its plane and puts them into its block. Lengths are
/// drawing units, with the style's overall scale already in them.
class DimensionBlock {
 public:
  explicit DimensionBlock(const OdDbDimension& dimension);

  const OdDbDimVarValues& vars() const { return m_vars; }
  /// A length of the style in drawing units.
  double scaled(double length) const { return length * m_scale; }
  double arrowSize() const { return scaled(m_vars.dimasz); }
  /// The room around a text.
  double gap() const { return std::abs(scaled(m_vars.dimgap)); }
  double textHeight() const;
  OdDbObjectId textStyle() const;
  /// The size of the text as it would be laid out.
  OdGePoint2d textSize(const OdString& text) const;

  void extensionLine(const OdGePoint3d& from, const OdGePoint3d& to, bool isFirst);
  void dimensionLine(const OdGePoint3d& from, const OdGePoint3d& to);
  /// A dimension line that leaves room for a text around `middle`, turned by `turn`.
  void dimensionLine(const OdGePoint3d& from, const OdGePoint3d& to, const OdGePoint3d& middle,
                     const OdGePoint2d& size, double turn);
  /// A piece of a dimension line that is an arc, from an angle on; nothing for a sweep that is too
  /// small to be seen.
  void dimensionArc(const OdGePoint3d& center, double radius, double from, double sweep);
  /// An arrow whose tip is at a point, pointing along a direction of length 1. Gives how far the
  /// dimension line must stay away from the tip.
  double arrow(const OdGePoint3d& tip, const OdGeVector3d& direction, bool isFirst);
  void text(const OdString& text, const OdGePoint3d& middle, double angle);
  /// The marks of a centre.
  void centerMark(const OdGePoint3d& center, double radius);
  /// A point that only says where the dimension is fastened.
  void definitionPoint(const OdGePoint3d& point);

  /// Puts all into a block in place of what was there.
  void putInto(OdDbObjectId block);
  /// All but the points that only say where the dimension is fastened.
  const std::vector<OdDbEntityPtr>& pieces() const { return m_pieces; }
  /// Shows the pieces without a block.
  void draw(OdGiWorldDraw& draw) const;

 private:
  struct Look {
    OdCmColor color;
    OdDb::LineWeight weight = OdDb::kLnWtByBlock;
    OdDbObjectId linetype;
  };
  void add(OdDbEntity* entity, const Look& look);
  void line(const OdGePoint3d& from, const OdGePoint3d& to, const Look& look);
  Look lineLook() const;

  const OdDbDimension& m_dimension;
  OdDbDatabase& m_database;
  OdDbDimVarValues m_vars;
  double m_scale;
  OdGeMatrix3d m_toWorld;
  std::vector<OdDbEntityPtr> m_pieces, m_fastenings;
};

} // namespace oddb
