// Objects, tables, header variables and current values of a drawing.
#include "drawing/database.h"
#include "drawing/entities/line.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

int codeOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const OdError& e) {
    return e.code();
  }
  return 0;
}

class Drawing : public ::testing::Test {
 protected:
  OdDbDatabasePtr m_db = OdDbDatabase::createDatabase();
  OdSmartPtr<OdDbLayerTable> m_layers =
      m_db->getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite);

  OdDbObjectId addLayer(const OdString& name) {
    const auto layer = odrxMake<OdDbLayerTableRecord>();
    layer->setName(name);
    return m_layers->add(layer);
  }
};

} // namespace

TEST_F(Drawing, SetterOnAnObjectOpenForReadingIsRefused) {
  const auto layer = m_db->getLayerZeroId().openAs<OdDbLayerTableRecord>();
  EXPECT_EQ(codeOf([&] { layer->setIsOff(true); }), eNotOpenForWrite);
  layer->upgradeOpen();
  layer->setIsOff(true);
  layer->downgradeOpen();
  EXPECT_EQ(codeOf([&] { layer->setIsOff(false); }), eNotOpenForWrite);
  EXPECT_TRUE(layer->isOff());
}

TEST_F(Drawing, WritingEndsWithTheLastPointerToTheObject) {
  { const auto open = m_db->getLayerZeroId().openAs<OdDbLayerTableRecord>(OdDb::kForWrite); }
  const auto layer = m_db->getLayerZeroId().openAs<OdDbLayerTableRecord>();
  EXPECT_FALSE(layer->isWriteEnabled());
}

TEST_F(Drawing, OpeningWhatIsNotThereSaysWhy) {
  EXPECT_EQ(codeOf([] { OdDbObjectId().safeOpenObject(); }), eNullObjectId);
  const OdDbObjectId id = addLayer(QStringLiteral("Gone"));
  id.openAs<OdDbLayerTableRecord>(OdDb::kForWrite)->erase();
  EXPECT_TRUE(id.openObject().isNull());
  EXPECT_FALSE(id.openObject(OdDb::kForRead, true).isNull());
  EXPECT_EQ(codeOf([&] { id.safeOpenObject(); }), eWasErased);
  EXPECT_THROW(m_db->getLayerZeroId().openAs<OdDbLine>(), OdError_NotThatKindOfClass);
}

TEST_F(Drawing, RecordsAreFoundWithoutRegardToCaseAndNamesAreUnique) {
  const OdDbObjectId id = addLayer(QStringLiteral("Wände"));
  EXPECT_EQ(m_layers->getAt(QStringLiteral("WÄNDE")), id);
  EXPECT_EQ(codeOf([&] { addLayer(QStringLiteral("wände")); }), eDuplicateRecordName);
  EXPECT_EQ(codeOf([&] { addLayer(QString()); }), eInvalidName);
  const auto zero = m_db->getLayerZeroId().openAs<OdDbLayerTableRecord>(OdDb::kForWrite);
  EXPECT_EQ(codeOf([&] { zero->setName(QStringLiteral("wÄNDE")); }), eDuplicateRecordName);
  id.openAs<OdDbLayerTableRecord>(OdDb::kForWrite)->erase();
  EXPECT_FALSE(m_layers->has(QStringLiteral("Wände")));
  EXPECT_NE(addLayer(QStringLiteral("Wände")), id);
}

TEST_F(Drawing, ObjectBelongsToOneDrawingOnly) {
  const auto layer = odrxMake<OdDbLayerTableRecord>();
  layer->setName(QStringLiteral("Twice"));
  m_layers->add(layer);
  const OdDbDatabasePtr other = OdDbDatabase::createDatabase();
  const auto table = other->getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite);
  EXPECT_EQ(codeOf([&] { table->add(layer); }), eAlreadyInDatabase);
}

TEST_F(Drawing, IteratorSkipsWhatIsErased) {
  const OdDbObjectId first = addLayer(QStringLiteral("A"));
  addLayer(QStringLiteral("B"));
  first.openAs<OdDbLayerTableRecord>(OdDb::kForWrite)->erase();
  QStringList names;
  for (auto it = m_layers->newIterator(); !it->done(); it->step())
    names << it->getRecord()->getName();
  EXPECT_EQ(names, QStringList({QStringLiteral("0"), QStringLiteral("B")}));
}

TEST_F(Drawing, NewLayerGetsAPlotStyle) {
  const auto layer = odrxMake<OdDbLayerTableRecord>();
  layer->setName(QStringLiteral("Thick"));
  layer->setPlotStyleName(QStringLiteral("Bold"));
  m_layers->add(layer);
  EXPECT_EQ(layer->plotStyleName(), QLatin1String("Bold"));
  EXPECT_EQ(addLayer(QStringLiteral("Plain")).openAs<OdDbLayerTableRecord>()->plotStyleName(),
            QLatin1String("Normal"));
}

