#include "ui/window/catalog_model.h"

#include "frame/file_path.h"
#include "images/image_list.h"
#include "palette_window_fixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace {

using namespace tc;

struct CatalogModel : testhost::PaletteWindowFixture {
  TcUiItemPictures pictures;
  TcUiCatalogModel model{pictures};
  // Any broken promise of the model ends the program.
  QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};

  QModelIndex at(const OdTcCatalogItem& item) { return model.indexOf(&item); }
  /// A red square is the tool's large picture.
  void givePicture(OdTcTool& tool, int pixels) {
    QImage square(pixels, pixels, QImage::Format_ARGB32);
    square.fill(Qt::red);
    const QString file = folder.filePath(QStringLiteral("square.png"));
    ASSERT_TRUE(square.save(file));
    const OdTcImagePtr image = OdTcImage::createObject();
    image->setSizeKind(4);
    ASSERT_TRUE(image->loadFromFile(odpath::fromPlatform(file)));
    const OdTcImageListPtr images = OdTcImageList::createObject();
    images->add(image);
    tool.setImages(images);
  }
};

TEST_F(CatalogModel, ShowsGroupsBeforeThePalettesThatAreInNone) {
  const OdTcGroupPtr group = addGroup(QStringLiteral("Plans"));
  addPalette(QStringLiteral("Doors"), {QStringLiteral("A")}, group);
  addPalette(QStringLiteral("Walls"));
  model.refresh();
  const QModelIndex root = at(*catalog);
  EXPECT_EQ(names(model, root), QStringList({"Plans", "Walls"}));
  EXPECT_EQ(names(model, at(*group)), QStringList("Doors"));
}

TEST_F(CatalogModel, AnEmptyPaletteHasNothingBelow) {
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"));
  model.refresh();
  EXPECT_FALSE(model.hasChildren(at(*palette)));
}

TEST_F(CatalogModel, AdditionsComeInOneTurnAndRemovalsAtOnce) {
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"), {QStringLiteral("A")});
  model.refresh();
  const QModelIndex index = at(*palette);
  QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
  QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
  const OdTcToolPtr b = addTool(*palette, QStringLiteral("B"));
  addTool(*palette, QStringLiteral("C"));
  EXPECT_EQ(inserted.size(), 0);
  settle();
  EXPECT_EQ(inserted.size(), 1) << "both at once";
  EXPECT_EQ(names(model, index), QStringList({"A", "B", "C"}));
  palette->removeItem(b->id());
  EXPECT_EQ(removed.size(), 1);
  EXPECT_EQ(names(model, index), QStringList({"A", "C"}));
}

TEST_F(CatalogModel, APaletteThatJoinsAGroupMovesThere) {
  const OdTcGroupPtr group = addGroup(QStringLiteral("Plans"));
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"));
  model.refresh();
  group->addItem(palette);
  model.refresh();
  EXPECT_EQ(names(model, at(*catalog)), QStringList("Plans"));
  EXPECT_EQ(names(model, at(*group)), QStringList("P"));
}

TEST_F(CatalogModel, ARemovedPaletteLeavesEveryPlaceWhereItStands) {
  const OdTcGroupPtr one = addGroup(QStringLiteral("One")), two = addGroup(QStringLiteral("Two"));
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"), {QStringLiteral("A")}, one);
  two->addItem(palette);
  model.refresh();
  for (const OdTcGroupPtr& group : {one, two}) EXPECT_EQ(model.rowCount(at(*group)), 1);
  catalog->removeItem(palette->id());
  EXPECT_EQ(model.rowCount(at(*one)), 0);
  EXPECT_EQ(model.rowCount(at(*two)), 0);
}

TEST_F(CatalogModel, ItemsAreFoundByIdDepthFirstAndUnknownOnesAreNot) {
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"), {QStringLiteral("A")});
  model.refresh();
  const OdTcTool* const tool = palette->enumTools()->next();
  EXPECT_EQ(model.itemAt(model.indexOfId(tool->id())), tool);
  EXPECT_FALSE(model.indexOfId(QStringLiteral("{nobody}")).isValid());
  EXPECT_FALSE(model.indexOf(nullptr).isValid());
}

TEST_F(CatalogModel, FollowsTheCatalogsOfTheManager) {
  EXPECT_EQ(names(model), QStringList("Office"));
  const OdTcCatalogPtr second = openCatalog(QStringLiteral("two"), QStringLiteral("Second"));
  EXPECT_EQ(model.rowCount(), 2);
  manager().removeCatalog(second->path());
  EXPECT_EQ(names(model), QStringList("Office"));
}

