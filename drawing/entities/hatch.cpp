#include "drawing/entities/hatch.h"

#include "drawing/checks.h"
#include "drawing/database.h"
#include "drawing/dxf/text.h"
#include "drawing/xdata.h"

#include <algorithm>

namespace {

// Where files keep what came to hatches late.
constexpr char kOrigin[] = "ACAD";
constexpr char kBackground[] = "HATCHBACKGROUNDCOLOR";
constexpr int kPointCode = 1010;
constexpr int kNumberCode = 1071;

QByteArray numberText(double value) {
  char digits[oddxf::kRealDigits];
  const std::string_view text = oddxf::realText(digits, value);
  return {text.data(), static_cast<qsizetype>(text.size())};
}

/// Scales and turns a point about another.
OdGePoint2d laid(const OdGePoint2d& p, const OdGePoint2d& origin, double factor, double turn) {
  const double x = (p.x - origin.x) * factor;
  const double y = (p.y - origin.y) * factor;
  const double c = std::cos(turn);
  const double s = std::sin(turn);
  return {origin.x + x * c - y * s, origin.y + x * s + y * c};
}

} // namespace

OdDbHatch::OdDbHatch() = default;

void OdDbHatch::assignFrom(const OdDbObject& other) {
  OdDbEntity::assignFrom(other);
  m_hatch = static_cast<const OdDbHatch&>(other).m_hatch;
}

const OdDbHatchLoop& OdDbHatch::loopAt(unsigned index) const {
  if (index >= numLoops()) throw OdError_InvalidIndex(index, numLoops());
  return m_hatch.loops[index];
}

void OdDbHatch::appendLoop(const OdDbHatchLoop& loop) {
  assertWriteEnabled();
  m_hatch.loops.push_back(loop);
}

void OdDbHatch::removeLoopAt(unsigned index) {
  loopAt(index);
  assertWriteEnabled();
  m_hatch.loops.erase(m_hatch.loops.begin() + index);
}

void OdDbHatch::setLoops(std::vector<OdDbHatchLoop> loops) {
  assertWriteEnabled();
  m_hatch.loops = std::move(loops);
}

void OdDbHatch::setHatchStyle(HatchStyle style) {
  assertWriteEnabled();
  m_hatch.style = style;
}

void OdDbHatch::setAssociative(bool associative) {
  assertWriteEnabled();
  m_hatch.associative = associative;
}

std::vector<OdDbObjectId> OdDbHatch::getAssocObjIds() const {
  std::vector<OdDbObjectId> all;
  for (const OdDbHatchLoop& loop : m_hatch.loops)
    for (const OdDbObjectId id : loop.sources)
      if (std::find(all.begin(), all.end(), id) == all.end()) all.push_back(id);
  return all;
}

void OdDbHatch::setElevation(double elevation) {
  odcheck::finite(elevation);
  assertWriteEnabled();
  m_hatch.elevation.z = elevation;
}

void OdDbHatch::setNormal(const OdGeVector3d& normal) {
  const OdGeVector3d n = odcheck::direction(normal);
  assertWriteEnabled();
  m_hatch.normal = n;
}

void OdDbHatch::setSeedPoints(std::vector<OdGePoint2d> points) {
  assertWriteEnabled();
  m_hatch.seeds = std::move(points);
}

void OdDbHatch::setPattern(HatchPatternType type, const OdString& name,
                           const OdHatchPattern& pattern) {
  const bool isOwn = type == kUserDefined;
  const OdHatchPattern& drawn =
      isOwn ? OdHatchPattern::userDefined(m_hatch.patternScale, patternDouble()) : pattern;
  setPattern(type, name,
             drawn.placed(isOwn ? 1 : m_hatch.patternScale, m_hatch.patternAngle, m_hatch.origin));
}

void OdDbHatch::setPattern(HatchPatternType type, const OdString& name,
                           std::vector<OdHatchPatternLine> placedLines) {
  if (name.isEmpty()) throw OdError(eInvalidInput, QStringLiteral("A pattern needs a name"));
  assertWriteEnabled();
  m_hatch.patternType = type;
  m_hatch.patternName = name;
  m_hatch.solid = name.compare(QLatin1String("SOLID"), Qt::CaseInsensitive) == 0;
  m_hatch.lines = m_hatch.solid ? std::vector<OdHatchPatternLine>() : std::move(placedLines);
  m_hatch.gradient = 0;
}

void OdDbHatch::relayLines(double factor, double turn) {
  const OdGePoint2d& origin = m_hatch.origin;
  for (OdHatchPatternLine& line : m_hatch.lines) {
    line.angle += turn;
    line.base = laid(line.base, origin, factor, turn);
    line.offset = laid(line.offset, {}, factor, turn);
    for (double& dash : line.dashes) dash *= factor;
  }
}

void OdDbHatch::setPatternAngle(double angle) {
  odcheck::finite(angle);
  assertWriteEnabled();
  relayLines(1, angle - m_hatch.patternAngle);
  m_hatch.patternAngle = angle;
}

