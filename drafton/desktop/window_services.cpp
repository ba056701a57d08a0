#include "drafton/desktop/window_services.h"

#include "drafton/desktop/main_window.h"
#include "frame/file_path.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

namespace drafton {
namespace {

constexpr int kRecentColors = 8;

OdString colorKey(int number) { return QStringLiteral("Color%1").arg(number); }

/// Puts a colour in front of those that were chosen before.
void rememberColor(Desktop& desktop, const QColor& color) {
  QStringList names;
  for (int i = 1; i <= kRecentColors; ++i) {
    const OdString name = desktop.setting(colorKey(i).toLatin1().constData()).toString();
    if (!name.isEmpty()) names << name;
  }
  names.removeAll(color.name());
  names.prepend(color.name());
  for (int i = 1; i <= kRecentColors && i <= names.size(); ++i)
    desktop.setSetting(colorKey(i).toLatin1().constData(), names[i - 1]);
}

} // namespace

OdString qtFilter(const OdString& filter) {
  const QStringList parts = filter.split(u'|', Qt::SkipEmptyParts);
  QStringList kinds;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
    kinds << QStringLiteral("%1 (%2)").arg(parts[i], OdString(parts[i + 1]).replace(u';', u' '));
  return kinds.join(QStringLiteral(";;"));
}

WindowServices::WindowServices(MainWindow& window)
  : m_window(&window) {}

QWidget* WindowServices::mainWindow() { return m_window; }

void WindowServices::focusDrawing() {
  if (!m_window) return;
  if (Canvas* const canvas = m_window->documents().canvas()) canvas->setFocus();
}

KVPtr<IHostPane> WindowServices::createPane(const OdString& name, const OdString& title,
                                            QWidget* content, IHostPaneEvents* events) {
  if (!m_window) return nullptr;
  return kvMake<HostPane>(*m_window, name, title, content, events);
}

int WindowServices::registeredMessage(const OdString& name) {
  auto known = m_messages.find(name);
  if (known == m_messages.end()) known = m_messages.insert(name, QEvent::registerEventType());
  return *known;
}

void WindowServices::broadcast(QWidget* window, int message) {
  if (!window) return;
  // Whoever hears it may destroy others.
  std::vector<QPointer<QWidget>> all;
  for (QWidget* const child : window->findChildren<QWidget*>()) all.emplace_back(child);
  for (const QPointer<QWidget>& child : all) {
    QEvent event(static_cast<QEvent::Type>(message));
    if (child) QApplication::sendEvent(child, &event);
  }
}

std::optional<OdString> WindowServices::chooseFolder(const OdString& title) {
  const OdString path = QFileDialog::getExistingDirectory(
      m_window, title, QDir::homePath(), QFileDialog::ShowDirsOnly | QFileDialog::ReadOnly);
  if (path.isEmpty()) return std::nullopt;
  return odpath::fromPlatform(path);
}

std::optional<OdString> WindowServices::chooseFileToOpen(const OdString& title,
                                                         const OdString& filter) {
  const OdString path =
      QFileDialog::getOpenFileName(m_window, title, QDir::homePath(), qtFilter(filter));
  if (path.isEmpty()) return std::nullopt;
  return odpath::fromPlatform(path);
}

std::optional<OdString> WindowServices::chooseFileToSave(const OdString& title,
                                                         const OdString& filter,
                                                         const OdString& name,
                                                         const OdString& extension) {
  QFileDialog dialog(m_window, title, QDir::homePath(), qtFilter(filter));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(extension);
  dialog.selectFile(odpath::toPlatform(name));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return odpath::fromPlatform(dialog.selectedFiles().first());
}

bool WindowServices::confirm(const OdString& text, const OdString& caption) {
  return QMessageBox::question(m_window, caption, text, QMessageBox::Ok | QMessageBox::Cancel) ==
         QMessageBox::Ok;
}

bool WindowServices::chooseColor(QColor& color) {
  if (!m_window) return false;
  Desktop& desktop = m_window->desktop();
  for (int i = 1; i <= kRecentColors; ++i) {
    const QColor recent(desktop.setting(colorKey(i).toLatin1().constData()).toString());
    if (recent.isValid()) QColorDialog::setCustomColor(i - 1, recent);
  }
  const QColor chosen = QColorDialog::getColor(color, m_window);
  if (!chosen.isValid()) return false;
  color = chosen;
  rememberColor(desktop, chosen);
  return true;
}

bool WindowServices::choosePlotStyle(OdString& name) {
  OdDbDatabase* const database = m_window ? m_window->desktop().database() : nullptr;
  if (!database) return false;
  QStringList names;
  if (const OdDbDictionaryPtr styles =
          odrxCast<OdDbDictionary>(database->getPlotStyleNameDictionaryId().openObject().get()))
    for (const OdDbDictionary::Entry& style : styles->entries()) names << style.name;
  if (names.isEmpty()) {
    QMessageBox::information(m_window, QStringLiteral("Drafton"),
                             translated(u"The drawing has no plot styles."));
    return false;
  }
  bool isChosen = false;
  const OdString chosen = QInputDialog::getItem(
      m_window, translated(u"Plot Style"), translated(u"Plot style:"), names,
      static_cast<int>(std::max<qsizetype>(0, names.indexOf(name))), false, &isChosen);
  if (isChosen) name = chosen;
  return isChosen;
}

} // namespace drafton
