// Foreign tools with a pop-up menu of commands.
#pragma once

namespace tc {

class OdTcToolImpl;

/// Turns a tool that has custom data and a flyout into a regular tool that runs one command: the
/// one by which the host adds an object of the class that the custom data names. The user is told
/// once that such tools change, and of each tool that did. If the host does not know the class or
/// the command, the tool stays as it is.
void convertMultitool(OdTcToolImpl& tool);

} // namespace tc
