// What general properties take from the entities of a drawing.
#include "properties/entity_values.h"

#include "drawing/database.h"
#include "drawing/entities/dimension_kinds.h"
#include "drawing/entities/leader.h"
#include "drawing/entities/line.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/text.h"
#include "properties/general_properties.h"
#include "properties/property_bag.h"
#include "support/module_fixture.h"
#include "tools/tool_data.h"

#include <functional>

namespace {

using namespace tc;
using namespace Qt::StringLiterals;

struct EntityValuesTest : testhost::ModuleFixture {
  OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  OdTcToolDataPtr data = OdTcToolData::createObject();
  OdTcPropertyBag* bag = data->generalProperties();

  template <class Record>
  OdDbObjectId add(OdDbObjectId table, const OdString& name,
                   const std::function<void(Record&)>& fill = {}) {
    auto record = odrxMake<Record>();
    record->setName(name);
    if (fill) fill(*record);
    return table.openAs<OdDbSymbolTable>(OdDb::kForWrite)->add(record);
  }
  template <class Entity>
  OdSmartPtr<Entity> placed(OdSmartPtr<Entity> entity) {
    entity->setDatabaseDefaults(*drawing);
    drawing->getModelSpaceId()
        .openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
        ->appendOdDbEntity(entity);
    return entity;
  }
  template <class Property>
  Property& property() const {
    const OdTcEnumPtr<OdTcProperty> all = bag->enumProperties();
    while (OdTcProperty* const at = all->next())
      if (auto* const found = dynamic_cast<Property*>(at)) return *found;
    throw OdError(eInvalidInput, u"the bag lacks the property"_s);
  }
  template <class Property>
  bool isUnspecified() const {
    return property<Property>().getBasicInfo()->isUnspecified();
  }
  OdString recordName(const OdTcDatabasePropertyImpl& property) const {
    return property.record() ? property.record()->recordName() : OdString();
  }
};

TEST_F(EntityValuesTest, ALineGivesAllThatEntitiesHave) {
  const OdDbObjectId walls = add<OdDbLayerTableRecord>(drawing->getLayerTableId(), u"Walls"_s);
  const OdDbObjectId dashed =
      add<OdDbLinetypeTableRecord>(drawing->getLinetypeTableId(), u"Dashed"_s);
  const auto line = placed(odrxMake<OdDbLine>(OdGePoint3d(), OdGePoint3d(1, 0, 0)));
  line->setLayer(walls);
  line->setLinetype(dashed);
  line->setColor(OdCmColor::fromColorIndex(5));
  line->setLineWeight(static_cast<OdDb::LineWeight>(35));
  line->setLinetypeScale(0.1234567890123);
  line->setTransparency(OdCmTransparency::fromPercent(30));

  EXPECT_TRUE(captureGeneralProperties(bag, line));
  EXPECT_EQ(property<OdTcColorPropertyImpl>().color().colorIndex(), 5);
  EXPECT_EQ(recordName(property<OdTcLayerPropertyImpl>()), u"Walls"_s);
  EXPECT_EQ(recordName(property<OdTcLineTypePropertyImpl>()), u"Dashed"_s);
  EXPECT_EQ(property<OdTcLineTypeScalePropertyImpl>().text(), u"0.1234567890123"_s);
  EXPECT_EQ(property<OdTcPlotStylePropertyImpl>().text(), u"ByLayer"_s);
  EXPECT_EQ(property<OdTcLineWeightPropertyImpl>().text(), u"35"_s);
  EXPECT_EQ(property<OdTcTransparencyPropertyImpl>().text(), u"30"_s);
  EXPECT_FALSE(isUnspecified<OdTcColorPropertyImpl>());
  EXPECT_FALSE(isUnspecified<OdTcLayerPropertyImpl>());
}

TEST_F(EntityValuesTest, WhatAnEntityHasNoneOfIsLeftToTheDrawing) {
  const auto line = placed(odrxMake<OdDbLine>(OdGePoint3d(), OdGePoint3d(1, 0, 0)));
  captureGeneralProperties(bag, line);
  EXPECT_TRUE(isUnspecified<OdTcTextStylePropertyImpl>());
  EXPECT_TRUE(isUnspecified<OdTcDimStylePropertyImpl>());
  EXPECT_TRUE(isUnspecified<OdTcTableStylePropertyImpl>());
}

TEST_F(EntityValuesTest, WordsStandForWhatIsTakenFromElsewhere) {
  const auto line = placed(odrxMake<OdDbLine>(OdGePoint3d(), OdGePoint3d(1, 0, 0)));
  const auto& weight = property<OdTcLineWeightPropertyImpl>();
  const auto& transparency = property<OdTcTransparencyPropertyImpl>();
  const auto capture = [&](OdDb::LineWeight lineWeight, OdCmTransparency clear) {
    line->setLineWeight(lineWeight);
    line->setTransparency(clear);
    captureGeneralProperties(bag, line);
  };
  capture(OdDb::kLnWtByLayer, OdCmTransparency(OdCmTransparency::kByLayer));
  EXPECT_EQ(weight.text(), u"ByLayer"_s);
  EXPECT_EQ(transparency.text(), u"ByLayer"_s);
  capture(OdDb::kLnWtByBlock, OdCmTransparency(OdCmTransparency::kByBlock));
  EXPECT_EQ(weight.text(), u"ByBlock"_s);
  EXPECT_EQ(transparency.text(), u"ByBlock"_s);
  capture(OdDb::kLnWtByLwDefault, OdCmTransparency());
  EXPECT_EQ(weight.text(), u"ByDefault"_s);
}

TEST_F(EntityValuesTest, TextsGiveTheirStyle) {
  const OdDbObjectId notes =
      add<OdDbTextStyleTableRecord>(drawing->getTextStyleTableId(), u"Notes"_s);
  const auto text = placed(odrxMake<OdDbText>());
  text->setTextStyle(notes);
  captureGeneralProperties(bag, text);
  EXPECT_EQ(recordName(property<OdTcTextStylePropertyImpl>()), u"Notes"_s);
  const OdDbObjectId titles =
      add<OdDbTextStyleTableRecord>(drawing->getTextStyleTableId(), u"Titles"_s);
  const auto paragraph = placed(odrxMake<OdDbMText>());
  paragraph->setTextStyle(titles);
  captureGeneralProperties(bag, paragraph);
  EXPECT_EQ(recordName(property<OdTcTextStylePropertyImpl>()), u"Titles"_s);
}

TEST_F(EntityValuesTest, DimensionsAndLeadersGiveTheirStyle) {
  const OdDbObjectId big = add<OdDbDimStyleTableRecord>(drawing->getDimStyleTableId(), u"Big"_s);
  const auto dimension = placed(odrxMake<OdDbAlignedDimension>());
  dimension->setDimensionStyle(big);
  captureGeneralProperties(bag, dimension);
  EXPECT_EQ(recordName(property<OdTcDimStylePropertyImpl>()), u"Big"_s);
  const OdDbObjectId small =
      add<OdDbDimStyleTableRecord>(drawing->getDimStyleTableId(), u"Small"_s);
  const auto leader = placed(odrxMake<OdDbLeader>());
  leader->setDimensionStyle(small);
  captureGeneralProperties(bag, leader);
  EXPECT_EQ(recordName(property<OdTcDimStylePropertyImpl>()), u"Small"_s);
}

TEST_F(EntityValuesTest, WhatIsNoEntityChangesNothing) {
  EXPECT_FALSE(captureGeneralProperties(bag, nullptr));
  EXPECT_FALSE(captureGeneralProperties(bag, drawing->getLayerZeroId().openObject()));
  EXPECT_FALSE(captureGeneralProperties(nullptr, nullptr));
  EXPECT_FALSE(isUnspecified<OdTcTextStylePropertyImpl>());
}

TEST_F(EntityValuesTest, EveryOpacityOfProgramsComesBackFromItsPercentage) {
  // 10 % opaque is the clearest that programs offer.
  for (int alpha = 26; alpha <= 255; ++alpha) {
    const auto opacity = OdCmTransparency::fromAlpha(static_cast<std::uint8_t>(alpha));
    const auto line = odrxMake<OdDbLine>();
    line->setTransparency(opacity);
    const auto property = odrxMake<OdTcTransparencyPropertyImpl>();
    ASSERT_TRUE(property->captureFromObject(line));
    const OdDbDatabasePtr fresh = OdDbDatabase::createDatabase();
    property->applyToDatabase(fresh);
    EXPECT_EQ(fresh->currentTransparency(), opacity) << property->text().toStdString();
  }
}

} // namespace
