// What commands tell.

#include "drafton/engine/mem_param.h"
#include "engine/commands/command_fixture.h"

namespace {

struct Message {
  const char* name;
  const char16_t* words;
  const char16_t* shown; ///< a part of the output
};

constexpr Message kMessages[] = {
    {"LineHasNothingToGoOnFrom", u"LINE|", u"There is no line or arc to continue."},
    {"LineAllUndone", u"LINE|0,0|u", u"All segments already undone."},
    {"LineAsksToClose", u"LINE|0,0|1,0|1,1", u"Specify next point or [Close/Undo]: "},
    {"LineAsksNotToCloseYet", u"LINE|0,0|1,0", u"Specify next point or [Undo]: "},
    {"PolylineTellsItsWidth", u"PLINEWID|2|PLINE|0,0", u"Current line-width is 2"},
    {"PolylineArcOptions", u"PLINE|0,0|1,0|a",
     u"Specify endpoint of arc or [Angle/CEnter/CLose/Direction/Halfwidth/Line/Radius/Second/Undo/"
     u"Width]: "},
    {"PolylineNoSuchArc", u"PLINE|0,0|a|5,0", u"There is no such arc."},
    {"CircleOffersTheRadius", u"CIRCLE|0,0|3|CIRCLE|0,0",
     u"Specify radius of circle or [Diameter] <3>: "},
    {"CircleOffersTheDiameter", u"CIRCLE|0,0|3|CIRCLE|0,0|d", u"Specify diameter of circle <6>: "},
    {"CircleRadiusAboveZero", u"CIRCLE|0,0|0", u"The value must be greater than zero."},
    {"CircleInALine", u"CIRCLE|3p|0,0|1,0|2,0", u"they stand in a line"},
    {"ArcAngle", u"ARC|c|0,0|1,0|a|360",
     u"The angle must not be zero and must be below a full turn."},
    {"RectangleTellsItsModes", u"RECTANG|c|1|2|w|3|0,0|9,9|RECTANG",
     u"Current rectangle modes: Chamfer=1 x 2  Width=3"},
    {"RectangleFlat", u"RECTANG|0,0|9,0", u"The corners must differ in both directions."},
    {"TextTellsStyleAndHeight", u"TEXT", u"Current text style: \"Standard\"  Text height: 2.5"},
    {"TextListsStyles", u"TEXT|s|?", u"  Standard  Font: txt  Height: 0"},
    {"TextUnknownStyle", u"TEXT|s|Bold", u"There is no text style \"Bold\"."},
    {"TextNothingToGoOnFrom", u"TEXT|", u"There is no text to go on from."},
    {"AttributeTellsItsModes", u"ATTDEF|v",
     u"Current attribute modes:  Invisible=N  Constant=N  Verify=Y  Preset=N  Lock position=Y"},
    {"AttributeTag", u"ATTDEF||", u"A tag is needed."},
    {"AttributeTagWithBlank", u"ATTDEF||\"a b\"", u"A tag cannot have blanks."},
    {"AttributeNothingToGoOnFrom", u"TEXT|0,0|3|0|x||ATTDEF||no||1|",
     u"There is no attribute to go on from."},
    {"CopyTellsItsMode", u"CIRCLE|0,0|1|COPY|l|", u"Current settings: Copy mode = Multiple"},
    {"CopyTellsItsModeFromTheVariable", u"CIRCLE|0,0|1|COPYMODE|1|COPY|l|",
     u"Current settings: Copy mode = Single"},
    {"CopyOffersDisplacement", u"CIRCLE|0,0|1|COPY|l|",
     u"Specify base point or [Displacement/mOde] <Displacement>: "},
    {"CopyOffersTheFirstPoint", u"CIRCLE|0,0|1|COPY|l||0,0",
     u"Specify second point or [Exit/Undo] <use first point as displacement>: "},
    {"CopyOffersToExit", u"CIRCLE|0,0|1|COPY|l||0,0|1,0",
     u"Specify second point or [Exit/Undo] <Exit>: "},
    {"MoveOffersDisplacement", u"CIRCLE|0,0|1|MOVE|l|",
     u"Specify base point or [Displacement] <Displacement>: "},
    {"MoveOffersTheFirstPoint", u"CIRCLE|0,0|1|MOVE|l||0,0",
     u"Specify second point <use first point as displacement>: "},
    {"ZoomAsks", u"ZOOM",
     u"Specify corner of window, enter a scale factor (nX or nXP) or "
     u"[All/Center/Extents/Previous/Scale/Window]: "},
    {"ZoomTooFar", u"LINE|1.7e308,1.7e308|1.7e308,1.7e308||ZOOM|e",
     u"The view would be too small or too large to be drawn."},
    {"ZoomNoPrevious", u"ZOOM|p", u"No previous view saved."},
    {"ZoomTooSmall", u"ZOOM|1e300x", u"The view would be too small or too large to be drawn."},
    {"SetvarRealRange", u"SETVAR|LTSCALE|0", u"Requires a number greater than zero."},
    {"SetvarIntegerRange", u"SETVAR|PLINEGEN|2", u"Requires a whole number between 0 and 1."},
    {"SetvarHostRange", u"SETVAR|PICKBOX|51", u"Requires a whole number between 0 and 50."},
    {"SetvarLowerLimit", u"SETVAR|PLINEWID|-1", u"Requires a number of at least 0."},
    {"SetvarPoint", u"SETVAR|INSBASE|x", u"Requires a point: x,y or x,y,z."},
    {"SetvarColor", u"SETVAR|CECOLOR|pink", u"Requires a color"},
    {"SetvarRecord", u"SETVAR|CLAYER|NoSuchLayer", u"there is nothing of that name"},
    {"SetvarArrow", u"DIMBLK|NoSuchArrow", u"there is nothing of that name"},
    {"SetvarDimensionLinetype", u"DIMLTYPE|NoSuchType", u"there is nothing of that name"},
    {"SetvarLineWeight", u"DIMLWD|7", u"Requires a whole number"},
    {"SetvarTextHeight", u"DIMTXT|0", u"Requires a number greater than zero."},
    {"SetvarSeparator", u"DIMDSEP|.|DIMDSEP", u"Enter new value for DIMDSEP <.>: "},
    {"SetvarSeparatorOfTwo", u"DIMDSEP|..", u"Requires a single character."},
    {"SetvarUnknown", u"SETVAR|NOSUCHTHING",
     u"Unknown variable name \"NOSUCHTHING\". Type SETVAR ? for a list of variables."},
    {"SetvarReadOnly", u"SETVAR|DWGNAME", u"(read only)"},
    {"SetvarOffersTheValue", u"SETVAR|textsize", u"Enter new value for TEXTSIZE <2.5>: "},
    {"SetvarList", u"SETVAR|?|LTSC*", u"LTSCALE              1"},
    {"SetvarEmptyList", u"SETVAR|?|XYZ*", u"No variable fits \"XYZ*\"."},
    {"LayerTellsTheCurrent", u"LAYER", u"Current layer: \"0\""},
    {"LayerFreezesNotTheCurrent", u"LAYER|f|0",
     u"Layer \"0\" is the current layer and cannot be frozen."},
    {"LayerAsksBeforeTurningTheCurrentOff", u"LAYER|off|0",
     u"Layer \"0\" is the current layer. Really turn it off? [Yes/No] <No>: "},
    {"LayerBadCharacter", u"LAYER|n|a/b",
     u"\"a/b\" is no name for a layer: the character / is not allowed."},
    {"LayerExists", u"LAYER|n|0", u"Layer \"0\" already exists."},
    {"LayerZeroKeepsItsName", u"LAYER|r|0", u"Layer \"0\" cannot be renamed."},
    {"LayerUnknown", u"LAYER|s|Roof", u"There is no layer \"Roof\"."},
    {"LayerFrozenNotCurrent", u"LAYER|n|a|f|a|s|a",
     u"Layer \"a\" is frozen and cannot be made current."},
    {"LayerFrozenNotMadeCurrent", u"LAYER|n|a|f|a|m|a",
     u"Layer \"a\" is frozen and cannot be made current."},
    {"LayerList", u"LAYER|?|", u"\"0\"  on  7 (white)  Continuous  Default"},
    {"LayerListTellsStates", u"LAYER|n|a|off|a|f|a|lo|a|p|n|a|lw|1|a|d|Old ones|a|?|a",
     u"\"a\"  off, frozen, locked, not plotted  7 (white)  Continuous  1.00mm  Old ones"},
    {"LayerNothingFits", u"LAYER|?|X*", u"No layer fits \"X*\"."},
    {"LayerLinetypes", u"LAYER|l|?", u"\"Continuous\"  Solid line"},
    {"LayerByLayerLinetype", u"LAYER|l|bylayer", u"A layer cannot have the line type \"bylayer\"."},
    {"SelectionCounts", u"LINE|0,0|9,0||CIRCLE|20,0|1|ERASE|all|last", u"1 found, 2 in total"},
    {"SelectionFilter", u"SELECT|fi|t|LINE|fi|l|W*", u"Filter: Type=LINE  Layer=W*"},
    {"SelectionNoFilter", u"SELECT|fi|n", u"No filter."},
    {"SelectionPolygon", u"SELECT|wp|0,0|1,0|", u"A polygon needs three corners."},
    {"SelectionFence", u"SELECT|f|0,0|", u"A fence needs two points."},
    {"SelectionNothingToUndo", u"SELECT|u", u"There is nothing to undo."},
    {"SelectTells", u"LINE|0,0|9,0||SELECT|all|", u"1 selected"},
    {"RotateTellsOfCopies", u"LINE|0,0|9,0||ROTATE|l||0,0|c",
     u"Rotating a copy of the selected objects."},
    {"RotateOffersTheLastAngle", u"LINE|0,0|9,0||ROTATE|l||0,0|30|ROTATE|l||0,0",
     u"Specify rotation angle or [Copy/Reference] <30>: "},
    {"ScaleTellsOfCopies", u"LINE|0,0|9,0||SCALE|l||0,0|c",
     u"Scaling a copy of the selected objects."},
    {"MirrorPoints", u"LINE|0,0|9,0||MIRROR|l||0,0|0,0", u"The two points must differ."},
    {"OffsetTellsItsModes", u"OFFSET|e|y", u"Current settings: Erase source=Yes  Layer=Source"},
    {"OffsetOfAText", u"TEXT|0,0|5|0|abc||OFFSET|1|l", u"That object cannot be offset."},
    {"OffsetIntoNothing", u"CIRCLE|0,0|2|OFFSET|3|2,0|0.5,0",
     u"The object cannot be offset there."},
    {"OffsetNothingThere", u"LINE|0,0|9,0||OFFSET|1|50,50", u"Nothing was found there."},
    {"TrimNothingCrosses", u"LINE|0,0|9,0||TRIM||5,0",
     u"The object does not cross a cutting edge there."},
    {"ExtendNothingReached", u"LINE|0,0|9,0||EXTEND||5,0",
     u"The object does not reach a boundary edge from there."},
    {"ExtendOfACircle", u"CIRCLE|0,0|5|LINE|0,0|9,0||EXTEND||0,5",
     u"The object does not reach a boundary edge from there."},
    {"TrimOfAText", u"TEXT|0,0|5|0|abc||TRIM||l",
     u"The object does not cross a cutting edge there."},
    {"TrimNothingToUndo", u"TRIM||u", u"There is nothing to undo."},
    {"ExplodeWholeThings", u"LINE|0,0|9,0||EXPLODE|l|", u"1 could not be exploded."},
    {"ChpropOffersTheValue", u"COLOR|1|LINE|0,0|9,0||CHPROP|l||c",
     u"New color or [Truecolor/COlorbook] <1 (red)>: "},
    {"ChpropOffersNothingForSeveral", u"COLOR|1|LINE|0,0|9,0||COLOR|2|LINE|0,5|9,5||CHPROP|all||c",
     u"New color or [Truecolor/COlorbook] <varies>: "},
    {"ChpropColor", u"LINE|0,0|9,0||CHPROP|l||c|pinkish", u"A color is needed"},
    {"ChpropLayer", u"LINE|0,0|9,0||CHPROP|l||la|Roof", u"There is no layer \"Roof\"."},
    {"ChpropLineWeight", u"LINE|0,0|9,0||CHPROP|l||lw|3",
     u"A width from 0.0 to 2.11 millimetres or Default is needed."},
    {"ChpropTransparency", u"LINE|0,0|9,0||CHPROP|l||tr|95",
     u"A whole number from 0 to 90, ByLayer or ByBlock is needed."},
    {"ChpropPlotStyle", u"LINE|0,0|9,0||PSTYLEMODE|1|CHPROP|l||p",
     u"Objects of this drawing take their plot styles from their colors."},
    {"ChpropThickness", u"SPLINE|0,0|9,9||||CHPROP|l||t|5|", u"1 cannot have a thickness."},
    {"LinetypeTellsTheCurrent", u"LINETYPE", u"Current line type: \"ByLayer\""},
    {"LinetypeBadPattern", u"LINETYPE|c|Ours||long", u"Enter linetype pattern: A: "},
    {"LinetypeExists", u"LINETYPE|c|continuous", u"There is a line type \"continuous\" already."},
    {"LinetypeNoFile", u"LINETYPE|l|*|nowhere", u"There is no file \"nowhere\"."},
    {"StyleTells", u"STYLE|Notes", u"New style."},
    {"StyleExisting", u"STYLE|Standard", u"Existing style."},
    {"StyleFont", u"STYLE|Notes|arial.ttf,big", u"Only a shape font can have one big font."},
    {"StyleWidth", u"STYLE|Notes|txt|0|1000", u"A number between 0.01 and 100 is needed."},
    {"StyleObliquing", u"STYLE|Notes|txt|0|1|89", u"An angle between -85 and 85 is needed."},
    {"StyleBecomesCurrent", u"STYLE|Notes|Arial|0|1|0|n|n",
     u"\"Notes\" is now the current text style."},
    {"PointTellsItsModes", u"PDMODE|34|POINT", u"Current point modes:  PDMODE=34  PDSIZE=0"},
    {"PolygonSides", u"POLYGON|2", u"A whole number between 3 and 1024 is needed."},
    {"EllipseThin", u"ELLIPSE|0,0|10,0|1e-9", u"The ellipse would be too thin."},
    {"EllipseRotation", u"ELLIPSE|0,0|10,0|r|90", u"An angle between 0 and 89.4 is needed."},
    {"MtextSpacing", u"MTEXT|0,0|l|a|5x",
     u"A factor from 0.25x to 4x or a distance of as much is needed."},
    {"DimensionTellsItsText", u"DIMLINEAR|0,0|10,5|4,9", u"Dimension text = 10"},
    {"DimensionOffersTheText", u"DIMLINEAR|0,0|10,5|t", u"Enter dimension text <10>: "},
    {"DimensionOfAText", u"TEXT|0,0|5|0|abc||DIMALIGNED||l", u"The object cannot be dimensioned."},
    {"RadiusOfALine", u"LINE|0,0|9,0||DIMRADIUS|l", u"The object is no arc and no circle."},
    {"DimstyleTellsTheCurrent", u"DIMSTYLE", u"Current dimension style: Standard"},
    {"DimstyleTellsOverrides", u"DIMTXT|9|DIMSTYLE", u"Current dimension overrides:"},
    {"DimstyleStatus", u"DIMSTYLE|st", u"DIMTXT           2.5"},
    {"DimstyleUnknown", u"DIMSTYLE|r|None", u"There is no dimension style \"None\"."},
    {"DimstyleRedefine", u"DIMSTYLE|s|Standard",
     u"That name is already in use, redefine it? [Yes/No] <No>: "},
    {"DimstyleApplyToOthers", u"LINE|0,0|9,0||DIMSTYLE|a|l|", u"1 are no dimensions."},
    {"LayerColorQuestion", u"LAYER|c|1", u"Enter name list of layer(s) for color 1 (red) <0>: "},
};

class Messages : public CommandFixture, public ::testing::WithParamInterface<Message> {};

class CommandTexts : public CommandFixture {};

} // namespace

