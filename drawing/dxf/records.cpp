// How the records of symbol tables stand in files.
#include "drawing/database_data.h"
#include "drawing/dxf/colors.h"
#include "drawing/dxf/in.h"
#include "drawing/dxf/out.h"
#include "drawing/tables/reference_flags.h"

namespace {
constexpr std::string_view kFontApplication = "ACAD";
constexpr int kBold = 0x2000000;
constexpr int kItalic = 0x1000000;

// Of code 74 of a dash.
constexpr int kDashUcsOriented = 1;
constexpr int kDashUpright = 8;
constexpr int kDashText = 2;
constexpr int kDashShape = 4;

/// What tells of a dash before there is one. False if the tag tells of none.
bool passOverStray(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  static constexpr int kOfDashes[] = {9, 44, 45, 46, 50, 74, 75, 340};
  const bool isStray = std::ranges::find(kOfDashes, tag.code) != std::end(kOfDashes);
  if (isStray)
    in.note(QStringLiteral("a line type tells of a dash before its first one (%1)").arg(tag.code));
  return isStray;
}

/// The font of a text style stands in extended data: its name, then one number for all else.
bool takeFont(OdDbFontDescriptor& font, const OdDbDxfTag& tag, OdDbDxfIn& in) {
  switch (tag.code) {
  case 1001:
    return true;
  case 1000:
    font.typeFace = in.text(tag.text);
    return true;
  case 1071: {
    const int bits = in.integer(tag, 0);
    font.bold = bits & kBold;
    font.italic = bits & kItalic;
    font.charSet = bits >> 8 & 0xFF;
    font.pitchAndFamily = bits & 0xFF;
    return true;
  }
  default:
    return false;
  }
}

} // namespace

bool OdDbSymbolTable::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (!in.in("AcDbSymbolTable")) return false;
  // The count of records is written anew.
  return tag.code == 100 || tag.code == 70;
}

bool OdDbSymbolTableRecord::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (in.in("AcDbSymbolTableRecord") && tag.code == 100) return true;
  if (!in.in(dxfSubclass())) return false;
  switch (tag.code) {
  case 100:
    return true;
  case 2:
    m_name = in.text(tag.text);
    return true;
  case 70:
    m_flags = in.integer(tag, m_flags);
    return true;
  default:
    return false;
  }
}

void OdDbSymbolTableRecord::dxfOutFields(OdDbDxfOut& out) const { out.integer(70, m_flags); }

void OdDbSymbolTableRecord::dxfOut(OdDbDxfOut& out) const {
  out.subclass("AcDbSymbolTableRecord");
  out.subclass(dxfSubclass());
  out.text(2, m_name);
  dxfOutFields(out);
}

bool OdDbLayerTableRecord::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbSymbolTableRecord::dxfInTag(tag, in)) return true;
  if (!in.in(dxfSubclass())) return false;
  switch (tag.code) {
  case 62: {
    const int index = in.integer(tag, OdCmColor::kACIforeground);
    if (std::abs(index) > OdCmColor::kACInone) return false;
    m_layer.off = index < 0;
    m_layer.indexInFile = static_cast<std::int16_t>(std::abs(index));
    if (!m_layer.color.isByColor()) m_layer.color.setColorIndex(std::abs(index));
    return true;
  }
  case 420:
    oddxf::setTrueColor(m_layer.color, in.longInteger(tag, 0));
    return true;
  case 430:
    oddxf::setColorNames(m_layer.color, in.text(tag.text));
    return true;
  case 6:
    m_layer.linetype = in.linetype(tag.text);
    return true;
  case 290:
    m_layer.plottable = in.integer(tag, 1) != 0;
    return true;
  case 370: {
    const int weight = in.integer(tag, OdDb::kLnWtByLwDefault);
    if (!OdDb::isValidLineWeight(weight)) return false;
    m_layer.lineWeight = static_cast<OdDb::LineWeight>(weight);
    return true;
  }
  case 390:
    m_layer.plotStyle = in.reference(tag);
    return true;
  default:
    return false;
  }
}

void OdDbLayerTableRecord::dxfInEnd(OdDbDxfIn&) {}

void OdDbLayerTableRecord::dxfOutFields(OdDbDxfOut& out) const {
  OdDbSymbolTableRecord::dxfOutFields(out);
  const bool isToldSo = m_layer.color.isByColor() && m_layer.indexInFile > 0;
  const int index = isToldSo ? m_layer.indexInFile : m_layer.color.colorIndex();
  out.integer(62, m_layer.off ? -index : index);
  if (m_layer.color.isByColor() && out.version() >= OdDb::kR2004)
    out.integer(420, m_layer.color.color() & 0xFFFFFF);
  if (m_layer.color.hasNames() && out.version() >= OdDb::kR2004)
    out.text(430, oddxf::colorNames(m_layer.color));
  out.recordName(6, m_layer.linetype, "Continuous");
  if (!m_layer.plottable) out.integer(290, 0);
  out.integer(370, m_layer.lineWeight);
  if (!m_layer.plotStyle.isNull()) out.reference(390, m_layer.plotStyle);
}

