// Text styles.
#pragma once

#include "drawing/tables/symbol_table.h"

/// A true-type font as styles name it.
struct OdDbFontDescriptor {
  OdString typeFace;
  bool bold = false, italic = false;
  int charSet = 0, pitchAndFamily = 0;
  bool operator==(const OdDbFontDescriptor&) const = default;
};

/// A text style, or the entry that stands for a shape file.
class OdDbTextStyleTableRecord : public OdDbSymbolTableRecord {
  ODDB_CONCRETE(OdDbTextStyleTableRecord, "STYLE")

  bool isShapeFile() const { return hasFlag(1); }
  void setIsShapeFile(bool shape) { setFlag(1, shape); }
  bool isVertical() const { return hasFlag(4); }
  void setIsVertical(bool vertical) { setFlag(4, vertical); }
  /// Radians.
  double obliquingAngle() const { return m_style.oblique; }
  void setObliquingAngle(double angle);
  /// The height that was used last.
  double priorSize() const { return m_style.priorSize; }
  void setPriorSize(double height);
  /// The fixed height; 0 if texts have their own.
  double textSize() const { return m_style.textSize; }
  void setTextSize(double height);
  double xScale() const { return m_style.xScale; }
  void setXScale(double ratio);
  bool isBackwards() const { return m_style.generation & 2; }
  void setIsBackwards(bool on);
  bool isUpsideDown() const { return m_style.generation & 4; }
  void setIsUpsideDown(bool on);
  const OdString& fileName() const { return m_style.fileName; }
  void setFileName(const OdString& name);
  const OdString& bigFontFileName() const { return m_style.bigFont; }
  void setBigFontFileName(const OdString& name);

  const OdDbFontDescriptor& font() const { return m_style.font; }
  void setFont(const OdDbFontDescriptor& font);
  /// The descriptor in parts.
  void font(OdString& typeFace, bool& bold, bool& italic, int& charSet, int& pitchAndFamily) const;
  void setFont(const OdString& typeFace, bool bold, bool italic, int charSet, int pitchAndFamily);

  bool mayBeNameless() const override { return isShapeFile(); }
  const char* dxfSubclass() const override { return "AcDbTextStyleTableRecord"; }
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOutXData(OdDbDxfOut& out) const override;

 protected:
  void dxfOutFields(OdDbDxfOut& out) const override;

 private:
  struct Data {
    double oblique = 0, priorSize = 2.5, textSize = 0, xScale = 1;
    int generation = 0;
    OdString fileName = QStringLiteral("txt"), bigFont;
    OdDbFontDescriptor font;
  };
  Data m_style;
  bool m_inFontData = false; ///< while reading
};

/// The drawing's text styles.
ODDB_TABLE(OdDbTextStyleTable, OdDbTextStyleTableRecord, "STYLE");
