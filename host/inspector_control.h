// A control of rows, each a name and a value that can be edited in place.
#pragma once

#include "frame/string.h"
#include "host/unknown.h"

class QPainter;
class QRect;
class QWidget;
class IKVEditableProperty;

/// Hears of a row's changes.
class IKVEditablePropertySink {
 public:
  /// The row shows something else now.
  virtual void rowChanged(IKVEditableProperty& row) = 0;

 protected:
  ~IKVEditablePropertySink() = default;
};

/// A row. The host shows it; value and control are the module's. What one row has beyond this is
/// asked for with queryInterface.
class IKVEditableProperty : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IKVEditableProperty";

  virtual OdString name() const = 0;
  /// The heading under which it stands. Headings stand in the order in which they first come.
  virtual OdString category() const = 0;
  /// What the user is told about it; may be empty.
  virtual OdString description() const = 0;
  virtual bool isVisible() const = 0;
  virtual bool isReadOnly() const = 0;
  /// The value in words, as screen readers say it.
  virtual OdString valueText() const = 0;
  /// Draws the value. Pen and font are set, the ground is painted.
  virtual void drawValue(QPainter& painter, const QRect& place) const = 0;

  /// Makes the control that edits the value; null if there is none. It belongs to the parent, and
  /// the host destroys it.
  virtual QWidget* createControl(QWidget& parent, const QRect& place) = 0;
  /// Takes what stands in the control. False refuses it: the control keeps text and focus.
  virtual bool takeFromControl(QWidget& control) = 0;
  /// Not owned; null for none.
  virtual void setSink(IKVEditablePropertySink* sink) = 0;

 protected:
  ~IKVEditableProperty() = default;
};

/// Counts, as an integer property of a control's window, who has taken the focus away on purpose.
/// While it is above 0, losing the focus does not end the edit.
inline constexpr char kHostFocusLock[] = "KVKILLFOCUSLOCKED";

/// The control. It belongs to the widget that it was made in.
class IHostInspectorControl {
 public:
  virtual QWidget* widget() = 0;

  virtual void clear() = 0;
  /// Adds a row and holds it. What is not visible is left out.
  virtual void addRow(const KVPtr<IKVEditableProperty>& row) = 0;
  /// Switched off while many rows are added.
  virtual void setRedraw(bool on) = 0;
  /// The width of the names, in logical pixels.
  virtual int split() const = 0;
  virtual void setSplit(int width) = 0;
  /// Ends an edit as Enter does; false if the row refuses the value, and the edit goes on.
  virtual bool endEdit() = 0;

 protected:
  ~IHostInspectorControl() = default;
};

class IHostInspectorService : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IHostInspectorService";

  virtual IHostInspectorControl* createInspector(QWidget& parent) = 0;

 protected:
  ~IHostInspectorService() = default;
};
