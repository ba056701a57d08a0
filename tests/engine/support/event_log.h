// Events of the editor as texts.
#pragma once

#include "drafton/engine/document.h"
#include "host/editor_reactor.h"

/// Keeps every event in order: "start LINE", "ended LINE", "variable TEXTSIZE", "activated a.dxf".
class EventLog : public HostEditorReactor {
 public:
  void commandWillStart(const OdString& name) override { add("start", name); }
  void commandEnded(const OdString& name) override { add("ended", name); }
  void commandCancelled(const OdString& name) override { add("cancelled", name); }
  void commandFailed(const OdString& name) override { add("failed", name); }
  void sysVarChanged(OdDbDatabase*, const OdString& name) override { add("variable", name); }
  void documentActivated(IHostDocument* document) override { add("activated", document->name()); }
  void documentToBeDestroyed(IHostDocument* document) override {
    add("destroyed", document->name());
  }

  /// The events that begin with one of the words, all without any.
  QStringList events(const QStringList& words = {}) const {
    QStringList result;
    for (const OdString& event : m_events)
      if (words.isEmpty() || words.contains(event.section(u' ', 0, 0))) result << event;
    return result;
  }
  void clear() { m_events.clear(); }

 private:
  void add(const char* what, const OdString& name) {
    m_events << QLatin1String(what) + u' ' + name;
  }
  QStringList m_events;
};
