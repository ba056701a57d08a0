// The id of a catalog item.
#pragma once

#include "frame/system_services.h"

namespace tc {

/// Counts the changes of ids that somebody has seen. An index over ids is good as long as the count
/// stands still; ids that are set before anyone asked for them, as a file's are, do not disturb it.
class OdTcIdEpoch {
 public:
  static unsigned current() { return s_epoch; }
  static void advance() { ++s_epoch; }

 private:
  inline static unsigned s_epoch = 0;
};

/// An id that is made when it is first asked for, unless one was set before. Making ids is the
/// costliest part of making an item, and items that are read from a file bring their own.
class OdTcItemId {
 public:
  OdTcItemId() = default;
  /// Starts with a given text, without a fresh id.
  explicit OdTcItemId(const OdString& text)
    : m_text(text)
    , m_isSet(true) {}

  const OdString& get() const {
    if (!m_isSet) {
      m_text = odrxSystemServices()->createGuid();
      m_isSet = true;
    }
    m_isSeen = true;
    return m_text;
  }
  void set(const OdString& text) {
    if (m_isSeen) OdTcIdEpoch::advance();
    m_text = text;
    m_isSet = true;
  }

 private:
  mutable OdString m_text;
  mutable bool m_isSet = false;
  mutable bool m_isSeen = false;
};

} // namespace tc
