#include "drawing/dxf/mtext_columns.h"

#include "drawing/dxf/kept_tags.h"
#include "drawing/dxf/text.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kString = 1000, kApplication = 1001, kReal = 1040, kInteger = 1070;
constexpr std::string_view kBegin = "ACAD_MTEXT_COLUMN_INFO_BEGIN";

// Each value stands behind the code that it would have in the entity itself.
enum Code {
  kDefinedHeight = 46,
  kColumnTexts,
  kWidth,
  kGutter,
  kHeights,
  kKind = 75,
  kCount,
  kReversed = 78,
  kAutoHeight
};

bool hasOwnHeights(const OdMTextColumns& c) {
  return c.kind == OdMTextColumns::kDynamic && !c.autoHeight;
}

int countOf(const OdMTextColumns& c, double totalWidth) {
  const double one = c.width + c.gutter;
  if (c.count > 0 || !(one > 0)) return std::max(c.count, 1);
  constexpr double kMost = 10'000;
  return static_cast<int>(std::clamp(std::round((totalWidth + c.gutter) / one), 1.0, kMost));
}

/// Takes one value; false if it is none of columns.
bool take(OdMTextColumns& c, int code, const QByteArray& value) {
  const int number = value.toInt();
  switch (code) {
  case kColumnTexts:
    return true;
  case kKind:
    if (number != OdMTextColumns::kStatic && number != OdMTextColumns::kDynamic) return false;
    c.kind = static_cast<OdMTextColumns::Kind>(number);
    return true;
  case kAutoHeight:
    c.autoHeight = number != 0;
    return true;
  case kCount:
    c.count = number;
    return true;
  case kReversed:
    c.reversed = number != 0;
    return true;
  default:
    break;
  }
  double* const length = code == kWidth           ? &c.width
                         : code == kGutter        ? &c.gutter
                         : code == kDefinedHeight ? &c.height
                                                  : nullptr;
  if (!length) return false;
  *length = value.toDouble();
  return std::isfinite(*length);
}

/// Reads the values of the application with which the lines begin; false if one is of no column.
bool takeAll(OdMTextColumns& c, const QByteArray& xdata) {
  const OdDbKeptTags kept(xdata);
  int code = 0, heights = 0;
  for (auto tag = kept.tags.begin() + 1; tag != kept.tags.end(); ++tag) {
    if (tag->code == kApplication) break;
    if (tag->code == kString) continue;
    if (heights > 0) {
      const double height = tag->value.toDouble();
      if (!std::isfinite(height)) return false;
      c.heights.push_back(height);
      --heights;
    } else if (code == 0) {
      code = tag->value.toInt();
    } else if (code == kHeights) {
      heights = tag->value.toInt();
      code = 0;
    } else {
      if (!take(c, code, tag->value)) return false;
      code = 0;
    }
  }
  return true;
}

} // namespace

QByteArray oddxf::columnLines(const OdMTextColumns& c, double totalWidth) {
  QByteArray lines;
  const auto number = [&](int value) {
    addLines(lines, kInteger, QByteArray::number(value).toStdString());
  };
  const auto real = [&](double value) {
    char digits[kRealDigits];
    addLines(lines, kReal, realText(digits, value));
  };
  const auto pair = [&](int code, int value) {
    number(code);
    number(value);
  };
  const int count = countOf(c, totalWidth);
  addLines(lines, kApplication, "ACAD");
  addLines(lines, kString, kBegin);
  pair(kKind, c.kind);
  pair(kAutoHeight, c.autoHeight);
  pair(kCount, count);
  pair(kReversed, c.reversed);
  number(kWidth);
  real(c.width);
  number(kGutter);
  real(c.gutter);
  if (hasOwnHeights(c)) {
    pair(kHeights, static_cast<int>(c.heights.size()));
    for (const double height : c.heights) real(height);
  }
  addLines(lines, kString, "ACAD_MTEXT_COLUMN_INFO_END");
  // None of the columns stands in a text of its own.
  addLines(lines, kString, "ACAD_MTEXT_COLUMNS_BEGIN");
  pair(kColumnTexts, count);
  addLines(lines, kString, "ACAD_MTEXT_COLUMNS_END");
  if (hasOwnHeights(c)) return lines;
  addLines(lines, kString, "ACAD_MTEXT_DEFINED_HEIGHT_BEGIN");
  number(kDefinedHeight);
  real(c.height);
  addLines(lines, kString, "ACAD_MTEXT_DEFINED_HEIGHT_END");
  return lines;
}

std::optional<oddxf::OldColumns> oddxf::columnsOf(const QByteArray& xdata) {
  if (!xdata.contains(kBegin.data()) || !xdata.startsWith("1001\nACAD\n")) return std::nullopt;
  OldColumns old;
  OdMTextColumns& c = old.columns;
  if (!takeAll(c, xdata) || c.count < 1) return std::nullopt;
  old.totalWidth = c.count * c.width + (c.count - 1) * c.gutter;
  old.totalHeight = c.height;
  for (const double height : c.heights) old.totalHeight = std::max(old.totalHeight, height);
  // How many columns of one height there are depends on the text.
  if (c.kind == OdMTextColumns::kDynamic && c.autoHeight) c.count = 0;
  const QByteArray again = columnLines(c, old.totalWidth);
  const bool isAlike = xdata.startsWith(again) && (xdata.size() == again.size() ||
                                                   xdata.mid(again.size()).startsWith("1001\n"));
  if (!isAlike) return std::nullopt;
  old.size = again.size();
  return old;
}

bool oddxf::hasColumnApplication(const QByteArray& xdata) {
  const OdDbKeptTags kept(xdata);
  return std::any_of(kept.tags.begin(), kept.tags.end(), [](const OdDbKeptTags::Tag& tag) {
    return tag.code == kApplication && tag.value == "ACAD";
  });
}
