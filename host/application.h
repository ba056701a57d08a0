// The host's application object.
#pragma once

#include "host/profile.h"

/// The application: its folders and its settings.
class IHostApplication {
 public:
  /// A named setting such as "ToolPaletteDir" or "Shx"; false if there is none.
  virtual bool setting(const OdString& name, OdString& out) = 0;
  /// The folder for data of the user, as a stored path without a separator at its end.
  virtual OdString userDataFolder() = 0;
  /// The root of the settings store, whose sections are "cmddata", "Startup" and so on. Null if the
  /// host has none.
  virtual KVPtr<IProfile> profile() = 0;
  /// Calls the reactor, with a reference of its own, whenever the setting changes.
  virtual void addPropReactor(const OdString& setting, IPropReactor* reactor) = 0;
  virtual void removePropReactor(const OdString& setting, IPropReactor* reactor) = 0;

 protected:
  ~IHostApplication() = default;
};
