// How wide text is.
#pragma once

#include "frame/string.h"

/// A font as text styles and formatting codes name it.
struct OdGiFont {
  OdString file;     ///< "txt.shx", "arial.ttf"; counts if there is no typeface
  OdString bigFile;  ///< the big font's file; empty if none
  OdString typeface; ///< "Arial"
  bool bold = false, italic = false, vertical = false;

  bool operator==(const OdGiFont&) const = default;
};

/// Measures text. Lengths are parts of the height of a capital letter.
class OdGiTextMetrics {
 public:
  virtual ~OdGiTextMetrics() = default;

  /// From the start of the first character to the start of what would follow the last one.
  virtual double advance(const OdString& text, const OdGiFont& font) const = 0;
  /// How far letters reach below the base line; 0 or more.
  virtual double descent(const OdGiFont& font) const = 0;

  /// What the program measures with: an estimate by the usual widths of letters until a program
  /// that has fonts brings something better.
  static const OdGiTextMetrics& current();
  /// `metrics` must live as long as the program; null goes back to the estimate.
  static void setCurrent(const OdGiTextMetrics* metrics);
};
