// Toolbars, tabs and splitters for the panes of modules.
#pragma once

#include "host/window_controls.h"

#include <QPointer>
#include <QSplitter>
#include <QTabWidget>
#include <QToolButton>

namespace drafton {

class HostToolbar : public QWidget, public IHostToolbar {
 public:
  HostToolbar(QWidget& parent, IHostToolbarEvents& events);

  QWidget* widget() override { return this; }
  void setSizes(const QSize& button, const QSize& picture) override;
  void addButton(int command, const QIcon& icon, const OdString& tip,
                 const OdString& name) override;
  void setIcon(int index, const QIcon& icon) override;
  void setMenu(int index, QMenu* menu) override;
  void setEnabled(int index, bool enabled) override;
  int fixedHeight() const override;

 private:
  QToolButton* button(int index) const;

  IHostToolbarEvents& m_events;
  QSize m_buttonSize{20, 20}, m_pictureSize{16, 16};
  std::vector<QToolButton*> m_buttons;
};

/// A double click on the label of a detachable page takes the page into a window of its own;
/// closing that window puts it back.
class HostTabs : public QTabWidget, public IHostTabs {
  Q_OBJECT

 public:
  explicit HostTabs(QWidget& parent);
  ~HostTabs() override;

  QWidget* widget() override { return this; }
  int addPage(QWidget* page, const OdString& label, bool isDetachable) override;
  void setLabel(int index, const OdString& label) override;
  /// Null while the page stands behind its label.
  QWidget* detachedWindow(int index) const;

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  class Place;
  void showDetached(bool shown);
  void detach(int index);

  std::vector<Place*> m_places;
};

class HostSplitter : public QSplitter, public IHostSplitter {
 public:
  explicit HostSplitter(QWidget& parent);

  QWidget* widget() override { return this; }
  void addColumn(QWidget* content) override;
  std::vector<int> widths() const override;
  void setWidths(const std::vector<int>& widths) override;
  void setBarColor(const QColor& color) override;
  QColor barColor() const;

 protected:
  QSplitterHandle* createHandle() override;

 private:
  QColor m_barColor; ///< invalid for that of the theme
};

class WindowControls : public CKVUnknownImpl<IHostWindowControls> {
 public:
  IHostToolbar* createToolbar(QWidget& parent, IHostToolbarEvents& events) override;
  IHostTabs* createTabs(QWidget& parent) override;
  IHostSplitter* createSplitter(QWidget& parent) override;
};

} // namespace drafton
