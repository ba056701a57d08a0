// The picture behind everything else on a canvas.
#pragma once

#include "drafton/desktop/canvas_view.h"
#include "drafton/desktop/theme.h"
#include "drafton/render/live_picture.h"

namespace drafton {

/// How a drawing is to look.
struct CanvasLook {
  bool isDark = false;
  double pixelsPerMillimetre = 96 / 25.4; ///< of line weights
  /// What stands out.
  std::unordered_set<OdDbObjectId> highlighted;
  /// What is left out, as it is shown elsewhere.
  std::unordered_set<OdDbObjectId> hidden;
};

/// Draws the model on its ground, and layouts as sheets on a desk. What has not changed is not
/// drawn again.
class CanvasPicture {
 public:
  explicit CanvasPicture(Scene& scene)
    : m_scene(scene)
    , m_live(scene) {}

  /// The result is valid until the next call.
  const QImage& show(const CanvasView& view, const CanvasLook& look, TransientEntities transient);

 private:
  struct SheetState {
    std::uint64_t revision = 0;
    OdDbObjectId block;
    OdGePoint2d center;
    double scale = 0;
    QSizeF size;
    bool isDark = false;
    std::unordered_set<OdDbObjectId> highlighted, hidden;
    bool operator==(const SheetState&) const = default;
  };
  const QImage& showSheet(const OdDbLayout& layout, const CanvasView& view, const CanvasLook& look,
                          RenderOptions options, TransientEntities transient);

  Scene& m_scene;
  LivePicture m_live;
  QImage m_sheet, m_decorated;
  std::optional<SheetState> m_sheetState;
};

} // namespace drafton
