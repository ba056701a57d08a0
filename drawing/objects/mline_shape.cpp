#include "drawing/objects/mline_shape.h"

#include "drawing/dxf/residue.h"
#include "drawing/objects/tag_values.h"

#include <algorithm>

namespace {

/// One of the parallel lines.
struct Element {
  OdCmColor color;
  OdDbObjectId linetype;
};

struct Style {
  enum Flag {
    kFilled = 1,
    kJoints = 2,
    kSquareStart = 0x10,
    kRoundStart = 0x40,
    kSquareEnd = 0x100,
    kRoundEnd = 0x400,
  };
  int flags = 0;
  OdCmColor fill;
  std::vector<Element> elements;
};

/// Where the lines pass a corner.
struct Corner {
  OdGePoint3d position;
  OdGeVector3d direction, miter;
  /// For each line how far it passes from the corner along the miter, then how far behind that it
  /// begins, breaks off and goes on.
  std::vector<std::vector<double>> lines;

  OdGePoint3d pointOf(std::size_t line) const {
    const bool isTold = line < lines.size() && !lines[line].empty();
    return isTold ? position + miter * lines[line][0] : position;
  }
};

struct Shape {
  OdDbObjectId style;
  bool closed = false, noStartCap = false, noEndCap = false;
  std::vector<Corner> corners;
};

OdCmColor colorOf(const OdDbKeptTags::Tag& tag) {
  const int index = oddb::integerOf(tag);
  return index >= 0 && index < OdCmColor::kACInone ? OdCmColor::fromColorIndex(index) : OdCmColor();
}

Style styleOf(OdDbObjectId id) {
  Style style;
  const OdDbObjectPtr object = id.openObject();
  if (!object || !object->residue()) return style;
  const auto linetypes = id.database()->getLinetypeTableId().openAs<OdDbLinetypeTable>();
  for (const OdDbKeptTags::Tag& tag : OdDbKeptTags(object->residue()->tail).tags) {
    if (tag.code == 70) style.flags = oddb::integerOf(tag);
    if (tag.code == 49) style.elements.emplace_back();
    if (tag.code == 62)
      (style.elements.empty() ? style.fill : style.elements.back().color) = colorOf(tag);
    if (tag.code == 6 && !style.elements.empty())
      style.elements.back().linetype = linetypes->getAt(OdString::fromUtf8(tag.value));
  }
  return style;
}

Shape shapeOf(const OdDbKeptTags& tags, const OdDbDatabase& database) {
  Shape shape;
  for (const OdDbKeptTags::Tag& tag : tags.tags) {
    if (tag.code == 340) {
      shape.style = oddb::objectOf(tag, database);
    } else if (tag.code == 71) {
      const int flags = oddb::integerOf(tag);
      shape.closed = flags & 2;
      shape.noStartCap = flags & 4;
      shape.noEndCap = flags & 8;
    } else if (tag.code == 11) {
      shape.corners.emplace_back();
    }
    if (shape.corners.empty()) continue;
    Corner& corner = shape.corners.back();
    if (tag.code == 74) corner.lines.emplace_back();
    if (tag.code == 41 && !corner.lines.empty()) corner.lines.back().push_back(oddb::realOf(tag));
    oddb::takePart(tag, 11, corner.position) || oddb::takePart(tag, 12, corner.direction) ||
        oddb::takePart(tag, 13, corner.miter);
  }
  return shape;
}

class Painter {
 public:
  Painter(const Shape& shape, const Style& style, OdGiWorldDraw& draw)
    : m_shape(shape)
    , m_style(style)
    , m_draw(draw) {
    for (const Corner& corner : shape.corners) m_count = std::max(m_count, corner.lines.size());
  }
  ~Painter() {
    m_draw.setPieceColor(std::nullopt);
    m_draw.setPieceLinetype({});
  }
  Painter(const Painter&) = delete;
  Painter& operator=(const Painter&) = delete;

