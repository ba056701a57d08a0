#include "frame/file_lock.h"

#include "frame/file_path.h"

#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

bool odpath::isLockedByOthers(const OdString& path) {
  // A pipe without a writer would keep us waiting.
  const int file =
      ::open(QFile::encodeName(toPlatform(path)).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (file < 0) return false;
  // There are two kinds of locks, which know nothing of each other.
  struct flock wanted = {};
  wanted.l_type = F_RDLCK;
  wanted.l_whence = SEEK_SET;
  const bool ofRange = ::fcntl(file, F_OFD_GETLK, &wanted) == 0 && wanted.l_type == F_WRLCK;
  const bool ofFile = ::flock(file, LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
  ::close(file);
  return ofRange || ofFile;
}
