#include "persistence/stored_record.h"
#include "support/failing_services.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace tc;
using namespace tc::test;

namespace {

OdVariant flagged(std::uint8_t flags) {
  OdVariant value(5);
  value.setFlags(flags);
  return value;
}

TEST(FilerWriting, BeginsWithTheRootElementAndIndentsByFour) {
  EXPECT_EQ(writeCatalog([](OdTcFiler& filer) {
              filer.writeAttribute(QStringLiteral("Revision"), QStringLiteral("8.0"));
              filer.writeElementAttribute(QStringLiteral("ItemID"), QStringLiteral("idValue"),
                                          QStringLiteral("{1}"));
              filer.writeObject(odrxMake<Record>(QStringLiteral("Box"), [](OdTcFiler& inner) {
                inner.writeElement(QStringLiteral("ID"), QStringLiteral("a"));
              }));
            }),
            "<Catalog Revision=\"8.0\">\n"
            "    <ItemID idValue=\"{1}\" />\n"
            "    <Box>\n"
            "        <ID>a</ID>\n"
            "    </Box>\n"
            "</Catalog>\n");
}

TEST(FilerWriting, LeavesNoAttributeForAnObject) {
  EXPECT_EQ(writeCatalog([](OdTcFiler& filer) {
              filer.writeAttribute(QStringLiteral("a"), odrxMake<Record>());
            }),
            "<Catalog />\n");
}

TEST(FilerWriting, WritesAnObjectAsItselfWhateverNameIsGiven) {
  const auto write = [](OdTcFiler& filer) {
    const auto box = odrxMake<Record>(QStringLiteral("Box"));
    filer.writeElement(QStringLiteral("Other"), box);
    filer.writeElementAttribute(QStringLiteral("Other"), QStringLiteral("a"), box);
    filer.writeObject(nullptr);
  };
  EXPECT_EQ(writeCatalog(write), "<Catalog>\n    <Box />\n    <Box />\n</Catalog>\n");
  EXPECT_EQ(writePalette(write), "<Palette>\n    <Box />\n    <Box />\n</Palette>\n");
}

TEST(FilerWriting, WritesNoAttributeElementForAnEmptyText) {
  EXPECT_EQ(writeCatalog([](OdTcFiler& filer) {
              filer.writeElementAttribute(QStringLiteral("A"), QStringLiteral("a"), OdString());
              filer.writeElementAttribute(QStringLiteral("A"), QStringLiteral("a"), OdVariant());
            }),
            "<Catalog />\n");
}

TEST(FilerWriting, WritesAnElementEvenForAnEmptyText) {
  EXPECT_EQ(
      writeCatalog([](OdTcFiler& filer) { filer.writeElement(QStringLiteral("A"), OdString()); }),
      "<Catalog>\n    <A></A>\n</Catalog>\n");
}

TEST(FilerWriting, WritesOneAttributeForEachPairOfAMap) {
  EXPECT_EQ(writeCatalog([](OdTcFiler& filer) {
              OdTcFieldMap map;
              map.set(QStringLiteral("b"), 2);
              map.set(QStringLiteral("a"), OdString());
              map.set(QStringLiteral("c"), odrxMake<Record>());
              filer.writeElementAttributes(QStringLiteral("V"), map);
              filer.writeElementAttributes(QStringLiteral("W"), OdTcFieldMap());
            }),
            "<Catalog>\n    <V a=\"\" b=\"2\" />\n    <W />\n</Catalog>\n");
}

TEST(FilerWriting, PutsAMapOnTheParentInPalettesOnly) {
  const auto write = [](OdTcFiler& filer) {
    OdTcFieldMap map;
    map.set(QStringLiteral("b"), 2);
    filer.writeAttributes(map);
  };
  EXPECT_EQ(writePalette(write), "<Palette b=\"2\" />\n");
  EXPECT_EQ(writeCatalog(write), "<Catalog />\n");
}

struct ValueCase {
  const char* kind;
  OdVariant value;
  const char* inCatalog;
  const char* inPalette;
};

TEST(FilerWriting, EncodesEachKindOfValue) {
  const ValueCase cases[] = {
      {"string", OdVariant(QStringLiteral("ü")), "\xC3\xBC", "\xC3\xBC"},
      {"true", OdVariant(true), "-1", "-1"},
      {"false", OdVariant(false), "0", "0"},
      {"uint8", OdVariant(std::uint8_t{200}), "200", "200"},
      {"int16", OdVariant(std::int16_t{-5}), "-5", "-5"},
      {"int32", OdVariant(-1), "-1", "4294967295"},
      {"uint32 above the signed range", OdVariant(3000000000u), "-1294967296", "3000000000"},
      {"int64", OdVariant(std::int64_t{0x1FFFFFFFF}), "-1", "-1"},
      {"double", OdVariant(0.1), "0.1", "0.1"},
      {"double with many digits", OdVariant(123456789.0), "1.23457e+08", "1.23457e+08"},
      {"void", OdVariant(), "", ""},
      {"array", flagged(OdVariant::kArray), "", ""},
      {"by reference", flagged(OdVariant::kByRef), "", ""},
  };
  for (const ValueCase& c : cases) {
    const auto write = [&](OdTcFiler& f) { f.writeAttribute(QStringLiteral("a"), c.value); };
    EXPECT_EQ(writeCatalog(write), QByteArray("<Catalog a=\"") + c.inCatalog + "\" />\n") << c.kind;
    EXPECT_EQ(writePalette(write), QByteArray("<Palette a=\"") + c.inPalette + "\" />\n") << c.kind;
  }
}

TEST(FilerWriting, WritesAColourWithItsSignInPalettes) {
  EXPECT_EQ(writePalette([](OdTcFiler& filer) {
              filer.writeElementAttribute(QStringLiteral("C"), QStringLiteral("mRGB"), 3000000000u);
              filer.writeElement(QStringLiteral("mRGB"), 3000000000u);
            }),
            "<Palette>\n    <C mRGB=\"-1294967296\" />\n    <mRGB>-1294967296</mRGB>\n"
            "</Palette>\n");
}

TEST(FilerWriting, WritesABoolThatTheTextTestTakesForFalse) {
  const Reading reading = readCatalog(
      writeCatalog([](OdTcFiler& filer) { filer.writeElement(QStringLiteral("F"), true); }));
  EXPECT_EQ(reading.root->text(QStringLiteral("F")), QStringLiteral("-1"));
  EXPECT_FALSE(boolFromText(reading.root->text(QStringLiteral("F"))));
}

TEST(FilerWriting, DoesNothingUnlessItIsSaving) {
  const OdTcFilerPtr filer = makePaletteFiler();
  OdTcFieldMap map;
  map.set(QStringLiteral("a"), 1);
  filer->writeObject(odrxMake<Record>());
  filer->writeAttribute(QStringLiteral("a"), 1);
  filer->writeAttributes(map);
  filer->writeElementAttribute(QStringLiteral("e"), QStringLiteral("a"), 1);
  filer->writeElementAttributes(QStringLiteral("e"), map);
  filer->writeElement(QStringLiteral("e"), 1);
  filer->flush();
  EXPECT_TRUE(filer->atEnd());
  EXPECT_FALSE(filer->advance());
  EXPECT_EQ(filer->currentObject(), nullptr);
}

TEST(FilerWriting, RaisesWhatTheStreamRaises) {
  useRecords();
  std::uint64_t budget = 20;
  const auto inner = odrxMake<OdMemoryStream>();
  const auto stream = odrxMake<testhost::FailingStream>(inner, budget);
  const auto root = odrxMake<RootRecord>(QStringLiteral("Palette"), [](OdTcFiler& filer) {
    filer.writeElement(QStringLiteral("Text"), QStringLiteral("longer than the disk"));
  });
  const OdTcFilerPtr filer = makePaletteFiler();
  ASSERT_TRUE(filer->openPalette(stream, root, true));
  EXPECT_THROW(filer->flush(), OdFileError);
  EXPECT_EQ(inner->bytes().size(), 20);
}

TEST(BoolTexts, HaveThreeStyles) {
  EXPECT_EQ(boolText(true, BoolStyle::kCapitals), QStringLiteral("TRUE"));
  EXPECT_EQ(boolText(false, BoolStyle::kCapitals), QStringLiteral("FALSE"));
  EXPECT_EQ(boolText(true, BoolStyle::kLower), QStringLiteral("true"));
  EXPECT_EQ(boolText(false, BoolStyle::kLower), QStringLiteral("false"));
  EXPECT_EQ(boolText(true, BoolStyle::kDigit), QStringLiteral("1"));
  EXPECT_EQ(boolText(false, BoolStyle::kDigit), QStringLiteral("0"));
}

TEST(BoolTexts, AreTrueForTwoWordsOnly) {
  for (const char* word : {"TRUE", "true", "True", "1"})
    EXPECT_TRUE(boolFromText(QString::fromLatin1(word))) << word;
  for (const char* word : {"FALSE", "0", "", "yes", "-1", "11", "TRUE "})
    EXPECT_FALSE(boolFromText(QString::fromLatin1(word))) << word;
}

} // namespace
