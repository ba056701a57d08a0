// What is shown of entities that nobody knows.
#include "drawing/database.h"
#include "drawing/objects/raw_object.h"

#include "drawing/contents/unknown_entity.h"

#include <QtEndian>

#include <bit>

namespace {

/// Puts a picture together, piece by piece.
class Picture {
 public:
  Picture& piece(int kind) {
    close();
    m_start = m_bytes.size();
    return integer(0).integer(kind);
  }
  Picture& integer(std::int32_t value) {
    char bytes[4];
    qToLittleEndian(value, bytes);
    m_bytes.append(bytes, 4);
    return *this;
  }
  Picture& real(double value) {
    char bytes[8];
    qToLittleEndian(std::bit_cast<std::uint64_t>(value), bytes);
    m_bytes.append(bytes, 8);
    return *this;
  }
  Picture& reals(std::initializer_list<double> values) {
    for (const double v : values) real(v);
    return *this;
  }
  Picture& text(QByteArray value) {
    value.append('\0');
    m_bytes += value.leftJustified((value.size() + 3) / 4 * 4, '\0');
    return *this;
  }
  Picture& wide(const QString& value) {
    QByteArray bytes;
    for (const QChar c : value + QChar()) {
      bytes += static_cast<char>(c.cell());
      bytes += static_cast<char>(c.row());
    }
    m_bytes += bytes.leftJustified((bytes.size() + 3) / 4 * 4, '\0');
    return *this;
  }
  QByteArray bytes() {
    close();
    Picture head;
    head.integer(static_cast<std::int32_t>(m_bytes.size() + 8)).integer(m_count);
    return head.m_bytes + m_bytes;
  }

 private:
  void close() {
    if (m_start < 0) return;
    qToLittleEndian(static_cast<std::int32_t>(m_bytes.size() - m_start), m_bytes.data() + m_start);
    m_start = -1;
    ++m_count;
  }
  QByteArray m_bytes;
  qsizetype m_start = -1;
  int m_count = 0;
};

/// The tags of a picture as it stands in files.
QByteArray tagsOf(const QByteArray& bytes, int sizeCode = 160) {
  QByteArray tags = QByteArray::number(sizeCode) + "\n" + QByteArray::number(bytes.size()) + "\n";
  for (qsizetype at = 0; at < bytes.size(); at += 127)
    tags += "310\n" + bytes.mid(at, 127).toHex().toUpper() + "\n";
  return tags;
}

Recorder played(Picture& picture) { return shownBy(*drawingWith(tagsOf(picture.bytes()), "")); }

/// A line from (0, 0) to (1, 0).
Picture& line(Picture& picture) { return picture.piece(6).integer(2).reals({0, 0, 0, 1, 0, 0}); }

const OdDbObjectId kOwn;

} // namespace

TEST(ProxyGraphic, ShowsLinesAndPolygons) {
  Picture p;
  line(p);
  p.piece(7).integer(3).reals({0, 0, 0, 4, 0, 0, 0, 3, 0});
  p.piece(32).integer(2).reals({5, 5, 0, 6, 6, 1, 0, 0, 1});
  p.piece(20).integer(1).piece(7).integer(3).reals({0, 0, 0, 4, 0, 0, 0, 3, 0});
  p.piece(20).integer(0).piece(7).integer(3).reals({0, 0, 0, 4, 0, 0, 0, 3, 0});
  const Recorder shown = played(p);
  ASSERT_EQ(shown.lines.size(), 4u);
  expectNear(shown.lines[0].points.at(1), {1, 0, 0});
  EXPECT_FALSE(shown.lines[0].closed);
  EXPECT_TRUE(shown.lines[1].closed);
  ASSERT_EQ(shown.lines[2].points.size(), 2u);
  expectNear(shown.lines[2].points[1], {6, 6, 1});
  ASSERT_EQ(shown.areas.size(), 1u);
  EXPECT_EQ(shown.areas[0][0].size(), 3u);
}

