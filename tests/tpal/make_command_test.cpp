#include "catalog/tool.h"
#include "drawing/database.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/circle.h"
#include "frame/file_path.h"
#include "images/image_list.h"
#include "support/failing_services.h"
#include "tools/action_agent.h"
#include "tpal/console_host.h"
#include "tpal/loaded_catalog.h"
#include "tpal/tool_fixture.h"

#include <QCoreApplication>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <atomic>
#include <functional>
#include <thread>

namespace {

/// How many services there are, how many of them there were at once, and the pictures that they
/// made.
struct Count {
  std::atomic<int> services = 0, made = 0;
};

/// Makes pictures of one colour, in any thread.
class PlainPreviews : public CKVUnknownImpl<IHostPreviewService> {
 public:
  explicit PlainPreviews(Count& count)
    : m_count(count) {
    ++m_count.services;
  }
  QImage renderObjects(std::span<const OdDbObjectId>, const OdGeExtents3d& view,
                       int pixels) override {
    ++m_count.made;
    return view.isEmpty() ? QImage() : plain(pixels);
  }
  QImage renderPattern(const OdString&, const OdString&, int pixels) override {
    return plain(pixels);
  }
  QImage storedPreview(const OdString&, int) override { return {}; }
  QImage fileIcon(const OdString&, int pixels) override { return plain(pixels); }
  QImage renderUserPattern(double, bool, int pixels) override { return plain(pixels); }

 private:
  static QImage plain(int pixels) {
    QImage picture(pixels, pixels, QImage::Format_ARGB32);
    picture.fill(qRgb(0, 100, 0));
    return picture;
  }
  Count& m_count;
};

const QString kBlocks = QStringLiteral("--blocks"), kDry = QStringLiteral("--dry-run"),
              kJson = QStringLiteral("--json");

class Make : public ToolFixture {
 protected:
  Make() {
    tpal::ConsoleHost::instance().setPreviewMaker(
        [this]() -> KVPtr<IHostPreviewService> { return kvMake<PlainPreviews>(count).get(); });
  }
  ~Make() override { tpal::ConsoleHost::instance().setPreviewMaker(nullptr); }

  int make(const QStringList& words) {
    return run(QStringList{QStringLiteral("make"), path(QStringLiteral("c")), QStringLiteral("P")} +
               words);
  }
  /// A drawing with blocks of these names; the platform's path of its file.
  QString drawing(const QString& name, const QStringList& blocks) const {
    const OdDbDatabasePtr made = OdDbDatabase::createDatabase();
    const auto table = made->getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite);
    for (const QString& each : blocks) {
      const auto block = odrxMake<OdDbBlockTableRecord>();
      block->setName(each);
      table->add(block);
      block->appendOdDbEntity(
          odrxMake<OdDbCircle>(OdGePoint3d{0, 0, 0}, OdGeVector3d::zAxis(), 5.0));
    }
    QDir().mkpath(QFileInfo(path(name)).path());
    made->writeFile(odpath::fromPlatform(path(name)));
    return path(name);
  }
  QString picture(const QString& name) const {
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QDir().mkpath(QFileInfo(path(name)).path());
    EXPECT_TRUE(image.save(path(name)));
    return path(name);
  }
  static QStringList names(int count) {
    QStringList all;
    for (int i = 0; i < count; ++i) all << QStringLiteral("Part %1").arg(i);
    return all;
  }
  QStringList pictures() const {
    return QDir(path(QStringLiteral("c/Palettes/Images"))).entryList(QDir::Files, QDir::Name);
  }
  QStringList palettes() const {
    return QDir(path(QStringLiteral("c/Palettes"))).entryList(QDir::Files, QDir::Name);
  }
  /// Looks at the palette "P" as it stands on the disk.
  void withTools(const std::function<void(const std::vector<tc::OdTcTool*>&)>& look) const {
    const tpal::ModuleClasses classes;
    const tpal::LoadedCatalog loaded = tpal::loadCatalog(path(QStringLiteral("c")));
    ASSERT_TRUE(loaded.isRead);
    const tc::OdTcToolPalette* const palette =
        loaded.catalog->findPaletteByName(QStringLiteral("P"));
    ASSERT_TRUE(palette);
    look(tpal::toolsOf(*palette));
  }
  QStringList toolNames() const {
    QStringList all;
    withTools([&](const auto& tools) {
      for (const tc::OdTcTool* tool : tools) all << tool->name();
    });
    return all;
  }
  QJsonArray rows() const { return QJsonDocument::fromJson(out().toUtf8()).array(); }

