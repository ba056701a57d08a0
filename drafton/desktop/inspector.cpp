#include "drafton/desktop/inspector.h"

#include "drafton/engine/commands/shown_values.h"
#include "drafton/engine/value_parser.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/text.h"

#include <QHeaderView>

#include <map>

namespace drafton {
namespace {

/// Of more than these only the kinds are counted.
constexpr std::size_t kMostCompared = 500;

OdString shownPoint(const OdGePoint3d& point) {
  const OdString flat = shownReal(point.x) + QStringLiteral(", ") + shownReal(point.y);
  return point.z == 0 ? flat : flat + QStringLiteral(", ") + shownReal(point.z);
}

OdString shownDegrees(double radians) { return shownReal(radians * 180 / kOdaPi) + u'°'; }

using Rows = std::vector<InspectedValue>;

void addCurve(const OdDbCurve& curve, Rows& rows) {
  if (!curve.hasShape()) return;
  rows.push_back({translated(u"Length"), shownReal(curve.length())});
  if (curve.isClosed()) rows.push_back({translated(u"Area"), shownReal(curve.getArea())});
  if (const auto* const line = odrxCast<OdDbLine>(&curve)) {
    rows.push_back({translated(u"Start"), shownPoint(line->startPoint())});
    rows.push_back({translated(u"End"), shownPoint(line->endPoint())});
    rows.push_back({translated(u"Angle"),
                    shownDegrees(std::atan2(line->endPoint().y - line->startPoint().y,
                                            line->endPoint().x - line->startPoint().x))});
  } else if (const auto* const circle = odrxCast<OdDbCircle>(&curve)) {
    rows.push_back({translated(u"Center"), shownPoint(circle->center())});
    rows.push_back({translated(u"Radius"), shownReal(circle->radius())});
  } else if (const auto* const arc = odrxCast<OdDbArc>(&curve)) {
    rows.push_back({translated(u"Center"), shownPoint(arc->center())});
    rows.push_back({translated(u"Radius"), shownReal(arc->radius())});
    rows.push_back({translated(u"Start angle"), shownDegrees(arc->startAngle())});
    rows.push_back({translated(u"End angle"), shownDegrees(arc->endAngle())});
  }
}

void addKind(const OdDbEntity& entity, Rows& rows) {
  if (const auto* const curve = odrxCast<OdDbCurve>(&entity)) return addCurve(*curve, rows);
  if (const auto* const text = odrxCast<OdDbText>(&entity)) {
    rows.push_back({translated(u"Text"), text->textString()});
    rows.push_back({translated(u"Height"), shownReal(text->height())});
    rows.push_back({translated(u"Position"), shownPoint(text->position())});
  } else if (const auto* const insert = odrxCast<OdDbBlockReference>(&entity)) {
    const OdGeScale3d scale = insert->scaleFactors();
    rows.push_back({translated(u"Block"), insert->blockName()});
    rows.push_back({translated(u"Position"), shownPoint(insert->position())});
    rows.push_back({translated(u"Scale"),
                    QStringLiteral("%1 x %2 x %3")
                        .arg(shownReal(scale.sx), shownReal(scale.sy), shownReal(scale.sz))});
    rows.push_back({translated(u"Rotation"), shownDegrees(insert->rotation())});
    for (const OdDbAttributePtr& attribute : insert->attributes())
      rows.push_back({attribute->tag(), attribute->textString()});
  }
}

Rows commonRows(const OdDbEntity& entity) {
  return {
      {translated(u"Layer"), entity.layer()},
      {translated(u"Color"), shownColor(entity.color())},
      {translated(u"Line type"), recordName(shownLinetype(entity))},
      {translated(u"Line type scale"), shownReal(entity.linetypeScale())},
      {translated(u"Line weight"), shownLineWeight(entity.lineWeight())},
      {translated(u"Transparency"), shownTransparency(entity.transparency())},
  };
}

} // namespace

OdString kindName(const OdDbEntity& entity) { return OdString::fromLatin1(entity.dxfName()); }

std::vector<InspectedValue> inspect(const OdDbEntity& entity) {
  Rows rows{{translated(u"Kind"), kindName(entity)},
            {translated(u"Handle"), entity.objectId().getHandle().ascii()}};
  for (InspectedValue& row : commonRows(entity)) rows.push_back(std::move(row));
  addKind(entity, rows);
  return rows;
}

Inspector::Inspector(Desktop& desktop, QWidget* parent)
  : QTreeWidget(parent)
  , m_desktop(desktop) {
  setColumnCount(2);
  setHeaderLabels({translated(u"Property"), translated(u"Value")});
  setRootIsDecorated(false);
  setAlternatingRowColors(true);
  setUniformRowHeights(true);
  setAccessibleName(translated(u"Properties of what is chosen"));
  header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  follow();
}

void Inspector::show(const std::vector<InspectedValue>& rows) {
  clear();
  for (const InspectedValue& row : rows)
    addTopLevelItem(new QTreeWidgetItem(QStringList{row.name, row.value}));
}

void Inspector::follow() {
  Document* const document = m_desktop.document();
  std::vector<OdDbEntityPtr> chosen;
  std::map<OdString, int> kinds;
  if (document && document->database())
    for (const OdDbObjectId id : m_desktop.isBusy() ? document->chosen() : document->preselection())
      if (const OdDbEntityPtr entity = odrxCast<OdDbEntity>(id.openObject().get())) {
        ++kinds[kindName(*entity)];
        if (chosen.size() < kMostCompared) chosen.push_back(entity);
      }
  if (chosen.empty()) return show({{translated(u"Nothing is chosen"), OdString()}});
  if (chosen.size() == 1) return show(inspect(*chosen.front()));
  Rows rows;
  for (const auto& [kind, count] : kinds) rows.push_back({kind, QString::number(count)});
  Rows shared = commonRows(*chosen.front());
  for (const OdDbEntityPtr& entity : chosen) {
    const Rows own = commonRows(*entity);
    for (std::size_t i = 0; i < shared.size(); ++i)
      if (shared[i].value != own[i].value) shared[i].value = translated(u"varies");
  }
  rows.insert(rows.end(), shared.begin(), shared.end());
  show(rows);
}

} // namespace drafton
