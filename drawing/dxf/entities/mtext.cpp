// How MTEXT stands in files.
#include "drawing/entities/mtext.h"
#include "drawing/dxf/colors.h"
#include "drawing/dxf/fields.h"
#include "drawing/dxf/mtext_columns.h"
#include "drawing/dxf/residue.h"
#include "drawing/dxf/text.h"

namespace {

using Field = OdDbDxfField<OdDbMText::Data>;
constexpr int kDefinedHeight = 46;
constexpr Field kFields[] = {
    {10, &OdDbMText::Data::location},
    {40, &OdDbMText::Data::height},
    {41, &OdDbMText::Data::width, Field::kUnlessPreset},
    {kDefinedHeight, &OdDbMText::Data::definedHeight},
    {71, &OdDbMText::Data::attachment},
    {72, &OdDbMText::Data::flow},
};
constexpr Field kTail[] = {
    {210, &OdDbMText::Data::normal, Field::kUnlessPreset},
    {42, &OdDbMText::Data::extentsWidth, Field::kUnlessPreset},
    {43, &OdDbMText::Data::extentsHeight, Field::kUnlessPreset},
};
constexpr Field kRotation = {50, &OdDbMText::Data::rotation, Field::kAngleUnlessPreset};
constexpr Field kDirection = {11, &OdDbMText::Data::direction, Field::kUnlessPreset};
constexpr Field kSpacing[] = {
    {73, &OdDbMText::Data::spacingStyle},
    {44, &OdDbMText::Data::spacingFactor},
};
constexpr Field kBackground = {90, &OdDbMText::Data::background};
constexpr Field kFill[] = {
    {45, &OdDbMText::Data::fillScale},
    {441, &OdDbMText::Data::fillTransparency, Field::kUnlessPreset},
};

/// A text longer than this stands in several tags.
constexpr qsizetype kChunk = 250;
constexpr int kEmbedded = 101;

} // namespace

bool OdDbMText::takeField(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  switch (tag.code) {
  case 1:
  case 3:
    m_mtext.contents += in.text(tag.text);
    return true;
  case 7:
    m_mtext.style = in.textStyle(tag.text);
    return true;
  case kDefinedHeight:
    m_mtext.tellsDefinedHeight = true;
    break;
  case 50:
    m_mtext.directionLast = false;
    break;
  case 11:
    m_mtext.directionLast = true;
    break;
  case 63: {
    const int index = in.integer(tag, 0);
    if (index < 0 || index > OdCmColor::kACInone) return false;
    m_mtext.hasFillColor = true;
    m_mtext.fillIndex = index;
    if (!m_mtext.fillColor.isByColor()) m_mtext.fillColor.setColorIndex(index);
    return true;
  }
  default:
    break;
  }
  if (tag.code >= 420 && tag.code <= 429) {
    m_mtext.hasFillColor = true;
    oddxf::setTrueColor(m_mtext.fillColor, in.longInteger(tag, 0));
    return true;
  }
  if (tag.code >= 430 && tag.code <= 439) {
    oddxf::setColorNames(m_mtext.fillColor, in.text(tag.text));
    return true;
  }
  return oddxf::takeTag<Data>(kFields, m_mtext, tag, in) ||
         oddxf::takeTag<Data>(kTail, m_mtext, tag, in) ||
         oddxf::takeTag<Data>({&kRotation, 1}, m_mtext, tag, in) ||
         oddxf::takeTag<Data>({&kDirection, 1}, m_mtext, tag, in) ||
         oddxf::takeTag<Data>(kSpacing, m_mtext, tag, in) ||
         oddxf::takeTag<Data>({&kBackground, 1}, m_mtext, tag, in) ||
         oddxf::takeTag<Data>(kFill, m_mtext, tag, in);
}

bool OdDbMText::takeColumnField(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  OdMTextColumns& c = m_mtext.columns;
  switch (tag.code) {
  case 70: // places and sizes stand with the text itself
  case 10:
  case 20:
  case 30:
  case 11:
  case 21:
  case 31:
  case 40:
    return true;
  case 42:
    m_mtext.totalWidth = in.real(tag, 0);
    return true;
  case 43:
    m_mtext.totalHeight = in.real(tag, 0);
    return true;
  case 41:
    c.height = in.real(tag, 0);
    return true;
  case 71: {
    const int kind = in.integer(tag, 0);
    if (kind < OdMTextColumns::kNone || kind > OdMTextColumns::kDynamic) return false;
    c.kind = static_cast<OdMTextColumns::Kind>(kind);
    return true;
  }
  case 72:
    m_mtext.tellsColumns = true;
    c.count = in.integer(tag, 0);
    return true;
  case 44:
    c.width = in.real(tag, 0);
    return true;
  case 45:
    c.gutter = in.real(tag, 0);
    return true;
  case 73:
    c.autoHeight = in.integer(tag, 0) != 0;
    return true;
  case 74:
    c.reversed = in.integer(tag, 0) != 0;
    return true;
  case 46:
    c.heights.push_back(in.real(tag, 0));
    return true;
  default:
    return false;
  }
}

