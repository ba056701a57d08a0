// Moving entities that are kept as the file had them, where the meaning of their tags is known.
#include "drawing/dxf/residue.h"
#include "drawing/objects/moved_tags.h"
#include "drawing/objects/raw_object.h"

#include <array>

namespace {

using oddb::TagMotion;
using oddb::TagMover;

/// What a transformation must be for a class to follow it.
enum Need : unsigned {
  kUniform = 1, ///< all lengths grow alike
  kSameSize = 2,
  kNoMirror = 4,
  kInPlane = 8, ///< turns around the z axis at most
};

constexpr TagMotion kWipeout[] = {
    {10, TagMotion::kPoint}, {11, TagMotion::kVector}, {12, TagMotion::kVector}};
constexpr TagMotion kMline[] = {{10, TagMotion::kPoint},      {11, TagMotion::kPoint},
                                {12, TagMotion::kDirection},  {13, TagMotion::kDirection},
                                {210, TagMotion::kDirection}, {40, TagMotion::kLength},
                                {41, TagMotion::kLength},     {42, TagMotion::kLength}};
constexpr TagMotion kSpline[] = {{10, TagMotion::kPoint},
                                 {11, TagMotion::kPoint},
                                 {12, TagMotion::kVector},
                                 {13, TagMotion::kVector},
                                 {210, TagMotion::kDirection}};
constexpr TagMotion kHelix[] = {{10, TagMotion::kPoint},
                                {11, TagMotion::kPoint},
                                {12, TagMotion::kDirection},
                                {40, TagMotion::kLength},
                                {42, TagMotion::kLength}};
constexpr TagMotion kInsert[] = {{10, TagMotion::kPoint}};
constexpr TagMotion kTable[] = {{11, TagMotion::kDirection}};
constexpr TagMotion kTolerance[] = {
    {10, TagMotion::kPoint}, {11, TagMotion::kDirection}, {210, TagMotion::kDirection}};
constexpr TagMotion kMesh[] = {{10, TagMotion::kPoint}};
// Behind them the reach of the light.
constexpr TagMotion kLight[] = {{10, TagMotion::kPoint},
                                {11, TagMotion::kPoint},
                                {41, TagMotion::kLength},
                                {42, TagMotion::kLength}};

/// The tags of one subclass of a class.
struct Known {
  std::string_view name, subclass;
  std::span<const TagMotion> motions;
  unsigned needs;
};

constexpr Known kKnown[] = {
    {"WIPEOUT", "AcDbWipeout", kWipeout, 0},
    {"MLINE", "AcDbMline", kMline, kUniform},
    {"HELIX", "AcDbSpline", kSpline, kUniform | kNoMirror},
    {"HELIX", "AcDbHelix", kHelix, kUniform | kNoMirror},
    {"ACAD_TABLE", "AcDbBlockReference", kInsert, kUniform | kSameSize | kNoMirror | kInPlane},
    {"ACAD_TABLE", "AcDbTable", kTable, kUniform | kSameSize | kNoMirror | kInPlane},
    // Its size is that of its dimension style, as that of dimensions.
    {"TOLERANCE", "AcDbFcf", kTolerance, kUniform | kNoMirror},
    {"MESH", "AcDbSubDMesh", kMesh, 0},
    {"LIGHT", "AcDbLight", kLight, kUniform},
};

bool fits(unsigned needs, const TagMover& mover) {
  return (!(needs & kUniform) || mover.isUniform()) &&
         (!(needs & kSameSize) || std::abs(mover.scale() - 1) < 1e-9) &&
         (!(needs & kNoMirror) || !mover.mirrors()) &&
         (!(needs & kInPlane) || mover.staysInPlane());
}

bool moveKnown(std::string_view name, OdDbKeptTags& tags, const TagMover& mover) {
  const Known* known = nullptr;
  bool any = false;
  for (std::size_t i = 0; i < tags.tags.size(); ++i) {
    const OdDbKeptTags::Tag& tag = tags.tags[i];
    if (tag.code == 100) {
      const QByteArray subclass = tag.value.trimmed();
      const auto found = std::ranges::find_if(kKnown, [&](const Known& k) {
        return k.name == name &&
               subclass ==
                   QByteArrayView(k.subclass.data(), static_cast<qsizetype>(k.subclass.size()));
      });
      known = found == std::end(kKnown) ? nullptr : found;
      if (known != nullptr && !fits(known->needs, mover)) return false;
    }
    if (known == nullptr) continue;
    const TagMotion* const motion = oddb::motionOf(known->motions, tag.code);
    if (motion == nullptr) continue;
    if (!mover.move(tags, i, motion->kind)) return false;
    any = true;
  }
  return any;
}

// A multileader's tags mean different things in the parts that lie one within another.
constexpr TagMotion kLeaderStyle[] = {
    {43, TagMotion::kTurn},   {41, TagMotion::kLength}, // the landing
    {42, TagMotion::kLength},                           // arrows
    {45, TagMotion::kLength}, // the scale of all sizes that the style gives
    {10, TagMotion::kLength}, // the scales of a block
    {20, TagMotion::kLength}, {30, TagMotion::kLength},
};
constexpr TagMotion kLeaderContent[] = {
    {10, TagMotion::kPoint},      {11, TagMotion::kDirection},
    {12, TagMotion::kPoint},      {13, TagMotion::kDirection},
    {42, TagMotion::kTurn},       {14, TagMotion::kDirection},
    {15, TagMotion::kPoint},      {46, TagMotion::kTurn},
    {110, TagMotion::kPoint},     {111, TagMotion::kDirection},
    {112, TagMotion::kDirection}, {40, TagMotion::kLength},  // the scale of all sizes
    {41, TagMotion::kLength},                                // letters
    {140, TagMotion::kLength},                               // arrows
    {145, TagMotion::kLength},                               // the gap before the text
    {43, TagMotion::kLength},                                // width and height of the text
    {44, TagMotion::kLength},     {142, TagMotion::kLength}, // its columns
    {143, TagMotion::kLength},    {144, TagMotion::kLength},
    {16, TagMotion::kLength}, // the scales of a block
    {26, TagMotion::kLength},     {36, TagMotion::kLength}};
constexpr TagMotion kLeaderNode[] = {{10, TagMotion::kPoint},
                                     {11, TagMotion::kDirection},
                                     {12, TagMotion::kPoint},
                                     {13, TagMotion::kPoint},
                                     {40, TagMotion::kLength}};
constexpr TagMotion kLeaderLine[] = {{10, TagMotion::kPoint},
                                     {11, TagMotion::kPoint},
                                     {12, TagMotion::kPoint},
                                     {40, TagMotion::kLength}};

struct Part {
  int opens;
  std::string_view mark;
  int closes;
  std::span<const TagMotion> motions;
};

constexpr Part kParts[] = {
    {300, "CONTEXT_DATA{", 301, kLeaderContent},
    {302, "LEADER{", 303, kLeaderNode},
    {304, "LEADER_LINE{", 305, kLeaderLine},
};

/// The sixteen numbers of a block's matrix, row by row.
bool moveMatrix(OdDbKeptTags& tags, const std::vector<std::size_t>& places,
                const OdGeMatrix3d& transform) {
  constexpr std::size_t kSize = 4;
  if (places.size() != kSize * kSize) return places.empty();
  std::array<std::array<double, kSize>, kSize> before{};
  for (std::size_t i = 0; i < places.size(); ++i) {
    bool ok = false;
    before[i / kSize][i % kSize] = tags.tags[places[i]].value.trimmed().toDouble(&ok);
    if (!ok) return false;
  }
  for (std::size_t row = 0; row < 3; ++row)
    for (std::size_t column = 0; column < kSize; ++column) {
      double sum = 0;
      for (std::size_t k = 0; k < kSize; ++k)
        sum += transform(static_cast<int>(row), static_cast<int>(k)) * before[k][column];
      OdDbKeptTags one;
      one.setReal(47, sum);
      tags.tags[places[row * kSize + column]].value = one.tags.front().value;
    }
  return true;
}

bool moveLeader(OdDbKeptTags& tags, const TagMover& mover, const OdGeMatrix3d& transform) {
  if (!fits(kUniform | kNoMirror | kInPlane, mover)) return false;
  std::vector<const Part*> open;
  std::vector<std::size_t> matrix;
  bool any = false;
  for (std::size_t i = 0; i < tags.tags.size(); ++i) {
    const OdDbKeptTags::Tag& tag = tags.tags[i];
    const QByteArray text = tag.value.trimmed();
    const auto opened = std::ranges::find_if(kParts, [&](const Part& part) {
      return part.opens == tag.code &&
             std::string_view(text.constData(), static_cast<std::size_t>(text.size())) == part.mark;
    });
    if (opened != std::end(kParts)) {
      open.push_back(opened);
      continue;
    }
    if (!open.empty() && tag.code == open.back()->closes) {
      open.pop_back();
      continue;
    }
    if (open.size() == 1 && tag.code == 47) matrix.push_back(i);
    const TagMotion* const motion = oddb::motionOf(
        open.empty() ? std::span<const TagMotion>(kLeaderStyle) : open.back()->motions, tag.code);
    if (motion == nullptr) continue;
    if (!mover.move(tags, i, motion->kind)) return false;
    any = any || motion->kind == TagMotion::kPoint;
  }
  return any && open.empty() && moveMatrix(tags, matrix, transform);
}

/// A picture of the entity where it was: its program makes a new one.
void dropPicture(OdDbDxfResidue& residue) {
  const QByteArray* const common = residue.of("AcDbEntity");
  if (common == nullptr) return;
  OdDbKeptTags tags(*common);
  const auto removed = std::erase_if(tags.tags, [](const OdDbKeptTags::Tag& tag) {
    return tag.code == 92 || tag.code == 160 || tag.code == 310;
  });
  if (removed > 0) residue.edit("AcDbEntity") = tags.lines();
}

} // namespace

bool OdDbRawEntity::transformBy(const OdGeMatrix3d& transform) {
  if (!residue() || !m_followers.empty()) return false;
  const std::string_view name(m_name.constData(), static_cast<std::size_t>(m_name.size()));
  const TagMover mover(transform);
  OdDbKeptTags tail(residue()->tail);
  const bool isLeader = name == "MULTILEADER" || name == "MLEADER";
  if (!(isLeader ? moveLeader(tail, mover, transform) : moveKnown(name, tail, mover))) return false;
  OdDbDxfResidue& kept = editResidue();
  kept.tail = tail.lines();
  dropPicture(kept);
  return true;
}
