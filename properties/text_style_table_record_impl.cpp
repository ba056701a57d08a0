#include "properties/text_style_table_record_impl.h"

#include "drawing/database.h"
#include "properties/stored_field.h"

#include <array>

namespace tc {
namespace {

using Values = OdTcTextStyleValues;
using Field = StoredField<Values>;

constexpr std::array kAttributes = {
    Field{u"isShapeFilePointer", &Values::isShapeFile},
    Field{u"fontOrShapeFile", &Values::fontOrShapeFile},
    Field{u"isMirroredinX", &Values::isMirroredInX},
    Field{u"isMirroredinY", &Values::isMirroredInY},
    Field{u"isVertical", &Values::isVertical},
    Field{u"widthRatio", &Values::widthRatio},
};
constexpr std::array kElements = {
    Field{u"FixedTextHeight", &Values::fixedHeight},
    Field{u"Obliquing", &Values::obliqueAngle},
    Field{u"PriorTextHeight", &Values::priorHeight},
};
constexpr std::array kFont = {
    Field{u"typeFace", &Values::typeFace},
    Field{u"bold", &Values::isBold},
    Field{u"italic", &Values::isItalic},
    Field{u"charSet", &Values::charSet},
    Field{u"pitchAndFamily", &Values::pitchAndFamily},
};

} // namespace

void OdTcTextStyleTableRecordImpl::writeFields(OdTcFiler* filer) {
  writeStoredAttributes<Values>(filer, m_values, kAttributes);
  writeName(filer);
  writeStoredElements<Values>(filer, m_values, kElements);
  if (!m_values.typeFace.isEmpty())
    filer->writeElementAttributes(QStringLiteral("FontXdata"),
                                  storedValues<Values>(m_values, kFont));
}

bool OdTcTextStyleTableRecordImpl::readField(const OdString& name, const OdVariant& value) {
  return readName(name, value) || readStoredField<Values>(m_values, kAttributes, name, value) ||
         readStoredField<Values>(m_values, kElements, name, value) ||
         readStoredField<Values>(m_values, kFont, name, value);
}

OdRxObjectPtr OdTcTextStyleTableRecordImpl::clone() const {
  auto copy = odrxMake<OdTcTextStyleTableRecordImpl>();
  copy->setRecordName(recordName());
  copy->m_values = m_values;
  return copy;
}

OdSmartPtr<OdDbSymbolTableRecord> OdTcTextStyleTableRecordImpl::createRecord(OdDbDatabase*) const {
  auto style = odrxMake<OdDbTextStyleTableRecord>();
  if (!recordName().isEmpty()) style->setName(recordName());
  style->setFileName(m_values.fontOrShapeFile);
  style->setBigFontFileName(m_values.bigFontFile);
  style->setObliquingAngle(m_values.obliqueAngle);
  style->setPriorSize(m_values.priorHeight);
  style->setTextSize(m_values.fixedHeight);
  style->setXScale(m_values.widthRatio);
  style->setIsVertical(m_values.isVertical);
  style->setIsShapeFile(m_values.isShapeFile);
  style->setIsUpsideDown(m_values.isMirroredInY);
  style->setIsBackwards(m_values.isMirroredInX);
  style->setFont(m_values.typeFace, m_values.isBold, m_values.isItalic, m_values.charSet,
                 m_values.pitchAndFamily);
  return style;
}

void OdTcTextStyleTableRecordImpl::takeFrom(OdDbObjectId record) {
  const auto style = record.openAs<OdDbTextStyleTableRecord>();
  setRecordName(style->getName());
  Values v;
  v.isVertical = style->isVertical();
  v.isShapeFile = style->isShapeFile();
  v.obliqueAngle = style->obliquingAngle();
  v.priorHeight = style->priorSize();
  v.fixedHeight = style->textSize();
  v.fontOrShapeFile = style->fileName();
  v.bigFontFile = style->bigFontFileName();
  v.widthRatio = style->xScale();
  v.isMirroredInY = style->isUpsideDown();
  v.isMirroredInX = style->isBackwards();
  int charSet = 0, pitchAndFamily = 0;
  style->font(v.typeFace, v.isBold, v.isItalic, charSet, pitchAndFamily);
  v.charSet = charSet;
  v.pitchAndFamily = pitchAndFamily;
  m_values = v;
}

OdDbObjectId OdTcTextStyleTableRecordImpl::tableId(const OdDbDatabase* database) const {
  return database->getTextStyleTableId();
}

} // namespace tc
