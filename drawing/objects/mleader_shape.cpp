#include "drawing/objects/mleader_shape.h"

#include "drawing/entities/attribute.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/spline.h"
#include "drawing/objects/tag_values.h"
#include "drawing/xdata.h"

#include <algorithm>

namespace {

/// What points at one thing.
struct LeaderLine {
  std::vector<OdGePoint3d> points;
  OdCmColor color{OdCmColor::kByBlock};
};

/// Lines that meet where a landing begins.
struct Leader {
  OdGePoint3d end;
  bool hasEnd = false, hasLanding = false;
  OdGeVector3d direction;
  double landing = 0;
  std::vector<LeaderLine> lines;
};

/// What a block is given to show in the place of one of its definitions.
struct BlockText {
  OdDbObjectId definition;
  OdString text;
};

struct Shape {
  double textHeight = 0, arrowSize = 0;
  OdString text;
  bool hasText = false, hasBlock = false, isCurved = false, showsLines = true;
  OdDbObjectId textStyle, block, arrow;
  OdGePoint3d textPlace, blockPlace;
  OdGeVector3d textDirection{1, 0, 0}, textNormal{0, 0, 1}, blockNormal{0, 0, 1},
      blockScale{1, 1, 1}, planeX{1, 0, 0}, planeY{0, 1, 0};
  double textWidth = 0, blockRotation = 0;
  int attachment = 1; ///< 1 left, 2 centred, 3 right
  OdCmColor textColor{OdCmColor::kByBlock}, lineColor{OdCmColor::kByBlock};
  std::vector<Leader> leaders;
  std::vector<BlockText> blockTexts;
};

OdCmColor colorOf(const OdDbKeptTags::Tag& tag) {
  OdCmColor color;
  color.setColor(static_cast<std::uint32_t>(tag.value.trimmed().toLongLong()));
  return color;
}

/// Parts stand within each other, in braces; the same code means something else in each of them.
class Reader {
 public:
  explicit Reader(const OdDbDatabase& database)
    : m_database(database) {}

  Shape read(const OdDbKeptTags& tags) {
    for (const OdDbKeptTags::Tag& tag : tags.tags)
      if (!enters(tag)) take(tag);
    return std::move(m_shape);
  }

 private:
  enum Part : std::uint8_t { kEntity, kContext, kLeader, kLine };
  static constexpr int kEndCodes[] = {0, 301, 303, 305};

  bool enters(const OdDbKeptTags::Tag& tag) {
    const QByteArray text = tag.value.trimmed();
    if (m_part == kEntity && tag.code == 300 && text == "CONTEXT_DATA{") {
      m_part = kContext;
    } else if (m_part == kContext && tag.code == 302 && text == "LEADER{") {
      m_part = kLeader;
      m_shape.leaders.emplace_back();
    } else if (m_part == kLeader && tag.code == 304 && text == "LEADER_LINE{") {
      m_part = kLine;
      m_shape.leaders.back().lines.emplace_back();
    } else if (m_part != kEntity && tag.code == kEndCodes[m_part] && text == "}") {
      m_part = static_cast<Part>(m_part - 1);
    } else {
      return false;
    }
    return true;
  }

  void take(const OdDbKeptTags::Tag& tag) {
    switch (m_part) {
    case kEntity:
      takeEntity(tag);
      break;
    case kContext:
      takeContext(tag);
      break;
    case kLeader:
      takeLeader(tag, m_shape.leaders.back());
      break;
    case kLine:
      takeLine(tag, m_shape.leaders.back().lines.back());
      break;
    }
  }

  void takeEntity(const OdDbKeptTags::Tag& tag) {
    switch (tag.code) {
    case 170: // the kind of line: none, straight, curved
      m_shape.showsLines = oddb::integerOf(tag) != 0;
      m_shape.isCurved = oddb::integerOf(tag) == 2;
      break;
    case 91:
      m_shape.lineColor = colorOf(tag);
      break;
    case 330:
      m_shape.blockTexts.push_back({oddb::objectOf(tag, m_database), {}});
      break;
    case 302:
      if (!m_shape.blockTexts.empty())
        m_shape.blockTexts.back().text = oddb::textOfKept(tag.value, &m_database);
      break;
    case 342:
      m_shape.arrow = oddb::objectOf(tag, m_database);
      break;
    default:
      break;
    }
  }

