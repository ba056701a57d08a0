// The rows of the element table.
#pragma once

namespace tc {

class OdTcElementTable;

/// Enters every element with its class, in order.
void enterElementRows(OdTcElementTable& table);

} // namespace tc