  Count count;
};

TEST_F(Make, ThatCannotWritePicturesNamesThemWithTheReason) {
  write(QStringLiteral("c/Palettes/Images"), "mine");
  EXPECT_EQ(make({picture(QStringLiteral("site.png"))}), tpal::kFindings);
  EXPECT_TRUE(out().contains(QStringLiteral("no picture: "))) << qPrintable(out());
  EXPECT_TRUE(out().contains(QStringLiteral("\\c\\Palettes\\Images\\site16.png: ")));
  EXPECT_TRUE(out().contains(QStringLiteral("\\c\\Palettes\\Images is a file and no folder")));
  EXPECT_EQ(toolNames(), QStringList(QStringLiteral("site")));
  EXPECT_EQ(read(QStringLiteral("c/Palettes/Images")), QByteArray("mine"));
}

TEST_F(Make, MakesAToolOfEachFileWithThePalette) {
  EXPECT_EQ(make({drawing(QStringLiteral("plan.dxf"), {}), picture(QStringLiteral("site.png"))}),
            tpal::kOk)
      << qPrintable(out() + err());
  withTools([](const auto& tools) {
    ASSERT_EQ(tools.size(), 2u);
    EXPECT_EQ(tpal::summarize(*tools[0]).kind, QStringLiteral("block"));
    EXPECT_EQ(tpal::summarize(*tools[1]).kind, QStringLiteral("raster"));
    for (const tc::OdTcTool* tool : tools) {
      EXPECT_TRUE(tool->isRegular());
      EXPECT_EQ(tool->images()->count(), 3);
      for (const int kind : {1, 3, 4})
        EXPECT_FALSE(tool->images()->findBySize(kind)->getBitmap().isNull()) << kind;
    }
  });
  EXPECT_EQ(pictures(), (QStringList{QStringLiteral("plan16.png"), QStringLiteral("plan32.png"),
                                     QStringLiteral("plan64.png"), QStringLiteral("site16.png"),
                                     QStringLiteral("site32.png"), QStringLiteral("site64.png")}));
  EXPECT_TRUE(out().contains(QStringLiteral("2 tools are on the palette \"P\"")))
      << qPrintable(out());
}

TEST_F(Make, MakesAToolOfEachBlockInTheOrderOfTheFile) {
  const QString source =
      drawing(QStringLiteral("doors.dxf"), {QStringLiteral("Wide"), QStringLiteral("Narrow")});
  EXPECT_EQ(make({source, kBlocks}), tpal::kOk) << qPrintable(out() + err());
  EXPECT_EQ(toolNames(), (QStringList{QStringLiteral("Wide"), QStringLiteral("Narrow")}));
  EXPECT_EQ(pictures().size(), 6);
  withTools([&](const auto& tools) {
    EXPECT_EQ(tools[0]->getActionAgent()->sourcePath(), odpath::fromPlatform(source));
  });
}

TEST_F(Make, AddsToAPaletteThatIsThere) {
  writeCatalog(tool("{1}", "Old", "<Command Macro=\"LINE\"/>"));
  EXPECT_EQ(make({drawing(QStringLiteral("doors.dxf"), {QStringLiteral("Door")}), kBlocks}),
            tpal::kOk)
      << qPrintable(out() + err());
  EXPECT_EQ(toolNames(), (QStringList{QStringLiteral("Old"), QStringLiteral("Door")}));
  EXPECT_EQ(palettes(), QStringList{QStringLiteral("p.dtc")});
}

TEST_F(Make, PutsANewPaletteIntoTheGroup) {
  EXPECT_EQ(make({drawing(QStringLiteral("plan.dxf"), {}), QStringLiteral("--group"),
                  QStringLiteral("Site")}),
            tpal::kOk);
  EXPECT_EQ(run({QStringLiteral("list"), path(QStringLiteral("c"))}), tpal::kOk);
  EXPECT_TRUE(out().contains(QStringLiteral("group  Site"))) << qPrintable(out());
}

