// The command that opens and closes the palette window.
#pragma once

#include "host/command.h"

namespace tc {

/// The command object of `ToolPalettes`.
class TcCmd final : public CKVUnknownImpl<ICmdProcess> {
 public:
  /// Makes a command object with one reference for the caller.
  static ICmdProcess* create() { return new TcCmd; }

  unsigned long addRef() override { return CKVUnknownImpl::addRef(); }
  unsigned long release() override { return CKVUnknownImpl::release(); }
  bool queryInterface(KVInterfaceId id, void** out) override {
    return CKVUnknownImpl::queryInterface(id, out);
  }
  /// Opens the window, or closes it if it is shown, and records among the commands of the host's
  /// next start whether it is open. Always 0.
  int Run() override;
  void cancel() override {}
  void finish() override {}
  /// Can be run; checked while the window is visible.
  int state() override;
  IRunContext* context() override { return m_context.get(); }
  void setContext(IRunContext* context) override;

 private:
  KVPtr<IRunContext> m_context;
};

} // namespace tc
