// Entities in their less usual forms: in space, with heights, as meshes, with notes.
#include "drawing/entities/arc.h"
#include "drawing/entities/attribute_definition.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/dimension_kinds.h"
#include "drawing/entities/ellipse.h"
#include "drawing/entities/leader.h"
#include "drawing/entities/line.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/point.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/polyline2d.h"
#include "drawing/entities/solid.h"
#include "drawing/entities/spline.h"
#include "drawing/patterns/pattern_file.h"
#include "render/picture_fixture.h"

namespace render_test {
namespace {

class ShapePictures : public PictureTest {
 protected:
  /// All of the drawing, from above and before it on the left.
  QImage fromAside(QSize size = {400, 300}) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    View view;
    view.size = size;
    view.direction = {-1, -2, 1.5};
    render(image, scene(), database().getModelSpaceId(),
           view.fitted(scene().boxOf(database().getModelSpaceId(), 0.1), 0.05), {});
    return image;
  }
  void dimension(OdDbDimension* made) {
    made->setDatabaseDefaults(database());
    made->setColor(OdCmColor::fromColorIndex(5));
    add(made);
    made->recomputeDimBlock();
  }
  void line(const OdGePoint3d& from, const OdGePoint3d& to) { add(odrxMake<OdDbLine>(from, to)); }
};

TEST_F(ShapePictures, WithHeightsSeenFromAside) {
  auto wall = odrxMake<OdDbPolyline>();
  for (const OdGePoint2d& p : {OdGePoint2d{0, 0}, {80, 0}, {80, 50}, {0, 50}})
    wall->addVertexAt(wall->numVerts(), p, wall->numVerts() == 1 ? 0.5 : 0);
  wall->setClosed(true);
  wall->setThickness(30);
  add(wall);
  auto circle = odrxMake<OdDbCircle>(OdGePoint3d{120, 25, 0}, OdGeVector3d::zAxis(), 20);
  circle->setThickness(40);
  circle->setColor(OdCmColor::fromColorIndex(1));
  add(circle);
  auto post = odrxMake<OdDbLine>(OdGePoint3d{20, 20, 0}, OdGePoint3d{40, 30, 0});
  post->setThickness(25);
  post->setColor(OdCmColor::fromColorIndex(3));
  add(post);
  auto solid = odrxMake<OdDbSolid>(OdGePoint3d{100, -40, 0}, OdGePoint3d{140, -40, 0},
                                   OdGePoint3d{100, -20, 0}, OdGePoint3d{140, -20, 0});
  solid->setThickness(15);
  solid->setColor(OdCmColor::fromColorIndex(30));
  add(solid);
  auto text = addText(QStringLiteral("on the floor"), 0, -40, 10);
  text->setColor(OdCmColor::fromColorIndex(6));
  EXPECT_TRUE(looksLike(fromAside(), "thickness"));
}

TEST_F(ShapePictures, InPlanesOfTheirOwn) {
  const OdGeVector3d front{0, -1, 0}, tilted{1, 0, 2};
  add(odrxMake<OdDbCircle>(OdGePoint3d{0, 0, 0}, tilted, 30));
  auto arc = odrxMake<OdDbArc>(OdGePoint3d{0, 0, 0}, front, 40, 0.3, 2.5);
  arc->setColor(OdCmColor::fromColorIndex(1));
  add(arc);
  auto ellipse = odrxMake<OdDbEllipse>(OdGePoint3d{0, 0, 0}, front, OdGeVector3d{50, 0, 0}, 0.5);
  ellipse->setColor(OdCmColor::fromColorIndex(3));
  add(ellipse);
  auto text = addText(QStringLiteral("upright"), 0, 0, 12);
  text->setNormal(front);
  text->setPosition({-30, 0, 30});
  auto polyline = odrxMake<OdDbPolyline>();
  polyline->setNormal(front);
  for (const OdGePoint2d& p : {OdGePoint2d{-60, -30}, {60, -30}, {60, 60}})
    polyline->addVertexAt(polyline->numVerts(), p, 0.3);
  polyline->setConstantWidth(3);
  polyline->setColor(OdCmColor::fromColorIndex(5));
  add(polyline);
  EXPECT_TRUE(looksLike(fromAside(), "planes"));
}

TEST_F(ShapePictures, Meshes) {
  auto mesh = odrxMake<OdDb2dPolyline>(OdDb2dPolyline::kMesh);
  constexpr int kM = 7, kN = 6;
  for (int m = 0; m < kM; ++m)
    for (int n = 0; n < kN; ++n)
      mesh->addVertexAt(mesh->numVerts(),
                        {m * 15.0, n * 15.0, 12 * std::sin(m * 0.9) * std::cos(n)});
  mesh->setMeshSize(kM, kN);
  add(mesh);
  EXPECT_TRUE(looksLike(fromAside(), "mesh"));
}

TEST_F(ShapePictures, DimensionsOfLengthsAndRounds) {
  database().setSysVar(QStringLiteral("DIMSCALE"), 2.0);
  // Straight ones.
  line({0, 0, 0}, {60, 0, 0});
  line({60, 0, 0}, {80, 35, 0});
  dimension(odrxMake<OdDbRotatedDimension>(0, OdGePoint3d{0, 0, 0}, OdGePoint3d{60, 0, 0},
                                           OdGePoint3d{0, -14, 0}));
  dimension(odrxMake<OdDbRotatedDimension>(kOdaPi / 2, OdGePoint3d{60, 0, 0},
                                           OdGePoint3d{80, 35, 0}, OdGePoint3d{98, 0, 0}));
  dimension(odrxMake<OdDbAlignedDimension>(OdGePoint3d{60, 0, 0}, OdGePoint3d{80, 35, 0},
                                           OdGePoint3d{50, 10, 0}));
  // Round ones.
  add(odrxMake<OdDbCircle>(OdGePoint3d{150, 15, 0}, OdGeVector3d::zAxis(), 25));
  dimension(odrxMake<OdDbRadialDimension>(OdGePoint3d{150, 15, 0}, OdGePoint3d{168, 32, 0}, 12));
  add(odrxMake<OdDbCircle>(OdGePoint3d{200, 15, 0}, OdGeVector3d::zAxis(), 20));
  dimension(odrxMake<OdDbDiametricDimension>(OdGePoint3d{186, 29, 0}, OdGePoint3d{214, 1, 0}, 0));
  EXPECT_TRUE(looksLike(picture(-15, -30, 225, 60, {960, 360}), "dimension_kinds"));
}

TEST_F(ShapePictures, DimensionsOfAnglesArcsAndCoordinates) {
  database().setSysVar(QStringLiteral("DIMSCALE"), 2.0);
  line({0, 0, 0}, {60, 0, 0});
  line({0, 0, 0}, {45, 45, 0});
  auto lines = odrxMake<OdDb2LineAngularDimension>();
  lines->setLines({0, 0, 0}, {60, 0, 0}, {0, 0, 0}, {45, 45, 0});
  lines->setArcPoint({46, 19, 0});
  dimension(lines);
  line({90, 0, 0}, {125, -5, 0});
  line({90, 0, 0}, {80, 35, 0});
  auto points = odrxMake<OdDb3PointAngularDimension>();
  points->set({90, 0, 0}, {125, -5, 0}, {80, 35, 0}, {107, 25, 0});
  dimension(points);
  const auto onArc = [](double angle) {
    return OdGePoint3d{175 + 25 * std::cos(angle), 25 * std::sin(angle), 0};
  };
  add(odrxMake<OdDbArc>(OdGePoint3d{175, 0, 0}, OdGeVector3d::zAxis(), 25, 0.3, 2.4));
  auto along = odrxMake<OdDbArcDimension>();
  along->set({175, 0, 0}, onArc(0.3), onArc(2.4), {175, 38, 0});
  dimension(along);
  for (const bool isX : {true, false}) {
    auto ordinate = odrxMake<OdDbOrdinateDimension>();
    ordinate->set({0, 0, 0}, {60, 0, 0}, isX ? OdGePoint3d{64, -25, 0} : OdGePoint3d{72, -8, 0},
                  isX);
    dimension(ordinate);
  }
  EXPECT_TRUE(looksLike(picture(-15, -35, 225, 60, {960, 380}), "dimension_angles"));
}

TEST_F(ShapePictures, HatchesWithEdgesOfAllKinds) {
  const OdHatchPatternFile file =
      OdHatchPatternFile::read(QStringLiteral(SOURCE_DIR "/drafton/engine/data/draftoniso.pat"));
  OdDbHatchLoop loop;
  loop.flags = OdDbHatchLoop::kExternal;
  loop.edges = {OdHatchEdge::Line{{0, 0}, {80, 0}},
                OdHatchEdge::Arc{{80, 20}, 20, -kOdaPi / 2, kOdaPi / 2, true},
                OdHatchEdge::Ellipse{{60, 40}, {20, 0}, 0.6, 0, kOdaPi, true},
                OdHatchEdge::Spline{3,
                                    false,
                                    false,
                                    {0, 0, 0, 0, 1, 1, 1, 1},
                                    {},
                                    {{40, 40}, {30, 70}, {10, 20}, {0, 40}},
                                    {},
                                    {},
                                    {}},
                OdHatchEdge::Line{{0, 40}, {0, 0}}};
  const auto hatched = [&](double x, const char16_t* name) {
    auto hatch = odrxMake<OdDbHatch>();
    hatch->appendLoop(loop);
    OdDbHatchLoop island;
    island.flags = OdDbHatchLoop::kPolyline;
    island.vertices = {{{20, 10}, 1}, {{40, 10}, 1}};
    hatch->appendLoop(island);
    if (name != nullptr)
      hatch->setPattern(OdDbHatch::kPreDefined, OdString::fromUtf16(name),
                        *file.find(OdString::fromUtf16(name)));
    hatch->transformBy(OdGeMatrix3d::translation({x, 0, 0}));
    add(hatch);
    return hatch;
  };
  hatched(0, nullptr)->setColor(OdCmColor::fromColorIndex(4));
  hatched(120, u"ANSI37");
  const auto turned = hatched(240, u"BRICK");
  turned->setPatternAngle(0.5);
  EXPECT_TRUE(looksLike(picture(-10, -10, 350, 75, {720, 170}), "hatch_edges"));
}

TEST_F(ShapePictures, WipeoutsCoverWhatIsBeforeThem) {
  for (int i = 0; i < 10; ++i) line({0, i * 6.0, 0}, {120, i * 6.0 + 12, 0});
  // Nothing is known of them but what the file tells.
  const auto wipeout = [](const char* handle, const char* origin, const char* corners) {
    return QByteArray("  0\nWIPEOUT\n  5\n") + handle +
           "\n100\nAcDbEntity\n  8\n0\n 62\n1\n100\nAcDbWipeout\n 90\n0\n" + origin +
           " 11\n40\n 21\n0\n 31\n0\n 12\n0\n 22\n30\n 32\n0\n 13\n1\n 23\n1\n 70\n7\n280\n1\n"
           "281\n50\n282\n50\n283\n0\n" +
           corners;
  };
  QByteArray file = database().writeDxf();
  const QByteArray entities = "  2\nENTITIES\n";
  const qsizetype end = file.indexOf("  0\nENDSEC\n", file.indexOf(entities));
  ASSERT_GT(end, 0);
  file.insert(end, wipeout("F001", " 10\n10\n 20\n15\n 30\n0\n",
                           " 71\n1\n 91\n2\n 14\n-0.5\n 24\n-0.5\n 14\n0.5\n 24\n0.5\n") +
                       wipeout("F002", " 10\n70\n 20\n20\n 30\n0\n",
                               " 71\n2\n 91\n4\n 14\n-0.5\n 24\n0.5\n 14\n0\n 24\n-0.5\n"
                               " 14\n0.5\n 24\n0.5\n 14\n-0.5\n 24\n0.5\n"));
  const OdDbDatabasePtr read = OdDbDatabase::readDxf(file, QStringLiteral("wipeouts.dxf"));
  Scene other(*read);
  QImage image(390, 240, QImage::Format_RGB32);
  RenderOptions options;
  options.ground = Ground(qRgb(230, 240, 255));
  image.fill(options.ground.color());
  View view;
  view.size = image.size();
  OdGeExtents3d box;
  box.addPoint({-5, -5, 0});
  box.addPoint({125, 75, 0});
  render(image, other, read->getModelSpaceId(), view.fitted(box), options);
  EXPECT_TRUE(looksLike(image, "wipeout"));
}

TEST_F(ShapePictures, LeadersWithTheirNotes) {
  auto note = odrxMake<OdDbMText>();
  note->setDatabaseDefaults(database());
  note->setContents(QStringLiteral("A note\\Pof two lines"));
  note->setLocation({12, 8, 0});
  note->setTextHeight(2.5);
  note->setAttachment(OdDbMText::kMiddleLeft);
  const OdDbObjectId noteId = add(note);
  auto leader = odrxMake<OdDbLeader>();
  leader->setDatabaseDefaults(database());
  for (const OdGePoint3d& p : {OdGePoint3d{-15, -10, 0}, {0, 8, 0}, {8, 8, 0}})
    leader->appendVertex(p);
  add(leader);
  leader->attachAnnotation(noteId, OdDbLeader::kMText);
  auto plain = odrxMake<OdDbLeader>();
  plain->setDatabaseDefaults(database());
  plain->appendVertex({-20, 10, 0});
  plain->appendVertex({-10, 0, 0});
  plain->setHasArrowHead(false);
  add(plain);
  EXPECT_TRUE(looksLike(picture(-25, -15, 45, 20, {480, 240}), "leader_note"));
}

TEST_F(ShapePictures, AttributeDefinitionsAndConstantsInAndOutOfBlocks) {
  const auto definition = [&](const char16_t* tag, double y, bool constant) {
    auto made = odrxMake<OdDbAttributeDefinition>();
    made->setDatabaseDefaults(database());
    made->setTag(OdString::fromUtf16(tag));
    made->setTextString(QStringLiteral("value"));
    made->setPosition({0, y, 0});
    made->setHeight(8);
    made->setConstant(constant);
    return made;
  };
  // Alone they show their tags.
  add(definition(u"TAG", 30, false));
  const OdDbObjectId block = addBlock(u"B");
  addTo(block, definition(u"ASKED", 0, false));
  addTo(block, definition(u"FIXED", 12, true));
  add(odrxMake<OdDbBlockReference>(block, OdGePoint3d{60, 0, 0}));
  const OdDbBlockReferencePtr with = odrxMake<OdDbBlockReference>(block, OdGePoint3d{110, 0, 0});
  add(with);
  with->appendAttributesFromBlock({{QStringLiteral("ASKED"), QStringLiteral("given")}});
  EXPECT_TRUE(looksLike(picture(-5, -5, 155, 45, {480, 150}), "attribute_kinds"));
}

} // namespace
} // namespace render_test
