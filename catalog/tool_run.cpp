// The road of one click: a tool is carried out in a document, and everything is put back after it.
#include "catalog/tool_impl.h"

#include "host/document_lock.h"
#include "module/string_table.h"
#include "properties/property_bag.h"
#include "properties/property_filter.h"
#include "tools/action_agent.h"
#include "tools/tool_guard.h"

#include <algorithm>
#include <vector>

namespace tc {
namespace {

/// Calls `act` with each general property that the agent does not hide, in the order of the bag,
/// and with its name.
template <class Act>
void walkProperties(const OdTcToolImpl& tool, Act act) {
  const OdTcPropertyBag* const bag = tool.getGeneralProperties();
  if (!bag) return;
  const OdTcToolActionAgent* const agent = tool.getActionAgent();
  const OdTcPropertyFilter* const filter = agent ? agent->propertyFilter() : nullptr;
  const OdTcEnumPtr<OdTcProperty> properties = bag->enumProperties();
  while (OdTcProperty* const property = properties->next())
    if (const OdString name = property->getDisplayName(); !filter || !filter->contains(name))
      act(*property, name);
}

void applyProperties(const OdTcToolImpl& tool, OdDbDatabase* database) {
  if (!database) return;
  walkProperties(
      tool, [&](OdTcProperty& property, const OdString&) { property.applyToDatabase(database); });
}

void restoreProperties(const OdTcToolImpl& tool, OdDbDatabase* database) {
  if (!database) return;
  struct Named {
    OdTcProperty* property;
    OdString name;
  };
  std::vector<Named> all;
  walkProperties(tool, [&](OdTcProperty& property, const OdString& name) {
    all.push_back({&property, name});
  });
  // Of several properties of one name the first has kept the drawing's value, the others those of
  // the ones before them.
  for (std::size_t i = 0; i < all.size(); ++i) {
    const auto isNamesake = [&](const Named& other) { return other.name == all[i].name; };
    if (std::any_of(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(i), isNamesake))
      continue;
    for (auto at = all.rbegin(); at != all.rend(); ++at)
      if (isNamesake(*at)) at->property->restoreToDatabase(database);
  }
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
  applyProperties(*this, document->database());
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
  restoreProperties(*this, document->database());
  if (OdTcToolActionAgent* const agent = getActionAgent()) agent->endExecution(document);
  abandonRun();
}

void OdTcToolImpl::abandonRun() {
  m_document = nullptr;
  m_isRunning = false;
}

} // namespace tc
