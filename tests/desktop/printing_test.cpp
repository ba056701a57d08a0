#include "drafton/desktop/printing.h"

#include "desktop/desktop_fixture.h"
#include "drafton/desktop/page_setup_dialog.h"
#include "drafton/render/sheet.h"
#include "frame/file_path.h"
#include "frame/system_services.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include <array>

using namespace drafton;

namespace {

/// What stands in a PDF file, as far as these tests ask.
class Pdf {
 public:
  explicit Pdf(const QString& path) {
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) m_bytes = file.readAll();
    unpack();
  }
  bool isOne() const { return m_bytes.startsWith("%PDF-"); }
  int pages() const { return static_cast<int>(m_bytes.count("/MediaBox [")); }
  /// Of the page, in millimetres.
  QSizeF size() const {
    const qsizetype at = m_bytes.indexOf("/MediaBox [") + 11;
    const QList<QByteArray> box =
        m_bytes.mid(at, m_bytes.indexOf(']', at) - at).simplified().split(' ');
    if (box.size() != 4) return {};
    return QSizeF(box[2].toDouble(), box[3].toDouble()) / 72 * 25.4;
  }
  /// True if pictures stand on the page.
  bool hasPictures() const { return m_bytes.contains("/Subtype /Image"); }
  /// The lines of the page's content that end with an operator.
  int operators(const char* name) const {
    int count = 0;
    for (const QByteArray& line : m_content.split('\n'))
      for (const QByteArray& word : line.split(' ')) count += word == name;
    return count;
  }
  /// The colours that lines are drawn with, but for the black with which each page begins.
  QSet<QByteArray> strokes() const {
    QSet<QByteArray> colors;
    const QList<QByteArray> words = m_content.simplified().split(' ');
    for (qsizetype i = 3; i < words.size(); ++i)
      if (words[i] == "SCN") colors << words[i - 3] + ' ' + words[i - 2] + ' ' + words[i - 1];
    colors.remove("0 0 0");
    return colors;
  }

 private:
  void unpack() {
    for (qsizetype at = m_bytes.indexOf("stream\n"); at >= 0;
         at = m_bytes.indexOf("stream\n", m_bytes.indexOf("endstream", at) + 9)) {
      const qsizetype begin = at + 7, end = m_bytes.indexOf("endstream", begin);
      // Qt wants the length of what comes out first; it is a hint.
      const QByteArray packed = m_bytes.mid(begin, end - begin);
      if (packed.startsWith('\x78')) m_content += qUncompress(QByteArray("\0\1\0\0", 4) + packed);
    }
  }
  QByteArray m_bytes, m_content;
};

class PrintingTest : public DesktopFixture {
 protected:
  Printing& printing() { return window().printing(); }
  OdDbLayoutPtr layout() { return oddb::activeLayout(database()).safeOpenObject(); }
  Pdf exported() {
    EXPECT_TRUE(printing().exportPdf(path("out.pdf"))) << dialogs.said.join(u'\n').toStdString();
    return Pdf(path("out.pdf"));
  }
  /// Does something in the page setup when it comes up.
  void inSetup(std::function<void(PageSetupDialog&)> act) {
    auto* const timer = new QTimer(&window());
    QObject::connect(timer, &QTimer::timeout, timer, [act = std::move(act), timer, this] {
      auto* const dialog = qobject_cast<PageSetupDialog*>(QApplication::activeModalWidget());
      if (!dialog) return;
      timer->stop();
      timer->deleteLater();
      ++m_setups;
      act(*dialog);
      if (dialog->isVisible()) dialog->reject();
    });
    timer->start(1);
  }
  void openSetup(std::function<void(PageSetupDialog&)> act) {
    inSetup(std::move(act));
    window().actions().find(u"pageSetup")->trigger();
  }
  static QComboBox& list(PageSetupDialog& dialog, const char* name) {
    return *dialog.findChild<QComboBox*>(QString::fromLatin1(name));
  }
  static void pick(PageSetupDialog& dialog, const char* name, const char* text) {
    QComboBox& box = list(dialog, name);
    const int index = box.findText(QString::fromLatin1(text));
    ASSERT_GE(index, 0) << text;
    box.setCurrentIndex(index);
    Q_EMIT box.activated(index);
  }
  int m_setups = 0;
};

TEST_F(PrintingTest, WritesThePdfOfTheSheetOrSaysWhyNot) {
  type("LINE 0,0 5,5  ");
  EXPECT_TRUE(printing().exportPdf(path("sheet")));
  EXPECT_TRUE(Pdf(path("sheet.pdf")).isOne());
  EXPECT_FALSE(printing().exportPdf(path("no/such/folder/sheet.pdf")));
  ASSERT_EQ(dialogs.said.size(), 1);
  EXPECT_TRUE(dialogs.said[0].contains(QStringLiteral("sheet.pdf is not written: ")));
}

