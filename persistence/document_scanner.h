// Walks the markup of a document without a stack.
#pragma once

#include "frame/string.h"
#include "persistence/document_check.h"

#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace tc {

/// Reads tags, comments, CDATA sections and declarations as the parser does, and stops at the first
/// thing that the parser would stumble over. What it has passed can be parsed in bounded depth.
class OdTcDocumentScanner {
 public:
  struct Remark {
    qsizetype offset;
    OdString text;
  };

  /// `text` is valid UTF-8 without NUL. It must live as long, as must what the others refer to.
  explicit OdTcDocumentScanner(const QByteArray& text, const OdTcPassedOver* passedOver = nullptr,
                               const OdTcDeferral& deferral = {});

  /// False if the document is not well-formed: see failure() and failedAt().
  bool scan();
  const OdString& failure() const { return m_failure; }
  qsizetype failedAt() const { return m_failedAt; }
  /// How many elements stood in one another at most.
  int deepest() const { return m_deepest; }
  /// At most one of each kind: the first.
  const std::vector<Remark>& remarks() const { return m_remarks; }
  /// The text with its references put right and without what is passed over or follows
  /// the last element.
  QByteArray takeText();
  /// False if the document turned out to be one of which nothing is to be deferred. The text is of
  /// no use then.
  bool canDefer() const { return m_canDefer; }
  std::vector<QByteArray> takeDeferred() { return std::move(m_deferred); }

 private:
  bool fail(const char* at, const OdString& why);
  bool failUnclosed();
  void remark(const char* at, bool& done, const OdString& text);

  bool scanMarkup();
  bool scanContent();
  bool scanElement();
  bool scanEndTag();
  bool scanAttributes(std::string_view name);
  bool scanAttribute(std::string_view element);
  bool cutDeclaration();
  bool scanPast(std::string_view what, std::size_t from, const char16_t* unfinished);
  std::string_view scanName();

  bool startsWith(std::string_view what) const;
  void skipBlanks();
  /// Looks at the references in a text or an attribute value.
  void checkReferences(const char* from, const char* to);
  const char* checkReference(const char* at, const char* to);
  const char* checkNumber(const char* at, const char* to);
  /// True if what stands in the innermost element that is open is to be left out.
  bool isPassedOver() const;
  void beginPassingOver();
  void endPassingOver(const char* at);
  void beginDeferring(std::string_view name);
  void checkDeferred(const char* tag);
  void checkDeferredChild(std::string_view name);
  void checkDeferredAttribute(std::string_view name);
  void endDeferring(const char* at);
  void replace(const char* at, const char* end, std::string_view by);

  const QByteArray& m_text;
  const char* const m_begin;
  const char* const m_end;
  const char* m_at;
  std::vector<std::string_view> m_open;
  int m_deepest = 0;

  // The mended text, as far as there was anything to mend; the rest is copied at the end.
  QByteArray m_mended;
  const char* m_copied;

  /// What may come out of the text: where it begins, how deep it stands, and what was mended before
  /// it.
  struct Passage {
    const char* from;
    std::size_t depth;
    qsizetype mended;
    const char* copied;
  };
  Passage passageFromHere() const { return {m_at, m_open.size(), m_mended.size(), m_copied}; }
  /// Puts `by` in the place of the text from the passage's beginning to `at`.
  void replacePassage(const Passage& passage, const char* at, std::string_view by);
  const OdTcPassedOver* const m_passedOver;
  std::optional<Passage> m_passage;

  const OdTcDeferral m_deferral;
  /// The content that is being deferred.
  struct Deferring {
    Passage passage;
    const OdTcPlainElement* element;
    unsigned attributes = 0; ///< of the child that is open: bit n for attribute number n
  };
  std::optional<Deferring> m_deferring;
  bool m_canDefer = true;
  std::vector<QByteArray> m_deferred;

  OdString m_failure;
  qsizetype m_failedAt = 0;
  std::vector<Remark> m_remarks;
  bool m_saidNumber = false;
  bool m_saidEntity = false;
};

} // namespace tc
