// Looks at the bytes of a document before the parser does.
#pragma once

#include "frame/string.h"

#include <span>
#include <string_view>
#include <vector>

namespace tc {

/// Elements of which a reader takes attributes and text, and never what stands in them.
struct OdTcPassedOver {
  std::span<const std::string_view> elements;
  /// They are passed over only inside of an element of this name.
  std::string_view inside;
  /// Nor are they if one of these texts stands in them.
  std::span<const std::string_view> unlessTheyHold;
};

/// An element in which nothing stands but children of one name, with some of these attributes, each
/// once, and with blanks between them. Whatever reads such a content, nothing can go wrong.
struct OdTcPlainElement {
  std::string_view name;
  std::string_view child;
  std::span<const std::string_view> attributes;
};

/// Elements whose content is not parsed with the document, since of many it is never asked for.
struct OdTcDeferral {
  std::span<const OdTcPlainElement> elements;
  /// In a document that has an element of this name, all is parsed at once.
  std::string_view unlessThereIs;
};

/// What may be given to the parser.
struct OdTcCheckedDocument {
  /// Valid UTF-8 without NUL, well-formed as far as nesting, tags, quotes and character references
  /// go. Empty if the document is refused.
  QByteArray text;
  /// Why the document cannot be parsed, with line and column, in words for the user.
  OdString refusal;
  /// What was not taken as it stands, in words for the user; empty if all of it was.
  OdString remark;
  /// The markup that was deferred, piece by piece. In the text, the number of the piece stands in
  /// its place.
  std::vector<QByteArray> deferred;
};

/// Elements nested deeper than this are refused: the parser, the reader, the printer and all that
/// walks the document recurse, and no stack is without end. Palettes of the field go to some 30.
inline constexpr int kMaxElementDepth = 256;
/// More attributes than this on one element are refused: the parser compares each attribute with
/// all before it. The richest element of the field has below 100.
inline constexpr int kMaxAttributes = 512;
/// Larger documents are refused.
inline constexpr qsizetype kMaxDocumentBytes = qsizetype{1} << 30;

/// Checks a document in one linear walk that reads tags exactly as the parser does.
///
/// - UTF-16, UTF-32, NUL bytes, an empty text and broken markup are refused.
/// - Bytes that are no UTF-8 become U+FFFD each, as do references to characters that do not exist
///   (`&#0;`, `&#xFFFFFFFF;`), with a remark.
/// - References to unknown entities, and an ampersand that begins no reference, stand for
///   themselves; the former with a remark.
/// - What follows the last element is left out, with a remark.
/// - What stands in an element that is passed over is checked like all else and then left out, from
///   its first child element on: the parser would make many small objects of it for nobody.
/// - What stands in an element that is deferred is checked as well. If the content of one of them
///   is not plain, nothing in the document is deferred.
OdTcCheckedDocument checkDocument(QByteArray bytes, const OdTcPassedOver* passedOver = nullptr,
                                  const OdTcDeferral& deferral = {});

} // namespace tc
