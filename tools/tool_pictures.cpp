// The pictures of tools that bring something into a drawing.
#include "drawing/database.h"
#include "images/image.h"
#include "tools/block_tool.h"
#include "tools/hatch_tool.h"
#include "tools/raster_tool.h"
#include "tools/source_drawings.h"

namespace tc {

bool OdTcToolBlockCommandImpl::makePicture(OdTcImage& image, OdTcSourceDrawings& drawings) const {
  if (m_fields.sourceFile.isEmpty()) return false;
  if (isWholeFile()) return image.makeFromDrawing(m_fields.sourceFile);
  const OdDbDatabase* const source = drawings.open(m_fields.sourceFile);
  if (!source) return false;
  const OdDbBlockTablePtr blocks = source->getBlockTableId().openObject();
  return image.makeFromBlock(blocks->getAt(m_fields.name));
}

bool OdTcToolHatchCommandImpl::makePicture(OdTcImage& image, OdTcSourceDrawings&) const {
  return renderImage(image);
}

bool OdTcToolRasterCommandImpl::makePicture(OdTcImage& image, OdTcSourceDrawings&) const {
  return image.setSrcFromFile(m_fields.sourceFile);
}

} // namespace tc
