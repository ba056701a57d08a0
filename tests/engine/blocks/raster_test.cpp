// Pictures: INSERTRASTER.
#include "drawing/entities/raster_image.h"
#include "engine/blocks/block_fixture.h"

#include <QImage>

#include <sys/stat.h>

namespace {

class RasterTest : public BlockFixture {
 protected:
  void writePicture(const char* name) {
    QImage picture(40, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(path(name)));
  }
};

TEST_F(RasterTest, IsOneUnitWideAtScaleOneAndKeepsItsProportions) {
  writePicture("photo.png");
  words("INSERTRASTER|" + path("photo.png") + "|1,2|4|0");
  const auto images = all<OdDbRasterImage>();
  ASSERT_EQ(images.size(), 1u) << output().toStdString();
  OdGePoint3d origin;
  OdGeVector3d u, v;
  images[0]->getOrientation(origin, u, v);
  EXPECT_EQ(origin, (OdGePoint3d{1, 2, 0}));
  EXPECT_NEAR(u.length(), 4, 1e-9);
  EXPECT_NEAR(v.length(), 2, 1e-9);
}

TEST_F(RasterTest, ByAModuleTakesNamePathScaleAndRotation) {
  writePicture("photo.png");
  EXPECT_TRUE(runWith(u"INSERTRASTER",
                      {{u"PathScaleRotationNoDialog", QStringLiteral("PathScaleRotationNoDialog")},
                       {u"DefName", QStringLiteral("Site")},
                       {u"Path", odpath::fromPlatform(path("photo.png"))},
                       {u"Scale", 3.0},
                       {u"Rotation", kOdaPi / 2}},
                      {"5,5"}));
  const auto images = all<OdDbRasterImage>();
  ASSERT_EQ(images.size(), 1u) << output().toStdString();
  const OdDbRasterImageDefPtr definition = images[0]->imageDefId().openObject();
  EXPECT_EQ(definition->name(), QStringLiteral("Site"));
  EXPECT_TRUE(
      odpath::samePlace(definition->activeFileName(), odpath::fromPlatform(path("photo.png"))));
  OdGePoint3d origin;
  OdGeVector3d u, v;
  images[0]->getOrientation(origin, u, v);
  EXPECT_NEAR(u.y, 3, 1e-9);
}

TEST_F(RasterTest, OfOneFileShareTheirDefinition) {
  writePicture("photo.png");
  words("INSERTRASTER|" + path("photo.png") + "|1,2|4|0");
  words("INSERTRASTER|" + path("photo.png") + "|5,2|4|0");
  const auto images = all<OdDbRasterImage>();
  ASSERT_EQ(images.size(), 2u);
  EXPECT_EQ(images[0]->imageDefId(), images[1]->imageDefId());
}

TEST_F(RasterTest, StandInTheFileAsOtherProgramsHereFindThem) {
  writePicture("photo.png");
  words("INSERTRASTER|" + path("photo.png") + "|1,2|4|0");
  EXPECT_TRUE(database().writeDxf().contains('\n' + path("photo.png").toUtf8() + '\n'))
      << output().toStdString();
}

TEST_F(RasterTest, RefusesDevicesAndPipesWithoutReadingThem) {
  ASSERT_EQ(mkfifo(path("pipe.png").toLocal8Bit().constData(), 0600), 0);
  const QByteArray before = database().writeDxf();
  for (const QString& device :
       {QStringLiteral("/dev/zero"), QStringLiteral("/dev/tty"), path("pipe.png")}) {
    words("INSERTRASTER|" + device);
    EXPECT_TRUE(console().shows(device + QStringLiteral(" is not a file.")))
        << output().toStdString();
    EXPECT_FALSE(runWith(u"INSERTRASTER", {{u"Path", odpath::fromPlatform(device)}}, {}));
    EXPECT_FALSE(isBusy());
  }
  EXPECT_EQ(database().writeDxf(), before);
}

TEST_F(RasterTest, RefusesWhatIsNoPictureAndAScaleOfNothing) {
  writeDrawing("plan.dxf", 1);
  writePicture("photo.png");
  words("INSERTRASTER|" + path("plan.dxf"));
  EXPECT_TRUE(console().shows(QStringLiteral("cannot be read as a picture")))
      << output().toStdString();
  ASSERT_TRUE(QFile::copy(path("photo.png"), path("cut.png")));
  QFile cut(path("cut.png"));
  ASSERT_TRUE(cut.resize(cut.size() - 4));
  words("INSERTRASTER|" + path("cut.png"));
  EXPECT_TRUE(console().shows(QStringLiteral("cannot be read as a picture: its end is missing")))
      << output().toStdString();
  EXPECT_FALSE(runWith(u"INSERTRASTER",
                       {{u"Path", odpath::fromPlatform(path("photo.png"))}, {u"Scale", 0.0}}, {}));
  EXPECT_TRUE(all<OdDbRasterImage>().empty());
}

} // namespace
