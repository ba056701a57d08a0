#include "drafton/desktop/layer_manager.h"

#include "drafton/desktop/color_choice.h"
#include "drafton/desktop/property_bar.h"
#include "drafton/desktop/theme.h"
#include "drafton/engine/commands/shown_values.h"
#include "drafton/render/style.h"

#include <QComboBox>
#include <QEvent>
#include <QHeaderView>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace drafton {
namespace {

constexpr int kIdRole = Qt::UserRole + 1;

/// A column whose cells are ticked.
struct SwitchColumn {
  const char16_t* title;
  bool (*get)(const OdDbLayerTableRecord& layer);
  void (*set)(OdDbLayerTableRecord& layer, bool on);
};
constexpr SwitchColumn kSwitches[] = {
    {u"On", [](const OdDbLayerTableRecord& l) { return !l.isOff(); },
     [](OdDbLayerTableRecord& l, bool on) { l.setIsOff(!on); }},
    {u"Frozen", [](const OdDbLayerTableRecord& l) { return l.isFrozen(); },
     [](OdDbLayerTableRecord& l, bool on) { l.setIsFrozen(on); }},
    {u"Locked", [](const OdDbLayerTableRecord& l) { return l.isLocked(); },
     [](OdDbLayerTableRecord& l, bool on) { l.setIsLocked(on); }},
    {u"Plotted", [](const OdDbLayerTableRecord& l) { return l.isPlottable(); },
     [](OdDbLayerTableRecord& l, bool on) { l.setIsPlottable(on); }},
};

constexpr int kName = 0;
constexpr int kFirstSwitch = 1;
constexpr int kColor = kFirstSwitch + static_cast<int>(std::size(kSwitches));
constexpr int kLinetype = kColor + 1;
constexpr int kWeight = kLinetype + 1;
constexpr int kColumns = kWeight + 1;

QTableWidgetItem* cell(const OdString& text, bool isEditable) {
  auto* const item = new QTableWidgetItem(text);
  if (!isEditable) item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  return item;
}

/// Edits a cell with a list of what it can be.
class ChoiceDelegate : public QStyledItemDelegate {
 public:
  ChoiceDelegate(std::function<QStringList()> choices, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_choices(std::move(choices)) {}

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                        const QModelIndex&) const override {
    auto* const list = new QComboBox(parent);
    list->addItems(m_choices());
    // One choice is all there is to do.
    connect(list, &QComboBox::activated, this, [this, list] {
      auto* const self = const_cast<ChoiceDelegate*>(this);
      Q_EMIT self->commitData(list);
      // Where the change has brought a new table, the list went with the former one.
      if (!list->isHidden()) Q_EMIT self->closeEditor(list);
    });
    return list;
  }
  void setEditorData(QWidget* editor, const QModelIndex& index) const override {
    auto* const list = static_cast<QComboBox*>(editor);
    list->setCurrentIndex(list->findText(index.data().toString()));
    // It has its place in a moment.
    QMetaObject::invokeMethod(list, &QComboBox::showPopup, Qt::QueuedConnection);
  }
  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override {
    model->setData(index, static_cast<QComboBox*>(editor)->currentText());
  }

 private:
  std::function<QStringList()> m_choices;
};

QStringList linetypeNames(const OdDbDatabase& database) {
  QStringList names;
  const auto linetypes = database.getLinetypeTableId().openAs<OdDbLinetypeTable>();
  for (auto at = linetypes->newIterator(); !at->done(); at->step()) {
    const OdString name = at->getRecord()->getName();
    // A layer has nothing above it to take them from.
    if (name.compare(QLatin1String("ByLayer"), Qt::CaseInsensitive) != 0 &&
        name.compare(QLatin1String("ByBlock"), Qt::CaseInsensitive) != 0)
      names << name;
  }
  return names;
}

std::vector<OdDb::LineWeight> layerWeights() {
  std::vector<OdDb::LineWeight> weights;
  for (const OdDb::LineWeight weight : offeredLineWeights())
    if (weight != OdDb::kLnWtByLayer && weight != OdDb::kLnWtByBlock) weights.push_back(weight);
  return weights;
}

QStringList weightNames() {
  QStringList names;
  for (const OdDb::LineWeight weight : layerWeights()) names << shownLineWeight(weight);
  return names;
}

} // namespace

LayerManager::LayerManager(Desktop& desktop, QWidget* parent)
  : QWidget(parent)
  , m_desktop(desktop)
  , m_table(new QTableWidget(0, kColumns, this)) {
  QStringList titles{translated(u"Name")};
  for (const SwitchColumn& column : kSwitches) titles << translated(column.title);
  titles << translated(u"Color") << translated(u"Line type") << translated(u"Line weight");
  m_table->setHorizontalHeaderLabels(titles);
  m_table->verticalHeader()->hide();
  m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_table->setSelectionMode(QAbstractItemView::SingleSelection);
  m_table->setAccessibleName(translated(u"Layers"));
  setFocusProxy(m_table);
  m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  auto* const buttons = new QHBoxLayout;
  const auto addButton = [&](const char16_t* text, void (LayerManager::*run)()) {
    auto* const button = new QPushButton(translated(text), this);
    connect(button, &QPushButton::clicked, this, run);
    buttons->addWidget(button);
  };
  addButton(u"&New Layer", &LayerManager::addLayer);
  addButton(u"Make &Current", &LayerManager::makeCurrent);
  buttons->addStretch();
  auto* const column = new QVBoxLayout(this);
  column->addLayout(buttons);
  column->addWidget(m_table, 1);
  connect(m_table, &QTableWidget::itemChanged, this, &LayerManager::changed);
  connect(m_table, &QTableWidget::cellActivated, this, [this](int row, int at) {
    if (at == kColor) chooseColor(row);
  });
  m_table->setItemDelegateForColumn(
      kLinetype, new ChoiceDelegate(
                     [this] {
                       OdDbDatabase* const database = m_desktop.database();
                       return database ? linetypeNames(*database) : QStringList();
                     },
                     this));
  m_table->setItemDelegateForColumn(kWeight, new ChoiceDelegate(weightNames, this));
  follow();
}

