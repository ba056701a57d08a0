// The status bar: where the cursor is, and the switches of the drafting aids.
#pragma once

#include "drafton/desktop/drafting_aids.h"

#include <QStatusBar>

class QLabel;
class QToolButton;

namespace drafton {

class Canvas;

class StatusLine : public QStatusBar {
  Q_OBJECT

 public:
  StatusLine(Desktop& desktop, QWidget* parent = nullptr);

  /// Shows the place of the canvas' cursor; null for no canvas.
  void showPlace(const Canvas* canvas);
  OdString placeText() const;
  QToolButton* toggle(Aid aid) const;

 private:
  void showAids();
  void chooseSnaps();

  Desktop& m_desktop;
  DraftingAids m_aids;
  QLabel* m_place;
  std::vector<QToolButton*> m_toggles; ///< in the order of draftingAids()
};

} // namespace drafton
