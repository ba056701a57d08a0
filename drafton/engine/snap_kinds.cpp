#include "drafton/engine/snap_kinds.h"

#include "drafton/engine/keyword_list.h"
#include "drafton/engine/translator.h"

#include <algorithm>

namespace drafton {
namespace {

constexpr SnapRow kKinds[] = {
    {SnapKind::kEnd, u"End point"},       {SnapKind::kMiddle, u"Midpoint"},
    {SnapKind::kCenter, u"Center"},       {SnapKind::kNode, u"Node"},
    {SnapKind::kQuadrant, u"Quadrant"},   {SnapKind::kIntersection, u"Intersection"},
    {SnapKind::kInsertion, u"Insertion"}, {SnapKind::kPerpendicular, u"Perpendicular"},
    {SnapKind::kTangent, u"Tangent"},     {SnapKind::kNearest, u"Nearest"},
};

/// One for each row of kKinds, and one for none of them.
constexpr QStringView kWords =
    u"ENDpoint MIDpoint CENter NODe QUAdrant INTersection INSertion PERpendicular TANgent NEArest"
    u" NONe";

} // namespace

std::span<const SnapRow> snapKinds() { return kKinds; }

OdString snapName(SnapKind kind) {
  const auto row = std::ranges::find(kKinds, kind, &SnapRow::kind);
  return translated(row->name);
}

std::optional<int> snapKindsOf(QStringView word) {
  const KeywordList list(kWords);
  const std::optional<OdString> meant = list.match(word);
  if (!meant) return std::nullopt;
  const auto place = static_cast<std::size_t>(list.words().indexOf(*meant));
  return place < std::size(kKinds) ? static_cast<int>(kKinds[place].kind) : 0;
}

OdString snapWord(SnapKind kind) {
  const auto row = std::ranges::find(kKinds, kind, &SnapRow::kind);
  return KeywordList(kWords).words()[row - std::begin(kKinds)];
}

} // namespace drafton
