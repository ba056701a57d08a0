// Moving entities that are kept as the file had them, where the meaning of their tags is known.
#include "drawing/dxf/residue.h"
#include "drawing/graphics/letter_box.h"
#include "drawing/objects/mleader_motion.h"
#include "drawing/objects/mleader_shape.h"
#include "drawing/objects/moved_tags.h"
#include "drawing/objects/raw_object.h"
#include "drawing/objects/tag_values.h"
#include "drawing/objects/tolerance_shape.h"

namespace {

using oddb::TagMotion;
using oddb::TagMover;

/// Of a screw: 0 left-handed, 1 right-handed.
constexpr int kHandedness = 290;

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
    {10, TagMotion::kPoint}, {11, TagMotion::kDirection}, {210, TagMotion::kNormal}};
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
    {"HELIX", "AcDbSpline", kSpline, kUniform},
    {"HELIX", "AcDbHelix", kHelix, kUniform},
    {"ACAD_TABLE", "AcDbBlockReference", kInsert, kUniform | kSameSize | kNoMirror | kInPlane},
    {"ACAD_TABLE", "AcDbTable", kTable, kUniform | kSameSize | kNoMirror | kInPlane},
    // Its size is that of its dimension style, as that of dimensions.
    {"TOLERANCE", "AcDbFcf", kTolerance, kUniform},
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
    // A mirror makes a right-handed screw a left-handed one.
    if (tag.code == kHandedness && known->subclass == "AcDbHelix" && mover.mirrors())
      tags.tags[i].value = oddb::integerOf(tag) == 0 ? "     1" : "     0";
    const TagMotion* const motion = oddb::motionOf(known->motions, tag.code);
    if (motion == nullptr) continue;
    if (!mover.move(tags, i, motion->kind)) return false;
    any = true;
  }
  return any;
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

namespace {

/// Tags that files leave out where they are those of every drawing.
struct Preset {
  std::string_view name;
  int code;
  OdGeVector3d value;
};
constexpr Preset kPresets[] = {
    {"TOLERANCE", 11, {1, 0, 0}},
    {"TOLERANCE", 210, {0, 0, 1}},
    {"ACAD_TABLE", 11, {1, 0, 0}},
};

/// Adds what is left out, at the end of its class, where it is not to stay what it is.
void tellPresets(std::string_view name, OdDbKeptTags& tags, const TagMover& mover) {
  for (const Preset& preset : kPresets) {
    OdGeVector3d moved = mover.transform() * preset.value;
    if (mover.mirrors() && preset.code == 210) moved = -moved;
    if (preset.name != name || tags.find(preset.code) != nullptr || moved.normal() == preset.value)
      continue;
    const double parts[] = {preset.value.x, preset.value.y, preset.value.z};
    for (int i = 0; i < 3; ++i) tags.setReal(preset.code + 10 * i, parts[i]);
  }
}

OdGePoint3d pointOf(const OdDbKeptTags& tags, int code, const OdGeVector3d& otherwise) {
  return {tags.real(code, otherwise.x), tags.real(code + 10, otherwise.y),
          tags.real(code + 20, otherwise.z)};
}

/// The direction in which the rows of a table follow each other.
bool growsUpwards(const OdDbKeptTags& table, const OdDbDatabase& database) {
  constexpr int kFlow = 70;
  if (const QByteArray* const own = table.find(kFlow)) return own->trimmed().toInt() == 1;
  const QByteArray* const style = table.find(342);
  const OdDbObjectPtr object =
      style ? oddb::objectOf({342, *style}, database).openObject() : OdDbObjectPtr();
  if (!object || !object->residue()) return false;
  const QByteArray* const flow = OdDbKeptTags(object->residue()->tail).find(kFlow);
  return flow && flow->trimmed().toInt() == 1;
}

/// The sum of the first `count` values of a code: heights of rows, widths of columns.
double sumOf(const OdDbKeptTags& tags, int code, int count) {
  double sum = 0;
  for (const OdDbKeptTags::Tag& tag : tags.tags)
    if (tag.code == code && count-- > 0) sum += oddb::realOf(tag);
  return sum;
}

/// All of a table.
OdGiLetterFrame tableFrame(const OdDbKeptTags& all, const OdDbDatabase& database) {
  const OdDbKeptTags insert = oddb::tagsOf(all, "AcDbBlockReference");
  const OdDbKeptTags table = oddb::tagsOf(all, "AcDbTable");
  const OdGeVector3d given = pointOf(table, 11, OdGeVector3d::xAxis()).asVector();
  OdGiLetterFrame frame;
  frame.along = given.isZeroLength() ? OdGeVector3d::xAxis() : given.normal();
  frame.up = OdGeVector3d::zAxis().crossProduct(frame.along);
  const double height = sumOf(table, 141, static_cast<int>(table.real(91, 0)));
  const double width = sumOf(table, 142, static_cast<int>(table.real(92, 0)));
  frame.middle = pointOf(insert, 10, {}) + frame.along * (width / 2) +
                 frame.up * (growsUpwards(table, database) ? height / 2 : -height / 2);
  return frame;
}

} // namespace

bool OdDbRawEntity::isTable() const { return m_name == "ACAD_TABLE"; }

std::optional<OdGiLetterFrame> OdDbRawEntity::letterFrame() const {
  if (!residue() || !database()) return std::nullopt;
  const OdDbKeptTags tail(residue()->tail);
  if (isTable()) return tableFrame(tail, *database());
  const OdDbKeptTags tolerance = oddb::tagsOf(tail, "AcDbFcf");
  OdGiLetterBox box(tolerance.tags.empty() ? OdGiLetterBox::Of::kLetters
                                           : OdGiLetterBox::Of::kFrames);
  if (!tolerance.tags.empty())
    oddb::drawTolerance(tolerance, *database(), box);
  else if (const OdDbKeptTags mleader = oddb::tagsOf(tail, "AcDbMLeader"); !mleader.tags.empty())
    oddb::drawMleader(mleader, *this, box);
  return box.frame();
}

bool OdDbRawEntity::transformBy(const OdGeMatrix3d& transform) {
  // Nothing in a table tells of letters that run backwards.
  if (isTable() && TagMover(transform).mirrors()) return mirrorReadably(transform);
  return move(transform, transform);
}

bool OdDbRawEntity::mirrorReadably(const OdGeMatrix3d& mirror) {
  const auto letters = letterFrame();
  return move(mirror, letters ? odgiReadableMirror(*letters, mirror) : mirror);
}

bool OdDbRawEntity::move(const OdGeMatrix3d& shape, const OdGeMatrix3d& letters) {
  if (!residue() || !m_followers.empty()) return false;
  const std::string_view name(m_name.constData(), static_cast<std::size_t>(m_name.size()));
  OdDbKeptTags tail(residue()->tail);
  if (name == "MULTILEADER" || name == "MLEADER") {
    const TagMover lines(shape);
    if (!lines.isUniform() || !oddb::moveMleader(tail, lines, TagMover(letters))) return false;
  } else {
    // These are letters and nothing else.
    const TagMover mover(name == "TOLERANCE" || isTable() ? letters : shape);
    tellPresets(name, tail, mover);
    if (!moveKnown(name, tail, mover)) return false;
  }
  OdDbDxfResidue& kept = editResidue();
  kept.tail = tail.lines();
  dropPicture(kept);
  return true;
}
