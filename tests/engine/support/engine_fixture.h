// An engine with one new drawing, for tests of commands.
#pragma once

#include "drafton/engine/engine.h"
#include "engine/support/event_log.h"
#include "engine/support/recording_console.h"

#include <gtest/gtest.h>

/// Settings live in memory; there is no module.
class EngineFixture : public ::testing::Test {
 protected:
  EngineFixture() { restart({}); }
  ~EngineFixture() override { stop(); }

  /// A fresh engine, with a new drawing.
  void restart(drafton::EngineOptions options) {
    stop();
    m_engine.emplace(std::move(options), m_console, &m_input);
    m_input.onLine = [this](const OdString& line) { m_engine->type(line + u'\n'); };
    m_engine->events().addReactor(m_events.get());
    m_engine->documents().newDocument();
    m_events->clear();
  }
  void stop() {
    if (m_engine) m_engine->events().removeReactor(m_events.get());
    m_engine.reset();
  }

  drafton::Engine& engine() { return *m_engine; }
  drafton::Document& document() { return *m_engine->documents().current(); }
  OdDbDatabase& database() { return *document().database(); }
  IHostVariables& variables() { return *document().variables(); }
  RecordingConsole& console() { return m_console; }
  LineSource& input() { return m_input; }
  EventLog& log() { return *m_events; }

  /// Types as a script does: a blank ends a word, a line break is Enter, "^C" cancels.
  void type(const OdString& text) {
    m_engine->type(text);
    m_engine->run();
  }
  /// Sends text as a macro does.
  void send(const OdString& text) {
    document().commandInput()->sendText(text);
    m_engine->run();
  }
  /// All that the command line showed.
  const OdString& output() const { return m_console.text(); }
  QStringList events(const QStringList& words = {}) const { return m_events->events(words); }
  /// What the running command asks; empty if none waits.
  OdString prompt() {
    const drafton::InputRequest* const request = document().processor().request();
    return request ? request->shown() : OdString();
  }
  OdVariant variable(const char* name) {
    OdVariant value;
    EXPECT_TRUE(variables().get(OdString::fromLatin1(name), value)) << name;
    return value;
  }

 private:
  RecordingConsole m_console;
  LineSource m_input;
  OdSmartPtr<EventLog> m_events = odrxMake<EventLog>();
  std::optional<drafton::Engine> m_engine;
};
