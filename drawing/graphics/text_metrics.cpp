#include "drawing/graphics/text_metrics.h"

namespace {

/// Capitals, digits and small letters of most fonts come near to this on average.
constexpr double kUsualAdvance = 0.75;
constexpr double kUsualDescent = 0.3;

class Estimate : public OdGiTextMetrics {
 public:
  double advance(const OdString& text, const OdGiFont&) const override {
    return kUsualAdvance * static_cast<double>(text.size());
  }
  double descent(const OdGiFont&) const override { return kUsualDescent; }
};

const Estimate g_estimate;
// Fonts are for one thread; drawings can be looked at in several.
thread_local const OdGiTextMetrics* g_current = &g_estimate;

} // namespace

const OdGiTextMetrics& OdGiTextMetrics::current() { return *g_current; }

void OdGiTextMetrics::setCurrent(const OdGiTextMetrics* metrics) {
  g_current = metrics != nullptr ? metrics : &g_estimate;
}
