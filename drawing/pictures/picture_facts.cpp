#include "drawing/pictures/picture_facts.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <optional>

namespace {

/// Reads numbers and passes bytes; whoever asks for more than there is learns it from isCut().
class Bytes {
 public:
  explicit Bytes(QIODevice& device)
    : m_device(device) {}

  bool isCut() const { return m_isCut; }

  std::uint8_t byte() {
    if (m_at == m_piece.size() && !fill()) return 0;
    return static_cast<std::uint8_t>(m_piece[m_at++]);
  }
  QByteArray take(qsizetype count) {
    QByteArray bytes;
    while (bytes.size() < count && (m_at < m_piece.size() || fill())) {
      const qsizetype part = std::min(count - bytes.size(), m_piece.size() - m_at);
      bytes.append(m_piece.constData() + m_at, part);
      m_at += part;
    }
    return bytes;
  }
  void pass(std::int64_t count) {
    const std::int64_t inPiece = std::min<std::int64_t>(count, m_piece.size() - m_at);
    m_at += static_cast<qsizetype>(inPiece);
    count -= inPiece;
    if (count > 0 && m_device.skip(count) < count) m_isCut = true;
  }
  /// Passes everything up to a byte and that byte itself.
  void passTo(char wanted) {
    while (!m_isCut) {
      const qsizetype found = m_piece.indexOf(wanted, m_at);
      m_at = found < 0 ? m_piece.size() : found + 1;
      if (found >= 0 || !fill()) return;
    }
  }
  template <class T>
  T bigEndian() {
    const QByteArray bytes = take(sizeof(T));
    return m_isCut ? T() : qFromBigEndian<T>(bytes.constData());
  }
  template <class T>
  T littleEndian() {
    const QByteArray bytes = take(sizeof(T));
    return m_isCut ? T() : qFromLittleEndian<T>(bytes.constData());
  }

 private:
  bool fill() {
    constexpr qint64 kPiece = 64 << 10;
    m_piece = m_device.read(kPiece);
    m_at = 0;
    m_isCut |= m_piece.isEmpty();
    return !m_piece.isEmpty();
  }