bool OdDbLinetypeTableRecord::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbSymbolTableRecord::dxfInTag(tag, in)) return true;
  if (!in.in(dxfSubclass())) return false;
  auto& dashes = m_linetype.dashes;
  switch (tag.code) {
  case 3:
    m_linetype.comments = in.text(tag.text);
    return true;
  case 40:
    m_linetype.patternLength = in.real(tag, 0);
    return true;
  case 72:
    return tag.text.find("65") != std::string_view::npos;
  case 73:
    return true;
  case 49:
    dashes.emplace_back().length = in.real(tag, 0);
    return true;
  default:
    break;
  }
  if (dashes.empty()) return passOverStray(tag, in);
  Dash& dash = dashes.back();
  switch (tag.code) {
  case 74: {
    const int bits = in.integer(tag, 0);
    dash.ucsOriented = bits & kDashUcsOriented;
    dash.isUpright = bits & kDashUpright;
    dash.typeBits = static_cast<std::uint8_t>(bits & 0xFF);
    return true;
  }
  case 75:
    dash.shapeNumber = static_cast<std::uint16_t>(in.integer(tag, 0));
    return true;
  case 340:
    dash.style = in.reference(tag);
    return true;
  case 46:
    dash.scale = in.real(tag, 1);
    return true;
  case 50:
    dash.rotation = in.angle(tag, 0);
    return true;
  case 44:
    dash.offset.x = in.real(tag, 0);
    return true;
  case 45:
    dash.offset.y = in.real(tag, 0);
    return true;
  case 9:
    dash.text = in.text(tag.text);
    return true;
  default:
    return false;
  }
}

void OdDbLinetypeTableRecord::dxfInEnd(OdDbDxfIn&) { m_linetype.dashes.shrink_to_fit(); }

void OdDbLinetypeTableRecord::dxfOutFields(OdDbDxfOut& out) const {
  OdDbSymbolTableRecord::dxfOutFields(out);
  out.text(3, m_linetype.comments);
  out.integer(72, 65);
  out.integer(73, numDashes());
  out.real(40, m_linetype.patternLength);
  for (const Dash& dash : m_linetype.dashes) {
    out.real(49, dash.length);
    int bits = dash.typeBits & ~(kDashUcsOriented | kDashUpright | kDashText | kDashShape);
    if (dash.ucsOriented) bits |= kDashUcsOriented;
    if (dash.isUpright) bits |= kDashUpright;
    if (!dash.text.isEmpty())
      bits |= kDashText;
    else if (dash.shapeNumber != 0)
      bits |= kDashShape;
    out.integer(74, bits);
    if (!(bits & (kDashText | kDashShape))) continue;
    out.integer(75, dash.shapeNumber);
    out.reference(340, dash.style);
    out.real(46, dash.scale);
    out.angle(50, dash.rotation);
    out.point2d(44, {dash.offset.x, dash.offset.y}, 45);
    if (bits & kDashText) out.text(9, dash.text);
  }
}

bool OdDbTextStyleTableRecord::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbSymbolTableRecord::dxfInTag(tag, in)) return true;
  if (tag.code == 1001) m_inFontData = tag.text == kFontApplication;
  if (tag.code >= 1000) return m_inFontData && takeFont(m_style.font, tag, in);
  if (!in.in(dxfSubclass())) return false;
  switch (tag.code) {
  case 40:
    m_style.textSize = in.real(tag, m_style.textSize);
    return true;
  case 41:
    m_style.xScale = in.real(tag, m_style.xScale);
    return true;
  case 50:
    m_style.oblique = in.angle(tag, m_style.oblique);
    return true;
  case 71:
    m_style.generation = in.integer(tag, m_style.generation);
    return true;
  case 42:
    m_style.priorSize = in.real(tag, m_style.priorSize);
    return true;
  case 3:
    m_style.fileName = in.text(tag.text);
    return true;
  case 4:
    m_style.bigFont = in.text(tag.text);
    return true;
  default:
    return false;
  }
}

void OdDbTextStyleTableRecord::dxfInEnd(OdDbDxfIn&) { m_inFontData = false; }

