#include "drawing/entities/entity.h"

#include "drawing/checks.h"
#include "drawing/database_data.h"
#include "drawing/dxf/in.h"
#include "drawing/dxf/out.h"
#include "drawing/object_extras.h"

OdDbEntity::OdDbEntity() = default;

namespace {
const OdDbObjectExtras kNoExtras;
/// In place of an index: a file has a true colour and no index beside it.
constexpr int kIndexNotInFile = -2;

OdString nameOf(OdDbObjectId id) {
  const OdDbSymbolTableRecordPtr record = id.openObject(OdDb::kForRead, true);
  return record ? record->getName() : OdString();
}

void requireId(OdDbObjectId id, const char* what) {
  if (id.isNull())
    throw OdDbError(eNullObjectId, QStringLiteral("There is no such %1").arg(QLatin1String(what)));
}

bool isTrueColor(std::uint32_t value) { return value >> 24 == OdCmColor::kByColor; }
} // namespace

template <class M>
void OdDbEntity::setExtra(M OdDbObjectExtras::*member, const M& value) {
  if (!m_extras) {
    if (value == kNoExtras.*member) return;
    m_extras = std::make_unique<OdDbObjectExtras>();
  }
  (*m_extras).*member = value;
}

OdCmColor OdDbEntity::color() const {
  OdCmColor color;
  color.setColor(m_common.color);
  if (m_extras) color.setNames(m_extras->colorName, m_extras->bookName);
  return color;
}

void OdDbEntity::storeColor(const OdCmColor& color) {
  m_common.color = color.color();
  storeColorNames(color);
  if (m_extras) m_extras->colorIndex = kNoExtras.colorIndex;
}

void OdDbEntity::storeColorNames(const OdCmColor& color) {
  if (!color.hasNames() && !m_extras) return;
  setExtra(&OdDbObjectExtras::colorName, color.colorName());
  setExtra(&OdDbObjectExtras::bookName, color.bookName());
}

double OdDbEntity::linetypeScale() const {
  return m_extras ? m_extras->linetypeScale : kNoExtras.linetypeScale;
}
OdCmTransparency OdDbEntity::transparency() const {
  return m_extras ? m_extras->transparency : kNoExtras.transparency;
}
OdDbObjectId OdDbEntity::plotStyleNameId() const {
  return m_extras ? m_extras->plotStyle : kNoExtras.plotStyle;
}

void OdDbEntity::setDatabaseDefaults(const OdDbDatabase& database) {
  assertWriteEnabled();
  m_common.layer = database.currentLayer();
  storeColor(database.currentColor());
  m_common.linetype = database.currentLinetype();
  setExtra(&OdDbObjectExtras::linetypeScale, database.currentLinetypeScale());
  m_common.lineWeight = database.currentLineWeight();
  m_common.plotStyleType = database.currentPlotStyleType();
  setExtra(&OdDbObjectExtras::plotStyle, database.currentPlotStyleId());
  setExtra(&OdDbObjectExtras::transparency, database.currentTransparency());
}

OdString OdDbEntity::layer() const { return nameOf(m_common.layer); }

void OdDbEntity::setLayer(OdDbObjectId layer) {
  requireId(layer, "layer");
  assertWriteEnabled();
  m_common.layer = layer;
}

void OdDbEntity::setColor(const OdCmColor& color) {
  assertWriteEnabled();
  storeColor(color);
}

OdString OdDbEntity::linetype() const {
  return m_common.linetype.isNull() ? QStringLiteral("ByLayer") : nameOf(m_common.linetype);
}

void OdDbEntity::setLinetype(OdDbObjectId linetype) {
  requireId(linetype, "line type");
  assertWriteEnabled();
  m_common.linetype = linetype;
}

void OdDbEntity::setLinetypeScale(double scale) {
  odcheck::positive(scale);
  assertWriteEnabled();
  setExtra(&OdDbObjectExtras::linetypeScale, scale);
}

void OdDbEntity::setLineWeight(OdDb::LineWeight weight) {
  if (!OdDb::isValidLineWeight(weight))
    throw OdError(eInvalidInput, QStringLiteral("%1 is no line weight").arg(int{weight}));
  assertWriteEnabled();
  m_common.lineWeight = weight;
}

void OdDbEntity::setTransparency(OdCmTransparency transparency) {
  assertWriteEnabled();
  setExtra(&OdDbObjectExtras::transparency, transparency);
}