TEST_F(Make, TakesEveryKnownFileBelowAFolder) {
  drawing(QStringLiteral("lib/b.dxf"), {});
  picture(QStringLiteral("lib/deep/er/a.PNG"));
  write(QStringLiteral("lib/notes.txt"), "no tool");
  EXPECT_EQ(make({path(QStringLiteral("lib"))}), tpal::kOk) << qPrintable(out() + err());
  EXPECT_EQ(toolNames(), (QStringList{QStringLiteral("b"), QStringLiteral("a")}));
  EXPECT_EQ(make({path(QStringLiteral("c"))}), tpal::kOk) << "the pictures of the first run";
  QDir().mkpath(path(QStringLiteral("empty")));
  EXPECT_EQ(make({path(QStringLiteral("empty"))}), tpal::kFailed);
  EXPECT_TRUE(out().contains(QStringLiteral("there is nothing in the folder")));
}

TEST_F(Make, CountsAFileThatIsNamedTwiceOnce) {
  const QString plan = drawing(QStringLiteral("lib/plan.dxf"), {});
  EXPECT_EQ(make({plan, path(QStringLiteral("lib")), path(QStringLiteral("lib/../lib/plan.dxf"))}),
            tpal::kOk);
  EXPECT_EQ(toolNames().size(), 1);
}

TEST_F(Make, GivesTwoFilesOfOneNameTheirOwnPictures) {
  EXPECT_EQ(make({drawing(QStringLiteral("a/door.dxf"), {QStringLiteral("Door")}),
                  drawing(QStringLiteral("b/door.dxf"), {QStringLiteral("Door")}), kBlocks}),
            tpal::kOk);
  EXPECT_EQ(toolNames(), (QStringList{QStringLiteral("Door"), QStringLiteral("Door")}));
  EXPECT_EQ(pictures().size(), 6);
  EXPECT_EQ(pictures().filter(QStringLiteral("Block tool instrument_")).size(), 3);
}

TEST_F(Make, NamesWhatGivesNoToolAndMakesTheRest) {
  write(QStringLiteral("cut.dxf"), "0\nSECTION\n2\nENTI");
  write(QStringLiteral("no.dwg"), "AC1032 is not for us");
  write(QStringLiteral("notes.txt"), "no tool");
  const QString bare = drawing(QStringLiteral("bare.dxf"), {});
  EXPECT_EQ(make({path(QStringLiteral("cut.dxf")), path(QStringLiteral("no.dwg")), bare,
                  path(QStringLiteral("notes.txt")), path(QStringLiteral("missing.dxf")),
                  drawing(QStringLiteral("doors.dxf"), {QStringLiteral("Door")}), kBlocks, kJson}),
            tpal::kFindings)
      << qPrintable(err());
  EXPECT_EQ(toolNames(), QStringList{QStringLiteral("Door")});
  QStringList problems;
  for (const QJsonValue& row : rows())
    if (!row[QStringLiteral("problem")].toString().isEmpty())
      problems << odpath::fileNameOf(row[QStringLiteral("source")].toString()) +
                      QStringLiteral(": ") + row[QStringLiteral("problem")].toString();
  ASSERT_EQ(problems.size(), 5) << qPrintable(out());
  EXPECT_TRUE(
      problems.filter(QStringLiteral("cut.dxf: ")).value(0).contains(QStringLiteral("cut.dxf")));
  EXPECT_EQ(problems.filter(QStringLiteral("bare.dxf")).value(0),
            QStringLiteral("bare.dxf: The drawing has no block definitions."));
  EXPECT_EQ(problems.filter(QStringLiteral("missing.dxf")).value(0),
            QStringLiteral("missing.dxf: there is no such file or command"));
}

TEST_F(Make, KeepsAToolWhosePictureCannotBeMade) {
  write(QStringLiteral("broken.png"), "no picture");
  EXPECT_EQ(make({path(QStringLiteral("broken.png"))}), tpal::kFindings);
  EXPECT_TRUE(out().contains(QStringLiteral("no picture: "))) << qPrintable(out());
  EXPECT_EQ(toolNames(), QStringList{QStringLiteral("broken")});
  EXPECT_TRUE(pictures().isEmpty());
}

