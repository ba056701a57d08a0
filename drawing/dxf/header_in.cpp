// Reading the header of a drawing.
#include "drawing/dxf/document_in.h"

#include "drawing/dxf/text.h"
#include "drawing/objects/dictionary_vars.h"

#include <unordered_map>

namespace {

/// The row of a variable by its name in the file; null if there is none. `expected` is where it
/// stands if the file has the order of the table, as most files have.
const OdDbHeaderVarInfo* rowOf(std::string_view name, std::size_t expected) {
  const auto vars = oddbHeaderVars();
  if (name.starts_with('$') && expected < vars.size() && name.substr(1) == vars[expected].name)
    return &vars[expected];
  // A header asks for some hundred of them, nearly all written as programs write them.
  static const auto byName = [] {
    std::unordered_map<std::string_view, const OdDbHeaderVarInfo*> all;
    for (const OdDbHeaderVarInfo& row : oddbHeaderVars()) all.emplace(row.name, &row);
    return all;
  }();
  if (name.starts_with('$'))
    if (const auto at = byName.find(name.substr(1)); at != byName.end()) return at->second;
  return oddbFindHeaderVar(OdString::fromLatin1(name.data(), static_cast<qsizetype>(name.size())));
}

/// Takes a value, or one coordinate of a point, as its variable's type has it.
void takeValue(OdDbVarValue& value, OdDbHeaderVarInfo::Type type, const OdDbDxfTag& tag,
               OdDbDxfIn& in) {
  switch (type) {
  case OdDbHeaderVarInfo::kInt:
    value = in.longInteger(tag, 0);
    break;
  case OdDbHeaderVarInfo::kReal:
  case OdDbHeaderVarInfo::kTime:
    value = in.real(tag, 0);
    break;
  case OdDbHeaderVarInfo::kPoint3d:
  case OdDbHeaderVarInfo::kPoint2d: {
    if (!std::holds_alternative<OdGePoint3d>(value)) value = OdGePoint3d();
    auto& point = std::get<OdGePoint3d>(value);
    double& part = tag.code == 10 ? point.x : (tag.code == 20 ? point.y : point.z);
    part = in.real(tag, part);
    break;
  }
  case OdDbHeaderVarInfo::kColor: {
    const int index = in.integer(tag, OdCmColor::kACIbyLayer);
    if (index >= 0 && index <= OdCmColor::kACInone) value = OdCmColor::fromColorIndex(index);
    break;
  }
  case OdDbHeaderVarInfo::kHandle:
    value = in.reference(tag);
    break;
  // Records are found by name when all of them are there.
  default:
    value = in.text(tag.text);
    break;
  }
}

} // namespace

void OdDbDxfReader::readHeader() {
  const auto vars = oddbHeaderVars();
  OdDbHeaderEntry* entry = nullptr;
  std::size_t expected = 0;
  m_data.headerOrder.clear();
  m_data.headerOrder.reserve(vars.size());
  while (m_in.next() && m_in.tag().code != 0) {
    const OdDbDxfTag tag = m_in.tag();
    if (tag.code == 9) {
      const OdDbHeaderVarInfo* const row = rowOf(tag.text, expected);
      entry = &m_data.headerOrder.emplace_back();
      if (row) {
        entry->known = static_cast<int>(row - vars.data());
        expected = static_cast<std::size_t>(entry->known) + 1;
      } else {
        oddxf::addLines(entry->tags.edit(), 9, tag.text);
      }
      continue;
    }
    if (!entry) {
      m_in.damage(QStringLiteral("a value in the header has no name"));
      continue;
    }
    if (entry->known < 0) {
      oddxf::addLines(entry->tags.edit(), tag.code, tag.text);
      continue;
    }
    const auto i = static_cast<std::size_t>(entry->known);
    // Some variables changed their code between versions.
    if (entry->code == 0) entry->code = static_cast<std::int16_t>(tag.code);
    m_data.varPresent[i] = true;
    takeValue(m_data.vars[i], vars[i].type, tag, m_in);
  }
}

void OdDbDxfReader::finishHeader() {
  const auto vars = oddbHeaderVars();
  for (std::size_t i = 0; i < vars.size(); ++i) {
    OdDbVarValue& value = m_data.vars[i];
    const bool missing = std::holds_alternative<std::monostate>(value);
    if (missing) value = oddbPresetOf(vars[i]);
    if (auto* const color = std::get_if<OdCmColor>(&value);
        color && std::string_view(vars[i].name) == "CECOLOR")
      *color = oddb::exactColor(m_database, *color);
    const auto* const name = std::get_if<OdString>(&value);
    const auto table = oddbTableOf(vars[i]);
    if (!name || !table) continue;
    OdDbObjectId id = m_tables[*table]->getAt(*name);
    if (id.isNull()) {
      const auto& records = m_tables[*table]->recordIds();
      id = m_tables[*table]->getAt(oddbPresetText(vars[i]));
      if (id.isNull() && !records.empty()) id = records.front();
      if (!missing)
        m_in.note(QStringLiteral("$%1 names \"%2\", which is not there")
                      .arg(QLatin1String(vars[i].name), *name));
    }
    value = id;
  }
}
