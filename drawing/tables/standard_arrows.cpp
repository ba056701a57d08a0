#include "drawing/tables/standard_arrows.h"

#include "drawing/database.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/solid.h"

namespace {

/// One piece of an arrow of length 1 whose tip is at the origin and points along x.
struct Piece {
  enum Kind : std::uint8_t {
    kNone,
    kLine,   ///< through x, y of two points
    kOpen,   ///< through three points
    kClosed, ///< through three points and back
    kFilled, ///< the area of three points
    kSquare, ///< with a half side
    kBlock,  ///< the area of a square with a half side
    kCircle, ///< around the tip with a radius
    kDisc,   ///< filled
    kArc,    ///< centre, radius, from and to in degrees
    kStroke, ///< as kLine, with a width
  };
  Kind kind = kNone;
  double v[6] = {};
};

struct Arrow {
  const char* name;
  bool lineReachesTip;
  Piece pieces[3];
};

constexpr double kSixth = 1.0 / 6, kSlope30 = 0.2679491924311227, kSlope60 = 0.5773502691896258;

/// It needs no block, but other programs make one.
constexpr char kFilledArrow[] = "_ClosedFilled";

constexpr Arrow kArrows[] = {
    {"_ArchTick", true, {{Piece::kStroke, {-0.5, -0.5, 0.5, 0.5, 0.15}}}},
    {"_BoxBlank", false, {{Piece::kSquare, {0.5}}, {Piece::kLine, {-0.5, 0, -1, 0}}}},
    {"_BoxFilled", false, {{Piece::kBlock, {0.5}}, {Piece::kLine, {-0.5, 0, -1, 0}}}},
    {"_Closed",
     false,
     {{Piece::kClosed, {-1, kSixth, 0, 0, -1, -kSixth}}, {Piece::kLine, {0, 0, -1, 0}}}},
    {"_ClosedBlank", false, {{Piece::kClosed, {-1, kSixth, 0, 0, -1, -kSixth}}}},
    {"_DatumBlank", false, {{Piece::kClosed, {0, kSlope60, -1, 0, 0, -kSlope60}}}},
    {"_DatumFilled", false, {{Piece::kFilled, {0, kSlope60, -1, 0, 0, -kSlope60}}}},
    {"_Dot", false, {{Piece::kDisc, {0.5}}, {Piece::kLine, {-0.5, 0, -1, 0}}}},
    {"_DotBlank", false, {{Piece::kCircle, {0.5}}, {Piece::kLine, {-0.5, 0, -1, 0}}}},
    {"_DotSmall", true, {{Piece::kDisc, {0.25}}}},
    {"_Integral",
     true,
     {{Piece::kArc, {0.5, 0, 0.5, 102, 180}}, {Piece::kArc, {-0.5, 0, 0.5, 282, 360}}}},
    {"_None", true, {}},
    {"_Oblique", true, {{Piece::kLine, {-0.5, -0.5, 0.5, 0.5}}}},
    {"_Open",
     false,
     {{Piece::kOpen, {-1, kSixth, 0, 0, -1, -kSixth}}, {Piece::kLine, {0, 0, -1, 0}}}},
    {"_Open30",
     false,
     {{Piece::kOpen, {-1, kSlope30, 0, 0, -1, -kSlope30}}, {Piece::kLine, {0, 0, -1, 0}}}},
    {"_Open90",
     false,
     {{Piece::kOpen, {-0.5, 0.5, 0, 0, -0.5, -0.5}}, {Piece::kLine, {0, 0, -1, 0}}}},
    {"_Origin", false, {{Piece::kCircle, {0.5}}, {Piece::kLine, {0, 0, -1, 0}}}},
    {"_Origin2",
     false,
     {{Piece::kCircle, {0.5}}, {Piece::kCircle, {0.25}}, {Piece::kLine, {-0.5, 0, -1, 0}}}},
    {"_Small", true, {{Piece::kCircle, {0.25}}}},
};

bool areEqual(QStringView name, const char* known) {
  return name.compare(QLatin1String(known), Qt::CaseInsensitive) == 0;
}

/// A standard arrow; old drawings and people leave the underscore out.
const Arrow* findArrow(const OdString& name) {
  const auto* const at = std::find_if(std::begin(kArrows), std::end(kArrows), [&](const Arrow& a) {
    return areEqual(name, a.name) || areEqual(name, a.name + 1);
  });
  return at == std::end(kArrows) ? nullptr : at;
}

OdGePoint2d corner(const Piece& piece, int index) {
  return {piece.v[2 * index], piece.v[2 * index + 1]};
}

OdDbEntityPtr through(std::initializer_list<OdGePoint2d> corners, bool isClosed, double width = 0,
                      double bulge = 0) {
  const auto line = odrxMake<OdDbPolyline>();
  for (const OdGePoint2d& point : corners) line->addVertexAt(line->numVerts(), point, bulge);
  line->setClosed(isClosed);
  if (width > 0) line->setConstantWidth(width);
  return line;
}

OdDbEntityPtr filled(std::initializer_list<OdGePoint2d> corners) {
  std::vector<OdGePoint3d> p;
  for (const OdGePoint2d& c : corners) p.push_back({c.x, c.y, 0});
  // The third and the fourth corner of a solid stand crosswise.
  return odrxMake<OdDbSolid>(p[0], p[1], p.back(), p[2], OdGeVector3d::zAxis());
}

OdDbEntityPtr made(const Piece& piece) {
  const double* const v = piece.v;
  const double h = v[0];
  constexpr double kDegree = kOdaPi / 180;
  switch (piece.kind) {
  case Piece::kLine:
    return through({corner(piece, 0), corner(piece, 1)}, false);
  case Piece::kStroke:
    return through({corner(piece, 0), corner(piece, 1)}, false, v[4]);
  case Piece::kOpen:
  case Piece::kClosed:
    return through({corner(piece, 0), corner(piece, 1), corner(piece, 2)},
                   piece.kind == Piece::kClosed);
  case Piece::kFilled:
    return filled({corner(piece, 0), corner(piece, 1), corner(piece, 2)});
  case Piece::kSquare:
    return through({{-h, -h}, {h, -h}, {h, h}, {-h, h}}, true);
  case Piece::kBlock:
    return filled({{-h, -h}, {h, -h}, {h, h}, {-h, h}});
  case Piece::kCircle:
    return odrxMake<OdDbCircle>(OdGePoint3d(), OdGeVector3d::zAxis(), h);
  case Piece::kDisc:
    return through({{-h / 2, 0}, {h / 2, 0}}, true, h, 1);
  case Piece::kArc:
    return odrxMake<OdDbArc>(OdGePoint3d{v[0], v[1], 0}, OdGeVector3d::zAxis(), v[2],
                             v[3] * kDegree, v[4] * kDegree);
  case Piece::kNone:
    break;
  }
  return nullptr;
}

void draw(const Arrow& arrow, OdDbBlockTableRecord& block) {
  const OdDbDatabase& database = *block.database();
  for (const Piece& piece : arrow.pieces) {
    const OdDbEntityPtr entity = made(piece);
    if (!entity) continue;
    // Arrows look as the line that they end.
    entity->setLayer(database.getLayerZeroId());
    entity->setColor(OdCmColor(OdCmColor::kByBlock));
    entity->setLinetype(database.getLinetypeByBlockId());
    entity->setLineWeight(OdDb::kLnWtByBlock);
    block.appendOdDbEntity(entity);
  }
}

} // namespace

