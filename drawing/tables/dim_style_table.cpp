#include "drawing/tables/dim_style_table.h"

#include "drawing/database_data.h"
#include "drawing/tables/dim_var_values.h"

#include <algorithm>

namespace {

using Values = OdDbDimVarValues;

constexpr OdDbDimVarInfo kRows[] = {
#define ODDB_DIM_ROW(accessor, Accessor, NAME, code, Type, preset) {#NAME, code, &Values::accessor},
    ODDB_DIM_VARS(ODDB_DIM_ROW)
#undef ODDB_DIM_ROW
};
static_assert(std::size(kRows) <= 128);

OdDbVarValue nameOf(OdDbObjectId id) {
  const OdDbObjectPtr record = id.openObject();
  const auto* const named = odrxCast<OdDbSymbolTableRecord>(record.get());
  return named ? named->getName() : OdString();
}

OdDbVarValue shown(double value) { return value; }
OdDbVarValue shown(int value) { return std::int64_t{value}; }
OdDbVarValue shown(bool value) { return std::int64_t{value}; }
OdDbVarValue shown(const OdString& value) { return value; }
OdDbVarValue shown(OdDb::LineWeight value) { return std::int64_t{value}; }
OdDbVarValue shown(OdDbObjectId value) { return nameOf(value); }
OdDbVarValue shown(const OdCmColor& value) { return std::int64_t{value.colorIndex()}; }

/// The table in which a reference is found by name.
OdDbObjectId tableOf(const OdDbDatabase& database, const OdDbDimVarInfo& row) {
  if (row.code == 340) return database.getTextStyleTableId();
  return row.code <= 344 ? database.getBlockTableId() : database.getLinetypeTableId();
}

/// A given value in the form of a member; nothing if it does not fit.
template <class T>
std::optional<T> fitting(const OdDbVarValue& value, const OdDbDatabase* database,
                         const OdDbDimVarInfo& row) {
  const auto* const whole = std::get_if<std::int64_t>(&value);
  if constexpr (std::is_same_v<T, double>) {
    if (whole) return static_cast<double>(*whole);
    const auto* const real = std::get_if<double>(&value);
    return real && std::isfinite(*real) ? std::optional(*real) : std::nullopt;
  } else if constexpr (std::is_same_v<T, OdString>) {
    const auto* const text = std::get_if<OdString>(&value);
    return text ? std::optional(*text) : std::nullopt;
  } else if constexpr (std::is_same_v<T, OdCmColor>) {
    if (whole && *whole >= 0 && *whole <= OdCmColor::kACInone)
      return OdCmColor::fromColorIndex(static_cast<int>(*whole));
    const auto* const color = std::get_if<OdCmColor>(&value);
    return color ? std::optional(*color) : std::nullopt;
  } else if constexpr (std::is_same_v<T, OdDbObjectId>) {
    if (const auto* const id = std::get_if<OdDbObjectId>(&value)) return *id;
    const auto* const name = std::get_if<OdString>(&value);
    if (!name) return std::nullopt;
    if (name->isEmpty() || *name == u".") return OdDbObjectId();
    if (!database) return std::nullopt;
    const OdDbObjectId found = tableOf(*database, row).openAs<OdDbSymbolTable>()->getAt(*name);
    return found.isNull() ? std::nullopt : std::optional(found);
  } else if constexpr (std::is_same_v<T, OdDb::LineWeight>) {
    if (!whole || !OdDb::isValidLineWeight(static_cast<int>(*whole))) return std::nullopt;
    return static_cast<OdDb::LineWeight>(*whole);
  } else {
    return whole && *whole == static_cast<int>(*whole) ? std::optional(static_cast<T>(*whole))
                                                       : std::nullopt;
  }
}

} // namespace

std::span<const OdDbDimVarInfo> oddbDimVars() { return kRows; }

const OdDbDimVarInfo* oddbFindDimVar(QStringView name) {
  if (name.startsWith(u'$')) name = name.mid(1);
  const auto* const at = std::find_if(std::begin(kRows), std::end(kRows), [&](const auto& row) {
    return name.compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0;
  });
  return at == std::end(kRows) ? nullptr : at;
}

const OdDbDimVarInfo* oddbFindDimVar(int code) {
  const auto* const at = std::find_if(std::begin(kRows), std::end(kRows), [&](const auto& row) {
    return row.code == code && code != 0;
  });
  return at == std::end(kRows) ? nullptr : at;
}

OdDbDimStyleTableRecord::OdDbDimStyleTableRecord() = default;

void OdDbDimStyleTableRecord::assignFrom(const OdDbObject& other) {
  OdDbSymbolTableRecord::assignFrom(other);
  const auto& style = static_cast<const OdDbDimStyleTableRecord&>(other);
  m_values = style.m_values;
  m_inFile = style.m_inFile;
}

void OdDbDimStyleTableRecord::setValues(const OdDbDimVarValues& values) {
  assertWriteEnabled();
  m_values = values;
}

std::optional<OdDbVarValue> OdDbDimStyleTableRecord::variable(const OdString& name) const {
  const OdDbDimVarInfo* const row = oddbFindDimVar(name);
  if (!row) return std::nullopt;
  return std::visit([&](auto member) { return shown(m_values.*member); }, row->member);
}

bool OdDbDimStyleTableRecord::setVariable(const OdString& name, const OdDbVarValue& value) {
  const OdDbDimVarInfo* const row = oddbFindDimVar(name);
  OdDbDimVarValues values = m_values;
  if (!row || !oddb::setDimVar(values, *row, value, database())) return false;
  setValues(values);
  return true;
}

bool oddb::setDimVar(OdDbDimVarValues& values, const OdDbDimVarInfo& row, const OdDbVarValue& value,
                     const OdDbDatabase* database) {
  return std::visit(
      [&](auto member) {
        using T = std::remove_cvref_t<decltype(values.*member)>;
        const std::optional<T> fit = fitting<T>(value, database, row);
        if (fit) values.*member = *fit;
        return fit.has_value();
      },
      row.member);
}

void OdDbDatabase::setDimstyleData(OdDbObjectId style) {
  const auto record = style.openAs<OdDbDimStyleTableRecord>();
  for (const OdDbDimVarInfo& row : kRows) {
    const OdString name = QLatin1String(row.name);
    // What the drawing cannot take (a text style that is not there) keeps its former value.
    if (const auto value = record->variable(name)) setSysVar(name, *value);
  }
}
