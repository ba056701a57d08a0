#include "drafton/engine/boundary/boundary_sources.h"

#include "drafton/engine/boundary/text_box.h"
#include "drawing/database.h"
#include "drawing/entities/attribute.h"
#include "drawing/entities/attribute_definition.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/curve.h"
#include "drawing/graphics/world_draw.h"

#include <algorithm>
#include <string_view>

namespace drafton {
namespace {

/// What of an entity bounds areas.
enum class Role { kNone, kCurve, kOutline, kText, kBlock, kTextsOfBlock };

struct RoleRow {
  std::string_view dxfName;
  Role role;
};

constexpr RoleRow kRoles[] = {
    {"LINE", Role::kCurve},     {"ARC", Role::kCurve},     {"CIRCLE", Role::kCurve},
    {"ELLIPSE", Role::kCurve},  {"SPLINE", Role::kCurve},  {"LWPOLYLINE", Role::kCurve},
    {"POLYLINE", Role::kCurve}, {"SOLID", Role::kOutline}, {"TRACE", Role::kOutline},
    {"TEXT", Role::kText},      {"MTEXT", Role::kText},    {"ATTRIB", Role::kText},
    {"ATTDEF", Role::kText},    {"INSERT", Role::kBlock},  {"DIMENSION", Role::kTextsOfBlock},
};

Role roleOf(const OdDbEntity& entity) {
  const std::string_view name = entity.dxfName();
  const auto row = std::find_if(std::begin(kRoles), std::end(kRoles),
                                [&](const RoleRow& r) { return r.dxfName == name; });
  return row == std::end(kRoles) ? Role::kNone : row->role;
}

/// Blocks that are nested deeper than this contain themselves.
constexpr std::size_t kDeepest = 32;
/// More curves than this are not searched: arrays of arrays would fill all memory.
constexpr std::size_t kMostCurves = 4'000'000;

/// Takes the curves and texts of entities, those in blocks included.
class Taker : private OdGiWorldDraw {
 public:
  explicit Taker(BoundarySources& sources)
    : m_sources(sources) {}

  void takeIfSeen(const OdDbEntity& entity) {
    if (isSeen(entity, nullptr)) take(entity);
  }

  void take(const OdDbEntity& entity) {
    m_owner = entity.objectId();
    takePart(entity);
  }

 private:
  /// An insert whose block is walked through.
  struct Level {
    OdGeMatrix3d transform;
    const OdDbEntity* insert;
    bool onlyTexts;
  };

  static OdDbLayerTableRecordPtr layerOf(const OdDbEntity& entity) {
    return entity.layerId().openObject();
  }

  /// The layer "0" of a block is that of its insert, and a frozen insert hides all of it.
  static bool isSeen(const OdDbEntity& entity, const OdDbEntity* insert) {
    if (!entity.isVisible()) return false;
    const OdDbLayerTableRecordPtr own = layerOf(entity);
    const bool isInserts = insert && own && own->getName() == QLatin1String("0");
    const OdDbLayerTableRecordPtr layer = isInserts ? layerOf(*insert) : own;
    // An insert on a layer that is off shows what has layers of its own.
    const bool hidesWhenOff = roleOf(entity) != Role::kBlock;
    return !layer || !(layer->isFrozen() || (layer->isOff() && hidesWhenOff));
  }

  void takePart(const OdDbEntity& entity) {
    const Role role = roleOf(entity);
    const bool onlyTexts = !m_levels.empty() && m_levels.back().onlyTexts;
    switch (role) {
    case Role::kCurve:
      if (const auto* curve = odrxCast<OdDbCurve>(&entity); curve && !onlyTexts) {
        OdGeCurveSegments segments;
        curve->appendSegments(segments);
        addCurves(segments);
      }
      break;
    case Role::kOutline:
      if (!onlyTexts) entity.worldDraw(*this);
      break;
    case Role::kText:
      takeText(entity);
      break;
    case Role::kBlock:
    case Role::kTextsOfBlock:
      m_nextHasOnlyTexts = onlyTexts || role == Role::kTextsOfBlock;
      entity.worldDraw(*this);
      takeAttributes(entity);
      break;
    case Role::kNone:
      break;
    }
  }

  /// What inserts have been filled in with, each a text of its own.
  void takeAttributes(const OdDbEntity& entity) {
    m_runs.clear();
    const auto* insert = odrxCast<OdDbBlockReference>(&entity);
    if (!insert) return;
    for (const OdDbAttributePtr& attribute : insert->attributes())
      if (isSeen(*attribute, nullptr)) takeText(*attribute);
  }

