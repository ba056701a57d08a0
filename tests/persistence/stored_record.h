// A stored object that takes whatever it is given, and ways to send it through a filer.
#pragma once

#include "module/persist_impl.h"
#include "persistence/element_table.h"
#include "persistence/filer.h"

#include <functional>
#include <vector>

namespace tc::test {

/// Remembers each field that is read, in order, and writes what it is told to.
class Record : public OdTcPersistImpl<OdTcPersist> {
 public:
  using Writer = std::function<void(OdTcFiler&)>;

  explicit Record(OdString element = QStringLiteral("Record"), Writer writer = {})
    : m_element(std::move(element))
    , m_writer(std::move(writer)) {}

  OdString elementName() const override { return m_element; }
  void writeFields(OdTcFiler* filer) override {
    if (m_writer) m_writer(*filer);
  }
  bool readField(const OdString& name, const OdVariant& value) override {
    fields.emplace_back(name, value);
    return true;
  }

  /// "name=text" for each value, "name{...}" with its own log for each object.
  OdString log() const;
  /// The text of the last field of that name; empty if there is none.
  OdString text(const OdString& name) const;
  /// The first object of that name, or null.
  Record* child(const OdString& name) const;

  std::vector<std::pair<OdString, OdVariant>> fields;

 private:
  OdString m_element;
  Writer m_writer;
};

/// A record that is read when read() is called.
class LateRecord : public Record {
 public:
  using Record::Record;

  bool readElements(OdTcFiler* filer) override {
    deferred = filer->takeDeferred();
    return !deferred.isEmpty() || Record::readElements(filer);
  }
  void read() { readDeferred(deferred, this); }

  QByteArray deferred;
};

/// A record that is registered as the root of palette documents.
class RootRecord : public Record {
  ODRX_DECLARE_MEMBERS(RootRecord);

 public:
  using Record::Record;
};

/// What a filer made of a document.
struct Reading {
  bool isRead = false;
  OdString problem;
  bool isConverted = false;
  OdSmartPtr<RootRecord> root;
};
Reading readCatalog(const QByteArray& bytes);
Reading readPalette(const QByteArray& bytes);

/// The document that a root writes.
QByteArray writeCatalog(const Record::Writer& writer);
QByteArray writePalette(const Record::Writer& writer);

/// Registers the classes, and the elements Box, Node, Image, Tool, Palette and Data with the create
/// infos, and Late as one that is read when asked for; in force for the life of the program.
void useRecords();

} // namespace tc::test
