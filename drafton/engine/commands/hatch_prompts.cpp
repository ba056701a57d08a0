#include "drafton/engine/commands/hatch_prompts.h"

#include "drafton/engine/commands/property_prompts.h"
#include "drafton/engine/commands/wildcard.h"
#include "drafton/engine/document.h"
#include "drafton/engine/engine.h"
#include "drafton/engine/hatch_patterns.h"
#include "drafton/engine/translator.h"

namespace drafton {
namespace {

using Kind = HatchFill::Kind;

Task<bool> askYesNo(CommandContext& context, const char16_t* question, bool now) {
  const Answer<OdString> answer = co_await context.input().keyword(
      {.text = question,
       .keywords = u"Yes No",
       .defaultValue = now ? QStringView(u"Yes") : QStringView(u"No")});
  co_return answer.is(u"Yes");
}

Task<void> askAngle(CommandContext& context, const char16_t* question, double& angle) {
  const Answer<double> answer =
      co_await context.input().angle({.text = question, .defaultValue = angle});
  angle = answer.value;
}

void listPatterns(const CommandContext& context) {
  for (const OdHatchPattern& pattern : predefinedPatterns(context.engine(), &context.document()))
    context.print(
        QStringLiteral("%1  %2").arg(pattern.name.leftJustified(20), pattern.description));
  context.print(translated(u"SOLID fills the area with a color."));
}

/// The pattern's name; `?` lists the patterns.
Task<void> askPatternName(CommandContext& context, HatchFill& fill) {
  for (;;) {
    const OdString now = fill.kind == Kind::kPredefined || fill.kind == Kind::kCustom
                             ? fill.name
                             : QStringLiteral("ANSI31");
    const Answer<OdString> name = co_await context.input().string(
        {.text = u"Enter a pattern name or ? for a list", .defaultValue = QStringView(now)});
    if (name.value == QLatin1String("?")) {
      listPatterns(context);
      continue;
    }
    if (name.value.compare(QLatin1String("SOLID"), Qt::CaseInsensitive) == 0) {
      fill.kind = Kind::kSolid;
      fill.name = QStringLiteral("SOLID");
      co_return;
    }
    if (const auto found =
            findHatchPattern(context.engine(), &context.document(), name.value, fill.file)) {
      fill.name = found->pattern.name;
      fill.kind = found->isPredefined ? Kind::kPredefined : Kind::kCustom;
      fill.file = found->isPredefined ? kPatternFile.toString() : found->file;
      co_return;
    }
    context.print(translated(u"There is no hatch pattern \"%1\".").arg(name.value.left(60)));
  }
}

Task<void> askPattern(CommandContext& context, HatchFill& fill) {
  co_await askPatternName(context, fill);
  if (fill.kind == Kind::kSolid) co_return;
  const Answer<double> scale =
      co_await context.input().real({.text = u"Specify a scale for the pattern",
                                     .defaultValue = fill.scale,
                                     .range = NumberRange::kPositive});
  fill.scale = scale.value;
  co_await askAngle(context, u"Specify an angle for the pattern", fill.angle);
}

Task<void> askUserDefined(CommandContext& context, HatchFill& fill) {
  co_await askAngle(context, u"Specify angle for crosshatch lines", fill.angle);
  const Answer<double> spacing =
      co_await context.input().distance({.text = u"Specify spacing between the lines",
                                         .defaultValue = fill.spacing,
                                         .range = NumberRange::kPositive});
  fill.spacing = spacing.value;
  fill.isDouble = co_await askYesNo(context, u"Double hatch area?", fill.isDouble);
  fill.kind = Kind::kUserDefined;
  fill.name = QStringLiteral("_USER");
  fill.file.clear();
}

Task<void> askSolid(CommandContext&, HatchFill& fill) {
  fill.kind = Kind::kSolid;
  fill.name = QStringLiteral("SOLID");
  co_return;
}

/// The gradients as keywords, in the order of their names.
constexpr QStringView kGradientWords =
    u"Linear CYlinder INVCYlinder Spherical INVSpherical Hemispherical INVHemispherical CUrved "
    u"INVCUrved";

Task<void> askGradient(CommandContext& context, HatchFill& fill) {
  const QStringList words = kGradientWords.toString().split(u' ');
  const OdString now = words[fill.gradient - 1];
  const Answer<OdString> name = co_await context.input().keyword(
      {.text = u"Enter a gradient", .keywords = kGradientWords, .defaultValue = now});
  fill.gradient = static_cast<int>(words.indexOf(name.keyword)) + 1;
  co_await askAngle(context, u"Specify an angle for the gradient", fill.gradientAngle);
  fill.isCentered = co_await askYesNo(context, u"Center the gradient?", fill.isCentered);
  const std::optional<OdCmColor> first = co_await askColor(
      context, u"Enter the first color", fill.gradientColors[0], ColorKinds::kOwn);
  const std::optional<OdCmColor> second = co_await askColor(
      context, u"Enter the second color", fill.gradientColors[1], ColorKinds::kOwn);
  fill.gradientColors = {first.value_or(fill.gradientColors[0]),
                         second.value_or(fill.gradientColors[1])};
  fill.kind = Kind::kGradient;
}

/// One kind of fill, with what it asks.
struct FillOption {
  const char16_t* keyword;
  Task<void> (*ask)(CommandContext& context, HatchFill& fill);
};

constexpr FillOption kFillOptions[] = {
    {u"Pattern", askPattern},
    {u"Solid", askSolid},
    {u"User", askUserDefined},
    {u"Gradient", askGradient},
};

QStringView wordOf(Kind kind) {
  switch (kind) {
  case Kind::kPredefined:
  case Kind::kCustom:
    break;
  case Kind::kUserDefined:
    return u"User";
  case Kind::kSolid:
    return u"Solid";
  case Kind::kGradient:
    return u"Gradient";
  }
  return u"Pattern";
}

} // namespace

Task<void> askFill(CommandContext& context, HatchFill& fill) {
  const Answer<OdString> kind =
      co_await context.input().keyword({.text = u"Fill with",
                                        .keywords = u"Pattern Solid User Gradient",
                                        .defaultValue = wordOf(fill.kind)});
  for (const FillOption& option : kFillOptions)
    if (kind.is(option.keyword)) co_await option.ask(context, fill);
}

Task<void> askIslandStyle(CommandContext& context, IslandStyle& style) {
  static constexpr QStringView kWords[] = {u"Normal", u"Outer", u"Ignore"};
  const Answer<OdString> answer =
      co_await context.input().keyword({.text = u"Enter hatching style",
                                        .keywords = u"Normal Outer Ignore",
                                        .defaultValue = kWords[static_cast<int>(style)]});
  for (int i = 0; i < 3; ++i)
    if (answer.is(kWords[i])) style = static_cast<IslandStyle>(i);
}

Task<void> askGap(CommandContext& context, double& gap) {
  for (;;) {
    const Answer<double> answer =
        co_await context.input().distance({.text = u"Specify the largest gap to be closed",
                                           .defaultValue = gap,
                                           .range = NumberRange::kNotNegative});
    constexpr double kLargest = 5000; // as the variable has it
    if (answer.value <= kLargest) {
      gap = answer.value;
      co_return;
    }
    context.print(translated(u"The value must be between 0 and 5000."));
  }
}

Task<void> askAssociative(CommandContext& context, bool& isAssociative) {
  isAssociative = co_await askYesNo(context, u"Keep the hatch with its boundary?", isAssociative);
}

} // namespace drafton
