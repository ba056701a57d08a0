#include "drafton/desktop/command_offers.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QStandardItemModel>

namespace drafton {
namespace {

/// In which source an offer stands; empty for a command.
constexpr int kSourceRole = Qt::UserRole + 1;
/// What typed text is compared with, which need not be what the list shows.
constexpr int kTypedRole = kSourceRole + 1;
constexpr auto kAnyCase = Qt::CaseInsensitive;
constexpr int kPictogramSize = 16;
/// Nobody looks at more, and each may have to be read from a file.
constexpr int kMostPictograms = 200;

QStandardItem* itemOf(const OdString& shown, const OdString& typed) {
  auto* const item = new QStandardItem(shown);
  item->setData(typed, kTypedRole);
  return item;
}

} // namespace

CommandOffers::CommandOffers(Desktop& desktop, QLineEdit& edit)
  : QObject(&edit)
  , m_desktop(desktop)
  , m_edit(edit)
  , m_model(new QStandardItemModel(this))
  , m_completer(new QCompleter(m_model, this)) {
  m_completer->setCaseSensitivity(kAnyCase);
  m_completer->setCompletionRole(kTypedRole);
  m_completer->setFilterMode(Qt::MatchStartsWith);
  m_completer->setWidget(&edit);
  m_completer->setMaxVisibleItems(12);
  m_completer->popup()->setAccessibleName(translated(u"Commands that begin with the typed text"));
  connect(m_completer, qOverload<const QModelIndex&>(&QCompleter::activated), this,
          &CommandOffers::take);
}

void CommandOffers::update(QChar first) {
  const auto isMeant = [first](const OdString& text) { return text.startsWith(first, kAnyCase); };
  m_first = first;
  m_model->clear();
  for (const OdString& name : m_desktop.engine().commands().names())
    if (isMeant(name)) m_model->appendRow(itemOf(name, name));
  CompletionRegistry& registry = m_desktop.engine().completion();
  int pictograms = 0;
  for (const OdString& source : registry.sourceNames())
    for (const auto& offer : registry.offers(source)) {
      if (!isMeant(offer->text)) continue;
      auto* const item = itemOf(offer->displayText, offer->text);
      item->setData(source, kSourceRole);
      if (offer->pictogram && ++pictograms <= kMostPictograms)
        item->setIcon(QPixmap::fromImage(offer->pictogram->image(kPictogramSize)));
      m_model->appendRow(item);
    }
}

void CommandOffers::show() {
  const OdString text = m_edit.text();
  if (m_desktop.isBusy() || text.isEmpty() || text.contains(u' ')) return hide();
  // Tools come and go, but not while a word is typed.
  if (text.size() == 1 || text.front() != m_first) update(text.front());
  m_completer->setCompletionPrefix(text);
  if (m_completer->completionCount() == 0) return hide();
  m_completer->complete(m_edit.rect());
}

bool CommandOffers::isShown() const { return m_completer->popup()->isVisible(); }

QWidget* CommandOffers::list() const { return m_completer->popup(); }

void CommandOffers::hide() { m_completer->popup()->hide(); }

bool CommandOffers::takeMarked() {
  const QModelIndex marked = m_completer->popup()->currentIndex();
  if (!isShown() || !marked.isValid()) return false;
  hide();
  take(marked);
  return true;
}

void CommandOffers::take(const QModelIndex& index) {
  const OdString text = index.data().toString();
  const OdString source = index.data(kSourceRole).toString();
  m_edit.clear();
  if (source.isEmpty())
    m_desktop.type(text + u'\n');
  else
    m_desktop.engine().completion().runOffer(source, text);
}

} // namespace drafton
