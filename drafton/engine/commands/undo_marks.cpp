#include "drafton/engine/commands/undo_marks.h"

#include <algorithm>

namespace drafton {

void UndoMarks::sync(std::size_t depth, bool hasRedo) {
  if (!hasRedo) {
    // New steps took the place of the undone ones.
    const std::size_t kept = std::min(m_depth, depth);
    std::erase_if(m_marks, [kept](std::size_t mark) { return mark > kept; });
    std::erase_if(m_groups, [kept](const Group& group) { return group.end > kept; });
    if (m_open && *m_open > kept) m_open.reset();
    m_redoTargets.clear();
  }
  m_depth = depth;
}

void UndoMarks::setMark(std::size_t depth) {
  const auto at = std::lower_bound(m_marks.begin(), m_marks.end(), depth);
  if (at == m_marks.end() || *at != depth) m_marks.insert(at, depth);
}

std::optional<std::size_t> UndoMarks::lastMark(std::size_t depth) const {
  const auto behind = std::upper_bound(m_marks.begin(), m_marks.end(), depth);
  if (behind == m_marks.begin()) return std::nullopt;
  return *(behind - 1);
}

void UndoMarks::dropMark(std::size_t mark) { std::erase(m_marks, mark); }

bool UndoMarks::meetsMark(std::size_t from, std::size_t to) const {
  if (from == to) return false;
  const std::optional<std::size_t> mark = lastMark(from - 1);
  return mark && *mark >= to;
}

void UndoMarks::beginGroup(std::size_t depth) {
  endGroup(depth);
  m_open = depth;
}

bool UndoMarks::endGroup(std::size_t depth) {
  if (!m_open) return false;
  // A group of one step is that step.
  if (depth > *m_open + 1) m_groups.push_back({*m_open, depth});
  m_open.reset();
  return true;
}

std::size_t UndoMarks::before(std::size_t depth) const {
  if (depth == 0) return 0;
  for (const Group& group : m_groups)
    if (group.end == depth) return group.begin;
  return depth - 1;
}

void UndoMarks::wentBack(std::size_t from, std::size_t to) {
  if (to < from) m_redoTargets.push_back(from);
}

std::size_t UndoMarks::takeRedoTarget(std::size_t depth) {
  if (m_redoTargets.empty()) return depth + 1;
  const std::size_t target = m_redoTargets.back();
  m_redoTargets.pop_back();
  return target;
}

} // namespace drafton
