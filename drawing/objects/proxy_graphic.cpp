#include "drawing/objects/proxy_graphic.h"

#include "drawing/database_data.h"
#include "drawing/entities/text_font.h"
#include "drawing/mtext/text_codes.h"
#include "drawing/objects/proxy_bytes.h"

namespace {

using Bytes = oddb::ProxyBytes;

class Player {
 public:
  Player(const OdDbEntity& entity, OdGiWorldDraw& draw)
    : m_entity(entity)
    , m_draw(draw) {}
  ~Player() {
    m_draw.setPieceColor(std::nullopt);
    m_draw.setPieceLinetype({});
  }
  Player(const Player&) = delete;
  Player& operator=(const Player&) = delete;

  void play(std::int32_t kind, Bytes piece);

 private:
  /// Pieces by the numbers of their kinds; shapes are shown, the rest is about shapes.
  struct Row {
    std::int32_t kind;
    void (Player::*show)(Bytes&);
    bool isShape = true;
  };
  static const Row kRows[];

  OdGePoint3d placed(const OdGePoint3d& p) const {
    return m_transforms.empty() ? p : m_transforms.back() * p;
  }
  OdGeVector3d placed(const OdGeVector3d& v) const {
    return m_transforms.empty() ? v : m_transforms.back() * v;
  }

  void show(const OdGePoint3d& center, const OdGeVector3d& u, const OdGeVector3d& v, double sweep) {
    m_draw.arc(
        {placed(center), placed(u), placed(v), 0, std::clamp(sweep, -2 * kOdaPi, 2 * kOdaPi)});
  }

  void circle(Bytes& piece) {
    const OdGePoint3d center = piece.point();
    const double radius = piece.real();
    const OdGeVector3d normal = piece.vector();
    if (piece.failed() || normal.isZeroLength()) return;
    const OdGeMatrix3d plane = OdGeMatrix3d::planeToWorld(normal.normal());
    show(center, plane * OdGeVector3d{radius, 0, 0}, plane * OdGeVector3d{0, radius, 0},
         2 * kOdaPi);
  }

  void arc(Bytes& piece) {
    const OdGePoint3d center = piece.point();
    const double radius = piece.real();
    const OdGeVector3d normal = piece.vector();
    const OdGeVector3d start = piece.vector();
    const double sweep = piece.real();
    if (piece.failed() || normal.isZeroLength() || start.isZeroLength()) return;
    const OdGeVector3d u = start.normal() * radius;
    show(center, u, normal.normal().crossProduct(u), sweep);
  }

  void circleThrough(Bytes& piece) { throughPoints(piece, true); }
  void arcThrough(Bytes& piece) { throughPoints(piece, false); }

  void throughPoints(Bytes& piece, bool whole) {
    const OdGePoint3d a = piece.point();
    const OdGePoint3d b = piece.point();
    const OdGePoint3d c = piece.point();
    const OdGeVector3d ab = b - a;
    const OdGeVector3d ac = c - a;
    const OdGeVector3d n = ab.crossProduct(ac);
    const double size = n.lengthSqrd();
    if (piece.failed() || !(size > 0)) return;
    const OdGeVector3d toCenter =
        (n.crossProduct(ab) * ac.lengthSqrd() + ac.crossProduct(n) * ab.lengthSqrd()) *
        (1 / (2 * size));
    const OdGePoint3d center = a + toCenter;
    if (!odgeIsFinite(center)) return;
    const OdGeVector3d u = a - center;
    const OdGeVector3d v = n.normal().crossProduct(u);
    const OdGeVector3d w = c - center;
    const double sweep = odgeNormalAngle(std::atan2(w.dotProduct(v), w.dotProduct(u)));
    show(center, u, v, whole ? 2 * kOdaPi : sweep);
  }

  void polyline(Bytes& piece) {
    std::vector<OdGePoint3d> points = piece.points();
    if (!piece.failed()) lines(std::move(points), false);
  }
  void polygon(Bytes& piece) {
    std::vector<OdGePoint3d> points = piece.points();
    if (!piece.failed()) lines(std::move(points), true);
  }

  void lines(std::vector<OdGePoint3d> points, bool closed) {
    if (points.empty()) return;
    for (OdGePoint3d& p : points) p = placed(p);
    if (closed && m_filled && points.size() > 2)
      m_draw.area({points});
    else
      m_draw.polyline(points, closed);
  }

  void mesh(Bytes& piece) {
    const std::int32_t rows = piece.integer();
    const std::int32_t columns = piece.integer();
    if (rows < 1 || columns < 1 || !piece.hasPoints(std::int64_t{rows} * columns)) return;
    std::vector<std::vector<OdGePoint3d>> grid(static_cast<std::size_t>(rows));
    for (auto& row : grid)
      for (std::int32_t i = 0; i < columns; ++i) row.push_back(piece.point());
    if (piece.failed()) return;
    for (const auto& row : grid) lines(row, false);
    for (std::size_t i = 0; i < static_cast<std::size_t>(columns); ++i) {
      std::vector<OdGePoint3d> column;
      for (const auto& row : grid) column.push_back(row[i]);
      lines(std::move(column), false);
    }
  }

