#include "drafton/engine/drawing_files.h"
#include "drafton/engine/dxf_versions.h"
#include "drafton/engine/engine.h"
#include "frame/file_path.h"
#include "frame/system_services.h"

namespace drafton {
namespace {

/// A file name as it is typed: without an extension it means a .dxf file.
OdString drawingPath(const OdString& typed) {
  const OdString path = odpath::fromPlatform(typed.trimmed());
  return odpath::extensionOf(path).isEmpty() ? path + QLatin1String(".dxf") : path;
}

OdString shown(const OdString& path) { return odpath::toPlatform(path); }

Task<bool> confirm(CommandContext& context, QStringView question) {
  const Answer<OdString> answer = co_await context.input().keyword(
      {.text = question, .keywords = u"Yes No", .defaultValue = u"No"});
  co_return answer.is(u"Yes");
}

void save(CommandContext& context, Document& document, const OdString& path) {
  try {
    document.save(path);
  } catch (const OdFileError& error) {
    throw CommandFailure(
        translated(u"The drawing is not saved. %1: %2").arg(shown(error.path()), error.reason()));
  }
  context.print(translated(u"Saved to %1.").arg(shown(path)));
}

/// Saving over what another program has made of the drawing's file takes a word of the user.
Task<> askAboutChangesByOthers(CommandContext& context, Document& document) {
  const OdString path = document.path();
  if (!document.database()->isFileChangedByOthers() || !odrxSystemServices()->fileExists(path))
    co_return;
  const OdString question =
      translated(u"Another program has changed %1 since it was opened. Save over it?")
          .arg(shown(path));
  if (!co_await confirm(context, question)) throw CommandCancelled();
}

Task<OdString> askVersion(CommandContext& context, Document& document) {
  const OdString now = dxfVersionName(savingVersion(context.engine(), document));
  const OdString names = dxfVersionNames();
  const Answer<OdString> answer =
      co_await context.input().keyword({.text = u"Enter the version of DXF",
                                        .keywords = QStringView(names),
                                        .defaultValue = QStringView(now)});
  co_return answer.keyword;
}

Task<> askAndSave(CommandContext& context, Document& document) {
  const OdString current = document.path();
  const OdString preset = shown(current.isEmpty() ? document.name() : current);
  OdString version;
  Answer<OdString> answer;
  for (;;) {
    answer = co_await context.input().string({.text = u"Enter the file name",
                                              .keywords = u"Version",
                                              .allowBlanks = true,
                                              .defaultValue = preset});
    if (!answer.is(u"Version")) break;
    version = co_await askVersion(context, document);
  }
  const OdString path = drawingPath(answer.value);
  if (!isDrawingName(path))
    throw CommandFailure(
        translated(u"%1: drawings are saved as .dxf or .dwg files.").arg(shown(path)));
  const bool isOwn = !current.isEmpty() && odpath::samePlace(path, current);
  if (isOwn) co_await askAboutChangesByOthers(context, document);
  if (!isOwn && odrxSystemServices()->fileExists(path)) {
    const OdString question = translated(u"%1 exists. Replace it?").arg(shown(path));
    if (!co_await confirm(context, question)) throw CommandCancelled();
  }
  if (!isOwn && !document.lostBySaving().isEmpty()) {
    const OdString question =
        translated(u"The copy will lack what Drafton does not understand (%1). Save it?")
            .arg(document.lostBySaving().join(QStringLiteral(", ")));
    if (!co_await confirm(context, question)) throw CommandCancelled();
  }
  if (!version.isEmpty()) setDxfVersion(context.engine(), &document, version);
  save(context, document, path);
}

Task<> saveOrAsk(CommandContext& context, Document& document) {
  if (document.path().isEmpty()) {
    co_await askAndSave(context, document);
    co_return;
  }
  co_await askAboutChangesByOthers(context, document);
  save(context, document, document.path());
}

/// Asks what becomes of changes; raises CommandCancelled if the document is to stay open.
Task<> settleChanges(CommandContext& context, Document& document) {
  if (!document.isModified()) co_return;
  const OdString question = translated(u"Save the changes to %1?").arg(document.name());
  const Answer<OdString> answer = co_await context.input().keyword(
      {.text = question, .keywords = u"Yes No Cancel", .defaultValue = u"Yes"});
  if (answer.is(u"Cancel")) throw CommandCancelled();
  if (answer.is(u"Yes")) co_await saveOrAsk(context, document);
}

Task<> newDocument(CommandContext& context) {
  context.engine().documents().newDocument();
  co_return;
}

Task<> openDocument(CommandContext& context) {
  const Answer<OdString> answer = co_await context.input().string(
      {.text = u"Enter the name of the drawing to open", .allowBlanks = true});
  const OdString path = drawingPath(answer.value);
  try {
    context.engine().documents().open(path);
  } catch (const OdFileError& error) {
    throw CommandFailure(translated(u"The drawing cannot be opened. %1: %2")
                             .arg(shown(error.path()), error.reason()));
  }
}

Task<> saveDocument(CommandContext& context) { co_await saveOrAsk(context, context.document()); }

Task<> saveDocumentAs(CommandContext& context) { co_await askAndSave(context, context.document()); }

Task<> closeDocument(CommandContext& context) {
  Document& document = context.document();
  co_await settleChanges(context, document);
  context.engine().documents().close(document);
}

Task<> exitProgram(CommandContext& context) {
  DocumentManager& documents = context.engine().documents();
  std::vector<Document*> open;
  for (const auto& document : documents.documents()) open.push_back(document.get());
  for (Document* const document : open) co_await settleChanges(context, *document);
  while (Document* const document = documents.current()) documents.close(*document);
  context.engine().exit();
}

Task<> changeSetting(CommandContext& context) {
  const Answer<OdString> name =
      co_await context.input().string({.text = u"Enter the name of the setting"});
  Application& application = context.engine().application();
  OdString current;
  application.setting(name.value, current);
  const Answer<OdString> value = co_await context.input().string(
      {.text = u"Enter the new value", .allowBlanks = true, .defaultValue = current});
  if (value.value != current) application.setSetting(name.value, value.value);
}

constexpr NativeCommand kCommands[] = {
    {u"NewDocument", kNoUndoStep | kNoDocument, newDocument},
    {u"OpenDocument", kNoUndoStep | kNoDocument, openDocument},
    {u"Save", kNoUndoStep, saveDocument},
    {u"SaveAs", kNoUndoStep, saveDocumentAs},
    {u"CloseDocument", kNoUndoStep, closeDocument},
    {u"Exit", kNoUndoStep | kNoDocument, exitProgram},
    {u"SETTING", kNoUndoStep | kNoDocument, changeSetting},
};

} // namespace

std::span<const NativeCommand> documentCommands() { return kCommands; }

} // namespace drafton
