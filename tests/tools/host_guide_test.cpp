// What hosts are told of runs in the guide that is written for them.
#include "drawing/database.h"
#include "frame/file_path.h"
#include "support/data_file.h"
#include "support/module_fixture.h"
#include "tools/block_tool.h"
#include "tools/command_conveyor.h"
#include "tools/execute_tool_command.h"
#include "tools/hatch_tool.h"

#include <gtest/gtest.h>

#include <iterator>

namespace {

using testhost::host;
using namespace tc;

struct HostGuideTest : testhost::ModuleFixture {
  OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  testhost::TestDocument& document = host().documents.open(QStringLiteral("A.dxf"));
  const OdString guide =
      OdString::fromUtf8(testhost::dataFile(QStringLiteral("../../docs/host-guide.md")));

  HostGuideTest() { document.databaseOfDocument = drawing.get(); }

  /// True if the guide shows the name as one that stands in code.
  bool tells(const OdString& name) const {
    return guide.contains(QStringLiteral("`%1`").arg(name));
  }
  void run(const OdString& word) {
    document.input.answer(word);
    executeToolCommand();
  }
};

TEST_F(HostGuideTest, NamesEveryCommandAndParameterThatAToolGives) {
  const OdString file = odpath::fromPlatform(QStringLiteral(TEST_DATA_DIR "/pictures/turned.jpg"));
  OdTcCommandConveyor& conveyor = *OdTcCommandConveyor::instance();
  OdDbBlockTablePtr table = drawing->getBlockTableId().openObject(OdDb::kForWrite);
  OdDbBlockTableRecordPtr block = odrxMake<OdDbBlockTableRecord>();
  block->setName(QStringLiteral("Door"));
  table->add(block);
  conveyor.setBlockRequest({.name = QStringLiteral("Door"), .sourceFile = file});
  run(QStringLiteral("<block>"));
  conveyor.setBlockRequest({.name = QStringLiteral("Door"), .sourceFile = file, .isXref = true});
  run(QStringLiteral("<xref>"));
  conveyor.setRasterRequest({.name = QStringLiteral("P"), .path = file});
  run(QStringLiteral("<raster>"));

  ASSERT_EQ(host().commandService.runs.size(), 3u);
  for (const auto& each : host().commandService.runs) {
    EXPECT_TRUE(tells(each.command)) << each.command.toStdString();
    for (const auto& [name, value] : each.parameters)
      EXPECT_TRUE(tells(name)) << name.toStdString();
  }
}

TEST_F(HostGuideTest, NamesEveryVariableThatAToolSets) {
  constexpr const char* kVariables[] = {"HPNAME",  "HPANG",   "HPSCALE", "HPDOUBLE",
                                        "HPSPACE", "HPCOLOR", "GFNAME",  "GFANG",
                                        "GFSHIFT", "GFCLR1",  "GFCLR2",  "ATTREQ"};
  for (const char* const name : kVariables)
    document.variableSet.define(QLatin1String(name), std::int32_t{0});
  const auto hatch = odrxMake<OdTcToolHatchCommandImpl>();
  const auto block = odrxMake<OdTcToolBlockCommandImpl>();
  host().log.clear();
  hatch->beginExecution(&document);
  hatch->setHatchPatternSource(1);
  hatch->beginExecution(&document);
  block->beginExecution(&document);

  std::ptrdiff_t count = 0;
  for (const QString& line : host().log) {
    if (!line.startsWith(QLatin1String("set "))) continue;
    const OdString name = line.section(u' ', 2).section(u'=', 0, 0);
    EXPECT_TRUE(tells(name)) << name.toStdString();
    ++count;
  }
  EXPECT_EQ(count, 14)
      << "six of hatches and their two settings, five of gradients, one of inserts";
}

} // namespace
