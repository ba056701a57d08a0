// The drawing area of one document.
#pragma once

#include "drafton/desktop/canvas_picture.h"
#include "drafton/desktop/drafting_aids.h"
#include "drafton/desktop/entity_chooser.h"
#include "drafton/desktop/grip_tool.h"
#include "drafton/desktop/text_editor.h"

#include <QWidget>

namespace drafton {

/// Shows a drawing, lets the user look around in it, and turns clicks into answers. While no
/// command runs, clicks choose entities and drag their grips.
///
/// Keys are left to the window around it.
class Canvas : public QWidget {
  Q_OBJECT

 public:
  /// Both live longer, or beginClosing() is called first.
  Canvas(Desktop& desktop, Document& document);

  Document* document() const { return m_document; }
  CanvasView& view() { return m_view; }
  /// Null while no text is being changed.
  TextEditor* textEditor() { return m_editor; }
  /// Where a click would go now; nothing while the cursor is elsewhere.
  const std::optional<CursorPlace>& cursorPlace() const { return m_place; }
  /// A drawing's place in the widget's own coordinates.
  QPointF widgetPointOf(const OdGePoint3d& point) const;
  /// Shows all of the drawing.
  void showAll();
  /// The next two clicks, or a drag, are corners of what is to be seen. The right button gives up,
  /// and so does whatever is typed.
  void beginZoomBox();
  /// Goes back to before showAll() or such a box; false if the view was given by something else
  /// since.
  bool showFormer();
  /// Ends a box or a grip that is being drawn; else chooses nothing any more. False if there was
  /// nothing to give up.
  bool giveUp();
  /// Takes a typed word as the place of a grip that is being moved: a point, or a distance towards
  /// the cursor. False if there is no such grip.
  bool takeWord(const OdString& word);
  /// The drawing is about to go; nothing is painted from now on.
  void beginClosing();

 Q_SIGNALS:
  void cursorMoved();
  /// What is chosen may be another now.
  void choiceChanged();
  /// The user asked for the menu of what is under the cursor; while a command asks for a point, for
  /// that of the snaps.
  void menuWanted(const QPoint& globalPosition);
  /// The user wants to see what is known of what was just chosen.
  void propertiesWanted();

 public Q_SLOTS:
  /// Takes over what the engine did.
  void follow();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool event(QEvent* event) override;

 private:
  QPointF pixelAt(const QPointF& position) const { return position * devicePixelRatioF(); }
  const InputRequest* request() const;
  bool isIdle() const;
  void moveCursor();
  void updateMarks();
  void viewMoved();
  void press(Qt::KeyboardModifiers modifiers);
  void pressIdle(Qt::KeyboardModifiers modifiers);
  bool openAtCursor();
  void followText();
  void endBox(Qt::KeyboardModifiers modifiers);
  void pressZoomBox();
  void endZoomBox();
  void choose(const Selection& found, Qt::KeyboardModifiers modifiers);
  PreviewShapes transientShapes() const;
  CanvasLook look() const;
  void paintOver(QPainter& painter);

  Desktop& m_desktop;
  Document* m_document;
  Scene m_scene;
  CanvasView m_view;
  CanvasPicture m_picture;
  EntityChooser m_chooser;
  DraftingAids m_aids;
  GripTool m_grips;
  TextEditor* m_editor = nullptr; ///< only while it is open: the canvas has no other parts

  std::optional<QPointF> m_cursor; ///< pixels; nothing while it is elsewhere
  std::optional<CursorPlace> m_place;
  std::optional<QPointF> m_boxCorner; ///< of a box that is being drawn while no command runs
  bool m_zoomsToBox = false;
  std::optional<QPointF> m_zoomCorner; ///< the first one of that box
  QPointF m_pressed;
  bool m_bandAtPress = false;
  Selection m_hovered; ///< what a click or the box would choose
  std::optional<QPointF> m_panFrom;
};

} // namespace drafton
