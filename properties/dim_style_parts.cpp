#include "properties/dim_style_parts.h"

#include "persistence/filer.h"
#include "properties/color_value.h"
#include "properties/general_properties.h"
#include "properties/owned_part.h"

namespace tc {
namespace {

using Values = OdDbDimVarValues;

template <class Property>
bool isA(const OdRxObject* object) {
  return dynamic_cast<const Property*>(object) != nullptr;
}

template <DimStylePart Part>
OdTcDimStylePartPtr holding(const OdTcDatabasePropertyPtr& property) {
  auto part = odrxMake<OdTcDimStylePartImpl<Part>>();
  part->setProperty(property);
  return part;
}

template <DimStylePart Part, OdCmColor Values::*Member>
constexpr DimStylePartRow color(QStringView element) {
  return {element, u"Color", isA<OdTcColorPropertyImpl>,
          [](const Values& from) {
            auto property = odrxMake<OdTcColorPropertyImpl>();
            property->setColor(from.*Member);
            return holding<Part>(property);
          },
          [](const OdTcDatabaseProperty& property, Values& to, OdDbDatabase&) {
            const auto& held = static_cast<const OdTcColorPropertyImpl&>(property);
            if (held.hasColor() && isEntityColor(held.color())) to.*Member = held.color();
          }};
}

template <class Property, DimStylePart Part, OdDbObjectId Values::*Member>
constexpr DimStylePartRow record(QStringView element, QStringView child) {
  return {element, child, isA<Property>,
          [](const Values& from) -> OdTcDimStylePartPtr {
            if (!(from.*Member).isValid()) return nullptr;
            auto property = odrxMake<Property>();
            property->takeRecord(from.*Member);
            return holding<Part>(property);
          },
          [](const OdTcDatabaseProperty& property, Values& to, OdDbDatabase& database) {
            const auto& held = static_cast<const Property&>(property);
            if (const OdDbObjectId found = held.recordIn(&database)) to.*Member = found;
          }};
}

using enum DimStylePart;
using LineType = OdTcLineTypePropertyImpl;
using TextStyle = OdTcTextStylePropertyImpl;

constexpr std::array<DimStylePartRow, kDimStylePartCount> kRows = {{
    color<kLineColor, &Values::dimclrd>(u"Dimclrd"),
    color<kExtensionColor, &Values::dimclre>(u"Dimclre"),
    color<kTextColor, &Values::dimclrt>(u"Dimclrt"),
    color<kTextFillColor, &Values::dimtfillclr>(u"dimtfillclr"),
    record<TextStyle, kTextStyle, &Values::dimtxsty>(u"Dimtxsty", u"Textstyle"),
    record<LineType, kLineType, &Values::dimltype>(u"DimLineType", u"Linetype"),
    record<LineType, kExtension1LineType, &Values::dimltex1>(u"ExtLine1LineType", u"Linetype"),
    record<LineType, kExtension2LineType, &Values::dimltex2>(u"ExtLine2LineType", u"Linetype"),
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