  void takeContext(const OdDbKeptTags::Tag& tag) {
    Shape& s = m_shape;
    if (oddb::takePart(tag, 11, s.textNormal) || oddb::takePart(tag, 12, s.textPlace) ||
        oddb::takePart(tag, 13, s.textDirection) || oddb::takePart(tag, 14, s.blockNormal) ||
        oddb::takePart(tag, 15, s.blockPlace) || oddb::takePart(tag, 16, s.blockScale) ||
        oddb::takePart(tag, 111, s.planeX) || oddb::takePart(tag, 112, s.planeY))
      return;
    switch (tag.code) {
    case 41:
      s.textHeight = oddb::realOf(tag);
      break;
    case 140:
      s.arrowSize = oddb::realOf(tag);
      break;
    case 290:
      s.hasText = oddb::integerOf(tag) != 0;
      break;
    case 296:
      s.hasBlock = oddb::integerOf(tag) != 0;
      break;
    case 304:
      s.text = OdString::fromUtf8(tag.value);
      break;
    case 340:
      s.textStyle = oddb::objectOf(tag, m_database);
      break;
    case 341:
      s.block = oddb::objectOf(tag, m_database);
      break;
    case 43:
      s.textWidth = oddb::realOf(tag);
      break;
    case 46:
      s.blockRotation = oddb::realOf(tag);
      break;
    case 171:
      s.attachment = oddb::integerOf(tag);
      break;
    case 90:
      s.textColor = colorOf(tag);
      break;
    default:
      break;
    }
  }

  static void takeLeader(const OdDbKeptTags::Tag& tag, Leader& leader) {
    if (oddb::takePart(tag, 10, leader.end) || oddb::takePart(tag, 11, leader.direction)) return;
    if (tag.code == 290) leader.hasEnd = oddb::integerOf(tag) != 0;
    if (tag.code == 291) leader.hasLanding = oddb::integerOf(tag) != 0;
    if (tag.code == 40) leader.landing = oddb::realOf(tag);
  }

  static void takeLine(const OdDbKeptTags::Tag& tag, LeaderLine& line) {
    if (tag.code == 10) line.points.emplace_back();
    if (!line.points.empty() && oddb::takePart(tag, 10, line.points.back())) return;
    if (tag.code == 92) line.color = colorOf(tag);
  }

  const OdDbDatabase& m_database;
  Shape m_shape;
  Part m_part = kEntity;
};

class Painter {
 public:
  Painter(const Shape& shape, const OdDbEntity& entity, OdGiWorldDraw& draw)
    : m_shape(shape)
    , m_entity(entity)
    , m_draw(draw) {}
  ~Painter() { m_draw.setPieceColor(std::nullopt); }
  Painter(const Painter&) = delete;
  Painter& operator=(const Painter&) = delete;

  void show() {
    if (m_shape.showsLines)
      for (const Leader& each : m_shape.leaders) leader(each);
    if (m_shape.hasText) text();
    if (m_shape.hasBlock) block();
  }

 private:
  void setColor(const OdCmColor& color) {
    const bool isOwn = color.isByACI() || color.isByColor();
    m_draw.setPieceColor(isOwn ? std::optional(color) : std::nullopt);
  }

  void leader(const Leader& leader) {
    for (const LeaderLine& line : leader.lines) {
      std::vector<OdGePoint3d> points = line.points;
      if (leader.hasEnd) points.push_back(leader.end);
      if (points.size() < 2) continue;
      setColor(line.color.isByBlock() ? m_shape.lineColor : line.color);
      arrow(points);
      run(points);
    }
    if (!leader.hasEnd || !leader.hasLanding || !(leader.landing > 0)) return;
    setColor(m_shape.lineColor);
    const OdGePoint3d ends[] = {leader.end,
                                leader.end + leader.direction.normal() * leader.landing};
    m_draw.polyline(ends, false);
  }

