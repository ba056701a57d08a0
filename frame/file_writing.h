// Files on their way to the disk.
#pragma once

#include <QtGlobal>

class QFileDevice;

namespace odpath {

/// Has the system begin to bring bytes of the file to its disk, which otherwise begins when the
/// file is closed or much later. Whoever waits for the disk in the end then waits less. Nothing is
/// promised, and errors are told in the end.
void startWriting(const QFileDevice& file, qint64 from, qint64 size);

} // namespace odpath
