// Holding a document for changes.
#pragma once

#include "host/host_locator.h"

/// Holds a document's write lock, under the name of the command that carries tools out, for as long
/// as it lives. A host without documents has nothing to lock.
class HostDocumentLock {
 public:
  explicit HostDocumentLock(IHostDocument* document)
    : m_manager(host::documentManager())
    , m_document(document)
    , m_isRefused(m_manager && !m_manager->lockDocument(
                                   document, IHostDocumentManager::kWriteLock,
                                   host::ownText(QStringLiteral("EXECUTETOOL")), nullptr, 1)) {}
  HostDocumentLock(const HostDocumentLock&) = delete;
  HostDocumentLock& operator=(const HostDocumentLock&) = delete;
  ~HostDocumentLock() {
    if (m_manager && !m_isRefused) m_manager->unlockDocument(m_document);
  }
  bool isRefused() const { return m_isRefused; }

 private:
  IHostDocumentManager* m_manager;
  IHostDocument* m_document;
  bool m_isRefused;
};
