#include "drafton/engine/key_queue.h"

#include <gtest/gtest.h>

using namespace drafton;

namespace {

/// The keys of a text: characters as they are, "_" for a blank, "E" Enter, "X" cancel, "P" pause.
OdString keysOf(const char* text, KeyQueue::Meaning meaning) {
  KeyQueue queue;
  queue.append(OdString::fromUtf8(text), meaning);
  OdString keys;
  while (const std::optional<Key> key = queue.take()) {
    switch (key->kind) {
    case Key::Kind::kChar:
      keys += key->character;
      break;
    case Key::Kind::kBlank:
      keys += u'_';
      break;
    case Key::Kind::kEnter:
      keys += u'E';
      break;
    case Key::Kind::kCancel:
      keys += u'X';
      break;
    case Key::Kind::kPause:
      keys += u'P';
      break;
    }
  }
  return keys;
}

struct MeaningRow {
  const char* text;
  const char* macro;
  const char* typed;
};

class KeyMeaning : public ::testing::TestWithParam<MeaningRow> {};

constexpr MeaningRow kRows[] = {
    {"a b", "a_b", "a_b"},   {"a\tb", "a_b", "a_b"},
    {"^C^Cx", "XXx", "XXx"}, {"^cx", "Xx", "Xx"},
    {"^M", "E", "E"},        {"^m", "E", "E"},
    {"a;b", "aEb", "a;b"},   {"a\\b", "aPb", "a\\b"},
    {"\n", "E", "E"},        {"\r\n", "E", "E"},
    {"\r", "E", "E"},        {"\n\n", "EE", "EE"},
    {"^", "^", "^"},         {"^x", "^x", "^x"},
    {"^^C", "^X", "^X"},     {"\"q q\"", "\"q_q\"", "\"q_q\""},
};

TEST_P(KeyMeaning, OfAMacro) {
  EXPECT_EQ(keysOf(GetParam().text, KeyQueue::Meaning::kMacro),
            OdString(QLatin1String(GetParam().macro)));
}

TEST_P(KeyMeaning, OfTypedText) {
  EXPECT_EQ(keysOf(GetParam().text, KeyQueue::Meaning::kTyped),
            OdString(QLatin1String(GetParam().typed)));
}

INSTANTIATE_TEST_SUITE_P(All, KeyMeaning, ::testing::ValuesIn(kRows));

} // namespace

TEST(KeyQueue, KeepsTheOrderOfItsParts) {
  KeyQueue queue, other;
  queue.append(QStringLiteral("a"), KeyQueue::Meaning::kMacro);
  other.append(QStringLiteral("b"), KeyQueue::Meaning::kMacro);
  other.append(QStringLiteral("c"), KeyQueue::Meaning::kTyped);
  queue.takeAll(other);
  EXPECT_TRUE(other.isEmpty());
  OdString text;
  while (const std::optional<Key> key = queue.take()) text += key->character;
  EXPECT_EQ(text, QStringLiteral("abc"));
}

TEST(KeyQueue, SeesACancelInFront) {
  KeyQueue queue;
  EXPECT_FALSE(queue.startsWithCancel());
  queue.append(QStringLiteral("^CLINE"), KeyQueue::Meaning::kMacro);
  EXPECT_TRUE(queue.startsWithCancel());
  queue.take();
  EXPECT_FALSE(queue.startsWithCancel());
}
