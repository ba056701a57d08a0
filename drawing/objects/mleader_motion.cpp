#include "drawing/objects/mleader_motion.h"

#include "drawing/entities/block_reference.h"
#include "drawing/objects/tag_values.h"

#include <array>

namespace {

using oddb::TagMotion;
using oddb::TagMover;

/// What a tag goes with.
enum class With : std::uint8_t { kLines, kText, kBlock };

struct LeaderMotion {
  int code;
  TagMotion::Kind kind;
  With with = With::kLines;
};

// A multileader's tags mean different things in the parts that lie one within another.
constexpr LeaderMotion kStyle[] = {
    {41, TagMotion::kLength}, // the landing
    {42, TagMotion::kLength}, // arrows
    {45, TagMotion::kLength}, // the scale of all sizes that the style gives
};
constexpr LeaderMotion kContent[] = {
    {10, TagMotion::kPoint},
    {11, TagMotion::kNormal, With::kText},
    {12, TagMotion::kPoint, With::kText},
    {13, TagMotion::kDirection, With::kText},
    {110, TagMotion::kPoint, With::kText},
    {111, TagMotion::kDirection, With::kText},
    {112, TagMotion::kDirection, With::kText},
    {15, TagMotion::kPoint, With::kBlock},
    {40, TagMotion::kLength},  // the scale of all sizes
    {41, TagMotion::kLength},  // letters
    {140, TagMotion::kLength}, // arrows
    {145, TagMotion::kLength}, // the gap before the text
    {43, TagMotion::kLength},  // width and height of the text
    {44, TagMotion::kLength},
    {142, TagMotion::kLength}, // its columns
    {143, TagMotion::kLength},
    {144, TagMotion::kLength},
};
constexpr LeaderMotion kNode[] = {{10, TagMotion::kPoint},
                                  {11, TagMotion::kDirection},
                                  {12, TagMotion::kPoint},
                                  {13, TagMotion::kPoint},
                                  {40, TagMotion::kLength}};
constexpr LeaderMotion kLine[] = {{10, TagMotion::kPoint},
                                  {11, TagMotion::kPoint},
                                  {12, TagMotion::kPoint},
                                  {40, TagMotion::kLength}};

struct Part {
  int opens;
  std::string_view mark;
  int closes;
  std::span<const LeaderMotion> motions;
};
constexpr Part kParts[] = {
    {300, "CONTEXT_DATA{", 301, kContent},
    {302, "LEADER{", 303, kNode},
    {304, "LEADER_LINE{", 305, kLine},
};

/// Walks over tags and knows in which part each of them stands.
class Walk {
 public:
  /// True for a tag that opens or closes a part.
  bool passes(const OdDbKeptTags::Tag& tag) {
    const QByteArray text = tag.value.trimmed();
    const std::string_view mark(text.constData(), static_cast<std::size_t>(text.size()));
    const Part* const opened = std::ranges::find_if(
        kParts, [&](const Part& part) { return part.opens == tag.code && mark == part.mark; });
    if (opened != std::end(kParts)) {
      m_open.push_back(opened);
      return true;
    }
    if (m_open.empty() || tag.code != m_open.back()->closes) return false;
    m_open.pop_back();
    return true;
  }
  bool isInStyle() const { return m_open.empty(); }
  bool isInContent() const { return m_open.size() == 1; }
  std::span<const LeaderMotion> motions() const {
    return m_open.empty() ? std::span<const LeaderMotion>(kStyle) : m_open.back()->motions;
  }

 private:
  std::vector<const Part*> m_open;
};

/// How text and block stand.
struct Stand {
  OdGeVector3d textNormal = OdGeVector3d::zAxis(), textDirection = OdGeVector3d::xAxis();
  OdGeVector3d blockNormal = OdGeVector3d::zAxis(), blockScale{1, 1, 1};
  double blockRotation = 0;
  bool hasBlockTexts = false;
};

Stand standOf(const OdDbKeptTags& tags) {
  Stand stand;
  Walk walk;
  for (const OdDbKeptTags::Tag& tag : tags.tags) {
    if (walk.passes(tag)) continue;
    if (walk.isInStyle() && tag.code == 302) stand.hasBlockTexts = true;
    if (!walk.isInContent() || oddb::takePart(tag, 11, stand.textNormal) ||
        oddb::takePart(tag, 13, stand.textDirection) ||
        oddb::takePart(tag, 14, stand.blockNormal) || oddb::takePart(tag, 16, stand.blockScale))
      continue;
    if (tag.code == 46) stand.blockRotation = oddb::realOf(tag);
  }
  return stand;
}

/// An angle of a direction from the x axis of the plane with a normal.
double angleIn(const OdGeVector3d& normal, const OdGeVector3d& direction) {
  const OdGeVector3d v = OdGeMatrix3d::planeToWorld(normal).inverse() * direction;
  return std::atan2(v.y, v.x);
}

/// By how much the angle of the text grows.
double textTurn(const Stand& stand, const TagMover& mover) {
  if (stand.textNormal.isZeroLength() || stand.textDirection.isZeroLength()) return 0;
  const OdGeVector3d up = mover.transform() * stand.textNormal;
  return angleIn(mover.mirrors() ? -up : up, mover.transform() * stand.textDirection) -
         angleIn(stand.textNormal, stand.textDirection);
}

bool isNumber(double value) { return std::isfinite(value) && value != 0; }

/// Moves the numbers by which a block stands.
class BlockMover {
 public:
  BlockMover(const Stand& stand, const TagMover& mover)
    : m_before(stand)
    , m_after(stand)
    , m_matrixMotion(mover.transform()) {
    const OdGeVector3d& s = stand.blockScale;
    m_isSound = !stand.blockNormal.isZeroLength() && isNumber(s.x) && isNumber(s.y) &&
                isNumber(s.z) && std::isfinite(stand.blockRotation);
    if (!m_isSound) return;
    // It stands as an insert would.
    const auto insert = odrxMake<OdDbBlockReference>();
    insert->setNormal(stand.blockNormal);
    insert->setScaleFactors({s.x, s.y, s.z});
    insert->setRotation(stand.blockRotation);
    m_isSound = insert->transformBy(mover.transform());
    const OdGeScale3d after = insert->scaleFactors();
    m_after.blockNormal = insert->normal();
    m_after.blockScale = {after.sx, after.sy, after.sz};
    m_after.blockRotation = insert->rotation();
  }