  QIODevice& m_device;
  QByteArray m_piece;
  qsizetype m_at = 0;
  bool m_isCut = false;
};

// --- PNG: chunks with checksums, up to one that says that it is the last

constexpr std::uint32_t kChecksumStart = 0xFFFFFFFF;

constexpr std::array<std::uint32_t, 256> checksumTable() {
  std::array<std::uint32_t, 256> table{};
  for (std::uint32_t i = 0; i < table.size(); ++i) {
    std::uint32_t value = i;
    for (int bit = 0; bit < 8; ++bit) value = value >> 1 ^ (value & 1 ? 0xEDB88320 : 0);
    table[i] = value;
  }
  return table;
}

std::uint32_t checksumWith(std::uint32_t sum, const QByteArray& bytes) {
  static constexpr std::array<std::uint32_t, 256> kTable = checksumTable();
  for (const char byte : bytes)
    sum = sum >> 8 ^ kTable[(sum ^ static_cast<std::uint8_t>(byte)) & 0xFF];
  return sum;
}

/// False if the checksum of a chunk is not that of its bytes.
bool passChunk(Bytes& bytes, std::uint32_t length, const QByteArray& name) {
  constexpr std::uint32_t kPiece = 64 << 10;
  std::uint32_t sum = checksumWith(kChecksumStart, name);
  for (std::uint32_t left = length; left > 0 && !bytes.isCut();) {
    const QByteArray piece = bytes.take(static_cast<qsizetype>(std::min(left, kPiece)));
    sum = checksumWith(sum, piece);
    left -= static_cast<std::uint32_t>(piece.size());
  }
  return bytes.bigEndian<std::uint32_t>() == ~sum;
}

bool isCutPng(Bytes& bytes) {
  constexpr qsizetype kSignature = 8, kName = 4;
  bytes.pass(kSignature);
  while (!bytes.isCut()) {
    const auto length = bytes.bigEndian<std::uint32_t>();
    const QByteArray name = bytes.take(kName);
    // Chunks in small letters are extras: decoders leave out those that are damaged.
    const bool isNeeded = !name.isEmpty() && name[0] >= 'A' && name[0] <= 'Z';
    if (!passChunk(bytes, length, name) && isNeeded) return true;
    if (name == "IEND") return false;
  }
  return true;
}

// --- JPEG: marked segments with lengths, then pixels in which a mark is followed by 0 unless it is
// one

/// The marks of the headers that tell of the picture's size, one for each way of packing.
bool isFrame(int mark) {
  constexpr int kFirst = 0xC0, kLast = 0xCF, kTables = 0xC4, kReserved = 0xC8, kConditions = 0xCC;
  return mark >= kFirst && mark <= kLast && mark != kTables && mark != kReserved &&
         mark != kConditions;
}

bool isCutJpeg(Bytes& bytes, OdPictureFacts& facts) {
  constexpr char kMark = '\xFF';
  constexpr int kStart = 0xD8, kEnd = 0xD9, kAlone = 0x01;
  const auto isRestart = [](int mark) { return mark >= 0xD0 && mark <= 0xD7; };
  while (!bytes.isCut()) {
    bytes.passTo(kMark);
    int mark = bytes.byte();
    while (mark == 0xFF && !bytes.isCut()) mark = bytes.byte(); // fills
    if (bytes.isCut()) return true;
    if (mark == kEnd) return false;
    if (mark == 0 || mark == kStart || mark == kAlone || isRestart(mark)) continue;
    // A thumbnail within a segment has marks of its own. What follows a scan's header are pixels,
    // through which the search for a mark goes.
    int left = bytes.bigEndian<std::uint16_t>() - 2; // itself is counted
    if (constexpr int kSizes = 5; isFrame(mark) && left >= kSizes) {
      left -= kSizes;
      bytes.byte(); // bits of a colour
      facts.height = bytes.bigEndian<std::uint16_t>();
      facts.width = bytes.bigEndian<std::uint16_t>();
    }
    bytes.pass(std::max(left, 0));
  }
  return true;
}

// --- GIF: blocks of blocks; the first picture is what counts

void passSubBlocks(Bytes& bytes) {
  while (const int length = bytes.byte()) bytes.pass(length);
}

/// The bytes of a table of colours, by the byte that tells of it.
std::int64_t colorTable(int flags) {
  constexpr int kHasTable = 0x80, kSizeBits = 7, kColorBytes = 3;
  return flags & kHasTable ? kColorBytes * (2 << (flags & kSizeBits)) : 0;
}

bool isCutGif(Bytes& bytes) {
  constexpr std::int64_t kSignature = 6, kScreenSize = 4, kRestOfScreen = 2, kPlace = 8;
  constexpr int kExtension = 0x21, kPicture = 0x2C;
  bytes.pass(kSignature + kScreenSize);
  const int flags = bytes.byte();
  bytes.pass(kRestOfScreen + colorTable(flags));
  while (!bytes.isCut()) {
    const int block = bytes.byte();
    if (block == kExtension) {
      bytes.pass(1); // its label
      passSubBlocks(bytes);
    } else if (block == kPicture) {
      bytes.pass(kPlace);
      const int own = bytes.byte();
      bytes.pass(colorTable(own) + 1); // and the width of the first codes
      passSubBlocks(bytes);
      return bytes.isCut();
    } else {
      return true; // the end, or nothing that decoders know
    }
  }
  return true;
}

// --- BMP: the header tells where the pixels are and how many

void lookAtBitmap(Bytes& bytes, std::int64_t fileSize, OdPictureFacts& facts) {
  constexpr std::int64_t kBeforeOffset = 10;
  constexpr std::uint32_t kOldHeader = 12, kPlain = 0, kMasks = 3, kMasksWithAlpha = 6;
  bytes.pass(kBeforeOffset);
  const std::int64_t pixels = bytes.littleEndian<std::uint32_t>();
  const auto headerSize = bytes.littleEndian<std::uint32_t>();
  const bool isOld = headerSize == kOldHeader;
  facts.width = isOld ? std::int64_t{bytes.littleEndian<std::uint16_t>()}
                      : std::int64_t{bytes.littleEndian<std::int32_t>()};
  facts.height = isOld ? std::int64_t{bytes.littleEndian<std::uint16_t>()}
                       : std::int64_t{bytes.littleEndian<std::int32_t>()};
  bytes.littleEndian<std::uint16_t>(); // planes
  const std::int64_t bits = bytes.littleEndian<std::uint16_t>();
  const std::uint32_t packing = isOld ? kPlain : bytes.littleEndian<std::uint32_t>();
  const std::int64_t packedBytes = isOld ? 0 : bytes.littleEndian<std::uint32_t>();
  // From top to bottom, which a height below zero says, it is as large as the other way round.
  facts.height = std::abs(facts.height);
  facts.width = std::max<std::int64_t>(facts.width, 0);
  const bool isPlain = packing == kPlain || packing == kMasks || packing == kMasksWithAlpha;
  const std::int64_t row = (facts.width * bits + 31) / 32 * 4, there = fileSize - pixels;
  const bool isShort = isPlain ? row > 0 && facts.height > there / row : packedBytes > there;
  facts.isCut = bytes.isCut() || there < 0 || isShort;
}

// --- TIFF: a directory tells where the strips or tiles of pixels are

class Tiff {
 public:
  explicit Tiff(QIODevice& device)
    : m_device(device) {}

