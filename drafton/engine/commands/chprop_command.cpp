// CHPROP.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/entity_thickness.h"
#include "drafton/engine/commands/property_prompts.h"
#include "drafton/engine/commands/record_names.h"
#include "drafton/engine/commands/shown_values.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"
#include "drawing/database.h"

namespace drafton {
namespace {

/// The value that all of the entities have; none if they differ. `get` gives an optional, empty for
/// entities that have no such value.
template <class Get>
auto commonValue(const Selection& entities, const Get& get)
    -> decltype(get(std::declval<const OdDbEntity&>())) {
  decltype(get(std::declval<const OdDbEntity&>())) common;
  for (const OdDbObjectId& id : entities) {
    const auto value = get(*id.openAs<OdDbEntity>());
    if (!value) continue;
    if (common && !(*common == *value)) return {};
    common = value;
  }
  return common;
}

template <class Change>
void changeAll(const Selection& entities, const Change& change) {
  for (const OdDbObjectId& id : entities) change(*id.openAs<OdDbEntity>(OdDb::kForWrite));
}

Task<void> changeColor(CommandContext& context, const Selection& entities) {
  const auto now =
      commonValue(entities, [](const OdDbEntity& e) { return std::optional(e.color()); });
  const std::optional<OdCmColor> color =
      co_await askColor(context, u"New color", now, ColorKinds::kAll);
  if (color) changeAll(entities, [&](OdDbEntity& e) { e.setColor(*color); });
}

Task<void> changeLayer(CommandContext& context, const Selection& entities) {
  const auto now =
      commonValue(entities, [](const OdDbEntity& e) { return std::optional(e.layerId()); });
  const OdString shown = now ? recordName(*now) : kVaries.toString();
  for (;;) {
    const Answer<OdString> name = co_await context.input().string(
        {.text = u"Enter new layer name", .defaultValue = QStringView(shown)});
    if (name.value == shown) co_return;
    const auto layers = context.database().getLayerTableId().openAs<OdDbLayerTable>();
    const OdDbLayerTableRecordPtr layer = layers->getAt(name.value).openObject();
    const OdString fault = layer
                               ? recordUseFault(*layer)
                               : translated(u"There is no layer \"%1\".").arg(name.value.left(60));
    if (fault.isEmpty()) {
      changeAll(entities, [&](OdDbEntity& e) { e.setLayer(layer->objectId()); });
      co_return;
    }
    context.print(fault);
  }
}

Task<void> changeLinetype(CommandContext& context, const Selection& entities) {
  const auto now =
      commonValue(entities, [](const OdDbEntity& e) { return std::optional(shownLinetype(e)); });
  const OdDbObjectId linetype =
      co_await askLinetype(context, u"Enter new linetype name", now, true);
  if (!linetype.isNull()) changeAll(entities, [&](OdDbEntity& e) { e.setLinetype(linetype); });
}

Task<void> changeLinetypeScale(CommandContext& context, const Selection& entities) {
  const auto now =
      commonValue(entities, [](const OdDbEntity& e) { return std::optional(e.linetypeScale()); });
  const Answer<double> scale = co_await context.input().real({.text = u"Specify new linetype scale",
                                                              .defaultValue = now,
                                                              .range = NumberRange::kPositive,
                                                              .allowEmpty = true});
  if (scale.isValue()) changeAll(entities, [&](OdDbEntity& e) { e.setLinetypeScale(scale.value); });
}

Task<void> changeLineWeight(CommandContext& context, const Selection& entities) {
  const auto now =
      commonValue(entities, [](const OdDbEntity& e) { return std::optional(e.lineWeight()); });
  const std::optional<OdDb::LineWeight> weight =
      co_await askLineWeight(context, u"Enter new lineweight", now, true);
  if (weight) changeAll(entities, [&](OdDbEntity& e) { e.setLineWeight(*weight); });
}

Task<void> changeThickness(CommandContext& context, const Selection& entities) {
  const auto now = commonValue(entities, thicknessOf);
  const Answer<double> thickness = co_await context.input().distance(
      {.text = u"Specify new thickness", .defaultValue = now, .allowEmpty = true});
  if (!thickness.isValue()) co_return;
  int flat = 0;
  changeAll(entities, [&](OdDbEntity& e) { flat += !setThickness(e, thickness.value); });
  if (flat > 0) context.print(translated(u"%1 cannot have a thickness.").arg(flat));
}

Task<void> changeTransparency(CommandContext& context, const Selection& entities) {
  const auto now =
      commonValue(entities, [](const OdDbEntity& e) { return std::optional(e.transparency()); });
  const std::optional<OdCmTransparency> transparency =
      co_await askTransparency(context, u"Enter new transparency value", now);
  if (transparency) changeAll(entities, [&](OdDbEntity& e) { e.setTransparency(*transparency); });
}

Task<void> changePlotStyle(CommandContext& context, const Selection& entities) {
  if (context.database().sysVarInt("PSTYLEMODE") != 0) {
    context.print(translated(u"Objects of this drawing take their plot styles from their colors."));
    co_return;
  }
  const auto now = commonValue(entities, [](const OdDbEntity& e) {
    return std::optional(PlotStyle{e.plotStyleNameType(), e.plotStyleNameId()});
  });
  const std::optional<PlotStyle> style =
      co_await askPlotStyle(context, u"Enter new plot style", now);
  if (style)
    changeAll(entities, [&](OdDbEntity& e) { e.setPlotStyleName(style->type, style->id); });
}

struct Property {
  const char16_t* keyword;
  Task<void> (*change)(CommandContext& context, const Selection& entities);
};

constexpr Property kProperties[] = {
    {u"Color", changeColor},
    {u"LAyer", changeLayer},
    {u"LType", changeLinetype},
    {u"ltScale", changeLinetypeScale},
    {u"LWeight", changeLineWeight},
    {u"Thickness", changeThickness},
    {u"TRansparency", changeTransparency},
    {u"Plotstyle", changePlotStyle},
};

constexpr QStringView kKeywords =
    u"Color LAyer LType ltScale LWeight Thickness TRansparency Plotstyle";

} // namespace

Task<void> changeProperties(CommandContext& context) {
  const Selection chosen = co_await selectObjects(context);
  if (chosen.empty()) co_return;
  for (;;) {
    const Answer<OdString> property = co_await context.input().keyword(
        {.text = u"Enter property to change", .keywords = kKeywords, .allowEmpty = true});
    if (property.isEmpty()) co_return;
    for (const Property& row : kProperties)
      if (property.is(row.keyword)) co_await row.change(context, chosen);
  }
}

} // namespace drafton
