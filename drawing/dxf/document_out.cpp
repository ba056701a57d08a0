// Writing whole drawings.
#include "drawing/dxf/document_out.h"

#include "drawing/cloning/unused_records.h"
#include "drawing/dxf/class_list.h"
#include "drawing/dxf/entities_out.h"
#include "drawing/dxf/newer.h"
#include "drawing/dxf/out.h"
#include "drawing/dxf/text.h"
#include "drawing/replaced_file.h"

#include "frame/file_writing.h"

#include <QFileInfo>
#include <QSaveFile>

namespace {

using V = OdDbHeaderVarInfo;

class Writer {
 public:
  Writer(const OdDbDatabase& database, OdDb::DwgVersion version, OdDbDxfOut::Sink sink,
         std::size_t threads)
    : m_database(database)
    , m_data(database.data())
    , m_out(database, version, std::move(sink))
    , m_entities(m_out, threads)
    , m_orphans(oddb::orphanedBlocks(database)) {}

  void write() {
    header();
    m_out.section("CLASSES");
    m_out.keptOf({}, m_data.classes);
    m_out.keptOf({}, oddxf::missingClasses(m_database));
    m_out.endSection();
    tables();
    blocks();
    m_out.section("ENTITIES");
    entitiesOf(m_data.modelSpace);
    entitiesOf(m_database.getPaperSpaceId());
    m_out.endSection();
    m_out.section("OBJECTS");
    for (const OdDbObjectId id : m_data.objects)
      if (id.isValid() && !oddxf::isLeftOut(id, m_orphans)) m_out.object(*id.stub()->object);
    m_out.endSection();
    for (const OdDbRawSection& section : m_data.otherSections) {
      if (oddxf::sectionSince(section.name.constData()) > m_out.version()) continue;
      m_out.section(section.name.constData());
      m_out.kept(section.tags);
      m_out.endSection();
    }
    m_out.raw(0, "EOF");
    m_out.flush();
  }

 private:
  void header() {
    m_out.section("HEADER");
    m_out.raw(9, "$ACADVER");
    m_out.raw(1, OdDb::versionText(m_out.version()));
    std::vector<char> written(m_data.vars.size());
    if (m_data.headerOrder.empty()) {
      // Whoever reads from the start has to know the code page before the first text.
      const auto codePage =
          static_cast<std::size_t>(oddbFindHeaderVar(u"DWGCODEPAGE") - oddbHeaderVars().data());
      variable(codePage, 0);
      written[codePage] = true;
    }
    for (const OdDbHeaderEntry& entry : m_data.headerOrder) {
      if (entry.known < 0) {
        m_out.kept(*entry.tags);
      } else {
        variable(static_cast<std::size_t>(entry.known), entry.code);
        written[static_cast<std::size_t>(entry.known)] = true;
      }
    }
    for (std::size_t i = 0; i < written.size(); ++i)
      if (!written[i]) variable(i, 0);
    m_out.endSection();
  }

  void variable(std::size_t index, int codeInFile) {
    const V& row = oddbHeaderVars()[index];
    const std::string_view name = row.name;
    const int code = codeInFile != 0 ? codeInFile : row.code;
    if (name == "ACADVER" || oddbHeaderVarSince(row) > m_out.version()) return;
    const bool isSeed = name == "HANDSEED";
    if (!m_data.varPresent[index] && !isSeed) return;
    m_out.raw(9, std::string("$").append(name));
    const OdDbVarValue& value = m_data.vars[index];
    if (isSeed) {
      m_out.handle(code, m_data.handseed);
    } else if (const auto* whole = std::get_if<std::int64_t>(&value)) {
      m_out.integer(code, *whole);
    } else if (const auto* real = std::get_if<double>(&value)) {
      m_out.real(code, *real);
    } else if (const auto* text = std::get_if<OdString>(&value)) {
      m_out.text(code, *text);
    } else if (const auto* point = std::get_if<OdGePoint3d>(&value)) {
      if (row.type == V::kPoint2d)
        m_out.point2d(code, {point->x, point->y});
      else
        m_out.point(code, *point);
    } else if (const auto* color = std::get_if<OdCmColor>(&value)) {
      m_out.integer(code, color->colorIndex());
    } else if (const auto* id = std::get_if<OdDbObjectId>(&value)) {
      if (row.type == V::kHandle)
        m_out.reference(code, *id);
      else
        m_out.recordName(code, *id, row.preset);
    }
  }

  void tables() {
    m_out.section("TABLES");
    for (const OdDbObjectId id : m_data.tables) {
      const auto table = id.openAs<OdDbSymbolTable>();
      m_out.beginTable(*table);
      std::int64_t count = 0;
      for (auto it = table->newIterator(); !it->done(); it->step())
        if (!leavesOut(it->getRecordId())) ++count;
      m_out.integer(70, count);
      m_out.endObject();
      for (auto it = table->newIterator(); !it->done(); it->step())
        if (!leavesOut(it->getRecordId())) m_out.object(*it->getRecord());
      m_out.raw(0, "ENDTAB");
    }
    m_out.endSection();
  }