TEST(ProxyGraphic, ShowsCirclesAndArcs) {
  Picture p;
  p.piece(2).reals({1, 2, 3, 5, 0, 0, 1});
  p.piece(3).reals({1, 0, 0, 0, 1, 0, -1, 0, 0});
  p.piece(4).reals({1, 2, 0, 5, 0, 0, 1, 0, 1, 0, kOdaPi / 2}).integer(0);
  p.piece(5).reals({1, 0, 0, 0, 1, 0, -1, 0, 0}).integer(0);
  p.piece(5).reals({1, 0, 0, 2, 0, 0, 3, 0, 0}).integer(0);
  const Recorder shown = played(p);
  ASSERT_EQ(shown.arcs.size(), 4u);
  expectNear(shown.arcs[0].center, {1, 2, 3});
  EXPECT_NEAR(shown.arcs[0].u.length(), 5, 1e-12);
  EXPECT_TRUE(shown.arcs[0].isClosed());
  expectNear(shown.arcs[1].center, {0, 0, 0});
  EXPECT_TRUE(shown.arcs[1].isClosed());
  expectNear(shown.arcs[2].pointAt(0), {1, 7, 0});
  expectNear(shown.arcs[2].pointAt(shown.arcs[2].sweep), {-4, 2, 0});
  expectNear(shown.arcs[3].pointAt(0), {1, 0, 0});
  EXPECT_NEAR(shown.arcs[3].sweep, kOdaPi, 1e-12);
}

TEST(ProxyGraphic, ShowsMeshesAndShells) {
  Picture p;
  p.piece(8).integer(2).integer(3);
  for (int i = 0; i < 6; ++i) p.reals({i % 3 * 1.0, i / 3 * 1.0, 0});
  p.piece(9).integer(4).reals({0, 0, 0, 1, 0, 0, 1, 1, 0, 0, 1, 5});
  p.integer(9).integer(4).integer(0).integer(1).integer(2).integer(3);
  p.integer(-3).integer(0).integer(1).integer(2);
  const Recorder shown = played(p);
  // Two rows, three columns, two faces.
  ASSERT_EQ(shown.lines.size(), 7u);
  EXPECT_EQ(shown.lines[0].points.size(), 3u);
  EXPECT_EQ(shown.lines[2].points.size(), 2u);
  EXPECT_TRUE(shown.lines[5].closed);
  expectNear(shown.lines[5].points.at(3), {0, 1, 5});
  EXPECT_EQ(shown.lines[6].points.size(), 3u);
}

TEST(ProxyGraphic, ShowsTextsOfAllKinds) {
  Picture p;
  p.piece(10).reals({1, 2, 0, 0, 0, 1, 0, 1, 0, 2.5, 0.5, 0}).text("a%%d");
  p.piece(36).reals({1, 2, 0, 0, 0, 1, 1, 0, 0, 2.5, 1, 0}).wide(QStringLiteral("Größe"));
  p.piece(11).reals({1, 2, 0, 0, 0, 1, 1, 0, 0}).text("%%d").integer(-1).integer(1);
  p.reals({2, 1, 0, 1.25});
  for (const int flag : {0, 0, 0, 1, 0}) p.integer(flag);
  p.text("romans.shx").text("big.shx");
  p.piece(38).reals({1, 2, 0, 0, 0, 1, 1, 0, 0}).wide(QStringLiteral("Länge")).integer(2);
  p.integer(1).reals({2, 1, 0, 1});
  for (const int flag : {1, 1, 0, 0, 1, 1, 1, 0, 34}) p.integer(flag);
  p.wide(QStringLiteral("Arial")).wide(QStringLiteral("arial.ttf")).wide(QString());
  const Recorder shown = played(p);
  ASSERT_EQ(shown.texts.size(), 4u);
  EXPECT_EQ(shown.texts[0].text, QStringLiteral("a°"));
  expectNear(OdGePoint3d() + shown.texts[0].along, {0, 1.25, 0});
  expectNear(OdGePoint3d() + shown.texts[0].up, {-2.5, 0, 0});
  EXPECT_EQ(shown.texts[1].text, QStringLiteral("Größe"));
  EXPECT_EQ(shown.texts[2].text, QStringLiteral("%%d"));
  EXPECT_EQ(shown.texts[2].font.file, QStringLiteral("romans.shx"));
  EXPECT_EQ(shown.texts[2].font.bigFile, QStringLiteral("big.shx"));
  EXPECT_EQ(shown.texts[2].tracking, 0.25);
  EXPECT_TRUE(shown.texts[2].underlined);
  EXPECT_EQ(shown.texts[3].text, QStringLiteral("Lä"));
  EXPECT_EQ(shown.texts[3].font.typeface, QStringLiteral("Arial"));
  EXPECT_TRUE(shown.texts[3].font.bold && shown.texts[3].font.italic && shown.texts[3].overlined);
  expectNear(OdGePoint3d() + shown.texts[3].along, {-2, 0, 0});
  expectNear(OdGePoint3d() + shown.texts[3].up, {0, -2, 0});
}

