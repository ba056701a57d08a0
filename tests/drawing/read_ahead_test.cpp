// What several threads read of a drawing is what one thread reads.
#include "drawing/database.h"
#include "drawing/dxf/ahead_source.h"
#include "drawing/dxf/document_in.h"
#include "drawing/dxf/piece_source.h"
#include "drawing/objects/dictionary_vars.h"
#include "drawing/support/many_entities.h"

#include <gtest/gtest.h>

#include <QBuffer>

namespace {

using namespace many_entities;

std::string_view view(const QByteArray& bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

/// All that comes of a file.
struct Read {
  QByteArray saved;
  QStringList damage, notes;
  OdString refusal;
  bool operator==(const Read&) const = default;
};

Read readWith(std::size_t threads, const std::function<OdDbDxfBytes()>& make) {
  try {
    const OdDbDatabasePtr db = oddxf::readDocument(make, QStringLiteral("d.dxf"), threads);
    return {db->writeDxf(), db->unknownContent(), db->readNotes(), {}};
  } catch (const OdError& error) {
    return {{}, {}, {}, error.description()};
  }
}

/// Reads it with several threads, and gives what one thread reads.
Read expectTheSame(QByteArray text) {
  const Read one = readWith(1, [&] { return OdDbDxfBytes(view(text)); });
  for (const std::size_t threads : {2, 7}) {
    const Read several = readWith(threads, [&] { return OdDbDxfBytes(view(text)); });
    EXPECT_EQ(several.damage, one.damage);
    EXPECT_EQ(several.notes, one.notes);
    EXPECT_EQ(several.refusal, one.refusal);
    EXPECT_TRUE(several.saved == one.saved);
    QBuffer device(&text);
    EXPECT_TRUE(device.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    EXPECT_TRUE(readWith(threads, [&] {
                  device.seek(0);
                  return OdDbDxfBytes(device);
                }) == one);
  }
  return one;
}

} // namespace

TEST(ReadAhead, GivesTheDrawingThatOneThreadReads) {
  const QByteArray text = drawing(many(2000).lines);
  ASSERT_GT(text.size(), 500'000);
  const Read read = expectTheSame(text);
  EXPECT_EQ(read.damage, QStringList());
  EXPECT_TRUE(expectTheSame(QByteArray(text).replace("\n", "\r\n")) == read);
}

TEST(ReadAhead, HelpersReadWhatTheyCanAndTheRestIsReadAsItComes) {
  Entities all;
  int helped = 0;
  for (int i = 0; i < 3000; ++i) {
    all.line(i % 1000 == 500 ? "x" : "1");
    if (i % 1000 != 500) ++helped;
  }
  // What stands behind the last border is not in a piece.
  const QByteArray text = all.lines + "  0\nENDSEC\n";
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  OdDbDxfAheadSource source(OdDbDxfBytes(view(text)), 3);
  OdDbDxfIn in(*db, source, QStringLiteral("d.dxf"));
  int taken = 0, left = 0;
  for (in.next(); in.tag().text != "ENDSEC";) {
    const auto entities = source.entities(in);
    taken += static_cast<int>(entities.size());
    if (!entities.empty()) {
      source.goBehind(entities.back(), in);
      continue;
    }
    ++left;
    EXPECT_FALSE(in.readEntity("LINE"));
  }
  source.end();
  EXPECT_EQ(taken, helped);
  EXPECT_EQ(left, 3);
  EXPECT_EQ(db->unknownContent().size(), 3);
}

TEST(ReadAhead, ObjectsBehindTheEntitiesAreReadAheadWithThem) {
  Entities all = many(100);
  QByteArray objects;
  for (int i = 0; i < 50; ++i)
    objects += "  0\nDICTIONARYVAR\n  5\n" + QByteArray::number(0x9000 + i, 16).toUpper() +
               "\n330\nC\n100\nDictionaryVariables\n280\n" + (i == 20 ? "x" : "0") +
               "\n  1\nvalue\n";
  const QByteArray text =
      all.lines + "  0\nENDSEC\n  0\nSECTION\n  2\nOBJECTS\n" + objects + "  0\nENDSEC\n";
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  OdDbDxfAheadSource source(OdDbDxfBytes(view(text)), 3);
  OdDbDxfIn in(*db, source, QStringLiteral("d.dxf"));
  in.next();
  while (in.tag().text != "ENDSEC")
    if (const auto entities = source.entities(in); !entities.empty()) {
      source.takeOver(entities.back(), in);
      source.goBehind(entities.back(), in);
    } else {
      in.readEntity(std::string(in.tag().text));
    }
  source.end();
  for (int i = 0; i < 3; ++i) in.next();
  ASSERT_EQ(in.tag().text, "DICTIONARYVAR");
  // One of them has a value that has to be told, in its place.
  const auto before = source.objects(in);
  ASSERT_EQ(before.size(), 20U);
  EXPECT_EQ(before[3].head.handle, OdDbHandle(0x9003));
  EXPECT_TRUE(odrxCast<OdDbDictionaryVar>(before[3].object.get()));
  source.takeOver(before.back(), in);
  source.goBehind(before.back(), in);
  EXPECT_TRUE(source.objects(in).empty());
  in.readTags(*odrxMake<OdDbDictionaryVar>());
  EXPECT_EQ(db->unknownContent().size(), 1);
  const auto behind = source.objects(in);
  EXPECT_EQ(behind.size(), 29U);
}

namespace {

/// Counts what is read from it.
class CountingDevice : public QBuffer {
 public:
  explicit CountingDevice(QByteArray* bytes)
    : QBuffer(bytes) {}
  qint64 count = 0;

 protected:
  qint64 readData(char* data, qint64 most) override {
    const qint64 read = QBuffer::readData(data, most);
    count += std::max<qint64>(read, 0);
    return read;
  }
};

qint64 bytesRead(QByteArray text) {
  CountingDevice device(&text);
  EXPECT_TRUE(device.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
  readWith(2, [&] {
    device.seek(0);
    return OdDbDxfBytes(device);
  });
  return device.count;
}

} // namespace

TEST(ReadAhead, WhatTheLookAheadHasReadIsNotReadAgain) {
  const QByteArray small = drawing(many(200).lines);
  EXPECT_EQ(bytesRead(small), small.size());
  const QByteArray large = drawing(many(4000).lines);
  EXPECT_EQ(bytesRead(large), large.size());
  // Without the highest handle all of the file has to be looked through.
  const QByteArray unsure = QByteArray(large).replace("FFFFFF", "0");
  EXPECT_EQ(bytesRead(unsure), 2 * unsure.size());
}

TEST(ReadAhead, TellsWhatIsWrongInTheLineWhereItIs) {
  Entities all;
  for (int i = 0; i < 6000; ++i) {
    all.some(i);
    if (i % 900 == 450) all.line("no number");
    if (i % 900 == 460) all.line("1", "1001");   // taken
    if (i % 900 == 470) all.line("1", "handle"); // none
    if (i % 900 == 480) {
      all.layer = "LAYER " + QByteArray::number(i);
      all.line("1");
      all.layer = "0";
    }
    if (i % 900 == 490) all.insert("NO BLOCK");
    if (i == 2000) {
      all.add("POLYLINE", "AcDb2dPolyline", " 66\n1\n 10\nno number\n 20\n0\n 30\n0\n");
      for (int corner = 0; corner < 2000; ++corner) all.vertex("1");
      all.end();
    }
  }
  const Read read = expectTheSame(drawing(all.lines));
  EXPECT_GT(read.damage.size(), 20);
  EXPECT_GT(read.notes.size(), 7);
}

TEST(ReadAhead, PolylinesMayBeLongerThanAPiece) {
  Entities all = many(1000);
  all.polyline(3'000);
  for (int i = 0; i < 1000; ++i) all.some(i);
  EXPECT_EQ(expectTheSame(drawing(all.lines)).damage, QStringList());
}

TEST(ReadAhead, EntitiesMayBeLongerThanAnyPiece) {
  QByteArray corners;
  for (int i = 0; i < 70'000; ++i) corners += " 10\n" + QByteArray::number(i) + "\n 20\n0.5\n";
  Entities all = many(700);
  all.add("LWPOLYLINE", "AcDbPolyline", " 90\n70000\n 70\n0\n" + corners);
  for (int i = 0; i < 700; ++i) all.some(i);
  all.add("LWPOLYLINE", "AcDbPolyline", " 90\n70000\n 70\n0\n" + corners);
  EXPECT_EQ(expectTheSame(drawing(all.lines)).damage, QStringList());
}

TEST(ReadAhead, ReadsBlocksOfAnySize) {
  QByteArray blocks = many(1500).lines;
  for (int i = 0; i < 400; ++i)
    blocks += "  0\nENDBLK\n  5\n" + QByteArray::number(0x20000 + 2 * i, 16) +
              "\n100\nAcDbEntity\n  8\n0\n100\nAcDbBlockEnd\n  0\nBLOCK\n  5\n" +
              QByteArray::number(0x20001 + 2 * i, 16) +
              "\n100\nAcDbEntity\n  8\n0\n100\nAcDbBlockBegin\n  2\nB" + QByteArray::number(i) +
              "\n 70\n0\n 10\n0\n 20\n0\n 30\n0\n" + Entities().line("1", "AAAA").lines;
  const Read read = expectTheSame(drawing(many(2000).lines, blocks));
  // Handles are used twice, and the blocks have no records.
  EXPECT_GT(read.damage.size(), 900);
  EXPECT_EQ(read.notes.filter(QStringLiteral("has no record")).size(), 400);
}

TEST(ReadAhead, EndsWhereTheSectionDoes) {
  const QByteArray lines = many(600).lines;
  // The end is missing, or stands twice, or the file has none.
  expectTheSame(drawing(lines).replace("  0\nENDSEC\n  0\nSECTION\n  2\nOBJECTS", //
                                       "  0\nSECTION\n  2\nOBJECTS"));
  expectTheSame(drawing(lines + "  0\nENDSEC\n" + lines));
  expectTheSame(drawing(lines + "  0\nENDBLK\n" + lines));
  expectTheSame(drawing(lines + "  0\nEOF\n" + lines));
  expectTheSame(drawing(lines, "  0\nBLOCK\n  8\n0\n" + lines));
  expectTheSame(drawing(lines, lines + "  0\nENDSEC\n" + lines));
}

TEST(ReadAhead, ReadsDrawingsThatAreCutAnywhere) {
  const QByteArray text = drawing(many(800).lines);
  for (qsizetype size = text.size(); size > 100'000; size -= 61'987) expectTheSame(text.left(size));
}

TEST(ReadAhead, TellsDamageWhereItIs) {
  const QByteArray text = drawing(many(800).lines);
  for (const char* damage : {"LINE\n", "12x\n1\n", "\n\n", "0\n"}) {
    QByteArray damaged = text;
    const qsizetype at = damaged.indexOf("  0\nTEXT\n", text.size() / 2);
    EXPECT_FALSE(expectTheSame(damaged.insert(at, damage)).damage.isEmpty()) << damage;
  }
}

TEST(ReadAhead, HandlesThatNothingHasStayFreeWhereNewOnesAreGiven) {
  // The seed is too low: references lie above it, where objects without handles get theirs.
  Entities all;
  for (int i = 0; i < 3000; ++i) {
    all.add("WIDGET", "AcDbEntity", "390\n" + QByteArray::number(0x900000 + i, 16) + "\n");
    if (i % 50 == 0) all.line("1", "0");
  }
  expectTheSame(drawing(all.lines).replace("FFFFFF", "900000"));
}

TEST(ReadAhead, ReadsOldDrawings) {
  QByteArray text = kHeader;
  text += "AC1009\n  9\n$HANDLING\n 70\n1\n  0\nENDSEC\n  0\nSECTION\n  2\nBLOCKS\n"
          "  0\nBLOCK\n  8\n0\n  2\nDOOR\n 70\n0\n 10\n0\n 20\n0\n 30\n0\n" +
          Entities(true).line().lines + "  0\nENDBLK\n  8\n0\n  0\nENDSEC\n" +
          "  0\nSECTION\n  2\nENTITIES\n" + many(2000, true).lines +
          Entities(true).insert("LATER").lines + "  0\nENDSEC\n  0\nEOF\n";
  EXPECT_GT(text.size(), 250'000);
  expectTheSame(text);
}

namespace {

/// A device that fails behind some bytes.
class FailingDevice : public QBuffer {
 public:
  explicit FailingDevice(QByteArray* bytes)
    : QBuffer(bytes) {}

 protected:
  qint64 readData(char* data, qint64 most) override {
    const qint64 good = size() / 2 - pos();
    if (good > 0) return QBuffer::readData(data, std::min(most, good));
    setErrorString(QStringLiteral("the disk is broken"));
    return -1;
  }
};

struct Tags {
  std::vector<std::tuple<int, std::string, qint64>> tags;
  OdDbDxfSource::Result end;
  qint64 line;
  OdString problem;
  bool operator==(const Tags&) const = default;
};

Tags allOf(OdDbDxfSource& source) {
  Tags all;
  OdDbDxfTag tag;
  while ((all.end = source.next(tag)) == OdDbDxfSource::kTag)
    all.tags.emplace_back(tag.code, tag.text, source.line());
  all.line = source.line();
  all.problem = source.problem();
  return all;
}

} // namespace

TEST(ReadAhead, TellsWhatIsWrongWithTheDevice) {
  QByteArray text = drawing(many(1500).lines);
  FailingDevice device(&text);
  ASSERT_TRUE(device.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
  const auto make = [&] {
    device.seek(0);
    return OdDbDxfBytes(device);
  };
  const Read one = readWith(1, make);
  ASSERT_EQ(one.damage.size(), 1);
  EXPECT_TRUE(one.damage[0].contains(QStringLiteral("the disk is broken")));
  for (const std::size_t threads : {2, 7}) EXPECT_TRUE(readWith(threads, make) == one);
}

TEST(Piece, EndsBetweenObjectsWhateverValuesLookLike) {
  QByteArray text;
  for (int i = 0; i < 40'000; ++i)
    text += i % 3 == 0 ? "  0\nTEXT\n" : i % 3 == 1 ? "  1\n  0\n" : "999\n0\n";
  OdDbDxfBytes bytes(view(text));
  qint64 line = 1;
  QByteArray together;
  int count = 0;
  while (const auto piece = OdDbDxfPiece::cut(bytes, line)) {
    EXPECT_EQ(piece->line, line);
    EXPECT_TRUE(piece->text.starts_with("  0\nTEXT\n"));
    line += piece->lines;
    together.append(piece->text.data(), static_cast<qsizetype>(piece->text.size()));
    ++count;
  }
  EXPECT_GT(count, 3);
  EXPECT_TRUE(text.startsWith(together));
  EXPECT_TRUE(QByteArrayView(bytes.at, static_cast<qsizetype>(bytes.left())) ==
              text.mid(together.size()));
  EXPECT_EQ(line, together.count('\n') + 1);
}

TEST(Piece, IsNotCutWhereNothingEnds) {
  const QByteArray text = "  0\nLINE\n" + QByteArray(" 10\n0\n").repeated(400'000);
  OdDbDxfBytes bytes(view(text));
  EXPECT_FALSE(OdDbDxfPiece::cut(bytes, 1));
  EXPECT_EQ(bytes.at, text.constData());
}

TEST(PieceSource, GivesTheTagsOfATextSource) {
  const QByteArray parts[] = {"  0\nLINE\n",
                              "0\r\n LINE \t\r\n",
                              "999\nhidden\n",
                              " 10\n12.5\n",
                              "1071\n-5\n",
                              "  1\n\n",
                              "  1\r\n\r\n",
                              "\t70\t\n1\n",
                              " 1 \nblanks\n",
                              "-5\nnegative\n",
                              "00070\nmany digits\n",
                              "  1\na\rb\r\r\n",
                              "  1\nlonger than a word of the machine, and with \xC3\xA4\n",
                              "  1\n1234567\n",
                              " 10\ntwo digits\n",
                              "100\nthree\n",
                              "1 0\na blank between\n",
                              "10 \na blank behind\n",
                              "1  \ntwo behind\n",
                              ": 1\nno digit\n",
                              "-10\nbelow nothing\n",
                              "  1\n12345678\n"};
  QByteArray all;
  for (const QByteArray& first : parts)
    for (const QByteArray& second : parts) all += first + second;
  QByteArrayList texts = {all, all + "x\n1\n" + all, all + "12345678901\n1\n", all + " \n1\n"};
  for (const QByteArray& part : parts) texts << part;
  for (const QByteArray& text : texts) {
    OdDbDxfPieceSource source;
    source.restart({view(text), 17, 0, nullptr});
    OdDbDxfTextSource expected{OdDbDxfBytes(std::string_view())};
    expected.restart(view(text), 17);
    EXPECT_TRUE(allOf(source) == allOf(expected)) << text.left(200).constData();
  }
}
