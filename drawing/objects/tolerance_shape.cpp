#include "drawing/objects/tolerance_shape.h"

#include "drawing/entities/mtext.h"
#include "drawing/objects/tag_values.h"

#include <QRegularExpression>

namespace {

/// Signs of tolerances, by their letters in the font that has them.
struct Sign {
  char letter;
  char16_t sign;
};
constexpr Sign kSigns[] = {
    {'a', 0x2220}, {'b', 0x27C2}, {'c', 0x23E5}, {'d', 0x2313}, {'e', 0x25CB},
    {'f', 0x2225}, {'g', 0x232D}, {'h', 0x2197}, {'i', 0x232F}, {'j', 0x2316},
    {'k', 0x2312}, {'l', 0x24C1}, {'m', 0x24C2}, {'n', 0x2300}, {'p', 0x24C5},
    {'r', 0x25CE}, {'s', 0x24C8}, {'t', 0x2330}, {'u', 0x23E4},
};

/// The text of a cell with signs in the place of their letters.
OdString withSigns(OdString text) {
  static const QRegularExpression kInFont(QStringLiteral("\\{\\\\[Ff]gdt;([^{}]*)\\}"));
  for (auto match = kInFont.match(text); match.hasMatch(); match = kInFont.match(text)) {
    OdString signs;
    for (const QChar letter : match.captured(1)) {
      const Sign* const row =
          std::find_if(std::begin(kSigns), std::end(kSigns),
                       [&](const Sign& each) { return letter == QLatin1Char(each.letter); });
      signs += row == std::end(kSigns) ? letter : QChar(row->sign);
    }
    text.replace(match.capturedStart(), match.capturedLength(), signs);
  }
  return text;
}

struct Frame {
  OdGePoint3d place;
  OdGeVector3d x{1, 0, 0}, normal{0, 0, 1};
  OdString text;
  OdDbObjectId style;
};

Frame frameOf(const OdDbKeptTags& tags, const OdDbDatabase& database) {
  Frame frame;
  for (const OdDbKeptTags::Tag& tag : tags.tags) {
    if (oddb::takePart(tag, 10, frame.place) || oddb::takePart(tag, 11, frame.x) ||
        oddb::takePart(tag, 210, frame.normal))
      continue;
    if (tag.code == 1) frame.text = OdString::fromUtf8(tag.value);
    if (tag.code == 3)
      frame.style = database.getDimStyleTableId().openAs<OdDbDimStyleTable>()->getAt(
          OdString::fromUtf8(tag.value));
  }
  return frame;
}

class Painter {
 public:
  Painter(const Frame& frame, OdGiWorldDraw& draw)
    : m_frame(frame)
    , m_draw(draw)
    , m_x(frame.x.normal())
    , m_y(frame.normal.normal().crossProduct(m_x)) {
    const OdDbObjectPtr object = frame.style.openObject();
    if (const auto* const style = odrxCast<OdDbDimStyleTableRecord>(object.get()))
      m_values = style->values();
    // A scale of 0 is that of the view, which is not told here.
    m_height = m_values.dimtxt * (m_values.dimscale > 0 ? m_values.dimscale : 1);
  }
  ~Painter() { m_draw.setPieceColor(std::nullopt); }
  Painter(const Painter&) = delete;
  Painter& operator=(const Painter&) = delete;

  void show() {
    if (!(m_height > 0) || m_x.isZeroLength() || m_y.isZeroLength()) return;
    OdString text = m_frame.text;
    text.replace(QStringLiteral("^J"), QStringLiteral("\n"));
    double down = 0;
    for (const OdString& row : text.split(u'\n')) {
      // The place is in the middle of the first row's left edge; a row is twice as high as letters.
      double right = 0;
      for (const OdString& cell : row.split(QStringLiteral("%%v")))
        if (!cell.isEmpty()) right += show(cell, right, down);
      down += 2 * m_height;
    }
  }

 private:
  OdGePoint3d at(double right, double down) const {
    return m_frame.place + m_x * right - m_y * down;
  }

  void setColor(const OdCmColor& color) {
    const bool isOwn = color.isByACI() || color.isByColor();
    m_draw.setPieceColor(isOwn ? std::optional(color) : std::nullopt);
  }

  /// Gives the width of the cell.
  double show(const OdString& cell, double right, double down) {
    const auto words = odrxMake<OdDbMText>();
    words->setContents(withSigns(cell));
    words->setTextHeight(m_height);
    if (!m_values.dimtxsty.isNull()) words->setTextStyle(m_values.dimtxsty);
    words->setNormal(m_frame.normal);
    words->setDirection(m_x);
    words->setAttachment(OdDbMText::kMiddleCenter);
    const double width = words->actualWidth() + m_height;
    words->setLocation(at(right + width / 2, down));
    setColor(m_values.dimclrt);
    words->worldDraw(m_draw);
    setColor(m_values.dimclrd);
    const OdGePoint3d corners[] = {at(right, down - m_height), at(right + width, down - m_height),
                                   at(right + width, down + m_height), at(right, down + m_height)};
    m_draw.polyline(corners, true);
    return width;
  }

  const Frame& m_frame;
  OdGiWorldDraw& m_draw;
  OdGeVector3d m_x, m_y;
  OdDbDimVarValues m_values;
  double m_height = 0;
};

} // namespace

void oddb::drawTolerance(const OdDbKeptTags& tags, const OdDbDatabase& database,
                         OdGiWorldDraw& draw) {
  const Frame frame = frameOf(tags, database);
  Painter(frame, draw).show();
}
