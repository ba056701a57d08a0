#include "drafton/render/live_picture.h"

#include "drawing/entities/arc.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/point.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/xline.h"
#include "drawing/patterns/linetype_file.h"
#include "drawing/patterns/pattern_file.h"
#include "render/picture_fixture.h"

#include <cmath>
#include <random>

namespace render_test {
namespace {

constexpr QSize kSize{300, 200};

/// A drawing with a little of everything, and ways to walk through it.
class LivePictures : public PictureTest {
 protected:
  LivePictures() {
    const auto data = [](const char* name) {
      return QStringLiteral(SOURCE_DIR "/drafton/engine/data/%1").arg(QLatin1String(name));
    };
    const OdLinetypeFile linetypes = OdLinetypeFile::read(data("draftoniso.lin"));
    const OdHatchPatternFile patterns = OdHatchPatternFile::read(data("draftoniso.pat"));
    const OdDbObjectId gas = linetypes.find(QStringLiteral("GAS_LINE"))->addTo(database());
    const OdDbObjectId block = addBlock(u"B");
    addTo(block, odrxMake<OdDbCircle>(OdGePoint3d{0, 0, 0}, OdGeVector3d::zAxis(), 9));
    addTo(block, hatchOf(-3, -3, 3, 3));
    for (int i = 0; i < 300; ++i) {
      const OdGePoint3d at{random(0, 900), random(0, 600), 0};
      OdDbEntityPtr made;
      switch (i % 8) {
      case 0:
        made = odrxMake<OdDbCircle>(at, OdGeVector3d::zAxis(), random(1, 80));
        break;
      case 1:
        made = odrxMake<OdDbArc>(at, OdGeVector3d::zAxis(), random(20, 300), 0, random(0.5, 5));
        break;
      case 2: {
        auto text = odrxMake<OdDbText>();
        text->setTextString(QStringLiteral("Place %1").arg(i));
        text->setPosition(at);
        text->setHeight(random(3, 30));
        text->setRotation(random(0, 1));
        made = text;
        break;
      }
      case 3:
        made = odrxMake<OdDbBlockReference>(block, at);
        break;
      case 4: {
        auto polyline = odrxMake<OdDbPolyline>();
        for (unsigned k = 0; k < 5; ++k)
          polyline->addVertexAt(k, {at.x + random(-90, 90), at.y + random(-90, 90)},
                                k % 2 == 0 ? 0.4 : 0);
        if (i % 3 == 0) polyline->setConstantWidth(3);
        made = polyline;
        break;
      }
      case 5: {
        auto hatch = hatchOf(at.x, at.y, at.x + random(5, 90), at.y + random(5, 90));
        const OdString name = i % 3 == 0 ? QStringLiteral("BRICK") : QStringLiteral("ANSI31");
        if (i % 2 == 1 && i % 5 != 0)
          hatch->setPattern(OdDbHatch::kPreDefined, name, *patterns.find(name));
        made = hatch;
        break;
      }
      case 6:
        made = odrxMake<OdDbPoint>(at);
        break;
      default:
        made = odrxMake<OdDbLine>(at, at + OdGeVector3d{random(-400, 400), random(-400, 400), 0});
        if (i % 3 == 0) made->setLinetype(gas);
        if (i % 5 == 0) made->setLineWeight(static_cast<OdDb::LineWeight>(100));
      }
      made->setColor(OdCmColor::fromColorIndex(1 + i % 7));
      if (i % 9 == 0) made->setTransparency(OdCmTransparency::fromPercent(50));
      add(made);
    }
    add(odrxMake<OdDbXline>(OdGePoint3d{450, 300, 0}, OdGeVector3d{3, 1, 0}));
    auto ray = odrxMake<OdDbRay>(OdGePoint3d{400, 300, 0}, OdGeVector3d{-1, 2, 0});
    ray->setLinetype(gas);
    add(ray);
    database().setSysVar(QStringLiteral("PDMODE"), std::int64_t{35});
  }

  static View start() {
    View view;
    view.size = kSize;
    view.center = {450, 300};
    view.scale = 0.4;
    return view;
  }
  QImage fresh(const View& view, const RenderOptions& options = {}) {
    QImage image(kSize, QImage::Format_RGB32);
    image.fill(QColor::fromRgba(options.ground.color()));
    render(image, scene(), database().getModelSpaceId(), view.settled(), options);
    return image;
  }
  const QImage& show(const View& view, const RenderOptions& options = {}) {
    return m_live.show(database().getModelSpaceId(), view, options);
  }
  double random(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(m_random);
  }
  static int largestDifference(const QImage& a, const QImage& b) {
    int most = 0;
    for (int y = 0; y < a.height(); ++y)
      for (int x = 0; x < a.width(); ++x) {
        const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
        most = std::max({most, std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                         std::abs(qBlue(p) - qBlue(q))});
      }
    return most;
  }

