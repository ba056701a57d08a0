// Drawings from and into files.
#include "drawing/dxf/bytes.h"
#include "drawing/dxf/document_in.h"
#include "drawing/dxf/document_out.h"
#include "drawing/dxf/template.h"
#include "drawing/foreign_drawings.h"
#include "frame/file_path.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

/// Gives the bytes of a drawing from their beginning.
using BytesMaker = std::function<OdDbDxfBytes()>;

/// A refusal for what is no DXF, by its first bytes.
OdString whyNot(std::string_view bytes) {
  struct Row {
    std::string_view start;
    const char* reason;
  };
  static constexpr Row kRows[] = {
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

/// A new drawing whose handles lie above `lastHandle`.
OdDbDatabasePtr newDatabase(std::uint64_t lastHandle) {
  const auto database = odrxMake<OdDbDatabase>();
  OdDbDatabaseData& d = database->data();
  const auto vars = oddbHeaderVars();
  for (std::size_t i = 0; i < vars.size(); ++i) {
    d.vars[i] = oddbPresetOf(vars[i]);
    d.varPresent[i] = vars[i].type != OdDbHeaderVarInfo::kHandle;
  }
  // The header's place is taken by the presets, but for what decides how the rest is read.
  static const std::string text =
      std::string("0 SECTION|2 HEADER|9 $ACADVER|1 AC1032|0 ENDSEC|").append(oddxf::newDrawing());
  constexpr std::uint64_t kFirstFree = 0x30;
  oddxf::Start start;
  start.version = OdDb::kR2018;
  start.hasHandles = true;
  start.handseed = lastHandle + kFirstFree;
  OdDbDxfShortSource source(text, lastHandle);
  OdDbDxfReader(*database, source, start, QStringLiteral("(new drawing)")).read();
  d.headerOrder.clear();
  return database;
}

oddb::ForeignReader& foreignReader() {
  static oddb::ForeignReader reader;
  return reader;
}

/// Reads what `make` gives twice: for a look ahead, and for good.
OdDbDatabasePtr load(const BytesMaker& make, const OdString& name) {
  const oddxf::Start start = oddxf::lookAhead(*OdDbDxfSource::of(make()), name);
  const OdDbDatabasePtr database =
      start.isPlain() ? newDatabase(start.handseed - 1) : odrxMake<OdDbDatabase>();
  const std::unique_ptr<OdDbDxfSource> source = OdDbDxfSource::ahead(make());
  try {
    OdDbDxfReader(*database, *source, start, name).read();
  } catch (const OdFileError&) {
    throw;
  } catch (const OdError& error) {
    // What nobody has thought of is the file's fault all the same.
    throw OdDbFileError(name, source->line(), error.description());
  }
  return database;
}

} // namespace

OdDbDatabasePtr OdDbDatabase::createDatabase() { return newDatabase(0); }

OdDbDatabasePtr OdDbDatabase::readDxf(QByteArrayView bytes, const OdString& name) {
  const std::string_view text(bytes.data(), static_cast<std::size_t>(bytes.size()));
  if (const OdString reason = whyNot(text); !reason.isEmpty()) throw OdDbFileError(name, 1, reason);
  return load([&] { return OdDbDxfBytes(text); }, name);
}

void oddb::setForeignReader(ForeignReader reader) { foreignReader() = std::move(reader); }

void oddb::noteWritten(OdDbDatabase& database, const OdString& path) {
  database.data().fileStamp = OdDbFileStamp::of(path);
}

namespace {

OdDbDatabasePtr readDxfFile(const OdString& path) {
  QFile file(odpath::toPlatform(path));
  const QFileInfo info(file.fileName());
  if (info.isDir()) throw OdFileError(eFileAccess, path, QStringLiteral("it is a folder"));
  // A device or a pipe may have no end.
  if (info.exists() && !info.isFile())
    throw OdFileError(eFileAccess, path, QStringLiteral("it is not a file"));
  const auto refuse = [&](OdResult code) { throw OdFileError(code, path, file.errorString()); };
  if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
    refuse(info.exists() ? eFileAccess : eFileNotFound);
  constexpr qint64 kStart = 64;
  const QByteArray start = file.read(kStart);
  if (file.error() != QFileDevice::NoError) refuse(eFileAccess);
  if (const OdString reason = whyNot({start.constData(), static_cast<std::size_t>(start.size())});
      !reason.isEmpty())
    throw OdDbFileError(path, 1, reason);
  const auto fromStart = [&] {
    if (!file.seek(0)) refuse(eFileAccess);
    return OdDbDxfBytes(file);
  };
  return load(fromStart, path);
}

} // namespace

OdDbDatabasePtr OdDbDatabase::readFile(const OdString& path) {
  // Taken before reading: what others write meanwhile counts as a change.
  const OdDbFileStamp stamp = OdDbFileStamp::of(path);
  OdDbDatabasePtr database = foreignReader() ? foreignReader()(path) : OdDbDatabasePtr();
  if (!database) database = readDxfFile(path);
  database->setFileName(path);
  database->data().fileStamp = stamp;
  return database;
}

QByteArray OdDbDatabase::writeDxf(OdDb::DwgVersion version) const {
  QByteArray all;
  oddxf::writeDocument(*this, version, [&](const QByteArray& piece) { all.append(piece); });
  return all;
}

OdDbFileStamp OdDbFileStamp::of(const OdString& path) {
  const QFileInfo info(odpath::toPlatform(path));
  return {path, info.exists() ? info.size() : -1, info.lastModified()};
}

bool OdDbDatabase::isFileChangedByOthers() const {
  const OdDbFileStamp& known = m_data->fileStamp;
  return !known.path.isEmpty() && odpath::samePlace(known.path, m_data->fileName) &&
         OdDbFileStamp::of(known.path) != known;
}

void OdDbDatabase::writeFile(const OdString& path, OdDb::DwgVersion version, bool keepBackup) {
  QSaveFile file(odpath::toPlatform(path));
  oddxf::saveDocument(*this, version, file, path, keepBackup);
  oddb::noteWritten(*this, path);
}
