#include "drafton/engine/commands/readable_mirror.h"

#include "drawing/entities/block_reference.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/text.h"
#include "drawing/graphics/world_draw.h"

namespace drafton {
namespace {

/// Measures the letters of an entity along the base line of the first of them.
class LetterBox : public OdGiWorldDraw {
 public:
  double deviation() const override { return 1; }
  void polyline(std::span<const OdGePoint3d>, bool) override {}
  void area(const OdGiRings&) override {}
  void gradient(const OdGiRings&, const OdGiGradient&) override {}
  void strokes(std::span<const OdGePoint3d>) override {}
  void point(const OdGePoint3d&, const OdGeVector3d&) override {}
  void block(OdDbObjectId, const OdGeMatrix3d&, const OdDbEntity&) override {}
  void image(const OdDbRasterImage&) override {}
  void viewport(const OdDbViewport&) override {}
  void setPieceColor(const std::optional<OdCmColor>&) override {}
  void text(const OdGiTextRun& run) override {
    if (m_box.isEmpty()) {
      m_along = run.along.normal();
      m_normal = m_along.crossProduct(run.up).normal();
      m_up = m_normal.crossProduct(m_along);
    }
    const double width = OdGiTextMetrics::current().advance(run.text, run.font) +
                         run.tracking * static_cast<double>(run.text.size());
    for (const OdGePoint3d& corner :
         {run.origin, run.origin + run.along * width, run.origin + run.up,
          run.origin + run.along * width + run.up}) {
      const OdGeVector3d v = corner.asVector();
      m_box.addPoint({v.dotProduct(m_along), v.dotProduct(m_up), v.dotProduct(m_normal)});
    }
  }

  /// Stands at a place in the place of letters.
  void moveTo(const OdGePoint3d& place) {
    const OdGeVector3d v = place.asVector();
    m_box = OdGeExtents3d();
    m_box.addPoint({v.dotProduct(m_along), v.dotProduct(m_up), v.dotProduct(m_normal)});
  }

  bool isEmpty() const { return m_box.isEmpty() || m_normal.isZeroLength(); }
  const OdGeVector3d& along() const { return m_along; }
  const OdGeVector3d& up() const { return m_up; }
  const OdGeVector3d& normal() const { return m_normal; }
  OdGePoint3d middle() const {
    const OdGeVector3d m = (m_box.minPoint().asVector() + m_box.maxPoint().asVector()) * 0.5;
    return OdGePoint3d() + m_along * m.x + m_up * m.y + m_normal * m.z;
  }

 private:
  OdGeExtents3d m_box;
  OdGeVector3d m_along, m_up, m_normal;
};

/// True for a direction that is read from the lower or the right side of a sheet.
bool isReadable(const OdGeVector3d& along) {
  constexpr double kLevel = 1e-9;
  return along.x > kLevel || (std::abs(along.x) <= kLevel && along.y > 0);
}

/// The letters of a text as they would be if it were to be seen. One without letters is measured as
/// if it had one at its place.
LetterBox lettersOf(const OdDbEntity& text) {
  LetterBox box;
  const OdDbEntityPtr sample = text.clone();
  if (auto* const attribute = odrxCast<OdDbAttributeText>(sample.get()))
    attribute->setInvisible(false);
  sample->worldDraw(box);
  if (!box.isEmpty()) return box;
  const OdString letter = QStringLiteral("x");
  OdGePoint3d place;
  if (auto* const line = odrxCast<OdDbText>(sample.get())) {
    line->setTextString(letter);
    const bool isAligned =
        line->horizontalMode() != OdDb::kTextLeft || line->verticalMode() != OdDb::kTextBase;
    place = isAligned ? line->alignmentPoint() : line->position();
  } else if (auto* const lines = odrxCast<OdDbMText>(sample.get())) {
    lines->setContents(letter);
    place = lines->location();
  }
  sample->worldDraw(box);
  if (!box.isEmpty()) box.moveTo(place);
  return box;
}

/// The movement of a text; `mirror` itself for what could show no letters.
OdGeMatrix3d readableMirror(const OdDbEntity& text, const OdGeMatrix3d& mirror) {
  const LetterBox box = lettersOf(text);
  if (box.isEmpty()) return mirror;
  // The image of the letters' frame is left-handed. Turning one of its axes round makes it right
  // again; the one that leaves the text more as it was.
  OdGeVector3d along = (mirror * box.along()).normal();
  OdGeVector3d up = (mirror * box.up()).normal();
  const double kept = along.dotProduct(box.along());
  constexpr double kUpright = 1e-9;
  const bool keepsAlong = std::abs(kept) > kUpright ? kept > 0 : isReadable(along);
  (keepsAlong ? up : along) = keepsAlong ? -up : -along;
  const OdGePoint3d middle = box.middle();
  return OdGeMatrix3d::coordSystem(mirror * middle, along, up, along.crossProduct(up)) *
         OdGeMatrix3d::coordSystem(middle, box.along(), box.up(), box.normal()).inverse();
}

bool isText(const OdDbEntity& entity) {
  return odrxCast<OdDbText>(&entity) || odrxCast<OdDbMText>(&entity);
}

/// The attributes go with their insert; then they are put upright.
bool mirrorInsert(OdDbBlockReference& insert, const OdGeMatrix3d& mirror) {
  std::vector<OdGeMatrix3d> wanted;
  for (const OdDbAttributePtr& attribute : insert.attributes())
    wanted.push_back(readableMirror(*attribute, mirror));
  if (!insert.transformBy(mirror)) return false;
  const OdGeMatrix3d back = mirror.inverse();
  auto next = wanted.begin();
  for (const OdDbAttributePtr& attribute : insert.attributes(OdDb::kForWrite))
    attribute->transformBy(*next++ * back);
  return true;
}

} // namespace

bool mirrorReadably(OdDbEntity& entity, const OdGeMatrix3d& mirror) {
  if (isText(entity)) return entity.transformBy(readableMirror(entity, mirror));
  if (auto* const insert = odrxCast<OdDbBlockReference>(&entity))
    return mirrorInsert(*insert, mirror);
  return entity.transformBy(mirror);
}

} // namespace drafton
