// Saving that fails: the old file stays whole, the folder clean, the drawing open.
#include "drawing/database.h"
#include "drawing/dxf/document_out.h"
#include "drawing/entities/line.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QSaveFile>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

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
  template <class Save>
  void expectFailure(const Save& save) {
    try {
      save();
      ADD_FAILURE() << "saved";
    } catch (const OdFileError& e) {
      EXPECT_EQ(e.path(), m_path);
      EXPECT_FALSE(e.reason().isEmpty());
    }
    EXPECT_TRUE(bytes() == m_old);
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList{QStringLiteral("drawing.dxf")});
    EXPECT_TRUE(m_db->isModified());
    EXPECT_TRUE(m_db->writeDxf() == m_new);
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