TEST_F(Drawing, LineTypeDashesAreCheckedAndKeepTheirParts) {
  const auto linetype = odrxMake<OdDbLinetypeTableRecord>();
  EXPECT_THROW(linetype->dashLengthAt(0), OdError_InvalidIndex);
  linetype->setNumDashes(2);
  linetype->setDashLengthAt(1, -0.25);
  linetype->setShapeNumberAt(1, 133);
  linetype->setShapeIsUcsOrientedAt(1, true);
  EXPECT_EQ(linetype->dashLengthAt(0), 0);
  EXPECT_EQ(linetype->dashLengthAt(1), -0.25);
  EXPECT_EQ(linetype->shapeNumberAt(1), 133);
  EXPECT_TRUE(linetype->shapeIsUcsOrientedAt(1));
  EXPECT_TRUE(linetype->shapeStyleAt(1).isNull());
  EXPECT_THROW(linetype->setTextAt(2, QString()), OdError_InvalidIndex);
}

TEST_F(Drawing, EveryHeaderVariableHasItsPresetAndIsFoundInAnyCase) {
  for (const OdDbHeaderVarInfo& row : oddbHeaderVars()) {
    const OdString name = QLatin1String(row.name);
    EXPECT_EQ(oddbFindHeaderVar(QLatin1Char('$') + name.toLower()), &row);
    ASSERT_TRUE(m_db->getSysVar(name).has_value()) << row.name;
    if (row.type != OdDbHeaderVarInfo::kHandle) {
      EXPECT_TRUE(m_db->setSysVar(name, *m_db->getSysVar(name))) << row.name;
    }
  }
  EXPECT_EQ(oddbFindHeaderVar(u"NOSUCHVAR"), nullptr);
  EXPECT_EQ(oddbFindHeaderVar(u""), nullptr);
}

TEST_F(Drawing, HeaderVariablesKeepTheirKindAndRange) {
  EXPECT_TRUE(m_db->setSysVar(QStringLiteral("LTSCALE"), std::int64_t{2}));
  EXPECT_EQ(m_db->sysVarReal("LTSCALE"), 2.0);
  EXPECT_FALSE(m_db->setSysVar(QStringLiteral("LTSCALE"), 0.0));
  EXPECT_FALSE(m_db->setSysVar(QStringLiteral("LTSCALE"), std::nan("")));
  EXPECT_FALSE(m_db->setSysVar(QStringLiteral("LUPREC"), std::int64_t{9}));
  EXPECT_FALSE(m_db->setSysVar(QStringLiteral("LUPREC"), OdString(QStringLiteral("4"))));
  EXPECT_FALSE(m_db->setSysVar(QStringLiteral("CLAYER"), OdString(QStringLiteral("none"))));
  EXPECT_FALSE(m_db->setSysVar(QStringLiteral("NOSUCHVAR"), std::int64_t{1}));
  EXPECT_TRUE(m_db->setSysVar(QStringLiteral("LIMMAX"), OdGePoint3d{1, 2, 0}));
  EXPECT_EQ(m_db->sysVarPoint("LIMMAX"), (OdGePoint3d{1, 2, 0}));
  EXPECT_EQ(m_db->sysVarText("CLAYER"), QLatin1String("0"));
}

TEST_F(Drawing, CurrentValuesAreWhatNewEntitiesGet) {
  const OdDbObjectId layer = addLayer(QStringLiteral("Now"));
  m_db->setCurrentLayer(layer);
  m_db->setCurrentColor(OdCmColor::fromColorIndex(5));
  m_db->setCurrentLinetype(m_db->getLinetypeContinuousId());
  m_db->setCurrentLinetypeScale(0.5);
  m_db->setCurrentLineWeight(static_cast<OdDb::LineWeight>(50));
  m_db->setCurrentPlotStyle(OdDb::kPlotStyleNameByBlock);
  m_db->setCurrentTransparency(OdCmTransparency::fromPercent(30));
  const auto line = odrxMake<OdDbLine>();
  line->setDatabaseDefaults(*m_db);
  EXPECT_EQ(line->layerId(), layer);
  EXPECT_EQ(line->layer(), QLatin1String("Now"));
  EXPECT_EQ(line->color().colorIndex(), 5);
  EXPECT_EQ(line->linetype(), QLatin1String("Continuous"));
  EXPECT_EQ(line->linetypeScale(), 0.5);
  EXPECT_EQ(line->lineWeight(), 50);
  EXPECT_EQ(line->plotStyleNameType(), OdDb::kPlotStyleNameByBlock);
  EXPECT_EQ(line->transparency().percent(), 30);
}

