#include "persistence/foreign_content.h"
#include "persistence/stored_record.h"
#include "support/test_host.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

using namespace tc;
using namespace tc::test;

namespace {

std::string catalogLog(const char* content) {
  const Reading reading = readCatalog(QByteArray("<Catalog>") + content + "</Catalog>");
  return reading.isRead ? reading.root->log().toStdString() : "not read";
}

std::string paletteLog(const char* content) {
  const Reading reading = readPalette(QByteArray("<Palette>") + content + "</Palette>");
  return reading.isRead ? reading.root->log().toStdString() : "not read";
}

class FilerReading : public testing::Test {
 protected:
  void SetUp() override { testhost::host().reset(); }
};

TEST_F(FilerReading, LeavesTheRootsOwnAttributesAlone) {
  const Reading reading =
      readCatalog("<Catalog Revision=\"9.0\" option=\"4\"><ItemID idValue=\"x\"/></Catalog>");
  EXPECT_TRUE(reading.isRead);
  EXPECT_EQ(reading.root->log(), QStringLiteral("idValue=x"));
}

TEST_F(FilerReading, DeliversAttributesAndTextOfOneElementTogether) {
  EXPECT_EQ(catalogLog("<Url href=\"a\">text</Url>"), "Url=text href=a");
}

TEST_F(FilerReading, ReadsOnlyTheAttributesOfAnObjectsElement) {
  EXPECT_EQ(catalogLog("<Box b=\"2\">text</Box>"), "Box{b=2}");
}

TEST_F(FilerReading, DeliversAttributesInAscendingOrderOfName) {
  EXPECT_EQ(catalogLog("<V b=\"2\" c=\"3\" B=\"1\" a=\"0\"/>"), "B=1 a=0 b=2 c=3");
  EXPECT_EQ(catalogLog("<Box b=\"2\" c=\"3\" a=\"1\"/>"), "Box{a=1 b=2 c=3}");
}

TEST_F(FilerReading, PassesRepeatedElementsOneAtATime) {
  EXPECT_EQ(catalogLog("<ID>a</ID><ID>b</ID><ID>a</ID>"), "ID=a ID=b ID=a");
}

TEST_F(FilerReading, EndsAtAnEmptyElementWithoutClass) {
  EXPECT_EQ(catalogLog("<ID>a</ID><Empty/><ID>b</ID>"), "ID=a");
  EXPECT_EQ(catalogLog("<ID>a</ID><Empty></Empty><ID>b</ID>"), "ID=a");
  EXPECT_EQ(catalogLog("<ID>a</ID><Empty><ID>inner</ID></Empty><ID>b</ID>"), "ID=a");
}

TEST_F(FilerReading, EndsOnlyTheParentOfAnEmptyElement) {
  EXPECT_EQ(catalogLog("<Box><ID>a</ID><Empty/><ID>lost</ID></Box><ID>b</ID>"), "Box{ID=a} ID=b");
}

TEST_F(FilerReading, GoesOnAfterAnEmptyElementWithClass) {
  EXPECT_EQ(catalogLog("<Box/><ID>b</ID>"), "Box{} ID=b");
}

TEST_F(FilerReading, ReadsEverySiblingAfterAnObject) {
  EXPECT_EQ(catalogLog("<Box><Node n=\"1\"/><Node n=\"2\"/></Box><Box/><ID>x</ID>"),
            "Box{Node{n=1} Node{n=2}} Box{} ID=x");
}

TEST_F(FilerReading, TellsElementNamesApartByCase) {
  EXPECT_EQ(catalogLog("<box>b</box><Box/>"), "box=b Box{}");
}

TEST_F(FilerReading, PassesOverUnknownSubtreesWithText) {
  EXPECT_EQ(catalogLog("<Big>t<Box><Node/></Box></Big><ID>x</ID>"), "Big=t ID=x");
}

TEST_F(FilerReading, KeepsWhiteSpaceInTexts) {
  EXPECT_EQ(catalogLog("<T>  a \n\t b  </T>"), "T=  a \n\t b  ");
  EXPECT_EQ(catalogLog("<T v=\"  a \n b \"/>"), "v=  a \n b ");
}

TEST_F(FilerReading, JoinsATextThatCommentsAndSectionsPart) {
  EXPECT_EQ(catalogLog("<T><!-- c -->a<![CDATA[<b>]]>c<!-- d --></T>"), "T=a<b>c");
}

TEST_F(FilerReading, ReadsAFileWithDeclarationCommentAndDoctypeAlike) {
  const Reading reading = readCatalog("\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"
                                      "<!DOCTYPE Catalog>\r\n<!-- made by hand -->\r\n"
                                      "<Catalog><ID>x</ID></Catalog>\r\n");
  EXPECT_TRUE(reading.isRead);
  EXPECT_EQ(reading.problem, OdString());
  EXPECT_EQ(reading.root->log(), QStringLiteral("ID=x"));
}

TEST_F(FilerReading, FindsTheFirstCatalogDepthFirst) {
  const Reading reading = readCatalog("<A><B><C/></B><D><Catalog><ID>1</ID></Catalog></D>"
                                      "<Catalog><ID>2</ID></Catalog></A>");
  EXPECT_EQ(reading.root->log(), QStringLiteral("ID=1"));
}

TEST_F(FilerReading, FindsACatalogBehindTheFirstRoot) {
  const Reading reading = readCatalog("<A><B/></A><Catalog><ID>2</ID></Catalog>");
  EXPECT_EQ(reading.root->log(), QStringLiteral("ID=2"));
}

TEST_F(FilerReading, FailsWithoutACatalog) {
  const Reading reading = readCatalog("<catalog><ID>1</ID></catalog>");
  EXPECT_FALSE(reading.isRead);
  EXPECT_EQ(reading.problem, QStringLiteral("it holds no catalog"));
  EXPECT_TRUE(reading.root->fields.empty());
}

TEST_F(FilerReading, ReadsACatalogWithoutChildren) {
  EXPECT_EQ(catalogLog(""), "");
  EXPECT_TRUE(readCatalog("<Catalog/>").isRead);
}

TEST_F(FilerReading, SetsTheOwnerBeforeAnObjectIsRead) {
  const Reading reading = readCatalog("<Catalog><Box><Node/></Box></Catalog>");
  Record* const box = reading.root->child(QStringLiteral("Box"));
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->owner(), reading.root.get());
  EXPECT_EQ(box->child(QStringLiteral("Node"))->owner(), box);
}

