#include "drafton/engine/hatch_patterns.h"

#include "drafton/engine/support_files.h"
#include "drawing/patterns/pattern_file.h"
#include "frame/system_services.h"

namespace drafton {
namespace {

/// The patterns of a file by its stored path; none if it cannot be read.
OdHatchPatternFile patternsOf(const OdString& path) {
  if (path.isEmpty()) return {};
  try {
    return OdHatchPatternFile::read(path);
  } catch (const OdFileError&) {
    return {};
  }
}

/// A name that can be that of a file and of nothing else.
bool isFileName(const OdString& name) {
  return !name.isEmpty() && !name.contains(u'\\') && !name.contains(u'/') && !name.contains(u':') &&
         !name.startsWith(u'.');
}

} // namespace

std::optional<OdHatchPattern> findHatchPattern(Engine& engine, const Document* document,
                                               const OdString& name, const OdString& file) {
  const auto pat = QStringLiteral("pat");
  for (const OdString& wanted :
       {file, kPatternFile.toString(), isFileName(name) ? name : OdString()}) {
    if (wanted.isEmpty()) continue;
    const OdHatchPatternFile patterns = patternsOf(findSupportFile(engine, document, wanted, pat));
    if (const OdHatchPattern* const found = patterns.find(name)) return *found;
  }
  return std::nullopt;
}

OdString customPatternFile(Engine& engine, const Document* document, const OdString& name) {
  if (!isFileName(name)) return {};
  const auto pat = QStringLiteral("pat");
  if (patternsOf(findSupportFile(engine, document, kPatternFile.toString(), pat)).find(name))
    return {};
  const OdString path = findSupportFile(engine, document, name, pat);
  return patternsOf(path).find(name) ? path : OdString();
}

std::vector<OdHatchPattern> predefinedPatterns(Engine& engine, const Document* document) {
  return patternsOf(
             findSupportFile(engine, document, kPatternFile.toString(), QStringLiteral("pat")))
      .patterns();
}

} // namespace drafton
