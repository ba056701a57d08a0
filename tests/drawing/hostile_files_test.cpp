// Files that are too large, too small or not there any more, binary files, and what both need.
#include "drawing/database.h"
#include "drawing/dxf/bytes.h"
#include "drawing/dxf/residue.h"
#include "drawing/dxf/source.h"
#include "drawing/entities/line.h"
#include "drawing/objects/raw_object.h"
#include "drawing/support/binary_drawing.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>

#include <sys/resource.h>

namespace {

OdString messageOf(const OdString& path) {
  try {
    OdDbDatabase::readFile(path);
  } catch (const OdFileError& e) {
    return e.description();
  }
  return {};
}

/// In kilobytes.
long peakMemory() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

QByteArray drawingWithALine() {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const auto line = odrxMake<OdDbLine>(OdGePoint3d{0.1, 2, 3}, OdGePoint3d{4, 5, 1e-7});
  db->getModelSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->appendOdDbEntity(line);
  line->editResidue().xdata = "1001\nACAD\n1004\n01FE\n1040\n0.1\n1070\n-7\n1071\n70000\n";
  return db->writeDxf();
}

/// A device that fails after some bytes, like a disk that is taken away.
class FailingDevice : public QBuffer {
 public:
  explicit FailingDevice(const QByteArray& bytes) { setData(bytes); }

 protected:
  qint64 readData(char* data, qint64 size) override {
    if (pos() > 1000) {
      setErrorString(QStringLiteral("Input/output error"));
      return -1;
    }
    return QBuffer::readData(data, std::min<qint64>(size, 600));
  }
};

class HostileFiles : public ::testing::Test {
 protected:
  OdString write(const char* name, const QByteArray& bytes) {
    const OdString path = m_folder.filePath(QLatin1String(name));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    return path;
  }
  QTemporaryDir m_folder;
};

} // namespace

TEST_F(HostileFiles, TwoGigabytesOfOneLineAreRefusedWithoutTakingTheirMemory) {
  const OdString path = m_folder.filePath(QStringLiteral("long.dxf"));
  for (const char* start : {"", "  0\nSECTION\n  2\n"}) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(start);
    // Takes no room on the disk.
    ASSERT_TRUE(file.resize(qint64{2} << 30));
    file.close();
    const long before = peakMemory();
    EXPECT_FALSE(messageOf(path).isEmpty()) << start;
    EXPECT_LT(peakMemory() - before, 200 * 1024) << start;
  }
}

TEST_F(HostileFiles, ValueThatIsTooLongIsToldWithItsLine) {
  const QByteArray bytes =
      "  0\nSECTION\n  2\nHEADER\n  9\n$PROJECTNAME\n  1\n" + QByteArray(20'000'000, 'x') + "\n";
  EXPECT_TRUE(messageOf(write("value.dxf", bytes)).contains(QLatin1String("a value is longer")));
}

TEST_F(HostileFiles, OtherKindsOfFilesAreNamed) {
  EXPECT_TRUE(messageOf(write("a.dxf", "")).contains(QLatin1String("empty")));
  EXPECT_TRUE(messageOf(write("a.dxf", "%PDF-1.7\n")).contains(QLatin1String("PDF")));
  EXPECT_TRUE(
      messageOf(write("a.dxf", QByteArray("AC1032\0\0", 8))).contains(QLatin1String("DWG")));
}

