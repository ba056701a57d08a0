#include "images/item_image.h"

#include "catalog/tool.h"
#include "images/image_fixture.h"

namespace {

using namespace tc;
using testhost::written;

OdString text(const char16_t* s) { return OdString::fromUtf16(s); }

struct ItemImageTest : testhost::ImageFixture {
  OdTcToolPtr tool = OdTcTool::createObject();

  ItemImageTest() { palette->addTool(tool); }
  void save() {
    written(palette);
    EXPECT_TRUE(exists(QStringLiteral("Images/door64.png")));
  }
};

TEST_F(ItemImageTest, IsTakenInThreeSizesAndMarksTheItem) {
  makePicture(QStringLiteral("door.png"), 100, qRgb(255, 0, 0));
  ASSERT_FALSE(tool->images() && tool->images()->count() > 0);
  const bool wasModified = tool->isModified();
  ASSERT_TRUE(setImage(*tool, stored(QStringLiteral("door.png"))));
  EXPECT_FALSE(wasModified && !tool->isModified());
  EXPECT_TRUE(tool->isModified());
  QList<int> kinds;
  const auto all = tool->images()->enumImages();
  while (OdTcImage* const image = all->next()) {
    kinds << image->sizeKind();
    EXPECT_EQ(image->getBitmap().width(), pixelsOfKind(image->sizeKind()));
    EXPECT_EQ(image->database(), palette.get());
  }
  EXPECT_EQ(kinds, (QList<int>{1, 3, 4}));
}

struct Changes : OdTcCatalogItemReactor {
  int count = 0;
  void itemChanged(OdTcCatalogItem*) override { ++count; }
};

TEST_F(ItemImageTest, TellsOfEachChange) {
  makePicture(QStringLiteral("door.png"), 100, qRgb(255, 0, 0));
  Changes changes;
  ASSERT_TRUE(tool->addReactor(&changes));
  for (const int before : {0, 1}) {
    EXPECT_FALSE(setImage(*tool, stored(QStringLiteral("gone.png"))));
    EXPECT_EQ(changes.count, before);
    EXPECT_TRUE(setImage(*tool, stored(QStringLiteral("door.png"))));
    EXPECT_EQ(changes.count, before + 1);
  }
  tool->removeReactor(&changes);
}

TEST_F(ItemImageTest, TakesThePlaceOfTheFormerAndItsFiles) {
  makePicture(QStringLiteral("door.png"), 100, qRgb(255, 0, 0));
  makePicture(QStringLiteral("window.png"), 100, qRgb(0, 0, 255));
  ASSERT_TRUE(setImage(*tool, stored(QStringLiteral("door.png"))));
  save();
  ASSERT_TRUE(setImage(*tool, stored(QStringLiteral("window.png"))));
  EXPECT_FALSE(exists(QStringLiteral("Images/door64.png")));
  EXPECT_EQ(tool->images()->count(), 3);
  EXPECT_EQ(tool->images()->findBySize(4)->src(), text(u"\\Images\\window64.png"));
}

TEST_F(ItemImageTest, ThatCannotBeReadChangesNothing) {
  makePicture(QStringLiteral("door.png"), 100, qRgb(255, 0, 0));
  QFile broken(folder.filePath(QStringLiteral("broken.png")));
  ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
  broken.write("no picture");
  broken.close();
  EXPECT_FALSE(setImage(*tool, stored(QStringLiteral("broken.png"))));
  EXPECT_FALSE(tool->images() && tool->images()->count() > 0);
  ASSERT_TRUE(setImage(*tool, stored(QStringLiteral("door.png"))));
  save();
  for (const char* const name : {"broken.png", "gone.png"})
    EXPECT_FALSE(setImage(*tool, stored(QLatin1String(name))));
  EXPECT_EQ(tool->images()->count(), 3);
  EXPECT_TRUE(exists(QStringLiteral("Images/door64.png")));
}

} // namespace
