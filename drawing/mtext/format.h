// How text looks, and the pieces that formatting codes make of it.
#pragma once

#include "drawing/color.h"
#include "drawing/graphics/text_metrics.h"

#include <optional>
#include <vector>

/// How a piece of text is written.
struct OdMTextFormat {
  OdGiFont font;
  double height = 1;
  double widthFactor = 1, tracking = 1; ///< tracking: 1 is the usual distance of letters
  double oblique = 0;                   ///< radians
  bool underlined = false, overlined = false, struckThrough = false;
  int verticalAlign = 0; ///< to the highest of the line: 0 bottom, 1 middle, 2 top
  std::optional<OdCmColor> color;

  bool operator==(const OdMTextFormat&) const;
};

/// How the lines of a paragraph lie. Lengths in drawing units.
struct OdMTextParagraph {
  enum Align : std::uint8_t { kByAttachment, kLeft, kCenter, kRight, kJustified, kDistributed };
  struct Tab {
    enum Kind : std::uint8_t { kLeft, kCenter, kRight, kDecimal } kind = kLeft;
    double position = 0;
    bool operator==(const Tab&) const = default;
  };
  Align align = kByAttachment;
  double firstIndent = 0, leftIndent = 0, rightIndent = 0;
  double before = 0, after = 0;
  /// 0 as the text, else the distance of lines: a multiple of the usual, or an exact one.
  double spacing = 0;
  enum SpacingKind : std::uint8_t { kAsText, kMultiple, kExact, kAtLeast } spacingKind = kAsText;
  std::vector<Tab> tabs;
  bool operator==(const OdMTextParagraph&) const = default;
};

/// One piece of what formatting codes make.
struct OdMTextPiece {
  enum Kind : std::uint8_t {
    kText,
    kStack, ///< `text` over `below`
    kTab,
    kParagraph, ///< the end of one
    kColumn,    ///< the end of a column
  };
  enum StackKind : std::uint8_t { kOver, kSlash, kTolerance };

  Kind kind = kText;
  StackKind stackKind = kOver; ///< with a line, askew, or without a line
  OdString text, below;        ///< a non-breaking blank is U+00A0
  OdMTextFormat format;
  OdMTextParagraph paragraph; ///< of the paragraph that the piece stands in
};
