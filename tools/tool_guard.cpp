#include "tools/tool_guard.h"

namespace tc {

static IToolGuard* g_guard = nullptr;

IToolGuard* IToolGuard::instance() { return g_guard; }

void IToolGuard::setInstance(IToolGuard* guard) { g_guard = guard; }

} // namespace tc
