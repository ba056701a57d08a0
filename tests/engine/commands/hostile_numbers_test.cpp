// Numbers at the edge of what a drawing can hold: whatever the command says to them, the drawing
// stays one that can be saved and read.

#include "engine/commands/command_fixture.h"

namespace {

struct HostileRun {
  const char* name;
  const char16_t* words;
};

constexpr HostileRun kRuns[] = {
    {"LineBeyond", u"LINE|1e308,0|@1e308,0|@1e308,0|"},
    {"LineLength", u"ARC|1e308,0|c|0,0|a|90|LINE||1e308|"},
    {"PolylineLength", u"PLINE|1e308,0|l|1e308|l|1e308|"},
    {"PolylineArc", u"PLINE|-1e308,0|a|1e308,1e308|"},
    {"PolylineWidth", u"PLINE|0,0|h|1e308|1e308|1,0|"},
    {"PolylineRadius", u"PLINE|0,0|a|r|1e308|a|180|90|"},
    {"CircleRadius", u"CIRCLE|1e308,1e308|1e308"},
    {"CircleTwoPoints", u"CIRCLE|2p|-1e308,-1e308|1e308,1e308"},
    {"CircleThreePoints", u"CIRCLE|3p|1e200,0|0,1e200|-1e200,0"},
    {"CircleTiny", u"CIRCLE|3p|1e-200,0|0,1e-200|-1e-200,0"},
    {"ArcThreePoints", u"ARC|1e308,0|0,1e308|-1e308,0"},
    {"ArcNearlyStraight", u"ARC|0,0|1,1e-12|2,0"},
    {"ArcTinyAngle", u"ARC|0,0|e|1,0|a|1e-300"},
    {"Rectangle", u"RECTANG|-1e308,-1e308|1e308,1e308"},
    {"RectangleArea", u"RECTANG|1e308,0|a|1e308|l|1e-300"},
    {"RectangleChamfer", u"RECTANG|c|1e308|1e308|0,0|5,5"},
    {"TextLines", u"TEXT|0,-1e308|1e308|0|one|two|three|"},
    {"TextAlign", u"TEXT|j|a|-1e308,0|1e308,0|x|y|"},
    {"TextFit", u"TEXT|j|f|0,0|1e308,0|1e-300|x|"},
    {"Move", u"LINE|1e308,0|0,0||MOVE|l||d|1e308,0"},
    {"MovePolyline", u"PLINE|1e308,0|0,0||MOVE|l||d|1e308,0"},
    {"Copy", u"CIRCLE|1e308,0|1|COPY|l||d|1e308,0"},
    {"MoveArc", u"ARC|1e308,0|c|0,0|a|90|MOVE|l||d|1e308,1e308"},
    {"ZoomWindow", u"ZOOM|-1e308,-1e308|1e308,1e308"},
    {"ZoomCenter", u"ZOOM|c|1e308,1e308|1"},
    {"ZoomSmall", u"ZOOM|1e308x"},
    {"ZoomExtents", u"LINE|-1e308,-1e308|1e308,1e308||ZOOM|e"},
    {"Elevation", u"RECTANG|e|1e308|0,0|1,1"},
    {"NoNumbers", u"LINE|nan,nan|inf,0|1e999,0|0,0|1,1|"},
};

class HostileNumbers : public CommandFixture, public ::testing::WithParamInterface<HostileRun> {};

} // namespace

TEST_P(HostileNumbers, LeaveADrawingThatCanBeSaved) {
  runScript(GetParam().words);
  if (isRunning()) type(QStringLiteral("^C"));
  QByteArray saved;
  ASSERT_NO_THROW(saved = dxf()) << describeEntities(database()).toStdString();
  OdDbDatabasePtr read;
  ASSERT_NO_THROW(read = OdDbDatabase::readDxf(saved, QStringLiteral("memory")));
  EXPECT_TRUE(read->unknownContent().isEmpty()) << read->unknownContent().join(u'\n').toStdString();
  EXPECT_EQ(read->writeDxf(), saved);
}

INSTANTIATE_TEST_SUITE_P(Commands, HostileNumbers, ::testing::ValuesIn(kRuns),
                         [](const ::testing::TestParamInfo<HostileRun>& row) {
                           return std::string(row.param.name);
                         });
