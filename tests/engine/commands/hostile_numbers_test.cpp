// Numbers at the edge of what a drawing can hold: whatever the command says to them, the drawing
// stays one that can be saved and read.

#include "drafton/engine/saved_facts.h"
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
    {"JoinFarLines", u"LINE|1e308,0|0,0||LINE|0,1e308|0,-1e308||LINE|5,5|6,6||JOIN|all|"},
    {"JoinFarOnOneLine", u"LINE|1e308,0|-1e308,0||LINE|1e308,0|0,0||JOIN|all|"},
    {"BreakFarLine", u"LINE|1e308,0|-1e308,0||BREAK|l|f|1,0|5,0|"},
    {"AreaOfFarCorners", u"AREA|0,0|1e308,0|1e308,1e308||"},
    {"AngleOfFarLines", u"LINE|1e308,0|-1e308,0||LINE|0,1e308|0,0||DIMANGULAR|l|l|5,5|"},
    {"AngleAtAFarVertex", u"DIMANGULAR||1e308,1e308|-1e308,0|0,-1e308|5,5|"},
    {"BaselineFar", u"DIMLINEAR|0,0|10,0|5,5|DIMBASELINE|1e308,0||"},
    {"FilletRadius", u"LINE|0,0|10,0||LINE|0,0|0,8||FILLET|r|1e308|8,0|0,6||"},
    {"FilletTinyRadius", u"LINE|0,0|10,0||LINE|0,0|0,8||FILLET|r|1e-300|8,0|0,6||"},
    {"FilletFarLines", u"LINE|1e308,0|0,0||LINE|0,1e308|0,0||FILLET|r|1e200|5,0|0,5||"},
    {"FilletPolyline", u"PLINE|1e308,0|0,0|0,1e308||FILLET|r|1e307|p|l|"},
    {"ChamferDistances", u"LINE|0,0|10,0||LINE|0,0|0,8||CHAMFER|d|1e308|1e-300|8,0|0,6||"},
    {"Move", u"LINE|1e308,0|0,0||MOVE|l||d|1e308,0"},
    {"MovePolyline", u"PLINE|1e308,0|0,0||MOVE|l||d|1e308,0"},
    {"Copy", u"CIRCLE|1e308,0|1|COPY|l||d|1e308,0"},
    {"MoveArc", u"ARC|1e308,0|c|0,0|a|90|MOVE|l||d|1e308,1e308"},
    {"Rotate", u"LINE|1e308,0|0,0||ROTATE|l||-1e308,-1e308|45"},
    {"Scale", u"LINE|1e200,0|0,0||SCALE|l||0,0|1e200"},
    {"ScaleTiny", u"CIRCLE|0,0|1|SCALE|l||0,0|1e-308|SCALE|l||0,0|1e-308"},
    {"ScaleReference", u"LINE|1,0|0,0||SCALE|l||0,0|r|1e-308|1e308"},
    {"Mirror", u"LINE|1e308,0|0,0||MIRROR|l||-1e308,0|-1e308,1|n"},
    {"MirrorText", u"MIRRTEXT|0|TEXT|1e308,0|1e308|0|abc||MIRROR|l||-1e308,0|-1e308,1|n"},
    {"Offset", u"CIRCLE|0,0|1e308|OFFSET|1e308|l|1e308,1e308|e"},
    {"OffsetLine", u"LINE|0,0|1e308,0||OFFSET|1e308|l|0,1e308|l|0,1e308|e"},
    {"OffsetThrough", u"PLINE|0,0|1,0|1,1||OFFSET|t|l|1e308,1e308|e"},
    {"Explode", u"PLINE|-1e308,0|a|1e308,1e308||EXPLODE|l|"},
    {"Point", u"POINT|1e308,-1e308,1e308"},
    {"Polygon", u"POLYGON|1024|1e308,1e308|i|1e308"},
    {"PolygonEdge", u"POLYGON|1024|e|-1e308,0|1e308,0"},
    {"PolygonCircumscribed", u"POLYGON|3|0,0|c|1e308"},
    {"Donut", u"DONUT|0|1e308|1e308,1e308|-1e308,0|"},
    {"Ellipse", u"ELLIPSE|-1e308,0|1e308,0|1e308"},
    {"EllipseTiny", u"ELLIPSE|c|1e308,0|@1e-300,0|1e-300"},
    {"EllipseArc", u"ELLIPSE|a|c|0,0|1e308,0|1e307|1e300|-1e300"},
    {"Spline", u"SPLINE|-1e308,0|1e308,0|0,1e308||1e308,1e308|-1e308,1e308"},
    {"SplineTiny", u"SPLINE|0,0|1e-300,0|2e-300,0|||"},
    {"Mtext", u"MTEXT|-1e308,-1e308|h|1e308|1e308,1e308|abc|"},
    {"MtextRotated", u"MTEXT|-1e308,0|r|1e308|1e308,1e308|abc|"},
    {"Leader", u"LEADER|1e308,0|1.7e308,0||note||"},
    {"DimensionLinear", u"DIMLINEAR|-1e308,0|1e308,0|0,1e308"},
    {"DimensionAligned", u"DIMALIGNED|0,0|1e-300,1e-300|1e308,1e308"},
    {"DimensionRadius", u"CIRCLE|0,0|1e308|DIMRADIUS|l|1.7e308,1.7e308"},
    {"DimensionDiameter", u"CIRCLE|0,0|1e308|DIMDIAMETER|l|1.7e308,1.7e308"},
    {"DimensionMove", u"DIMLINEAR|0,0|1e308,0|0,1||MOVE|l||d|1e308,1e308"},
    {"ChpropScale", u"LINE|0,0|1,0||CHPROP|l||s|1e-308|t|1e308|"},
    {"Linetype", u"LINETYPE|c|Far||1e308,-1e308,1e308||"},
    {"Style", u"STYLE|Far|txt|1e308|100|85|n|n|n"},
    {"SelectWindow", u"LINE|0,0|1e308,0||SELECT|w|-1e308,-1e308|1.7e308,1.7e308|"},
    {"SelectPolygon", u"LINE|0,0|1e308,0||SELECT|cp|-1e308,-1e308|1.7e308,0|0,1.7e308||"},
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
  // As the program does before it saves.
  ASSERT_NO_THROW(drafton::tellExtents(database()));
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