TEST(ProxyGraphic, ShowsEndlessLines) {
  Picture p;
  p.piece(12).reals({1, 2, 0, 3, 2, 0}).piece(13).reals({1, 2, 0, 1, 9, 0});
  p.piece(13).reals({1, 2, 0, 1, 2, 0});
  const Recorder shown = played(p);
  ASSERT_EQ(shown.endlessLines.size(), 2u);
  EXPECT_TRUE(shown.endlessLines[0].bothWays);
  EXPECT_FALSE(shown.endlessLines[1].bothWays);
  expectNear(shown.endlessLines[1].origin, {1, 2, 0});
  EXPECT_GT(shown.endlessLines[1].direction.y, 0);
}

TEST(ProxyGraphic, FollowsColoursLayersAndLineTypes) {
  Picture p;
  line(p).piece(14).integer(3);
  line(p).piece(22).integer(static_cast<std::int32_t>(0xC2102030));
  line(p).piece(14).integer(256);
  line(p).piece(16).integer(0);
  line(p).piece(14).integer(0);
  line(p).piece(18).integer(1).piece(18).integer(4000);
  // Layer 2 is off.
  p.piece(16).integer(2);
  line(p).piece(16).integer(1);
  const OdDbDatabasePtr db = drawingWith(tagsOf(p.bytes()), "");
  const Recorder shown = shownBy(*db);
  EXPECT_EQ(shown.lines.size(), 6u);
  const std::optional<OdCmColor> expected[] = {
      OdCmColor::fromColorIndex(3),
      OdCmColor::fromRgb(0x10, 0x20, 0x30),
      OdCmColor::fromColorIndex(1), // that of the entity's layer
      std::nullopt,                 // layer 0 is what stands around
      std::nullopt,                 // by block
      std::nullopt,                 // on other layers it stays so
      std::nullopt,
      std::nullopt, // in the end
  };
  EXPECT_EQ(shown.colors, std::vector(std::begin(expected), std::end(expected)));
  const OdDbObjectId second = db->getLinetypeTableId().openAs<OdDbLinetypeTable>()->recordIds()[1];
  EXPECT_EQ(shown.linetypes, (std::vector{second, kOwn, kOwn}));
}

TEST(ProxyGraphic, MovesPiecesByMatrices) {
  Picture p;
  p.piece(29).reals({1, 0, 0, 10, 0, 1, 0, 20, 0, 0, 1, 0, 0, 0, 0, 1});
  p.piece(30).reals({2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 1});
  line(p).piece(31);
  line(p).piece(31).piece(31);
  line(p);
  const Recorder shown = played(p);
  ASSERT_EQ(shown.lines.size(), 3u);
  expectNear(shown.lines[0].points[1], {12, 20, 0});
  expectNear(shown.lines[1].points[1], {11, 20, 0});
  expectNear(shown.lines[2].points[1], {1, 0, 0});
}

TEST(ProxyGraphic, StandsInOldAndNewFilesAndInProxies) {
  Picture p;
  line(p);
  const QByteArray graphic = p.bytes();
  EXPECT_EQ(shownBy(*drawingWith(tagsOf(graphic, 92), "")).lines.size(), 1u);
  // Behind the picture the data of the program stands under the same code.
  const QByteArray proxy =
      "100\nAcDbProxyEntity\n 90\n498\n" + tagsOf(graphic) + "161\n32\n310\n00112233\n";
  EXPECT_EQ(shownBy(*drawingWith("", proxy, "ACAD_PROXY_ENTITY")).lines.size(), 1u);
  EXPECT_EQ(shownBy(*drawingWith("", "")).lines.size(), 0u);
}

