#include "drawing/version_losses.h"

#include "drawing/dxf/kept_tags.h"
#include "drawing/dxf/out.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/hatch.h"
#include "drawing/tables/block_table.h"
#include "drawing/tables/dim_style_table.h"
#include "drawing/tables/layer_table.h"
#include "drawing/tables/layer_transparency.h"

#include <set>

namespace {

bool hasExactColor(const OdDbEntity& e) { return e.color().isByColor() || e.color().hasNames(); }
bool hasTransparency(const OdDbEntity& e) { return e.transparency().value() != 0; }
bool hasGradient(const OdDbEntity& e) {
  const auto* const hatch = odrxCast<OdDbHatch>(&e);
  return hatch && hatch->isGradient();
}
/// Of an insert's attributes, or of a block's definitions.
bool hasSeveralLines(const OdDbEntity& e) {
  if (const auto* const insert = odrxCast<OdDbBlockReference>(&e))
    return std::ranges::any_of(insert->attributes(),
                               [](const auto& a) { return a->isMTextAttribute(); });
  const auto* const definition = odrxCast<OdDbAttributeDefinition>(&e);
  return definition && definition->isMTextAttribute();
}

struct Row {
  OdDb::DwgVersion since;
  const char16_t* kind;
  bool (*has)(const OdDbEntity& entity);
};
constexpr Row kRows[] = {
    {OdDb::kR2004, u"true colours", hasExactColor},
    {OdDb::kR2004, u"transparencies", hasTransparency},
    {OdDb::kR2004, u"gradients", hasGradient},
    {OdDb::kR2018, u"attributes of several lines", hasSeveralLines},
};

/// Which rows hold for an entity of the blocks.
std::uint32_t kindsOf(const OdDbEntity& entity, OdDb::DwgVersion version) {
  std::uint32_t found = 0;
  for (std::size_t i = 0; i < std::size(kRows); ++i)
    if (version < kRows[i].since && kRows[i].has(entity)) found |= 1U << i;
  return found;
}

/// The codes of an object as a file of the version has it.
std::multiset<int> codesOf(const OdDbObject& object, OdDb::DwgVersion version) {
  OdDbDxfOut out(*object.database(), version, {});
  object.dxfOut(out);
  const std::string_view lines = out.collected();
  std::multiset<int> codes;
  const OdDbKeptTags kept(QByteArray(lines.data(), static_cast<qsizetype>(lines.size())));
  for (const OdDbKeptTags::Tag& tag : kept.tags) codes.insert(tag.code);
  return codes;
}

/// The variables that some dimension style has and the file would not, by their names.
QStringList lostDimVariables(const OdDbDatabase& database, OdDb::DwgVersion version) {
  static const OdDbDimVarValues kPreset;
  constexpr int kFlags = 70; // which is a variable as well
  std::set<const OdDbDimVarInfo*> lost;
  const auto styles = database.getDimStyleTableId().openAs<OdDbDimStyleTable>();
  for (const auto at = styles->newIterator(); !at->done(); at->step()) {
    const OdDbDimStyleTableRecordPtr style = at->getRecord();
    const std::multiset<int> codes = codesOf(*style, version);
    for (const OdDbDimVarInfo& row : oddbDimVars()) {
      const bool isSet = std::visit(
          [&](auto member) { return style->values().*member != kPreset.*member; }, row.member);
      if (isSet && row.code != 0 && codes.count(row.code) < (row.code == kFlags ? 2U : 1U))
        lost.insert(&row);
    }
  }
  QStringList names;
  for (const OdDbDimVarInfo& row : oddbDimVars())
    if (lost.contains(&row)) names << QLatin1String(row.name);
  return names;
}

} // namespace

QStringList oddb::lossesInVersion(const OdDbDatabase& database, OdDb::DwgVersion version) {
  if (std::ranges::none_of(kRows, [&](const Row& row) { return version < row.since; })) return {};
  std::uint32_t found = 0;
  const OdDbBlockTablePtr blocks = database.getBlockTableId().openAs<OdDbBlockTable>();
  for (const auto at = blocks->newIterator(); !at->done(); at->step()) {
    const OdDbBlockTableRecordPtr block = at->getRecord();
    for (const auto inside = block->newIterator(); !inside->done(); inside->step())
      found |= kindsOf(*inside->entity(), version);
  }
  if (version < OdDb::kR2004) {
    const OdDbLayerTablePtr layers = database.getLayerTableId().openAs<OdDbLayerTable>();
    for (const auto at = layers->newIterator(); !at->done(); at->step()) {
      const OdDbLayerTableRecordPtr layer = at->getRecord();
      if (layer->color().isByColor() || layer->color().hasNames()) found |= 1U;
    }
  }
  QStringList kinds;
  for (std::size_t i = 0; i < std::size(kRows); ++i)
    if (found & 1U << i) kinds << OdString::fromUtf16(kRows[i].kind);
  return kinds + lostDimVariables(database, version);
}