TEST_F(FilerReading, RequiresADatabaseAsRootOfAPalette) {
  useRecords();
  const auto stream = odrxMake<OdMemoryStream>(QByteArray("<Palette><ID>1</ID></Palette>"));
  for (const bool saving : {false, true}) {
    EXPECT_THROW(makePaletteFiler()->openPalette(stream, odrxMake<Record>(), saving),
                 OdError_NotThatKindOfClass);
    EXPECT_THROW(makePaletteFiler()->openPalette(stream, nullptr, saving),
                 OdError_NotThatKindOfClass);
  }
}

TEST_F(FilerReading, ReadsAPlainPaletteInOnePass) {
  const Reading reading = readPalette("<Palette><ID>1</ID><Tool t=\"1\"/></Palette>");
  EXPECT_TRUE(reading.isRead);
  EXPECT_FALSE(reading.isConverted);
  EXPECT_EQ(reading.root->log(), QStringLiteral("ID=1 Tool{t=1}"));
  EXPECT_TRUE(testhost::host().log.isEmpty());
}

TEST_F(FilerReading, NeverMakesALoaderInAPalette) {
  EXPECT_EQ(paletteLog("<Palette ID=\"p\"/><Box/>"), "ID=p Box{}");
}

LateRecord& lateIn(const Record& record) {
  return dynamic_cast<LateRecord&>(*record.child(QStringLiteral("Late")));
}

