// The commands that the host shows in its menus.
#pragma once

#include "frame/string.h"
#include "host/unknown.h"

/// One entry of the host's command menu.
struct HostMenuEntry {
  bool isCommand = false;
  OdString commandName;  ///< the internal name, such as "LINE"
  OdString label;        ///< the display name; may be empty
  OdString shortText;    ///< the tip, with a "&" before the access key; may be empty
  OdString macro;        ///< what the entry types
};

/// Walks the host's command menu.
class IHostCommandMenu : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IHostCommandMenu";

  virtual int count() = 0;
  /// `index` from 0 to count() - 1.
  virtual HostMenuEntry entry(int index) = 0;

 protected:
  ~IHostCommandMenu() = default;
};
