// A choice that grows and shrinks.
#pragma once

#include "drafton/engine/selection_picker.h"

namespace drafton {

/// What has been chosen so far, with the steps that led there.
class SelectionSet {
 public:
  const Selection& chosen() const { return m_chosen; }
  void add(const Selection& found);
  void remove(const Selection& found);
  /// Takes the last step back; false if there is none.
  bool undo();

 private:
  Selection m_chosen;
  std::vector<Selection> m_history;
};

} // namespace drafton
