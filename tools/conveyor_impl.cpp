#include "tools/conveyor_impl.h"

#include <algorithm>

namespace tc {

void OdTcConveyorImpl::push(const OdRxObjectPtr& item) {
  if (item) m_items.push_back(item);
}

void OdTcConveyorImpl::flush() {
  const std::vector<OdRxObjectPtr> items = std::exchange(m_items, {});
  const OdRxObjectPtr held = std::exchange(m_held, nullptr);
  for (const OdRxObjectPtr& item : items) {
    const std::vector<IConveyorSink*> sinks = m_sinks;
    for (IConveyorSink* sink : sinks)
      if (std::find(m_sinks.begin(), m_sinks.end(), sink) != m_sinks.end()) sink->onConveyed(item);
  }
}

void OdTcConveyorImpl::addSink(IConveyorSink* sink) { m_sinks.push_back(sink); }

void OdTcConveyorImpl::removeSink(IConveyorSink* sink) {
  const auto at = std::find(m_sinks.begin(), m_sinks.end(), sink);
  if (at != m_sinks.end()) m_sinks.erase(at);
}

static OdTcConveyorImplPtr g_conveyor;

OdTcConveyorImpl* OdTcConveyorImpl::instance() { return g_conveyor; }

void OdTcConveyorImpl::setInstance(const OdTcConveyorImplPtr& conveyor) { g_conveyor = conveyor; }

} // namespace tc
