#include "catalog/unread_file.h"

#include "frame/file_path.h"
#include "persistence/unread_original.h"

namespace tc {

void UnreadFile::note(const OdString& path, const OdString& reason) {
  m_path = path;
  m_reason = reason;
  m_isKept = false;
}

bool UnreadFile::isAt(const OdString& path) const {
  return !m_reason.isEmpty() && odpath::samePlace(path, m_path);
}

void UnreadFile::keepBefore(const OdString& target) {
  if (m_isKept || !isAt(target)) return;
  keepUnreadOriginal(target);
  m_isKept = true;
}

void UnreadFile::noteWritten(const OdString& target) {
  if (isAt(target)) note(target, OdString());
}

} // namespace tc
