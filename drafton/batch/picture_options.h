// The part of the command line that asks for a picture.
#pragma once

#include "drafton/render/picture_file.h"

namespace drafton {

/// The options as they were given.
struct PictureOptions {
  OdString option; ///< which of --png, --pdf and --svg named the file; empty for none
  OdString file;
  std::optional<OdString> size, background, window, layout;
  bool extents = false;

  bool isWanted() const { return !option.isEmpty(); }
};

/// What the options mean. Nothing, with what is wrong in `error`, if they cannot be followed.
std::optional<PictureRequest> pictureRequest(const PictureOptions& options, OdString& error);

} // namespace drafton
