// Offers the tools on the host's command line.
#pragma once

#include "catalog/tool.h"
#include "host/completion.h"

namespace tc {

/// The name of the source.
inline constexpr char16_t kToolsSource[] = u"tools";

/// Registers the source with the host, and removes it. Nothing happens without a registry.
void registerToolSource();
void removeToolSource();

/// False if the user switched the offers off: the host's option "CommandLine/completetools". An
/// option that was never set, or a host without a settings store, leaves them on.
bool isToolCompletionOn();

/// Calls back once for each tool of the palettes in the groups, in the order of catalogs, groups,
/// palettes and tools. A palette that several groups show is offered once. Choosing an offer runs
/// the tool in the document that is current then.
void offerTools(const HostEdCompletion::Callback& callback);

/// Draws a tool's image. It is looked for when it is painted, not when it is offered.
class ToolImage : public HostEdCompletion::Pictogram {
 public:
  explicit ToolImage(OdTcToolPtr tool)
    : m_tool(std::move(tool)) {}
  QImage image(int pixels) override;
  OdTcTool& tool() const { return *m_tool; }

 private:
  OdTcToolPtr m_tool;
};

} // namespace tc
