#include "drafton/render/text_shapes.h"

#include "drafton/render/font_table.h"

#include <QFontDatabase>
#include <QGlyphRun>
#include <QGuiApplication>
#include <QRawFont>
#include <QTextLayout>

namespace drafton {
namespace {

/// The size in which outlines are taken; large enough for positions in 64ths of a pixel.
constexpr double kPixelSize = 256;
/// Caches beyond these sizes start anew: a drawing rarely shows more different texts at once.
constexpr qsizetype kMostShapes = 20000, kMostAdvances = 200000;
/// Used while there are no fonts.
constexpr double kUsualAdvance = 0.75, kUsualDescent = 0.3;

OdString keyOf(const OdGiFont& font) {
  return font.typeface + u'\x1f' + font.file + u'\x1f' + font.bigFile + u'\x1f' +
         QChar(u'0' + (font.bold ? 1 : 0) + (font.italic ? 2 : 0) + (font.vertical ? 4 : 0));
}

/// Chords that are not told from curves if the height of 1 is shown with so many pixels.
std::vector<QPolygonF> contoursOf(const QPainterPath& path, double pixels) {
  // Chords stay within about half a unit of their curves.
  const double fine = 2 * pixels;
  const QTransform back = QTransform::fromScale(1 / fine, 1 / fine);
  std::vector<QPolygonF> contours;
  for (const QPolygonF& contour : path.toSubpathPolygons(QTransform::fromScale(fine, fine)))
    contours.push_back(back.map(contour));
  return contours;
}

} // namespace

struct TextShapes::Face {
  /// The outlines of the letters that were used.
  mutable QHash<std::pair<QRawFont, quint32>, QPainterPath> outlines;
  QFont font;
  double capHeight = kPixelSize * 0.7;
  double descent = kUsualDescent;
};

TextShapes::TextShapes() = default;
TextShapes::~TextShapes() = default;

TextShapes& TextShapes::instance() {
  thread_local TextShapes shapes;
  return shapes;
}

void TextShapes::install() { OdGiTextMetrics::setCurrent(&instance()); }

TextShapes::Face& TextShapes::face(const OdGiFont& font) const {
  std::shared_ptr<Face>& face = m_faces[keyOf(font)];
  if (face) return *face;
  if (m_families.isEmpty()) m_families = QFontDatabase::families();
  face = std::make_shared<Face>();
  face->font = FontTable::standard().fontFor(font, m_families);
  if (!font.bigFile.isEmpty()) {
    // What the first font lacks comes from the big font's substitute.
    OdGiFont big;
    big.file = font.bigFile;
    face->font.setFamilies(face->font.families() +
                           FontTable::standard().fontFor(big, m_families).families());
  }
  face->font.setPixelSize(static_cast<int>(kPixelSize));
  face->font.setHintingPreference(QFont::PreferNoHinting);
  face->font.setStyleStrategy(QFont::PreferOutline);
  face->font.setKerning(false);
  const QRawFont raw = QRawFont::fromFont(face->font);
  if (raw.isValid()) {
    // Some fonts do not tell; the letter itself does.
    double cap = raw.capHeight();
    const QList<quint32> glyphs = raw.glyphIndexesForString(QStringLiteral("H"));
    if (!glyphs.isEmpty() && glyphs[0] != 0) {
      const QRectF box = raw.pathForGlyph(glyphs[0]).boundingRect();
      if (box.height() > 0) cap = box.height();
    }
    if (cap > 0) face->capHeight = cap;
    face->descent = raw.descent() / face->capHeight;
  }
  return *face;
}

TextShape TextShapes::horizontal(const Face& face, const OdString& text, double tracking) {
  QFont font = face.font;
  if (tracking != 0) font.setLetterSpacing(QFont::AbsoluteSpacing, tracking * face.capHeight);
  QTextLayout layout(text, font);
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  option.setFlags(QTextOption::IncludeTrailingSpaces);
  layout.setTextOption(option);
  layout.setCacheEnabled(false);
  layout.beginLayout();
  QTextLine line = layout.createLine();
  line.setPosition({0, 0});
  layout.endLayout();
  const QTransform toUnit =
      QTransform::fromScale(1 / face.capHeight, -1 / face.capHeight).translate(0, -line.ascent());
  TextShape shape;
  shape.advance = line.horizontalAdvance() / face.capHeight;
  shape.letters = layout.glyphRuns();
  shape.lettersToUnit = toUnit;
  for (const QGlyphRun& run : shape.letters) {
    const QRawFont raw = run.rawFont();
    const QList<quint32> glyphs = run.glyphIndexes();
    const QList<QPointF> positions = run.positions();
    for (qsizetype i = 0; i < glyphs.size(); ++i) {
      const QTransform placed = QTransform::fromTranslate(positions[i].x(), positions[i].y());
      const std::pair letter(raw, glyphs[i]);
      auto outline = face.outlines.constFind(letter);
      if (outline == face.outlines.cend())
        outline = face.outlines.insert(letter, raw.pathForGlyph(glyphs[i]));
      shape.path.addPath((placed * toUnit).map(*outline));
    }
  }
  shape.path.setFillRule(Qt::WindingFill);
  return shape;
}

/// Characters below each other, each in the middle of the column.
TextShape TextShapes::vertical(const Face& face, const OdString& text, double tracking) {
  TextShape column;
  double y = 0;
  for (const char32_t code : text.toUcs4()) {
    const TextShape one = horizontal(face, OdString::fromUcs4(&code, 1), 0);
    column.path.addPath(one.path.translated(-one.advance / 2, y - 1));
    y -= kColumnStep + tracking;
    column.advance = std::max(column.advance, one.advance);
  }
  column.path.setFillRule(Qt::WindingFill);
  return column;
}

const TextShape& TextShapes::shape(const OdString& text, const OdGiFont& font, double tracking) {
  const OdString key = keyOf(font) + OdString::number(tracking) + u'\x1f' + text;
  if (const auto found = m_shapes.constFind(key); found != m_shapes.cend()) return *found;
  if (m_shapes.size() >= kMostShapes) m_shapes.clear();
  TextShape made;
  if (qGuiApp != nullptr) {
    const Face& used = face(font);
    made = font.vertical ? vertical(used, text, tracking) : horizontal(used, text, tracking);
  } else {
    made.advance = kUsualAdvance * static_cast<double>(text.size());
  }
  made.coarse = contoursOf(made.path, kCoarseHeight);
  made.contours = contoursOf(made.path, kContourHeight);
  return *m_shapes.insert(key, made);
}

double TextShapes::advance(const OdString& text, const OdGiFont& font) const {
  if (qGuiApp == nullptr) return kUsualAdvance * static_cast<double>(text.size());
  const OdString key = keyOf(font) + text;
  if (const auto found = m_advances.constFind(key); found != m_advances.cend()) return *found;
  if (m_advances.size() >= kMostAdvances) m_advances.clear();
  const Face& used = face(font);
  double advance = 0;
  if (font.vertical) {
    for (const char32_t code : text.toUcs4())
      advance = std::max(advance, horizontal(used, OdString::fromUcs4(&code, 1), 0).advance);
  } else {
    QTextLayout layout(text, used.font);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    advance = line.horizontalAdvance() / used.capHeight;
  }
  m_advances.insert(key, advance);
  return advance;
}

double TextShapes::descent(const OdGiFont& font) const {
  return qGuiApp != nullptr ? face(font).descent : kUsualDescent;
}

} // namespace drafton