  void show() {
    if (m_count == 0 || m_shape.corners.size() < 2) return;
    const std::size_t segments = m_shape.corners.size() - (m_shape.closed ? 0 : 1);
    if (m_style.flags & Style::kFilled)
      for (std::size_t i = 0; i < segments; ++i) fill(i);
    for (std::size_t line = 0; line < m_count; ++line) {
      look(line);
      for (std::size_t i = 0; i < segments; ++i) segment(line, i);
    }
    for (std::size_t i = 0; i < m_shape.corners.size(); ++i) {
      const bool isFirst = i == 0 && !m_shape.closed;
      const bool isLast = i + 1 == m_shape.corners.size() && !m_shape.closed;
      if (isFirst || isLast)
        cap(m_shape.corners[i], isFirst);
      else if (m_style.flags & Style::kJoints)
        across(m_shape.corners[i]);
    }
  }

 private:
  const Corner& corner(std::size_t i) const { return m_shape.corners[i % m_shape.corners.size()]; }

  /// The first and the last line of the style are the outer ones.
  void look(std::size_t line) {
    const bool isTold = line < m_style.elements.size();
    const OdCmColor color = isTold ? m_style.elements[line].color : OdCmColor();
    if (color.isByACI())
      m_draw.setPieceColor(color);
    else
      m_draw.setPieceColor(std::nullopt);
    m_draw.setPieceLinetype(isTold ? m_style.elements[line].linetype : OdDbObjectId());
  }

  void segment(std::size_t line, std::size_t i) {
    const OdGePoint3d from = corner(i).pointOf(line);
    const OdGePoint3d to = corner(i + 1).pointOf(line);
    const double length = from.distanceTo(to);
    if (!(length > 0) || !std::isfinite(length)) return;
    const OdGeVector3d along = (to - from) * (1 / length);
    const auto piece = [&](double start, double end) {
      start = std::clamp(start, 0.0, length);
      end = std::clamp(end, 0.0, length);
      const OdGePoint3d ends[] = {from + along * start, from + along * end};
      if (end > start) m_draw.polyline(ends, false);
    };
    const std::vector<std::vector<double>>& lines = corner(i).lines;
    double start = 0;
    bool runs = true;
    for (std::size_t at = 1; line < lines.size() && at < lines[line].size(); ++at) {
      const double distance = lines[line][at];
      // The first tells where the line begins.
      if (at > 1 && runs) piece(start, distance);
      runs = at == 1 || !runs;
      start = distance;
    }
    if (runs) piece(start, length);
  }

  void fill(std::size_t i) {
    m_draw.setPieceColor(m_style.fill.isByACI() ? std::optional(m_style.fill) : std::nullopt);
    m_draw.area({{corner(i).pointOf(0), corner(i + 1).pointOf(0),
                  corner(i + 1).pointOf(m_count - 1), corner(i).pointOf(m_count - 1)}});
  }

  void across(const Corner& at) {
    look(0);
    const OdGePoint3d ends[] = {at.pointOf(0), at.pointOf(m_count - 1)};
    m_draw.polyline(ends, false);
  }

  void cap(const Corner& at, bool isFirst) {
    if (isFirst ? m_shape.noStartCap : m_shape.noEndCap) return;
    if (m_style.flags & (isFirst ? Style::kSquareStart : Style::kSquareEnd)) across(at);
    if (!(m_style.flags & (isFirst ? Style::kRoundStart : Style::kRoundEnd))) return;
    look(0);
    const OdGePoint3d a = at.pointOf(0);
    const OdGeVector3d half = (at.pointOf(m_count - 1) - a) * 0.5;
    // Directions run from each corner to the next one.
    const OdGeVector3d out = at.direction.normal() * (half.length() * (isFirst ? -1 : 1));
    m_draw.arc({a + half, -half, out, 0, kOdaPi});
  }

  const Shape& m_shape;
  const Style& m_style;
  OdGiWorldDraw& m_draw;
  std::size_t m_count = 0;
};

} // namespace

void oddb::drawMline(const OdDbKeptTags& tags, const OdDbDatabase& database, OdGiWorldDraw& draw) {
  const Shape shape = shapeOf(tags, database);
  const Style style = styleOf(shape.style);
  Painter(shape, style, draw).show();
}