  LivePicture m_live{scene()};
  std::mt19937 m_random{11};
};

TEST_F(LivePictures, AreTheSameHoweverOneCameThere) {
  View view = start();
  for (int step = 0; step < 60; ++step) {
    if (step % 7 == 6)
      view = view.zoomed(step % 2 == 0 ? 1.25 : 0.8, {random(0, 300), random(0, 200)});
    else
      view = view.panned({random(-60, 60), random(-40, 40)});
    // The last bit of a coordinate may fall to the other side; nobody sees that.
    ASSERT_LE(largestDifference(show(view), fresh(view)), 6) << step;
  }
}

TEST_F(LivePictures, DrawOnlyWhatAPanBringsIntoView) {
  const View view = start();
  show(view);
  EXPECT_EQ(m_live.drawnPixels(), 300 * 200);
  show(view.panned({10, 0}));
  EXPECT_EQ(m_live.drawnPixels(), 10 * 200);
  show(view.panned({10, 0}));
  EXPECT_EQ(m_live.drawnPixels(), 0);
  show(view.panned({10, -5}));
  EXPECT_EQ(m_live.drawnPixels(), 5 * 300);
  show(view.panned({1000, 0}));
  EXPECT_EQ(m_live.drawnPixels(), 300 * 200);
}

TEST_F(LivePictures, FollowTheDrawingAndItsVariables) {
  const View view = start();
  show(view);
  add(odrxMake<OdDbLine>(OdGePoint3d{100, 300, 0}, OdGePoint3d{800, 310, 0}));
  EXPECT_EQ(show(view), fresh(view));
  database().setSysVar(QStringLiteral("LTSCALE"), 2.0);
  EXPECT_EQ(show(view), fresh(view));
  database().setSysVar(QStringLiteral("PDMODE"), std::int64_t{2});
  EXPECT_EQ(show(view), fresh(view));
  RenderOptions dark;
  dark.ground = Ground(qRgb(0, 0, 0));
  EXPECT_EQ(show(view, dark), fresh(view, dark));
}

TEST_F(LivePictures, FollowWhatIsHighlightedAndHidden) {
  const View view = start();
  show(view);
  std::unordered_set<OdDbObjectId> marked{
      add(odrxMake<OdDbCircle>(OdGePoint3d{450, 300, 0}, OdGeVector3d::zAxis(), 100))};
  RenderOptions options;
  options.highlighted = &marked;
  EXPECT_EQ(show(view, options), fresh(view, options));
  marked.clear();
  EXPECT_EQ(show(view, options), fresh(view, options));
}

TEST_F(LivePictures, LeaveTransientEntitiesOutOfWhatIsKept) {
  const View view = start();
  auto dragged = odrxMake<OdDbCircle>(OdGePoint3d{450, 300, 0}, OdGeVector3d::zAxis(), 100);
  const OdDbEntityPtr transient[] = {OdDbEntityPtr(dragged)};
  const QImage with = m_live.show(database().getModelSpaceId(), view, {}, transient);
  EXPECT_NE(with, fresh(view));
  EXPECT_EQ(show(view), fresh(view));
  EXPECT_EQ(m_live.drawnPixels(), 0);
}

TEST_F(LivePictures, OfADrawingThatIsGoneAreNull) {
  OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  Scene orphan(*drawing);
  LivePicture live(orphan);
  const OdDbObjectId space = drawing->getModelSpaceId();
  EXPECT_FALSE(live.show(space, start(), {}).isNull());
  drawing = OdDbDatabasePtr();
  EXPECT_TRUE(live.show(space, start(), {}).isNull());
}

TEST_F(LivePictures, PartsOfAPictureAreThePartsOfTheWhole) {
  const View view = start().settled();
  const QImage whole = fresh(view);
  QImage parts(kSize, QImage::Format_RGB32);
  parts.fill(Qt::white);
  RenderOptions options;
  for (int y = 0; y < 200; y += 40) {
    for (int x = 0; x < 300; x += 60) {
      options.part = QRect(x, y, 60, 40);
      render(parts, scene(), database().getModelSpaceId(), view, options);
    }
  }
  EXPECT_LE(largestDifference(parts, whole), 6);
}

} // namespace
} // namespace render_test