TEST(ProxyGraphic, CutAnywhereShowsWhatIsWhole) {
  Picture p;
  line(p);
  p.piece(10).reals({1, 2, 0, 0, 0, 1, 0, 1, 0, 2.5, 0.5, 0}).text("abc");
  p.piece(9).integer(3).reals({0, 0, 0, 1, 0, 0, 1, 1, 0}).integer(4).integer(3);
  p.integer(0).integer(1).integer(2);
  const QByteArray whole = p.bytes();
  for (qsizetype size = 0; size <= whole.size(); ++size) {
    const Recorder shown = shownBy(*drawingWith(tagsOf(whole.left(size)), ""));
    EXPECT_LE(shown.lines.size(), 2u);
  }
}

TEST(ProxyGraphic, ThatLiesAboutNumbersShowsNothing) {
  const double nan = std::nan("");
  const std::function<void(Picture&)> lies[] = {
      [](Picture& p) {
        p.piece(6).integer(2'000'000'000).reals({0, 0, 0});
      },
      [](Picture& p) {
        p.piece(6).integer(-1).reals({0, 0, 0});
      },
      [](Picture& p) { p.piece(8).integer(2'000'000'000).integer(2'000'000'000); },
      [](Picture& p) {
        p.piece(8).integer(-2).integer(-3).reals({0, 0, 0});
      },
      [](Picture& p) {
        p.piece(9).integer(1).reals({0, 0, 0}).integer(5).integer(INT_MIN);
      },
      [](Picture& p) {
        p.piece(9).integer(1).reals({0, 0, 0}).integer(2).integer(1).integer(7);
      },
      [=](Picture& p) {
        p.piece(6).integer(2).reals({nan, 0, 0, 1, 1, 1});
      },
      [=](Picture& p) {
        p.piece(2).reals({0, 0, 0, nan, 0, 0, 1});
      },
      [](Picture& p) {
        p.piece(2).reals({0, 0, 0, 1, 0, 0, 0});
      },
      [=](Picture& p) { p.piece(29).reals({nan}); },
      [](Picture& p) { p.piece(999).integer(1); },
      [](Picture& p) { p.piece(14).integer(-5).piece(16).integer(-1).piece(18).integer(-7); },
  };
  for (const auto& lie : lies) {
    Picture p;
    lie(p);
    const Recorder shown = played(p);
    EXPECT_TRUE(shown.lines.empty() && shown.arcs.empty());
  }
  QByteArray sizes = Picture().bytes() + QByteArray(8, '\0');
  EXPECT_TRUE(shownBy(*drawingWith(tagsOf(sizes), "")).lines.empty());
}

TEST(RawEntities, OfTablesAreShownByTheirBlock) {
  const OdDbDatabasePtr db = drawingWith("",
                                         "100\nAcDbBlockReference\n  2\n*T1\n 10\n5\n 20\n6\n "
                                         "30\n0\n100\nAcDbTable\n 11\n0\n 21\n1\n 31\n0\n",
                                         "ACAD_TABLE");
  const Recorder shown = shownBy(*db);
  ASSERT_EQ(shown.blocks.size(), 1u);
  expectNear(shown.blocks[0].second * OdGePoint3d(1, 0, 0), {5, 7, 0});
  OdGeExtents3d box;
  ASSERT_TRUE(oddbtest::entitiesOf(db->getModelSpaceId())[0]->getGeomExtents(box));
  expectNear(box.minPoint(), {4, 5, 0});
  expectNear(box.maxPoint(), {6, 7, 0});
}

TEST(RawEntities, HaveTheBoxOfTheirPicture) {
  Picture p;
  line(p);
  OdGeExtents3d box;
  ASSERT_TRUE(oddbtest::entitiesOf(drawingWith(tagsOf(p.bytes()), "")->getModelSpaceId())[0]
                  ->getGeomExtents(box));
  expectNear(box.maxPoint(), {1, 0, 0});
}

TEST(RawEntities, CannotBeMovedNorTakenApartWithTheirInsert) {
  const OdDbDatabasePtr db = drawingWith("", "");
  const OdDbEntityPtr raw = oddbtest::entitiesOf(db->getModelSpaceId())[0];
  const OdGeMatrix3d moved = OdGeMatrix3d::translation({1, 0, 0});
  EXPECT_FALSE(raw->transformBy(moved));
  EXPECT_EQ(raw->getTransformedCopy(moved), nullptr);
  EXPECT_THROW(raw->clone(), OdError);
}
