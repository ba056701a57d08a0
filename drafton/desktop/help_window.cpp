#include "drafton/desktop/help_window.h"

#include "drafton/desktop/manual_browser.h"
#include "drafton/engine/translator.h"

#include <QAction>
#include <QDialog>
#include <QMessageBox>
#include <QStyle>
#include <QToolBar>
#include <QVBoxLayout>

namespace drafton {
namespace {

const OdString kWindowName = QStringLiteral("manual");

/// The pages of topics that modules ask for.
struct Topic {
  const char16_t* topic;
  const char16_t* page;
};
constexpr Topic kTopics[] = {
    {u"IDH_ToolPalettes", u"tool-palettes.md"},
    {u"IDH_Commands", u"commands.md"},
};

struct Way {
  const char16_t* text;
  QStyle::StandardPixmap icon;
  QKeySequence::StandardKey key;
  void (QTextBrowser::*go)();
  void (QTextBrowser::*possible)(bool);
};
constexpr Way kWays[] = {
    {u"Back", QStyle::SP_ArrowBack, QKeySequence::Back, &QTextBrowser::backward,
     &QTextBrowser::backwardAvailable},
    {u"Forward", QStyle::SP_ArrowForward, QKeySequence::Forward, &QTextBrowser::forward,
     &QTextBrowser::forwardAvailable},
};

/// Buttons that go back and forth between pages, and to the first one.
QToolBar* barFor(ManualBrowser& browser, QWidget* window) {
  auto* const bar = new QToolBar(window);
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  for (const Way& way : kWays) {
    QAction* const action = bar->addAction(bar->style()->standardIcon(way.icon),
                                           translated(way.text), &browser, way.go);
    action->setShortcuts(way.key);
    action->setEnabled(false);
    QObject::connect(&browser, way.possible, action, &QAction::setEnabled);
  }
  QAction* const start =
      bar->addAction(bar->style()->standardIcon(QStyle::SP_DirHomeIcon), translated(u"Contents"),
                     [&browser] { browser.showPage(OdString::fromUtf16(kManualStart)); });
  start->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Home));
  return bar;
}

ManualBrowser* browserIn(QWidget& parent) {
  if (auto* const open = parent.findChild<QDialog*>(kWindowName))
    return static_cast<ManualBrowser*>(open->findChild<QTextBrowser*>());
  auto* const dialog = new QDialog(&parent);
  dialog->setObjectName(kWindowName);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setWindowTitle(translated(u"Drafton's Manual"));
  dialog->resize(800, 680);
  auto* const browser = new ManualBrowser(dialog);
  browser->setAccessibleName(dialog->windowTitle());
  auto* const column = new QVBoxLayout(dialog);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(barFor(*browser, dialog));
  column->addWidget(browser);
  return browser;
}

} // namespace

bool showManual(QWidget& parent, const OdString& page) {
  ManualBrowser* const browser = browserIn(parent);
  // Pictures take the width that the window is going to have.
  browser->window()->show();
  if (!browser->showPage(page)) {
    if (browser->source().isEmpty()) browser->window()->close();
    return false;
  }
  browser->window()->raise();
  browser->setFocus();
  return true;
}

void showAbout(QWidget& parent) {
  QMessageBox::about(
      &parent, translated(u"About Drafton"),
      QStringLiteral("<h3>Drafton %1</h3><p>%2</p><p>%3</p>")
          .arg(
              QStringLiteral(DRAFTON_VERSION),
              translated(u"Tool palettes for desktop CAD, and a small CAD program to use them in."),
              translated(u"Free software under the GNU General Public License, version 3 or "
                         u"later.")));
}

bool HelpService::showTopic(const OdString& topic) {
  if (!m_window) return false;
  for (const Topic& row : kTopics)
    if (topic == QStringView(row.topic)) return showManual(*m_window, row.page);
  return false;
}

} // namespace drafton