TEST_F(FilerReading, LeavesWhatIsReadWhenAskedForUntilThen) {
  const Reading reading =
      readPalette("<Palette><Late a=\"1\"><Node b=\"2\"/><Node a=\"&lt;3\" c=\"4\"/></Late>"
                  "<Box><Late><Node/></Late></Box><Late/><T>5</T></Palette>");
  EXPECT_EQ(reading.root->log(), QStringLiteral("Late{a=1} Box{Late{}} Late{} T=5"));
  LateRecord& first = lateIn(*reading.root);
  LateRecord& second = lateIn(*reading.root->child(QStringLiteral("Box")));
  second.read();
  first.read();
  EXPECT_EQ(reading.root->log(),
            QStringLiteral("Late{a=1 Node{b=2} Node{a=<3 c=4}} Box{Late{Node{}}} Late{} T=5"));
  EXPECT_EQ(first.child(QStringLiteral("Node"))->owner(), &first);
}

TEST_F(FilerReading, ReadsAllAtOnceWhereAPieceIsNotPlain) {
  EXPECT_EQ(paletteLog("<Late><Box/></Late><Late><Node a=\"1\"/></Late>"),
            "Late{Box{}} Late{Node{a=1}}");
  EXPECT_EQ(paletteLog("<Late><Node a=\"1\" d=\"2\"/></Late>"), "Late{Node{a=1 d=2}}");
  EXPECT_EQ(paletteLog("<Late><Palette ID=\"p\"/></Late>"), "Late{ID=p}");
  EXPECT_EQ(paletteLog("<Late><Node a=\"1\" a=\"2\"/></Late><T>1</T>"), "not read");
  EXPECT_EQ(paletteLog("<Late><Node/></Late><Late>0</Late><Late><Node>1</Node></Late>"),
            "Late{Node{}} Late{} Late{Node{}}");
  EXPECT_EQ(paletteLog("<Late><Node a=\"1\"><Box/></Node></Late>"), "Late{Node{a=1 Box{}}}");
}

TEST_F(FilerReading, ReadsAllOfACatalogAndOfAForeignPaletteAtOnce) {
  const char* const content = "<Late><Node a=\"1\"/></Late>";
  EXPECT_EQ(catalogLog(content), "Late{Node{a=1}}");
  EXPECT_EQ(paletteLog((std::string(content) + "<PaletteContent/>").c_str()), "Late{Node{a=1}}");
  useRecords();
  OdTcForeignContent foreign;
  const auto root = odrxMake<RootRecord>();
  const QByteArray document = QByteArray("<Palette>") + content + "</Palette>";
  ASSERT_TRUE(makeForeignPaletteFiler(foreign)->openPalette(odrxMake<OdMemoryStream>(document),
                                                            root, false));
  EXPECT_EQ(root->log(), QStringLiteral("Late{Node{a=1}}"));
}

TEST_F(FilerReading, TellsOfWhatIsReadLaterOnceAndWhenItIsRead) {
  const Reading reading =
      readPalette("<Palette><Late><Node a=\"&uuml;\"/></Late><T>1</T></Palette>");
  EXPECT_TRUE(reading.problem.contains(QStringLiteral("&uuml;"))) << reading.problem.toStdString();
  testhost::host().log.clear();
  lateIn(*reading.root).read();
  EXPECT_TRUE(testhost::host().log.isEmpty());
  EXPECT_EQ(reading.root->log(), QStringLiteral("Late{Node{a=&uuml;}} T=1"));
}

TEST_F(FilerReading, ReadsWhatStandsBesideThePaletteContent) {
  const Reading reading =
      readPalette("<ToolPaletteExport><Data><PaletteContent>"
                  "<Palette><ID>1</ID><Tool t=\"1\"/><Image cx=\"16\"/></Palette></PaletteContent>"
                  "<PaletteUI><CAdUiPalette PaletteStyle=\"1\"/><Box b=\"1\"><Tool t=\"2\"/></Box>"
                  "<Image cx=\"32\"/></PaletteUI></Data></ToolPaletteExport>");
  EXPECT_TRUE(reading.isRead);
  EXPECT_TRUE(reading.isConverted);
  EXPECT_EQ(reading.root->log(), QStringLiteral("ID=1 Tool{t=1} Image{cx=16} "
                                                "PaletteStyle=1 Box{b=1 t=2} cx=32"));
}

