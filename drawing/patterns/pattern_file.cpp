#include "drawing/patterns/pattern_file.h"

#include "drawing/patterns/file_lines.h"

#include <algorithm>

namespace {

constexpr double kDegree = kOdaPi / 180;
/// A pattern line: angle, base x and y, offset along and across, dashes.
constexpr std::size_t kFixedNumbers = 5;

OdGePoint2d turned(OdGePoint2d p, double angle) {
  const double c = std::cos(angle), s = std::sin(angle);
  return {p.x * c - p.y * s, p.x * s + p.y * c};
}

OdHatchPatternLine patternLine(const std::vector<double>& numbers) {
  OdHatchPatternLine line;
  line.angle = numbers[0] * kDegree;
  line.base = {numbers[1], numbers[2]};
  line.offset = turned({numbers[3], numbers[4]}, line.angle);
  line.dashes.assign(numbers.begin() + kFixedNumbers, numbers.end());
  return line;
}

} // namespace

std::vector<OdHatchPatternLine> OdHatchPattern::placed(double scale, double angle,
                                                       OdGePoint2d origin) const {
  std::vector<OdHatchPatternLine> result = lines;
  for (OdHatchPatternLine& line : result) {
    line.angle += angle;
    line.base = turned({line.base.x * scale, line.base.y * scale}, angle);
    line.base = {line.base.x + origin.x, line.base.y + origin.y};
    line.offset = turned({line.offset.x * scale, line.offset.y * scale}, angle);
    for (double& dash : line.dashes) dash *= scale;
  }
  return result;
}

OdHatchPattern OdHatchPattern::userDefined(double spacing, bool isDouble) {
  OdHatchPattern pattern{QStringLiteral("_USER"), {}, {{0, {}, {0, spacing}, {}}}};
  if (isDouble) pattern.lines.push_back({kOdaPi / 2, {}, {-spacing, 0}, {}});
  return pattern;
}

OdHatchPatternFile OdHatchPatternFile::read(const OdString& path) {
  return parse(odpattern::fileBytes(path));
}

OdHatchPatternFile OdHatchPatternFile::parse(const QByteArray& bytes) {
  OdHatchPatternFile file;
  bool hasHead = false;
  const auto complain = [&](const odpattern::FileLine& line, const OdString& reason) {
    file.m_errors << odpattern::lineError(line, reason);
  };
  for (const odpattern::FileLine& line : odpattern::fileLines(bytes)) {
    if (line.text.startsWith(u'*')) {
      const auto head = odpattern::headLine(line.text);
      hasHead = head.has_value();
      if (hasHead) {
        file.m_patterns.push_back({head->first, head->second, {}});
      } else {
        complain(line, QStringLiteral("a pattern without a name"));
      }
      continue;
    }
    if (!hasHead) {
      complain(line, QStringLiteral("a line that belongs to no pattern"));
      continue;
    }
    const auto numbers = odpattern::numbers(line.text);
    if (!numbers || numbers->size() < kFixedNumbers)
      complain(line, QStringLiteral("a pattern line needs at least five numbers"));
    else if ((*numbers)[4] == 0)
      complain(line, QStringLiteral("lines of a pattern that lie upon each other"));
    else
      file.m_patterns.back().lines.push_back(patternLine(*numbers));
  }
  std::erase_if(file.m_patterns, [&](const OdHatchPattern& pattern) {
    if (!pattern.lines.empty()) return false;
    file.m_errors << QStringLiteral("the pattern %1 has no lines").arg(pattern.name);
    return true;
  });
  return file;
}

const OdHatchPattern* OdHatchPatternFile::find(const OdString& name) const {
  const auto found = std::ranges::find_if(m_patterns, [&](const OdHatchPattern& pattern) {
    return pattern.name.compare(name, Qt::CaseInsensitive) == 0;
  });
  return found == m_patterns.end() ? nullptr : &*found;
}
