#include "catalog/foreign_tool_records_impl.h"

#include "persistence/filer.h"

namespace tc {

bool OdTcToolCustomDataImpl::readField(const OdString& name, const OdVariant& value) {
  if (name == QLatin1String("className"))
    m_className = value.toString();
  else if (name == QLatin1String("idButton"))
    m_idButton = value.toString();
  else
    return false;
  return true;
}

OdRxObjectPtr OdTcToolCustomDataImpl::clone() const {
  const auto copy = odrxMake<OdTcToolCustomDataImpl>();
  copy->m_className = m_className;
  copy->m_idButton = m_idButton;
  return copy;
}

void OdTcToolFlyoutImpl::writeFields(OdTcFiler* filer) {
  filer->writeAttribute(QStringLiteral("enable"), boolText(m_enable, BoolStyle::kLower));
  filer->writeElementAttribute(QStringLiteral("ShapePackage"), QStringLiteral("idValue"),
                               m_shapePackage);
  filer->writeElementAttribute(QStringLiteral("CurrentShape"), QStringLiteral("idValue"),
                               m_currentShape);
}

bool OdTcToolFlyoutImpl::readField(const OdString& name, const OdVariant& value) {
  static int arrival = 0;
  if (name == QLatin1String("enable")) {
    m_enable = boolFromText(value.toString());
    return true;
  }
  if (name != QLatin1String("idValue")) return false;
  (arrival == 0 ? m_shapePackage : m_currentShape) = value.toString();
  arrival = arrival == 0 ? 1 : 0;
  return true;
}

OdRxObjectPtr OdTcToolFlyoutImpl::clone() const {
  const auto copy = odrxMake<OdTcToolFlyoutImpl>();
  copy->m_enable = m_enable;
  copy->m_shapePackage = m_shapePackage;
  copy->m_currentShape = m_currentShape;
  return copy;
}

void OdTcStockToolRefImpl::writeFields(OdTcFiler* filer) {
  filer->writeAttribute(QStringLiteral("idValue"), m_id);
}

bool OdTcStockToolRefImpl::readField(const OdString& name, const OdVariant& value) {
  if (name != QLatin1String("idValue")) return false;
  m_id = value.toString();
  return true;
}

OdRxObjectPtr OdTcStockToolRefImpl::clone() const {
  const auto copy = odrxMake<OdTcStockToolRefImpl>();
  copy->m_id = m_id;
  return copy;
}

} // namespace tc
