// Which installed font stands for the one that a drawing names.
#pragma once

#include "drawing/graphics/text_metrics.h"

#include <QFont>
#include <QStringList>

#include <vector>

namespace drafton {

/// Substitutes for fonts. Drawings name compiled stroke fonts that no system has, and true-type
/// fonts that this one may lack.
class FontTable {
 public:
  /// The table that the program brings.
  static const FontTable& standard();

  /// Lines of "name;family" with an optional ";bold", ";italic" or ";bold italic"; `;` in front
  /// makes a comment. Lines that make no sense are left out.
  static FontTable parse(const QByteArray& text);

  /// The font to draw with, without a size. `families` are those that are installed: a typeface
  /// among them needs no substitute.
  QFont fontFor(const OdGiFont& font, const QStringList& families) const;

 private:
  struct Row {
    OdString name, family;
    bool bold = false, italic = false;
  };
  const Row* find(const OdString& name) const;

  std::vector<Row> m_rows;
};

} // namespace drafton
