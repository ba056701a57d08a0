#include "drafton/engine/blocks/place_prompts.h"

namespace drafton {
namespace {

Task<double> askFactor(CommandContext& context, const char16_t* question, double shown) {
  const Answer<double> factor = co_await context.input().real(
      {.text = question, .defaultValue = shown, .range = NumberRange::kNotZero});
  co_return factor.value;
}

Task<double> askRotation(CommandContext& context, OdGePoint3d base, double shown) {
  const Answer<double> angle = co_await context.input().angle(
      {.text = u"Specify rotation angle", .base = base, .defaultValue = shown});
  co_return angle.value;
}

Task<OdGeScale3d> askScale(CommandContext& context, bool uniform) {
  CommandInput& input = context.input();
  if (uniform) {
    const double factor = co_await askFactor(context, u"Enter scale factor", 1);
    co_return OdGeScale3d{factor, factor, factor};
  }
  const Answer<double> x = co_await input.real({.text = u"Enter X scale factor",
                                                .keywords = u"XYZ",
                                                .defaultValue = 1,
                                                .range = NumberRange::kNotZero});
  if (x.is(u"XYZ")) {
    OdGeScale3d scale;
    scale.sx = co_await askFactor(context, u"Enter X scale factor", 1);
    scale.sy = co_await askFactor(context, u"Enter Y scale factor", scale.sx);
    scale.sz = co_await askFactor(context, u"Enter Z scale factor", scale.sx);
    co_return scale;
  }
  const double y = co_await askFactor(context, u"Enter Y scale factor", x.value);
  co_return OdGeScale3d{x.value, y, x.value};
}

} // namespace

Task<BlockPlace> askBlockPlace(CommandContext& context, bool uniform) {
  BlockPlace place;
  bool hasScale = false, hasRotation = false;
  const QStringView keywords =
      uniform ? QStringView(u"Scale Rotate") : QStringView(u"Scale X Y Z Rotate");
  for (;;) {
    const Answer<OdGePoint3d> point =
        co_await context.input().point({.text = u"Specify insertion point", .keywords = keywords});
    if (point.isValue()) {
      place.point = point.value;
      break;
    }
    if (point.is(u"Rotate")) {
      place.rotation = co_await askRotation(context, context.lastPoint(), place.rotation);
      hasRotation = true;
      continue;
    }
    OdGeScale3d& s = place.scale;
    if (point.is(u"X")) {
      s.sx = co_await askFactor(context, u"Enter X scale factor", s.sx);
    } else if (point.is(u"Y")) {
      s.sy = co_await askFactor(context, u"Enter Y scale factor", s.sy);
    } else if (point.is(u"Z")) {
      s.sz = co_await askFactor(context, u"Enter Z scale factor", s.sz);
    } else {
      const double factor = co_await askFactor(context, u"Enter scale factor for XYZ axes", s.sx);
      s = {factor, factor, factor};
    }
    hasScale = true;
  }
  if (!hasScale) place.scale = co_await askScale(context, uniform);
  if (!hasRotation) place.rotation = co_await askRotation(context, place.point, 0);
  co_return place;
}

Task<BlockPlace> askPointAndRotation(CommandContext& context, BlockPlace place, bool asksRotation) {
  const Answer<OdGePoint3d> point =
      co_await context.input().point({.text = u"Specify insertion point"});
  place.point = point.value;
  if (asksRotation) place.rotation = co_await askRotation(context, place.point, place.rotation);
  co_return place;
}

} // namespace drafton
