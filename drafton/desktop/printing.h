// Sheets on paper.
#pragma once

#include "drafton/desktop/desktop.h"
#include "drafton/desktop/user_dialogs.h"

#include <QPrinter>

namespace drafton {

/// Sets the printer's paper to that for which the shown layout was set up; nothing for a model that
/// never was.
void setPaper(QPrinter& printer, const OdDbDatabase& database);
/// Prints what is shown: a sheet, or a model that was set up, at its scale, else the model fitted
/// to the page. False if the printer does not take it.
bool printSheet(QPrinter& printer, OdDbDatabase& database);

/// Setting up, printing and saving as PDF what the active drawing shows. What cannot be done is
/// told in a dialog.
class Printing : public QObject {
  Q_OBJECT

 public:
  Printing(Desktop& desktop, UserDialogs& dialogs, QObject* parent);

  /// Asks how the shown layout is plotted, and keeps that with it as one undo step.
  void setUpPage();
  /// Asks for a printer, and remembers it with the layout.
  void print();
  /// Asks for a file.
  void savePdf();
  /// False, and a message, if the file cannot be written.
  bool exportPdf(const OdString& path);

 private:
  void pickWindow();
  /// Beside the drawing, with its name.
  OdString suggestedPdf();

  Desktop& m_desktop;
  UserDialogs& m_dialogs;
};

} // namespace drafton
