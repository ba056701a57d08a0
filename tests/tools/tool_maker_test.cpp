#include "tools/tool_maker.h"

#include "catalog/tool_palette.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/line.h"
#include "module/properties.h"
#include "properties/general_property_kind.h"
#include "tool_maker_fixture.h"
#include "tools/block_tool.h"
#include "tools/command_tool.h"
#include "tools/raster_tool.h"

#include <QDir>

using namespace tc;
using namespace Qt::StringLiterals;

namespace {

using testhost::host;
using ToolMakerTest = testhost::ToolMakerFixture;

constexpr auto kRoutes = R"(<Entries><Entry><OdRxClassInfo className="OdDbLine"/>
<Command name="ADDSELECTED"><StartCommand name="LINE"/></Command></Entry></Entries>)";

// --- files

TEST_F(ToolMakerTest, DrawingIsInsertedWhole) {
  const OdString path = write(u"House Plan.DXF"_s, "0\nEOF\n");
  const OdTcToolPtr tool = manager().createToolFromFile(path);
  ASSERT_TRUE(tool);
  EXPECT_TRUE(tool->isRegular());
  EXPECT_EQ(tool->name(), u"House Plan"_s);
  const OdTcBlockFields& fields = agentOf<OdTcToolBlockCommandImpl>(tool).fields();
  EXPECT_EQ(fields.blockType, 2);
  EXPECT_EQ(fields.insertAs, 1);
  EXPECT_EQ(fields.sourceFile, path);
  EXPECT_EQ(fields.name, u"House Plan"_s);
  EXPECT_EQ(sizesOf(tool), kThree);
  EXPECT_EQ(tool->images()->findBySize(1)->src(), u"\\Images\\House Plan16.png"_s);
}

TEST_F(ToolMakerTest, PictureIsAttached) {
  const OdString path = writePicture(u"site.JPG"_s);
  const OdTcToolPtr tool = manager().createToolFromFile(path);
  ASSERT_TRUE(tool);
  EXPECT_EQ(tool->name(), u"site"_s);
  const auto& agent = agentOf<OdTcToolRasterCommandImpl>(tool);
  EXPECT_EQ(agent.getRasterName(), u"site"_s);
  EXPECT_EQ(agent.getSourceFile(), path);
  EXPECT_EQ(sizesOf(tool), kThree);
}

TEST_F(ToolMakerTest, EveryListedExtensionIsKnownAndNoOther) {
  for (const char* extension : {"bmp", "jpeg", "tiff", "jpg", "png"})
    EXPECT_TRUE(manager().createToolFromFile(write(u"p."_s + QLatin1String(extension), "x")))
        << extension;
  for (const char* extension : {"dwg", "dxf", "dwf"})
    EXPECT_TRUE(manager().createToolFromFile(write(u"d."_s + QLatin1String(extension), "x")))
        << extension;
  for (const char* extension : {"gif", "tif", "txt", "xtp", ""})
    EXPECT_FALSE(manager().createToolFromFile(write(u"o."_s + QLatin1String(extension), "x")))
        << extension;
}

TEST_F(ToolMakerTest, ExtensionsAreTheHostsIfItHasThem) {
  host().application.settings[u"ToolDrawingExtensions"_s] = u"PLAN;dxf"_s;
  host().application.settings[u"ToolImageExtensions"_s] = u"gif"_s;
  EXPECT_TRUE(manager().createToolFromFile(write(u"a.plan"_s, "x")));
  EXPECT_TRUE(manager().createToolFromFile(write(u"a.gif"_s, "x")));
  EXPECT_FALSE(manager().createToolFromFile(write(u"a.png"_s, "x")));
}

