// MTEXT.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/drawing_session.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/commands/shown_values.h"
#include "drafton/engine/commands/text_style_prompt.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/value_parser.h"
#include "drawing/entities/mtext.h"

namespace drafton {
namespace {

/// In the order of OdDbMText::AttachmentPoint: row by row.
constexpr const char16_t* kAttachments[] = {u"TL", u"TC", u"TR", u"ML", u"MC",
                                            u"MR", u"BL", u"BC", u"BR"};
constexpr QStringView kAttachmentKeywords = u"TL TC TR ML MC MR BL BC BR";

/// The distance of lines at factor 1, as a part of the height.
constexpr double kUsualSpacing = 5.0 / 3;
constexpr double kClosest = 0.25, kWidest = 4;

Task<void> askJustification(CommandContext& context, OdDbMText& text) {
  const OdString now = OdString::fromUtf16(kAttachments[text.attachment() - 1]);
  const Answer<OdString> mode =
      co_await context.input().keyword({.text = u"Enter justification",
                                        .keywords = kAttachmentKeywords,
                                        .defaultValue = QStringView(now)});
  for (std::size_t i = 0; i < std::size(kAttachments); ++i)
    if (mode.is(kAttachments[i]))
      text.setAttachment(static_cast<OdDbMText::AttachmentPoint>(i + 1));
}

/// "1.5x" is a factor, a plain number a distance. None if it is no number, or out of range.
std::optional<double> spacingFactor(OdString typed, double height) {
  const bool isFactor = typed.endsWith(u'x', Qt::CaseInsensitive);
  if (isFactor) typed.chop(1);
  const std::optional<double> number = parseReal(typed);
  if (!number) return std::nullopt;
  const double factor = isFactor ? *number : *number / (height * kUsualSpacing);
  return factor >= kClosest && factor <= kWidest ? std::optional(factor) : std::nullopt;
}

Task<void> askLineSpacing(CommandContext& context, OdDbMText& text) {
  CommandInput& input = context.input();
  const bool isExact = text.lineSpacingStyle() == OdDbMText::kExactly;
  const QStringView now = isExact ? u"Exactly" : u"Atleast";
  const Answer<OdString> style = co_await input.keyword(
      {.text = u"Enter line spacing type", .keywords = u"Atleast Exactly", .defaultValue = now});
  const OdString shown = shownReal(text.lineSpacingFactor()) + u'x';
  for (;;) {
    const Answer<OdString> typed = co_await input.string(
        {.text = u"Enter line spacing factor or distance", .defaultValue = QStringView(shown)});
    if (const auto factor = spacingFactor(typed.value, text.textHeight())) {
      text.setLineSpacingFactor(*factor);
      text.setLineSpacingStyle(style.is(u"Exactly") ? OdDbMText::kExactly : OdDbMText::kAtLeast);
      co_return;
    }
    context.print(translated(u"A factor from 0.25x to 4x or a distance of as much is needed."));
  }
}

Task<void> askHeight(CommandContext& context, OdDbMText& text, OdGePoint3d corner) {
  const Answer<double> height =
      co_await context.input().distance({.text = u"Specify height",
                                         .base = corner,
                                         .defaultValue = text.textHeight(),
                                         .range = NumberRange::kPositive});
  text.setTextHeight(height.value);
  context.database().setSysVar(QStringLiteral("TEXTSIZE"), height.value);
}

/// Puts the text into the box between two corners that are turned with it.
void placeBetween(OdDbMText& text, const OdGePoint3d& first, const OdGePoint3d& second) {
  const double angle = text.rotation();
  const OdGeVector3d along{std::cos(angle), std::sin(angle), 0};
  const OdGeVector3d up{-along.y, along.x, 0};
  const OdGeVector3d diagonal = second - first;
  const double width = diagonal.dotProduct(along), height = diagonal.dotProduct(up);
  const int index = int{text.attachment()} - 1;
  // Parts of the box from its left and from its top.
  const double across = (index % 3) / 2.0, down = (index / 3) / 2.0;
  const double left = std::min(width, 0.0), top = std::max(height, 0.0);
  text.setLocation(first + along * (left + std::abs(width) * across) +
                   up * (top - std::abs(height) * down));
  text.setWidth(std::abs(width));
}

/// Place, size and looks.
Task<void> askFrame(CommandContext& context, OdDbMText& text) {
  CommandInput& input = context.input();
  const Answer<OdGePoint3d> first = co_await input.point({.text = u"Specify first corner"});
  text.setLocation(first.value);
  for (;;) {
    const Answer<OdGePoint3d> answer =
        co_await input.point({.text = u"Specify opposite corner",
                              .keywords = u"Height Justify Linespacing Rotation Style Width",
                              .base = first.value});
    if (answer.isValue()) {
      placeBetween(text, first.value, answer.value);
      co_return;
    }
    if (answer.is(u"Width")) {
      const Answer<double> width = co_await input.distance(
          {.text = u"Specify width", .base = first.value, .range = NumberRange::kNotNegative});
      text.setWidth(width.value);
      co_return;
    }
    if (answer.is(u"Height")) co_await askHeight(context, text, first.value);
    if (answer.is(u"Justify")) co_await askJustification(context, text);
    if (answer.is(u"Linespacing")) co_await askLineSpacing(context, text);
    if (answer.is(u"Style")) {
      co_await askCurrentTextStyle(context);
      text.setTextStyle(context.database().currentTextStyle());
    }
    if (answer.is(u"Rotation")) {
      const Answer<double> angle =
          co_await input.angle({.text = u"Specify rotation angle",
                                .base = first.value,
                                .defaultValue = odgeNormalAngle(text.rotation())});
      text.setRotation(angle.value);
    }
  }
}

} // namespace

Task<void> multilineText(CommandContext& context) {
  OdDbDatabase& database = context.database();
  const OdDbMTextPtr text = odrxMake<OdDbMText>();
  text->setDatabaseDefaults(database);
  context.print(translated(u"Current text style: \"%1\"  Text height: %2")
                    .arg(recordName(text->textStyle()), shownReal(text->textHeight())));
  co_await askFrame(context, *text);
  QStringList lines;
  for (;;) {
    const Answer<OdString> line = co_await context.input().string(
        {.text = u"MText", .allowBlanks = true, .allowEmpty = true});
    if (line.isEmpty() || line.value.isEmpty()) break;
    lines << line.value;
  }
  if (lines.isEmpty()) co_return;
  text->setContents(lines.join(QStringLiteral("\\P")));
  addToCurrentSpace(database, *text);
}

} // namespace drafton
