#include "catalog/tool_list_impl.h"

#include "catalog/owner_link.h"
#include "images/image_list.h"

namespace tc {

OdTcToolListImpl::~OdTcToolListImpl() {
  for (const OdTcToolPtr& tool : itemVector()) forgetOwner(tool, this);
}

void OdTcToolListImpl::add(OdTcCatalogItem* item) {
  const OdTcToolPtr tool(item);
  if (!tool) return;
  tool->setOwnerQuiet(this);
  appendShared(tool);
}

void OdTcToolListImpl::dropImages(OdTcTool& tool) const {
  if (tool.isMarked()) return;
  if (OdTcImageList* const images = tool.images()) images->removeAll(true);
}

bool OdTcToolListImpl::remove(const OdString& id) {
  const OdTcToolPtr tool(find(id));
  if (!tool) return false;
  dropImages(*tool);
  OdTcListImplBase::remove(id);
  forgetOwner(tool, this);
  return true;
}

void OdTcToolListImpl::removeWhere(const std::function<bool(const OdTcTool&)>& isUnwanted) {
  const Items former = itemVector();
  clearItems();
  for (const OdTcToolPtr& tool : former) {
    if (!isUnwanted(*tool)) {
      appendShared(tool);
      continue;
    }
    dropImages(*tool);
    forgetOwner(tool, this);
  }
}

OdRxObjectPtr OdTcToolListImpl::clone() const {
  const auto copy = odrxMake<OdTcToolListImpl>();
  for (const OdTcToolPtr& tool : itemVector()) copy->add(OdTcCatalogItemPtr(tool->clone(true)));
  return copy;
}

bool OdTcToolListImpl::acceptsElement(const OdString& element) const {
  return element == QLatin1String("Tool");
}

} // namespace tc
