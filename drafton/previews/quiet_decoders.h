// What decoders of pictures print.
#pragma once

namespace drafton {

/// Keeps Qt's decoders from printing what they think of a picture: they do not name its file. Who
/// asks for the picture tells the user, by its name. `QT_LOGGING_RULES` in the environment brings
/// their lines back. Call it at the start of a program.
void quietDecoders();

} // namespace drafton