  void blocks() {
    m_out.section("BLOCKS");
    const auto table = m_database.getBlockTableId().openAs<OdDbBlockTable>();
    for (auto it = table->newIterator(); !it->done(); it->step()) {
      if (leavesOut(it->getRecordId())) continue;
      const OdSmartPtr<OdDbBlockTableRecord> block = it->getRecord();
      m_out.setPaperSpace(block->isLayout() && !block->isModelSpace());
      const OdDbObjectPtr begin = block->blockBeginId().safeOpenObject();
      m_out.beginObject(*begin, "BLOCK", 5, block->objectId());
      begin->dxfOut(m_out);
      m_out.subclass("AcDbBlockBegin");
      block->dxfOutBegin(m_out);
      m_out.endObject();
      // What stands in the two current spaces has a section of its own.
      if (block->objectId() != m_data.modelSpace &&
          block->objectId() != m_database.getPaperSpaceId())
        entitiesOf(block->objectId());
      const OdDbObjectPtr end = block->blockEndId().safeOpenObject();
      m_out.beginObject(*end, "ENDBLK", 5, block->objectId());
      end->dxfOut(m_out);
      m_out.subclass("AcDbBlockEnd");
      m_out.endObject();
    }
    m_out.endSection();
  }

  void entitiesOf(OdDbObjectId blockId) {
    const auto block = blockId.openAs<OdDbBlockTableRecord>();
    m_out.setPaperSpace(block->isLayout() && !block->isModelSpace());
    m_entities.write(block->entityIds());
  }

  bool leavesOut(OdDbObjectId record) const {
    return m_data.transient.contains(record) || (!m_orphans.empty() && m_orphans.contains(record));
  }

  const OdDbDatabase& m_database;
  const OdDbDatabaseData& m_data;
  OdDbDxfOut m_out;
  OdDbDxfEntitiesOut m_entities;
  const std::unordered_set<OdDbObjectId> m_orphans;
};

} // namespace

void oddxf::writeDocument(const OdDbDatabase& database, OdDb::DwgVersion version,
                          const std::function<void(const QByteArray&)>& sink, std::size_t threads) {
  if (version == OdDb::kVersionUnknown) version = database.originalFileVersion();
  // What was read from an older file has become a drawing of today.
  if (version < OdDb::kR2000) version = OdDb::kR2000;
  Writer(database, version, sink, threads).write();
}

namespace {

/// A copy of the file with another suffix, which is whole or is not there.
void backUp(const OdString& file, const OdString& path) {
  QFile old(file);
  const QFileInfo info(old);
  if (!info.exists()) return;
  const OdString name =
      info.path() + QLatin1Char('/') + info.completeBaseName() + QStringLiteral(".bak");
  const auto refuse = [&](const QFileDevice& device) {
    throw OdFileError(eFileAccess, path,
                      QStringLiteral("no copy can be kept: ") + device.errorString());
  };
  if (!old.open(QIODevice::ReadOnly)) refuse(old);
  QSaveFile copy(name);
  copy.setDirectWriteFallback(false);
  if (!copy.open(QIODevice::WriteOnly)) refuse(copy);
  copy.setPermissions(info.permissions());
  constexpr qint64 kPiece = 1024 * 1024;
  for (QByteArray piece = old.read(kPiece); !piece.isEmpty(); piece = old.read(kPiece))
    if (copy.write(piece) != piece.size()) refuse(copy);
  if (old.error() != QFileDevice::NoError) refuse(old);
  if (!copy.commit()) refuse(copy);
}

} // namespace

void oddxf::saveDocument(const OdDbDatabase& database, OdDb::DwgVersion version, QSaveFile& file,
                         const OdString& path, bool keepBackup) {
  const auto require = [&](bool ok) {
    if (!ok) throw OdFileError(eFileAccess, path, file.errorString());
  };
  const OdDbReplacedFile former(path);
  file.setDirectWriteFallback(false);
  require(file.open(QIODevice::WriteOnly));
  // The disk works while what follows is put into words.
  constexpr qint64 kStep = 1024 * 1024;
  qint64 written = 0, begun = 0;
  writeDocument(database, version, [&](const QByteArray& piece) {
    require(file.write(piece) == piece.size());
    written += piece.size();
    if (written - begun < kStep) return;
    odpath::startWriting(file, begun, written - begun);
    begun = written;
  });
  // commit() would not notice that the last bytes found no room.
  require(file.flush());
  if (keepBackup) backUp(file.fileName(), path);
  former.expectUntouched();
  require(file.commit());
}
