// Values that a module hands to a command.
#pragma once

#include "host/command.h"

namespace drafton {

/// Reads a parameter set; every value may be missing.
class ParameterSet {
 public:
  explicit ParameterSet(const IMemParam& set)
    : m_set(set) {}

  OdString text(const char16_t* name) const { return value(name).toString(); }
  bool flag(const char16_t* name) const { return number(name, 0) != 0; }
  double number(const char16_t* name, double otherwise) const {
    const OdVariant found = value(name);
    return found.isVoid() ? otherwise : found.toDouble();
  }

 private:
  OdVariant value(const char16_t* name) const {
    OdVariant found;
    m_set.value(OdString::fromUtf16(name), found);
    return found;
  }

  const IMemParam& m_set;
};

} // namespace drafton
