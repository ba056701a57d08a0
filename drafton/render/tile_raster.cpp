#include "drafton/render/tile_raster.h"

#include <QThreadPool>

#include <algorithm>
#include <cmath>

namespace drafton {
namespace {

/// A tile's width and height in pixels: a quarter of a megabyte.
constexpr int kTileShift = 8, kTile = 1 << kTileShift;
/// So much is gathered before it is drawn: what fits into memory that is near.
constexpr std::size_t kMostCommands = 32768;
/// And so much of it for one tile without asking for more memory.
constexpr std::size_t kUsualCommands = 1024;
/// Less than this is not worth waking other threads.
constexpr std::size_t kWorthHelp = 3000;
constexpr int kMostHelpers = 3;
constexpr std::int32_t kNoArea = -1;

} // namespace

/// A line, or the number of an area.
struct TileRaster::Command {
  ThinLine line;
  QRgb color;
  std::int32_t area = kNoArea;
};

/// What was gathered for all tiles. Whoever wants to help takes tiles until none is left.
struct TileRaster::Batch {
  uchar* bits;
  qsizetype bytesPerLine;
  QSize size;
  QRect clip;
  int columns;
  std::vector<std::vector<Command>> tiles;
  std::vector<SmallArea> areas;
  std::vector<AreaEdge> edges;
  std::size_t count = 0;
  std::atomic<int> next, done;

  int tileCount() const { return static_cast<int>(tiles.size()); }
  void draw(int tile);
  void drawSome() {
    for (;;) {
      const int tile = next.fetch_add(1);
      if (tile >= tileCount()) return;
      draw(tile);
      if (done.fetch_add(1) + 1 == tileCount()) done.notify_all();
    }
  }
  void clear() {
    for (auto& tile : tiles) tile.clear();
    areas.clear();
    edges.clear();
    count = 0;
  }
};

void TileRaster::Batch::draw(int tile) {
  const auto& commands = tiles[static_cast<std::size_t>(tile)];
  if (commands.empty()) return;
  const QRect rect = QRect(tile % columns * kTile, tile / columns * kTile, kTile, kTile) & clip;
  ThinLines lines(bits, bytesPerLine, size);
  lines.setClip(rect);
  SmallAreas filler;
  for (const Command& command : commands) {
    if (command.area == kNoArea) {
      lines.setColor(command.color);
      lines.draw(command.line);
    } else {
      const SmallArea& area = areas[static_cast<std::size_t>(command.area)];
      filler.fill(bits, bytesPerLine, rect, area,
                  std::span(edges).subspan(area.firstEdge, area.edgeCount));
    }
  }
}

TileRaster::TileRaster(uchar* bits, qsizetype bytesPerLine, const QSize& size)
  : m_bits(bits)
  , m_bytesPerLine(bytesPerLine)
  , m_bounds(QPoint(0, 0), size)
  , m_clip(m_bounds)
  , m_columns((size.width() + kTile - 1) >> kTileShift)
  , m_rows((size.height() + kTile - 1) >> kTileShift) {
  const auto made = [&] {
    auto batch = std::make_shared<Batch>();
    batch->bits = bits;
    batch->bytesPerLine = bytesPerLine;
    batch->size = size;
    batch->columns = m_columns;
    batch->tiles.resize(static_cast<std::size_t>(m_columns) * static_cast<std::size_t>(m_rows));
    for (auto& tile : batch->tiles) tile.reserve(kUsualCommands);
    // Nobody finds anything to do before it is submitted.
    batch->next = batch->done = batch->tileCount();
    return batch;
  };
  m_filling = made();
  m_running = made();
}

TileRaster::~TileRaster() { flush(); }

void TileRaster::setClip(const QRect& clip) {
  const QRect cut = clip & m_bounds;
  if (cut == m_clip) return;
  flush();
  m_clip = cut;
}

void TileRaster::line(const QPointF& from, const QPointF& to) {
  Command command{.line = {}, .color = m_color};
  if (!roundLine(from, to, command.line)) return;
  const ThinLine& l = command.line;
  const auto [x0, x1] = std::minmax(l.x0, l.x1);
  const auto [y0, y1] = std::minmax(l.y0, l.y1);
  const auto first = [](int part) { return (part - ThinLine::kPixel) >> ThinLine::kShift; };
  const auto last = [](int part) { return (part + ThinLine::kPixel) >> ThinLine::kShift; };
  add(command, QRect(QPoint(first(x0), first(y0)), QPoint(last(x1), last(y1))));
}

void TileRaster::area(std::span<const QPolygonF> rings, const QRectF& box, bool isOddEven) {
  const QRect pixels = box.toAlignedRect();
  if (!pixels.intersects(m_clip)) return;
  SmallArea area;
  area.box = pixels;
  area.color = m_color;
  area.isOddEven = isOddEven;
  area.firstEdge = static_cast<std::uint32_t>(m_filling->edges.size());
  const auto width = static_cast<float>(pixels.width());
  const auto height = static_cast<float>(pixels.height());
  const auto xOf = [&](const QPointF& p) {
    return std::clamp(static_cast<float>(p.x() - pixels.left()), 0.F, width);
  };
  const auto yOf = [&](const QPointF& p) {
    return std::clamp(static_cast<float>(p.y() - pixels.top()), 0.F, height);
  };
  for (const QPolygonF& ring : rings) {
    if (ring.size() < 3) continue;
    float x = xOf(ring.last()), y = yOf(ring.last());
    for (const QPointF& p : ring) {
      const float nextX = xOf(p), nextY = yOf(p);
      m_filling->edges.push_back({x, y, nextX, nextY});
      x = nextX;
      y = nextY;
    }
  }
  area.edgeCount = static_cast<std::uint32_t>(m_filling->edges.size()) - area.firstEdge;
  const auto number = static_cast<std::int32_t>(m_filling->areas.size());
  m_filling->areas.push_back(area);
  // Sides cost about as much as lines.
  m_filling->count += area.edgeCount / 2;
  add({.line = {}, .color = m_color, .area = number}, pixels);
}

void TileRaster::add(const Command& command, const QRect& pixels) {
  if (m_clip.isEmpty()) return;
  const int left = std::max(pixels.left(), m_clip.left()) >> kTileShift;
  const int right = std::min(pixels.right(), m_clip.right()) >> kTileShift;
  const int top = std::max(pixels.top(), m_clip.top()) >> kTileShift;
  const int bottom = std::min(pixels.bottom(), m_clip.bottom()) >> kTileShift;
  for (int row = top; row <= bottom; ++row)
    for (int column = left; column <= right; ++column)
      m_filling->tiles[static_cast<std::size_t>(row * m_columns + column)].push_back(command);
  if (++m_filling->count >= kMostCommands) submit();
}

/// Has what was gathered drawn, while more is gathered.
void TileRaster::submit() {
  finishRunning();
  std::swap(m_filling, m_running);
  m_running->clip = m_clip;
  m_running->done = 0;
  m_running->next = 0;
  if (m_running->count < kWorthHelp) return finishRunning();
  QThreadPool& pool = *QThreadPool::globalInstance();
  const int helpers = std::min(kMostHelpers, pool.maxThreadCount() - 1);
  for (int i = 0; i < helpers; ++i)
    if (!pool.tryStart([batch = m_running] { batch->drawSome(); })) break;
}

void TileRaster::finishRunning() {
  m_running->drawSome();
  for (int done = m_running->done; done < m_running->tileCount(); done = m_running->done)
    m_running->done.wait(done);
  m_running->clear();
}

void TileRaster::flush() {
  if (m_filling->count > 0) submit();
  finishRunning();
}

} // namespace drafton
