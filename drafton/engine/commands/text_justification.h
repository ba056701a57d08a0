// How a text is fastened to its point.
#pragma once

#include "drawing/enums.h"
#include "drawing/geometry/geometry.h"
#include "frame/string.h"

#include <span>

namespace drafton {

/// One way of fastening a text.
struct TextJustification {
  const char16_t* keyword;
  OdDb::TextHorzMode horizontal;
  OdDb::TextVertMode vertical;
  const char16_t* question; ///< asks for the point

  /// The text reaches from one point to another, so that its size follows from them.
  bool hasTwoPoints() const {
    return horizontal == OdDb::kTextAlign || horizontal == OdDb::kTextFit;
  }
};

std::span<const TextJustification> textJustifications();
/// All keywords, separated by blanks.
OdString textJustificationKeywords();
/// The row of a keyword; the first one (Left) if there is none.
const TextJustification& textJustification(QStringView keyword);
const TextJustification& textJustification(OdDb::TextHorzMode horizontal,
                                           OdDb::TextVertMode vertical);

/// What a line of text measures: the width of its letters and the height of capitals.
struct TextBox {
  double width = 0, height = 0;
};

/// The left end of the base line of a text that is fastened to a point and turned (radians).
OdGePoint3d baseLineStart(const OdGePoint3d& fastened, const TextJustification& justification,
                          const TextBox& box, double rotation);

/// The same place one line further down.
OdGePoint3d nextTextLine(const OdGePoint3d& point, double height, double rotation);

} // namespace drafton