  bool isCut() {
    constexpr std::int64_t kDirectory = 4, kMostParts = 1 << 20;
    constexpr int kEntryBytes = 12;
    m_device.seek(0);
    m_isBigEndian = m_device.read(1) == "M";
    const std::int64_t directory = number(kDirectory, 4);
    const std::int64_t count = number(directory, 2);
    for (std::int64_t i = 0; i < count && !m_isCut; ++i) note(directory + 2 + i * kEntryBytes);
    // Where numbers are missing, or in another form, decoders find out for themselves.
    const bool isKnown = m_starts.count == m_lengths.count && m_starts.count <= kMostParts;
    return m_isCut || (isKnown && anyPartIsCut());
  }

 private:
  /// Numbers of one entry, all of the same size.
  struct Numbers {
    std::int64_t at = 0, count = 0;
    int bytes = 0;
  };

  std::int64_t number(std::int64_t at, int bytes) {
    const bool isThere = at >= 0 && at + bytes <= m_device.size() && m_device.seek(at);
    const QByteArray read = isThere ? m_device.read(bytes) : QByteArray();
    if (read.size() < bytes) {
      m_isCut = true;
      return 0;
    }
    if (bytes == 2)
      return m_isBigEndian ? qFromBigEndian<std::uint16_t>(read.constData())
                           : qFromLittleEndian<std::uint16_t>(read.constData());
    return m_isBigEndian ? qFromBigEndian<std::uint32_t>(read.constData())
                         : qFromLittleEndian<std::uint32_t>(read.constData());
  }
  void note(std::int64_t entry) {
    constexpr std::int64_t kStripStarts = 273, kStripLengths = 279, kTileStarts = 324,
                           kTileLengths = 325, kShort = 3, kLong = 4, kInPlace = 4;
    // Bytes of one value by its type, from 0.
    constexpr std::array<int, 13> kBytes = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8};
    const std::int64_t tag = number(entry, 2), type = number(entry + 2, 2);
    if (type >= std::ssize(kBytes)) return;
    Numbers values{entry + 8, number(entry + 4, 4), kBytes[static_cast<std::size_t>(type)]};
    if (values.count * values.bytes > kInPlace) values.at = number(entry + 8, 4);
    m_isCut |= values.at + values.count * values.bytes > m_device.size();
    if (type != kShort && type != kLong) return;
    if (tag == kStripStarts || tag == kTileStarts) m_starts = values;
    if (tag == kStripLengths || tag == kTileLengths) m_lengths = values;
  }
  bool anyPartIsCut() {
    for (std::int64_t i = 0; i < m_starts.count && !m_isCut; ++i) {
      const std::int64_t start = number(m_starts.at + i * m_starts.bytes, m_starts.bytes);
      const std::int64_t length = number(m_lengths.at + i * m_lengths.bytes, m_lengths.bytes);
      m_isCut |= start + length > m_device.size();
    }
    return m_isCut;
  }

  QIODevice& m_device;
  Numbers m_starts, m_lengths;
  bool m_isBigEndian = false, m_isCut = false;
};

struct KindRow {
  QByteArrayView start;
  const char* kind;
};
constexpr KindRow kKinds[] = {
    {"\x89PNG\r\n\x1a\n", "png"},
    {"\xFF\xD8\xFF", "jpeg"},
    {"GIF87a", "gif"},
    {"GIF89a", "gif"},
    {"BM", "bmp"},
    {QByteArrayView("II*\0", 4), "tiff"},
    {QByteArrayView("MM\0*", 4), "tiff"},
};

} // namespace

OdPictureFacts oddbPictureFacts(QIODevice& device) {
  constexpr qint64 kLongestStart = 24, kPngWidth = 16, kPngHeight = 20;
  OdPictureFacts facts;
  if (device.isSequential() || !device.seek(0)) return facts;
  const QByteArray start = device.peek(kLongestStart);
  for (const KindRow& row : kKinds)
    if (facts.kind.isEmpty() && start.startsWith(row.start)) facts.kind = row.kind;
  if (facts.kind == "png" && start.size() == kLongestStart) {
    facts.width = qFromBigEndian<std::uint32_t>(start.constData() + kPngWidth);
    facts.height = qFromBigEndian<std::uint32_t>(start.constData() + kPngHeight);
  }
  Bytes bytes(device);
  if (facts.kind == "png")
    facts.isCut = isCutPng(bytes);
  else if (facts.kind == "jpeg")
    facts.isCut = isCutJpeg(bytes, facts);
  else if (facts.kind == "gif")
    facts.isCut = isCutGif(bytes);
  else if (facts.kind == "bmp")
    lookAtBitmap(bytes, device.size(), facts);
  else if (facts.kind == "tiff")
    facts.isCut = Tiff(device).isCut();
  device.seek(0);
  return facts;
}
