// Marks and groups over the steps of a drawing's undo history.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace drafton {

/// What UNDO knows beside the history itself. Places are told as depths: the number of steps that
/// can be undone there. All operations take the present depth; sync() comes first in each command.
class UndoMarks {
 public:
  /// Forgets what belongs to steps that were undone and can not come back.
  void sync(std::size_t depth, bool hasRedo);

  void setMark(std::size_t depth);
  /// The last mark at or before `depth`.
  std::optional<std::size_t> lastMark(std::size_t depth) const;
  /// Removes that mark.
  void dropMark(std::size_t mark);
  /// True if going back from one depth to another comes to a mark.
  bool meetsMark(std::size_t from, std::size_t to) const;

  /// Steps from here on belong together; an open group is ended before.
  void beginGroup(std::size_t depth);
  /// False if no group is open.
  bool endGroup(std::size_t depth);
  /// Where the open group began.
  std::optional<std::size_t> openGroup() const { return m_open; }

  /// Where one operation further back leads: over the step, or over a whole group.
  std::size_t before(std::size_t depth) const;

  /// Remembers that one command went back from one depth to another, for its redo.
  void wentBack(std::size_t from, std::size_t to);
  /// Where the redo of the last command that went back leads, and forgets it.
  std::size_t takeRedoTarget(std::size_t depth);
  /// Remembers where a command left off.
  void settle(std::size_t depth) { m_depth = depth; }

 private:
  struct Group {
    std::size_t begin, end;
  };
  std::vector<std::size_t> m_marks; // rising
  std::vector<Group> m_groups;
  std::optional<std::size_t> m_open;
  std::vector<std::size_t> m_redoTargets;
  std::size_t m_depth = 0;
};

} // namespace drafton
