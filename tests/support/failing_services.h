// System services that fail as a full disk or a folder without rights does.
#pragma once

#include "frame/error.h"
#include "frame/file_path.h"
#include "frame/system_services.h"

#include <algorithm>
#include <optional>

namespace testhost {

/// A stream that takes `budget` more bytes and then fails.
class FailingStream : public OdStreamBuf {
 public:
  FailingStream(OdStreamBufPtr inner, std::uint64_t& budget)
    : m_inner(std::move(inner))
    , m_budget(budget) {}

  OdString fileName() const override { return m_inner->fileName(); }
  std::uint64_t length() override { return m_inner->length(); }
  std::uint64_t tell() override { return m_inner->tell(); }
  void seek(std::uint64_t position) override { m_inner->seek(position); }
  void getBytes(void* buffer, std::uint32_t count) override { m_inner->getBytes(buffer, count); }
  void putBytes(const void* buffer, std::uint32_t count) override {
    // As a disk does: what fits is written.
    const auto taken = static_cast<std::uint32_t>(std::min<std::uint64_t>(count, m_budget));
    m_budget -= taken;
    m_inner->putBytes(buffer, taken);
    if (taken < count)
      throw OdFileError(eFileAccess, fileName(), QStringLiteral("No space left on device"));
  }
  void flush() override { m_inner->flush(); }

 private:
  OdStreamBufPtr m_inner;
  std::uint64_t& m_budget;
};

/// Passes everything on to the services in force before it, except what it is told to deny. In
/// force from its making to its end.
class FailingServices : public OdRxSystemServices {
 public:
  FailingServices()
    : m_former(odrxSetSystemServices(this)) {
    if (!m_former) m_former = platformServices();
  }
  ~FailingServices() override { odrxSetSystemServices(m_former); }

  /// The disk is full after this many more bytes.
  std::optional<std::uint64_t> bytesLeft;
  /// Nothing below this folder can be opened, made, deleted or copied to.
  OdString deniedFolder;
  /// Files that are opened for writing.
  QStringList written;
  /// Ids to be given out before the real ones.
  QStringList ids;

  OdStreamBufPtr createFile(const OdString& path, Oda::FileAccessMode access,
                            Oda::FileShareMode share,
                            Oda::FileCreationDisposition creation) override {
    if (isDenied(path)) throw OdFileError(eFileAccess, path, QStringLiteral("Permission denied"));
    OdStreamBufPtr stream = m_former->createFile(path, access, share, creation);
    if (!(access & Oda::kFileWrite)) return stream;
    written << path;
    return bytesLeft ? OdStreamBufPtr(odrxMake<FailingStream>(stream, *bytesLeft)) : stream;
  }
  bool fileExists(const OdString& path) override { return m_former->fileExists(path); }
  bool folderExists(const OdString& path) override { return m_former->folderExists(path); }
  bool createFolder(const OdString& path) override {
    return !isDenied(path) && m_former->createFolder(path);
  }
  bool removeFile(const OdString& path) override {
    return !isDenied(path) && m_former->removeFile(path);
  }
  bool replaceFile(const OdString& from, const OdString& to) override {
    return !isDenied(from) && !isDenied(to) && m_former->replaceFile(from, to);
  }
  void copyFile(const OdString& from, const OdString& to) override {
    if (isDenied(to)) throw OdFileError(eFileAccess, to, QStringLiteral("Permission denied"));
    m_former->copyFile(from, to);
  }
  QStringList filesIn(const OdString& folder) override { return m_former->filesIn(folder); }
  OdString createGuid() override {
    return ids.isEmpty() ? m_former->createGuid() : ids.takeFirst();
  }
  OdTimeStamp currentTime() override { return m_former->currentTime(); }
  OdString userProfileFolder() override { return m_former->userProfileFolder(); }

 private:
  static OdRxSystemServices* platformServices() {
    OdRxSystemServices* const mine = odrxSetSystemServices(nullptr);
    OdRxSystemServices* const platform = odrxSystemServices();
    odrxSetSystemServices(mine);
    return platform;
  }
  bool isDenied(const OdString& path) const {
    if (deniedFolder.isEmpty()) return false;
    const OdString wanted = odpath::toPlatform(path);
    const OdString denied = odpath::toPlatform(deniedFolder);
    return wanted == denied || wanted.startsWith(denied + QLatin1Char('/'));
  }

  OdRxSystemServices* m_former;
};

} // namespace testhost
