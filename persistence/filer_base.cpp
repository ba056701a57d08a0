#include "persistence/filer_base.h"

#include "host/host_locator.h"
#include "persistence/unread_original.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <utility>

namespace tc {
namespace {

// Documents of the field know some hundreds of names; one of a hostile maker must not fill the
// memory with them.
constexpr std::size_t kMaxKeptNames = 4096;

/// A stream counts in 32 bits.
constexpr std::size_t kPieceToWrite = std::size_t{1} << 20;

QByteArray readAll(OdStreamBuf* stream) {
  const std::uint64_t length = stream->length();
  if (length > static_cast<std::uint64_t>(kMaxDocumentBytes))
    throw OdFileError(eFileAccess, stream->fileName(),
                      host::translate(QStringLiteral("the file is larger than %1 MB"))
                          .arg(kMaxDocumentBytes >> 20));
  QByteArray bytes(static_cast<qsizetype>(length), Qt::Uninitialized);
  stream->getBytes(bytes.data(), static_cast<std::uint32_t>(length));
  return bytes;
}

/// While it lives, the parser keeps white space in texts as it is: it is the user's, and macros
/// hold line breaks and runs of blanks. The switch is one for the whole process, which others parse
/// in.
class KeptWhiteSpace {
 public:
  KeptWhiteSpace() { TiXmlBase::SetCondenseWhiteSpace(false); }
  KeptWhiteSpace(const KeptWhiteSpace&) = delete;
  KeptWhiteSpace& operator=(const KeptWhiteSpace&) = delete;
  ~KeptWhiteSpace() { TiXmlBase::SetCondenseWhiteSpace(m_former); }

