// The pictures of palettes that come in: those that are there, and all that can be wrong with them.
#include "catalog/import_fixture.h"

#include <unistd.h>

#include <sys/stat.h>

namespace {

using namespace testhost;

struct ImportPicturesTest : ImportFixture {
  ImportPicturesTest() {
    QImage button(16, 16, QImage::Format_ARGB32);
    button.fill(Qt::red);
    theHost().icons.images = {{u"LINE"_s, button}};
  }
  static QByteArray library(const QByteArray& pixels = "64") {
    return "<Image cx=\"" + pixels + "\" cy=\"" + pixels +
           "\" src=\"AcTpCatalogRes.dll\" resource=\"X\"/>";
  }
  static QByteArray light(const QByteArray& src) {
    return imageXml(src, "cx=\"64\" cy=\"64\" IsDark=\"false\"");
  }
  static QByteArray dark(const QByteArray& src) {
    return imageXml(src, "cx=\"64\" cy=\"64\" IsDark=\"true\"");
  }
  void link(const OdString& target, const OdString& at) const {
    QDir().mkpath(QFileInfo(platform(at)).path());
    ASSERT_EQ(::symlink(QFile::encodeName(target).constData(),
                        QFile::encodeName(platform(at)).constData()),
              0);
  }
  /// The fate of the only tool's picture, the same in a dry run and a real one.
  OdTcPictureFate fateOf(const OdString& file) {
    OdTcImportOptions dry;
    dry.dryRun = true;
    import(file, dry);
    const OdTcPictureFate wouldBe = report.tools.at(0).picture;
    EXPECT_TRUE(import(file)) << text(report.problem);
    EXPECT_EQ(report.tools.at(0).picture, wouldBe) << "a dry run tells something else";
    return wouldBe;
  }
};

TEST_F(ImportPicturesTest, OfALibraryOfTheOtherProgramAreMadeAnew) {
  const OdTcToolPalettePtr palette = import(exported(
      toolXml("L", "<Light/>") +
      toolXml("G",
              "<Hatch><hatchObjectType>1</hatchObjectType><GradientName>LINEAR</GradientName>"
              "</Hatch>",
              "1", library()) +
      toolXml("C", "<Command Macro=\"^C^C_LINE 0,0\"/>", "1", library())));
  EXPECT_EQ(row(u"G"_s).picture, OdTcPictureFate::kMade);
  EXPECT_EQ(row(u"C"_s).picture, OdTcPictureFate::kResource);
  const OdTcCatalogPtr again = load(catalog().path());
  const auto tools = toolsOf(*again->findPalette(palette->id()));
  for (const OdTcTool* const tool : tools) {
    for (const int kind : {1, 3, 4}) {
      ASSERT_TRUE(tool->images()->findBySize(kind)) << kind;
      EXPECT_FALSE(tool->images()->findBySize(kind)->getBitmap().isNull()) << kind;
    }
  }
}

TEST_F(ImportPicturesTest, OfALibraryAreMadeOfWhatTheToolBringsIn) {
  writeFile(u"in\\photo.png"_s, png(100, 0xFF00FF00));
  const OdString file =
      exported(toolXml("R", "<Raster><SourceFile>photo.png</SourceFile></Raster>", "1", library()));
  EXPECT_EQ(fateOf(file), OdTcPictureFate::kMade);
  const OdTcCatalogPtr again = load(catalog().path());
  const auto tools = toolsOf(static_cast<OdTcToolPalette&>(*again->palettesEnum()->next()));
  EXPECT_EQ(tools[0]->images()->findBySize(4)->getBitmap().pixel(5, 5), 0xFF00FF00);
}

TEST_F(ImportPicturesTest, OfALibraryAreMissingWhereNothingComesOfIt) {
  EXPECT_EQ(fateOf(exported(toolXml("C", "<Command Macro=\"_NOBUTTON\"/>", "1", library()))),
            OdTcPictureFate::kMissing);
  EXPECT_EQ(fateOf(exported(toolXml("B", "<Block><SourceFile>C:\\gone.dwg</SourceFile></Block>",
                                    "1", library()))),
            OdTcPictureFate::kMissing);
}

TEST_F(ImportPicturesTest, OfALibraryGiveWayToOneThatIsThere) {
  writeFile(u"in\\p\\Images\\a.png"_s, png(64, 0xFF0000FF));
  const OdString file = exported(toolXml("C", "<Command Macro=\"_NOBUTTON\"/>", "1",
                                         imageXml(".\\Images\\a.png") + library("32")));
  EXPECT_EQ(fateOf(file), OdTcPictureFate::kFound);
  const OdTcToolPalettePtr palette = import(file);
  EXPECT_EQ(toolsOf(*palette)[0]->images()->findBySize(3)->getBitmap().pixel(5, 5), 0xFF0000FF);
}

TEST_F(ImportPicturesTest, AButtonThatTheHostDoesNotHaveIsMissing) {
  const auto button = [](const QByteArray& name) {
    return commandXml("A",
                      "<Image cx=\"16\" cy=\"16\" src=\"acadbtn.xmx\" resource=\"" + name + "\"/>");
  };
  EXPECT_EQ(fateOf(exported(button("LINE"))), OdTcPictureFate::kResource);
  EXPECT_EQ(fateOf(exported(button("NONE"))), OdTcPictureFate::kMissing);
}

TEST_F(ImportPicturesTest, ThatCannotBeDecodedAreNamedAndLeftWhereTheyAre) {
  const QByteArray whole = png();
  QByteArray huge = whole;
  // The size in the header: 30000 by 30000.
  for (const int at : {16, 20}) huge.replace(at, 4, QByteArray::fromHex("00007530"));
  for (const QByteArray& bytes : {QByteArray(), QByteArray("text"), whole.left(60), huge}) {
    writeFile(u"in\\p\\Images\\a.png"_s, bytes);
    testing::internal::CaptureStderr();
    EXPECT_EQ(fateOf(exported(commandXml("A", imageXml(".\\Images\\a.png")))),
              OdTcPictureFate::kUnreadable)
        << bytes.size();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_FALSE(exists(u"c\\Palettes\\Images\\a.png"_s));
  }
}

TEST_F(ImportPicturesTest, BehindLinksThatLeadOutAreRefused) {
  writeFile(u"secret\\s.png"_s, png());
  link(platform(u"secret\\s.png"_s), u"in\\p\\Images\\a.png"_s);
  const OdString file = exported(commandXml("A", imageXml(".\\Images\\a.png")));
  EXPECT_EQ(fateOf(file), OdTcPictureFate::kRefused);
  EXPECT_FALSE(exists(u"c\\Palettes\\Images"_s));
  QFile::remove(platform(u"in\\p\\Images\\a.png"_s));
  writeFile(u"in\\p\\Images\\b.png"_s, png());
  link(u"b.png"_s, u"in\\p\\Images\\a.png"_s);
  EXPECT_EQ(fateOf(file), OdTcPictureFate::kFound) << "a link that stays inside";
}

TEST_F(ImportPicturesTest, InAFolderThatIsALinkToElsewhereAreRefused) {
  writeFile(u"secret\\s.png"_s, png());
  link(platform(u"secret"_s), u"in\\out"_s);
  EXPECT_EQ(fateOf(exported(commandXml("A", imageXml("s.png")), "p",
                            "<DependentFilesPath>out</DependentFilesPath>")),
            OdTcPictureFate::kRefused);
}

TEST_F(ImportPicturesTest, ThatAreNoFilesAreRefusedAndNotWaitedFor) {
  QDir().mkpath(platform(u"in\\p\\Images"_s));
  ASSERT_EQ(::mkfifo(QFile::encodeName(platform(u"in\\p\\Images\\f.png"_s)).constData(), 0600), 0);
  link(u"f.png"_s, u"in\\p\\Images\\a.png"_s);
  for (const char* name : {"f.png", "a.png"})
    EXPECT_EQ(fateOf(exported(commandXml("A", imageXml(".\\Images\\" + QByteArray(name))))),
              OdTcPictureFate::kRefused);
}

TEST_F(ImportPicturesTest, ForDarkWindowsComeInWhereTheLightOneIsGone) {
  writeFile(u"in\\p\\Images\\d.png"_s, png());
  const OdString file =
      exported(commandXml("A", light(".\\Images\\l.png") + dark(".\\Images\\d.png")));
  EXPECT_EQ(fateOf(file), OdTcPictureFate::kFound);
  EXPECT_TRUE(exists(u"c\\Palettes\\Images\\d.png"_s));
  EXPECT_FALSE(report.notes.join(u'\n').contains(u"left out"_s));
  writeFile(u"in\\p\\Images\\l.png"_s, png());
  EXPECT_EQ(fateOf(file), OdTcPictureFate::kFound);
  EXPECT_TRUE(exists(u"c\\Palettes\\Images\\l.png"_s));
  EXPECT_TRUE(report.notes.join(u'\n').contains(u"left out: 1"_s));
}

TEST_F(ImportPicturesTest, AreFoundWhateverTheCaseOfFoldersAndFiles) {
  writeFile(u"in\\P\\IMAGES\\A.PNG"_s, png());
  EXPECT_EQ(fateOf(exported(commandXml("A", imageXml(".\\Images\\a.png")))),
            OdTcPictureFate::kFound);
}

TEST_F(ImportPicturesTest, AFailedImportLeavesNoEmptyFolders) {
  writeFile(u"in\\p\\Images\\a.png"_s, png());
  const OdString file = exported(commandXml("A", imageXml(".\\Images\\a.png")));
  {
    FailingServices services;
    services.deniedFolder = stored(u"c\\DrfTcCatalog.dtc"_s);
    EXPECT_FALSE(import(file));
  }
  EXPECT_FALSE(exists(u"c\\Palettes"_s));
  ASSERT_TRUE(import(file));
  EXPECT_TRUE(exists(u"c\\Palettes\\Images\\a.png"_s));
}

} // namespace
