#include "desktop/desktop_fixture.h"
#include "drafton/desktop/options_dialog.h"
#include "drafton/program/program_setup.h"
#include "host/window_services.h"

#include <QDockWidget>
#include <QFile>
#include <QPointer>

using namespace drafton;

namespace {

class SampleTest : public DesktopFixture {
 protected:
  ~SampleTest() override { QApplication::setPalette(QPalette()); }

  void open(const char* name) {
    const QString file =
        QStringLiteral(SOURCE_DIR "/samples/drawings/") + QString::fromLatin1(name);
    ASSERT_TRUE(window().files().openFile(file));
    window().resize(1400, 900);
    QApplication::processEvents();
  }
  /// Nothing of the drawing is cut by the canvas' edge.
  bool seesAll() {
    const QImage image = canvas().grab().toImage();
    const QRgb ground = canvasColors(isDark(canvas().palette())).ground.rgb();
    const int right = image.width() - 1, bottom = image.height() - 1;
    const auto isGround = [&](int x, int y) { return (image.pixel(x, y) | 0xFF000000u) == ground; };
    for (int x = 0; x <= right; ++x)
      if (!isGround(x, 0) || !isGround(x, bottom)) return false;
    for (int y = 0; y <= bottom; ++y)
      if (!isGround(0, y) || !isGround(right, y)) return false;
    return true;
  }
  struct PaneEvents : IHostPaneEvents {
    QPointer<QWidget> content = new QWidget;
    void paneClosed() override {}
    void paneDestroyed() override {}
  };
  /// The share of the canvas' pixels that are not the ground.
  double inked() {
    const QImage image = canvas().grab().toImage();
    const QRgb ground = canvasColors(isDark(canvas().palette())).ground.rgb();
    qint64 other = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) other += (image.pixel(x, y) | 0xFF000000u) != ground;
    return static_cast<double>(other) / (image.width() * image.height());
  }
};

TEST_F(SampleTest, TheFloorPlanIsSeenAsAWholeAtTheFirstGlance) {
  open("floor-plan.dxf");
  EXPECT_GT(inked(), 0.02);
  EXPECT_TRUE(seesAll());
  // The first layout of a small screen, which comes after the drawing.
  const auto services = kvQuery<IHostWindowServices>(&desktop().engine().services());
  PaneEvents events;
  const KVPtr<IHostPane> palettes = services->createPane(
      QStringLiteral("Palettes"), QStringLiteral("Palettes"), events.content, &events);
  palettes->show(true);
  window().resize(1280, 800);
  for (int i = 0; i < 3; ++i) QApplication::processEvents();
  EXPECT_TRUE(seesAll());
  EXPECT_GT(events.content->height(), 400) << "several rows of pictures";
  EXPECT_LT(events.content->mapTo(&window(), QPoint()).y(),
            window().findChild<QDockWidget*>(QStringLiteral("inspector"))->y());
  EXPECT_FALSE(document().isModified());
  EXPECT_TRUE(dialogs.said.isEmpty());
  picture("floor-plan");
  type("INSERT ");
  picture("floor-plan-insert");
  press(Qt::Key_Escape);
}

TEST_F(SampleTest, WhoLookedElsewhereKeepsThePlaceWhateverTheSize) {
  open("floor-plan.dxf");
  canvas().view().zoom(3, QPointF(100, 100));
  const View before = canvas().view().view();
  window().resize(1280, 800);
  QApplication::processEvents();
  EXPECT_DOUBLE_EQ(canvas().view().view().scale, before.scale);
  EXPECT_FALSE(seesAll());
}

TEST_F(SampleTest, LooksRightInTheDark) {
  stop();
  applyTheme(QStringLiteral("Dark"));
  start();
  EXPECT_TRUE(isDark(window().palette()));
  open("floor-plan.dxf");
  EXPECT_LT(qGray(canvas().grab().toImage().pixel(3, 3)), 64);
  EXPECT_GT(inked(), 0.02);
  picture("floor-plan-dark");
  applyTheme(QStringLiteral("Light"));
}

TEST_F(SampleTest, ASheetLiesOnItsDesk) {
  open("mechanical-sheet.dxf");
  QTabBar& tabs = window().documents().layoutTabs();
  ASSERT_GT(tabs.count(), 1);
  QTest::mouseClick(&tabs, Qt::LeftButton, Qt::NoModifier, tabs.tabRect(1).center());
  const QImage image = canvas().grab().toImage();
  EXPECT_EQ(image.pixel(2, 2) | 0xFF000000u, canvasColors(false).desk.rgb());
  picture("sheet");
}

// --- what can go wrong at the start

TEST_F(SampleTest, WithoutTheModuleItSaysSoAndGoesOn) {
  EXPECT_FALSE(loadToolPalettes(desktop().engine()));
  EXPECT_TRUE(history().contains(QStringLiteral("is not loaded: there is no such file")));
  type("LINE 0,0 1,1  ");
  EXPECT_EQ(entities().size(), 1u);
}

TEST_F(SampleTest, AGarbledSettingsFileIsToldAndLeftAlone) {
  stop();
  QFile file(path("drafton.ini"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
  const QByteArray garbage("\x01\x02 no settings [ at all\n\xff\xfe");
  file.write(garbage);
  file.close();
  start();
  EXPECT_TRUE(history().contains(QStringLiteral("drafton.ini"))) << history().toStdString();
  type("LINE 0,0 1,1  ");
  EXPECT_EQ(entities().size(), 1u);
  EXPECT_TRUE(window().close());
  stop();
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), garbage);
}

TEST_F(SampleTest, StatesOfALaterVersionArePassedOver) {
  desktop().setSetting("Geometry", OdString(QStringLiteral("!!!! not base64 ####")));
  desktop().setSetting("Windows", OdString::fromLatin1(QByteArray("later version").toBase64()));
  stop();
  start();
  EXPECT_TRUE(window().isVisible());
  EXPECT_TRUE(window().commandLine().isVisible());
}

} // namespace
