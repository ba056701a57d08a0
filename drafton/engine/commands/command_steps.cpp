#include "drafton/engine/commands/command_steps.h"

#include "drafton/engine/translator.h"

namespace drafton {

void takeBackStep(CommandContext& context, std::vector<OdDbUndoMark>& marks) {
  if (marks.empty()) return context.print(translated(u"There is nothing to undo."));
  context.database().rollbackTo(marks.back());
  marks.pop_back();
}

} // namespace drafton
