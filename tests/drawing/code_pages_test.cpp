// Texts in every code page that drawings name.
#include "drawing/database.h"
#include "drawing/dxf/johab.h"

#include <gtest/gtest.h>

namespace {

/// A code page, and a character of it in its bytes.
struct Row {
  const char* name;
  const char* bytes;
  const char16_t* text;
};
constexpr Row kRows[] = {
    {"ASCII", "A", u"A"},
    {"ANSI_874", "\xA1", u"ก"},
    {"ANSI_932", "\x93\xFA", u"日"},
    {"ANSI_936", "\xD6\xD0", u"中"},
    {"ANSI_949", "\xB0\xA1", u"가"},
    {"ANSI_950", "\xA4\xA4", u"中"},
    {"ANSI_1250", "\xB9", u"ą"},
    {"ANSI_1251", "\xC6", u"Ж"},
    {"ANSI_1252", "\xC4", u"Ä"},
    {"ANSI_1253", "\xC1", u"Α"},
    {"ANSI_1254", "\xDD", u"İ"},
    {"ANSI_1255", "\xE0", u"א"},
    {"ANSI_1256", "\xC8", u"ب"},
    {"ANSI_1257", "\xE0", u"ą"},
    {"ANSI_1258", "\xD0", u"Đ"},
    {"ANSI_1361", "\x88\x61", u"가"},
    {"DOS437", "\x8E", u"Ä"},
    {"DOS708", "\xC8", u"ب"},
    {"DOS720", "\xA0", u"ب"},
    {"DOS737", "\x80", u"Α"},
    {"DOS775", "\xD0", u"ą"},
    {"DOS850", "\x8E", u"Ä"},
    {"DOS852", "\xA5", u"ą"},
    {"DOS855", "\xEA", u"Ж"},
    {"DOS857", "\x98", u"İ"},
    {"DOS860", "\x84", u"ã"},
    {"DOS861", "\x8D", u"Þ"},
    {"DOS862", "\x80", u"א"},
    {"DOS863", "\x84", u"Â"},
    {"DOS864", "\xC8", u"ﺑ"},
    {"DOS865", "\x9B", u"ø"},
    {"DOS866", "\x86", u"Ж"},
    {"DOS869", "\xA4", u"Α"},
    {"DOS932", "\x93\xFA", u"日"},
    {"dos850", "\x8E", u"Ä"},
    {"ISO8859-1", "\xC4", u"Ä"},
    {"ISO8859-2", "\xB1", u"ą"},
    {"ISO8859-3", "\xA1", u"Ħ"},
    {"ISO8859-4", "\xB1", u"ą"},
    {"ISO8859-5", "\xB6", u"Ж"},
    {"ISO8859-6", "\xC8", u"ب"},
    {"ISO8859-7", "\xC1", u"Α"},
    {"ISO8859-8", "\xE0", u"א"},
    {"ISO8859-9", "\xDD", u"İ"},
    {"iso8859-1", "\xC4", u"Ä"},
    {"MAC-ROMAN", "\x80", u"Ä"},
    {"MACINTOSH", "\x80", u"Ä"},
    {"BIG5", "\xA4\xA4", u"中"},
    {"GB2312", "\xD6\xD0", u"中"},
    {"gb2312", "\xD6\xD0", u"中"},
    {"KSC5601", "\xB0\xA1", u"가"},
    {"JOHAB", "\x88\x61", u"가"},
    {"johab", "\x88\x61", u"가"},
    {"UTF-8", "\xC3\x84", u"Ä"},
};

/// A drawing in that code page with a layer of that name.
QByteArray drawingIn(const char* codePage, const QByteArray& layer) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const auto layers = db->getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite);
  const auto record = odrxMake<OdDbLayerTableRecord>();
  record->setName(QStringLiteral("NAMED"));
  layers->add(record);
  QByteArray text = db->writeDxf(OdDb::kR2000);
  return text.replace("ANSI_1252", codePage).replace("  2\nNAMED\n", "  2\n" + layer + "\n");
}

} // namespace

TEST(CodePages, AreAllReadAndWritten) {
  for (const Row& row : kRows) {
    const QByteArray text = drawingIn(row.name, row.bytes);
    const OdDbDatabasePtr db = OdDbDatabase::readDxf(text, QStringLiteral("page.dxf"));
    EXPECT_EQ(db->readNotes(), QStringList()) << row.name;
    EXPECT_EQ(db->unknownContent(), QStringList()) << row.name;
    EXPECT_TRUE(db->getLayerTableId().openAs<OdDbLayerTable>()->has(OdString::fromUtf16(row.text)))
        << row.name;
    EXPECT_TRUE(db->writeDxf() == text) << row.name;
    // And as a drawing that is not in a code page.
    EXPECT_TRUE(db->writeDxf(OdDb::kR2018)
                    .contains("  2\n" + OdString::fromUtf16(row.text).toUtf8() + "\n"))
        << row.name;
  }
}

