// A clock that stands still.
#pragma once

#include <QByteArray>

namespace testhost {

/// The clock of all programs stands still while this is there; its hands may be moved.
class HeldClock {
 public:
  explicit HeldClock(qint64 seconds) { moveTo(seconds); }
  HeldClock(const HeldClock&) = delete;
  HeldClock& operator=(const HeldClock&) = delete;
  ~HeldClock() { qunsetenv("SOURCE_DATE_EPOCH"); }
  /// `seconds` since the beginning of 1970, UTC.
  void moveTo(qint64 seconds) { qputenv("SOURCE_DATE_EPOCH", QByteArray::number(seconds)); }
};

} // namespace testhost
