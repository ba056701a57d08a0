#include "drafton/engine/selection_filter.h"

#include "drafton/engine/commands/shown_values.h"
#include "drafton/engine/commands/wildcard.h"
#include "drawing/database.h"

#include <algorithm>

namespace drafton {
namespace {

/// Names by which users know kinds beside those of files.
struct TypeName {
  const char16_t* name;
  const char* dxfName;
};

constexpr TypeName kTypeNames[] = {
    {u"PLINE", "LWPOLYLINE"},  {u"PLINE", "POLYLINE"},      {u"POLYLINE", "LWPOLYLINE"},
    {u"BLOCK", "INSERT"},      {u"RASTERIMAGE", "IMAGE"},   {u"DIM", "DIMENSION"},
    {u"DIM", "ARC_DIMENSION"}, {u"MULTILEADER", "MLEADER"},
};

/// All names of an entity's kind.
QStringList typeNamesOf(const OdDbEntity& entity) {
  QStringList names{QLatin1String(entity.dxfName()), entity.isA()->name()};
  for (const TypeName& row : kTypeNames)
    if (names[0] == QLatin1String(row.dxfName)) names << OdString::fromUtf16(row.name);
  return names;
}

bool isOfType(const OdDbEntity& entity, const OdString& patterns) {
  const QStringList names = typeNamesOf(entity);
  const auto isMeant = [&](const OdString& pattern) {
    const auto fits = [&](const OdString& name) { return matchesWildcard(name, pattern); };
    // What must not be named so must not have any such name.
    return pattern.startsWith(u'~') ? std::all_of(names.begin(), names.end(), fits)
                                    : std::any_of(names.begin(), names.end(), fits);
  };
  const QStringList each = patterns.split(u',', Qt::SkipEmptyParts);
  return std::any_of(each.begin(), each.end(), isMeant);
}

} // namespace

bool SelectionFilter::isSet() const {
  return !types.isEmpty() || !layers.isEmpty() || !linetypes.isEmpty() || color;
}

bool SelectionFilter::accepts(const OdDbEntity& entity) const {
  if (!types.isEmpty() && !isOfType(entity, types)) return false;
  if (!layers.isEmpty() && !matchesWildcard(entity.layer(), layers)) return false;
  if (!linetypes.isEmpty() && !matchesWildcard(entity.linetype(), linetypes)) return false;
  return !color || entity.color() == *color;
}

OdString SelectionFilter::shown() const {
  QStringList parts;
  if (!types.isEmpty()) parts << QStringLiteral("Type=") + types;
  if (!layers.isEmpty()) parts << QStringLiteral("Layer=") + layers;
  if (!linetypes.isEmpty()) parts << QStringLiteral("LType=") + linetypes;
  if (color) parts << QStringLiteral("Color=") + shownColor(*color);
  return parts.join(QStringLiteral("  "));
}

} // namespace drafton