TEST_F(FilerReading, StopsQuietlyAtAPaletteContentWithoutSibling) {
  const Reading reading =
      readPalette("<X><PaletteContent><Palette><ID>1</ID></Palette></PaletteContent></X>");
  EXPECT_TRUE(reading.isRead);
  EXPECT_EQ(reading.problem, OdString());
  EXPECT_EQ(reading.root->log(), QStringLiteral("ID=1"));
}

struct CreateInfoCase {
  const char* parent;
  const char* made;
};
class CreateInfoRule : public testing::TestWithParam<CreateInfoCase> {};

TEST_P(CreateInfoRule, LooksAtTheParentInPalettes) {
  const std::string parent = GetParam().parent;
  const std::string text =
      "<Palette><" + parent + "><CreateInfo a=\"1\"/></" + parent + "></Palette>";
  const Reading reading = readPalette(QByteArray::fromStdString(text));
  Record* const owner = reading.root->child(OdString::fromStdString(parent));
  ASSERT_NE(owner, nullptr);
  Record* const info = owner->child(QStringLiteral("CreateInfo"));
  ASSERT_NE(info, nullptr);
  EXPECT_EQ(info->elementName().toStdString(), GetParam().made);
  EXPECT_EQ(info->log(), QStringLiteral("a=1"));
}

INSTANTIATE_TEST_SUITE_P(Parents, CreateInfoRule,
                         testing::Values(CreateInfoCase{"Layer", "LayerCreateInfo"},
                                         CreateInfoCase{"Color", "ColorCreateInfo"},
                                         CreateInfoCase{"Textstyle", "TextStyleCreateInfo"},
                                         CreateInfoCase{"Linetype", "LineTypeCreateInfo"},
                                         CreateInfoCase{"Dimstyle", "DimStyleCreateInfo"}),
                         [](const auto& c) { return std::string(c.param.parent); });

TEST_F(FilerReading, LeavesCreateInfoAValueElsewhereAndInCatalogs) {
  EXPECT_EQ(paletteLog("<Box><CreateInfo a=\"1\"/></Box>"), "Box{a=1}");
  EXPECT_EQ(catalogLog("<Layer><CreateInfo a=\"1\"/></Layer>"), "Layer{a=1}");
}

TEST_F(FilerReading, ShowsAMessageForADocumentWithoutPalette) {
  for (const char* text : {"<Other/>", "<Palette/>", "<Palette>text</Palette>", "no xml", ""}) {
    testhost::host().reset();
    const Reading reading = readPalette(text);
    EXPECT_FALSE(reading.isRead) << text;
    EXPECT_TRUE(reading.root->fields.empty()) << text;
    ASSERT_EQ(testhost::host().log.size(), 2) << text;
    // The file goes by name before the message that names nothing.
    EXPECT_TRUE(testhost::host().log[0].contains(QStringLiteral("C:\\here\\file.dtc"))) << text;
    EXPECT_TRUE(testhost::host().log[0].contains(reading.problem)) << text;
    EXPECT_TRUE(
        testhost::host().log[1].contains(QStringLiteral("Error while reading tool palette file.")))
        << text;
  }
}

TEST_F(FilerReading, ReportsACatalogByName) {
  const Reading reading = readCatalog("<Catalog><A></Catalog>");
  EXPECT_FALSE(reading.isRead);
  ASSERT_EQ(testhost::host().log.size(), 1);
  EXPECT_TRUE(testhost::host().log[0].contains(QStringLiteral("file.dtc")));
}

TEST_F(FilerReading, KeepsQuietWithoutAHost) {
  testhost::host().switchOff(testhost::kServices);
  EXPECT_FALSE(readPalette("<Other/>").isRead);
  EXPECT_TRUE(testhost::host().log.isEmpty());
}

