// Small pictures for whoever shows drawings, blocks and patterns in lists.
#pragma once

#include "drawing/patterns/hatch_pattern.h"
#include "host/preview_service.h"

#include <functional>
#include <optional>

namespace drafton {

/// Makes previews with the renderer of the canvas. Colours are chosen so that they can be seen on a
/// light and on a dark ground, lines grow with the size of the picture.
class PreviewService : public CKVUnknownImpl<IHostPreviewService> {
 public:
  /// The pattern of a name, in any case, in that file or among the program's; nothing if there is
  /// none. The file may be empty.
  using PatternFinder =
      std::function<std::optional<OdHatchPattern>(const OdString& name, const OdString& file)>;

  explicit PreviewService(PatternFinder findPattern)
    : m_findPattern(std::move(findPattern)) {}

  QImage renderObjects(std::span<const OdDbObjectId> objects, const OdGeExtents3d& view,
                       int pixels) override;
  QImage renderPattern(const OdString& name, const OdString& file, int pixels) override;
  QImage storedPreview(const OdString& path, int pixels) override;
  QImage fileIcon(const OdString& path, int pixels) override;
  QImage renderUserPattern(double angle, bool isCrosswise, int pixels) override;

 private:
  PatternFinder m_findPattern;
};

} // namespace drafton
