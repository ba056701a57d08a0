#include "drafton/previews/preview_service.h"

#include "drafton/previews/object_picture.h"
#include "drafton/previews/pattern_picture.h"
#include "drafton/previews/picture_tones.h"
#include "drafton/previews/sheet_icon.h"
#include "drafton/previews/stored_preview.h"
#include "frame/file_path.h"

#include <algorithm>
#include <cmath>

namespace drafton {
namespace {

/// Larger pictures than any list shows are mistakes of the caller.
constexpr int kLargest = 4096;

/// The pattern that no file has to have.
constexpr QStringView kSolid = u"SOLID";

bool isPossible(int pixels) { return pixels > 0 && pixels <= kLargest; }

} // namespace

QImage PreviewService::renderObjects(std::span<const OdDbObjectId> objects,
                                     const OdGeExtents3d& view, int pixels) {
  return isPossible(pixels) ? objectPicture(objects, view, pixels) : QImage();
}

QImage PreviewService::renderPattern(const OdString& name, const OdString& file, int pixels) {
  if (!isPossible(pixels)) return {};
  if (name.compare(kSolid, Qt::CaseInsensitive) == 0) return filledPicture(pixels);
  const std::optional<OdHatchPattern> pattern = m_findPattern(name, file);
  return pattern ? patternPicture(*pattern, pixels) : QImage();
}

QImage PreviewService::storedPreview(const OdString& path, int pixels) {
  if (!isPossible(pixels)) return {};
  const QImage stored = readStoredPreview(path);
  if (stored.isNull()) return {};
  const QImage small = stored.scaled(pixels, pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  const double reduction = std::max(stored.width(), stored.height()) / static_cast<double>(pixels);
  return insideSquare(strengthenedOnGround(small, reduction), pixels);
}

QImage PreviewService::fileIcon(const OdString& path, int pixels) {
  return isPossible(pixels) ? sheetIcon(odpath::extensionOf(path), pixels) : QImage();
}

QImage PreviewService::renderUserPattern(double angle, bool isCrosswise, int pixels) {
  if (!isPossible(pixels)) return {};
  OdHatchPattern pattern = OdHatchPattern::userDefined(1, isCrosswise);
  pattern.lines = pattern.placed(1, std::isfinite(angle) ? std::remainder(angle, 2 * kOdaPi) : 0);
  return patternPicture(pattern, pixels);
}

} // namespace drafton
