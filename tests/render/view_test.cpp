#include "drafton/render/view.h"

#include <gtest/gtest.h>

namespace render_test {
namespace {

using namespace drafton;

OdGeExtents3d box(const OdGePoint3d& low, const OdGePoint3d& high) {
  OdGeExtents3d made;
  made.addPoint(low);
  made.addPoint(high);
  return made;
}

void expectNear(const QPointF& a, const QPointF& b) {
  EXPECT_NEAR(a.x(), b.x(), 1e-6);
  EXPECT_NEAR(a.y(), b.y(), 1e-6);
}

TEST(View, FitsABoxIntoThePictureWithItsMargin) {
  View view;
  view.size = {200, 100};
  view = view.fitted(box({10, 20, 0}, {20, 30, 0}));
  expectNear(view.projection()(OdGePoint3d{15, 25, 0}), {100, 50});
  expectNear(view.projection()(OdGePoint3d{15, 30, 0}), {100, 0});
  view = view.fitted(box({10, 20, 0}, {20, 30, 0}), 0.1);
  expectNear(view.projection()(OdGePoint3d{15, 30, 0}), {100, 10});
}

TEST(View, FitsWhatHasNoHeightOrNoSize) {
  View view;
  view.size = {200, 100};
  EXPECT_EQ(view.fitted(box({0, 5, 0}, {10, 5, 0})).scale, 20);
  const View point = view.fitted(box({7, 5, 0}, {7, 5, 0}));
  EXPECT_EQ(point.scale, 1);
  expectNear(point.projection()(OdGePoint3d{7, 5, 0}), {100, 50});
  EXPECT_EQ(view.fitted(OdGeExtents3d()).scale, 1);
}

TEST(View, UnprojectTakesPixelsBack) {
  View view;
  view.size = {300, 200};
  view.origin = {40, 30};
  view.center = {5, 6};
  view.scale = 3;
  view.twist = 0.7;
  for (const QPointF pixel : {QPointF(40, 30), QPointF(190, 130), QPointF(300, 77)})
    expectNear(view.projection()(view.unproject(pixel)), pixel);
}

TEST(View, ZoomingKeepsWhatIsUnderThePixel) {
  View view;
  view.size = {300, 200};
  view.scale = 2;
  const OdGePoint3d place = view.unproject({30, 170});
  expectNear(view.zoomed(2.5, {30, 170}).projection()(place), {30, 170});
  expectNear(view.panned({10, -5}).projection()(place), {40, 165});
}

TEST(View, TwistTurnsTheDrawingClockwise) {
  View view;
  view.size = {200, 200};
  view.twist = kOdaPi / 2;
  // What points to the right points up in a view whose axes are turned.
  const QPointF right = view.projection()(OdGeVector3d{1, 0, 0});
  EXPECT_NEAR(std::abs(right.y()), 1, 1e-9);
  EXPECT_NEAR(right.x(), 0, 1e-9);
}

TEST(View, LooksFromTheSide) {
  View view;
  view.size = {200, 200};
  view.direction = {0, -1, 0};
  // From the front: x to the right, z up, y not seen.
  const Projection front = view.projection();
  expectNear(front(OdGeVector3d{1, 0, 0}), {1, 0});
  expectNear(front(OdGeVector3d{0, 0, 1}), {0, -1});
  expectNear(front(OdGeVector3d{0, 1, 0}), {0, 0});
  EXPECT_FALSE(planeUnder(QRectF(0, 0, 10, 10), front).has_value());
}

TEST(Projection, ComposesWithPlacements) {
  View view;
  view.size = {200, 200};
  view.scale = 4;
  const OdGeMatrix3d placed = OdGeMatrix3d::translation({3, 4, 5}) *
                              OdGeMatrix3d::rotation(0.5, OdGeVector3d::zAxis()) *
                              OdGeMatrix3d::scaling(2);
  const OdGePoint3d p{1, 2, 3};
  expectNear(view.projection().after(placed)(p), view.projection()(placed * p));
  EXPECT_NEAR(view.projection().after(placed).scale(), 8, 1e-9);
}

TEST(Projection, TellsThePartOfThePlaneUnderThePicture) {
  View view;
  view.size = {200, 100};
  view.center = {50, 60};
  view.scale = 2;
  const auto seen = planeUnder(view.rect(), view.projection());
  ASSERT_TRUE(seen);
  EXPECT_NEAR(seen->left(), 0, 1e-9);
  EXPECT_NEAR(seen->right(), 100, 1e-9);
  EXPECT_NEAR(seen->top(), 35, 1e-9);
  EXPECT_NEAR(seen->bottom(), 85, 1e-9);
}

} // namespace
} // namespace render_test