TEST_F(Make, EndsOnABlockThatContainsItself) {
  const OdDbDatabasePtr made = OdDbDatabase::createDatabase();
  const auto block = odrxMake<OdDbBlockTableRecord>();
  block->setName(QStringLiteral("Loop"));
  made->getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite)->add(block);
  block->appendOdDbEntity(odrxMake<OdDbBlockReference>(block->objectId()));
  made->writeFile(odpath::fromPlatform(path(QStringLiteral("loop.dxf"))));
  EXPECT_EQ(make({path(QStringLiteral("loop.dxf")), kBlocks}), tpal::kFindings);
  EXPECT_EQ(toolNames(), QStringList{QStringLiteral("Loop")});
}

TEST_F(Make, OnlyLooksInADryRun) {
  EXPECT_EQ(make({drawing(QStringLiteral("doors.dxf"), {QStringLiteral("Door")}), kBlocks, kDry}),
            tpal::kOk);
  EXPECT_TRUE(out().contains(QStringLiteral("would be Door (block)"))) << qPrintable(out());
  EXPECT_TRUE(out().contains(QStringLiteral("1 tool would be on the palette \"P\"")));
  EXPECT_FALSE(QFileInfo::exists(path(QStringLiteral("c"))));
}

TEST_F(Make, PromisesInADryRunWhatTheRunKeeps) {
  write(QStringLiteral("broken.png"), "no picture");
  const QStringList words{path(QStringLiteral("broken.png")), picture(QStringLiteral("site.png")),
                          QStringLiteral("LINE"), kJson};
  const auto told = [&] {
    QStringList all;
    for (const QJsonValue& row : rows())
      all << row[QStringLiteral("kind")].toString() + u' ' +
                 QString::number(row[QStringLiteral("pictures")].toArray().size()) + u' ' +
                 row[QStringLiteral("problem")].toString();
    return all;
  };
  EXPECT_EQ(make(words + QStringList{kDry}), tpal::kFindings) << qPrintable(err());
  const QStringList promised = told();
  EXPECT_TRUE(promised.value(0).startsWith(QStringLiteral("raster 0 no picture: ")))
      << qPrintable(out());
  EXPECT_FALSE(QFileInfo::exists(path(QStringLiteral("c"))));
  EXPECT_EQ(make(words), tpal::kFindings);
  EXPECT_EQ(told(), promised);
}

TEST_F(Make, LooksAtThePaletteInADryRunAndLeavesIt) {
  writeCatalog(tool("{1}", "Old", "<Command Macro=\"LINE\"/>"));
  const QByteArray before = read(QStringLiteral("c/Palettes/p.dtc"));
  const QString plan = drawing(QStringLiteral("plan.dxf"), {});
  EXPECT_EQ(make({plan, kDry}), tpal::kOk) << qPrintable(err());
  EXPECT_EQ(read(QStringLiteral("c/Palettes/p.dtc")), before);
  write(QStringLiteral("c/Palettes/p.dtc"), "<Palette><broken");
  EXPECT_EQ(
      run({QStringLiteral("make"), path(QStringLiteral("c")), QStringLiteral("{P}"), plan, kDry}),
      tpal::kFailed);
  EXPECT_TRUE(err().contains(QStringLiteral("cannot be read"))) << qPrintable(err());
}

TEST_F(Make, GivesNoPaletteWithoutAName) {
  for (const char* name : {"", "  "}) {
    EXPECT_EQ(run({QStringLiteral("make"), path(QStringLiteral("c")), QLatin1String(name),
                   drawing(QStringLiteral("plan.dxf"), {})}),
              tpal::kUsage);
    EXPECT_TRUE(err().contains(QStringLiteral("the palette needs a name"))) << qPrintable(err());
  }
  EXPECT_FALSE(QFileInfo::exists(path(QStringLiteral("c"))));
}

TEST_F(Make, CountsOneToolAsOne) {
  EXPECT_EQ(make({drawing(QStringLiteral("plan.dxf"), {})}), tpal::kOk);
  EXPECT_TRUE(out().contains(QStringLiteral("1 tool is on the palette \"P\"")))
      << qPrintable(out());
}

