#include "drawing/objects/image_def.h"

#include "drawing/checks.h"
#include "drawing/database.h"
#include "drawing/objects/named_styles.h"
#include "drawing/objects/stored_path.h"

OdDbRasterImageDef::OdDbRasterImageDef() = default;
OdDbRasterImageDefReactor::OdDbRasterImageDefReactor() = default;

void OdDbRasterImageDef::assignFrom(const OdDbObject& other) {
  OdDbObject::assignFrom(other);
  m_definition = static_cast<const OdDbRasterImageDef&>(other).m_definition;
}

void OdDbRasterImageDefReactor::assignFrom(const OdDbObject& other) {
  OdDbObject::assignFrom(other);
  const auto& reactor = static_cast<const OdDbRasterImageDefReactor&>(other);
  m_version = reactor.m_version;
  m_image = reactor.m_image;
}

void OdDbRasterImageDefReactor::setImage(OdDbObjectId image) {
  assertWriteEnabled();
  m_image = image;
}

void OdDbRasterImageDef::setSourceFileName(const OdString& path) {
  assertWriteEnabled();
  m_definition.path = oddb::givenPath(path);
}

OdString OdDbRasterImageDef::activeFileName() const {
  const OdString found =
      oddb::findStoredFile(m_definition.path, database() ? database()->fileName() : OdString());
  return found.isEmpty() ? m_definition.path : found;
}

void OdDbRasterImageDef::setSize(const OdGePoint2d& pixels) {
  odcheck::positive(pixels.x);
  odcheck::positive(pixels.y);
  assertWriteEnabled();
  m_definition.size = pixels;
}

void OdDbRasterImageDef::setResolution(const OdGePoint2d& pixelSize) {
  odcheck::positive(pixelSize.x);
  odcheck::positive(pixelSize.y);
  assertWriteEnabled();
  m_definition.pixelSize = pixelSize;
}

void OdDbRasterImageDef::setLoaded(bool loaded) {
  assertWriteEnabled();
  m_definition.loaded = loaded;
}

OdString OdDbRasterImageDef::name() const { return oddb::nameOf(objectId()); }

OdDbObjectId OdDbRasterImageDef::imageDictionary(const OdDbDatabase& database) {
  return oddb::namedDictionary(database, oddb::NamedKind::kImage);
}

OdDbObjectId OdDbRasterImageDef::createImageDictionary(OdDbDatabase& database) {
  return oddb::createNamedDictionary(database, oddb::NamedKind::kImage);
}
