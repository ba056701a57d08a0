// What is chosen, in rows.
#pragma once

#include "drafton/desktop/desktop.h"

#include <QTreeWidget>

namespace drafton {

/// One property of an entity as it is shown.
struct InspectedValue {
  OdString name, value;
};
/// The properties that all entities have, then those of its kind.
std::vector<InspectedValue> inspect(const OdDbEntity& entity);
/// The kind of an entity in words, as files name it.
OdString kindName(const OdDbEntity& entity);

/// A read view of the choice: of one entity its properties, of several how many there are of each
/// kind and what they have in common.
class Inspector : public QTreeWidget {
  Q_OBJECT

 public:
  explicit Inspector(Desktop& desktop, QWidget* parent = nullptr);
  void follow();

 private:
  void show(const std::vector<InspectedValue>& rows);

  Desktop& m_desktop;
};

} // namespace drafton
