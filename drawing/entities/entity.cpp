#include "drawing/entities/entity.h"

#include "drawing/checks.h"
#include "drawing/database_data.h"
#include "drawing/entities/entity_extras.h"

OdDbEntity::OdDbEntity() = default;

namespace {
using oddb::kNoExtras;

OdString nameOf(OdDbObjectId id) {
  const OdDbSymbolTableRecordPtr record = id.openObject(OdDb::kForRead, true);
  return record ? record->getName() : OdString();
}

void requireId(OdDbObjectId id, const char* what) {
  if (id.isNull())
    throw OdDbError(eNullObjectId, QStringLiteral("There is no such %1").arg(QLatin1String(what)));
}
} // namespace

OdCmColor OdDbEntity::color() const {
  OdCmColor color;
  color.setColor(m_common.color);
  if (m_extras) color.setNames(m_extras->colorName, m_extras->bookName);
  return color;
}

void OdDbEntity::storeColor(const OdCmColor& color) {
  m_common.color = color.color();
  storeColorNames(color);
  if (m_extras) m_extras->colorIndex = kNoExtras.colorIndex;
}

void OdDbEntity::storeColorNames(const OdCmColor& color) {
  if (!color.hasNames() && !m_extras) return;
  setExtra(&OdDbObjectExtras::colorName, color.colorName());
  setExtra(&OdDbObjectExtras::bookName, color.bookName());
}

double OdDbEntity::linetypeScale() const {
  return m_extras ? m_extras->linetypeScale : kNoExtras.linetypeScale;
}
OdCmTransparency OdDbEntity::transparency() const {
  return m_extras ? m_extras->transparency : kNoExtras.transparency;
}
OdDbObjectId OdDbEntity::plotStyleNameId() const {
  return m_extras ? m_extras->plotStyle : kNoExtras.plotStyle;
}

void OdDbEntity::setDatabaseDefaults(const OdDbDatabase& database) {
  assertWriteEnabled();
  m_common.layer = database.currentLayer();
  storeColor(database.currentColor());
  m_common.linetype = database.currentLinetype();
  setExtra(&OdDbObjectExtras::linetypeScale, database.currentLinetypeScale());
  m_common.lineWeight = database.currentLineWeight();
  m_common.plotStyleType = database.currentPlotStyleType();
  setExtra(&OdDbObjectExtras::plotStyle, database.currentPlotStyleId());
  setExtra(&OdDbObjectExtras::transparency, database.currentTransparency());
}

OdString OdDbEntity::layer() const { return nameOf(m_common.layer); }

void OdDbEntity::setLayer(OdDbObjectId layer) {
  requireId(layer, "layer");
  assertWriteEnabled();
  m_common.layer = layer;
}

void OdDbEntity::setColor(const OdCmColor& color) {
  assertWriteEnabled();
  storeColor(color);
}

OdString OdDbEntity::linetype() const {
  return m_common.linetype.isNull() ? QStringLiteral("ByLayer") : nameOf(m_common.linetype);
}

void OdDbEntity::setLinetype(OdDbObjectId linetype) {
  requireId(linetype, "line type");
  assertWriteEnabled();
  m_common.linetype = linetype;
}

void OdDbEntity::setLinetypeScale(double scale) {
  odcheck::positive(scale);
  assertWriteEnabled();
  setExtra(&OdDbObjectExtras::linetypeScale, scale);
}

void OdDbEntity::setLineWeight(OdDb::LineWeight weight) {
  if (!OdDb::isValidLineWeight(weight))
    throw OdError(eInvalidInput, QStringLiteral("%1 is no line weight").arg(int{weight}));
  assertWriteEnabled();
  m_common.lineWeight = weight;
}

void OdDbEntity::setTransparency(OdCmTransparency transparency) {
  assertWriteEnabled();
  setExtra(&OdDbObjectExtras::transparency, transparency);
}

OdString OdDbEntity::plotStyleName() const {
  switch (plotStyleNameType()) {
  case OdDb::kPlotStyleNameByLayer:
    return QStringLiteral("ByLayer");
  case OdDb::kPlotStyleNameByBlock:
    return QStringLiteral("ByBlock");
  case OdDb::kPlotStyleNameIsDictDefault:
    return QStringLiteral("Normal");
  case OdDb::kPlotStyleNameById:
    break;
  }
  if (!database()) return {};
  const OdDbDictionaryPtr styles = database()->getPlotStyleNameDictionaryId().openObject();
  return styles ? styles->nameAt(plotStyleNameId()) : OdString();
}

void OdDbEntity::setPlotStyleName(OdDb::PlotStyleNameType type, OdDbObjectId id) {
  if (type == OdDb::kPlotStyleNameById) requireId(id, "plot style");
  assertWriteEnabled();
  m_common.plotStyleType = type;
  setExtra(&OdDbObjectExtras::plotStyle, type == OdDb::kPlotStyleNameById ? id : OdDbObjectId());
}

void OdDbEntity::setVisibility(bool visible) {
  assertWriteEnabled();
  m_common.invisible = !visible;
}

void OdDbEntity::setPropertiesFrom(const OdDbEntity& other) {
  assertWriteEnabled();
  m_common = other.m_common;
  storeColorNames(other.color());
  setExtra(&OdDbObjectExtras::linetypeScale, other.linetypeScale());
  setExtra(&OdDbObjectExtras::plotStyle, other.plotStyleNameId());
  setExtra(&OdDbObjectExtras::transparency, other.transparency());
}

void OdDbEntity::assignFrom(const OdDbObject& other) {
  OdDbObject::assignFrom(other);
  m_common = static_cast<const OdDbEntity&>(other).m_common;
}

void OdDbEntity::worldDraw(OdGiWorldDraw&) const {}