void OdDbHatch::setPatternScale(double scale) {
  odcheck::positive(scale);
  assertWriteEnabled();
  if (m_hatch.patternScale > 0) relayLines(scale / m_hatch.patternScale, 0);
  m_hatch.patternScale = scale;
}

void OdDbHatch::setPatternSpace(double space) { setPatternScale(space); }

void OdDbHatch::setPatternDouble(bool isDouble) {
  assertWriteEnabled();
  const bool changes = patternDouble() != isDouble;
  m_hatch.patternDouble = isDouble;
  if (changes && patternType() == kUserDefined && !isSolidFill())
    setPattern(kUserDefined, m_hatch.patternName);
}

void OdDbHatch::setOriginPoint(const OdGePoint2d& origin) {
  odcheck::finite(origin);
  assertWriteEnabled();
  for (OdHatchPatternLine& line : m_hatch.lines) {
    line.base.x += origin.x - m_hatch.origin.x;
    line.base.y += origin.y - m_hatch.origin.y;
  }
  m_hatch.origin = origin;
  keepXData();
}

void OdDbHatch::setBackgroundColor(const OdCmColor& color) {
  assertWriteEnabled();
  m_hatch.background = color;
  keepXData();
}

void OdDbHatch::keepXData() {
  std::vector<OdDbKeptTags::Tag> tags = oddb::xdataOf(*this, kOrigin);
  std::erase_if(
      tags, [](const auto& tag) { return (tag.code - kPointCode) % 10 == 0 && tag.code <= 1030; });
  const OdGePoint2d& p = m_hatch.origin;
  if (p != OdGePoint2d()) {
    tags.push_back({kPointCode, numberText(p.x)});
    tags.push_back({kPointCode + 10, numberText(p.y)});
    tags.push_back({kPointCode + 20, numberText(0)});
  }
  oddb::setXData(*this, kOrigin, tags);
  tags.clear();
  if (!m_hatch.background.isNone())
    tags.push_back(
        {kNumberCode, QByteArray::number(static_cast<std::int32_t>(m_hatch.background.color()))});
  oddb::setXData(*this, kBackground, tags);
}

void OdDbHatch::readXData() {
  const OdDbKeptTags origin = [&] {
    OdDbKeptTags tags;
    tags.tags = oddb::xdataOf(*this, kOrigin);
    return tags;
  }();
  m_hatch.origin = {origin.real(kPointCode, 0), origin.real(kPointCode + 10, 0)};
  for (const OdDbKeptTags::Tag& tag : oddb::xdataOf(*this, kBackground))
    if (tag.code == kNumberCode)
      m_hatch.background.setColor(static_cast<std::uint32_t>(tag.value.trimmed().toInt()));
}

void OdDbHatch::enteredDatabase() { oddb::registerApplications(*this); }

void OdDbHatch::setGradient(bool on) {
  assertWriteEnabled();
  m_hatch.gradient = on;
  if (!on) return;
  // Programs without gradients show a plain filling.
  m_hatch.solid = 1;
  m_hatch.patternName = QStringLiteral("SOLID");
  m_hatch.patternType = kPreDefined;
  m_hatch.lines.clear();
}

void OdDbHatch::setGradientName(const OdString& name) {
  assertWriteEnabled();
  m_hatch.gradientName = name.toUpper();
}

void OdDbHatch::setGradientAngle(double angle) {
  odcheck::finite(angle);
  assertWriteEnabled();
  m_hatch.gradientAngle = angle;
}

void OdDbHatch::setGradientShift(double shift) {
  odcheck::finite(shift);
  assertWriteEnabled();
  m_hatch.gradientShift = std::clamp(shift, 0.0, 1.0);
}

void OdDbHatch::setGradientOneColorMode(bool on) {
  assertWriteEnabled();
  m_hatch.oneColor = on;
}

void OdDbHatch::setShadeTintValue(double tint) {
  odcheck::finite(tint);
  assertWriteEnabled();
  m_hatch.tint = std::clamp(tint, 0.0, 1.0);
}

void OdDbHatch::setGradientColors(const OdCmColor& first, const OdCmColor& second) {
  assertWriteEnabled();
  m_hatch.color1 = first;
  m_hatch.color2 = second;
  m_hatch.colorIndex1 = m_hatch.colorIndex2 = -1;
}

OdCmColor OdDbHatch::gradientColor2() const {
  if (!gradientOneColorMode()) return m_hatch.color2;
  // From black over the colour itself to white.
  const double tint = std::clamp(m_hatch.tint, 0.0, 1.0);
  const std::uint32_t rgb = m_hatch.color1.rgb();
  const auto part = [&](int shift) {
    const double own = rgb >> shift & 0xFF;
    const double mixed = tint < 0.5 ? own * tint * 2 : own + (255 - own) * (tint * 2 - 1);
    return static_cast<std::uint8_t>(std::lround(mixed));
  };
  return OdCmColor::fromRgb(part(16), part(8), part(0));
}
