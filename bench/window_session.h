// Drafton's window with the palettes in it, in this process.
#pragma once

#include "drafton/desktop/main_window.h"

#include <QListView>
#include <QSet>
#include <QTreeView>

namespace bench {

/// The window as the program opens it, on catalogs and settings of the caller's: with a new drawing
/// and the palettes open.
class WindowSession : private QObject {
 public:
  /// `catalogs` are folders with ";" between them. Returns as soon as the window can be used; the
  /// tools of large catalogs come later.
  WindowSession(const QString& catalogs, const QString& settingsFile);
  ~WindowSession() override;

  drafton::Desktop& desktop() { return m_desktop; }
  drafton::MainWindow& window() { return m_window; }
  drafton::Canvas& canvas() { return *m_window.documents().canvas(); }

  /// The window shows the drawing and the catalogs, both painted, and waits for a command.
  bool isUsable();
  /// Types as a user does; true once the command of that name has asked for something.
  bool types(const QString& command);
  /// Does all that waits to be done, painting included.
  static void settle();
  /// How many rows of the tree have nothing below them: its tools, once all of them are there.
  int tools() const;

  /// The parts of the palette window; null if it did not open.
  QTreeView* tree() const { return part<QTreeView>(u"Catalogs"); }
  QListView* list() const { return part<QListView>(u"Tools"); }
  /// Presses a button of the palette window's toolbar, counted from 0.
  void press(int button);
  /// Chooses an entry of the menu that a button drops down.
  void choose(int button, int entry);
  /// Selects the palette of that name in the tree; false if there is none.
  bool selectPalette(const QString& name);

 private:
  template <class T>
  T* part(QStringView name) const {
    for (T* const widget : m_window.findChildren<T*>())
      if (widget->accessibleName() == name) return widget;
    return nullptr;
  }
  QToolButton* button(int index) const;
  bool eventFilter(QObject* object, QEvent* event) override;

  QSet<QObject*> m_painted;
  drafton::Desktop m_desktop;
  drafton::UserDialogs m_dialogs;
  drafton::MainWindow m_window;
};

} // namespace bench
