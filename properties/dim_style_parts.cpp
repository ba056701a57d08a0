#include "properties/dim_style_parts.h"

#include "persistence/filer.h"
#include "properties/general_properties.h"
#include "properties/owned_part.h"

namespace tc {
namespace {

template <class Property>
bool isA(const OdRxObject* object) {
  return dynamic_cast<const Property*>(object) != nullptr;
}

constexpr std::array<DimStylePartRow, kDimStylePartCount> kRows = {{
    {u"Dimclrd", u"Color", isA<OdTcColorPropertyImpl>},
    {u"Dimclre", u"Color", isA<OdTcColorPropertyImpl>},
    {u"Dimclrt", u"Color", isA<OdTcColorPropertyImpl>},
    {u"dimtfillclr", u"Color", isA<OdTcColorPropertyImpl>},
    {u"Dimtxsty", u"Textstyle", isA<OdTcTextStylePropertyImpl>},
    {u"DimLineType", u"Linetype", isA<OdTcLineTypePropertyImpl>},
    {u"ExtLine1LineType", u"Linetype", isA<OdTcLineTypePropertyImpl>},
    {u"ExtLine2LineType", u"Linetype", isA<OdTcLineTypePropertyImpl>},
}};

} // namespace

const DimStylePartRow& dimStylePartRow(DimStylePart part) {
  return kRows[static_cast<std::size_t>(part)];
}

void OdTcDimStylePart::setProperty(OdTcDatabaseProperty* property) {
  const DimStylePartRow& row = dimStylePartRow(part());
  if (property && !row.isProperty(property))
    throw OdError_NotThatKindOfClass(property->elementName(), row.child.toString());
  m_property = adoptPart(OdTcDatabasePropertyPtr(property), this);
}

void OdTcDimStylePart::writeFields(OdTcFiler* filer) { filer->writeObject(m_property); }

bool OdTcDimStylePart::readField(const OdString& name, const OdVariant& value) {
  const DimStylePartRow& row = dimStylePartRow(part());
  if (name != row.child) return false;
  auto* const property = dynamic_cast<OdTcDatabaseProperty*>(value.object());
  if (!property) throw OdError_NotThatKindOfClass(name, row.child.toString());
  setProperty(property);
  return true;
}

void OdTcDimStylePart::copyTo(OdTcDimStylePart& copy) const {
  copy.m_property = clonePart(m_property, &copy);
}

} // namespace tc
