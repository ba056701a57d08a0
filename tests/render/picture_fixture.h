// Drawings to make pictures of.
#pragma once

#include "drafton/render/renderer.h"
#include "drawing/database.h"
#include "drawing/entities/hatch.h"
#include "drawing/entities/text.h"
#include "render/golden_picture.h"

namespace render_test {

using namespace drafton;

/// The model space of a drawing from corner to corner.
inline QImage modelPicture(const OdDbDatabase& database, Scene& scene, const OdGeExtents3d& box,
                           QSize size, const RenderOptions& options = {}) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(QColor::fromRgba(options.ground.color()));
  View view;
  view.size = size;
  render(image, scene, database.getModelSpaceId(), view.fitted(box), options);
  return image;
}

/// The box between two corners.
inline OdGeExtents3d boxOf(double x0, double y0, double x1, double y1) {
  OdGeExtents3d box;
  box.addPoint({x0, y0, 0});
  box.addPoint({x1, y1, 0});
  return box;
}

/// A new drawing with a scene, and short ways to fill it.
class PictureTest : public testing::Test {
 protected:
  OdDbDatabase& database() { return *m_database; }
  Scene& scene() { return m_scene; }

  /// Puts an entity into the model space.
  OdDbObjectId add(OdDbEntity* entity) { return addTo(m_database->getModelSpaceId(), entity); }
  OdDbObjectId addTo(OdDbObjectId block, OdDbEntity* entity) {
    return block.openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->appendOdDbEntity(entity);
  }
  OdDbObjectId addBlock(const char16_t* name) {
    auto block = odrxMake<OdDbBlockTableRecord>();
    block->setName(OdString::fromUtf16(name));
    return m_database->getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite)->add(block);
  }
  OdDbObjectId addLayer(const char16_t* name, int color) {
    auto layer = odrxMake<OdDbLayerTableRecord>();
    layer->setName(OdString::fromUtf16(name));
    layer->setColor(OdCmColor::fromColorIndex(color));
    return m_database->getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite)->add(layer);
  }

  /// A line of text at its left end.
  OdDbTextPtr addText(const OdString& words, double x, double y, double height) {
    auto text = odrxMake<OdDbText>();
    text->setDatabaseDefaults(*m_database);
    text->setTextString(words);
    text->setPosition({x, y, 0});
    text->setHeight(height);
    add(text);
    return text;
  }
  /// A hatch of a rectangle, solid and by layer, in no drawing yet.
  static OdDbHatchPtr hatchOf(double x0, double y0, double x1, double y1) {
    auto hatch = odrxMake<OdDbHatch>();
    hatch->appendLoop(rectangle(x0, y0, x1, y1));
    return hatch;
  }
  static OdDbHatchLoop rectangle(double x0, double y0, double x1, double y1) {
    OdDbHatchLoop loop;
    loop.flags = OdDbHatchLoop::kExternal | OdDbHatchLoop::kPolyline;
    loop.vertices = {{{x0, y0}, 0}, {{x1, y0}, 0}, {{x1, y1}, 0}, {{x0, y1}, 0}};
    return loop;
  }

  /// The model space from corner to corner.
  QImage picture(double x0, double y0, double x1, double y1, QSize size = {320, 240},
                 RenderOptions options = {}) {
    return modelPicture(*m_database, m_scene, boxOf(x0, y0, x1, y1), size, options);
  }

 private:
  OdDbDatabasePtr m_database = OdDbDatabase::createDatabase();
  Scene m_scene{*m_database};
};

} // namespace render_test
