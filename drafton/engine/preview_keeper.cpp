#include "drafton/engine/preview_keeper.h"

#include "drafton/engine/document.h"
#include "drafton/engine/engine.h"
#include "drawing/objects/layout.h"
#include "host/preview_service.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

#include <algorithm>

namespace drafton {
namespace {

/// The longer side; enough for the largest picture of a tool on a screen with twice the pixels.
constexpr int kPixels = 128;
/// The pictures that services give are for any ground. On white there is room for more contrast.
constexpr double kDarker = 0.55;
constexpr qsizetype kFileHeader = 14;

bool isWanted(Document& document) {
  OdVariant wanted;
  return document.variables()->get(QStringLiteral("RASTERPREVIEW"), wanted) && wanted.toBool();
}

/// The space that is open, and a view of all of it.
QImage rendered(IHostPreviewService& service, OdDbDatabase& drawing) {
  const OdDbLayoutPtr layout = oddb::activeLayout(drawing).openObject();
  const OdDbObjectId id = layout ? layout->getBlockTableRecordId() : drawing.getModelSpaceId();
  const OdDbBlockTableRecordPtr block = id.openObject();
  if (!block) return {};
  OdGeExtents3d view = block->extents();
  if (view.isEmpty()) return {};
  const OdDbObjectId objects[] = {id};
  return service.renderObjects(objects, view, kPixels);
}

/// On white and darker.
QImage onPaper(QImage picture) {
  picture.convertTo(QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < picture.height(); ++y) {
    auto* const row = reinterpret_cast<QRgb*>(picture.scanLine(y));
    std::for_each(row, row + picture.width(), [](QRgb& pixel) {
      const auto part = [](int value) { return static_cast<int>(value * kDarker); };
      pixel = qRgba(part(qRed(pixel)), part(qGreen(pixel)), part(qBlue(pixel)), qAlpha(pixel));
    });
  }
  QImage paper(picture.size(), QImage::Format_RGB32);
  paper.fill(Qt::white);
  QPainter(&paper).drawImage(0, 0, picture);
  return paper;
}

/// With sixteen steps of each channel: hardly any picture has more than the 256 colours of a small
/// bitmap then, and nobody sees a difference.
void takeSteps(QImage& picture) {
  constexpr int kStep = 17;
  const auto stepped = [](int value) { return (value + kStep / 2) / kStep * kStep; };
  for (int y = 0; y < picture.height(); ++y) {
    auto* const row = reinterpret_cast<QRgb*>(picture.scanLine(y));
    std::for_each(row, row + picture.width(), [&](QRgb& pixel) {
      pixel = qRgb(stepped(qRed(pixel)), stepped(qGreen(pixel)), stepped(qBlue(pixel)));
    });
  }
}

/// As drawings keep it: a bitmap without the header of a file.
QByteArray bitmap(QImage picture) {
  takeSteps(picture);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!buffer.open(QIODevice::WriteOnly)) return {};
  picture.convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither).save(&buffer, "BMP");
  return bytes.mid(kFileHeader);
}

} // namespace

void keepPreview(Engine& engine, Document& document) {
  if (!isWanted(document)) return;
  const auto service = kvQuery<IHostPreviewService>(&engine.services());
  if (!service) return;
  const QImage picture = rendered(*service.get(), *document.database());
  if (!picture.isNull()) document.database()->setThumbnail(bitmap(onPaper(picture)));
}

} // namespace drafton
