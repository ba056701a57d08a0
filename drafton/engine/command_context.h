// What a command of Drafton's own is given for one run.
#pragma once

#include "drafton/engine/command_input.h"
#include "host/command.h"
#include "host/variables.h"

#include <exception>

class OdDbDatabase;

namespace drafton {

class Document;
class Engine;

/// Ends a command as failed; the text is shown. For what the user can be told about, such as a file
/// that cannot be written.
class CommandFailure : public std::exception {
 public:
  explicit CommandFailure(OdString message)
    : m_message(std::move(message)) {}
  const OdString& message() const { return m_message; }
  const char* what() const noexcept override { return "the command failed"; }

 private:
  OdString m_message;
};

/// Ends a command as cancelled, because the user chose that at a prompt.
class CommandCancelled : public std::exception {
 public:
  const char* what() const noexcept override { return "the command was cancelled"; }
};

/// One run of a command. It lives as long as the command's coroutine.
class CommandContext {
 public:
  CommandContext(Engine& engine, Document* document, CommandInput& input, OdString name,
                 KVPtr<IMemParam> parameters)
    : m_engine(engine)
    , m_document(document)
    , m_input(input)
    , m_name(std::move(name))
    , m_parameters(std::move(parameters)) {}
  CommandContext(const CommandContext&) = delete;
  CommandContext& operator=(const CommandContext&) = delete;

  Engine& engine() const { return m_engine; }
  /// These raise CommandFailure for a command that runs without a document.
  Document& document() const;
  OdDbDatabase& database() const;
  CommandInput& input() const { return m_input; }
  /// The variables as this document sees them.
  IHostVariables& variables() const;
  /// The command's name as it was registered.
  const OdString& name() const { return m_name; }
  /// The values that another command or a module handed over; null for a typed command.
  IMemParam* parameters() const { return m_parameters.get(); }

  /// Prints a line on the command line.
  void print(const OdString& text) const;

  /// The point that `@` is measured from. Every point that is given at a prompt becomes it; a
  /// command sets it when it ends elsewhere.
  OdGePoint3d lastPoint() const;
  void setLastPoint(const OdGePoint3d& point) const;

  /// Runs another command inside this one, to its end; what it changes belongs to this command's
  /// undo step. False if there is none of that name, or it was cancelled or failed: then only its
  /// own changes are taken back.
  bool run(const OdString& command, IMemParam* parameters = nullptr) const;

 private:
  Engine& m_engine;
  Document* m_document;
  CommandInput& m_input;
  OdString m_name;
  KVPtr<IMemParam> m_parameters;
};

} // namespace drafton
