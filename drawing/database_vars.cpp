// Header variables and current values.
#include "drawing/database_data.h"
#include "drawing/objects/dictionary_vars.h"
#include "drawing/objects/xref_manager.h"
#include "drawing/tables/dim_var_values.h"
#include "drawing/tables/standard_arrows.h"

namespace {

using V = OdDbHeaderVarInfo;

int indexOf(const V* row) { return static_cast<int>(row - oddbHeaderVars().data()); }

bool inRange(const V& row, double value) {
  return std::isfinite(value) && value >= row.min && value <= row.max;
}

/// The value in the form in which the drawing keeps it, or nothing if it does not fit the row.
std::optional<OdDbVarValue> fitting(const V& row, const OdDbVarValue& value,
                                    const OdDbDatabaseData& data) {
  const auto* const whole = std::get_if<std::int64_t>(&value);
  switch (row.type) {
  case V::kInt:
    if (whole && *whole == static_cast<std::int32_t>(*whole) &&
        inRange(row, static_cast<double>(*whole)))
      return value;
    return std::nullopt;
  case V::kReal:
  case V::kTime: {
    const auto* const real = std::get_if<double>(&value);
    if (!whole && !real) return std::nullopt;
    const double number = real ? *real : static_cast<double>(*whole);
    return inRange(row, number) ? std::optional<OdDbVarValue>(number) : std::nullopt;
  }
  case V::kText:
    return std::holds_alternative<OdString>(value) ? std::optional(value) : std::nullopt;
  case V::kPoint3d:
  case V::kPoint2d: {
    const auto* const point = std::get_if<OdGePoint3d>(&value);
    return point && odgeIsFinite(*point) ? std::optional(value) : std::nullopt;
  }
  case V::kColor:
    if (whole && *whole >= 0 && *whole <= OdCmColor::kACIbyLayer)
      return OdCmColor::fromColorIndex(static_cast<int>(*whole));
    return std::holds_alternative<OdCmColor>(value) ? std::optional(value) : std::nullopt;
  case V::kHandle:
    return std::holds_alternative<OdDbObjectId>(value) ? std::optional(value) : std::nullopt;
  case V::kLayer:
  case V::kLinetype:
  case V::kTextStyle:
  case V::kDimStyle:
    break;
  }
  const OdDbObjectId tableId = data.tables[*oddbTableOf(row)];
  OdDbObjectId id;
  if (const auto* name = std::get_if<OdString>(&value))
    id = tableId.openAs<OdDbSymbolTable>()->getAt(*name);
  else if (const auto* given = std::get_if<OdDbObjectId>(&value); given && given->isValid())
    if (given->openObject()->ownerId() == tableId) id = *given;
  // What belongs to a reference goes with it.
  if (id.isNull() || OdDbXRefMan::owns(*id.openAs<OdDbSymbolTableRecord>())) return std::nullopt;
  return id;
}

/// What a style could not take is refused, and arrows are given the names of their blocks.
bool fitsDimensions(const V& row, OdDbVarValue& value, OdDbDatabase& database) {
  static constexpr std::string_view kArrows[] = {"DIMBLK", "DIMBLK1", "DIMBLK2", "DIMLDRBLK"};
  const OdDbDimVarInfo* const dimension = oddbFindDimVar(OdString(QLatin1String(row.name)));
  if (!dimension) return true;
  auto* const text = std::get_if<OdString>(&value);
  if (text && std::find(std::begin(kArrows), std::end(kArrows), row.name) != std::end(kArrows)) {
    const auto block = oddb::arrowBlockNamed(database, *text);
    if (!block) return false;
    *text = *block;
  }
  OdDbDimVarValues values;
  return oddb::setDimVar(values, *dimension, value, &database);
}

const V& row(const char* name) {
  const V* const found = oddbFindHeaderVar(QLatin1String(name).toString());
  if (!found)
    throw OdError(eInvalidInput, QStringLiteral("No header variable ") + QLatin1String(name));
  return *found;
}

template <class T>
T valueOf(const OdDbDatabaseData& data, const char* name) {
  const OdDbVarValue& value = data.vars[static_cast<std::size_t>(indexOf(&row(name)))];
  const T* const found = std::get_if<T>(&value);
  return found ? *found : T{};
}

void require(bool ok, const char* what) {
  if (!ok)
    throw OdDbError(eNullObjectId, QStringLiteral("There is no such %1").arg(QLatin1String(what)));
}

const QLatin1String kTransparency("CETRANSPARENCY");

} // namespace

