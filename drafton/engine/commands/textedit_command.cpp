// TEXTEDIT.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/command_steps.h"
#include "drafton/engine/document.h"
#include "drafton/engine/edited_texts.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"

namespace drafton {
namespace {

Task<void> edit(CommandContext& context, EditedText edited) {
  for (;;) {
    const Answer<OdString> answer =
        co_await context.input().string({.text = QStringView(edited.question),
                                         .allowBlanks = true,
                                         .defaultValue = QStringView(edited.now),
                                         .edits = edited.form,
                                         .place = edited.place});
    const OdString fault = editingFault(edited, answer.value);
    if (fault.isEmpty()) {
      setEditedText(edited, answer.value);
      co_return;
    }
    context.print(fault);
  }
}

Task<void> editAll(CommandContext& context, std::vector<EditedText> texts) {
  for (const EditedText& edited : texts) co_await edit(context, edited);
}

/// The texts of the one entity that was chosen before, at the cursor of a window.
std::vector<EditedText> preselected(CommandContext& context) {
  const Selection before = takePreselection(context);
  if (before.size() != 1) return {};
  return editedTexts(before.front(), context.document().processor().cursor(),
                     SelectionPicker(context.document()).reach());
}

} // namespace

Task<void> editText(CommandContext& context) {
  if (const std::vector<EditedText> texts = preselected(context); !texts.empty()) {
    co_await editAll(context, texts);
    co_return;
  }
  const double reach = SelectionPicker(context.document()).reach();
  std::vector<OdDbUndoMark> marks;
  for (;;) {
    const PickedEntity picked = co_await selectEntity(context, u"Select text to edit", u"Undo");
    if (picked.keyword == QLatin1String("Undo")) {
      takeBackStep(context, marks);
    } else if (picked.id.isNull()) {
      co_return;
    } else if (const auto texts = editedTexts(
                   picked.id, picked.isPointed ? std::optional(picked.point) : std::nullopt, reach);
               texts.empty()) {
      context.print(translated(u"The object has no text of its own."));
    } else {
      marks.push_back(context.database().undoMark());
      co_await editAll(context, texts);
    }
  }
}

} // namespace drafton