  void takeText(const OdDbEntity& entity) {
    // In an insert the attributes stand for their definitions.
    const auto* definition = odrxCast<OdDbAttributeDefinition>(&entity);
    if (definition && !m_levels.empty() && !definition->isConstant()) return;
    m_runs.clear();
    entity.worldDraw(*this);
    addText();
  }

  void addText() {
    const OdGeCurveSegments box = textBox(m_runs, m_sources.origin);
    m_runs.clear();
    if (box.empty()) return;
    m_sources.texts.push_back(loopOf(box));
    m_sources.texts.back().isText = true;
    m_sources.textOwners.push_back(m_owner);
  }

  void addCurves(const OdGeCurveSegments& segments) {
    if (m_sources.curves.size() + segments.size() > kMostCurves) return;
    for (const OdGeCurveSegment& segment : segments)
      if (m_levels.empty())
        appendFlat(segment, m_sources.origin, m_sources.curves);
      else
        appendFlat(segment.transformed(m_levels.back().transform), m_sources.origin,
                   m_sources.curves);
    m_sources.owners.resize(m_sources.curves.size(), m_owner);
  }

  OdGeMatrix3d toWorld() const {
    return m_levels.empty() ? OdGeMatrix3d() : m_levels.back().transform;
  }

  // What entities show: texts of all kinds, the areas of solids, and blocks.

  double deviation() const override { return 1e-3; }
  void polyline(std::span<const OdGePoint3d>, bool) override {}
  void arc(const OdGiArc&) override {}
  void area(const OdGiRings& rings) override {
    OdGeCurveSegments segments;
    for (const auto& ring : rings)
      for (std::size_t i = 0; i < ring.size(); ++i)
        segments.push_back(OdGeCurveSegment::line(ring[i], ring[(i + 1) % ring.size()]));
    addCurves(segments);
  }
  void gradient(const OdGiRings&, const OdGiGradient&) override {}
  void strokes(std::span<const OdGePoint3d>) override {}
  void text(const OdGiTextRun& run) override {
    OdGiTextRun placed = run;
    const OdGeMatrix3d transform = toWorld();
    placed.origin = transform * run.origin;
    placed.along = transform * run.along;
    placed.up = transform * run.up;
    m_runs.push_back(placed);
  }
  void point(const OdGePoint3d&, const OdGeVector3d&) override {}
  void block(OdDbObjectId block, const OdGeMatrix3d& transform, const OdDbEntity& insert) override {
    const auto record = OdDbBlockTableRecordPtr(block.openObject());
    if (!record || m_levels.size() >= kDeepest) return;
    m_levels.push_back({toWorld() * transform, &insert, m_nextHasOnlyTexts});
    for (const auto at = record->newIterator(); !at->done(); at->step())
      if (const OdDbEntityPtr entity = at->entity(); entity && isSeen(*entity, &insert))
        takePart(*entity);
    m_nextHasOnlyTexts = m_levels.back().onlyTexts;
    m_levels.pop_back();
  }
  void image(const OdDbRasterImage&) override {}
  void viewport(const OdDbViewport&) override {}
  void setPieceColor(const std::optional<OdCmColor>&) override {}

  BoundarySources& m_sources;
  OdDbObjectId m_owner;
  std::vector<Level> m_levels;
  bool m_nextHasOnlyTexts = false;
  std::vector<OdGiTextRun> m_runs;
};

} // namespace

std::vector<OdDbObjectId>
BoundarySources::ownersOf(const std::vector<PlanarGraph::Index>& some) const {
  std::vector<OdDbObjectId> found;
  for (const PlanarGraph::Index curve : some)
    if (std::find(found.begin(), found.end(), owners[curve]) == found.end())
      found.push_back(owners[curve]);
  return found;
}

BoundarySources visibleSources(const OdDbDatabase& database, const OdGePoint3d& origin) {
  BoundarySources sources{
      .origin = origin, .curves = {}, .owners = {}, .texts = {}, .textOwners = {}};
  Taker taker(sources);
  const auto space = database.getCurrentSpaceId().openAs<OdDbBlockTableRecord>();
  for (const auto at = space->newIterator(); !at->done(); at->step())
    if (const OdDbEntityPtr entity = at->entity()) taker.takeIfSeen(*entity);
  return sources;
}

BoundarySources sourcesOf(const std::vector<OdDbObjectId>& entities, const OdGePoint3d& origin) {
  BoundarySources sources{
      .origin = origin, .curves = {}, .owners = {}, .texts = {}, .textOwners = {}};
  Taker taker(sources);
  for (const OdDbObjectId& id : entities)
    if (const OdDbEntityPtr entity = id.openObject()) taker.take(*entity);
  return sources;
}

} // namespace drafton
