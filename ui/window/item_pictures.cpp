#include "ui/window/item_pictures.h"

#include "catalog/catalog.h"
#include "catalog/tool.h"
#include "images/image_list.h"
#include "ui/window/glyphs.h"

#include <QPainter>

namespace tc {
namespace {

constexpr qsizetype kBytes = 32 << 20;
constexpr std::int32_t kSizes[] = {1, 3, 4};

OdString keyOf(const OdTcCatalogItem& item, int pixels) {
  return item.id() + u'|' + QString::number(pixels);
}

TcUiGlyph glyphOf(const OdTcCatalogItem& item) {
  if (odrxCast<OdTcCatalog>(&item)) return TcUiGlyph::kCatalog;
  if (odrxCast<OdTcGroup>(&item)) return TcUiGlyph::kGroup;
  if (odrxCast<OdTcToolPalette>(&item) || odrxCast<OdTcPaletteSoftRef>(&item))
    return TcUiGlyph::kPalette;
  return TcUiGlyph::kUnknown;
}

/// The tool's picture that is at least as large as asked for, or else its largest.
QImage ownPicture(const OdTcCatalogItem& item, int pixels) {
  const OdTcImageList* const images = item.images();
  QImage best;
  for (const std::int32_t size : kSizes) {
    OdTcImage* const image = images ? images->findBySize(size) : nullptr;
    if (!image) continue;
    const QImage picture = image->getBitmap();
    // What came from a file is kept here only, scaled for the screen.
    if (!image->fullPath().isEmpty()) image->releaseBitmap();
    if (!picture.isNull()) best = picture;
    if (best.width() >= pixels) break;
  }
  return best;
}

/// `picture` in the middle of a square. One that is smaller is made as much larger as the screen's
/// pixels are finer, but no more: on every screen it is as large as on a plain one.
QPixmap squared(const QImage& picture, int pixels, qreal ratio) {
  QSize room = (QSizeF(picture.size()) * ratio).toSize();
  if (room.width() > pixels || room.height() > pixels) room = QSize(pixels, pixels);
  const QSize size = picture.size().scaled(room, Qt::KeepAspectRatio);
  const QImage shown = size == picture.size()
                           ? picture
                           : picture.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  QPixmap pixmap(pixels, pixels);
  pixmap.fill(Qt::transparent);
  QPainter(&pixmap).drawImage(QPoint((pixels - shown.width()) / 2, (pixels - shown.height()) / 2),
                              shown);
  return pixmap;
}

} // namespace

TcUiItemPictures::TcUiItemPictures()
  : m_pixmaps(kBytes) {}

int TcUiItemPictures::pixelsOf(std::int32_t size) {
  switch (size) {
  case kLargeIcons:
    return 64;
  case kNormalIcons:
    return 32;
  default:
    return 16;
  }
}

QPixmap TcUiItemPictures::picture(const OdTcCatalogItem& item, std::int32_t size) {
  const int pixels = qRound(pixelsOf(size) * m_ratio);
  const OdString key = keyOf(item, pixels);
  if (const QPixmap* const known = m_pixmaps.object(key)) return *known;
  const QImage own = odrxCast<OdTcTool>(&item) ? ownPicture(item, pixels) : QImage();
  QPixmap pixmap =
      own.isNull() ? glyphPixmap(glyphOf(item), pixels, 1, m_ink) : squared(own, pixels, m_ratio);
  pixmap.setDevicePixelRatio(m_ratio);
  m_pixmaps.insert(key, new QPixmap(pixmap), qsizetype{4} * pixels * pixels);
  return pixmap;
}

void TcUiItemPictures::forget(const OdTcCatalogItem& item) {
  const OdString start = item.id() + u'|';
  const QList<OdString> keys = m_pixmaps.keys();
  for (const OdString& key : keys)
    if (key.startsWith(start)) m_pixmaps.remove(key);
}

void TcUiItemPictures::setInk(const QColor& ink) {
  if (ink == m_ink) return;
  m_ink = ink;
  forgetAll();
}

} // namespace tc
