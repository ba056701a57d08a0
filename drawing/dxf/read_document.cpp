// Reading whole drawings: what is read, and by whom.
#include "drawing/dxf/ahead_source.h"
#include "drawing/dxf/binary_source.h"
#include "drawing/dxf/document_in.h"
#include "drawing/dxf/template.h"

OdDbDatabasePtr oddxf::newDocument(std::uint64_t lastHandle) {
  const auto database = odrxMake<OdDbDatabase>();
  OdDbDatabaseData& d = database->data();
  const auto vars = oddbHeaderVars();
  for (std::size_t i = 0; i < vars.size(); ++i) {
    d.vars[i] = oddbPresetOf(vars[i]);
    d.varPresent[i] =
        vars[i].type != OdDbHeaderVarInfo::kHandle && vars[i].type != OdDbHeaderVarInfo::kTime;
  }
  // The header's place is taken by the presets, but for what decides how the rest is read.
  static const std::string text =
      std::string("0 SECTION|2 HEADER|9 $ACADVER|1 AC1032|0 ENDSEC|").append(oddxf::newDrawing());
  constexpr std::uint64_t kFirstFree = 0x30;
  oddxf::Start start;
  start.version = OdDb::kR2018;
  start.hasHandles = true;
  start.handseed = lastHandle + kFirstFree;
  OdDbDxfShortSource source(text, lastHandle);
  OdDbDxfReader(*database, source, start, QStringLiteral("(new drawing)")).read();
  d.headerOrder.clear();
  return database;
}

namespace {

template <class Source>
void readFrom(Source& source, OdDbDatabase& database, const oddxf::Start& start,
              const OdString& name) {
  try {
    OdDbDxfReader(database, source, start, name).read();
  } catch (const OdFileError&) {
    throw;
  } catch (const OdError& error) {
    // What nobody has thought of is the file's fault all the same.
    throw OdDbFileError(name, source.line(), error.description());
  }
}

/// Small drawings are read before another thread has begun, and binary ones cannot be cut.
bool isForSeveral(const OdDbDxfBytes& bytes) {
  constexpr std::size_t kSmall = 96 * 1024;
  return bytes.left() > kSmall &&
         !std::string_view(bytes.at, bytes.left()).starts_with(OdDbDxfBinarySource::kMark);
}

} // namespace

OdDbDatabasePtr oddxf::readDocument(const std::function<OdDbDxfBytes()>& make, const OdString& name,
                                    std::size_t threads) {
  OdDbDxfBytes bytes = make();
  const Start start = lookAhead(*OdDbDxfSource::of(bytes.twin()), name);
  if (bytes.hasFallenBehind()) bytes = make();
  const OdDbDatabasePtr database =
      start.isPlain() ? newDocument(start.handseed - 1) : odrxMake<OdDbDatabase>();
  if (threads > 1 && isForSeveral(bytes)) {
    OdDbDxfAheadSource source(std::move(bytes), threads);
    readFrom(source, *database, start, name);
  } else {
    readFrom(*OdDbDxfSource::of(std::move(bytes)), *database, start, name);
  }
  return database;
}