  bool isSound() const { return m_isSound; }

  /// True for a tag that it has taken.
  bool take(OdDbKeptTags::Tag& tag, const Walk& walk) {
    const double value = oddb::realOf(tag);
    if (walk.isInContent() && tag.code == 47) {
      m_matrix.push_back(&tag);
      return true;
    }
    if ((walk.isInContent() && tag.code == 46) || (walk.isInStyle() && tag.code == 43)) {
      put(tag, value,
          value + std::remainder(m_after.blockRotation - m_before.blockRotation, 2 * kOdaPi));
      return true;
    }
    const int base = walk.isInContent() ? 16 : 10;
    for (int i = 0; i < 3; ++i) {
      double OdGeVector3d::*const part = kAxes[i];
      if (walk.isInContent() && tag.code == 14 + 10 * i) {
        put(tag, value, m_after.blockNormal.*part);
        return true;
      }
      if (!(walk.isInContent() || walk.isInStyle()) || tag.code != base + 10 * i) continue;
      put(tag, value, value * (m_after.blockScale.*part / (m_before.blockScale.*part)));
      return true;
    }
    return false;
  }

  /// The sixteen numbers of the matrix, row by row.
  bool moveMatrix() {
    constexpr std::size_t kSize = 4;
    if (m_matrix.size() != kSize * kSize) return m_matrix.empty();
    std::array<std::array<double, kSize>, kSize> before{};
    for (std::size_t i = 0; i < m_matrix.size(); ++i) {
      bool ok = false;
      before[i / kSize][i % kSize] = m_matrix[i]->value.trimmed().toDouble(&ok);
      if (!ok) return false;
    }
    for (std::size_t row = 0; row + 1 < kSize; ++row)
      for (std::size_t column = 0; column < kSize; ++column) {
        double sum = 0;
        for (std::size_t k = 0; k < kSize; ++k)
          sum += m_matrixMotion(static_cast<int>(row), static_cast<int>(k)) * before[k][column];
        put(*m_matrix[row * kSize + column], before[row][column], sum);
      }
    return true;
  }

 private:
  static constexpr double OdGeVector3d::*kAxes[] = {&OdGeVector3d::x, &OdGeVector3d::y,
                                                    &OdGeVector3d::z};

  static void put(OdDbKeptTags::Tag& tag, double before, double after) {
    if (after == before || !std::isfinite(after)) return;
    OdDbKeptTags one;
    one.setReal(tag.code, after);
    tag.value = one.tags.front().value;
  }

  Stand m_before, m_after;
  OdGeMatrix3d m_matrixMotion;
  std::vector<OdDbKeptTags::Tag*> m_matrix;
  bool m_isSound = false;
};

} // namespace

bool oddb::moveMleader(OdDbKeptTags& tags, const TagMover& shape, const TagMover& letters) {
  const Stand stand = standOf(tags);
  const double turn = textTurn(stand, letters);
  const TagMover& blockMotion = stand.hasBlockTexts ? letters : shape;
  BlockMover block(stand, blockMotion);
  if (!block.isSound()) return false;
  Walk walk;
  bool any = false;
  for (std::size_t i = 0; i < tags.tags.size(); ++i) {
    OdDbKeptTags::Tag& tag = tags.tags[i];
    if (walk.passes(tag) || block.take(tag, walk)) continue;
    if (walk.isInContent() && tag.code == 42 && turn != 0) {
      OdDbKeptTags one;
      one.setReal(42, realOf(tag) + std::remainder(turn, 2 * kOdaPi));
      tag.value = one.tags.front().value;
    }
    const auto motions = walk.motions();
    const auto motion = std::ranges::find(motions, tag.code, &LeaderMotion::code);
    if (motion == motions.end()) continue;
    const TagMover& mover = motion->with == With::kText    ? letters
                            : motion->with == With::kBlock ? blockMotion
                                                           : shape;
    if (!mover.move(tags, i, motion->kind)) return false;
    any = any || motion->kind == TagMotion::kPoint;
  }
  return any && walk.isInStyle() && block.moveMatrix();
}
