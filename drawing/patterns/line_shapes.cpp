#include "drawing/patterns/line_shapes.h"

#include <algorithm>
#include <sstream>

namespace odpattern {
namespace {

// The numbers up to 134 are those that drawings use everywhere; the others are Drafton's own.
constexpr OdLineShape kShapes[] = {
    {130, u"TRACK1", "M 0 -1 L 0 1"},
    {131, u"ZIG", "M 0 0 L 0.5 1 L 1.5 -1 L 2 0"},
    {132, u"BOX", "M 0 -1 L 2 -1 L 2 1 L 0 1 L 0 -1"},
    {133, u"CIRC1", "A 1 0 1 180 360"},
    {134, u"BAT", "M 0 0 L 0 1 A 1 1 1 180 -180 L 2 0"},
    {200, u"ARROW", "M 0 1 L 2 0 L 0 -1"},
    {201, u"CROSS", "M 0 -1 L 2 1 M 0 1 L 2 -1"},
    {202, u"DIAMOND", "M 0 0 L 1 1 L 2 0 L 1 -1 L 0 0"},
    {203, u"TRIANGLE", "M 0 0 L 1 1.5 L 2 0"},
    {204, u"WAVE", "A 0.5 0 0.5 180 -180 A 1.5 0 0.5 180 180"},
    {205, u"HALF", "A 1 0 1 180 -180"},
    {206, u"SLASH", "M 0 -1 L 1 1"},
    {207, u"TREE", "A 0.5 0.4 0.6 200 -160 A 1.5 0.4 0.6 140 -160 A 1 -0.4 0.8 30 -240"},
};

constexpr int kChordsPerTurn = 32;

} // namespace

const OdLineShape* findShape(const OdString& name) {
  const auto found = std::ranges::find_if(kShapes, [&](const OdLineShape& shape) {
    return name.compare(QStringView(shape.name), Qt::CaseInsensitive) == 0;
  });
  return found == std::end(kShapes) ? nullptr : found;
}

const OdLineShape* findShape(std::uint16_t number) {
  const auto found = std::ranges::find(kShapes, number, &OdLineShape::number);
  return found == std::end(kShapes) ? nullptr : found;
}

std::vector<std::vector<OdGePoint2d>> shapeLines(const OdLineShape& shape) {
  std::vector<std::vector<OdGePoint2d>> lines;
  std::istringstream path(shape.path);
  path.imbue(std::locale::classic());
  char command = 0;
  while (path >> command) {
    OdGePoint2d p;
    path >> p.x >> p.y;
    if (command == 'M' || lines.empty()) lines.emplace_back();
    if (command != 'A') {
      lines.back().push_back(p);
      continue;
    }
    double radius = 0, start = 0, sweep = 0;
    path >> radius >> start >> sweep;
    const int count = std::max(1, static_cast<int>(std::abs(sweep) / 360 * kChordsPerTurn));
    for (int i = 0; i <= count; ++i) {
      const double angle = (start + sweep * i / count) * kOdaPi / 180;
      lines.back().push_back({p.x + radius * std::cos(angle), p.y + radius * std::sin(angle)});
    }
  }
  return lines;
}

} // namespace odpattern
