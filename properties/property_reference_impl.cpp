#include "properties/property_reference_impl.h"

#include "module/persist_cast.h"
#include "persistence/filer.h"
#include "properties/general_properties.h"
#include "properties/owned_part.h"

#include <algorithm>
#include <limits>

namespace tc {

void OdTcPropertyReferenceImpl::setTextStyle(OdTcPersist* textStyle) {
  m_textStyle = textStyle
                    ? OdTcPersistPtr(persistCast<OdTcTextStylePropertyImpl>(OdVariant(textStyle)))
                    : OdTcPersistPtr();
  adoptPart(m_textStyle, this);
}

void OdTcPropertyReferenceImpl::writeFields(OdTcFiler* filer) {
  filer->writeAttribute(QStringLiteral("handle"), OdString::number(m_handle));
  filer->writeObject(m_textStyle);
}

bool OdTcPropertyReferenceImpl::readField(const OdString& name, const OdVariant& value) {
  if (name == QLatin1String("handle")) {
    // The handle is only a label, and its reading is that of a signed 32-bit number: one above that
    // range comes back as the largest. No handle is negative, and one that were would be written
    // with 64 bits and come back as another.
    constexpr std::int64_t kLargest = std::numeric_limits<std::int32_t>::max();
    m_handle = static_cast<std::uint64_t>(
        std::clamp<std::int64_t>(odParseInt(value.toString()), 0, kLargest));
    return true;
  }
  if (name != QLatin1String("Textstyle")) return false;
  m_textStyle = adoptPart(OdTcPersistPtr(persistCast<OdTcTextStylePropertyImpl>(value)), this);
  return true;
}

OdRxObjectPtr OdTcPropertyReferenceImpl::clone() const {
  auto copy = odrxMake<OdTcPropertyReferenceImpl>();
  copy->m_handle = m_handle;
  copy->m_textStyle = clonePart(m_textStyle, copy);
  return copy;
}

} // namespace tc
