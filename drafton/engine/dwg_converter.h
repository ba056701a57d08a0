// Programs of others that turn one kind of drawing into another.
#pragma once

#include "frame/string.h"

#include <functional>

namespace drafton {

/// A command line that converts drawings. `{input}` and `{output}` stand for the two files,
/// `{inputfolder}` and `{outputfolder}` for the folders in which they are all alone. No shell is
/// in between: blanks in paths do no harm.
class DwgConverter {
 public:
  /// How long a conversion may take, in milliseconds, unless told otherwise.
  static constexpr int kPatience = 10 * 60 * 1000;

  explicit DwgConverter(OdString commandLine, int patience = kPatience)
    : m_commandLine(std::move(commandLine))
    , m_patience(patience) {}

  /// Converts `input` into `output`, which does not exist yet; both are platform's paths. Gives
  /// what went wrong, with the converter's name, its exit code and what it said; empty if the new
  /// file is there. While it runs, `isCancelled` is asked now and then.
  OdString convert(const OdString& input, const OdString& output,
                   const std::function<bool()>& isCancelled) const;

 private:
  OdString m_commandLine;
  int m_patience;
};

} // namespace drafton
