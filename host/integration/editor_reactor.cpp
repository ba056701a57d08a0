#include "host/integration/editor_reactor.h"

#include "catalog/tool.h"
#include "host/host_locator.h"

#include <array>
#include <utility>

namespace tc {
namespace {

/// Commands at whose end the run goes on.
constexpr std::array kPassedOver = {u"NewDocument", u"OpenDocument", u"Import"};

/// The command that closes one document; the other documents stay open.
constexpr QStringView kClosesOne = u"CloseDocument";

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

void TcEditorReactor::commandWillStart(const OdString& name) {
  if (name == kClosesOne) m_closing = host::curDocument();
}

void TcEditorReactor::commandEnded(const OdString& name) {
  const bool isFinishing = m_finishingCommands.contains(name);
  const bool isGoing = isFinishing && goesWithItsDocument(name);
  if (!m_tool) return;
  if (isGoing) return dropTool();
  if (isFinishing) return;
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

// A tool that runs in a document that stays open would leave its values there for good if it were
// dropped: it goes on, and its own command's end puts them back. A host that does not tell of the
// beginning of commands is taken to close the tool's document.
bool TcEditorReactor::goesWithItsDocument(const OdString& closingCommand) {
  if (closingCommand != kClosesOne) return true;
  const IHostDocument* const closed = std::exchange(m_closing, nullptr);
  return !m_tool || !closed || closed == m_tool->runningDocument();
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
