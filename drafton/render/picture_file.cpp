#include "drafton/render/picture_file.h"

#include "drafton/render/renderer.h"
#include "drafton/render/scene_painter.h"
#include "drafton/render/sheet.h"
#include "frame/error.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSvgGenerator>

#include <algorithm>
#include <cmath>

namespace drafton {
namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kScreenDpi = 96;
/// What sheets become in pixels unless a size is given.
constexpr double kSheetDpi = 150;
constexpr int kLargestSheet = 8000;
constexpr QSize kUsualSize{1600, 1200};
/// Of pages, in pixels of the screen: A4 across.
constexpr QSize kUsualPage{1123, 794};
/// Left free around a drawing that is shown as a whole.
constexpr double kMargin = 0.02;
constexpr int kPdfDpi = 600;

/// A space with what is to be seen of it.
struct Scope {
  OdDbObjectId block;
  OdDbLayoutPtr layout; ///< null for the model
  OdGeExtents3d box;
  OdGeExtents3d shown; ///< the only part of it that is drawn; empty for all
  double margin = 0;
  double weightScale = 1; ///< of line weights
};

Scope scopeOf(OdDbDatabase& database, Scene& scene, const PictureRequest& request) {
  Scope scope;
  scope.block = database.getModelSpaceId();
  if (!request.layout.isEmpty()) {
    const OdDbObjectId id = oddb::findLayout(database, request.layout);
    const OdDbLayoutPtr layout = odrxCast<OdDbLayout>(id.openObject().get());
    const bool isModel = request.layout.compare(QLatin1String("Model"), Qt::CaseInsensitive) == 0;
    if (!layout && !isModel)
      throw OdError(eInvalidInput,
                    QStringLiteral("there is no layout \"%1\"; there are: %2")
                        .arg(request.layout, layoutNames(database).join(QStringLiteral(", "))));
    const OdDbLayoutPtr plot = layout && request.plot ? request.plot : layout;
    if (layout && (!layout->isModelType() || (request.asPlotted && hasPaper(*plot)))) {
      scope.layout = plot;
      scope.block = layout->getBlockTableRecordId();
    }
  }
  if (request.window) {
    scope.box.addPoint({request.window->left(), request.window->top(), 0});
    scope.box.addPoint({request.window->right(), request.window->bottom(), 0});
  } else if (scope.layout && !request.extents) {
    const Sheet sheet = plotOf(*scope.layout, [&] {
      scene.update();
      return scene.boxOf(scope.block, deviationFor(1));
    });
    scope.box = sheet.paper;
    scope.shown = sheet.shown;
    if (scope.layout->plotFlag(OdDbPlotSettings::kScaleLineweights))
      scope.weightScale = sheet.scale;
  }
  if (scope.box.isEmpty()) {
    scene.update();
    scope.box = scene.boxOf(scope.block, deviationFor(1));
    scope.margin = kMargin;
  }
  return scope;
}

RenderOptions optionsFor(const PictureRequest& request, const OdDbDatabase& database,
                         const Scope& scope, double pixelsPerMillimetre) {
  RenderOptions options;
  if (request.background.isValid()) options.ground = Ground(request.background.rgba());
  // What cannot be seen through is judged by what shines through: paper, most likely.
  if (request.background.isValid() && request.background.alpha() < 128)
    options.ground = Ground(qRgba(255, 255, 255, request.background.alpha()));
  if (scope.layout) options.ground = options.ground.withTones(tonesOf(*scope.layout));
  options.isPlotting = scope.layout != nullptr;
  options.showsLineWeights = scope.layout != nullptr || database.sysVarInt("LWDISPLAY") != 0;
  options.pixelsPerMillimetre = pixelsPerMillimetre * scope.weightScale;
  return options;
}

/// Everything about a picture but its format.
struct Job {
  Scene& scene;
  const PictureRequest& request;
  const Scope& scope;

