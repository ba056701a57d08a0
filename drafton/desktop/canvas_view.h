// Where a canvas looks at its drawing.
#pragma once

#include "drafton/engine/commands/drawing_view.h"
#include "drafton/engine/document.h"
#include "drafton/render/scene.h"
#include "drafton/render/view.h"
#include "drawing/objects/layout.h"

#include <QSize>

#include <map>

namespace drafton {

/// The part of the active tab (the model or a layout) that is in view. Each tab keeps its own.
///
/// The drawing has a record of what is in view, which ZOOM changes and files keep. The two are
/// brought together between commands only, so that panning neither becomes a part of an undo step
/// nor makes a drawing count as changed.
class CanvasView {
 public:
  /// Both live longer.
  CanvasView(Document& document, Scene& scene);

  /// Pixels of the device, y down; settled, as pictures are.
  View view() const { return m_view.settled(); }
  /// The block that is shown.
  OdDbObjectId block() const { return m_block; }
  /// The layout that is shown; null for the model.
  OdDbLayoutPtr layout() const;
  /// The place under a pixel, on the drawing's plane.
  OdGePoint3d pointAt(const QPointF& pixel) const;
  QPointF pixelOf(const OdGePoint3d& point) const { return view().projection()(point); }
  /// The side of a pixel in drawing units.
  double pixelSize() const { return 1 / m_view.scale; }

  /// A new size in pixels. The middle stays; as long as nobody has looked elsewhere, so does all
  /// that the drawing was opened with.
  void resize(const QSize& pixels);
  void pan(const QPointF& pixels);
  /// What is at a pixel stays there.
  void zoom(double factor, const QPointF& pixel);
  /// Shows all of the drawing, or of the layout its sheet.
  void showAll();

  /// Shows what lies between two pixels; false if that is next to nothing.
  bool showBetween(const QPointF& corner, const QPointF& opposite);
  /// Keeps what is in view for showFormer().
  void keepFormer();
  /// Shows what was kept last, once; false if nothing was, or it was before a ZOOM or in another
  /// tab.
  bool showFormer();

  /// Goes to another tab or view where the drawing has a new one (by ZOOM, undo or LAYOUT). True if
  /// anything moved.
  bool follow();
  /// Writes the view into the drawing's record, unless a command runs.
  void tellDrawing();

 private:
  bool followTab();
  View viewFrom(const DrawingView& drawing) const;
  DrawingView drawingView() const;
  OdGeExtents3d everything();
  void showFirst();
  bool isAsFirstShown() const;

  Document& m_document;
  Scene& m_scene;
  View m_view;
  OdDbObjectId m_block;
  OdDbObjectId m_tab; ///< its layout
  bool m_isSheet = false;
  std::vector<View> m_former;            ///< the latest last
  std::map<OdDbObjectId, View> m_others; ///< of tabs that are not shown
  DrawingView m_told;                    ///< what the drawing's record says
  DrawingView m_left;                    ///< what it said when it was opened
  double m_leftAspect = 0;
  View m_first;
  OdDbObjectId m_firstTab;
  bool m_hasSize = false, m_isShown = false;
};

} // namespace drafton