TEST_P(Messages, AreShown) {
  runScript(GetParam().words);
  EXPECT_TRUE(console().shows(OdString::fromUtf16(GetParam().shown)))
      << "not shown: " << OdString::fromUtf16(GetParam().shown).toStdString() << "\nbut:\n"
      << output().toStdString();
}

INSTANTIATE_TEST_SUITE_P(Commands, Messages, ::testing::ValuesIn(kMessages),
                         [](const ::testing::TestParamInfo<Message>& row) {
                           return std::string(row.param.name);
                         });

TEST_F(CommandTexts, SetvarTakesTheNameFromItsParameters) {
  const auto parameters = kvMake<drafton::MemParam>();
  parameters->setValue(QStringLiteral("name"), OdVariant(QStringLiteral("LTSCALE")));
  input().lines = {QStringLiteral("7")};
  EXPECT_TRUE(document().processor().run(QStringLiteral("SETVAR"), parameters.get()));
  EXPECT_EQ(database().sysVarReal("LTSCALE"), 7);
  parameters->setValue(QStringLiteral("name"), OdVariant(QStringLiteral("NOSUCHTHING")));
  EXPECT_FALSE(document().processor().run(QStringLiteral("SETVAR"), parameters.get()));
}

TEST_F(CommandTexts, SetvarTellsTheChangeToReactors) {
  log().clear();
  runScript(u"SETVAR|TEXTSIZE|5");
  EXPECT_EQ(events({QStringLiteral("variable")}), QStringList{QStringLiteral("variable TEXTSIZE")});
}

