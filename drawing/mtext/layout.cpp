#include "drawing/mtext/layout.h"

#include <algorithm>
#include <limits>

namespace {

using Piece = OdMTextPiece;
using Paragraph = OdMTextParagraph;

/// The letters of a stack are this part of the text's height.
constexpr double kStackHeight = 0.7;
/// The room between the parts of a stack and its line, by the height of the text.
constexpr double kStackGap = 0.15;
/// Where tabs stand that nobody set, by the height of the text.
constexpr double kTabWidth = 4;

/// What is not broken: letters, a stack, a tab, or blanks.
struct Item {
  Piece::Kind kind = Piece::kText;
  Piece::StackKind stackKind = Piece::kOver;
  OdString text, below;
  OdMTextFormat format;
  double width = 0;
  bool isBlank = false;  ///< a line may break behind it
  bool mayBreak = false; ///< a line may break behind it, though it is no blank
};

struct Line {
  std::vector<Item> items;
  Paragraph paragraph;
  bool first = false, last = false; ///< of its paragraph
  bool endsColumn = false;
};

bool isIdeograph(QChar c) {
  const ushort u = c.unicode();
  return (u >= 0x2E80 && u <= 0x9FFF) || (u >= 0xAC00 && u <= 0xD7A3) ||
         (u >= 0xF900 && u <= 0xFAFF) || (u >= 0xFF00 && u <= 0xFFEF);
}

class LayOut {
 public:
  LayOut(const std::vector<Piece>& pieces, const OdMTextFrame& frame,
         const OdGiTextMetrics& metrics)
    : m_pieces(pieces)
    , m_frame(frame)
    , m_metrics(metrics) {
    const OdMTextColumns& c = frame.columns;
    m_inColumns = c.kind != OdMTextColumns::kNone && c.count > 0 && c.width > 0;
    m_width = m_inColumns ? c.width : frame.width;
    m_lastFormat.height = frame.height;
  }

  OdMTextLayout layout() {
    breakLines();
    placeLines();
    attach();
    return std::move(m_layout);
  }

 private:
  // --- lines

  double advance(const OdString& text, const OdMTextFormat& f) const {
    return m_metrics.advance(text, f.font) * f.height * f.widthFactor * f.tracking;
  }

  static OdMTextFormat stackFormat(const OdMTextFormat& f) {
    OdMTextFormat small = f;
    small.height *= kStackHeight;
    return small;
  }

  void breakLines() {
    m_line.first = true;
    for (const Piece& piece : m_pieces) {
      m_line.paragraph = piece.paragraph;
      switch (piece.kind) {
      case Piece::kText:
        addText(piece);
        break;
      case Piece::kStack:
        addStack(piece);
        break;
      case Piece::kTab: {
        Item tab;
        tab.kind = Piece::kTab;
        tab.format = piece.format;
        tab.mayBreak = true;
        add(std::move(tab));
        break;
      }
      case Piece::kParagraph:
      case Piece::kColumn:
        m_lastFormat = piece.format;
        endLine(true);
        m_lines.back().endsColumn = piece.kind == Piece::kColumn;
        break;
      }
      m_lastFormat = piece.format;
    }
    endLine(true);
  }

  void addText(const Piece& piece) {
    OdString word;
    const auto flush = [&](bool blank, bool mayBreak) {
      if (word.isEmpty()) return;
      Item item;
      item.text = word;
      item.format = piece.format;
      item.width = advance(word, piece.format);
      item.isBlank = blank;
      item.mayBreak = mayBreak;
      word.clear();
      add(std::move(item));
    };
    for (const QChar c : piece.text) {
      if (c == u' ') {
        flush(false, false);
        word = c;
        flush(true, true);
      } else if (isIdeograph(c)) {
        flush(false, true);
        word = c;
        flush(false, true);
      } else {
        word += c;
        if (c == u'-') flush(false, true);
      }
    }
    flush(false, false);
  }

  void addStack(const Piece& piece) {
    Item item;
    item.kind = Piece::kStack;
    item.stackKind = piece.stackKind;
    item.text = piece.text;
    item.below = piece.below;
    item.format = piece.format;
    const OdMTextFormat small = stackFormat(piece.format);
    const double upper = advance(piece.text, small);
    const double lower = advance(piece.below, small);
    item.width = piece.stackKind == Piece::kSlash ? upper + lower + small.height * kStackHeight
                                                  : std::max(upper, lower);
    add(std::move(item));
  }

  double indent() const {
    const Paragraph& p = m_line.paragraph;
    return p.leftIndent + (m_line.first ? p.firstIndent : 0);
  }

