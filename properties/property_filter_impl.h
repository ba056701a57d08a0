// Names of general properties that a kind of tool hides: the implementation.
#pragma once

#include "frame/array.h"
#include "module/persist_impl.h"
#include "properties/property_filter.h"

namespace tc {

class OdTcPropertyFilterImpl final : public OdTcPersistImpl<OdTcPropertyFilter> {
 public:
  bool contains(const OdString& name) const override { return m_names.contains(name); }
  void add(const OdString& name) override { m_names.append(name); }

  OdRxObjectPtr clone() const override {
    auto copy = odrxMake<OdTcPropertyFilterImpl>();
    copy->m_names = m_names;
    return copy;
  }

 private:
  OdArray<OdString> m_names;
};

} // namespace tc