OdString OdDbEntity::plotStyleName() const {
  switch (plotStyleNameType()) {
  case OdDb::kPlotStyleNameByLayer:
    return QStringLiteral("ByLayer");
  case OdDb::kPlotStyleNameByBlock:
    return QStringLiteral("ByBlock");
  case OdDb::kPlotStyleNameIsDictDefault:
    return QStringLiteral("Normal");
  case OdDb::kPlotStyleNameById:
    break;
  }
  if (!database()) return {};
  const OdDbDictionaryPtr styles = database()->getPlotStyleNameDictionaryId().openObject();
  return styles ? styles->nameAt(plotStyleNameId()) : OdString();
}

void OdDbEntity::setPlotStyleName(OdDb::PlotStyleNameType type, OdDbObjectId id) {
  if (type == OdDb::kPlotStyleNameById) requireId(id, "plot style");
  assertWriteEnabled();
  m_common.plotStyleType = type;
  setExtra(&OdDbObjectExtras::plotStyle, type == OdDb::kPlotStyleNameById ? id : OdDbObjectId());
}

void OdDbEntity::setVisibility(bool visible) {
  assertWriteEnabled();
  m_common.invisible = !visible;
}

void OdDbEntity::setPropertiesFrom(const OdDbEntity& other) {
  assertWriteEnabled();
  m_common = other.m_common;
  storeColorNames(other.color());
  setExtra(&OdDbObjectExtras::linetypeScale, other.linetypeScale());
  setExtra(&OdDbObjectExtras::plotStyle, other.plotStyleNameId());
  setExtra(&OdDbObjectExtras::transparency, other.transparency());
}

void OdDbEntity::assignFrom(const OdDbObject& other) {
  OdDbObject::assignFrom(other);
  m_common = static_cast<const OdDbEntity&>(other).m_common;
}

void OdDbEntity::worldDraw(OdGiWorldDraw&) const {}

bool OdDbEntity::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (!in.in("AcDbEntity")) return false;
  // Mostly an index beside a true colour is the nearest one, and nothing has to be kept.
  const auto storeIndexBeside = [&](int index) {
    const bool isNearest = index == color().colorIndex();
    setExtra(&OdDbObjectExtras::colorIndex, isNearest ? kNoExtras.colorIndex : index);
  };
  switch (tag.code) {
  case 100:
    return true;
  case 8:
    m_common.layer = in.layer(tag.text);
    return true;
  case 6:
    m_common.linetype = in.linetype(tag.text);
    return true;
  case 62: {
    // A true colour comes with the nearest index before it.
    const int index = std::abs(in.integer(tag, OdCmColor::kACIbyLayer));
    if (index > OdCmColor::kACInone) return false;
    if (isTrueColor(m_common.color))
      storeIndexBeside(index);
    else
      m_common.color = OdCmColor::fromColorIndex(index).color();
    return true;
  }
  case 420: {
    const auto rgb = static_cast<std::uint32_t>(in.longInteger(tag, 0));
    const bool isFirst = !isTrueColor(m_common.color);
    const bool hasIndex = isFirst && m_common.color != OdCmColor().color();
    const int index = color().colorIndex();
    m_common.color =
        OdCmColor::fromRgb(static_cast<std::uint8_t>(rgb >> 16),
                           static_cast<std::uint8_t>(rgb >> 8), static_cast<std::uint8_t>(rgb))
            .color();
    if (hasIndex)
      storeIndexBeside(index);
    else if (isFirst)
      setExtra(&OdDbObjectExtras::colorIndex, kIndexNotInFile);
    return true;
  }
  case 430: {
    const OdString names = in.text(tag.text);
    const qsizetype at = names.indexOf(QLatin1Char('$'));
    OdCmColor named;
    named.setNames(names.mid(at + 1), at < 0 ? OdString() : names.left(at));
    storeColorNames(named);
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
    if (exact.hasNames()) out.text(430, exact.bookName() + QLatin1Char('$') + exact.colorName());
    if (transparency().value() != 0) out.integer(440, transparency().value());
  }
  if (c.plotStyleType == OdDb::kPlotStyleNameById)
    out.reference(390, plotStyleNameId());
  else if (c.plotStyleType != OdDb::kPlotStyleNameByLayer)
    out.integer(380, c.plotStyleType);
}
