// Files of line types.
#pragma once

#include "drawing/geometry/geometry.h"
#include "drawing/object_id.h"
#include "frame/string.h"

#include <vector>

/// A dash of a line type, and the text or shape that stands behind it.
struct OdLinetypeDash {
  enum class Rotation { kRelative, kAbsolute, kUpright };
  double length = 0;           ///< above 0 a dash, 0 a dot, below 0 a gap
  OdString text;               ///< empty if there is none
  OdString shape;              ///< the name or number of a shape; empty if there is none
  OdString source;             ///< the text's style or the shape's file
  double scale = 1, angle = 0; ///< the angle in radians
  OdGePoint2d offset;
  Rotation rotation = Rotation::kRelative;
};

/// A line type by its name.
struct OdLinetypeDefinition {
  OdString name, description;
  std::vector<OdLinetypeDash> dashes;

  double patternLength() const;
  /// Puts the line type into a drawing, or gives the one that is there already. Text styles and
  /// entries for shape files that it needs are made. Raises OdDbError for a name that no line type
  /// can have.
  OdDbObjectId addTo(OdDbDatabase& database) const;
};

/// The line types of a `.lin` file. What cannot be understood is left out and told.
class OdLinetypeFile {
 public:
  /// Reads a file by its stored path. Raises OdFileError if it cannot be read.
  static OdLinetypeFile read(const OdString& path);
  /// Reads the text of a file. Text is UTF-8, or Latin-1 where it is no UTF-8.
  static OdLinetypeFile parse(const QByteArray& bytes);

  const std::vector<OdLinetypeDefinition>& linetypes() const { return m_linetypes; }
  /// The first line type of a name, in any case; null if there is none.
  const OdLinetypeDefinition* find(const OdString& name) const;
  /// What was left out: "line 12: a dash that is no number".
  const QStringList& errors() const { return m_errors; }

 private:
  std::vector<OdLinetypeDefinition> m_linetypes;
  QStringList m_errors;
};
