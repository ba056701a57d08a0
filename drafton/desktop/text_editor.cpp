#include "drafton/desktop/text_editor.h"

#include "drafton/desktop/give_keys.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include <algorithm>

namespace drafton {
namespace {

// In letters and lines.
constexpr int kFewestLetters = 24, kMostLetters = 60, kFewestLines = 4, kMostLines = 12;
constexpr int kGap = 8; ///< to the edges of the canvas

/// Codes and what is seen: `\P` is a line break, and what stands behind another `\` stays with it.
OdString linesOf(const OdString& codes) {
  OdString lines;
  for (qsizetype i = 0; i < codes.size(); ++i) {
    const bool isCode = codes[i] == u'\\' && i + 1 < codes.size();
    if (isCode && codes[i + 1] == u'P')
      lines += u'\n';
    else if (isCode)
      lines += codes.mid(i, 2);
    else
      lines += codes[i];
    if (isCode) ++i;
  }
  return lines;
}

/// A `\` that stands alone at the end of a line would make a letter of the line break's code.
OdString codesOf(const OdString& lines) {
  QStringList codes = lines.split(u'\n');
  for (OdString& line : codes) {
    const auto other =
        std::find_if(line.crbegin(), line.crend(), [](QChar c) { return c != u'\\'; });
    if ((other - line.crbegin()) % 2 == 1) line += u'\\';
  }
  return codes.join(QLatin1String("\\P"));
}

/// What stands in it, with the blanks as they are; a plain text would not tell those that hold
/// words together.
OdString textOf(const QPlainTextEdit& edit) {
  OdString text = edit.document()->toRawText();
  return text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
}

} // namespace

TextEditor::TextEditor(Desktop& desktop, QWidget& canvas)
  : QFrame(&canvas)
  , m_desktop(desktop)
  , m_edit(new QPlainTextEdit(this))
  , m_question(new QLabel(this))
  , m_hint(new QLabel(this)) {
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  setCursor(Qt::ArrowCursor);
  // A click into the frame is none into the drawing.
  setAttribute(Qt::WA_NoMousePropagation);
  m_edit->setFrameShape(QFrame::NoFrame);
  m_edit->setAccessibleName(translated(u"Text of the drawing"));
  m_edit->installEventFilter(this);
  QFont bold = font();
  bold.setBold(true);
  m_question->setFont(bold);
  m_question->setTextFormat(Qt::PlainText);
  m_hint->setWordWrap(true);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(4, 4, 4, 4);
  column->setSpacing(2);
  column->addWidget(m_question);
  column->addWidget(m_edit, 1);
  column->addWidget(m_hint);
  hide();
}

void TextEditor::follow(const InputRequest* asked, const QPointF& corner) {
  if (!asked || asked->editing() == TextEditing::kNone) return close();
  if (!m_isOpen || m_asked != asked->shown() || m_former != asked->editedText()) open(*asked);
  fit(corner);
}

void TextEditor::open(const InputRequest& asked) {
  m_isOpen = true;
  m_hasLines = asked.editing() == TextEditing::kLines;
  m_asked = asked.shown();
  m_former = asked.editedText();
  // Without the text itself.
  m_question->setText(m_asked.section(QStringLiteral(" <"), 0, 0));
  m_hint->setText(m_hasLines ? translated(u"Ctrl+Enter or a click into the drawing takes the text, "
                                          u"Esc leaves it as it was.")
                             : translated(u"Enter takes the text, Esc leaves it as it was."));
  m_edit->setPlainText(m_hasLines ? linesOf(asked.editedText()) : asked.editedText());
  m_edit->setLineWrapMode(m_hasLines ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
  m_edit->setVerticalScrollBarPolicy(m_hasLines ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
  m_edit->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_edit->selectAll();
  show();
  raise();
  giveKeys(*m_edit);
}

void TextEditor::close() {
  if (!std::exchange(m_isOpen, false)) return;
  const bool hadKeys = m_edit->hasFocus();
  hide();
  if (hadKeys) parentWidget()->setFocus(Qt::OtherFocusReason);
}

/// As large as the text wants it, and wholly on the canvas if that is large enough.
void TextEditor::fit(const QPointF& corner) {
  const QFontMetrics metrics(m_edit->font());
  const QStringList lines = m_edit->toPlainText().split(u'\n');
  qsizetype letters = kFewestLetters;
  for (const OdString& line : lines) letters = std::max(letters, line.size() + 2);
  const int across = static_cast<int>(std::min<qsizetype>(letters, kMostLetters));
  const int down =
      m_hasLines ? std::clamp(static_cast<int>(lines.size()) + 1, kFewestLines, kMostLines) : 1;
  const QSize room = parentWidget()->size() - QSize(2 * kGap, 2 * kGap);
  m_edit->setFixedHeight(down * metrics.lineSpacing() + 2 * kGap);
  const int width = std::min(across * metrics.averageCharWidth() + 4 * kGap, room.width());
  const int height = layout()->hasHeightForWidth() ? layout()->heightForWidth(width)
                                                   : layout()->sizeHint().height();
  resize(width, height);
  const auto within = [](double wanted, int size, int whole) {
    return std::max(kGap, std::min(qRound(std::min<double>(whole, std::max(0.0, wanted))),
                                   whole - kGap - size));
  };
  move(within(corner.x(), width, parentWidget()->width()),
       within(corner.y(), height, parentWidget()->height()));
}

void TextEditor::submit() {
  const OdString text = textOf(*m_edit);
  close();
  m_desktop.giveText(m_hasLines ? codesOf(text) : OdString(text).replace(u'\n', u' '));
}

bool TextEditor::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QFrame::eventFilter(watched, event);
  const auto* const key = static_cast<QKeyEvent*>(event);
  const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
  if (key->key() == Qt::Key_Escape) {
    m_desktop.cancel();
    return true;
  }
  if (key->key() == Qt::Key_Tab ||
      (isEnter && (!m_hasLines || key->modifiers() & Qt::ControlModifier))) {
    submit();
    return true;
  }
  return QFrame::eventFilter(watched, event);
}

} // namespace drafton
