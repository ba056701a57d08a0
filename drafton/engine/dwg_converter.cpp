#include "drafton/engine/dwg_converter.h"

#include "drafton/engine/translator.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>

namespace drafton {
namespace {

constexpr int kPause = 50;               // milliseconds between two looks
constexpr qsizetype kKeptOutput = 2'000; // bytes of what a converter says

/// The end of what the converter said, in one line.
OdString lastWords(const QByteArray& said) {
  OdString text = OdString::fromLocal8Bit(said).simplified();
  for (QChar& c : text)
    if (!c.isPrint()) c = u'?';
  return text;
}

OdString withWords(const OdString& trouble, const QByteArray& said) {
  const OdString words = lastWords(said);
  return words.isEmpty() ? trouble : translated(u"%1. It said: %2").arg(trouble, words);
}

void stop(QProcess& process) {
  process.terminate();
  constexpr int kGrace = 1'000;
  if (process.waitForFinished(kGrace)) return;
  process.kill();
  process.waitForFinished(-1);
}

/// The words of a command line, with two files in the places for them; empty if it lacks one.
QStringList filledIn(const OdString& commandLine, const OdString& input, const OdString& output) {
  const std::pair<QLatin1String, OdString> places[] = {
      {QLatin1String("{input}"), input},
      {QLatin1String("{output}"), output},
      {QLatin1String("{inputfolder}"), QFileInfo(input).path()},
      {QLatin1String("{outputfolder}"), QFileInfo(output).path()},
  };
  QStringList words = QProcess::splitCommand(commandLine);
  bool takesInput = false, takesOutput = false;
  for (OdString& word : words) {
    takesInput = takesInput || word.contains(QLatin1String("{input"));
    takesOutput = takesOutput || word.contains(QLatin1String("{output"));
    // From the left, so that what is put in is not looked at again.
    for (qsizetype at = 0; at < word.size(); ++at)
      for (const auto& [place, path] : places) {
        if (!QStringView(word).mid(at).startsWith(place)) continue;
        word.replace(at, place.size(), path);
        at += path.size() - 1;
        break;
      }
  }
  return takesInput && takesOutput ? words : QStringList();
}

/// Waits until a converter has ended, and keeps the end of what it says. Gives why it was stopped
/// before that; empty if it was not.
OdString waitFor(QProcess& process, int patience, const std::function<bool()>& isCancelled,
                 QByteArray& said) {
  QElapsedTimer timer;
  timer.start();
  for (;;) {
    const bool ended = process.waitForFinished(kPause) || process.state() == QProcess::NotRunning;
    said = (said + process.readAll()).right(kKeptOutput);
    if (ended) return {};
    if (isCancelled && isCancelled()) {
      stop(process);
      return translated(u"the conversion was cancelled");
    }
    if (timer.elapsed() <= patience) continue;
    stop(process);
    return withWords(translated(u"the converter %1 was stopped, since it did not end within %2 "
                                u"seconds")
                         .arg(process.program())
                         .arg((patience + 999) / 1000),
                     said);
  }
}

/// What went wrong with a converter that has ended.
OdString troubleOf(const QProcess& process, const QByteArray& said, const OdString& output) {
  const OdString program = process.program();
  if (process.exitStatus() != QProcess::NormalExit)
    return withWords(translated(u"the converter %1 crashed").arg(program), said);
  if (process.exitCode() != 0)
    return withWords(translated(u"the converter %1 failed with exit code %2")
                         .arg(program)
                         .arg(process.exitCode()),
                     said);
  const QFileInfo made(output);
  if (!made.isFile() || made.size() == 0)
    return withWords(translated(u"the converter %1 made no file").arg(program), said);
  return {};
}

} // namespace

OdString DwgConverter::convert(const OdString& input, const OdString& output,
                               const std::function<bool()>& isCancelled) const {
  QStringList words = filledIn(m_commandLine, input, output);
  if (words.isEmpty())
    return translated(u"the converter's command line \"%1\" has to hold {input} and {output}")
        .arg(m_commandLine);
  const OdString program = words.takeFirst();

  QProcess process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.setStandardInputFile(QProcess::nullDevice());
  process.start(program, words);
  if (!process.waitForStarted())
    return translated(u"the converter %1 does not start: %2").arg(program, process.errorString());
  QByteArray said;
  if (const OdString why = waitFor(process, m_patience, isCancelled, said); !why.isEmpty())
    return why;
  return troubleOf(process, said, output);
}

} // namespace drafton
