// What several threads write is what one thread writes.
#include "drawing/database.h"
#include "drawing/dxf/document_out.h"
#include "drawing/dxf/out.h"
#include "drawing/entities/line.h"
#include "drawing/support/many_entities.h"

#include <gtest/gtest.h>

#include <QSaveFile>
#include <QTemporaryDir>

namespace {

using namespace many_entities;

const OdString kName = QStringLiteral("d.dxf");

QByteArray writtenBy(std::size_t threads, const OdDbDatabase& db, OdDb::DwgVersion version) {
  QByteArray all;
  oddxf::writeDocument(
      db, version, [&](const QByteArray& piece) { all += piece; }, threads);
  return all;
}

OdDbDatabasePtr large() {
  QByteArray corners;
  for (int i = 0; i < 120'000; ++i) corners += " 10\n" + QByteArray::number(i) + ".25\n 20\n0.5\n";
  Entities all = many(1200);
  // More than a run of entities may take, with some behind it.
  all.add("LWPOLYLINE", "AcDbPolyline", " 90\n120000\n 70\n0\n" + corners);
  for (int i = 0; i < 500; ++i) all.some(i);
  all.text("\xC3\xA4\xE2\x82\xAC and ^J a %%c").text("\\U+4E2D");
  const OdDbDatabasePtr db = OdDbDatabase::readDxf(drawing(all.lines, many(700).lines), kName);
  const auto space = db->getModelSpaceId().openAs<OdDbBlockTableRecord>();
  for (std::size_t i = 0; i < space->entityIds().size(); i += 100)
    space->entityIds()[i].safeOpenObject(OdDb::kForWrite)->erase();
  return db;
}

/// An entity that cannot be written.
class Unwritable : public OdDbLine {
 public:
  void dxfOut(OdDbDxfOut&) const override {
    throw OdError(eInvalidInput, QStringLiteral("there are no words for this"));
  }
};

/// A file on a disk that is full after some bytes.
class FullDiskFile : public QSaveFile {
 public:
  FullDiskFile(const QString& path, qint64 room)
    : QSaveFile(path)
    , m_room(room) {}

 protected:
  qint64 writeData(const char* data, qint64 size) override {
    m_room -= size;
    if (m_room >= 0) return QSaveFile::writeData(data, size);
    setErrorString(QStringLiteral("No space left on device"));
    return -1;
  }

 private:
  qint64 m_room;
};

} // namespace

TEST(WriteThreads, BytesDoNotDependOnTheirNumber) {
  const OdDbDatabasePtr db = large();
  for (const OdDb::DwgVersion version : {OdDb::kR2000, OdDb::kR2018}) {
    const QByteArray one = writtenBy(1, *db, version);
    EXPECT_GT(one.size(), 3'000'000);
    for (const std::size_t threads : {2, 7}) EXPECT_TRUE(writtenBy(threads, *db, version) == one);
    EXPECT_TRUE(OdDbDatabase::readDxf(one, kName)->writeDxf(version) == one);
  }
}

TEST(WriteThreads, NoMoreThanAFewRunsAreInMemory) {
  const OdDbDatabasePtr db = OdDbDatabase::readDxf(drawing(many(4000).lines), kName);
  // Each piece is one run, or what stands between the entities.
  qsizetype longest = 0, all = 0;
  const auto count = [&](const QByteArray& piece) {
    longest = std::max(longest, piece.size());
    all += piece.size();
  };
  oddxf::writeDocument(*db, OdDb::kR2018, count, 3);
  EXPECT_GT(all, 10 * longest);
}

TEST(WriteThreads, EntityThatCannotBeWrittenIsToldWhoeverWritesIt) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const auto space = db->getModelSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  for (int i = 0; i < 3000; ++i)
    space->appendOdDbEntity(i == 1700 ? OdSmartPtr<OdDbLine>(odrxMake<Unwritable>())
                                      : odrxMake<OdDbLine>());
  for (const std::size_t threads : {1, 2, 7}) {
    try {
      writtenBy(threads, *db, OdDb::kR2018);
      ADD_FAILURE() << threads;
    } catch (const OdError& error) {
      EXPECT_EQ(error.description(), QStringLiteral("there are no words for this"));
    }
  }
}

TEST(WriteThreads, DiskThatIsFullInMidWriteLeavesTheOldFile) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("drawing.dxf"));
  const auto bytes = [&] {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  };
  OdDbDatabase::createDatabase()->writeFile(path);
  const QByteArray old = bytes();
  const OdDbDatabasePtr db = large();
  const QByteArray whole = db->writeDxf();
  for (const qint64 room : {qint64{200'000}, qint64{whole.size() / 2}, qint64{whole.size() - 1}}) {
    FullDiskFile file(path, room);
    try {
      oddxf::saveDocument(*db, OdDb::kVersionUnknown, file, path);
      ADD_FAILURE() << room;
    } catch (const OdFileError& error) {
      EXPECT_EQ(error.path(), path);
      EXPECT_EQ(error.reason(), QStringLiteral("No space left on device"));
    }
    EXPECT_TRUE(bytes() == old);
  }
  FullDiskFile file(path, whole.size());
  oddxf::saveDocument(*db, OdDb::kVersionUnknown, file, path);
  EXPECT_TRUE(bytes() == whole);
}
