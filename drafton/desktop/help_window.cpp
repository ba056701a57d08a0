#include "drafton/desktop/help_window.h"

#include "drafton/engine/translator.h"

#include <QDialog>
#include <QFile>
#include <QMessageBox>
#include <QTextBrowser>
#include <QVBoxLayout>

// The pages lie in the library's resources, which nothing else brings along. Qt wants this outside
// of namespaces.
static void bringResources() { Q_INIT_RESOURCE(desktop); }

namespace drafton {
namespace {

const OdString kManual = QStringLiteral("qrc:/drafton/manual/");
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

QTextBrowser* browserIn(QWidget& parent) {
  if (auto* const open = parent.findChild<QDialog*>(kWindowName))
    return open->findChild<QTextBrowser*>();
  auto* const dialog = new QDialog(&parent);
  dialog->setObjectName(kWindowName);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setWindowTitle(translated(u"Drafton's Manual"));
  dialog->resize(760, 680);
  auto* const browser = new QTextBrowser(dialog);
  browser->setAccessibleName(dialog->windowTitle());
  browser->setOpenExternalLinks(true);
  auto* const column = new QVBoxLayout(dialog);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(browser);
  return browser;
}

} // namespace

bool showManual(QWidget& parent, const OdString& page) {
  bringResources();
  if (!QFile::exists(QStringLiteral(":/drafton/manual/") + page)) return false;
  QTextBrowser* const browser = browserIn(parent);
  browser->setSource(QUrl(kManual + page), QTextDocument::MarkdownResource);
  browser->window()->show();
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
