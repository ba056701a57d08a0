#include "drawing/tables/layer_table.h"

#include "drawing/database.h"
#include "drawing/objects/raw_object.h"

OdDbLayerTableRecord::OdDbLayerTableRecord() = default;

void OdDbLayerTableRecord::assignFrom(const OdDbObject& other) {
  OdDbSymbolTableRecord::assignFrom(other);
  m_layer = static_cast<const OdDbLayerTableRecord&>(other).m_layer;
}

void OdDbLayerTableRecord::setColor(const OdCmColor& color) {
  assertWriteEnabled();
  m_layer.color = color;
  m_layer.indexInFile = -1;
}

void OdDbLayerTableRecord::setLinetypeObjectId(OdDbObjectId linetype) {
  assertWriteEnabled();
  m_layer.linetype = linetype;
}

void OdDbLayerTableRecord::setLineWeight(OdDb::LineWeight weight) {
  if (!OdDb::isValidLineWeight(weight))
    throw OdError(eInvalidInput, QStringLiteral("%1 is no line weight").arg(int{weight}));
  assertWriteEnabled();
  m_layer.lineWeight = weight;
}

void OdDbLayerTableRecord::setIsPlottable(bool plottable) {
  assertWriteEnabled();
  m_layer.plottable = plottable;
}

OdString OdDbLayerTableRecord::plotStyleName() const {
  if (!database()) return m_layer.plotStyleName;
  const OdDbDictionaryPtr styles = database()->getPlotStyleNameDictionaryId().openObject();
  return styles ? styles->nameAt(m_layer.plotStyle) : OdString();
}

void OdDbLayerTableRecord::setPlotStyleName(const OdString& name) {
  assertWriteEnabled();
  if (!database()) {
    m_layer.plotStyleName = name;
    return;
  }
  const OdDbDictionaryPtr styles =
      database()->getPlotStyleNameDictionaryId().openObject(OdDb::kForWrite);
  if (!styles || name.isEmpty()) return;
  OdDbObjectId id = styles->getAt(name);
  if (id.isNull()) id = styles->setAt(name, odrxMake<OdDbRawObject>("ACDBPLACEHOLDER"));
  m_layer.plotStyle = id;
}

void OdDbLayerTableRecord::setPlotStyleName(OdDbObjectId id) {
  assertWriteEnabled();
  m_layer.plotStyle = id;
}

void OdDbLayerTableRecord::setIsOff(bool off) {
  assertWriteEnabled();
  m_layer.off = off;
}

void OdDbLayerTableRecord::enteredDatabase() {
  if (!description().isEmpty()) registerDescriptions();
  if (!m_layer.plotStyle.isNull()) return;
  const OdString name = std::exchange(m_layer.plotStyleName, {});
  setPlotStyleName(name.isEmpty() ? QStringLiteral("Normal") : name);
}
