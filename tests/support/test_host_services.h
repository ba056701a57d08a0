// The services of the test host, one small class each.
#pragma once

#include "host/application.h"
#include "host/clipboard.h"
#include "host/command.h"
#include "host/command_menu.h"
#include "host/completion.h"
#include "host/document.h"
#include "host/editor_reactor.h"
#include "host/hatch_settings.h"
#include "host/icon_service.h"
#include "host/messages.h"
#include "host/preview_service.h"
#include "host/selection.h"
#include "host/services.h"
#include "host/user_input.h"
#include "host/variables.h"

#include <QImage>
#include <QMap>

#include <deque>
#include <vector>

namespace testhost {

/// Answers prompts from a list; without an answer left it cancels.
class TestUserInput : public IHostUserInput {
 public:
  struct Prompt {
    unsigned flags;
    OdString text;
  };
  std::deque<std::pair<Result, OdString>> answers;
  std::vector<Prompt> prompts;

  void answer(const OdString& text) {
    answers.emplace_back(text.isEmpty() ? Result::kEmpty : Result::kValue, text);
  }
  Result getString(unsigned flags, const OdString& prompt, OdString& out) override;
};

/// Variables without regard to case. A name that was not given a value first does not exist.
class TestVariables : public IHostVariables {
 public:
  explicit TestVariables(OdString document)
    : m_document(std::move(document)) {}

  QMap<OdString, OdVariant> values;
  /// Makes the variable without an entry in the log.
  void define(const OdString& name, const OdVariant& value) { values[name.toUpper()] = value; }
  OdVariant value(const OdString& name) const { return values.value(name.toUpper()); }

  bool get(const OdString& name, OdVariant& out) override;
  bool set(const OdString& name, const OdVariant& value) override;

 private:
  OdString m_document;
};

/// A document. Switch a part off by its flag.
class TestDocument : public IHostDocument, public IHostCommandInput {
 public:
  explicit TestDocument(const OdString& name)
    : variableSet(name)
    , m_name(name) {}
  virtual ~TestDocument() = default;

  OdDbDatabase* databaseOfDocument = nullptr; ///< borrowed
  bool hasCommandInput = true;
  bool hasUserInput = true;
  bool hasVariables = true;
  OdString filePath;
  QStringList sent; ///< each sent text
  TestUserInput input;
  TestVariables variableSet;

  OdDbDatabase* database() override { return databaseOfDocument; }
  IHostCommandInput* commandInput() override { return hasCommandInput ? this : nullptr; }
  IHostUserInput* userInput() override { return hasUserInput ? &input : nullptr; }
  IHostVariables* variables() override { return hasVariables ? &variableSet : nullptr; }
  OdString name() const override { return m_name; }
  OdString path() const override { return filePath; }
  void sendText(const OdString& text) override;

 private:
  OdString m_name;
};

/// The open documents.
class TestDocumentManager : public IHostDocumentManager {
 public:
  struct Lock {
    IHostDocument* document;
    int mode;
    OdString commandName;
    void* reserved;
    int flag;
  };

  /// Opens a document and makes it the current one.
  TestDocument& open(const OdString& name);
  void activate(TestDocument& document) { m_current = &document; }
  void closeAll();

  std::vector<Lock> locks;  ///< every lock that was taken
  std::vector<Lock> locked; ///< those that hold
  bool refuseLocks = false;

  IHostDocument* curDocument() override { return m_current; }
  bool lockDocument(IHostDocument* document, int mode, const OdString& commandName, void* reserved,
                    int flag) override;
  void unlockDocument(IHostDocument* document) override;

 private:
  std::vector<std::unique_ptr<TestDocument>> m_documents;
  TestDocument* m_current = nullptr;
};

/// Fires events by hand.
class TestEditorEvents : public IHostEditorEvents {
 public:
  std::vector<HostEditorReactor*> reactors;
  /// Called when a reactor is added or removed, before that is done.
  std::function<void()> onAdd, onRemove;

  void commandWillStart(const OdString& name);
  void commandEnded(const OdString& name);
  void commandCancelled(const OdString& name);
  void commandFailed(const OdString& name);
  void sysVarChanged(OdDbDatabase* database, const OdString& name);
  void documentToBeDestroyed(IHostDocument* document);

  void addReactor(HostEditorReactor* reactor) override;
  void removeReactor(HostEditorReactor* reactor) override;

 private:
  template <class F>
  void each(F call) {
    const std::vector<HostEditorReactor*> all = reactors;
    for (HostEditorReactor* reactor : all) call(reactor);
  }
};

/// The sources of offers.
class TestCompletionRegistry : public HostEdCompletion::Registry {
 public:
  QMap<OdString, HostEdCompletion::Provider> sources;
  /// Called when a source is registered or removed, before that is done.
  std::function<void()> onRegister, onRemove;

  /// All offers of a source, in order.
  std::vector<std::shared_ptr<HostEdCompletion::Entry>> offers(const OdString& source);
  void registerSource(const OdString& name, HostEdCompletion::Provider provider) override;
};

/// A settings store in memory.
class TestProfile : public CKVUnknownImpl<IProfile> {
 public:
  QMap<OdString, OdVariant> values;
  QMap<OdString, KVPtr<TestProfile>> sections;

  /// The section at a path such as "cmddata/ToolPaletteManager", or null.
  TestProfile* at(const OdString& path);
  /// The same, made where it is missing.
  TestProfile& made(const OdString& path);