std::optional<OdDbDatabaseData::Table> oddbTableOf(const OdDbHeaderVarInfo& row) {
  switch (row.type) {
  case V::kLayer:
    return OdDbDatabaseData::kLayers;
  case V::kLinetype:
    return OdDbDatabaseData::kLinetypes;
  case V::kTextStyle:
    return OdDbDatabaseData::kTextStyles;
  case V::kDimStyle:
    return OdDbDatabaseData::kDimStyles;
  default:
    return std::nullopt;
  }
}

OdDb::DwgVersion oddbHeaderVarSince(const OdDbHeaderVarInfo& row) {
  // All others are as old as R2000.
  static constexpr std::string_view kR2004Vars[] = {
      "DIMASSOC", "HALOGAP",  "HIDETEXT",    "INDEXCTL", "INTERSECTIONCOLOR", "INTERSECTIONDISPLAY",
      "OBSCOLOR", "OBSLTYPE", "PROJECTNAME", "SORTENTS", "XCLIPFRAME"};
  static constexpr std::string_view kR2007Vars[] = {"3DDWFPREC",
                                                    "CAMERADISPLAY",
                                                    "CAMERAHEIGHT",
                                                    "CSHADOW",
                                                    "DGNFRAME",
                                                    "DIMARCSYM",
                                                    "DIMFXL",
                                                    "DIMFXLON",
                                                    "DIMJOGANG",
                                                    "DIMLTEX1",
                                                    "DIMLTEX2",
                                                    "DIMLTYPE",
                                                    "DIMTFILL",
                                                    "DIMTFILLCLR",
                                                    "DWFFRAME",
                                                    "INTERFERECOLOR",
                                                    "LENSLENGTH",
                                                    "LIGHTGLYPHDISPLAY",
                                                    "LOFTANG1",
                                                    "LOFTANG2",
                                                    "LOFTMAG1",
                                                    "LOFTMAG2",
                                                    "LOFTNORMALS",
                                                    "LOFTPARAM",
                                                    "NORTHDIRECTION",
                                                    "PSOLHEIGHT",
                                                    "PSOLWIDTH",
                                                    "REALWORLDSCALE",
                                                    "SHADOWPLANELOCATION",
                                                    "SHOWHIST",
                                                    "SOLIDHIST",
                                                    "STEPSIZE",
                                                    "STEPSPERSEC",
                                                    "TILEMODELIGHTSYNCH"};
  const auto names = [&](const auto& list) {
    return std::binary_search(std::begin(list), std::end(list), std::string_view(row.name));
  };
  if (names(kR2007Vars)) return OdDb::kR2007;
  if (names(kR2004Vars)) return OdDb::kR2004;
  return std::string_view(row.name) == "DIMTXTDIRECTION" ? OdDb::kR2010 : OdDb::kR2000;
}

OdDbVarValue oddbPresetOf(const OdDbHeaderVarInfo& row) {
  const OdString text = oddbPresetText(row);
  const QStringList numbers = text.split(QLatin1Char(' '));
  switch (row.type) {
  case V::kInt:
    return std::int64_t{text.toInt()};
  case V::kReal:
  case V::kTime:
    return text.toDouble();
  case V::kPoint3d:
    return OdGePoint3d{numbers[0].toDouble(), numbers[1].toDouble(), numbers[2].toDouble()};
  case V::kPoint2d:
    return OdGePoint3d{numbers[0].toDouble(), numbers[1].toDouble(), 0};
  case V::kColor:
    return OdCmColor::fromColorIndex(text.toInt());
  case V::kHandle:
    return OdDbObjectId();
  default:
    return text;
  }
}

