// The drawing's blocks with pictures, to insert them.
#pragma once

#include "drafton/desktop/desktop.h"

#include <QListWidget>

namespace drafton {

/// A double click or Enter begins INSERT with the block.
class BlockList : public QListWidget {
  Q_OBJECT

 public:
  explicit BlockList(Desktop& desktop, QWidget* parent = nullptr);
  /// Lists the blocks anew where others are there now. While the list is hidden nothing is drawn.
  void follow();

 protected:
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  Desktop& m_desktop;
  QStringList m_names;
  OdDbDatabase* m_shown = nullptr; ///< only to tell drawings apart
};

} // namespace drafton
