// How a sheet is plotted, in a dialog.
#pragma once

#include "drawing/database.h"
#include "drawing/objects/layout.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QPushButton;

namespace drafton {

/// Paper, area, scale and plot style of one layout, with a picture of what becomes of it. Nothing
/// in the drawing changes: the dialog works on a copy of the layout.
class PageSetupDialog : public QDialog {
  Q_OBJECT

 public:
  /// How the dialog ended; `Rejected` if the user gave up.
  enum Result { kTaken = QDialog::Accepted, kPickWindow, kPrint, kPdf };

  PageSetupDialog(OdDbDatabase& database, const OdDbLayout& layout, QWidget* parent = nullptr);

  /// The copy, with all that was set.
  const OdDbLayout& plot() const { return *m_plot; }

 private:
  QComboBox* addList(QFormLayout& form, const char16_t* label, const char* name);
  void addPaper(QFormLayout& form);
  void addArea(QFormLayout& form);
  void addScale(QFormLayout& form);
  void addStyle(QFormLayout& form);
  void addButtons(QLayout& column);
  void choosePaper();
  void takePaper();
  void takeArea();
  void takeScale();
  void showPlot();

  OdDbDatabase& m_database;
  OdDbLayoutPtr m_plot;
  QComboBox *m_paper = nullptr, *m_way = nullptr, *m_area = nullptr, *m_scale = nullptr,
            *m_style = nullptr;
  QDoubleSpinBox *m_width = nullptr, *m_height = nullptr;
  QPushButton* m_pick = nullptr;
  QCheckBox* m_center = nullptr;
  QLabel *m_picture = nullptr, *m_problem = nullptr;
};

/// "1:50" or "2": sheet units and drawing units, both above 0.
std::optional<std::pair<double, double>> parsePlotScale(const OdString& text);

} // namespace drafton
