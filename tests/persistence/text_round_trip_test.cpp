#include "persistence/stored_record.h"

#include <gtest/gtest.h>

using namespace tc;
using namespace tc::test;

namespace {

enum class Place { kAttribute, kText, kCdata };

QByteArray document(const OdString& text, Place place) {
  return writeCatalog([&](OdTcFiler& filer) {
    if (place == Place::kAttribute)
      filer.writeElementAttribute(QStringLiteral("T"), QStringLiteral("T"), text);
    else
      filer.writeElement(QStringLiteral("T"), text, place == Place::kCdata);
  });
}

OdString readBack(const QByteArray& bytes) {
  const Reading reading = readCatalog(bytes);
  EXPECT_EQ(reading.problem.toStdString(), "") << bytes.toStdString();
  return reading.root->text(QStringLiteral("T"));
}

QStringList awkwardTexts() {
  QStringList texts = {
      QStringLiteral("plain"),
      QStringLiteral("  blanks   at both ends  "),
      QStringLiteral(" "),
      QStringLiteral("\n"),
      QStringLiteral(" \t\r\n\v\f "),
      QStringLiteral("line\nbreak\r\nand\rreturn"),
      QStringLiteral("& < > \" '"),
      QStringLiteral("\"it's\""),
      QStringLiteral("&amp;"),
      QStringLiteral("&#x41;"),
      QStringLiteral("&#x"),
      QStringLiteral("&#x;&#x&#xZZ;a&#x"),
      QStringLiteral("&#x26;#x41;"),
      QStringLiteral("&#65;"),
      QStringLiteral("&#0;&#xFFFFFFFF;"),
      QStringLiteral("&nbsp;&undefined;"),
      QStringLiteral("]]>"),
      QStringLiteral("a]]>b]]>"),
      QStringLiteral("<![CDATA[x]]>"),
      QStringLiteral("<!-- c --><a b='c'/></T>"),
      QStringLiteral("^C^C_LINE 0,0 100,0 \\;;\n  "),
      QStringLiteral("Küche © 漢字 \U0001F600"),
      QStringLiteral("\uFEFF"),
      QStringLiteral("\uFEFFstarts with a mark"),
      QStringLiteral(" \uFEFF \uFFFE\uFFFF"),
      QStringLiteral("\uFFFD\u0085\u2028"),
      QString(10000, u'n'),
      QString(3000, QChar(0x6F22)),
  };
  for (char16_t c = 1; c < 0x20; ++c) texts << QChar(c) << u'x' + QString(QChar(c)) + u'y';
  return texts;
}

TEST(TextRoundTrip, GivesEveryTextBackAsItWas) {
  for (const QString& text : awkwardTexts())
    for (const Place place : {Place::kAttribute, Place::kText, Place::kCdata})
      EXPECT_EQ(readBack(document(text, place)).toStdString(), text.toStdString())
          << "at place " << static_cast<int>(place);
}

TEST(TextRoundTrip, WritesTheSameBytesFromTheFirstSaveOn) {
  for (const QString& text : awkwardTexts())
    for (const Place place : {Place::kAttribute, Place::kText, Place::kCdata}) {
      const QByteArray first = document(text, place);
      EXPECT_EQ(document(readBack(first), place).toStdString(), first.toStdString());
    }
}

TEST(TextRoundTrip, SettlesOnSomethingForTextsThatNoDocumentHolds) {
  const char16_t loneSurrogate[] = {u'a', 0xD800, u'b', 0};
  for (const QString& text : {QString::fromUtf16(loneSurrogate), QString(QChar(u'\0')),
                              QStringLiteral("a") + QChar(u'\0') + QStringLiteral("b")})
    for (const Place place : {Place::kAttribute, Place::kText, Place::kCdata}) {
      const QByteArray first = document(text, place);
      const OdString read = readBack(first);
      EXPECT_EQ(read.size(), text.size());
      EXPECT_EQ(document(read, place), first);
    }
}

TEST(TextRoundTrip, NeverCutsALongText) {
  // Three bytes a letter are more than twice its UTF-16 size.
  const QString text(100000, QChar(0x20AC));
  EXPECT_EQ(readBack(document(text, Place::kText)), text);
}

TEST(TextRoundTrip, UsesASectionOnlyWhereItIsAskedForOrNeeded) {
  const auto has = [](const OdString& text, bool cdata) {
    return document(text, cdata ? Place::kCdata : Place::kText).contains("<![CDATA[");
  };
  EXPECT_TRUE(has(QStringLiteral("a"), true));
  EXPECT_FALSE(has(QStringLiteral("a"), false));
  EXPECT_FALSE(has(QStringLiteral("]]>"), true));
  EXPECT_TRUE(has(QStringLiteral("  "), false));
}

} // namespace
