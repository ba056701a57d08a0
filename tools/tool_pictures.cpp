// The pictures of tools that bring something into a drawing.
#include "drawing/database.h"
#include "frame/system_services.h"
#include "host/host_locator.h"
#include "images/image.h"
#include "tools/block_tool.h"
#include "tools/raster_tool.h"
#include "tools/source_files.h"
#include "tools/tool_source.h"

namespace tc {
namespace {

OdString translated(const char16_t* text) { return host::translate(OdString::fromUtf16(text)); }

} // namespace

bool OdTcToolBlockCommandImpl::makePicture(OdTcImage& image, OdTcSourceFiles& files) const {
  const OdString file = sourceFromPalette(*this, m_fields.sourceFile);
  if (file.isEmpty()) return false;
  if (isWholeFile()) {
    // A file that is not there has no icon either: it would look as if the tool could run.
    const bool isThere = odrxSystemServices()->fileExists(file);
    if (!isThere) files.setProblem(translated(u"there is no file %1").arg(file));
    return isThere && image.makeFromDrawing(file);
  }
  const OdDbDatabase* const source = files.drawing(file);
  if (!source) return false;
  const OdDbBlockTablePtr blocks = source->getBlockTableId().openObject();
  const OdDbObjectId block = blocks->getAt(m_fields.name);
  if (block.isNull())
    files.setProblem(translated(u"there is no block \"%1\" in %2").arg(m_fields.name, file));
  return image.makeFromBlock(block);
}

bool OdTcToolRasterCommandImpl::makePicture(OdTcImage& image, OdTcSourceFiles& files) const {
  const OdString file = sourceFromPalette(*this, m_fields.sourceFile);
  return !file.isEmpty() && image.setSrcFromPicture(files.picture(file), file);
}

} // namespace tc
