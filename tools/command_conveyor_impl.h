// The mailbox's implementation.
#pragma once

#include "tools/command_conveyor.h"

namespace tc {

class OdTcCommandConveyorImpl : public OdTcCommandConveyor {
 public:
  void setBlockRequest(const OdTcBlockRequest& request) override { m_block = request; }
  std::optional<OdTcBlockRequest> takeBlockRequest() override {
    return std::exchange(m_block, std::nullopt);
  }
  bool hasBlockRequest() const override { return m_block.has_value(); }
  void setRasterRequest(const OdTcRasterRequest& request) override { m_raster = request; }
  std::optional<OdTcRasterRequest> takeRasterRequest() override {
    return std::exchange(m_raster, std::nullopt);
  }
  bool hasRasterRequest() const override { return m_raster.has_value(); }

 private:
  std::optional<OdTcBlockRequest> m_block;
  std::optional<OdTcRasterRequest> m_raster;
};

} // namespace tc