  KVPtr<IProfile> openSection(const OdString& name, bool create) override;
  bool get(const OdString& key, OdVariant& out) override;
  void set(const OdString& key, const OdVariant& value) override { values[key] = value; }
  bool deleteValue(const OdString& key) override { return values.remove(key) > 0; }
  QStringList keys() override { return values.keys(); }
};

/// The application object.
class TestApplication : public IHostApplication {
 public:
  TestApplication()
    : store(kvMake<TestProfile>()) {}

  QMap<OdString, OdString> settings;
  OdString userFolder;
  KVPtr<TestProfile> store;
  std::vector<std::pair<OdString, KVPtr<IPropReactor>>> reactors;

  /// Changes a setting and tells those who listen.
  void change(const OdString& name, const OdString& value);

  bool setting(const OdString& name, OdString& out) override;
  OdString userDataFolder() override { return userFolder; }
  KVPtr<IProfile> profile() override;
  void addPropReactor(const OdString& setting, IPropReactor* reactor) override;
  void removePropReactor(const OdString& setting, IPropReactor* reactor) override;
};

/// Records what the user is told.
class TestMessages : public CKVUnknownImpl<IHostMessages> {
 public:
  struct Box {
    OdString identifier; ///< empty for a box without a check box
    OdString text;
    OdString caption;
    unsigned style = 0;
  };
  QStringList printed;
  std::vector<Box> boxes;
  bool tick = false; ///< what the user does with "do not show again"

  void print(const OdString& text) override;
  void messageBox(const OdString& text, const OdString& caption) override;
  bool messageBoxWithCheckBox(const OdString& identifier, const OdString& text,
                              const OdString& caption, unsigned style) override;
};

/// A command that the module registered.
struct RegisteredCommand {
  OdString name;
  OdString group;
  unsigned flags = 0;
  CmdCreator creator = nullptr;
  CmdFunction function = nullptr;
};

/// An ordered parameter set.
class TestMemParam : public CKVUnknownImpl<IMemParam> {
 public:
  std::vector<std::pair<OdString, OdVariant>> entries;

  void setValue(const OdString& name, const OdVariant& value) override;
  bool value(const OdString& name, OdVariant& out) const override;
  QStringList names() const override;
};

/// The host's own commands: those of the set `known` run, and what they were given is recorded.
class TestCommandService : public CKVUnknownImpl<IHostCommandService> {
 public:
  struct Run {
    OdString command;
    std::vector<std::pair<OdString, OdVariant>> parameters;
  };
  QStringList known = {QStringLiteral("InsertBlock"), QStringLiteral("XATTACH"),
                       QStringLiteral("INSERTRASTER")};
  std::vector<Run> runs;

  KVPtr<IHostCommand> findCommand(const OdString& name) override;
};

class TestCommandMenu : public CKVUnknownImpl<IHostCommandMenu> {
 public:
  std::vector<HostMenuEntry> entries;

  int count() override { return static_cast<int>(entries.size()); }
  HostMenuEntry entry(int index) override { return entries.at(static_cast<std::size_t>(index)); }
};

class TestIconService : public CKVUnknownImpl<IHostIconService> {
 public:
  QMap<OdString, QImage> images;

  QImage icon(const OdString& name, int pixels) override;
};

/// Gives one-coloured pictures and notes what it was asked for.
class TestPreviewService : public CKVUnknownImpl<IHostPreviewService> {
 public:
  bool canRender = true, hasStoredPreview = true, hasFileIcon = true;
  QStringList asked; ///< such as "pattern ANSI31 32"
  OdGeExtents3d view;

  void reset() {
    canRender = hasStoredPreview = hasFileIcon = true;
    asked.clear();
    view = {};
  }
  QImage renderObjects(std::span<const OdDbObjectId> objects, const OdGeExtents3d& shown,
                       int pixels) override;
  QImage renderPattern(const OdString& name, const OdString& file, int pixels) override;
  QImage storedPreview(const OdString& path, int pixels) override;
  QImage fileIcon(const OdString& path, int pixels) override;
  QImage renderUserPattern(double angle, bool isCrosswise, int pixels) override;

 private:
  QImage picture(bool isThere, const QString& what, int pixels);
};

/// A clipboard in memory.
class TestClipboard : public CKVUnknownImpl<IHostClipboard> {
 public:
  QStringList formats; ///< in the order in which they were registered; a number is a place + 1
  QMap<int, QByteArray> contents;

  int registerFormat(const OdString& name) override {
    if (!formats.contains(name)) formats << name;
    return static_cast<int>(formats.indexOf(name)) + 1;
  }
  QByteArray data(int format) override { return contents.value(format); }
  void setData(int format, const QByteArray& bytes) override { contents = {{format, bytes}}; }
};

/// Entities that stand for what the user chooses.
class TestSelection : public CKVUnknownImpl<IHostSelection> {
 public:
  std::vector<OdDbObjectId> chosen;

  std::vector<OdDbObjectId> choose(IHostDocument&) override { return chosen; }
};

class TestHatchSettings : public CKVUnknownImpl<IHostHatchSettings> {
 public:
  QMap<OdString, OdVariant> values;

  bool get(const OdString& key, OdVariant& out) override;
  void set(const OdString& key, const OdVariant& value) override;
};

} // namespace testhost