TEST_F(HostileFiles, DeviceThatFailsWhileReadingIsTold) {
  FailingDevice device(drawingWithALine());
  ASSERT_TRUE(device.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
  const auto source = OdDbDxfSource::of(OdDbDxfBytes(device));
  OdDbDxfTag tag;
  auto result = OdDbDxfSource::kTag;
  while (result == OdDbDxfSource::kTag) result = source->next(tag);
  EXPECT_EQ(result, OdDbDxfSource::kDamaged);
  EXPECT_EQ(source->problem(), QLatin1String("Input/output error"));
}

TEST_F(HostileFiles, BinaryFilesAreReadLikeTexts) {
  const QByteArray text = drawingWithALine();
  const auto db = OdDbDatabase::readDxf(binaryDrawing(text), QStringLiteral("binary.dxf"));
  EXPECT_EQ(db->unknownContent(), QStringList());
  EXPECT_TRUE(db->writeDxf() == text);
}

TEST_F(HostileFiles, BinaryFilesWithCodesOfOneByteAreRead) {
  const QByteArray old = "  0\nSECTION\n  2\nENTITIES\n  0\nLINE\n  8\nWALLS\n 62\n1\n 10\n1.5\n"
                         " 20\n2\n 11\n3\n 21\n4\n1001\nACAD\n1070\n7\n  0\nENDSEC\n  0\nEOF\n";
  const auto db = OdDbDatabase::readDxf(binaryDrawing(old, true), QStringLiteral("old.dxf"));
  EXPECT_EQ(db->unknownContent(), QStringList());
  const auto space = db->getModelSpaceId().openAs<OdDbBlockTableRecord>();
  const auto line = space->entityIds().at(0).openAs<OdDbLine>();
  EXPECT_EQ(line->startPoint(), (OdGePoint3d{1.5, 2, 0}));
  EXPECT_EQ(line->layer(), QLatin1String("WALLS"));
  EXPECT_EQ(line->residue()->xdata, "1001\nACAD\n1070\n7\n");
}

TEST_F(HostileFiles, BinaryFileCutAnywhereIsRefusedOrOpensWithAReport) {
  const QByteArray whole = binaryDrawing(drawingWithALine());
  int opened = 0;
  for (qsizetype size = 0; size < whole.size() - 5; size += 41) {
    try {
      const auto db = OdDbDatabase::readDxf(whole.left(size), QStringLiteral("cut.dxf"));
      EXPECT_FALSE(db->unknownContent().isEmpty()) << size;
      ++opened;
    } catch (const OdFileError& e) {
      EXPECT_FALSE(e.reason().isEmpty()) << size;
    }
  }
  EXPECT_GT(opened, 0);
}

TEST_F(HostileFiles, BlocksThatContainEachOtherAndReferencesToNothingAreKept) {
  const auto block = [](const QByteArray& name, const QByteArray& other, const QByteArray& handle) {
    return "  0\nBLOCK\n  5\n" + handle + "1\n100\nAcDbEntity\n  8\n0\n100\nAcDbBlockBegin\n  2\n" +
           name + "\n 70\n0\n 10\n0\n 20\n0\n 30\n0\n  3\n" + name + "\n  1\n\n  0\nINSERT\n  5\n" +
           handle + "2\n330\n" + handle + "0\n100\nAcDbEntity\n  8\n0\n100\nAcDbBlockReference\n" +
           "  2\n" + other + "\n 10\n0\n 20\n0\n 30\n0\n  0\nENDBLK\n  5\n" + handle +
           "3\n100\nAcDbEntity\n  8\n0\n100\nAcDbBlockEnd\n";
  };
  const auto record = [](const QByteArray& name, const QByteArray& handle) {
    return "  0\nBLOCK_RECORD\n  5\n" + handle + "0\n330\n1\n100\nAcDbSymbolTableRecord\n100\n" +
           "AcDbBlockTableRecord\n  2\n" + name + "\n340\n0\n";
  };
  QByteArray text = OdDbDatabase::createDatabase()->writeDxf();
  const qsizetype records = text.indexOf("  0\nENDTAB\n", text.indexOf("2\nBLOCK_RECORD\n"));
  text.insert(records, record("A", "A0") + record("B", "B0") + record("SELF", "C0"));
  const qsizetype blocks = text.indexOf("  0\nENDSEC\n", text.indexOf("2\nBLOCKS\n"));
  text.insert(blocks, block("A", "B", "A0") + block("B", "A", "B0") + block("SELF", "SELF", "C0"));
  const qsizetype objects = text.indexOf("  0\nENDSEC\n", text.indexOf("2\nOBJECTS\n"));
  text.insert(objects, "  0\nXRECORD\n  5\nD00\n330\nC\n100\nAcDbXrecord\n280\n1\n330\nDEAD\n"
                       "  0\nDICTIONARY\n  5\nD01\n330\nD01\n100\nAcDbDictionary\n281\n1\n"
                       "  3\nME\n350\nD01\n  3\nNOBODY\n350\nBEEF\n");
  const auto db = OdDbDatabase::readDxf(text, QStringLiteral("loops.dxf"));
  EXPECT_EQ(db->unknownContent(), QStringList());
  const QByteArray saved = db->writeDxf();
  EXPECT_EQ(saved.count("100\nAcDbBlockReference\n"), 3);
  EXPECT_TRUE(saved.contains("330\nDEAD\n"));
  EXPECT_TRUE(saved.contains("  3\nME\n350\nD01\n  3\nNOBODY\n350\nBEEF\n"));
}

TEST_F(HostileFiles, ManyBrokenLinesTellABoundedReport) {
  QByteArray entities;
  for (int i = 0; i < 20'000; ++i) entities += "  0\nLINE\n  8\n0\n100\nAcDbLine\n 10\nnan\n";
  QByteArray text = OdDbDatabase::createDatabase()->writeDxf();
  text.replace("  2\nENTITIES\n", "  2\nENTITIES\n" + entities);
  const auto db = OdDbDatabase::readDxf(text, QStringLiteral("broken.dxf"));
  EXPECT_LE(db->unknownContent().size(), 1001);
  EXPECT_GE(db->unknownContent().size(), 1000);
}
