#include "drafton/engine/commands/record_names.h"

#include "drafton/engine/commands/wildcard.h"
#include "drafton/engine/translator.h"
#include "drawing/objects/xref_manager.h"
#include "drawing/tables/record_names.h"

namespace drafton {
OdString recordNameFault(QStringView name) {
  QChar sign;
  switch (oddbNameFault(name, &sign)) {
  case OdDbNameFault::kEmpty:
    return translated(u"it is empty");
  case OdDbNameFault::kTooLong:
    return translated(u"it is longer than %1 characters").arg(kOdDbLongestName);
  case OdDbNameFault::kSign:
    return translated(u"the character %1 is not allowed").arg(sign);
  case OdDbNameFault::kControl:
    return translated(u"control characters are not allowed");
  case OdDbNameFault::kBlank:
    return translated(u"it begins or ends with a blank");
  case OdDbNameFault::kNone:
    break;
  }
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
