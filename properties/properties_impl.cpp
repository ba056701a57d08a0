#include "properties/properties_impl.h"

#include "frame/system_services.h"
#include "module/persist_cast.h"
#include "persistence/filer.h"
#include "properties/owned_part.h"

#include <QDateTime>

namespace tc {

/// A field by the name of its element or attribute.
struct OdTcPropertiesImpl::Field {
  QStringView name;
  OdString (OdTcPropertiesImpl::*get)() const;
  void (OdTcPropertiesImpl::*set)(const OdString&);
};

const OdTcPropertiesImpl::Field OdTcPropertiesImpl::kFields[] = {
    {u"ItemName", &OdTcPropertiesImpl::storedName, &OdTcPropertiesImpl::setName},
    {u"Description", &OdTcPropertiesImpl::getDescription, &OdTcPropertiesImpl::setDescription},
    {u"createdUniversalDateTime", &OdTcPropertiesImpl::created, &OdTcPropertiesImpl::setCreated},
    {u"modifiedUniversalDateTime", &OdTcPropertiesImpl::modified, &OdTcPropertiesImpl::setModified},
    {u"resource", &OdTcPropertiesImpl::resource, &OdTcPropertiesImpl::setResourceOnly},
    {u"src", &OdTcPropertiesImpl::src, &OdTcPropertiesImpl::setSrcOnly},
};

OdString OdTcPropertiesImpl::Stamp::text() const {
  if (m_moment < 0) return m_text.toString();
  return OdTimeStamp(QDateTime::fromMSecsSinceEpoch(m_moment, Qt::UTC)).toText();
}

void OdTcPropertiesImpl::Stamp::set(const OdString& text) {
  m_text = text;
  m_moment = -1;
}

void OdTcPropertiesImpl::Stamp::setNow() {
  m_text = OdString();
  m_moment = odrxSystemServices()->currentTime().universalTime().toMSecsSinceEpoch();
}

OdTcPropertiesImpl::Rare& OdTcPropertiesImpl::rare() {
  if (!m_rare) m_rare = std::make_unique<Rare>();
  return *m_rare;
}

OdString OdTcPropertiesImpl::getName() const {
  return m_name.isEmpty() ? resource() : m_name.toString();
}

void OdTcPropertiesImpl::setName(const OdString& name) {
  m_name = name;
  m_modified.setNow();
}

void OdTcPropertiesImpl::setDescription(const OdString& description) {
  if (m_rare || !description.isEmpty()) rare().description = description;
  m_modified.setNow();
}

OdString OdTcPropertiesImpl::getDescription() const {
  return m_rare ? m_rare->description.toString() : OdString();
}

void OdTcPropertiesImpl::clearResource() { setResource(OdString(), OdString()); }

OdString OdTcPropertiesImpl::resource() const {
  return m_rare ? m_rare->resource.toString() : OdString();
}

OdString OdTcPropertiesImpl::src() const { return m_rare ? m_rare->src.toString() : OdString(); }

void OdTcPropertiesImpl::setResource(const OdString& resource, const OdString& src) {
  setResourceOnly(resource);
  setSrcOnly(src);
}

void OdTcPropertiesImpl::setResourceOnly(const OdString& resource) {
  if (m_rare || !resource.isEmpty()) rare().resource = resource;
}

void OdTcPropertiesImpl::setSrcOnly(const OdString& src) {
  if (m_rare || !src.isEmpty()) rare().src = src;
}

void OdTcPropertiesImpl::setImages(OdTcImageList* images) {
  m_images = adoptPart(OdTcImageListPtr(images), this);
}

OdVariant OdTcPropertiesImpl::propertyValue(const OdString& name) const {
  if (name == QLatin1String("Images")) return m_images ? OdVariant(m_images) : OdVariant();
  for (const Field& field : kFields)
    if (field.name == name) return (this->*field.get)();
  return {};
}

bool OdTcPropertiesImpl::setPropertyValue(const OdString& name, const OdVariant& value) {
  if (name == QLatin1String("Images")) {
    setImages(value.isVoid() ? nullptr : persistCast<OdTcImageList>(value).get());
    return true;
  }
  for (const Field& field : kFields) {
    if (field.name != name) continue;
    (this->*field.set)(value.toString());
    return true;
  }
  return false;
}

void OdTcPropertiesImpl::writeFields(OdTcFiler* filer) {
  const OdString itemName = QStringLiteral("ItemName");
  if (!resource().isEmpty() || !src().isEmpty()) {
    OdTcFieldMap map;
    map.set(QStringLiteral("resource"), resource());
    map.set(QStringLiteral("src"), src());
    filer->writeElementAttributes(itemName, map);
  } else if (!m_name.isEmpty()) {
    // An element with neither text nor attributes would end the reading of what follows it.
    filer->writeElement(itemName, storedName());
  }
  if (const OdString description = getDescription(); !description.isEmpty())
    filer->writeElement(QStringLiteral("Description"), description);
  const OdString createdText = created(), modifiedText = modified();
  if (!createdText.isEmpty() || !modifiedText.isEmpty()) {
    OdTcFieldMap map;
    map.set(QStringLiteral("createdUniversalDateTime"), createdText);
    map.set(QStringLiteral("modifiedUniversalDateTime"), modifiedText);
    filer->writeElementAttributes(QStringLiteral("Time"), map);
  }
  filer->writeObject(m_images);
}

bool OdTcPropertiesImpl::readField(const OdString& name, const OdVariant& value) {
  if (name == QLatin1String("Images") && !value.isObject()) return false;
  return setPropertyValue(name, value);
}

OdRxObjectPtr OdTcPropertiesImpl::clone() const {
  auto copy = odrxMake<OdTcPropertiesImpl>();
  copy->m_name = m_name;
  if (m_rare) copy->m_rare = std::make_unique<Rare>(*m_rare);
  copy->m_created.setNow();
  copy->m_modified.setNow();
  copy->m_images = clonePart(m_images, copy);
  return copy;
}

} // namespace tc