  void shell(Bytes& piece) {
    const std::vector<OdGePoint3d> points = piece.points();
    std::int64_t left = piece.integer();
    while (left > 0 && !piece.failed()) {
      // Below 0: a hole in the face before.
      const std::int64_t corners = std::abs(std::int64_t{piece.integer()});
      if (corners > piece.left() / 4) return;
      std::vector<OdGePoint3d> face;
      for (std::int64_t i = 0; i < corners; ++i) {
        const std::int32_t index = piece.integer();
        if (index < 0 || static_cast<std::size_t>(index) >= points.size()) return;
        face.push_back(points[static_cast<std::size_t>(index)]);
      }
      left -= corners + 1;
      lines(std::move(face), true);
    }
  }

  void xline(Bytes& piece) { endless(piece, true); }
  void ray(Bytes& piece) { endless(piece, false); }
  void endless(Bytes& piece, bool bothWays) {
    const OdGePoint3d from = piece.point();
    const OdGeVector3d direction = piece.point() - from;
    if (piece.failed() || direction.isZeroLength()) return;
    m_draw.endless(placed(from), placed(direction), bothWays);
  }

  // Of the texts two kinds have no more than a size; two say everything.
  void plainText(Bytes& piece) { shortText(piece, &Bytes::text); }
  void widePlainText(Bytes& piece) { shortText(piece, &Bytes::wideText); }
  void fullText(Bytes& piece) { longText(piece, &Bytes::text, false); }
  void wideFullText(Bytes& piece) { longText(piece, &Bytes::wideText, true); }

  struct TextPlace {
    OdGePoint3d origin;
    OdGeVector3d normal, direction;
    double height = 0, width = 1, oblique = 0;
    bool backwards = false, upsideDown = false;
  };
  static TextPlace placeOf(Bytes& piece) {
    TextPlace place;
    place.origin = piece.point();
    place.normal = piece.vector();
    place.direction = piece.vector();
    return place;
  }
  static void takeSize(TextPlace& place, Bytes& piece) {
    place.height = piece.real();
    place.width = piece.real();
    place.oblique = piece.real();
  }

  void shortText(Bytes& piece, OdString (Bytes::*textOf)()) {
    TextPlace place = placeOf(piece);
    takeSize(place, piece);
    OdGiTextRun run;
    run.text = odtext::plain((piece.*textOf)());
    run.font = oddbFontOf({});
    if (!piece.failed()) show(place, run);
  }

  void longText(Bytes& piece, OdString (Bytes::*textOf)(), bool hasTypeface) {
    TextPlace place = placeOf(piece);
    OdGiTextRun run;
    run.text = (piece.*textOf)();
    const std::int32_t length = piece.integer();
    if (length >= 0) run.text.truncate(length);
    const bool codesAreResolved = piece.integer() != 0;
    if (!codesAreResolved) run.text = odtext::plain(run.text);
    takeSize(place, piece);
    run.tracking = piece.real() - 1;
    place.backwards = piece.integer() != 0;
    place.upsideDown = piece.integer() != 0;
    run.font.vertical = piece.integer() != 0;
    run.underlined = piece.integer() != 0;
    run.overlined = piece.integer() != 0;
    if (hasTypeface) {
      run.font.bold = piece.integer() != 0;
      run.font.italic = piece.integer() != 0;
      piece.integer(); // character set
      piece.integer(); // pitch and family
      run.font.typeface = (piece.*textOf)();
    }
    run.font.file = (piece.*textOf)();
    run.font.bigFile = (piece.*textOf)();
    // Room of its own behind a letter is told as a factor; nobody means none at all.
    if (!(std::abs(run.tracking) < 10)) run.tracking = 0;
    if (!piece.failed()) show(place, run);
  }

  void show(const TextPlace& place, OdGiTextRun& run) {
    if (run.text.isEmpty() || place.direction.isZeroLength() || place.normal.isZeroLength()) return;
    const OdGeVector3d along = place.direction.normal();
    const OdGeVector3d up = place.normal.normal().crossProduct(along);
    run.origin = placed(place.origin);
    run.along = placed(along * (place.height * place.width * (place.backwards ? -1 : 1)));
    run.up = placed((up + along * std::tan(place.oblique)) *
                    (place.height * (place.upsideDown ? -1 : 1)));
    m_draw.text(run);
  }

