// What the filers of catalogs and palettes have in common.
#pragma once

#include "persistence/document_check.h"
#include "persistence/element_table.h"
#include "persistence/filer.h"
#include "persistence/xml_text.h"

#include <tinyxml.h>

#include <deque>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tc {

/// Owns the document and the cursor in it. The filers differ in what they look for in a document,
/// how they link objects to their owners and how they write numbers.
template <class T>
class OdTcFilerImplBase : public T {
 public:
  bool openCatalog(OdStreamBuf*, OdTcPersist*, bool) override { return false; }
  bool openPalette(OdStreamBuf*, OdTcPersist*, bool) override { return false; }

  void pushObject(OdTcPersist* object) override { m_stack.push_back(object); }
  void popObject(bool advance) override;
  bool readElement(OdTcFieldMap& map) override;
  bool readAttributes(OdTcFieldMap& map) override;
  OdTcPersistPtr readObject(OdTcPersist* owner) override;
  QByteArray takeDeferred() override;

  void writeObject(OdTcPersist* object) override;
  void writeAttributes(const OdTcFieldMap&) override {}
  void writeAttribute(const OdString& name, const OdVariant& value) override;
  void writeElementAttribute(const OdString& element, const OdString& attribute,
                             const OdVariant& value) override;
  void writeElementAttributes(const OdString& element, const OdTcFieldMap& map) override;
  void writeElement(const OdString& element, const OdVariant& value, bool cdata) override;
  void flush() override;
  bool isConverted() const override { return m_converted; }

  OdTcPersist* currentObject() const override { return m_stack.empty() ? nullptr : m_stack.back(); }
  OdTcFieldMap& scratchMap() override;
  bool advance() override;
  bool atEnd() const override { return m_current == nullptr; }
  OdString problem() const override { return m_problem; }

 protected:
  /// An element or attribute name of the document, converted and looked up once.
  struct Name {
    OdString text;
    OdTcElementTable::Creator creator = nullptr;
  };

  /// The name under which the current element is looked up in the element table.
  virtual OdString tableName(const TiXmlElement& element, const OdString& name) const = 0;
  virtual bool isSkipped(const OdString& name) const = 0;
  virtual void link(OdTcPersist* object, OdTcPersist* owner) = 0;
  virtual OdTcNumberForm numberForm(const OdString& name) const = 0;
  /// Elements whose content is for nobody; null if there are none.
  virtual const OdTcPassedOver* passedOver() const { return nullptr; }
  /// Elements whose content is left for later.
  virtual OdTcDeferral deferral() const { return {}; }
  /// Called with an empty element that has ended the reading of the one around it.
  virtual void noteEmpty(const TiXmlElement& /*element*/) {}

  /// Reads and parses the stream; false, with the problem kept, if there is no document.
  bool parse(OdStreamBuf* stream);
  /// The same with the bytes of a document.
  bool parseBytes(QByteArray bytes, const OdTcDeferral& deferral);
  const TiXmlElement* rootElement() const { return m_document.RootElement(); }
  /// The first element of that name, the document's own included, or null.
  const TiXmlElement* findElement(const char* name) const;
  /// Reads the root from the cursor on. False, with the problem kept, if that raises an error.
  bool readRoot(OdTcPersist* root);
  bool writeRoot(OdStreamBuf* stream, OdTcPersist* root);
  /// Makes ready for writing a new document.
  void beginDocument(OdStreamBuf* stream);
  /// Puts the reason before what there is to say already, and gives false.
  bool failed(const OdString& reason);
  /// Tells the user of the problem, if there is one.
  void report() const;

  /// A new element at the end of what is being written to, or of the document.
  TiXmlElement* addElement(const std::string& name);

  const TiXmlElement* m_parent = nullptr;
  const TiXmlElement* m_current = nullptr;
  /// The element that is being written to; null for the document itself.
  TiXmlElement* m_target = nullptr;
  OdStreamBufPtr m_stream;
  bool m_saving = false;
  bool m_converted = false;

 private:
  const Name& nameOf(const std::string& utf8);
  bool readValues(const TiXmlElement& element, OdTcFieldMap& map);
  OdString textFor(const OdVariant& value, const OdString& name) const {
    return valueText(value, numberForm(name));
  }
  void setAttribute(TiXmlElement& element, const OdString& name, const OdVariant& value) const;

  TiXmlDocument m_document;
  std::vector<OdTcPersist*> m_stack;
  // A deque: maps of outer objects stay where they are while inner ones are added.
  std::deque<OdTcFieldMap> m_maps;
  std::unordered_map<std::string_view, Name> m_names;
  Name m_rareName;
  OdString m_problem;
  std::vector<QByteArray> m_deferred;
};

extern template class OdTcFilerImplBase<OdTcFiler>;

} // namespace tc
