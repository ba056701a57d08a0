// The drawing's layers as a table to change.
#pragma once

#include "drafton/desktop/desktop.h"

#include <QTableWidget>

namespace drafton {

/// One row a layer: name, switches, colour, line type, line weight. Switches are ticked, names and
/// values edited in place; each change is an undo step.
class LayerManager : public QWidget {
  Q_OBJECT

 public:
  explicit LayerManager(Desktop& desktop, QWidget* parent = nullptr);

  QTableWidget& table() { return *m_table; }
  void follow();
  void addLayer();
  void makeCurrent();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void changed(QTableWidgetItem* item);
  void chooseColor(int row);
  OdDbObjectId layerAt(int row) const;
  void change(int row, const std::function<void(OdDbLayerTableRecord&)>& change);

  Desktop& m_desktop;
  QTableWidget* m_table;
  bool m_isFilling = false;
};

} // namespace drafton
