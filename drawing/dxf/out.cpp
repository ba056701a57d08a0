#include "drawing/dxf/out.h"

#include "drawing/dxf/johab.h"
#include "drawing/dxf/newer.h"
#include "drawing/dxf/text.h"

#include <array>
#include <bit>
#include <charconv>
#include <cstring>

namespace {

constexpr std::size_t kBufferSize = 256 * 1024;
// Of what is only collected.
constexpr std::size_t kFirstSize = 64 * 1024;

/// The lines of all group codes, each with its length behind it.
constexpr std::size_t kCodeLine = 8;
constexpr int kCodes = 1072;
constexpr auto kCodeLines = [] {
  std::array<char, kCodeLine * kCodes> lines{};
  for (std::size_t code = 0; code < kCodes; ++code) {
    char* const line = &lines[kCodeLine * code];
    const std::size_t digits = code >= 1000 ? 4 : 3;
    std::size_t rest = code;
    for (std::size_t i = digits; i-- > 0; rest /= 10)
      line[i] = rest > 0 || i + 1 == digits ? static_cast<char>('0' + rest % 10) : ' ';
    line[digits] = '\n';
    line[kCodeLine - 1] = static_cast<char>(digits + 1);
  }
  return lines;
}();

bool isPlain(const QByteArray& bytes) {
  return std::all_of(bytes.begin(), bytes.end(),
                     [](char c) { return static_cast<signed char>(c) >= 0; });
}

/// True for a line that has the same bytes in every encoding that knows the characters.
bool isPlainLine(const OdString& text) {
  return std::all_of(text.begin(), text.end(),
                     [](QChar c) { return c.unicode() >= 0x20 && c.unicode() < 0x7F; });
}

std::string_view view(const QByteArray& bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

} // namespace

OdDbDxfOut::OdDbDxfOut(const OdDbDatabase& database, OdDb::DwgVersion version, Sink sink)
  : m_database(database)
  , m_version(version)
  , m_sink(std::move(sink))
  , m_size(m_sink ? kBufferSize : kFirstSize)
  , m_buffer(new char[m_size])
  , m_at(m_buffer.get())
  , m_utf8(version >= OdDb::kR2007) {
  const OdDbDatabaseData& data = database.data();
  const auto encodingOf = [](std::string_view codePage) {
    const QByteArray encoding = oddxf::encodingOf(codePage);
    // A code page that nobody knows was read as this one.
    return encoding == oddxf::kJohab || QStringEncoder(encoding.constData()).isValid()
               ? encoding
               : oddxf::encodingOf("ANSI_1252");
  };
  const QByteArray codePage = m_utf8
                                  ? QByteArray("UTF-8")
                                  : encodingOf(view(database.sysVarText("DWGCODEPAGE").toLatin1()));
  m_encoder = QStringEncoder(codePage.constData());
  m_codePageDecoder = QStringDecoder(codePage.constData());
  m_transcode = codePage != data.encoding;
  if (m_transcode) m_keptDecoder = QStringDecoder(data.encoding.constData());
}

void OdDbDxfOut::flush() {
  if (!m_sink) return;
  const std::string_view bytes = collected();
  clearCollected();
  if (!bytes.empty())
    m_sink(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())));
}

void OdDbDxfOut::makeRoom(std::size_t size) {
  flush();
  if (room() >= size) return;
  const std::string_view bytes = collected();
  m_size = std::max(2 * m_size, bytes.size() + size);
  std::unique_ptr<char[]> larger(new char[m_size]);
  m_at = std::copy(bytes.begin(), bytes.end(), larger.get());
  m_buffer = std::move(larger);
}

void OdDbDxfOut::append(std::string_view bytes) {
  if (bytes.size() > room()) {
    flush();
    // Long ones need not pass through the buffer.
    if (m_sink && bytes.size() > kBufferSize) {
      m_sink(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())));
      return;
    }
    makeRoom(bytes.size());
  }
  std::memcpy(m_at, bytes.data(), bytes.size());
  m_at += bytes.size();
}

void OdDbDxfOut::addCollected(const OdDbDxfOut& other) {
  flush();
  const std::string_view bytes = other.collected();
  m_sink(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())));
}

