// Where an object of a drawing is entered. Not for use outside of the library.
#pragma once

#include "drawing/object.h"

/// One entry for each object that was ever in the drawing, or that the file only refers to. Stubs
/// live as long as the drawing, so that ids may be kept anywhere.
struct OdDbStub {
  OdDbHandle handle;
  OdDbDatabase* database = nullptr;
  OdDbObjectPtr object;       ///< null: undone, or only referred to
  std::uint32_t undoStep = 0; ///< the last step that keeps the object's former state
  bool erased = false;
  bool writeEnabled = false;
  bool changePending = false; ///< reactors have still to learn of a change
};