TEST_F(Make, ReportsEachToolAsJson) {
  EXPECT_EQ(make({drawing(QStringLiteral("doors.dxf"), {QStringLiteral("Door")}), kBlocks, kJson}),
            tpal::kOk);
  ASSERT_EQ(rows().size(), 1);
  const QJsonObject row = rows()[0].toObject();
  EXPECT_EQ(row[QStringLiteral("tool")].toString(), QStringLiteral("Door"));
  EXPECT_EQ(row[QStringLiteral("block")].toString(), QStringLiteral("Door"));
  EXPECT_EQ(row[QStringLiteral("kind")].toString(), QStringLiteral("block"));
  EXPECT_TRUE(row[QStringLiteral("made")].toBool());
  EXPECT_EQ(row[QStringLiteral("pictures")].toArray().size(), 3);
  withTools([&](const auto& tools) {
    EXPECT_EQ(tools.at(0)->id(), row[QStringLiteral("id")].toString());
  });
}

TEST_F(Make, TakesEverythingBackWhenTheDiskIsFull) {
  const QString source = drawing(QStringLiteral("doors.dxf"), {QStringLiteral("Door")});
  int failures = 0;
  for (std::uint64_t bytes = 0;; bytes += 250) {
    ASSERT_LT(bytes, 100000u);
    testhost::FailingServices disk;
    disk.bytesLeft = bytes;
    // A picture that has no place is told; the tool comes without it.
    if (const int code = make({source, kBlocks}); code != tpal::kFailed) break;
    ++failures;
    EXPECT_FALSE(err().isEmpty());
    EXPECT_TRUE(pictures().isEmpty()) << bytes << ": " << qPrintable(pictures().join(u' '));
    EXPECT_TRUE(palettes().isEmpty()) << bytes << ": " << qPrintable(palettes().join(u' '));
  }
  EXPECT_GT(failures, 3);
  EXPECT_EQ(toolNames(), QStringList{QStringLiteral("Door")});
}

TEST_F(Make, LeavesWhatCannotBeReadAlone) {
  write(QStringLiteral("c/DrfTcCatalog.dtc"), "<Catalog><broken");
  EXPECT_EQ(make({drawing(QStringLiteral("plan.dxf"), {})}), tpal::kFailed);
  EXPECT_EQ(read(QStringLiteral("c/DrfTcCatalog.dtc")), "<Catalog><broken");
  writeCatalog({});
  write(QStringLiteral("c/Palettes/p.dtc"), "<Palette><broken");
  EXPECT_EQ(run({QStringLiteral("make"), path(QStringLiteral("c")), QStringLiteral("{P}"),
                 path(QStringLiteral("plan.dxf"))}),
            tpal::kFailed);
  EXPECT_EQ(read(QStringLiteral("c/Palettes/p.dtc")), "<Palette><broken");
}

TEST_F(Make, MakesThePicturesOfThousandsInThreads) {
  EXPECT_EQ(make({drawing(QStringLiteral("lib.dxf"), names(1000)), kBlocks}), tpal::kOk)
      << qPrintable(err());
  EXPECT_EQ(count.made, 3000);
  EXPECT_EQ(count.services,
            static_cast<int>(std::max(1u, std::min(32u, std::thread::hardware_concurrency()))));
  EXPECT_EQ(toolNames(), names(1000)) << "in the order of the file";
  EXPECT_EQ(pictures().size(), 3000);
}

TEST_F(Make, TakesAFolderOfTenThousandFiles) {
  QDir().mkpath(path(QStringLiteral("many")));
  for (int i = 0; i < 10000; ++i)
    write(QStringLiteral("many/%1.dxf").arg(i, 5, 10, QLatin1Char('0')), "0\nEOF\n");
  EXPECT_EQ(make({path(QStringLiteral("many"))}), tpal::kOk) << qPrintable(err());
  const QStringList made = toolNames();
  ASSERT_EQ(made.size(), 10000);
  EXPECT_EQ(made.first(), QStringLiteral("00000"));
  EXPECT_EQ(made.last(), QStringLiteral("09999"));
}

TEST_F(Make, NeedsSomethingToMakeToolsOf) {
  EXPECT_EQ(make({}), tpal::kUsage);
  EXPECT_EQ(run({QStringLiteral("make"), path(QStringLiteral("c"))}), tpal::kUsage);
}

} // namespace