  void colorIndex(Bytes& piece) {
    const std::int32_t index = piece.integer();
    m_color = OdCmColor();
    if (index >= 0 && index < OdCmColor::kACInone) m_color.setColorIndex(index);
    tellColor();
  }
  void trueColor(Bytes& piece) {
    m_color.setColor(static_cast<std::uint32_t>(piece.integer()));
    tellColor();
  }
  void layer(Bytes& piece) {
    m_layer = recordAt(OdDbDatabaseData::kLayers, piece.integer());
    if (m_hasColor) tellColor();
  }
  void linetype(Bytes& piece) {
    m_draw.setPieceLinetype(recordAt(OdDbDatabaseData::kLinetypes, piece.integer()));
  }
  void fill(Bytes& piece) { m_filled = piece.integer() == 1; }

  /// The record with a number, as they stand in the file; null if there is none.
  OdDbObjectId recordAt(OdDbDatabaseData::Table table, std::int32_t index) const {
    const auto records = m_entity.database()->data().tables[table].openAs<OdDbSymbolTable>();
    if (index < 0 || static_cast<std::size_t>(index) >= records->recordIds().size()) return {};
    return records->recordIds()[static_cast<std::size_t>(index)];
  }

  static OdDbLayerTableRecordPtr layerOf(OdDbObjectId id) {
    const OdDbObjectPtr record = id.openObject();
    return OdDbLayerTableRecordPtr(odrxCast<OdDbLayerTableRecord>(record.get()));
  }

  bool isLayerHidden() const {
    const OdDbLayerTableRecordPtr layer = layerOf(m_layer);
    return layer && (layer->isOff() || layer->isFrozen());
  }

  void tellColor() {
    m_hasColor = true;
    std::optional<OdCmColor> told;
    if (m_color.isByColor() || m_color.isByACI()) {
      told = m_color;
    } else if (m_color.isByLayer()) {
      const OdDbObjectId id = m_layer.isNull() ? m_entity.layerId() : m_layer;
      const OdDbLayerTableRecordPtr layer = layerOf(id);
      // Layer 0 is that of whatever stands around.
      if (layer && id != m_entity.database()->getLayerZeroId()) told = layer->color();
    }
    m_draw.setPieceColor(told);
  }

  void push(Bytes& piece) {
    double m[16];
    for (double& value : m) value = piece.real();
    if (piece.failed()) return;
    const OdGeMatrix3d own = OdGeMatrix3d::coordSystem({m[3], m[7], m[11]}, {m[0], m[4], m[8]},
                                                       {m[1], m[5], m[9]}, {m[2], m[6], m[10]});
    m_transforms.push_back(m_transforms.empty() ? own : m_transforms.back() * own);
  }
  void pop(Bytes&) {
    if (!m_transforms.empty()) m_transforms.pop_back();
  }

  const OdDbEntity& m_entity;
  OdGiWorldDraw& m_draw;
  std::vector<OdGeMatrix3d> m_transforms;
  OdDbObjectId m_layer;
  OdCmColor m_color;
  bool m_hasColor = false, m_filled = false;
};

constexpr Player::Row Player::kRows[] = {
    {2, &Player::circle},
    {3, &Player::circleThrough},
    {4, &Player::arc},
    {5, &Player::arcThrough},
    {6, &Player::polyline},
    {7, &Player::polygon},
    {8, &Player::mesh},
    {9, &Player::shell},
    {10, &Player::plainText},
    {11, &Player::fullText},
    {12, &Player::xline},
    {13, &Player::ray},
    {14, &Player::colorIndex, false},
    {16, &Player::layer, false},
    {18, &Player::linetype, false},
    {20, &Player::fill, false},
    {22, &Player::trueColor, false},
    {29, &Player::push, false},
    {30, &Player::push, false},
    {31, &Player::pop, false},
    {32, &Player::polyline},
    {36, &Player::widePlainText},
    {38, &Player::wideFullText},
};

void Player::play(std::int32_t kind, Bytes piece) {
  for (const Row& row : kRows) {
    if (row.kind != kind) continue;
    if (row.isShape && isLayerHidden()) return;
    (this->*row.show)(piece);
    return;
  }
  // What nobody can draw says nothing about the pieces around it.
}

} // namespace

void oddb::drawProxyGraphic(const QByteArray& bytes, const OdDbEntity& entity,
                            OdGiWorldDraw& draw) {
  // The length of the whole and the number of pieces stand in front; each piece has its length and
  // its kind in front.
  constexpr qsizetype kHead = 8;
  const QByteArray& encoding = entity.database()->data().encoding;
  const QByteArrayView all(bytes);
  Player player(entity, draw);
  for (qsizetype at = kHead; at + kHead <= all.size();) {
    Bytes head(all.sliced(at, kHead));
    const std::int32_t size = head.integer();
    const std::int32_t kind = head.integer();
    if (size < kHead || size > all.size() - at) return;
    player.play(kind, Bytes(all.sliced(at + kHead, size - kHead), encoding));
    at += size;
  }
}
