// Icons for whoever shows commands.
#pragma once

#include "host/icon_service.h"

#include <functional>

namespace drafton {

/// Gives modules the icons of commands. Modules do not tell what they show them on, so these are
/// legible on any ground.
class IconService : public CKVUnknownImpl<IHostIconService> {
 public:
  /// The name of the command that a typed word runs, such as "LINE" for "L"; the word itself if
  /// there is none.
  using CommandFinder = std::function<OdString(const OdString& word)>;

  explicit IconService(CommandFinder findCommand = {})
    : m_findCommand(std::move(findCommand)) {}

  QImage icon(const OdString& name, int pixels) override;

 private:
  CommandFinder m_findCommand;
};

} // namespace drafton
