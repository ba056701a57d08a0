#include "drawing/entities/polyline.h"
#include "drawing/patterns/linetype_file.h"
#include "render/picture_fixture.h"

namespace render_test {
namespace {

using WideLinePictures = PictureTest;

TEST_F(WideLinePictures, WidePolylinesHaveDashesAlongTheirMiddle) {
  const OdLinetypeFile file =
      OdLinetypeFile::read(QStringLiteral(SOURCE_DIR "/drafton/engine/data/draftoniso.lin"));
  const auto wide = [&](const char* linetype, double y, bool runsThrough, int alpha) {
    auto line = odrxMake<OdDbPolyline>();
    const OdGePoint2d corners[] = {{-95, y}, {-40, y}, {-20, y + 25}, {10, y + 25}, {60, y}};
    const double bulges[] = {0, 0, -0.6, 0, 0.5};
    for (unsigned i = 0; i < 5; ++i)
      line->addVertexAt(i, corners[i], bulges[i], i == 3 ? 3 : 6, i == 2 ? 3 : 6);
    line->addVertexAt(5, {95, y}, 0);
    line->setPlinegen(runsThrough);
    if (linetype != nullptr)
      line->setLinetype(file.find(QLatin1String(linetype))->addTo(database()));
    line->setLinetypeScale(0.6);
    line->setColor(OdCmColor::fromColorIndex(5));
    if (alpha != 255)
      line->setTransparency(OdCmTransparency::fromAlpha(static_cast<std::uint8_t>(alpha)));
    add(line);
  };
  wide("DASHED", 45, true, 255);
  wide("CENTER", -5, false, 255);
  wide("DASHDOT", -50, true, 128);
  wide(nullptr, -92, false, 128);
  const QImage image = picture(-105, -105, 105, 105, {480, 480});
  // What can be seen through has no seams: one tone but at the edges, of which few are darker.
  int darker = 0;
  for (int y = 384; y < 480; ++y)
    for (int x = 0; x < 480; ++x) darker += qRed(image.pixel(x, y)) < 110 ? 1 : 0;
  EXPECT_EQ(darker, 0);
  EXPECT_TRUE(looksLike(image, "wide_dashes"));
}

} // namespace
} // namespace render_test
