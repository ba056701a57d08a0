#include "host/integration/editor_reactor.h"

#include "catalog/tool.h"
#include "host/host_locator.h"

#include <array>

namespace tc {
namespace {

/// Commands at whose end the run goes on.
constexpr std::array kPassedOver = {u"NewDocument", u"OpenDocument", u"Import"};

bool isPassedOver(const OdString& command) {
  for (const char16_t* name : kPassedOver)
    if (command.compare(QStringView(name), Qt::CaseInsensitive) == 0) return true;
  return false;
}

} // namespace

OdRxClass* TcEditorReactor::g_pDesc = nullptr;

TcEditorReactor::TcEditorReactor()
  : m_finishingCommands{QStringLiteral("CloseDocument"), QStringLiteral("Exit")} {}

void TcEditorReactor::rxInit(OdRxModule* application) {
  g_pDesc = od_detail::registerClass(g_pDesc, QStringLiteral("TcEditorReactor"),
                                     HostEditorReactor::desc(), &odrxFactory<TcEditorReactor>,
                                     application);
}

void TcEditorReactor::rxUninit() { od_detail::unregisterClass(g_pDesc); }

void TcEditorReactor::commandEnded(const OdString& name) {
  if (!m_tool) return;
  if (m_finishingCommands.contains(name)) return dropTool();
  if (isPassedOver(name)) return;
  if (runsInCurrentDocument()) finishTool();
}

void TcEditorReactor::commandCancelled(const OdString&) {
  // Without a tool nothing is left that the awaited cancel could end.
  if (m_tool && !runsInCurrentDocument()) return;
  if (m_tool && m_armed) finishTool();
  m_armed = true;
}

void TcEditorReactor::commandFailed(const OdString&) {
  if (runsInCurrentDocument()) finishTool();
}

void TcEditorReactor::documentToBeDestroyed(IHostDocument* document) {
  if (m_tool && m_tool->runningDocument() == document) dropTool();
}

bool TcEditorReactor::canRun(IHostDocument* document) const {
  return !m_tool || m_tool->runningDocument() == document;
}

void TcEditorReactor::setTool(OdTcTool* tool) { m_tool = tool; }

bool TcEditorReactor::isRunning() const { return m_tool != nullptr; }

void TcEditorReactor::stopTool() {
  if (!m_tool) return;
  finishTool();
  m_armed = false;
}

OdString TcEditorReactor::toolName() const { return m_tool ? m_tool->name() : OdString(); }

OdString TcEditorReactor::documentName() const {
  const IHostDocument* const document = m_tool ? m_tool->runningDocument() : nullptr;
  return document ? document->name() : OdString();
}

void TcEditorReactor::clear() { m_tool = nullptr; }

void TcEditorReactor::forget(const OdTcTool* tool) {
  if (m_tool == tool) clear();
}

bool TcEditorReactor::runsInCurrentDocument() const {
  const IHostDocument* const current = m_tool ? host::curDocument() : nullptr;
  return current && current == m_tool->runningDocument();
}

// The document is going, and with it everything that would be put back.
void TcEditorReactor::dropTool() {
  m_tool->abandonRun();
  clear();
}

void TcEditorReactor::finishTool() {
  // The tool may be let go of while it puts things back.
  const OdSmartPtr<OdTcTool> tool(m_tool);
  tool->finish();
  clear();
}

static TcEditorReactorPtr g_reactor;

TcEditorReactor* TcEditorReactor::instance() { return g_reactor; }

void TcEditorReactor::setInstance(const TcEditorReactorPtr& reactor) {
  IToolGuard::setInstance(reactor);
  g_reactor = reactor;
}

} // namespace tc
