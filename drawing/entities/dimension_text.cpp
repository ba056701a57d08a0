#include "drawing/entities/dimension_text.h"

#include <numeric>

namespace {

// Units of lengths.
enum Unit { kScientific = 1, kDecimal, kEngineering, kArchitectural, kFractional, kSystem };
// Of the zeros that are left out.
constexpr int kNoLeadingZeros = 4;
constexpr int kNoTrailingZeros = 8;

OdString decimalText(double value, int decimals, int zeros, QChar separator) {
  OdString text = OdString::number(value, 'f', std::clamp(decimals, 0, 15));
  if (text.contains(u'.') && zeros & kNoTrailingZeros) {
    while (text.endsWith(u'0')) text.chop(1);
    if (text.endsWith(u'.')) text.chop(1);
  }
  if (zeros & kNoLeadingZeros) {
    if (text.startsWith(u"0.")) text.remove(0, 1);
    if (text.startsWith(u"-0.")) text.remove(1, 1);
  }
  return text.replace(u'.', separator);
}

/// A number with a fraction, in parts of a power of two.
OdString fractionText(double value, int decimals) {
  const auto parts = std::int64_t{1} << std::clamp(decimals, 0, 8);
  const auto rounded = static_cast<std::int64_t>(std::llround(value * static_cast<double>(parts)));
  const std::int64_t whole = rounded / parts;
  const std::int64_t rest = rounded % parts;
  if (rest == 0) return OdString::number(whole);
  const std::int64_t common = std::gcd(rest, parts);
  const OdString fraction = QStringLiteral("%1/%2").arg(rest / common).arg(parts / common);
  return whole == 0 ? fraction : OdString::number(whole) + u' ' + fraction;
}

/// Feet and inches. Feet that are 0 are left out for 0 and 3 of the lower bits of `zeros`, inches
/// that are 0 for 0 and 2.
OdString feetText(double value, int decimals, int zeros, bool isArchitectural,
                  const OdDbDimVarValues& vars) {
  const int kinds = zeros & 3;
  double feet = std::floor(value / 12);
  double inches = value - feet * 12;
  const double step = isArchitectural ? 1.0 / static_cast<double>(1 << std::clamp(decimals, 0, 8))
                                      : std::pow(10.0, -std::clamp(decimals, 0, 15));
  if (std::round(inches / step) * step >= 12) {
    inches = 0;
    ++feet;
  }
  const OdString inchText = isArchitectural
                                ? fractionText(inches, decimals)
                                : decimalText(inches, decimals, zeros, QChar(vars.dimdsep));
  const bool noFeet = feet == 0 && (kinds == 0 || kinds == 3);
  const bool noInches = std::round(inches / step) == 0 && (kinds == 0 || kinds == 2);
  const OdString feetPart = OdString::number(static_cast<std::int64_t>(feet)) + u'\'';
  if (noInches && !noFeet) return feetPart;
  if (noFeet) return inchText + u'"';
  return feetPart + u'-' + inchText + u'"';
}

double rounded(double value, double step) {
  return step > 0 ? std::round(value / step) * step : value;
}

/// A value between the parts of a style's "prefix<>suffix".
OdString decorated(const OdString& value, const OdString& post, const OdString& symbol) {
  const qsizetype at = post.indexOf(QLatin1String("<>"));
  if (at >= 0) return post.left(at) + value + post.mid(at + 2);
  return post.isEmpty() ? symbol + value : symbol + value + post;
}

OdString withTolerance(const OdString& shown, double value, const OdDbDimVarValues& v) {
  const auto text = [&](double number) {
    return oddb::lengthText(number, v.dimlunit, v.dimtdec, v.dimtzin, v);
  };
  const double size = v.dimtfac > 0 ? v.dimtfac : 1;
  const OdString height = QStringLiteral("{\\H%1x;").arg(size);
  if (v.dimlim)
    return height + QStringLiteral("\\S%1^ %2;}").arg(text(value + v.dimtp), text(value - v.dimtm));
  if (!v.dimtol) return shown;
  if (v.dimtp == v.dimtm) return shown + QStringLiteral("%%p") + text(v.dimtp);
  return shown + height + QStringLiteral("\\S+%1^ -%2;}").arg(text(v.dimtp), text(v.dimtm));
}

} // namespace

OdString oddb::lengthText(double value, int unit, int decimals, int zeros,
                          const OdDbDimVarValues& vars) {
  const QChar separator(vars.dimdsep > 0 ? vars.dimdsep : u'.');
  const OdString sign = value < 0 ? QStringLiteral("-") : OdString();
  const double size = std::abs(value);
  // Larger numbers have no fractions, and as decimal ones they are told exactly.
  constexpr double kMostParts = 1e12;
  if (unit != kScientific && !(size <= kMostParts)) unit = kDecimal;
  switch (unit) {
  case kScientific:
    return sign + OdString::number(size, 'E', std::clamp(decimals, 0, 15)).replace(u'.', separator);
  case kEngineering:
  case kArchitectural:
    return sign + feetText(size, decimals, zeros, unit == kArchitectural, vars);
  case kFractional:
    return sign + fractionText(size, decimals);
  default:
    return decimalText(value, decimals, zeros, separator);
  }
}

OdString oddb::angleText(double radians, const OdDbDimVarValues& vars) {
  const int decimals = vars.dimadec < 0 ? vars.dimdec : vars.dimadec;
  const QChar separator(vars.dimdsep > 0 ? vars.dimdsep : u'.');
  // Zeros of angles are told from 0 to 3.
  const int zeros =
      (vars.dimazin & 1 ? kNoLeadingZeros : 0) | (vars.dimazin & 2 ? kNoTrailingZeros : 0);
  const double degrees = radians * (180 / kOdaPi);
  switch (vars.dimaunit) {
  case 1: {
    const auto seconds = static_cast<std::int64_t>(std::llround(degrees * 3600));
    OdString text = OdString::number(seconds / 3600) + QStringLiteral("%%d");
    if (decimals > 0) text += OdString::number(seconds / 60 % 60) + u'\'';
    if (decimals > 2) text += OdString::number(seconds % 60) + u'"';
    return text;
  }
  case 2:
    return decimalText(degrees / 0.9, decimals, zeros, separator) + u'g';
  case 3:
    return decimalText(radians, decimals, zeros, separator) + u'r';
  default:
    return decimalText(degrees, decimals, zeros, separator) + QStringLiteral("%%d");
  }
}

OdString oddb::dimensionText(const OdString& given, double value, bool isAngle,
                             const OdDbDimVarValues& v, const OdString& symbol) {
  const QLatin1String measured("<>");
  if (!given.isEmpty() && !given.contains(measured))
    return given == QLatin1String(" ") ? OdString() : given;
  OdString text;
  if (isAngle) {
    text = decorated(angleText(value, v), v.dimpost, OdString());
  } else {
    const double scaled = rounded(value * std::abs(v.dimlfac), v.dimrnd);
    const OdString shown = lengthText(scaled, v.dimlunit, v.dimdec, v.dimzin, v);
    text = decorated(withTolerance(shown, scaled, v), v.dimpost, symbol);
    if (v.dimalt) {
      const double other = rounded(value * v.dimlfac * v.dimaltf, v.dimaltrnd);
      text += QStringLiteral(" [") +
              decorated(
                  lengthText(other, std::min(v.dimaltu, int{kFractional}), v.dimaltd, v.dimaltz, v),
                  v.dimapost, OdString()) +
              u']';
    }
  }
  return given.isEmpty() ? text : OdString(given).replace(measured, text);
}
