// What is set of an entity stands in its file, and is undone.
#include "drawing/contents/support.h"
#include "drawing/entities/attribute_definition.h"
#include "drawing/entities/dimension_kinds.h"
#include "drawing/entities/ellipse.h"
#include "drawing/entities/leader.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/polyline2d.h"
#include "drawing/entities/raster_image.h"
#include "drawing/entities/spline.h"
#include "drawing/entities/viewport.h"

#include <functional>

using namespace oddbtest;

namespace {

/// A value of an entity: how it is set to another one, and how it is asked for.
struct Value {
  const char* name;
  std::function<OdDbEntityPtr()> make;
  std::function<void(OdDbEntity&)> set;
  std::function<double(const OdDbEntity&)> get;
};

template <class T, class Set, class Get>
Value value(const char* name, std::function<OdSmartPtr<T>()> make, Set set, Get get) {
  return {name, [make] { return OdDbEntityPtr(make()); },
          [set](OdDbEntity& entity) { set(static_cast<T&>(entity)); },
          [get](const OdDbEntity& entity) {
            return static_cast<double>(get(static_cast<const T&>(entity)));
          }};
}

OdSmartPtr<OdDbEllipse> ellipse() {
  return odrxMake<OdDbEllipse>(OdGePoint3d{}, OdGeVector3d::zAxis(), OdGeVector3d{10, 0, 0}, 0.5);
}

OdSmartPtr<OdDbAlignedDimension> dimension() {
  const auto made = odrxMake<OdDbAlignedDimension>();
  made->setXLine1Point({0, 0, 0});
  made->setXLine2Point({50, 0, 0});
  made->setDimLinePoint({0, 10, 0});
  return made;
}

OdSmartPtr<OdDbLeader> leader() {
  const auto made = odrxMake<OdDbLeader>();
  for (const OdGePoint3d& point : {OdGePoint3d{}, OdGePoint3d{5, 5, 0}, OdGePoint3d{9, 5, 0}})
    made->appendVertex(point);
  return made;
}

OdSmartPtr<OdDb2dPolyline> polyline() { return odrxMake<OdDb2dPolyline>(OdDb2dPolyline::k2d); }

template <class T>
OdSmartPtr<T> plain() {
  return odrxMake<T>();
}

const Value kValues[] = {
    value<OdDbRasterImage>(
        "contrast", plain<OdDbRasterImage>, [](auto& image) { image.setContrast(70); },
        [](const auto& image) { return image.contrast(); }),
    value<OdDbRasterImage>(
        "transparency of a picture", plain<OdDbRasterImage>,
        [](auto& image) { image.setDisplayOpt(OdDbRasterImage::kTransparent, true); },
        [](const auto& image) { return image.isDisplayOptSet(OdDbRasterImage::kTransparent); }),
    value<OdDbRasterImage>(
        "inside of a clip", plain<OdDbRasterImage>,
        [](auto& image) { image.setClipInverted(true); },
        [](const auto& image) { return image.isClipInverted(); }),
    value<OdDbMText>(
        "flow of a text", plain<OdDbMText>,
        [](auto& text) { text.setFlowDirection(OdDbMText::kTopToBottom); },
        [](const auto& text) { return text.flowDirection(); }),
    value<OdDbEllipse>(
        "ratio of an ellipse", ellipse, [](auto& curve) { curve.setRadiusRatio(0.25); },
        [](const auto& curve) { return curve.radiusRatio(); }),
    value<OdDbEllipse>(
        "beginning of an ellipse", ellipse, [](auto& curve) { curve.setStartParam(0.5); },
        [](const auto& curve) { return curve.getStartParam(); }),
    value<OdDbEllipse>(
        "end of an ellipse", ellipse, [](auto& curve) { curve.setEndParam(2.5); },
        [](const auto& curve) { return curve.getEndParam(); }),
    value<OdDbAlignedDimension>(
        "horizontal of a dimension", dimension, [](auto& made) { made.setHorizontalRotation(0.5); },
        [](const auto& made) { return made.horizontalRotation(); }),
    value<OdDbLeader>(
        "horizontal of a leader", leader,
        [](auto& made) {
          made.setHorizontalDirection({0, 1, 0});
        },
        [](const auto& made) { return made.horizontalDirection().y; }),
    value<OdDbLeader>(
        "last point of a leader", leader, [](auto& made) { made.removeLastVertex(); },
        [](const auto& made) { return made.numVertices(); }),
    value<OdDb2dPolyline>(
        "width of a polyline", polyline, [](auto& line) { line.setDefaultWidths(2, 3); },
        [](const auto& line) { return line.defaultStartWidth() + 10 * line.defaultEndWidth(); }),
    value<OdDbViewport>(
        "target of a view", plain<OdDbViewport>,
        [](auto& view) {
          view.setViewTarget({1, 2, 3});
        },
        [](const auto& view) { return view.viewTarget().z; }),
    value<OdDbAttributeDefinition>(
        "field of an attribute", plain<OdDbAttributeDefinition>,
        [](auto& text) { text.setFieldLength(12); },
        [](const auto& text) { return text.fieldLength(); }),
};

} // namespace

TEST(SetValues, StandInTheFileAndAreUndone) {
  for (const Value& value : kValues) {
    SCOPED_TRACE(value.name);
    const OdDbDatabasePtr database = OdDbDatabase::createDatabase();
    const OdDbObjectId id = addTo(*database, value.make());
    const auto now = [&] { return value.get(*id.openAs<OdDbEntity>()); };
    const double before = now();
    database->startUndoRecord(QStringLiteral("SET"));
    value.set(*id.openAs<OdDbEntity>(OdDb::kForWrite));
    database->endUndoRecord();
    const double after = now();
    EXPECT_NE(after, before);

    const OdDbDatabasePtr again =
        OdDbDatabase::readDxf(database->writeDxf(), QStringLiteral("again.dxf"));
    const OdDbObjectId same = again->getOdDbObjectId(id.getHandle());
    ASSERT_TRUE(same.isValid());
    EXPECT_EQ(value.get(*same.openAs<OdDbEntity>()), after);

    EXPECT_TRUE(database->undo());
    EXPECT_EQ(now(), before);
  }
}

TEST(SetValues, TextOfADimensionGoesBackToItsUsualPlace) {
  const OdDbDatabasePtr database = OdDbDatabase::createDatabase();
  const OdDbObjectId id = addTo(*database, dimension());
  const auto opened = id.openAs<OdDbAlignedDimension>(OdDb::kForWrite);
  opened->setTextPosition({70, 80, 0});
  EXPECT_FALSE(opened->isUsingDefaultTextPosition());
  EXPECT_EQ(opened->textPosition(), OdGePoint3d(70, 80, 0));
  opened->useDefaultTextPosition();
  EXPECT_TRUE(opened->isUsingDefaultTextPosition());
}
