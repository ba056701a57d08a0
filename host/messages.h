// What the user is told.
#pragma once

#include "frame/string.h"
#include "host/unknown.h"

/// The command line's output and the host's message boxes.
class IHostMessages : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IHostMessages";

  /// Prints on the command line of the current document, or of the application if there is none. A
  /// line break at the start begins a new line.
  virtual void print(const OdString& text) = 0;
  /// Shows a message box with one button. A host without windows prints the text.
  virtual void messageBox(const OdString& text, const OdString& caption) = 0;
  /// Shows a message box with "do not show again"; true if that was ticked. `identifier` names the
  /// prompt in the host's own store.
  virtual bool messageBoxWithCheckBox(const OdString& identifier, const OdString& text,
                                      const OdString& caption, unsigned style) = 0;

 protected:
  ~IHostMessages() = default;
};
