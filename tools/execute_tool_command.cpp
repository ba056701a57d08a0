#include "tools/execute_tool_command.h"

#include "host/host_locator.h"
#include "host/user_input.h"
#include "tools/deferred_command.h"

namespace tc {
namespace {

/// How the word is read: blanks, case and emptiness are the typist's.
constexpr unsigned kInputFlags =
    IHostUserInput::kAllowBlanks | IHostUserInput::kKeepCase | IHostUserInput::kAllowEmpty;

struct Row {
  DeferredKind kind;
  void (*run)();
};

constexpr Row kRows[] = {
    {DeferredKind::kBlock, insertRequestedBlock},
    {DeferredKind::kXref, attachRequestedXref},
    {DeferredKind::kRaster, insertRequestedRaster},
};

} // namespace

OdString deferredWordOf(const OdString& typed) {
  OdString word = typed;
  word.remove(QLatin1Char('"'));
  while (!word.isEmpty() && word.back().isSpace()) word.chop(1);
  return word.remove(QLatin1Char('<')).remove(QLatin1Char('>'));
}

void executeToolCommand() {
  IHostDocument* const document = host::curDocument();
  IHostUserInput* const input = document ? document->userInput() : nullptr;
  if (!input) return;
  OdString typed;
  if (input->getString(kInputFlags, OdString(), typed) != IHostUserInput::Result::kValue) return;
  const OdString word = deferredWordOf(typed);
  for (const Row& row : kRows)
    if (word == QStringView(deferredWord(row.kind))) return row.run();
}

} // namespace tc
