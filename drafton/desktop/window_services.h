// The host's windows as modules use them.
#pragma once

#include "drafton/desktop/host_pane.h"

#include <QHash>

namespace drafton {

class HostServices;
class MainWindow;

/// Gives modules panes, messages and dialogs of the main window. Lives as long as somebody holds
/// it; behind the window's end it does nothing.
class WindowServices : public CKVUnknownImpl<IHostWindowServices> {
 public:
  explicit WindowServices(MainWindow& window);

  QWidget* mainWindow() override;
  void focusDrawing() override;
  KVPtr<IHostPane> createPane(const OdString& name, const OdString& title, QWidget* content,
                              IHostPaneEvents* events) override;
  int registeredMessage(const OdString& name) override;
  void broadcast(QWidget* window, int message) override;
  std::optional<OdString> chooseFolder(const OdString& title) override;
  std::optional<OdString> chooseFileToOpen(const OdString& title, const OdString& filter) override;
  std::optional<OdString> chooseFileToSave(const OdString& title, const OdString& filter,
                                           const OdString& name,
                                           const OdString& extension) override;
  bool confirm(const OdString& text, const OdString& caption) override;
  bool chooseColor(QColor& color) override;
  std::vector<QColor> recentColors() override;
  bool choosePlotStyle(OdString& name) override;

 private:
  QString lastFolder() const;
  /// A path that the user has chosen, with the folder for the next time.
  std::optional<OdString> chosen(const QString& path, const QString& folder);

  QPointer<MainWindow> m_window;
  QHash<OdString, int> m_messages;
};

/// Offers modules all that a window has for them: panes, dialogs and messages, controls, the
/// manual, the system's clipboard, and drag and drop.
void offerWindowServices(HostServices& services, MainWindow& window);

/// A filter of the form "Name|*.ext;*.ext|Name|*.ext||" as Qt writes it.
OdString qtFilter(const OdString& filter);

} // namespace drafton
