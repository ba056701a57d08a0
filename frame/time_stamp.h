// Points in time.
#pragma once

#include "frame/string.h"

#include <QDateTime>

/// A point in time, kept in UTC with a resolution of a millisecond.
class OdTimeStamp {
 public:
  OdTimeStamp() = default;
  explicit OdTimeStamp(const QDateTime& time)
    : m_time(time.toUTC()) {}

  bool isValid() const { return m_time.isValid(); }
  const QDateTime& universalTime() const { return m_time; }
  /// ISO 8601 in UTC to the second: "2026-11-21T02:00:00Z"; empty if not valid.
  OdString toText() const { return m_time.isValid() ? m_time.toString(Qt::ISODate) : OdString(); }

 private:
  QDateTime m_time;
};
