#include "drafton/engine/blocks/reference_reports.h"

#include "drafton/engine/translator.h"
#include "frame/file_path.h"

#include <algorithm>
#include <iterator>

namespace drafton {
namespace {

using Result = OdDbXRefMan::Result;

struct ResultRow {
  Result result;
  const char16_t* text; ///< %1 the block, %2 the path, %3 the reason
  const char16_t* state;
};
constexpr ResultRow kResults[] = {
    {Result::kLoaded, u"\"%1\" loaded: %2", u"loaded"},
    {Result::kNotAnXRef, u"\"%1\" is no external reference.", u""},
    {Result::kFileMissing, u"The file of \"%1\" was not found: %2", u"not found"},
    {Result::kCircular, u"\"%1\" is left out: %2 refers back to itself.", u"circular"},
    {Result::kUnreadable, u"The file of \"%1\" cannot be read: %3", u"cannot be read"},
    {Result::kTooMany, u"\"%1\" is left out: %2. %3.", u"left out"},
    {Result::kUnloaded, u"\"%1\" unloaded.", u"unloaded"},
};

const ResultRow& rowOf(Result result) {
  return *std::ranges::find(kResults, result, &ResultRow::result);
}

} // namespace

OdString reportLine(const OdDbXRefMan::Report& report) {
  return translated(rowOf(report.result).text)
      .replace(QLatin1String("%3"), report.message)
      .replace(QLatin1String("%2"), odpath::toPlatform(report.path))
      .replace(QLatin1String("%1"), report.blockName);
}

OdString stateName(Result result) { return translated(rowOf(result).state); }

} // namespace drafton
