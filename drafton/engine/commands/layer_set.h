// The layers of a drawing as LAYER works on them.
#pragma once

#include "drawing/database.h"

#include <optional>
#include <vector>

namespace drafton {

/// The texts between commas, without blanks around them and without empty ones.
QStringList namesInList(const OdString& list);

/// The layers of one drawing by name.
class LayerSet {
 public:
  explicit LayerSet(OdDbDatabase& database)
    : m_database(database) {}

  OdDbObjectId current() const { return m_database.currentLayer(); }
  OdString currentName() const;
  bool isCurrent(const OdDbLayerTableRecord& layer) const { return layer.objectId() == current(); }
  void setCurrent(OdDbObjectId layer) { m_database.setCurrentLayer(layer); }

  /// Null if there is none.
  OdDbLayerTableRecordPtr find(const OdString& name, OdDb::OpenMode mode = OdDb::kForRead) const;
  OdDbObjectId add(const OdString& name);

  struct Match {
    std::vector<OdDbLayerTableRecordPtr> layers; ///< in the order of the table, each once
    QStringList unknown;                         ///< names and patterns that no layer fits
  };
  /// The layers that a list of names and patterns means, open for writing.
  Match matching(const OdString& list) const;

  OdDbDatabase& database() const { return m_database; }

 private:
  OdDbDatabase& m_database;
};

} // namespace drafton
