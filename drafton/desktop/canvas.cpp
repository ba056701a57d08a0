#include "drafton/desktop/canvas.h"

#include "drafton/desktop/canvas_overlay.h"
#include "drafton/engine/edited_texts.h"
#include "drafton/engine/value_parser.h"

#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QPointer>
#include <QPointingDevice>
#include <QWheelEvent>

#include <cmath>

namespace drafton {
namespace {

/// From here a press that moves is a drag, on the screen.
constexpr double kDragDistance = 6;
/// A grip is taken from so far away, on the screen.
constexpr double kGripReach = 6;
/// Of the wheel.
constexpr double kStepsOfNotch = int{QWheelEvent::DefaultDeltasPerStep};
constexpr double kZoomOfNotch = 1.2;
constexpr double kMillimetresOfInch = 25.4;

} // namespace

Canvas::Canvas(Desktop& desktop, Document& document)
  : m_desktop(desktop)
  , m_document(&document)
  , m_scene(*document.database())
  , m_view(document, m_scene)
  , m_picture(m_scene)
  , m_chooser(document, m_scene, m_view)
  , m_aids(desktop) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::BlankCursor);
  setMinimumSize(120, 90);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAccessibleName(translated(u"Drawing area"));
  connect(&desktop, &Desktop::settled, this, &Canvas::follow);
  connect(&desktop, &Desktop::aboutToTake, this, [this] {
    if (m_document && isVisible()) m_view.tellDrawing();
  });
}

const InputRequest* Canvas::request() const {
  const bool isActive = m_document && m_desktop.document() == m_document;
  return isActive ? m_document->processor().request() : nullptr;
}

bool Canvas::isIdle() const { return m_document && !m_document->processor().isBusy(); }

QPointF Canvas::widgetPointOf(const OdGePoint3d& point) const {
  return m_view.pixelOf(point) / devicePixelRatioF();
}

void Canvas::beginClosing() {
  m_document = nullptr;
  m_place.reset();
  m_hovered.clear();
  disconnect(&m_desktop, nullptr, this, nullptr);
}

void Canvas::showAll() {
  if (!m_document) return;
  m_view.keepFormer();
  m_view.showAll();
  viewMoved();
}

void Canvas::beginZoomBox() {
  if (!m_document) return;
  m_boxCorner.reset();
  m_grips.cancel();
  m_zoomsToBox = true;
  m_desktop.engine().print(translated(u"Draw a box around what is to be seen."));
}

void Canvas::pressZoomBox() {
  if (m_zoomCorner) return endZoomBox();
  m_zoomCorner = m_cursor;
  update();
}

void Canvas::endZoomBox() {
  m_zoomsToBox = false;
  const QPointF corner = *std::exchange(m_zoomCorner, std::nullopt);
  m_view.keepFormer();
  if (!m_view.showBetween(corner, *m_cursor)) m_view.showFormer();
  viewMoved();
}

bool Canvas::showFormer() {
  if (!m_document || !m_view.showFormer()) return false;
  viewMoved();
  return true;
}

void Canvas::viewMoved() {
  moveCursor();
  followText();
  update();
}

bool Canvas::giveUp() {
  const bool gaveUp = m_boxCorner || m_grips.isDragging();
  m_boxCorner.reset();
  m_grips.cancel();
  if (!gaveUp && (!isIdle() || m_document->preselection().empty())) return false;
  if (!gaveUp) m_chooser.clear();
  follow();
  return true;
}

bool Canvas::takeWord(const OdString& word) {
  if (!m_grips.isDragging()) return false;
  // Enter alone would run the last command again.
  if (word.isEmpty()) return true;
  const OdGePoint3d from = m_grips.dragged().grip.at;
  const PointOrigins origins{from, from, from.z,
                             m_place ? std::optional(m_place->point) : std::nullopt};
  std::optional<OdGePoint3d> point = parsePoint(word, origins);
  if (!point) point = parseDistanceToCursor(word, origins);
  if (point)
    m_grips.end(m_desktop, *point);
  else
    m_desktop.engine().print(translated(u"Invalid point."));
  return true;
}

void Canvas::follow() {
  if (!m_document || !m_document->database() || !isVisible()) return;
  m_view.follow();
  m_zoomsToBox = false;
  m_zoomCorner.reset();
  if (!isIdle()) {
    m_boxCorner.reset();
    m_grips.cancel();
  }
  m_grips.setEntities(isIdle() ? m_chooser.chosen() : Selection());
  moveCursor();
  followText();
  update();
  Q_EMIT choiceChanged();
}

