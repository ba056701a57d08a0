#include "catalog/tool_palette_impl.h"

#include "catalog/catalog.h"
#include "catalog/tool.h"
#include "frame/file_path.h"
#include "host/host_locator.h"
#include "module/owner_link.h"
#include "module/string_table.h"
#include "persistence/filer.h"
#include "persistence/path_operations.h"
#include "tools/action_agent.h"

#include <QSet>

namespace tc {
namespace {

/// The tools of a list, as tools.
class ToolEnum : public OdTcEnum<OdTcTool> {
 public:
  explicit ToolEnum(const OdTcToolList* tools)
    : m_items(tools->items()) {}
  OdTcTool* next() override { return static_cast<OdTcTool*>(m_items->next()); }
  void reset() override { m_items->reset(); }

 private:
  OdTcEnumPtr<OdTcCatalogItem> m_items;
};

/// Kinds of entry that have no agent to name them.
struct EntryLabel {
  OdTcTool::Type type;
  const char16_t* label;
};
constexpr EntryLabel kEntryLabels[] = {{OdTcTool::kText, u"Text"},
                                       {OdTcTool::kSeparator, u"Separator"}};

bool hasUnsupportedAgent(const OdTcTool& tool) {
  const OdTcToolActionAgent* const agent = tool.getActionAgent();
  return agent && !agent->isSupported();
}

} // namespace

bool isUnsupportedTool(const OdTcTool& tool) {
  return hasUnsupportedAgent(tool) || !tool.isRegular();
}

OdTcToolPaletteImpl::OdTcToolPaletteImpl()
  : OdTcToolPaletteImpl(odrxMake<OdTcDatabaseImpl>()) {}

OdTcToolPaletteImpl::OdTcToolPaletteImpl(const OdSmartPtr<OdTcDatabaseImpl>& database)
  : m_database(database) {
  m_database->setOwnerQuiet(this);
}

OdTcToolPaletteImpl::~OdTcToolPaletteImpl() { forgetOwner(m_database, this); }

void OdTcToolPaletteImpl::reserved1() {
  throw OdError(eNotApplicable, QStringLiteral("The first reserved operation of a palette"));
}

void OdTcToolPaletteImpl::reserved2() {
  throw OdError(eNotApplicable, QStringLiteral("The second reserved operation of a palette"));
}

bool OdTcToolPaletteImpl::getRelativePath(OdString& out) const {
  const OdTcCatalog* const root = catalog();
  return root && makeRelativePath(getPath(), odpath::folderOf(root->path()), out);
}

void OdTcToolPaletteImpl::setToolOrder(const OdArray<OdString>& ids) {
  toolOrder()->setIds(ids);
  ui()->setSortType(OdTcPaletteUi::kManual);
  markModified();
}

void OdTcToolPaletteImpl::setSortType(std::int32_t type) {
  ui()->setSortType(type);
  markModified();
}

void OdTcToolPaletteImpl::setPreviewSize(std::int32_t size) {
  ui()->setPreviewSize(size);
  markModified();
}

void OdTcToolPaletteImpl::setPreviewStyle(std::int32_t style) {
  ui()->setPreviewStyle(style);
  markModified();
}

OdTcEnumPtr<OdTcTool> OdTcToolPaletteImpl::enumTools() const {
  return odrxMake<ToolEnum>(m_database->tools());
}

bool OdTcToolPaletteImpl::addItem(OdTcCatalogItem* item) {
  auto* const tool = odrxCast<OdTcTool>(item);
  if (!tool) return false;
  m_database->addTool(tool);
  if (m_autoSave) saveUnasked();
  notifyAdded(tool);
  return true;
}

/// Nobody asked for this save, so it writes over nothing that could not be read.
void OdTcToolPaletteImpl::saveUnasked() {
  if (getPath().isEmpty()) return;
  if (!m_database->isUnread()) {
    save();
    return;
  }
  host::print(formatText(
      host::translate(QStringLiteral(
          "\nThe palette file %s could not be read, and is left as it is until you save it.")),
      getPath()));
}

bool OdTcToolPaletteImpl::removeItem(const OdString& id) {
  const OdTcCatalogItemPtr tool = m_database->tools()->find(id);
  if (!tool) return false;
  notifyRemoved(tool);
  return m_database->removeTool(id);
}

void OdTcToolPaletteImpl::collectUnsupportedKinds(QStringList& labels,
                                                  const QMap<OdString, OdString>& tagNames) const {
  const OdTcEnumPtr<OdTcTool> tools = enumTools();
  while (const OdTcTool* tool = tools->next()) {
    if (hasUnsupportedAgent(*tool)) {
      const OdString tag = tool->getActionAgent()->elementName();
      labels << tagNames.value(tag, tag);
    }
    for (const EntryLabel& entry : kEntryLabels)
      if (tool->getToolType() == entry.type)
        labels << host::translate(OdString::fromUtf16(entry.label));
  }
}

void OdTcToolPaletteImpl::stripUnsupportedTools() {
  m_database->tools()->removeWhere(isUnsupportedTool);
}

void OdTcToolPaletteImpl::adoptFileName(const OdString& path) {
  getProperties()->clearResource();
  setName(odpath::titleOf(path));
  const OdTcEnumPtr<OdTcTool> tools = enumTools();
  while (const OdTcTool* tool = tools->next())
    if (OdTcToolActionAgent* const agent = tool->getActionAgent()) agent->updateFromHost();
}

void OdTcToolPaletteImpl::renewIds() {
  m_database->setId(odrxSystemServices()->createGuid());
  OdTcIdMap renewed;
  m_database->tools()->regenerateIds(renewed);
  OdArray<OdString> order = toolOrder()->ids();
  for (OdString& id : order) id = renewed.value(id, id);
  toolOrder()->setIds(order);
  markModified();
}

void OdTcToolPaletteImpl::writeFields(OdTcFiler* filer) {
  filer->writeAttribute(QStringLiteral("Revision"), revision());
  filer->writeAttribute(QStringLiteral("option"), OdString::number(options()));
  filer->writeElementAttribute(QStringLiteral("ItemID"), QStringLiteral("idValue"), id());
  filer->writeObject(properties());
}

OdTcCatalogItemPtr OdTcToolPaletteImpl::clone(bool) const {
  const OdSmartPtr<OdTcToolPaletteImpl> copy(
      new OdTcToolPaletteImpl(OdSmartPtr<OdTcDatabaseImpl>(
          static_cast<OdTcDatabaseImpl*>(m_database->clone().detach()), kOdRxObjAttach)),
      kOdRxObjAttach);
  copyItemTo(*copy);
  copy->m_isReferenced = m_isReferenced;
  return copy;
}

} // namespace tc
