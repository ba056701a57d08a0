#include "drafton/desktop/inspector_control.h"

#include "drafton/engine/translator.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QStyledItemDelegate>

namespace drafton {
namespace {

constexpr int kName = 0, kValue = 1;
constexpr int kPlaceRole = Qt::UserRole;

} // namespace

/// Leaves drawing and editing of values to the rows.
class InspectorControl::Delegate : public QStyledItemDelegate {
 public:
  explicit Delegate(InspectorControl& control)
    : QStyledItemDelegate(&control)
    , m_control(control) {}

  QWidget* control() const { return m_edit; }

  /// Hands what stands in the control to its row; false if that refuses it.
  bool take() {
    const QPointer<QWidget> edit = m_edit;
    const KVPtr<IKVEditableProperty> row = m_row;
    if (!edit || !row) return true;
    // A row may show a message, which takes the focus in its turn.
    m_row.reset();
    const bool isTaken = row->takeFromControl(*edit);
    if (!edit) return true;
    if (isTaken) {
      close(edit);
    } else {
      m_row = row;
      edit->setFocus();
    }
    return isTaken;
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const IKVEditableProperty* const row =
        index.column() == kValue ? m_control.rowAt(index) : nullptr;
    if (!row) return QStyledItemDelegate::paint(painter, option, index);
    QStyleOptionViewItem ground = option;
    initStyleOption(&ground, index);
    ground.text.clear();
    m_control.style()->drawControl(QStyle::CE_ItemViewItem, &ground, painter, &m_control);
    painter->save();
    const bool isChosen = option.state & QStyle::State_Selected;
    const auto group = row->isReadOnly() ? QPalette::Disabled : QPalette::Active;
    painter->setPen(
        option.palette.color(group, isChosen ? QPalette::HighlightedText : QPalette::Text));
    painter->setFont(option.font);
    painter->setClipRect(option.rect);
    row->drawValue(*painter, option.rect);
    painter->restore();
  }

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override {
    IKVEditableProperty* const row = index.column() == kValue ? m_control.rowAt(index) : nullptr;
    if (!row || row->isReadOnly()) return nullptr;
    m_row = KVPtr<IKVEditableProperty>(row);
    m_edit = row->createControl(*parent, option.rect);
    return m_edit;
  }
  // The rows fill and read their controls themselves.
  void setEditorData(QWidget*, const QModelIndex&) const override {}
  void setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const override {}

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* const edit = qobject_cast<QWidget*>(watched);
    if (!edit || edit != m_edit) return false;
    if (event->type() == QEvent::FocusOut) {
      const QWidget* const focus = QApplication::focusWidget();
      const bool stays = focus && (focus == edit || edit->isAncestorOf(focus));
      if (!stays && !edit->isHidden() && edit->property(kHostFocusLock).toInt() <= 0) take();
      return false;
    }
    if (event->type() != QEvent::KeyPress) return false;
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
      take();
      return true;
    case Qt::Key_Escape:
      m_row.reset();
      close(edit);
      return true;
    default:
      return false;
    }
  }

 private:
  void close(QWidget* edit) { Q_EMIT closeEditor(edit, QAbstractItemDelegate::NoHint); }

  InspectorControl& m_control;
  mutable QPointer<QWidget> m_edit;
  mutable KVPtr<IKVEditableProperty> m_row; ///< whose value `m_edit` edits
};

InspectorControl::InspectorControl(QWidget& parent)
  : QTreeWidget(&parent)
  , m_delegate(new Delegate(*this)) {
  setColumnCount(2);
  setHeaderLabels({translated(u"Property"), translated(u"Value")});
  setAccessibleName(translated(u"Properties"));
  setUniformRowHeights(true);
  setAlternatingRowColors(true);
  setEditTriggers(DoubleClicked | SelectedClicked | EditKeyPressed);
  setItemDelegate(m_delegate);
  header()->setStretchLastSection(true);
}

InspectorControl::~InspectorControl() { clear(); }

void InspectorControl::clear() {
  for (const KVPtr<IKVEditableProperty>& row : m_rows) row->setSink(nullptr);
  QTreeWidget::clear();
  m_rows.clear();
}

QTreeWidgetItem* InspectorControl::heading(const OdString& name) {
  for (int i = 0; i < topLevelItemCount(); ++i)
    if (topLevelItem(i)->text(kName) == name) return topLevelItem(i);
  auto* const item = new QTreeWidgetItem(this, QStringList(name));
  item->setFlags(Qt::ItemIsEnabled);
  item->setFirstColumnSpanned(true);
  QFont font = item->font(kName);
  font.setBold(true);
  item->setFont(kName, font);
  item->setExpanded(true);
  return item;
}

void InspectorControl::describe(QTreeWidgetItem& item, const IKVEditableProperty& row) {
  item.setText(kName, row.name());
  item.setText(kValue, row.valueText());
  for (const int column : {kName, kValue}) item.setToolTip(column, row.description());
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  flags.setFlag(Qt::ItemIsEditable, !row.isReadOnly());
  item.setFlags(flags);
}

void InspectorControl::addRow(const KVPtr<IKVEditableProperty>& row) {
  if (!row || !row->isVisible()) return;
  auto* const item = new QTreeWidgetItem(heading(row->category()));
  item->setData(kName, kPlaceRole, static_cast<int>(m_rows.size()));
  m_rows.push_back(row);
  describe(*item, *row.get());
  row->setSink(this);
}

IKVEditableProperty* InspectorControl::rowAt(const QModelIndex& index) const {
  const QVariant place = index.siblingAtColumn(kName).data(kPlaceRole);
  return place.isValid() ? m_rows[static_cast<std::size_t>(place.toInt())].get() : nullptr;
}

void InspectorControl::rowChanged(IKVEditableProperty& row) {
  for (QTreeWidgetItemIterator at(this); *at; ++at)
    if (rowAt(indexFromItem(*at)) == &row) describe(**at, row);
}

void InspectorControl::setRedraw(bool on) { setUpdatesEnabled(on); }
int InspectorControl::split() const { return columnWidth(kName); }
void InspectorControl::setSplit(int width) { setColumnWidth(kName, width); }
bool InspectorControl::endEdit() { return m_delegate->take(); }

} // namespace drafton