void Canvas::followText() {
  const InputRequest* const asked = request();
  const std::optional<OdGePoint3d> place = asked ? asked->editedPlace() : std::nullopt;
  if (!m_editor && asked && asked->editing() != TextEditing::kNone)
    m_editor = new TextEditor(m_desktop, *this);
  if (!m_editor) return;
  m_editor->follow(asked, place ? widgetPointOf(*place) : QPointF());
  // It may be what the answer came from.
  if (!m_editor->isOpen()) std::exchange(m_editor, nullptr)->deleteLater();
}

// --- looking around

void Canvas::resizeEvent(QResizeEvent*) {
  if (m_document) m_view.resize((QSizeF(size()) * devicePixelRatioF()).toSize());
}

void Canvas::wheelEvent(QWheelEvent* event) {
  if (!m_document) return;
  event->accept();
  const bool isPad = event->device()->type() == QInputDevice::DeviceType::TouchPad;
  if (isPad && !event->pixelDelta().isNull() && !(event->modifiers() & Qt::ControlModifier)) {
    m_view.pan(QPointF(event->pixelDelta()) * devicePixelRatioF());
  } else {
    const double notches = event->angleDelta().y() / kStepsOfNotch;
    m_view.zoom(std::pow(kZoomOfNotch, notches), pixelAt(event->position()));
  }
  m_cursor = pixelAt(event->position());
  viewMoved();
}

bool Canvas::event(QEvent* event) {
  if (event->type() == QEvent::NativeGesture && m_document) {
    const auto* const gesture = static_cast<QNativeGestureEvent*>(event);
    if (gesture->gestureType() == Qt::ZoomNativeGesture) {
      m_view.zoom(1 + gesture->value(), pixelAt(gesture->position()));
      viewMoved();
      return true;
    }
  }
  return QWidget::event(event);
}

void Canvas::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) update();
  QWidget::changeEvent(event);
}

// --- the mouse

void Canvas::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) return showAll();
  const QPointer<Canvas> self(this);
  if (m_desktop.putBehind(*this, *event) || !self || !m_document) return;
  m_cursor = pixelAt(event->position());
  const bool isPlain = event->button() == Qt::LeftButton && !event->modifiers();
  // A box or a zoom that the first of the two clicks began goes on.
  const bool isFree = isIdle() && !m_boxCorner && !m_zoomsToBox;
  if (!isPlain || !isFree || !openAtCursor()) mousePressEvent(event);
}

/// Lets the text under the cursor be edited; of what has none, shows what is known. False if
/// nothing is there.
bool Canvas::openAtCursor() {
  const Selection found = m_chooser.at(*m_cursor);
  if (found.empty()) return false;
  m_grips.cancel();
  moveCursor();
  const OdDbObjectId top = m_chooser.topmost(*m_cursor);
  const double reach = m_desktop.variable("PICKBOX").toDouble() * m_view.pixelSize();
  if (editedTexts(top, m_place->point, reach).empty()) {
    m_chooser.add(found);
    follow();
    Q_EMIT propertiesWanted();
  } else {
    m_document->preselection() = {top};
    m_desktop.runMacro(QStringLiteral("^C^C_TEXTEDIT "));
    // Where what is chosen first does not count, it is chosen now.
    if (const InputRequest* const asked = request(); asked && asked->picks()) press({});
  }
  return true;
}

void Canvas::mousePressEvent(QMouseEvent* event) {
  // A tool that was clicked just before may be what asks for the point.
  const QPointer<Canvas> self(this);
  if (m_desktop.putBehind(*this, *event) || !self || !m_document) return;
  m_cursor = pixelAt(event->position());
  if (event->button() == Qt::MiddleButton) {
    m_panFrom = m_cursor;
    setCursor(Qt::ClosedHandCursor);
  } else if (m_editor) {
    m_editor->submit();
  } else if (event->button() == Qt::LeftButton) {
    moveCursor();
    m_pressed = *m_cursor;
    m_zoomsToBox ? pressZoomBox() : press(event->modifiers());
  } else if (event->button() == Qt::RightButton && m_zoomsToBox) {
    m_zoomsToBox = false;
    m_zoomCorner.reset();
    update();
  } else if (event->button() == Qt::RightButton) {
    const InputRequest* const asked = request();
    const bool wantsSnap = (event->modifiers() & Qt::ShiftModifier) && asked &&
                           asked->takesPoints() && !asked->picks();
    if (isIdle() || wantsSnap)
      Q_EMIT menuWanted(event->globalPosition().toPoint());
    else
      m_desktop.type(QStringLiteral("\n"));
  }
}

