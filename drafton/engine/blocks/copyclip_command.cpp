// COPYCLIP and CUTCLIP.

#include "drafton/engine/blocks/block_commands.h"
#include "drafton/engine/document.h"
#include "drafton/engine/drawing_files.h"
#include "drafton/engine/engine.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"
#include "frame/file_path.h"
#include "host/clipboard.h"
#include "host/clipboard_payload.h"

#include <QDir>
#include <QTemporaryFile>

namespace drafton {
namespace {

/// True if drawings can be written as other programs have them.
bool hasConverter(CommandContext& context) {
  OdString command;
  for (const char* setting : {"DwgConverter", "DwgConverterForSaving"})
    if (context.engine().application().setting(QLatin1String(setting), command) &&
        !command.trimmed().isEmpty())
      return true;
  return false;
}

/// A fresh name among the temporary files. The clipboard removes the drawing if nobody takes it.
OdString temporaryDrawing(CommandContext& context) {
  QTemporaryFile place(QDir(QDir::tempPath()).filePath(QStringLiteral("drfXXXXXX.tmp")));
  if (!place.open())
    throw CommandFailure(
        translated(u"There is no place for what is copied: %1").arg(place.errorString()));
  const QFileInfo info(place.fileName());
  QString name = info.fileName().toLower();
  name.replace(QLatin1String(".tmp"), QLatin1String(hasConverter(context) ? ".dwg" : ".dxf"));
  return odpath::fromPlatform(info.dir().filePath(name));
}

void putOnClipboard(CommandContext& context, const Selection& chosen) {
  KVPtr<IHostClipboard> clipboard = kvQuery<IHostClipboard>(&context.engine().services());
  if (!clipboard) throw CommandFailure(translated(u"There is no clipboard."));
  HostClipboardPayload payload{temporaryDrawing(context), context.document().path(), {}};
  for (const OdDbObjectId id : chosen) payload.entities.push_back(id.getHandle());
  try {
    const OdDbDatabasePtr drawing = context.database().wblock(chosen, OdGePoint3d());
    writeDrawing(context.engine(), *drawing, payload.drawing,
                 context.database().originalFileVersion());
  } catch (const OdError& error) {
    throw CommandFailure(error.description());
  }
  const std::optional<QByteArray> bytes = hostclipboard::toBytes(payload);
  if (!bytes)
    throw CommandFailure(translated(u"%1 is too long a name to be copied.").arg(payload.source));
  clipboard->setData(clipboard->registerFormat(kHostClipboardFormat.toString()), *bytes);
}

} // namespace

Task<void> copyToClipboard(CommandContext& context) {
  const Selection chosen = co_await selectObjects(context);
  if (chosen.empty()) co_return;
  putOnClipboard(context, chosen);
  context.print(translated(u"%1 copied").arg(chosen.size()));
}

Task<void> cutToClipboard(CommandContext& context) {
  const Selection chosen = co_await selectObjects(context);
  if (chosen.empty()) co_return;
  putOnClipboard(context, chosen);
  for (const OdDbObjectId& id : chosen) id.safeOpenObject(OdDb::kForWrite)->erase();
  context.print(translated(u"%1 cut").arg(chosen.size()));
}

} // namespace drafton
