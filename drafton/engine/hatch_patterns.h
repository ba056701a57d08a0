// Finding hatch patterns by name.
#pragma once

#include "drawing/patterns/hatch_pattern.h"

#include <optional>

namespace drafton {

class Document;
class Engine;

/// The file of the predefined patterns.
inline constexpr QStringView kPatternFile = u"draftoniso.pat";

/// A pattern and where it stands.
struct FoundPattern {
  OdHatchPattern pattern;
  OdString file; ///< the stored path
  bool isPredefined = false;
  /// What of a file of the user's own could not be understood: other patterns, lines of this one.
  QStringList errors;
};

/// The pattern of a name, in any case: in `file` if one is given and has it, among the predefined
/// ones, or in a file of the pattern's own name. Files are looked for as findSupportFile() does.
std::optional<FoundPattern> findHatchPattern(Engine& engine, const Document* document,
                                             const OdString& name, const OdString& file = {});

/// What to tell a user when there is none: also what is wrong with `file`, if one is given.
OdString whyNoHatchPattern(Engine& engine, const Document* document, const OdString& name,
                           const OdString& file = {});

/// The file of the pattern's own name, if there is one that has it and the pattern is none of the
/// predefined ones; else empty.
OdString customPatternFile(Engine& engine, const Document* document, const OdString& name);

/// The predefined patterns in the order of their file; empty if it is missing.
std::vector<OdHatchPattern> predefinedPatterns(Engine& engine, const Document* document);

} // namespace drafton
