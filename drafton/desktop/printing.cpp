#include "drafton/desktop/printing.h"

#include "drafton/desktop/page_setup_dialog.h"
#include "drafton/engine/page_paper.h"
#include "drafton/render/picture_file.h"
#include "drafton/render/sheet.h"
#include "frame/file_path.h"
#include "frame/system_services.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinterInfo>

namespace drafton {
namespace {

/// What drawings name in place of a printer where there is none.
constexpr QLatin1String kNoDevice("none_device");

OdDbLayoutPtr shownLayout(const OdDbDatabase& database) {
  return odrxCast<OdDbLayout>(oddb::activeLayout(database).openObject().get());
}

PictureRequest shownPage(const OdDbDatabase& database) {
  PictureRequest request;
  if (const OdDbLayoutPtr layout = shownLayout(database)) request.layout = layout->getLayoutName();
  request.asPlotted = true;
  return request;
}

} // namespace

void setPaper(QPrinter& printer, const OdDbDatabase& database) {
  const OdDbLayoutPtr layout = shownLayout(database);
  if (!layout || !hasPaper(*layout)) return;
  const OdGePoint2d size = sheetSize(*layout);
  const QSizeF upright(std::min(size.x, size.y), std::max(size.x, size.y));
  printer.setPageSize(QPageSize(upright, QPageSize::Millimeter));
  printer.setPageOrientation(size.x > size.y ? QPageLayout::Landscape : QPageLayout::Portrait);
}

bool printSheet(QPrinter& printer, OdDbDatabase& database) {
  printer.setFullPage(true);
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  paintPage(painter, database, shownPage(database), QSizeF(printer.width(), printer.height()),
            printer.resolution());
  return painter.end();
}

Printing::Printing(Desktop& desktop, UserDialogs& dialogs, QObject* parent)
  : QObject(parent)
  , m_desktop(desktop)
  , m_dialogs(dialogs) {}

void Printing::setUpPage() {
  OdDbDatabase* const database = m_desktop.database();
  const OdDbLayoutPtr layout = database ? shownLayout(*database) : OdDbLayoutPtr();
  if (!layout) return;
  const OdDbObjectId id = layout->objectId();
  PageSetupDialog dialog(*database, *layout, m_dialogs.window());
  const int result = dialog.exec();
  if (result == QDialog::Rejected) return;
  const bool isKept = m_desktop.change(QStringLiteral("PAGESETUP"), [&](OdDbDatabase&) {
    const auto changed = id.openAs<OdDbLayout>(OdDb::kForWrite);
    changed->copyPlot(dialog.plot());
    fitSheetToPaper(*changed);
  });
  if (!isKept) return;
  if (result == PageSetupDialog::kPickWindow) pickWindow();
  if (result == PageSetupDialog::kPrint) print();
  if (result == PageSetupDialog::kPdf) savePdf();
}

/// Has the command ask for the corners, and goes on in the dialog when it has ended.
void Printing::pickWindow() {
  m_desktop.runMacro(QStringLiteral("_PAGESETUP _Area _Window \\\\;"));
  auto* const once = new QObject(this);
  connect(&m_desktop, &Desktop::settled, once, [this, once] {
    if (m_desktop.isBusy()) return;
    once->deleteLater();
    disconnect(&m_desktop, nullptr, once, nullptr);
    QMetaObject::invokeMethod(this, &Printing::setUpPage, Qt::QueuedConnection);
  });
}

void Printing::print() {
  OdDbDatabase* const database = m_desktop.database();
  if (!database) return;
  const OdDbLayoutPtr layout = shownLayout(*database);
  QPrinter printer(QPrinter::HighResolution);
  if (layout && QPrinterInfo::availablePrinterNames().contains(layout->getPlotCfgName()))
    printer.setPrinterName(layout->getPlotCfgName());
  printer.setDocName(m_desktop.document()->name());
  // Without a printer it becomes a file, which belongs beside the drawing.
  if (QPrinterInfo::availablePrinterNames().isEmpty()) printer.setOutputFileName(suggestedPdf());
  setPaper(printer, *database);
  if (QPrintDialog(&printer, m_dialogs.window()).exec() != QDialog::Accepted) return;
  if (!printSheet(printer, *database))
    return m_dialogs.warn(translated(u"The printer does not take the sheet."));
  const OdString name =
      printer.printerName().isEmpty() ? OdString(kNoDevice) : printer.printerName();
  if (layout && layout->getPlotCfgName() != name && !m_desktop.isBusy())
    m_desktop.change(QStringLiteral("PLOT"), [&](OdDbDatabase&) {
      layout->objectId().openAs<OdDbLayout>(OdDb::kForWrite)->setPlotCfgName(name);
    });
}

OdString Printing::suggestedPdf() {
  const Document& document = *m_desktop.document();
  const QFileInfo drawing(document.path().isEmpty() ? document.name()
                                                    : odpath::toPlatform(document.path()));
  return QDir(document.path().isEmpty() ? QDir::homePath() : drawing.path())
      .filePath(drawing.completeBaseName() + QLatin1String(".pdf"));
}

void Printing::savePdf() {
  if (!m_desktop.document()) return;
  const OdString path = m_dialogs.chooseToSave(translated(u"Save as PDF"), suggestedPdf(),
                                               QStringLiteral("PDF (*.pdf)"));
  if (!path.isEmpty()) exportPdf(path);
}

bool Printing::exportPdf(const OdString& path) {
  OdDbDatabase* const database = m_desktop.database();
  if (!database) return false;
  PictureRequest request = shownPage(*database);
  request.file = QFileInfo(path).suffix().isEmpty() ? path + QLatin1String(".pdf") : path;
  try {
    writePicture(*database, request);
  } catch (const OdFileError& error) {
    m_dialogs.warn(translated(u"%1 is not written: %2").arg(request.file, error.reason()));
    return false;
  } catch (const OdError& error) {
    m_dialogs.warn(translated(u"%1 is not written: %2").arg(request.file, error.description()));
    return false;
  }
  m_desktop.engine().print(translated(u"Saved to %1.").arg(request.file));
  return true;
}

} // namespace drafton
