#include "drawing/database.h"
#include "drawing/entities/circle.h"
#include "frame/file_path.h"
#include "tpal/console_host.h"
#include "tpal/plain_previews.h"
#include "tpal/tool_fixture.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

class Images : public ToolFixture {
 protected:
  Images() { tpal::ConsoleHost::instance().setPreviews(previews.get()); }
  ~Images() override { tpal::ConsoleHost::instance().setPreviews(nullptr); }

  QByteArray blockTool(const QByteArray& id, const QByteArray& block, const QByteArray& source) {
    return tool(id, block,
                "<Block><BlockType>1</BlockType><BlockName>" + block + "</BlockName><SourceFile>" +
                    source + "</SourceFile></Block>");
  }
  /// A drawing with the block "Door"; its stored path.
  QByteArray writeSource() {
    const OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
    const auto block = odrxMake<OdDbBlockTableRecord>();
    block->setName(QStringLiteral("Door"));
    drawing->getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite)->add(block);
    block->appendOdDbEntity(odrxMake<OdDbCircle>(OdGePoint3d{0, 0, 0}, OdGeVector3d::zAxis(), 5.0));
    const OdString stored = odpath::fromPlatform(path(QStringLiteral("doors.dxf")));
    drawing->writeFile(stored);
    return stored.toUtf8();
  }
  int images(const QStringList& options = {}) {
    return run(QStringList{QStringLiteral("images"), path(QStringLiteral("c"))} + options);
  }
  QStringList pictures() const {
    return QDir(path(QStringLiteral("c/Palettes/Images"))).entryList(QDir::Files, QDir::Name);
  }

  KVPtr<PlainPreviews> previews = kvMake<PlainPreviews>();
};

const QString kMissing = QStringLiteral("--missing"), kRebuild = QStringLiteral("--rebuild");

TEST_F(Images, AreNamedWhereTheyAreMissing) {
  writeCatalog(blockTool("{1}", "Door", writeSource()));
  const QByteArray before = read(QStringLiteral("c/Palettes/p.dtc"));
  EXPECT_EQ(images(), tpal::kFindings);
  EXPECT_TRUE(out().contains(QStringLiteral("P: Door (block): lacks 16, 32, 64")))
      << qPrintable(out());
  EXPECT_EQ(read(QStringLiteral("c/Palettes/p.dtc")), before);
  EXPECT_TRUE(pictures().isEmpty());
}

TEST_F(Images, AreMadeWhereTheyAreMissing) {
  writeCatalog(blockTool("{1}", "Door", writeSource()));
  EXPECT_EQ(images({kMissing}), tpal::kOk) << qPrintable(out() + err());
  EXPECT_EQ(pictures(), (QStringList{QStringLiteral("Door16.png"), QStringLiteral("Door32.png"),
                                     QStringLiteral("Door64.png")}));
  EXPECT_EQ(images(), tpal::kOk);
  EXPECT_TRUE(out().isEmpty()) << qPrintable(out());
}

TEST_F(Images, ThatCannotBeWrittenAreNamedWithTheReasonAndThePaletteStays) {
  writeCatalog(blockTool("{1}", "Door", writeSource()));
  write(QStringLiteral("c/Palettes/Images"), "mine");
  const QByteArray before = read(QStringLiteral("c/Palettes/p.dtc"));
  EXPECT_EQ(images({kMissing}), tpal::kFindings);
  EXPECT_TRUE(out().contains(QStringLiteral("P: Door (block): lacks 16, 32, 64: ")))
      << qPrintable(out());
  EXPECT_TRUE(out().contains(QStringLiteral("\\c\\Palettes\\Images\\Door16.png: ")));
  EXPECT_TRUE(out().contains(QStringLiteral("\\c\\Palettes\\Images is a file and no folder")));
  EXPECT_EQ(read(QStringLiteral("c/Palettes/p.dtc")), before);
  EXPECT_EQ(read(QStringLiteral("c/Palettes/Images")), QByteArray("mine"));
}

TEST_F(Images, AreNotMadeForAPaletteThatIsNotWritten) {
  writeCatalog(blockTool("{1}", "Door", writeSource()));
  // A folder stands where the new file is made ready.
  QDir().mkpath(path(QStringLiteral("c/Palettes/p.dtc.new")));
  EXPECT_EQ(images({kMissing}), tpal::kFailed);
  EXPECT_FALSE(out().contains(QStringLiteral("made"))) << qPrintable(out());
  EXPECT_TRUE(
      out().contains(QStringLiteral("Door (block): lacks 16, 32, 64: the palette is not written")))
      << qPrintable(out());
  EXPECT_TRUE(err().contains(QStringLiteral("p.dtc: not written: "))) << qPrintable(err());
}

