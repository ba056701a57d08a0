#include "drafton/desktop/window_services.h"

#include "drafton/desktop/color_choice.h"
#include "drafton/desktop/exchange.h"
#include "drafton/desktop/give_keys.h"
#include "drafton/desktop/help_window.h"
#include "drafton/desktop/idle_work.h"
#include "drafton/desktop/inspector_control.h"
#include "drafton/desktop/main_window.h"
#include "drafton/desktop/message_boxes.h"
#include "drafton/desktop/window_controls.h"
#include "frame/file_path.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>

namespace drafton {
namespace {

/// Where the dialogs of modules were last.
constexpr char kFolderKey[] = "ModuleFolder";

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
  if (Canvas* const canvas = m_window->documents().canvas()) giveKeys(*canvas);
}

KVPtr<IHostPane> WindowServices::createPane(const OdString& name, const OdString& title,
                                            QWidget* content, IHostPaneEvents* events) {
  if (!m_window) return nullptr;
  const auto pane = kvMake<HostPane>(*m_window, name, title, content, events);
  if (!pane->begin()) return nullptr;
  return pane;
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
    HostMessage event(message);
    if (child) QApplication::sendEvent(child, &event);
  }
}

QString WindowServices::lastFolder() const {
  const QString folder = m_window ? m_window->desktop().setting(kFolderKey).toString() : QString();
  return !folder.isEmpty() && QDir(folder).exists() ? folder : QDir::homePath();
}

std::optional<OdString> WindowServices::chosen(const QString& path, const QString& folder) {
  if (path.isEmpty()) return std::nullopt;
  if (m_window) m_window->desktop().setSetting(kFolderKey, folder);
  return odpath::fromPlatform(path);
}

std::optional<OdString> WindowServices::chooseFolder(const OdString& title) {
  const QString path = QFileDialog::getExistingDirectory(
      m_window, title, lastFolder(), QFileDialog::ShowDirsOnly | QFileDialog::ReadOnly);
  return chosen(path, path);
}

std::optional<OdString> WindowServices::chooseFileToOpen(const OdString& title,
                                                         const OdString& filter) {
  const QString path =
      QFileDialog::getOpenFileName(m_window, title, lastFolder(), qtFilter(filter));
  return chosen(path, QFileInfo(path).path());
}

std::optional<OdString> WindowServices::chooseFileToSave(const OdString& title,
                                                         const OdString& filter,
                                                         const OdString& name,
                                                         const OdString& extension) {
  QFileDialog dialog(m_window, title, lastFolder(), qtFilter(filter));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(extension);
  dialog.selectFile(odpath::toPlatform(name));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  const QString path = dialog.selectedFiles().first();
  return chosen(path, QFileInfo(path).path());
}

bool WindowServices::confirm(const OdString& text, const OdString& caption) {
  return QMessageBox::question(m_window, caption, text, QMessageBox::Ok | QMessageBox::Cancel) ==
         QMessageBox::Ok;
}

bool WindowServices::chooseColor(QColor& color) {
  if (!m_window) return false;
  const std::optional<QColor> chosen = askColor(m_window->desktop(), color, m_window);
  if (chosen) color = *chosen;
  return chosen.has_value();
}

std::vector<QColor> WindowServices::recentColors() {
  return m_window ? drafton::recentColors(m_window->desktop()) : std::vector<QColor>();
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

void offerWindowServices(HostServices& services, MainWindow& window) {
  services.offer(IHostWindowServices::kId, kvMake<WindowServices>(window).get());
  services.offer(IHostWindowControls::kId, kvMake<WindowControls>().get());
  services.offer(IHostInspectorService::kId, kvMake<InspectorService>().get());
  services.offer(IHostMessageBoxes::kId, kvMake<MessageBoxes>(&window).get());
  services.offer(IHostIdle::kId, kvMake<IdleWork>().get());
  services.offer(IHelpService::kId, kvMake<HelpService>(window).get());
  const auto formats = std::make_shared<ExchangeFormats>();
  services.offer(IHostClipboard::kId, kvMake<SystemClipboard>(formats).get());
  services.offer(IHostDragDrop::kId, kvMake<DragDrop>(formats).get());
}

} // namespace drafton
