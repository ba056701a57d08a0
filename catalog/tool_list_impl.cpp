#include "catalog/tool_list_impl.h"

#include "frame/error.h"
#include "host/host_locator.h"
#include "images/image_home.h"
#include "images/image_list.h"
#include "module/owner_link.h"
#include "tools/tool_guard.h"

namespace tc {

namespace {

/// Ends the tool's run before the tool goes: the end of the host's command would not find it any
/// more, and nobody else would put the drawing's settings back.
void endRun(OdTcTool& tool) {
  if (!tool.runningDocument()) return;
  tool.finish();
  if (IToolGuard* const guard = IToolGuard::instance()) guard->forget(&tool);
}

/// Takes the pictures from a tool that goes; the files of those that go with it.
QStringList takePictures(const OdTcTool& tool) {
  OdTcImageList* const images = tool.isMarked() ? nullptr : tool.images();
  if (!images) return {};
  const QStringList files = images->pictureFiles();
  images->removeAll(false);
  return files;
}

} // namespace

OdTcToolListImpl::~OdTcToolListImpl() {
  for (const OdTcToolPtr& tool : itemVector()) {
    forgetOwner(tool, this);
    // Whoever else holds the tool sees to its run.
    if (tool->numRefs() > 1) continue;
    try {
      endRun(*tool);
    } catch (const OdError& error) {
      host::print(u'\n' + error.description());
    }
  }
}

void OdTcToolListImpl::add(OdTcCatalogItem* item) {
  const OdTcToolPtr tool(item);
  if (!tool) return;
  tool->setOwnerQuiet(this);
  appendShared(tool);
}

bool OdTcToolListImpl::remove(const OdString& id) {
  const OdTcToolPtr tool(find(id));
  if (!tool) return false;
  endRun(*tool);
  removePictureFiles(database(), takePictures(*tool));
  return OdTcListImplBase::remove(id);
}

void OdTcToolListImpl::removeWhere(const std::function<bool(const OdTcTool&)>& isUnwanted) {
  const Items former = itemVector();
  for (const OdTcToolPtr& tool : former)
    if (isUnwanted(*tool)) endRun(*tool);
  clearItems();
  QStringList pictures;
  for (const OdTcToolPtr& tool : former) {
    if (!isUnwanted(*tool)) {
      appendShared(tool);
      continue;
    }
    pictures << takePictures(*tool);
    disown(tool);
  }
  // All at once: to know what is shown still the whole catalog is looked through.
  removePictureFiles(database(), pictures);
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
