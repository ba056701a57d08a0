#include "desktop/desktop_fixture.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"

#include <QMenu>
#include <QTimer>
#include <QToolButton>

using namespace drafton;

namespace {

class CanvasTest : public DesktopFixture {
 protected:
  std::size_t chosen() { return document().preselection().size(); }
  /// What the running command shows for a point.
  PreviewShapes shown(double x, double y) {
    const InputRequest* const asked = document().processor().request();
    return asked ? asked->preview({x, y, 0}) : PreviewShapes();
  }
  template <class T>
  OdSmartPtr<T> onlyShown(double x, double y) {
    const PreviewShapes shapes = shown(x, y);
    EXPECT_EQ(shapes.size(), 1u);
    return shapes.empty() ? OdSmartPtr<T>() : OdSmartPtr<T>(odrxCast<T>(shapes.front().get()));
  }
  QImage grabbed() { return canvas().grab().toImage(); }
  void set(Aid aid, bool on) { DraftingAids(desktop()).set(aid, on); }
};

// --- choosing

TEST_F(CanvasTest, AClickChoosesAndWithShiftNoMore) {
  type("LINE -5,0 5,0  LINE -5,5 5,5  ");
  click(0, 0);
  EXPECT_EQ(chosen(), 1u);
  click(0, 5);
  EXPECT_EQ(chosen(), 2u);
  picture("chosen");
  click(3, 0, Qt::ShiftModifier);
  EXPECT_EQ(chosen(), 1u);
  press(Qt::Key_Escape);
  EXPECT_EQ(chosen(), 0u);
}

TEST_F(CanvasTest, ABoxToTheRightTakesWhatIsInsideToTheLeftWhatItCuts) {
  type("LINE -5,0 5,0  LINE -1,2 1,2  ");
  click(-2, 3);
  click(2, -1);
  EXPECT_EQ(chosen(), 1u) << "by two clicks";
  press(Qt::Key_Escape);
  drag(2, 3, -2, -1);
  EXPECT_EQ(chosen(), 2u) << "by dragging";
}

TEST_F(CanvasTest, EscGivesABoxUpBeforeTheChoice) {
  type("LINE -5,0 5,0  ");
  click(0, 0);
  click(3, 3);
  press(Qt::Key_Escape);
  EXPECT_EQ(chosen(), 1u);
  click(3, 3);
  EXPECT_EQ(chosen(), 1u) << "a new box has begun";
  press(Qt::Key_Escape);
  press(Qt::Key_Escape);
  EXPECT_EQ(chosen(), 0u);
}

TEST_F(CanvasTest, WhatIsChosenGoesIntoTheNextCommandFromKeyboardMenuAndDeleteKey) {
  type("LINE -5,0 5,0  LINE -5,5 5,5  LINE -5,-5 5,-5  ");
  click(0, 0);
  type("ERASE ");
  EXPECT_EQ(entities().size(), 2u);
  click(0, 5);
  window().actions().find(u"ERASE")->trigger();
  EXPECT_EQ(entities().size(), 1u);
  click(0, -5);
  QTest::keyClick(&window(), Qt::Key_Delete);
  EXPECT_EQ(entities().size(), 0u);
}

TEST_F(CanvasTest, WhatIsOnALockedLayerIsNotChosen) {
  type("LINE -5,0 5,0  -LAYER LOck 0  ");
  press(Qt::Key_Escape);
  click(0, 0);
  press(Qt::Key_Escape);
  EXPECT_EQ(chosen(), 0u);
}

TEST_F(CanvasTest, ACommandsBoxIsDraggedOrClicked) {
  type("LINE -1,0 1,0  ERASE ");
  drag(-2, 1, 2, -1);
  EXPECT_EQ(document().chosen().size(), 1u);
  press(Qt::Key_Return);
  EXPECT_EQ(entities().size(), 0u);
  EXPECT_TRUE(document().chosen().empty());
}

TEST_F(CanvasTest, TheEntityUnderTheCursorStandsOut) {
  type("LINE -5,0 5,0  ");
  moveTo(5, 8);
  const QImage before = grabbed();
  moveTo(0, 0);
  const QImage after = grabbed();
  const QPoint beside = at(4, 0) + QPoint(0, 2);
  EXPECT_NE(before.pixel(beside), after.pixel(beside));
}

// --- what is about to be drawn

TEST_F(CanvasTest, ALineFollowsTheCursorOnThePicture) {
  type("LINE -5,0 ");
  moveTo(5, 5);
  picture("line");
  const QImage picture = grabbed();
  const QPoint middle = at(0, 2.5);
  bool isDrawn = false;
  for (int dy = -1; dy <= 1; ++dy)
    isDrawn = isDrawn || qGray(picture.pixel(middle + QPoint(0, dy))) < 128;
  EXPECT_TRUE(isDrawn);
  EXPECT_TRUE(entities().empty());
}

TEST_F(CanvasTest, EachDrawingCommandShowsItsShape) {
  type("LINE 0,0 ");
  EXPECT_EQ(onlyShown<OdDbLine>(3, 4)->endPoint().y, 4);
  press(Qt::Key_Escape);
  type("CIRCLE 0,0 ");
  EXPECT_EQ(onlyShown<OdDbCircle>(3, 4)->radius(), 5);
  EXPECT_TRUE(shown(0, 0).empty()) << "there is no circle without a radius";
  type("Diameter ");
  EXPECT_EQ(onlyShown<OdDbCircle>(3, 4)->radius(), 2.5);
  press(Qt::Key_Escape);
  type("ARC 0,0 1,1 ");
  EXPECT_NEAR(onlyShown<OdDbArc>(2, 0)->radius(), 1, 1e-9);
  EXPECT_TRUE(shown(2, 2).empty()) << "three points in a line";
  press(Qt::Key_Escape);
  type("RECTANG 1,1 ");
  EXPECT_EQ(onlyShown<OdDbPolyline>(3, 4)->numVerts(), 4u);
  press(Qt::Key_Escape);
  type("PLINE 0,0 2,0 Arc ");
  EXPECT_NEAR(onlyShown<OdDbPolyline>(2, 2)->getBulgeAt(0), 1, 1e-9);
  press(Qt::Key_Escape);
}

TEST_F(CanvasTest, EachEditingCommandShowsWhatBecomesOfTheChoice) {
  type("LINE 1,0 2,0  ");
  type("MOVE Last\n\n0,0 ");
  EXPECT_EQ(onlyShown<OdDbLine>(0, 5)->startPoint().y, 5);
  press(Qt::Key_Escape);
  type("COPY Last\n\n0,0 ");
  EXPECT_EQ(onlyShown<OdDbLine>(0, 5)->startPoint().y, 5);
  press(Qt::Key_Escape);
  type("ROTATE Last\n\n0,0 ");
  EXPECT_NEAR(onlyShown<OdDbLine>(0, 5)->startPoint().y, 1, 1e-9);
  press(Qt::Key_Escape);
  type("SCALE Last\n\n0,0 ");
  EXPECT_NEAR(onlyShown<OdDbLine>(0, 5)->startPoint().x, 5, 1e-9);
  press(Qt::Key_Escape);
  type("MIRROR Last\n\n0,0 ");
  EXPECT_NEAR(onlyShown<OdDbLine>(0, 5)->startPoint().x, -1, 1e-9);
  EXPECT_TRUE(shown(0, 0).empty());
  press(Qt::Key_Escape);
  EXPECT_EQ(only<OdDbLine>()->startPoint().x, 1) << "nothing of it was done";
}

TEST_F(CanvasTest, AnInsertWithAttributesIsShownWhileItIsMoved) {
  type("LAYER Make Tags  ATTDEF \nNo\nNumber?\n1\n0,0 3 0 BLOCK Tag 0,0 Last  ");
  type("INSERT Tag 2,2 1 1 0 42\n");
  ASSERT_EQ(entities().size(), 1u);
  moveTo(-5, -5);
  const QImage before = grabbed();
  type("MOVE Last  0,0 ");
  moveTo(5, 5);
  EXPECT_EQ(shown(5, 5).size(), 1u);
  EXPECT_NE(grabbed(), before);
  press(Qt::Key_Escape);
}

TEST_F(CanvasTest, ABlockHangsAtTheCursorThenTurns) {
  type("CIRCLE 0,0 1 BLOCK dot 0,0 Last\n\n");
  type("INSERT dot\n");
  ASSERT_EQ(onlyShown<OdDbBlockReference>(3, 4)->position().y, 4);
  moveTo(3, 4);
  picture("insert");
  type("3,4 1\n\n");
  EXPECT_NEAR(onlyShown<OdDbBlockReference>(3, 9)->rotation(), kOdaPi / 2, 1e-9);
  EXPECT_EQ(onlyShown<OdDbBlockReference>(3, 4)->rotation(), 0) << "as Enter would turn it";
}

// --- grips

TEST_F(CanvasTest, AGripStretchesALineAndOneUndoTakesItBack) {
  type("LINE 0,0 5,0  ");
  click(2, 0);
  click(5, 0);
  moveTo(5, 5);
  picture("grip");
  click(5, 5);
  EXPECT_NEAR(only<OdDbLine>()->endPoint().y, 5, 0.06);
  EXPECT_EQ(only<OdDbLine>()->startPoint().x, 0);
  type("U ");
  EXPECT_EQ(only<OdDbLine>()->endPoint().y, 0);
}

TEST_F(CanvasTest, AMiddleGripMovesAndEscLeavesItWhereItWas) {
  type("LINE 0,0 4,0  ");
  click(1, 0);
  click(2, 0);
  moveTo(2, 3);
  press(Qt::Key_Escape);
  EXPECT_EQ(only<OdDbLine>()->startPoint().y, 0);
  drag(2, 0, 2, 3);
  EXPECT_NEAR(only<OdDbLine>()->startPoint().y, 3, 0.06);
  EXPECT_NEAR(only<OdDbLine>()->endPoint().y, 3, 0.06);
}

TEST_F(CanvasTest, AGripGoesWhereIsTyped) {
  set(Aid::kOrtho, true);
  type("LINE 0,0 4,0  ");
  click(1, 0);
  click(4, 0);
  moveTo(4, 3);
  type("7 ");
  EXPECT_EQ(only<OdDbLine>()->endPoint(), OdGePoint3d(4, 7, 0)) << "towards the cursor";
  click(0, 0);
  type("@-2,1 ");
  EXPECT_EQ(only<OdDbLine>()->startPoint(), OdGePoint3d(-2, 1, 0)) << "from where it was";
  type("U ");
  EXPECT_EQ(only<OdDbLine>()->startPoint(), OdGePoint3d(0, 0, 0)) << "a command again";
  click(0, 0);
  type("\n");
  EXPECT_FALSE(desktop().isBusy()) << "Enter repeats no command now";
  type("nowhere ");
  EXPECT_TRUE(history().contains(QStringLiteral("Invalid point.")));
}

// --- aids

TEST_F(CanvasTest, AClickGoesToTheSnapNotToTheCursor) {
  type("LINE 0,0 5,0  ");
  set(Aid::kSnap, true);
  type("LINE ");
  moveTo(5.1, 0.15);
  picture("snap");
  ASSERT_TRUE(canvas().cursorPlace()->snap);
  click(5.1, 0.15);
  type("5,5  ");
  const OdDbLinePtr line = odrxCast<OdDbLine>(entities().back().get());
  EXPECT_EQ(line->startPoint(), OdGePoint3d(5, 0, 0));
}

TEST_F(CanvasTest, OrthoHoldsToXAndY) {
  set(Aid::kOrtho, true);
  type("LINE 0,0 ");
  click(5, 1);
  type(" ");
  EXPECT_EQ(only<OdDbLine>()->endPoint().y, 0);
}

TEST_F(CanvasTest, ATypedNumberIsADistanceTowardsTheCursor) {
  set(Aid::kOrtho, true);
  type("LINE 0,0 ");
  moveTo(6, 1);
  EXPECT_TRUE(window().statusLine().placeText().endsWith(QStringLiteral("<0")))
      << window().statusLine().placeText().toStdString();
  type("3 ");
  moveTo(4, 9);
  type("7.5  ");
  ASSERT_EQ(entities().size(), 2u) << history().toStdString();
  EXPECT_EQ(odrxCast<OdDbLine>(entities()[0].get())->endPoint(), OdGePoint3d(3, 0, 0));
  EXPECT_EQ(odrxCast<OdDbLine>(entities()[1].get())->endPoint(), OdGePoint3d(3, 7.5, 0));
}

TEST_F(CanvasTest, WithTheCursorElsewhereANumberIsNoPoint) {
  type("LINE 0,0 ");
  moveTo(5, 1);
  QEvent left(QEvent::Leave);
  QApplication::sendEvent(&canvas(), &left);
  type("3 ");
  EXPECT_TRUE(history().contains(QStringLiteral("Invalid point.")));
  type(" ");
  EXPECT_EQ(entities().size(), 0u);
}

TEST_F(CanvasTest, AWordSnapsOnePointToAKindAndNothingElse) {
  type("LINE 0,0 6,0  LINE ");
  type("mid ");
  moveTo(5.9, 0.1);
  EXPECT_FALSE(canvas().cursorPlace()->snap) << "snaps are off, and this is an end";
  click(5.9, 0.1);
  EXPECT_TRUE(history().contains(QStringLiteral("There is no such place here.")));
  click(3.2, 0.2);
  click(3, 8);
  type(" ");
  const OdDbLinePtr line = odrxCast<OdDbLine>(entities().back().get());
  EXPECT_EQ(line->startPoint(), OdGePoint3d(3, 0, 0));
  EXPECT_NEAR(line->endPoint().y, 8, 0.06) << "the next point is free again";
}

TEST_F(CanvasTest, NoneLeavesTheSnapsOutOfOnePoint) {
  type("LINE 0,0 6,0  ");
  set(Aid::kSnap, true);
  type("LINE ");
  type("none ");
  click(5.8, 0.2);
  type("9,9  ");
  EXPECT_NEAR(odrxCast<OdDbLine>(entities().back().get())->startPoint().x, 5.8, 0.06);
}

TEST_F(CanvasTest, ShiftAndTheRightButtonOfferTheSnaps) {
  type("LINE ");
  QStringList shown;
  QTimer waiting;
  QObject::connect(&waiting, &QTimer::timeout, &waiting, [&] {
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu) return;
    waiting.stop();
    for (const QAction* const action : menu->actions()) shown << action->text().remove(u'&');
    menu->actions()[1]->trigger();
    menu->close();
  });
  const QPoint place = at(3, 3);
  waiting.start(1);
  QTest::mouseClick(&canvas(), Qt::RightButton, Qt::ShiftModifier, place);
  EXPECT_EQ(shown.size(), 10);
  EXPECT_TRUE(shown.contains(QStringLiteral("Midpoint")));
  ASSERT_TRUE(desktop().isBusy());
  EXPECT_EQ(document().processor().request()->snapKinds(), static_cast<int>(SnapKind::kMiddle));
  EXPECT_EQ(document().processor().request()->shown(), QStringLiteral("Midpoint of: "));
}

