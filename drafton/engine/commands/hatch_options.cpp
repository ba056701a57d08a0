#include "drafton/engine/commands/hatch_options.h"

#include "drafton/engine/document.h"
#include "drafton/engine/engine.h"
#include "drafton/engine/hatch_patterns.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/variable_table.h"

namespace drafton {

const std::array<QStringView, 9> kGradientNames{
    u"LINEAR",        u"CYLINDER",         u"INVCYLINDER", u"SPHERICAL", u"INVSPHERICAL",
    u"HEMISPHERICAL", u"INVHEMISPHERICAL", u"CURVED",      u"INVCURVED",
};

namespace {

const auto kTypeKey = QStringLiteral("hatch_type");
const auto kFileKey = QStringLiteral("hatch_pattern_file");

OdVariant variable(const CommandContext& context, QStringView name) {
  OdVariant value;
  context.variables().get(name.toString(), value);
  return value;
}

OdCmColor colorVariable(const CommandContext& context, QStringView name) {
  return colorFromValue(variable(context, name)).value_or(OdCmColor());
}

bool isName(const OdString& name, QStringView wanted) {
  return name.compare(wanted, Qt::CaseInsensitive) == 0;
}

/// The kind that settings and name ask for: some names are kinds by themselves.
HatchFill::Kind kindOf(const CommandContext& context, const OdString& name) {
  if (isName(name, u"SOLID")) return HatchFill::Kind::kSolid;
  if (isName(name, u"_USER") || name == translated(u"_USER")) return HatchFill::Kind::kUserDefined;
  OdVariant type;
  context.engine().hatchSettings()->get(kTypeKey, type);
  switch (type.toInt32()) {
  case 1:
    return HatchFill::Kind::kUserDefined;
  case 2:
    return HatchFill::Kind::kCustom;
  default:
    return HatchFill::Kind::kPredefined;
  }
}

/// Raises CommandFailure if there is none.
FoundPattern foundPattern(const CommandContext& context, const HatchFill& fill) {
  std::optional<FoundPattern> found =
      findHatchPattern(context.engine(), &context.document(), fill.name, fill.file);
  if (!found)
    throw CommandFailure(
        whyNoHatchPattern(context.engine(), &context.document(), fill.name, fill.file));
  return std::move(*found);
}

bool standsInFile(const HatchFill& fill) {
  return fill.isPattern() && fill.kind != HatchFill::Kind::kUserDefined;
}

} // namespace

HatchOptions hatchOptions(const CommandContext& context) {
  HatchOptions options;
  HatchFill& fill = options.fill;
  fill.name = variable(context, u"HPNAME").toString();
  fill.kind = kindOf(context, fill.name);
  OdVariant file;
  context.engine().hatchSettings()->get(kFileKey, file);
  fill.file = file.toString();
  fill.angle = variable(context, u"HPANG").toDouble();
  fill.scale = variable(context, u"HPSCALE").toDouble();
  fill.spacing = variable(context, u"HPSPACE").toDouble();
  fill.isDouble = variable(context, u"HPDOUBLE").toInt32() != 0;
  fill.gradient = variable(context, u"GFNAME").toInt32();
  fill.gradientAngle = variable(context, u"GFANG").toDouble();
  fill.isCentered = variable(context, u"GFSHIFT").toInt32() == 0;
  fill.gradientColors = {colorVariable(context, u"GFCLR1"), colorVariable(context, u"GFCLR2")};
  options.color = colorVariable(context, u"HPCOLOR");
  options.style = static_cast<IslandStyle>(variable(context, u"HPISLANDDETECTION").toInt32());
  options.gap = variable(context, u"HPGAPTOL").toDouble();
  options.isAssociative = variable(context, u"HPASSOC").toInt32() != 0;
  return options;
}

HatchOptions gradientOptions(const CommandContext& context) {
  HatchOptions options = hatchOptions(context);
  options.fill.kind = HatchFill::Kind::kGradient;
  return options;
}

void keepOptions(const CommandContext& context, const HatchOptions& options) {
  const auto keep = [&](QStringView name, const OdVariant& value) {
    if (variable(context, name) != value) context.variables().set(name.toString(), value);
  };
  const HatchFill& fill = options.fill;
  if (fill.kind == HatchFill::Kind::kGradient) {
    keep(u"GFNAME", fill.gradient);
    keep(u"GFANG", fill.gradientAngle);
    keep(u"GFSHIFT", fill.isCentered ? 0 : 1);
    keep(u"GFCLR1", fill.gradientColors[0].color());
    keep(u"GFCLR2", fill.gradientColors[1].color());
  } else {
    keep(u"HPNAME", fill.name);
    keep(u"HPANG", fill.angle);
    keep(u"HPSCALE", fill.scale);
    keep(u"HPSPACE", fill.spacing);
    keep(u"HPDOUBLE", fill.isDouble ? 1 : 0);
    const auto settings = context.engine().hatchSettings();
    if (fill.isPattern()) settings->set(kTypeKey, static_cast<std::int32_t>(fill.kind));
    settings->set(kFileKey, fill.file);
  }
  keep(u"HPISLANDDETECTION", static_cast<std::int32_t>(options.style));
  keep(u"HPGAPTOL", options.gap);
  keep(u"HPASSOC", options.isAssociative ? 1 : 0);
}

void checkPattern(const CommandContext& context, const HatchFill& fill) {
  constexpr qsizetype kMostErrors = 3;
  if (!standsInFile(fill)) return;
  const FoundPattern found = foundPattern(context, fill);
  for (const OdString& error : found.errors.first(std::min(kMostErrors, found.errors.size())))
    context.print(QStringLiteral("%1: %2").arg(found.file, error));
}

OdHatchPattern patternOf(const CommandContext& context, const HatchFill& fill) {
  if (standsInFile(fill)) return foundPattern(context, fill).pattern;
  // The spacing is kept as the scale.
  return fill.isPattern() ? OdHatchPattern::userDefined(1, fill.isDouble) : OdHatchPattern();
}

} // namespace drafton
