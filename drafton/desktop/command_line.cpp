#include "drafton/desktop/command_line.h"

#include "drafton/desktop/command_offers.h"
#include "drafton/desktop/give_keys.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>

namespace drafton {
namespace {

constexpr qsizetype kMostTyped = 200;

bool walksThroughList(const QKeyEvent& key) {
  return key.key() == Qt::Key_Up || key.key() == Qt::Key_Down || key.key() == Qt::Key_PageUp ||
         key.key() == Qt::Key_PageDown;
}

/// Keys whose meaning depends on what is asked.
bool endsOrCancels(const QKeyEvent& key) {
  return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter || key.key() == Qt::Key_Space ||
         key.key() == Qt::Key_Escape;
}

/// The prompt with its keywords as links, which hold what a click types.
OdString linked(const OdString& prompt, const KeywordList& keywords) {
  OdString html = prompt.toHtmlEscaped();
  if (keywords.words().isEmpty()) return html;
  const qsizetype open = html.lastIndexOf(u'['), close = html.indexOf(u']', open);
  if (open < 0 || close < 0) return html;
  const QStringList shown = html.mid(open + 1, close - open - 1).split(u'/');
  if (shown.size() != keywords.words().size()) return html;
  QStringList links;
  for (qsizetype i = 0; i < shown.size(); ++i)
    links << QStringLiteral("<a href=\"%1\">%2</a>")
                 .arg(keywords.words()[i].toHtmlEscaped(), shown[i]);
  return html.left(open + 1) + links.join(u'/') + html.mid(close);
}

} // namespace

CommandLine::CommandLine(Desktop& desktop, QWidget* parent)
  : QWidget(parent)
  , m_desktop(desktop)
  , m_history(new QPlainTextEdit(this))
  , m_prompt(new QLabel(this))
  , m_edit(new QLineEdit(this))
  , m_offers(new CommandOffers(desktop, *m_edit)) {
  m_history->setReadOnly(true);
  m_history->setTabChangesFocus(true);
  m_history->setFrameShape(QFrame::NoFrame);
  m_history->setAccessibleName(translated(u"Command history"));
  m_prompt->setTextFormat(Qt::RichText);
  m_prompt->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
  m_prompt->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
  m_edit->setFrame(false);
  m_edit->setAccessibleName(translated(u"Command line"));
  m_edit->setPlaceholderText(translated(u"Type a command"));
  m_edit->installEventFilter(this);
  // Behind the completer's own, so that ours comes first.
  m_offers->list()->installEventFilter(this);

  auto* const row = new QHBoxLayout;
  row->setContentsMargins(6, 2, 6, 4);
  row->addWidget(m_prompt);
  row->addWidget(m_edit, 1);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(m_history, 1);
  column->addLayout(row);

  connect(m_prompt, &QLabel::linkActivated, this, &CommandLine::typeKeyword);
  connect(m_edit, &QLineEdit::textEdited, this, [this] { m_offers->show(); });
  connect(&desktop.console(), &DesktopConsole::historyChanged, this, &CommandLine::showHistory);
  connect(&desktop, &Desktop::settled, this, &CommandLine::showPrompt);
  connect(&desktop, &Desktop::documentActivated, this, &CommandLine::showPrompt);
  showHistory();
  showPrompt();
}

void CommandLine::showHistory() {
  m_history->setPlainText(m_desktop.console().history().join(u'\n'));
  m_history->verticalScrollBar()->setValue(m_history->verticalScrollBar()->maximum());
}

void CommandLine::showPrompt() {
  const InputRequest* const asked = m_desktop.request();
  if (asked) {
    m_prompt->setText(linked(asked->shown().trimmed(), asked->keywords()));
  } else {
    // What nobody will answer is history.
    m_desktop.console().dropPrompt();
    m_prompt->setText(translated(u"Command:").toHtmlEscaped());
  }
  m_edit->setPlaceholderText(asked ? OdString() : translated(u"Type a command"));
  m_offers->hide();
}

void CommandLine::typeKeyword(const OdString& word) {
  m_edit->clear();
  m_desktop.type(QStringLiteral("_%1\n").arg(word));
}

bool CommandLine::blankBelongsToText() const {
  const InputRequest* const asked = m_desktop.request();
  if (!asked) return m_edit->text().contains(u'"') && m_edit->text().count(u'"') % 2 == 1;
  const OdString text = m_edit->text();
  return asked->takesBlanks() || (asked->takesQuotes() && text.startsWith(u'"') &&
                                  (text.size() == 1 || !text.endsWith(u'"')));
}

void CommandLine::submit() {
  const OdString text = m_edit->text();
  m_edit->clear();
  if (!text.isEmpty() && (m_typed.isEmpty() || m_typed.last() != text)) m_typed << text;
  if (m_typed.size() > kMostTyped) m_typed.removeFirst();
  m_recalled = m_typed.size();
  if (!m_desktop.isBusy() && m_wordTaker && m_wordTaker(text)) return;
  if (text.isEmpty() && !m_desktop.isBusy()) return m_desktop.repeat();
  m_desktop.type(text + u'\n');
}

void CommandLine::recall(int step) {
  const qsizetype wanted = m_recalled + step;
  if (wanted < 0 || wanted > m_typed.size()) return;
  m_recalled = wanted;
  m_edit->setText(m_typed.value(wanted));
}

bool CommandLine::handleKey(QKeyEvent* event) {
  if (endsOrCancels(*event) && m_desktop.putBehind(*m_edit, *event)) return true;
  switch (event->key()) {
  case Qt::Key_Return:
  case Qt::Key_Enter:
    if (!m_offers->takeMarked()) submit();
    return true;
  case Qt::Key_Space:
    if (blankBelongsToText()) return false;
    submit();
    return true;
  case Qt::Key_Escape:
    m_offers->hide();
    if (m_desktop.isBusy())
      m_desktop.cancel();
    else if (m_edit->text().isEmpty())
      Q_EMIT gaveUp();
    m_edit->clear();
    return true;
  case Qt::Key_Up:
    recall(-1);
    return true;
  case Qt::Key_Down:
    recall(1);
    return true;
  default:
    return false;
  }
}

bool CommandLine::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_edit && event->type() == QEvent::ShortcutOverride && m_edit->text().isEmpty()) {
    // With nothing to edit, the keys of editing are those of the drawing: undo, erase, select all.
    event->ignore();
    return true;
  }
  if (watched == m_offers->list() && event->type() == QEvent::KeyPress)
    return !walksThroughList(*static_cast<QKeyEvent*>(event)) &&
           handleKey(static_cast<QKeyEvent*>(event));
  if (watched == m_edit && event->type() == QEvent::KeyPress)
    return handleKey(static_cast<QKeyEvent*>(event));
  return QWidget::eventFilter(watched, event);
}

bool CommandLine::takeKey(QKeyEvent* event) {
  if (event->modifiers() & (Qt::AltModifier | Qt::MetaModifier)) return false;
  if (handleKey(event)) return true;
  const OdString text = event->text();
  const bool isText =
      !text.isEmpty() && text[0].isPrint() && !(event->modifiers() & Qt::ControlModifier);
  if (!isText && event->key() != Qt::Key_Backspace) return false;
  giveKeys(*m_edit);
  if (isText)
    m_edit->insert(text);
  else
    m_edit->backspace();
  m_offers->show();
  return true;
}

} // namespace drafton
