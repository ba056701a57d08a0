// The tools of a palette in storage order: the implementation.
#pragma once

#include "catalog/tool.h"
#include "catalog/tool_list.h"
#include "module/list_impl.h"

#include <functional>

namespace tc {

class OdTcToolListImpl : public OdTcListImplBase<OdTcToolList, OdTcTool> {
 public:
  ~OdTcToolListImpl() override;

  /// The tool's owner is the list. The catalog takes no note of tools: a tool lives as long as its
  /// palette has it.
  void add(OdTcCatalogItem* item) override;
  /// Ends the tool's run, if it runs, and deletes its pictures, unless the tool is marked as
  /// sharing them or another one shows them.
  bool remove(const OdString& id) override;
  void removeWhere(const std::function<bool(const OdTcTool&)>& isUnwanted) override;

  OdString elementName() const override { return QStringLiteral("Tools"); }
  /// Clones each tool.
  OdRxObjectPtr clone() const override;

 protected:
  bool acceptsElement(const OdString& element) const override;
  OdTcPersist* ownerOfItems() const override { return const_cast<OdTcToolListImpl*>(this); }
};

} // namespace tc