 private:
  const bool m_former = TiXmlBase::IsWhiteSpaceCondensed();
};

/// The parser's complaint with its place. Places cost time, so they are counted in a second run
/// that only a broken document needs.
OdString complaint(const QByteArray& text) {
  TiXmlDocument document;
  document.SetTabSize(1);
  document.Parse(text.constData(), nullptr, TIXML_ENCODING_UTF8);
  return host::translate(QStringLiteral("line %1, column %2: %3"))
      .arg(document.ErrorRow())
      .arg(document.ErrorCol())
      .arg(host::translate(OdString::fromUtf8(document.ErrorDesc())));
}

/// The text at the start of an element, in one piece even if comments or CDATA sections part it.
OdString textOf(const TiXmlElement& element) {
  OdString text;
  for (const TiXmlNode* node = element.FirstChild(); node; node = node->NextSibling()) {
    if (const TiXmlText* piece = node->ToText())
      text += fromUtf8(piece->ValueStr());
    else if (!node->ToComment())
      break;
  }
  return text;
}

/// `utf8` so that the printer gives it back as it is. Some builds of the library let references in
/// a text pass, others escape every ampersand.
std::string guardedForPrinter(std::string utf8) {
  static const bool passesReferences = [] {
    std::string printed;
    TiXmlBase::EncodeString("&#x41;", &printed);
    return printed == "&#x41;";
  }();
  return passesReferences ? withReferencesEscaped(std::move(utf8)) : utf8;
}

bool hasAttributes(const TiXmlElement& element) { return element.FirstAttribute() != nullptr; }

/// The node that a walk in document order meets next; null at the end.
const TiXmlElement* nextInOrder(const TiXmlElement* element) {
  if (const TiXmlElement* child = element->FirstChildElement()) return child;
  for (const TiXmlNode* node = element; node; node = node->Parent())
    if (const TiXmlElement* sibling = node->NextSiblingElement()) return sibling;
  return nullptr;
}

} // namespace

template <class T>
bool OdTcFilerImplBase<T>::failed(const OdString& reason) {
  m_problem = m_problem.isEmpty() ? reason : reason + QStringLiteral("; ") + m_problem;
  return false;
}

template <class T>
void OdTcFilerImplBase<T>::report() const {
  if (!m_problem.isEmpty()) reportUnreadFile(m_stream->fileName(), m_problem);
}

template <class T>
bool OdTcFilerImplBase<T>::parse(OdStreamBuf* stream) {
  m_stream = stream;
  m_saving = false;
  try {
    return parseBytes(readAll(stream), deferral());
  } catch (const OdFileError& error) {
    return failed(error.reason());
  }
}

template <class T>
bool OdTcFilerImplBase<T>::parseBytes(QByteArray bytes, const OdTcDeferral& deferral) {
  OdTcCheckedDocument checked = checkDocument(std::move(bytes), passedOver(), deferral);
  if (!checked.refusal.isEmpty()) return failed(checked.refusal);
  const KeptWhiteSpace keptWhiteSpace;
  m_document.SetTabSize(0);
  m_document.Parse(checked.text.constData(), nullptr, TIXML_ENCODING_UTF8);
  if (m_document.Error()) {
    // The parser keeps what it understood up to there; half a document is none.
    m_document.Clear();
    return failed(complaint(checked.text));
  }
  m_problem = checked.remark;
  m_deferred = std::move(checked.deferred);
  return true;
}

template <class T>
const TiXmlElement* OdTcFilerImplBase<T>::findElement(const char* name) const {
  const TiXmlElement* element = m_document.FirstChildElement();
  while (element && element->ValueStr() != name) element = nextInOrder(element);
  return element;
}

template <class T>
bool OdTcFilerImplBase<T>::readRoot(OdTcPersist* root) {
  try {
    return root->readElements(this);
  } catch (const OdError& error) {
    m_stack.clear();
    m_current = nullptr;
    return failed(error.description());
  }
}

template <class T>
void OdTcFilerImplBase<T>::popObject(bool advance) {
  if (advance) {
    m_parent = m_parent ? m_parent->NextSiblingElement() : nullptr;
    m_current = m_parent ? m_parent->FirstChildElement() : nullptr;
  }
  if (!m_stack.empty()) m_stack.pop_back();
}

template <class T>
OdTcFieldMap& OdTcFilerImplBase<T>::scratchMap() {
  while (m_maps.size() < std::max<std::size_t>(m_stack.size(), 1)) m_maps.emplace_back();
  OdTcFieldMap& map = m_maps[m_stack.empty() ? 0 : m_stack.size() - 1];
  map.clear();
  return map;
}

template <class T>
bool OdTcFilerImplBase<T>::advance() {
  if (m_current) m_current = m_current->NextSiblingElement();
  return m_current != nullptr;
}

template <class T>
auto OdTcFilerImplBase<T>::nameOf(const std::string& utf8) -> const Name& {
  if (const auto at = m_names.find(utf8); at != m_names.end()) return at->second;
  const OdString text = fromUtf8(utf8);
  Name name{text, OdTcElementTable::instance().creatorOf(text)};
  // The keys are names in the document, which outlives them.
  if (m_names.size() < kMaxKeptNames) return m_names.emplace(utf8, std::move(name)).first->second;
  return m_rareName = std::move(name);
}

template <class T>
bool OdTcFilerImplBase<T>::readValues(const TiXmlElement& element, OdTcFieldMap& map) {
  const TiXmlAttribute* attribute = element.FirstAttribute();
  const bool any = attribute != nullptr;
  for (; attribute; attribute = attribute->Next())
    map.set(nameOf(attribute->NameTStr()).text, fromUtf8(attribute->ValueStr()));
  return any;
}

template <class T>
bool OdTcFilerImplBase<T>::readElement(OdTcFieldMap& map) {
  if (!m_current) return false;
  const TiXmlElement& element = *m_current;
  const OdString name = nameOf(element.ValueStr()).text;
  if (!isSkipped(tableName(element, name))) {
    if (const OdTcPersistPtr object = readObject(currentObject())) {
      map.set(name, object);
      return true;
    }
  }
  const bool hasValues = readValues(element, map);
  const OdString text = textOf(element);
  if (!text.isEmpty()) map.set(name, text);
  // An element with nothing in it ends the reading of its parent: the cursor stays.
  if (!hasValues && text.isEmpty()) {
    noteEmpty(element);
    return false;
  }
  advance();
  return true;
}

template <class T>
bool OdTcFilerImplBase<T>::readAttributes(OdTcFieldMap& map) {
  if (!m_current) return false;
  if (readValues(*m_current, map)) return true;
  const OdString text = textOf(*m_current);
  if (text.isEmpty()) return false;
  map.set(nameOf(m_current->ValueStr()).text, text);
  return true;
}

template <class T>
OdTcPersistPtr OdTcFilerImplBase<T>::readObject(OdTcPersist* owner) {
  if (!m_current) return {};
  const TiXmlElement* const element = m_current;
  const Name& name = nameOf(element->ValueStr());
  const OdString wanted = tableName(*element, name.text);
  const auto creator =
      wanted == name.text ? name.creator : OdTcElementTable::instance().creatorOf(wanted);
  if (!creator) return {};
  const OdTcPersistPtr object(creator(), kOdRxObjAttach);
  link(object, owner ? owner : currentObject());
  const TiXmlElement* const outer = m_parent;
  m_parent = element;
  if (hasAttributes(*element)) object->readAttributes(this);
  m_current = element->FirstChildElement();
  object->readElements(this);
  m_parent = outer;
  m_current = element->NextSiblingElement();
  return object;
}

template <class T>
QByteArray OdTcFilerImplBase<T>::takeDeferred() {
  // Where anything is deferred, the only text in such an element is the number of its piece.
  if (m_deferred.empty() || !m_parent || m_current) return {};
  const char* const number = m_parent->GetText();
  return number ? std::exchange(m_deferred[std::stoul(number)], {}) : QByteArray();
}

template <class T>
void OdTcFilerImplBase<T>::beginDocument(OdStreamBuf* stream) {
  m_stream = stream;
  m_saving = true;
  m_document.Clear();
  m_target = nullptr;
}

template <class T>
bool OdTcFilerImplBase<T>::writeRoot(OdStreamBuf* stream, OdTcPersist* root) {
  beginDocument(stream);
  writeObject(root);
  return root != nullptr;
}

template <class T>
TiXmlElement* OdTcFilerImplBase<T>::addElement(const std::string& name) {
  auto* const element = new TiXmlElement(name);
  TiXmlNode* const target = m_target ? static_cast<TiXmlNode*>(m_target) : &m_document;
  target->LinkEndChild(element);
  return element;
}

template <class T>
void OdTcFilerImplBase<T>::setAttribute(TiXmlElement& element, const OdString& name,
                                        const OdVariant& value) const {
  element.SetAttribute(toUtf8(name), guardedForPrinter(toUtf8(textFor(value, name))));
}

template <class T>
void OdTcFilerImplBase<T>::writeObject(OdTcPersist* object) {
  if (!m_saving || !object) return;
  TiXmlElement* const outer = m_target;
  m_target = addElement(toUtf8(object->elementName()));
  object->write(this);
  m_target = outer;
}

template <class T>
void OdTcFilerImplBase<T>::writeAttribute(const OdString& name, const OdVariant& value) {
  if (m_saving && m_target && !value.isObject()) setAttribute(*m_target, name, value);
}

template <class T>
void OdTcFilerImplBase<T>::writeElementAttribute(const OdString& element, const OdString& attribute,
                                                 const OdVariant& value) {
  if (!m_saving) return;
  if (value.isObject()) return writeObject(odrxCast<OdTcPersist>(value.object()));
  if (!textFor(value, attribute).isEmpty())
    setAttribute(*addElement(toUtf8(element)), attribute, value);
}

template <class T>
void OdTcFilerImplBase<T>::writeElementAttributes(const OdString& element,
                                                  const OdTcFieldMap& map) {
  if (!m_saving) return;
  TiXmlElement& child = *addElement(toUtf8(element));
  for (const auto& [name, value] : map)
    if (!value.isObject()) setAttribute(child, name, value);
}

template <class T>
void OdTcFilerImplBase<T>::writeElement(const OdString& element, const OdVariant& value,
                                        bool cdata) {
  if (!m_saving) return;
  if (value.isObject()) return writeObject(odrxCast<OdTcPersist>(value.object()));
  const std::string text = toUtf8(textFor(value, element));
  // A CDATA section keeps blanks that the parser would drop elsewhere, and cannot hold its own end.
  const bool plain = !isLostOnParsing(text) && (!cdata || text.find("]]>") != std::string::npos);
  auto* const node = new TiXmlText(plain ? guardedForPrinter(text) : text);
  node->SetCDATA(!plain);
  addElement(toUtf8(element))->LinkEndChild(node);
}

template <class T>
void OdTcFilerImplBase<T>::flush() {
  if (!m_saving || !m_stream) return;
  TiXmlPrinter printer;
  m_document.Accept(&printer);
  // In pieces: one call for each byte would be a tenth of the whole saving.
  for (std::string_view rest = printer.Str(); !rest.empty();) {
    const std::string_view piece = rest.substr(0, kPieceToWrite);
    m_stream->putBytes(piece.data(), static_cast<std::uint32_t>(piece.size()));
    rest.remove_prefix(piece.size());
  }
  m_stream->flush();
}

template class OdTcFilerImplBase<OdTcFiler>;

} // namespace tc
