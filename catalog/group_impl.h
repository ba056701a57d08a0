// The tree of groups and what stands in it: the implementation.
#pragma once

#include "catalog/group.h"
#include "module/catalog_item_impl.h"

#include <cstdint>

namespace tc {

class OdTcGroupImpl : public OdTcCatalogItemImplBase<OdTcGroup> {
 public:
  OdTcGroupImpl();
  ~OdTcGroupImpl() override;

  std::int32_t activePaletteIndex() const override { return m_activePaletteIndex; }
  void setActivePaletteIndex(std::int32_t index) override { m_activePaletteIndex = index; }
  OdTcGroupContentList* contents() const override { return m_contents; }

  /// A palette is taken in by a soft reference, of which reactors are not told; a group or a soft
  /// reference as it is. False for anything else, for a group that this one stands in, and for one
  /// that would make the tree too deep for a file.
  bool addItem(OdTcCatalogItem* item) override;
  bool removeItem(const OdString& id) override;
  bool findItem(const OdString& id) const override { return m_contents->contains(id); }
  OdTcEnumPtr<OdTcCatalogItem> children() const override { return m_contents->items(); }
  bool isContainer(const OdString&) const override { return m_contents->count() > 0; }

  OdString elementName() const override { return QStringLiteral("ToolPaletteGroup"); }
  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  /// A new empty group. Whoever needs a whole copy goes through a filer.
  OdTcCatalogItemPtr clone(bool deep) const override;
  OdRxObjectPtr clone() const override { return clone(true); }

 private:
  bool takesGroup(const OdTcGroup* group) const;

  std::int32_t m_activePaletteIndex = -1;
  OdSmartPtr<OdTcGroupContentList> m_contents;
};

} // namespace tc
