// A reference to a palette, by which it stands in a group.
#pragma once

#include "catalog/group.h"
#include "module/catalog_item_impl.h"

namespace tc {

class OdTcPaletteSoftRefImpl : public OdTcCatalogItemImplBase<OdTcPaletteSoftRef> {
 public:
  OdString id() const override { return m_target.get(); }
  void setId(const OdString& id) override { m_target.set(id); }
  /// The palette's name; empty if the reference does not resolve.
  OdString name() const override;
  OdTcToolPalette* resolve() const override;

  OdString elementName() const override { return QStringLiteral("ToolPalette"); }
  /// The target alone is stored, not the fields of an item.
  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  /// A second reference to the same palette.
  OdTcCatalogItemPtr clone(bool deep) const override;
  OdRxObjectPtr clone() const override { return clone(true); }

 private:
  OdTcItemId m_target{OdString()};
};

} // namespace tc