  View view(const QSizeF& size) const {
    View view;
    view.size = size;
    view = view.fitted(scope.box, scope.margin);
    if (scope.shown.isEmpty()) return view;
    // A smaller picture within the picture.
    const QRectF part = view.projection().boxOf(scope.shown) & view.rect();
    const OdGePoint3d middle = view.unproject(part.center());
    view.center = {middle.x, middle.y};
    view.origin = part.topLeft();
    view.size = part.size();
    return view;
  }
  RenderOptions options(double pixelsPerMillimetre) const {
    return optionsFor(request, *scene.database(), scope, pixelsPerMillimetre);
  }
  /// The sheet's size in dots of `dpi`; empty for the model.
  QSizeF sheetDots(double dpi) const {
    if (!scope.layout || request.window || request.extents) return {};
    const OdGePoint2d paper = sheetSize(*scope.layout);
    return {paper.x / kMillimetresPerInch * dpi, paper.y / kMillimetresPerInch * dpi};
  }
  QSize pageSize() const {
    if (!request.size.isEmpty()) return request.size;
    const QSizeF sheet = sheetDots(kScreenDpi);
    return sheet.isEmpty() ? kUsualPage : sheet.toSize();
  }
};

void writePng(const Job& job, QIODevice& device) {
  QSize size = job.request.size;
  double dpi = kScreenDpi;
  if (size.isEmpty()) {
    const QSizeF sheet = job.sheetDots(kSheetDpi);
    size = kUsualSize;
    if (!sheet.isEmpty()) {
      const double shrink = std::min(1.0, kLargestSheet / std::max(sheet.width(), sheet.height()));
      size = (sheet * shrink).toSize().expandedTo({1, 1});
    }
  }
  if (const QSizeF sheet = job.sheetDots(kScreenDpi); !sheet.isEmpty())
    dpi = kScreenDpi * std::min(size.width() / sheet.width(), size.height() / sheet.height());
  QImage picture(size, QImage::Format_ARGB32_Premultiplied);
  if (picture.isNull())
    throw OdError(eOutOfMemory, QStringLiteral("there is not enough memory for %1 x %2 pixels")
                                    .arg(size.width())
                                    .arg(size.height()));
  const RenderOptions options = job.options(dpi / kMillimetresPerInch);
  picture.fill(QColor::fromRgba(job.request.background.isValid() ? job.request.background.rgba()
                                                                 : qRgb(255, 255, 255)));
  render(picture, job.scene, job.scope.block, job.view(size), options);
  if (!picture.save(&device, "PNG"))
    throw OdError(eFileAccess, QStringLiteral("the picture cannot be written"));
}

void drawPage(const Job& job, QPainter& painter, const QSizeF& dots, double dpi,
              bool simplifies = false) {
  RenderOptions options = job.options(dpi / kMillimetresPerInch);
  options.simplifies = simplifies;
  // A line of one dot can hardly be seen on paper.
  options.showsLineWeights = true;
  if (job.request.background.isValid() && job.request.background.alpha() > 0)
    painter.fillRect(QRectF(QPointF(0, 0), dots), job.request.background);
  render(painter, job.scene, job.scope.block, job.view(dots), options);
}

void writePdf(const Job& job, QIODevice& device) {
  const QSize size = job.pageSize();
  QPdfWriter writer(&device);
  writer.setCreator(QStringLiteral("Drafton"));
  writer.setResolution(kPdfDpi);
  const QSizeF points(size.width() * 72 / kScreenDpi, size.height() * 72 / kScreenDpi);
  writer.setPageSize(QPageSize(points, QPageSize::Point, QString(), QPageSize::ExactMatch));
  writer.setPageMargins(QMarginsF(0, 0, 0, 0));
  QPainter painter;
  if (!painter.begin(&writer))
    throw OdError(eFileAccess, QStringLiteral("the page cannot be written"));
  const QSizeF dots(size.width() * kPdfDpi / kScreenDpi, size.height() * kPdfDpi / kScreenDpi);
  drawPage(job, painter, dots, kPdfDpi);
}

void writeSvg(const Job& job, QIODevice& device) {
  const QSize size = job.pageSize();
  QSvgGenerator generator;
  generator.setOutputDevice(&device);
  generator.setResolution(static_cast<int>(kScreenDpi));
  generator.setSize(size);
  generator.setViewBox(QRect(QPoint(0, 0), size));
  generator.setTitle(QStringLiteral("Drafton"));
  QPainter painter;
  if (!painter.begin(&generator))
    throw OdError(eFileAccess, QStringLiteral("the picture cannot be written"));
  drawPage(job, painter, size, kScreenDpi);
}

struct Format {
  const char16_t* extension;
  void (*write)(const Job& job, QIODevice& device);
};

constexpr Format kFormats[] = {{u"png", writePng}, {u"pdf", writePdf}, {u"svg", writeSvg}};

const Format* formatOf(const OdString& file) {
  const OdString extension = QFileInfo(file).suffix().toLower();
  for (const Format& format : kFormats)
    if (extension == QStringView(format.extension)) return &format;
  return nullptr;
}

} // namespace

bool isPictureFile(const OdString& file) { return formatOf(file) != nullptr; }

QStringList layoutNames(const OdDbDatabase& database) {
  QStringList names;
  for (const OdDbLayoutPtr& layout : oddb::layouts(database)) names << layout->getLayoutName();
  return names;
}

void paintPage(QPainter& painter, OdDbDatabase& database, const PictureRequest& request,
               const QSizeF& dots, double dpi) {
  Scene scene(database);
  const Scope scope = scopeOf(database, scene, request);
  // The dots of screens can be seen one by one; what is finer need not be drawn.
  drawPage({scene, request, scope}, painter, dots, dpi, dpi < kSheetDpi);
}

void writePicture(OdDbDatabase& database, const PictureRequest& request) {
  const Format* const format = formatOf(request.file);
  if (format == nullptr)
    throw OdFileError(eFileAccess, request.file,
                      QStringLiteral("it ends neither in .png nor in "
                                     ".pdf nor in .svg"));
  Scene scene(database);
  const Scope scope = scopeOf(database, scene, request);
  // In memory first: a device that fails halfway would leave half a file.
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  format->write({scene, request, scope}, buffer);
  QSaveFile file(request.file);
  if (!file.open(QIODevice::WriteOnly) || file.write(buffer.data()) != buffer.size() ||
      !file.commit())
    throw OdFileError(eFileAccess, request.file, file.errorString());
}

} // namespace drafton
