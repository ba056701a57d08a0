// How the window zooms and pans.
#include "desktop/desktop_fixture.h"
#include "drawing/entities/line.h"

using namespace drafton;

namespace {

using WindowViews = DesktopFixture;

TEST_F(WindowViews, WheelZoomsAboutTheCursorAndTheMiddleButtonPans) {
  const QPoint place = at(5, 5);
  QWheelEvent wheel(place, canvas().mapToGlobal(place), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  const double before = document().pixelSize();
  QApplication::sendEvent(&canvas(), &wheel);
  EXPECT_NEAR(document().pixelSize(), before / 1.2, 1e-9);
  EXPECT_LE((at(5, 5) - place).manhattanLength(), 2);

  QTest::mousePress(&canvas(), Qt::MiddleButton, Qt::NoModifier, place);
  QTest::mouseMove(&canvas(), place + QPoint(40, 30));
  QTest::mouseRelease(&canvas(), Qt::MiddleButton, Qt::NoModifier, place + QPoint(40, 30));
  EXPECT_LE((at(5, 5) - place - QPoint(40, 30)).manhattanLength(), 2);
  EXPECT_FALSE(document().isModified()) << "looking around changes nothing";
}

TEST_F(WindowViews, DoubleMiddleClickShowsEverything) {
  type("LINE 1000,1000 1010,1010  ");
  QTest::mouseDClick(&canvas(), Qt::MiddleButton, Qt::NoModifier, canvas().rect().center());
  EXPECT_TRUE(canvas().rect().contains(at(1000, 1000)));
  EXPECT_TRUE(canvas().rect().contains(at(1010, 1010)));
  EXPECT_FALSE(canvas().rect().contains(at(900, 900)));
}

TEST_F(WindowViews, ShowingAllAndGoingBackLeavesCommandsAndTheDrawingAlone) {
  type("LINE 1000,1000 1010,1010  ");
  database().setSaved();
  const std::size_t steps = database().undoDepth();
  const QPoint before = at(0, 0);
  type("LINE 0,0 ");
  window().actions().find(u"zoomExtents")->trigger();
  EXPECT_TRUE(canvas().rect().adjusted(4, 4, -4, -4).contains(at(1000, 1000))) << "with room";
  EXPECT_FALSE(canvas().rect().contains(at(900, 900)));
  window().actions().find(u"zoomPrevious")->trigger();
  EXPECT_LE((at(0, 0) - before).manhattanLength(), 2);
  EXPECT_TRUE(desktop().isBusy()) << "the line waits for its next point";
  press(Qt::Key_Escape);
  EXPECT_EQ(database().undoDepth(), steps);
  EXPECT_FALSE(database().isModified());
}

TEST_F(WindowViews, ABoxZoomsWhileACommandWaits) {
  type("LINE 0,0 ");
  const QPoint before = at(0, 0);
  window().actions().find(u"zoomWindow")->trigger();
  click(2, 2);
  click(6, 4);
  EXPECT_TRUE(canvas().rect().adjusted(-2, -2, 2, 2).contains(at(2, 2)));
  EXPECT_TRUE(canvas().rect().adjusted(-2, -2, 2, 2).contains(at(6, 4)));
  EXPECT_FALSE(canvas().rect().contains(at(0, 0)));
  window().actions().find(u"zoomPrevious")->trigger();
  EXPECT_LE((at(0, 0) - before).manhattanLength(), 2);
  window().actions().find(u"zoomWindow")->trigger();
  drag(-3, -3, 3, 3);
  EXPECT_GT((at(0, 0) - at(3, 0)).manhattanLength(), 60) << "by dragging";
  window().actions().find(u"zoomWindow")->trigger();
  QTest::mouseClick(&canvas(), Qt::RightButton, Qt::NoModifier, at(1, 1));
  ASSERT_TRUE(desktop().isBusy()) << "the right button has given the box up, not the line";
  click(1, 1);
  type(" ");
  EXPECT_NEAR(only<OdDbLine>()->endPoint().x, 1, 0.1);
  document().preselection() = {only<OdDbLine>()->objectId()};
  window().actions().find(u"zoomWindow")->trigger();
  drag(0, 0, 1, 0);
  EXPECT_EQ(document().preselection().size(), 1u)
      << "what is chosen stays so; a line is a box, too";
}

TEST_F(WindowViews, GoingBackFindsTheViewBeforeZoomWhereThatWasLater) {
  type("LINE 0,0 5,5  ");
  const QPoint before = at(0, 0);
  window().actions().find(u"zoomExtents")->trigger();
  const QPoint shown = at(5, 5);
  type("ZOOM Center 100,100 10 ");
  window().actions().find(u"zoomPrevious")->trigger();
  EXPECT_LE((at(5, 5) - shown).manhattanLength(), 2);
  EXPECT_GT((at(0, 0) - before).manhattanLength(), 2) << "one step back, not two";
}

TEST_F(WindowViews, ZoomAndItsUndoMoveTheCanvas) {
  type("LINE 0,0 1,1  ");
  const QPoint before = at(0, 0);
  type("ZOOM Center 100,100 10 ");
  EXPECT_TRUE(canvas().rect().contains(at(100, 100)));
  EXPECT_FALSE(canvas().rect().contains(at(0, 0)));
  window().actions().find(u"UNDO")->trigger();
  EXPECT_LE((at(0, 0) - before).manhattanLength(), 2);
}

} // namespace
