// What all entities have in files.
#include "drawing/database_data.h"
#include "drawing/dxf/colors.h"
#include "drawing/dxf/in.h"
#include "drawing/dxf/out.h"
#include "drawing/entities/entity_extras.h"

namespace {

using oddb::kNoExtras;

/// In place of an index: a file has a true colour and no index beside it.
constexpr int kIndexNotInFile = -2;

/// A colour as tags tell it one after the other.
struct ToldColor {
  OdCmColor color;
  int indexBeside; ///< as OdDbObjectExtras has it

  bool take(const OdDbDxfTag& tag, OdDbDxfIn& in);

 private:
  bool takeIndex(int index);
  void takeTrueColor(std::int64_t value);
  /// Mostly an index beside a true colour is the nearest one, and nothing has to be kept.
  void setIndexBeside(int index) {
    indexBeside = index == color.colorIndex() ? kNoExtras.colorIndex : index;
  }
};

bool ToldColor::take(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  switch (tag.code) {
  case 62:
    return takeIndex(std::abs(in.integer(tag, OdCmColor::kACIbyLayer)));
  case 420:
    takeTrueColor(in.longInteger(tag, 0));
    return true;
  default:
    oddxf::setColorNames(color, in.text(tag.text));
    return true;
  }
}

bool ToldColor::takeIndex(int index) {
  if (index > OdCmColor::kACInone) return false;
  // A true colour comes with the nearest index before or behind it.
  if (color.isByColor())
    setIndexBeside(index);
  else
    color.setColorIndex(index);
  return true;
}

void ToldColor::takeTrueColor(std::int64_t value) {
  const bool isFirst = !color.isByColor();
  const bool hasIndex = isFirst && color.color() != OdCmColor().color();
  const int index = color.colorIndex();
  oddxf::setTrueColor(color, value);
  if (hasIndex)
    setIndexBeside(index);
  else if (isFirst)
    indexBeside = kIndexNotInFile;
}

} // namespace

bool OdDbEntity::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (!in.in("AcDbEntity")) return false;
  switch (tag.code) {
  case 100:
    return true;
  case 8:
    m_common.layer = in.layer(tag.text);
    return true;
  case 6:
    m_common.linetype = in.linetype(tag.text);
    return true;
  case 62:
  case 420:
  case 430: {
    ToldColor told{color(), m_extras ? m_extras->colorIndex : kNoExtras.colorIndex};
    if (!told.take(tag, in)) return false;
    m_common.color = told.color.color();
    storeColorNames(told.color);
    setExtra(&OdDbObjectExtras::colorIndex, told.indexBeside);
    return true;
  }
  case 48:
    setExtra(&OdDbObjectExtras::linetypeScale, in.real(tag, linetypeScale()));
    return true;
  case 60:
    m_common.invisible = in.integer(tag, 0) != 0;
    return true;
  case 67:
    if (in.integer(tag, 0) != 0) in.setPaperSpace();
    return true;
  case 370: {
    const int weight = in.integer(tag, OdDb::kLnWtByLayer);
    if (!OdDb::isValidLineWeight(weight)) return false;
    m_common.lineWeight = static_cast<std::int16_t>(weight);
    return true;
  }
  case 440:
    setExtra(&OdDbObjectExtras::transparency,
             OdCmTransparency::fromValue(static_cast<std::uint32_t>(in.longInteger(tag, 0))));
    return true;
  case 380: {
    const int type = in.integer(tag, 0);
    if (type < OdDb::kPlotStyleNameByLayer || type > OdDb::kPlotStyleNameById) return false;
    m_common.plotStyleType = static_cast<std::uint8_t>(type);
    return true;
  }
  case 390:
    setExtra(&OdDbObjectExtras::plotStyle, in.reference(tag));
    return true;
  default:
    return false;
  }
}

void OdDbEntity::dxfInEnd(OdDbDxfIn&) {
  if (!plotStyleNameId().isNull()) m_common.plotStyleType = OdDb::kPlotStyleNameById;
}

void OdDbEntity::dxfOut(OdDbDxfOut& out) const {
  const Common& c = m_common;
  out.subclass("AcDbEntity");
  if (out.isPaperSpace()) out.integer(67, 1);
  out.recordName(8, c.layer, "0");
  if (!c.linetype.isNull() && c.linetype != out.database().getLinetypeByLayerId())
    out.recordName(6, c.linetype, "ByLayer");
  const int index = m_extras ? m_extras->colorIndex : kNoExtras.colorIndex;
  // A true colour may stand alone, but not in files that do not know such colours.
  const bool needsIndex = index != kIndexNotInFile || out.version() < OdDb::kR2004;
  if (c.color != OdCmColor().color() && needsIndex)
    out.integer(62, index >= 0 ? index : color().colorIndex());
  if (linetypeScale() != 1) out.real(48, linetypeScale());
  if (c.invisible) out.integer(60, 1);
  if (c.lineWeight != OdDb::kLnWtByLayer) out.integer(370, c.lineWeight);
  if (out.version() >= OdDb::kR2004) {
    const OdCmColor exact = color();
    if (exact.isByColor()) out.integer(420, exact.color() & 0xFFFFFF);
    if (exact.hasNames()) out.text(430, oddxf::colorNames(exact));
    if (transparency().value() != 0) out.integer(440, transparency().value());
  }
  if (c.plotStyleType == OdDb::kPlotStyleNameById)
    out.reference(390, plotStyleNameId());
  else if (c.plotStyleType != OdDb::kPlotStyleNameByLayer)
    out.integer(380, c.plotStyleType);
}
