// Drafton's window.
#pragma once

#include "drafton/desktop/document_area.h"
#include "drafton/desktop/file_actions.h"
#include "drafton/desktop/status_line.h"
#include "drafton/desktop/window_actions.h"

namespace drafton {

class BlockList;
class CommandLine;
class Inspector;
class LayerManager;
class Printing;
class PropertyBar;

/// Puts the parts together: drawings in the middle, the command line below, menus, toolbars and
/// panes around them. Keys that no part takes go to the command line.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  MainWindow(Desktop& desktop, UserDialogs& dialogs);
  /// Takes the panes of modules away first, whose content is theirs.
  ~MainWindow() override;

  Desktop& desktop() { return m_desktop; }
  FileActions& files() { return *m_files; }
  Printing& printing() { return *m_printing; }
  DocumentArea& documents() { return *m_documents; }
  CommandLine& commandLine() { return *m_commandLine; }
  StatusLine& statusLine() { return *m_statusLine; }
  WindowActions& actions() { return *m_actions; }
  PropertyBar& properties() { return *m_properties; }
  Inspector& inspector() { return *m_inspector; }
  LayerManager& layers() { return *m_layers; }
  BlockList& blocks() { return *m_blocks; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  QMenu* createPopupMenu() override;

 private:
  void connectActions();
  void connectFiles();
  void connectView();
  void connectMenus();
  QDockWidget* addPane(const char* name, const char16_t* title, QWidget* content,
                       Qt::DockWidgetArea area);
  void addPanes();
  void showPane(const char* name);
  void connectPanes();
  void watchKeys(QWidget* former, QWidget* now);
  bool isPaneWindow(const QWidget& window) const;
  void followChoice();
  void follow();
  void showTitle();
  void showMenuAt(const QPoint& place);
  void fillRecent();
  void zoomMiddle(double factor);
  void keepPlaces();
  void restorePlaces();

  Desktop& m_desktop;
  UserDialogs& m_dialogs;
  FileActions* m_files;
  Printing* m_printing;
  WindowActions* m_actions;
  DocumentArea* m_documents;
  CommandLine* m_commandLine;
  StatusLine* m_statusLine;
  PropertyBar* m_properties;
  Inspector* m_inspector;
  LayerManager* m_layers;
  BlockList* m_blocks;
  DraftingAids m_aids;
  bool m_isClosing = false;
};

} // namespace drafton
