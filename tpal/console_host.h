// The smallest of hosts: it keeps what the module's libraries have to say.
#pragma once

#include "host/application.h"
#include "host/icon_service.h"
#include "host/messages.h"
#include "host/preview_service.h"
#include "host/services.h"
#include "tpal/command_routes.h"

#include <functional>

namespace tpal {

/// The catalog tool is a host without documents, commands or windows. What the libraries print is
/// kept until it is taken, so that it can stand in a report.
class ConsoleHost {
 public:
  static ConsoleHost& instance();

  /// The lines printed since the last call, without the line breaks around them.
  QStringList takeMessages();
  /// The `ToolPaletteDir` setting, which the macro for the samples folder expands to.
  void setToolPaletteFolders(const QStringList& folders);

  /// Makes the pictures of tools; null for none.
  void setPreviews(KVPtr<IHostPreviewService> previews) {
    m_services.previews = std::move(previews);
  }

  /// Makes a service for the thread that calls it, so that several can make pictures at once; null
  /// for none.
  using PreviewMaker = std::function<KVPtr<IHostPreviewService>()>;
  void setPreviewMaker(PreviewMaker maker) { m_previewMaker = std::move(maker); }
  bool canMakePreviewsInThreads() const { return m_previewMaker != nullptr; }

  /// Gives the thread in which it lives previews of its own.
  class ThreadPreviews {
   public:
    ThreadPreviews();
    ThreadPreviews(const ThreadPreviews&) = delete;
    ThreadPreviews& operator=(const ThreadPreviews&) = delete;
    ~ThreadPreviews();
  };

  /// Gives the program's own icons; null for none.
  void setIcons(KVPtr<IHostIconService> icons) { m_services.icons = std::move(icons); }

  IHostServices* services() { return &m_services; }
  IHostApplication* application() { return &m_application; }

 private:
  /// A component that lives as long as the process: its counts mean nothing.
  template <class T>
  class Permanent : public T {
   public:
    unsigned long addRef() override { return 1; }
    unsigned long release() override { return 1; }
  };

  class Messages : public Permanent<IHostMessages> {
   public:
    bool queryInterface(KVInterfaceId id, void** out) override;
    void print(const OdString& text) override;
    void messageBox(const OdString& text, const OdString& caption) override;
    bool messageBoxWithCheckBox(const OdString& identifier, const OdString& text,
                                const OdString& caption, unsigned style) override;
    QStringList lines;
  };

  class Services : public Permanent<IHostServices> {
   public:
    Services(Messages* messages, RouteMenu* menu)
      : m_messages(messages)
      , m_menu(menu) {}
    bool queryInterface(KVInterfaceId id, void** out) override;
    IHostDocumentManager* documentManager() override { return nullptr; }
    IHostEditorEvents* editorEvents() override { return nullptr; }
    HostEdCompletion::Registry* completionRegistry() override { return nullptr; }
    KVPtr<IHostPreviewService> previews;
    KVPtr<IHostIconService> icons;

   private:
    Messages* m_messages;
    RouteMenu* m_menu;
  };

  class Application : public IHostApplication {
   public:
    bool setting(const OdString& name, OdString& out) override;
    OdString userDataFolder() override;
    KVPtr<IProfile> profile() override { return nullptr; }
    void addPropReactor(const OdString&, IPropReactor*) override {}
    void removePropReactor(const OdString&, IPropReactor*) override {}
    OdString toolPaletteFolders;
  };

  Messages m_messages;
  RouteMenu m_menu;
  Services m_services{&m_messages, &m_menu};
  Application m_application;
  PreviewMaker m_previewMaker;
};

} // namespace tpal
