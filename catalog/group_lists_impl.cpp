#include "catalog/group_lists_impl.h"

#include "catalog/tool_palette.h"
#include "module/owner_link.h"

#include <utility>
#include <vector>

namespace tc {
namespace {

const OdString& groupElement() {
  static const OdString name = QStringLiteral("ToolPaletteGroup");
  return name;
}

const OdString& referenceElement() {
  static const OdString name = QStringLiteral("ToolPalette");
  return name;
}

/// Releases items in a loop: what they release in their turn only joins the queue of the outermost
/// call, so that deep trees of groups do not go deep into the stack.
void releaseInTurn(std::vector<OdTcCatalogItemPtr> items) noexcept {
  static std::vector<OdTcCatalogItemPtr>* queue = nullptr;
  if (queue) {
    for (OdTcCatalogItemPtr& item : items) queue->push_back(std::move(item));
    return;
  }
  queue = &items;
  while (!items.empty()) {
    const OdTcCatalogItemPtr next = std::move(items.back());
    items.pop_back();
  }
  queue = nullptr;
}

} // namespace

OdTcGroupContentListImpl::~OdTcGroupContentListImpl() {
  std::vector<OdTcCatalogItemPtr> items = itemVector();
  clearItems();
  for (OdTcCatalogItem* item : items) forgetOwner(item, owner());
  releaseInTurn(std::move(items));
}

void OdTcGroupContentListImpl::writeItem(OdTcFiler* filer, OdTcCatalogItem* item) {
  const auto* const reference = odrxCast<OdTcPaletteSoftRef>(item);
  if (!reference)
    filer->writeObject(item);
  else if (reference->resolve())
    filer->writeElementAttribute(referenceElement(), QStringLiteral("ID"), reference->id());
}

OdRxObjectPtr OdTcGroupContentListImpl::clone() const {
  const auto copy = odrxMake<OdTcGroupContentListImpl>();
  for (const OdTcCatalogItemPtr& item : itemVector()) copy->appendShared(item);
  return copy;
}

bool OdTcGroupContentListImpl::acceptsElement(const OdString& element) const {
  return element == groupElement() || element == referenceElement();
}

OdTcGroupListImpl::~OdTcGroupListImpl() {
  for (const OdTcGroupPtr& group : itemVector()) forgetOwner(group, owner());
}

OdRxObjectPtr OdTcGroupListImpl::clone() const {
  const auto copy = odrxMake<OdTcGroupListImpl>();
  for (const OdTcGroupPtr& group : itemVector()) copy->appendShared(group);
  return copy;
}

bool OdTcGroupListImpl::acceptsElement(const OdString& element) const {
  return element == groupElement();
}

} // namespace tc
