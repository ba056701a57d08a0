#include "frame/system_services.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QUuid>

#include <gtest/gtest.h>

#include <functional>

namespace {

/// Takes a number of bytes and then fails, as a full disk does.
class FullDisk : public QIODevice {
 public:
  explicit FullDisk(qint64 room)
    : m_room(room) {
    open(QIODevice::WriteOnly | QIODevice::Unbuffered);
  }
  qint64 taken() const { return m_taken; }

 protected:
  qint64 readData(char*, qint64) override { return -1; }
  qint64 writeData(const char*, qint64 count) override {
    if (m_taken + count > m_room) {
      setErrorString(QStringLiteral("no room"));
      return -1;
    }
    m_taken += count;
    return count;
  }

 private:
  qint64 m_room;
  qint64 m_taken = 0;
};

std::string reasonOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const OdFileError& error) {
    return (error.path() + u'|' + error.reason()).toStdString();
  }
  return "no failure";
}

TEST(DeviceStream, FailsAfterTheBytesThatTheDeviceTakes) {
  OdDeviceStream stream(std::make_unique<FullDisk>(10), QStringLiteral("disk"));
  for (int i = 0; i < 10; ++i) stream.putByte('x');
  stream.flush();
  stream.putByte('x'); // gathered
  EXPECT_EQ(reasonOf([&] { stream.flush(); }), "disk|no room");
}

TEST(DeviceStream, FailsAtLastWhenMuchIsWrittenWithoutFlush) {
  OdDeviceStream stream(std::make_unique<FullDisk>(1000), QStringLiteral("disk"));
  EXPECT_EQ(reasonOf([&] {
              for (int i = 0; i < 1000000; ++i) stream.putByte('x');
            }),
            "disk|no room");
}

TEST(DeviceStream, GathersSingleBytesInOrder) {
  auto buffer = std::make_unique<QBuffer>();
  buffer->open(QIODevice::ReadWrite);
  QBuffer* const device = buffer.get();
  OdDeviceStream stream(std::move(buffer), QStringLiteral("b"));
  stream.putByte('a');
  stream.putBytes("bc", 2);
  EXPECT_EQ(stream.tell(), 3u);
  EXPECT_EQ(stream.length(), 3u);
  stream.putByte('d');
  stream.seek(1);
  stream.putByte('B');
  stream.flush();
  EXPECT_EQ(device->data(), "aBcd");
  char read[2] = {};
  stream.getBytes(read, 2);
  EXPECT_EQ(QByteArray(read, 2), "cd");
  EXPECT_EQ(reasonOf([&] { stream.getBytes(read, 1); }), "b|the file ends too early");
}

TEST(MemoryStream, GrowsWhereItIsWritten) {
  OdMemoryStream stream;
  stream.putBytes("abc", 3);
  stream.seek(1);
  stream.putByte('X');
  EXPECT_EQ(stream.bytes(), "aXc");
  EXPECT_EQ(stream.tell(), 2u);
  stream.seek(5);
  stream.putByte('Z');
  EXPECT_EQ(stream.bytes(), QByteArray("aXc\0\0Z", 6));
  char c = 0;
  stream.seek(6);
  EXPECT_EQ(reasonOf([&] { stream.getBytes(&c, 1); }), "(memory)|the stream ends too early");
  stream.seek(std::uint64_t{0} - 1);
  EXPECT_EQ(reasonOf([&] { stream.getBytes(&c, 1); }), "(memory)|the stream ends too early");
}

