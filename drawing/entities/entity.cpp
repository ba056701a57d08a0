#include "drawing/entities/entity.h"

#include "drawing/checks.h"
#include "drawing/database.h"

OdDbEntity::OdDbEntity() = default;

namespace {
OdString nameOf(OdDbObjectId id) {
  const OdDbSymbolTableRecordPtr record = id.openObject(OdDb::kForRead, true);
  return record ? record->getName() : OdString();
}

void requireId(OdDbObjectId id, const char* what) {
  if (id.isNull())
    throw OdDbError(eNullObjectId, QStringLiteral("There is no such %1").arg(QLatin1String(what)));
}
} // namespace

void OdDbEntity::setDatabaseDefaults(const OdDbDatabase& database) {
  assertWriteEnabled();
  m_common.layer = database.currentLayer();
  m_common.color = database.currentColor();
  m_common.linetype = database.currentLinetype();
  m_common.linetypeScale = database.currentLinetypeScale();
  m_common.lineWeight = database.currentLineWeight();
  m_common.plotStyleType = database.currentPlotStyleType();
  m_common.plotStyle = database.currentPlotStyleId();
  m_common.transparency = database.currentTransparency();
}

OdString OdDbEntity::layer() const { return nameOf(m_common.layer); }

void OdDbEntity::setLayer(OdDbObjectId layer) {
  requireId(layer, "layer");
  assertWriteEnabled();
  m_common.layer = layer;
}

void OdDbEntity::setColor(const OdCmColor& color) {
  assertWriteEnabled();
  m_common.color = color;
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
  m_common.linetypeScale = scale;
}

void OdDbEntity::setLineWeight(OdDb::LineWeight weight) {
  if (!OdDb::isValidLineWeight(weight))
    throw OdError(eInvalidInput, QStringLiteral("%1 is no line weight").arg(int{weight}));
  assertWriteEnabled();
  m_common.lineWeight = weight;
}

void OdDbEntity::setTransparency(OdCmTransparency transparency) {
  assertWriteEnabled();
  m_common.transparency = transparency;
}

OdString OdDbEntity::plotStyleName() const {
  switch (m_common.plotStyleType) {
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
  return styles ? styles->nameAt(m_common.plotStyle) : OdString();
}

void OdDbEntity::setPlotStyleName(OdDb::PlotStyleNameType type, OdDbObjectId id) {
  if (type == OdDb::kPlotStyleNameById) requireId(id, "plot style");
  assertWriteEnabled();
  m_common.plotStyleType = type;
  m_common.plotStyle = type == OdDb::kPlotStyleNameById ? id : OdDbObjectId();
}

void OdDbEntity::setVisibility(bool visible) {
  assertWriteEnabled();
  m_common.visible = visible;
}

void OdDbEntity::setPropertiesFrom(const OdDbEntity& other) {
  assertWriteEnabled();
  m_common = other.m_common;
}

void OdDbEntity::assignFrom(const OdDbObject& other) {
  OdDbObject::assignFrom(other);
  m_common = static_cast<const OdDbEntity&>(other).m_common;
}

void OdDbEntity::worldDraw(OdGiWorldDraw&) const {}
