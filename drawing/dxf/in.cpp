#include "drawing/dxf/in.h"

#include "drawing/dxf/residue.h"
#include "drawing/dxf/text.h"

#include <charconv>

namespace {

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
  return text;
}

template <class T>
std::optional<T> parsed(std::string_view text) {
  text = trimmed(text);
  if (text.starts_with('+')) text.remove_prefix(1);
  T value{};
  const auto [at, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || at != text.data() + text.size()) return std::nullopt;
  return value;
}

/// A value as a message shows it.
OdString shown(std::string_view value) {
  constexpr std::size_t kShown = 60;
  return OdString::fromUtf8(value.data(), static_cast<qsizetype>(std::min(value.size(), kShown)));
}

QString place(const OdString& name, qint64 line) {
  return QStringLiteral("%1:%2: ").arg(name).arg(line);
}

// A file can be wrong in every line; nobody reads more than this.
constexpr qsizetype kMostMessages = 1000;

} // namespace

OdDbDxfIn::OdDbDxfIn(OdDbDatabase& database, OdDbDxfSource& source, OdString name)
  : m_database(database)
  , m_source(source)
  , m_name(std::move(name))
  , m_decoder(QStringDecoder::Utf8) {}

bool OdDbDxfIn::next() {
  switch (m_source.next(m_tag)) {
  case OdDbDxfSource::kTag:
    return true;
  case OdDbDxfSource::kDamaged:
    if (!m_damaged) damage(m_source.problem());
    break;
  case OdDbDxfSource::kEnd:
    if (!m_damaged) damage(QStringLiteral("the file ends too early"));
    break;
  }
  m_damaged = true;
  m_tag = {0, "EOF"};
  return false;
}

void OdDbDxfIn::fail(const OdString& reason) const {
  throw OdDbFileError(m_name, m_source.line(), reason);
}

void OdDbDxfIn::damage(const OdString& what) {
  QStringList& list = data().unknownContent;
  if (list.size() < kMostMessages)
    list << place(m_name, m_source.line()) + what;
  else if (list.size() == kMostMessages)
    list << QStringLiteral("(more of the same)");
}

void OdDbDxfIn::note(const OdString& what) {
  if (data().readNotes.size() < kMostMessages)
    data().readNotes << place(m_name, m_source.line()) + what;
}

double OdDbDxfIn::real(const OdDbDxfTag& tag, double now) {
  const auto value = parsed<double>(tag.text);
  if (value && std::isfinite(*value)) return *value;
  m_badValue = true;
  damage(QStringLiteral("\"%1\" under group code %2 is no finite number")
             .arg(shown(tag.text))
             .arg(tag.code));
  return now;
}

double OdDbDxfIn::angle(const OdDbDxfTag& tag, double now) {
  return real(tag, now * (180 / kOdaPi)) * (kOdaPi / 180);
}

std::int64_t OdDbDxfIn::longInteger(const OdDbDxfTag& tag, std::int64_t now) {
  if (const auto value = parsed<std::int64_t>(tag.text)) return *value;
  // Some programs write whole numbers with a point.
  if (const auto value = parsed<double>(tag.text);
      value && std::abs(*value) < 9e15 && std::trunc(*value) == *value)
    return static_cast<std::int64_t>(*value);
  m_badValue = true;
  damage(QStringLiteral("\"%1\" under group code %2 is no whole number")
             .arg(shown(tag.text))
             .arg(tag.code));
  return now;
}

int OdDbDxfIn::integer(const OdDbDxfTag& tag, int now) {
  const std::int64_t value = longInteger(tag, now);
  if (value == static_cast<int>(value)) return static_cast<int>(value);
  m_badValue = true;
  damage(QStringLiteral("%1 under group code %2 is too large").arg(value).arg(tag.code));
  return now;
}

