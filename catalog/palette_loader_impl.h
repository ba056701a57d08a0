// Palette files that a catalog knows of: the implementation.
#pragma once

#include "catalog/palette_loader.h"
#include "module/catalog_item_impl.h"
#include "module/list_impl.h"

namespace tc {

/// A loader and the palette that it brings in have one id between them. A file without an id of its
/// own gives its palette the loader's; otherwise the file's id counts, and the loader follows. A
/// file that is there but cannot be read, or a folder in its place, gives an empty palette with the
/// loader's id, name and description, so that groups go on naming it.
class OdTcPaletteLoaderImpl : public OdTcCatalogItemImplBase<OdTcPaletteLoader> {
 public:
  OdSmartPtr<OdTcToolPalette> loadPalette(const OdString& baseFolder) override;
  OdSmartPtr<OdTcToolPalette> loadPaletteFromCatalog() override;
  OdString getHref() const override { return m_href; }
  void setHref(const OdString& href) override { m_href = href; }

  OdString elementName() const override { return QStringLiteral("Palette"); }
  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  OdTcCatalogItemPtr clone(bool deep) const override;
  OdRxObjectPtr clone() const override { return clone(true); }

 private:
  OdString m_href;
};

class OdTcPaletteLoaderListImpl
  : public OdTcListImplBase<OdTcPaletteLoaderList, OdTcPaletteLoader> {
 public:
  ~OdTcPaletteLoaderListImpl() override;

  OdString elementName() const override { return QStringLiteral("Palettes"); }

 protected:
  bool acceptsElement(const OdString& element) const override;
};

/// The file that a loader's `href` names for a catalog in `baseFolder`: absolute or macro paths as
/// they are, all others below that folder. Without a base a relative path stays one.
OdString resolvedHref(const OdString& href, const OdString& baseFolder);

} // namespace tc
