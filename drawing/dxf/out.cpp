#include "drawing/dxf/out.h"

#include "drawing/dxf/text.h"

#include <charconv>

namespace {

constexpr qsizetype kBufferSize = 256 * 1024;

bool isPlain(const QByteArray& bytes) {
  return std::all_of(bytes.begin(), bytes.end(),
                     [](char c) { return static_cast<signed char>(c) >= 0; });
}

std::string_view view(const QByteArray& bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

} // namespace

OdDbDxfOut::OdDbDxfOut(const OdDbDatabase& database, OdDb::DwgVersion version, Sink sink)
  : m_database(database)
  , m_version(version)
  , m_sink(std::move(sink))
  , m_utf8(version >= OdDb::kR2007) {
  const OdDbDatabaseData& data = database.data();
  const QByteArray codePage =
      m_utf8 ? QByteArray("UTF-8")
             : oddxf::encodingOf(view(database.sysVarText("DWGCODEPAGE").toLatin1()));
  m_encoder = QStringEncoder(codePage.constData());
  m_codePageDecoder = QStringDecoder(codePage.constData());
  if (!m_encoder.isValid()) {
    m_encoder = QStringEncoder(QStringEncoder::Latin1);
    m_codePageDecoder = QStringDecoder(QStringDecoder::Latin1);
  }
  m_transcode = codePage != data.encoding && data.encoding != "ISO-8859-1";
  if (m_transcode) m_keptDecoder = QStringDecoder(data.encoding.constData());
}

void OdDbDxfOut::flush() {
  if (!m_buffer.isEmpty()) m_sink(m_buffer);
  m_buffer.clear();
}

void OdDbDxfOut::code(int code) {
  if (m_buffer.size() >= kBufferSize) {
    m_sink(m_buffer);
    m_buffer.resize(0);
  }
  oddxf::addCode(m_buffer, code);
}

void OdDbDxfOut::raw(int groupCode, std::string_view value) {
  code(groupCode);
  m_buffer.append(value.data(), static_cast<qsizetype>(value.size()));
  m_buffer.append('\n');
}

void OdDbDxfOut::text(int groupCode, const OdString& value) {
  code(groupCode);
  appendEncoded(oddxf::oneLine(value));
  m_buffer.append('\n');
}

void OdDbDxfOut::appendEncoded(QStringView line) {
  if (m_utf8) {
    m_buffer.append(line.toUtf8());
    return;
  }
  const QByteArray whole = inCodePage(line);
  if (!whole.isEmpty() || line.isEmpty()) {
    m_buffer.append(whole);
    return;
  }
  // Character by character, so that only those outside of the code page are escaped.
  for (const QChar& c : line) {
    if (const QByteArray one = inCodePage(QStringView(&c, 1)); !one.isEmpty())
      m_buffer.append(one);
    else
      m_buffer.append("\\U+").append(
          QByteArray::number(c.unicode(), 16).toUpper().rightJustified(4, '0'));
  }
}

QByteArray OdDbDxfOut::inCodePage(QStringView text) {
  m_encoder.resetState();
  m_codePageDecoder.resetState();
  const QByteArray bytes = m_encoder.encode(text);
  // Encoders put something else in the place of what they lack, and not all of them tell.
  const OdString back = m_codePageDecoder.decode(bytes);
  return back == text ? bytes : QByteArray();
}

void OdDbDxfOut::integer(int groupCode, std::int64_t value) {
  char digits[24];
  const auto [end, error] = std::to_chars(digits, digits + sizeof digits, value);
  raw(groupCode, {digits, static_cast<std::size_t>(end - digits)});
}

void OdDbDxfOut::real(int groupCode, double value) {
  if (!std::isfinite(value))
    throw OdError(eInvalidInput,
                  QStringLiteral("A number under group code %1 is not finite").arg(groupCode));
  char digits[oddxf::kRealDigits];
  raw(groupCode, oddxf::realText(digits, value));
}

void OdDbDxfOut::angle(int groupCode, double radians) {
  // Of the degrees that give these radians, those with the fewest digits stood in the file.
  const double degrees = radians * (180 / kOdaPi);
  char digits[40];
  const auto written =
      std::to_chars(digits, digits + sizeof digits, degrees, std::chars_format::general, 15);
  double rounded = degrees;
  std::from_chars(digits, written.ptr, rounded);
  for (const double candidate :
       {rounded, degrees, std::nextafter(degrees, 0), std::nextafter(degrees, 2 * degrees)})
    if (candidate * (kOdaPi / 180) == radians) return real(groupCode, candidate);
  real(groupCode, degrees);
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
  char digits[20];
  const auto [end, error] =
      std::to_chars(digits, digits + sizeof digits, static_cast<std::uint64_t>(value), 16);
  for (char* c = digits; c != end; ++c)
    if (*c >= 'a') *c = static_cast<char>(*c - 'a' + 'A');
  raw(groupCode, {digits, static_cast<std::size_t>(end - digits)});
}

void OdDbDxfOut::recordName(int groupCode, OdDbObjectId id, const char* fallback) {
  // The object is looked at without opening it: this runs for every entity.
  const OdDbStub* const stub = id.stub();
  if (const auto* record =
          stub ? dynamic_cast<const OdDbSymbolTableRecord*>(stub->object.get()) : nullptr)
    text(groupCode, record->getName());
  else
    raw(groupCode, fallback);
}

void OdDbDxfOut::kept(const QByteArray& lines) {
  if (lines.isEmpty()) return;
  if (!m_transcode || isPlain(lines)) {
    // Long ones need not pass through the buffer.
    if (lines.size() < kBufferSize) {
      m_buffer.append(lines);
    } else {
      flush();
      m_sink(lines);
    }
    return;
  }
  m_keptDecoder.resetState();
  const OdString decoded = m_keptDecoder.decode(lines);
  for (const QStringView line : QStringView(decoded).split(u'\n')) {
    if (line.isEmpty() && line.data() == decoded.constData() + decoded.size()) break;
    appendEncoded(line);
    m_buffer.append('\n');
  }
}

void OdDbDxfOut::endSubclass() {
  if (m_residue)
    if (const QByteArray* lines = m_residue->of(m_subclass)) kept(*lines);
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
    kept(m_residue->tail);
    kept(m_residue->xdata);
  }
  m_residue = nullptr;
}

void OdDbDxfOut::object(const OdDbObject& object) {
  const auto* const record = dynamic_cast<const OdDbSymbolTableRecord*>(&object);
  beginObject(object, object.dxfName(), record ? record->dxfHandleCode() : 5, object.ownerId());
  object.dxfOut(*this);
  endSubclass();
  if (m_residue) kept(m_residue->tail);
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
