// Controls of the host's own make, in which a module arranges what its pane shows. Each belongs to
// the widget that it was made in and lives as long as that.
#pragma once

#include "frame/string.h"
#include "host/unknown.h"

#include <vector>

class QColor;
class QIcon;
class QMenu;
class QSize;
class QWidget;

/// What a toolbar tells whoever made it.
class IHostToolbarEvents {
 public:
  /// A button was pressed that drops down no menu.
  virtual void buttonPressed(int command) = 0;

 protected:
  ~IHostToolbarEvents() = default;
};

/// A strip of buttons.
class IHostToolbar {
 public:
  virtual QWidget* widget() = 0;

  /// The sizes of a button and of the picture on it, in logical pixels; 20 and 16 squared unless
  /// they are set before the first button.
  virtual void setSizes(const QSize& button, const QSize& picture) = 0;
  /// Adds a button behind the others; the first has the index 0. The tip may be empty; `name` is
  /// what screen readers say.
  virtual void addButton(int command, const QIcon& icon, const OdString& tip,
                         const OdString& name) = 0;
  virtual void setIcon(int index, const QIcon& icon) = 0;
  /// Lets a button drop a menu down instead of telling its command. The menu is not owned, and does
  /// not open while the button is greyed.
  virtual void setMenu(int index, QMenu* menu) = 0;
  virtual void setEnabled(int index, bool enabled) = 0;
  /// The height that the strip wants at any width.
  virtual int fixedHeight() const = 0;

 protected:
  ~IHostToolbar() = default;
};

/// Pages behind labels.
class IHostTabs {
 public:
  virtual QWidget* widget() = 0;

  /// Adds a page, which it owns from now on, and gives its index from 0. The user may pull a
  /// detachable page out into a window of its own, if the host has that, and close it back in.
  virtual int addPage(QWidget* page, const OdString& label, bool isDetachable) = 0;
  /// Labels are shown as they are: an ampersand is no shortcut. An unknown index does nothing.
  virtual void setLabel(int index, const OdString& label) = 0;

 protected:
  ~IHostTabs() = default;
};

/// Columns with bars between them, which the user moves.
class IHostSplitter {
 public:
  virtual QWidget* widget() = 0;

  /// Adds a column at the right, and owns its content. Columns may be made as narrow as nothing.
  virtual void addColumn(QWidget* content) = 0;
  /// In logical pixels, from the left; a column of width 0 does not show.
  virtual std::vector<int> widths() const = 0;
  /// Sets the widths of all columns and lays them out. The host makes them fit. Beside a column of
  /// width 0 no bar shows.
  virtual void setWidths(const std::vector<int>& widths) = 0;
  /// The colour of the bars, in place of the host's.
  virtual void setBarColor(const QColor& color) = 0;

 protected:
  ~IHostSplitter() = default;
};

/// Makes controls. Each call may give null, as a missing service does.
class IHostWindowControls : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IHostWindowControls";

  /// `events` outlives the toolbar.
  virtual IHostToolbar* createToolbar(QWidget& parent, IHostToolbarEvents& events) = 0;
  virtual IHostTabs* createTabs(QWidget& parent) = 0;
  virtual IHostSplitter* createSplitter(QWidget& parent) = 0;

 protected:
  ~IHostWindowControls() = default;
};
