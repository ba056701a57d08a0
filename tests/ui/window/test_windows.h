// The windows of the test host.
#pragma once

#include "host/window_services.h"

#include <QColor>
#include <QEvent>
#include <QPointer>
#include <QVBoxLayout>
#include <QWidget>

namespace testhost {

/// A pane that is a window of its own.
class TestPane : public CKVUnknownImpl<IHostPane> {
  /// Tells the pane's owner of the room for its content.
  class Frame : public QWidget {
   public:
    Frame(QWidget* parent, QWidget* content, IHostPaneEvents* events)
      : QWidget(parent, Qt::Tool)
      , m_events(events) {
      content->installEventFilter(this);
    }
    bool eventFilter(QObject* content, QEvent* event) override {
      if (event->type() == QEvent::Resize)
        m_events->paneResized(static_cast<QWidget*>(content)->size());
      return false;
    }

   private:
    IHostPaneEvents* m_events;
  };

 public:
  TestPane(QWidget* parent, QWidget* content, IHostPaneEvents* events)
    : frame(new Frame(parent, content, events))
    , m_events(events) {
    auto* const layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
    frame->resize(300, 400);
  }
  ~TestPane() override {
    if (m_isKept) m_events->paneDestroyed();
    delete frame;
  }

  bool begin() { return m_isKept = m_events->paneCreated(); }

  QPointer<QWidget> frame;
  QPoint corner;

  bool isVisible() const override { return frame->isVisible(); }
  void show(bool) override { frame->show(); }
  void hide() override { frame->hide(); }
  void close() override {
    frame->hide();
    m_events->paneClosed();
  }
  /// The user brings the pane back by a menu of the host's.
  void bringBack() {
    frame->show();
    m_events->paneShown();
  }
  void setTitle(const OdString& title) override { frame->setWindowTitle(title); }
  void place(const QPoint& at, const QSize& size) override {
    corner = at;
    frame->resize(size);
  }
  QWidget* window() const override { return frame; }

 private:
  IHostPaneEvents* m_events;
  bool m_isKept = false;
};

/// Hands out panes, and answers dialogs as it is told.
class TestWindows : public CKVUnknownImpl<IHostWindowServices> {
 public:
  QWidget main;
  TestPane* pane = nullptr; ///< the last that was made; not owned
  std::optional<OdString> chosenFolder;
  OdString folderTitle;
  QMap<OdString, int> messages;
  QList<QPair<QWidget*, int>> broadcasts;
  int focusedDrawing = 0;

  QWidget* mainWindow() override { return &main; }
  void focusDrawing() override { ++focusedDrawing; }
  KVPtr<IHostPane> createPane(const OdString&, const OdString& title, QWidget* content,
                              IHostPaneEvents* events) override {
    const auto made = kvMake<TestPane>(&main, content, events);
    if (!made->begin()) return nullptr;
    made->setTitle(title);
    pane = made.get();
    return made;
  }
  int registeredMessage(const OdString& name) override {
    if (!messages.contains(name)) messages[name] = QEvent::registerEventType();
    return messages[name];
  }
  void broadcast(QWidget* window, int message) override { broadcasts.append({window, message}); }
  std::optional<OdString> chooseFolder(const OdString& title) override {
    folderTitle = title;
    return chosenFolder;
  }
  std::optional<OdString> chooseFileToOpen(const OdString&, const OdString&) override { return {}; }
  std::optional<OdString> chooseFileToSave(const OdString&, const OdString&, const OdString&,
                                           const OdString&) override {
    return {};
  }
  bool confirm(const OdString&, const OdString&) override { return false; }
  bool chooseColor(QColor&) override { return false; }
  std::vector<QColor> recentColors() override { return {}; }
  bool choosePlotStyle(OdString&) override { return false; }
};

/// Remembers which pages were asked for.
class TestHelp : public CKVUnknownImpl<IHelpService> {
 public:
  QStringList topics;
  bool showTopic(const OdString& topic) override {
    topics << topic;
    return true;
  }
};

} // namespace testhost
