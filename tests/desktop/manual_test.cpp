// The manual in its window.
#include "desktop/window_services_fixture.h"
#include "drafton/desktop/help_window.h"

#include <QDir>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolBar>

using namespace drafton;

namespace {

class Manual : public WindowServicesTest {};

TEST_F(Manual, HasThePagesThatAreAskedFor) {
  const auto help = kvQuery<IHelpService>(&desktop().engine().services());
  ASSERT_TRUE(help);
  EXPECT_TRUE(help->showTopic(QStringLiteral("IDH_ToolPalettes")));
  const auto* const page = window().findChild<QTextBrowser*>();
  ASSERT_TRUE(page);
  EXPECT_TRUE(page->toPlainText().startsWith(QStringLiteral("Tool palettes")));
  EXPECT_FALSE(help->showTopic(QStringLiteral("IDH_Nothing")));
}

TEST_F(Manual, FirstPageIsThere) {
  EXPECT_TRUE(showManual(window(), kManualStart));
  EXPECT_FALSE(showManual(window(), QStringLiteral("none.md")));
}

/// The pages and pictures that a page of the manual names.
QStringList targetsOf(const QString& page) {
  QFile file(page);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error(page.toStdString());
  static const QRegularExpression link(QStringLiteral("\\]\\(([^)#]+)[^)]*\\)"));
  QStringList targets;
  const QString text = QString::fromUtf8(file.readAll());
  for (auto found = link.globalMatch(text); found.hasNext();) {
    const QString target = found.next().captured(1);
    if (!target.startsWith(QLatin1String("http"))) targets << target;
  }
  return targets;
}

TEST_F(Manual, HasAllThatItsPagesName) {
  showManual(window(), kManualStart); // brings the pages
  const QDir manual(QStringLiteral(":/drafton/manual"));
  int links = 0;
  for (const QString& page : manual.entryList({QStringLiteral("*.md")}))
    for (const QString& target : targetsOf(manual.filePath(page))) {
      ++links;
      EXPECT_TRUE(manual.exists(target)) << page.toStdString() << " -> " << target.toStdString();
    }
  EXPECT_GT(links, 15);
}

TEST_F(Manual, PicturesAreSeen) {
  showManual(window(), kManualStart);
  auto* const page = window().findChild<QTextBrowser*>();
  const QVariant picture =
      page->loadResource(QTextDocument::ImageResource, QUrl(QStringLiteral("images/desktop.png")));
  const auto pixmap = picture.value<QPixmap>();
  EXPECT_GT(pixmap.width(), 300);
  EXPECT_LE(pixmap.deviceIndependentSize().width(), page->viewport()->width());
  QApplication::processEvents();
  EXPECT_EQ(page->horizontalScrollBar()->maximum(), 0) << "nothing is wider than the page";
  int pictures = 0;
  for (QTextBlock block = page->document()->begin(); block.isValid(); block = block.next())
    for (auto it = block.begin(); !it.atEnd(); ++it)
      if (it.fragment().charFormat().isImageFormat()) ++pictures;
  EXPECT_GT(pictures, 2);
}

TEST_F(Manual, LeadsBackAndIsNeverBlank) {
  showManual(window(), kManualStart);
  auto* const page = window().findChild<QTextBrowser*>();
  const auto action = [&](const char* text) -> QAction& {
    for (QAction* const each : page->window()->findChild<QToolBar*>()->actions())
      if (each->text() == QLatin1String(text)) return *each;
    throw std::out_of_range(text);
  };
  EXPECT_FALSE(action("Back").isEnabled());
  const QString first = page->toPlainText();
  for (const char* const target : {"tool-palettes.md", "making-tools.md"}) {
    page->setSource(QUrl(QLatin1String(target)));
    EXPECT_NE(page->toPlainText(), first) << target;
    EXPECT_FALSE(page->toPlainText().isEmpty()) << target;
  }
  const QString last = page->toPlainText();
  page->setSource(QUrl(QStringLiteral("no-such-page.md")));
  EXPECT_EQ(page->toPlainText(), last) << "a link that leads nowhere";
  action("Back").trigger();
  EXPECT_TRUE(page->toPlainText().startsWith(QStringLiteral("Tool palettes")));
  action("Back").trigger();
  EXPECT_EQ(page->toPlainText(), first);
  action("Forward").trigger();
  EXPECT_TRUE(page->toPlainText().startsWith(QStringLiteral("Tool palettes")));
  action("Contents").trigger();
  EXPECT_EQ(page->toPlainText(), first);
}

} // namespace
