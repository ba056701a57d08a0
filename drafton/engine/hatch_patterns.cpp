#include "drafton/engine/hatch_patterns.h"

#include "drafton/engine/support_files.h"
#include "drafton/engine/translator.h"
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

OdString pathOf(Engine& engine, const Document* document, const OdString& file) {
  return file.isEmpty() ? OdString()
                        : findSupportFile(engine, document, file, QStringLiteral("pat"));
}

/// The pattern in a file of its own name, as it is typed or in one case.
std::optional<FoundPattern> findCustomPattern(Engine& engine, const Document* document,
                                              const OdString& name) {
  if (!isFileName(name)) return std::nullopt;
  for (const OdString& file : {name, name.toLower(), name.toUpper()}) {
    const OdString path = pathOf(engine, document, file);
    const OdHatchPatternFile patterns = patternsOf(path);
    if (const OdHatchPattern* const found = patterns.find(name))
      return FoundPattern{*found, path, false, patterns.errors()};
  }
  return std::nullopt;
}

} // namespace

std::optional<FoundPattern> findHatchPattern(Engine& engine, const Document* document,
                                             const OdString& name, const OdString& file) {
  const OdString predefined = pathOf(engine, document, kPatternFile.toString());
  for (const OdString& path : {pathOf(engine, document, file), predefined}) {
    const OdHatchPatternFile patterns = patternsOf(path);
    if (const OdHatchPattern* const found = patterns.find(name))
      return FoundPattern{*found, path, path == predefined,
                          path == predefined ? QStringList() : patterns.errors()};
  }
  return findCustomPattern(engine, document, name);
}

OdString whyNoHatchPattern(Engine& engine, const Document* document, const OdString& name,
                           const OdString& file) {
  const OdString text = translated(u"There is no hatch pattern \"%1\".").arg(name.left(60));
  if (file.isEmpty() || file.compare(kPatternFile, Qt::CaseInsensitive) == 0) return text;
  const OdString path = pathOf(engine, document, file);
  if (path.isEmpty())
    return text + u' ' + whyNoSupportFile(engine, document, file, QStringLiteral("pat"));
  const QStringList errors = patternsOf(path).errors();
  return errors.isEmpty() ? text : QStringLiteral("%1 %2: %3").arg(text, path, errors.front());
}

OdString customPatternFile(Engine& engine, const Document* document, const OdString& name) {
  const std::optional<FoundPattern> found = findHatchPattern(engine, document, name);
  return found && !found->isPredefined ? found->file : OdString();
}

std::vector<OdHatchPattern> predefinedPatterns(Engine& engine, const Document* document) {
  return patternsOf(pathOf(engine, document, kPatternFile.toString())).patterns();
}

} // namespace drafton
