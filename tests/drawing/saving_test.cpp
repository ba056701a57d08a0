// Saving that fails: the old file stays whole, the folder clean, the drawing open.
#include "drawing/database.h"
#include "drawing/dxf/document_out.h"
#include "drawing/entities/line.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QSaveFile>
#include <QTemporaryDir>

#include <csignal>
#include <fcntl.h>
#include <functional>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// A file on a disk that is full after some bytes.
class FullDiskFile : public QSaveFile {
 public:
  FullDiskFile(const QString& path, qint64 room)
    : QSaveFile(path)
    , m_room(room) {}

 protected:
  qint64 writeData(const char* data, qint64 size) override {
    if (size > m_room) {
      setErrorString(QStringLiteral("No space left on device"));
      return -1;
    }
    m_room -= size;
    return QSaveFile::writeData(data, size);
  }

 private:
  qint64 m_room;
};

/// A file that takes every byte but cannot get the name of the old one.
class UnnamableFile : public QSaveFile {
 public:
  using QSaveFile::QSaveFile;

 protected:
  qint64 writeData(const char* data, qint64 size) override {
    const qint64 written = QSaveFile::writeData(data, size);
    cancelWriting();
    return written;
  }
};

/// A file during whose writing something happens.
class EventfulFile : public QSaveFile {
 public:
  EventfulFile(const QString& path, std::function<void()> event)
    : QSaveFile(path)
    , m_event(std::move(event)) {}

 protected:
  qint64 writeData(const char* data, qint64 size) override {
    if (m_event) std::exchange(m_event, nullptr)();
    return QSaveFile::writeData(data, size);
  }

 private:
  std::function<void()> m_event;
};

/// No file grows beyond a size while this is there.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t most)
    : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &m_former);
    rlimit limit = m_former;
    limit.rlim_cur = most;
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &m_former);
    std::signal(SIGXFSZ, m_handler);
  }

 private:
  rlimit m_former{};
  void (*m_handler)(int);
};

class FailingSave : public ::testing::Test {
 protected:
  FailingSave() {
    m_db->writeFile(m_path);
    m_old = bytes();
    const auto line = odrxMake<OdDbLine>(OdGePoint3d{}, OdGePoint3d{1, 2, 3});
    m_db->getModelSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->appendOdDbEntity(line);
    m_new = m_db->writeDxf();
  }
  QByteArray bytes() const {
    QFile file(m_path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  /// Gives the reason.
  template <class Save>
  OdString expectFailure(const Save& save) {
    OdString reason;
    try {
      save();
      ADD_FAILURE() << "saved";
    } catch (const OdFileError& e) {
      EXPECT_EQ(e.path(), m_path);
      reason = e.reason();
      EXPECT_FALSE(reason.isEmpty());
    }
    EXPECT_TRUE(bytes() == m_old);
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList{QStringLiteral("drawing.dxf")});
    EXPECT_TRUE(m_db->isModified());
    EXPECT_TRUE(m_db->writeDxf() == m_new);
    return reason;
  }

  QTemporaryDir m_folder;
  QString m_path = m_folder.filePath(QStringLiteral("drawing.dxf"));
  OdDbDatabasePtr m_db = OdDbDatabase::createDatabase();
  QByteArray m_old, m_new;
};

} // namespace

TEST_F(FailingSave, DiskThatIsFullInMidWriteLeavesTheOldFile) {
  for (const qint64 room : {qint64{0}, qint64{100}, qint64{m_new.size() - 1}})
    expectFailure([&] {
      FullDiskFile file(m_path, room);
      oddxf::saveDocument(*m_db, OdDb::kVersionUnknown, file, m_path);
    });
  FullDiskFile file(m_path, m_new.size());
  oddxf::saveDocument(*m_db, OdDb::kVersionUnknown, file, m_path);
  EXPECT_TRUE(bytes() == m_new);
}

TEST_F(FailingSave, SystemThatTakesNoMoreBytesLeavesTheOldFile) {
  expectFailure([&] {
    const FileSizeLimit limit(4096);
    m_db->writeFile(m_path);
  });
  m_db->writeFile(m_path);
  EXPECT_TRUE(bytes() == m_new);
}

TEST_F(FailingSave, NewFileThatCannotTakeTheOldOnesPlaceLeavesIt) {
  expectFailure([&] {
    UnnamableFile file(m_path);
    oddxf::saveDocument(*m_db, OdDb::kVersionUnknown, file, m_path);
  });
}

