#include "properties/layer_table_record_impl.h"

#include "drawing/database.h"
#include "module/persist_cast.h"
#include "module/string_table.h"
#include "properties/create_infos.h"
#include "properties/general_properties.h"
#include "properties/line_type_table_record_impl.h"
#include "properties/owned_part.h"
#include "properties/refusals.h"
#include "properties/stored_field.h"

#include <array>

namespace tc {
namespace {

using Values = OdTcLayerTableRecordImpl::Values;
using Field = StoredField<Values>;

constexpr std::array kAttributes = {
    Field{u"isNotPlotted", &Values::isNotPlotted},
    Field{u"lineWeight", &Values::lineWeight},
};
constexpr std::array kElements = {
    Field{u"Plotstylename", &Values::plotStyleName},
};

/// A layer has a colour of its own: nothing stands above it.
bool isLayerColor(const OdCmColor& color) {
  return color.isByColor() || color.isForeground() || (color.isByACI() && color.colorIndex() > 0);
}

} // namespace

void OdTcLayerTableRecordImpl::setColor(const OdCmColor& color) {
  auto property = odrxMake<OdTcColorPropertyImpl>();
  property->setColor(color);
  m_color = adoptPart(OdTcDatabasePropertyPtr(property), this);
}

void OdTcLayerTableRecordImpl::setLineType(OdTcDatabaseProperty* lineType) {
  if (lineType && !dynamic_cast<OdTcLineTypePropertyImpl*>(lineType))
    throw OdError_NotThatKindOfClass(lineType->elementName(), QStringLiteral("Linetype"));
  m_lineType = adoptPart(OdTcDatabasePropertyPtr(lineType), this);
}

void OdTcLayerTableRecordImpl::writeFields(OdTcFiler* filer) {
  writeStoredAttributes<Values>(filer, m_values, kAttributes);
  writeName(filer);
  writeStoredElements<Values>(filer, m_values, kElements);
  filer->writeObject(m_lineType);
  filer->writeObject(m_color);
}

bool OdTcLayerTableRecordImpl::readField(const OdString& name, const OdVariant& value) {
  if (name == QLatin1String("Linetype"))
    m_lineType =
        adoptPart(OdTcDatabasePropertyPtr(persistCast<OdTcLineTypePropertyImpl>(value)), this);
  else if (name == QLatin1String("Color"))
    m_color = adoptPart(OdTcDatabasePropertyPtr(persistCast<OdTcColorPropertyImpl>(value)), this);
  else
    return readName(name, value) || readStoredField<Values>(m_values, kAttributes, name, value) ||
           readStoredField<Values>(m_values, kElements, name, value);
  return true;
}

OdRxObjectPtr OdTcLayerTableRecordImpl::clone() const {
  auto copy = odrxMake<OdTcLayerTableRecordImpl>();
  copy->setRecordName(recordName());
  copy->m_values = m_values;
  copy->m_color = clonePart(m_color, copy);
  copy->m_lineType = clonePart(m_lineType, copy);
  return copy;
}

OdSmartPtr<OdDbSymbolTableRecord>
OdTcLayerTableRecordImpl::createRecord(OdDbDatabase* database) const {
  auto layer = odrxMake<OdDbLayerTableRecord>();
  layer->setName(recordName());
  if (!m_values.plotStyleName.isEmpty()) layer->setPlotStyleName(m_values.plotStyleName);
  if (const auto* const color = dynamic_cast<OdTcColorPropertyImpl*>(m_color.get());
      color && color->hasColor()) {
    if (isLayerColor(color->color()))
      layer->setColor(color->color());
    else
      tellValueRefused(color->getDisplayName(), OdString::number(color->color().color()));
  }
  if (OdDb::isValidLineWeight(m_values.lineWeight))
    layer->setLineWeight(static_cast<OdDb::LineWeight>(m_values.lineWeight));
  else
    tellValueRefused(stringText(StringId::kLineWeight), OdString::number(m_values.lineWeight));
  layer->setIsPlottable(!m_values.isNotPlotted);
  if (const auto* const lineType = dynamic_cast<OdTcLineTypePropertyImpl*>(m_lineType.get())) {
    if (const OdDbObjectId id = lineType->recordIn(database))
      layer->setLinetypeObjectId(id);
    else if (!lineType->record() && !lineType->text().isEmpty())
      tellValueRefused(lineType->getDisplayName(), lineType->text());
  }
  return layer;
}

void OdTcLayerTableRecordImpl::takeFrom(OdDbObjectId record) {
  const auto layer = record.openAs<OdDbLayerTableRecord>();
  setRecordName(layer->getName());
  m_values.isNotPlotted = !layer->isPlottable();
  m_values.lineWeight = layer->lineWeight();
  m_values.plotStyleName = layer->plotStyleName();
  setColor(layer->color());
  m_lineType = nullptr;
  if (layer->linetypeObjectId().isNull()) return;
  auto lineType = odrxMake<OdTcLineTypePropertyImpl>();
  lineType->takeRecord(layer->linetypeObjectId());
  setLineType(lineType);
}

OdDbObjectId OdTcLayerTableRecordImpl::tableId(const OdDbDatabase* database) const {
  return database->getLayerTableId();
}

} // namespace tc