TEST_F(CommandTexts, TooLongLayerNamesAreRefused) {
  const OdString longest(255, u'a');
  type(QStringLiteral("LAYER\nn\n%1b\n%1\n\n").arg(longest));
  EXPECT_TRUE(console().shows(QStringLiteral("it is longer than 255 characters")));
  EXPECT_TRUE(describeLayers(database()).contains(longest + u':'));
}

TEST_F(CommandTexts, DescriptionLongerThanFilesTakeIsAskedAgain) {
  type(QStringLiteral("LAYER\nd\n%1\nshort\n\n\n").arg(OdString(256, u'a')));
  EXPECT_TRUE(console().shows(QStringLiteral("A description has at most 255 characters.")));
  EXPECT_EQ(describeLayers(database()), QStringLiteral("*0: on, 7, Continuous, -3, short"));
}

TEST_F(CommandTexts, DescriptionAndViewSurviveTheFile) {
  runScript(u"LAYER|d|T\u00fcren \u6249|0||ZOOM|w|0,0|10,50");
  const OdDbDatabasePtr read = OdDbDatabase::readDxf(dxf(), QStringLiteral("memory"));
  EXPECT_EQ(describeLayers(*read), describeLayers(database()));
  EXPECT_EQ(describeView(*read), QStringLiteral("5,25 h50"));
  EXPECT_EQ(read->writeDxf(), dxf());
}

