// What is shown of entities that nobody knows.
#include "drawing/database.h"
#include "drawing/dxf/kept_tags.h"
#include "drawing/dxf/residue.h"
#include "drawing/graphics/world_draw.h"
#include "drawing/objects/mleader_shape.h"
#include "drawing/objects/mline_shape.h"
#include "drawing/objects/proxy_graphic.h"
#include "drawing/objects/raw_object.h"
#include "drawing/objects/spline_shape.h"
#include "drawing/objects/tag_values.h"
#include "drawing/objects/tolerance_shape.h"
#include "drawing/objects/wipeout_shape.h"

namespace {

// Group codes.
constexpr int kBlockName = 2;
constexpr int kGraphic = 310;
constexpr int kDataSize = 93;
constexpr int kDataSizeSinceR2010 = 161;

OdGePoint3d pointOf(const OdDbKeptTags& tags, int code, const OdGePoint3d& otherwise = {}) {
  return {tags.real(code, otherwise.x), tags.real(code + 10, otherwise.y),
          tags.real(code + 20, otherwise.z)};
}

/// Pieces of hexadecimal digits as bytes.
QByteArray graphicOf(const OdDbKeptTags& tags) {
  QByteArray bytes;
  for (const OdDbKeptTags::Tag& tag : tags.tags)
    if (tag.code == kGraphic) bytes += QByteArray::fromHex(tag.value.trimmed());
  return bytes;
}

/// The block that an entity is shown by, and where.
struct Shown {
  OdDbObjectId block;
  OdGeMatrix3d transform;
};

Shown shownBy(const OdDbDatabase& database, const OdDbKeptTags& tail) {
  const auto blocks = database.getBlockTableId().openAs<OdDbBlockTable>();
  const auto named = [&](const OdDbKeptTags& tags) {
    const QByteArray* const name = tags.find(kBlockName);
    return name ? blocks->getAt(OdString::fromUtf8(*name)) : OdDbObjectId();
  };
  const OdDbKeptTags insert = oddb::tagsOf(tail, "AcDbBlockReference");
  if (const OdDbObjectId block = named(insert); !block.isNull()) {
    // Tables stand so: their block begins at their place and follows their direction.
    const OdDbKeptTags table = oddb::tagsOf(tail, "AcDbTable");
    const OdGePoint3d direction = pointOf(table, 11, {1, 0, 0});
    return {block, OdGeMatrix3d::translation(pointOf(insert, 10).asVector()) *
                       OdGeMatrix3d::rotation(std::atan2(direction.y, direction.x),
                                              OdGeVector3d::zAxis())};
  }
  return {named(oddb::tagsOf(tail, "AcDbDimension")), OdGeMatrix3d()};
}

} // namespace

void OdDbRawEntity::worldDraw(OdGiWorldDraw& draw) const {
  if (!residue() || !database()) return;
  const OdDbKeptTags tail(residue()->tail);
  if (const Shown shown = shownBy(*database(), tail); !shown.block.isNull()) {
    draw.block(shown.block, shown.transform, *this);
    return;
  }
  if (const OdDbKeptTags mline = oddb::tagsOf(tail, "AcDbMline"); !mline.tags.empty()) {
    oddb::drawMline(mline, *database(), draw);
    return;
  }
  if (const OdDbKeptTags wipeout = oddb::tagsOf(tail, "AcDbWipeout"); !wipeout.tags.empty()) {
    oddb::drawWipeout(wipeout, *database(), draw);
    return;
  }
  const QByteArray* const common = residue()->of("AcDbEntity");
  QByteArray graphic = common ? graphicOf(OdDbKeptTags(*common)) : QByteArray();
  if (graphic.isEmpty()) {
    // Behind its own picture a proxy keeps the data that only its program understands.
    OdDbKeptTags proxy = oddb::tagsOf(tail, "AcDbProxyEntity");
    const auto end = std::find_if(proxy.tags.begin(), proxy.tags.end(), [](const auto& tag) {
      return tag.code == kDataSize || tag.code == kDataSizeSinceR2010;
    });
    proxy.tags.erase(end, proxy.tags.end());
    graphic = graphicOf(proxy);
  }
  if (!graphic.isEmpty()) {
    oddb::drawProxyGraphic(graphic, *this, draw);
    return;
  }
  if (const OdDbKeptTags mleader = oddb::tagsOf(tail, "AcDbMLeader"); !mleader.tags.empty())
    oddb::drawMleader(mleader, *this, draw);
  if (const OdDbKeptTags tolerance = oddb::tagsOf(tail, "AcDbFcf"); !tolerance.tags.empty())
    oddb::drawTolerance(tolerance, *database(), draw);
  if (const OdDbKeptTags spline = oddb::tagsOf(tail, "AcDbSpline"); !spline.tags.empty())
    oddb::drawSpline(spline, draw);
}

OdDbEntityPtr OdDbRawEntity::getTransformedCopy(const OdGeMatrix3d&) const { return nullptr; }