TEST_F(Drawing, CurrentValuesRefuseWhatTheDrawingLacks) {
  EXPECT_EQ(codeOf([&] { m_db->setCurrentLayer({}); }), eNullObjectId);
  EXPECT_EQ(codeOf([&] { m_db->setCurrentLayer(m_db->getLinetypeByLayerId()); }), eNullObjectId);
  EXPECT_EQ(codeOf([&] { m_db->setCurrentLinetypeScale(-1); }), eInvalidInput);
  EXPECT_EQ(codeOf([&] { m_db->setCurrentLineWeight(static_cast<OdDb::LineWeight>(17)); }),
            eInvalidInput);
  EXPECT_EQ(m_db->currentLayer(), m_db->getLayerZeroId());
}

TEST_F(Drawing, DimensionStyleLoadsItsVariables) {
  const auto styles = m_db->getDimStyleTableId().openAs<OdDbDimStyleTable>();
  m_db->setSysVar(QStringLiteral("DIMASZ"), 99.0);
  m_db->setSysVar(QStringLiteral("DIMTIH"), std::int64_t{0});
  m_db->setDimstyleData(styles->getAt(QStringLiteral("Standard")));
  EXPECT_EQ(m_db->sysVarReal("DIMASZ"), 2.5);
  EXPECT_EQ(m_db->sysVarInt("DIMDSEP"), 44);
  EXPECT_EQ(m_db->sysVarText("DIMTXSTY"), QLatin1String("Standard"));
  EXPECT_THROW(m_db->setDimstyleData(m_db->getLayerZeroId()), OdError_NotThatKindOfClass);
}

TEST(Color, MethodIsTheHighByteAndPartsFollow) {
  EXPECT_EQ(OdCmColor().color(), 0xC0000000u);
  EXPECT_EQ(OdCmColor(OdCmColor::kByBlock).color(), 0xC1000000u);
  EXPECT_EQ(OdCmColor::fromRgb(1, 2, 3).color(), 0xC2010203u);
  EXPECT_EQ(OdCmColor::fromColorIndex(7).color(), 0xC3000007u);
  EXPECT_EQ(OdCmColor(OdCmColor::kNone).color(), 0xC8000000u);
  OdCmColor c;
  c.setColor(0xC2FFFFFFu);
  EXPECT_EQ(int{c.colorMethod()}, 194);
  EXPECT_EQ(c.rgb(), 0xFFFFFFu);
}

TEST(Color, IndicesStandForMethodsToo) {
  EXPECT_TRUE(OdCmColor(OdCmColor::kByPen).isByPen());
  EXPECT_EQ(OdCmColor(OdCmColor::kByPen).color(), 0xC4000000u);
  EXPECT_EQ(OdCmColor(OdCmColor::kByPen).colorIndex(), OdCmColor::kACInone);
  EXPECT_TRUE(OdCmColor(OdCmColor::kForeground).isForeground());
  EXPECT_EQ(OdCmColor(OdCmColor::kForeground).color(), 0xC5000000u);
  EXPECT_EQ(OdCmColor(OdCmColor::kForeground).colorIndex(), OdCmColor::kACIforeground);
  for (int i = 0; i <= 257; ++i) EXPECT_EQ(OdCmColor::fromColorIndex(i).colorIndex(), i);
  EXPECT_TRUE(OdCmColor::fromColorIndex(0).isByBlock());
  EXPECT_TRUE(OdCmColor::fromColorIndex(256).isByLayer());
  EXPECT_TRUE(OdCmColor::fromColorIndex(257).isNone());
  EXPECT_THROW(OdCmColor::fromColorIndex(258), OdError);
  EXPECT_THROW(OdCmColor::fromColorIndex(-1), OdError);
}

TEST(Color, PaletteIsThatOfTheFiles) {
  struct Row {
    std::uint8_t index;
    std::uint32_t rgb;
  };
  constexpr Row kRows[] = {{1, 0xFF0000},  {5, 0x0000FF},   {8, 0x808080},   {10, 0xFF0000},
                           {11, 0xFF7F7F}, {12, 0xA50000},  {13, 0xA55252},  {20, 0xFF3F00},
                           {30, 0xFF7F00}, {94, 0x007F00},  {170, 0x0000FF}, {213, 0xA552A5},
                           {18, 0x260000}, {249, 0x261317}, {255, 0xFFFFFF}};
  for (const Row& row : kRows)
    EXPECT_EQ(OdCmColor::lookUpRGB(row.index), row.rgb) << int{row.index};
  EXPECT_EQ(OdCmColor::lookUpACI(254, 1, 1), 1);
  EXPECT_EQ(OdCmColor::fromRgb(0, 0, 255).colorIndex(), 5);
}

TEST(Color, NamesOfABookTravelWithTheColour) {
  OdCmColor c = OdCmColor::fromRgb(255, 255, 255);
  c.setNames(QStringLiteral("-- use current"), QStringLiteral("curr_color"));
  const OdCmColor copy = c;
  EXPECT_EQ(copy.bookName(), QLatin1String("curr_color"));
  EXPECT_NE(copy, OdCmColor::fromRgb(255, 255, 255));
  c.setNames({});
  EXPECT_FALSE(c.hasNames());
  EXPECT_TRUE(copy.hasNames());
}
