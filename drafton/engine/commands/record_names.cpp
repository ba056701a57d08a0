#include "drafton/engine/commands/record_names.h"

#include "drafton/engine/commands/wildcard.h"
#include "drafton/engine/translator.h"
#include "drawing/objects/xref_manager.h"

namespace drafton {
namespace {

constexpr qsizetype kLongestName = 255;

QStringView forbiddenSigns() { return u"<>/\\\":;?*|,=`"; }

} // namespace

OdString recordNameFault(QStringView name) {
  if (name.isEmpty()) return translated(u"it is empty");
  if (name.size() > kLongestName)
    return translated(u"it is longer than %1 characters").arg(kLongestName);
  for (const QChar c : name) {
    if (forbiddenSigns().contains(c)) return translated(u"the character %1 is not allowed").arg(c);
    if (c.category() == QChar::Other_Control)
      return translated(u"control characters are not allowed");
  }
  if (name.trimmed() != name) return translated(u"it begins or ends with a blank");
  return {};
}

OdString recordUseFault(const OdDbSymbolTableRecord& record) {
  if (!OdDbXRefMan::owns(record)) return {};
  return translated(u"\"%1\" belongs to an external reference.").arg(record.getName().left(200));
}

QStringList recordNames(const OdDbSymbolTable& table, const OdString& patterns) {
  QStringList names;
  for (auto at = table.newIterator(); !at->done(); at->step())
    if (const OdDbSymbolTableRecordPtr record = at->getRecord();
        record && matchesWildcard(record->getName(), patterns))
      names << record->getName();
  return names;
}

} // namespace drafton
