#include "catalog/write_file.h"

#include "frame/file_path.h"
#include "host/host_locator.h"
#include "persistence/path_macros.h"

#include <QFileInfo>

#include <cstdint>
#include <utility>

namespace tc {
namespace {

/// A file that is opened, and so made or emptied, only when the first byte is written to it.
class FileAtFirstByte final : public OdStreamBuf {
 public:
  FileAtFirstByte(OdString path, Oda::FileCreationDisposition creation)
    : m_path(std::move(path))
    , m_creation(creation) {}

  OdString fileName() const override { return m_path; }
  std::uint64_t length() override { return m_file ? m_file->length() : 0; }
  std::uint64_t tell() override { return m_file ? m_file->tell() : 0; }
  void seek(std::uint64_t position) override { opened().seek(position); }
  void getBytes(void* buffer, std::uint32_t count) override { opened().getBytes(buffer, count); }
  void putBytes(const void* buffer, std::uint32_t count) override {
    opened().putBytes(buffer, count);
  }
  void putByte(std::uint8_t byte) override { opened().putByte(byte); }
  void flush() override { opened().flush(); }

 private:
  OdStreamBuf& opened() {
    if (!m_file)
      m_file =
          odrxSystemServices()->createFile(m_path, Oda::kFileWrite, Oda::kShareDenyNo, m_creation);
    return *m_file;
  }

  OdString m_path;
  Oda::FileCreationDisposition m_creation;
  OdStreamBufPtr m_file;
};

} // namespace

bool writeFile(const OdString& path, Oda::FileCreationDisposition creation, OdTcFiler& filer,
               OdTcPersist* root, bool (OdTcFiler::*open)(OdStreamBuf*, OdTcPersist*, bool)) {
  const HeldPathMacros heldMacros(path);
  const auto file = odrxMake<FileAtFirstByte>(path, creation);
  if (!(filer.*open)(file, root, true)) return false;
  filer.flush();
  return true;
}

bool writeBeside(const OdString& path, const std::function<bool(const OdString& fresh)>& write) {
  OdRxSystemServices* const services = odrxSystemServices();
  OdString target = path;
  if (services->fileExists(path)) {
    // Raises the error that writing over it would raise.
    services->createFile(path, Oda::kFileWrite, Oda::kShareDenyNo, Oda::kOpenExisting);
    target = odpath::fromPlatform(QFileInfo(odpath::toPlatform(path)).canonicalFilePath());
  }
  const OdString fresh = target + QLatin1String(".new");
  const auto dropFresh = [&] {
    if (services->fileExists(fresh)) services->removeFile(fresh);
  };
  try {
    if (!write(fresh)) {
      dropFresh();
      return false;
    }
  } catch (const OdFileError& error) {
    dropFresh();
    // The user knows the file by its own name.
    throw OdFileError(error.code(), path, error.reason());
  }
  if (services->replaceFile(fresh, target)) return true;
  dropFresh();
  throw OdFileError(eFileAccess, path,
                    host::translate(QStringLiteral("the file cannot be replaced")));
}

Oda::FileCreationDisposition creationFor(const OdString& path) {
  return odrxSystemServices()->fileExists(path) ? Oda::kTruncateExisting : Oda::kCreateAlways;
}

} // namespace tc