  void add(Item item) {
    m_line.items.push_back(std::move(item));
    if (m_width <= 0) return;
    const double room = m_width - indent() - m_line.paragraph.rightIndent;
    if (m_line.items.back().isBlank || widthOf(m_line.items) <= room * (1 + 1e-9)) return;
    // Back to the last place where the line may end; a word that is too long by itself stays.
    auto& items = m_line.items;
    auto at = items.size() - 1;
    while (at > 0 && !items[at - 1].mayBreak && !items[at - 1].isBlank) --at;
    const bool onlyBlanks =
        std::all_of(items.begin(), items.begin() + static_cast<std::ptrdiff_t>(at),
                    [](const Item& i) { return i.isBlank; });
    if (at == 0 || onlyBlanks) return;
    std::vector<Item> rest(std::make_move_iterator(items.begin() + static_cast<std::ptrdiff_t>(at)),
                           std::make_move_iterator(items.end()));
    items.resize(at);
    const Paragraph paragraph = m_line.paragraph;
    endLine(false);
    m_line.paragraph = paragraph;
    for (Item& i : rest) add(std::move(i));
  }

  /// The width with tabs at their places and without blanks at the end.
  double widthOf(const std::vector<Item>& items) const {
    double x = 0;
    double end = 0;
    for (std::size_t i = 0; i < items.size(); ++i) {
      x = items[i].kind == Piece::kTab ? behindTab(items, i, x) : x + items[i].width;
      if (!items[i].isBlank) end = x;
    }
    return end;
  }

  /// Where the text behind a tab begins.
  double behindTab(const std::vector<Item>& items, std::size_t index, double x) const {
    const double left = indent();
    double following = 0;
    for (std::size_t i = index + 1; i < items.size() && items[i].kind != Piece::kTab; ++i)
      following += items[i].width;
    for (const Paragraph::Tab& tab : m_line.paragraph.tabs) {
      const double stop = tab.position - left;
      if (stop <= x) continue;
      switch (tab.kind) {
      case Paragraph::Tab::kCenter:
        return std::max(x, stop - following / 2);
      case Paragraph::Tab::kRight:
      case Paragraph::Tab::kDecimal:
        return std::max(x, stop - following);
      case Paragraph::Tab::kLeft:
        return stop;
      }
    }
    // The next of those that nobody set; a hanging first line stops at the indent of the rest.
    if (m_line.first && m_line.paragraph.firstIndent < 0 && x < -m_line.paragraph.firstIndent)
      return -m_line.paragraph.firstIndent;
    const double step = kTabWidth * m_frame.height;
    return (std::floor((x + left) / step + 1e-9) + 1) * step - left;
  }

  void endLine(bool ofParagraph) {
    if (m_line.items.empty()) {
      // An empty line is as high as its letters would be.
      Item nothing;
      nothing.format = m_lastFormat;
      m_line.items.push_back(nothing);
    }
    m_line.last = ofParagraph;
    m_lines.push_back(std::move(m_line));
    m_line = {};
    m_line.first = ofParagraph;
  }

  // --- places

  static double heightOf(const Line& line) {
    double height = 0;
    for (const Item& i : line.items) height = std::max(height, i.format.height);
    return height;
  }

  /// How far a line's stacks reach above and below its letters.
  static void reachOf(const Line& line, double height, double& above, double& below) {
    above = height;
    below = 0;
    for (const Item& i : line.items) {
      if (i.kind != Piece::kStack || i.stackKind == Piece::kSlash) continue;
      double low = 0, high = 0;
      stackSpan(i.format, height, low, high);
      above = std::max(above, high);
      below = std::max(below, -low);
    }
  }

  /// Lower and upper end of a stack over the base line of letters of a height.
  static void stackSpan(const OdMTextFormat& f, double lineHeight, double& low, double& high) {
    const double size = (2 * kStackHeight + 2 * kStackGap) * f.height;
    low = 0;
    if (f.verticalAlign == 1) low = (lineHeight - size) / 2;
    if (f.verticalAlign == 2) low = lineHeight - size;
    high = low + size;
  }

  /// From the base line before to that of a line.
  double distance(const Line& line) const {
    const Paragraph& p = line.paragraph;
    const double height = m_frame.exactly ? m_frame.height : heightOf(line);
    const double usual = height * odmtext::kLineDistance;
    switch (p.spacingKind) {
    case Paragraph::kMultiple:
      return usual * p.spacing;
    case Paragraph::kExact:
      return p.spacing;
    case Paragraph::kAtLeast:
      return std::max(p.spacing, usual * m_frame.spacing);
    case Paragraph::kAsText:
      break;
    }
    return usual * m_frame.spacing;
  }

