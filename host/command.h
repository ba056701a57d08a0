// Commands: those that a module registers, and those of the host that a module runs.
#pragma once

#include "frame/string.h"
#include "frame/variant.h"
#include "host/unknown.h"

class IHostDocument;

/// What a command object is given for one run.
class IRunContext : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IRunContext";
  virtual IHostDocument* document() = 0;

 protected:
  ~IRunContext() = default;
};

/// A command as an object.
class ICmdProcess : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "ICmdProcess";

  /// Runs the command; 0 on success.
  virtual int Run() = 0;
  /// Called when the command is cancelled, and when its object is about to be given up.
  virtual void cancel() = 0;
  virtual void finish() = 0;
  /// Bit 0: can be run; bit 1: shown as checked.
  virtual int state() = 0;
  virtual IRunContext* context() = 0;
  virtual void setContext(IRunContext* context) = 0;

 protected:
  ~ICmdProcess() = default;
};

/// Makes a command object with one reference for the caller.
using CmdCreator = ICmdProcess* (*)();
/// A command that is a plain function.
using CmdFunction = void (*)();

/// Registers commands. Made by the host's export `new_ICmdFactory`.
class ICmdFactory : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "ICmdFactory";

  virtual void registerCommand(const OdString& name, CmdCreator creator, const OdString& group,
                               unsigned flags) = 0;
  virtual void registerFunction(const OdString& group, const OdString& name, unsigned flags,
                                CmdFunction function) = 0;

 protected:
  ~ICmdFactory() = default;
};

/// An ordered set of named values for one run of a command. Made by `new_MemParam`.
class IMemParam : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IMemParam";

  /// Sets a value; a name that is there already keeps its place.
  virtual void setValue(const OdString& name, const OdVariant& value) = 0;
  virtual bool value(const OdString& name, OdVariant& out) const = 0;
  virtual QStringList names() const = 0;

 protected:
  ~IMemParam() = default;
};

/// A command of the host, found by its name.
class IHostCommand : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IHostCommand";

  /// Runs the command in the current document with a parameter set (may be null). False if it was
  /// cancelled or failed.
  virtual bool run(IMemParam* parameters) = 0;

 protected:
  ~IHostCommand() = default;
};

/// Finds commands of the host.
class IHostCommandService : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IHostCommandService";

  /// A command by its name, without regard to case; null if there is none.
  virtual KVPtr<IHostCommand> findCommand(const OdString& name) = 0;

 protected:
  ~IHostCommandService() = default;
};
