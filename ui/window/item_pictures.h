// The pictures of catalog items for the views.
#pragma once

#include "module/catalog_item.h"
#include "ui/window/window_commands.h"

#include <QCache>
#include <QColor>
#include <QPixmap>

#include <cstdint>

namespace tc {

/// Gives each item its picture and keeps those that were asked for last, up to 32 MB. Nothing is
/// decoded before somebody asks.
class TcUiItemPictures {
 public:
  TcUiItemPictures();

  /// The pixels of a TcUiIconSize: 16, 32 or 64; any other number counts as the smallest.
  static int pixelsOf(std::int32_t size);

  /// Catalogs, groups and palettes have pictures of their kind; a tool shows its own, and one for
  /// unknown kinds if it has none. It is made for the pixels of the screen, at its ratio.
  QPixmap picture(const OdTcCatalogItem& item, std::int32_t size);
  /// Has the item's pictures looked up anew the next time.
  void forget(const OdTcCatalogItem& item);
  /// How many are kept.
  qsizetype count() const { return m_pixmaps.size(); }
  void forgetAll() { m_pixmaps.clear(); }
  /// The screen's ratio of device to logical pixels, 1 unless it is told.
  void setRatio(qreal ratio) { m_ratio = ratio; }
  qreal ratio() const { return m_ratio; }
  /// The colour of lines in the pictures of kinds.
  void setInk(const QColor& ink);
  const QColor& ink() const { return m_ink; }

 private:
  QCache<OdString, QPixmap> m_pixmaps;
  QColor m_ink{Qt::black};
  qreal m_ratio = 1;
};

} // namespace tc
