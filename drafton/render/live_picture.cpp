#include "drafton/render/live_picture.h"

#include <QRegion>

#include <cstring>

namespace drafton {

LivePicture::LivePicture(Scene& scene)
  : m_scene(scene) {}

LivePicture::Circumstances LivePicture::circumstancesOf(OdDbObjectId block, const View& view,
                                                        const RenderOptions& options) const {
  return {.block = block,
          .revision = m_scene.revision(),
          .target = view.target,
          .direction = view.direction,
          .twist = view.twist,
          .scale = view.scale,
          .size = view.size,
          .scales = DrawingScales(*m_scene.database()),
          .ground = options.ground,
          .isPlotting = options.isPlotting,
          .showsLineWeights = options.showsLineWeights,
          .simplifies = options.simplifies,
          .pixelsPerMillimetre = options.pixelsPerMillimetre,
          .highlightColor = options.highlightColor};
}

bool LivePicture::takeMarked(const RenderOptions& options) {
  bool isNew = false;
  const auto take = [&](Marked& kept, const Marked* now) {
    static const Marked nothing;
    // Comparing is cheap beside copying, and nearly always enough.
    if (kept == (now != nullptr ? *now : nothing)) return;
    kept = now != nullptr ? *now : nothing;
    isNew = true;
  };
  take(m_highlighted, options.highlighted);
  take(m_hidden, options.hidden);
  return isNew;
}

std::optional<QPoint> LivePicture::wayFrom(const Circumstances& now, const QPointF& corner) const {
  if (m_base.isNull() || !m_before || !(*m_before == now)) return std::nullopt;
  const QPointF way = corner - m_corner;
  // What was seen is out of sight.
  if (std::abs(way.x()) >= m_base.width() || std::abs(way.y()) >= m_base.height())
    return std::nullopt;
  return way.toPoint();
}

/// Moves the pixels of the kept picture; what is left behind stays as it was.
void LivePicture::move(const QPoint& way) {
  const int width = m_base.width() - std::abs(way.x());
  const int height = m_base.height() - std::abs(way.y());
  const int fromX = std::max(0, -way.x()), fromY = std::max(0, -way.y());
  uchar* const bits = m_base.bits();
  const qsizetype line = m_base.bytesPerLine();
  for (int i = 0; i < height; ++i) {
    // Rows that are still wanted must not be written over.
    const int row = fromY + (way.y() > 0 ? height - 1 - i : i);
    std::memmove(bits + (row + way.y()) * line + (fromX + way.x()) * 4,
                 bits + row * line + fromX * 4, static_cast<std::size_t>(width) * 4);
  }
}

const QImage& LivePicture::show(OdDbObjectId block, const View& view, const RenderOptions& options,
                                TransientEntities transient) {
  m_scene.update();
  m_drawnPixels = 0;
  const QSize size = view.size.toSize();
  if (m_scene.database() == nullptr || size.isEmpty()) {
    m_decorated = {};
    return m_decorated;
  }
  const View settled = view.settled();
  const Circumstances now = circumstancesOf(block, settled, options);
  if (takeMarked(options)) forget();
  const QPointF corner = settled.projection()(OdGePoint3d{});
  QRegion missing(QRect(QPoint(0, 0), size));
  if (const auto way = wayFrom(now, corner)) {
    move(*way);
    missing -= missing.translated(*way);
  } else {
    m_base = QImage(size, QImage::Format_RGB32);
  }
  RenderOptions partly = options;
  for (const QRect& part : missing) {
    partly.part = part;
    QRgb* row = nullptr;
    for (int y = part.top(); y <= part.bottom(); ++y) {
      row = reinterpret_cast<QRgb*>(m_base.scanLine(y));
      std::fill(row + part.left(), row + part.right() + 1, options.ground.color() | 0xFF000000u);
    }
    render(m_base, m_scene, block, settled, partly);
    m_drawnPixels += qint64{part.width()} * part.height();
  }
  m_before = now;
  m_corner = corner;
  if (transient.empty()) return m_base;
  m_decorated = m_base;
  RenderOptions whole = options;
  whole.part = {};
  renderTransient(m_decorated, m_scene, settled, whole, transient);
  return m_decorated;
}

} // namespace drafton
