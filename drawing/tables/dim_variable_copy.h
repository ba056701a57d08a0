// The variables of dimensions in a drawing's header, kept while others are in force.
#pragma once

#include "drawing/header_vars.h"

#include <vector>

class OdDbDatabase;

namespace oddb {

/// Keeps the header's values of all variables that dimension styles have, as they stand: also those
/// that came with a file and that the drawing would take from nobody else, and whether the file
/// has them at all.
class DimVariableCopy {
 public:
  explicit DimVariableCopy(const OdDbDatabase& database);

  /// Gives the drawing what was kept. A variable that is as it was is not touched. A text style
  /// that is gone by now is left out.
  void putBack(OdDbDatabase& database) const;

 private:
  struct Variable {
    int index;
    OdDbVarValue value;
    bool isPresent;
  };
  std::vector<Variable> m_variables;
};

} // namespace oddb
