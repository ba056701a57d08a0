// What the words of the hidden command run.
#include "drawing/database.h"
#include "drawing/objects/file_references.h"
#include "drawing/objects/xref_manager.h"
#include "drawing/tables/record_names.h"
#include "frame/system_services.h"
#include "host/document_lock.h"
#include "module/string_table.h"
#include "tools/block_loops.h"
#include "tools/command_conveyor.h"
#include "tools/execute_tool_command.h"

#include <cmath>

namespace tc {
namespace {

using Parameters = std::initializer_list<std::pair<const char16_t*, OdVariant>>;

/// Runs a command of the host with a parameter set; nothing happens if the host lacks either.
void runHostCommand(const char16_t* command, Parameters parameters) {
  const KVPtr<IHostCommandService> service = host::service<IHostCommandService>();
  const KVPtr<IMemParam> set = host::newMemParam();
  if (!service || !set) return;
  for (const auto& [name, value] : parameters) set->setValue(OdString::fromUtf16(name), value);
  if (const KVPtr<IHostCommand> found = service->findCommand(OdString::fromUtf16(command)))
    found->run(set.get());
}

/// A switch in a parameter set.
OdVariant flag(bool value) { return std::int32_t{value}; }

OdDbObjectId definitionIn(const OdDbDatabase& drawing, const OdString& block) {
  const OdDbBlockTablePtr table = drawing.getBlockTableId().openObject();
  return table->getAt(block);
}

/// External references of a drawing bring their contents along. Those that cannot are told.
void loadReferences(OdDbDatabase& drawing, const OdString& path) {
  const OdDbBlockTablePtr table = drawing.getBlockTableId().openObject();
  for (auto at = table->newIterator(); !at->done(); at->step()) {
    const OdDbBlockTableRecordPtr block = at->getRecord();
    if (!block->isFromExternalReference() && !block->isFromOverlayReference()) continue;
    for (const OdDbXRefMan::Report& report : OdDbXRefMan::load(block->objectId()))
      if (report.result != OdDbXRefMan::Result::kLoaded)
        host::print(formatText(
            host::translate(QStringLiteral("\nThe reference \"%s\" of \"%s\" stays empty: %s\n")),
            report.blockName, path, report.message));
  }
}

struct NameFaultRow {
  OdDbNameFault fault;
  QStringView words;
};
constexpr NameFaultRow kNameFaults[] = {
    {OdDbNameFault::kEmpty, u"the tool names no block"},
    {OdDbNameFault::kTooLong, u"a block's name has at most 255 characters"},
    {OdDbNameFault::kSign, u"a block's name cannot have any of < > / \\ \" : ; ? * | , = `"},
    {OdDbNameFault::kControl, u"a block's name cannot have control characters"},
    {OdDbNameFault::kBlank, u"a block's name cannot begin or end with a blank"},
};

/// A message if the drawing cannot have a block of that name; else empty. Its "%s" are the name and
/// the source file.
OdString nameProblem(const OdString& name) {
  const OdDbNameFault fault = oddbNameFault(name);
  for (const NameFaultRow& row : kNameFaults)
    if (row.fault == fault)
      return host::translate(
                 QStringLiteral("\nBlock \"%s\" of the source file \"%s\" cannot be inserted: ")) +
             host::translate(row.words.toString());
  return {};
}

/// What of the source is to become the block; null, with a message, if it cannot.
OdDbObjectId wantedBlock(const OdDbDatabase& source, const OdTcBlockRequest& request) {
  const OdDbObjectId block =
      request.wholeDrawing ? source.getModelSpaceId() : definitionIn(source, request.name);
  OdString problem;
  if (block.isNull())
    problem = stringText(StringId::kBlockNotDefined);
  else if (hasBlockLoop(block))
    problem =
        host::translate(QStringLiteral("\nBlock \"%s\" of the source file \"%s\" contains itself"));
  else
    problem = nameProblem(request.name);
  if (problem.isEmpty()) return block;
  host::print(formatText(problem, request.name, request.sourceFile));
  return {};
}

/// The whole source, or one block of it in a drawing of its own.
OdDbDatabasePtr contentsOf(OdDbDatabase& source, const OdTcBlockRequest& request,
                           OdDbObjectId block) {
  if (request.wholeDrawing) {
    loadReferences(source, request.sourceFile);
    return OdDbDatabasePtr(&source);
  }
  const OdDbDatabasePtr contents = source.wblock(block);
  contents->setSysVar(QStringLiteral("INSUNITS"), source.sysVarInt("INSUNITS"));
  return contents;
}

/// A source that is damaged gives what can be read of it, but not without a word.
void tellDamage(const OdDbDatabase& source, const OdString& path) {
  if (const QStringList& damage = source.unknownContent(); !damage.isEmpty())
    host::print(
        formatText(host::translate(QStringLiteral("\nNot all of \"%s\" could be read: %s\n")), path,
                   damage.join(QStringLiteral(", "))));
}

/// Sees to it that the drawing has the definition of the block. False, with a message, if the
/// source file cannot give it.
bool ensureDefinition(IHostDocument& document, OdDbDatabase& drawing,
                      const OdTcBlockRequest& request) {
  // The definition in the drawing wins: the source file is not even read.
  if (const OdDbObjectId own = definitionIn(drawing, request.name); !own.isNull()) {
    if (!hasBlockLoop(own)) return true;
    host::print(formatText(
        host::translate(QStringLiteral("\nBlock \"%s\" of the drawing contains itself\n")),
        request.name));
    return false;
  }
  const HostDocumentLock lock(&document);
  const OdDbDatabasePtr source = OdDbDatabase::readFile(request.sourceFile);
  oddbRebaseFileReferences(*source, drawing.fileName());
  tellDamage(*source, request.sourceFile);
  const OdDbObjectId block = wantedBlock(*source, request);
  if (block.isNull()) return false;
  const OdDbDatabasePtr contents = contentsOf(*source, request, block);
  const OdDbObjectId made = drawing.insert(request.name, contents, true);
  made.openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
      ->setBlockInsertUnits(static_cast<int>(source->sysVarInt("INSUNITS")));
  return true;
}

/// The host refuses an insert at no scale. No definition is brought in that would stay behind.
bool canBePlaced(const OdTcBlockRequest& request) {
  return request.scale != 0 && std::isfinite(request.scale);
}

} // namespace

void insertRequestedBlock() {
  OdTcCommandConveyor* const conveyor = OdTcCommandConveyor::instance();
  const std::optional<OdTcBlockRequest> request =
      conveyor ? conveyor->takeBlockRequest() : std::nullopt;
  if (!request) return;
  // The file comes first: without it not even a definition that stands in the drawing is inserted.
  if (!odrxSystemServices()->fileExists(request->sourceFile)) {
    host::print(
        formatText(stringText(StringId::kBlockSourceMissing), request->sourceFile, request->name));
    return;
  }
  IHostDocument* const document = host::curDocument();
  OdDbDatabase* const drawing = document ? document->database() : nullptr;
  if (!drawing) return;
  if (canBePlaced(*request) && !ensureDefinition(*document, *drawing, *request)) return;
  runHostCommand(u"InsertBlock", {{u"BC_RUN_BY_NAME_SCALE_ROT_EXPLODE", u"Run"},
                                  {u"name", request->name},
                                  {u"BC_SCALE", request->scale},
                                  {u"BC_ROTATE_ANGLE", request->rotation},
                                  {u"BC_ASK_ROTATION", flag(request->askRotation)},
                                  {u"BC_IS_EXPLODE", flag(request->explode)}});
}

void attachRequestedXref() {
  OdTcCommandConveyor* const conveyor = OdTcCommandConveyor::instance();
  const std::optional<OdTcBlockRequest> request =
      conveyor ? conveyor->takeBlockRequest() : std::nullopt;
  if (!request) return;
  runHostCommand(u"XATTACH", {{u"ToolPaletteCall", request->sourceFile},
                              {u"XATT_REFTYPE", request->xrefType},
                              {u"XATT_SCALE", request->scale},
                              {u"XATT_ROTATION", request->rotation},
                              {u"XATT_PROMPT_ROTATION", flag(request->askRotation)},
                              {u"XATT_IS_EXPLODE", flag(request->explode)}});
}

void insertRequestedRaster() {
  OdTcCommandConveyor* const conveyor = OdTcCommandConveyor::instance();
  const std::optional<OdTcRasterRequest> request =
      conveyor ? conveyor->takeRasterRequest() : std::nullopt;
  if (!request) return;
  if (!odrxSystemServices()->fileExists(request->path)) {
    host::print(formatText(host::translate(QStringLiteral("\nCould not find the image file %s\n")),
                           request->path));
    return;
  }
  runHostCommand(u"INSERTRASTER", {{u"PathScaleRotationNoDialog", u"PathScaleRotationNoDialog"},
                                   {u"DefName", request->name},
                                   {u"Path", request->path},
                                   {u"Scale", request->scale},
                                   {u"Rotation", request->rotation}});
}

} // namespace tc
