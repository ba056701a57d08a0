#include "drawing/dxf/piece.h"

#include <algorithm>
#include <cstdint>

namespace {

constexpr std::size_t kSize = 32 * 1024;
constexpr std::size_t kLargest = 1024 * 1024;

std::size_t countLines(std::string_view text) {
  std::size_t count = 0;
  // So few that a byte counts them, many of which the processor counts at once.
  constexpr std::size_t kFew = 255;
  while (!text.empty()) {
    const std::string_view part = text.substr(0, kFew);
    std::uint8_t few = 0;
    for (const char c : part) few = static_cast<std::uint8_t>(few + (c == '\n' ? 1 : 0));
    count += few;
    text.remove_prefix(part.size());
  }
  return count;
}

/// True for the line of code 0, without its end.
bool isZero(std::string_view line) {
  while (line.starts_with(' ')) line.remove_prefix(1);
  return line == "0" || line == "0\r";
}

struct Border {
  std::size_t at;
  std::size_t lines; ///< before it
};

/// The last place in the text, though not its beginning, where a tag of code 0 begins.
std::optional<Border> lastBorder(std::string_view text) {
  // Tags have two lines each: what a line is can be told from the count of lines before it.
  std::size_t line = countLines(text);
  std::size_t end = text.rfind('\n');
  for (; line > 1; --line) {
    const std::size_t begin = text.rfind('\n', end - 1) + 1;
    if (line % 2 == 1 && isZero(text.substr(begin, end - begin))) return Border{begin, line - 1};
    end = begin - 1;
  }
  return std::nullopt;
}

} // namespace

std::optional<OdDbDxfPiece> OdDbDxfPiece::cut(OdDbDxfBytes& bytes, qint64 line) {
  for (std::size_t size = kSize; size <= kLargest; size *= 2) {
    while (bytes.left() < size && bytes.more()) {
    }
    const std::string_view text(bytes.at, std::min(size, bytes.left()));
    if (const auto border = lastBorder(text)) {
      bytes.at += border->at;
      return OdDbDxfPiece{text.substr(0, border->at), line, static_cast<qint64>(border->lines),
                          bytes.memory()};
    }
    if (text.size() < size) break;
  }
  return std::nullopt;
}