TEST(CodePages, ThatDrawingsDoNotHaveAreToldAndTheBytesKept) {
  for (const char* name :
       {"UTF-16", "utf-16le", "unicode", "UTF-32", "ANSI_1200", "ANSI_65000", "IBM037", "DOS037",
        "BOCU-1", "HZ", "UTF-7", "SCSU", "ISO-2022-JP", "ISO8859-99", "ANSI_", "latin1"}) {
    const QByteArray text = drawingIn(name, "W\xE4nde \x81\xFF~{");
    const OdDbDatabasePtr db = OdDbDatabase::readDxf(text, QStringLiteral("page.dxf"));
    ASSERT_EQ(db->readNotes().size(), 1) << name;
    EXPECT_TRUE(db->readNotes()[0].contains(QLatin1String(name))) << name;
    EXPECT_EQ(db->unknownContent(), QStringList()) << name;
    EXPECT_TRUE(db->writeDxf() == text) << name;
    EXPECT_TRUE(db->writeDxf(OdDb::kR2018).contains("  2\nW\xC3\xA4nde ")) << name;
  }
}

TEST(CodePages, WhatACodePageLacksIsEscaped) {
  for (const char* name : {"ANSI_1252", "JOHAB", "DOS437"}) {
    const OdDbDatabasePtr db =
        OdDbDatabase::readDxf(drawingIn(name, "A"), QStringLiteral("page.dxf"));
    const auto layers = db->getLayerTableId().openAs<OdDbLayerTable>();
    layers->getAt(QStringLiteral("A"))
        .openAs<OdDbLayerTableRecord>(OdDb::kForWrite)
        ->setName(QStringLiteral("Aกb"));
    EXPECT_TRUE(db->writeDxf().contains("  2\nA\\U+0E01b\n")) << name;
  }
}

TEST(CodePages, DescriptionsOfLayersAreReadInThem) {
  for (const Row& row : kRows) {
    QByteArray text = drawingIn(row.name, "Named");
    const qsizetype name = text.indexOf("  2\nNamed\n");
    text.insert(text.indexOf("  0\n", name),
                "1001\nAcAecLayerStandard\n1000\n\n1000\n" + QByteArray(row.bytes) + "\n");
    const OdDbDatabasePtr db = OdDbDatabase::readDxf(text, QStringLiteral("page.dxf"));
    const auto layer = db->getLayerTableId()
                           .openAs<OdDbLayerTable>()
                           ->getAt(QStringLiteral("Named"))
                           .openAs<OdDbLayerTableRecord>(OdDb::kForWrite);
    EXPECT_EQ(layer->description(), OdString::fromUtf16(row.text)) << row.name;
    EXPECT_TRUE(db->writeDxf() == text) << row.name;
    layer->setDescription(layer->description() + u'!');
    EXPECT_EQ(layer->description(), OdString::fromUtf16(row.text) + u'!') << row.name;
  }
}

TEST(CodePages, BytesThatAreNoCharactersAreTold) {
  for (const char* bytes : {"\x88", "\x88\x20", "\xD9\x7F", "\xFF\xFF"}) {
    const OdDbDatabasePtr db =
        OdDbDatabase::readDxf(drawingIn("JOHAB", bytes), QStringLiteral("page.dxf"));
    EXPECT_EQ(db->unknownContent().size(), 1) << bytes;
  }
}

TEST(Johab, PutsSyllablesAndLettersTogether) {
  struct Case {
    const char* bytes;
    const char16_t* text;
  };
  constexpr Case kCases[] = {
      {"plain", u"plain"},
      {"\x88\x61", u"가"},
      {"\xD0\x65\x8B\x69", u"한글"},
      {"\xD3\xBD", u"힣"},
      {"\x88\x41", u"ㄱ"},
      {"\x84\x61", u"ㅏ"},
      {"\x84\x44", u"ㄳ"},
      {"\xD9\x31", u"\u3000"},
      {"\xE0\x31", u"伽"},
      {"\xF9\xFE", u"詰"},
      {"A\x88\x61\xE0\x31Z", u"A가伽Z"},
  };
  for (const Case& c : kCases) {
    bool bad = true;
    const OdString text = OdString::fromUtf16(c.text);
    EXPECT_EQ(oddxf::fromJohab(c.bytes, bad), text) << c.bytes;
    EXPECT_FALSE(bad);
    EXPECT_EQ(oddxf::toJohab(text), QByteArray(c.bytes)) << c.bytes;
  }
}

TEST(Johab, AllItsCharactersComeBack) {
  int count = 0;
  for (int lead = 0x81; lead < 0xFF; ++lead)
    for (int trail = 0x20; trail < 0xFF; ++trail) {
      const char bytes[] = {static_cast<char>(lead), static_cast<char>(trail)};
      bool bad = false;
      const OdString text = oddxf::fromJohab(QByteArrayView(bytes, 2), bad);
      if (bad || text.size() != 1) continue;
      ++count;
      const QByteArray back = oddxf::toJohab(text);
      EXPECT_EQ(oddxf::fromJohab(back, bad), text) << lead << ' ' << trail;
    }
  EXPECT_EQ(count, 17065);
}
