// The mailbox between a click and the hidden command that carries it out.
#pragma once

#include "frame/rx_members.h"
#include "module/export.h"

#include <cstdint>
#include <optional>

namespace tc {

/// Insert a block, a whole drawing or an external reference.
struct OdTcBlockRequest {
  OdString name = {};
  OdString sourceFile = {};
  double scale = 1.0;
  double rotation = 0.0; ///< radians
  bool askRotation = false;
  bool explode = false;
  bool wholeDrawing = false;
  bool isXref = false;
  bool queryAttributes = false;
  std::int32_t xrefType = 1;
};

/// Attach a raster image.
struct OdTcRasterRequest {
  OdString name = {};
  OdString path = {};
  double scale = 1.0;
  double rotation = 0.0; ///< radians
};

/// Holds one request of each kind: a second one overwrites the first, and taking it empties the
/// box.
class OdTcCommandConveyor : public OdRxObject {
  ODRX_DECLARE_MEMBERS(OdTcCommandConveyor);

 public:
  virtual void setBlockRequest(const OdTcBlockRequest& request) = 0;
  virtual std::optional<OdTcBlockRequest> takeBlockRequest() = 0;
  virtual bool hasBlockRequest() const = 0;
  virtual void setRasterRequest(const OdTcRasterRequest& request) = 0;
  virtual std::optional<OdTcRasterRequest> takeRasterRequest() = 0;
  virtual bool hasRasterRequest() const = 0;

  /// The conveyor of the module; null before its start and after its stop.
  static OdTcCommandConveyor* instance();
  static void setInstance(const OdSmartPtr<OdTcCommandConveyor>& conveyor);
};
using OdTcCommandConveyorPtr = OdSmartPtr<OdTcCommandConveyor>;

} // namespace tc