TEST_F(PrintingTest, PrintsTheSheetOnItsPaperAsLines) {
  type("LAYOUT Set Layout1\nLINE 0,0 50,50  CIRCLE 100,100 40 ");
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(path("printed.pdf"));
  drafton::setPaper(printer, database());
  EXPECT_EQ(printer.pageLayout().orientation(), QPageLayout::Landscape) << "420 x 297";
  EXPECT_TRUE(printSheet(printer, database()));
  const Pdf pdf(path("printed.pdf"));
  ASSERT_TRUE(pdf.isOne());
  EXPECT_EQ(pdf.pages(), 1);
  EXPECT_NEAR(pdf.size().width(), 420, 0.5);
  EXPECT_NEAR(pdf.size().height(), 297, 0.5);
  EXPECT_GE(pdf.operators("l"), 1);
  EXPECT_GE(pdf.operators("S"), 2);
  EXPECT_FALSE(pdf.hasPictures());
}

TEST_F(PrintingTest, WhatIsSetUpIsKeptWithTheLayoutAsOneStep) {
  type("LAYOUT Set Layout1\nLINE 0,0 50,50  ");
  openSetup([](PageSetupDialog& dialog) {
    EXPECT_EQ(list(dialog, "paper").currentText(), QStringLiteral("A3"));
    EXPECT_EQ(list(dialog, "way").currentText(), QStringLiteral("Landscape"));
    pick(dialog, "paper", "A4");
    pick(dialog, "way", "Portrait");
    pick(dialog, "area", "Extents");
    list(dialog, "scale").setEditText(QStringLiteral("1:2"));
    pick(dialog, "style", "Monochrome");
    dialog.findChild<QCheckBox*>()->setChecked(true);
    dialog.accept();
  });
  ASSERT_EQ(m_setups, 1);
  EXPECT_EQ(layout()->getPlotPaperSize(), (OdGePoint2d{210, 297}));
  EXPECT_EQ(layout()->getCanonicalMediaName(), QStringLiteral("ISO_A4_(210.00_x_297.00_MM)"));
  EXPECT_EQ(layout()->plotType(), OdDbPlotSettings::kExtents);
  EXPECT_EQ(layout()->plotScale(), 0.5);
  EXPECT_EQ(layout()->getCurrentStyleSheet(), QStringLiteral("monochrome.ctb"));
  EXPECT_TRUE(layout()->plotFlag(OdDbPlotSettings::kPlotCentered));
  EXPECT_NEAR(exported().size().width(), 210, 0.5);
  // And in the file.
  dialogs.toSave = path("kept.dxf");
  window().actions().find(u"saveAs")->trigger();
  const OdDbDatabasePtr read = OdDbDatabase::readFile(odpath::fromPlatform(dialogs.toSave));
  const OdDbLayoutPtr stored = oddb::findLayout(*read, QStringLiteral("Layout1")).safeOpenObject();
  EXPECT_EQ(stored->getPlotPaperSize(), (OdGePoint2d{210, 297}));
  EXPECT_EQ(stored->getCurrentStyleSheet(), QStringLiteral("monochrome.ctb"));
  type("U ");
  EXPECT_EQ(layout()->getPlotPaperSize(), (OdGePoint2d{420, 297}));
  EXPECT_EQ(layout()->getCurrentStyleSheet(), OdString());
}

TEST_F(PrintingTest, GivingUpTheSetupChangesNothing) {
  type("LAYOUT Set Layout1\n");
  database().setSaved();
  openSetup([](PageSetupDialog& dialog) {
    pick(dialog, "paper", "A0");
    dialog.reject();
  });
  EXPECT_EQ(layout()->getPlotPaperSize(), (OdGePoint2d{420, 297}));
  EXPECT_FALSE(document().isModified());
}

TEST_F(PrintingTest, TheModelIsFittedUntilItIsSetUp) {
  type("LINE 0,0 1000,500  ");
  EXPECT_FALSE(hasPaper(*layout()));
  EXPECT_NEAR(exported().size().width(), 297, 0.5) << "A4 across";
  openSetup([](PageSetupDialog& dialog) {
    EXPECT_EQ(list(dialog, "area").findText(QStringLiteral("Layout")), -1);
    EXPECT_EQ(list(dialog, "scale").currentText(), QStringLiteral("Fit to the paper"));
    pick(dialog, "paper", "A2");
    dialog.accept();
  });
  EXPECT_NEAR(exported().size().width(), 594, 0.5);
  const Sheet sheet = plotOf(*layout(), [] {
    OdGeExtents3d box;
    box.addPoint({0, 0, 0});
    box.addPoint({1000, 500, 0});
    return box;
  });
  EXPECT_NEAR(sheet.scale, (594 - 15) / 1000.0, 1e-9) << "as wide as the margins allow";
  EXPECT_TRUE(layout()->isModelType());
  EXPECT_EQ(window().documents().canvas()->view().layout(), nullptr) << "no paper to draw on";
}

