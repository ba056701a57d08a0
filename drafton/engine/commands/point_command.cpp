// POINT.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/value_parser.h"
#include "drawing/entities/point.h"

namespace drafton {

Task<void> point(CommandContext& context) {
  OdDbDatabase& database = context.database();
  context.print(translated(u"Current point modes:  PDMODE=%1  PDSIZE=%2")
                    .arg(database.sysVarInt("PDMODE"))
                    .arg(shownReal(database.sysVarReal("PDSIZE"))));
  const Answer<OdGePoint3d> place = co_await context.input().point({.text = u"Specify a point"});
  const OdDbPointPtr made = odrxMake<OdDbPoint>(place.value);
  addNewThickEntity(database, *made);
}

} // namespace drafton
