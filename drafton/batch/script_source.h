// The script of a run without a window.
#pragma once

#include "drafton/engine/engine.h"

#include <QStringDecoder>

#include <functional>

class QIODevice;

namespace drafton {

/// Types a script into an engine, line by line. A line is read in pieces, so that a long one costs
/// no memory; one without end fails the script.
class ScriptSource : public InputSource {
 public:
  /// `device` is open and is read to its end.
  explicit ScriptSource(QIODevice& device)
    : m_device(device) {}

  void setEngine(Engine& engine) { m_engine = &engine; }
  /// Types the next piece, at most one line. False at the end of the script and after a failure.
  bool waitForInput() override;

  /// Fails the script if a command waits that nothing more comes for; once, whatever waits.
  void missInput(const CommandProcessor& processor);
  /// Ends the script at the current line; one that goes on tells of it and goes on.
  void fail(const OdString& reason);
  /// From here on the script goes on behind lines that fail; `tell` is given what failure() gives.
  void keepGoing(std::function<void(const OdString& failure)> tell) { m_tell = std::move(tell); }
  bool hasFailed() const { return m_hasFailed; }
  /// True if it has failed and does not go on.
  bool isEnded() const { return m_hasFailed && !m_tell; }
  /// "line 3: LINE x,y" and the reason of the failure.
  OdString failure() const;

 private:
  bool readPiece(OdString& piece, bool& endsLine);
  bool takeWholeLine(const OdString& line);
  /// Goes on in the open drawing of that name; commands that wait in another one keep waiting.
  void activate(const OdString& name);

  QIODevice& m_device;
  Engine* m_engine = nullptr;
  QStringDecoder m_decoder{QStringDecoder::Utf8};
  bool m_inLine = false;
  qint64 m_lineBytes = 0;
  qint64 m_lineNumber = 0;
  OdString m_lineText; // the beginning of the line, for messages
  bool m_hasFailed = false;
  bool m_missesInput = false;
  OdString m_reason;
  std::function<void(const OdString& failure)> m_tell;
};

} // namespace drafton
