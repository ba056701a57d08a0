#include "ui/menu_builder.h"

#include "catalog/catalog.h"
#include "catalog/tool.h"
#include "catalog/tool_palette.h"

namespace tc {
namespace {

struct Row {
  OdRxClass* (*itemClass)();
  int command;
  QStringView text;
};

constexpr Row kRows[] = {
    {OdTcCatalog::desc, 101, u"Create group"}, {OdTcCatalog::desc, 102, u"Create palette"},
    {OdTcCatalog::desc, 100, u"Rename"},       {OdTcCatalog::desc, 103, u"Import palette"},
    {OdTcGroup::desc, 200, u"Create group"},   {OdTcGroup::desc, 203, u"Rename"},
    {OdTcGroup::desc, 202, u"Remove"},         {OdTcToolPalette::desc, 303, u"Add tool"},
    {OdTcToolPalette::desc, 300, u"Rename"},   {OdTcToolPalette::desc, 301, u"Remove from group"},
    {OdTcToolPalette::desc, 302, u"Delete"},
};

/// Classes whose menu exists but is empty.
constexpr OdRxClass* (*kEmptyMenus[])() = {OdTcTool::desc};

} // namespace

TcUiMenuBuilder::TcUiMenuBuilder() {
  for (const Row& row : kRows)
    m_menus[row.itemClass()].emplace_back(row.command, row.text.toString());
  for (const auto& itemClass : kEmptyMenus) m_menus[itemClass()];
}

const TcUiMenuEntries* TcUiMenuBuilder::entriesOf(const OdRxClass* itemClass) const {
  const auto at = m_menus.find(itemClass);
  return at == m_menus.end() ? nullptr : &at->second;
}

bool TcUiMenuBuilder::queryInterface(std::string_view id, void** out) {
  *out = id == kId ? static_cast<ITcUiMenuBuilder*>(this) : nullptr;
  return *out != nullptr;
}

void TcUiMenuBuilder::showItemMenu(OdTcCatalogItem* item) {
  m_item = item;
  const TcUiMenuEntries* const entries = item ? entriesOf(item->isA()) : nullptr;
  if (entries && m_owner) popUp(*entries);
}

} // namespace tc
