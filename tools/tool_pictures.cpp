// The pictures of tools that bring something into a drawing.
#include "drawing/database.h"
#include "images/image.h"
#include "tools/block_tool.h"
#include "tools/hatch_tool.h"
#include "tools/raster_tool.h"
#include "tools/source_drawings.h"
#include "tools/tool_source.h"

namespace tc {

bool OdTcToolBlockCommandImpl::makePicture(OdTcImage& image, OdTcSourceDrawings& drawings) const {
  const OdString file = sourceFromPalette(*this, m_fields.sourceFile);
  if (file.isEmpty()) return false;
  if (isWholeFile()) return image.makeFromDrawing(file);
  const OdDbDatabase* const source = drawings.open(file);
  if (!source) return false;
  const OdDbBlockTablePtr blocks = source->getBlockTableId().openObject();
  return image.makeFromBlock(blocks->getAt(m_fields.name));
}

bool OdTcToolHatchCommandImpl::makePicture(OdTcImage& image, OdTcSourceDrawings&) const {
  if (m_fields.hatchObjectType != 0) return renderImage(image);
  // A filling by layer has no colour of its own: the host shows it in one that is seen anywhere.
  const std::optional<OdCmColor> color = generalColor();
  const bool hasOwn = color && !color->isByLayer() && !color->isByBlock();
  return image.makeFromPattern(m_fields.patternName, hasOwn ? color : std::nullopt);
}

bool OdTcToolRasterCommandImpl::makePicture(OdTcImage& image, OdTcSourceDrawings&) const {
  return image.setSrcFromFile(sourceFromPalette(*this, m_fields.sourceFile));
}

} // namespace tc
