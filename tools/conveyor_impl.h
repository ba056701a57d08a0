// Brings new tool images to open dialogs.
#pragma once

#include "module/persist_impl.h"

#include <vector>

namespace tc {

/// Takes what is conveyed.
class IConveyorSink {
 public:
  virtual void onConveyed(const OdRxObjectPtr& item) = 0;

 protected:
  ~IConveyorSink() = default;
};

/// A queue of objects and the sinks that they are handed to. It is stored in no file.
class OdTcConveyorImpl : public OdTcPersistImpl<OdTcPersist> {
 public:
  /// Null is ignored.
  void push(const OdRxObjectPtr& item);
  /// Hands each waiting object, in order, to every sink, in order, and forgets the objects. Without
  /// a sink they are dropped. What is pushed meanwhile waits for the next flush.
  void flush();
  /// Keeps an object alive until the next flush is over.
  void holdUntilFlush(const OdRxObjectPtr& object) { m_held = object; }

  /// Sinks are not owned. A sink that goes in the middle of a flush gets nothing more.
  void addSink(IConveyorSink* sink);
  void removeSink(IConveyorSink* sink);

  int waiting() const { return static_cast<int>(m_items.size()); }

  /// The conveyor of the module; null before its start and after its stop.
  static OdTcConveyorImpl* instance();
  static void setInstance(const OdSmartPtr<OdTcConveyorImpl>& conveyor);

 private:
  std::vector<OdRxObjectPtr> m_items;
  std::vector<IConveyorSink*> m_sinks;
  OdRxObjectPtr m_held;
};
using OdTcConveyorImplPtr = OdSmartPtr<OdTcConveyorImpl>;

} // namespace tc