bool oddb::isFilledArrow(const OdString& name) {
  return name.isEmpty() || name == u"." || areEqual(name, kFilledArrow) ||
         areEqual(name, kFilledArrow + 1);
}

bool oddb::isStandardArrowBlock(const OdString& name) {
  return areEqual(name, kFilledArrow) || std::ranges::any_of(kArrows, [&](const Arrow& arrow) {
           return areEqual(name, arrow.name);
         });
}

bool oddb::lineReachesTip(const OdString& arrowName) {
  const Arrow* const arrow = findArrow(arrowName);
  return arrow && arrow->lineReachesTip;
}

std::optional<OdString> oddb::arrowBlockNamed(OdDbDatabase& database, const OdString& name) {
  if (isFilledArrow(name)) return OdString();
  const auto blocks = database.getBlockTableId().openAs<OdDbBlockTable>();
  const auto nameOf = [&](const OdString& wanted) -> std::optional<OdString> {
    const OdDbBlockTableRecordPtr block = blocks->getAt(wanted).openObject();
    if (!block || block->isLayout()) return std::nullopt;
    return block->getName();
  };
  if (const auto known = nameOf(name)) return known;
  const Arrow* const arrow = findArrow(name);
  if (!arrow) return std::nullopt;
  const OdString standard = QLatin1String(arrow->name);
  if (const auto known = nameOf(standard)) return known;
  const auto block = odrxMake<OdDbBlockTableRecord>();
  block->setName(standard);
  blocks->upgradeOpen();
  blocks->add(block);
  draw(*arrow, *block);
  return standard;
}

void oddb::useStandardArrows(OdDbDatabase& database) {
  const auto styles = database.getDimStyleTableId().openAs<OdDbDimStyleTable>();
  std::vector<OdDbBlockTableRecordPtr> left;
  for (const auto at = styles->newIterator(); !at->done(); at->step()) {
    const OdDbDimStyleTableRecordPtr style = at->getRecord(OdDb::kForWrite);
    OdDbDimVarValues values = style->values();
    for (OdDbObjectId OdDbDimVarValues::*member :
         {&OdDbDimVarValues::dimblk, &OdDbDimVarValues::dimblk1, &OdDbDimVarValues::dimblk2}) {
      const OdDbBlockTableRecordPtr block = (values.*member).openObject(OdDb::kForWrite);
      const Arrow* const arrow = block ? findArrow(block->getName()) : nullptr;
      if (!arrow || !block->newIterator()->done()) continue;
      if (block->getName().startsWith(u'_')) {
        draw(*arrow, *block);
        continue;
      }
      const OdString standard = *arrowBlockNamed(database, QLatin1String(arrow->name));
      values.*member = database.getBlockTableId().openAs<OdDbBlockTable>()->getAt(standard);
      left.push_back(block);
    }
    style->setValues(values);
  }
  for (const OdDbBlockTableRecordPtr& block : left)
    if (!block->isErased() && block->getBlockReferenceIds().empty()) block->erase();
}
