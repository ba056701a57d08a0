// Variables as one document sees them.
#pragma once

#include "drawing/header_vars.h"
#include "host/variables.h"

namespace drafton {

class Document;
class Engine;
struct VariableRow;

/// Reads and sets variables by name: those of the table, and behind them the header variables of
/// the document's drawing. Every successful set is told to the editor's reactors.
class HostVariables : public IHostVariables {
 public:
  /// Without a document there are only the variables of session and profile.
  HostVariables(Engine& engine, Document* document)
    : m_engine(engine)
    , m_document(document) {}

  /// Integers, reals and texts; a colour is the whole 32-bit value in an integer, a point the text
  /// "x,y,z", a reference to a record its name.
  bool get(const OdString& name, OdVariant& out) override;
  /// Takes texts for numbers, points and colours ("BYLAYER", "3", "255,0,0") as well.
  bool set(const OdString& name, const OdVariant& value) override;
  /// True if there is such a variable and it can be set at all.
  bool isWritable(const OdString& name) const;
  /// The names of all variables, sorted.
  QStringList names() const;

 private:
  OdVariant stored(const VariableRow& row) const;
  bool store(const VariableRow& row, const OdVariant& value);
  OdDbDatabase* database() const;

  Engine& m_engine;
  Document* m_document;
};

} // namespace drafton
