// The controls of the test host: the least that a host needs to have.
#pragma once

#include "host/window_controls.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QMenu>
#include <QSplitter>
#include <QTabWidget>
#include <QToolButton>

#include <optional>

namespace testhost {

class TestToolbar : public QWidget, public IHostToolbar {
 public:
  TestToolbar(QWidget& parent, IHostToolbarEvents& events)
    : QWidget(&parent)
    , m_events(events) {}

  QList<QToolButton*> buttons;

  QWidget* widget() override { return this; }
  void setSizes(const QSize& button, const QSize& picture) override {
    m_button = button;
    m_picture = picture;
  }
  void addButton(int command, const QIcon& icon, const OdString& tip,
                 const OdString& name) override {
    auto* const made = new QToolButton(this);
    made->move(static_cast<int>(buttons.size()) * m_button.width(), 0);
    made->setIcon(icon);
    made->setFixedSize(m_button);
    made->setIconSize(m_picture);
    made->setToolTip(tip);
    made->setAccessibleName(name);
    connect(made, &QToolButton::clicked, this, [this, made, command] {
      if (!made->menu()) m_events.buttonPressed(command);
    });
    buttons << made;
  }
  void setIcon(int index, const QIcon& icon) override { buttons[index]->setIcon(icon); }
  void setMenu(int index, QMenu* menu) override {
    buttons[index]->setMenu(menu);
    buttons[index]->setPopupMode(QToolButton::InstantPopup);
  }
  void setEnabled(int index, bool enabled) override { buttons[index]->setEnabled(enabled); }
  int fixedHeight() const override { return m_button.height() + 5; }

 private:
  IHostToolbarEvents& m_events;
  QSize m_button, m_picture;
};

class TestTabs : public QTabWidget, public IHostTabs {
 public:
  using QTabWidget::QTabWidget;
  bool detachable = false;

  QWidget* widget() override { return this; }
  int addPage(QWidget* page, const OdString& label, bool isDetachable) override {
    detachable = isDetachable;
    return addTab(page, label);
  }
  void setLabel(int index, const OdString& label) override { setTabText(index, label); }
};

class TestSplitter : public QSplitter, public IHostSplitter {
 public:
  using QSplitter::QSplitter;
  QList<std::vector<int>> asked;             ///< the widths that were asked for, one by one
  std::optional<std::vector<int>> pretended; ///< what it says instead of its widths

  QWidget* widget() override { return this; }
  void addColumn(QWidget* content) override {
    content->setMinimumWidth(0);
    addWidget(content);
  }
  std::vector<int> widths() const override {
    const QList<int> all = sizes();
    return pretended.value_or(std::vector<int>(all.begin(), all.end()));
  }
  void setWidths(const std::vector<int>& widths) override {
    asked << widths;
    setSizes(QList<int>(widths.begin(), widths.end()));
  }
  void setBarColor(const QColor&) override {}
};

class TestControls : public CKVUnknownImpl<IHostWindowControls> {
 public:
  bool hasToolbars = true, hasTabs = true, hasSplitters = true;
  TestToolbar* toolbar = nullptr; ///< the last that was made; its parent's
  TestTabs* tabs = nullptr;
  TestSplitter* splitter = nullptr;

  IHostToolbar* createToolbar(QWidget& parent, IHostToolbarEvents& events) override {
    return hasToolbars ? toolbar = new TestToolbar(parent, events) : nullptr;
  }
  IHostTabs* createTabs(QWidget& parent) override {
    return hasTabs ? tabs = new TestTabs(&parent) : nullptr;
  }
  IHostSplitter* createSplitter(QWidget& parent) override {
    return hasSplitters ? splitter = new TestSplitter(&parent) : nullptr;
  }
};

} // namespace testhost