TEST_F(Images, ThatAreThereStayWhenOthersAreMade) {
  writeCatalog(blockTool("{1}", "Door", writeSource()));
  images({kMissing});
  QFile::remove(path(QStringLiteral("c/Palettes/Images/Door32.png")));
  const QByteArray large = read(QStringLiteral("c/Palettes/Images/Door64.png"));
  previews->objects = 0;
  EXPECT_EQ(images({kMissing}), tpal::kOk);
  EXPECT_TRUE(out().contains(QStringLiteral("made 32"))) << qPrintable(out());
  EXPECT_EQ(previews->objects, 1);
  EXPECT_EQ(pictures().size(), 3);
  EXPECT_EQ(read(QStringLiteral("c/Palettes/Images/Door64.png")), large);
}

TEST_F(Images, ThatLieOutsideOfTheCatalogAreNeverWritten) {
  QImage photo(300, 200, QImage::Format_RGB32);
  photo.fill(Qt::red);
  ASSERT_TRUE(photo.save(path(QStringLiteral("photo.png"))));
  const QByteArray before = read(QStringLiteral("photo.png"));
  writeCatalog(blockTool("{1}", "Door", writeSource())
                   .replace("</ItemName>", "</ItemName><Images option=\"0\"><Image cx=\"16\" "
                                           "cy=\"16\" src=\"\\..\\..\\photo.png\"/></Images>"));
  EXPECT_EQ(images({kRebuild}), tpal::kOk) << qPrintable(out() + err());
  EXPECT_EQ(read(QStringLiteral("photo.png")), before);
  EXPECT_EQ(pictures().size(), 3);
}

TEST_F(Images, ThatCannotBeReadCountAsMissing) {
  writeCatalog(blockTool("{1}", "Door", writeSource()));
  images({kMissing});
  write(QStringLiteral("c/Palettes/Images/Door64.png"), "no picture");
  EXPECT_EQ(images(), tpal::kFindings);
  EXPECT_TRUE(out().contains(QStringLiteral("lacks 64"))) << qPrintable(out());
}

TEST_F(Images, AreAllMadeAnewInTheirFilesOnDemand) {
  writeCatalog(blockTool("{1}", "Door", writeSource()));
  images({kMissing});
  QImage old(64, 64, QImage::Format_RGB32);
  old.fill(Qt::red);
  old.save(path(QStringLiteral("c/Palettes/Images/Door64.png")));
  EXPECT_EQ(images({kRebuild}), tpal::kOk) << qPrintable(out() + err());
  EXPECT_TRUE(out().contains(QStringLiteral("made 16, 32, 64"))) << qPrintable(out());
  ASSERT_EQ(pictures().size(), 3);
  for (const QString& name : pictures())
    EXPECT_EQ(QImage(path(QStringLiteral("c/Palettes/Images/") + name)).pixel(0, 0),
              qRgb(0, 100, 0));
  EXPECT_EQ(images(), tpal::kOk);
}

TEST_F(Images, StayWhenNothingCanBeMadeOfTheSource) {
  writeCatalog(blockTool("{1}", "Door", writeSource()));
  images({kMissing});
  QFile::remove(path(QStringLiteral("doors.dxf")));
  EXPECT_EQ(images({kRebuild}), tpal::kOk) << qPrintable(out() + err());
  EXPECT_EQ(pictures().size(), 3);
  EXPECT_EQ(images(), tpal::kOk);
}

TEST_F(Images, ThatCannotBeMadeAreNamedWithTheReason) {
  writeCatalog(blockTool("{1}", "Gone", "C:\\no\\such.dxf") +
               blockTool("{2}", "Absent", writeSource()) +
               tool("{3}", "Macro", "<Command><CommandString>LINE </CommandString></Command>"));
  EXPECT_EQ(images({kMissing, QStringLiteral("--json")}), tpal::kFindings);
  const QJsonArray rows = QJsonDocument::fromJson(out().toUtf8()).array();
  ASSERT_EQ(rows.size(), 3);
  const auto reason = [&](int i) {
    return rows[i].toObject()[QStringLiteral("reason")].toString();
  };
  EXPECT_TRUE(reason(0).contains(QStringLiteral("such.dxf"))) << qPrintable(reason(0));
  EXPECT_TRUE(reason(1).contains(QStringLiteral("doors.dxf"))) << qPrintable(reason(1));
  EXPECT_EQ(reason(2), QStringLiteral("there is nothing to make a picture of"));
  EXPECT_EQ(rows[0].toObject()[QStringLiteral("missing")].toArray().size(), 3);
}