void OdDbDxfOut::code(int code) {
  ensureRoom();
  if (code >= 0 && code < kCodes) {
    const char* const line = &kCodeLines[kCodeLine * static_cast<std::size_t>(code)];
    std::memcpy(m_at, line, kCodeLine);
    m_at += line[kCodeLine - 1];
    return;
  }
  m_at = std::to_chars(m_at, m_at + kShortTag / 2, code).ptr;
  *m_at++ = '\n';
}

void OdDbDxfOut::raw(int groupCode, std::string_view value) {
  code(groupCode);
  append(value);
  ensureRoom();
  *m_at++ = '\n';
}

void OdDbDxfOut::text(int groupCode, const OdString& value) {
  code(groupCode);
  if (m_utf8 && isPlainLine(value)) {
    const auto size = static_cast<std::size_t>(value.size());
    if (room() < size) makeRoom(size);
    m_at = std::transform(value.begin(), value.end(), m_at, [](QChar c) { return c.toLatin1(); });
  } else {
    append(encoded(oddxf::oneLine(value)));
  }
  append("\n");
}

std::string OdDbDxfOut::encoded(QStringView line) {
  if (m_utf8) return line.toUtf8().toStdString();
  const QByteArray whole = inCodePage(line);
  if (!whole.isEmpty() || line.isEmpty()) return whole.toStdString();
  // Character by character, so that only those outside of the code page are escaped.
  std::string bytes;
  for (const QChar& c : line) {
    if (const QByteArray one = inCodePage(QStringView(&c, 1)); !one.isEmpty())
      bytes += view(one);
    else
      bytes += "\\U+" +
               QByteArray::number(c.unicode(), 16).toUpper().rightJustified(4, '0').toStdString();
  }
  return bytes;
}

QByteArray OdDbDxfOut::inCodePage(QStringView text) {
  if (!m_encoder.isValid()) return oddxf::toJohab(text);
  m_encoder.resetState();
  m_codePageDecoder.resetState();
  const QByteArray bytes = m_encoder.encode(text);
  // Encoders put something else in the place of what they lack, and not all of them tell.
  const OdString back = m_codePageDecoder.decode(bytes);
  return back == text ? bytes : QByteArray();
}

void OdDbDxfOut::integer(int groupCode, std::int64_t value) {
  code(groupCode);
  ensureRoom();
  m_at = std::to_chars(m_at, m_at + kShortTag / 2, value).ptr;
  *m_at++ = '\n';
}

void OdDbDxfOut::real(int groupCode, double value) {
  if (!std::isfinite(value))
    throw OdError(eInvalidInput,
                  QStringLiteral("A number under group code %1 is not finite").arg(groupCode));
  code(groupCode);
  ensureRoom();
  m_at = oddxf::putReal(m_at, value);
  *m_at++ = '\n';
}

void OdDbDxfOut::angle(int groupCode, double radians) {
  RecentAngle& recent = m_recentAngles[static_cast<std::size_t>(groupCode) % kRecentAngles];
  // Zero has a sign, which does not tell it from zero.
  if (recent.radians != radians || radians == 0) recent = {radians, degreesOf(radians)};
  real(groupCode, recent.degrees);
}

double OdDbDxfOut::degreesOf(double radians) {
  // Of the degrees that give these radians, those with the fewest digits stood in the file.
  const double degrees = radians * (180 / kOdaPi);
  char digits[40];
  const auto written =
      std::to_chars(digits, digits + sizeof digits, degrees, std::chars_format::general, 15);
  double rounded = degrees;
  std::from_chars(digits, written.ptr, rounded);
  for (const double candidate :
       {rounded, degrees, std::nextafter(degrees, 0), std::nextafter(degrees, 2 * degrees)})
    if (candidate * (kOdaPi / 180) == radians) return candidate;
  return degrees;
}

void OdDbDxfOut::point(int groupCode, const OdGePoint3d& p) {
  real(groupCode, p.x);
  real(groupCode + 10, p.y);
  real(groupCode + 20, p.z);
}

