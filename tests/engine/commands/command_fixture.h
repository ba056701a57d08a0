// Runs scripts of commands word by word.
#pragma once

#include "engine/commands/script_folder.h"
#include "engine/commands/scripts.h"
#include "engine/support/engine_fixture.h"
#include "frame/file_path.h"

class CommandFixture : public EngineFixture {
 protected:
  /// The program's data stand where they are kept, so that commands find them.
  static drafton::EngineOptions withProgramFolder() {
    drafton::EngineOptions options;
    options.programFolder =
        odpath::fromPlatform(QStringLiteral(TEST_DATA_DIR "/../../drafton/engine/data"));
    return options;
  }
  QStringList wordsOf(const char16_t* text) {
    if (!text) return {};
    OdString words = OdString::fromUtf16(text);
    if (words.contains(u'%')) {
      if (!m_folder) m_folder.emplace();
      words = m_folder->expanded(words);
    }
    return words.split(u'|');
  }
  void typeWords(const QStringList& words) {
    for (const OdString& word : words) type(word + u'\n');
  }
  void runScript(const char16_t* words) { typeWords(wordsOf(words)); }

  /// An entity of the model by its place in the order of drawing.
  OdDbObjectId entityAt(int index) {
    const auto space = database().getModelSpaceId().openAs<OdDbBlockTableRecord>();
    auto at = space->newIterator();
    while (index-- > 0) at->step();
    return at->objectId();
  }

  /// The question of the running command; null if none waits.
  const drafton::InputRequest* request() { return document().processor().request(); }
  bool isRunning() { return document().processor().isBusy(); }
  QByteArray dxf() { return database().writeDxf(); }

  /// Types an answer that the waiting prompt cannot take. Prompts for texts take everything.
  void typeNonsense() {
    if (request() && request()->kind() != drafton::InputRequest::Kind::kString)
      type(QStringLiteral("!nonsense!\n"));
  }

 private:
  std::optional<ScriptFolder> m_folder;
};
