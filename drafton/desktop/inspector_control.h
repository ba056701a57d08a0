// The inspector's rows for modules.
#pragma once

#include "host/inspector_control.h"

#include <QTreeWidget>

#include <vector>

namespace drafton {

/// Names and values under headings. F2, a double click or a click on the chosen row edits a value;
/// Enter, Tab and losing the focus take it, Esc does not.
class InspectorControl : public QTreeWidget,
                         public IHostInspectorControl,
                         private IKVEditablePropertySink {
  Q_OBJECT

 public:
  explicit InspectorControl(QWidget& parent);
  ~InspectorControl() override;

  QWidget* widget() override { return this; }
  void clear() override;
  void addRow(const KVPtr<IKVEditableProperty>& row) override;
  void setRedraw(bool on) override;
  int split() const override;
  void setSplit(int width) override;
  bool endEdit() override;

  /// The row behind an index; null behind a heading.
  IKVEditableProperty* rowAt(const QModelIndex& index) const;

 private:
  class Delegate;
  void rowChanged(IKVEditableProperty& row) override;
  QTreeWidgetItem* heading(const OdString& name);
  void describe(QTreeWidgetItem& item, const IKVEditableProperty& row);

  Delegate* m_delegate;
  std::vector<KVPtr<IKVEditableProperty>> m_rows; ///< an item keeps its place in here
};

class InspectorService : public CKVUnknownImpl<IHostInspectorService> {
 public:
  IHostInspectorControl* createInspector(QWidget& parent) override {
    return new InspectorControl(parent);
  }
};

} // namespace drafton
