// What general properties take from a drawing's entities.
#pragma once

class OdDbEntity;
class OdDbObject;

namespace tc {

class OdTcDatabasePropertyImpl;
class OdTcPropertyBag;

/// Takes the values of an entity into the general properties of a tool, with snapshots of the
/// records that it uses: its colour, layer, line type and so on, the text style of texts, the
/// dimension style of dimensions and leaders. What the entity has none of is left to the drawing in
/// which the tool runs. False, and nothing is changed, for null and for what is no entity.
bool captureGeneralProperties(OdTcPropertyBag* bag, const OdDbObject* entity);

// One for each kind of property; false if the entity has no such value.
bool captureColor(OdTcDatabasePropertyImpl& property, const OdDbEntity& entity);
bool captureLayer(OdTcDatabasePropertyImpl& property, const OdDbEntity& entity);
bool captureLineType(OdTcDatabasePropertyImpl& property, const OdDbEntity& entity);
bool captureLineTypeScale(OdTcDatabasePropertyImpl& property, const OdDbEntity& entity);
bool capturePlotStyle(OdTcDatabasePropertyImpl& property, const OdDbEntity& entity);
bool captureLineWeight(OdTcDatabasePropertyImpl& property, const OdDbEntity& entity);
bool captureTransparency(OdTcDatabasePropertyImpl& property, const OdDbEntity& entity);
bool captureTextStyle(OdTcDatabasePropertyImpl& property, const OdDbEntity& entity);
bool captureDimStyle(OdTcDatabasePropertyImpl& property, const OdDbEntity& entity);

} // namespace tc
