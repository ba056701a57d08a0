#include "drafton/previews/object_picture.h"

#include "drafton/previews/picture_tones.h"
#include "drafton/render/renderer.h"

#include <algorithm>
#include <cmath>

namespace drafton {
namespace {

/// What is asked for, sorted by how it is drawn.
struct Subject {
  std::vector<OdDbObjectId> blocks;
  std::vector<OdDbEntityPtr> entities;
  OdDbDatabase* database = nullptr;
};

Subject subjectOf(std::span<const OdDbObjectId> objects) {
  Subject subject;
  for (const OdDbObjectId id : objects) {
    const OdDbObjectPtr object = id.openObject();
    if (!object) continue;
    if (odrxCast<OdDbBlockTableRecord>(object.get()))
      subject.blocks.push_back(id);
    else if (const OdDbEntityPtr entity = odrxCast<OdDbEntity>(object.get()))
      subject.entities.push_back(entity);
    else
      continue;
    subject.database = object->database();
  }
  return subject;
}

/// How the weights of lines are shown at a size: where every pixel counts all lines are thin, in
/// larger pictures a wall is heavier than its hatch.
struct WeightRow {
  int pixels; ///< from this size on
  double pixelsPerMillimetre;
};
constexpr WeightRow kWeights[] = {{128, 6}, {64, 4}, {32, 2.5}};

void chooseWeights(RenderOptions& options, int pixels) {
  options.showsLineWeights = false;
  for (const WeightRow& row : kWeights) {
    if (pixels < row.pixels) continue;
    options.showsLineWeights = true;
    options.pixelsPerMillimetre = row.pixelsPerMillimetre;
    return;
  }
}

/// The edges of what is shown fall into the middle of pixels: an outline that runs along two rows
/// is a grey smear in a picture of sixteen.
View sharpened(View view, const OdGeExtents3d& box) {
  const double longest =
      std::max(box.maxPoint().x - box.minPoint().x, box.maxPoint().y - box.minPoint().y);
  const double whole = std::floor(longest * view.scale);
  if (whole < 1) return view;
  view.scale = whole / longest;
  const QPointF corner = view.projection()(box.minPoint());
  const auto toMiddle = [](double at) { return std::floor(at) + 0.5 - at; };
  return view.panned({toMiddle(corner.x()), toMiddle(corner.y())});
}

OdGeExtents3d boxOf(const Subject& subject, Scene& scene, double deviation) {
  OdGeExtents3d box;
  for (const OdDbObjectId block : subject.blocks) box.addExt(scene.boxOf(block, deviation));
  for (const OdDbEntityPtr& entity : subject.entities)
    if (OdGeExtents3d own; entity->getGeomExtents(own)) box.addExt(own);
  return box;
}

} // namespace

QImage objectPicture(std::span<const OdDbObjectId> objects, const OdGeExtents3d& shown,
                     int pixels) {
  const Subject subject = subjectOf(objects);
  if (!subject.database || shown.isEmpty()) return {};
  Scene scene(*subject.database);
  scene.update();

  View view;
  view.size = QSizeF(pixels, pixels);
  view = view.fitted(shown);
  const OdGeExtents3d box = boxOf(subject, scene, 1 / view.scale);
  if (box.isEmpty()) return {};
  view = sharpened(view, box);

  RenderOptions options;
  options.ground = Ground::ofAnyTone();
  chooseWeights(options, pixels);
  QImage picture(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  for (const OdDbObjectId block : subject.blocks) render(picture, scene, block, view, options);
  if (!subject.entities.empty())
    render(picture, scene, OdDbObjectId(), view, options, subject.entities);
  if (isBlank(picture)) return {};
  strengthen(picture);
  return picture;
}

} // namespace drafton
