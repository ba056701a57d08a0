#include "properties/dim_style_table_record_impl.h"

#include "drawing/database.h"
#include "properties/owned_part.h"

#include <algorithm>

namespace tc {

using dim_style::kVariables;
using Variables = OdTcDimStyleVariables;

void OdTcDimStyleTableRecordImpl::setPart(OdTcDimStylePart* part) {
  if (!part) return;
  m_parts[static_cast<std::size_t>(part->part())] = adoptPart(OdTcDimStylePartPtr(part), this);
}

void OdTcDimStyleTableRecordImpl::writeFields(OdTcFiler* filer) {
  filer->writeAttributes(storedValues<Variables>(m_variables, kVariables));
  writeName(filer);
  for (const OdTcDimStylePartPtr& part : m_parts) filer->writeObject(part);
}

bool OdTcDimStyleTableRecordImpl::readField(const OdString& name, const OdVariant& value) {
  if (!value.isObject())
    return readName(name, value) ||
           readStoredField<Variables>(m_variables, kVariables, name, value);
  for (std::size_t i = 0; i < m_parts.size(); ++i) {
    if (dimStylePartRow(static_cast<DimStylePart>(i)).element != name) continue;
    auto* const part = dynamic_cast<OdTcDimStylePart*>(value.object());
    if (!part || part->part() != static_cast<DimStylePart>(i))
      throw OdError_NotThatKindOfClass(part ? part->elementName() : QStringLiteral("(value)"),
                                       name);
    setPart(part);
    return true;
  }
  return false;
}

OdRxObjectPtr OdTcDimStyleTableRecordImpl::clone() const {
  auto copy = odrxMake<OdTcDimStyleTableRecordImpl>();
  copy->setRecordName(recordName());
  copy->m_variables = m_variables;
  for (std::size_t i = 0; i < m_parts.size(); ++i) copy->m_parts[i] = clonePart(m_parts[i], copy);
  return copy;
}

// The drawing database keeps dimension styles as their file has them and offers no way to fill one.
OdSmartPtr<OdDbSymbolTableRecord> OdTcDimStyleTableRecordImpl::createRecord(OdDbDatabase*) const {
  return nullptr;
}

void OdTcDimStyleTableRecordImpl::takeFrom(OdDbObjectId record) {
  setRecordName(record.openAs<OdDbDimStyleTableRecord>()->getName());
}

OdDbObjectId OdTcDimStyleTableRecordImpl::tableId(const OdDbDatabase* database) const {
  return database->getDimStyleTableId();
}

} // namespace tc
