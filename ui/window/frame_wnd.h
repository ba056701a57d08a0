// The two columns of the palette window: the tree and the list.
#pragma once

#include "host/window_controls.h"
#include "ui/state_saver.h"
#include "ui/window/list_view.h"
#include "ui/window/loading_note.h"
#include "ui/window/tree_view.h"

#include <QWidget>

namespace tc {

/// What the rest of the window asks of the frame.
class ITcUiFrameWnd {
 public:
  static constexpr std::string_view kId = "ITcUiFrameWnd";

  /// Answers for itself, the tree, the list and the state saver.
  virtual bool queryInterface(std::string_view id, void** out) = 0;
  /// Keeps the widths of the columns and what the tree and the list remember.
  virtual void saveState() = 0;
  virtual void loadListState() = 0;
  /// True when each column is at least 2 pixels wide.
  virtual bool bothPanesVisible() const = 0;

 protected:
  ~ITcUiFrameWnd() = default;
};

class TcUiFrameWnd : public QWidget, public ITcUiFrameWnd {
 public:
  explicit TcUiFrameWnd(ITcUiPaletteSet& window);

  /// Puts the tree and the list into the host's splitter; false if the host makes none.
  bool create(IHostWindowControls& controls);

  bool queryInterface(std::string_view id, void** out) override;
  void saveState() override;
  void loadListState() override { m_list->loadState(m_state); }
  bool bothPanesVisible() const override;

  /// The widths of the two columns.
  std::vector<int> widths() const { return m_splitter->widths(); }
  /// 0 gives the list the whole width, 1 the tree; any other value leaves the columns as they are.
  void applyActiveView(int value);
  TcUiTreeView& tree() { return *m_tree; }
  TcUiListView& list() { return *m_list; }
  TcUiStateSaver& state() { return m_state; }
  const TcUiItemPictures& pictures() const { return m_pictures; }

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  TcUiStateSaver m_state;
  TcUiItemPictures m_pictures;
  TcUiTreeView* m_tree;
  TcUiListView* m_list;
  TcUiLoadingNote* m_note;
  IHostSplitter* m_splitter = nullptr; ///< this widget's
};

} // namespace tc
