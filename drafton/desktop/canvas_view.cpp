#include "drafton/desktop/canvas_view.h"

#include "drafton/render/scene_painter.h"
#include "drafton/render/sheet.h"

#include <algorithm>

namespace drafton {
namespace {

constexpr double kMargin = 0.03;
/// How near to a view of everything another one counts as that.
constexpr double kAsAll = 0.1;
// Beyond these numbers lose the digits that a picture needs.
constexpr double kSmallestScale = 1e-9, kLargestScale = 1e9;

} // namespace

CanvasView::CanvasView(Document& document, Scene& scene)
  : m_document(document)
  , m_scene(scene) {
  followTab();
  m_told = m_left = activeView(*m_document.database());
  m_leftAspect = activeViewAspect(*m_document.database());
}

OdDbLayoutPtr CanvasView::layout() const {
  return m_isSheet ? OdDbLayoutPtr(odrxCast<OdDbLayout>(m_tab.openObject().get()))
                   : OdDbLayoutPtr();
}

OdGePoint3d CanvasView::pointAt(const QPointF& pixel) const {
  OdGePoint3d point = view().unproject(pixel);
  point.z = m_document.elevation();
  return point;
}

View CanvasView::viewFrom(const DrawingView& drawing) const {
  View view = m_view;
  view.center = drawing.center;
  if (drawing.height > 0)
    view.scale = std::clamp(m_view.size.height() / drawing.height, kSmallestScale, kLargestScale);
  return view;
}

DrawingView CanvasView::drawingView() const {
  return {m_view.center, m_view.size.height() / m_view.scale};
}

OdGeExtents3d CanvasView::everything() {
  m_scene.update();
  if (const OdDbLayoutPtr sheetLayout = layout()) {
    const Sheet sheet =
        sheetOf(*sheetLayout, [this] { return m_scene.boxOf(m_block, deviationFor(1)); });
    if (!sheet.paper.isEmpty()) return sheet.paper;
  }
  return m_scene.boxOf(m_block, deviationFor(m_view.scale));
}

void CanvasView::showAll() {
  OdGeExtents3d box = everything();
  if (box.isEmpty()) {
    const OdDbDatabase& database = *m_document.database();
    box.addPoint(database.sysVarPoint("LIMMIN"));
    box.addPoint(database.sysVarPoint("LIMMAX"));
  }
  m_view = m_view.fitted(box, kMargin);
  m_document.setPixelSize(pixelSize());
}

/// The view that the drawing was left with, if anything of it can be seen there.
void CanvasView::showFirst() {
  m_isShown = true;
  const OdGeExtents3d box = everything();
  const double height = box.isEmpty() ? 0 : box.maxPoint().y - box.minPoint().y;
  const bool isSane = !m_isSheet && m_left.height > height / 50 && m_left.height < height * 20;
  View left = viewFrom(m_left);
  // What was seen to the left and to the right is seen in a narrower window too.
  if (const double width = m_left.height * m_leftAspect; isSane && width > 0)
    left.scale = std::min(left.scale, m_view.size.width() / width);
  const bool sees = isSane && left.projection().boxOf(box).intersects(left.rect());
  showAll();
  // Who left it with all in view finds it so, with room around it.
  const QPointF apart =
      left.projection()(m_view.unproject(m_view.rect().center())) - left.rect().center();
  const bool sawAll = std::abs(left.scale / m_view.scale - 1) < kAsAll &&
                      apart.manhattanLength() < kAsAll * m_view.size.height();
  if (sees && !sawAll) m_view = left;
  m_first = m_view;
  m_firstTab = m_tab;
}

bool CanvasView::isAsFirstShown() const {
  return m_tab == m_firstTab && m_view.center == m_first.center && m_view.scale == m_first.scale;
}

void CanvasView::resize(const QSize& pixels) {
  const bool isFirst = !m_hasSize || isAsFirstShown();
  m_view.size = QSizeF(pixels).expandedTo({1, 1});
  m_hasSize = true;
  if (isFirst) showFirst();
  m_document.setPixelSize(pixelSize());
}

void CanvasView::pan(const QPointF& pixels) { m_view = m_view.panned(pixels); }

void CanvasView::zoom(double factor, const QPointF& pixel) {
  const double scale = std::clamp(m_view.scale * factor, kSmallestScale, kLargestScale);
  m_view = m_view.zoomed(scale / m_view.scale, pixel);
  m_document.setPixelSize(pixelSize());
}

bool CanvasView::showBetween(const QPointF& corner, const QPointF& opposite) {
  constexpr double kLeast = 4; // pixels
  const QPointF way = opposite - corner;
  if (std::max(std::abs(way.x()), std::abs(way.y())) < kLeast) return false;
  OdGeExtents3d box;
  box.addPoint(pointAt(corner));
  box.addPoint(pointAt(opposite));
  m_view = m_view.fitted(box, 0);
  m_view.scale = std::min(m_view.scale, kLargestScale);
  m_document.setPixelSize(pixelSize());
  return true;
}

void CanvasView::keepFormer() {
  constexpr std::size_t kMost = 100;
  if (m_former.size() == kMost) m_former.erase(m_former.begin());
  m_former.push_back(m_view);
}

bool CanvasView::showFormer() {
  if (m_former.empty()) return false;
  const QSizeF size = m_view.size;
  m_view = m_former.back();
  m_view.size = size;
  m_former.pop_back();
  m_document.setPixelSize(pixelSize());
  return true;
}

bool CanvasView::followTab() {
  const OdDbDatabase& database = *m_document.database();
  const OdDbObjectId tab = oddb::activeLayout(database);
  const OdDbLayoutPtr layout = odrxCast<OdDbLayout>(tab.openObject().get());
  const bool isSheet = layout && !layout->isModelType();
  m_isSheet = isSheet;
  m_block = isSheet ? layout->getBlockTableRecordId() : database.getModelSpaceId();
  if (tab == m_tab) return false;
  m_former.clear();
  if (m_isShown) m_others[m_tab] = m_view;
  m_tab = tab;
  if (const auto known = m_others.find(tab); known != m_others.end()) {
    const QSizeF size = m_view.size;
    m_view = known->second;
    m_view.size = size;
  } else if (m_hasSize) {
    showAll();
  }
  m_document.setPixelSize(pixelSize());
  return true;
}

bool CanvasView::follow() {
  if (!m_document.database()) return false;
  const bool isOtherTab = followTab();
  const DrawingView now = activeView(*m_document.database());
  if (now == m_told) return isOtherTab;
  m_told = now;
  if (isOtherTab) return true;
  m_former.clear();
  m_view = viewFrom(now);
  m_document.setPixelSize(pixelSize());
  return true;
}

void CanvasView::tellDrawing() {
  OdDbDatabase* const database = m_document.database();
  if (!m_hasSize || !database || m_document.processor().isBusy()) return;
  const DrawingView now = drawingView();
  const double aspect = m_view.size.width() / m_view.size.height();
  if (now == m_told && aspect == activeViewAspect(*database)) return;
  const bool wasModified = database->isModified();
  setActiveView(*database, now, aspect);
  m_told = activeView(*database);
  database->deliverChanges();
  if (!wasModified) database->setSaved();
}

} // namespace drafton
