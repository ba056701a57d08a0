// Drawings from and into files.
#include "drawing/dxf/bytes.h"
#include "drawing/dxf/crew.h"
#include "drawing/dxf/document_in.h"
#include "drawing/dxf/document_out.h"
#include "drawing/foreign_drawings.h"
#include "frame/file_path.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

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

oddb::ForeignReader& foreignReader() {
  static oddb::ForeignReader reader;
  return reader;
}

} // namespace

OdDbDatabasePtr OdDbDatabase::createDatabase() { return oddxf::newDocument(0); }

OdDbDatabasePtr OdDbDatabase::readDxf(QByteArrayView bytes, const OdString& name) {
  const std::string_view text(bytes.data(), static_cast<std::size_t>(bytes.size()));
  if (const OdString reason = whyNot(text); !reason.isEmpty()) throw OdDbFileError(name, 1, reason);
  return oddxf::readDocument([&] { return OdDbDxfBytes(text); }, name,
                             OdDbDxfCrew::machineThreads());
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
  return oddxf::readDocument(fromStart, path, OdDbDxfCrew::machineThreads());
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
