// Drawings from and into files.
#include "drawing/dxf/document_in.h"
#include "drawing/dxf/document_out.h"
#include "drawing/dxf/template.h"
#include "frame/file_path.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

/// A refusal for what is not a DXF text, by its first bytes.
OdString whyNotText(std::string_view bytes) {
  struct Row {
    std::string_view start;
    const char* reason;
  };
  static constexpr Row kRows[] = {
      {"AutoCAD Binary DXF", "this is a binary DXF drawing; only text ones can be read"},
      {"AC10", "this is a DWG drawing, which has to be converted to DXF first"},
      {"%PDF", "this is a PDF document and not a drawing"},
      {"\xFF\xFE", "this is a text in UTF-16 and not a DXF drawing"},
      {"\xFE\xFF", "this is a text in UTF-16 and not a DXF drawing"},
  };
  if (bytes.empty()) return QStringLiteral("the file is empty");
  for (const Row& row : kRows)
    if (bytes.starts_with(row.start)) return QLatin1String(row.reason);
  return {};
}

} // namespace

OdDbDatabasePtr OdDbDatabase::createDatabase() {
  const auto database = odrxMake<OdDbDatabase>();
  OdDbDatabaseData& d = database->data();
  const auto vars = oddbHeaderVars();
  for (std::size_t i = 0; i < vars.size(); ++i) {
    d.vars[i] = oddbPresetOf(vars[i]);
    d.varPresent[i] = vars[i].type != OdDbHeaderVarInfo::kHandle;
  }
  const auto whole = [] {
    // The header's place is taken by the presets, but for what decides how the rest is read.
    static const std::string text =
        std::string("0 SECTION|2 HEADER|9 $ACADVER|1 AC1032|9 $HANDSEED|5 30|0 ENDSEC|")
            .append(oddxf::newDrawing());
    return std::make_unique<OdDbDxfShortSource>(text);
  };
  OdDbDxfReader(*database, whole, QStringLiteral("(new drawing)")).read();
  d.headerOrder.clear();
  return database;
}

OdDbDatabasePtr OdDbDatabase::readDxf(QByteArrayView bytes, const OdString& name) {
  const std::string_view text(bytes.data(), static_cast<std::size_t>(bytes.size()));
  if (const OdString reason = whyNotText(text); !reason.isEmpty())
    throw OdDbFileError(name, 1, reason);
  const auto maker = [text] { return std::make_unique<OdDbDxfTextSource>(text); };
  if (OdDbDxfReader::isPlain(*maker())) {
    const OdDbDatabasePtr database = createDatabase();
    OdDbDxfReader(*database, maker, name).read();
    return database;
  }
  const auto database = odrxMake<OdDbDatabase>();
  OdDbDxfReader(*database, maker, name).read();
  return database;
}

OdDbDatabasePtr OdDbDatabase::readFile(const OdString& path) {
  QFile file(odpath::toPlatform(path));
  const QFileInfo info(file.fileName());
  if (info.isDir()) throw OdFileError(eFileAccess, path, QStringLiteral("it is a folder"));
  // A device or a pipe may have no end.
  if (info.exists() && !info.isFile())
    throw OdFileError(eFileAccess, path, QStringLiteral("it is not a file"));
  if (!file.open(QIODevice::ReadOnly))
    throw OdFileError(info.exists() ? eFileAccess : eFileNotFound, path, file.errorString());
  // The file is looked at where it lies; only if the system cannot do that it is copied.
  QByteArray copy;
  const uchar* const mapped = file.size() > 0 ? file.map(0, file.size()) : nullptr;
  if (!mapped) {
    copy = file.readAll();
    if (file.error() != QFileDevice::NoError)
      throw OdFileError(eFileAccess, path, file.errorString());
  }
  const OdDbDatabasePtr database =
      readDxf(mapped ? QByteArrayView(mapped, file.size()) : QByteArrayView(copy), path);
  database->setFileName(path);
  return database;
}

QByteArray OdDbDatabase::writeDxf(OdDb::DwgVersion version) const {
  QByteArray all;
  oddxf::writeDocument(*this, version, [&](const QByteArray& piece) { all.append(piece); });
  return all;
}

void OdDbDatabase::writeFile(const OdString& path, OdDb::DwgVersion version) {
  QSaveFile file(odpath::toPlatform(path));
  oddxf::saveDocument(*this, version, file, path);
}