TEST_F(FilerReading, KeepsPalettesValuesBesideThePaletteContentAsWell) {
  const Reading reading =
      readPalette("<X><PaletteContent><Palette><ID>1</ID></Palette></PaletteContent><Beside>"
                  "<Palette ID=\"p\"><ID>inner</ID></Palette><Tool t=\"1\">text</Tool>"
                  "<Box><Palette ID=\"q\"/></Box></Beside></X>");
  EXPECT_TRUE(reading.isRead);
  EXPECT_EQ(reading.root->log(), QStringLiteral("ID=1 ID=p Tool=text t=1 Box{ID=q}"));
}

/// A root that drives the filer by hand.
class Driver : public RootRecord {
 public:
  std::function<void(OdTcFiler&)> drive;
  bool readElements(OdTcFiler* filer) override {
    drive(*filer);
    return true;
  }
};

void driveCatalog(const char* document, std::function<void(OdTcFiler&)> drive) {
  useRecords();
  const auto root = odrxMake<Driver>();
  root->drive = std::move(drive);
  const auto stream = odrxMake<OdMemoryStream>(QByteArray(document));
  ASSERT_TRUE(makeCatalogFiler()->openCatalog(stream, root, false));
}

/// "name=value" for each pair, in the map's order.
std::string pairsOf(const OdTcFieldMap& map) {
  QStringList pairs;
  for (const auto& [name, value] : map) pairs << name + u'=' + value.toString();
  return pairs.join(u' ').toStdString();
}

TEST_F(FilerReading, ReadsTheTextOfAnElementOnlyIfItHasNoAttributes) {
  driveCatalog("<Catalog><T> some text </T><E/><A b=\"2\" a=\"1\">x</A></Catalog>",
               [](OdTcFiler& filer) {
                 OdTcFieldMap map;
                 EXPECT_TRUE(filer.readAttributes(map));
                 EXPECT_EQ(pairsOf(map), "T= some text ");
                 EXPECT_TRUE(filer.readAttributes(map)) << "the cursor stays";
                 map.clear();
                 EXPECT_TRUE(filer.advance());
                 EXPECT_FALSE(filer.readAttributes(map));
                 EXPECT_EQ(pairsOf(map), "");
                 EXPECT_TRUE(filer.advance());
                 EXPECT_TRUE(filer.readAttributes(map));
                 EXPECT_EQ(pairsOf(map), "a=1 b=2");
                 map.clear();
                 EXPECT_FALSE(filer.advance());
                 EXPECT_TRUE(filer.atEnd());
                 EXPECT_FALSE(filer.readAttributes(map));
                 EXPECT_FALSE(filer.readElement(map));
                 EXPECT_EQ(pairsOf(map), "");
               });
}

TEST_F(FilerReading, GoesOnToTheSiblingOfTheParentWhenAnObjectIsPoppedWithAdvance) {
  driveCatalog("<X><Catalog><ID>1</ID><ID>2</ID></Catalog><Next><ID>3</ID></Next><Last/></X>",
               [](OdTcFiler& filer) {
                 const auto read = [&filer] {
                   OdTcFieldMap map;
                   return filer.readElement(map) ? pairsOf(map) : "nothing";
                 };
                 const auto object = odrxMake<Record>();
                 filer.pushObject(object);
                 EXPECT_EQ(filer.currentObject(), object.get());
                 EXPECT_EQ(read(), "ID=1");
                 filer.popObject(false);
                 EXPECT_EQ(filer.currentObject(), nullptr);
                 EXPECT_EQ(read(), "ID=2") << "the cursor stays";
                 filer.pushObject(object);
                 filer.popObject(true);
                 EXPECT_EQ(filer.currentObject(), nullptr);
                 EXPECT_EQ(read(), "ID=3");
                 filer.popObject(true);
                 EXPECT_TRUE(filer.atEnd()) << "that sibling has no children";
                 filer.popObject(true);
                 filer.popObject(true);
                 EXPECT_TRUE(filer.atEnd()) << "there is no sibling any more";
                 EXPECT_EQ(read(), "nothing");
               });
}

