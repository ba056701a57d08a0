#include "drafton/engine/dxf_versions.h"

#include "drafton/engine/engine.h"

namespace drafton {
namespace {

struct Row {
  OdDb::DwgVersion version;
  const char* name;
};

constexpr Row kWritten[] = {
    {OdDb::kR2000, "R2000"}, {OdDb::kR2004, "R2004"}, {OdDb::kR2007, "R2007"},
    {OdDb::kR2010, "R2010"}, {OdDb::kR2013, "R2013"}, {OdDb::kR2018, "R2018"},
};

const OdString kOfDocument = QStringLiteral("DXFVERSION");
const OdString kOfNew = QStringLiteral("NEWDXFVERSION");

bool is(const OdString& text, const char* name) {
  return text.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
}

OdDb::DwgVersion ofNewDrawings(Engine& engine) {
  OdVariant kept;
  engine.settings().get({QStringLiteral("Variables")}, kOfNew, kept);
  return dxfVersionNamed(kept.toString()).value_or(OdDb::kR2018);
}

} // namespace

std::optional<OdDb::DwgVersion> dxfVersionNamed(const OdString& name) {
  const OdString text = name.trimmed();
  for (const Row& row : kWritten)
    if (is(text, row.name) || is(text, row.name + 1) || is(text, OdDb::versionText(row.version)))
      return row.version;
  return std::nullopt;
}

OdString dxfVersionName(OdDb::DwgVersion version) {
  for (const Row& row : kWritten)
    if (row.version == version) return QLatin1String(row.name);
  return QStringLiteral("R12");
}

OdString dxfVersionNames() {
  QStringList names;
  for (const Row& row : kWritten) names << QLatin1String(row.name);
  return names.join(u' ');
}

OdDb::DwgVersion savingVersion(Engine& engine, Document& document) {
  const auto& values = document.values();
  if (const auto at = values.find(kOfDocument); at != values.end())
    if (const auto chosen = dxfVersionNamed(at->second.toString())) return *chosen;
  const OdDbDatabase* const database = document.database();
  if (!database || document.path().isEmpty()) return ofNewDrawings(engine);
  return std::max(database->originalFileVersion(), OdDb::kR2000);
}

OdVariant dxfVersion(Engine& engine, Document* document) {
  return document ? dxfVersionName(savingVersion(engine, *document)) : OdString();
}

bool setDxfVersion(Engine&, Document* document, const OdVariant& value) {
  const auto version = dxfVersionNamed(value.toString());
  if (!document || !version) return false;
  document->values()[kOfDocument] = dxfVersionName(*version);
  return true;
}

OdVariant newDxfVersion(Engine& engine, Document*) { return dxfVersionName(ofNewDrawings(engine)); }

bool setNewDxfVersion(Engine& engine, Document*, const OdVariant& value) {
  const auto version = dxfVersionNamed(value.toString());
  if (!version) return false;
  engine.settings().set({QStringLiteral("Variables")}, kOfNew, dxfVersionName(*version));
  return true;
}

} // namespace drafton
