// An action agent that types a text and records its calls.
#pragma once

#include "host/document.h"
#include "module/persist_impl.h"
#include "properties/property_bag.h"
#include "properties/property_filter.h"
#include "support/test_host.h"
#include "tools/action_agent.h"

namespace testhost {

/// Types its command string. The host's log gets "begin X", "execute X" and "end X", with the
/// command string as X.
class RecordingAgent : public tc::OdTcPersistImpl<tc::OdTcToolCommand> {
 public:
  explicit RecordingAgent(OdString text)
    : m_text(std::move(text))
    , m_properties(tc::OdTcPropertyBag::createObject())
    , m_filter(tc::OdTcPropertyFilter::createObject()) {}

  OdString elementName() const override { return QStringLiteral("Command"); }
  bool execute(IHostDocument* document) override {
    note("execute");
    document->commandInput()->sendText(m_text);
    return true;
  }
  void setCommandString(const OdString& text) override { m_text = text; }
  OdString commandString() const override { return m_text; }
  tc::OdTcPropertyBag* properties() const override { return m_properties; }
  tc::OdTcPropertyFilter* propertyFilter() const override { return m_filter; }
  void beginExecution(IHostDocument*) override { note("begin"); }
  void endExecution(IHostDocument*) override { note("end"); }
  bool isSupported() const override { return true; }
  bool isSpecial() const override { return false; }
  void afterClone() override {}
  bool refreshImages(IHostDocument*) override { return false; }
  void updateFromHost() override {}
  bool onPropertyChanged(tc::OdTcProperty*) override { return false; }

 private:
  void note(const char* what) const {
    host().log << QLatin1String(what) + QLatin1Char(' ') + m_text;
  }

  OdString m_text;
  tc::OdTcPropertyBagPtr m_properties;
  tc::OdTcPropertyFilterPtr m_filter;
};

} // namespace testhost
