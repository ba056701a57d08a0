// Drawings to make pictures of.
#pragma once

#include "drafton/render/renderer.h"
#include "drawing/database.h"
#include "render/golden_picture.h"

namespace render_test {

using namespace drafton;

/// A new drawing with a scene, and short ways to fill it.
class PictureTest : public testing::Test {
 protected:
  OdDbDatabase& database() { return *m_database; }
  Scene& scene() { return m_scene; }

  /// Puts an entity into the model space, with the drawing's current values unless it has a layer.
  OdDbObjectId add(OdDbEntity* entity) { return addTo(m_database->getModelSpaceId(), entity); }
  OdDbObjectId addTo(OdDbObjectId block, OdDbEntity* entity) {
    if (entity->layerId().isNull()) {
      const OdCmColor color = entity->color();
      entity->setDatabaseDefaults(*m_database);
      entity->setColor(color);
    }
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

  /// The model space from corner to corner.
  QImage picture(double x0, double y0, double x1, double y1, QSize size = {320, 240},
                 RenderOptions options = {}) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(QColor::fromRgba(options.ground.color()));
    OdGeExtents3d box;
    box.addPoint({x0, y0, 0});
    box.addPoint({x1, y1, 0});
    View view;
    view.size = size;
    render(image, m_scene, m_database->getModelSpaceId(), view.fitted(box), options);
    return image;
  }

 private:
  OdDbDatabasePtr m_database = OdDbDatabase::createDatabase();
  Scene m_scene{*m_database};
};

} // namespace render_test