TEST_F(CommandTexts, ZoomRemembersTenViewsAtMost) {
  for (int i = 0; i < 15; ++i) type(QStringLiteral("ZOOM 2x\n"));
  for (int i = 0; i < 15; ++i) type(QStringLiteral("ZOOM p\n"));
  EXPECT_EQ(describeView(database()), QStringLiteral("210,148.5 h9.2813"));
}

TEST_F(CommandTexts, ClicksAnswerTheFirstPromptOfZoom) {
  type(QStringLiteral("ZOOM\n"));
  EXPECT_TRUE(document().processor().givePoint({0, 0, 0}));
  EXPECT_TRUE(document().processor().givePoint({10, 50, 0}));
  EXPECT_FALSE(isRunning());
  EXPECT_EQ(describeView(database()), QStringLiteral("5,25 h50"));
}

TEST_F(CommandTexts, EntitiesOnLockedLayersAreNotErased) {
  runScript(u"LINE|0,0|10,0||LAYER|m|Other||LINE|0,5|10,5||LAYER|lo|0||ERASE|all|");
  EXPECT_EQ(describeEntities(database()), QStringLiteral("LINE 0,0,0 10,0,0"));
}

TEST_F(CommandTexts, NewEntitiesTakeTheCurrentLayer) {
  runScript(u"LAYER|m|Walls||CIRCLE|0,0|1");
  const auto space = database().getModelSpaceId().openAs<OdDbBlockTableRecord>();
  EXPECT_EQ(space->newIterator()->entity()->layer(), QStringLiteral("Walls"));
}
