#include "drafton/engine/blocks/place_prompts.h"

#include "drafton/engine/commands/previews.h"

namespace drafton {
namespace {

Task<double> askFactor(CommandContext& context, const char16_t* question, double shown) {
  const Answer<double> factor = co_await context.input().real(
      {.text = question, .defaultValue = shown, .range = NumberRange::kNotZero});
  co_return factor.value;
}

/// The block at a place of which angle or point are still open.
PreviewShapes shownAt(CommandContext& context, OdDbObjectId block, const BlockPlace& place) {
  if (block.isNull()) return {};
  const double units = blockUnitFactor(context.database(), block);
  const OdGeScale3d scale{place.scale.sx * units, place.scale.sy * units, place.scale.sz * units};
  return insertShape(context.database(), block, place.point, scale, place.rotation);
}

Task<double> askRotation(CommandContext& context, OdDbObjectId block, BlockPlace place) {
  const auto turned = [&](double angle) {
    BlockPlace at = place;
    at.rotation = angle;
    return shownAt(context, block, at);
  };
  const Answer<double> angle = co_await context.input().angle({.text = u"Specify rotation angle",
                                                               .base = place.point,
                                                               .defaultValue = place.rotation,
                                                               .preview = turned});
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

Task<BlockPlace> askBlockPlace(CommandContext& context, OdDbObjectId block, bool uniform) {
  BlockPlace place;
  bool hasScale = false, hasRotation = false;
  const QStringView keywords =
      uniform ? QStringView(u"Scale Rotate") : QStringView(u"Scale X Y Z Rotate");
  const auto placed = [&](const OdGePoint3d& at) {
    BlockPlace there = place;
    there.point = at;
    return shownAt(context, block, there);
  };
  for (;;) {
    const Answer<OdGePoint3d> point = co_await context.input().point(
        {.text = u"Specify insertion point", .keywords = keywords, .preview = placed});
    if (point.isValue()) {
      place.point = point.value;
      break;
    }
    if (point.is(u"Rotate")) {
      BlockPlace before = place;
      before.point = context.lastPoint();
      place.rotation = co_await askRotation(context, {}, before);
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
  if (!hasRotation) place.rotation = co_await askRotation(context, block, place);
  co_return place;
}

Task<BlockPlace> askPointAndRotation(CommandContext& context, OdDbObjectId block, BlockPlace place,
                                     bool asksRotation) {
  const auto placed = [&](const OdGePoint3d& at) {
    BlockPlace there = place;
    there.point = at;
    return shownAt(context, block, there);
  };
  const Answer<OdGePoint3d> point =
      co_await context.input().point({.text = u"Specify insertion point", .preview = placed});
  place.point = point.value;
  if (asksRotation) place.rotation = co_await askRotation(context, block, place);
  co_return place;
}

} // namespace drafton