void Canvas::press(Qt::KeyboardModifiers modifiers) {
  const InputRequest* const asked = request();
  m_bandAtPress = asked && asked->band() == RubberBand::kSelection;
  if (isIdle())
    pressIdle(modifiers);
  else if (asked && asked->snapKinds().value_or(0) != 0 && m_place && !m_place->snap)
    m_desktop.engine().print(translated(u"There is no such place here."));
  else if (asked && asked->takesPoints() && m_place)
    m_desktop.click(m_place->point);
}

void Canvas::pressIdle(Qt::KeyboardModifiers modifiers) {
  if (m_grips.isDragging()) return m_grips.end(m_desktop, m_place->point);
  if (m_boxCorner) return endBox(modifiers);
  const double reach = kGripReach * devicePixelRatioF();
  if (const GripTool::Place* const grip = m_grips.at(*m_cursor, m_view, reach)) {
    m_grips.begin(*grip);
    return viewMoved();
  }
  const Selection found = m_chooser.at(*m_cursor);
  if (found.empty())
    m_boxCorner = m_cursor;
  else
    choose(found, modifiers);
  follow();
}

/// With Shift what is chosen already is let go.
void Canvas::choose(const Selection& found, Qt::KeyboardModifiers modifiers) {
  if (modifiers & Qt::ShiftModifier)
    m_chooser.remove(found);
  else
    m_chooser.add(found);
}

void Canvas::endBox(Qt::KeyboardModifiers modifiers) {
  const Selection found = m_chooser.between(*m_boxCorner, *m_cursor);
  m_boxCorner.reset();
  choose(found, modifiers);
  follow();
}

void Canvas::mouseReleaseEvent(QMouseEvent* event) {
  if (!m_document) return;
  m_cursor = pixelAt(event->position());
  if (event->button() == Qt::MiddleButton) {
    m_panFrom.reset();
    setCursor(Qt::BlankCursor);
    return;
  }
  if (event->button() != Qt::LeftButton) return;
  moveCursor();
  // A box or a grip that was dragged ends where the button is let go; a click leaves it open.
  const QPointF way = *m_cursor - m_pressed;
  if (std::hypot(way.x(), way.y()) < kDragDistance * devicePixelRatioF()) return;
  const InputRequest* const asked = request();
  if (m_zoomCorner)
    endZoomBox();
  else if (m_boxCorner)
    endBox(event->modifiers());
  else if (m_grips.isDragging())
    m_grips.end(m_desktop, m_place->point);
  else if (asked && asked->band() == RubberBand::kSelection && !m_bandAtPress && m_place)
    m_desktop.click(m_place->point);
}

void Canvas::mouseMoveEvent(QMouseEvent* event) {
  if (!m_document) return;
  const QPointF pixel = pixelAt(event->position());
  if (m_panFrom) {
    m_view.pan(pixel - *m_panFrom);
    m_panFrom = pixel;
  }
  m_cursor = pixel;
  moveCursor();
  update();
}

void Canvas::leaveEvent(QEvent*) {
  m_cursor.reset();
  m_place.reset();
  if (m_document) m_document->processor().setCursor({});
  m_hovered.clear();
  update();
  Q_EMIT cursorMoved();
}

/// Finds out where the cursor is in the drawing, and what is there.
void Canvas::moveCursor() {
  if (!m_document || !m_document->database() || !m_cursor) return;
  const OdGePoint3d raw = m_view.pointAt(*m_cursor);
  const InputRequest* const asked = request();
  m_place = CursorPlace{raw, {}, {}};
  const bool isPoint = asked && asked->takesPoints() && !asked->picks();
  if (isPoint || m_grips.isDragging()) {
    const double aperture = m_desktop.variable("APERTURE").toDouble() * devicePixelRatioF();
    std::vector<OdDbEntityPtr> near;
    if (m_aids.isOn(Aid::kSnap) || (isPoint && asked->snapKinds()))
      near = m_chooser.near(*m_cursor, aperture);
    const double reach = aperture * m_view.pixelSize();
    m_place = isPoint ? m_aids.lead(raw, *asked, near, reach)
                      : m_aids.lead(raw, m_grips.dragged().grip.at, near, reach);
  }
  m_document->processor().setCursor(m_place->point);
  updateMarks();
  Q_EMIT cursorMoved();
}