TEST_F(Images, ThatCannotBeMadeNameTheBlockOrThePattern) {
  previews->unknownPattern = QStringLiteral("NOPE");
  const QByteArray source = writeSource();
  writeCatalog(blockTool("{1}", "Nope", source) +
               tool("{2}", "Pattern",
                    "<Hatch><HatchType>1</HatchType><PatternName>NOPE</PatternName></Hatch>") +
               tool("{3}", "Neither", "<Hatch><hatchObjectType>7</hatchObjectType></Hatch>") +
               tool("{4}", "Plan",
                    "<Block><BlockType>2</BlockType><SourceFile>C:\\no\\plan.dxf</SourceFile>"
                    "</Block>"));
  EXPECT_EQ(images({kMissing}), tpal::kFindings);
  EXPECT_EQ(out(),
            QStringLiteral("P: Nope (block): lacks 16, 32, 64: there is no block \"Nope\" in "
                           "%1\n"
                           "P: Pattern (hatch): lacks 16, 32, 64: there is no hatch pattern "
                           "\"NOPE\"\n"
                           "P: Neither (hatch): lacks 16, 32, 64: there is nothing to make a "
                           "picture of\n"
                           "P: Plan (block): lacks 16, 32, 64: there is no file "
                           "C:\\no\\plan.dxf\n")
                .arg(QString::fromUtf8(source)));
}

TEST_F(Images, OfOneFileAsADrawingAndAsAPictureDoNotMix) {
  const QByteArray source = writeSource();
  const QByteArray raster =
      tool("{1}", "Wrong", "<Raster><SourceFile>" + source + "</SourceFile></Raster>");
  const QByteArray block = blockTool("{2}", "Door", source);
  const QString wrong =
      QStringLiteral("P: Wrong (raster): lacks 16, 32, 64: %1 is no picture that can be shown\n")
          .arg(QString::fromUtf8(source));
  const QString made = QStringLiteral("P: Door (block): made 16, 32, 64\n");
  writeCatalog(raster + block);
  EXPECT_EQ(images({kMissing}), tpal::kFindings);
  EXPECT_EQ(out(), wrong + made);
  QDir(path(QStringLiteral("c/Palettes/Images"))).removeRecursively();
  writeCatalog(block + raster);
  EXPECT_EQ(images({kMissing}), tpal::kFindings);
  EXPECT_EQ(out(), made + wrong);
}

TEST_F(Images, OfToolsFromOneSourceReadItOnce) {
  const QByteArray source = writeSource();
  QByteArray tools;
  for (int i = 0; i < 20; ++i)
    tools += blockTool("{" + QByteArray::number(i) + "}", "Door", source);
  writeCatalog(tools);
  EXPECT_EQ(images({kMissing}), tpal::kOk);
  EXPECT_EQ(pictures().size(), 60);
}

TEST_F(Images, OfHatchesAndPicturesAreMadeOfThemselves) {
  QImage photo(100, 50, QImage::Format_RGB32);
  photo.fill(Qt::blue);
  photo.save(path(QStringLiteral("photo.png")));
  writeCatalog(tool("{1}", "Bricks",
                    "<Hatch><HatchType>1</HatchType><PatternName>BRICK</PatternName></Hatch>") +
               tool("{2}", "Photo",
                    "<Raster><SourceFile>" +
                        odpath::fromPlatform(path(QStringLiteral("photo.png"))).toUtf8() +
                        "</SourceFile></Raster>") +
               tool("{3}", "Plan",
                    "<Block><BlockType>2</BlockType><SourceFile>" + writeSource() +
                        "</SourceFile></Block>"));
  EXPECT_EQ(images({kMissing}), tpal::kOk) << qPrintable(out() + err());
  EXPECT_EQ(pictures().size(), 9);
}

/// Has an icon of LINE.
class LineIcon : public CKVUnknownImpl<IHostIconService> {
 public:
  QImage icon(const OdString& name, int pixels) override {
    return name == QLatin1String("LINE") ? QImage(pixels, pixels, QImage::Format_ARGB32) : QImage();
  }
};

