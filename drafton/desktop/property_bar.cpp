#include "drafton/desktop/property_bar.h"

#include "drafton/desktop/color_choice.h"
#include "drafton/desktop/theme.h"
#include "drafton/engine/commands/shown_values.h"
#include "drafton/render/style.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QEvent>
#include <QPainter>
#include <QSignalBlocker>

namespace drafton {
namespace {

constexpr int kSwatch = 16;
/// Hundredths of millimetres.
constexpr int kWeights[] = {-1, -2, -3, 0,  5,  9,  13,  15,  18,  20,  25,  30,  35, 40,
                            50, 53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211};
constexpr std::uint32_t kOtherColor = 0;

OdCmColor colorOf(std::uint32_t value) {
  OdCmColor color;
  color.setColor(value);
  return color;
}

QIcon swatch(const OdCmColor& color, const Ground& ground, double ratio, bool isOff = false) {
  QPixmap pixmap(QSizeF(kSwatch * ratio, kSwatch * ratio).toSize());
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setPen(QColor(128, 128, 128));
  if (!color.isByLayer() && !color.isByBlock() && !isOff)
    painter.setBrush(QColor::fromRgb(ground.paint(color.color())));
  painter.drawRect(1, 1, kSwatch - 3, kSwatch - 3);
  return QIcon(pixmap);
}

/// The common value of all entities; nothing if they differ.
template <class T>
std::optional<T> common(const std::vector<OdDbEntityPtr>& entities,
                        const std::function<T(const OdDbEntity&)>& value) {
  std::optional<T> result;
  for (const OdDbEntityPtr& entity : entities) {
    const T own = value(*entity);
    if (result && !(*result == own)) return std::nullopt;
    result = own;
  }
  return result;
}

std::vector<OdDbEntityPtr> chosenEntities(Desktop& desktop) {
  std::vector<OdDbEntityPtr> entities;
  if (Document* const document = desktop.document(); document && !desktop.isBusy())
    for (const OdDbObjectId id : document->preselection())
      if (const OdDbEntityPtr entity = odrxCast<OdDbEntity>(id.openObject().get()))
        entities.push_back(entity);
  return entities;
}

void select(QComboBox& list, const QVariant& data) {
  list.setCurrentIndex(data.isValid() ? list.findData(data) : -1);
}

QVariant idData(OdDbObjectId id) { return QVariant::fromValue(recordName(id)); }

} // namespace

std::vector<OdDb::LineWeight> offeredLineWeights() {
  std::vector<OdDb::LineWeight> weights;
  for (const int weight : kWeights) weights.push_back(static_cast<OdDb::LineWeight>(weight));
  return weights;
}

PropertyBar::PropertyBar(Desktop& desktop, QWidget* parent)
  : QToolBar(translated(u"Properties"), parent)
  , m_desktop(desktop)
  , m_layers(addList(u"Layer", 18))
  , m_colors(addList(u"Color", 10))
  , m_linetypes(addList(u"Line type", 12))
  , m_weights(addList(u"Line weight", 9)) {
  setObjectName(QStringLiteral("toolbarProperties"));
  for (const OdDb::LineWeight weight : offeredLineWeights())
    m_weights->addItem(shownLineWeight(weight), static_cast<int>(weight));
  connect(m_layers, &QComboBox::activated, this, &PropertyBar::chooseLayer);
  connect(m_colors, &QComboBox::activated, this, &PropertyBar::chooseColor);
  connect(m_linetypes, &QComboBox::activated, this, &PropertyBar::chooseLinetype);
  connect(m_weights, &QComboBox::activated, this, &PropertyBar::chooseWeight);
  follow();
}

void PropertyBar::changeEvent(QEvent* event) {
  QToolBar::changeEvent(event);
  // Colours are shown as they are drawn, and so by what they are drawn on.
  if (event->type() == QEvent::PaletteChange && isVisible()) follow();
}

QComboBox* PropertyBar::addList(const char16_t* name, int letters) {
  auto* const list = new QComboBox(this);
  list->setAccessibleName(translated(name));
  list->setToolTip(translated(name));
  list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  list->setMinimumContentsLength(letters);
  list->view()->setTextElideMode(Qt::ElideRight);
  addWidget(list);
  return list;
}

void PropertyBar::fill(OdDbDatabase& database) {
  const double ratio = devicePixelRatioF();
  const Ground ground(canvasColors(isDark(palette())).ground.rgb());
  m_layers->clear();
  const auto layers = database.getLayerTableId().openAs<OdDbLayerTable>();
  for (auto at = layers->newIterator(); !at->done(); at->step()) {
    const auto layer = odrxCast<OdDbLayerTableRecord>(at->getRecord().get());
    m_layers->addItem(swatch(layer->color(), ground, ratio, layer->isOff() || layer->isFrozen()),
                      layer->getName(), layer->getName());
  }
  m_linetypes->clear();
  const auto linetypes = database.getLinetypeTableId().openAs<OdDbLinetypeTable>();
  for (auto at = linetypes->newIterator(); !at->done(); at->step())
    m_linetypes->addItem(at->getRecord()->getName(), at->getRecord()->getName());
  m_colors->clear();
  const auto addColor = [&](const OdCmColor& color) {
    m_colors->addItem(swatch(color, ground, ratio), shownColor(color), color.color());
  };
  addColor(OdCmColor());
  addColor(OdCmColor(OdCmColor::kByBlock));
  for (int index = 1; index <= 9; ++index) addColor(OdCmColor::fromColorIndex(index));
  m_colors->addItem(translated(u"Other..."), kOtherColor);
}

void PropertyBar::follow() {
  OdDbDatabase* const database = m_desktop.database();
  setEnabled(database != nullptr);
  if (!database) return;
  for (QComboBox* const list : {m_layers, m_colors, m_linetypes})
    if (list->view()->isVisible()) return;
  fill(*database);
  const std::vector<OdDbEntityPtr> chosen = chosenEntities(m_desktop);
  QVariant layer = idData(database->currentLayer());
  QVariant linetype = idData(database->currentLinetype());
  QVariant color = database->currentColor().color();
  QVariant weight = static_cast<int>(database->currentLineWeight());
  if (!chosen.empty()) {
    const auto shown = [](const auto& value) {
      return value ? QVariant::fromValue(*value) : QVariant();
    };
    layer = shown(common<OdString>(chosen, [](const OdDbEntity& e) { return e.layer(); }));
    linetype = shown(
        common<OdString>(chosen, [](const OdDbEntity& e) { return recordName(shownLinetype(e)); }));
    color =
        shown(common<std::uint32_t>(chosen, [](const OdDbEntity& e) { return e.color().color(); }));
    weight = shown(
        common<int>(chosen, [](const OdDbEntity& e) { return static_cast<int>(e.lineWeight()); }));
  }
  select(*m_layers, layer);
  select(*m_linetypes, linetype);
  select(*m_weights, weight);
  if (color.isValid() && m_colors->findData(color) < 0) {
    const OdCmColor other = colorOf(color.toUInt());
    const Ground ground(canvasColors(isDark(palette())).ground.rgb());
    m_colors->insertItem(m_colors->count() - 1, swatch(other, ground, devicePixelRatioF()),
                         shownColor(other), color);
  }
  select(*m_colors, color);
}

void PropertyBar::apply(const OdString& step, const std::function<void(OdDbEntity&)>& entity,
                        const std::function<void(OdDbDatabase&)>& current) {
  const std::vector<OdDbEntityPtr> chosen = chosenEntities(m_desktop);
  m_desktop.change(step, [&](OdDbDatabase& database) {
    if (chosen.empty()) return current(database);
    for (const OdDbEntityPtr& one : chosen)
      entity(*one->objectId().openAs<OdDbEntity>(OdDb::kForWrite));
  });
  follow();
}

void PropertyBar::chooseLayer(int index) {
  OdDbDatabase& database = *m_desktop.database();
  const OdDbObjectId layer =
      database.getLayerTableId().openAs<OdDbLayerTable>()->getAt(m_layers->itemText(index));
  if (layer.isNull()) return follow();
  apply(
      QStringLiteral("LAYER"), [&](OdDbEntity& e) { e.setLayer(layer); },
      [&](OdDbDatabase& d) { d.setCurrentLayer(layer); });
}

void PropertyBar::chooseColor(int index) {
  const std::uint32_t value = m_colors->itemData(index).toUInt();
  value == kOtherColor ? otherColor() : applyColor(colorOf(value));
}

void PropertyBar::otherColor() {
  OdDbDatabase* const database = m_desktop.database();
  if (!database) return;
  OdCmColor now = database->currentColor();
  if (const std::vector<OdDbEntityPtr> chosen = chosenEntities(m_desktop); !chosen.empty())
    now = chosen.front()->color();
  const std::optional<OdCmColor> color = askDrawingColor(m_desktop, now, true, this);
  if (!color) return follow();
  applyColor(*color);
}

void PropertyBar::applyColor(const OdCmColor& color) {
  apply(
      QStringLiteral("COLOR"), [&](OdDbEntity& e) { e.setColor(color); },
      [&](OdDbDatabase& d) { d.setCurrentColor(color); });
}

void PropertyBar::chooseLinetype(int index) {
  OdDbDatabase& database = *m_desktop.database();
  const OdDbObjectId linetype = database.getLinetypeTableId().openAs<OdDbLinetypeTable>()->getAt(
      m_linetypes->itemText(index));
  if (linetype.isNull()) return follow();
  apply(
      QStringLiteral("LINETYPE"), [&](OdDbEntity& e) { e.setLinetype(linetype); },
      [&](OdDbDatabase& d) { d.setCurrentLinetype(linetype); });
}

void PropertyBar::chooseWeight(int index) {
  const auto weight = static_cast<OdDb::LineWeight>(m_weights->itemData(index).toInt());
  apply(
      QStringLiteral("LWEIGHT"), [&](OdDbEntity& e) { e.setLineWeight(weight); },
      [&](OdDbDatabase& d) { d.setCurrentLineWeight(weight); });
}

} // namespace drafton
