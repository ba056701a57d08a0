// Files of hatch patterns.
#pragma once

#include "drawing/patterns/hatch_pattern.h"

#include <optional>

/// The patterns of a `.pat` file. What cannot be understood is left out and told, the rest counts.
class OdHatchPatternFile {
 public:
  /// Reads a file by its stored path. Raises OdFileError if it cannot be read.
  static OdHatchPatternFile read(const OdString& path);
  /// Reads the text of a file. Text is UTF-8, or Latin-1 where it is no UTF-8.
  static OdHatchPatternFile parse(const QByteArray& bytes);

  const std::vector<OdHatchPattern>& patterns() const { return m_patterns; }
  /// The first pattern of a name, in any case; null if there is none.
  const OdHatchPattern* find(const OdString& name) const;
  /// What was left out: "line 12: a pattern line needs five numbers".
  const QStringList& errors() const { return m_errors; }

 private:
  std::vector<OdHatchPattern> m_patterns;
  QStringList m_errors;
};