TEST_F(PrintingTest, TheWindowIsPickedInTheDrawingAndTheDialogComesBack) {
  type("LINE 0,0 10,10  CIRCLE 100,100 5 ");
  openSetup([](PageSetupDialog& dialog) {
    EXPECT_FALSE(dialog.findChild<QPushButton*>(QStringLiteral("pick"))->isEnabled());
    pick(dialog, "area", "Window");
  });
  EXPECT_EQ(document().processor().runningCommands(), QStringList{QStringLiteral("PAGESETUP")});
  inSetup([](PageSetupDialog& dialog) {
    EXPECT_EQ(list(dialog, "area").currentText(), QStringLiteral("Window"));
    EXPECT_TRUE(dialog.findChild<QPushButton*>(QStringLiteral("pick"))->isEnabled());
    dialog.accept();
  });
  click(-10, -5);
  click(10, 5);
  ASSERT_TRUE(QTest::qWaitFor([this] { return m_setups == 2; }));
  EXPECT_FALSE(desktop().isBusy());
  OdGePoint2d low, high;
  layout()->getPlotWindowArea(low, high);
  EXPECT_NEAR(low.x, -10, 0.2);
  EXPECT_NEAR(high.y, 5, 0.2);
  const Pdf pdf = exported();
  EXPECT_GE(pdf.operators("l"), 1);
  EXPECT_EQ(pdf.operators("c"), 0) << "the circle stands outside";
}

TEST_F(PrintingTest, PlotStylesMakeOfColoursWhatTheySay) {
  type(
      "LAYOUT Set Layout1\n-COLOR 1 LINE 10,10 50,50  -COLOR Truecolor 0,0,255 LINE 10,50 50,10  ");
  EXPECT_EQ(exported().strokes(), (QSet<QByteArray>{"1 0 0", "0 0 1"}));
  for (const auto& [style, colors] : {std::pair("Monochrome", 0), std::pair("Grayscale", 2)}) {
    openSetup([style = style](PageSetupDialog& dialog) {
      pick(dialog, "style", style);
      dialog.accept();
    });
    const QSet<QByteArray> strokes = exported().strokes();
    EXPECT_EQ(strokes.size(), colors) << style;
    for (const QByteArray& color : strokes) {
      const QList<QByteArray> parts = color.split(' ');
      EXPECT_TRUE(parts[0] == parts[1] && parts[1] == parts[2]) << color.toStdString();
    }
  }
}

TEST_F(PrintingTest, OwnSizesAndScalesAreTakenAndNonsenseIsTold) {
  type("LAYOUT Set Layout1\n");
  openSetup([](PageSetupDialog& dialog) {
    auto* const width = dialog.findChild<QDoubleSpinBox*>(QStringLiteral("width"));
    EXPECT_FALSE(width->isEnabled());
    pick(dialog, "paper", "Other size");
    EXPECT_TRUE(width->isEnabled());
    width->setValue(300);
    dialog.findChild<QDoubleSpinBox*>(QStringLiteral("height"))->setValue(900.5);
    EXPECT_EQ(list(dialog, "way").currentText(), QStringLiteral("Portrait"));
    list(dialog, "scale").setEditText(QStringLiteral("1:2.5"));
    list(dialog, "scale").setEditText(QStringLiteral("1:nothing"));
    bool isTold = false;
    for (const QLabel* const label : dialog.findChildren<QLabel*>())
      isTold = isTold || label->text() == QStringLiteral("A scale looks like 1:50.");
    EXPECT_TRUE(isTold);
    dialog.accept();
  });
  EXPECT_EQ(layout()->getPlotPaperSize(), (OdGePoint2d{300, 900.5}));
  EXPECT_EQ(layout()->plotScale(), 0.4) << "the last one that was a scale";
  EXPECT_FALSE(parsePlotScale(QStringLiteral("0:1")));
  EXPECT_FALSE(parsePlotScale(QStringLiteral("1:2:3")));
  EXPECT_FALSE(parsePlotScale(QString()));
  EXPECT_EQ(parsePlotScale(QStringLiteral(" 2 ")), std::pair(2.0, 1.0));
}

TEST_F(PrintingTest, AStyleTableThatIsNotKnownStays) {
  type("LAYOUT Set Layout1\nPAGESETUP Table office.ctb\n\n");
  openSetup([](PageSetupDialog& dialog) {
    EXPECT_EQ(list(dialog, "style").currentText(), QStringLiteral("office.ctb"));
    pick(dialog, "paper", "A4");
    dialog.accept();
  });
  EXPECT_EQ(layout()->getCurrentStyleSheet(), QStringLiteral("office.ctb"));
}

TEST_F(PrintingTest, TheSuggestedFileStandsBesideTheDrawing) {
  dialogs.toSave = path("plan.v2.dxf");
  window().actions().find(u"saveAs")->trigger();
  dialogs.toSave = path("plan.v2.pdf");
  window().actions().find(u"exportPdf")->trigger();
  EXPECT_EQ(dialogs.suggested, path("plan.v2.pdf"));
  EXPECT_TRUE(Pdf(dialogs.suggested).isOne());
}

} // namespace
