// What the words of the hidden command run.
#include "drawing/database.h"
#include "frame/system_services.h"
#include "host/host_locator.h"
#include "module/string_table.h"
#include "tools/command_conveyor.h"
#include "tools/execute_tool_command.h"

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

bool isDefined(OdDbDatabase& drawing, const OdString& block) {
  const OdDbBlockTablePtr table = drawing.getBlockTableId().openObject();
  return table->has(block);
}

/// Sees to it that the drawing has the definition of the block. False, with a message, if the
/// source file does not have it either.
bool ensureDefinition(OdDbDatabase& drawing, const OdTcBlockRequest& request) {
  if (isDefined(drawing, request.name)) return true;
  const OdDbDatabasePtr source = OdDbDatabase::readFile(request.sourceFile);
  if (!request.wholeDrawing && !isDefined(*source, request.name)) {
    host::print(
        formatText(stringText(StringId::kBlockNotDefined), request.name, request.sourceFile));
    return false;
  }
  throw OdError(eNotApplicable,
                QStringLiteral("Block %1 is not in the drawing, and definitions cannot be copied "
                               "from %2: insert that file first")
                    .arg(request.name, request.sourceFile));
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
  if (!drawing || !ensureDefinition(*drawing, *request)) return;
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
