// Watches the host's commands, so that a running tool is finished at the right moment.
#pragma once

#include "frame/array.h"
#include "frame/rx_members.h"
#include "host/editor_reactor.h"
#include "tools/tool_guard.h"

namespace tc {

/// Knows which tool runs, and finishes it when its command ends, is cancelled or fails.
///
/// States: idle (no tool); running; cancel pending (a tool, not armed): the module itself cancelled
/// the command of the tool before, and the event of that cancel must not end the new tool.
class TcEditorReactor final : public HostEditorReactor, public IToolGuard {
 public:
  TcEditorReactor();

  /// Notes which document a command that closes one begins in.
  void commandWillStart(const OdString& name) override;
  /// Finishes the tool if its document is the current one. At the end of a command that closes the
  /// document the tool is only forgotten; commands that open another document leave it running, and
  /// so does one that has closed another document.
  void commandEnded(const OdString& name) override;
  void commandCancelled(const OdString& name) override;
  void commandFailed(const OdString& name) override;
  /// Drops the tool that runs in the document: a host may close it without a command.
  void documentToBeDestroyed(IHostDocument* document) override;

  bool canRun(IHostDocument* document) const override;
  void setTool(OdTcTool* tool) override;
  bool isRunning() const override;
  void stopTool() override;
  OdString toolName() const override;
  OdString documentName() const override;
  void clear() override;
  void forget(const OdTcTool* tool) override;

  /// False only between a cancel that the module sent and its event.
  bool isArmed() const { return m_armed; }
  OdTcTool* tool() const { return m_tool; }

  OdRxClass* isA() const override { return g_pDesc; }
  using OdRxDescribed = TcEditorReactor;
  static OdRxClass* desc() { return g_pDesc; }
  static void rxInit(OdRxModule* application);
  static void rxUninit();

  /// The reactor of the module, which is its tool guard as well; null before its start and after
  /// its stop.
  static TcEditorReactor* instance();
  static void setInstance(const OdSmartPtr<TcEditorReactor>& reactor);

 private:
  bool runsInCurrentDocument() const;
  bool goesWithItsDocument(const OdString& closingCommand);
  void finishTool();
  void dropTool();

  static OdRxClass* g_pDesc;

  OdTcTool* m_tool = nullptr;
  bool m_armed = true;
  const IHostDocument* m_closing = nullptr; ///< only for comparing: it is gone when it is asked for
  OdArray<OdString> m_finishingCommands;
};
using TcEditorReactorPtr = OdSmartPtr<TcEditorReactor>;

} // namespace tc
