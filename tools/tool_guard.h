// Which tool is running, and where.
#pragma once

#include "frame/string.h"

class IHostDocument;

namespace tc {

class OdTcTool;

/// Lets one tool run at a time. Implemented by the editor reactor, which sees runs end.
class IToolGuard {
 public:
  /// True if no tool runs, or the running one's document is this one.
  virtual bool canRun(IHostDocument* document) const = 0;
  /// Enters the tool; it is not owned.
  virtual void setTool(OdTcTool* tool) = 0;
  virtual bool isRunning() const = 0;
  /// Finishes the running tool and expects the cancel that ends its command.
  virtual void stopTool() = 0;
  /// Texts for messages; empty if no tool runs.
  virtual OdString toolName() const = 0;
  virtual OdString documentName() const = 0;
  /// Forgets the tool without finishing it.
  virtual void clear() = 0;
  /// Forgets the tool if it is this one: it is being destroyed.
  virtual void forget(const OdTcTool* tool) = 0;

  /// The guard in force, or null.
  static IToolGuard* instance();
  static void setInstance(IToolGuard* guard);

 protected:
  ~IToolGuard() = default;
};

} // namespace tc
