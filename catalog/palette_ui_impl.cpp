#include "catalog/palette_ui_impl.h"

#include "catalog/tool_order_list_impl.h"
#include "persistence/filer.h"

namespace tc {

OdTcCatalogViewImpl::OdTcCatalogViewImpl()
  : m_toolOrder(odrxMake<OdTcToolOrderListImpl>()) {
  m_toolOrder->setOwnerQuiet(this);
}

void OdTcCatalogViewImpl::writeFields(OdTcFiler* filer) { filer->writeObject(m_toolOrder); }

bool OdTcCatalogViewImpl::readField(const OdString& name, const OdVariant& value) {
  if (name != QLatin1String("ToolOrder")) return false;
  m_toolOrder = value.objectAs<OdTcToolOrderList>();
  return true;
}

OdRxObjectPtr OdTcCatalogViewImpl::clone() const { return odrxMake<OdTcCatalogViewImpl>(); }

OdTcPaletteUiPropertiesImpl::OdTcPaletteUiPropertiesImpl()
  : m_view(odrxMake<OdTcCatalogViewImpl>()) {
  m_view->setOwnerQuiet(this);
}

void OdTcPaletteUiPropertiesImpl::writeFields(OdTcFiler* filer) { filer->writeObject(m_view); }

bool OdTcPaletteUiPropertiesImpl::readField(const OdString& name, const OdVariant& value) {
  if (name != QLatin1String("CatalogView")) return false;
  m_view = value.objectAs<OdTcCatalogView>();
  return true;
}

OdRxObjectPtr OdTcPaletteUiPropertiesImpl::clone() const {
  const auto copy = odrxMake<OdTcPaletteUiPropertiesImpl>();
  copy->m_view = m_view->clone();
  copy->m_view->setOwnerQuiet(copy);
  return copy;
}

OdTcPaletteUiImpl::OdTcPaletteUiImpl()
  : m_properties(odrxMake<OdTcPaletteUiPropertiesImpl>()) {
  m_properties->setOwnerQuiet(this);
}

void OdTcPaletteUiImpl::writeFields(OdTcFiler* filer) {
  filer->writeElement(QStringLiteral("SortType"), m_sortType);
  filer->writeElement(QStringLiteral("PreviewSize"), m_previewSize);
  filer->writeElement(QStringLiteral("PreviewStyle"), m_previewStyle);
  filer->writeObject(m_properties);
}

bool OdTcPaletteUiImpl::readField(const OdString& name, const OdVariant& value) {
  if (name == QLatin1String("SortType"))
    m_sortType = value.toInt32();
  else if (name == QLatin1String("PreviewSize"))
    m_previewSize = value.toInt32();
  else if (name == QLatin1String("PreviewStyle"))
    m_previewStyle = value.toInt32();
  else if (name == QLatin1String("CAcTcUiToolPalette"))
    m_properties = value.objectAs<OdTcPaletteUiProperties>();
  else
    return name ==
           QLatin1String("CAdUiPalette"); // known in foreign files, and nothing of it is kept
  return true;
}

OdRxObjectPtr OdTcPaletteUiImpl::clone() const {
  const auto copy = odrxMake<OdTcPaletteUiImpl>();
  copy->m_sortType = m_sortType;
  copy->m_properties = m_properties->clone();
  copy->m_properties->setOwnerQuiet(copy);
  return copy;
}

} // namespace tc
