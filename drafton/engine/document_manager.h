// All open drawings.
#pragma once

#include "drafton/engine/document.h"

#include <functional>

namespace drafton {

/// Opens, activates and closes documents. A closed document lives on, without a drawing, until
/// nothing of it runs any more.
class DocumentManager : public IHostDocumentManager {
 public:
  explicit DocumentManager(Engine& engine)
    : m_engine(engine) {}
  ~DocumentManager();

  IHostDocument* curDocument() override { return m_current; }
  bool lockDocument(IHostDocument* document, int mode, const OdString& commandName, void* reserved,
                    int flag) override;
  void unlockDocument(IHostDocument* document) override;

  Document* current() const { return m_current; }
  const std::vector<std::unique_ptr<Document>>& documents() const { return m_documents; }
  /// The open document of a file, or null.
  Document* find(const OdString& path) const;

  /// A new drawing, which becomes the active one.
  Document& newDocument();
  /// Reads a drawing, which becomes the active one; one that is open already is only activated.
  /// What was mended or not understood is told on the command line. Raises OdFileError.
  Document& open(const OdString& path);
  void activate(Document& document);
  /// Calls `act` with an open document as the current one, of which nobody is told: what happens in
  /// a document behind the active one is told by events, and reactors compare the current one.
  void withCurrent(Document& document, const std::function<void()>& act);
  /// Closes without asking. The document that was active before becomes the active one.
  void close(Document& document);

  /// Destroys what was closed and does not run any more.
  void buryClosed();

 private:
  bool isOpen(const Document* document) const;
  Document& add(std::unique_ptr<Document> document);
  void tellDamage(const Document& document);

  Engine& m_engine;
  std::vector<std::unique_ptr<Document>> m_documents; // the one used last stands last
  std::vector<std::unique_ptr<Document>> m_closed;
  Document* m_current = nullptr;
  int m_lastNumber = 0;
};

} // namespace drafton