TEST_F(FilerReading, LinksAnObjectToTheOwnerThatIsGivenOrToTheInnermostOne) {
  driveCatalog("<Catalog><Box a=\"1\"><Node/></Box><Box/><Box/><Unknown a=\"1\"/></Catalog>",
               [](OdTcFiler& filer) {
                 const auto outer = odrxMake<Record>(), other = odrxMake<Record>();
                 const OdTcPersistPtr lonely = filer.readObject(nullptr);
                 ASSERT_TRUE(lonely);
                 EXPECT_EQ(lonely->owner(), nullptr);
                 EXPECT_EQ(static_cast<Record*>(lonely.get())->log(), QStringLiteral("a=1 Node{}"));
                 filer.pushObject(outer);
                 const OdTcPersistPtr given = filer.readObject(other);
                 const OdTcPersistPtr found = filer.readObject(nullptr);
                 ASSERT_TRUE(given && found);
                 EXPECT_EQ(given->owner(), other.get());
                 EXPECT_EQ(found->owner(), outer.get());
                 EXPECT_FALSE(filer.readObject(nullptr)) << "no class has this element";
                 EXPECT_FALSE(filer.atEnd()) << "and it is still to be read";
                 filer.advance();
                 EXPECT_FALSE(filer.readObject(outer));
                 filer.popObject(false);
               });
}

class BrokenStream : public OdMemoryStream {
 public:
  BrokenStream()
    : OdMemoryStream(QByteArray("<Catalog/>")) {}
  void getBytes(void*, std::uint32_t) override {
    throw OdFileError(eFileAccess, QStringLiteral("disk"), QStringLiteral("the disk is gone"));
  }
};

TEST_F(FilerReading, TakesAFailingStreamForAProblem) {
  const OdTcFilerPtr filer = makeCatalogFiler();
  EXPECT_FALSE(filer->openCatalog(odrxMake<BrokenStream>(), odrxMake<Record>(), false));
  EXPECT_EQ(filer->problem(), QStringLiteral("the disk is gone"));
}

class Choosy : public Record {
 public:
  bool readField(const OdString& name, const OdVariant& value) override {
    if (name == QLatin1String("Box")) value.objectAs<RootRecord>();
    return Record::readField(name, value);
  }
};

TEST_F(FilerReading, EndsAtAnObjectOfTheWrongClass) {
  useRecords();
  const auto root = odrxMake<Choosy>();
  const OdTcFilerPtr filer = makeCatalogFiler();
  const auto stream =
      odrxMake<OdMemoryStream>(QByteArray("<Catalog><ID>1</ID><Box/><ID>2</ID></Catalog>"));
  EXPECT_FALSE(filer->openCatalog(stream, root, false));
  EXPECT_TRUE(filer->problem().contains(QStringLiteral("OdTcDatabase")));
  EXPECT_EQ(root->log(), QStringLiteral("ID=1"));
  EXPECT_EQ(filer->currentObject(), nullptr);
}

TEST_F(FilerReading, OffersTheOtherKindOfDocumentNowhere) {
  useRecords();
  const auto stream = odrxMake<OdMemoryStream>(QByteArray("<Catalog/>"));
  EXPECT_FALSE(makeCatalogFiler()->openPalette(stream, odrxMake<RootRecord>(), false));
  EXPECT_FALSE(makePaletteFiler()->openCatalog(stream, odrxMake<RootRecord>(), false));
}

TEST_F(FilerReading, LeavesTheParserToOthersAsItWas) {
  for (const bool condensed : {true, false}) {
    TiXmlBase::SetCondenseWhiteSpace(condensed);
    EXPECT_EQ(readCatalog("<Catalog><T>a  b</T></Catalog>").root->text(QStringLiteral("T")),
              QStringLiteral("a  b"));
    EXPECT_EQ(TiXmlBase::IsWhiteSpaceCondensed(), condensed);
    EXPECT_FALSE(readCatalog("<Catalog a=\"1\" a=\"2\"/>").isRead);
    EXPECT_EQ(TiXmlBase::IsWhiteSpaceCondensed(), condensed);
  }
  TiXmlBase::SetCondenseWhiteSpace(true);
}

} // namespace
