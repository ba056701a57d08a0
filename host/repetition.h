// What the host runs again when the user asks for the last thing once more.
#pragma once

#include "frame/string.h"
#include "host/unknown.h"

/// Something that the user ran by other means than a command, such as a tool.
class IHostRepeatable : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IHostRepeatable";

  /// As a menu shows it.
  virtual OdString name() const = 0;
  /// Runs it in the active document. Does nothing if it is gone.
  virtual void repeat() = 0;

 protected:
  ~IHostRepeatable() = default;
};

/// Takes note of what the user ran. In a host without it, what is repeated is the last command that
/// the user gave.
class IHostRepetition : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IHostRepetition";

  /// From now on `action` is what is repeated, in place of the commands that it types, until the
  /// user runs something else. The host holds it as long, at most until modules are unloaded.
  virtual void userRan(IHostRepeatable* action) = 0;

 protected:
  ~IHostRepetition() = default;
};
