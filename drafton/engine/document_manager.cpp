#include "drafton/engine/document_manager.h"

#include "drafton/engine/blocks/reference_reports.h"
#include "drafton/engine/engine.h"
#include "frame/file_path.h"

#include <algorithm>

namespace drafton {

DocumentManager::~DocumentManager() = default;

bool DocumentManager::lockDocument(IHostDocument* document, int, const OdString& commandName, void*,
                                   int) {
  for (const auto& open : m_documents)
    if (open.get() == document) return open->lock(commandName);
  return false;
}

void DocumentManager::unlockDocument(IHostDocument* document) {
  for (const auto& open : m_documents)
    if (open.get() == document) return open->unlock();
}

Document* DocumentManager::find(const OdString& path) const {
  for (const auto& open : m_documents)
    if (!open->path().isEmpty() && odpath::samePlace(open->path(), path)) return open.get();
  return nullptr;
}

Document& DocumentManager::add(std::unique_ptr<Document> document) {
  m_documents.push_back(std::move(document));
  Document& added = *m_documents.back();
  activate(added);
  return added;
}

Document& DocumentManager::newDocument() {
  return add(std::make_unique<Document>(m_engine, OdDbDatabase::createDatabase(),
                                        QStringLiteral("Drawing%1.dxf").arg(++m_lastNumber)));
}

Document& DocumentManager::open(const OdString& path) {
  if (Document* const known = find(path)) {
    activate(*known);
    return *known;
  }
  OdDbDatabasePtr database = OdDbDatabase::readFile(path);
  const std::vector<OdDbXRefMan::Report> references = OdDbXRefMan::loadAll(*database);
  Document& opened = add(std::make_unique<Document>(m_engine, std::move(database), OdString()));
  tellDamage(opened);
  for (const OdDbXRefMan::Report& reference : references)
    if (reference.result != OdDbXRefMan::Result::kLoaded) m_engine.print(reportLine(reference));
  return opened;
}

void DocumentManager::tellDamage(const Document& document) {
  // They name the file themselves.
  for (const OdString& note : document.notes()) m_engine.print(note);
  const QStringList lost = document.lostBySaving();
  if (lost.isEmpty()) return;
  m_engine.print(translated(u"%1 holds content that Drafton does not understand: %2.")
                     .arg(document.name(), lost.join(QStringLiteral(", "))));
  m_engine.print(translated(u"It is open for reading; it can be saved under another name only."));
}

void DocumentManager::activate(Document& document) {
  const auto at = std::find_if(m_documents.begin(), m_documents.end(),
                               [&](const auto& d) { return d.get() == &document; });
  if (at == m_documents.end()) return;
  std::rotate(at, at + 1, m_documents.end());
  if (m_current == &document) return;
  m_current = &document;
  m_engine.events().fire([&](HostEditorReactor& r) { r.documentActivated(&document); });
}

bool DocumentManager::isOpen(const Document* document) const {
  return std::ranges::any_of(m_documents, [&](const auto& d) { return d.get() == document; });
}

void DocumentManager::withCurrent(Document& document, const std::function<void()>& act) {
  Document* const former = m_current;
  if (&document == former || !isOpen(&document)) return act();
  m_current = &document;
  act();
  if (m_current != &document) return; // a reactor has activated one, or closed this one
  m_current = nullptr;
  if (isOpen(former))
    m_current = former;
  else if (!m_documents.empty())
    activate(*m_documents.back());
}

void DocumentManager::close(Document& document) {
  const auto at = std::find_if(m_documents.begin(), m_documents.end(),
                               [&](const auto& d) { return d.get() == &document; });
  if (at == m_documents.end()) return;
  // Commands that wait in it are ended; the one that closes it is on the stack and goes on.
  if (document.processor().isWaiting()) document.processor().cancel();
  m_engine.events().fire([&](HostEditorReactor& r) { r.documentToBeDestroyed(&document); });
  document.beginClosing();
  const auto now = std::find_if(m_documents.begin(), m_documents.end(),
                                [&](const auto& d) { return d.get() == &document; });
  if (now == m_documents.end()) return; // a reactor closed it
  m_closed.push_back(std::move(*now));
  m_documents.erase(now);
  if (m_current != &document) return;
  m_current = nullptr;
  if (!m_documents.empty()) activate(*m_documents.back());
}

void DocumentManager::buryClosed() {
  std::erase_if(m_closed, [](const auto& document) { return !document->processor().isBusy(); });
}

} // namespace drafton
