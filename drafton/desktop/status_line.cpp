#include "drafton/desktop/status_line.h"

#include "drafton/desktop/access_keys.h"
#include "drafton/desktop/canvas.h"
#include "drafton/engine/value_parser.h"

#include <QActionGroup>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QToolButton>

namespace drafton {
namespace {

/// As many digits as coordinates at the size of a pixel have a meaning.
int digitsFor(double pixel) {
  return pixel > 0 ? std::clamp(static_cast<int>(std::ceil(-std::log10(pixel))), 0, 8) : 4;
}

} // namespace

StatusLine::StatusLine(Desktop& desktop, QWidget* parent)
  : QStatusBar(parent)
  , m_desktop(desktop)
  , m_aids(desktop)
  , m_place(new QLabel(this)) {
  m_place->setAccessibleName(translated(u"Place of the cursor"));
  m_place->setMinimumWidth(
      fontMetrics().horizontalAdvance(QStringLiteral("-00000000.00, -00000000.00")));
  m_place->setTextInteractionFlags(Qt::NoTextInteraction);
  addWidget(m_place);
  for (const AidRow& row : draftingAids()) {
    auto* const button = new QToolButton(this);
    button->setText(translated(row.label));
    button->setCheckable(true);
    button->setAutoRaise(true);
    const OdString key = QKeySequence(row.key).toString(QKeySequence::NativeText);
    button->setToolTip(QStringLiteral("%1 (%2)").arg(translated(row.tip), key));
    button->setAccessibleName(translated(row.tip));
    button->setFocusPolicy(Qt::TabFocus);
    const Aid aid = row.aid;
    connect(button, &QToolButton::clicked, this, [this, aid](bool on) {
      m_aids.set(aid, on);
      showAids();
    });
    addPermanentWidget(button);
    m_toggles.push_back(button);
    if (aid != Aid::kSnap) continue;
    button->setPopupMode(QToolButton::MenuButtonPopup);
    auto* const menu = new QMenu(button);
    button->setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, &StatusLine::chooseSnaps);
  }
  connect(&desktop, &Desktop::variableChanged, this, &StatusLine::showAids);
  connect(&desktop, &Desktop::settled, this, &StatusLine::showAids);
  connect(&desktop, &Desktop::documentActivated, this, &StatusLine::showAids);
  showAids();
}

QToolButton* StatusLine::toggle(Aid aid) const {
  for (std::size_t i = 0; i < m_toggles.size(); ++i)
    if (draftingAids()[i].aid == aid) return m_toggles[i];
  return nullptr;
}

void StatusLine::showAids() {
  for (std::size_t i = 0; i < m_toggles.size(); ++i) {
    m_toggles[i]->setEnabled(m_desktop.document() != nullptr);
    m_toggles[i]->setChecked(m_aids.isOn(draftingAids()[i].aid));
  }
}

/// Fills the menu of the snaps with what is on now.
void StatusLine::chooseSnaps() {
  QMenu* const menu = toggle(Aid::kSnap)->menu();
  menu->clear();
  for (const SnapRow& row : snapKinds()) {
    const int bit = static_cast<int>(row.kind);
    QAction* const action = menu->addAction(snapName(row.kind));
    action->setCheckable(true);
    action->setChecked(m_aids.snapKinds() & bit);
    connect(action, &QAction::triggered, this, [this, bit](bool on) {
      const int now = m_aids.snapKinds();
      m_desktop.setVariable("OSMODE", on ? now | bit : now & ~bit);
    });
  }
  giveAccessKeys(*menu);
}

void StatusLine::showPlace(const Canvas* canvas) {
  const std::optional<CursorPlace> place = canvas ? canvas->cursorPlace() : std::nullopt;
  OdString text;
  if (place) {
    const int digits = digitsFor(canvas->document()->pixelSize());
    text = QStringLiteral("%1, %2").arg(QString::number(place->point.x, 'f', digits),
                                        QString::number(place->point.y, 'f', digits));
    const InputRequest* const asked = m_desktop.request();
    if (const auto base = asked && asked->takesPoints() ? asked->base() : std::nullopt) {
      const OdGeVector3d way = place->point - *base;
      const double angle = odgeNormalAngle(std::atan2(way.y, way.x));
      text += QStringLiteral("   @%1<%2")
                  .arg(QString::number(std::hypot(way.x, way.y), 'f', digits),
                       shownReal(angle * 180 / kOdaPi, 1));
    }
  }
  m_place->setText(text);
  // A name stands in for the text, so it has to hold it.
  const OdString name = translated(u"Place of the cursor");
  m_place->setAccessibleName(text.isEmpty() ? name : QStringLiteral("%1: %2").arg(name, text));
}

OdString StatusLine::placeText() const { return m_place->text(); }

} // namespace drafton
