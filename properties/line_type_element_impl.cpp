#include "properties/line_type_element_impl.h"

#include "properties/stored_field.h"

#include <array>
#include <vector>

namespace tc {
namespace {

using Values = OdTcComplexElementValues;
using Field = StoredField<Values>;

constexpr std::array kAttributes = {
    Field{u"handle", &Values::styleHandle},
    Field{u"isAbsoluteRotation", &Values::isUcsOriented},
    Field{u"scaleFactor", &Values::scale},
};
constexpr std::array kElements = {
    Field{u"Rotation", &Values::rotation}, Field{u"OffsetX", &Values::offsetX},
    Field{u"OffsetY", &Values::offsetY},   Field{u"ShapeNumber", &Values::shapeNumber},
    Field{u"TextString", &Values::text},
};

} // namespace

void OdTcLineTypeElementImpl::setComplexElement(OdTcComplexLineTypeElement* element) {
  m_complex = adoptPart(OdTcComplexLineTypeElementPtr(element), this);
}

void OdTcLineTypeElementImpl::writeFields(OdTcFiler* filer) {
  writeLength(filer);
  filer->writeObject(m_complex);
}

bool OdTcLineTypeElementImpl::readField(const OdString& name, const OdVariant& value) {
  if (name != QLatin1String("ComplexLinetypeElement")) return readLength(name, value);
  setComplexElement(persistCast<OdTcComplexLineTypeElement>(value));
  return true;
}

OdRxObjectPtr OdTcLineTypeElementImpl::clone() const {
  auto copy = odrxMake<OdTcLineTypeElementImpl>();
  copy->setLength(length());
  copy->m_complex = clonePart(m_complex, copy);
  return copy;
}

void OdTcComplexLineTypeElementImpl::writeFields(OdTcFiler* filer) {
  writeLength(filer);
  writeStoredAttributes<Values>(filer, m_values, kAttributes);
  writeStoredElements<Values>(filer, m_values, kElements);
}

bool OdTcComplexLineTypeElementImpl::readField(const OdString& name, const OdVariant& value) {
  return readLength(name, value) || readStoredField<Values>(m_values, kAttributes, name, value) ||
         readStoredField<Values>(m_values, kElements, name, value);
}

OdRxObjectPtr OdTcComplexLineTypeElementImpl::clone() const {
  auto copy = odrxMake<OdTcComplexLineTypeElementImpl>();
  copy->setLength(length());
  copy->m_values = m_values;
  return copy;
}

OdTcLineTypeElement* OdTcLineTypeElementsListImpl::at(int position) const {
  if (position < 0 || position >= count()) throw OdError_InvalidIndex(position, count());
  return parts()[static_cast<std::size_t>(position)];
}

OdRxObjectPtr OdTcLineTypeElementsListImpl::clone() const {
  auto copy = odrxMake<OdTcLineTypeElementsListImpl>();
  copy->copyPartsFrom(*this);
  return copy;
}

OdTcEnumPtr<OdTcPropertyReference> OdTcTextStyleTableRecordCollectionImpl::references() const {
  using Enum = OdTcEnumImpl<OdTcPropertyReference, std::vector<OdTcPropertyReferencePtr>>;
  return odrxMake<Enum>(this, parts());
}

OdTcPropertyReference* OdTcTextStyleTableRecordCollectionImpl::find(std::uint64_t handle) const {
  for (const OdTcPropertyReferencePtr& reference : parts())
    if (reference->handle() == handle) return reference;
  return nullptr;
}

OdRxObjectPtr OdTcTextStyleTableRecordCollectionImpl::clone() const {
  auto copy = odrxMake<OdTcTextStyleTableRecordCollectionImpl>();
  copy->copyPartsFrom(*this);
  return copy;
}

} // namespace tc