TEST_F(CanvasTest, PolarHoldsToRoundAnglesWhereTheCursorIsNear) {
  set(Aid::kPolar, true);
  type("LINE 0,0 ");
  moveTo(5, 5.1);
  ASSERT_TRUE(canvas().cursorPlace()->trackedFrom);
  EXPECT_NEAR(canvas().cursorPlace()->point.x, canvas().cursorPlace()->point.y, 1e-9);
  moveTo(5, 3);
  EXPECT_FALSE(canvas().cursorPlace()->trackedFrom);
}

TEST_F(CanvasTest, OrthoAndPolarTakeTurns) {
  set(Aid::kPolar, true);
  set(Aid::kOrtho, true);
  EXPECT_FALSE(DraftingAids(desktop()).isOn(Aid::kPolar));
  set(Aid::kPolar, true);
  EXPECT_FALSE(DraftingAids(desktop()).isOn(Aid::kOrtho));
}

TEST_F(CanvasTest, FunctionKeysSwitchAidsAndTheStatusBarFollows) {
  struct Row {
    Qt::Key key;
    Aid aid;
  };
  for (const Row& row : {Row{Qt::Key_F3, Aid::kSnap}, Row{Qt::Key_F7, Aid::kGrid},
                         Row{Qt::Key_F8, Aid::kOrtho}, Row{Qt::Key_F10, Aid::kPolar}}) {
    QTest::keyClick(&window(), row.key);
    EXPECT_TRUE(DraftingAids(desktop()).isOn(row.aid)) << row.key;
    EXPECT_TRUE(window().statusLine().toggle(row.aid)->isChecked());
    QTest::keyClick(&window(), row.key);
    EXPECT_FALSE(DraftingAids(desktop()).isOn(row.aid));
  }
  type("ORTHOMODE 1 ");
  EXPECT_TRUE(window().statusLine().toggle(Aid::kOrtho)->isChecked()) << "by its variable";
}

TEST_F(CanvasTest, TheGridFillsTheGroundAndLeavesTheDrawing) {
  type("LINE -5,2 5,2  ");
  moveTo(8, 8);
  const QImage bare = grabbed();
  set(Aid::kGrid, true);
  canvas().update();
  const QImage ruled = grabbed();
  picture("grid");
  EXPECT_NE(bare, ruled);
  EXPECT_EQ(bare.pixel(at(2, 2)), ruled.pixel(at(2, 2)));
  EXPECT_NE(bare.pixel(at(5, 4)), ruled.pixel(at(5, 4)));
}

TEST_F(CanvasTest, TheRightButtonIsEnterWhileACommandRuns) {
  type("LINE 0,0 1,0 ");
  QTest::mouseClick(&canvas(), Qt::RightButton, Qt::NoModifier, at(3, 3));
  EXPECT_FALSE(desktop().isBusy());
  EXPECT_EQ(entities().size(), 1u);
}

} // namespace
