#include "drafton/engine/commands/hatch_draft.h"

#include "drafton/engine/commands/new_entities.h"
#include "drawing/entities/hatch.h"

#include <algorithm>

namespace drafton {
namespace {

void setFill(OdDbHatch& hatch, const HatchFill& fill, const OdHatchPattern& pattern) {
  using Kind = HatchFill::Kind;
  if (hatch.isGradient() != (fill.kind == Kind::kGradient))
    hatch.setGradient(fill.kind == Kind::kGradient);
  switch (fill.kind) {
  case Kind::kSolid:
    hatch.setPattern(OdDbHatch::kPreDefined, QStringLiteral("SOLID"));
    return;
  case Kind::kGradient:
    hatch.setGradientName(kGradientNames[static_cast<std::size_t>(fill.gradient - 1)].toString());
    hatch.setGradientAngle(fill.gradientAngle);
    hatch.setGradientShift(fill.isCentered ? 0 : 1);
    hatch.setGradientColors(fill.gradientColors[0], fill.gradientColors[1]);
    return;
  case Kind::kUserDefined:
    hatch.setPatternAngle(fill.angle);
    hatch.setPatternDouble(fill.isDouble);
    hatch.setPatternSpace(fill.spacing);
    hatch.setPattern(OdDbHatch::kUserDefined, QStringLiteral("_USER"), pattern);
    return;
  case Kind::kPredefined:
  case Kind::kCustom:
    break;
  }
  hatch.setPatternAngle(fill.angle);
  hatch.setPatternDouble(false);
  hatch.setPatternScale(fill.scale);
  hatch.setPattern(fill.kind == Kind::kCustom ? OdDbHatch::kCustomDefined : OdDbHatch::kPreDefined,
                   pattern.name, pattern);
}

void setAreas(OdDbHatch& hatch, const HatchAreas& areas, const HatchOptions& options) {
  const std::vector<HatchLoop> loops = areas.loops();
  hatch.setLoops(boundaryOf(loops, options.isAssociative));
  hatch.setElevation(areas.elevation());
  hatch.setSeedPoints(areas.seeds());
  // The loops leave out what the style leaves out. An area that was chosen in another one's island
  // is filled in the normal style only.
  const bool isNested = std::any_of(loops.begin(), loops.end(),
                                    [](const HatchLoop& loop) { return loop.loop.depth > 1; });
  hatch.setHatchStyle(isNested && options.style == IslandStyle::kOuter
                          ? OdDbHatch::kNormal
                          : static_cast<OdDbHatch::HatchStyle>(options.style));
  hatch.setAssociative(options.isAssociative);
}

} // namespace

void HatchDraft::show(const HatchAreas& areas, const HatchOptions& options) {
  if (areas.isEmpty()) {
    if (const OdDbObjectPtr shown = m_hatch.openObject())
      m_hatch.safeOpenObject(OdDb::kForWrite)->erase();
    m_hatch = {};
    return;
  }
  const OdHatchPattern pattern = patternOf(m_context, options.fill);
  OdDbDatabase& database = m_context.database();
  OdDbHatchPtr hatch;
  if (m_hatch.isNull()) {
    hatch = odrxMake<OdDbHatch>();
    hatch->setDatabaseDefaults(database);
  } else {
    hatch = m_hatch.openAs<OdDbHatch>(OdDb::kForWrite);
  }
  hatch->setColor(options.color.isByLayer() ? database.currentColor() : options.color);
  setFill(*hatch, options.fill, pattern);
  setAreas(*hatch, areas, options);
  if (m_hatch.isNull()) m_hatch = addToCurrentSpace(database, *hatch);
}

} // namespace drafton
