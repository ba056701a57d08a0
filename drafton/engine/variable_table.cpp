#include "drafton/engine/variable_table.h"

#include "drafton/engine/dxf_versions.h"
#include "drafton/engine/engine.h"
#include "drafton/engine/value_parser.h"
#include "frame/file_path.h"

#include <QSysInfo>

#include <algorithm>

namespace drafton {
namespace {

using Type = VariableRow::Type;
using Scope = VariableRow::Scope;

constexpr double kNoLimit = std::numeric_limits<double>::infinity();
constexpr double kAboveZero = std::numeric_limits<double>::min();

OdVariant dbMod(Engine&, Document* document) {
  return std::int32_t{document && document->isModified() ? 1 : 0};
}
OdVariant documentName(Engine&, Document* document) {
  return document ? document->name() : OdString();
}
OdVariant documentFolder(Engine&, Document* document) {
  return document ? odpath::folderOf(document->path()) : OdString();
}
OdVariant isTitled(Engine&, Document* document) {
  return std::int32_t{document && !document->path().isEmpty() ? 1 : 0};
}
OdVariant lastPoint(Engine&, Document* document) {
  return pointValue(document ? document->lastPoint() : OdGePoint3d());
}
bool setLastPoint(Engine&, Document* document, const OdVariant& value) {
  const std::optional<OdGePoint3d> point = pointFromValue(value);
  if (point && document) document->setLastPoint(*point);
  return point && document;
}
OdVariant runningCommands(Engine&, Document* document) {
  return document ? document->processor().runningCommands().join(u'\'') : OdString();
}
OdVariant platform(Engine&, Document*) { return QSysInfo::prettyProductName(); }

OdVariant transparency(Engine&, Document* document) {
  const OdDbDatabase* const database = document ? document->database() : nullptr;
  if (!database) return OdString();
  const OdCmTransparency current = database->currentTransparency();
  if (current.isByLayer()) return QStringLiteral("BYLAYER");
  if (current.isByBlock()) return QStringLiteral("BYBLOCK");
  return OdString::number(current.percent());
}
bool setTransparency(Engine&, Document* document, const OdVariant& value) {
  OdDbDatabase* const database = document ? document->database() : nullptr;
  if (!database) return false;
  const OdString text = value.toString();
  if (text.compare(QLatin1String("BYLAYER"), Qt::CaseInsensitive) == 0)
    database->setCurrentTransparency(OdCmTransparency());
  else if (text.compare(QLatin1String("BYBLOCK"), Qt::CaseInsensitive) == 0)
    database->setCurrentTransparency(OdCmTransparency(OdCmTransparency::kByBlock));
  else if (const std::optional<int> percent = parseInteger(text);
           percent && *percent >= 0 && *percent <= 90)
    database->setCurrentTransparency(OdCmTransparency::fromPercent(*percent));
  else
    return false;
  return true;
}

/// The sizes of corners are those of the drawing until one is set. From then on that one counts,
/// whatever becomes of the command that it was set for: who gives a corner up or undoes it still
/// wants the next one to be like it.
constexpr const char* kCornerSizes[] = {"CHAMFERA", "CHAMFERB", "FILLETRAD"};

template <int kSize>
OdVariant cornerSize(Engine&, Document* document) {
  const char* const name = kCornerSizes[kSize];
  if (!document) return 0.0;
  if (const auto at = document->values().find(QLatin1String(name)); at != document->values().end())
    return at->second;
  const OdDbDatabase* const database = document->database();
  return database ? database->sysVarReal(name) : 0.0;
}
template <int kSize>
bool setCornerSize(Engine&, Document* document, const OdVariant& value) {
  OdDbDatabase* const database = document ? document->database() : nullptr;
  const OdString name = QLatin1String(kCornerSizes[kSize]);
  if (!database || !database->setSysVar(name, value.toDouble())) return false;
  document->values()[name] = value;
  return true;
}

// Sorted by name.
constexpr VariableRow kVariables[] = {
    {u"AFLAGS", Type::kInteger, Scope::kSession, u"16", 0, 31},
    {u"APERTURE", Type::kInteger, Scope::kProfile, u"10", 1, 50},
    {u"ATTDIA", Type::kInteger, Scope::kSession, u"0", 0, 1},
    {u"ATTREQ", Type::kInteger, Scope::kSession, u"1", 0, 1},
    {u"AUTOSNAP", Type::kInteger, Scope::kProfile, u"63", 0, 63},
    {u"CETRANSPARENCY", Type::kText, Scope::kComputed, u"BYLAYER", -kNoLimit, kNoLimit,
     transparency, setTransparency},
    {u"CHAMFERA", Type::kReal, Scope::kComputed, u"0", 0, kNoLimit, cornerSize<0>,
     setCornerSize<0>},
    {u"CHAMFERB", Type::kReal, Scope::kComputed, u"0", 0, kNoLimit, cornerSize<1>,
     setCornerSize<1>},
    {u"CIRCLERAD", Type::kReal, Scope::kDocument, u"0", 0, kNoLimit},
    {u"CMDECHO", Type::kInteger, Scope::kSession, u"1", 0, 1},
    {u"CMDNAMES", Type::kText, Scope::kComputed, u"", 0, 0, runningCommands},
    {u"COPYMODE", Type::kInteger, Scope::kProfile, u"0", 0, 1},
    {u"CURSORSIZE", Type::kInteger, Scope::kProfile, u"5", 1, 100},
    {u"DBMOD", Type::kInteger, Scope::kComputed, u"0", 0, 1, dbMod},
    {u"DWGNAME", Type::kText, Scope::kComputed, u"", 0, 0, documentName},
    {u"DWGPREFIX", Type::kText, Scope::kComputed, u"", 0, 0, documentFolder},
    {u"DWGTITLED", Type::kInteger, Scope::kComputed, u"0", 0, 1, isTitled},
    {u"DXFVERSION", Type::kText, Scope::kComputed, u"R2018", 0, 0, dxfVersion, setDxfVersion},
    {u"FILEDIA", Type::kInteger, Scope::kProfile, u"1", 0, 1},
    {u"FILLETRAD", Type::kReal, Scope::kComputed, u"0", 0, kNoLimit, cornerSize<2>,
     setCornerSize<2>},
    {u"GFANG", Type::kReal, Scope::kSession, u"0"},
    {u"GFCLR1", Type::kColor, Scope::kSession, u"3271557125"},
    {u"GFCLR2", Type::kColor, Scope::kSession, u"3271557122"},
    {u"GFNAME", Type::kInteger, Scope::kSession, u"1", 1, 9},
    {u"GFSHIFT", Type::kInteger, Scope::kSession, u"0", 0, 1},
    {u"GRIDMODE", Type::kInteger, Scope::kDocument, u"0", 0, 1},
    {u"HPANG", Type::kReal, Scope::kSession, u"0"},
    {u"HPASSOC", Type::kInteger, Scope::kProfile, u"1", 0, 1},
    {u"HPCOLOR", Type::kColor, Scope::kSession, u"3221225472"},
    {u"HPDOUBLE", Type::kInteger, Scope::kSession, u"0", 0, 1},
    {u"HPGAPTOL", Type::kReal, Scope::kProfile, u"0", 0, 5000},
    {u"HPISLANDDETECTION", Type::kInteger, Scope::kProfile, u"1", 0, 2},
    {u"HPNAME", Type::kText, Scope::kSession, u"ANSI31"},
    {u"HPSCALE", Type::kReal, Scope::kSession, u"1", kAboveZero, kNoLimit},
    {u"HPSPACE", Type::kReal, Scope::kSession, u"1", kAboveZero, kNoLimit},
    {u"INSNAME", Type::kText, Scope::kDocument, u""},
    {u"ISAVEBAK", Type::kInteger, Scope::kProfile, u"1", 0, 1},
    {u"LASTPOINT", Type::kPoint, Scope::kComputed, u"0,0,0", -kNoLimit, kNoLimit, lastPoint,
     setLastPoint},
    {u"NEWDXFVERSION", Type::kText, Scope::kComputed, u"R2018", 0, 0, newDxfVersion,
     setNewDxfVersion},
    {u"OFFSETDIST", Type::kReal, Scope::kDocument, u"1"},
    {u"OSMODE", Type::kInteger, Scope::kProfile, u"4133", 0, 32767},
    {u"PICKBOX", Type::kInteger, Scope::kProfile, u"5", 0, 50},
    {u"PICKFIRST", Type::kInteger, Scope::kProfile, u"1", 0, 1},
    {u"PICKSTYLE", Type::kInteger, Scope::kProfile, u"1", 0, 3},
    {u"PLATFORM", Type::kText, Scope::kComputed, u"", 0, 0, platform},
    {u"POLARANG", Type::kReal, Scope::kProfile, u"45", kAboveZero, 180},
    {u"POLYSIDES", Type::kInteger, Scope::kDocument, u"4", 3, 1024},
    // Off for scripts: what they save is to be alike on every machine, whatever fonts that has.
    {u"RASTERPREVIEW", Type::kInteger, Scope::kSession, u"0", 0, 1},
    {u"RefreshProperties", Type::kInteger, Scope::kSession, u"0"},
    {u"SNAPMODE", Type::kInteger, Scope::kDocument, u"0", 0, 1},
    {u"TRIMMODE", Type::kInteger, Scope::kProfile, u"1", 0, 1},
};

struct ColorWord {
  const char16_t* word;
  std::uint32_t value;
};

constexpr ColorWord kColorWords[] = {
    {u"BYLAYER", 0xC0000000}, {u"BYBLOCK", 0xC1000000}, {u"RED", 0xC3000001},
    {u"YELLOW", 0xC3000002},  {u"GREEN", 0xC3000003},   {u"CYAN", 0xC3000004},
    {u"BLUE", 0xC3000005},    {u"MAGENTA", 0xC3000006}, {u"WHITE", 0xC3000007},
};

std::optional<OdCmColor> colorFromText(const OdString& text) {
  for (const ColorWord& row : kColorWords)
    if (text.compare(QStringView(row.word), Qt::CaseInsensitive) == 0) {
      OdCmColor color;
      color.setColor(row.value);
      return color;
    }
  if (const std::optional<int> index = parseInteger(text)) {
    if (*index < 0 || *index > 256) return std::nullopt;
    return OdCmColor::fromColorIndex(*index);
  }
  const QStringList parts = text.split(u',');
  std::uint8_t rgb[3];
  if (parts.size() != 3) return std::nullopt;
  for (int i = 0; i < 3; ++i) {
    const std::optional<int> part = parseInteger(parts[i]);
    if (!part || *part < 0 || *part > 255) return std::nullopt;
    rgb[i] = static_cast<std::uint8_t>(*part);
  }
  return OdCmColor::fromRgb(rgb[0], rgb[1], rgb[2]);
}

bool isNumber(const OdVariant& value) {
  return !value.isText() && !value.isVoid() && !value.isObject();
}

std::optional<double> numberOf(const OdVariant& value) {
  if (value.isText()) return parseReal(value.toString());
  return isNumber(value) ? std::optional(value.toDouble()) : std::nullopt;
}

bool isInRange(const VariableRow& row, double number) {
  return number >= row.min && number <= row.max && number - number == 0;
}

} // namespace

std::span<const VariableRow> variableTable() { return kVariables; }

const VariableRow* findVariable(QStringView name) {
  const auto at =
      std::lower_bound(std::begin(kVariables), std::end(kVariables), name,
                       [](const VariableRow& row, QStringView n) {
                         return QStringView(row.name).compare(n, Qt::CaseInsensitive) < 0;
                       });
  if (at == std::end(kVariables) || name.compare(QStringView(at->name), Qt::CaseInsensitive) != 0)
    return nullptr;
  return at;
}

bool isCharacterVariable(QStringView name) {
  return name.compare(QLatin1String("DIMDSEP"), Qt::CaseInsensitive) == 0;
}

OdVariant presetValue(const VariableRow& row) {
  const OdString text = OdString::fromUtf16(row.preset);
  switch (row.type) {
  case Type::kInteger:
    return static_cast<std::int32_t>(text.toInt());
  case Type::kReal:
    return text.toDouble();
  case Type::kColor:
    return static_cast<std::uint32_t>(text.toUInt());
  case Type::kText:
  case Type::kPoint:
    break;
  }
  return text;
}

std::optional<OdVariant> checkedValue(const VariableRow& row, const OdVariant& value) {
  switch (row.type) {
  case Type::kInteger: {
    const std::optional<double> number = numberOf(value);
    if (!number || *number != std::floor(*number) || !isInRange(row, *number) ||
        std::abs(*number) > std::numeric_limits<std::int32_t>::max())
      return std::nullopt;
    return OdVariant(static_cast<std::int32_t>(*number));
  }
  case Type::kReal: {
    const std::optional<double> number = numberOf(value);
    if (!number || !isInRange(row, *number)) return std::nullopt;
    return OdVariant(*number);
  }
  case Type::kColor: {
    const std::optional<OdCmColor> color = colorFromValue(value);
    if (!color) return std::nullopt;
    return OdVariant(color->color());
  }
  case Type::kPoint: {
    const std::optional<OdGePoint3d> point = pointFromValue(value);
    if (!point) return std::nullopt;
    return pointValue(*point);
  }
  case Type::kText:
    break;
  }
  if (value.isVoid() || value.isObject()) return std::nullopt;
  return OdVariant(value.toString());
}

OdVariant pointValue(const OdGePoint3d& point) {
  const auto exact = [](double v) { return OdVariant(v).toString(); };
  return QStringLiteral("%1,%2,%3").arg(exact(point.x), exact(point.y), exact(point.z));
}

std::optional<OdGePoint3d> pointFromValue(const OdVariant& value) {
  if (!value.isText()) return std::nullopt;
  return parsePoint(value.toString(), {});
}

std::optional<OdCmColor> colorFromValue(const OdVariant& value) {
  if (value.isText()) return colorFromText(value.toString().trimmed());
  if (!isNumber(value)) return std::nullopt;
  OdCmColor color;
  color.setColor(value.toUInt32());
  return color;
}

} // namespace drafton
