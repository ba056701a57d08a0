#include "drawing/tables/dim_style_table.h"

#include "drawing/database_data.h"
#include "drawing/dxf/in.h"
#include "drawing/dxf/kept_tags.h"
#include "drawing/dxf/residue.h"

namespace {

/// A variable of a dimension style: its name in the header, its code in the style, and what holds
/// if the style does not have it.
struct DimVar {
  const char* name;
  int code;
  const char* preset;
};

constexpr DimVar kDimVars[] = {
    {"DIMPOST", 3, ""},
    {"DIMAPOST", 4, ""},
    {"DIMSCALE", 40, "1"},
    {"DIMASZ", 41, "0.18"},
    {"DIMEXO", 42, "0.0625"},
    {"DIMDLI", 43, "0.38"},
    {"DIMEXE", 44, "0.18"},
    {"DIMRND", 45, "0"},
    {"DIMDLE", 46, "0"},
    {"DIMTP", 47, "0"},
    {"DIMTM", 48, "0"},
    {"DIMFXL", 49, "1"},
    {"DIMJOGANG", 50, "0.7853981633974483"},
    {"DIMTFILL", 69, "0"},
    {"DIMTFILLCLR", 70, "0"},
    {"DIMTOL", 71, "0"},
    {"DIMLIM", 72, "0"},
    {"DIMTIH", 73, "1"},
    {"DIMTOH", 74, "1"},
    {"DIMSE1", 75, "0"},
    {"DIMSE2", 76, "0"},
    {"DIMTAD", 77, "0"},
    {"DIMZIN", 78, "0"},
    {"DIMAZIN", 79, "0"},
    {"DIMARCSYM", 90, "0"},
    {"DIMTXT", 140, "0.18"},
    {"DIMCEN", 141, "0.09"},
    {"DIMTSZ", 142, "0"},
    {"DIMALTF", 143, "25.4"},
    {"DIMLFAC", 144, "1"},
    {"DIMTVP", 145, "0"},
    {"DIMTFAC", 146, "1"},
    {"DIMGAP", 147, "0.09"},
    {"DIMALTRND", 148, "0"},
    {"DIMALT", 170, "0"},
    {"DIMALTD", 171, "2"},
    {"DIMTOFL", 172, "0"},
    {"DIMSAH", 173, "0"},
    {"DIMTIX", 174, "0"},
    {"DIMSOXD", 175, "0"},
    {"DIMCLRD", 176, "0"},
    {"DIMCLRE", 177, "0"},
    {"DIMCLRT", 178, "0"},
    {"DIMADEC", 179, "0"},
    {"DIMDEC", 271, "4"},
    {"DIMTDEC", 272, "4"},
    {"DIMALTU", 273, "2"},
    {"DIMALTTD", 274, "2"},
    {"DIMAUNIT", 275, "0"},
    {"DIMFRAC", 276, "0"},
    {"DIMLUNIT", 277, "2"},
    {"DIMDSEP", 278, "46"},
    {"DIMTMOVE", 279, "0"},
    {"DIMJUST", 280, "0"},
    {"DIMSD1", 281, "0"},
    {"DIMSD2", 282, "0"},
    {"DIMTOLJ", 283, "1"},
    {"DIMTZIN", 284, "0"},
    {"DIMALTZ", 285, "0"},
    {"DIMALTTZ", 286, "0"},
    {"DIMUPT", 288, "0"},
    {"DIMATFIT", 289, "3"},
    {"DIMFXLON", 290, "0"},
    {"DIMTXTDIRECTION", 295, "0"},
    {"DIMTXSTY", 340, "0"},
    {"DIMLDRBLK", 341, "0"},
    {"DIMBLK", 342, "0"},
    {"DIMBLK1", 343, "0"},
    {"DIMBLK2", 344, "0"},
    {"DIMLTYPE", 345, "0"},
    {"DIMLTEX1", 346, "0"},
    {"DIMLTEX2", 347, "0"},
    {"DIMLWD", 371, "-2"},
    {"DIMLWE", 372, "-2"},
};

bool isReference(const DimVar& var) { return var.code >= 340 && var.code <= 347; }

/// The value of a code among kept lines; null if it is not there.
std::optional<QByteArray> keptValue(const OdDbDimStyleTableRecord& style, int code) {
  const QByteArray* const lines =
      style.residue() ? style.residue()->of(style.dxfSubclass()) : nullptr;
  if (!lines) return std::nullopt;
  const OdDbKeptTags tags(*lines);
  const QByteArray* const value = tags.find(code);
  return value ? std::optional(*value) : std::nullopt;
}

} // namespace

bool OdDbDimStyleTableRecord::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  // A later code 70 is not the flags but a variable.
  if (tag.code == 70 && in.in(dxfSubclass()) && std::exchange(m_flagsRead, true)) return false;
  return OdDbSymbolTableRecord::dxfInTag(tag, in);
}

std::optional<OdDbVarValue> OdDbDimStyleTableRecord::variable(const OdString& name) const {
  const OdDbHeaderVarInfo* const row = oddbFindHeaderVar(name);
  const auto* const var =
      row ? std::find_if(std::begin(kDimVars), std::end(kDimVars),
                         [&](const DimVar& v) { return std::string_view(v.name) == row->name; })
          : std::end(kDimVars);
  if (var == std::end(kDimVars)) return std::nullopt;
  const QByteArray kept = keptValue(*this, var->code).value_or(QByteArray(var->preset));
  const OdString text = OdString::fromUtf8(kept);
  if (isReference(*var)) {
    const auto handle = OdDbHandle::fromText(kept.trimmed().toStdString());
    const OdDbObjectId id =
        database() && handle ? database()->getOdDbObjectId(*handle) : OdDbObjectId();
    const auto* const record = odrxCast<OdDbSymbolTableRecord>(id.openObject().get());
    return record ? record->getName() : OdString();
  }
  switch (row->type) {
  case OdDbHeaderVarInfo::kInt:
    return std::int64_t{text.trimmed().toInt()};
  case OdDbHeaderVarInfo::kReal:
    return text.trimmed().toDouble();
  default:
    return text;
  }
}

void OdDbDatabase::setDimstyleData(OdDbObjectId style) {
  const auto record = style.openAs<OdDbDimStyleTableRecord>();
  for (const DimVar& var : kDimVars) {
    const OdString name = QLatin1String(var.name);
    // What the drawing cannot take (a text style that is not there) keeps its former value.
    if (const auto value = record->variable(name)) setSysVar(name, *value);
  }
}
