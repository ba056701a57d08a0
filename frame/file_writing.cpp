#include "frame/file_writing.h"

#include <QFileDevice>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#endif

void odpath::startWriting(const QFileDevice& file, qint64 from, qint64 size) {
#ifdef Q_OS_LINUX
  ::sync_file_range(file.handle(), from, size, SYNC_FILE_RANGE_WRITE);
#else
  Q_UNUSED(file);
  Q_UNUSED(from);
  Q_UNUSED(size);
#endif
}
