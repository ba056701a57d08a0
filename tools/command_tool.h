// The tool that types a macro.
#pragma once

#include "images/image.h"
#include "tools/action_agent_impl_base.h"

namespace tc {

/// Element `Command`. The macro is the command string.
class OdTcToolCommandImpl final : public OdTcToolActionAgentImplBase<OdTcToolCommand> {
 public:
  OdString elementName() const override { return QStringLiteral("Command"); }

  /// Trims the macro at its end, for good, and types it with an Enter behind it. False without a
  /// document or a macro.
  bool execute(IHostDocument* document) override;

  void writeProperties(OdTcFiler* filer) override;
  bool readProperty(const OdString& name, const OdVariant& value) override;
  void createProperties() override;
  OdRxObjectPtr clone() const override;

  /// Gives the image the built-in picture that is named like the macro's command.
  bool imageSourceFromMacro(OdTcImage* image) const;
};

} // namespace tc
