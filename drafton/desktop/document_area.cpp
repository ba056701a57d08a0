#include "drafton/desktop/document_area.h"

#include "frame/file_path.h"

#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace drafton {
namespace {

OdString tabText(const Document& document) {
  return document.isModified() ? document.name() + QStringLiteral(" *") : document.name();
}

} // namespace

DocumentArea::DocumentArea(Desktop& desktop, QWidget* parent)
  : QWidget(parent)
  , m_desktop(desktop)
  , m_tabs(new QTabBar(this))
  , m_layouts(new QTabBar(this))
  , m_stack(new QStackedWidget(this)) {
  m_tabs->setTabsClosable(true);
  m_tabs->setDocumentMode(true);
  m_tabs->setExpanding(false);
  m_tabs->setAccessibleName(translated(u"Open drawings"));
  m_layouts->setShape(QTabBar::RoundedSouth);
  m_layouts->setDocumentMode(true);
  m_layouts->setExpanding(false);
  m_layouts->setAccessibleName(translated(u"Model and layouts"));

  auto* const empty = new QLabel(
      QStringLiteral("<p>%1</p><p><a href=\"open\">%2</a> &nbsp; <a href=\"new\">%3</a></p>")
          .arg(translated(u"No drawing is open."), translated(u"Open a drawing"),
               translated(u"Make a new one")));
  empty->setAlignment(Qt::AlignCenter);
  empty->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
  connect(empty, &QLabel::linkActivated, this, &DocumentArea::actionWanted);
  m_emptyPage = empty;
  m_stack->addWidget(empty);

  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(m_tabs);
  column->addWidget(m_stack, 1);
  column->addWidget(m_layouts);

  connect(m_tabs, &QTabBar::currentChanged, this, [this](int tab) {
    if (Canvas* const shown = canvasAt(tab))
      m_desktop.engine().documents().activate(*shown->document());
  });
  connect(m_tabs, &QTabBar::tabCloseRequested, this, [this](int tab) {
    if (Canvas* const canvas = canvasAt(tab)) Q_EMIT closeWanted(canvas->document());
  });
  connect(m_layouts, &QTabBar::tabBarClicked, this, &DocumentArea::chooseLayout);
  connect(&desktop, &Desktop::documentActivated, this, &DocumentArea::activate);
  connect(&desktop, &Desktop::documentClosing, this, &DocumentArea::remove);
  connect(&desktop, &Desktop::settled, this, &DocumentArea::follow);
  for (const auto& document : desktop.engine().documents().documents()) activate(document.get());
  followLayouts();
}

Canvas* DocumentArea::canvasAt(int tab) const {
  return tab < 0 ? nullptr : m_tabs->tabData(tab).value<Canvas*>();
}

int DocumentArea::tabOf(const Document* document) const {
  for (int tab = 0; tab < m_tabs->count(); ++tab)
    if (canvasAt(tab)->document() == document) return tab;
  return -1;
}

Canvas* DocumentArea::canvas() const { return qobject_cast<Canvas*>(m_stack->currentWidget()); }

void DocumentArea::activate(Document* document) {
  int tab = tabOf(document);
  const QSignalBlocker quiet(m_tabs);
  if (tab < 0) {
    auto* const made = new Canvas(m_desktop, *document);
    connect(made, &Canvas::cursorMoved, this, &DocumentArea::cursorMoved);
    connect(made, &Canvas::choiceChanged, this, &DocumentArea::choiceChanged);
    connect(made, &Canvas::menuWanted, this, &DocumentArea::menuWanted);
    connect(made, &Canvas::propertiesWanted, this, &DocumentArea::propertiesWanted);
    m_stack->addWidget(made);
    tab = m_tabs->addTab(tabText(*document));
    m_tabs->setTabData(tab, QVariant::fromValue(made));
  }
  m_tabs->setCurrentIndex(tab);
  Canvas* const shown = canvasAt(tab);
  m_stack->setCurrentWidget(shown);
  shown->setFocus();
  shown->follow();
  follow();
  Q_EMIT canvasChanged();
}

void DocumentArea::remove(Document* document) {
  const int tab = tabOf(document);
  if (tab < 0) return;
  Canvas* const gone = canvasAt(tab);
  gone->beginClosing();
  const QSignalBlocker quiet(m_tabs);
  m_tabs->removeTab(tab);
  m_stack->removeWidget(gone);
  // It may be what the event at hand comes from.
  gone->deleteLater();
  if (m_tabs->count() == 0) m_stack->setCurrentWidget(m_emptyPage);
  followLayouts();
  Q_EMIT canvasChanged();
}

void DocumentArea::follow() {
  for (int tab = 0; tab < m_tabs->count(); ++tab) {
    const Document& document = *canvasAt(tab)->document();
    m_tabs->setTabText(tab, tabText(document));
    m_tabs->setTabToolTip(tab, odpath::toPlatform(document.path()));
  }
  followLayouts();
}

void DocumentArea::followLayouts() {
  const Canvas* const shown = canvas();
  m_layouts->setVisible(shown != nullptr);
  if (!shown) return;
  OdDbDatabase* const database = shown->document()->database();
  if (!database) return;
  const QSignalBlocker quiet(m_layouts);
  const OdDbObjectId active = oddb::activeLayout(*database);
  int tab = 0, current = 0;
  for (const OdDbLayoutPtr& layout : oddb::layouts(*database)) {
    const OdString name = layout->getLayoutName();
    if (tab >= m_layouts->count()) m_layouts->addTab(name);
    m_layouts->setTabData(tab, name);
    // The model has the same name in every file.
    const OdString text = layout->isModelType() ? translated(u"Model") : name;
    if (m_layouts->tabText(tab) != text) m_layouts->setTabText(tab, text);
    if (layout->objectId() == active) current = tab;
    ++tab;
  }
  while (m_layouts->count() > tab) m_layouts->removeTab(m_layouts->count() - 1);
  m_layouts->setCurrentIndex(current);
}

void DocumentArea::chooseLayout(int tab) {
  if (tab < 0) return;
  const OdString name = m_layouts->tabData(tab).toString();
  if (m_desktop.isBusy())
    m_desktop.engine().print(translated(u"A command is running: end it first."));
  else if (tab != m_layouts->currentIndex())
    m_desktop.type(QStringLiteral("_LAYOUT\n_Set\n%1\n").arg(name), KeyQueue::Giver::kProgram);
  // The tab follows the drawing, whatever became of it.
  QMetaObject::invokeMethod(this, &DocumentArea::followLayouts, Qt::QueuedConnection);
}

} // namespace drafton
