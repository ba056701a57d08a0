#include "drafton/engine/value_parser.h"

#include <charconv>
#include <cmath>

namespace drafton {
namespace {

constexpr qsizetype kLongestNumber = 400;

template <class T>
std::optional<T> parseNumber(QStringView text) {
  if (text.startsWith(u'+') && text.size() > 1 && text[1] != u'-') text = text.mid(1);
  if (text.isEmpty() || text.size() > kLongestNumber) return std::nullopt;
  const QByteArray bytes = text.toLatin1();
  T value{};
  const char* const end = bytes.constData() + bytes.size();
  const auto [at, error] = std::from_chars(bytes.constData(), end, value);
  if (error != std::errc() || at != end) return std::nullopt;
  return value;
}

/// `text` split at `separator`; none if there are more than `most` parts.
QList<QStringView> parts(QStringView text, QChar separator, qsizetype most) {
  if (text.count(separator) >= most) return {};
  return text.split(separator);
}

std::optional<OdGePoint3d> polar(QStringView text, const OdGePoint3d& from) {
  const QList<QStringView> pair = parts(text, u'<', 2);
  if (pair.size() != 2) return std::nullopt;
  const std::optional<double> distance = parseReal(pair[0]);
  const std::optional<double> angle = parseAngle(pair[1]);
  if (!distance || !angle) return std::nullopt;
  return from + OdGeVector3d{*distance * std::cos(*angle), *distance * std::sin(*angle), 0};
}

std::optional<OdGeVector3d> coordinates(QStringView text, double z) {
  const QList<QStringView> numbers = parts(text, u',', 3);
  if (numbers.size() < 2) return std::nullopt;
  double values[3] = {0, 0, z};
  for (qsizetype i = 0; i < numbers.size(); ++i) {
    const std::optional<double> value = parseReal(numbers[i]);
    if (!value) return std::nullopt;
    values[i] = *value;
  }
  return OdGeVector3d{values[0], values[1], values[2]};
}

std::optional<OdGePoint3d> finite(std::optional<OdGePoint3d> point) {
  return point && odgeIsFinite(*point) ? point : std::nullopt;
}

} // namespace

std::optional<double> parseReal(QStringView text) {
  const std::optional<double> value = parseNumber<double>(text);
  return value && std::isfinite(*value) ? value : std::nullopt;
}

std::optional<int> parseInteger(QStringView text) { return parseNumber<int>(text); }

std::optional<double> parseAngle(QStringView text) {
  const std::optional<double> degrees = parseReal(text);
  if (!degrees) return std::nullopt;
  return *degrees * kOdaPi / 180;
}

std::optional<OdGePoint3d> parsePoint(QStringView text, const PointOrigins& origins) {
  const bool relative = text.startsWith(u'@');
  if (relative) text = text.mid(1);
  if (relative && text.isEmpty()) return origins.last;
  const OdGePoint3d ground{0, 0, origins.elevation};
  if (text.contains(u'<'))
    return finite(polar(text, relative ? origins.last : origins.base.value_or(ground)));
  const std::optional<OdGeVector3d> typed = coordinates(text, relative ? 0 : origins.elevation);
  if (!typed) return std::nullopt;
  return finite((relative ? origins.last : OdGePoint3d()) + *typed);
}

std::optional<OdGePoint3d> parseDistanceToCursor(QStringView text, const PointOrigins& origins) {
  const std::optional<double> distance = parseReal(text);
  if (!distance || !origins.base || !origins.cursor) return std::nullopt;
  const double dx = origins.cursor->x - origins.base->x, dy = origins.cursor->y - origins.base->y;
  const double way = std::hypot(dx, dy);
  if (!(way > 0)) return std::nullopt;
  return finite(*origins.base + OdGeVector3d{*distance * (dx / way), *distance * (dy / way), 0});
}

OdString shownReal(double value, int decimals) {
  OdString text = OdString::number(value, 'f', decimals);
  if (text.contains(u'.')) {
    while (text.endsWith(u'0')) text.chop(1);
    if (text.endsWith(u'.')) text.chop(1);
  }
  return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

OdString shownAngle(double radians) { return shownReal(radians * 180 / kOdaPi); }

OdString shownPoint(const OdGePoint3d& point) {
  return QStringLiteral("%1,%2,%3").arg(shownReal(point.x), shownReal(point.y), shownReal(point.z));
}

} // namespace drafton
