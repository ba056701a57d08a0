// LEADER.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/dimension_overrides.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/translator.h"
#include "drawing/entities/leader.h"
#include "drawing/entities/mtext.h"

namespace drafton {
namespace {

struct LeaderFormat {
  bool isSplined = false;
  bool hasArrow = true;
};

Task<void> askFormat(CommandContext& context, LeaderFormat& format) {
  const Answer<OdString> option =
      co_await context.input().keyword({.text = u"Enter leader format option",
                                        .keywords = u"Spline STraight Arrow None Exit",
                                        .defaultValue = u"Exit"});
  if (option.is(u"Spline")) format.isSplined = true;
  if (option.is(u"STraight")) format.isSplined = false;
  if (option.is(u"Arrow")) format.hasArrow = true;
  if (option.is(u"None")) format.hasArrow = false;
}

/// The corners of the line, from the arrow to the note.
Task<std::vector<OdGePoint3d>> askLine(CommandContext& context, LeaderFormat& format) {
  CommandInput& input = context.input();
  const Answer<OdGePoint3d> first = co_await input.point({.text = u"Specify leader start point"});
  std::vector<OdGePoint3d> points(1, first.value);
  for (;;) {
    const bool canEnd = points.size() >= 2;
    const QStringView keywords = canEnd ? u"Annotation Format Undo" : u"";
    const QStringView enter = canEnd ? u"Annotation" : u"";
    const Answer<OdGePoint3d> next = co_await input.point({.text = u"Specify next point",
                                                           .keywords = keywords,
                                                           .base = points.back(),
                                                           .enterText = enter});
    if (next.is(u"Annotation")) co_return points;
    if (next.is(u"Format")) co_await askFormat(context, format);
    if (next.is(u"Undo")) points.pop_back();
    if (next.isValue()) {
      if (next.value == points.back())
        context.print(translated(u"The two points must differ."));
      else
        points.push_back(next.value);
    }
    context.setLastPoint(points.back());
  }
}

Task<QStringList> askNote(CommandContext& context) {
  QStringList lines;
  for (;;) {
    const QStringView question = lines.isEmpty() ? u"Enter first line of annotation text"
                                                 : u"Enter next line of annotation text";
    const Answer<OdString> line = co_await context.input().string(
        {.text = question, .allowBlanks = true, .allowEmpty = true});
    if (line.isEmpty() || line.value.isEmpty()) co_return lines;
    lines << line.value;
  }
}

/// The text beside the end of a leader, on the side to which its last piece runs.
OdDbMTextPtr makeNote(const OdDbDatabase& database, const std::vector<OdGePoint3d>& points,
                      const QStringList& lines) {
  const OdDbMTextPtr note = odrxMake<OdDbMText>();
  note->setDatabaseDefaults(database);
  const double scale = database.sysVarReal("DIMSCALE");
  const double size = scale > 0 ? scale : 1;
  const double height = database.sysVarReal("DIMTXT") * size;
  if (height > 0) note->setTextHeight(height);
  note->setContents(lines.join(QStringLiteral("\\P")));
  const OdGePoint3d end = points.back();
  const bool toTheRight = end.x >= points[points.size() - 2].x;
  const double hook = (database.sysVarReal("DIMASZ") + database.sysVarReal("DIMGAP")) * size;
  note->setAttachment(toTheRight ? OdDbMText::kMiddleLeft : OdDbMText::kMiddleRight);
  note->setLocation(end + OdGeVector3d::xAxis() * (toTheRight ? hook : -hook));
  return note;
}

} // namespace

Task<void> leader(CommandContext& context) {
  OdDbDatabase& database = context.database();
  LeaderFormat format;
  const std::vector<OdGePoint3d> points = co_await askLine(context, format);
  const QStringList lines = co_await askNote(context);
  const OdDbLeaderPtr made = odrxMake<OdDbLeader>();
  made->setDatabaseDefaults(database);
  for (const OdGePoint3d& point : points) made->appendVertex(point);
  made->setSplined(format.isSplined);
  made->setHasArrowHead(format.hasArrow);
  addToCurrentSpace(database, *made);
  takeCurrentDimensionStyle(database, *made);
  if (lines.isEmpty()) co_return;
  const OdDbMTextPtr note = makeNote(database, points, lines);
  made->setHasHookLine(true);
  made->attachAnnotation(addToCurrentSpace(database, *note), OdDbLeader::kMText);
}

} // namespace drafton