TEST_F(FailingSave, FolderThatTakesNoFilesIsToldAndTheDrawingStays) {
  // Not even the superuser makes files there.
  const QString path = QStringLiteral("/proc/drawing.dxf");
  try {
    m_db->writeFile(path);
    FAIL();
  } catch (const OdFileError& e) {
    EXPECT_EQ(e.path(), path);
    EXPECT_FALSE(e.reason().isEmpty());
  }
  EXPECT_TRUE(m_db->writeDxf() == m_new);
}

TEST_F(FailingSave, FolderInTheFilesPlaceStays) {
  const QString path = m_folder.filePath(QStringLiteral("folder.dxf"));
  ASSERT_TRUE(QDir().mkdir(path));
  EXPECT_THROW(m_db->writeFile(path), OdFileError);
  EXPECT_TRUE(QDir(path).exists());
}

TEST_F(FailingSave, PipeIsNotReplacedByAFile) {
  const QString path = m_folder.filePath(QStringLiteral("pipe.dxf"));
  ASSERT_EQ(mkfifo(path.toLocal8Bit().constData(), 0600), 0);
  EXPECT_THROW(m_db->writeFile(path), OdFileError);
  struct stat status {};
  ASSERT_EQ(stat(path.toLocal8Bit().constData(), &status), 0);
  EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

TEST_F(FailingSave, LockedFileIsLeftToWhoHasLockedIt) {
  for (const bool ofRange : {false, true}) {
    const int other = open(m_path.toLocal8Bit().constData(), O_RDWR);
    ASSERT_GE(other, 0);
    struct flock all {};
    all.l_type = F_WRLCK;
    ASSERT_EQ(ofRange ? fcntl(other, F_OFD_SETLK, &all) : flock(other, LOCK_EX), 0);
    const OdString reason = expectFailure([&] { m_db->writeFile(m_path); });
    EXPECT_TRUE(reason.contains(QLatin1String("locked"))) << reason.toStdString();
    close(other);
  }
  m_db->writeFile(m_path);
  EXPECT_TRUE(bytes() == m_new) << "the lock is gone";
}

TEST_F(FailingSave, LocksThatReadersShareAreNoHindrance) {
  const int other = open(m_path.toLocal8Bit().constData(), O_RDONLY);
  struct flock all {};
  all.l_type = F_RDLCK;
  ASSERT_EQ(fcntl(other, F_OFD_SETLK, &all), 0);
  ASSERT_EQ(flock(other, LOCK_SH), 0);
  m_db->writeFile(m_path);
  EXPECT_TRUE(bytes() == m_new);
  close(other);
}

TEST_F(FailingSave, FileThatIsReplacedWhileTheNewOneIsWrittenStays) {
  const OdString reason = expectFailure([&] {
    EventfulFile file(m_path, [&] {
      m_old = "what somebody else has made\n";
      QSaveFile other(m_path);
      ASSERT_TRUE(other.open(QIODevice::WriteOnly) && other.write(m_old) == m_old.size() &&
                  other.commit());
    });
    oddxf::saveDocument(*m_db, OdDb::kVersionUnknown, file, m_path);
  });
  EXPECT_TRUE(reason.contains(QLatin1String("another program changed it"))) << reason.toStdString();
}

TEST_F(FailingSave, FileThatIsLockedWhileTheNewOneIsWrittenStays) {
  const int other = open(m_path.toLocal8Bit().constData(), O_RDWR);
  expectFailure([&] {
    EventfulFile file(m_path, [&] { ASSERT_EQ(flock(other, LOCK_EX), 0); });
    oddxf::saveDocument(*m_db, OdDb::kVersionUnknown, file, m_path);
  });
  close(other);
}

TEST_F(FailingSave, DevicesStayDevices) {
  for (const char* device : {"/dev/zero", "/dev/null", "/dev/tty"}) {
    const QString path = QString::fromLatin1(device);
    try {
      m_db->writeFile(path);
      ADD_FAILURE() << device;
    } catch (const OdFileError& e) {
      EXPECT_EQ(e.path(), path);
      EXPECT_EQ(e.reason(), QStringLiteral("it is not a file"));
    }
    struct stat status {};
    ASSERT_EQ(stat(device, &status), 0);
    EXPECT_TRUE(S_ISCHR(status.st_mode));
  }
}
