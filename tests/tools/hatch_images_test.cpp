#include "catalog/tool.h"
#include "images/image_list.h"
#include "properties/general_properties.h"
#include "support/module_fixture.h"
#include "tools/conveyor_impl.h"
#include "tools/hatch_tool.h"
#include "tools/source_files.h"
#include "tools/tool_data.h"

namespace {

using namespace tc;
using testhost::host;

OdString text(const char16_t* s) { return OdString::fromUtf16(s); }

struct Sink : IConveyorSink {
  std::vector<OdTcImagePtr> got;
  void onConveyed(const OdRxObjectPtr& item) override { got.push_back(OdTcImagePtr(item)); }
};

struct HatchImagesTest : testhost::ModuleFixture {
  HatchImagesTest() {
    tool->setActionAgent(agent);
    OdTcConveyorImpl::setInstance(conveyor);
    conveyor->addSink(&sink);
    agent->readProperty(text(u"HatchType"), text(u"1"));
    agent->setPatternName(text(u"ANSI31"));
  }
  ~HatchImagesTest() override { OdTcConveyorImpl::setInstance({}); }

  void giveForeignPictures() {
    const OdTcImageListPtr images = OdTcImageList::createObject();
    images->setOwner(tool);
    const OdTcImagePtr image = OdTcImage::createObject();
    image->setResource(text(u"AcTpCatalogRes.dll"), text(u"RCDATA_HATCH"));
    images->add(image);
    tool->setImages(images);
  }

