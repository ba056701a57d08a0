// How a file looked at one time.
#pragma once

#include "frame/string.h"

#include <QDateTime>

/// What changes when a file is written or replaced.
struct OdDbFileStamp {
  OdString path; ///< as the host gives it; empty for none
  qint64 size = -1;
  QDateTime modified;

  /// As it is now; without size and time if there is no such file.
  static OdDbFileStamp of(const OdString& path);
  bool operator==(const OdDbFileStamp&) const = default;
};
