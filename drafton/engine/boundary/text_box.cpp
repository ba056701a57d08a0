#include "drafton/engine/boundary/text_box.h"

#include <algorithm>

namespace drafton {

OdGeCurveSegments textBox(const std::vector<OdGiTextRun>& runs, const OdGePoint3d& origin) {
  constexpr double kRoom = 0.5; // of the height of a capital
  const OdGiTextMetrics& metrics = OdGiTextMetrics::current();
  const auto isReadable = [](const OdGiTextRun& run) {
    return std::any_of(run.text.begin(), run.text.end(), [](QChar c) { return !c.isSpace(); });
  };
  const auto first = std::find_if(runs.begin(), runs.end(), isReadable);
  if (first == runs.end()) return {};
  OdGeVector3d x = first->along;
  x.z = 0;
  x = x.normal();
  const OdGeVector3d y{-x.y, x.x, 0};
  if (x.isZeroLength()) return {};

  OdGeExtents3d box; // along x and y
  for (const OdGiTextRun& run : runs) {
    if (!isReadable(run)) continue;
    const double width =
        metrics.advance(run.text, run.font) + run.tracking * static_cast<double>(run.text.size());
    const double depth = metrics.descent(run.font);
    for (const double along : {-kRoom, width + kRoom})
      for (const double up : {-depth - kRoom, 1 + kRoom}) {
        const OdGePoint3d corner = flatPoint(run.origin + run.along * along + run.up * up, origin);
        const OdGeVector3d w = corner.asVector();
        box.addPoint({w.dotProduct(x), w.dotProduct(y), 0});
      }
  }
  const OdGePoint3d low = box.minPoint(), high = box.maxPoint();
  const auto at = [&](double along, double up) { return OdGePoint3d() + x * along + y * up; };
  const OdGePoint3d corners[] = {at(low.x, low.y), at(high.x, low.y), at(high.x, high.y),
                                 at(low.x, high.y)};
  OdGeCurveSegments sides;
  for (std::size_t i = 0; i < 4; ++i)
    appendFlat(OdGeCurveSegment::line(corners[i], corners[(i + 1) % 4]), {}, sides);
  return sides.size() == 4 ? sides : OdGeCurveSegments();
}

} // namespace drafton
