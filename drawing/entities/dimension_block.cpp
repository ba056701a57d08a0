#include "drawing/entities/dimension_block.h"

#include "drawing/database.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/line.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/point.h"
#include "drawing/entities/solid.h"
#include "drawing/graphics/world_draw.h"
#include "drawing/tables/dim_var_values.h"
#include "drawing/tables/standard_arrows.h"

namespace {

const QLatin1String kDefPoints("Defpoints");

OdDbObjectId definitionLayer(OdDbDatabase& database) {
  const auto layers = database.getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite);
  if (const OdDbObjectId found = layers->getAt(kDefPoints); !found.isNull()) return found;
  const auto layer = odrxMake<OdDbLayerTableRecord>();
  layer->setName(kDefPoints);
  layer->setIsPlottable(false);
  return layers->add(layer);
}

} // namespace

double oddb::readableAngle(double angle) {
  angle = odgeNormalAngle(angle);
  const double slack = 1e-9;
  return angle > kOdaPi / 2 + slack && angle <= kOdaPi * 3 / 2 + slack
             ? odgeNormalAngle(angle + kOdaPi)
             : angle;
}

double oddb::textTurn(const OdDbDimension& dimension, bool isLevel, double lineAngle) {
  if (dimension.textRotation() != 0) return dimension.textRotation();
  return isLevel ? 0 : readableAngle(lineAngle);
}

oddb::DimensionBlock::DimensionBlock(const OdDbDimension& dimension)
  : m_dimension(dimension)
  , m_database(*dimension.database())
  , m_vars(dimension.dimVars())
  , m_scale(m_vars.dimscale > 0 ? m_vars.dimscale : 1)
  , m_toWorld(OdGeMatrix3d::planeToWorld(dimension.normal())) {}

void oddb::DimensionBlock::add(OdDbEntity* entity, const Look& look) {
  entity->setLayer(m_database.getLayerZeroId());
  entity->setColor(look.color);
  entity->setLineWeight(look.weight);
  entity->setLinetype(look.linetype.isNull() ? m_database.getLinetypeByBlockId() : look.linetype);
  m_pieces.emplace_back(entity);
}

void oddb::DimensionBlock::line(const OdGePoint3d& from, const OdGePoint3d& to, const Look& look) {
  if (from.distanceTo(to) <= 1e-9 * (m_scale + from.asVector().length())) return;
  add(odrxMake<OdDbLine>(m_toWorld * from, m_toWorld * to), look);
}

oddb::DimensionBlock::Look oddb::DimensionBlock::lineLook() const {
  return {m_vars.dimclrd, m_vars.dimlwd, m_vars.dimltype};
}

OdDbObjectId oddb::DimensionBlock::textStyle() const {
  if (!m_vars.dimtxsty.isNull()) return m_vars.dimtxsty;
  // Styles of many programs leave out what they have as usual.
  const auto styles = m_database.getTextStyleTableId().openAs<OdDbTextStyleTable>();
  const OdDbObjectId usual = styles->getAt(kUsualTextStyle);
  return usual.isNull() ? m_database.currentTextStyle() : usual;
}

double oddb::DimensionBlock::textHeight() const {
  const OdDbObjectPtr record = textStyle().openObject();
  const auto* const style = odrxCast<OdDbTextStyleTableRecord>(record.get());
  // A style with a height of its own has the last word.
  return style && style->textSize() > 0 ? style->textSize() : scaled(std::max(m_vars.dimtxt, 1e-9));
}

OdGePoint2d oddb::DimensionBlock::textSize(const OdString& text) const {
  if (text.isEmpty()) return {};
  const auto sample = odrxMake<OdDbMText>();
  sample->setTextHeight(textHeight());
  sample->setTextStyle(textStyle());
  sample->setContents(text);
  return {sample->actualWidth(), std::max(sample->actualHeight(), textHeight())};
}

