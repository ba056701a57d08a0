#include "drafton/engine/drawing_files.h"

#include "drafton/engine/dwg_converter.h"
#include "drafton/engine/dxf_versions.h"
#include "drafton/engine/engine.h"
#include "drafton/engine/saved_facts.h"
#include "drafton/engine/translator.h"
#include "drawing/foreign_drawings.h"
#include "drawing/replaced_file.h"
#include "drawing/version_losses.h"
#include "frame/file_path.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryDir>

namespace drafton {
namespace {

constexpr const char16_t* kSetting = u"DwgConverter";
constexpr const char16_t* kSavingSetting = u"DwgConverterForSaving";
constexpr const char16_t* kPatienceSetting = u"DwgConverterSeconds";

OdString settingOf(Engine& engine, const char16_t* name) {
  OdString value;
  engine.application().setting(OdString::fromUtf16(name), value);
  return value.trimmed();
}

[[noreturn]] void refuse(const OdString& path, const OdString& reason) {
  throw OdFileError(eFileAccess, path, reason);
}

/// The two folders of one conversion, which go away with everything in them.
class Workshop {
 public:
  explicit Workshop(const OdString& path)
    : m_path(path) {
    if (!m_folder.isValid() || !QDir(m_folder.path()).mkpath(QStringLiteral("in")) ||
        !QDir(m_folder.path()).mkpath(QStringLiteral("out")))
      refuse(path,
             translated(u"there is no place for the conversion: %1").arg(m_folder.errorString()));
  }

  OdString file(const char* folder, const char* extension) const {
    return m_folder.filePath(QLatin1String(folder) + u'/' + odpath::titleOf(m_path) + u'.' +
                             QLatin1String(extension));
  }

  /// Turns the file in the one folder into that in the other.
  void convert(Engine& engine, const OdString& commandLine, const OdString& input,
               const OdString& output) const {
    if (commandLine.isEmpty())
      refuse(m_path,
             translated(u"DWG drawings are read and written by a converter, and none is set. Set "
                        u"its command line with the command SETTING under the name %1; {input} and "
                        u"{output} stand for the two files.")
                 .arg(kSetting));
    constexpr int kMostSeconds = 24 * 60 * 60;
    const int seconds = settingOf(engine, kPatienceSetting).toInt();
    const DwgConverter converter(commandLine, seconds > 0 && seconds < kMostSeconds
                                                  ? seconds * 1000
                                                  : DwgConverter::kPatience);
    const OdString trouble =
        converter.convert(input, output, [&] { return engine.keyboard().startsWithCancel(); });
    if (!trouble.isEmpty()) refuse(m_path, trouble);
  }

 private:
  OdString m_path;
  QTemporaryDir m_folder;
};

/// Puts a copy of `made` in the place of `path` in one step.
void putInPlace(const OdString& made, const OdString& path) {
  const OdDbReplacedFile former(path);
  QFile from(made);
  QSaveFile to(odpath::toPlatform(path));
  to.setDirectWriteFallback(false);
  const auto require = [&](bool ok, const QFileDevice& device) {
    if (!ok) refuse(path, device.errorString());
  };
  require(from.open(QIODevice::ReadOnly), from);
  require(to.open(QIODevice::WriteOnly), to);
  constexpr qint64 kPiece = 1024 * 1024;
  for (QByteArray piece = from.read(kPiece); !piece.isEmpty(); piece = from.read(kPiece))
    require(to.write(piece) == piece.size(), to);
  require(from.error() == QFileDevice::NoError, from);
  require(to.flush(), to);
  former.expectUntouched();
  require(to.commit(), to);
}

/// What the converter made is looked at before it counts.
OdDbDatabasePtr readConverted(const OdString& made, const OdString& path) {
  QFile file(made);
  if (!file.open(QIODevice::ReadOnly)) refuse(path, file.errorString());
  // In place of reading: messages name the drawing and not a file that nobody will find.
  const auto size = file.size();
  if (const uchar* const bytes = file.map(0, size))
    return OdDbDatabase::readDxf({reinterpret_cast<const char*>(bytes), size}, path);
  const QByteArray all = file.readAll();
  if (file.error() != QFileDevice::NoError) refuse(path, file.errorString());
  return OdDbDatabase::readDxf(all, path);
}

/// Older versions take less; what they leave out stays in the drawing while it is open.
void tellLosses(Engine& engine, const OdDbDatabase& database, OdDb::DwgVersion version) {
  const OdDb::DwgVersion written =
      version == OdDb::kVersionUnknown ? database.originalFileVersion() : version;
  QStringList kinds = oddb::lossesInVersion(database, written);
  if (kinds.isEmpty()) return;
  for (OdString& kind : kinds) kind = translated(kind);
  engine.print(translated(u"Files of %1 do not hold: %2.")
                   .arg(dxfVersionName(written), kinds.join(QStringLiteral(", "))));
}

} // namespace

bool isConvertedDrawing(const OdString& path) {
  return odpath::extensionOf(path).compare(QLatin1String("dwg"), Qt::CaseInsensitive) == 0;
}

bool isDrawingName(const OdString& path) {
  return isConvertedDrawing(path) ||
         odpath::extensionOf(path).compare(QLatin1String("dxf"), Qt::CaseInsensitive) == 0;
}

OdDbDatabasePtr readConvertedDrawing(Engine& engine, const OdString& path) {
  if (!isConvertedDrawing(path)) return nullptr;
  const QFileInfo original(odpath::toPlatform(path));
  if (!original.exists())
    throw OdFileError(eFileNotFound, path, translated(u"there is no such file"));
  if (!original.isFile()) refuse(path, translated(u"it is not a file"));
  const Workshop workshop(path);
  // The converter gets a copy: whatever it does, the original stays.
  const OdString input = workshop.file("in", "dwg");
  QFile source(original.filePath());
  if (!source.copy(input)) refuse(path, source.errorString());
  const OdString output = workshop.file("out", "dxf");
  workshop.convert(engine, settingOf(engine, kSetting), input, output);
  return readConverted(output, path);
}

void writeDrawing(Engine& engine, OdDbDatabase& database, const OdString& path,
                  OdDb::DwgVersion version) {
  tellExtents(database);
  tellLosses(engine, database, version);
  if (!isConvertedDrawing(path)) {
    database.writeFile(path, version);
    return;
  }
  OdString commandLine = settingOf(engine, kSavingSetting);
  if (commandLine.isEmpty()) commandLine = settingOf(engine, kSetting);
  const Workshop workshop(path);
  const OdString input = workshop.file("in", "dxf");
  const OdString output = workshop.file("out", "dwg");
  if (!commandLine.isEmpty()) {
    QFile file(input);
    const QByteArray bytes = database.writeDxf(version);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
      refuse(path, file.errorString());
  }
  workshop.convert(engine, commandLine, input, output);
  putInPlace(output, path);
  oddb::noteWritten(database, path);
}

} // namespace drafton
