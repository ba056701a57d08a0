#include "drafton/engine/edited_texts.h"

#include "drafton/engine/translator.h"
#include "drawing/database.h"
#include "drawing/entities/attribute_definition.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/dimension.h"
#include "drawing/entities/mtext.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace drafton {
namespace {

using Part = EditedText::Part;

/// What stands for the measured value of a dimension.
constexpr QLatin1String kMeasured("<>");

OdGePoint3d upperLeftOf(const OdDbEntity& entity, const OdGePoint3d& otherwise) {
  OdGeExtents3d box;
  if (!entity.getGeomExtents(box) || box.isEmpty()) return otherwise;
  return {box.minPoint().x, box.maxPoint().y, otherwise.z};
}

/// How far a point lies from the box of an entity, as seen from above; beyond everything for one
/// that has no box.
double wayTo(const OdDbEntity& entity, const OdGePoint3d& point) {
  OdGeExtents3d box;
  if (!entity.getGeomExtents(box) || box.isEmpty()) return std::numeric_limits<double>::infinity();
  const OdGePoint3d& low = box.minPoint();
  const OdGePoint3d& high = box.maxPoint();
  return std::hypot(std::max({low.x - point.x, point.x - high.x, 0.0}),
                    std::max({low.y - point.y, point.y - high.y, 0.0}));
}

EditedText valueOf(const OdDbAttributeText& text) {
  EditedText edited{text.objectId(),   Part::kText,        {},
                    text.textString(), TextEditing::kLine, upperLeftOf(text, text.position())};
  if (const OdDbMTextPtr lines = text.getMTextAttribute()) {
    edited.now = lines->contents();
    edited.form = TextEditing::kLines;
  }
  return edited;
}

/// What the user is asked for an attribute's value.
OdString questionFor(const OdDbBlockReference& insert, const OdDbAttribute& attribute) {
  const auto block = insert.blockTableRecord().openAs<OdDbBlockTableRecord>();
  for (auto at = block->newIterator(); !at->done(); at->step()) {
    const OdDbEntityPtr entity = at->entity();
    const auto* const definition = odrxCast<OdDbAttributeDefinition>(entity);
    if (definition && !definition->prompt().isEmpty() &&
        definition->tag().compare(attribute.tag(), Qt::CaseInsensitive) == 0)
      return definition->prompt();
  }
  return attribute.tag();
}

std::vector<EditedText> valuesOf(const OdDbBlockReference& insert,
                                 const std::optional<OdGePoint3d>& point, double reach) {
  std::vector<EditedText> all;
  std::optional<std::size_t> nearest;
  double shortest = reach;
  for (const OdDbAttributePtr& attribute : insert.attributes()) {
    if (attribute->isConstant()) continue;
    EditedText edited = valueOf(*attribute);
    edited.question = questionFor(insert, *attribute);
    all.push_back(edited);
    if (!point || attribute->isInvisible()) continue;
    const double way = wayTo(*attribute, *point);
    if (way > shortest || (nearest && way == shortest)) continue;
    shortest = way;
    nearest = all.size() - 1;
  }
  if (nearest) return {all[*nearest]};
  return all;
}

std::vector<EditedText> textsOf(const OdDbAttributeDefinition& definition) {
  EditedText value = valueOf(definition);
  value.part = Part::kDefault;
  value.question = QStringLiteral("Enter default attribute value");
  EditedText tag = value, prompt = value;
  tag.part = Part::kTag;
  tag.question = QStringLiteral("Enter attribute tag name");
  tag.now = definition.tag();
  prompt.part = Part::kPrompt;
  prompt.question = QStringLiteral("Enter attribute prompt");
  prompt.now = definition.prompt();
  tag.form = prompt.form = TextEditing::kLine;
  if (definition.isConstant()) return {tag, value};
  return {tag, prompt, value};
}

bool canBeEmpty(const EditedText& edited, const OdDbEntity& entity) {
  const bool isAttribute = odrxCast<OdDbAttributeText>(&entity) && edited.part != Part::kTag;
  return isAttribute || odrxCast<OdDbDimension>(&entity);
}

void setTextOf(OdDbEntity& entity, const OdString& text) {
  if (auto* const line = odrxCast<OdDbText>(&entity)) {
    line->setTextString(text);
    line->adjustAlignment();
  } else if (auto* const lines = odrxCast<OdDbMText>(&entity)) {
    lines->setContents(text);
  } else if (auto* const dimension = odrxCast<OdDbDimension>(&entity)) {
    dimension->setDimensionText(text == kMeasured ? OdString() : text);
    dimension->recomputeDimBlock();
  }
}

} // namespace

std::vector<EditedText> editedTexts(OdDbObjectId id, const std::optional<OdGePoint3d>& point,
                                    double reach) {
  const OdDbObjectPtr object = id.openObject();
  if (const auto* const insert = odrxCast<OdDbBlockReference>(object.get()))
    return valuesOf(*insert, point, reach);
  if (const auto* const definition = odrxCast<OdDbAttributeDefinition>(object.get()))
    return textsOf(*definition);
  EditedText edited{id, Part::kText, QStringLiteral("Enter text"), {}, TextEditing::kLine, {}};
  if (const auto* const text = odrxCast<OdDbText>(object.get())) {
    edited.now = text->textString();
    edited.place = upperLeftOf(*text, text->position());
  } else if (const auto* const lines = odrxCast<OdDbMText>(object.get())) {
    edited.question = QStringLiteral("MText");
    edited.now = lines->contents();
    edited.form = TextEditing::kLines;
    edited.place = upperLeftOf(*lines, lines->location());
  } else if (const auto* const dimension = odrxCast<OdDbDimension>(object.get())) {
    edited.question = QStringLiteral("Enter dimension text");
    edited.now =
        dimension->dimensionText().isEmpty() ? OdString(kMeasured) : dimension->dimensionText();
    // Hardly ever there are several lines.
    if (edited.now.contains(QLatin1String("\\P"))) edited.form = TextEditing::kLines;
    edited.place = dimension->textPosition();
  } else {
    return {};
  }
  return {edited};
}

OdString editingFault(const EditedText& edited, const OdString& text) {
  if (edited.part == Part::kTag && text.contains(u' '))
    return translated(u"A tag cannot have blanks.");
  if (!text.isEmpty() || canBeEmpty(edited, *edited.owner.openAs<OdDbEntity>())) return {};
  return edited.part == Part::kTag ? translated(u"A tag is needed.")
                                   : translated(u"A text is needed.");
}

void setEditedText(const EditedText& edited, const OdString& text) {
  if (text == edited.now) return;
  const auto entity = edited.owner.openAs<OdDbEntity>(OdDb::kForWrite);
  auto* const definition = odrxCast<OdDbAttributeDefinition>(entity.get());
  if (edited.part == Part::kTag)
    definition->setTag(text.toUpper());
  else if (edited.part == Part::kPrompt)
    definition->setPrompt(text);
  else
    setTextOf(*entity, text);
}

} // namespace drafton