  void run(const std::vector<OdGePoint3d>& points) {
    if (!m_shape.isCurved || points.size() < 3) return m_draw.polyline(points, false);
    odrxMake<OdDbSpline>(points)->worldDraw(m_draw);
  }

  /// At the first point, which moves to where the arrow ends.
  void arrow(std::vector<OdGePoint3d>& points) {
    const OdGeVector3d way = points[1] - points[0];
    const double size = m_shape.arrowSize;
    // No arrow stands on a line that is hardly longer.
    if (!(size > 0) || way.length() < 2 * size) return;
    const OdGeVector3d along = way.normal();
    const OdGeVector3d up = m_shape.planeX.crossProduct(m_shape.planeY).normal();
    const OdGeVector3d across = up.crossProduct(along);
    const OdDbObjectPtr record = m_shape.arrow.openObject();
    if (odrxCast<OdDbBlockTableRecord>(record.get())) {
      // Arrow blocks look to the left, where their line ends.
      const OdGeVector3d x = -along * size;
      m_draw.block(m_shape.arrow,
                   OdGeMatrix3d::coordSystem(points[0], x, -across * size, up * size), m_entity);
      points[0] = points[0] + along * size;
      return;
    }
    constexpr double kHalfWidth = 1.0 / 6;
    const OdGePoint3d base = points[0] + along * size;
    m_draw.area(
        {{points[0], base + across * (size * kHalfWidth), base - across * (size * kHalfWidth)}});
    points[0] = base;
  }

  void text() {
    const Shape& s = m_shape;
    if (s.text.isEmpty() || !(s.textHeight > 0) || s.textDirection.isZeroLength() ||
        s.textNormal.isZeroLength())
      return;
    setColor(s.textColor);
    const auto words = odrxMake<OdDbMText>();
    words->setContents(s.text);
    words->setTextHeight(s.textHeight);
    words->setNormal(s.textNormal);
    words->setLocation(s.textPlace);
    words->setDirection(s.textDirection);
    words->setWidth(std::max(s.textWidth, 0.0));
    if (!s.textStyle.isNull()) words->setTextStyle(s.textStyle);
    const int column = s.attachment >= 1 && s.attachment <= 3 ? s.attachment : 1;
    words->setAttachment(static_cast<OdDbMText::AttachmentPoint>(column));
    words->worldDraw(m_draw);
  }

  void block() {
    const Shape& s = m_shape;
    const OdDbObjectPtr object = s.block.openObject();
    const auto* const record = odrxCast<OdDbBlockTableRecord>(object.get());
    if (!record || s.blockNormal.isZeroLength()) return;
    m_draw.setPieceColor(std::nullopt);
    const OdGeMatrix3d toWorld =
        OdGeMatrix3d::translation(s.blockPlace.asVector()) *
        OdGeMatrix3d::planeToWorld(s.blockNormal.normal()) *
        OdGeMatrix3d::rotation(s.blockRotation, OdGeVector3d::zAxis()) *
        OdGeMatrix3d::scaling(s.blockScale.x, s.blockScale.y, s.blockScale.z) *
        OdGeMatrix3d::translation(-record->origin().asVector());
    m_draw.block(s.block, toWorld, m_entity);
    for (const BlockText& each : s.blockTexts) blockText(each, toWorld);
  }

  void blockText(const BlockText& told, const OdGeMatrix3d& toWorld) {
    const OdDbObjectPtr object = told.definition.openObject();
    const auto* const definition = odrxCast<OdDbAttributeDefinition>(object.get());
    if (!definition || definition->ownerId() != m_shape.block || definition->isInvisible() ||
        definition->isConstant())
      return;
    const auto shown = odrxMake<OdDbAttribute>();
    shown->setAttributeFromBlock(*definition, toWorld);
    shown->setTextString(told.text);
    setColor(definition->color());
    shown->worldDraw(m_draw);
  }

  const Shape& m_shape;
  const OdDbEntity& m_entity;
  OdGiWorldDraw& m_draw;
};

} // namespace

void oddb::drawMleader(const OdDbKeptTags& tags, const OdDbEntity& entity, OdGiWorldDraw& draw) {
  const Shape shape = Reader(*entity.database()).read(tags);
  Painter(shape, entity, draw).show();
}