/// Finds what a click would choose.
void Canvas::updateMarks() {
  m_hovered.clear();
  if (m_panFrom || m_grips.isDragging()) return;
  const InputRequest* const asked = request();
  if (m_boxCorner)
    m_hovered = m_chooser.between(*m_boxCorner, *m_cursor);
  else if (asked && asked->band() == RubberBand::kSelection && asked->base())
    m_hovered = m_chooser.between(m_view.pixelOf(*asked->base()), *m_cursor);
  else if (isIdle() || (asked && asked->picks()))
    m_hovered = m_chooser.at(*m_cursor);
}

// --- painting

PreviewShapes Canvas::transientShapes() const {
  if (!m_place) return {};
  try {
    if (m_grips.isDragging()) return m_grips.shownAt(m_place->point);
    const InputRequest* const asked = request();
    return asked ? asked->preview(m_place->point) : PreviewShapes();
  } catch (const OdError&) {
    // Numbers that no entity takes: the command will say so when it is asked for them.
    return {};
  }
}

CanvasLook Canvas::look() const {
  CanvasLook look;
  look.isDark = isDark(palette());
  look.pixelsPerMillimetre = logicalDpiX() * devicePixelRatioF() / kMillimetresOfInch;
  look.highlighted.insert(m_hovered.begin(), m_hovered.end());
  const Selection& chosen = isIdle() ? m_document->preselection() : m_document->chosen();
  look.highlighted.insert(chosen.begin(), chosen.end());
  if (m_grips.isDragging()) look.hidden.insert(m_grips.dragged().entity);
  return look;
}

void Canvas::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const CanvasColors& colors = canvasColors(isDark(palette()));
  if (!m_document || !m_document->database()) {
    painter.fillRect(rect(), colors.ground);
    return;
  }
  const double ratio = devicePixelRatioF();
  // Another screen may have other pixels.
  if (const QSize pixels = (QSizeF(size()) * ratio).toSize(); m_view.view().size != pixels)
    m_view.resize(pixels);
  const PreviewShapes shapes = transientShapes();
  painter.drawImage(QRectF(rect()), m_picture.show(m_view, look(), shapes));
  painter.scale(1 / ratio, 1 / ratio);
  painter.setRenderHint(QPainter::Antialiasing);
  QFont small = font();
  small.setPixelSize(qRound(QFontInfo(small).pixelSize() * ratio));
  painter.setFont(small);
  paintOver(painter);
}

void Canvas::paintOver(QPainter& painter) {
  CanvasOverlay overlay(painter, m_view, isDark(palette()), devicePixelRatioF());
  if (m_aids.isOn(Aid::kGrid) && !m_view.layout()) overlay.grid();
  const InputRequest* const asked = request();
  const std::optional<OdGePoint3d> base = asked ? asked->base() : std::nullopt;
  if (isIdle()) {
    const GripTool::Place* hot = m_grips.isDragging() ? &m_grips.dragged() : nullptr;
    if (!hot && m_cursor) hot = m_grips.at(*m_cursor, m_view, kGripReach * devicePixelRatioF());
    overlay.grips(m_grips.places(), hot);
  }
  if (!m_cursor || !m_place) return;
  if (m_boxCorner) overlay.selectionBox(*m_boxCorner, *m_cursor);
  if (m_zoomCorner) overlay.box(*m_zoomCorner, *m_cursor);
  if (base && asked->takesPoints()) {
    const QPointF from = m_view.pixelOf(*base), to = m_view.pixelOf(m_place->point);
    if (asked->band() == RubberBand::kSelection)
      overlay.selectionBox(from, to);
    else if (asked->band() == RubberBand::kBox)
      overlay.box(from, to);
    else
      overlay.rubberBand(*base, m_place->point);
  }
  if (m_place->trackedFrom) overlay.trackingLine(*m_place->trackedFrom, m_place->point);
  if (m_place->snap) overlay.snapMarker(*m_place->snap);
  if (m_panFrom) return;
  const double box = m_desktop.variable("PICKBOX").toDouble();
  const double reach = m_desktop.variable("CURSORSIZE").toDouble() / 100;
  if (asked && asked->picks() && asked->band() != RubberBand::kSelection)
    overlay.pickBox(*m_cursor, box);
  else
    overlay.cross(m_view.pixelOf(m_place->point), reach, isIdle() ? box : 0);
}

} // namespace drafton
