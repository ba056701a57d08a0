#include "host/integration/editor_reactor_ex.h"

namespace tc {

OdRxClass* TcEditorReactorEx::g_pDesc = nullptr;

void TcEditorReactorEx::rxInit(OdRxModule* application) {
  g_pDesc = od_detail::registerClass(g_pDesc, QStringLiteral("TcEditorReactorEx"),
                                     HostEditorReactor::desc(), &odrxFactory<TcEditorReactorEx>,
                                     application);
}

void TcEditorReactorEx::rxUninit() { od_detail::unregisterClass(g_pDesc); }

void TcEditorReactorEx::sysVarChanged(OdDbDatabase*, const OdString& name) {
  if (m_sink && name == QLatin1String("RefreshProperties")) m_sink->refreshProperties();
}

static TcEditorReactorExPtr g_reactor;

TcEditorReactorEx* TcEditorReactorEx::instance() { return g_reactor; }

void TcEditorReactorEx::setInstance(const TcEditorReactorExPtr& reactor) { g_reactor = reactor; }

} // namespace tc
