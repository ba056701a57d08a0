#include "drawing/objects/wipeout_shape.h"

#include "drawing/database.h"
#include "drawing/dxf/residue.h"

#include <cmath>

namespace {

// Group codes.
constexpr int kOrigin = 10, kRight = 11, kUp = 12, kSize = 13, kCorner = 14, kForm = 71;
constexpr int kShowsFrames = 70;
constexpr int kRectangle = 1;

OdGePoint3d pointOf(const OdDbKeptTags& tags, int code, const OdGePoint3d& otherwise) {
  return {tags.real(code, otherwise.x), tags.real(code + 10, otherwise.y),
          tags.real(code + 20, otherwise.z)};
}

double realOf(const OdDbKeptTags::Tag& tag) {
  bool ok = false;
  const double value = tag.value.trimmed().toDouble(&ok);
  return ok && std::isfinite(value) ? value : 0;
}

/// The corners as parts of the two directions, from their common origin.
std::vector<OdGePoint2d> cornersOf(const OdDbKeptTags& tags) {
  // As in images they are counted from the middle of the upper left pixel, downwards.
  const double height = tags.real(kSize + 10, 1);
  std::vector<OdGePoint2d> corners;
  for (const OdDbKeptTags::Tag& tag : tags.tags) {
    if (tag.code == kCorner) corners.push_back({realOf(tag) + 0.5, 0});
    if (tag.code == kCorner + 10 && !corners.empty()) corners.back().y = height - 0.5 - realOf(tag);
  }
  if (corners.size() == 2 || (corners.size() > 2 && tags.real(kForm, 0) == kRectangle)) {
    const OdGePoint2d a = corners[0], b = corners[1];
    return {a, {b.x, a.y}, b, {a.x, b.y}};
  }
  if (corners.size() > 1 && corners.front() == corners.back()) corners.pop_back();
  return corners;
}

/// True unless the drawing's own object says otherwise.
bool showsFrames(const OdDbDatabase& database) {
  const auto objects =
      odrxCast<OdDbDictionary>(database.getNamedObjectsDictionaryId().openObject().get());
  if (!objects) return true;
  const OdDbObjectPtr variables = objects->getAt(QStringLiteral("ACAD_WIPEOUT_VARS")).openObject();
  if (!variables || !variables->residue()) return true;
  return OdDbKeptTags(variables->residue()->tail).real(kShowsFrames, 1) != 0;
}

} // namespace

namespace oddb {

void drawWipeout(const OdDbKeptTags& tags, const OdDbDatabase& database, OdGiWorldDraw& draw) {
  const OdGePoint3d origin = pointOf(tags, kOrigin, {});
  const OdGeVector3d right = pointOf(tags, kRight, {1, 0, 0}).asVector();
  const OdGeVector3d up = pointOf(tags, kUp, {0, 1, 0}).asVector();
  std::vector<OdGePoint3d> ring;
  for (const OdGePoint2d& corner : cornersOf(tags))
    ring.push_back(origin + right * corner.x + up * corner.y);
  if (ring.size() < 3) return;
  draw.setPieceColor(OdCmColor(OdCmColor::kNone));
  draw.area({ring});
  draw.setPieceColor(std::nullopt);
  if (showsFrames(database)) draw.polyline(ring, true);
}

} // namespace oddb
