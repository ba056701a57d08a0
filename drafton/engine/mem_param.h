// Parameter sets for commands.
#pragma once

#include "host/command.h"

#include <vector>

namespace drafton {

/// An ordered set of named values; names are compared exactly.
class MemParam : public CKVUnknownImpl<IMemParam> {
 public:
  void setValue(const OdString& name, const OdVariant& value) override;
  bool value(const OdString& name, OdVariant& out) const override;
  QStringList names() const override;

 private:
  std::vector<std::pair<OdString, OdVariant>> m_values;
};

} // namespace drafton
