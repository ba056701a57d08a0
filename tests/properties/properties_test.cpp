#include "properties/properties_impl.h"

#include "images/image_impl.h"
#include "images/image_list_impl.h"
#include "properties/property_basic_info_impl.h"
#include "support/golden.h"
#include "support/module_fixture.h"

#include <QDateTime>

namespace {

using namespace tc;
using testhost::readPart;

struct PropertiesTest : testhost::ModuleFixture {
  OdSmartPtr<OdTcPropertiesImpl> record = odrxMake<OdTcPropertiesImpl>();

  static bool isNow(const OdString& stamp) {
    const QDateTime time = QDateTime::fromString(stamp, Qt::ISODate);
    return time.isValid() && stamp.endsWith(u'Z') &&
           qAbs(time.secsTo(QDateTime::currentDateTimeUtc())) < 60;
  }
  static OdString text(const char16_t* s) { return OdString::fromUtf16(s); }
};

TEST_F(PropertiesTest, ShowsTheResourceWhileTheNameIsEmpty) {
  EXPECT_EQ(record->getName(), OdString());
  record->setResource(text(u"IDS_WALLS"), text(u"names.dll"));
  EXPECT_EQ(record->getName(), text(u"IDS_WALLS"));
  record->setName(text(u"Walls"));
  EXPECT_EQ(record->getName(), text(u"Walls"));
  record->setName({});
  record->clearResource();
  EXPECT_EQ(record->getName(), OdString());
  EXPECT_EQ(record->src(), OdString());
}

TEST_F(PropertiesTest, ReadsAResourceThatStandsInsteadOfTheName) {
  const auto read = readPart<OdTcPropertiesImpl>(
      "<Properties><ItemName resource=\"IDS_1\" src=\"a.dll\"/><Description>d</Description>"
      "</Properties>");
  ASSERT_TRUE(read);
  EXPECT_EQ(read->getName(), text(u"IDS_1"));
  EXPECT_EQ(read->src(), text(u"a.dll"));
  EXPECT_EQ(read->getDescription(), text(u"d"));
}

TEST_F(PropertiesTest, TakesTheTimesOfAFileUnchanged) {
  const auto read =
      readPart<OdTcPropertiesImpl>("<Properties><ItemName>Walls</ItemName>"
                                   "<Time createdUniversalDateTime=\"2004-10-14T16:58:31\" "
                                   "modifiedUniversalDateTime=\"last week\"/></Properties>");
  ASSERT_TRUE(read);
  EXPECT_EQ(read->created(), text(u"2004-10-14T16:58:31"));
  EXPECT_EQ(read->modified(), text(u"last week"));
}

TEST_F(PropertiesTest, LosesTheStampThatStandsBeforeTheName) {
  const auto read = readPart<OdTcPropertiesImpl>(
      "<Properties><Time createdUniversalDateTime=\"2004-10-14\" "
      "modifiedUniversalDateTime=\"2005-01-01\"/><ItemName>Walls</ItemName></Properties>");
  ASSERT_TRUE(read);
  EXPECT_EQ(read->created(), text(u"2004-10-14"));
  EXPECT_TRUE(isNow(read->modified())) << read->modified().toStdString();
}

TEST_F(PropertiesTest, ANewNameOrDescriptionSetsTheModifiedTimeAlone) {
  for (const auto set : {&OdTcPropertiesImpl::setName, &OdTcPropertiesImpl::setDescription}) {
    record->setPropertyValue(text(u"createdUniversalDateTime"), text(u"1999-01-01"));
    record->setPropertyValue(text(u"modifiedUniversalDateTime"), text(u"1999-01-02"));
    ((*record).*set)(text(u"new"));
    EXPECT_EQ(record->created(), text(u"1999-01-01"));
    EXPECT_TRUE(isNow(record->modified())) << record->modified().toStdString();
  }
}

TEST_F(PropertiesTest, ADescriptionBehindTheTimesSetsTheModifiedOne) {
  const auto read = readPart<OdTcPropertiesImpl>(
      "<Properties><Time createdUniversalDateTime=\"2004-10-14\" "
      "modifiedUniversalDateTime=\"2005-01-01\"/><Description>thick</Description></Properties>");
  ASSERT_TRUE(read);
  EXPECT_EQ(read->created(), text(u"2004-10-14"));
  EXPECT_TRUE(isNow(read->modified())) << read->modified().toStdString();
}

TEST_F(PropertiesTest, AResourceOrAnImageSetsNoTime) {
  const auto read = readPart<OdTcPropertiesImpl>(
      "<Properties><Time createdUniversalDateTime=\"2004-10-14\" "
      "modifiedUniversalDateTime=\"2005-01-01\"/><ItemName resource=\"R\" src=\"s\"/>"
      "<Images option=\"1\"/></Properties>");
  ASSERT_TRUE(read);
  EXPECT_EQ(read->resource(), text(u"R"));
  EXPECT_EQ(read->modified(), text(u"2005-01-01"));
}

TEST_F(PropertiesTest, KeepsOneTimeWithoutTheOther) {
  const char* const names[] = {"createdUniversalDateTime", "modifiedUniversalDateTime"};
  for (const int given : {0, 1}) {
    const QByteArray document = QByteArray("<Palette><Properties><Time ") + names[given] +
                                "=\"2004-10-14\"/></Properties></Palette>";
    const auto first = testhost::readParts(document);
    ASSERT_EQ(first->parts.size(), 1u);
    const QByteArray saved = testhost::written(first->parts);
    EXPECT_EQ(saved,
              QByteArray("<Palette>\n    <Properties>\n        <Time createdUniversalDateTime=\"") +
                  (given == 0 ? "2004-10-14" : "") + "\" modifiedUniversalDateTime=\"" +
                  (given == 1 ? "2004-10-14" : "") + "\" />\n    </Properties>\n</Palette>\n");
    EXPECT_EQ(testhost::written(testhost::readParts(saved)->parts), saved);
  }
  EXPECT_FALSE(testhost::written(odrxMake<OdTcPropertiesImpl>()).contains("Time"))
      << "without times there is no element for them";
}

TEST_F(PropertiesTest, KeepsLineBreaksAndRunsOfBlanks) {
  const OdString words = text(u"  first\n\n   second \u00e4\u65e5\U0001F600  ");
  record->setName(words);
  record->setDescription(words);
  const auto back = testhost::readParts(testhost::written(record));
  ASSERT_EQ(back->parts.size(), 1u);
  const auto* const read = dynamic_cast<OdTcPropertiesImpl*>(back->parts[0].get());
  ASSERT_TRUE(read);
  EXPECT_EQ(read->getName(), words);
  EXPECT_EQ(read->getDescription(), words);
}

TEST_F(PropertiesTest, KeepsWhatFollowsAnEmptyName) {
  record->setDescription(text(u"a separator"));
  const auto back = testhost::readParts(testhost::written(record));
  ASSERT_EQ(back->parts.size(), 1u);
  EXPECT_EQ(dynamic_cast<OdTcPropertiesImpl*>(back->parts[0].get())->getDescription(),
            text(u"a separator"));
}

TEST_F(PropertiesTest, StampsACloneWithThePresentTime) {
  record->setName(text(u"Walls"));
  record->setDescription(text(u"thick"));
  record->setPropertyValue(text(u"createdUniversalDateTime"), text(u"1999-01-01"));
  record->setPropertyValue(text(u"modifiedUniversalDateTime"), text(u"1999-01-02"));
  auto images = odrxMake<OdTcImageListImpl>();
  images->add(odrxMake<OdTcImageImpl>());
  record->setImages(images);
  const OdRxObjectPtr made = record->clone();
  const auto* const copy = dynamic_cast<OdTcPropertiesImpl*>(made.get());
  ASSERT_TRUE(copy);
  EXPECT_EQ(copy->getName(), text(u"Walls"));
  EXPECT_EQ(copy->getDescription(), text(u"thick"));
  EXPECT_TRUE(isNow(copy->created()));
  EXPECT_TRUE(isNow(copy->modified()));
  ASSERT_TRUE(copy->images());
  EXPECT_NE(copy->images(), images.get());
  EXPECT_EQ(copy->images()->owner(), copy);
  EXPECT_EQ(copy->images()->count(), 1);
  EXPECT_EQ(record->created(), text(u"1999-01-01")) << "the source keeps its own";
  EXPECT_EQ(record->modified(), text(u"1999-01-02"));
}

TEST_F(PropertiesTest, ACloneHasTheResourceAsWell) {
  record->setResource(text(u"IDS_1"), text(u"words.dll"));
  const OdRxObjectPtr made = record->clone();
  const auto* const copy = dynamic_cast<OdTcPropertiesImpl*>(made.get());
  ASSERT_TRUE(copy);
  record->clearResource();
  EXPECT_EQ(copy->resource(), text(u"IDS_1"));
  EXPECT_EQ(copy->src(), text(u"words.dll"));
  EXPECT_EQ(copy->images(), nullptr);
}

TEST_F(PropertiesTest, GivesAndTakesEveryFieldByItsName) {
  for (const char16_t* const name : {u"ItemName", u"Description", u"createdUniversalDateTime",
                                     u"modifiedUniversalDateTime", u"resource", u"src"}) {
    EXPECT_TRUE(record->setPropertyValue(text(name), text(name))) << text(name).toStdString();
    EXPECT_EQ(record->propertyValue(text(name)).toString(), text(name));
  }
  EXPECT_FALSE(record->setPropertyValue(text(u"itemName"), text(u"x")));
  EXPECT_TRUE(record->propertyValue(text(u"Colour")).isVoid());
}

TEST_F(PropertiesTest, RefusesImagesOfAnotherClass) {
  EXPECT_THROW(record->readField(text(u"Images"), OdVariant(odrxMake<OdTcPropertyBasicInfoImpl>())),
               OdError_NotThatKindOfClass);
}

TEST_F(PropertiesTest, StandsInAFileAsTheGoldenOne) {
  record->setName(text(u"Fen\u00eatre <1> & \"2\""));
  record->setDescription(text(u"Two\nlines"));
  record->setPropertyValue(text(u"createdUniversalDateTime"), text(u"2026-01-02T03:04:05Z"));
  record->setPropertyValue(text(u"modifiedUniversalDateTime"), text(u"2026-01-03T00:00:00Z"));
  auto images = odrxMake<OdTcImageListImpl>();
  auto image = odrxMake<OdTcImageImpl>();
  image->setSizeKind(3);
  image->setResource(text(u"%ProgramBtnRes%"), text(u"LINE"));
  images->add(image);
  record->setImages(images);
  auto resource = odrxMake<OdTcPropertiesImpl>();
  resource->setResource(text(u"IDS_WALLS"), text(u"names.dll"));
  testhost::expectGolden("Properties", {OdTcPersistPtr(record), OdTcPersistPtr(resource)});
}

TEST_F(PropertiesTest, KeepsAByteOrderMarkInATextFromSaveToSave) {
  for (const char16_t* const name : {u"\uFEFFWalls", u"\uFEFF", u"\uFEFF\uFEFFWalls\uFEFF"}) {
    record->setName(text(name));
    record->setDescription(text(name));
    const QByteArray first = testhost::written(record);
    const auto back = testhost::readParts(first);
    auto* const read = dynamic_cast<OdTcPropertiesImpl*>(back->parts.at(0).get());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->getName(), text(name));
    EXPECT_EQ(read->getDescription(), text(name)) << "a name never ends the reading";
    EXPECT_EQ(testhost::written(read).toStdString(), first.toStdString());
  }
}

} // namespace
