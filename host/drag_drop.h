// Drag and drop, by the names of formats.
#pragma once

#include "frame/string.h"
#include "host/unknown.h"

#include <QByteArray>
#include <QMap>
#include <QStringList>

class QImage;
class QPoint;
class QWidget;

/// What becomes of something that is dragged. Of what a source allows, several may be joined.
enum HostDropEffect : unsigned { kDropRefused = 0, kDropCopy = 1, kDropMove = 2, kDropLink = 4 };

/// What a drag takes along, in several forms at once; each may be empty.
struct HostDragContents {
  QMap<int, QByteArray> data; ///< by the numbers that IHostClipboard gives to formats
  OdString text;
  QStringList files; ///< stored paths
};

/// What somebody drags over a window. Good for the length of a call.
class IHostDraggedData {
 public:
  virtual bool has(int format) const = 0;
  /// Anybody's bytes; empty if it does not have the format.
  virtual QByteArray data(int format) const = 0;
  virtual OdString text() const = 0;
  /// Stored paths.
  virtual QStringList files() const = 0;

 protected:
  ~IHostDraggedData() = default;
};

/// A window in which things can be dropped. Places are in its coordinates, in logical pixels.
class IHostDropTarget {
 public:
  /// Something is over the window: one of the `allowed` effects, or kDropRefused.
  virtual HostDropEffect dragOver(const IHostDraggedData& dragged, const QPoint& place,
                                  unsigned allowed) = 0;
  /// It went away again.
  virtual void dragLeft() = 0;
  /// It was dropped: what became of it.
  virtual HostDropEffect dropped(const IHostDraggedData& dragged, const QPoint& place,
                                 unsigned allowed) = 0;

 protected:
  ~IHostDropTarget() = default;
};

class IHostDragDrop : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IHostDragDrop";

  /// Asks `target` of what is dragged over the window, until it is removed or the window goes. A
  /// new target takes the place of the former; null removes it.
  virtual void setDropTarget(QWidget& window, IHostDropTarget* target) = 0;
  /// Drags contents from a window, with a picture at the cursor that may be null, and comes back
  /// when they are dropped: with what became of them, kDropRefused if they were not taken.
  virtual HostDropEffect drag(QWidget& source, const HostDragContents& contents,
                              const QImage& picture, unsigned allowed) = 0;

 protected:
  ~IHostDragDrop() = default;
};