OdString OdDbDxfIn::text(std::string_view bytes) {
  const auto* const end = bytes.data() + bytes.size();
  if (std::all_of(bytes.data(), end, [](char c) { return static_cast<signed char>(c) >= 0; })) {
    const OdString plain = OdString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
    return m_decodeEscapes ? oddxf::withoutEscapes(plain) : plain;
  }
  m_decoder.resetState();
  OdString decoded =
      m_decoder.decode(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
  if (m_decoder.hasError())
    damage(QStringLiteral("a text is not in the encoding of the file: \"%1\"").arg(decoded));
  return m_decodeEscapes ? oddxf::withoutEscapes(decoded) : decoded;
}

void OdDbDxfIn::setCodePage(std::string_view name) {
  OdDbDatabaseData& d = data();
  if (d.version >= OdDb::kR2007) return;
  m_decodeEscapes = true;
  const QByteArray encoding = oddxf::encodingOf(name);
  m_decoder = QStringDecoder(encoding.constData());
  d.encoding = encoding;
  if (m_decoder.isValid()) return;
  damage(QStringLiteral("the code page %1 is not known").arg(shown(name)));
  d.encoding = "ISO-8859-1";
  m_decoder = QStringDecoder(QStringDecoder::Latin1);
}

OdDbHandle OdDbDxfIn::handle(const OdDbDxfTag& tag) {
  if (const auto value = OdDbHandle::fromText(trimmed(tag.text))) return *value;
  damage(QStringLiteral("\"%1\" is no handle").arg(shown(tag.text)));
  return {};
}

OdDbObjectId OdDbDxfIn::reference(const OdDbDxfTag& tag) {
  const OdDbHandle value = handle(tag);
  return value.isNull() ? OdDbObjectId() : OdDbObjectId(&data().stubFor(value));
}

OdDbObjectId OdDbDxfIn::record(OdDbDatabaseData::Table table, std::string_view name) {
  Recent& recent = m_recent[table];
  if (recent.id.isValid() && recent.name == name) return recent.id;
  const OdDbSymbolTablePtr records = data().tables[table].safeOpenObject(OdDb::kForWrite);
  const OdString wanted = text(name);
  OdDbObjectId id = records->getAt(wanted);
  if (id.isNull() && !wanted.isEmpty()) {
    const OdDbSymbolTableRecordPtr made = records->newRecord();
    made->setName(wanted);
    id = records->add(made);
    note(QStringLiteral("%1 \"%2\" is not in its table and was added")
             .arg(QLatin1String(records->dxfRecordName()), wanted));
  }
  recent = {name, id};
  return id;
}

void OdDbDxfIn::keepTag(OdDbObject& object) {
  OdDbDxfResidue& residue = object.editResidue();
  if (m_tag.code >= 1000)
    oddxf::addLines(residue.xdata, m_tag.code, m_tag.text);
  else if (m_plainSubclass && m_subclass.empty())
    keepPlainTag(residue);
  else if (m_knownSubclass)
    oddxf::addLines(residue.edit(m_subclass), m_tag.code, m_tag.text);
  else
    oddxf::addLines(residue.tail, m_tag.code, m_tag.text);
}

void OdDbDxfIn::keepPlainTag(OdDbDxfResidue& residue) {
  // Arrow blocks of dimension styles: newer files tell them by handle, under other codes.
  if (m_tag.code >= 5 && m_tag.code <= 7) {
    if (!trimmed(m_tag.text).empty())
      damage(QStringLiteral("the block \"%1\" of a dimension style cannot be taken over")
                 .arg(shown(m_tag.text)));
    return;
  }
  oddxf::addLines(residue.edit(m_plainSubclass), m_tag.code, m_tag.text);
}

void OdDbDxfIn::keepGroup(OdDbObject& object) {
  // A group stands before the owner, but applications also put theirs into subclasses.
  const bool leading = m_subclass.empty();
  do {
    if (m_tag.code == 0) return;
    if (leading)
      oddxf::addLines(object.editResidue().groups, m_tag.code, m_tag.text);
    else
      keepTag(object);
    if (m_tag.code == 102 && m_tag.text == "}") {
      next();
      return;
    }
  } while (next());
}

void OdDbDxfIn::readTags(OdDbObject& object) {
  m_subclass = {};
  m_knownSubclass = true;
  m_badValue = m_paperSpace = m_hasFollowers = m_ownerSeen = false;
  m_handle = m_namedOwner = {};
  const auto* const record = dynamic_cast<const OdDbSymbolTableRecord*>(&object);
  m_plainSubclass = m_plain && record ? record->dxfSubclass() : nullptr;
  const int handleCode = record ? record->dxfHandleCode() : 5;
  next();
  while (m_tag.code != 0) {
    if (m_tag.code == 102 && m_tag.text.starts_with('{')) {
      keepGroup(object);
      continue;
    }
    if (m_subclass.empty() && m_tag.code == handleCode && m_handle.isNull()) {
      m_handle = handle(m_tag);
    } else if (m_subclass.empty() && m_tag.code == 330 && !m_ownerSeen) {
      m_namedOwner = handle(m_tag);
      m_ownerSeen = true;
    } else if (m_tag.code == 100) {
      m_subclass = m_tag.text;
      m_knownSubclass = object.dxfInTag(m_tag, *this);
      if (!m_knownSubclass) keepTag(object);
    } else if ((m_tag.code < 1000 && !m_knownSubclass) || !object.dxfInTag(m_tag, *this)) {
      if (m_tag.code == 66 && m_tag.text.ends_with('1')) m_hasFollowers = true;
      keepTag(object);
    }
    next();
  }
  object.dxfInEnd(*this);
}

void OdDbDxfIn::enter(OdDbObject& object, OdDbObjectId owner) {
  OdDbDatabaseData& d = data();
  OdDbHandle handle = m_handle;
  if (!m_plain && !handle.isNull() && d.stubFor(handle).object) {
    damage(QStringLiteral("the handle %1 of a %2 belongs to another object; it got a new one")
               .arg(handle.ascii(), QLatin1String(object.dxfName())));
    handle = {};
  }
  // A handle that nothing can follow would leave no room for new objects.
  constexpr std::uint64_t kHighest = ~std::uint64_t{0} >> 8;
  if (handle > kHighest) {
    damage(
        QStringLiteral("the handle %1 is too large; the object got a new one").arg(handle.ascii()));
    handle = {};
  }
  // Few old files have handles, and those of a new drawing have theirs already.
  if (m_plain) handle = {};
  if (owner.isNull() && !m_namedOwner.isNull())
    owner = OdDbObjectId(&d.stubFor(m_namedOwner));
  m_database.addObject(&object, owner, handle);
}

bool OdDbDxfIn::readObject(OdDbObject& object, OdDbObjectId owner) {
  readTags(object);
  enter(object, owner);
  return true;
}

void OdDbDxfIn::enterFollower(OdDbObject& object, OdDbObjectId leader) {
  enter(object, leader);
  if (!m_namedOwner.isNull() && !m_plain)
    object.m_owner = OdDbObjectId(&data().stubFor(m_namedOwner));
}
