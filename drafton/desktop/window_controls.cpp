#include "drafton/desktop/window_controls.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QPainter>
#include <QTabBar>
#include <QVBoxLayout>

namespace drafton {
namespace {

constexpr int kArrowWidth = 12;
constexpr QMargins kStripMargins{1, 1, 1, 2};

OdString plainLabel(const OdString& label) {
  return OdString(label).replace(u'&', QLatin1String("&&"));
}

} // namespace

// --- toolbar

HostToolbar::HostToolbar(QWidget& parent, IHostToolbarEvents& events)
  : QWidget(&parent)
  , m_events(events) {
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(kStripMargins);
  row->setSpacing(1);
  row->addStretch();
  setFixedHeight(fixedHeight());
}

void HostToolbar::setSizes(const QSize& button, const QSize& picture) {
  m_buttonSize = button;
  m_pictureSize = picture;
  setFixedHeight(fixedHeight());
}

int HostToolbar::fixedHeight() const {
  return m_buttonSize.height() + kStripMargins.top() + kStripMargins.bottom();
}

QToolButton* HostToolbar::button(int index) const {
  const bool isKnown = index >= 0 && index < static_cast<int>(m_buttons.size());
  return isKnown ? m_buttons[static_cast<std::size_t>(index)] : nullptr;
}

void HostToolbar::addButton(int command, const QIcon& icon, const OdString& tip,
                            const OdString& name) {
  auto* const made = new QToolButton;
  made->setAutoRaise(true);
  made->setIcon(icon);
  made->setIconSize(m_pictureSize);
  made->setFixedSize(m_buttonSize);
  made->setFocusPolicy(Qt::TabFocus);
  made->setToolTip(tip);
  made->setAccessibleName(name);
  connect(made, &QToolButton::clicked, this, [this, made, command] {
    if (!made->menu()) m_events.buttonPressed(command);
  });
  static_cast<QHBoxLayout*>(layout())->insertWidget(static_cast<int>(m_buttons.size()), made);
  m_buttons.push_back(made);
}

void HostToolbar::setIcon(int index, const QIcon& icon) {
  if (QToolButton* const at = button(index)) at->setIcon(icon);
}

void HostToolbar::setMenu(int index, QMenu* menu) {
  QToolButton* const at = button(index);
  if (!at) return;
  at->setMenu(menu);
  at->setPopupMode(QToolButton::InstantPopup);
  at->setFixedWidth(m_buttonSize.width() + (menu ? kArrowWidth : 0));
}

void HostToolbar::setEnabled(int index, bool enabled) {
  if (QToolButton* const at = button(index)) at->setEnabled(enabled);
}

// --- tabs

/// Shortcuts of the main window work in windows that are its own, but not in theirs.
static QWidget* mainWindowOf(const QWidget& widget) {
  QWidget* window = widget.window();
  while (window->parentWidget()) window = window->parentWidget()->window();
  return window;
}

/// What stands behind a label: the page, while it is not in a window of its own.
class HostTabs::Place : public QWidget {
 public:
  Place(QWidget* page, bool isDetachable)
    : m_page(page)
    , m_isDetachable(isDetachable) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(page);
  }
  ~Place() override {
    // The page goes with its tabs, wherever it stands.
    if (m_page && m_page->parentWidget() != this) delete m_page;
    delete m_window;
  }

  void detach(const OdString& title) {
    if (!m_isDetachable || m_window || !m_page) return;
    const QRect room(mapToGlobal(QPoint(0, 0)), size());
    m_window = new Window(*this);
    m_window->setWindowTitle(title);
    m_window->layout()->addWidget(m_page);
    m_window->setGeometry(room);
    m_page->show();
    m_window->show();
  }
  void takeBack() {
    if (m_page) layout()->addWidget(m_page);
    if (m_page) m_page->show();
    if (m_window) m_window->deleteLater();
    m_window = nullptr;
  }
  QWidget* detachedWindow() const { return m_window; }

 private:
  class Window : public QWidget {
   public:
    explicit Window(Place& place)
      : QWidget(mainWindowOf(place), Qt::Tool)
      , m_place(&place) {
      auto* const column = new QVBoxLayout(this);
      column->setContentsMargins(0, 0, 0, 0);
    }

