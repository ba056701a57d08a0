#include "catalog/palette_filling.h"

#include "catalog/database.h"
#include "frame/file_path.h"
#include "images/image_list.h"
#include "module/properties.h"
#include "support/failing_services.h"
#include "support/module_fixture.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace tc;
using namespace Qt::StringLiterals;

namespace {

struct PaletteFillingTest : testhost::ModuleFixture {
  PaletteFillingTest() {
    write(u"c/DrfTcCatalog.dtc"_s,
          "<Catalog><ItemID idValue=\"{C}\"/><Palettes><Palette><ItemID idValue=\"{P}\"/>"
          "<Url href=\"Palettes\\p.dtc\"/></Palette></Palettes></Catalog>");
    write(u"c/Palettes/p.dtc"_s,
          "<Palette><ItemID idValue=\"{P}\"/><Properties><ItemName>Old</ItemName></Properties>"
          "<Tools><Tool><ToolType>1</ToolType></Tool></Tools></Palette>");
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::blue);
    image.save(folder.filePath(u"photo.png"_s));
    load();
  }
  void write(const QString& name, const QByteArray& bytes) const {
    QDir().mkpath(QFileInfo(folder.filePath(name)).path());
    QFile file(folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  OdString stored(const QString& name) const { return odpath::fromPlatform(folder.filePath(name)); }
  void load() {
    catalog = OdTcCatalog::createObject();
    ASSERT_TRUE(catalog->load(stored(u"c/DrfTcCatalog.dtc"_s)));
  }
  /// A tool with pictures that are in no file yet.
  OdTcToolPtr makeTool() const {
    const OdTcToolPtr tool = OdTcTool::createObject();
    tool->setToolType(OdTcTool::kRegular);
    tool->setName(u"Photo"_s);
    const OdTcImageListPtr images = OdTcImageList::createObject();
    images->setOwner(tool->properties());
    EXPECT_TRUE(images->setFromFile(stored(u"photo.png"_s)));
    tool->setImages(images);
    return tool;
  }
  QStringList filesIn(const QString& name) const {
    return QDir(folder.filePath(name)).entryList(QDir::Files);
  }
  int toolsOn(const OdString& palette) const {
    const OdTcToolPalette* const found = catalog->findPaletteByName(palette);
    if (!found) return -1;
    int count = 0;
    const auto tools = found->enumTools();
    while (tools->next()) ++count;
    return count;
  }

  QTemporaryDir folder;
  OdTcCatalogPtr catalog;
};

TEST_F(PaletteFillingTest, NewPaletteComesWithItsToolsInItsGroup) {
  {
    OdTcPaletteFilling filling(*catalog, u"New"_s, u"Site"_s);
    EXPECT_TRUE(filling.isNew());
    filling.add(makeTool());
    filling.add(makeTool());
    EXPECT_EQ(filesIn(u"c/Palettes"_s), QStringList{u"p.dtc"_s}) << "nothing is saved on the way";
    ASSERT_TRUE(filling.commit()) << qPrintable(filling.problem());
  }
  EXPECT_EQ(filesIn(u"c/Palettes/Images"_s).size(), 6);
  load();
  EXPECT_EQ(toolsOn(u"New"_s), 2);
  EXPECT_TRUE(catalog->findPaletteByName(u"New"_s)->isReferenced());
}

TEST_F(PaletteFillingTest, PaletteIsFoundByItsIdAndItsName) {
  for (const QString& word : {u"{P}"_s, u"Old"_s}) {
    OdTcPaletteFilling filling(*catalog, word);
    EXPECT_FALSE(filling.isNew());
    filling.add(makeTool());
    EXPECT_TRUE(filling.commit());
  }
  load();
  EXPECT_EQ(toolsOn(u"Old"_s), 3);
}

TEST_F(PaletteFillingTest, WhatIsNotCommittedIsTakenBack) {
  for (const QString& word : {u"New"_s, u"Old"_s}) {
    OdTcPaletteFilling filling(*catalog, word, u"Site"_s);
    filling.add(makeTool());
    write(u"c/Palettes/Images/a.png"_s, "a picture that was written already");
    filling.noteFile(stored(u"c/Palettes/Images/a.png"_s));
  }
  EXPECT_EQ(toolsOn(u"New"_s), -1);
  EXPECT_EQ(toolsOn(u"Old"_s), 1);
  EXPECT_FALSE(catalog->groupsEnum()->next());
  EXPECT_TRUE(filesIn(u"c/Palettes/Images"_s).isEmpty());
}

TEST_F(PaletteFillingTest, FullDiskTakesEverythingBack) {
  testhost::FailingServices disk;
  disk.bytesLeft = 700;
  {
    OdTcPaletteFilling filling(*catalog, u"New"_s);
    filling.add(makeTool());
    EXPECT_FALSE(filling.commit());
    EXPECT_FALSE(filling.problem().isEmpty());
  }
  EXPECT_EQ(toolsOn(u"New"_s), -1);
  EXPECT_EQ(filesIn(u"c/Palettes"_s), QStringList{u"p.dtc"_s});
  EXPECT_TRUE(filesIn(u"c/Palettes/Images"_s).isEmpty());
}

TEST_F(PaletteFillingTest, ToolsAddedLaterAreSavedAtOnceAgain) {
  { OdTcPaletteFilling filling(*catalog, u"Old"_s); }
  const QString file = folder.filePath(u"c/Palettes/p.dtc"_s);
  const qint64 before = QFileInfo(file).size();
  catalog->findPaletteByName(u"Old"_s)->addItem(makeTool());
  EXPECT_GT(QFileInfo(file).size(), before);
}

} // namespace
