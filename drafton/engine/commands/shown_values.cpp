#include "drafton/engine/commands/shown_values.h"

#include "drafton/engine/translator.h"
#include "drawing/database.h"

namespace drafton {
namespace {

constexpr const char16_t* kColorNames[] = {u"red",  u"yellow",  u"green", u"cyan",
                                           u"blue", u"magenta", u"white"};

} // namespace

OdString shownColor(const OdCmColor& color) {
  if (color.isByLayer()) return QStringLiteral("ByLayer");
  if (color.isByBlock()) return QStringLiteral("ByBlock");
  if (color.hasNames())
    return color.bookName().isEmpty() ? color.colorName()
                                      : color.bookName() + u'$' + color.colorName();
  if (color.isByColor())
    return QStringLiteral("%1,%2,%3").arg(color.red()).arg(color.green()).arg(color.blue());
  const std::size_t index = color.colorIndex();
  if (index >= 1 && index <= std::size(kColorNames))
    return QStringLiteral("%1 (%2)").arg(index).arg(translated(kColorNames[index - 1]));
  return OdString::number(index);
}

OdString shownLineWeight(OdDb::LineWeight weight) {
  if (weight == OdDb::kLnWtByLayer) return QStringLiteral("ByLayer");
  if (weight == OdDb::kLnWtByBlock) return QStringLiteral("ByBlock");
  if (weight < 0) return translated(u"Default");
  return QStringLiteral("%1mm").arg(OdString::number(int{weight} / 100.0, 'f', 2));
}

OdString shownTransparency(OdCmTransparency transparency) {
  if (transparency.isByLayer()) return QStringLiteral("ByLayer");
  if (transparency.isByBlock()) return QStringLiteral("ByBlock");
  return OdString::number(transparency.percent());
}

OdString shownPlotStyle(OdDb::PlotStyleNameType type, OdDbObjectId id) {
  if (type == OdDb::kPlotStyleNameByLayer) return QStringLiteral("ByLayer");
  if (type == OdDb::kPlotStyleNameByBlock) return QStringLiteral("ByBlock");
  const OdDbObjectPtr style = id.openObject();
  if (type == OdDb::kPlotStyleNameIsDictDefault || !style) return QStringLiteral("Normal");
  const OdDbDictionaryPtr names = style->database()->getPlotStyleNameDictionaryId().openObject();
  return names ? names->nameAt(id) : OdString();
}

OdString recordName(OdDbObjectId id) {
  const OdDbObjectPtr object = id.openObject();
  const auto* const record = odrxCast<OdDbSymbolTableRecord>(object.get());
  return record ? record->getName() : OdString();
}

OdDbObjectId shownLinetype(const OdDbEntity& entity) {
  const OdDbObjectId own = entity.linetypeId();
  const OdDbDatabase* const database = entity.database();
  return own.isNull() && database ? database->getLinetypeByLayerId() : own;
}

} // namespace drafton
