#include "drawing/dxf/source.h"

#include "drawing/dxf/binary_source.h"
#include "drawing/dxf/text_source.h"

#include <algorithm>
#include <charconv>

std::unique_ptr<OdDbDxfSource> OdDbDxfSource::of(OdDbDxfBytes bytes) {
  const std::string_view start(bytes.at, bytes.left());
  if (start.starts_with(OdDbDxfBinarySource::kMark))
    return std::make_unique<OdDbDxfBinarySource>(std::move(bytes));
  return std::make_unique<OdDbDxfTextSource>(std::move(bytes));
}

OdDbDxfSource::Result OdDbDxfShortSource::next(OdDbDxfTag& tag) {
  if (m_text.empty()) return kEnd;
  const auto stop = std::min(m_text.find('|'), m_text.size());
  const std::string_view one = m_text.substr(0, stop);
  m_text.remove_prefix(std::min(stop + 1, m_text.size()));
  const auto blank = std::min(one.find(' '), one.size());
  std::from_chars(one.data(), one.data() + blank, tag.code);
  tag.text = one.substr(std::min(blank + 1, one.size()));
  if (m_lastHandle != 0) raise(tag);
  ++m_count;
  return kTag;
}

void OdDbDxfShortSource::raise(OdDbDxfTag& tag) {
  const bool isHandle = tag.code == 5 || tag.code == 105 || (tag.code >= 320 && tag.code <= 369) ||
                        (tag.code >= 390 && tag.code <= 399) || tag.code == 1005;
  std::uint64_t handle = 0;
  if (isHandle) std::from_chars(tag.text.data(), tag.text.data() + tag.text.size(), handle, 16);
  if (handle == 0) return;
  const auto [end, error] =
      std::to_chars(m_handle, m_handle + sizeof m_handle, handle + m_lastHandle, 16);
  std::transform(m_handle, end, m_handle,
                 [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
  tag.text = {m_handle, static_cast<std::size_t>(end - m_handle)};
}
