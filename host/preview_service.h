// Pictures of what is in drawings, made by the host.
#pragma once

#include "drawing/geometry/extents.h"
#include "drawing/object_id.h"
#include "host/unknown.h"

#include <span>

class QImage;

/// Renders what tools show of themselves. Every operation gives a square picture of `pixels` by
/// `pixels` with a transparent ground, legible on light and on dark, or a null image if there is
/// nothing to show.
class IHostPreviewService : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IHostPreviewService";

  /// Objects of one drawing: entities, or the contents of block table records. `view` is what the
  /// picture shows, in world coordinates.
  virtual QImage renderObjects(std::span<const OdDbObjectId> objects, const OdGeExtents3d& view,
                               int pixels) = 0;
  /// A sample of a hatch pattern by its name, from a pattern file (a stored path, or a name that
  /// the host looks for as its hatch commands do) or, if that is empty or lacks it, from the host's
  /// own.
  virtual QImage renderPattern(const OdString& name, const OdString& file, int pixels) = 0;
  /// The picture that a drawing file keeps of itself. `path` is a stored path.
  virtual QImage storedPreview(const OdString& path, int pixels) = 0;
  /// The icon by which the system shows files of that kind.
  virtual QImage fileIcon(const OdString& path, int pixels) = 0;
  /// A sample of lines at an angle (radians), crossed by others or not.
  virtual QImage renderUserPattern(double angle, bool isCrosswise, int pixels) = 0;

 protected:
  ~IHostPreviewService() = default;
};
