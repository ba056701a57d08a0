// Where a tool stands, as the reports of tools tell it.
#pragma once

#include "catalog/tool.h"
#include "catalog/tool_palette.h"

#include <QJsonObject>

namespace tpal {

/// A tool and its palette, by what people and scripts know them by.
struct ToolPlace {
  OdString palette, file, tool, id;

  ToolPlace(const tc::OdTcToolPalette& inPalette, const tc::OdTcTool& theTool);

  /// Its four fields, with which the rows of reports begin.
  QJsonObject asJson() const;
};

} // namespace tpal
