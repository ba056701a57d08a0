// What a dimension has otherwise than its style: extended data, pairs of codes and values.
#include "drawing/database.h"
#include "drawing/dxf/text.h"
#include "drawing/entities/dimension_text.h"
#include "drawing/tables/dim_var_values.h"
#include "drawing/xdata.h"

namespace {

constexpr char kApplication[] = "ACAD";
constexpr char kOverrides[] = "DSTYLE";
constexpr int kText = 1000;
constexpr int kBrace = 1002;
constexpr int kHandle = 1005;
constexpr int kReal = 1040;
constexpr int kInteger = 1070;

using Tags = std::vector<OdDbKeptTags::Tag>;

/// The pairs between the braces behind the name; both at the end if there are none.
std::pair<Tags::iterator, Tags::iterator> pairsIn(Tags& tags) {
  auto at = std::find_if(tags.begin(), tags.end(), [](const auto& tag) {
    return tag.code == kText && tag.value.trimmed() == kOverrides;
  });
  if (tags.end() - at < 2) return {tags.end(), tags.end()};
  at += 2;
  return {at, std::find_if(at, tags.end(), [](const auto& tag) { return tag.code == kBrace; })};
}

template <class T>
T valueOf(const QByteArray& text, const OdDbDatabase* database) {
  if constexpr (std::is_same_v<T, double>)
    return text.toDouble();
  else if constexpr (std::is_same_v<T, OdString>)
    return OdString::fromUtf8(text);
  else if constexpr (std::is_same_v<T, OdCmColor>)
    return OdCmColor::fromColorIndex(std::clamp(text.toInt(), 0, int{OdCmColor::kACInone}));
  else if constexpr (std::is_same_v<T, OdDbObjectId>) {
    const auto handle =
        OdDbHandle::fromText({text.constData(), static_cast<std::size_t>(text.size())});
    return handle && database ? database->getOdDbObjectId(*handle) : OdDbObjectId();
  } else {
    return static_cast<T>(text.toInt());
  }
}

template <class T>
OdDbKeptTags::Tag tagOf(const T& value) {
  if constexpr (std::is_same_v<T, double>) {
    char digits[oddxf::kRealDigits];
    const std::string_view text = oddxf::realText(digits, value);
    return {kReal, QByteArray(text.data(), static_cast<qsizetype>(text.size()))};
  } else if constexpr (std::is_same_v<T, OdString>) {
    return {kText, value.toUtf8()};
  } else if constexpr (std::is_same_v<T, OdCmColor>) {
    return {kInteger, QByteArray::number(value.colorIndex())};
  } else if constexpr (std::is_same_v<T, OdDbObjectId>) {
    return {kHandle, value.getHandle().ascii().toLatin1()};
  } else {
    return {kInteger, QByteArray::number(static_cast<int>(value))};
  }
}

} // namespace

void oddb::applyDimOverrides(const OdDbObject& dimension, OdDbDimVarValues& values) {
  Tags tags = xdataOf(dimension, kApplication);
  const auto [begin, end] = pairsIn(tags);
  for (auto at = begin; at != end && at + 1 != end; at += 2) {
    const OdDbDimVarInfo* const row = oddbFindDimVar(at->value.trimmed().toInt());
    if (!row) continue;
    const QByteArray text = (at + 1)->value.trimmed();
    std::visit(
        [&](auto member) {
          using T = std::remove_cvref_t<decltype(values.*member)>;
          values.*member = valueOf<T>(text, dimension.database());
        },
        row->member);
  }
}

void oddb::setDimOverride(OdDbObject& dimension, const OdString& name, const OdDbVarValue& value) {
  const OdDbDimVarInfo* const row = oddbFindDimVar(name);
  if (!row || row->code == 0)
    throw OdError(eInvalidInput, QStringLiteral("%1 is no such dimension variable").arg(name));
  OdDbDimVarValues values;
  if (!setDimVar(values, *row, value, dimension.database()))
    throw OdError(eInvalidInput, QStringLiteral("The value of %1 does not fit").arg(name));
  const OdDbKeptTags::Tag tag =
      std::visit([&](auto member) { return tagOf(values.*member); }, row->member);
  Tags tags = xdataOf(dimension, kApplication);
  auto [begin, end] = pairsIn(tags);
  if (begin == tags.end()) {
    const Tags group{{kText, kOverrides}, {kBrace, "{"}, {kBrace, "}"}};
    tags.insert(tags.end(), group.begin(), group.end());
    end = begin = tags.end() - 1;
  }
  const QByteArray code = QByteArray::number(row->code);
  auto at = begin;
  while (at != end && at->value.trimmed() != code) at += end - at > 1 ? 2 : 1;
  if (at == end) {
    const Tags pair{{kInteger, code}, tag};
    tags.insert(end, pair.begin(), pair.end());
  } else if (at + 1 != end) {
    *(at + 1) = tag;
  }
  setXData(dimension, kApplication, tags);
}
