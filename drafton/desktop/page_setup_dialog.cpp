#include "drafton/desktop/page_setup_dialog.h"

#include "drafton/engine/commands/shown_values.h"
#include "drafton/engine/page_paper.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/value_parser.h"
#include "drafton/render/picture_file.h"
#include "drafton/render/sheet.h"
#include "frame/error.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>

#include <cmath>

namespace drafton {
namespace {

using Plot = OdDbPlotSettings;

constexpr double kMillimetresPerInch = 25.4;
constexpr double kLongestSide = 100000;
constexpr int kPictureSide = 300;

struct AreaRow {
  Plot::PlotType type;
  const char16_t* text;
  bool isOffered; ///< also where the layout is not set to it
};
constexpr AreaRow kAreas[] = {
    {Plot::kLayout, u"Layout", true},    {Plot::kExtents, u"Extents", true},
    {Plot::kWindow, u"Window", true},    {Plot::kLimits, u"Limits", false},
    {Plot::kDisplay, u"Display", false}, {Plot::kView, u"View", false},
};

constexpr const char16_t* kScales[] = {u"1:1",  u"1:2",  u"1:5",   u"1:10",  u"1:20",
                                       u"1:25", u"1:50", u"1:100", u"1:200", u"1:500",
                                       u"2:1",  u"5:1",  u"10:1"};

struct StyleRow {
  const char16_t* text;
  const char16_t* table;
};
constexpr StyleRow kStyles[] = {{u"Colors of the drawing", u""},
                                {u"Grayscale", u"grayscale.ctb"},
                                {u"Monochrome", u"monochrome.ctb"}};

OdString shownScale(const OdDbLayout& plot) {
  double paper = 1, drawing = 1;
  plot.getCustomPrintScale(paper, drawing);
  if (plot.useStandardScale()) {
    const double scale = plot.plotScale();
    paper = scale < 1 ? 1 : scale;
    drawing = scale < 1 ? 1 / scale : 1;
  }
  return shownReal(paper) + u':' + shownReal(drawing);
}

bool fits(const OdDbLayout& plot) {
  return plot.useStandardScale() && plot.stdScaleType() == Plot::kScaleToFit;
}

} // namespace

std::optional<std::pair<double, double>> parsePlotScale(const OdString& text) {
  const QStringList parts = text.split(u':');
  if (parts.size() > 2) return std::nullopt;
  const std::optional<double> paper = parseReal(parts[0].trimmed());
  const std::optional<double> drawing =
      parts.size() == 2 ? parseReal(parts[1].trimmed()) : std::optional(1.0);
  if (!paper || !drawing || !(*paper > 0) || !(*drawing > 0)) return std::nullopt;
  return std::pair(*paper, *drawing);
}

PageSetupDialog::PageSetupDialog(OdDbDatabase& database, const OdDbLayout& layout, QWidget* parent)
  : QDialog(parent)
  , m_database(database)
  , m_plot(odrxMake<OdDbLayout>()) {
  m_plot->assignFrom(layout);
  if (!(sheetSize(*m_plot).x > 0)) setPaper(*m_plot, {297, 210});
  const bool isWhole = m_plot->plotType() == Plot::kLayout || m_plot->plotType() == Plot::kDisplay;
  if (m_plot->isModelType() && isWhole) {
    // All of it on the paper, whatever its size, is what is wanted first.
    m_plot->setPlotType(Plot::kExtents);
    m_plot->setUseStandardScale(true);
    m_plot->setStdScaleType(Plot::kScaleToFit);
    m_plot->setPlotFlag(Plot::kPlotCentered, true);
  }
  setWindowTitle(translated(u"Page Setup: %1").arg(layout.getLayoutName()));
  auto* const form = new QFormLayout;
  addPaper(*form);
  addArea(*form);
  addScale(*form);
  addStyle(*form);
  m_problem = new QLabel(this);
  m_problem->setWordWrap(true);
  form->addRow(m_problem);
  m_picture = new QLabel(this);
  m_picture->setAccessibleName(translated(u"What is plotted"));
  m_picture->setFixedSize(kPictureSide, kPictureSide);
  m_picture->setAlignment(Qt::AlignCenter);
  auto* const row = new QHBoxLayout;
  row->addLayout(form);
  row->addWidget(m_picture);
  auto* const column = new QVBoxLayout(this);
  column->addLayout(row);
  addButtons(*column);
  showPlot();
}

QComboBox* PageSetupDialog::addList(QFormLayout& form, const char16_t* label, const char* name) {
  auto* const list = new QComboBox(this);
  list->setObjectName(OdString::fromLatin1(name));
  list->setAccessibleName(translated(label).remove(u'&'));
  form.addRow(translated(label), list);
  return list;
}

void PageSetupDialog::addPaper(QFormLayout& form) {
  const OdGePoint2d size = sheetSize(*m_plot);
  m_paper = addList(form, u"&Paper", "paper");
  for (const PagePaper& paper : pagePapers()) m_paper->addItem(OdString::fromUtf16(paper.name));
  m_paper->addItem(translated(u"Other size"));
  const PagePaper* const now = findPaper(size);
  m_paper->setCurrentIndex(now ? static_cast<int>(now - pagePapers().data())
                               : m_paper->count() - 1);
  m_way = addList(form, u"&Orientation", "way");
  m_way->addItems({translated(u"Portrait"), translated(u"Landscape")});
  m_way->setCurrentIndex(size.x > size.y);
  const auto addSide = [&](const char16_t* label, const char* name, double value) {
    auto* const box = new QDoubleSpinBox(this);
    box->setObjectName(OdString::fromLatin1(name));
    box->setRange(1, kLongestSide);
    box->setDecimals(1);
    box->setSuffix(QStringLiteral(" mm"));
    box->setValue(value);
    box->setAccessibleName(translated(label).remove(u'&'));
    form.addRow(translated(label), box);
    connect(box, &QDoubleSpinBox::valueChanged, this, &PageSetupDialog::takePaper);
    return box;
  };
  m_width = addSide(u"&Width", "width", size.x);
  m_height = addSide(u"&Height", "height", size.y);
  m_width->setEnabled(!now);
  m_height->setEnabled(!now);
  connect(m_paper, &QComboBox::activated, this, &PageSetupDialog::choosePaper);
  connect(m_way, &QComboBox::activated, this, &PageSetupDialog::choosePaper);
}

void PageSetupDialog::addArea(QFormLayout& form) {
  m_area = addList(form, u"What is plo&tted", "area");
  for (const AreaRow& row : kAreas) {
    const bool isNow = m_plot->plotType() == row.type;
    if (isNow || (row.isOffered && (row.type != Plot::kLayout || !m_plot->isModelType())))
      m_area->addItem(translated(row.text), static_cast<int>(row.type));
  }
  m_area->setCurrentIndex(m_area->findData(static_cast<int>(m_plot->plotType())));
  connect(m_area, &QComboBox::activated, this, &PageSetupDialog::takeArea);
  m_pick = new QPushButton(translated(u"Pick the w&indow..."), this);
  m_pick->setObjectName(QStringLiteral("pick"));
  form.addRow(m_pick);
  connect(m_pick, &QPushButton::clicked, this, [this] { done(kPickWindow); });
}

void PageSetupDialog::addScale(QFormLayout& form) {
  m_scale = addList(form, u"&Scale", "scale");
  m_scale->setEditable(true);
  m_scale->setInsertPolicy(QComboBox::NoInsert);
  m_scale->addItem(translated(u"Fit to the paper"));
  for (const char16_t* const scale : kScales) m_scale->addItem(OdString::fromUtf16(scale));
  m_scale->setCurrentText(fits(*m_plot) ? m_scale->itemText(0) : shownScale(*m_plot));
  connect(m_scale, &QComboBox::currentTextChanged, this, &PageSetupDialog::takeScale);
  m_center = new QCheckBox(translated(u"In the &middle of the paper"), this);
  m_center->setChecked(m_plot->plotFlag(Plot::kPlotCentered));
  form.addRow(m_center);
  connect(m_center, &QCheckBox::toggled, this, [this](bool on) {
    m_plot->setPlotFlag(Plot::kPlotCentered, on);
    showPlot();
  });
}

void PageSetupDialog::addStyle(QFormLayout& form) {
  m_style = addList(form, u"Plot st&yle", "style");
  for (const StyleRow& row : kStyles)
    m_style->addItem(translated(row.text), OdString::fromUtf16(row.table));
  const OdString now =
      m_plot->plotFlag(Plot::kPlotPlotStyles) ? m_plot->getCurrentStyleSheet() : OdString();
  if (m_style->findData(now, Qt::UserRole, Qt::MatchFixedString) < 0) m_style->addItem(now, now);
  m_style->setCurrentIndex(m_style->findData(now, Qt::UserRole, Qt::MatchFixedString));
  connect(m_style, &QComboBox::activated, this, [this] {
    m_plot->setCurrentStyleSheet(m_style->currentData().toString());
    m_plot->setPlotFlag(Plot::kPlotPlotStyles, true);
    showPlot();
  });
}

void PageSetupDialog::addButtons(QLayout& column) {
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  const auto add = [&](const char16_t* text, Result result) {
    auto* const button = buttons->addButton(translated(text), QDialogButtonBox::ActionRole);
    connect(button, &QPushButton::clicked, this, [this, result] { done(result); });
  };
  add(u"P&rint...", kPrint);
  add(u"Save as P&DF...", kPdf);
  connect(buttons, &QDialogButtonBox::accepted, this, &PageSetupDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &PageSetupDialog::reject);
  column.addWidget(buttons);
}

void PageSetupDialog::choosePaper() {
  const auto papers = pagePapers();
  const auto at = static_cast<std::size_t>(m_paper->currentIndex());
  const bool isUsual = at < papers.size();
  m_width->setEnabled(!isUsual);
  m_height->setEnabled(!isUsual);
  OdGePoint2d size{m_width->value(), m_height->value()};
  if (isUsual) size = {papers[at].width, papers[at].height};
  const bool isWide = m_way->currentIndex() == 1;
  if ((size.x > size.y) != isWide) std::swap(size.x, size.y);
  const QSignalBlocker quietWidth(m_width), quietHeight(m_height);
  m_width->setValue(size.x);
  m_height->setValue(size.y);
  takePaper();
}

void PageSetupDialog::takePaper() {
  setPaper(*m_plot, {m_width->value(), m_height->value()});
  m_way->setCurrentIndex(m_width->value() > m_height->value());
  showPlot();
}

void PageSetupDialog::takeArea() {
  m_plot->setPlotType(static_cast<Plot::PlotType>(m_area->currentData().toInt()));
  OdGePoint2d low, high;
  m_plot->getPlotWindowArea(low, high);
  // A window that nobody has chosen yet shows nothing.
  if (m_plot->plotType() == Plot::kWindow && !(high.x > low.x && high.y > low.y))
    return done(kPickWindow);
  showPlot();
}

void PageSetupDialog::takeScale() {
  const OdString text = m_scale->currentText();
  if (text == m_scale->itemText(0)) {
    m_plot->setUseStandardScale(true);
    m_plot->setStdScaleType(Plot::kScaleToFit);
  } else if (const auto scale = parsePlotScale(text)) {
    m_plot->setUseStandardScale(false);
    m_plot->setCustomPrintScale(scale->first, scale->second);
  } else {
    return m_problem->setText(translated(u"A scale looks like 1:50."));
  }
  showPlot();
}

/// Draws the page as it would be printed, on a desk.
void PageSetupDialog::showPlot() {
  m_problem->clear();
  m_pick->setEnabled(m_plot->plotType() == Plot::kWindow);
  m_center->setEnabled(m_plot->plotType() != Plot::kLayout);
  const OdGePoint2d paper = sheetSize(*m_plot);
  const double ratio = devicePixelRatioF();
  const double dots = kPictureSide * ratio / std::max(paper.x, paper.y);
  const QSize size = QSizeF(paper.x * dots, paper.y * dots).toSize().expandedTo({1, 1});
  QImage page(size, QImage::Format_RGB32);
  page.fill(Qt::white);
  PictureRequest request;
  request.layout = m_plot->getLayoutName();
  request.asPlotted = true;
  request.plot = m_plot;
  {
    QPainter painter(&page);
    paintPage(painter, m_database, request, size, dots * kMillimetresPerInch);
    painter.setPen(QColor(128, 128, 128));
    painter.drawRect(0, 0, size.width() - 1, size.height() - 1);
  }
  QPixmap picture = QPixmap::fromImage(page);
  picture.setDevicePixelRatio(ratio);
  m_picture->setPixmap(picture);
}

} // namespace drafton
