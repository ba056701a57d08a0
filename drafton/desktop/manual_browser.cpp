#include "drafton/desktop/manual_browser.h"

#include <QFile>
#include <QPixmap>

// The pages lie in the library's resources, which nothing else brings along. Qt wants this outside
// of namespaces.
static void bringResources() { Q_INIT_RESOURCE(desktop); }

namespace drafton {
namespace {

const OdString kManual = QStringLiteral("/drafton/manual/");

/// A file of the manual as Qt opens it.
OdString fileOf(const QUrl& url) { return u':' + url.path(); }

} // namespace

ManualBrowser::ManualBrowser(QWidget* parent)
  : QTextBrowser(parent) {
  bringResources();
  setOpenExternalLinks(true);
  // It would take its room only when the pictures have been fitted.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

bool ManualBrowser::showPage(const OdString& page) {
  QUrl url;
  url.setScheme(QStringLiteral("qrc"));
  url.setPath(kManual + page);
  if (!QFile::exists(fileOf(url))) return false;
  setSource(url, QTextDocument::MarkdownResource);
  return true;
}

void ManualBrowser::doSetSource(const QUrl& url, QTextDocument::ResourceType type) {
  const QUrl target = source().resolved(url);
  if (QFile::exists(fileOf(target))) QTextBrowser::doSetSource(target, type);
}

/// Pictures are as wide as the page at most, and use all the pixels of the screen.
QVariant ManualBrowser::loadResource(int type, const QUrl& name) {
  if (type != QTextDocument::ImageResource) return QTextBrowser::loadResource(type, name);
  QPixmap picture(fileOf(source().resolved(name)));
  if (picture.isNull()) return {};
  const qreal room = viewport()->width() - 2 * document()->documentMargin();
  const int pixels = qRound(room * devicePixelRatioF());
  if (picture.width() > pixels) picture = picture.scaledToWidth(pixels, Qt::SmoothTransformation);
  picture.setDevicePixelRatio(qMax(1.0, qMin(devicePixelRatioF(), picture.width() / room)));
  return picture;
}

} // namespace drafton