  double columnHeight(int column) const {
    const OdMTextColumns& c = m_frame.columns;
    if (static_cast<std::size_t>(column) < c.heights.size()) {
      const double own = c.heights[static_cast<std::size_t>(column)];
      if (own > 0) return own;
    }
    return c.height > 0 ? c.height : std::numeric_limits<double>::infinity();
  }

  void placeLines() {
    int column = 0;
    bool atTop = true;
    double y = 0;      // of the base line
    double before = 0; // what the last line reached below its letters
    double spaceAfter = 0;
    double lowest = 0;
    for (Line& line : m_lines) {
      const double height = heightOf(line);
      double above = 0, below = 0;
      reachOf(line, height, above, below);
      const double gap = atTop ? 0 : (line.first ? line.paragraph.before + spaceAfter : 0);
      double next =
          atTop ? -above
                : y - gap - distance(line) - (m_frame.exactly ? 0 : before + (above - height));
      const bool last = column + 1 >= m_frame.columns.count;
      if (m_inColumns && !atTop && !last && -next > columnHeight(column) * (1 + 1e-9)) {
        ++column;
        next = -above;
      }
      y = next;
      atTop = false;
      before = below;
      spaceAfter = line.last ? line.paragraph.after : 0;
      placeLine(line, column, y, height);
      lowest = std::min(lowest, y - below);
      if (line.endsColumn && m_inColumns && !last) {
        ++column;
        atTop = true;
      }
    }
    m_layout.lines = static_cast<int>(m_lines.size());
    m_layout.bottom = lowest;
  }

  double columnLeft(int column) const {
    const OdMTextColumns& c = m_frame.columns;
    const int place = c.reversed ? c.count - 1 - column : column;
    return place * (c.width + c.gutter);
  }

  /// By attachment means as the whole text is fastened.
  Paragraph::Align alignOf(const Paragraph& paragraph) const {
    if (paragraph.align != Paragraph::kByAttachment) return paragraph.align;
    constexpr Paragraph::Align kAligns[] = {Paragraph::kLeft, Paragraph::kCenter,
                                            Paragraph::kRight};
    return kAligns[(std::clamp(m_frame.attachment, 1, 9) - 1) % 3];
  }

  /// How much wider each blank of a line becomes that is to fill its room.
  static double spreadOf(const Line& line, double room, double used) {
    const auto blanks = std::count_if(line.items.begin(), line.items.end(),
                                      [](const Item& i) { return i.isBlank; }) -
                        (line.items.back().isBlank ? 1 : 0);
    return blanks > 0 && room > used ? (room - used) / static_cast<double>(blanks) : 0;
  }

  void placeLine(const Line& line, int column, double y, double lineHeight) {
    m_line.paragraph = line.paragraph;
    m_line.first = line.first;
    const double used = widthOf(line.items);
    const double room = m_width > 0 ? m_width - indent() - line.paragraph.rightIndent : used;
    const Paragraph::Align align = alignOf(line.paragraph);
    double x = indent() + (m_inColumns ? columnLeft(column) : 0);
    double spread = 0;
    if (m_width <= 0) {
      // Without a width the widest line is the measure; it is known only at the end.
      m_loose.push_back({m_layout.runs.size(), m_layout.strokes.size(), align, used + indent()});
    } else if (align == Paragraph::kCenter) {
      x += (room - used) / 2;
    } else if (align == Paragraph::kRight) {
      x += room - used;
    } else if (align == Paragraph::kDistributed || (align == Paragraph::kJustified && !line.last)) {
      spread = spreadOf(line, room, used);
    }
    placeItems(line.items, x, y, lineHeight, spread);
    m_right = std::max(m_right, x + used);
    m_left = std::min(m_left, x);
  }

  void placeItems(const std::vector<Item>& items, double start, double y, double lineHeight,
                  double spread) {
    double x = start;
    m_lineStart = m_layout.runs.size();
    for (std::size_t i = 0; i < items.size(); ++i) {
      const Item& item = items[i];
      switch (item.kind) {
      case Piece::kTab:
        x = start + behindTab(items, i, x - start);
        break;
      case Piece::kStack:
        placeStack(item, x, y, lineHeight);
        x += item.width;
        break;
      default: {
        double rise = 0;
        if (item.format.verticalAlign == 1) rise = (lineHeight - item.format.height) / 2;
        if (item.format.verticalAlign == 2) rise = lineHeight - item.format.height;
        // Blanks that are spread part the runs; others stay within.
        put(item.text, item.format, x, y + rise, item.width, spread == 0);
        x += item.width + (item.isBlank ? spread : 0);
        break;
      }
      }
    }
  }