  OdSmartPtr<OdTcToolHatchCommandImpl> agent = odrxMake<OdTcToolHatchCommandImpl>();
  OdTcToolPtr tool = OdTcTool::createObject();
  OdSmartPtr<OdTcConveyorImpl> conveyor = odrxMake<OdTcConveyorImpl>();
  Sink sink;
};

TEST_F(HatchImagesTest, AreConveyedFromTheLargestToTheSmallest) {
  agent->updateImages(text(u"BRICK"));
  ASSERT_EQ(sink.got.size(), 3u);
  EXPECT_EQ(sink.got[0]->sizeKind(), 4);
  EXPECT_EQ(sink.got[1]->sizeKind(), 3);
  EXPECT_EQ(sink.got[2]->sizeKind(), 1);
  EXPECT_EQ(host().previews.asked, QStringList({text(u"pattern BRICK of draftoniso.pat 64"),
                                                text(u"pattern BRICK of draftoniso.pat 32"),
                                                text(u"pattern BRICK of draftoniso.pat 16")}));
}

TEST_F(HatchImagesTest, OfLinesOfTheUsersOwnAreNoPattern) {
  agent->setAngle(0.5);
  agent->setIsCrosswise(true);
  const auto askedOf = [&](const OdString& name, int type) {
    host().previews.asked.clear();
    agent->setPatternName(name);
    agent->setHatchType(type);
    const OdTcImagePtr image = OdTcImage::createObject();
    image->setSizeKind(1);
    OdTcSourceFiles files;
    EXPECT_TRUE(agent->makePicture(*image, files));
    EXPECT_TRUE(agent->renderImage(*image));
    EXPECT_EQ(host().previews.asked.size(), 2);
    EXPECT_EQ(host().previews.asked.front(), host().previews.asked.back());
    return host().previews.asked.front();
  };
  EXPECT_EQ(askedOf(text(u"_USER"), 0), text(u"lines at 0.5 crossed 16"));
  EXPECT_EQ(askedOf(text(u"_USER"), 1), text(u"lines at 0.5 crossed 16"));
  EXPECT_EQ(askedOf(text(u"ANSI31"), 0), text(u"lines at 0.5 crossed 16"));
  EXPECT_EQ(askedOf(text(u"Solid"), 0), text(u"pattern Solid of draftoniso.pat 16"));
  agent->setSourceFile(text(u"C:\\mine.pat"));
  EXPECT_EQ(askedOf(text(u"MINE"), 2), text(u"pattern MINE of C:\\mine.pat 16"));
}

TEST_F(HatchImagesTest, AreNotMadeWhileTheyAreDisabled) {
  agent->setImagesEnabled(false);
  agent->updateImages(text(u"BRICK"));
  EXPECT_TRUE(sink.got.empty());
}

TEST_F(HatchImagesTest, OfAGradientShowItsColours) {
  agent->setHatchPatternSource(1);
  agent->setGradientColor1(OdCmColor::fromRgb(255, 0, 0));
  agent->setGradientColor2(OdCmColor::fromRgb(0, 0, 255));
  agent->updateImages(text(u"BRICK"));
  ASSERT_EQ(sink.got.size(), 3u);
  EXPECT_TRUE(host().previews.asked.isEmpty());
  const QImage picture = sink.got[0]->getBitmap();
  EXPECT_GT(picture.pixelColor(0, 32).red(), 240);
  EXPECT_GT(picture.pixelColor(63, 32).blue(), 240);
}

TEST_F(HatchImagesTest, ChangeWithTheGeneralColour) {
  agent->setPatternName(text(u"SOLID"));
  OdTcProperty* const color =
      tool->getData()->generalProperties()->findByName(text(u"General.Color"));
  ASSERT_TRUE(color);
  color->setValue(OdVariant(OdCmColor::fromRgb(0, 255, 0).color()));
  sink.got.clear();
  EXPECT_TRUE(agent->onPropertyChanged(color));
  ASSERT_EQ(sink.got.size(), 3u);
  EXPECT_EQ(sink.got[0]->getBitmap().pixelColor(5, 5), QColor(0, 255, 0));
}

TEST_F(HatchImagesTest, OfASolidByLayerAreTheHostsToColour) {
  agent->setPatternName(text(u"SOLID"));
  agent->updateImages(text(u"SOLID"));
  EXPECT_EQ(host().previews.asked.size(), 3);
}

TEST_F(HatchImagesTest, OfAForeignLibraryAreReplacedInThreeSizes) {
  giveForeignPictures();
  ASSERT_TRUE(agent->refreshImages(nullptr));
  for (const int kind : {1, 3, 4}) {
    const OdTcImage* const image = tool->images()->findBySize(kind);
    ASSERT_TRUE(image) << kind;
    EXPECT_TRUE(image->src().startsWith(text(u"\\Images\\Hatch tool instrument_{")));
  }
  EXPECT_EQ(tool->images()->count(), 3);
}

TEST_F(HatchImagesTest, OfASolidOfAForeignLibraryHaveTheGeneralColour) {
  agent->setPatternName(text(u"Solid"));
  giveForeignPictures();
  tool->getData()
      ->generalProperties()
      ->findByName(text(u"General.Color"))
      ->setValue(OdVariant(OdCmColor::fromRgb(0, 255, 0).color()));
  host().previews.asked.clear();
  ASSERT_TRUE(agent->refreshImages(nullptr));
  EXPECT_EQ(host().previews.asked, QStringList());
  for (const int kind : {1, 3, 4}) {
    OdTcImage* const image = tool->images()->findBySize(kind);
    ASSERT_TRUE(image) << kind;
    EXPECT_EQ(image->getBitmap().pixelColor(5, 5), QColor(0, 255, 0));
  }
  EXPECT_EQ(agent->previewColor().color(), OdCmColor::fromRgb(0, 255, 0).color());
}

TEST_F(HatchImagesTest, ThatCannotBeMadeSayWhy) {
  OdTcSourceFiles files;
  const auto problem = [&] {
    const OdTcImagePtr image = OdTcImage::createObject();
    image->setSizeKind(1);
    files.setProblem({});
    EXPECT_FALSE(agent->makePicture(*image, files));
    return files.problem();
  };
  host().previews.canRender = false;
  agent->setPatternName(text(u"NOPE"));
  EXPECT_EQ(problem(), text(u"there is no hatch pattern \"NOPE\""));
  agent->setHatchPatternSource(7);
  EXPECT_EQ(problem(), text(u"there is nothing to make a picture of"));
}

TEST_F(HatchImagesTest, OfOurOwnStayAsTheyAre) {
  EXPECT_FALSE(agent->refreshImages(nullptr));
  giveForeignPictures();
  host().previews.canRender = false;
  EXPECT_FALSE(agent->refreshImages(nullptr));
  EXPECT_EQ(tool->images()->count(), 1) << "what cannot be replaced stays";
}

} // namespace
