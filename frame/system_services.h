// What the frame gets from the operating system: files, ids, time and the user's folder.
#pragma once

#include "frame/stream.h"
#include "frame/time_stamp.h"

#include <cstddef>

/// How a file is opened. The values are those of the operating system that the file formats and
/// their first programs come from.
namespace Oda {
enum FileAccessMode : std::uint32_t { kFileRead = 0x80000000u, kFileWrite = 0x40000000u };
enum FileShareMode : std::uint32_t {
  kShareDenyReadWrite = 0x10,
  kShareDenyWrite = 0x20,
  kShareDenyRead = 0x30,
  kShareDenyNo = 0x40,
};
enum FileCreationDisposition : std::uint32_t {
  kCreateNew = 1,        ///< fails if the file exists
  kCreateAlways = 2,     ///< an existing file is emptied
  kOpenExisting = 3,     ///< fails if there is no file
  kOpenAlways = 4,       ///< made if there is none
  kTruncateExisting = 5, ///< emptied; fails if there is no file
};
} // namespace Oda

/// The system as the frame sees it. Paths are stored paths (see odpath).
class OdRxSystemServices {
 public:
  virtual ~OdRxSystemServices();

  /// Opens a file. Raises OdFileError with the path and the system's reason.
  virtual OdStreamBufPtr createFile(const OdString& path, Oda::FileAccessMode access,
                                    Oda::FileShareMode share,
                                    Oda::FileCreationDisposition creation) = 0;
  /// True if `path` names a file (not a folder).
  virtual bool fileExists(const OdString& path) = 0;
  virtual bool folderExists(const OdString& path) = 0;
  /// Makes the folder and those above it; false if that fails.
  virtual bool createFolder(const OdString& path) = 0;
  /// Deletes a file; false if that fails.
  virtual bool removeFile(const OdString& path) = 0;
  /// Puts a file in the place of another in one step, so that whoever opens that one finds either
  /// the old or the new; false, with both as they were, if that fails.
  virtual bool replaceFile(const OdString& from, const OdString& to);
  /// Copies a file; an existing target or a failure raises OdFileError.
  virtual void copyFile(const OdString& from, const OdString& to) = 0;
  /// The names of the files directly in a folder, sorted; hidden files and folders are left out.
  virtual QStringList filesIn(const OdString& folder) = 0;

  /// A fresh id: a GUID in braces, in capitals.
  virtual OdString createGuid() = 0;
  virtual OdTimeStamp currentTime() = 0;
  /// The user's own folder, without a separator at its end; empty if there is none.
  virtual OdString userProfileFolder() = 0;
};

/// The services in force; never null.
OdRxSystemServices* odrxSystemServices();
/// Puts other services in force and gives the former ones; null puts back the platform's own. The
/// caller keeps them alive.
OdRxSystemServices* odrxSetSystemServices(OdRxSystemServices* services);

/// The frame's memory, for records that pass between a module and its host.
void* odrxAlloc(std::size_t bytes);
void odrxFree(void* memory);
