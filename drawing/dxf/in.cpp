#include "drawing/dxf/in.h"

#include "drawing/dxf/johab.h"
#include "drawing/dxf/makers.h"
#include "drawing/dxf/shared.h"
#include "drawing/dxf/start.h"
#include "drawing/dxf/text.h"
#include "drawing/object_extras.h"
#include "drawing/objects/raw_object.h"
#include "frame/file_path.h"

#include <charconv>

namespace {

/// Old files have no subclasses: those in which the tags of their entities stand today.
struct PlainClass {
  std::string_view name;
  const char* subclass;
};
constexpr PlainClass kPlainClasses[] = {
    {"3DFACE", "AcDbFace"},
    {"3DLINE", "AcDbLine"},
    {"ARC", "AcDbCircle"},
    {"ATTDEF", "AcDbAttributeDefinition"},
    {"ATTRIB", "AcDbAttribute"},
    {"BLOCK", "AcDbBlockBegin"},
    {"CIRCLE", "AcDbCircle"},
    {"DIMENSION", "AcDbDimension"},
    {"INSERT", "AcDbBlockReference"},
    {"LINE", "AcDbLine"},
    {"POINT", "AcDbPoint"},
    {"POLYLINE", "AcDb2dPolyline"},
    {"SHAPE", "AcDbShape"},
    {"SOLID", "AcDbTrace"},
    {"TEXT", "AcDbText"},
    {"TRACE", "AcDbTrace"},
    {"VERTEX", "AcDbVertex"},
    {"VIEWPORT", "AcDbViewport"},
};

const char* plainSubclass(const OdDbObject& object) {
  if (const auto* record = odrxCast<OdDbSymbolTableRecord>(&object)) return record->dxfSubclass();
  for (const PlainClass& one : kPlainClasses)
    if (one.name == object.dxfName()) return one.subclass;
  return nullptr;
}

template <class T>
std::optional<T> parsed(std::string_view text) {
  text = oddxf::trimmed(text);
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
  return QStringLiteral("%1:%2: ").arg(odpath::toPlatform(name)).arg(line);
}

// A file can be wrong in every line; nobody reads more than this.
constexpr qsizetype kMostMessages = 1000;

constexpr int kElevation = 38;
constexpr int kEmbeddedObject = 101;

} // namespace

OdDbDxfIn::OdDbDxfIn(OdDbDatabase& database, OdDbDxfSource& source, OdString name)
  : m_database(database)
  , m_source(source)
  , m_name(std::move(name))
  , m_decoder(QStringDecoder::Utf8) {}

OdDbDxfIn::OdDbDxfIn(const OdDbDxfIn& other, OdDbDxfSource& source, OdDbDxfShared& shared)
  : m_database(other.m_database)
  , m_source(source)
  , m_name(other.m_name)
  , m_decodeEscapes(other.m_decodeEscapes)
  , m_plain(other.m_plain)
  , m_keepsHandles(other.m_keepsHandles)
  , m_shared(&shared) {
  const QByteArray& encoding = m_database.data().encoding;
  m_decoder = QStringDecoder(encoding.constData());
}

void OdDbDxfIn::restart() {
  m_damaged = m_givenUp = false;
  next();
}

