// The tabs of a drawing.
#include "drawing/entities/viewport.h"
#include "drawing/objects/layout.h"
#include "drawing/objects/named_styles.h"

namespace {

const QLatin1String kPaperSpace("*Paper_Space");
const OdString kTileMode = QStringLiteral("TILEMODE");

OdString freeBlockName(const OdDbDatabase& database) {
  const auto blocks = database.getBlockTableId().openAs<OdDbBlockTable>();
  for (int i = 0;; ++i)
    if (const OdString name = kPaperSpace + OdString::number(i); !blocks->has(name)) return name;
}

/// Makes the block of a sheet the one that drawings show as their paper space.
void bringToFront(OdDbDatabase& database, OdDbObjectId blockId) {
  const OdDbObjectId former = database.getPaperSpaceId();
  if (former == blockId) return;
  const OdString name = freeBlockName(database);
  former.openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->setName(name);
  blockId.openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->setName(kPaperSpace);
}

void checkName(const OdDbDatabase& database, const OdString& name) {
  if (name.isEmpty()) throw OdDbError(eInvalidName, QStringLiteral("A layout needs a name"));
  if (!oddb::findLayout(database, name).isNull())
    throw OdDbError(eDuplicateRecordName,
                    QStringLiteral("There is a layout \"%1\" already").arg(name));
}

} // namespace

std::vector<OdDbLayoutPtr> oddb::layouts(const OdDbDatabase& database) {
  std::vector<OdDbLayoutPtr> all;
  const OdDbObjectPtr object = namedDictionary(database, NamedKind::kLayout).openObject();
  const auto* const dictionary = odrxCast<OdDbDictionary>(object.get());
  if (!dictionary) return all;
  for (const OdDbDictionary::Entry& entry : dictionary->entries()) {
    const OdDbObjectPtr opened = entry.id.openObject();
    if (auto* const layout = odrxCast<OdDbLayout>(opened.get())) all.emplace_back(layout);
  }
  const auto place = [](const OdDbLayoutPtr& layout) {
    return layout->isModelType() ? -1 : layout->getTabOrder();
  };
  std::stable_sort(all.begin(), all.end(), [&](const OdDbLayoutPtr& a, const OdDbLayoutPtr& b) {
    return place(a) < place(b);
  });
  return all;
}

OdDbObjectId oddb::findLayout(const OdDbDatabase& database, const OdString& name) {
  for (const OdDbLayoutPtr& layout : layouts(database))
    if (layout->getLayoutName().compare(name, Qt::CaseInsensitive) == 0) return layout->objectId();
  return {};
}

OdDbObjectId oddb::activeLayout(const OdDbDatabase& database) {
  const OdDbObjectId space = database.getCurrentSpaceId();
  const OdDbObjectId named = space.openAs<OdDbBlockTableRecord>()->getLayoutId();
  if (odrxCast<OdDbLayout>(named.openObject().get())) return named;
  for (const OdDbLayoutPtr& layout : layouts(database))
    if (layout->getBlockTableRecordId() == space) return layout->objectId();
  return {};
}

OdDbObjectId oddb::createLayout(OdDbDatabase& database, const OdString& name) {
  checkName(database, name);
  int last = 0;
  for (const OdDbLayoutPtr& layout : layouts(database))
    last = std::max(last, layout->getTabOrder());
  const auto block = odrxMake<OdDbBlockTableRecord>();
  block->setName(freeBlockName(database));
  const OdDbObjectId blockId =
      database.getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite)->add(block);
  const auto layout = odrxMake<OdDbLayout>();
  layout->setLayoutName(name);
  layout->setTabOrder(last + 1);
  layout->setBlockTableRecordId(blockId);
  const OdDbDictionaryPtr dictionary =
      createNamedDictionary(database, NamedKind::kLayout).safeOpenObject(OdDb::kForWrite);
  const OdDbObjectId id = dictionary->setAt(name, layout);
  block->setLayoutId(id);

  // The sheet itself is the first of the windows that stand on it.
  const auto sheet = odrxMake<OdDbViewport>();
  const OdGePoint2d size = layout->getPlotPaperSize();
  sheet->setNumber(1);
  sheet->setCenterPoint({size.x / 2, size.y / 2, 0});
  sheet->setWidth(size.x);
  sheet->setHeight(size.y);
  sheet->setViewCenter({size.x / 2, size.y / 2});
  sheet->setViewHeight(size.y);
  block->appendOdDbEntity(sheet);
  return id;
}

void oddb::deleteLayout(OdDbDatabase& database, OdDbObjectId layoutId) {
  const auto layout = layoutId.openAs<OdDbLayout>(OdDb::kForWrite);
  OdDbObjectId other;
  for (const OdDbLayoutPtr& each : layouts(database))
    if (!each->isModelType() && each->objectId() != layoutId && other.isNull())
      other = each->objectId();
  if (layout->isModelType() || other.isNull())
    throw OdError(eNotApplicable, QStringLiteral("The layout \"%1\" cannot be deleted: it is %2")
                                      .arg(layout->getLayoutName(),
                                           layout->isModelType() ? QStringLiteral("the model")
                                                                 : QStringLiteral("the last one")));
  const OdDbObjectId blockId = layout->getBlockTableRecordId();
  if (blockId == database.getPaperSpaceId())
    bringToFront(database, other.openAs<OdDbLayout>()->getBlockTableRecordId());
  if (const OdSmartPtr<OdDbBlockTableRecord> block = blockId.openObject(OdDb::kForWrite)) {
    for (const auto it = block->newIterator(); !it->done(); it->step())
      it->entity(OdDb::kForWrite)->erase();
    block->erase();
  }
  layout->erase();
}

void oddb::setActiveLayout(OdDbDatabase& database, OdDbObjectId layoutId) {
  const auto layout = layoutId.openAs<OdDbLayout>();
  if (!layout->isModelType()) bringToFront(database, layout->getBlockTableRecordId());
  database.setSysVar(kTileMode, std::int64_t{layout->isModelType()});
}
