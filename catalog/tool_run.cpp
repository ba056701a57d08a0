// The road of one click: a tool is carried out in a document, and everything is put back after it.
#include "catalog/tool_impl.h"

#include "host/document_lock.h"
#include "module/string_table.h"
#include "properties/property_bag.h"
#include "properties/property_filter.h"
#include "tools/action_agent.h"
#include "tools/tool_guard.h"

namespace tc {
namespace {

/// Calls `operation` of each general property that the agent does not hide.
void walkProperties(const OdTcToolImpl& tool, OdDbDatabase* database,
                    void (OdTcProperty::*operation)(OdDbDatabase*)) {
  const OdTcPropertyBag* const bag = tool.getGeneralProperties();
  if (!bag || !database) return;
  const OdTcToolActionAgent* const agent = tool.getActionAgent();
  const OdTcPropertyFilter* const filter = agent ? agent->propertyFilter() : nullptr;
  const OdTcEnumPtr<OdTcProperty> properties = bag->enumProperties();
  while (OdTcProperty* const property = properties->next())
    if (!filter || !filter->contains(property->getDisplayName())) (property->*operation)(database);
}

void printNamed(const OdString& text, const OdString& name) {
  host::print(formatText(host::translate(text), name));
}

} // namespace

void OdTcToolImpl::leaveGuard() {
  if (IToolGuard* const guard = IToolGuard::instance()) guard->forget(this);
}

bool OdTcToolImpl::applyGeneralProperties(IHostDocument* document) {
  const HostDocumentLock lock(document);
  if (lock.isRefused()) return false;
  walkProperties(*this, document->database(), &OdTcProperty::applyToDatabase);
  return true;
}

void OdTcToolImpl::execute(IHostDocument* document) {
  if (!document) return;
  if (!isRegular()) {
    printNamed(QStringLiteral("\nTool \"%s\" cannot be run."), name());
    return;
  }
  IToolGuard* const guard = IToolGuard::instance();
  if (guard && !guard->canRun(document)) {
    host::print(formatText(stringText(StringId::kToolAlreadyRuns), guard->toolName(),
                           guard->documentName()));
    return;
  }
  // What the agent does may take the palette away, and this tool with it.
  const OdTcToolPtr self(this);
  if (guard && guard->isRunning()) {
    if (IHostCommandInput* const input = document->commandInput())
      input->sendText(host::ownText(QStringLiteral("^C")));
    guard->stopTool();
  }

  m_document = document;
  m_isRunning = true;
  if (guard) guard->setTool(this);
  try {
    if (!applyGeneralProperties(document)) {
      abandonRun();
      leaveGuard();
      printNamed(QStringLiteral("\nTool \"%s\" cannot be run: the drawing is locked."), name());
      return;
    }
    if (OdTcToolActionAgent* const agent = getActionAgent()) {
      agent->beginExecution(document);
      // A tool that has left its palette meanwhile has been finished.
      if (m_document) agent->execute(document);
    }
  } catch (const OdError&) {
    // The host will see no command end, so nobody else would put things back.
    leaveGuard();
    finish();
    throw;
  }
}

void OdTcToolImpl::finish() {
  if (!m_document) return;
  const OdTcToolPtr self(this);
  IHostDocument* const document = m_document;
  walkProperties(*this, document->database(), &OdTcProperty::restoreToDatabase);
  if (OdTcToolActionAgent* const agent = getActionAgent()) agent->endExecution(document);
  abandonRun();
}

void OdTcToolImpl::abandonRun() {
  m_document = nullptr;
  m_isRunning = false;
}

} // namespace tc