void oddb::DimensionBlock::extensionLine(const OdGePoint3d& from, const OdGePoint3d& to,
                                         bool isFirst) {
  if (isFirst ? m_vars.dimse1 : m_vars.dimse2) return;
  const OdGeVector3d way = to - from;
  const double length = way.length();
  if (!(length > 0)) return;
  const OdGeVector3d direction = way * (1 / length);
  double start = std::min(scaled(m_vars.dimexo), length);
  if (m_vars.dimfxlon) start = std::max(start, length - scaled(m_vars.dimfxl));
  line(from + direction * start, to + direction * scaled(m_vars.dimexe),
       {m_vars.dimclre, m_vars.dimlwe, isFirst ? m_vars.dimltex1 : m_vars.dimltex2});
}

void oddb::DimensionBlock::dimensionLine(const OdGePoint3d& from, const OdGePoint3d& to) {
  line(from, to, lineLook());
}

void oddb::DimensionBlock::dimensionLine(const OdGePoint3d& from, const OdGePoint3d& to,
                                         const OdGePoint3d& middle, const OdGePoint2d& size,
                                         double turn) {
  const OdGeVector3d way = to - from;
  const double length = way.length();
  if (!(length > 0)) return;
  const OdGeVector3d d = way * (1 / length);
  const double halfWidth = size.x / 2 + gap();
  const double halfHeight = size.y / 2 + gap();
  // A text that stands just its gap above the line leaves it whole, be the last digits as they may.
  constexpr double kTouching = 1 - 1e-6;
  // The line in the coordinates of the text's box.
  const OdGeMatrix3d toBox = OdGeMatrix3d::rotation(-turn, OdGeVector3d::zAxis()) *
                             OdGeMatrix3d::translation(-middle.asVector());
  const OdGePoint3d p = toBox * from;
  const OdGeVector3d v = toBox * d;
  double enter = 0;
  double leave = length;
  const auto clip = [&](double at, double by, double half) {
    if (std::abs(by) < 1e-12) {
      if (std::abs(at) >= half * kTouching) leave = -1;
      return;
    }
    const double a = (-half - at) / by;
    const double b = (half - at) / by;
    enter = std::max(enter, std::min(a, b));
    leave = std::min(leave, std::max(a, b));
  };
  clip(p.x, v.x, halfWidth);
  clip(p.y, v.y, halfHeight);
  if (size.x <= 0 || leave <= enter) {
    dimensionLine(from, to);
    return;
  }
  dimensionLine(from, from + d * enter);
  dimensionLine(from + d * leave, to);
}

void oddb::DimensionBlock::dimensionArc(const OdGePoint3d& center, double radius, double from,
                                        double sweep) {
  const double to = from + sweep;
  if (std::abs(sweep) < 1e-9) return;
  add(odrxMake<OdDbArc>(m_toWorld * center, m_dimension.normal(), radius,
                        odgeNormalAngle(std::min(from, to)), odgeNormalAngle(std::max(from, to))),
      lineLook());
}

double oddb::DimensionBlock::arrow(const OdGePoint3d& tip, const OdGeVector3d& direction,
                                   bool isFirst) {
  if (isFirst ? m_vars.dimsd1 : m_vars.dimsd2) return 0;
  const OdGeVector3d across{-direction.y, direction.x, 0};
  if (m_vars.dimtsz > 0) {
    const OdGeVector3d tick = (direction + across) * scaled(m_vars.dimtsz);
    line(tip - tick, tip + tick, lineLook());
    return 0;
  }
  const double size = arrowSize();
  if (!(size > 0)) return 0;
  OdDbObjectId blockId = m_vars.dimblk;
  if (m_vars.dimsah) blockId = isFirst ? m_vars.dimblk1 : m_vars.dimblk2;
  const OdDbObjectPtr record = blockId.openObject();
  if (const auto* const block = odrxCast<OdDbBlockTableRecord>(record.get())) {
    const auto insert = odrxMake<OdDbBlockReference>(blockId, OdGePoint3d());
    insert->setNormal(m_dimension.normal());
    insert->setPosition(m_toWorld * tip);
    insert->setScaleFactors({size, size, size});
    insert->setRotation(std::atan2(direction.y, direction.x));
    add(insert, lineLook());
    return lineReachesTip(block->getName()) ? 0 : size;
  }
  const OdGePoint3d base = tip - direction * size;
  const OdGeVector3d half = across * (size / 6);
  const OdGePoint3d end = m_toWorld * tip;
  add(odrxMake<OdDbSolid>(m_toWorld * (base + half), m_toWorld * (base - half), end, end,
                          m_dimension.normal()),
      lineLook());
  return size;
}

