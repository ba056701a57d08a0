// Hatches with pattern files, what they tell, how they follow their boundary, and what another
// program reads of them.

#include "drawing/entities/hatch.h"
#include "engine/commands/command_fixture.h"
#include "engine/commands/hatch_text.h"
#include "frame/dynamic_library.h"
#include "frame/file_path.h"
#include "host/exports.h"
#include "host/hatch_settings.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

namespace {

class Hatching : public CommandFixture {
 protected:
  Hatching() {
    restart(
        {.settingsFile = {},
         .userDataFolder = odpath::fromPlatform(m_user.path()),
         .programFolder = odpath::fromPlatform(QStringLiteral(SOURCE_DIR "/drafton/engine/data"))});
  }

  void writePattern(const OdString& name, const QByteArray& text) {
    QFile file(m_user.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  }
  void setting(const char* key, const OdVariant& value) {
    engine().hatchSettings()->set(OdString::fromLatin1(key), value);
  }
  std::string hatches() { return describeHatches(database()).toStdString(); }
  OdDbHatchPtr hatch() {
    const auto space = database().getModelSpaceId().openAs<OdDbBlockTableRecord>();
    for (const auto at = space->newIterator(); !at->done(); at->step())
      if (const OdDbEntityPtr entity = at->entity(); odrxCast<OdDbHatch>(entity.get()))
        return OdDbHatchPtr(OdDbObjectPtr(entity));
    return {};
  }
  /// What ezdxf reads of the saved drawing.
  QJsonObject readBack() {
    const OdString file = m_user.filePath(QStringLiteral("hatches.dxf"));
    database().writeFile(odpath::fromPlatform(file));
    QProcess python;
    python.start(QStringLiteral("/usr/bin/python3"),
                 {QStringLiteral(SOURCE_DIR "/tests/engine/commands/hatch_areas.py"), file});
    EXPECT_TRUE(python.waitForFinished(60'000));
    EXPECT_EQ(python.exitCode(), 0) << python.readAllStandardError().toStdString();
    return QJsonDocument::fromJson(python.readAllStandardOutput()).object();
  }

  QTemporaryDir m_user;
};

double sum(const QJsonArray& numbers) {
  double total = 0;
  for (const QJsonValue number : numbers) total += number.toDouble();
  return total;
}

} // namespace

TEST_F(Hatching, PredefinedPatternsAreScaledAndTurned) {
  runScript(u"RECTANG|0,0|100,80|BHATCH|p|p|net|2|30|50,40|");
  EXPECT_EQ(hatches(), "2 entities\nHATCH NET scale2 angle30 lines2 area8000 loops1 outer assoc1");
  const OdDbHatchPtr made = hatch();
  ASSERT_TRUE(made.get());
  EXPECT_NEAR(made->patternLines()[0].angle, kOdaPi / 6, 1e-12);
  EXPECT_NEAR(std::hypot(made->patternLines()[0].offset.x, made->patternLines()[0].offset.y), 6,
              1e-9);
}

TEST_F(Hatching, AllPatternsAreListed) {
  runScript(u"BHATCH|p|p|?");
  for (const char* name : {"ANSI31", "BRICK", "GRAVEL", "SOLID"})
    EXPECT_TRUE(console().shows(OdString::fromLatin1(name))) << name;
}

TEST_F(Hatching, TheOptionsAreKeptForTheNextHatch) {
  runScript(u"RECTANG|0,0|100,80|BHATCH|p|p|brick|2|30|g|0.5|st|n|a|n|50,40|");
  EXPECT_EQ(variable("HPNAME").toString(), QStringLiteral("BRICK"));
  EXPECT_EQ(variable("HPSCALE").toDouble(), 2);
  EXPECT_NEAR(variable("HPANG").toDouble(), kOdaPi / 6, 1e-12);
  EXPECT_EQ(variable("HPGAPTOL").toDouble(), 0.5);
  EXPECT_EQ(variable("HPISLANDDETECTION").toInt32(), 0);
  EXPECT_EQ(variable("HPASSOC").toInt32(), 0);
  console().clear();
  runScript(u"BHATCH|");
  EXPECT_TRUE(console().shows(QStringLiteral("Current fill: pattern BRICK  Scale=2  Angle=30")));
}

TEST_F(Hatching, CancelKeepsTheFormerOptions) {
  runScript(u"BHATCH|p|u|30|2|y|g|1");
  type(QStringLiteral("^C"));
  EXPECT_EQ(variable("HPNAME").toString(), QStringLiteral("ANSI31"));
  EXPECT_EQ(variable("HPGAPTOL").toDouble(), 0);
}

TEST_F(Hatching, ToolsSetTheVariablesAndThePatternFile) {
  writePattern(QStringLiteral("mine.pat"), "*STRIPES, mine\n0,0,0,0,7\n*OTHER,\n90,0,0,0,1\n");
  runScript(u"RECTANG|0,0|100,80|SETVAR|HPNAME|stripes");
  setting("hatch_type", 2);
  setting("hatch_pattern_file", QStringLiteral("mine.pat"));
  runScript(u"FASTHATCHCMD|50,40|");
  EXPECT_EQ(hatches(),
            "2 entities\nHATCH STRIPES scale1 angle0 lines1 area8000 loops1 outer assoc1");
  EXPECT_EQ(hatch()->patternType(), OdDbHatch::kCustomDefined);
  EXPECT_EQ(variable("HPNAME").toString(), QStringLiteral("stripes")) << "left as it is";
}

TEST_F(Hatching, TheTypeOfToolsIsUserDefinedWhateverTheName) {
  runScript(u"RECTANG|0,0|100,80|SETVAR|HPNAME|_USER|SETVAR|HPSPACE|5");
  setting("hatch_type", 1);
  setting("hatch_pattern_file", OdString());
  runScript(u"FASTHATCHCMD|50,40|");
  EXPECT_EQ(hatch()->patternType(), OdDbHatch::kUserDefined);
  EXPECT_EQ(hatch()->patternSpace(), 5);
}

TEST_F(Hatching, APatternOfItsOwnFileIsFound) {
  writePattern(QStringLiteral("Thatch.pat"), "*THATCH, straw\n30,0,0,0,4,3,-1\n");
  runScript(u"RECTANG|0,0|100,80|BHATCH|p|p|Thatch|||50,40|");
  ASSERT_TRUE(hatch().get()) << output().toStdString();
  EXPECT_EQ(hatch()->patternName(), QStringLiteral("THATCH"));
  ASSERT_EQ(hatch()->patternLines().size(), 1u);
  EXPECT_EQ(hatch()->patternLines()[0].dashes, (std::vector<double>{3, -1}));
}

TEST_F(Hatching, OnlyPatternsOfTheUsersOwnAreCustom) {
  writePattern(QStringLiteral("Thatch.pat"), "*THATCH, straw\n30,0,0,0,4\n");
  writePattern(QStringLiteral("ANSI31.pat"), "*ANSI31, mine\n30,0,0,0,4\n");
  writePattern(QStringLiteral("Empty.pat"), "*OTHER, x\n30,0,0,0,4\n");
  const auto ask = oddynlib::function<hostexport::GetCustomPatternFileName>(
      oddynlib::mainExecutable(), hostexport::kGetCustomPatternFileName);
  ASSERT_TRUE(ask);
  OdString path;
  EXPECT_TRUE(ask(QStringLiteral("thatch"), path) || ask(QStringLiteral("Thatch"), path));
  EXPECT_TRUE(path.endsWith(QStringLiteral("\\Thatch.pat"))) << path.toStdString();
  for (const char* name : {"ANSI31", "Empty", "NoSuchPattern", "", "..\\Thatch"}) {
    path = QStringLiteral("unchanged");
    EXPECT_FALSE(ask(OdString::fromLatin1(name), path)) << name;
    EXPECT_EQ(path, QStringLiteral("unchanged"));
  }
}

TEST_F(Hatching, AnUnknownPatternIsToldAtOnce) {
  runScript(u"RECTANG|0,0|100,80|SETVAR|HPNAME|NoSuchPattern|FASTHATCHCMD");
  EXPECT_FALSE(isRunning());
  EXPECT_EQ(console().troubles,
            QStringList{QStringLiteral("There is no hatch pattern \"NoSuchPattern\".")});
  EXPECT_EQ(hatches(), "1 entities");
}

namespace {

struct HatchMessage {
  const char* name;
  const char16_t* words;
  const char16_t* shown;
};

const HatchMessage kHatchMessages[] = {
    {"Question", u"BHATCH",
     u"Specify internal point or [Properties/Select/STyle/Gap/Associative/COlor/Undo]: "},
    {"FastQuestion", u"FASTHATCHCMD", u"Specify internal point or [Select/Undo]: "},
    {"Outside", u"BHATCH|5,4", u"There is no closed boundary around the point."},
    {"GapsAreNotClosed", u"BHATCH|5,4", u"Gaps are not closed; HPGAPTOL changes that."},
    {"GapsAreClosed", u"BHATCH|g|2|5,4", u"Gaps up to 2 are closed; HPGAPTOL changes that."},
    {"OnABoundary", u"CIRCLE|0,0|5|BHATCH|3,4",
     u"The point lies on a boundary. Choose a point inside of an area."},
    {"ChosenTwice", u"CIRCLE|0,0|5|BHATCH|1,1|2,2", u"This area is chosen already."},
    {"ChosenTwiceAsAnObject", u"CIRCLE|0,0|5|BHATCH|1,1|s|#|x|", u"This area is chosen already."},
    {"OpenObjects", u"LINE|0,0|5,0||BHATCH|s|all|", u"The objects enclose no area."},
    {"NothingToUndo", u"BHATCH|u", u"There is nothing to undo."},
    {"NothingHatched", u"BHATCH|", u"Nothing was hatched."},
    {"UnknownPattern", u"BHATCH|p|p|Nothing", u"There is no hatch pattern \"Nothing\"."},
    {"GapRange", u"BHATCH|g|5001", u"The value must be between 0 and 5000."},
    {"Polylines", u"CIRCLE|0,0|5|BOUNDARY|1,1|", u"1 polylines were made."},
    {"ShownLines", u"SETVAR|HPNAME|_USER|BHATCH", u"Current fill: lines  Angle=0  Spacing=1"},
    {"ShownSolid", u"SETVAR|HPNAME|Solid|BHATCH", u"Current fill: solid"},
};

} // namespace

TEST_F(Hatching, Messages) {
  for (const HatchMessage& row : kHatchMessages) {
    SCOPED_TRACE(row.name);
    restart(
        {.settingsFile = {},
         .userDataFolder = {},
         .programFolder = odpath::fromPlatform(QStringLiteral(SOURCE_DIR "/drafton/engine/data"))});
    console().clear();
    OdString words = OdString::fromUtf16(row.words);
    // The circle is chosen by a point on it.
    words.replace(QStringLiteral("#|x"), QStringLiteral("5,0"));
    typeWords(words.split(u'|'));
    EXPECT_TRUE(console().shows(OdString::fromUtf16(row.shown))) << output().toStdString();
  }
}

TEST_F(Hatching, AnotherProgramReadsTheSameAreas) {
  runScript(u"RECTANG|0,0|10,8|CIRCLE|5,4|2|SETVAR|HPNAME|SOLID|BHATCH|1,1|");
  runScript(u"ELLIPSE|c|30,0|35,0|30,2|BHATCH|p|p|ansi31|0.5|15|30,0|");
  runScript(u"CIRCLE|50,0|5|LINE|45,0|55,0||BHATCH|p|g|spherical|30|n|1|2|50,1|");
  runScript(u"RECTANG|70,0|80,8|BHATCH|p|u|45|2|y|a|n|75,4|");
  const QJsonObject read = readBack();
  EXPECT_TRUE(read[QStringLiteral("problems")].toArray().isEmpty())
      << QJsonDocument(read).toJson().toStdString();
  const QJsonArray all = read[QStringLiteral("hatches")].toArray();
  ASSERT_EQ(all.size(), 4);
  const auto at = [&](int i, const char* key) -> QJsonValue {
    return all[i].toObject()[QLatin1String(key)];
  };

  ASSERT_EQ(at(0, "areas").toArray().size(), 2);
  EXPECT_NEAR(at(0, "areas")[0].toDouble(), 80, 1e-3);
  EXPECT_NEAR(at(0, "areas")[1].toDouble(), 4 * kOdaPi, 1e-2);
  EXPECT_EQ(at(0, "pattern").toString(), QStringLiteral("SOLID"));
  EXPECT_EQ(at(0, "solid").toInt(), 1);
  EXPECT_EQ(at(0, "style").toInt(), 1);
  EXPECT_EQ(at(0, "associative").toInt(), 1);
  EXPECT_EQ(sum(at(0, "sources").toArray()), 2);
  EXPECT_EQ(at(0, "flags")[0].toInt() & 1, 1) << "external";
  EXPECT_EQ(at(0, "flags")[1].toInt() & 16, 16) << "outermost";

  EXPECT_NEAR(sum(at(1, "areas").toArray()), 10 * kOdaPi, 1e-2);
  EXPECT_EQ(at(1, "pattern").toString(), QStringLiteral("ANSI31"));
  EXPECT_EQ(at(1, "scale").toDouble(), 0.5);
  EXPECT_NEAR(at(1, "angle").toDouble(), 15, 1e-9);
  ASSERT_EQ(at(1, "lines").toArray().size(), 1);
  EXPECT_NEAR(at(1, "lines")[0][QStringLiteral("angle")].toDouble(), 60, 1e-9);

  EXPECT_NEAR(sum(at(2, "areas").toArray()), 12.5 * kOdaPi, 2e-2);
  EXPECT_EQ(at(2, "gradient")[0].toString(), QStringLiteral("SPHERICAL"));
  EXPECT_NEAR(at(2, "gradient")[1].toDouble(), 30, 1e-9);

  EXPECT_NEAR(sum(at(3, "areas").toArray()), 80, 1e-9);
  EXPECT_EQ(at(3, "type").toInt(), 0);
  EXPECT_EQ(at(3, "associative").toInt(), 0);
  EXPECT_EQ(at(3, "lines").toArray().size(), 2);
  EXPECT_EQ(sum(at(3, "sources").toArray()), 0);
}

TEST_F(Hatching, NumbersAtTheirLimitsAreLivedWith) {
  for (const char16_t* const words :
       {u"RECTANG|-1e308,-1e308|1e308,1e308|BHATCH|p|u||1|n|0,0|1e308,0|",
        u"RECTANG|0,0|1e40,1e40|BHATCH|p|u||1e-300|y|1e39,1e39|",
        u"RECTANG|0,0|10,8|BHATCH|p|u|1e300|1e300|n|5,4|", u"CIRCLE|0,0|1e308|BHATCH|1,1|",
        u"CIRCLE|0,0|1e-300|BHATCH|0,0|s|all||",
        u"LINE|0,0|1e-200,0|1e-200,1e-200|c|BHATCH|s|all||",
        u"ELLIPSE|c|1e308,0|@1e300,0|1e-300|BHATCH|1e308,0|", u"RECTANG|0,0|10,8|BHATCH|5,4,1e308|",
        u"RECTANG|1e15,1e15|@10,8|BHATCH|1e15,1e15|@5,4|", u"CIRCLE|0,0|1e308|BOUNDARY|1,1|",
        u"CIRCLE|0,0|5|CIRCLE|1e300,0|1e300|BHATCH|1,1|MOVE|handle|30||0,0|1e308,0"}) {
    SCOPED_TRACE(OdString::fromUtf16(words).toStdString());
    restart({});
    runScript(u"SETVAR|HPNAME|SOLID");
    runScript(words);
    type(QStringLiteral("^C"));
    const OdDbDatabasePtr read = OdDbDatabase::readDxf(dxf(), QStringLiteral("memory"));
    EXPECT_TRUE(read->unknownContent().isEmpty());
    EXPECT_EQ(read->writeDxf(), dxf());
  }
}

TEST_F(Hatching, SurvivesTheFile) {
  runScript(u"RECTANG|0,0|10,8|CIRCLE|5,4|2|SETVAR|HPNAME|SOLID|BHATCH|1,1|");
  const OdDbDatabasePtr read = OdDbDatabase::readDxf(dxf(), QStringLiteral("memory"));
  EXPECT_EQ(describeHatches(*read).toStdString(), hatches());
  EXPECT_EQ(read->writeDxf(), dxf());
}

TEST_F(Hatching, BoundariesListTheHatchesThatFollowThem) {
  runScript(u"RECTANG|0,0|10,8|SETVAR|HPNAME|SOLID|BHATCH|1,1|");
  const auto ids = database().getModelSpaceId().openAs<OdDbBlockTableRecord>()->entityIds();
  ASSERT_EQ(ids.size(), 2u);
  const QByteArray reactor = "{ACAD_REACTORS\n330\n" + ids[1].getHandle().ascii().toLatin1();
  const auto lists = [&] { return dxf().replace("\r", "").replace(" ", "").contains(reactor); };
  EXPECT_TRUE(lists());
  runScript(u"MOVE|l||0,0|100,0");
  EXPECT_FALSE(lists());
  type(QStringLiteral("U\n"));
  EXPECT_TRUE(lists());
}

// --- hatches that follow

namespace {

struct Change {
  const char* name;
  const char16_t* setup;
  const char16_t* change;
  const char* result;
};

const Change kChanges[] = {
    {"MovedWall", u"LINE|0,0|10,0|10,8|0,8|c|BHATCH|5,4|", u"SCALE|all||0,0|2",
     "5 entities\nHATCH SOLID area320 loops1 outer assoc4"},
    {"MovedIsland", u"RECTANG|0,0|20,20|CIRCLE|5,5|2|BHATCH|1,1|", u"MOVE|handle|31||0,0|8,8",
     "3 entities\nHATCH SOLID area387.4 loops2 outer assoc2"},
    {"IslandMovedOut", u"RECTANG|0,0|20,20|CIRCLE|5,5|2|BHATCH|1,1|", u"MOVE|handle|31||0,0|80,8",
     "3 entities\nHATCH SOLID area400 loops1 outer assoc1"},
    {"RoomMovedAway", u"RECTANG|0,0|10,8|BHATCH|5,4|", u"MOVE|handle|30||0,0|100,50",
     "2 entities\nHATCH SOLID area80 loops1 outer assoc1"},
    {"RoomGrown", u"RECTANG|0,0|10,8|BHATCH|s|l||", u"SCALE|handle|30||0,0|2",
     "2 entities\nHATCH SOLID area320 loops1 outer assoc1"},
    {"WallErased", u"LINE|0,0|10,0|10,8|0,8|c|BHATCH|5,4|", u"ERASE|handle|31|",
     "4 entities\nHATCH SOLID area80 loops1 outer"},
    {"WallMovedAway", u"LINE|0,0|10,0|10,8|0,8|c|BHATCH|5,4|", u"MOVE|handle|31||0,0|5,0",
     "5 entities\nHATCH SOLID area80 loops1 outer"},
    {"HatchMovedAlone", u"RECTANG|0,0|10,8|BHATCH|5,4|", u"MOVE|l||0,0|100,0",
     "2 entities\nHATCH SOLID area80 loops1 outer"},
    {"NotAssociative", u"RECTANG|0,0|10,8|BHATCH|a|n|5,4|", u"SCALE|handle|30||0,0|2",
     "2 entities\nHATCH SOLID area80 loops1 outer"},
};

class Following : public CommandFixture, public ::testing::WithParamInterface<Change> {};

} // namespace

TEST_P(Following, TheBoundary) {
  runScript(u"SETVAR|HPNAME|SOLID");
  runScript(GetParam().setup);
  const QByteArray before = dxf();
  const std::size_t depth = database().undoDepth();
  console().troubles.clear();
  runScript(GetParam().change);
  ASSERT_FALSE(isRunning()) << prompt().toStdString();
  EXPECT_TRUE(console().troubles.isEmpty());
  EXPECT_EQ(describeHatches(database()).toStdString(), GetParam().result) << output().toStdString();
  EXPECT_EQ(database().undoDepth(), depth + 1) << "the hatch follows in the same step";
  const QByteArray after = dxf();
  type(QStringLiteral("U\n"));
  EXPECT_EQ(dxf(), before);
  type(QStringLiteral("REDO\n"));
  EXPECT_EQ(dxf(), after);
}

INSTANTIATE_TEST_SUITE_P(Hatches, Following, ::testing::ValuesIn(kChanges),
                         [](const ::testing::TestParamInfo<Change>& row) {
                           return std::string(row.param.name);
                         });