void OdDbTextStyleTableRecord::dxfOutFields(OdDbDxfOut& out) const {
  OdDbSymbolTableRecord::dxfOutFields(out);
  out.real(40, m_style.textSize);
  out.real(41, m_style.xScale);
  out.angle(50, m_style.oblique);
  out.integer(71, m_style.generation);
  out.real(42, m_style.priorSize);
  out.text(3, m_style.fileName);
  out.text(4, m_style.bigFont);
}

void OdDbTextStyleTableRecord::dxfOutXData(OdDbDxfOut& out) const {
  const OdDbFontDescriptor& f = m_style.font;
  if (f == OdDbFontDescriptor()) return;
  out.raw(1001, kFontApplication);
  out.text(1000, f.typeFace);
  out.integer(1071, (f.bold ? kBold : 0) | (f.italic ? kItalic : 0) | (f.charSet & 0xFF) << 8 |
                        (f.pitchAndFamily & 0xFF));
}

bool OdDbBlockTableRecord::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  // Flags of a block stand with its beginning; here code 70 is the unit.
  if (tag.code == 70 && in.in(dxfSubclass())) {
    m_block.units = in.integer(tag, 0);
    return true;
  }
  if (OdDbSymbolTableRecord::dxfInTag(tag, in)) return true;
  if (!in.in(dxfSubclass()) || tag.code != 340) return false;
  m_block.layout = in.reference(tag);
  return true;
}

void OdDbBlockTableRecord::dxfOutFields(OdDbDxfOut& out) const {
  out.handle(340, m_block.layout.getHandle());
  if (out.version() >= OdDb::kR2007 || m_block.units != 0) out.integer(70, m_block.units);
}

bool OdDbBlockTableRecord::dxfInBegin(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  switch (tag.code) {
  case 2:
  case 3:
    return true;
  case 70:
    m_block.blockFlags = oddb::flagsFromFile(in.integer(tag, 0));
    return true;
  case 10:
    m_block.origin.x = in.real(tag, 0);
    return true;
  case 20:
    m_block.origin.y = in.real(tag, 0);
    return true;
  case 30:
    m_block.origin.z = in.real(tag, 0);
    return true;
  case 1:
    m_block.xrefPath = in.text(tag.text);
    return true;
  case 4:
    m_block.comments = in.text(tag.text);
    return true;
  default:
    return false;
  }
}

void OdDbBlockTableRecord::dxfOutBegin(OdDbDxfOut& out) const {
  out.text(2, getName());
  out.integer(70, oddb::flagsForFile(m_block.blockFlags));
  out.point(10, m_block.origin);
  out.text(3, getName());
  out.text(1, m_block.xrefPath);
  if (!m_block.comments.isEmpty()) out.text(4, m_block.comments);
}

bool OdDbDictionary::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (m_withDefault && in.in("AcDbDictionaryWithDefault")) {
    if (tag.code == 340) m_default = in.reference(tag);
    return tag.code == 340 || tag.code == 100;
  }
  if (!in.in("AcDbDictionary")) return false;
  switch (tag.code) {
  case 100:
    return true;
  case 280:
    m_hardOwner = in.integer(tag, 0);
    return true;
  case 281:
    m_cloning = in.integer(tag, 1);
    return true;
  case 3:
    m_pendingName = in.text(tag.text);
    return true;
  case 350:
  case 360:
    m_entryCode = tag.code;
    m_entries.push_back({std::exchange(m_pendingName, {}), in.reference(tag)});
    return true;
  default:
    return false;
  }
}

void OdDbDictionary::dxfOut(OdDbDxfOut& out) const {
  out.subclass("AcDbDictionary");
  if (m_hardOwner >= 0) out.integer(280, m_hardOwner);
  if (m_cloning >= 0) out.integer(281, m_cloning);
  for (const Entry& entry : m_entries) {
    if (entry.id.isErased() || out.database().data().transient.contains(entry.id)) continue;
    out.text(3, entry.name);
    out.reference(m_entryCode, entry.id);
  }
  if (!m_withDefault) return;
  out.subclass("AcDbDictionaryWithDefault");
  out.reference(340, m_default);
}

bool OdDbDictionaryVar::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (!in.in("DictionaryVariables")) return false;
  switch (tag.code) {
  case 100:
    return true;
  case 280:
    m_schema = in.integer(tag, 0);
    return true;
  case 1:
    m_value = in.text(tag.text);
    return true;
  default:
    return false;
  }
}

void OdDbDictionaryVar::dxfOut(OdDbDxfOut& out) const {
  out.subclass("DictionaryVariables");
  out.integer(280, m_schema);
  out.text(1, m_value);
}
