// Events of the host's editor.
#pragma once

#include "frame/rx_class.h"

class OdDbDatabase;
class IHostDocument;

/// Hears what happens in the editor. Every event has an empty body here.
class OdEditorReactor : public OdRxObject {
 public:
  virtual void commandWillStart(const OdString& /*name*/) {}
  virtual void commandEnded(const OdString& /*name*/) {}
  virtual void commandCancelled(const OdString& /*name*/) {}
  virtual void commandFailed(const OdString& /*name*/) {}
  virtual void sysVarChanged(OdDbDatabase* /*database*/, const OdString& /*name*/) {}

  using OdRxDescribed = OdEditorReactor;
  /// The host registers both classes; null without a host.
  static OdRxClass* desc() { return odrxFindClass(QStringLiteral("OdEditorReactor")); }
};

/// The host's form of the reactor.
class HostEditorReactor : public OdEditorReactor {
 public:
  virtual void documentActivated(IHostDocument* /*document*/) {}
  virtual void documentToBeDestroyed(IHostDocument* /*document*/) {}

  using OdRxDescribed = HostEditorReactor;
  static OdRxClass* desc() { return odrxFindClass(QStringLiteral("HostEditorReactor")); }
};

/// The host's source of editor events. Reactors are called in the order in which they were added;
/// they are not owned.
class IHostEditorEvents {
 public:
  virtual void addReactor(HostEditorReactor* reactor) = 0;
  virtual void removeReactor(HostEditorReactor* reactor) = 0;

 protected:
  ~IHostEditorEvents() = default;
};
