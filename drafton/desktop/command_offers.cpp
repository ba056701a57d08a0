#include "drafton/desktop/command_offers.h"

#include "drafton/desktop/offer_model.h"

#include <QAbstractProxyModel>
#include <QEvent>
#include <QLineEdit>
#include <QListView>

namespace drafton {
namespace {

constexpr auto kAnyCase = Qt::CaseInsensitive;

} // namespace

CommandOffers::CommandOffers(Desktop& desktop, QLineEdit& edit)
  : QObject(&edit)
  , m_desktop(desktop)
  , m_edit(edit)
  , m_model(new OfferModel(this))
  , m_completer(new QCompleter(m_model, this)) {
  m_completer->setWidget(&edit);
  m_completer->setMaxVisibleItems(12);
  m_completer->popup()->setAccessibleName(translated(u"Commands that begin with the typed text"));
  // There may be a hundred thousand of them.
  if (auto* const list = qobject_cast<QListView*>(m_completer->popup()))
    list->setUniformItemSizes(true);
  m_completer->popup()->installEventFilter(this);
  connect(m_completer, qOverload<const QModelIndex&>(&QCompleter::activated), this,
          &CommandOffers::take);
}

void CommandOffers::gather(QChar first) {
  std::vector<OfferModel::Entry> entries;
  const auto isMeant = [first](const OdString& text) { return text.startsWith(first, kAnyCase); };
  for (const OdString& name : m_desktop.engine().commands().names()) {
    if (!isMeant(name)) continue;
    entries.push_back(std::make_shared<HostEdCompletion::Entry>());
    entries.back()->text = entries.back()->displayText = name;
  }
  m_desktop.engine().completion().ask([&](OfferModel::Entry offer) {
    if (isMeant(offer->text)) entries.push_back(std::move(offer));
  });
  m_first = first;
  m_model->setPixelRatio(m_edit.devicePixelRatioF());
  m_model->take(std::move(entries));
}

void CommandOffers::show() {
  const OdString text = m_edit.text();
  if (m_desktop.isBusy() || text.isEmpty() || text.contains(u' ')) return hide();
  // Tools come and go, but not while a word is typed.
  if (text.size() == 1) m_deadEnd.clear();
  if (!m_deadEnd.isEmpty() && text.startsWith(m_deadEnd, kAnyCase)) return hide();
  if (text.size() == 1 || m_model->isEmpty() || text.front() != m_first) gather(text.front());
  m_model->narrow(text);
  m_deadEnd = m_model->rowCount() == 0 ? text : OdString();
  if (!m_deadEnd.isEmpty()) return hide();
  m_completer->setCompletionPrefix(OdString()); // the model has narrowed them
  m_completer->complete(m_edit.rect());
}

bool CommandOffers::isShown() const { return m_completer->popup()->isVisible(); }

QWidget* CommandOffers::list() const { return m_completer->popup(); }

void CommandOffers::hide() { m_completer->popup()->hide(); }

bool CommandOffers::eventFilter(QObject* object, QEvent* event) {
  // Offers hold what they would run, which may go with its module. The list hides before it tells
  // what was chosen.
  if (event->type() == QEvent::Hide)
    QMetaObject::invokeMethod(
        this,
        [this] {
          if (!isShown()) m_model->take({});
        },
        Qt::QueuedConnection);
  return QObject::eventFilter(object, event);
}

bool CommandOffers::takeMarked() {
  const QModelIndex marked = m_completer->popup()->currentIndex();
  if (!isShown() || !marked.isValid()) return false;
  hide();
  take(marked);
  return true;
}

void CommandOffers::take(const QModelIndex& index) {
  const auto& shown = static_cast<const QAbstractProxyModel&>(*m_completer->completionModel());
  const int row = shown.mapToSource(index).row();
  if (row < 0) return;
  const OfferModel::Entry chosen = m_model->at(row);
  m_edit.clear();
  if (chosen->action)
    chosen->action->run();
  else
    m_desktop.type(chosen->text + u'\n');
}

} // namespace drafton
