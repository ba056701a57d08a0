#include "properties/refusals.h"

#include "host/host_locator.h"
#include "module/string_table.h"
#include "properties/symbol_table_record.h"

namespace tc {
namespace {

/// Files can hold texts of any length.
OdString shown(const OdString& text) {
  constexpr qsizetype kLongest = 60;
  return text.size() > kLongest ? text.left(kLongest) + u'…' : text;
}

} // namespace

void tellRecordRefused(const OdTcSymbolTableRecord& snapshot, const OdString& reason) {
  host::print(formatText(host::translate(QStringLiteral("\nCannot make the %s \"%s\": %s.")),
                         host::translate(snapshot.what().toString()), shown(snapshot.recordName()),
                         reason));
}

void tellRecordUnusable(const OdString& reason, const OdString& name) {
  host::print(formatText(reason, shown(name)));
}

void tellFieldRefused(const OdString& name, const OdString& value) {
  host::print(formatText(
      host::translate(QStringLiteral("\n%s: \"%s\" is no value for it, the usual one is taken.")),
      name, shown(value)));
}

void tellValueRefused(const OdString& what, const OdString& value) {
  host::print(formatText(
      host::translate(QStringLiteral("\n%s: \"%s\" cannot be set, the drawing's own value stays.")),
      what, shown(value)));
}

} // namespace tc
