// A command line that keeps what it shows, and input that is given line by line.
#pragma once

#include "drafton/engine/console.h"

#include <deque>
#include <functional>

/// Keeps all text as a user would read it.
class RecordingConsole : public drafton::Console {
 public:
  void print(const OdString& text) override {
    const bool breaks = text.startsWith(u'\n');
    if (breaks) newLine();
    m_text += breaks ? text.mid(1) : text;
  }
  void prompt(const OdString& text) override {
    newLine();
    m_text += text;
  }
  void echo(const OdString& text) override { m_text += text + u'\n'; }
  void messageBox(const OdString& text, const OdString& caption) override {
    print(QStringLiteral("\n[%1] %2").arg(caption, text));
  }
  bool messageBoxWithCheckBox(const OdString& text, const OdString& caption) override {
    messageBox(text, caption);
    return ticksBoxes;
  }
  void commandTrouble(const OdString& text) override { troubles << text; }

  const OdString& text() const { return m_text; }
  bool shows(const OdString& part) const { return m_text.contains(part); }
  void clear() { m_text.clear(); }

  QStringList troubles;
  bool ticksBoxes = false;

 private:
  void newLine() {
    if (!m_text.isEmpty() && !m_text.endsWith(u'\n')) m_text += u'\n';
  }
  OdString m_text;
};

/// Gives the lines that a test lays down, one for each wait.
class LineSource : public drafton::InputSource {
 public:
  bool waitForInput() override {
    if (lines.empty()) return false;
    const OdString line = lines.front();
    lines.pop_front();
    if (onLine) onLine(line);
    return true;
  }
  void inputQueued() override { ++queued; }

  std::deque<OdString> lines;
  std::function<void(const OdString&)> onLine;
  int queued = 0;
};
