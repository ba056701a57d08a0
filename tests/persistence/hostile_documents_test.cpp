#include "frame/system_services.h"
#include "persistence/document_check.h"
#include "persistence/stored_record.h"

#include <QDir>
#include <QFile>
#include <QMap>

#include <gtest/gtest.h>

using namespace tc;
using namespace tc::test;

namespace {

struct Expectation {
  const char* file;
  bool isRead;
  const char* problem; ///< a part of it; null: there is none
  const char* text;    ///< of the element T, if it is read
};

constexpr Expectation kExpectations[] = {
    {"bare_ampersand.dtc", true, nullptr, "A & B"},
    {"blank.dtc", false, "there is no element", nullptr},
    {"control_characters.dtc", true, nullptr, "\x01\x02\x01\x7F"},
    {"crossed_tags.dtc", false, "line 1, column 16: the element \"B\" is closed as \"A\"", nullptr},
    {"cut_in_letter.dtc", false, "is not closed", nullptr},
    {"cut_in_tag.dtc", false, "line 2, column", nullptr},
    {"cut_in_text.dtc", false, "is not closed", nullptr},
    {"double_attribute.dtc", false, "line 2, column", nullptr},
    {"empty.dtc", false, "the file is empty", nullptr},
    {"entity_bomb.dtc", false, "there is no element", nullptr},
    {"html.dtc", false, "closed as", nullptr},
    {"large_reference.dtc", true, "there is no character \"&#xFFFFFFFF;\"",
     "a\xEF\xBF\xBD"
     "b"},
    {"latin1.dtc", true, "bytes that are no UTF-8 (1 in all)",
     "K\xEF\xBF\xBD"
     "che"},
    {"not_xml.dtc", false, "there is no element", nullptr},
    {"nul_byte.dtc", false, "a NUL byte", nullptr},
    {"nul_reference.dtc", true, "there is no character \"&#0;\"",
     "a\xEF\xBF\xBD"
     "b"},
    {"trailing_text.dtc", true, "follows the last element", ""},
    {"two_roots.dtc", true, nullptr, "a"},
    {"undefined_entity.dtc", true, "\"&nbsp;\" is not known", "a&nbsp;b&undefined;c"},
    {"utf16_be.dtc", false, "UTF-16", nullptr},
    {"utf16_le_bom.dtc", false, "UTF-16", nullptr},
    {"utf32_le_bom.dtc", false, "UTF-32", nullptr},
    {"utf8_bom.dtc", true, nullptr, ""},
};

QDir hostileFolder() { return QDir(QStringLiteral(TEST_DATA_DIR "/hostile")); }

QByteArray bytesOf(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return file.readAll();
}

TEST(HostileDocuments, AreReadOrRefusedWithAReason) {
  for (const Expectation& e : kExpectations) {
    const Reading reading =
        readPalette(bytesOf(hostileFolder().filePath(QString::fromLatin1(e.file))));
    EXPECT_EQ(reading.isRead, e.isRead) << e.file << ": " << reading.problem.toStdString();
    if (e.problem)
      EXPECT_NE(reading.problem.toStdString().find(e.problem), std::string::npos)
          << e.file << ": " << reading.problem.toStdString();
    else
      EXPECT_EQ(reading.problem.toStdString(), "") << e.file;
    if (e.isRead) {
      EXPECT_EQ(reading.root->text(QStringLiteral("T")).toStdString(), e.text) << e.file;
    } else {
      EXPECT_TRUE(reading.root->fields.empty()) << e.file;
    }
  }
}

TEST(HostileDocuments, AllHaveAnExpectation) {
  QStringList expected;
  for (const Expectation& e : kExpectations) expected << QString::fromLatin1(e.file);
  EXPECT_EQ(hostileFolder().entryList({QStringLiteral("*.dtc")}, QDir::Files, QDir::Name),
            expected);
}

TEST(HostileDocuments, CutAtAnyByteAreReadWholeOrNotAtAll) {
  const QByteArray whole = "\xEF\xBB\xBF<?xml version='1.0'?>\n<!-- a --><Palette a=\"1\" b='2'>\n"
                           "  <T>K\xC3\xBC"
                           "che &amp; &#65;</T><Box><![CDATA[<x>]]></Box>\n"
                           "  <Node n=\"1\"/>\n</Palette>\n";
  const OdString log = readPalette(whole).root->log();
  for (qsizetype size = 0; size < whole.size(); ++size) {
    const Reading reading = readPalette(whole.left(size));
    // Only the line break at the end may be missing.
    EXPECT_EQ(reading.isRead, size == whole.size() - 1) << size;
    EXPECT_EQ(reading.problem.isEmpty(), reading.isRead) << size;
    EXPECT_EQ(reading.root->log(), reading.isRead ? log : OdString()) << size;
  }
}

TEST(HostileDocuments, WithAnyByteChangedCrashNothing) {
  const QByteArray whole = "<Palette a=\"1\"><T b='2'>K\xC3\xBC&amp;</T><Box><!-- c --></Box>"
                           "<![CDATA[<x>]]></Palette>";
  for (qsizetype at = 0; at < whole.size(); ++at)
    for (int byte = 0; byte < 256; ++byte) {
      QByteArray changed = whole;
      changed[at] = static_cast<char>(byte);
      const Reading reading = readPalette(changed);
      EXPECT_TRUE(reading.isRead || !reading.problem.isEmpty()) << changed.toStdString();
    }
}

TEST(HostileDocuments, MayHoldAnAttributeOfFiftyMegabytes) {
  const QByteArray value(50 * 1024 * 1024, 'x');
  const Reading reading = readPalette("<Palette><T T=\"" + value + "\"/></Palette>");
  EXPECT_TRUE(reading.isRead);
  EXPECT_EQ(reading.root->text(QStringLiteral("T")).size(), value.size());
}

TEST(HostileDocuments, MayHoldAFloodOfReferences) {
  constexpr int kCount = 300000;
  const Reading reading =
      readPalette("<Palette><T>" + QByteArray("&x&#0;&#65").repeated(kCount) + "</T></Palette>");
  EXPECT_TRUE(reading.isRead);
  EXPECT_EQ(reading.root->text(QStringLiteral("T")).count(QChar(QChar::ReplacementCharacter)),
            kCount);
}

TEST(HostileDocuments, MayHoldManyNamesAndLongNames) {
  QByteArray text = "<Palette>";
  for (int i = 0; i < 20000; ++i) text += "<n" + QByteArray::number(i) + " a=\"1\"/>";
  const QByteArray longName(10000, 'n');
  text += "<" + longName + ">x</" + longName + "></Palette>";
  const Reading reading = readPalette(text);
  EXPECT_TRUE(reading.isRead);
  EXPECT_EQ(reading.root->fields.size(), 20001u);
  EXPECT_EQ(reading.root->text(QString::fromLatin1(longName)), QStringLiteral("x"));
}

TEST(HostileDocuments, AreReadToTheGreatestDepthThatIsAllowed) {
  const int depth = kMaxElementDepth - 1; // the palette is the first element
  const Reading reading = readPalette("<Palette>" + QByteArray("<Box>").repeated(depth) +
                                      QByteArray("</Box>").repeated(depth) + "</Palette>");
  EXPECT_TRUE(reading.isRead);
  int found = 0;
  for (const Record* r = reading.root; (r = r->child(QStringLiteral("Box"))); ++found) {
  }
  EXPECT_EQ(found, depth);
}

class HugeStream : public OdMemoryStream {
 public:
  std::uint64_t length() override { return std::uint64_t{1} << 40; }
};

TEST(HostileDocuments, AreNotEvenFetchedWhenTheyAreTooLarge) {
  const OdTcFilerPtr filer = makeCatalogFiler();
  EXPECT_FALSE(filer->openCatalog(odrxMake<HugeStream>(), odrxMake<Record>(), false));
  EXPECT_EQ(filer->problem(), QStringLiteral("the file is larger than 1024 MB"));
}

} // namespace
