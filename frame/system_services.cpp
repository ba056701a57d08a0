#include "frame/system_services.h"

#include "frame/file_path.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <cstdlib>
#include <filesystem>
#include <new>

namespace {

class PlatformServices : public OdRxSystemServices {
 public:
  OdStreamBufPtr createFile(const OdString& path, Oda::FileAccessMode access, Oda::FileShareMode,
                            Oda::FileCreationDisposition creation) override {
    auto file = std::make_unique<QFile>(odpath::toPlatform(path));
    // Without this test a folder opens for reading on some systems and fails at the first byte.
    if (QFileInfo(file->fileName()).isDir())
      throw OdFileError(eFileAccess, path, QStringLiteral("it is a folder"));
    if (!file->open(openMode(access, creation)))
      throw OdFileError(file->exists() || access == Oda::kFileWrite ? eFileAccess : eFileNotFound,
                        path, file->errorString());
    return OdStreamBufPtr(new OdDeviceStream(std::move(file), path), kOdRxObjAttach);
  }

  bool fileExists(const OdString& path) override {
    return QFileInfo(odpath::toPlatform(path)).isFile();
  }
  bool folderExists(const OdString& path) override {
    return QFileInfo(odpath::toPlatform(path)).isDir();
  }
  bool createFolder(const OdString& path) override {
    return QDir().mkpath(odpath::toPlatform(path));
  }
  bool removeFile(const OdString& path) override { return QFile::remove(odpath::toPlatform(path)); }
  void copyFile(const OdString& from, const OdString& to) override {
    QFile file(odpath::toPlatform(from));
    if (!file.copy(odpath::toPlatform(to))) throw OdFileError(eFileAccess, to, file.errorString());
  }
  QStringList filesIn(const OdString& folder) override {
    return QDir(odpath::toPlatform(folder)).entryList(QDir::Files, QDir::Name);
  }

  OdString createGuid() override {
    return QUuid::createUuid().toString(QUuid::WithBraces).toUpper();
  }
  OdTimeStamp currentTime() override {
    // What is made again shall be the same: whoever wants that holds the clock of all programs.
    bool isHeld = false;
    const qint64 seconds = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&isHeld);
    constexpr qint64 kLast = 253402300799; // of the year 9999
    return OdTimeStamp(isHeld && seconds >= 0 && seconds <= kLast
                           ? QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC)
                           : QDateTime::currentDateTimeUtc());
  }
  OdString userProfileFolder() override { return odpath::fromPlatform(QDir::homePath()); }

 private:
  static QIODevice::OpenMode openMode(Oda::FileAccessMode access,
                                      Oda::FileCreationDisposition creation) {
    if (access == Oda::kFileRead) return QIODevice::ReadOnly | QIODevice::ExistingOnly;
    switch (creation) {
    case Oda::kCreateNew:
      return QIODevice::WriteOnly | QIODevice::NewOnly;
    case Oda::kCreateAlways:
      return QIODevice::WriteOnly | QIODevice::Truncate;
    case Oda::kOpenExisting:
      return QIODevice::ReadWrite | QIODevice::ExistingOnly;
    case Oda::kOpenAlways:
      return QIODevice::ReadWrite;
    case Oda::kTruncateExisting:
      return QIODevice::WriteOnly | QIODevice::ExistingOnly | QIODevice::Truncate;
    }
    return QIODevice::NotOpen;
  }
};

PlatformServices& platformServices() {
  static PlatformServices services;
  return services;
}

OdRxSystemServices* g_services = nullptr;

} // namespace

OdRxSystemServices::~OdRxSystemServices() = default;

bool OdRxSystemServices::replaceFile(const OdString& from, const OdString& to) {
  const auto native = [](const OdString& path) {
    return QFileInfo(odpath::toPlatform(path)).filesystemFilePath();
  };
  std::error_code error;
  std::filesystem::rename(native(from), native(to), error);
  return !error;
}

OdRxSystemServices* odrxSystemServices() { return g_services ? g_services : &platformServices(); }

OdRxSystemServices* odrxSetSystemServices(OdRxSystemServices* services) {
  OdRxSystemServices* former = odrxSystemServices();
  g_services = services;
  return former == &platformServices() ? nullptr : former;
}

void* odrxAlloc(std::size_t bytes) {
  if (void* memory = std::malloc(bytes ? bytes : 1)) return memory;
  throw std::bad_alloc();
}

void odrxFree(void* memory) { std::free(memory); }