  void put(const OdString& text, const OdMTextFormat& format, double x, double y, double width,
           bool mayJoin) {
    if (text.isEmpty()) return;
    auto& runs = m_layout.runs;
    if (mayJoin && runs.size() > m_lineStart) {
      OdMTextRun& before = runs.back();
      if (before.y == y && before.format == format &&
          std::abs(before.x + before.width - x) < 1e-9 * (1 + std::abs(x))) {
        before.text += text;
        before.width += width;
        return;
      }
    }
    runs.push_back({text, format, x, y, width});
  }

  void placeStack(const Item& item, double x, double y, double lineHeight) {
    const OdMTextFormat small = stackFormat(item.format);
    const double upper = advance(item.text, small);
    const double lower = advance(item.below, small);
    const double h = item.format.height;
    if (item.stackKind == Piece::kSlash) {
      const double slash = small.height * kStackHeight;
      put(item.text, small, x, y + h - small.height, upper, false);
      m_layout.strokes.push_back({x + upper, y});
      m_layout.strokes.push_back({x + upper + slash, y + h});
      put(item.below, small, x + upper + slash, y, lower, false);
      return;
    }
    double low = 0, high = 0;
    stackSpan(item.format, lineHeight, low, high);
    const bool isTolerance = item.stackKind == Piece::kTolerance;
    const double upperX = isTolerance ? x : x + (item.width - upper) / 2;
    const double lowerX = isTolerance ? x : x + (item.width - lower) / 2;
    put(item.text, small, upperX, y + high - small.height, upper, false);
    put(item.below, small, lowerX, y + low, lower, false);
    if (isTolerance) return;
    const double middle = y + (low + high) / 2;
    m_layout.strokes.push_back({x, middle});
    m_layout.strokes.push_back({x + item.width, middle});
  }

  void attach() {
    const int attachment = std::clamp(m_frame.attachment, 1, 9);
    const int column = (attachment - 1) % 3;
    const int row = (attachment - 1) / 3;
    if (m_width <= 0) {
      double widest = 0;
      for (const Loose& l : m_loose) widest = std::max(widest, l.width);
      for (std::size_t i = 0; i < m_loose.size(); ++i) {
        const Loose& l = m_loose[i];
        double shift = 0;
        if (l.align == Paragraph::kCenter) shift = (widest - l.width) / 2;
        if (l.align == Paragraph::kRight) shift = widest - l.width;
        const bool isLast = i + 1 == m_loose.size();
        const std::size_t runs = isLast ? m_layout.runs.size() : m_loose[i + 1].run;
        const std::size_t strokes = isLast ? m_layout.strokes.size() : m_loose[i + 1].stroke;
        for (std::size_t k = l.run; k < runs; ++k) m_layout.runs[k].x += shift;
        for (std::size_t k = l.stroke; k < strokes; ++k) m_layout.strokes[k].x += shift;
      }
      m_width = widest;
      m_left = 0;
      m_right = widest;
    }
    const OdMTextColumns& c = m_frame.columns;
    const double whole = m_inColumns ? c.count * c.width + (c.count - 1) * c.gutter : m_width;
    const double dx = -whole * column / 2;
    const double dy = -m_layout.bottom * row / 2;
    for (OdMTextRun& run : m_layout.runs) {
      run.x += dx;
      run.y += dy;
    }
    for (OdGePoint2d& p : m_layout.strokes) p = {p.x + dx, p.y + dy};
    m_layout.left = std::min(m_left, m_right) + dx;
    m_layout.right = m_right + dx;
    m_layout.top = dy;
    m_layout.bottom += dy;
  }

  const std::vector<Piece>& m_pieces;
  const OdMTextFrame& m_frame;
  const OdGiTextMetrics& m_metrics;
  bool m_inColumns = false;
  double m_width = 0;
  double m_left = std::numeric_limits<double>::infinity(), m_right = 0;

  Line m_line;
  OdMTextFormat m_lastFormat;
  std::vector<Line> m_lines;
  std::size_t m_lineStart = 0;
  /// Lines that wait for the width of the widest one.
  struct Loose {
    std::size_t run, stroke;
    Paragraph::Align align;
    double width;
  };
  std::vector<Loose> m_loose;
  OdMTextLayout m_layout;
};

} // namespace

OdMTextLayout odmtext::layOut(const std::vector<OdMTextPiece>& pieces, const OdMTextFrame& frame,
                              const OdGiTextMetrics& metrics) {
  return LayOut(pieces, frame, metrics).layout();
}