void LayerManager::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  // Colours are shown as they are drawn, and so by what they are drawn on.
  if (event->type() == QEvent::PaletteChange && isVisible()) follow();
}

OdDbObjectId LayerManager::layerAt(int row) const {
  OdDbDatabase* const database = m_desktop.database();
  const QTableWidgetItem* const item = m_table->item(row, kName);
  if (!database || !item) return {};
  return database->getLayerTableId().openAs<OdDbLayerTable>()->getAt(
      item->data(kIdRole).toString());
}

void LayerManager::follow() {
  if (!isVisible() && m_table->rowCount() > 0) return;
  OdDbDatabase* const database = m_desktop.database();
  m_isFilling = true;
  const int selected = m_table->currentRow();
  m_table->setRowCount(0);
  if (database) {
    const auto layers = database->getLayerTableId().openAs<OdDbLayerTable>();
    for (auto at = layers->newIterator(); !at->done(); at->step()) {
      const auto layer = odrxCast<OdDbLayerTableRecord>(at->getRecord().get());
      const int row = m_table->rowCount();
      m_table->insertRow(row);
      QTableWidgetItem* const name = cell(layer->getName(), true);
      name->setData(kIdRole, layer->getName());
      QFont font = name->font();
      font.setBold(layer->objectId() == database->currentLayer());
      name->setFont(font);
      m_table->setItem(row, kName, name);
      for (std::size_t i = 0; i < std::size(kSwitches); ++i) {
        QTableWidgetItem* const item = cell({}, false);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(kSwitches[i].get(*layer) ? Qt::Checked : Qt::Unchecked);
        m_table->setItem(row, kFirstSwitch + static_cast<int>(i), item);
      }
      QTableWidgetItem* const color = cell(shownColor(layer->color()), false);
      color->setData(
          Qt::DecorationRole,
          QColor::fromRgb(
              Ground(canvasColors(isDark(palette())).ground.rgb()).paint(layer->color().color())));
      m_table->setItem(row, kColor, color);
      m_table->setItem(row, kLinetype, cell(recordName(layer->linetypeObjectId()), true));
      m_table->setItem(row, kWeight, cell(shownLineWeight(layer->lineWeight()), true));
    }
  }
  m_table->setCurrentCell(std::min(selected, m_table->rowCount() - 1), kName);
  m_isFilling = false;
}

void LayerManager::change(int row, const std::function<void(OdDbLayerTableRecord&)>& change) {
  const OdDbObjectId id = layerAt(row);
  if (id.isNull()) return;
  m_desktop.change(QStringLiteral("LAYER"), [&](OdDbDatabase&) {
    change(*id.openAs<OdDbLayerTableRecord>(OdDb::kForWrite));
  });
  follow();
}

void LayerManager::changed(QTableWidgetItem* item) {
  if (m_isFilling) return;
  const int at = item->column(), row = item->row();
  const OdString text = item->text().trimmed();
  if (at == kName) {
    change(row, [&](OdDbLayerTableRecord& layer) { layer.setName(text); });
  } else if (at >= kFirstSwitch && at < kColor) {
    const SwitchColumn& column = kSwitches[at - kFirstSwitch];
    const bool isOn = item->checkState() == Qt::Checked;
    change(row, [&](OdDbLayerTableRecord& layer) { column.set(layer, isOn); });
  } else if (at == kLinetype) {
    const OdDbObjectId linetype =
        m_desktop.database()->getLinetypeTableId().openAs<OdDbLinetypeTable>()->getAt(text);
    if (linetype.isNull())
      m_desktop.engine().print(translated(u"There is no line type \"%1\".").arg(text));
    else
      change(row, [&](OdDbLayerTableRecord& layer) { layer.setLinetypeObjectId(linetype); });
    follow();
  } else if (at == kWeight) {
    const std::vector<OdDb::LineWeight> weights = layerWeights();
    const qsizetype found = weightNames().indexOf(text);
    if (found >= 0)
      change(row, [&](OdDbLayerTableRecord& layer) {
        layer.setLineWeight(weights[static_cast<std::size_t>(found)]);
      });
    follow();
  }
}

void LayerManager::chooseColor(int row) {
  const OdDbObjectId id = layerAt(row);
  if (id.isNull()) return;
  // A layer has nothing above it whose colour it could take.
  const auto chosen =
      askDrawingColor(m_desktop, id.openAs<OdDbLayerTableRecord>()->color(), false, this);
  if (!chosen) return;
  change(row, [&](OdDbLayerTableRecord& layer) { layer.setColor(*chosen); });
}

void LayerManager::addLayer() {
  m_desktop.change(QStringLiteral("LAYER"), [](OdDbDatabase& database) {
    const auto layers = database.getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite);
    OdString name;
    for (int number = 1; name.isEmpty() || layers->has(name); ++number)
      name = translated(u"Layer%1").arg(number);
    const auto layer = odrxMake<OdDbLayerTableRecord>();
    layer->setName(name);
    layers->add(layer.get());
  });
  follow();
  m_table->setCurrentCell(m_table->rowCount() - 1, kName);
}

void LayerManager::makeCurrent() {
  const OdDbObjectId id = layerAt(m_table->currentRow());
  if (id.isNull()) return;
  m_desktop.change(QStringLiteral("LAYER"),
                   [&](OdDbDatabase& database) { database.setCurrentLayer(id); });
  follow();
}

} // namespace drafton
