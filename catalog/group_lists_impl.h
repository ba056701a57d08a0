// The lists of a group: of groups, and of references to palettes.
#pragma once

#include "catalog/group.h"
#include "module/list_impl.h"

namespace tc {

class OdTcGroupContentListImpl : public OdTcListImplBase<OdTcGroupContentList, OdTcCatalogItem> {
 public:
  /// Groups nested thousands deep are taken apart one after the other, not one inside the other.
  ~OdTcGroupContentListImpl() override;

  OdString elementName() const override { return QStringLiteral("Contents"); }
  /// A soft reference that does not resolve is left out.
  void writeItem(OdTcFiler* filer, OdTcCatalogItem* item) override;
  /// Shares the elements.
  OdRxObjectPtr clone() const override;

 protected:
  bool acceptsElement(const OdString& element) const override;
};

class OdTcGroupListImpl : public OdTcListImplBase<OdTcGroupList, OdTcGroup> {
 public:
  ~OdTcGroupListImpl() override;

  OdString elementName() const override { return QStringLiteral("Groups"); }
  bool isContainer(const OdString&) const override { return count() > 0; }
  /// Shares the elements.
  OdRxObjectPtr clone() const override;

 protected:
  bool acceptsElement(const OdString& element) const override;
};

} // namespace tc
