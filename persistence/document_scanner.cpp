#include "persistence/document_scanner.h"

#include "host/host_locator.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

namespace tc {
namespace {

/// A piece is kept as it stands, and is to take no more memory than what it says.
constexpr std::ptrdiff_t kMostDeferredBlanks = 256;
constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
constexpr std::string_view kEntities[] = {"&amp;", "&lt;", "&gt;", "&quot;", "&apos;"};
// The parser passes over these as if they were blanks: the byte-order mark and two numbers that are
// no characters.
constexpr std::string_view kIgnored[] = {"\xEF\xBB\xBF", "\xEF\xBF\xBE", "\xEF\xBF\xBF"};

// As the parser has it: every character beyond ASCII is a letter.
bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) >= 127;
}
bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isNameStart(char c) { return isLetter(c) || c == '_'; }
bool isNamePart(char c) { return isNameStart(c) || isDigit(c) || c == '-' || c == '.' || c == ':'; }
bool isBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
bool isQuote(char c) { return c == '"' || c == '\''; }

int digitOf(char c) {
  if (isDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

const char* findChar(const char* from, const char* to, char c) {
  const void* found = std::memchr(from, c, static_cast<std::size_t>(to - from));
  return found ? static_cast<const char*>(found) : to;
}

std::string_view between(const char* from, const char* to) {
  return {from, static_cast<std::size_t>(to - from)};
}

OdString shortName(std::string_view name) {
  constexpr std::size_t kLongest = 60;
  const auto text =
      OdString::fromUtf8(name.data(), static_cast<qsizetype>(std::min(name.size(), kLongest)));
  return name.size() > kLongest ? text + QStringLiteral("...") : text;
}

OdString tr(const QString& text) { return host::translate(text); }

} // namespace

OdTcDocumentScanner::OdTcDocumentScanner(const QByteArray& text, const OdTcPassedOver* passedOver,
                                         const OdTcDeferral& deferral)
  : m_text(text)
  , m_begin(text.constData())
  , m_end(m_begin + text.size())
  , m_at(m_begin)
  , m_copied(m_begin)
  , m_passedOver(passedOver)
  , m_deferral(deferral) {}

bool OdTcDocumentScanner::fail(const char* at, const OdString& why) {
  m_failure = why;
  m_failedAt = at - m_begin;
  return false;
}

void OdTcDocumentScanner::remark(const char* at, bool& done, const OdString& text) {
  if (!std::exchange(done, true)) m_remarks.push_back({at - m_begin, text});
}

bool OdTcDocumentScanner::startsWith(std::string_view what) const {
  return between(m_at, m_end).starts_with(what);
}

void OdTcDocumentScanner::skipBlanks() {
  const auto skipIgnored = [this] {
    for (const std::string_view ignored : kIgnored) {
      if (!startsWith(ignored)) continue;
      m_at += ignored.size();
      return true;
    }
    return false;
  };
  while (m_at != m_end && (isBlank(*m_at) || (*m_at == '\xEF' && skipIgnored())))
    if (isBlank(*m_at)) ++m_at;
}

bool OdTcDocumentScanner::scan() {
  for (;;) {
    if (!m_open.empty()) {
      if (!scanContent()) return false;
      continue;
    }
    skipBlanks();
    if (m_at == m_end || *m_at != '<') break;
    if (!scanMarkup()) return false;
  }
  if (m_deepest == 0) return fail(m_at, tr(QStringLiteral("this is no XML: there is no element")));
  bool said = false;
  if (m_at != m_end)
    remark(m_at, said, tr(QStringLiteral("the text that follows the last element is left out")));
  return true;
}

QByteArray OdTcDocumentScanner::takeText() {
  if (m_copied == m_begin && m_at == m_end) return m_text;
  replace(m_at, m_at, {});
  return std::move(m_mended);
}

bool OdTcDocumentScanner::scanContent() {
  const char* const tag = findChar(m_at, m_end, '<');
  if (tag == m_end) return failUnclosed();
  if (m_deferring) checkDeferred(tag);
  checkReferences(m_at, tag);
  m_at = tag;
  return scanMarkup();
}

bool OdTcDocumentScanner::failUnclosed() {
  return fail(m_end,
              tr(QStringLiteral("the element \"%1\" is not closed")).arg(shortName(m_open.back())));
}

bool OdTcDocumentScanner::scanMarkup() {
  if (startsWith("</")) return scanEndTag();
  const bool isElement = m_end - m_at > 1 && isNameStart(m_at[1]);
  if (m_deferring && !isElement) m_canDefer = false;
  if (m_end - m_at >= 5 && qstrnicmp(m_at, "<?xml", 5) == 0) return cutDeclaration();
  if (startsWith("<!--")) return scanPast("-->", 4, u"the comment does not end");
  if (startsWith("<![CDATA[")) return scanPast("]]>", 9, u"the CDATA section does not end");
  if (isElement) {
    if (m_passedOver && !m_passage && isPassedOver()) beginPassingOver();
    return scanElement();
  }
  return scanPast(">", 1, u"the tag does not end");
}

bool OdTcDocumentScanner::scanPast(std::string_view what, std::size_t from,
                                   const char16_t* unfinished) {
  const std::string_view rest = between(m_at, m_end);
  const std::size_t found = rest.find(what, from);
  if (found == std::string_view::npos) return fail(m_at, tr(OdString::fromUtf16(unfinished)));
  m_at += found + what.size();
  return true;
}

bool OdTcDocumentScanner::cutDeclaration() {
  // The parser reads some values of a declaration and passes over others, quotes and all, so that
  // it may find its end elsewhere. Nothing of it is needed: it is cut out.
  char quote = 0;
  for (const char* p = m_at + 5; p != m_end; ++p) {
    if (*p == '>' && !quote) {
      replace(m_at, p + 1, {});
      m_at = p + 1;
      return true;
    }
    if (quote ? *p == quote : isQuote(*p)) quote = quote ? '\0' : *p;
  }
  return fail(m_at, tr(QStringLiteral("the XML declaration does not end")));
}

std::string_view OdTcDocumentScanner::scanName() {
  const char* const start = m_at;
  if (m_at != m_end && isNameStart(*m_at))
    while (m_at != m_end && isNamePart(*m_at)) ++m_at;
  return between(start, m_at);
}

bool OdTcDocumentScanner::scanEndTag() {
  const char* const start = m_at;
  m_at += 2;
  const std::string_view name = scanName();
  if (m_open.empty())
    return fail(start,
                tr(QStringLiteral("\"%1\" is closed but was not opened")).arg(shortName(name)));
  if (m_at == m_end) return failUnclosed();
  if (name != m_open.back())
    return fail(start, tr(QStringLiteral("the element \"%1\" is closed as \"%2\""))
                           .arg(shortName(m_open.back()), shortName(name)));
  skipBlanks();
  if (m_at == m_end || *m_at != '>')
    return fail(m_at,
                tr(QStringLiteral("the end of the element \"%1\" is broken")).arg(shortName(name)));
  ++m_at;
  if (m_passage && m_passage->depth == m_open.size()) endPassingOver(start);
  if (m_deferring && m_deferring->passage.depth == m_open.size()) endDeferring(start);
  m_open.pop_back();
  return true;
}

bool OdTcDocumentScanner::scanElement() {
  if (m_open.size() >= static_cast<std::size_t>(kMaxElementDepth))
    return fail(m_at,
                tr(QStringLiteral("elements are nested more than %1 deep")).arg(kMaxElementDepth));
  m_deepest = std::max(m_deepest, static_cast<int>(m_open.size()) + 1);
  ++m_at;
  const std::string_view name = scanName();
  if (!m_deferral.elements.empty() && name == m_deferral.unlessThereIs) m_canDefer = false;
  if (m_deferring) checkDeferredChild(name);
  return scanAttributes(name);
}

bool OdTcDocumentScanner::scanAttributes(std::string_view name) {
  for (int count = 0;; ++count) {
    skipBlanks();
    if (m_at == m_end) break;
    if (*m_at == '>') {
      ++m_at;
      m_open.push_back(name);
      beginDeferring(name);
      return true;
    }
    if (*m_at == '/') {
      if (!startsWith("/>")) break;
      m_at += 2;
      return true;
    }
    if (count == kMaxAttributes)
      return fail(m_at, tr(QStringLiteral("the element \"%1\" has more than %2 attributes"))
                            .arg(shortName(name))
                            .arg(kMaxAttributes));
    if (!scanAttribute(name)) return false;
  }
  return fail(
      m_at, tr(QStringLiteral("the tag of the element \"%1\" does not end")).arg(shortName(name)));
}

bool OdTcDocumentScanner::scanAttribute(std::string_view element) {
  const char* const start = m_at;
  const auto broken = [&] {
    return fail(
        start,
        tr(QStringLiteral("an attribute of the element \"%1\" is broken")).arg(shortName(element)));
  };
  const std::string_view name = scanName();
  if (name.empty()) return broken();
  if (m_deferring) checkDeferredAttribute(name);
  skipBlanks();
  if (m_at == m_end || *m_at != '=') return broken();
  ++m_at;
  skipBlanks();
  if (m_at == m_end) return broken();
  if (isQuote(*m_at)) {
    const char* const value = m_at + 1;
    const char* const close = findChar(value, m_end, *m_at);
    if (close == m_end) return broken();
    checkReferences(value, close);
    m_at = close + 1;
    return true;
  }
  // Without quotes a value goes up to the next blank or the end of the tag, references and all.
  for (; m_at != m_end && !isBlank(*m_at) && *m_at != '/' && *m_at != '>'; ++m_at)
    if (isQuote(*m_at)) return broken();
  return true;
}

void OdTcDocumentScanner::checkReferences(const char* from, const char* to) {
  for (const char* p = findChar(from, to, '&'); p != to; p = findChar(p, to, '&'))
    p = checkReference(p, to);
}

const char* OdTcDocumentScanner::checkReference(const char* at, const char* to) {
  const std::string_view rest = between(at, to);
  if (rest.starts_with("&#")) return checkNumber(at, to);
  for (const std::string_view entity : kEntities)
    if (rest.starts_with(entity)) return at + entity.size();
  const char* end = at + 1;
  if (end != to && isNameStart(*end))
    while (end != to && isNamePart(*end)) ++end;
  if (end != at + 1 && end != to && *end == ';')
    remark(at, m_saidEntity,
           tr(QStringLiteral("the entity \"%1\" is not known and stands as it is"))
               .arg(shortName(between(at, end + 1))));
  replace(at, at + 1, "&amp;");
  return end;
}

const char* OdTcDocumentScanner::checkNumber(const char* at, const char* to) {
  const char* p = at + 2;
  const bool hex = p != to && *p == 'x';
  if (hex) ++p;
  const char* const digits = p;
  constexpr unsigned kBeyond = 0x110000;
  unsigned number = 0;
  for (; p != to; ++p) {
    const int digit = digitOf(*p);
    if (digit < 0 || (digit > 9 && !hex)) break;
    number = std::min(number * (hex ? 16u : 10u) + static_cast<unsigned>(digit), kBeyond);
  }
  if (p == digits || p == to || *p != ';') {
    replace(at, at + 1, "&amp;");
    return p;
  }
  ++p;
  if (number == 0 || number >= kBeyond || (number >= 0xD800 && number <= 0xDFFF)) {
    remark(at, m_saidNumber,
           tr(QStringLiteral("there is no character \"%1\"")).arg(shortName(between(at, p))));
    replace(at, p, kReplacement);
  }
  return p;
}

bool OdTcDocumentScanner::isPassedOver() const {
  const auto holds = [](const auto& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
  };
  return !m_open.empty() && holds(m_passedOver->elements, m_open.back()) &&
         holds(m_open, m_passedOver->inside);
}

void OdTcDocumentScanner::beginPassingOver() { m_passage = passageFromHere(); }

void OdTcDocumentScanner::endPassingOver(const char* at) {
  const Passage passage = *std::exchange(m_passage, std::nullopt);
  const std::string_view inside = between(passage.from, at);
  for (const std::string_view text : m_passedOver->unlessTheyHold)
    if (inside.find(text) != std::string_view::npos) return;
  replacePassage(passage, at, {});
}

void OdTcDocumentScanner::beginDeferring(std::string_view name) {
  if (m_deferring) m_canDefer = false; // a child with a content of its own
  if (!m_canDefer) return;
  for (const OdTcPlainElement& element : m_deferral.elements)
    if (name == element.name) m_deferring = Deferring{passageFromHere(), &element};
}

void OdTcDocumentScanner::checkDeferred(const char* tag) {
  if (tag - m_at > kMostDeferredBlanks || !std::all_of(m_at, tag, isBlank)) m_canDefer = false;
}

void OdTcDocumentScanner::checkDeferredChild(std::string_view name) {
  if (name != m_deferring->element->child) m_canDefer = false;
  m_deferring->attributes = 0;
}

void OdTcDocumentScanner::checkDeferredAttribute(std::string_view name) {
  const auto& known = m_deferring->element->attributes;
  const auto at = std::find(known.begin(), known.end(), name);
  const unsigned bit = 1u << (at - known.begin());
  if (at == known.end() || (m_deferring->attributes & bit)) m_canDefer = false;
  m_deferring->attributes |= bit;
}

void OdTcDocumentScanner::endDeferring(const char* at) {
  const Passage passage = std::exchange(m_deferring, std::nullopt)->passage;
  if (std::all_of(passage.from, at, isBlank)) return;
  replacePassage(passage, at, std::to_string(m_deferred.size()));
  m_deferred.emplace_back(passage.from, at - passage.from);
}

void OdTcDocumentScanner::replacePassage(const Passage& passage, const char* at,
                                         std::string_view by) {
  m_mended.truncate(passage.mended);
  m_copied = passage.copied;
  replace(passage.from, at, by);
}

void OdTcDocumentScanner::replace(const char* at, const char* end, std::string_view by) {
  m_mended.append(m_copied, at - m_copied);
  m_mended.append(by.data(), static_cast<qsizetype>(by.size()));
  m_copied = end;
}

} // namespace tc