TEST_F(CatalogModel, NamesDescriptionsAndPicturesAreGiven) {
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"), {QStringLiteral("<A>")});
  OdTcTool* const tool = palette->enumTools()->next();
  tool->setDescription(QStringLiteral("one & two"));
  model.refresh();
  const QModelIndex index = model.indexOf(tool);
  EXPECT_EQ(index.data().toString(), QStringLiteral("<A>"));
  EXPECT_EQ(index.data(Qt::AccessibleDescriptionRole).toString(), QStringLiteral("one & two"));
  EXPECT_FALSE(index.data(Qt::DecorationRole).value<QPixmap>().isNull());
  const QString tip = index.data(Qt::ToolTipRole).toString();
  EXPECT_TRUE(tip.contains(QStringLiteral("&lt;A&gt;")));
  EXPECT_TRUE(tip.contains(QStringLiteral("one &amp; two")));
  EXPECT_TRUE(tip.contains(QStringLiteral("<img")));
}

TEST_F(CatalogModel, KindsHavePicturesOfTheirOwn) {
  const OdTcGroupPtr group = addGroup(QStringLiteral("G"));
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"), {QStringLiteral("A")});
  QList<QImage> seen;
  const OdTcCatalogItem* const items[] = {catalog.get(), group.get(), palette.get(),
                                          palette->enumTools()->next()};
  for (const OdTcCatalogItem* const item : items)
    for (const int size : {1, 3, 4}) {
      const QPixmap picture = pictures.picture(*item, size);
      EXPECT_EQ(picture.width(), TcUiItemPictures::pixelsOf(size));
      if (size == 1) seen << picture.toImage();
    }
  for (int i = 0; i < seen.size(); ++i)
    for (int j = 0; j < i; ++j) EXPECT_NE(seen[i], seen[j]) << i << j;
}

TEST_F(CatalogModel, PicturesAreMadeForThePixelsOfTheScreen) {
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"), {QStringLiteral("A")});
  OdTcTool* const tool = palette->enumTools()->next();
  givePicture(*tool, 64);
  model.refresh();
  for (const qreal ratio : {1.0, 2.0, 1.5}) {
    pictures.setRatio(ratio);
    pictures.forgetAll();
    for (const OdTcCatalogItem* const item : {static_cast<const OdTcCatalogItem*>(catalog.get()),
                                              static_cast<const OdTcCatalogItem*>(tool)})
      for (const int size : {1, 3, 4}) {
        const QPixmap picture = pictures.picture(*item, size);
        EXPECT_EQ(picture.devicePixelRatio(), ratio);
        EXPECT_EQ(picture.width(), TcUiItemPictures::pixelsOf(size) * ratio);
      }
    // A picture of 64 fills the largest size on every screen.
    const QImage large = pictures.picture(*tool, 4).toImage();
    EXPECT_EQ(large.pixelColor(1, large.height() / 2), QColor(Qt::red)) << ratio;
    EXPECT_EQ(model.indexOf(tool).data(Qt::DecorationRole).value<QPixmap>().devicePixelRatio(),
              ratio);
    const QString tip = model.indexOf(tool).data(Qt::ToolTipRole).toString();
    EXPECT_TRUE(tip.contains(QStringLiteral("width=\"64\"")));
    const QByteArray bytes =
        QByteArray::fromBase64(tip.section(u',', 1).section(u'"', 0, 0).toLatin1());
    EXPECT_EQ(QImage::fromData(bytes).width(), 64 * ratio);
  }
}

TEST_F(CatalogModel, ASmallPictureStaysAsSmallAsItIs) {
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"), {QStringLiteral("A")});
  OdTcTool* const tool = palette->enumTools()->next();
  givePicture(*tool, 16);
  const auto redPixels = [](const QImage& image) {
    int count = 0;
    for (int x = 0; x < image.width(); ++x)
      count += image.pixelColor(x, image.height() / 2) == QColor(Qt::red);
    return count;
  };
  const int plain = redPixels(pictures.picture(*tool, 4).toImage());
  pictures.setRatio(2);
  EXPECT_NEAR(redPixels(pictures.picture(*tool, 4).toImage()), 2 * plain, 4);
}

} // namespace
