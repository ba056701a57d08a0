// The command line on standard output.
#pragma once

#include "drafton/engine/console.h"

#include <cstdio>
#include <functional>

namespace drafton {

/// Writes what a command line would show; troubles go to a function beside.
class BatchConsole : public Console {
 public:
  explicit BatchConsole(std::FILE* out)
    : m_out(out) {}
  /// Ends the last line.
  ~BatchConsole() override;

  void print(const OdString& text) override;
  void prompt(const OdString& text) override;
  void echo(const OdString& text) override;
  void messageBox(const OdString& text, const OdString& caption) override;
  /// Nobody is there to tick it.
  bool messageBoxWithCheckBox(const OdString& text, const OdString& caption) override;
  void commandTrouble(const OdString& text) override;

  void setTroubleHandler(std::function<void(const OdString&)> handler) {
    m_onTrouble = std::move(handler);
  }
  /// Hands all text to the system, with the last line ended.
  void flush();

 private:
  void write(const OdString& text);
  void beginLine();

  std::FILE* m_out;
  bool m_isAtLineStart = true;
  std::function<void(const OdString&)> m_onTrouble;
};

} // namespace drafton
