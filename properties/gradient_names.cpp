#include "properties/gradient_names.h"

#include "host/host_locator.h"

namespace tc {

int gradientNumber(const OdString& key) {
  for (std::size_t i = 0; i < kGradients.size(); ++i)
    if (kGradients[i].key == key) return static_cast<int>(i) + 1;
  return 1;
}

OdString gradientDisplayName(const OdString& key) {
  const auto row = static_cast<std::size_t>(gradientNumber(key) - 1);
  return host::translate(kGradients[row].display.toString());
}

OdString gradientKey(const OdString& displayName) {
  for (const GradientRow& row : kGradients)
    if (host::translate(row.display.toString()) == displayName) return row.key.toString();
  return kGradients.front().key.toString();
}

} // namespace tc