void oddb::DimensionBlock::text(const OdString& text, const OdGePoint3d& middle, double angle) {
  if (text.isEmpty()) return;
  const auto mtext = odrxMake<OdDbMText>();
  mtext->setNormal(m_dimension.normal());
  mtext->setTextHeight(textHeight());
  mtext->setTextStyle(textStyle());
  mtext->setAttachment(OdDbMText::kMiddleCenter);
  mtext->setLocation(m_toWorld * middle);
  mtext->setRotation(angle);
  mtext->setContents(text);
  if (m_vars.dimtfill != 0) {
    mtext->setBackgroundFill(true);
    mtext->setUseBackgroundColor(m_vars.dimtfill == 1);
    if (m_vars.dimtfill == 2) mtext->setBackgroundFillColor(m_vars.dimtfillclr);
  }
  add(mtext, {m_vars.dimclrt, OdDb::kLnWtByBlock, {}});
  if (!(m_vars.dimgap < 0)) return;
  // A gap below 0 asks for a frame.
  const OdGePoint2d size = textSize(text);
  const OdGeMatrix3d place = OdGeMatrix3d::translation(middle.asVector()) *
                             OdGeMatrix3d::rotation(angle, OdGeVector3d::zAxis());
  const double x = size.x / 2 + gap();
  const double y = size.y / 2 + gap();
  const OdGePoint3d corners[] = {{-x, -y, 0}, {x, -y, 0}, {x, y, 0}, {-x, y, 0}};
  for (std::size_t i = 0; i < 4; ++i)
    line(place * corners[i], place * corners[(i + 1) % 4], lineLook());
}

void oddb::DimensionBlock::centerMark(const OdGePoint3d& center, double radius) {
  const double size = scaled(std::abs(m_vars.dimcen));
  if (!(size > 0) || size > radius) return;
  for (const OdGeVector3d& d : {OdGeVector3d::xAxis(), OdGeVector3d::yAxis()}) {
    line(center - d * size, center + d * size, lineLook());
    // Below 0: lines through the circle as well.
    if (!(m_vars.dimcen < 0) || !(radius > 2 * size)) continue;
    line(center + d * (2 * size), center + d * (radius + size), lineLook());
    line(center - d * (2 * size), center - d * (radius + size), lineLook());
  }
}

void oddb::DimensionBlock::definitionPoint(const OdGePoint3d& point) {
  add(odrxMake<OdDbPoint>(m_toWorld * point),
      {OdCmColor(OdCmColor::kByBlock), OdDb::kLnWtByBlock, {}});
  m_fastenings.push_back(m_pieces.back());
  m_pieces.pop_back();
}

void oddb::DimensionBlock::putInto(OdDbObjectId blockId) {
  const auto block = blockId.openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  for (const auto it = block->newIterator(); !it->done(); it->step())
    it->entity(OdDb::kForWrite)->erase();
  for (const OdDbEntityPtr& piece : m_pieces) block->appendOdDbEntity(piece);
  if (m_fastenings.empty()) return;
  const OdDbObjectId layer = definitionLayer(m_database);
  for (const OdDbEntityPtr& point : m_fastenings) {
    point->setLayer(layer);
    block->appendOdDbEntity(point);
  }
}

void oddb::DimensionBlock::draw(OdGiWorldDraw& draw) const {
  for (const OdDbEntityPtr& piece : m_pieces) {
    const OdCmColor color = piece->color();
    const bool isOwn = !color.isByBlock() && !color.isByLayer();
    draw.setPieceColor(isOwn ? std::optional(color) : std::nullopt);
    if (piece->linetypeId() != m_database.getLinetypeByBlockId())
      draw.setPieceLinetype(piece->linetypeId());
    piece->worldDraw(draw);
    draw.setPieceLinetype({});
  }
  draw.setPieceColor(std::nullopt);
}
