#include "drafton/desktop/canvas_picture.h"

#include "drafton/render/scene_painter.h"
#include "drafton/render/sheet.h"

namespace drafton {
namespace {

constexpr QRgb kPaper = qRgb(255, 255, 255);

} // namespace

const QImage& CanvasPicture::show(const CanvasView& view, const CanvasLook& look,
                                  TransientEntities transient) {
  const CanvasColors& colors = canvasColors(look.isDark);
  RenderOptions options;
  options.ground = Ground(view.layout() ? kPaper : colors.ground.rgb());
  options.pixelsPerMillimetre = look.pixelsPerMillimetre;
  options.highlighted = &look.highlighted;
  options.highlightColor = colors.window.rgb();
  options.hidden = &look.hidden;
  const OdDbDatabase* const database = m_scene.database();
  options.showsLineWeights = database && database->sysVarInt("LWDISPLAY") != 0;
  if (const OdDbLayoutPtr layout = view.layout())
    return showSheet(*layout, view, look, options, transient);
  return m_live.show(view.block(), view.view(), options, transient);
}

const QImage& CanvasPicture::showSheet(const OdDbLayout& layout, const CanvasView& view,
                                       const CanvasLook& look, RenderOptions options,
                                       TransientEntities transient) {
  m_scene.update();
  const View shown = view.view();
  SheetState now{m_scene.revision(), view.block(), shown.center,     shown.scale,
                 shown.size,         look.isDark,  look.highlighted, look.hidden};
  const Sheet sheet =
      sheetOf(layout, [&] { return m_scene.boxOf(view.block(), deviationFor(shown.scale)); });
  if (m_sheetState != now) {
    m_sheetState = std::move(now);
    m_sheet = QImage(shown.size.toSize(), QImage::Format_RGB32);
    if (m_sheet.isNull()) return m_sheet;
    {
      QPainter painter(&m_sheet);
      drawSheet(painter, layout, sheet, shown, canvasColors(look.isDark).desk.rgb(), kPaper);
    }
    render(m_sheet, m_scene, view.block(), shown, options);
  }
  if (transient.empty()) return m_sheet;
  m_decorated = m_sheet;
  renderTransient(m_decorated, m_scene, shown, options, transient);
  return m_decorated;
}

} // namespace drafton
