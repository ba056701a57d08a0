#include "properties/create_infos.h"

#include "persistence/filer.h"
#include "properties/dim_style_table_record_impl.h"
#include "properties/layer_table_record_impl.h"
#include "properties/line_type_table_record_impl.h"
#include "properties/owned_part.h"
#include "properties/stored_field.h"
#include "properties/text_style_table_record_impl.h"

#include <cstdint>

namespace tc {
namespace {

template <class Record>
constexpr RecordInfoKind kindOf(QStringView element, QStringView recordElement) {
  return {element, recordElement, []() -> OdTcSymbolTableRecordPtr { return odrxMake<Record>(); },
          [](const OdRxObject* object) { return dynamic_cast<const Record*>(object) != nullptr; }};
}

} // namespace

constexpr RecordInfoKind kLayerInfo =
    kindOf<OdTcLayerTableRecordImpl>(u"LayerCreateInfo", u"LayerTableRecord");
constexpr RecordInfoKind kLineTypeInfo =
    kindOf<OdTcLineTypeTableRecordImpl>(u"LineTypeCreateInfo", u"LinetypeTableRecord");
constexpr RecordInfoKind kTextStyleInfo =
    kindOf<OdTcTextStyleTableRecordImpl>(u"TextStyleCreateInfo", u"TextstyleTableRecord");
constexpr RecordInfoKind kDimStyleInfo =
    kindOf<OdTcDimStyleTableRecordImpl>(u"DimStyleCreateInfo", u"DimstyleTableRecord");

void OdTcColorPropertyCreateInfoImpl::writeFields(OdTcFiler* filer) {
  if (!m_color) return;
  OdTcFieldMap map;
  map.set(QStringLiteral("mRGB"), OdVariant(m_color->color()));
  filer->writeElementAttributes(QStringLiteral("AcCmColor"), map);
}

bool OdTcColorPropertyCreateInfoImpl::readField(const OdString& name, const OdVariant& value) {
  if (name != QLatin1String("mRGB")) return false;
  const std::int64_t bits = odParseInt(value.toString());
  if (!field_detail::hasBitsFor<std::uint32_t>(bits)) {
    tellFieldRefused(name, value.toString());
    return true;
  }
  OdCmColor color;
  color.setColor(static_cast<std::uint32_t>(bits));
  m_color = color;
  return true;
}

OdRxObjectPtr OdTcColorPropertyCreateInfoImpl::clone() const {
  auto copy = odrxMake<OdTcColorPropertyCreateInfoImpl>();
  copy->m_color = m_color;
  return copy;
}

void OdTcRecordCreateInfo::setRecord(OdTcSymbolTableRecord* record) {
  if (record && !kind().isRecord(record))
    throw OdError_NotThatKindOfClass(record->elementName(), kind().recordElement.toString());
  m_record = adoptPart(OdTcSymbolTableRecordPtr(record), this);
}

void OdTcRecordCreateInfo::writeFields(OdTcFiler* filer) { filer->writeObject(m_record); }

bool OdTcRecordCreateInfo::readField(const OdString& name, const OdVariant& value) {
  if (name != kind().recordElement) return false;
  auto* const record = dynamic_cast<OdTcSymbolTableRecord*>(value.object());
  if (!record) throw OdError_NotThatKindOfClass(name, kind().recordElement.toString());
  setRecord(record);
  return true;
}

void OdTcRecordCreateInfo::copyTo(OdTcRecordCreateInfo& copy) const {
  copy.m_record = clonePart(m_record, &copy);
}

} // namespace tc