void OdDbDxfOut::point2d(int groupCode, const OdGePoint2d& p, int yCode) {
  real(groupCode, p.x);
  real(yCode ? yCode : groupCode + 10, p.y);
}

void OdDbDxfOut::handle(int groupCode, OdDbHandle value) {
  code(groupCode);
  ensureRoom();
  constexpr char kDigits[] = "0123456789ABCDEF";
  const std::uint64_t number = value;
  for (int shift = std::max(0, (static_cast<int>(std::bit_width(number)) - 1) / 4) * 4; shift >= 0;
       shift -= 4)
    *m_at++ = kDigits[number >> shift & 15];
  *m_at++ = '\n';
}

void OdDbDxfOut::recordName(int groupCode, OdDbObjectId id, const char* fallback) {
  RecentName& recent = m_recentNames[static_cast<std::size_t>(groupCode) % kRecentNames];
  if (id.isNull() || recent.id != id) {
    // The object is looked at without opening it: this runs for every entity.
    const OdDbStub* const stub = id.stub();
    const auto* const record = stub ? odrxCast<OdDbSymbolTableRecord>(stub->object.get()) : nullptr;
    if (!record) return raw(groupCode, fallback);
    recent.id = id;
    recent.bytes = encoded(oddxf::oneLine(record->getName()));
  }
  raw(groupCode, recent.bytes);
}

void OdDbDxfOut::kept(const QByteArray& lines) {
  if (lines.isEmpty()) return;
  if (!m_transcode || isPlain(lines)) {
    append(view(lines));
    return;
  }
  bool bad = false;
  m_keptDecoder.resetState();
  const OdString decoded = m_keptDecoder.isValid() ? OdString(m_keptDecoder.decode(lines))
                                                   : oddxf::fromJohab(lines, bad);
  for (const QStringView line : QStringView(decoded).split(u'\n')) {
    if (line.isEmpty() && line.data() == decoded.constData() + decoded.size()) break;
    append(encoded(line));
    append("\n");
  }
}

void OdDbDxfOut::keptOf(std::string_view subclass, const QByteArray& lines) {
  if (m_version < m_database.originalFileVersion())
    kept(oddxf::fitting(lines, subclass, m_version));
  else
    kept(lines);
}

void OdDbDxfOut::endSubclass() {
  if (m_residue)
    if (const QByteArray* lines = m_residue->of(m_subclass)) keptOf(m_subclass, *lines);
}

void OdDbDxfOut::endSubclassHere() {
  endSubclass();
  // No subclass has this name, so nothing is written again.
  m_subclass = "-";
}

void OdDbDxfOut::subclass(const char* name) {
  // A marker that stands twice has its kept tags behind the second one.
  if (m_subclass != name) endSubclass();
  m_subclass = name;
  raw(100, name);
}

void OdDbDxfOut::beginObject(const OdDbObject& object, const char* name, int handleCode,
                             OdDbObjectId owner) {
  m_residue = object.residue();
  m_subclass = {};
  raw(0, name);
  handle(handleCode, object.handle());
  if (m_residue) kept(m_residue->groups);
  reference(330, owner);
}

void OdDbDxfOut::endObject() {
  endSubclass();
  if (m_residue) {
    keptOf({}, m_residue->tail);
    kept(m_residue->xdata);
  }
  m_residue = nullptr;
}

void OdDbDxfOut::object(const OdDbObject& object) {
  beginObject(object, object.dxfName(), object.dxfHandleCode(), object.ownerId());
  object.dxfOut(*this);
  endSubclass();
  if (m_residue) keptOf({}, m_residue->tail);
  object.dxfOutXData(*this);
  if (m_residue) kept(m_residue->xdata);
  m_residue = nullptr;
}

void OdDbDxfOut::beginTable(const OdDbSymbolTable& table) {
  m_residue = table.residue();
  m_subclass = {};
  raw(0, "TABLE");
  raw(2, table.dxfRecordName());
  handle(5, table.handle());
  if (m_residue) kept(m_residue->groups);
  reference(330, table.ownerId());
  subclass("AcDbSymbolTable");
}

void OdDbDxfOut::section(const char* name) {
  raw(0, "SECTION");
  raw(2, name);
}