std::optional<OdDbVarValue> OdDbDatabase::getSysVar(const OdString& name) const {
  const V* const found = oddbFindHeaderVar(name);
  if (!found) return std::nullopt;
  const OdDbVarValue& value = m_data->vars[static_cast<std::size_t>(indexOf(found))];
  if (oddbTableOf(*found)) {
    const auto* const id = std::get_if<OdDbObjectId>(&value);
    const OdDbSymbolTableRecordPtr record = id ? id->openObject(OdDb::kForRead, true) : nullptr;
    return record ? record->getName() : OdString();
  }
  return value;
}

bool OdDbDatabase::setSysVar(const OdString& name, const OdDbVarValue& value) {
  const V* const found = oddbFindHeaderVar(name);
  auto fit = found ? fitting(*found, value, *m_data) : std::nullopt;
  if (!fit || !fitsDimensions(*found, *fit, *this)) return false;
  const int index = indexOf(found);
  const auto i = static_cast<std::size_t>(index);
  if (m_data->vars[i] == *fit && m_data->varPresent[i]) return true;
  m_data->undo.willSetVar(index);
  m_data->vars[i] = *fit;
  m_data->varPresent[i] = true;
  m_data->modified = true;
  if (std::string_view(found->name) == "CECOLOR") oddb::keepExactColor(*this);
  m_data->tell(
      [&](OdDbDatabaseReactor& r) { r.headerSysVarChanged(*this, QLatin1String(found->name)); });
  return true;
}

std::int64_t OdDbDatabase::sysVarInt(const char* name) const {
  const auto value = getSysVar(QLatin1String(name));
  const auto* const found = value ? std::get_if<std::int64_t>(&*value) : nullptr;
  return found ? *found : 0;
}

double OdDbDatabase::sysVarReal(const char* name) const {
  const auto value = getSysVar(QLatin1String(name));
  const auto* const found = value ? std::get_if<double>(&*value) : nullptr;
  return found ? *found : 0;
}

OdString OdDbDatabase::sysVarText(const char* name) const {
  const auto value = getSysVar(QLatin1String(name));
  const auto* const found = value ? std::get_if<OdString>(&*value) : nullptr;
  return found ? *found : OdString();
}

OdGePoint3d OdDbDatabase::sysVarPoint(const char* name) const {
  const auto value = getSysVar(QLatin1String(name));
  const auto* const found = value ? std::get_if<OdGePoint3d>(&*value) : nullptr;
  return found ? *found : OdGePoint3d();
}

OdCmColor OdDbDatabase::currentColor() const { return valueOf<OdCmColor>(*m_data, "CECOLOR"); }
void OdDbDatabase::setCurrentColor(const OdCmColor& color) {
  setSysVar(QStringLiteral("CECOLOR"), color);
}

OdDbObjectId OdDbDatabase::currentLayer() const { return valueOf<OdDbObjectId>(*m_data, "CLAYER"); }
void OdDbDatabase::setCurrentLayer(OdDbObjectId layer) {
  require(setSysVar(QStringLiteral("CLAYER"), layer), "layer");
}

OdDbObjectId OdDbDatabase::currentLinetype() const {
  return valueOf<OdDbObjectId>(*m_data, "CELTYPE");
}
void OdDbDatabase::setCurrentLinetype(OdDbObjectId linetype) {
  require(setSysVar(QStringLiteral("CELTYPE"), linetype), "line type");
}

