// How IMAGE stands in files.
#include "drawing/entities/raster_image.h"
#include "drawing/dxf/fields.h"

namespace {

constexpr std::string_view kSubclass = "AcDbRasterImage";

using Image = OdDbRasterImage::Data;
using ImageField = OdDbDxfField<Image>;
constexpr ImageField kStart[] = {
    {90, &Image::version},
    {10, &Image::origin},
    {11, &Image::u},
    {12, &Image::v},
};
constexpr ImageField kDisplay = {70, &Image::display};
constexpr ImageField kLook[] = {
    {280, &Image::clipping},
    {281, &Image::brightness},
    {282, &Image::contrast},
    {283, &Image::fade},
};
constexpr ImageField kClipType = {71, &Image::clipType};
constexpr ImageField kInverted = {290, &Image::inverted};

} // namespace

bool OdDbRasterImage::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  if (!in.in(kSubclass)) return false;
  switch (tag.code) {
  case 100:
  case 91: // the corners tell their number
    return true;
  case 13:
    m_image.size.x = in.real(tag, 1);
    return true;
  case 23:
    m_image.size.y = in.real(tag, 1);
    return true;
  case 14:
    m_image.boundary.push_back({in.real(tag, 0), 0});
    return true;
  case 24:
    if (m_image.boundary.empty()) return false;
    m_image.boundary.back().y = in.real(tag, 0);
    return true;
  case 340:
    m_image.definition = in.reference(tag);
    return true;
  case 360:
    m_image.reactor = in.reference(tag);
    return true;
  default:
    return oddxf::takeTag<Data>(kStart, m_image, tag, in) ||
           oddxf::takeTag<Data>({&kDisplay, 1}, m_image, tag, in) ||
           oddxf::takeTag<Data>(kLook, m_image, tag, in) ||
           oddxf::takeTag<Data>({&kClipType, 1}, m_image, tag, in) ||
           oddxf::takeTag<Data>({&kInverted, 1}, m_image, tag, in);
  }
}

void OdDbRasterImage::dxfInEnd(OdDbDxfIn& in) {
  OdDbEntity::dxfInEnd(in);
  if (!(m_image.size.x > 0) || !(m_image.size.y > 0)) {
    in.damage(QStringLiteral("an image has no size"));
    m_image.size = {1, 1};
  }
}

void OdDbRasterImage::dxfOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  out.subclass("AcDbRasterImage");
  oddxf::putFields<Data>(kStart, m_image, out);
  out.point2d(13, m_image.size);
  out.reference(340, m_image.definition);
  oddxf::putField(kDisplay, m_image, out);
  oddxf::putFields<Data>(kLook, m_image, out);
  if (m_image.reactor.isValid()) out.reference(360, m_image.reactor);
  oddxf::putField(kClipType, m_image, out);
  // Files always tell a boundary, that of the whole picture if there is no other.
  std::vector<OdGePoint2d> corners = m_image.boundary;
  if (corners.empty()) corners = {{-0.5, -0.5}, {m_image.size.x - 0.5, m_image.size.y - 0.5}};
  out.integer(91, static_cast<std::int64_t>(corners.size()));
  for (const OdGePoint2d& p : corners) out.point2d(14, p);
  if (out.version() >= OdDb::kR2010) oddxf::putField(kInverted, m_image, out);
}