   protected:
    void closeEvent(QCloseEvent* event) override {
      QWidget::closeEvent(event);
      if (m_place) m_place->takeBack();
    }

   private:
    QPointer<Place> m_place;
  };

  QPointer<QWidget> m_page;
  QPointer<QWidget> m_window;
  bool m_isDetachable;
};

HostTabs::HostTabs(QWidget& parent)
  : QTabWidget(&parent) {
  setDocumentMode(true);
  connect(tabBar(), &QTabBar::tabBarDoubleClicked, this, &HostTabs::detach);
}

HostTabs::~HostTabs() = default;

int HostTabs::addPage(QWidget* page, const OdString& label, bool isDetachable) {
  auto* const place = new Place(page, isDetachable);
  m_places.push_back(place);
  return addTab(place, plainLabel(label));
}

void HostTabs::setLabel(int index, const OdString& label) {
  setTabText(index, plainLabel(label));
  if (QWidget* const window = detachedWindow(index)) window->setWindowTitle(label);
}

QWidget* HostTabs::detachedWindow(int index) const {
  const bool isKnown = index >= 0 && index < static_cast<int>(m_places.size());
  return isKnown ? m_places[static_cast<std::size_t>(index)]->detachedWindow() : nullptr;
}

void HostTabs::showDetached(bool shown) {
  for (const Place* const place : m_places)
    if (QWidget* const window = place->detachedWindow()) window->setVisible(shown);
}

// What was pulled out comes and goes with the tabs.
void HostTabs::showEvent(QShowEvent* event) {
  QTabWidget::showEvent(event);
  if (!event->spontaneous()) showDetached(true);
}

void HostTabs::hideEvent(QHideEvent* event) {
  QTabWidget::hideEvent(event);
  if (!event->spontaneous()) showDetached(false);
}

void HostTabs::detach(int index) {
  if (index < 0 || index >= static_cast<int>(m_places.size())) return;
  m_places[static_cast<std::size_t>(index)]->detach(
      tabText(index).replace(QLatin1String("&&"), QLatin1String("&")));
}

// --- splitter

namespace {

class Bar : public QSplitterHandle {
 public:
  explicit Bar(HostSplitter& splitter)
    : QSplitterHandle(splitter.orientation(), &splitter)
    , m_splitter(splitter) {}

 protected:
  void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), m_splitter.barColor()); }

 private:
  HostSplitter& m_splitter;
};

} // namespace

HostSplitter::HostSplitter(QWidget& parent)
  : QSplitter(Qt::Horizontal, &parent) {}

QSplitterHandle* HostSplitter::createHandle() { return new Bar(*this); }

void HostSplitter::addColumn(QWidget* content) {
  content->setMinimumWidth(0);
  addWidget(content);
}

std::vector<int> HostSplitter::widths() const {
  const QList<int> all = sizes();
  return {all.begin(), all.end()};
}

void HostSplitter::setWidths(const std::vector<int>& widths) {
  // A column of no width takes its bar along, which would bring it back unasked.
  for (std::size_t i = 0; i < widths.size() && static_cast<int>(i) < count(); ++i)
    QSplitter::widget(static_cast<int>(i))->setVisible(widths[i] > 0);
  setSizes(QList<int>(widths.begin(), widths.end()));
}

QColor HostSplitter::barColor() const {
  return m_barColor.isValid() ? m_barColor : palette().color(QPalette::Mid);
}

void HostSplitter::setBarColor(const QColor& color) {
  m_barColor = color;
  for (int i = 0; i < count(); ++i) handle(i)->update();
}

// --- service

IHostToolbar* WindowControls::createToolbar(QWidget& parent, IHostToolbarEvents& events) {
  return new HostToolbar(parent, events);
}

IHostTabs* WindowControls::createTabs(QWidget& parent) { return new HostTabs(parent); }

IHostSplitter* WindowControls::createSplitter(QWidget& parent) { return new HostSplitter(parent); }

} // namespace drafton
