// A run leaves no value behind, whatever the tool, the drawing and the end: thousands of random
// runs, after each of which all current values and host variables are as they were before.
#include "catalog/catalog_fixture.h"
#include "drawing/database.h"
#include "properties/dim_style_table_record_impl.h"
#include "properties/entity_values.h"
#include "properties/general_properties.h"
#include "properties/layer_table_record_impl.h"
#include "properties/line_type_table_record_impl.h"
#include "properties/property_bag.h"
#include "properties/text_style_table_record_impl.h"
#include "support/recording_agent.h"
#include "tools/block_tool.h"
#include "tools/command_tool.h"
#include "tools/hatch_tool.h"
#include "tools/raster_tool.h"
#include "tools/tool_data.h"

#include <random>

namespace {

using namespace testhost;

constexpr int kRuns = 3000;
constexpr int kDrawings = 6;

struct RandomRunsTest : CatalogFixture {
  std::mt19937 random{20261121};
  std::vector<OdDbDatabasePtr> drawings;
  TestDocument* document = nullptr;

  int upTo(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
  bool oneIn(int count) { return upTo(count) == 0; }
  template <class T, std::size_t N>
  const T& oneOf(const T (&values)[N]) {
    return values[static_cast<std::size_t>(upTo(static_cast<int>(N)))];
  }

  // --- drawings

  /// A record of the table, under one of a few names that tools have too.
  template <class Record>
  void addRecords(OdDbObjectId tableId, const std::function<void(Record&)>& fill) {
    const auto table = tableId.openAs<OdDbSymbolTable>(OdDb::kForWrite);
    for (const char16_t* const name : {u"A", u"b", u"C", u"plan|D"}) {
      if (oneIn(2)) continue;
      auto record = odrxMake<Record>();
      record->setName(OdString::fromUtf16(name));
      if (OdString::fromUtf16(name).contains(u'|')) record->setIsDependent(true);
      fill(*record);
      table->add(record);
    }
  }

  OdDbDatabasePtr randomDrawing() {
    const OdDbDatabasePtr made = OdDbDatabase::createDatabase();
    addRecords<OdDbLayerTableRecord>(made->getLayerTableId(), [&](OdDbLayerTableRecord& layer) {
      layer.setColor(OdCmColor::fromColorIndex(1 + upTo(255)));
      layer.setIsFrozen(oneIn(3));
      layer.setIsLocked(oneIn(3));
      layer.setIsOff(oneIn(3));
    });
    addRecords<OdDbLinetypeTableRecord>(
        made->getLinetypeTableId(),
        [&](OdDbLinetypeTableRecord& lineType) { lineType.setNumDashes(upTo(4)); });
    addRecords<OdDbTextStyleTableRecord>(
        made->getTextStyleTableId(),
        [&](OdDbTextStyleTableRecord& style) { style.setTextSize(upTo(5)); });
    addRecords<OdDbDimStyleTableRecord>(made->getDimStyleTableId(),
                                        [&](OdDbDimStyleTableRecord& style) {
                                          style.setDimscale(1 + upTo(100));
                                          style.setDimtxt(1 + upTo(9));
                                          style.setDimtol(oneIn(2));
                                        });
    setRandomValues(*made);
    return made;
  }

  /// Gives the drawing current values, some of them only in the header beside the style.
  void setRandomValues(OdDbDatabase& drawing) {
    const auto anyOf = [&](OdDbObjectId table) {
      const std::vector<OdDbObjectId>& ids = table.openAs<OdDbSymbolTable>()->recordIds();
      return ids[static_cast<std::size_t>(upTo(static_cast<int>(ids.size())))];
    };
    drawing.setSysVar(u"CLAYER"_s, anyOf(drawing.getLayerTableId()));
    drawing.setSysVar(u"CELTYPE"_s, anyOf(drawing.getLinetypeTableId()));
    drawing.setSysVar(u"TEXTSTYLE"_s, anyOf(drawing.getTextStyleTableId()));
    drawing.setSysVar(u"DIMSTYLE"_s, anyOf(drawing.getDimStyleTableId()));
    if (oneIn(2)) drawing.setDimstyleData(drawing.currentDimStyle());
    drawing.setSysVar(u"DIMSCALE"_s, 1.0 + upTo(20));
    drawing.setSysVar(u"DIMPOST"_s, oneIn(2) ? u"<>mm"_s : OdString());
    drawing.setSysVar(u"DIMTXT"_s, 1.0 + upTo(20));
    drawing.setCurrentColor(OdCmColor::fromColorIndex(upTo(257)));
    drawing.setCurrentLinetypeScale(1 + upTo(9));
    drawing.setCurrentLineWeight(oneIn(2) ? OdDb::kLnWtByLayer : static_cast<OdDb::LineWeight>(35));
    drawing.setCurrentTransparency(oneIn(2) ? OdCmTransparency()
                                            : OdCmTransparency::fromPercent(upTo(91)));
    drawing.setCurrentPlotStyle(
        oneIn(2) ? OdDb::kPlotStyleNameByBlock : OdDb::kPlotStyleNameByLayer, {});
  }

  struct Value {
    OdString name;
    OdDbVarValue value;
    bool operator==(const Value&) const = default;
  };
  /// All current values and the host's variables, with their names.
  std::vector<Value> values() const {
    static const QStringList names = [] {
      QStringList all;
      for (const OdDbHeaderVarInfo& row : oddbHeaderVars()) all << QLatin1String(row.name);
      all.removeAll(u"HANDSEED"_s); // new records stay, and each has a handle
      return all;
    }();
    std::vector<Value> all;
    all.reserve(static_cast<std::size_t>(names.size()) + 20);
    const OdDbDatabase& drawing = *document->databaseOfDocument;
    for (const OdString& name : names) all.push_back({name, *drawing.getSysVar(name)});
    all.push_back({u"CETRANSPARENCY"_s, std::int64_t{drawing.currentTransparency().value()}});
    for (const char16_t* const name : kHostVariables) {
      const OdString text = OdString::fromUtf16(name);
      all.push_back({text, document->variableSet.value(text).toString()});
    }
    return all;
  }

  // --- tools

  static constexpr const char16_t* kHostVariables[] = {
      u"ATTREQ",  u"HPNAME", u"HPANG", u"HPSCALE", u"HPDOUBLE", u"HPSPACE",
      u"HPCOLOR", u"GFNAME", u"GFANG", u"GFSHIFT", u"GFCLR1",   u"GFCLR2"};

  template <class Create, class Record>
  OdTcPropertyPtr named() {
    static constexpr const char16_t* kNames[] = {u"A",      u"B", u"c",  u"D",        u"0",
                                                 u"plan|D", u"",  u"a/", u"Standard", u"ByLayer"};
    auto property = odrxMake<Create>();
    const OdString name = OdString::fromUtf16(oneOf(kNames));
    property->setText(name);
    if (oneIn(4)) return property;
    auto snapshot = odrxMake<Record>();
    snapshot->setRecordName(name);
    if constexpr (std::is_same_v<Record, OdTcDimStyleTableRecordImpl>) {
      snapshot->variables().dimscale = upTo(50) - 1;
      snapshot->variables().dimaltrnd = upTo(50);
      snapshot->variables().dimpost = u"<>\""_s;
      snapshot->variables().dimblk = u"_Nowhere"_s;
      snapshot->variables().dimlwd = static_cast<std::uint32_t>(upTo(40));
    }
    static_cast<OdTcRecordCreateInfo*>(property->getCreateInfo())->setRecord(snapshot);
    return property;
  }

  template <class Property>
  OdTcPropertyPtr plain(const OdString& value) {
    auto property = odrxMake<Property>();
    property->setText(value);
    return property;
  }

  OdTcPropertyPtr randomProperty(int kind) {
    static constexpr const char16_t* kPlain[] = {
        u"ByLayer",  u"ByBlock", u"ByDefault", u"35", u"999", u"150", u"-3",
        u"VonLayer", u"nan",     u"2.5",       u"",   u"0",   u"90",  u"x"};
    static constexpr std::uint32_t kColors[] = {0xC0000000, 0xC1000000, 0xC2112233, 0xC3000004,
                                                0xC3000000, 0xC5000000, 0xC8000000, 0x99000000};
    const OdString value = OdString::fromUtf16(oneOf(kPlain));
    switch (kind) {
    case 0: {
      auto color = odrxMake<OdTcColorPropertyImpl>();
      OdCmColor wanted;
      wanted.setColor(oneOf(kColors));
      color->setColor(wanted);
      return color;
    }
    case 1:
      return named<OdTcLayerPropertyImpl, OdTcLayerTableRecordImpl>();
    case 2:
      return named<OdTcLineTypePropertyImpl, OdTcLineTypeTableRecordImpl>();
    case 3:
      return plain<OdTcLineTypeScalePropertyImpl>(value);
    case 4:
      return plain<OdTcPlotStylePropertyImpl>(value);
    case 5:
      return plain<OdTcLineWeightPropertyImpl>(value);
    case 6:
      return plain<OdTcTransparencyPropertyImpl>(value);
    case 7:
      return named<OdTcTextStylePropertyImpl, OdTcTextStyleTableRecordImpl>();
    case 8:
      return named<OdTcDimStylePropertyImpl, OdTcDimStyleTableRecordImpl>();
    default:
      return plain<OdTcTableStylePropertyImpl>(value);
    }
  }

  OdTcToolActionAgentPtr randomAgent() {
    switch (upTo(6)) {
    case 0:
      return OdTcToolBlockCommand::createObject();
    case 1: {
      auto hatch = odrxMake<OdTcToolHatchCommandImpl>();
      hatch->setHatchPatternSource(upTo(3));
      hatch->readProperty(u"PatternName"_s, OdVariant(u"BRICK"_s));
      hatch->readProperty(u"Scale"_s, OdVariant(u"3"_s));
      return hatch;
    }
    case 2:
      return OdTcToolRasterCommand::createObject();
    case 3:
      return nullptr;
    default: {
      const auto command = OdTcToolCommand::createObject();
      command->setCommandString(u"_LINE "_s);
      return command;
    }
    }
  }

  OdTcToolPtr randomTool(int number) {
    const OdTcToolPtr made = tool(OdString::number(number));
    made->setToolType(OdTcTool::kRegular);
    made->setActionAgent(randomAgent());
    OdTcPropertyBag* const bag = made->getGeneralProperties();
    bag->clear();
    // Some bags lack a property, some have one of them twice.
    for (int kind = 0; kind < kGeneralPropertyCount; ++kind)
      for (int left = oneIn(8) ? 2 : (oneIn(5) ? 0 : 1); left > 0; --left) {
        const OdTcPropertyPtr property = randomProperty(kind);
        if (oneIn(4)) property->getBasicInfo()->setUnspecified(true);
        bag->add(property);
      }
    return made;
  }

  // --- ends

  void end(int how, const OdTcToolPtr& running) {
    switch (how) {
    case 0:
      return host().events.commandEnded(u"LINE"_s);
    case 1:
      return host().events.commandCancelled(u"LINE"_s);
    case 2:
      return host().events.commandFailed(u"LINE"_s);
    default:
      return running->finish();
    }
  }
  static TestHost& host() { return theHost(); }
};

TEST_F(RandomRunsTest, LeaveNoValueBehind) {
  for (int i = 0; i < kDrawings; ++i) drawings.push_back(randomDrawing());
  document = &host().documents.open(u"A.dxf"_s);
  const OdVariant presets[] = {OdVariant(std::int32_t{1}), OdVariant(u"ANSI31"_s), OdVariant(0.25),
                               OdVariant(3.0)};
  for (std::size_t i = 0; i < std::size(kHostVariables); ++i)
    document->variableSet.define(OdString::fromUtf16(kHostVariables[i]),
                                 presets[i % std::size(presets)]);
  std::array<int, 5> ends{};
  for (int run = 0; run < kRuns; ++run) {
    const OdDbDatabasePtr& drawing = drawings[static_cast<std::size_t>(upTo(kDrawings))];
    document->databaseOfDocument = drawing;
    if (oneIn(3)) setRandomValues(*drawing);
    const std::vector<Value> before = values();
    const OdTcToolPtr first = randomTool(run);
    OdTcToolPtr running = first;
    running->execute(document);
    int how = upTo(5);
    ++ends[static_cast<std::size_t>(how)];
    if (how == 4) {
      // Another tool takes its place; the cancel that it sent comes first.
      running = randomTool(run);
      running->execute(document);
      host().events.commandCancelled(u"LINE"_s);
      how = upTo(3);
    }
    end(how, running);
    TcEditorReactor::instance()->clear();
    const std::vector<Value> after = values();
    for (std::size_t i = 0; i < before.size(); ++i)
      ASSERT_TRUE(before[i] == after[i])
          << before[i].name.toStdString() << " is left behind by run " << run << ", end " << how;
    host().log.clear();
  }
  for (const int count : ends) EXPECT_GT(count, kRuns / 10);
}

} // namespace
