#include "drafton/desktop/autosave.h"

#include "frame/file_path.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QUuid>

namespace drafton {
namespace {

constexpr int kMillisecondsPerMinute = 60 * 1000;
const OdString kLock = QStringLiteral("running");

/// Beside each copy: the drawing's name and its file, a line each.
void writeNote(const OdString& file, const Document& document) {
  QFile note(file);
  if (!note.open(QIODevice::WriteOnly)) return;
  note.write((document.name() + u'\n' + odpath::toPlatform(document.path())).toUtf8());
}

} // namespace

Autosave::Autosave(Desktop& desktop, OdString folder, QObject* parent)
  : QObject(parent)
  , m_desktop(desktop)
  , m_folder(QDir(folder).filePath(QUuid::createUuid().toString(QUuid::WithoutBraces))) {
  connect(&m_timer, &QTimer::timeout, this, &Autosave::saveNow);
}

Autosave::~Autosave() {
  if (!m_lock) return;
  m_lock.reset();
  QDir(m_folder).removeRecursively();
}

void Autosave::setInterval(int minutes) {
  minutes > 0 ? m_timer.start(minutes * kMillisecondsPerMinute) : m_timer.stop();
}

void Autosave::saveNow() {
  int number = 0;
  for (const auto& document : m_desktop.engine().documents().documents()) {
    ++number;
    // What a running command has half done is no drawing to come back to.
    if (!document->isModified() || document->processor().isBusy()) continue;
    if (!m_lock) {
      QDir().mkpath(m_folder);
      m_lock = std::make_unique<QLockFile>(QDir(m_folder).filePath(kLock));
      m_lock->setStaleLockTime(0);
      m_lock->tryLock(0);
    }
    const OdString copy = QDir(m_folder).filePath(QStringLiteral("%1.dxf").arg(number));
    try {
      document->database()->writeFile(odpath::fromPlatform(copy));
      writeNote(copy + QStringLiteral(".txt"), *document);
    } catch (const OdError& error) {
      m_desktop.engine().print(translated(u"No copy of %1 could be kept: %2")
                                   .arg(document->name(), error.description()));
    }
  }
}

std::vector<LostDrawing> Autosave::findLost() {
  std::vector<LostDrawing> lost;
  m_lostFolders.clear();
  const QDir all = QFileInfo(m_folder).dir();
  for (const QFileInfo& folder : all.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    if (folder.absoluteFilePath() == QFileInfo(m_folder).absoluteFilePath()) continue;
    QLockFile lock(QDir(folder.absoluteFilePath()).filePath(kLock));
    lock.setStaleLockTime(0);
    // Another program that runs holds its own.
    if (!lock.tryLock(0)) continue;
    m_lostFolders << folder.absoluteFilePath();
    const QDir inside(folder.absoluteFilePath());
    for (const OdString& copy : inside.entryList({QStringLiteral("*.dxf")}, QDir::Files)) {
      QFile note(inside.filePath(copy + QStringLiteral(".txt")));
      if (!note.open(QIODevice::ReadOnly)) continue;
      const QStringList lines = OdString::fromUtf8(note.readAll()).split(u'\n');
      lost.push_back({inside.filePath(copy), lines.value(0), lines.value(1)});
    }
  }
  return lost;
}

bool Autosave::open(const LostDrawing& lost) {
  try {
    Document& document = m_desktop.engine().documents().open(odpath::fromPlatform(lost.copy));
    OdDbDatabase& database = *document.database();
    const OdString title = QFileInfo(lost.name).completeBaseName();
    const OdString file = lost.file.isEmpty()
                              ? QDir::home().filePath(translated(u"%1-recovered.dxf").arg(title))
                              : lost.file;
    database.setFileName(odpath::fromPlatform(file));
    // It differs from its file, and so has to count as changed.
    const double scale = database.sysVarReal("LTSCALE");
    database.setSysVar(QStringLiteral("LTSCALE"), scale * 2);
    database.setSysVar(QStringLiteral("LTSCALE"), scale);
    m_desktop.input().takeUp();
    return true;
  } catch (const OdError& error) {
    m_desktop.engine().print(
        translated(u"%1 cannot be opened: %2").arg(lost.copy, error.description()));
    return false;
  }
}

void Autosave::forget() {
  for (const OdString& folder : std::exchange(m_lostFolders, {})) QDir(folder).removeRecursively();
}

void recover(Autosave& autosave, UserDialogs& dialogs) {
  const std::vector<LostDrawing> lost = autosave.findLost();
  if (lost.empty()) return;
  QStringList names;
  for (const LostDrawing& drawing : lost) names << drawing.name;
  switch (dialogs.askLost(names)) {
  case UserDialogs::Lost::kLater:
    return;
  case UserDialogs::Lost::kOpen: {
    bool isOpen = true;
    for (const LostDrawing& drawing : lost) isOpen = autosave.open(drawing) && isOpen;
    // What cannot be read now may be read by somebody later.
    if (!isOpen) return;
    autosave.saveNow();
    break;
  }
  case UserDialogs::Lost::kDelete:
    break;
  }
  autosave.forget();
}

} // namespace drafton
