#include "drafton/batch/batch_console.h"

namespace drafton {

BatchConsole::~BatchConsole() { flush(); }

void BatchConsole::write(const OdString& text) {
  if (text.isEmpty()) return;
  const QByteArray bytes = text.toUtf8();
  std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), m_out);
  m_isAtLineStart = bytes.endsWith('\n');
}

void BatchConsole::beginLine() {
  if (!m_isAtLineStart) write(QStringLiteral("\n"));
}

void BatchConsole::print(const OdString& text) {
  const bool breaks = text.startsWith(u'\n');
  if (breaks) beginLine();
  write(breaks ? text.mid(1) : text);
}

void BatchConsole::prompt(const OdString& text) {
  beginLine();
  write(text);
}

void BatchConsole::echo(const OdString& text) { write(text + u'\n'); }

void BatchConsole::messageBox(const OdString& text, const OdString& caption) {
  beginLine();
  write(caption + QLatin1String(": ") + text + u'\n');
}

bool BatchConsole::messageBoxWithCheckBox(const OdString& text, const OdString& caption) {
  messageBox(text, caption);
  return false;
}

void BatchConsole::commandTrouble(const OdString& text) {
  if (m_onTrouble) m_onTrouble(text);
}

void BatchConsole::flush() {
  beginLine();
  std::fflush(m_out);
}

} // namespace drafton
