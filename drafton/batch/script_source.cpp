#include "drafton/batch/script_source.h"

#include <QIODevice>

namespace drafton {
namespace {

constexpr qint64 kPieceBytes = 1 << 16;
constexpr qint64 kLongestLine = 1 << 24;
constexpr qsizetype kShownText = 200;

} // namespace

bool ScriptSource::readPiece(OdString& piece, bool& endsLine) {
  QByteArray bytes = m_device.readLine(kPieceBytes);
  if (bytes.isEmpty()) return false;
  // A piece that is no whole line could part a caret from its letter.
  if (bytes.endsWith('^')) bytes += m_device.read(1);
  m_lineBytes = (m_inLine ? m_lineBytes : 0) + bytes.size();
  endsLine = bytes.endsWith('\n') || m_device.atEnd();
  if (bytes.endsWith('\n')) bytes.chop(1);
  if (bytes.endsWith('\r') && endsLine) bytes.chop(1);
  piece = m_decoder.decode(bytes);
  return true;
}

bool ScriptSource::waitForInput() {
  OdString piece;
  bool endsLine = false;
  if (isEnded() || m_engine->isExiting()) return false;
  if (!readPiece(piece, endsLine)) {
    // A command that was run by another is given up as soon as nothing more comes, and would be
    // gone once the script is at its end.
    missInput(m_engine->currentProcessor());
    return false;
  }
  const bool startsLine = !std::exchange(m_inLine, !endsLine);
  if (startsLine) {
    ++m_lineNumber;
    m_lineText = piece.left(kShownText);
    if (endsLine && takeWholeLine(piece)) return true;
  }
  if (m_lineBytes > kLongestLine) {
    fail(translated(u"The line is longer than %1 bytes.").arg(kLongestLine));
    return false;
  }
  m_engine->type(piece);
  if (endsLine) m_engine->type(QStringLiteral("\n"));
  return true;
}

/// True for a line that is not typed: a comment, a tool, or the drawing to go on in.
bool ScriptSource::takeWholeLine(const OdString& line) {
  if (line.startsWith(u'#') && !m_engine->currentProcessor().isBusy()) return true;
  if (line.startsWith(QLatin1String("TOOL:"))) {
    if (!m_engine->completion().runOffer(QStringLiteral("tools"), line))
      fail(translated(u"There is no tool \"%1\".").arg(line.mid(5).left(kShownText)));
    return true;
  }
  if (line.startsWith(QLatin1String("DOCUMENT:"))) {
    activate(line.mid(9));
    return true;
  }
  return false;
}

void ScriptSource::activate(const OdString& name) {
  for (const auto& document : m_engine->documents().documents())
    if (document->name() == name) return m_engine->documents().activate(*document);
  fail(translated(u"There is no open drawing \"%1\".").arg(name.left(kShownText)));
}

void ScriptSource::missInput(const CommandProcessor& processor) {
  const QStringList waiting = processor.runningCommands();
  if (waiting.isEmpty() || std::exchange(m_missesInput, true)) return;
  fail(translated(u"The script ends while %1 waits for input.").arg(waiting.last()));
}

void ScriptSource::fail(const OdString& reason) {
  if (isEnded()) return;
  m_hasFailed = true;
  m_reason = reason;
  if (m_tell) m_tell(failure());
}

OdString ScriptSource::failure() const {
  return translated(u"line %1: %2\n%3").arg(m_lineNumber).arg(m_lineText, m_reason);
}

} // namespace drafton
