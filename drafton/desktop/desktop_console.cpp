#include "drafton/desktop/desktop_console.h"

#include "drafton/engine/translator.h"

#include <QCheckBox>
#include <QMessageBox>

namespace drafton {
namespace {

constexpr qsizetype kMostLines = 2000;

} // namespace

void DesktopConsole::addLine(const OdString& line) {
  m_history << line;
  if (m_history.size() > kMostLines) m_history.removeFirst();
  Q_EMIT historyChanged();
}

void DesktopConsole::dropPrompt() {
  if (m_prompt.isEmpty()) return;
  addLine(std::exchange(m_prompt, {}).trimmed());
  Q_EMIT promptChanged();
}

void DesktopConsole::print(const OdString& text) {
  dropPrompt();
  const bool breaks = text.startsWith(u'\n') || m_history.isEmpty();
  const QStringList lines = (text.startsWith(u'\n') ? text.mid(1) : text).split(u'\n');
  if (!breaks) {
    m_history.last() += lines.first();
    Q_EMIT historyChanged();
  }
  for (qsizetype i = breaks ? 0 : 1; i < lines.size(); ++i) addLine(lines[i]);
}

void DesktopConsole::prompt(const OdString& text) {
  dropPrompt();
  m_prompt = text;
  Q_EMIT promptChanged();
}

void DesktopConsole::echo(const OdString& text) {
  addLine(std::exchange(m_prompt, {}) + text);
  Q_EMIT promptChanged();
}

void DesktopConsole::messageBox(const OdString& text, const OdString& caption) {
  QMessageBox::information(m_window, caption, text);
}

bool DesktopConsole::messageBoxWithCheckBox(const OdString& text, const OdString& caption) {
  QMessageBox box(QMessageBox::Information, caption, text, QMessageBox::Ok, m_window);
  auto* const tick = new QCheckBox(translated(u"Do not show this message again"), &box);
  box.setCheckBox(tick);
  box.exec();
  return tick->isChecked();
}

} // namespace drafton