TEST_F(Images, OfCommandsAreTheIconsOfTheProgram) {
  tpal::ConsoleHost::instance().setIcons(kvMake<LineIcon>().get());
  writeCatalog(tool("{1}", "Line", "<Command Macro=\"^C^C_LINE 0,0 \"/>") +
               tool("{2}", "Other", "<Command Macro=\"^C^C_OTHER \"/>"));
  EXPECT_EQ(images({kMissing}), tpal::kFindings);
  EXPECT_TRUE(out().contains(QStringLiteral("P: Line (command): made 16, 32, 64\n")))
      << qPrintable(out());
  EXPECT_TRUE(out().contains(QStringLiteral("P: Other (command): lacks 16, 32, 64")));
  EXPECT_TRUE(pictures().isEmpty());
  const QByteArray palette = read(QStringLiteral("c/Palettes/p.dtc"));
  EXPECT_EQ(palette.count("resource=\"LINE\""), 3) << palette.constData();
  EXPECT_EQ(palette.count("<Image "), 3);
  tpal::ConsoleHost::instance().setIcons(nullptr);
}

TEST_F(Images, ThatAreButtonsAreThereIfTheProgramHasThem) {
  tpal::ConsoleHost::instance().setIcons(kvMake<LineIcon>().get());
  const auto button = [&](const QByteArray& resource) {
    QByteArray all;
    for (const QByteArray size : {"16", "32", "64"})
      all += "<Image cx=\"" + size + "\" cy=\"" + size + "\" src=\"%ProgramBtnRes%\" resource=\"" +
             resource + "\"/>";
    writeCatalog(
        tool("{1}", "T", "<Command Macro=\"^C^C_OTHER \"/>")
            .replace("</ItemName>", "</ItemName><Images option=\"0\">" + all + "</Images>"));
  };
  button("LINE");
  EXPECT_EQ(images(), tpal::kOk) << qPrintable(out());
  button("NOSUCH");
  EXPECT_EQ(images(), tpal::kFindings);
  EXPECT_EQ(out(), QStringLiteral("P: T (command): lacks 16, 32, 64\n"));
  tpal::ConsoleHost::instance().setIcons(nullptr);
}

TEST_F(Images, AreNotMadeAndRebuiltAtOnce) {
  writeCatalog({});
  EXPECT_EQ(images({kMissing, kRebuild}), tpal::kUsage);
}

TEST_F(Images, ThatCannotBeWrittenAreNamed) {
  writeCatalog(blockTool("{1}", "Door", writeSource()));
  write(QStringLiteral("c/Palettes/Images"), "a file where the folder should be");
  EXPECT_EQ(images({kMissing}), tpal::kFindings);
  EXPECT_TRUE(out().contains(QStringLiteral("\\c\\Palettes\\Images\\Door16.png: ")));
  EXPECT_TRUE(out().contains(QStringLiteral("\\c\\Palettes\\Images is a file and no folder")))
      << qPrintable(out() + err());
  EXPECT_EQ(read(QStringLiteral("c/Palettes/Images")), "a file where the folder should be");
}

TEST_F(Images, OfTwoBlocksOfOneNameAreTwo) {
  const QByteArray source = writeSource();
  ASSERT_TRUE(QFile::copy(path(QStringLiteral("doors.dxf")), path(QStringLiteral("other.dxf"))));
  QByteArray other = source;
  other.replace("doors.dxf", "other.dxf");
  writeCatalog(blockTool("{1}", "Door", source) + blockTool("{2}", "Door", other));
  EXPECT_EQ(images({kMissing}), tpal::kOk) << qPrintable(out() + err());
  EXPECT_EQ(pictures().size(), 6);
}

TEST_F(Images, ThatOthersShowAsWellStayWhenOneIsMadeAnew) {
  const QByteArray pictures16 =
      "<Images><Image cx=\"16\" cy=\"16\" src=\"\\Images\\shared.png\"/></Images>";
  QByteArray lost = blockTool("{2}", "Lost", "C:\\no\\such.dxf");
  QByteArray door = blockTool("{1}", "Door", writeSource());
  for (QByteArray* const each : {&lost, &door})
    each->replace("</ItemName>", "</ItemName>" + pictures16);
  writeCatalog(door + lost);
  QImage shared(16, 16, QImage::Format_RGB32);
  shared.fill(Qt::red);
  QDir().mkpath(path(QStringLiteral("c/Palettes/Images")));
  ASSERT_TRUE(shared.save(path(QStringLiteral("c/Palettes/Images/shared.png"))));
  images({kRebuild});
  EXPECT_EQ(QImage(path(QStringLiteral("c/Palettes/Images/shared.png"))).pixel(0, 0),
            qRgb(255, 0, 0));
  EXPECT_TRUE(pictures().contains(QStringLiteral("Door16.png")));
}

} // namespace