bool OdDbDxfIn::next() {
  switch (m_source.next(m_tag)) {
  case OdDbDxfSource::kTag:
    return true;
  case OdDbDxfSource::kDamaged:
    if (!m_damaged) damage(m_source.problem());
    break;
  case OdDbDxfSource::kEnd:
    // What a helper has been given ends with an object.
    if (!m_damaged && !m_shared) damage(QStringLiteral("the file ends too early"));
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
  if (m_shared) {
    m_givenUp = true;
    return;
  }
  QStringList& list = data().unknownContent;
  if (list.size() < kMostMessages)
    list << place(m_name, m_source.line()) + what;
  else if (list.size() == kMostMessages)
    list << QStringLiteral("(more of the same)");
}

void OdDbDxfIn::note(const OdString& what) {
  if (m_shared) {
    m_givenUp = true;
    return;
  }
  if (data().readNotes.size() < kMostMessages)
    data().readNotes << place(m_name, m_source.line()) + what;
}

double OdDbDxfIn::real(const OdDbDxfTag& tag, double now) {
  const auto value = oddxf::realOf(tag.text);
  if (value && std::isfinite(*value)) return *value;
  m_head.hasBadValue = true;
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
  if (const auto value = oddxf::realOf(tag.text);
      value && std::abs(*value) < 9e15 && std::trunc(*value) == *value)
    return static_cast<std::int64_t>(*value);
  m_head.hasBadValue = true;
  damage(QStringLiteral("\"%1\" under group code %2 is no whole number")
             .arg(shown(tag.text))
             .arg(tag.code));
  return now;
}

int OdDbDxfIn::integer(const OdDbDxfTag& tag, int now) {
  const std::int64_t value = longInteger(tag, now);
  if (value == static_cast<int>(value)) return static_cast<int>(value);
  m_head.hasBadValue = true;
  damage(QStringLiteral("%1 under group code %2 is too large").arg(value).arg(tag.code));
  return now;
}

OdString OdDbDxfIn::text(std::string_view bytes) {
  const auto* const end = bytes.data() + bytes.size();
  const bool plain =
      std::all_of(bytes.data(), end, [](char c) { return static_cast<signed char>(c) >= 0; });
  const QByteArrayView view(bytes.data(), static_cast<qsizetype>(bytes.size()));
  OdString decoded;
  if (plain) {
    decoded = OdString::fromLatin1(view);
  } else {
    bool bad = false;
    if (m_decoder.isValid()) {
      m_decoder.resetState();
      decoded = m_decoder.decode(view);
      bad = m_decoder.hasError();
    } else {
      decoded = oddxf::fromJohab(view, bad);
    }
    if (bad)
      damage(QStringLiteral("a text is not in the encoding of the file: \"%1\"").arg(decoded));
  }
  const bool escapes = m_decodeEscapes && bytes.find('\\') != std::string_view::npos;
  return escapes ? oddxf::withoutEscapes(decoded) : decoded;
}

void OdDbDxfIn::setCodePage(std::string_view name) {
  OdDbDatabaseData& d = data();
  if (d.version >= OdDb::kR2007) return;
  m_decodeEscapes = true;
  d.encoding = oddxf::encodingOf(name);
  m_decoder = QStringDecoder(d.encoding.constData());
  if (m_decoder.isValid() || d.encoding == oddxf::kJohab) return;
  note(QStringLiteral("the code page %1 is not known; texts are read as ANSI_1252")
           .arg(shown(name)));
  d.encoding = oddxf::encodingOf("ANSI_1252");
  m_decoder = QStringDecoder(d.encoding.constData());
}

namespace {

/// The digits that nearly all handles have: a few, in capitals, and no blanks. 0 for others.
std::uint64_t plainHandle(std::string_view text) {
  if (text.size() > 15) return 0;
  std::uint64_t value = 0;
  for (const char c : text) {
    auto digit = static_cast<unsigned>(c - '0');
    if (digit > 9) {
      digit = static_cast<unsigned>(c - 'A') + 10;
      if (digit < 10 || digit > 15) return 0;
    }
    value = value << 4 | digit;
  }
  return value;
}

} // namespace

OdDbHandle OdDbDxfIn::handle(const OdDbDxfTag& tag) {
  if (const std::uint64_t value = plainHandle(tag.text); value != 0) return value;
  if (const auto value = OdDbHandle::fromText(oddxf::trimmed(tag.text))) return *value;
  damage(QStringLiteral("\"%1\" is no handle").arg(shown(tag.text)));
  return {};
}

OdDbObjectId OdDbDxfIn::reference(const OdDbDxfTag& tag) {
  const OdDbHandle value = handle(tag);
  if (value.isNull()) return {};
  if (!m_shared) return OdDbObjectId(&data().stubFor(value));
  const OdDbObjectId id(m_shared->stubFor(value));
  if (id.isNull()) m_givenUp = true;
  return id;
}

OdDbObjectId OdDbDxfIn::foundRecord(OdDbDatabaseData::Table table, const std::string& name) {
  auto& found = m_found[table];
  if (const auto at = found.find(name); at != found.end()) return at->second;
  const OdString wanted = text(name);
  const OdDbObjectId id = m_shared->recordNamed(table, wanted);
  if (!id.isNull())
    found.emplace(name, id);
  else if (!wanted.isEmpty())
    m_givenUp = true;
  return id;
}

OdDbObjectId OdDbDxfIn::record(OdDbDatabaseData::Table table, std::string_view name) {
  Recent& recent = m_recent[table];
  if (!recent.id.isNull() && recent.name == name) return recent.id;
  if (m_shared) {
    const OdDbObjectId id = foundRecord(table, std::string(name));
    recent = {std::string(name), id};
    return id;
  }
  const OdDbSymbolTablePtr records = data().tables[table].safeOpenObject(OdDb::kForWrite);
  const OdString wanted = text(name);
  OdDbObjectId id = records->getAt(wanted);
  if (id.isNull() && !wanted.isEmpty()) {
    const OdDbSymbolTableRecordPtr made = records->newRecord();
    made->setName(wanted);
    id = records->add(made);
    // In old files the BLOCKS section is the only table of blocks, and it may come later.
    if (!m_plain || table != OdDbDatabaseData::kBlocks)
      note(QStringLiteral("%1 \"%2\" is not in its table and was added")
               .arg(QLatin1String(records->dxfRecordName()), wanted));
  }
  recent.name = name;
  recent.id = id;
  return id;
}

void OdDbDxfIn::keepTag(OdDbObject& object) {
  OdDbDxfResidue& residue = object.editResidue();
  if (m_tag.code >= 1000)
    oddxf::addLines(residue.xdata, m_tag.code, m_tag.text);
  else if (m_plainSubclass && m_subclass.empty())
    keepPlainTag(object, residue);
  else if (m_knownSubclass)
    oddxf::addLines(residue.edit(m_subclass), m_tag.code, m_tag.text);
  else
    oddxf::addLines(residue.tail, m_tag.code, m_tag.text);
}

void OdDbDxfIn::keepPlainTag(OdDbObject& object, OdDbDxfResidue& residue) {
  // Arrow blocks of dimension styles: newer files tell them by handle, under other codes.
  if (m_tag.code >= 5 && m_tag.code <= 7) {
    if (!oddxf::trimmed(m_tag.text).empty())
      damage(QStringLiteral("the block \"%1\" of a dimension style cannot be taken over")
                 .arg(shown(m_tag.text)));
    return;
  }
  // What newer files have no code for moves the entity, which is done behind its last tag.
  if (m_tag.code == kElevation && odrxCast<OdDbEntity>(&object)) {
    m_elevation = m_tag.text;
    return;
  }
  if (!odrxCast<OdDbRawEntity>(&object)) {
    oddxf::addLines(residue.edit(m_plainSubclass), m_tag.code, m_tag.text);
    return;
  }
  if (residue.tail.isEmpty()) oddxf::addLines(residue.tail, 100, m_plainSubclass);
  oddxf::addLines(residue.tail, m_tag.code, m_tag.text);
}

void OdDbDxfIn::takeElevation(OdDbObject& object) {
  const std::string value = std::exchange(m_elevation, {});
  for (const int code : {30, 31})
    if (const OdDbDxfTag z{code, value}; !object.dxfInTag(z, *this) && code == 30) {
      m_tag = z;
      keepTag(object);
    }
}

void OdDbDxfIn::keepGroup(OdDbObject& object) {
  // A group stands before the owner, but applications also put theirs into subclasses.
  const bool leading = m_subclass.empty();
  const auto keep = [&] {
    if (leading)
      oddxf::addLines(object.editResidue().groups, m_tag.code, m_tag.text);
    else
      keepTag(object);
  };
  do {
    if (m_tag.code == 0) {
      // Left open, it would swallow what is written behind it.
      const OdDbDxfTag next = std::exchange(m_tag, {102, "}"});
      keep();
      m_tag = next;
      note(QStringLiteral("a group of an application has no end and got one"));
      return;
    }
    keep();
    if (m_tag.code == 102 && m_tag.text == "}") {
      next();
      return;
    }
  } while (next());
}

void OdDbDxfIn::readTags(OdDbObject& object) {
  m_subclass.clear();
  m_knownSubclass = true;
  m_head = {};
  m_ownerSeen = m_givenUp = false;
  m_plainSubclass = m_plain ? plainSubclass(object) : nullptr;
  const int handleCode = object.dxfHandleCode();
  next();
  while (m_tag.code != 0) {
    const int code = m_tag.code;
    if (code == 102 && m_tag.text.starts_with('{')) {
      keepGroup(object);
      continue;
    }
    if (code == handleCode && m_head.handle.isNull() && m_subclass.empty()) {
      m_head.handle = handle(m_tag);
    } else if (code == 330 && !m_ownerSeen && m_subclass.empty()) {
      m_head.owner = handle(m_tag);
      m_ownerSeen = true;
    } else if (code == 100) {
      m_subclass = m_tag.text;
      m_knownSubclass = object.dxfInTag(m_tag, *this);
      if (!m_knownSubclass) keepTag(object);
    } else if (code == kEmbeddedObject) {
      // Its tags have the codes of the object around it, but other meanings.
      m_knownSubclass = object.dxfInTag(m_tag, *this);
      if (!m_knownSubclass) {
        m_subclass = "Embedded Object";
        keepTag(object);
      }
    } else if ((code < 1000 && !m_knownSubclass) || !object.dxfInTag(m_tag, *this)) {
      if (code == 66 && m_tag.text.ends_with('1')) m_head.hasFollowers = true;
      keepTag(object);
    }
    next();
  }
  const OdDbDxfTag last = m_tag;
  if (!m_elevation.empty()) takeElevation(object);
  object.dxfInEnd(*this);
  m_tag = last;
  if (OdDbDxfResidue* const residue =
          object.m_extras && object.m_extras->residue ? &*object.m_extras->residue : nullptr)
    residue->squeeze();
}

OdDbEntityPtr OdDbDxfIn::readEntity(std::string_view name) {
  OdDbEntityPtr entity = oddxf::makeEntity(name);
  readTags(*entity);
  if ((m_damaged && !m_shared) || m_head.hasBadValue) return nullptr;
  if (OdDbEntityPtr other = entity->readAs()) entity = std::move(other);
  if (entity->layerId().isNull()) entity->setLayer(data().layerZero);
  return entity;
}

OdDbStub* OdDbDxfIn::freeStub(const OdDbObject& object) {
  // Few old files have handles.
  if (m_head.handle.isNull() || !m_keepsHandles) return nullptr;
  // A handle that nothing can follow would leave no room for new objects.
  if (m_head.handle > oddxf::kHighestHandle) {
    damage(QStringLiteral("the handle %1 is too large; the object got a new one")
               .arg(m_head.handle.ascii()));
    return nullptr;
  }
  OdDbStub& stub = data().stubFor(m_head.handle);
  if (!stub.object) return &stub;
  damage(QStringLiteral("the handle %1 of a %2 belongs to another object; it got a new one")
             .arg(m_head.handle.ascii(), QLatin1String(object.dxfName())));
  return nullptr;
}

void OdDbDxfIn::enter(OdDbObject& object, OdDbObjectId owner) {
  const OdDbStub* const stub = freeStub(object);
  if (owner.isNull() && !m_head.owner.isNull()) owner = OdDbObjectId(&data().stubFor(m_head.owner));
  m_database.addObject(&object, owner, stub ? stub->handle : OdDbHandle());
}

void OdDbDxfIn::enterEntity(OdDbEntityPtr entity, OdDbBlockTableRecord& block) {
  OdDbStub* const stub = freeStub(*entity);
  if (!stub) {
    m_database.addObject(entity, block.objectId());
    return;
  }
  OdDbDatabaseData& d = data();
  d.handseed = std::max<std::uint64_t>(d.handseed, stub->handle + 1);
  entity->m_stub = stub;
  entity->m_owner = block.objectId();
  block.m_entities.push_back(OdDbObjectId(stub));
  // Counting references costs more than all of the above.
  stub->object.attach(entity.detach());
}

bool OdDbDxfIn::readObject(OdDbObject& object, OdDbObjectId owner) {
  readTags(object);
  enter(object, owner);
  return true;
}

void OdDbDxfIn::enterFollower(OdDbObject& object, OdDbObjectId leader) {
  enter(object, leader);
  if (!m_head.owner.isNull() && !m_plain)
    object.m_owner = OdDbObjectId(&data().stubFor(m_head.owner));
}
