// Values of the hatch commands.
#pragma once

#include "host/hatch_settings.h"

namespace drafton {

/// The hatch type (0 predefined, 1 user defined, 2 custom) and the pattern file; other keys are not
/// known.
class HatchSettings : public CKVUnknownImpl<IHostHatchSettings> {
 public:
  bool get(const OdString& key, OdVariant& out) override;
  void set(const OdString& key, const OdVariant& value) override;

 private:
  OdVariant* find(const OdString& key);

  OdVariant m_type = std::int32_t{0};
  OdVariant m_patternFile = OdString();
};

} // namespace drafton
