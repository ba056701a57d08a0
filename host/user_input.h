// Input that a command asks the user for.
#pragma once

#include "frame/string.h"

/// Asks the user through the command line of one document.
class IHostUserInput {
 public:
  enum class Result { kValue, kEmpty, kCancelled };

  /// Input flags of a text prompt.
  enum Flags : unsigned {
    kAllowBlanks = 1,   ///< a blank belongs to the text, Enter ends it
    kKeepCase = 2,
    kAllowEmpty = 4,
  };

  /// Reads one text. An empty prompt shows none.
  virtual Result getString(unsigned flags, const OdString& prompt, OdString& out) = 0;

 protected:
  ~IHostUserInput() = default;
};
