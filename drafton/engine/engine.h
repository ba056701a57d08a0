// Drafton without a window: documents, commands, settings and modules.
#pragma once

#include "drafton/engine/application.h"
#include "drafton/engine/completion_registry.h"
#include "drafton/engine/console.h"
#include "drafton/engine/document_manager.h"
#include "drafton/engine/editor_events.h"
#include "drafton/engine/host_services.h"
#include "drafton/engine/module_registry.h"
#include "drafton/engine/translator.h"
#include "host/hatch_settings.h"

namespace drafton {

/// How an engine is set up.
struct EngineOptions {
  /// A platform's path; empty for settings in memory.
  OdString settingsFile;
  /// A stored path; empty for the user's own folder.
  OdString userDataFolder;
  /// The folder of the program, a stored path, where modules and data stand; empty for none.
  OdString programFolder;
};

/// The program's heart, once in a process. Typed text goes into keyboard() or a document's
/// commandInput(); run() then does all that can be done with it.
class Engine {
 public:
  /// `console` and `input` live longer than the engine; `input` may be null: then nothing comes
  /// beyond what was typed.
  Engine(EngineOptions options, Console& console, InputSource* input);
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;
  /// Closes all documents without asking and unloads the modules.
  ~Engine();

  /// The engine of this process, or null.
  static Engine* current();

  /// Takes up typed text until there is no more. Does nothing while it is under way already.
  void run();
  /// Types a line as the user does, or for the program.
  void type(const OdString& text, KeyQueue::Giver giver = KeyQueue::Giver::kUser) {
    m_keyboard.append(text, KeyQueue::Meaning::kTyped, giver);
  }
  /// Ends what waits, in every document.
  void cancelAll();

  /// Loads the module of that name that stands beside the program. False, and a message, if it is
  /// not there or does not start; the program goes on without it.
  bool loadModule(const OdString& name);
  /// Runs the commands that are named as keys in the settings' section "Startup".
  void runStartupCommands();

  DocumentManager& documents() { return m_documents; }
  CommandRegistry& commands() { return m_commands; }
  EditorEvents& events() { return m_events; }
  CompletionRegistry& completion() { return m_completion; }
  Application& application() { return m_application; }
  SettingsStore& settings() { return *m_settings; }
  ModuleRegistry& modules() { return m_modules; }
  HostServices& services() { return m_services; }
  KVPtr<IHostHatchSettings> hatchSettings() { return m_hatchSettings; }
  std::map<OdString, OdVariant>& sessionValues() { return m_sessionValues; }
  OwnerScope& owners() { return m_owners; }
  Console& console() { return m_console; }
  /// Prints a line of its own.
  void print(const OdString& text) { m_console.print(u'\n' + text); }
  /// The folder of the program, where its data stand; empty if there is none.
  const OdString& programFolder() const { return m_options.programFolder; }
  /// The stored path of the command route map; empty if it is missing.
  OdString commandRouteMap() const;

  /// The command line of the active document, or one without a document if none is open.
  CommandProcessor& currentProcessor();
  KeyQueue& keyboard() { return m_keyboard; }
  /// Takes up one key in the active document; false if there is none.
  bool step() { return currentProcessor().step(); }
  /// Waits for more input; false if none will come.
  bool waitForInput() { return m_input && m_input->waitForInput(); }
  /// Text was sent to a document.
  void textQueued();

  /// Set by the command Exit: the program ends when control is back.
  bool isExiting() const { return m_isExiting; }
  void exit() { m_isExiting = true; }

 private:
  EngineOptions m_options;
  Console& m_console;
  InputSource* m_input;
  OwnerScope m_owners;
  std::shared_ptr<SettingsStore> m_settings;
  Application m_application;
  CommandRegistry m_commands{m_owners};
  EditorEvents m_events{m_owners};
  CompletionRegistry m_completion{m_owners};
  HostServices m_services{*this};
  KVPtr<IHostHatchSettings> m_hatchSettings;
  std::map<OdString, OdVariant> m_sessionValues;
  KeyQueue m_keyboard;
  DocumentManager m_documents{*this};
  CommandProcessor m_ownProcessor{*this, nullptr};
  ModuleRegistry m_modules{*this};
  bool m_isRunning = false;
  bool m_isExiting = false;
};

} // namespace drafton
