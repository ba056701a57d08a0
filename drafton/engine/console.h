// Where the command line shows its text, and where it gets more.
#pragma once

#include "frame/string.h"

namespace drafton {

/// The visible side of the command line: a window's dock, or standard output.
class Console {
 public:
  virtual ~Console() = default;
  /// Shows text. A line break at its start begins a new line, unless a line has just begun.
  virtual void print(const OdString& text) = 0;
  /// Shows a prompt at the start of a line.
  virtual void prompt(const OdString& text) = 0;
  /// Shows what was typed behind the prompt.
  virtual void echo(const OdString& text) = 0;
  /// Shows a message box with one button.
  virtual void messageBox(const OdString& text, const OdString& caption) = 0;
  /// Shows a message box with "do not show again"; true if that was ticked.
  virtual bool messageBoxWithCheckBox(const OdString& text, const OdString& caption) = 0;
  /// A command was not found or failed; the text was shown already.
  virtual void commandTrouble(const OdString& /*text*/) {}
};

/// Where more input comes from when a command cannot go on without it.
class InputSource {
 public:
  virtual ~InputSource() = default;
  /// Waits until more has been typed (a script gives its next line, a window runs a local event
  /// loop). False if nothing will come any more; what waits is then cancelled.
  virtual bool waitForInput() = 0;
  /// A module sent text to a document: a window goes on from its event loop, with Engine::run() or
  /// by ending its wait.
  virtual void inputQueued() {}
};

} // namespace drafton