TEST_F(ToolMakerTest, PictureThatCannotBeReadGivesAToolWithoutPictures) {
  const OdTcToolPtr tool = manager().createToolFromFile(write(u"broken.png"_s, "no picture"));
  ASSERT_TRUE(tool);
  EXPECT_TRUE(sizesOf(tool).isEmpty());
  EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(ToolMakerTest, FileOfAnUnknownKindGoesToTheCommandsAndGivesNone) {
  EXPECT_FALSE(manager().createToolFromFile(write(u"notes.txt"_s, "x")));
  EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(ToolMakerTest, FolderAndMissingFileGiveNone) {
  EXPECT_FALSE(manager().createToolFromFile(odpath::fromPlatform(folder.path())));
  EXPECT_FALSE(manager().createToolFromFile(stored(u"missing.dxf"_s)));
}

// --- commands

TEST_F(ToolMakerTest, TextThatNamesACommandGivesItsTool) {
  const OdTcToolPtr tool = manager().createToolFromFile(u"line"_s);
  ASSERT_TRUE(tool);
  EXPECT_TRUE(tool->isRegular());
  EXPECT_EQ(tool->name(), u"Line"_s);
  EXPECT_EQ(tool->getActionAgent()->commandString(), u"^C^C_LINE "_s);
  ASSERT_EQ(sizesOf(tool), kThree);
  const OdTcImage* const image = tool->images()->findBySize(4);
  EXPECT_EQ(image->src(), u"%ProgramBtnRes%"_s);
  EXPECT_EQ(image->resource(), u"LINE"_s);
}

TEST_F(ToolMakerTest, EntryThatIsNoCommandDoesNotCount) {
  host().menu.entries[1].commandName = u"ARC"_s;
  EXPECT_FALSE(manager().createToolFromCommand(u"LINE"_s));
}

TEST_F(ToolMakerTest, CommandIsNamedByLabelTipOrInternalName) {
  HostMenuEntry& entry = host().menu.entries[1];
  host().translations[u"LINE"_s] = u"Linie"_s;
  host().translations[u"Line"_s] = u"Gerade"_s;
  const auto name = [&] { return manager().createToolFromCommand(u"LINE"_s)->name(); };
  EXPECT_EQ(name(), u"Line"_s);
  host().application.settings[u"ToolCommandsByLabel"_s] = u"ARC;line"_s;
  EXPECT_EQ(name(), u"Gerade"_s) << "a label of its own is translated";
  entry.label.clear();
  EXPECT_EQ(name(), u"Draw a line"_s);
  entry.shortText = u"&&"_s;
  EXPECT_EQ(name(), u"Linie"_s);
}

TEST_F(ToolMakerTest, WithoutAMenuThereAreNoCommands) {
  host().switchOff(IHostCommandMenu::kId);
  EXPECT_FALSE(manager().createToolFromCommand(u"LINE"_s));
}

// --- blocks of an open drawing

TEST_F(ToolMakerTest, BlockComesFromTheDrawingsFile) {
  addBlock(u"Door"_s)->setComments(u"90 wide"_s);
  save();
  const OdTcToolPtr tool = manager().createToolFromBlock(u"door"_s, &document);
  ASSERT_TRUE(tool);
  EXPECT_TRUE(tool->isRegular());
  EXPECT_EQ(tool->name(), u"Door"_s);
  EXPECT_EQ(tool->description(), u"90 wide"_s);
  const OdTcBlockFields& fields = agentOf<OdTcToolBlockCommandImpl>(tool).fields();
  EXPECT_EQ(fields.blockType, 1);
  EXPECT_EQ(fields.name, u"Door"_s);
  EXPECT_EQ(fields.sourceFile, document.filePath);
  EXPECT_EQ(sizesOf(tool), kThree);
}

TEST_F(ToolMakerTest, BlockOfAnUnsavedDrawingGivesMessage5AndNoTool) {
  addBlock(u"Door"_s);
  EXPECT_FALSE(manager().createToolFromBlock(u"Door"_s, &document));
  const OdString message = u"Drafton: Before you create the tool you need to save the drawing.\n"_s;
  EXPECT_EQ(boxes(), QStringList{message});
  save();
  host().unsaved.insert(&document);
  EXPECT_FALSE(manager().createToolFromBlock(u"Door"_s, &document));
  EXPECT_EQ(boxes().size(), 2);
}

TEST_F(ToolMakerTest, BlockThatIsNotThereOrIsTheDrawingsOwnGivesNone) {
  addBlock(u"*U1"_s);
  save();
  for (const QString& name : {u"Window"_s, u"*Model_Space"_s, u"*U1"_s, QString()})
    EXPECT_FALSE(manager().createToolFromBlock(name, &document)) << qPrintable(name);
  EXPECT_FALSE(manager().createToolFromBlock(u"Door"_s, nullptr));
  document.databaseOfDocument = nullptr;
  EXPECT_FALSE(manager().createToolFromBlock(u"Door"_s, &document));
}

TEST_F(ToolMakerTest, BlockThatContainsItselfGivesATool) {
  const OdDbBlockTableRecordPtr block = addBlock(u"Loop"_s);
  block->appendOdDbEntity(odrxMake<OdDbBlockReference>(block->objectId()));
  save();
  EXPECT_TRUE(manager().createToolFromBlock(u"Loop"_s, &document));
}

TEST_F(ToolMakerTest, ReferenceIsAttachedFromItsFile) {
  const OdString path = write(u"ref.dxf"_s, "x");
  const OdDbBlockTableRecordPtr block = addBlock(u"Ref"_s, false);
  block->setIsFromExternalReference(true, true);
  block->setPathName(u"elsewhere\\ref.dxf"_s);
  save();
  const OdTcToolPtr tool = manager().createToolFromBlock(u"Ref"_s, &document);
  ASSERT_TRUE(tool);
  const OdTcBlockFields& fields = agentOf<OdTcToolBlockCommandImpl>(tool).fields();
  EXPECT_EQ(fields.blockType, 2) << "only a whole file can be attached";
  EXPECT_EQ(fields.insertAs, 2);
  EXPECT_EQ(fields.xrefType, 1);
  EXPECT_EQ(fields.sourceFile, path) << "found beside the drawing";
}

TEST_F(ToolMakerTest, ReferenceWhoseFileHasVanishedPrintsTheStoredPath) {
  const OdDbBlockTableRecordPtr block = addBlock(u"Ref"_s, false);
  block->setIsFromExternalReference(true);
  block->setPathName(u"..\\gone\\ref.dxf"_s);
  save();
  EXPECT_FALSE(manager().createToolFromBlock(u"Ref"_s, &document));
  EXPECT_EQ(boxes(), QStringList{u"Drafton: Unable to create the tool. The xref file "
                                 u"'../gone/ref.dxf' could not be located."_s});
}

// --- blocks of a drawing file

TEST_F(ToolMakerTest, BlockOfAFileIsReadFromThere) {
  addBlock(u"Door"_s)->setComments(u"90 wide"_s);
  save(u"lib.dxf"_s);
  const OdTcToolPtr tool = manager().createToolFromDrawingBlock(stored(u"lib.dxf"_s), u"Door"_s);
  ASSERT_TRUE(tool);
  EXPECT_EQ(tool->description(), u"90 wide"_s);
  EXPECT_EQ(agentOf<OdTcToolBlockCommandImpl>(tool).getSourceFile(), stored(u"lib.dxf"_s));
  EXPECT_FALSE(manager().createToolFromDrawingBlock(stored(u"lib.dxf"_s), u"Window"_s));
  EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(ToolMakerTest, FileWithoutBlocksGivesMessage2AndAnUnreadableOneMessage3) {
  addBlock(u"*U1"_s);
  addBlock(u"_ArchTick"_s);
  save(u"empty.dxf"_s);
  EXPECT_FALSE(manager().createToolFromDrawingBlock(stored(u"empty.dxf"_s), u"Door"_s));
  EXPECT_EQ(boxes(), QStringList{u"Drafton: The drawing has no block definitions."_s});
  host().messages.boxes.clear();
  for (const OdString& path : {write(u"cut.dxf"_s, "0\nSECTION\n2\nENTI"),
                               write(u"no.dwg"_s, "AC1032"), stored(u"missing.dxf"_s)})
    EXPECT_FALSE(manager().createToolFromDrawingBlock(path, u"Door"_s)) << qPrintable(path);
  EXPECT_EQ(boxes(), QStringList(3, u"Drafton: Error reading file."_s));
}

TEST_F(ToolMakerTest, BlocksOfAFileAreThoseThatCanBeInserted) {
  addBlock(u"Door"_s);
  addBlock(u"*D1"_s);
  addBlock(u"Ref|Chair"_s);
  addBlock(u"_OBLIQUE"_s);
  addBlock(u"_ClosedFilled"_s);
  addBlock(u"Dot"_s);
  save(u"lib.dxf"_s);
  OdTcToolMaker maker;
  EXPECT_EQ(maker.blocksOf(stored(u"lib.dxf"_s)), QStringList({u"Door"_s, u"Dot"_s}));
  EXPECT_TRUE(maker.blocksOf(stored(u"none.dxf"_s)).isEmpty());
  EXPECT_TRUE(maker.problem().contains(u"none.dxf"_s)) << qPrintable(maker.problem());
}

// --- pictures on a palette

TEST_F(ToolMakerTest, PicturesOfOneNameMeetOnThePaletteAndStayTwo) {
  addBlock(u"Door"_s);
  save();
  const OdTcToolPalettePtr palette = OdTcToolPalette::createObject();
  const OdTcToolPtr first = manager().createToolFromBlock(u"Door"_s, &document);
  const OdTcToolPtr second = manager().createToolFromBlock(u"Door"_s, &document);
  EXPECT_EQ(first->images()->findBySize(4)->src(), second->images()->findBySize(4)->src());
  palette->suspendAutoSave();
  palette->addItem(first);
  palette->addItem(second);
  ASSERT_TRUE(palette->saveAs(stored(u"p.dtc"_s)));
  const OdString src = second->images()->findBySize(4)->src();
  EXPECT_EQ(first->images()->findBySize(4)->src(), u"\\Images\\Door64.png"_s);
  EXPECT_TRUE(src.startsWith(u"\\Images\\Block tool instrument_"_s)) << qPrintable(src);
  const QDir images(folder.filePath(u"Images"_s));
  EXPECT_EQ(images.entryList(QDir::Files).size(), 6);
  ASSERT_TRUE(palette->save());
  EXPECT_EQ(images.entryList(QDir::Files).size(), 6) << "each has its file and keeps it";
  EXPECT_EQ(second->images()->findBySize(4)->src(), src);
}

// --- entities

TEST_F(ToolMakerTest, NothingAndWhatIsNoEntityGiveNone) {
  EXPECT_FALSE(manager().createToolFromEntity({}));
  EXPECT_FALSE(manager().createToolFromEntity(drawing->getLayerZeroId()));
}

TEST_F(ToolMakerTest, EntityBecomesTheCommandThatDrawsItWithItsProperties) {
  host().routeMap = write(u"routes.xml"_s, kRoutes);
  const auto line = odrxMake<OdDbLine>(OdGePoint3d(), OdGePoint3d{10, 0, 0});
  line->setColor(OdCmColor::fromColorIndex(3));
  line->setLineWeight(static_cast<OdDb::LineWeight>(50));
  const OdTcToolPtr tool = manager().createToolFromEntity(add(line));
  ASSERT_TRUE(tool);
  EXPECT_EQ(tool->getActionAgent()->commandString(), u"^C^C_LINE "_s);
  EXPECT_EQ(general(tool, u"General.Layer"_s), u"0"_s);
  EXPECT_EQ(general(tool, u"General.Line weight"_s), u"50"_s);
}

TEST_F(ToolMakerTest, EntityOfAClassWithoutAnEntryGivesNone) {
  const OdDbObjectId circle = add(odrxMake<OdDbCircle>(OdGePoint3d(), OdGeVector3d::zAxis(), 5.0));
  EXPECT_FALSE(manager().createToolFromEntity(circle)) << "there is no map";
  host().routeMap = write(u"routes.xml"_s, kRoutes);
  EXPECT_FALSE(manager().createToolFromEntity(circle));
  host().menu.entries.clear();
  EXPECT_FALSE(
      manager().createToolFromEntity(add(odrxMake<OdDbLine>(OdGePoint3d(), OdGePoint3d{10, 0, 0}))))
      << "the command is in no menu";
}

TEST_F(ToolMakerTest, InsertBecomesItsBlock) {
  const OdDbObjectId insert = add(odrxMake<OdDbBlockReference>(addBlock(u"Door"_s)->objectId()));
  EXPECT_FALSE(manager().createToolFromEntity(insert));
  EXPECT_EQ(boxes().size(), 1) << "the drawing is not saved";
  save();
  const OdTcToolPtr tool = manager().createToolFromEntity(insert);
  ASSERT_TRUE(tool);
  EXPECT_EQ(agentOf<OdTcToolBlockCommandImpl>(tool).getName(), u"Door"_s);
  EXPECT_EQ(general(tool, u"General.Layer"_s), u"0"_s);
}

TEST_F(ToolMakerTest, InsertOfADrawingThatIsNotShownNeedsItsFile) {
  const OdDbObjectId insert = add(odrxMake<OdDbBlockReference>(addBlock(u"Door"_s)->objectId()));
  document.databaseOfDocument = nullptr;
  EXPECT_FALSE(manager().createToolFromEntity(insert));
  EXPECT_EQ(boxes().size(), 1);
  drawing->setFileName(u"C:\\lib.dxf"_s);
  EXPECT_FALSE(manager().createToolFromEntity(insert)) << "the block is not in the file yet";
  EXPECT_EQ(boxes().size(), 2);
  drawing->setSaved();
  const OdTcToolPtr tool = manager().createToolFromEntity(insert);
  ASSERT_TRUE(tool);
  EXPECT_EQ(agentOf<OdTcToolBlockCommandImpl>(tool).getSourceFile(), u"C:\\lib.dxf"_s);
}

TEST_F(ToolMakerTest, ImageBecomesARasterToolOfItsFileAndDefinition) {
  const OdString path = writePicture(u"photo.png"_s);
  const OdDbRasterImagePtr image = addImage(path);
  const OdDbObjectId entity = image->objectId();
  const OdTcToolPtr tool = manager().createToolFromEntity(entity);
  ASSERT_TRUE(tool);
  const auto& agent = agentOf<OdTcToolRasterCommandImpl>(tool);
  EXPECT_EQ(agent.getRasterName(), u"Site"_s);
  EXPECT_EQ(agent.getSourceFile(), path);
  EXPECT_EQ(sizesOf(tool), kThree);
  EXPECT_EQ(general(tool, u"General.Layer"_s), u"0"_s);
  image->upgradeOpen();
  image->setImageDefId({});
  EXPECT_FALSE(manager().createToolFromEntity(entity));
}

TEST_F(ToolMakerTest, ImageIsFoundBesideTheDrawingOrToldToBeMissing) {
  save();
  const OdDbObjectId entity = addImage(u"pictures\\photo.png"_s)->objectId();
  EXPECT_FALSE(manager().createToolFromEntity(entity));
  EXPECT_EQ(boxes(), QStringList{u"Drafton: Unable to create the tool. The image file "
                                 u"'pictures/photo.png' could not be located."_s});
  const OdString path = writePicture(u"photo.png"_s);
  const OdTcToolPtr tool = manager().createToolFromEntity(entity);
  ASSERT_TRUE(tool);
  EXPECT_EQ(agentOf<OdTcToolRasterCommandImpl>(tool).getSourceFile(), path);
  EXPECT_EQ(boxes().size(), 1);
}

TEST(ForeignPrefix, GoesWithAllThatStandsBeforeIt) {
  EXPECT_EQ(withoutForeignPrefix(u"ACAD_ISO02W100"_s), u"ISO02W100"_s);
  EXPECT_EQ(withoutForeignPrefix(u"x.ACAD_NET"_s), u"NET"_s);
  EXPECT_EQ(withoutForeignPrefix(u"ANSI31"_s), u"ANSI31"_s);
  EXPECT_EQ(withoutForeignPrefix(u"acad_NET"_s), u"acad_NET"_s);
}

} // namespace