bool OdDbMText::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  if (!in.in("AcDbMText")) return false;
  if (tag.code == kEmbedded) {
    m_embedded = m_mtext.hasEmbedded = true;
    return true;
  }
  if (tag.code >= 1000) return false;
  if (m_embedded) return takeColumnField(tag, in);
  return tag.code == 100 || takeField(tag, in);
}

void OdDbMText::dxfInEnd(OdDbDxfIn& in) {
  OdDbEntity::dxfInEnd(in);
  oddxf::mendNormal(m_mtext.normal, in);
  m_embedded = false;
  if (!m_mtext.hasEmbedded && residue()) takeOldColumns();
  // Nobody can lay out more columns than there are letters.
  OdMTextColumns& c = m_mtext.columns;
  c.count = std::clamp<int>(c.count, 0, static_cast<int>(m_mtext.contents.size()) + 1);
}

void OdDbMText::putFields(OdDbDxfOut& out) const {
  for (const Field& field : kFields)
    if (field.code != kDefinedHeight || m_mtext.definedHeight != 0 ||
        (m_mtext.tellsDefinedHeight && out.version() >= OdDb::kR2004))
      oddxf::putField(field, m_mtext, out);
  const OdString contents = oddxf::oneLine(m_mtext.contents);
  qsizetype at = 0;
  while (contents.size() - at > kChunk) {
    qsizetype end = at + kChunk;
    // Both halves of a character and of a caret stay together.
    while (contents[end].isLowSurrogate() || contents[end - 1] == u'^') --end;
    out.text(3, contents.mid(at, end - at));
    at = end;
  }
  out.text(1, contents.mid(at));
  out.recordName(7, m_mtext.style, "Standard");
  oddxf::putFields<Data>(kTail, m_mtext, out);
  if (m_mtext.directionLast) {
    oddxf::putField(kRotation, m_mtext, out);
    oddxf::putField(kDirection, m_mtext, out);
  } else {
    oddxf::putField(kDirection, m_mtext, out);
    oddxf::putField(kRotation, m_mtext, out);
  }
  oddxf::putFields<Data>(kSpacing, m_mtext, out);
  if (m_mtext.background == 0 && !m_mtext.hasFillColor) return;
  if (out.version() < OdDb::kR2004) return;
  oddxf::putField(kBackground, m_mtext, out);
  const OdCmColor& color = m_mtext.fillColor;
  out.integer(63, m_mtext.fillIndex >= 0 ? m_mtext.fillIndex : color.colorIndex());
  if (color.isByColor()) out.integer(421, color.color() & 0xFFFFFF);
  if (color.hasNames()) out.text(431, oddxf::colorNames(color));
  oddxf::putFields<Data>(kFill, m_mtext, out);
}

void OdDbMText::putColumns(OdDbDxfOut& out) const {
  const OdMTextColumns& c = m_mtext.columns;
  out.raw(kEmbedded, "Embedded Object");
  out.integer(70, 1);
  const OdGeVector3d x = direction();
  out.point(10, {x.x, x.y, x.z});
  out.point(11, m_mtext.location);
  out.real(40, width());
  out.real(41, c.height);
  out.real(42, m_mtext.totalWidth);
  out.real(43, m_mtext.totalHeight);
  out.integer(71, c.kind);
  if (c.kind == OdMTextColumns::kNone && !m_mtext.tellsColumns) return;
  out.integer(72, c.count);
  out.real(44, c.width);
  out.real(45, c.gutter);
  out.integer(73, c.autoHeight);
  out.integer(74, c.reversed);
  for (const double height : c.heights) out.real(46, height);
}

void OdDbMText::takeOldColumns() {
  const auto old = oddxf::columnsOf(residue()->xdata);
  if (!old) return;
  m_mtext.columns = old->columns;
  m_mtext.totalWidth = old->totalWidth;
  m_mtext.totalHeight = old->totalHeight;
  m_mtext.hasEmbedded = true;
  editResidue().xdata.remove(0, old->size);
}

void OdDbMText::dxfOutXData(OdDbDxfOut& out) const {
  if (!m_mtext.hasEmbedded || m_mtext.columns.kind == OdMTextColumns::kNone) return;
  if (out.version() >= OdDb::kR2018) return;
  // An application may have one piece of data only.
  if (residue() && oddxf::hasColumnApplication(residue()->xdata)) return;
  out.kept(oddxf::columnLines(m_mtext.columns, m_mtext.totalWidth));
}

void OdDbMText::dxfOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  out.subclass("AcDbMText");
  putFields(out);
  if (!m_mtext.hasEmbedded || out.version() < OdDb::kR2018) return;
  out.endSubclassHere();
  putColumns(out);
}
