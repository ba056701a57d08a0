// The host's windows. The one header of the interfaces that names widgets; it only passes them on,
// so that the logic need not link them.
#pragma once

#include "frame/string.h"
#include "host/unknown.h"

#include <QEvent>
#include <QPoint>
#include <QSize>

#include <cstdint>
#include <optional>
#include <vector>

class QColor;
class QWidget;

/// What a pane tells whoever owns its content. Everything is called on the thread of the windows.
class IHostPaneEvents {
 public:
  /// The pane stands in the host's window, still hidden, and the content in it: the place to fill
  /// the content. False gives the pane up again.
  virtual bool paneCreated() { return true; }
  /// The room for the content has changed.
  virtual void paneResized(const QSize& /*size*/) {}
  /// The user closed the pane by its own button; it is hidden already. Not told when the pane goes
  /// because the host ends.
  virtual void paneClosed() = 0;
  /// The pane is about to go, with its content still alive: the place to remember things.
  virtual void paneDestroyed() = 0;
  /// The user brought the pane back by means of the host's own, such as a menu of panes; it shows
  /// already. A host without such means never tells.
  virtual void paneShown() {}

 protected:
  ~IHostPaneEvents() = default;
};

/// A pane that docks and floats. The host keeps where it lies between runs.
class IHostPane : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IHostPane";

  virtual bool isVisible() const = 0;
  virtual void show(bool activate) = 0;
  virtual void hide() = 0;
  /// As the pane's own close button: hides it and tells paneClosed().
  virtual void close() = 0;
  virtual void setTitle(const OdString& title) = 0;
  /// Where the pane floats, in logical pixels of the screen; a docked pane is only resized.
  virtual void place(const QPoint& corner, const QSize& size) = 0;
  /// The window that the pane belongs to: the main window, or the pane itself while it floats.
  virtual QWidget* window() const = 0;

 protected:
  ~IHostPane() = default;
};

/// A registered message on its way, with two numbers whose meaning goes with its name.
class HostMessage : public QEvent {
 public:
  explicit HostMessage(int message, std::intptr_t firstNumber = 0, std::intptr_t secondNumber = 0)
    : QEvent(static_cast<Type>(message))
    , first(firstNumber)
    , second(secondNumber) {}

  const std::intptr_t first, second;
};

/// Windows and dialogs. Texts are shown as they are given: translated by the caller. Paths are
/// stored paths.
class IHostWindowServices : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IHostWindowServices";

  virtual QWidget* mainWindow() = 0;
  /// Gives the keyboard to the drawing, whose command line takes what is typed.
  virtual void focusDrawing() = 0;

  /// A pane with `content`, which it owns from now on. `name` names its place among the host's
  /// settings; at the first start it stands docked at the right side. It comes hidden. `events` is
  /// not owned and outlives the pane. Dropping the last reference destroys the pane. Null, with the
  /// content gone, if paneCreated() gave it up.
  virtual KVPtr<IHostPane> createPane(const OdString& name, const OdString& title, QWidget* content,
                                      IHostPaneEvents* events) = 0;

  /// The event type of a message that is registered by name: the same for everybody in the process
  /// that asks for the name.
  virtual int registeredMessage(const OdString& name) = 0;
  /// Sends a registered message as a HostMessage, with both numbers 0, to all descendants of a
  /// window, deeply. Who sends to one window only makes the HostMessage itself.
  virtual void broadcast(QWidget* window, int message) = 0;

  /// Nothing if the user gave up, as in all that follow. Only folders that exist, without a way to
  /// make new ones.
  virtual std::optional<OdString> chooseFolder(const OdString& title) = 0;
  /// `filter` is "Name|*.ext;*.ext|Name|*.ext||".
  virtual std::optional<OdString> chooseFileToOpen(const OdString& title,
                                                   const OdString& filter) = 0;
  virtual std::optional<OdString> chooseFileToSave(const OdString& title, const OdString& filter,
                                                   const OdString& name,
                                                   const OdString& extension) = 0;
  /// A box with OK and Cancel; true for OK.
  virtual bool confirm(const OdString& text, const OdString& caption) = 0;
  /// Lets the user choose a true colour, which is a recent one from then on; false if they gave up.
  virtual bool chooseColor(QColor& color) = 0;
  /// The colours that were chosen before, the latest first.
  virtual std::vector<QColor> recentColors() = 0;
  /// Lets the user choose one of the drawing's plot styles by name; false if they gave up.
  virtual bool choosePlotStyle(OdString& name) = 0;

 protected:
  ~IHostWindowServices() = default;
};

/// The user's manual.
class IHelpService : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IHelpService";

  /// Opens the page of a topic, such as "IDH_ToolPalettes"; false if there is none.
  virtual bool showTopic(const OdString& topic) = 0;

 protected:
  ~IHelpService() = default;
};
