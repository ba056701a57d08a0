// The open drawings in tabs, with the tabs of their layouts.
#pragma once

#include "drafton/desktop/canvas.h"

#include <QStackedWidget>
#include <QTabBar>

namespace drafton {

/// One canvas a document. Which one is shown follows the engine, and tells it when the user changes
/// tabs.
class DocumentArea : public QWidget {
  Q_OBJECT

 public:
  explicit DocumentArea(Desktop& desktop, QWidget* parent = nullptr);

  /// The canvas of the active document; null if none is open.
  Canvas* canvas() const;
  QTabBar& documentTabs() { return *m_tabs; }
  QTabBar& layoutTabs() { return *m_layouts; }

 Q_SIGNALS:
  /// Another canvas is shown, or none.
  void canvasChanged();
  void cursorMoved();
  void choiceChanged();
  void menuWanted(const QPoint& globalPosition);
  void propertiesWanted();
  void closeWanted(drafton::Document* document);
  /// The user chose what the page without drawings offers: the name of an action.
  void actionWanted(const QString& name);

 private:
  void activate(Document* document);
  void remove(Document* document);
  void follow();
  void followLayouts();
  void chooseLayout(int tab);
  Canvas* canvasAt(int tab) const;
  int tabOf(const Document* document) const;

  Desktop& m_desktop;
  QTabBar* m_tabs;
  QTabBar* m_layouts;
  QStackedWidget* m_stack;
  QWidget* m_emptyPage;
};

} // namespace drafton
