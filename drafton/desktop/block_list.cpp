#include "drafton/desktop/block_list.h"

#include "drafton/desktop/theme.h"
#include "drafton/render/renderer.h"
#include "drafton/render/scene_painter.h"

#include <QEvent>

namespace drafton {
namespace {

constexpr int kPicture = 64;
constexpr double kMargin = 0.06;

QPixmap pictureOf(Scene& scene, OdDbObjectId block, double ratio, bool dark) {
  const int pixels = qRound(kPicture * ratio);
  RenderOptions options;
  options.ground = Ground(canvasColors(dark).ground.rgb());
  options.showsLineWeights = false;
  QImage image(pixels, pixels, QImage::Format_RGB32);
  image.fill(canvasColors(dark).ground);
  View view;
  view.size = QSizeF(pixels, pixels);
  view = view.fitted(scene.boxOf(block, deviationFor(1)), kMargin);
  render(image, scene, block, view, options);
  image.setDevicePixelRatio(ratio);
  return QPixmap::fromImage(image);
}

/// Blocks that a user has made: no layouts, and none that dimensions and hatches keep.
bool isUsers(const OdDbBlockTableRecord& block) {
  return !block.isLayout() && !block.getName().startsWith(u'*');
}

} // namespace

BlockList::BlockList(Desktop& desktop, QWidget* parent)
  : QListWidget(parent)
  , m_desktop(desktop) {
  setViewMode(QListView::IconMode);
  setIconSize(QSize(kPicture, kPicture));
  setGridSize(QSize(kPicture + 32, kPicture + 36));
  setResizeMode(QListView::Adjust);
  setMovement(QListView::Static);
  setWordWrap(true);
  setAccessibleName(translated(u"Blocks of the drawing"));
  connect(this, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
    if (!m_desktop.isBusy()) m_desktop.type(QStringLiteral("_INSERT\n\"%1\"\n").arg(item->text()));
  });
}

void BlockList::showEvent(QShowEvent* event) {
  QListWidget::showEvent(event);
  follow();
}

void BlockList::changeEvent(QEvent* event) {
  QListWidget::changeEvent(event);
  if (event->type() != QEvent::PaletteChange) return;
  // The pictures stand on the drawing's ground.
  m_shown = nullptr;
  follow();
}

void BlockList::follow() {
  OdDbDatabase* const database = m_desktop.database();
  if (!isVisible() || m_desktop.isBusy()) return;
  std::vector<OdDbObjectId> blocks;
  QStringList names;
  if (database) {
    const auto table = database->getBlockTableId().openAs<OdDbBlockTable>();
    for (auto at = table->newIterator(); !at->done(); at->step()) {
      const auto block = odrxCast<OdDbBlockTableRecord>(at->getRecord().get());
      if (!isUsers(*block)) continue;
      blocks.push_back(block->objectId());
      names << block->getName();
    }
  }
  if (names == m_names && database == m_shown) return;
  m_names = names;
  m_shown = database;
  clear();
  if (!database) return;
  Scene scene(*database);
  scene.update();
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    auto* const item = new QListWidgetItem(names[static_cast<qsizetype>(i)], this);
    item->setIcon(pictureOf(scene, blocks[i], devicePixelRatioF(), isDark(palette())));
    item->setToolTip(item->text());
  }
}

} // namespace drafton
