#include "drawing/tables/text_style_table.h"

#include "drawing/checks.h"

OdDbTextStyleTableRecord::OdDbTextStyleTableRecord() = default;

void OdDbTextStyleTableRecord::assignFrom(const OdDbObject& other) {
  OdDbSymbolTableRecord::assignFrom(other);
  m_style = static_cast<const OdDbTextStyleTableRecord&>(other).m_style;
}

void OdDbTextStyleTableRecord::setObliquingAngle(double angle) {
  odcheck::finite(angle);
  assertWriteEnabled();
  m_style.oblique = angle;
}

void OdDbTextStyleTableRecord::setPriorSize(double height) {
  odcheck::finite(height);
  assertWriteEnabled();
  m_style.priorSize = height;
}

void OdDbTextStyleTableRecord::setTextSize(double height) {
  odcheck::finite(height);
  assertWriteEnabled();
  m_style.textSize = height;
}

void OdDbTextStyleTableRecord::setXScale(double ratio) {
  odcheck::positive(ratio);
  assertWriteEnabled();
  m_style.xScale = ratio;
}

void OdDbTextStyleTableRecord::setIsBackwards(bool on) {
  assertWriteEnabled();
  m_style.generation = on ? m_style.generation | 2 : m_style.generation & ~2;
}

void OdDbTextStyleTableRecord::setIsUpsideDown(bool on) {
  assertWriteEnabled();
  m_style.generation = on ? m_style.generation | 4 : m_style.generation & ~4;
}

void OdDbTextStyleTableRecord::setFileName(const OdString& name) {
  assertWriteEnabled();
  m_style.fileName = name;
}

void OdDbTextStyleTableRecord::setBigFontFileName(const OdString& name) {
  assertWriteEnabled();
  m_style.bigFont = name;
}

void OdDbTextStyleTableRecord::setFont(const OdDbFontDescriptor& font) {
  assertWriteEnabled();
  m_style.font = font;
}

void OdDbTextStyleTableRecord::font(OdString& typeFace, bool& bold, bool& italic, int& charSet,
                                    int& pitchAndFamily) const {
  const OdDbFontDescriptor& f = m_style.font;
  typeFace = f.typeFace;
  bold = f.bold;
  italic = f.italic;
  charSet = f.charSet;
  pitchAndFamily = f.pitchAndFamily;
}

void OdDbTextStyleTableRecord::setFont(const OdString& typeFace, bool bold, bool italic,
                                       int charSet, int pitchAndFamily) {
  setFont({typeFace, bold, italic, charSet, pitchAndFamily});
}
