// Tells a dialog that the inspector's values are to be read again.
#pragma once

#include "frame/rx_members.h"
#include "host/editor_reactor.h"

namespace tc {

/// Shows values that can change behind its back.
class IRefreshSink {
 public:
  virtual void refreshProperties() = 0;

 protected:
  ~IRefreshSink() = default;
};

/// Hears of the host's request to read the properties again, for the dialog that is open.
class TcEditorReactorEx final : public HostEditorReactor {
 public:
  /// The sink is not owned; null tells nobody.
  void setSink(IRefreshSink* sink) { m_sink = sink; }

  /// The host changes the variable "RefreshProperties" to ask for it.
  void sysVarChanged(OdDbDatabase* database, const OdString& name) override;

  OdRxClass* isA() const override { return g_pDesc; }
  using OdRxDescribed = TcEditorReactorEx;
  static OdRxClass* desc() { return g_pDesc; }
  static void rxInit(OdRxModule* application);
  static void rxUninit();

  /// The reactor of the module, which hears the host from start to stop; null before and after.
  static TcEditorReactorEx* instance();
  static void setInstance(const OdSmartPtr<TcEditorReactorEx>& reactor);

 private:
  static OdRxClass* g_pDesc;

  IRefreshSink* m_sink = nullptr;
};
using TcEditorReactorExPtr = OdSmartPtr<TcEditorReactorEx>;

} // namespace tc
