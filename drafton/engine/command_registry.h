// All commands that can be typed.
#pragma once

#include "drafton/engine/native_command.h"
#include "drafton/engine/owner_scope.h"

#include <QHash>

#include <memory>
#include <vector>

namespace drafton {

/// One registered command. Exactly one of `body`, `creator` and `function` is set.
struct RegisteredCommand {
  OdString name; ///< as it was registered
  OdString group;
  unsigned flags = 0;
  CommandBody body = nullptr;
  CmdCreator creator = nullptr;
  CmdFunction function = nullptr;
  int owner = 0;

  bool has(CommandFlags flag) const { return body && (flags & flag); }
};
using RegisteredCommandPtr = std::shared_ptr<const RegisteredCommand>;

/// Commands by name, without regard to case. A name that is registered again hides the former
/// command until the new one is dropped.
class CommandRegistry {
 public:
  explicit CommandRegistry(const OwnerScope& owners)
    : m_owners(owners) {}

  void add(RegisteredCommand command);
  /// Registers the rows of a table in the group "DRAFTON".
  void add(std::span<const NativeCommand> table);
  /// Null if there is none.
  RegisteredCommandPtr find(const OdString& name) const;
  /// As find(), for a typed word: it may be an alias ("L"), and the signs `_`, `.` and `'` before
  /// the name are passed over unless they belong to it.
  RegisteredCommandPtr findTyped(const OdString& word) const;
  /// The names of all commands, sorted, without those that only modules type.
  QStringList names() const;
  /// The names in a group, as registered, in order of registration.
  QStringList namesIn(const OdString& group) const;
  /// Removes what one owner registered.
  void drop(int owner);

 private:
  const OwnerScope& m_owners;
  std::vector<RegisteredCommandPtr> m_commands;
  QHash<OdString, RegisteredCommandPtr> m_byName;
};

/// Gives modules their way into the registry of the running engine. Without one it does nothing.
class CommandFactory : public CKVUnknownImpl<ICmdFactory> {
 public:
  void registerCommand(const OdString& name, CmdCreator creator, const OdString& group,
                       unsigned flags) override;
  void registerFunction(const OdString& group, const OdString& name, unsigned flags,
                        CmdFunction function) override;
};

} // namespace drafton
