// The preview picture that a drawing keeps in its file.
#include "drawing/database_data.h"
#include "drawing/dxf/kept_tags.h"

#include <algorithm>

namespace {
constexpr char kSection[] = "THUMBNAILIMAGE";
constexpr int kSizeCode = 90;
constexpr int kBytesCode = 310;
// As many as one line of a file takes.
constexpr qsizetype kBytesInLine = 127;

auto sectionIn(auto& sections) {
  return std::find_if(sections.begin(), sections.end(),
                      [](const OdDbRawSection& section) { return section.name == kSection; });
}
} // namespace

QByteArray OdDbDatabase::thumbnail() const {
  const auto at = sectionIn(m_data->otherSections);
  QByteArray bytes;
  if (at == m_data->otherSections.end()) return bytes;
  for (const OdDbKeptTags::Tag& tag : OdDbKeptTags(at->tags).tags)
    if (tag.code == kBytesCode) bytes += QByteArray::fromHex(tag.value);
  return bytes;
}

void OdDbDatabase::setThumbnail(const QByteArray& bytes) {
  if (bytes == thumbnail()) return;
  m_data->modified = true;
  auto at = sectionIn(m_data->otherSections);
  if (bytes.isEmpty()) {
    m_data->otherSections.erase(at);
    return;
  }
  OdDbKeptTags tags;
  tags.tags.push_back({kSizeCode, QByteArray::number(bytes.size())});
  for (qsizetype i = 0; i < bytes.size(); i += kBytesInLine)
    tags.tags.push_back({kBytesCode, bytes.mid(i, kBytesInLine).toHex().toUpper()});
  if (at == m_data->otherSections.end()) at = m_data->otherSections.insert(at, {kSection, {}});
  at->tags = tags.lines();
}
