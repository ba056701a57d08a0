#include "drafton/engine/host_variables.h"

#include "drafton/engine/engine.h"
#include "drafton/engine/value_parser.h"
#include "drafton/engine/variable_table.h"

namespace drafton {
namespace {

OdVariant fromHeader(const OdDbVarValue& value) {
  if (const auto* number = std::get_if<std::int64_t>(&value))
    return static_cast<std::int32_t>(*number);
  if (const auto* real = std::get_if<double>(&value)) return *real;
  if (const auto* text = std::get_if<OdString>(&value)) return *text;
  if (const auto* point = std::get_if<OdGePoint3d>(&value)) return pointValue(*point);
  if (const auto* color = std::get_if<OdCmColor>(&value)) return color->color();
  if (const auto* id = std::get_if<OdDbObjectId>(&value)) return id->getHandle().ascii();
  return {};
}

/// `value` as the header variable wants it; monostate if it cannot be that.
OdDbVarValue toHeader(const OdDbHeaderVarInfo& info, const OdVariant& value) {
  const OdString text = value.toString();
  switch (info.type) {
  case OdDbHeaderVarInfo::kInt: {
    if (!value.isText()) return value.toInt64();
    if (isCharacterVariable(OdString(QLatin1String(info.name))) && text.size() == 1 &&
        !text[0].isDigit())
      return std::int64_t{text[0].unicode()};
    const std::optional<int> number = parseInteger(text);
    return number ? OdDbVarValue(std::int64_t{*number}) : OdDbVarValue();
  }
  case OdDbHeaderVarInfo::kReal: {
    if (!value.isText()) return value.toDouble();
    const std::optional<double> number = parseReal(text);
    return number ? OdDbVarValue(*number) : OdDbVarValue();
  }
  case OdDbHeaderVarInfo::kPoint2d:
  case OdDbHeaderVarInfo::kPoint3d: {
    const std::optional<OdGePoint3d> point = pointFromValue(value);
    return point ? OdDbVarValue(*point) : OdDbVarValue();
  }
  case OdDbHeaderVarInfo::kColor: {
    const std::optional<OdCmColor> color = colorFromValue(value);
    return color ? OdDbVarValue(*color) : OdDbVarValue();
  }
  case OdDbHeaderVarInfo::kText:
  case OdDbHeaderVarInfo::kLayer:
  case OdDbHeaderVarInfo::kLinetype:
  case OdDbHeaderVarInfo::kTextStyle:
  case OdDbHeaderVarInfo::kDimStyle:
    return text;
  case OdDbHeaderVarInfo::kHandle:
  case OdDbHeaderVarInfo::kTime:
    break;
  }
  return {};
}

} // namespace

OdDbDatabase* HostVariables::database() const {
  return m_document ? m_document->database() : nullptr;
}

OdVariant HostVariables::stored(const VariableRow& row) const {
  const OdString name = OdString::fromUtf16(row.name);
  OdVariant value = presetValue(row);
  const auto lookUp = [&](const std::map<OdString, OdVariant>& values) {
    if (const auto at = values.find(name); at != values.end()) value = at->second;
  };
  switch (row.scope) {
  case VariableRow::Scope::kSession:
    lookUp(m_engine.sessionValues());
    break;
  case VariableRow::Scope::kDocument:
    if (m_document) lookUp(m_document->values());
    break;
  case VariableRow::Scope::kProfile: {
    OdVariant kept;
    if (m_engine.settings().get({QStringLiteral("Variables")}, name, kept))
      value = checkedValue(row, kept).value_or(value);
    break;
  }
  case VariableRow::Scope::kComputed:
    return row.get(m_engine, m_document);
  }
  return value;
}

bool HostVariables::store(const VariableRow& row, const OdVariant& value) {
  const OdString name = OdString::fromUtf16(row.name);
  switch (row.scope) {
  case VariableRow::Scope::kSession:
    m_engine.sessionValues()[name] = value;
    return true;
  case VariableRow::Scope::kDocument:
    if (m_document) m_document->values()[name] = value;
    return m_document != nullptr;
  case VariableRow::Scope::kProfile:
    m_engine.settings().set({QStringLiteral("Variables")}, name, value);
    return true;
  case VariableRow::Scope::kComputed:
    return row.set && row.set(m_engine, m_document, value);
  }
  return false;
}

bool HostVariables::get(const OdString& name, OdVariant& out) {
  if (const VariableRow* const row = findVariable(name)) {
    out = stored(*row);
    return true;
  }
  const OdDbDatabase* const drawing = database();
  const std::optional<OdDbVarValue> value = drawing ? drawing->getSysVar(name) : std::nullopt;
  if (value) out = fromHeader(*value);
  return value.has_value();
}

bool HostVariables::set(const OdString& name, const OdVariant& value) {
  const VariableRow* const row = findVariable(name);
  if (!row) {
    // The drawing tells its own changes, whoever makes them.
    OdDbDatabase* const drawing = database();
    const OdDbHeaderVarInfo* const info = drawing ? oddbFindHeaderVar(name) : nullptr;
    if (!info) return false;
    const OdDbVarValue converted = toHeader(*info, value);
    return converted.index() != 0 && drawing->setSysVar(name, converted);
  }
  const std::optional<OdVariant> checked = checkedValue(*row, value);
  if (!checked || !store(*row, *checked)) return false;
  m_engine.events().fire(
      [&](HostEditorReactor& r) { r.sysVarChanged(database(), OdString::fromUtf16(row->name)); });
  return true;
}

bool HostVariables::isWritable(const OdString& name) const {
  if (const VariableRow* const row = findVariable(name))
    return row->scope != VariableRow::Scope::kComputed || row->set;
  const OdDbHeaderVarInfo* const info = database() ? oddbFindHeaderVar(name) : nullptr;
  return info && info->type != OdDbHeaderVarInfo::kHandle && info->type != OdDbHeaderVarInfo::kTime;
}

QStringList HostVariables::names() const {
  QStringList all;
  for (const VariableRow& row : variableTable()) all << OdString::fromUtf16(row.name);
  if (database())
    for (const OdDbHeaderVarInfo& info : oddbHeaderVars())
      if (!findVariable(OdString::fromLatin1(info.name))) all << OdString::fromLatin1(info.name);
  all.sort(Qt::CaseInsensitive);
  return all;
}

} // namespace drafton
