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

/// A palette file with pictures of its own, of which nobody has asked for any.
struct UnaskedTest : ImageListTest {
  UnaskedTest() {
    makePicture(QStringLiteral("Images/small.png"), 16, qRgb(255, 0, 0));
    makePicture(QStringLiteral("Images/large.png"), 64, qRgb(0, 255, 0));
    load("<Image cx=\"16\" cy=\"16\" src=\"\\Images\\small.png\"/>\n"
         "<Image cx=\"64\" cy=\"64\" src=\"\\Images\\large.png\"/>");
  }
  void load(const QByteArray& images) {
    QFile file(folder.filePath(QStringLiteral("palette.dtc")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<Palette><Properties><ItemName>P</ItemName><Images option=\"4\">" + images +
               "</Images></Properties></Palette>");
    file.close();
    palette = tc::OdTcDatabase::createObject();
    ASSERT_TRUE(palette->load(stored(QStringLiteral("palette.dtc"))));
    unasked = palette->attachedCount();
  }
  OdTcImageList& read() const { return *palette->images(); }
  /// How many pictures came to the palette since it was loaded.
  int asked() const { return palette->attachedCount() - unasked; }

  int unasked = 0;
};

TEST_F(UnaskedTest, PicturesComeWhenTheFirstOfThemIsAskedFor) {
  EXPECT_EQ(asked(), 0);
  EXPECT_EQ(read().count(), 2);
  EXPECT_EQ(asked(), 2);
  EXPECT_EQ(read().count(), 2);
  EXPECT_EQ(asked(), 2);
  OdTcImage* const large = read().findBySize(4);
  ASSERT_TRUE(large);
  EXPECT_EQ(large->owner(), &read());
  EXPECT_EQ(large->getBitmap().pixelColor(1, 1), QColor(0, 255, 0));
}

TEST_F(UnaskedTest, EveryWayToAskGivesThem) {
  EXPECT_EQ(read().options(), 4u);
  load("<Image cx=\"16\"/>");
  EXPECT_EQ(read().enumImages()->next()->cx(), 16u);
  load("<Image cx=\"16\"/>");
  EXPECT_TRUE(read().findBySize(1));
  load("<Image cx=\"16\" src=\"\\Images\\small.png\"/>");
  EXPECT_EQ(read().pictureFiles().size(), 1);
  load("<Image cx=\"16\"/>");
  const OdRxObjectPtr copy = read().clone();
  EXPECT_EQ(dynamic_cast<OdTcImageList*>(copy.get())->count(), 1);
}

TEST_F(UnaskedTest, PicturesStandBeforeThoseThatAreAdded) {
  read().add(newImage(3));
  EXPECT_EQ(read().count(), 3);
  EXPECT_EQ(read().enumImages()->next()->cx(), 16u);
}

TEST_F(UnaskedTest, PicturesThatAreRemovedDoNotComeBack) {
  read().removeAll(false);
  EXPECT_EQ(read().count(), 0);
  EXPECT_EQ(asked(), 0);
  load("<Image cx=\"16\" src=\"\\Images\\small.png\"/>");
  read().removeAll(true);
  EXPECT_EQ(read().count(), 0);
  EXPECT_FALSE(exists(QStringLiteral("Images/small.png"))) << "their files go with them";
}

TEST_F(UnaskedTest, PicturesAreWrittenAsTheyWereRead) {
  const QByteArray images =
      "<Image cx=\"16\" cy=\"16\" src=\"\\Images\\T&#252;r &amp; Tor.png\" />";
  load(images);
  ASSERT_TRUE(palette->saveAs(stored(QStringLiteral("palette.dtc"))));
  QFile file(folder.filePath(QStringLiteral("palette.dtc")));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray document = file.readAll();
  EXPECT_TRUE(document.contains("<Images option=\"4\">")) << document.toStdString();
  EXPECT_TRUE(document.contains("src=\"\\Images\\T\xC3\xBCr &amp; Tor.png\""))
      << document.toStdString();
}

TEST_F(UnaskedTest, PicturesGoAlongToAPaletteThatIsSavedElsewhere) {
  QDir(folder.path()).mkpath(QStringLiteral("Other"));
  ASSERT_TRUE(palette->saveAs(stored(QStringLiteral("Other/palette.dtc"))));
  EXPECT_TRUE(exists(QStringLiteral("Other/Images/small.png")));
  EXPECT_TRUE(exists(QStringLiteral("Other/Images/large.png")));
}

TEST_F(UnaskedTest, PicturesAreThoseBesideTheFileThatTheyWereReadFrom) {
  palette->setPath(stored(QStringLiteral("Elsewhere/palette.dtc")));
  EXPECT_EQ(read().findBySize(4)->getBitmap().width(), 64);
  const OdRxObjectPtr copy = read().clone();
  EXPECT_EQ(dynamic_cast<OdTcImageList*>(copy.get())->pictureFiles().size(), 2);
}

TEST_F(UnaskedTest, PicturesOfAnExchangeFileLieInTheFolderNamedLikeIt) {
  makePicture(QStringLiteral("tools/pictures/a.png"), 16, qRgb(0, 0, 255));
  load("<Image cx=\"16\" src=\"pictures\\a.png\"/>");
  QFile::copy(folder.filePath(QStringLiteral("palette.dtc")),
              folder.filePath(QStringLiteral("tools.xtp")));
  palette = tc::OdTcDatabase::createObject();
  ASSERT_TRUE(palette->load(stored(QStringLiteral("tools.xtp"))));
  palette->setPath(stored(QStringLiteral("palette.dtc")));
  EXPECT_EQ(read().findBySize(1)->getBitmap().pixelColor(1, 1), QColor(0, 0, 255));
  EXPECT_EQ(read().findBySize(1)->src(), text(u"\\pictures\\a.png"));
}

TEST_F(UnaskedTest, APaletteWithAPictureThatIsNotPlainIsReadAtOnceOrNotAtAll) {
  load("<Image cx=\"16\"/><option option=\"7\"/>");
  EXPECT_EQ(read().options(), 7u);
  EXPECT_EQ(read().count(), 1);
  EXPECT_EQ(asked(), 0);
  for (const char* const broken :
       {"<Image cx=\"16\" cx=\"16\"/>", "<x Image=\"y\"/>", "<Tool Data=\"1\"/>"}) {
    QFile file(folder.filePath(QStringLiteral("broken.dtc")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray("<Palette><Properties><Images><Image cx=\"16\"/>") + broken +
               "</Images></Properties></Palette>");
    file.close();
    const OdTcDatabasePtr other = tc::OdTcDatabase::createObject();
    EXPECT_FALSE(other->load(stored(QStringLiteral("broken.dtc")))) << broken;
    EXPECT_TRUE(other->isUnread()) << broken;
  }
}

TEST_F(UnaskedTest, AListThatIsHeldForLongerThanItsPaletteHasItsPictures) {
  const OdTcImageListPtr held(&read());
  palette = nullptr;
  EXPECT_EQ(held->count(), 2);
  EXPECT_EQ(held->owner(), nullptr);
  EXPECT_EQ(held->findBySize(1)->getBitmap().pixelColor(1, 1), QColor(255, 0, 0));
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
