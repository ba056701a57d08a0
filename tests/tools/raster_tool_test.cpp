#include "tools/raster_tool.h"

#include "catalog/database.h"
#include "catalog/tool.h"
#include "frame/file_path.h"
#include "images/image_home.h"
#include "support/golden.h"
#include "support/module_fixture.h"
#include "tools/command_conveyor.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

using namespace tc;
using testhost::host;

OdString text(const char16_t* s) { return OdString::fromUtf16(s); }

struct RasterToolTest : testhost::ModuleFixture {
  OdSmartPtr<OdTcToolRasterCommandImpl> agent = odrxMake<OdTcToolRasterCommandImpl>();
  testhost::TestDocument& document = host().documents.open(QStringLiteral("A.dxf"));

  OdTcRasterRequest run() {
    EXPECT_TRUE(agent->execute(&document));
    return OdTcCommandConveyor::instance()->takeRasterRequest().value_or(OdTcRasterRequest());
  }
};

TEST_F(RasterToolTest, LeavesARequestAndTypesTheHiddenCommand) {
  agent->setRasterName(text(u"plan"));
  agent->setSourceFile(text(u"C:\\plan.png"));
  agent->setScale(0);
  agent->setRotation(0.25);
  const OdTcRasterRequest request = run();
  EXPECT_EQ(request.name, text(u"plan"));
  EXPECT_EQ(request.path, text(u"C:\\plan.png"));
  EXPECT_EQ(request.scale, 0.0) << "a scale of 0 is handed on as it is";
  EXPECT_EQ(request.rotation, 0.25);
  EXPECT_EQ(document.sent.value(0), text(u"__executetool^M\"<raster>\" "));
  EXPECT_FALSE(agent->execute(nullptr));
}

TEST_F(RasterToolTest, TakesARelativeFileFromTheDocumentsFolder) {
  document.filePath = text(u"D:\\site\\house.dxf");
  agent->setSourceFile(text(u"images\\plan.png"));
  EXPECT_EQ(run().path, text(u"D:\\site\\images\\plan.png"));
  agent->setSourceFile(text(u"..\\plan.png"));
  EXPECT_EQ(run().path, text(u"D:\\plan.png"));
  document.filePath.clear();
  EXPECT_EQ(run().path, text(u"..\\plan.png")) << "an unsaved drawing has no folder";
}

TEST_F(RasterToolTest, TakesARelativeFileFromThePaletteWhereTheDrawingHasNone) {
  const QTemporaryDir folder;
  const auto touch = [&](const QString& name) {
    QDir(folder.path()).mkpath(QFileInfo(name).path());
    QFile file(folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  };
  const auto stored = [&](const QString& name) {
    return odpath::fromPlatform(folder.filePath(name));
  };
  const OdTcDatabasePtr palette = OdTcDatabase::createObject();
  palette->setPath(stored(QStringLiteral("catalog/Palettes/p.dtc")));
  setImageHome({[](const OdTcDatabase* database) { return database->getPath(); }, nullptr, nullptr,
                nullptr});
  const OdTcToolPtr tool = OdTcTool::createObject();
  tool->setActionAgent(agent);
  palette->addTool(tool);
  document.filePath = stored(QStringLiteral("site/house.dxf"));
  agent->setSourceFile(text(u"plan.png"));
  EXPECT_EQ(run().path, stored(QStringLiteral("site/plan.png"))) << "nowhere: as it stands";
  touch(QStringLiteral("catalog/Palettes/plan.png"));
  EXPECT_EQ(run().path, stored(QStringLiteral("catalog/Palettes/plan.png")));
  touch(QStringLiteral("site/plan.png"));
  EXPECT_EQ(run().path, stored(QStringLiteral("site/plan.png"))) << "the drawing's own first";
}

TEST_F(RasterToolTest, ReadsRealNumbers) {
  const auto read = testhost::readPart<OdTcToolRasterCommandImpl>(
      "<Raster><RasterName>plan</RasterName><SourceFile>plan.png</SourceFile>"
      "<Scale>2.5</Scale><Rotation>0.5</Rotation></Raster>");
  ASSERT_TRUE(read);
  EXPECT_EQ(read->getRasterName(), text(u"plan"));
  EXPECT_EQ(read->getSourceFile(), text(u"plan.png"));
  EXPECT_EQ(read->getScale(), 2.5);
  EXPECT_EQ(read->getRotation(), 0.5);
}

TEST_F(RasterToolTest, OffersItsValuesInOrder) {
  QStringList names;
  const auto properties = agent->properties()->enumProperties();
  while (const OdTcProperty* const property = properties->next())
    names << property->getDisplayName();
  EXPECT_EQ(names, QStringList({text(u"Insert.Name"), text(u"Insert.Source file"),
                                text(u"Insert.Scale"), text(u"Insert.Rotation")}));
  const OdTcProperty* const name = agent->properties()->findByName(text(u"Insert.Name"));
  EXPECT_FALSE(name->isEnabled());
  agent->setSourceFile(text(u"plan.png"));
  EXPECT_TRUE(name->isEnabled());
  EXPECT_TRUE(agent->propertyFilter()->contains(text(u"General.Text style")));
}

TEST_F(RasterToolTest, OffersFilesOfPictures) {
  host().translations[text(u"Images")] = text(u"Bilder");
  const auto* const file = dynamic_cast<OdTcObjectProperty*>(
      agent->properties()->findByName(text(u"Insert.Source file")));
  ASSERT_TRUE(file);
  EXPECT_EQ(file->fileFilter(), text(u"Bilder (*.bmp *.jpg *.jpeg *.png *.tiff *.tif *.gif)"));
}

TEST_F(RasterToolTest, StandsInAFileAsTheGoldenOne) {
  const auto full = odrxMake<OdTcToolRasterCommandImpl>();
  full->setRasterName(text(u"plan"));
  full->setSourceFile(text(u"C:\\plan.png"));
  full->setScale(2.5);
  full->setRotation(0.25);
  testhost::expectGolden("Raster", {OdTcPersistPtr(agent), OdTcPersistPtr(full)});
  const OdRxObjectPtr copy = full->clone();
  EXPECT_EQ(testhost::written(dynamic_cast<OdTcPersist*>(copy.get())), testhost::written(full));
}

} // namespace
