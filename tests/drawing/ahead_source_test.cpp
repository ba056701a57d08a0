// Tags that another thread splits are those that one thread splits.
#include "drawing/dxf/bytes.h"
#include "drawing/dxf/source.h"

#include <gtest/gtest.h>

#include <QBuffer>

namespace {

struct Tag {
  int code;
  std::string text;
  qint64 line;
  bool operator==(const Tag&) const = default;
};
struct Read {
  std::vector<Tag> tags;
  OdDbDxfSource::Result end = OdDbDxfSource::kTag;
  qint64 line = 0;
  OdString problem;
  bool operator==(const Read&) const = default;
};

Read readAll(OdDbDxfSource& source) {
  Read read;
  OdDbDxfTag tag;
  while ((read.end = source.next(tag)) == OdDbDxfSource::kTag)
    read.tags.push_back({tag.code, std::string(tag.text), source.line()});
  read.line = source.line();
  read.problem = source.problem();
  return read;
}

/// More than a megabyte, with comments, and values that reach over several windows.
QByteArray largeText() {
  QByteArray text = "  0\nSECTION\n";
  for (int i = 0; i < 60'000; ++i) {
    text += " 10\r\n" + QByteArray::number(i) + ".25\r\n";
    if (i % 100 == 0) text += "999\na comment\n";
    if (i % 25'000 == 7) text += "  1\n" + QByteArray(700'000, 'x') + "\n";
  }
  return text;
}

void expectTheSame(QByteArray text) {
  const std::string_view view(text.constData(), static_cast<std::size_t>(text.size()));
  const Read expected = readAll(*OdDbDxfSource::of(OdDbDxfBytes(view)));
  EXPECT_GT(expected.tags.size(), 50'000u);
  EXPECT_TRUE(readAll(*OdDbDxfSource::ahead(OdDbDxfBytes(view))) == expected);
  QBuffer device(&text);
  ASSERT_TRUE(device.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
  EXPECT_TRUE(readAll(*OdDbDxfSource::ahead(OdDbDxfBytes(device))) == expected);
}

} // namespace

TEST(AheadSource, GivesTheSameTagsAndLines) { expectTheSame(largeText() + "  0\nEOF\n"); }

TEST(AheadSource, TellsDamageWhereItIs) {
  expectTheSame(largeText() + "code\nvalue\n");
  expectTheSame(largeText() + " 10\n");
}

TEST(AheadSource, CanBeGivenUpAtAnyTime) {
  const QByteArray text = largeText();
  const std::string_view view(text.constData(), static_cast<std::size_t>(text.size()));
  for (int taken = 0; taken < 40'000; taken += 3'999) {
    const auto source = OdDbDxfSource::ahead(OdDbDxfBytes(view));
    OdDbDxfTag tag;
    for (int i = 0; i < taken; ++i) ASSERT_EQ(source->next(tag), OdDbDxfSource::kTag);
  }
}
