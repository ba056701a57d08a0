#include "properties/line_type_table_record_impl.h"

#include "drawing/database.h"
#include "host/host_locator.h"
#include "properties/general_properties.h"
#include "properties/line_type_element_impl.h"
#include "properties/property_reference_impl.h"
#include "properties/stored_field.h"
#include "properties/text_style_table_record_impl.h"

#include <QHash>

#include <algorithm>
#include <array>

namespace tc {
namespace {

using Values = OdTcLineTypeTableRecordImpl::Values;
using Field = StoredField<Values>;

constexpr std::array kAttributes = {
    Field{u"numberOfPatternElements", &Values::numberOfDashes},
};
constexpr std::array kElements = {
    Field{u"Description", &Values::comments},
    Field{u"TotalPatternLength", &Values::patternLength},
};

/// A style of the snapshot's file that the drawing has. Fonts are named in any case.
OdDbObjectId findStyle(const OdDbTextStyleTable& table, const OdTcTextStyleValues& wanted) {
  for (auto it = table.newIterator(); !it->done(); it->step()) {
    const auto* const style = odrxCast<OdDbTextStyleTableRecord>(it->getRecord());
    if (style && style->isShapeFile() == wanted.isShapeFile &&
        style->fileName().compare(wanted.fontOrShapeFile, Qt::CaseInsensitive) == 0)
      return it->getRecordId();
  }
  return {};
}

/// A name can be taken by another font.
OdString freeStyleName(const OdDbTextStyleTable& table, const OdString& wanted) {
  const OdString name = wanted.isEmpty() ? host::ownText(QStringLiteral("Style")) : wanted;
  OdString free = name;
  for (int n = 1; table.has(free); ++n) free = QStringLiteral("%1_%2").arg(name).arg(n);
  return free;
}

/// The drawing's style with the font of a snapshot, made if there is none.
OdDbObjectId ensureStyle(const OdTcTextStyleTableRecordImpl& style, OdDbDatabase* database) {
  const auto table = database->getTextStyleTableId().openAs<OdDbTextStyleTable>();
  if (const OdDbObjectId found = findStyle(*table, style.values())) return found;
  const auto copy = odrxMake<OdTcTextStyleTableRecordImpl>();
  copy->setValues(style.values());
  // Shape files are known by their file and need no name.
  if (!style.values().isShapeFile || !style.recordName().isEmpty())
    copy->setRecordName(freeStyleName(*table, style.recordName()));
  return addRecord(database, *copy);
}

} // namespace

OdTcLineTypeTableRecordImpl::OdTcLineTypeTableRecordImpl()
  : m_elements(odrxMake<OdTcLineTypeElementsListImpl>()) {
  m_elements->setOwner(this);
}

void OdTcLineTypeTableRecordImpl::writeFields(OdTcFiler* filer) {
  writeStoredAttributes<Values>(filer, m_values, kAttributes);
  writeName(filer);
  writeStoredElements<Values>(filer, m_values, kElements);
  filer->writeObject(m_elements);
  filer->writeObject(m_textStyles);
}

bool OdTcLineTypeTableRecordImpl::readField(const OdString& name, const OdVariant& value) {
  if (name == QLatin1String("LinetypeElements"))
    m_elements = adoptPart(persistCast<OdTcLineTypeElementsList>(value), this);
  else if (name == QLatin1String("TextstyleTableRecordCollection"))
    m_textStyles = adoptPart(persistCast<OdTcTextStyleTableRecordCollection>(value), this);
  else
    return readName(name, value) || readStoredField<Values>(m_values, kAttributes, name, value) ||
           readStoredField<Values>(m_values, kElements, name, value);
  return true;
}

OdRxObjectPtr OdTcLineTypeTableRecordImpl::clone() const {
  auto copy = odrxMake<OdTcLineTypeTableRecordImpl>();
  copy->setRecordName(recordName());
  copy->m_values = m_values;
  copy->m_elements = clonePart(m_elements, copy);
  copy->m_textStyles = clonePart(m_textStyles, copy);
  return copy;
}

OdDbObjectId OdTcLineTypeTableRecordImpl::styleOf(std::uint64_t handle,
                                                  OdDbDatabase* database) const {
  const auto* const reference = m_textStyles ? m_textStyles->find(handle) : nullptr;
  const auto* const property =
      reference ? dynamic_cast<OdTcTextStylePropertyImpl*>(reference->textStyle()) : nullptr;
  const auto* const style =
      property ? dynamic_cast<OdTcTextStyleTableRecordImpl*>(property->record()) : nullptr;
  return style ? ensureStyle(*style, database) : OdDbObjectId();
}

OdSmartPtr<OdDbSymbolTableRecord>
OdTcLineTypeTableRecordImpl::createRecord(OdDbDatabase* database) const {
  auto record = odrxMake<OdDbLinetypeTableRecord>();
  record->setName(recordName());
  record->setComments(m_values.comments);
  record->setNumDashes(m_elements->count());
  record->setPatternLength(m_values.patternLength);
  // Line types can have very many dashes, and drawings very many styles.
  QHash<std::uint64_t, OdDbObjectId> styles;
  for (int i = 0; i < m_elements->count(); ++i) {
    const OdTcLineTypeElement* const element = m_elements->at(i);
    const OdTcComplexLineTypeElement* const complex = element->complexElement();
    const double length = element->length() == OdTcLineTypeElement::kNoLength && complex
                              ? complex->length()
                              : element->length();
    record->setDashLengthAt(i, length == OdTcLineTypeElement::kNoLength ? 0.0 : length);
    if (!complex) continue;
    const OdTcComplexElementValues& v = complex->values();
    record->setShapeIsUcsOrientedAt(i, v.isUcsOriented);
    record->setShapeScaleAt(i, v.scale);
    record->setShapeRotationAt(i, v.rotation);
    record->setShapeOffsetAt(i, {v.offsetX, v.offsetY});
    record->setShapeNumberAt(i, v.shapeNumber);
    record->setTextAt(i, v.text);
    const auto known = styles.constFind(v.styleHandle);
    const OdDbObjectId style =
        known != styles.cend() ? *known
                               : *styles.insert(v.styleHandle, styleOf(v.styleHandle, database));
    if (style) record->setShapeStyleAt(i, style);
  }
  return record;
}

void OdTcLineTypeTableRecordImpl::takeDash(const OdDbLinetypeTableRecord& record, int index) {
  auto element = odrxMake<OdTcLineTypeElementImpl>();
  element->setLength(record.dashLengthAt(index));
  m_elements->add(element);
  const OdDbObjectId style = record.shapeStyleAt(index);
  if (style.isNull() && record.shapeNumberAt(index) == 0 && record.textAt(index).isEmpty()) return;
  auto complex = odrxMake<OdTcComplexLineTypeElementImpl>();
  complex->setLength(element->length());
  OdTcComplexElementValues v;
  v.styleHandle = style.isNull() ? 0 : std::uint64_t{style.getHandle()};
  v.scale = record.shapeScaleAt(index);
  v.rotation = record.shapeRotationAt(index);
  v.offsetX = record.shapeOffsetAt(index).x;
  v.offsetY = record.shapeOffsetAt(index).y;
  v.isUcsOriented = record.shapeIsUcsOrientedAt(index);
  v.shapeNumber = record.shapeNumberAt(index);
  v.text = record.textAt(index);
  complex->setValues(v);
  element->setComplexElement(complex);
  if (style.isNull()) return;
  if (!m_textStyles) {
    m_textStyles = odrxMake<OdTcTextStyleTableRecordCollectionImpl>();
    m_textStyles->setOwner(this);
  }
  if (m_textStyles->find(v.styleHandle)) return;
  auto property = odrxMake<OdTcTextStylePropertyImpl>();
  property->takeRecord(style);
  auto reference = odrxMake<OdTcPropertyReferenceImpl>();
  reference->setHandle(v.styleHandle);
  reference->setTextStyle(property);
  m_textStyles->add(reference);
}

void OdTcLineTypeTableRecordImpl::takeFrom(OdDbObjectId id) {
  const auto record = id.openAs<OdDbLinetypeTableRecord>();
  setRecordName(record->getName());
  m_values = {record->comments(), record->patternLength(), record->numDashes()};
  m_elements = odrxMake<OdTcLineTypeElementsListImpl>();
  m_elements->setOwner(this);
  m_textStyles = nullptr;
  for (int i = 0; i < record->numDashes(); ++i) takeDash(*record, i);
}

OdDbObjectId OdTcLineTypeTableRecordImpl::tableId(const OdDbDatabase* database) const {
  return database->getLinetypeTableId();
}

} // namespace tc
