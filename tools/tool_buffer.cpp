#include "tools/tool_buffer.h"

namespace tc {

static OdTcToolBufferPtr g_buffer;

OdTcToolBuffer* OdTcToolBuffer::instance() { return g_buffer; }

void OdTcToolBuffer::setInstance(const OdTcToolBufferPtr& buffer) { g_buffer = buffer; }

} // namespace tc