class Files : public testing::Test {
 protected:
  OdString path(const char* name) const { return m_folder.path() + u'\\' + QLatin1String(name); }
  void write(const char* name, const QByteArray& bytes) {
    QFile file(m_folder.filePath(QString::fromLatin1(name)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  QByteArray bytes(const char* name) const {
    QFile file(m_folder.filePath(QString::fromLatin1(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
  }
  OdStreamBufPtr open(const char* name, Oda::FileAccessMode access,
                      Oda::FileCreationDisposition creation) {
    return m_services->createFile(path(name), access, Oda::kShareDenyNo, creation);
  }
  /// What is in the file "f" after 'X' was written under that mode, or the reason why not.
  std::string afterWriting(Oda::FileCreationDisposition creation) {
    return reasonOr([&] {
      const OdStreamBufPtr stream = open("f", Oda::kFileWrite, creation);
      stream->putByte('X');
      stream->flush();
    });
  }
  std::string reasonOr(const std::function<void()>& action) {
    const std::string reason = reasonOf(action);
    return reason == "no failure" ? bytes("f").toStdString() : "failed";
  }
  QTemporaryDir m_folder;
  OdRxSystemServices* const m_services = odrxSystemServices();
};

TEST_F(Files, AreMadeKeptOrEmptiedByTheCreationMode) {
  EXPECT_EQ(afterWriting(Oda::kOpenExisting), "failed");
  EXPECT_EQ(afterWriting(Oda::kTruncateExisting), "failed");
  EXPECT_EQ(bytes("f"), "(no file)");
  EXPECT_EQ(afterWriting(Oda::kCreateNew), "X");
  EXPECT_EQ(afterWriting(Oda::kCreateNew), "failed");
  write("f", "abc");
  EXPECT_EQ(afterWriting(Oda::kOpenExisting), "Xbc");
  EXPECT_EQ(afterWriting(Oda::kOpenAlways), "Xbc");
  EXPECT_EQ(afterWriting(Oda::kTruncateExisting), "X");
  write("f", "abc");
  EXPECT_EQ(afterWriting(Oda::kCreateAlways), "X");
  QFile::remove(m_folder.filePath(QStringLiteral("f")));
  EXPECT_EQ(afterWriting(Oda::kOpenAlways), "X");
  QFile::remove(m_folder.filePath(QStringLiteral("f")));
  EXPECT_EQ(afterWriting(Oda::kCreateAlways), "X");
}

TEST_F(Files, AreReadByTheirModeWithoutBeingChanged) {
  write("f", "abc");
  const OdStreamBufPtr stream = open("f", Oda::kFileRead, Oda::kOpenExisting);
  EXPECT_EQ(stream->length(), 3u);
  EXPECT_EQ(stream->fileName(), path("f"));
  char read[3];
  stream->getBytes(read, 3);
  EXPECT_EQ(QByteArray(read, 3), "abc");
  EXPECT_EQ(bytes("f"), "abc");
}

TEST_F(Files, ThatCannotBeOpenedAreNamedWithTheReason) {
  const auto reason = [&](const char* name, Oda::FileAccessMode access,
                          Oda::FileCreationDisposition creation) {
    return reasonOf([&] { open(name, access, creation); });
  };
  const std::string missing = reason("missing", Oda::kFileRead, Oda::kOpenExisting);
  EXPECT_EQ(missing, path("missing").toStdString() + "|No such file or directory");
  QDir(m_folder.path()).mkdir(QStringLiteral("folder"));
  EXPECT_EQ(reason("folder", Oda::kFileRead, Oda::kOpenExisting),
            path("folder").toStdString() + "|it is a folder");
  EXPECT_EQ(reason("folder", Oda::kFileWrite, Oda::kCreateAlways),
            path("folder").toStdString() + "|it is a folder");
  EXPECT_EQ(reason("none\\f", Oda::kFileWrite, Oda::kCreateAlways),
            path("none\\f").toStdString() + "|No such file or directory");
}

TEST_F(Files, HaveCodesForMissingAndForDenied) {
  const auto code = [&](Oda::FileAccessMode access) {
    try {
      open("none\\f", access, Oda::kOpenExisting);
    } catch (const OdFileError& error) {
      return error.code();
    }
    return eOk;
  };
  EXPECT_EQ(code(Oda::kFileRead), eFileNotFound);
  EXPECT_EQ(code(Oda::kFileWrite), eFileAccess);
}

TEST_F(Files, AreCopiedButNeverOverOthers) {
  write("f", "abc");
  m_services->copyFile(path("f"), path("g"));
  EXPECT_EQ(bytes("g"), "abc");
  EXPECT_NE(reasonOf([&] { m_services->copyFile(path("f"), path("g")); }), "no failure");
  EXPECT_NE(reasonOf([&] { m_services->copyFile(path("none"), path("h")); }), "no failure");
}

TEST_F(Files, AreToldFromFolders) {
  write("f", "");
  EXPECT_TRUE(m_services->fileExists(path("f")));
  EXPECT_FALSE(m_services->folderExists(path("f")));
  EXPECT_TRUE(m_services->createFolder(path("a\\b/c")));
  EXPECT_TRUE(m_services->folderExists(path("a\\b\\c")));
  EXPECT_FALSE(m_services->fileExists(path("a")));
  EXPECT_FALSE(m_services->createFolder(path("f\\b")));
  EXPECT_TRUE(m_services->removeFile(path("f")));
  EXPECT_FALSE(m_services->removeFile(path("f")));
}

TEST_F(Files, AreListedByName) {
  for (const char* name : {"b.dtc", "a.dtc", ".hidden", "c.png"}) write(name, "");
  QDir(m_folder.path()).mkdir(QStringLiteral("folder"));
  EXPECT_EQ(
      m_services->filesIn(m_folder.path()),
      QStringList({QStringLiteral("a.dtc"), QStringLiteral("b.dtc"), QStringLiteral("c.png")}));
  EXPECT_TRUE(m_services->filesIn(path("none")).isEmpty());
}

TEST(Services, GiveIdsInBracesAndCapitals) {
  const OdString id = odrxSystemServices()->createGuid();
  EXPECT_EQ(id.size(), 38);
  EXPECT_EQ(QUuid(id).toString(QUuid::WithBraces).toUpper(), id);
  EXPECT_NE(odrxSystemServices()->createGuid(), id);
}

TEST(Services, KnowTheTimeAndTheUsersFolder) {
  EXPECT_TRUE(odrxSystemServices()->currentTime().isValid());
  EXPECT_FALSE(odrxSystemServices()->userProfileFolder().contains(u'/'));
}

class OtherServices : public OdRxSystemServices {
 public:
  OdStreamBufPtr createFile(const OdString&, Oda::FileAccessMode, Oda::FileShareMode,
                            Oda::FileCreationDisposition) override {
    return {};
  }
  bool fileExists(const OdString&) override { return false; }
  bool folderExists(const OdString&) override { return false; }
  bool createFolder(const OdString&) override { return false; }
  bool removeFile(const OdString&) override { return false; }
  void copyFile(const OdString&, const OdString&) override {}
  QStringList filesIn(const OdString&) override { return {}; }
  OdString createGuid() override { return QStringLiteral("mine"); }
  OdTimeStamp currentTime() override { return {}; }
  OdString userProfileFolder() override { return {}; }
};

TEST(Services, CanBeReplacedAndPutBack) {
  OtherServices mine;
  EXPECT_EQ(odrxSetSystemServices(&mine), nullptr);
  EXPECT_EQ(odrxSystemServices()->createGuid(), QStringLiteral("mine"));
  EXPECT_EQ(odrxSetSystemServices(nullptr), &mine);
  EXPECT_NE(odrxSystemServices()->createGuid(), QStringLiteral("mine"));
}

TEST(Services, GiveMemoryEvenForNothing) {
  void* const memory = odrxAlloc(0);
  EXPECT_NE(memory, nullptr);
  odrxFree(memory);
  odrxFree(nullptr);
}

} // namespace
