#include "drafton/engine/commands/layer_set.h"

#include "drafton/engine/commands/wildcard.h"
#include "drafton/engine/translator.h"

namespace drafton {
QStringList namesInList(const OdString& list) {
  QStringList names;
  for (const OdString& part : list.split(u','))
    if (const OdString name = part.trimmed(); !name.isEmpty()) names << name;
  return names;
}

OdString LayerSet::currentName() const {
  const OdDbLayerTableRecordPtr layer = current().openObject();
  return layer ? layer->getName() : OdString();
}

OdDbLayerTableRecordPtr LayerSet::find(const OdString& name, OdDb::OpenMode mode) const {
  const auto table = m_database.getLayerTableId().openAs<OdDbLayerTable>();
  return table->getAt(name).openObject(mode);
}

OdDbObjectId LayerSet::add(const OdString& name) {
  const auto table = m_database.getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite);
  const OdDbLayerTableRecordPtr layer = odrxMake<OdDbLayerTableRecord>();
  layer->setName(name);
  layer->setLinetypeObjectId(m_database.getLinetypeContinuousId());
  return table->add(layer);
}

LayerSet::Match LayerSet::matching(const OdString& list) const {
  const QStringList patterns = namesInList(list);
  std::vector<bool> isUsed(static_cast<std::size_t>(patterns.size()));
  Match match;
  const auto table = m_database.getLayerTableId().openAs<OdDbLayerTable>();
  for (auto at = table->newIterator(); !at->done(); at->step()) {
    const OdDbLayerTableRecordPtr layer = at->getRecord(OdDb::kForWrite);
    if (!layer) continue;
    bool fits = false;
    for (qsizetype i = 0; i < patterns.size(); ++i) {
      // A name may hold signs that mean more in a pattern.
      if (layer->getName().compare(patterns[i], Qt::CaseInsensitive) != 0 &&
          !matchesWildcard(layer->getName(), patterns[i]))
        continue;
      fits = isUsed[static_cast<std::size_t>(i)] = true;
    }
    if (fits) match.layers.push_back(layer);
  }
  for (qsizetype i = 0; i < patterns.size(); ++i)
    if (!isUsed[static_cast<std::size_t>(i)]) match.unknown << patterns[i];
  return match;
}

} // namespace drafton
