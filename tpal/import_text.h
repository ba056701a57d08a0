// The report of an import, in words and as JSON.
#pragma once

#include "catalog/foreign_store.h"
#include "catalog/import_report.h"

#include <QJsonObject>
#include <QTextStream>

namespace tpal {

/// The words that stand for what became of a tool, its picture and its source; stable, for scripts.
OdString wordOf(tc::OdTcToolFate fate);
OdString wordOf(tc::OdTcPictureFate fate);
OdString wordOf(tc::OdTcSourceFate fate);

QJsonObject jsonOf(const tc::OdTcImportReport& report, bool isDry);
/// A file or an entry of a store that led to no palette, in the form of a file that did not come
/// in.
QJsonObject jsonOf(const tc::OdTcForeignPalettes::Problem& problem);
void printReport(const tc::OdTcImportReport& report, bool isDry, QTextStream& out);

} // namespace tpal