double OdDbDatabase::currentLinetypeScale() const { return valueOf<double>(*m_data, "CELTSCALE"); }
void OdDbDatabase::setCurrentLinetypeScale(double scale) {
  if (!setSysVar(QStringLiteral("CELTSCALE"), scale))
    throw OdError(eInvalidInput, QStringLiteral("%1 is no line type scale").arg(scale));
}

OdDb::PlotStyleNameType OdDbDatabase::currentPlotStyleType() const {
  return static_cast<OdDb::PlotStyleNameType>(valueOf<std::int64_t>(*m_data, "CEPSNTYPE"));
}

OdDbObjectId OdDbDatabase::currentPlotStyleId() const {
  return currentPlotStyleType() == OdDb::kPlotStyleNameById
             ? valueOf<OdDbObjectId>(*m_data, "CEPSNID")
             : OdDbObjectId();
}

void OdDbDatabase::setCurrentPlotStyle(OdDb::PlotStyleNameType type, OdDbObjectId id) {
  const OdString named = QStringLiteral("CEPSNID");
  if (type == OdDb::kPlotStyleNameById) {
    require(id.isValid(), "plot style");
    setSysVar(named, id);
  } else if (currentPlotStyleType() == OdDb::kPlotStyleNameById) {
    // The former name does not stay behind, and files do not say that there is none.
    setSysVar(named, OdDbObjectId());
    m_data->varPresent[static_cast<std::size_t>(indexOf(oddbFindHeaderVar(named)))] = false;
  }
  setSysVar(QStringLiteral("CEPSNTYPE"), std::int64_t{type});
}

OdDb::LineWeight OdDbDatabase::currentLineWeight() const {
  return static_cast<OdDb::LineWeight>(valueOf<std::int64_t>(*m_data, "CELWEIGHT"));
}

void OdDbDatabase::setCurrentLineWeight(OdDb::LineWeight weight) {
  if (!OdDb::isValidLineWeight(weight) ||
      !setSysVar(QStringLiteral("CELWEIGHT"), std::int64_t{weight}))
    throw OdError(eInvalidInput, QStringLiteral("%1 is no line weight").arg(int{weight}));
}

OdCmTransparency OdDbDatabase::currentTransparency() const {
  const OdString text = oddb::dictionaryVar(*this, kTransparency);
  if (text.compare(QLatin1String("ByBlock"), Qt::CaseInsensitive) == 0)
    return OdCmTransparency(OdCmTransparency::kByBlock);
  bool isNumber = false;
  const int percent = text.toInt(&isNumber);
  if (!isNumber || percent < 0 || percent > 100) return {};
  return oddb::exactTransparency(*this, OdCmTransparency::fromPercent(percent));
}

void OdDbDatabase::setCurrentTransparency(OdCmTransparency transparency) {
  if (transparency == currentTransparency()) return;
  OdString text;
  switch (transparency.method()) {
  case OdCmTransparency::kByLayer:
    text = QStringLiteral("ByLayer");
    break;
  case OdCmTransparency::kByBlock:
    text = QStringLiteral("ByBlock");
    break;
  case OdCmTransparency::kByAlpha:
    text = OdString::number(transparency.percent());
    break;
  }
  oddb::setDictionaryVar(*this, kTransparency, text);
  oddb::keepExactTransparency(*this, transparency);
}

OdDbObjectId OdDbDatabase::currentTextStyle() const {
  return valueOf<OdDbObjectId>(*m_data, "TEXTSTYLE");
}
void OdDbDatabase::setCurrentTextStyle(OdDbObjectId style) {
  require(setSysVar(QStringLiteral("TEXTSTYLE"), style), "text style");
}

OdDbObjectId OdDbDatabase::currentDimStyle() const {
  return valueOf<OdDbObjectId>(*m_data, "DIMSTYLE");
}
void OdDbDatabase::setCurrentDimStyle(OdDbObjectId style) {
  require(setSysVar(QStringLiteral("DIMSTYLE"), style), "dimension style");
}
