// What a tool does: the implementation.
#pragma once

#include "module/persist_impl.h"
#include "properties/property_bag.h"
#include "tools/tool_data.h"

namespace tc {

class OdTcToolDataImpl final : public OdTcPersistImpl<OdTcToolData> {
 public:
  OdString elementName() const override { return QStringLiteral("Data"); }

  OdTcToolActionAgent* actionAgent() const override { return m_agent; }
  void setActionAgent(OdTcToolActionAgent* agent) override;
  /// Made at the first look unless one was read: a catalog has thousands of tools, and few are run.
  OdTcPropertyBag* generalProperties() const override;

  void writeFields(OdTcFiler* filer) override;
  /// Takes the bag, and an agent of any kind; a second agent replaces the first. Everything else is
  /// passed over as if it had been taken.
  bool readField(const OdString& name, const OdVariant& value) override;
  /// Clones the agent and the bag, each only if present.
  OdRxObjectPtr clone() const override;

 private:
  OdTcPersist* self() const { return const_cast<OdTcToolDataImpl*>(this); }

  OdTcToolActionAgentPtr m_agent;
  mutable OdTcPropertyBagPtr m_general;
};

} // namespace tc
