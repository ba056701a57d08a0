// Kinds of tool of foreign palettes that cannot run here.
#pragma once

#include "tools/action_agent_impl_base.h"

namespace tc {

enum class UnsupportedKind : std::size_t { kVisualStyle, kLight, kMLeader, kTable };
/// By kind.
inline constexpr std::array<QStringView, 4> kUnsupportedElements = {u"VisualStyle", u"Light",
                                                                    u"MLeader", u"Table"};

/// Lets such a tool be read and recognised. Its data is swallowed, and it does nothing.
template <class T, UnsupportedKind Kind>
class OdTcUnsupportedToolImpl final : public OdTcToolActionAgentImplBase<T> {
 public:
  OdString elementName() const override {
    return staticName(kUnsupportedElements[static_cast<std::size_t>(Kind)]);
  }
  bool execute(IHostDocument*) override { return false; }
  bool isSupported() const override { return false; }
  bool readProperty(const OdString&, const OdVariant&) override { return true; }
  OdRxObjectPtr clone() const override {
    return this->finishClone(odrxMake<OdTcUnsupportedToolImpl>());
  }
};

using OdTcToolVisualStyleCommandImpl =
    OdTcUnsupportedToolImpl<OdTcToolCommand, UnsupportedKind::kVisualStyle>;
using OdTcToolLightCommandImpl = OdTcUnsupportedToolImpl<OdTcToolCommand, UnsupportedKind::kLight>;
using OdTcToolMLeaderCommandImpl =
    OdTcUnsupportedToolImpl<OdTcToolActionAgent, UnsupportedKind::kMLeader>;
using OdTcToolTableCommandImpl =
    OdTcUnsupportedToolImpl<OdTcToolActionAgent, UnsupportedKind::kTable>;

} // namespace tc
