#include "tools/execute_tool_command.h"

#include "drawing/database.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/line.h"
#include "frame/file_path.h"
#include "support/module_fixture.h"
#include "tools/command_conveyor.h"
#include "tools/deferred_command.h"

#include <QFile>
#include <QTemporaryDir>

namespace {

using testhost::host;
using namespace tc;

using Entry = std::pair<OdString, OdVariant>;

struct ExecuteToolTest : testhost::ModuleFixture {
  QTemporaryDir folder;
  OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  testhost::TestDocument& document = host().documents.open(QStringLiteral("A.dxf"));
  OdTcCommandConveyor& conveyor = *OdTcCommandConveyor::instance();

  ExecuteToolTest() { document.databaseOfDocument = drawing.get(); }

  void type(const OdString& word) {
    document.input.answer(word);
    executeToolCommand();
  }
  OdString file(const OdString& name, const QByteArray& bytes = "x") {
    QFile made(folder.filePath(name));
    EXPECT_TRUE(made.open(QIODevice::WriteOnly));
    made.write(bytes);
    return odpath::fromPlatform(made.fileName());
  }
  static void addBlock(OdDbDatabase& database, const OdString& name) {
    OdDbBlockTablePtr table = database.getBlockTableId().openObject(OdDb::kForWrite);
    OdDbBlockTableRecordPtr record = odrxMake<OdDbBlockTableRecord>();
    record->setName(name);
    table->add(record);
  }
};

// --- sending

struct SentText {
  DeferredKind kind;
  const char* text;
};
class DeferredCommandTest : public ExecuteToolTest, public testing::WithParamInterface<SentText> {};

TEST_P(DeferredCommandTest, TypesTheHiddenCommandAndThenEnter) {
  sendDeferredCommand(GetParam().kind);
  EXPECT_EQ(document.sent, QStringList({QLatin1String(GetParam().text), QStringLiteral("\n")}));
}

INSTANTIATE_TEST_SUITE_P(
    Words, DeferredCommandTest,
    testing::Values(SentText{DeferredKind::kBlock, "__executetool^M\"<block>\" "},
                    SentText{DeferredKind::kXref, "__executetool^M\"<xref>\" "},
                    SentText{DeferredKind::kRaster, "__executetool^M\"<raster>\" "}));

TEST_F(ExecuteToolTest, SendsNothingWithoutADocumentOrItsInput) {
  document.hasCommandInput = false;
  sendDeferredCommand(DeferredKind::kBlock);
  host().switchOff(testhost::kDocumentManager);
  sendDeferredCommand(DeferredKind::kBlock);
  EXPECT_TRUE(document.sent.isEmpty());
}

// --- reading the word

TEST_F(ExecuteToolTest, ReadsOneTextWithItsFlagsAndNoPrompt) {
  type(QStringLiteral("\"<block>\""));
  ASSERT_EQ(document.input.prompts.size(), 1u);
  EXPECT_EQ(document.input.prompts[0].flags, 7u);
  EXPECT_TRUE(document.input.prompts[0].text.isEmpty());
}

struct Word {
  const char* typed;
  const char* word;
};
class DeferredWordTest : public testing::TestWithParam<Word> {};

TEST_P(DeferredWordTest, IsWhatIsLeftOfTheTypedText) {
  EXPECT_EQ(deferredWordOf(QLatin1String(GetParam().typed)), QLatin1String(GetParam().word));
}

INSTANTIATE_TEST_SUITE_P(Words, DeferredWordTest,
                         testing::Values(Word{"\"<block>\"", "block"}, Word{"\"<xref>\"  ", "xref"},
                                         Word{"block", "block"}, Word{" block", " block"},
                                         Word{"<raster \">", "raster "}, Word{"\"\"", ""},
                                         Word{"<>\t", ""}, Word{"BLOCK", "BLOCK"}));

TEST_F(ExecuteToolTest, DoesNothingForOtherWords) {
  conveyor.setBlockRequest({.sourceFile = file(QStringLiteral("a.dxf"))});
  for (const char* word : {"Block", "blocks", " block", "hatch", "\"\""}) type(QLatin1String(word));
  type(OdString());
  document.input.answers.emplace_back(IHostUserInput::Result::kCancelled, QStringLiteral("xref"));
  executeToolCommand();
  EXPECT_TRUE(conveyor.hasBlockRequest());
  EXPECT_TRUE(host().commandService.runs.empty());
}

TEST_F(ExecuteToolTest, ReturnsWithoutADocumentOrItsUserInput) {
  conveyor.setBlockRequest({});
  document.hasUserInput = false;
  executeToolCommand();
  host().switchOff(testhost::kDocumentManager);
  executeToolCommand();
  EXPECT_TRUE(conveyor.hasBlockRequest());
}

TEST_F(ExecuteToolTest, DoesNothingWithoutARequest) {
  for (const char* word : {"<block>", "<xref>", "<raster>"}) type(QLatin1String(word));
  EXPECT_TRUE(host().log.isEmpty());
}

// --- external references

TEST_F(ExecuteToolTest, AttachesAReferenceWithItsParametersInOrder) {
  conveyor.setBlockRequest({.name = QStringLiteral("Site"),
                            .sourceFile = QStringLiteral("C:\\no such file.dxf"),
                            .scale = 2.5,
                            .rotation = 0.5,
                            .askRotation = true,
                            .isXref = true,
                            .xrefType = 2});
  type(QStringLiteral("\"<xref>\""));
  ASSERT_EQ(host().commandService.runs.size(), 1u);
  const auto& run = host().commandService.runs[0];
  EXPECT_EQ(run.command, QStringLiteral("XATTACH"));
  const std::vector<Entry> expected = {
      {QStringLiteral("ToolPaletteCall"), OdString(QStringLiteral("C:\\no such file.dxf"))},
      {QStringLiteral("XATT_REFTYPE"), std::int32_t{2}},
      {QStringLiteral("XATT_SCALE"), 2.5},
      {QStringLiteral("XATT_ROTATION"), 0.5},
      {QStringLiteral("XATT_PROMPT_ROTATION"), std::int32_t{1}},
      {QStringLiteral("XATT_IS_EXPLODE"), std::int32_t{0}}};
  EXPECT_EQ(run.parameters, expected);
  EXPECT_FALSE(conveyor.hasBlockRequest());
}

TEST_F(ExecuteToolTest, TheWordXrefTakesABlockRequestAndAttachesIt) {
  conveyor.setBlockRequest({.name = QStringLiteral("Door"), .sourceFile = QStringLiteral("d.dxf")});
  type(QStringLiteral("<xref>"));
  ASSERT_EQ(host().commandService.runs.size(), 1u);
  EXPECT_EQ(host().commandService.runs[0].command, QStringLiteral("XATTACH"));
  type(QStringLiteral("<block>"));
  EXPECT_EQ(host().commandService.runs.size(), 1u);
}

TEST_F(ExecuteToolTest, TwoRequestsBeforeTheFirstCommandLeaveOneRun) {
  conveyor.setBlockRequest({.sourceFile = QStringLiteral("first.dxf"), .isXref = true});
  conveyor.setBlockRequest({.sourceFile = QStringLiteral("second.dxf"), .isXref = true});
  type(QStringLiteral("<xref>"));
  type(QStringLiteral("<xref>"));
  ASSERT_EQ(host().commandService.runs.size(), 1u);
  EXPECT_EQ(host().commandService.runs[0].parameters[0].second.toString(),
            QStringLiteral("second.dxf"));
}

TEST_F(ExecuteToolTest, AHostWithoutTheCommandOrParameterSetsIsLeftAlone) {
  host().commandService.known.clear();
  conveyor.setBlockRequest({.isXref = true});
  type(QStringLiteral("<xref>"));
  host().switchOff(testhost::kParameterSets);
  conveyor.setBlockRequest({.isXref = true});
  type(QStringLiteral("<xref>"));
  host().switchOff(IHostCommandService::kId);
  conveyor.setBlockRequest({.isXref = true});
  type(QStringLiteral("<xref>"));
  EXPECT_TRUE(host().commandService.runs.empty());
  EXPECT_FALSE(conveyor.hasBlockRequest());
}

// --- raster images

TEST_F(ExecuteToolTest, InsertsAnImageWithItsParametersInOrder) {
  const OdString path = file(QStringLiteral("plan.png"));
  conveyor.setRasterRequest(
      {.name = QStringLiteral("Plan"), .path = path, .scale = 0.0, .rotation = 1.5});
  type(QStringLiteral("\"<raster>\""));
  ASSERT_EQ(host().commandService.runs.size(), 1u);
  EXPECT_EQ(host().commandService.runs[0].command, QStringLiteral("INSERTRASTER"));
  const std::vector<Entry> expected = {
      {QStringLiteral("PathScaleRotationNoDialog"),
       OdString(QStringLiteral("PathScaleRotationNoDialog"))},
      {QStringLiteral("DefName"), OdString(QStringLiteral("Plan"))},
      {QStringLiteral("Path"), path},
      {QStringLiteral("Scale"), 0.0},
      {QStringLiteral("Rotation"), 1.5}};
  EXPECT_EQ(host().commandService.runs[0].parameters, expected);
}

TEST_F(ExecuteToolTest, AMissingImageGivesOneMessage) {
  host().translations[QStringLiteral("\nCould not find the image file %s\n")] =
      QStringLiteral("\nKein Bild %s\n");
  conveyor.setRasterRequest({.path = QStringLiteral("C:\\gone.png")});
  type(QStringLiteral("<raster>"));
  EXPECT_EQ(host().messages.printed, QStringList(QStringLiteral("\nKein Bild C:\\gone.png\n")));
  EXPECT_TRUE(host().commandService.runs.empty());
}

// --- blocks

TEST_F(ExecuteToolTest, InsertsABlockOfTheDrawingWithItsParametersInOrder) {
  addBlock(*drawing, QStringLiteral("Door"));
  conveyor.setBlockRequest({.name = QStringLiteral("Door"),
                            .sourceFile = file(QStringLiteral("not read.dxf")),
                            .scale = 3.0,
                            .rotation = 0.25,
                            .explode = true});
  type(QStringLiteral("\"<block>\""));
  ASSERT_EQ(host().commandService.runs.size(), 1u);
  EXPECT_EQ(host().commandService.runs[0].command, QStringLiteral("InsertBlock"));
  const std::vector<Entry> expected = {
      {QStringLiteral("BC_RUN_BY_NAME_SCALE_ROT_EXPLODE"), OdString(QStringLiteral("Run"))},
      {QStringLiteral("name"), OdString(QStringLiteral("Door"))},
      {QStringLiteral("BC_SCALE"), 3.0},
      {QStringLiteral("BC_ROTATE_ANGLE"), 0.25},
      {QStringLiteral("BC_ASK_ROTATION"), std::int32_t{0}},
      {QStringLiteral("BC_IS_EXPLODE"), std::int32_t{1}}};
  EXPECT_EQ(host().commandService.runs[0].parameters, expected);
}

TEST_F(ExecuteToolTest, AMissingSourceFileBlocksEvenADefinedBlock) {
  addBlock(*drawing, QStringLiteral("Door"));
  conveyor.setBlockRequest(
      {.name = QStringLiteral("Door"), .sourceFile = QStringLiteral("C:\\gone.dxf")});
  type(QStringLiteral("<block>"));
  EXPECT_EQ(host().messages.printed,
            QStringList(QStringLiteral(
                "\nCould not find the original file \"C:\\gone.dxf\" for block \"Door\"")));
  EXPECT_TRUE(host().commandService.runs.empty());
}

/// A drawing file with a block "Door" of one line, the block inserted in its model space, in
/// metres.
OdString writeSource(const QTemporaryDir& folder) {
  const OdDbDatabasePtr source = OdDbDatabase::createDatabase();
  source->setSysVar(QStringLiteral("INSUNITS"), std::int64_t{6});
  ExecuteToolTest::addBlock(*source, QStringLiteral("Door"));
  const auto table = source->getBlockTableId().openAs<OdDbBlockTable>();
  const auto block =
      table->getAt(QStringLiteral("Door")).openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  block->appendOdDbEntity(odrxMake<OdDbLine>(OdGePoint3d{}, OdGePoint3d{1, 0, 0}));
  const auto space = source->getModelSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  space->appendOdDbEntity(odrxMake<OdDbBlockReference>(block->objectId(), OdGePoint3d{5, 5, 0}));
  const OdString path = odpath::fromPlatform(folder.filePath(QStringLiteral("source.dxf")));
  source->writeFile(path);
  return path;
}

/// The entities of a block of the drawing; empty if there is no such block.
std::vector<OdDbEntityPtr> entitiesOf(OdDbDatabase& drawing, const char16_t* name) {
  std::vector<OdDbEntityPtr> entities;
  const auto table = drawing.getBlockTableId().openAs<OdDbBlockTable>();
  const OdDbBlockTableRecordPtr block = table->getAt(OdString::fromUtf16(name)).openObject();
  if (!block) return entities;
  for (auto at = block->newIterator(); !at->done(); at->step()) entities.push_back(at->entity());
  return entities;
}

TEST_F(ExecuteToolTest, ABlockOfTheSourceComesIntoTheDrawingUnderALockWithItsUnits) {
  conveyor.setBlockRequest({.name = QStringLiteral("Door"), .sourceFile = writeSource(folder)});
  type(QStringLiteral("<block>"));
  const auto entities = entitiesOf(*drawing, u"Door");
  ASSERT_EQ(entities.size(), 1u);
  EXPECT_TRUE(entities[0]->isKindOf(OdDbLine::desc()));
  const auto table = drawing->getBlockTableId().openAs<OdDbBlockTable>();
  EXPECT_EQ(table->getAt(QStringLiteral("Door")).openAs<OdDbBlockTableRecord>()->blockInsertUnits(),
            6);
  ASSERT_EQ(host().documents.locks.size(), 1u);
  EXPECT_EQ(host().documents.locks[0].commandName, QStringLiteral("EXECUTETOOL"));
  EXPECT_EQ(host().documents.locks[0].mode, 4);
  EXPECT_TRUE(host().documents.locked.empty()) << "the lock is given back";
  EXPECT_EQ(host().commandService.runs.size(), 1u);
}

TEST_F(ExecuteToolTest, AWholeDrawingComesAsOneBlock) {
  conveyor.setBlockRequest(
      {.name = QStringLiteral("House"), .sourceFile = writeSource(folder), .wholeDrawing = true});
  type(QStringLiteral("<block>"));
  const auto entities = entitiesOf(*drawing, u"House");
  ASSERT_EQ(entities.size(), 1u);
  EXPECT_TRUE(entities[0]->isKindOf(OdDbBlockReference::desc()));
  EXPECT_EQ(entitiesOf(*drawing, u"Door").size(), 1u) << "what it needs comes along";
  EXPECT_EQ(host().commandService.runs.size(), 1u);
}

TEST_F(ExecuteToolTest, TheDefinitionOfTheDrawingWinsOverTheSource) {
  addBlock(*drawing, QStringLiteral("Door"));
  conveyor.setBlockRequest({.name = QStringLiteral("Door"), .sourceFile = writeSource(folder)});
  type(QStringLiteral("<block>"));
  EXPECT_TRUE(entitiesOf(*drawing, u"Door").empty()) << "the drawing's own block is empty";
  EXPECT_TRUE(host().documents.locks.empty());
  EXPECT_EQ(host().commandService.runs.size(), 1u);
}

TEST_F(ExecuteToolTest, ABlockThatTheSourceLacksIsNamed) {
  const OdString source = odpath::fromPlatform(folder.filePath(QStringLiteral("source.dxf")));
  OdDbDatabase::createDatabase()->writeFile(source);
  conveyor.setBlockRequest({.name = QStringLiteral("Door"), .sourceFile = source});
  type(QStringLiteral("<block>"));
  EXPECT_EQ(host().messages.printed,
            QStringList(QStringLiteral("\nDefinition of block \"Door\" is not found in the source "
                                       "file \"%1\"")
                            .arg(source)));
  EXPECT_TRUE(host().commandService.runs.empty());
}

int blockCount(const OdDbDatabase& drawing) {
  int count = 0;
  const auto table = drawing.getBlockTableId().openAs<OdDbBlockTable>();
  for (auto at = table->newIterator(); !at->done(); at->step()) ++count;
  return count;
}

TEST_F(ExecuteToolTest, ANameThatNoBlockCanHaveIsToldWithTheReason) {
  const OdString source = writeSource(folder);
  const std::pair<const char16_t*, const char16_t*> rows[] = {
      {u"", u"the tool names no block"},
      {u"a|b/c*", u"a block's name cannot have any of < > / \\ \" : ; ? * | , = `"},
      {u"a\tb", u"a block's name cannot have control characters"},
      {u" a", u"a block's name cannot begin or end with a blank"}};
  for (const auto& [name, reason] : rows) {
    host().messages.printed.clear();
    const int blocks = blockCount(*drawing);
    conveyor.setBlockRequest(
        {.name = OdString::fromUtf16(name), .sourceFile = source, .wholeDrawing = true});
    type(QStringLiteral("<block>"));
    EXPECT_EQ(host().messages.printed,
              QStringList(
                  QStringLiteral("\nBlock \"%1\" of the source file \"%2\" cannot be inserted: %3")
                      .arg(OdString::fromUtf16(name), source, OdString::fromUtf16(reason))));
    EXPECT_EQ(blockCount(*drawing), blocks);
    EXPECT_TRUE(host().commandService.runs.empty());
  }
}

TEST_F(ExecuteToolTest, ASourceThatCannotBeReadEndsTheCommandWithItsName) {
  const OdString source = file(QStringLiteral("broken.dxf"), "not a drawing");
  conveyor.setBlockRequest({.name = QStringLiteral("Door"), .sourceFile = source});
  document.input.answer(QStringLiteral("<block>"));
  try {
    executeToolCommand();
    FAIL() << "no error";
  } catch (const OdError& error) {
    EXPECT_TRUE(error.description().contains(QStringLiteral("broken.dxf")));
  }
  EXPECT_TRUE(host().commandService.runs.empty());
}

TEST_F(ExecuteToolTest, WithoutADrawingNothingIsInserted) {
  document.databaseOfDocument = nullptr;
  conveyor.setBlockRequest({.sourceFile = file(QStringLiteral("a.dxf"))});
  type(QStringLiteral("<block>"));
  EXPECT_TRUE(host().commandService.runs.empty());
  EXPECT_TRUE(host().messages.printed.isEmpty());
}

} // namespace
