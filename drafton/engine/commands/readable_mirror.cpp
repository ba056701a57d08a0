#include "drafton/engine/commands/readable_mirror.h"

#include "drawing/entities/block_reference.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/text.h"
#include "drawing/graphics/letter_box.h"
#include "drawing/objects/raw_object.h"

namespace drafton {
namespace {

/// The letters of a text as they would be if it were to be seen. One without letters is measured as
/// if it had one at its place.
std::optional<OdGiLetterFrame> lettersOf(const OdDbEntity& text) {
  OdGiLetterBox box;
  const OdDbEntityPtr sample = text.clone();
  if (auto* const attribute = odrxCast<OdDbAttributeText>(sample.get()))
    attribute->setInvisible(false);
  sample->worldDraw(box);
  if (const auto letters = box.frame()) return letters;
  const OdString letter = QStringLiteral("x");
  OdGePoint3d place;
  if (auto* const line = odrxCast<OdDbText>(sample.get())) {
    line->setTextString(letter);
    const bool isAligned =
        line->horizontalMode() != OdDb::kTextLeft || line->verticalMode() != OdDb::kTextBase;
    place = isAligned ? line->alignmentPoint() : line->position();
  } else if (auto* const lines = odrxCast<OdDbMText>(sample.get())) {
    lines->setContents(letter);
    place = lines->location();
  }
  sample->worldDraw(box);
  if (box.frame()) box.moveTo(place);
  return box.frame();
}

/// The movement of a text; `mirror` itself for what could show no letters.
OdGeMatrix3d readableMirror(const OdDbEntity& text, const OdGeMatrix3d& mirror) {
  const auto letters = lettersOf(text);
  return letters ? odgiReadableMirror(*letters, mirror) : mirror;
}

bool isText(const OdDbEntity& entity) {
  return odrxCast<OdDbText>(&entity) || odrxCast<OdDbMText>(&entity);
}

/// The attributes go with their insert; then they are put upright.
bool mirrorInsert(OdDbBlockReference& insert, const OdGeMatrix3d& mirror) {
  std::vector<OdGeMatrix3d> wanted;
  for (const OdDbAttributePtr& attribute : insert.attributes())
    wanted.push_back(readableMirror(*attribute, mirror));
  if (!insert.transformBy(mirror)) return false;
  const OdGeMatrix3d back = mirror.inverse();
  auto next = wanted.begin();
  for (const OdDbAttributePtr& attribute : insert.attributes(OdDb::kForWrite))
    attribute->transformBy(*next++ * back);
  return true;
}

} // namespace

bool mirrorReadably(OdDbEntity& entity, const OdGeMatrix3d& mirror) {
  if (isText(entity)) return entity.transformBy(readableMirror(entity, mirror));
  if (auto* const insert = odrxCast<OdDbBlockReference>(&entity))
    return mirrorInsert(*insert, mirror);
  if (auto* const kept = odrxCast<OdDbRawEntity>(&entity)) return kept->mirrorReadably(mirror);
  return entity.transformBy(mirror);
}

} // namespace drafton
