// The pictures of tools that bring something into a drawing.
#include "drawing/database.h"
#include "frame/system_services.h"
#include "images/image.h"
#include "tools/block_tool.h"
#include "tools/raster_tool.h"
#include "tools/source_files.h"
#include "tools/tool_source.h"

namespace tc {

bool OdTcToolBlockCommandImpl::makePicture(OdTcImage& image, OdTcSourceFiles& files) const {
  const OdString file = sourceFromPalette(*this, m_fields.sourceFile);
  if (file.isEmpty()) return false;
  // A file that is not there has no icon either: it would look as if the tool could run.
  if (isWholeFile()) return odrxSystemServices()->fileExists(file) && image.makeFromDrawing(file);
  const OdDbDatabase* const source = files.drawing(file);
  if (!source) return false;
  const OdDbBlockTablePtr blocks = source->getBlockTableId().openObject();
  return image.makeFromBlock(blocks->getAt(m_fields.name));
}

bool OdTcToolRasterCommandImpl::makePicture(OdTcImage& image, OdTcSourceFiles& files) const {
  const OdString file = sourceFromPalette(*this, m_fields.sourceFile);
  return !file.isEmpty() && image.setSrcFromPicture(files.picture(file), file);
}

} // namespace tc
