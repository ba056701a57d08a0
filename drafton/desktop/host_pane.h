// Panes of modules in the main window.
#pragma once

#include "host/window_services.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QPointer>

namespace drafton {

/// A dock that tells whoever owns its content when the user closes it or brings it back, and when
/// it goes.
class PaneDock : public QDockWidget {
  Q_OBJECT

 public:
  PaneDock(const OdString& name, const OdString& title, QWidget* content, IHostPaneEvents* events,
           QMainWindow& window);

  /// Tells that the pane is there; false if its owner gave it up.
  bool begin();
  /// Tells that the pane goes, and destroys it.
  void end();
  /// Tells the room of the content.
  void tellRoom();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  IHostPaneEvents* m_events;
};

/// A module's hold on its pane. When the window goes first, nothing is left to show, and the hold
/// stays harmless.
class HostPane : public CKVUnknownImpl<IHostPane> {
 public:
  /// The dock comes hidden, where the settings have it; a new one at the right side.
  HostPane(QMainWindow& window, const OdString& name, const OdString& title, QWidget* content,
           IHostPaneEvents* events);
  ~HostPane() override;
  /// Tells that the pane is there; false, with the pane gone, if its owner gave it up.
  bool begin();

  bool isVisible() const override;
  void show(bool activate) override;
  void hide() override;
  void close() override;
  void setTitle(const OdString& title) override;
  void place(const QPoint& corner, const QSize& size) override;
  QWidget* window() const override;

 private:
  QMainWindow& m_window;
  bool m_isNew = false; ///< no place was kept for it
  QPointer<PaneDock> m_dock;
};

} // namespace drafton
