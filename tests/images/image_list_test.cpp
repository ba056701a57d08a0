#include "images/image_fixture.h"

namespace {

using namespace tc;
using testhost::written;

OdString text(const char16_t* s) { return OdString::fromUtf16(s); }

struct ImageListTest : testhost::ImageFixture {
  OdSmartPtr<OdTcImageListImpl> list = odrxMake<OdTcImageListImpl>();

  ImageListTest() { list->setOwner(palette); }
};

TEST_F(ImageListTest, TakesThreeSizesFromAFile) {
  makePicture(QStringLiteral("door.png"), 100, qRgb(255, 0, 0));
  ASSERT_TRUE(list->setFromFile(stored(QStringLiteral("door.png"))));
  ASSERT_EQ(list->count(), 3);
  for (const std::int32_t kind : {1, 3, 4}) {
    OdTcImage* const image = list->findBySize(kind);
    ASSERT_TRUE(image) << kind;
    EXPECT_EQ(image->getBitmap().width(), pixelsOfKind(kind));
    EXPECT_EQ(image->owner(), list.get());
  }
  EXPECT_EQ(list->findBySize(2), nullptr);
}

TEST_F(ImageListTest, RemovesTheFilesOfItsPicturesIfToldSo) {
  makePicture(QStringLiteral("door.png"), 100, qRgb(255, 0, 0));
  ASSERT_TRUE(list->setFromFile(stored(QStringLiteral("door.png"))));
  written(list);
  list->setOwner(palette);
  ASSERT_TRUE(exists(QStringLiteral("Images/door16.png")));
  list->removeAll(false);
  EXPECT_EQ(list->count(), 0);
  EXPECT_TRUE(exists(QStringLiteral("Images/door16.png")));

  list->add(readImage("cx=\"16\" cy=\"16\" src=\"\\Images\\door16.png\""));
  list->removeAll(true);
  EXPECT_FALSE(exists(QStringLiteral("Images/door16.png")));
  EXPECT_TRUE(exists(QStringLiteral("Images/door32.png")));
  EXPECT_TRUE(exists(QStringLiteral("door.png")));
}

TEST_F(ImageListTest, NeverRemovesAFileOutsideThePalettesFolder) {
  makePicture(QStringLiteral("precious.png"), 10, qRgb(255, 0, 0));
  palette->setPath(stored(QStringLiteral("Palettes/p.dtc")));
  QDir(folder.path()).mkpath(QStringLiteral("Palettes"));
  list->add(readImage("cx=\"16\" cy=\"16\" src=\"\\..\\precious.png\""));
  list->add(readImage("cx=\"16\" cy=\"16\" src=\"\\Images\\..\\..\\precious.png\""));
  list->removeAll(true);
  EXPECT_TRUE(exists(QStringLiteral("precious.png")));
}

TEST_F(ImageListTest, RemovesNothingBesidePicturesInTheirFolder) {
  const QStringList names = {QStringLiteral("palette.dtc"), QStringLiteral("root.png"),
                             QStringLiteral("Images/notes.txt"), QStringLiteral("Images/b.dxf"),
                             QStringLiteral("Blocks/door.png")};
  for (const QString& name : names) {
    QDir(folder.path()).mkpath(QFileInfo(name).path());
    QFile file(folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    list->add(readImage("cx=\"16\" cy=\"16\" src=\"\\" + name.toUtf8().replace('/', '\\') + "\""));
  }
  makePicture(QStringLiteral("Images/own.PNG"), 10, qRgb(255, 0, 0));
  list->add(readImage("cx=\"16\" cy=\"16\" src=\"\\Images\\own.PNG\""));
  list->removeAll(true);
  for (const QString& name : names) EXPECT_TRUE(exists(name)) << name.toStdString();
  EXPECT_FALSE(exists(QStringLiteral("Images/own.PNG")));
}

TEST_F(ImageListTest, CloneHasImagesOfItsOwn) {
  list->add(newImage(3));
  list->readField(text(u"option"), OdVariant(text(u"4")));
  const OdRxObjectPtr made = list->clone();
  const auto* const copy = dynamic_cast<OdTcImageListImpl*>(made.get());
  ASSERT_TRUE(copy);
  EXPECT_EQ(copy->options(), 4u);
  ASSERT_EQ(copy->count(), 1);
  EXPECT_NE(copy->findBySize(3), list->findBySize(3));
  EXPECT_EQ(copy->findBySize(3)->owner(), copy);
}

TEST_F(ImageListTest, RefusesAChildThatIsNoImage) {
  EXPECT_THROW(list->readField(text(u"Image"), OdVariant(odrxMake<OdTcImageListImpl>())),
               OdError_NotThatKindOfClass);
  EXPECT_FALSE(list->readField(text(u"IsDark"), OdVariant(text(u"true"))));
}

TEST_F(ImageListTest, StandsInAFileAsTheGoldenOne) {
  list->setOwner(nullptr);
  list->add(readImage("cx=\"16\" cy=\"16\" src=\"\\Images\\T&#252;r 16.png\""));
  const auto icon = newImage(4);
  icon->setResource(text(u"%ProgramBtnRes%"), text(u"LINE"));
  list->add(icon);
  list->add(newImage(0));
  testhost::expectGolden("Images", list);
}

} // namespace
