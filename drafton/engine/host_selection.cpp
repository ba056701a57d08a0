#include "drafton/engine/host_selection.h"

#include "drafton/engine/engine.h"
#include "drafton/engine/mem_param.h"

namespace drafton {

std::vector<OdDbObjectId> HostSelection::choose(IHostDocument& document) {
  Engine* const engine = Engine::current();
  Document* const current = engine ? engine->documents().current() : nullptr;
  if (!current || current != &document) return {};
  const KVPtr<MemParam> answer = kvMake<MemParam>();
  const bool isDone = current->processor().run(QStringLiteral("SELECT"), answer.get());
  OdVariant count;
  // Without a choice the latest one stays for "Previous".
  if (!isDone || !answer->value(QStringLiteral("Count"), count) || count.toInt32() == 0) return {};
  return current->previousSelection();
}

} // namespace drafton
