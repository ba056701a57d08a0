// The display records of a palette: the implementation.
#pragma once

#include "catalog/palette_ui.h"
#include "module/persist_impl.h"

#include <cstdint>

namespace tc {

class OdTcCatalogViewImpl : public OdTcPersistImpl<OdTcCatalogView> {
 public:
  OdTcCatalogViewImpl();

  OdTcToolOrderList* toolOrder() const override { return m_toolOrder; }

  OdString elementName() const override { return QStringLiteral("CatalogView"); }
  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  /// A view with an empty order: the ids of a copy's tools are others.
  OdRxObjectPtr clone() const override;

 private:
  OdSmartPtr<OdTcToolOrderList> m_toolOrder;
};

class OdTcPaletteUiPropertiesImpl : public OdTcPersistImpl<OdTcPaletteUiProperties> {
 public:
  OdTcPaletteUiPropertiesImpl();

  OdTcCatalogView* catalogView() const override { return m_view; }

  OdString elementName() const override { return QStringLiteral("CAcTcUiToolPalette"); }
  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  OdRxObjectPtr clone() const override;

 private:
  OdSmartPtr<OdTcCatalogView> m_view;
};

class OdTcPaletteUiImpl : public OdTcPersistImpl<OdTcPaletteUi> {
 public:
  OdTcPaletteUiImpl();

  std::int32_t sortType() const override { return m_sortType; }
  void setSortType(std::int32_t type) override { m_sortType = type; }
  std::int32_t previewSize() const override { return m_previewSize; }
  void setPreviewSize(std::int32_t size) override { m_previewSize = size; }
  std::int32_t previewStyle() const override { return m_previewStyle; }
  void setPreviewStyle(std::int32_t style) override { m_previewStyle = style; }
  OdTcPaletteUiProperties* uiProperties() const override { return m_properties; }

  OdString elementName() const override { return QStringLiteral("PaletteUI"); }
  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  /// Copies the sort type and the properties. Size and style of a copy are those of a new palette,
  /// so that it opens at the normal size until it is set.
  OdRxObjectPtr clone() const override;

 private:
  std::int32_t m_sortType = kByName;
  std::int32_t m_previewSize = 1;
  std::int32_t m_previewStyle = 0;
  OdSmartPtr<OdTcPaletteUiProperties> m_properties;
};

} // namespace tc
