#include "catalog/whole_png.h"

#include <QtEndian>

#include <array>
#include <cstdint>

namespace tc {
namespace {

constexpr QByteArrayView kSignature("\x89PNG\r\n\x1A\n", 8);
/// Of a chunk: its length, its name, and behind its data the checksum of name and data.
constexpr qsizetype kLength = 4, kName = 4, kChecksum = 4;

using ChecksumTable = std::array<std::uint32_t, 256>;

constexpr ChecksumTable kChecksums = [] {
  ChecksumTable table{};
  for (std::uint32_t byte = 0; byte < table.size(); ++byte) {
    std::uint32_t value = byte;
    for (int bit = 0; bit < 8; ++bit) value = value & 1 ? 0xEDB88320u ^ (value >> 1) : value >> 1;
    table[byte] = value;
  }
  return table;
}();

std::uint32_t checksum(QByteArrayView bytes) {
  std::uint32_t value = 0xFFFFFFFFu;
  for (const char byte : bytes)
    value = kChecksums[(value ^ static_cast<unsigned char>(byte)) & 0xFF] ^ (value >> 8);
  return ~value;
}

std::uint32_t numberAt(QByteArrayView bytes, qsizetype at) {
  return qFromBigEndian<std::uint32_t>(bytes.data() + at);
}

} // namespace

bool isNoBrokenPng(const QByteArray& bytes) {
  QByteArrayView rest(bytes);
  if (!rest.startsWith(kSignature)) return true;
  rest = rest.sliced(kSignature.size());
  while (rest.size() >= kLength + kName + kChecksum) {
    const qsizetype length = static_cast<qsizetype>(numberAt(rest, 0));
    if (length > rest.size() - kLength - kName - kChecksum) return false;
    const QByteArrayView named = rest.sliced(kLength, kName + length);
    if (numberAt(rest, kLength + kName + length) != checksum(named)) return false;
    if (named.startsWith("IEND")) return true;
    rest = rest.sliced(kLength + kName + length + kChecksum);
  }
  return false;
}

} // namespace tc
