// Styles that stand in dictionaries, known by their names.
#pragma once

#include "drawing/database.h"

namespace oddb {

/// What stands in a dictionary of named objects.
enum class NamedKind : std::uint8_t {
  kGroup,
  kLayout,
  kImage,
  kMaterial,
  kMLineStyle,
  kMLeaderStyle,
  kPlotSettings,
  kPlotStyle,
  kTableStyle,
  kVisualStyle,
  kScale,
};

/// The name of a kind's dictionary ("ACAD_TABLESTYLE").
OdString namedDictionaryName(NamedKind kind);
/// The dictionary; null if the drawing has none.
OdDbObjectId namedDictionary(const OdDbDatabase& database, NamedKind kind);
/// The same, made if there is none.
OdDbObjectId createNamedDictionary(OdDbDatabase& database, NamedKind kind);
/// The names in it, without those of erased objects.
QStringList namesOf(const OdDbDatabase& database, NamedKind kind);
/// The object of a name, in any case; null if there is none.
OdDbObjectId findNamed(const OdDbDatabase& database, NamedKind kind, const OdString& name);
/// The name of an object in its dictionary; empty if it stands in none.
OdString nameOf(OdDbObjectId object);

} // namespace oddb
