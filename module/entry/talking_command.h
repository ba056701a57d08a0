// Commands of the module that ask the user for texts.
#pragma once

#include "host/command.h"
#include "host/host_locator.h"
#include "host/user_input.h"

#include <optional>

namespace tc {

class OdTcCatalog;
class OdTcToolPalette;

/// What Run() of a command gives.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;

OdString translated(const char16_t* text);
/// Prints a line of its own.
void printLine(const OdString& text);
/// Asks for one text; nothing if that was cancelled.
std::optional<OdString> ask(IHostDocument* document, const char16_t* prompt);
/// The stored form of a path that the user typed, made absolute.
OdString typedPath(const OdString& typed);

/// The catalog in a folder or, for no folder, the active one, or else the first.
OdTcCatalog* findCatalog(const OdString& folder);
/// A palette of any catalog, by its id or its name; null if there is none.
OdTcToolPalette* findPalette(const OdString& word);
/// Shows what a command has changed, if the palettes are open.
void refreshWindow();

/// A command that talks to the user of the document in which it runs; the body is given null if
/// there is none.
template <int (*Body)(IHostDocument*)>
class TalkingCommand final : public CKVUnknownImpl<ICmdProcess> {
 public:
  static ICmdProcess* create() { return new TalkingCommand; }

  unsigned long addRef() override { return CKVUnknownImpl<ICmdProcess>::addRef(); }
  unsigned long release() override { return CKVUnknownImpl<ICmdProcess>::release(); }
  bool queryInterface(KVInterfaceId id, void** out) override {
    return CKVUnknownImpl<ICmdProcess>::queryInterface(id, out);
  }
  int Run() override { return Body(m_context ? m_context->document() : host::curDocument()); }
  void cancel() override {}
  void finish() override {}
  int state() override { return 1; }
  IRunContext* context() override { return m_context.get(); }
  void setContext(IRunContext* context) override {
    if (context != m_context.get()) m_context = KVPtr<IRunContext>(context);
  }

 private:
  KVPtr<IRunContext> m_context;
};

} // namespace tc
