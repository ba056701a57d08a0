#include "drafton/engine/key_queue.h"

namespace drafton {
namespace {

struct SpecialKey {
  char16_t character;
  Key::Kind kind;
  bool inTypedText;
};

constexpr SpecialKey kSpecialKeys[] = {
    {u' ', Key::Kind::kBlank, true},  {u'\t', Key::Kind::kBlank, true},
    {u'\n', Key::Kind::kEnter, true}, {u'\r', Key::Kind::kEnter, true},
    {u';', Key::Kind::kEnter, false}, {u'\\', Key::Kind::kPause, false},
};

/// The keys that are written as a caret and a letter.
constexpr SpecialKey kCaretKeys[] = {
    {u'C', Key::Kind::kCancel, true},
    {u'M', Key::Kind::kEnter, true},
};

} // namespace

void KeyQueue::append(const OdString& text, Meaning meaning, Giver giver) {
  if (!text.isEmpty()) m_parts.push_back({text, 0, meaning, giver});
}

bool KeyQueue::startsWithCancel() const {
  return !m_parts.empty() && QStringView(m_parts.front().text)
                                 .mid(m_parts.front().position)
                                 .startsWith(u"^C", Qt::CaseInsensitive);
}

std::optional<Key> KeyQueue::take() {
  if (m_parts.empty()) return std::nullopt;
  Part& part = m_parts.front();
  const OdString& text = part.text;
  const QChar c = text[part.position++];
  Key key{Key::Kind::kChar, c};
  if (c == u'^' && part.position < text.size()) {
    const QChar letter = text[part.position].toUpper();
    for (const SpecialKey& special : kCaretKeys)
      if (letter == special.character) {
        key = {special.kind, {}};
        ++part.position;
      }
  } else {
    for (const SpecialKey& special : kSpecialKeys)
      if (c == special.character && (special.inTypedText || part.meaning == Meaning::kMacro))
        key = {special.kind, {}};
    // The two characters of a line break are one Enter.
    if (c == u'\r' && part.position < text.size() && text[part.position] == u'\n') ++part.position;
  }
  key.isUsers = part.giver == Giver::kUser;
  if (part.position >= text.size()) m_parts.pop_front();
  return key;
}

void KeyQueue::takeAll(KeyQueue& other) {
  for (Part& part : other.m_parts) m_parts.push_back(std::move(part));
  other.m_parts.clear();
}

} // namespace drafton
