#include "drafton/desktop/file_actions.h"

#include "drafton/engine/drawing_files.h"
#include "frame/file_path.h"
#include "frame/system_services.h"

#include <QDir>
#include <QFileInfo>
#include <QTimer>

namespace drafton {
namespace {

constexpr int kMostRecent = 9;
const OdString kKinds = QStringLiteral("%1 (*.dxf *.DXF *.dwg *.DWG);;%2 (*)");

OdString kinds() { return kKinds.arg(translated(u"Drawings"), translated(u"All files")); }

OdString recentKey(int number) { return QStringLiteral("Recent%1").arg(number); }

} // namespace

FileActions::FileActions(Desktop& desktop, UserDialogs& dialogs, QObject* parent)
  : QObject(parent)
  , m_desktop(desktop)
  , m_dialogs(dialogs) {}

void FileActions::whenSettled(std::function<void()> action) {
  bool isBusy = m_desktop.input().isWaiting();
  for (const auto& document : m_desktop.engine().documents().documents())
    isBusy = isBusy || document->processor().isBusy();
  if (isBusy || m_desktop.isBusy()) {
    m_desktop.engine().cancelAll();
    m_desktop.input().takeUp();
  }
  if (!m_desktop.input().isWaiting()) return action();
  QTimer::singleShot(0, this, [this, action = std::move(action)] { whenSettled(action); });
}

OdString FileActions::folder() {
  if (Document* const document = m_desktop.document(); document && !document->path().isEmpty())
    return QFileInfo(odpath::toPlatform(document->path())).absolutePath();
  const QStringList recent = recentFiles();
  return recent.isEmpty() ? QDir::homePath() : QFileInfo(recent.first()).absolutePath();
}

void FileActions::newDrawing() {
  m_desktop.engine().documents().newDocument();
  m_desktop.input().takeUp();
}

void FileActions::open() {
  for (const OdString& path :
       m_dialogs.chooseToOpen(translated(u"Open Drawing"), folder(), kinds()))
    openFile(path);
}

bool FileActions::openFile(const OdString& path) {
  const OdString whole = QFileInfo(path).absoluteFilePath();
  try {
    m_desktop.engine().documents().open(odpath::fromPlatform(whole));
    m_desktop.input().takeUp();
    remember(whole);
    return true;
  } catch (const OdFileError& error) {
    m_dialogs.warn(translated(u"%1 cannot be opened: %2").arg(whole, error.reason()));
  } catch (const OdError& error) {
    m_dialogs.warn(translated(u"%1 cannot be opened: %2").arg(whole, error.description()));
  }
  return false;
}

bool FileActions::saveTo(Document& document, const OdString& path) {
  try {
    document.save(odpath::fromPlatform(path));
  } catch (const OdFileError& error) {
    m_dialogs.warn(translated(u"The drawing is not saved. %1: %2").arg(path, error.reason()));
    return false;
  } catch (const CommandFailure& failure) {
    m_dialogs.warn(failure.message());
    return false;
  }
  m_desktop.engine().print(translated(u"Saved to %1.").arg(path));
  remember(path);
  m_desktop.input().takeUp();
  return true;
}

bool FileActions::save(Document& document) {
  if (document.path().isEmpty() || !document.lostBySaving().isEmpty()) return saveAs(document);
  if (document.database()->isFileChangedByOthers() &&
      !m_dialogs.confirm(
          translated(u"%1 was changed by another program. Save over it?").arg(document.name()),
          translated(u"&Save")))
    return false;
  return saveTo(document, odpath::toPlatform(document.path()));
}

bool FileActions::saveAs(Document& document) {
  const QStringList lost = document.lostBySaving();
  if (!lost.isEmpty() &&
      !m_dialogs.confirm(
          translated(u"The copy will lack what Drafton does not understand (%1). Save it?")
              .arg(lost.join(QStringLiteral(", "))),
          translated(u"&Save")))
    return false;
  const OdString name = document.path().isEmpty() ? QDir(folder()).filePath(document.name())
                                                  : odpath::toPlatform(document.path());
  OdString path = m_dialogs.chooseToSave(translated(u"Save Drawing As"), name, kinds());
  if (path.isEmpty()) return false;
  if (QFileInfo(path).suffix().isEmpty()) path += QLatin1String(".dxf");
  if (!isDrawingName(odpath::fromPlatform(path))) {
    m_dialogs.warn(translated(u"%1: drawings are saved as .dxf or .dwg files.").arg(path));
    return false;
  }
  return saveTo(document, QFileInfo(path).absoluteFilePath());
}

bool FileActions::close(Document& document) {
  if (document.isModified()) {
    m_desktop.engine().documents().activate(document);
    switch (m_dialogs.askSave(document.name())) {
    case UserDialogs::Save::kCancel:
      return false;
    case UserDialogs::Save::kSave:
      if (!save(document)) return false;
      break;
    case UserDialogs::Save::kDiscard:
      break;
    }
  }
  m_desktop.engine().documents().close(document);
  m_desktop.input().takeUp();
  return true;
}

bool FileActions::closeAll() {
  while (Document* const document = m_desktop.document())
    if (!close(*document)) return false;
  return true;
}

QStringList FileActions::recentFiles() {
  QStringList files;
  for (int i = 1; i <= kMostRecent; ++i) {
    const OdString file = m_desktop.setting(recentKey(i).toLatin1().constData()).toString();
    if (!file.isEmpty()) files << file;
  }
  return files;
}

void FileActions::remember(const OdString& path) {
  QStringList files = recentFiles();
  files.removeAll(path);
  files.prepend(path);
  for (int i = 1; i <= kMostRecent && i <= files.size(); ++i)
    m_desktop.setSetting(recentKey(i).toLatin1().constData(), files[i - 1]);
}

} // namespace drafton
