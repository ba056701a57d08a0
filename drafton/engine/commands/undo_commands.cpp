// UNDO, U and REDO.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/drawing_session.h"
#include "drafton/engine/translator.h"
#include "drawing/database.h"

#include <algorithm>

namespace drafton {
namespace {

/// The name of a step as users know it. Commands that nobody types, by which tools run, have names
/// that begin with two underscores.
OdString shownName(const OdString& step) {
  return step.startsWith(QLatin1String("__")) ? translated(u"Tool") : step;
}

/// One command's walk along the undo history.
class UndoWalk {
 public:
  explicit UndoWalk(CommandContext& context)
    : m_context(context)
    , m_database(context.database())
    , m_marks(DrawingSession::of(context).undoMarks) {
    m_marks.sync(depth(), m_database.hasRedo());
  }

  UndoMarks& marks() { return m_marks; }
  std::size_t depth() const { return m_database.undoDepth(); }

  /// Goes back over `count` steps or groups.
  void goBack(int count);
  void goBackTo(std::size_t target);
  void goForward();

 private:
  void printTaken() const;

  CommandContext& m_context;
  OdDbDatabase& m_database;
  UndoMarks& m_marks;
  QStringList m_taken;
};

void UndoWalk::goBack(int count) {
  std::size_t target = depth();
  for (int i = 0; i < count && target > 0; ++i) target = m_marks.before(target);
  if (const std::optional<std::size_t> open = m_marks.openGroup(); open && target < *open) {
    m_context.print(translated(u"The beginning of the group is reached."));
    target = std::min(*open, depth());
  }
  if (target == depth()) return m_context.print(translated(u"There is nothing to undo."));
  const bool meetsMark = m_marks.meetsMark(depth(), target);
  goBackTo(target);
  if (meetsMark) m_context.print(translated(u"Mark encountered."));
  if (depth() == 0) m_context.print(translated(u"Everything has been undone."));
}

void UndoWalk::goBackTo(std::size_t target) {
  const std::size_t from = depth();
  while (depth() > target) {
    m_taken << shownName(m_database.undoName());
    m_database.undo();
  }
  m_marks.wentBack(from, depth());
  m_marks.settle(depth());
  printTaken();
}

void UndoWalk::goForward() {
  if (!m_database.hasRedo()) return m_context.print(translated(u"There is nothing to redo."));
  const std::size_t target = m_marks.takeRedoTarget(depth());
  while (depth() < target && m_database.hasRedo()) {
    m_taken << shownName(m_database.redoName());
    m_database.redo();
  }
  m_marks.settle(depth());
  printTaken();
}

void UndoWalk::printTaken() const {
  constexpr qsizetype kMostShown = 20;
  if (m_taken.isEmpty()) return;
  OdString names = m_taken.mid(0, kMostShown).join(u' ');
  if (m_taken.size() > kMostShown)
    names = translated(u"%1 and %2 more").arg(names).arg(m_taken.size() - kMostShown);
  m_context.print(names);
}

Task<void> goBackToMark(CommandContext& context, UndoWalk& walk) {
  if (const std::optional<std::size_t> mark = walk.marks().lastMark(walk.depth())) {
    walk.goBackTo(*mark);
    walk.marks().dropMark(*mark);
    context.print(translated(u"Mark encountered."));
    co_return;
  }
  const Answer<OdString> sure = co_await context.input().keyword(
      {.text = u"This will undo everything. OK?", .keywords = u"Yes No", .defaultValue = u"Yes"});
  if (sure.is(u"Yes")) walk.goBackTo(0);
}

} // namespace

Task<void> undoSteps(CommandContext& context) {
  UndoWalk walk(context);
  const Answer<int> answer =
      co_await context.input().integer({.text = u"Enter the number of operations to undo",
                                        .keywords = u"BEgin End Mark Back",
                                        .defaultValue = 1,
                                        .range = NumberRange::kPositive});
  if (answer.isValue())
    walk.goBack(answer.value);
  else if (answer.is(u"BEgin"))
    walk.marks().beginGroup(walk.depth());
  else if (answer.is(u"End") && !walk.marks().endGroup(walk.depth()))
    context.print(translated(u"No group is open."));
  else if (answer.is(u"Mark"))
    walk.marks().setMark(walk.depth());
  else if (answer.is(u"Back"))
    co_await goBackToMark(context, walk);
}

Task<void> undoLast(CommandContext& context) {
  UndoWalk(context).goBack(1);
  co_return;
}

Task<void> redo(CommandContext& context) {
  UndoWalk(context).goForward();
  co_return;
}

} // namespace drafton
