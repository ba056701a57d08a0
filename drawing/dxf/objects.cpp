// How groups, pictures and layouts stand in files.
#include "drawing/dxf/fields.h"
#include "drawing/objects/group.h"
#include "drawing/objects/image_def.h"
#include "drawing/objects/layout.h"

namespace {

using GroupField = OdDbDxfField<OdDbGroup::Data>;
constexpr GroupField kGroupFields[] = {
    {300, &OdDbGroup::Data::description},
    {70, &OdDbGroup::Data::unnamed},
    {71, &OdDbGroup::Data::selectable},
};

using ImageField = OdDbDxfField<OdDbRasterImageDef::Data>;
constexpr ImageField kImageVersion = {90, &OdDbRasterImageDef::Data::version};
constexpr ImageField kImagePath = {1, &OdDbRasterImageDef::Data::path};
constexpr ImageField kImageEnd[] = {
    {280, &OdDbRasterImageDef::Data::loaded},
    {281, &OdDbRasterImageDef::Data::units},
};

using Plot = OdDbPlotSettings::Data;
using PlotField = OdDbDxfField<Plot>;
constexpr PlotField kPlotFields[] = {
    {1, &Plot::pageSetup},     {2, &Plot::device},      {4, &Plot::media},
    {6, &Plot::view},          {40, &Plot::left},       {41, &Plot::bottom},
    {42, &Plot::right},        {43, &Plot::top},        {44, &Plot::paperWidth},
    {45, &Plot::paperHeight},  {46, &Plot::originX},    {47, &Plot::originY},
    {48, &Plot::windowMinX},   {49, &Plot::windowMinY}, {140, &Plot::windowMaxX},
    {141, &Plot::windowMaxY},  {142, &Plot::numerator}, {143, &Plot::denominator},
    {70, &Plot::flags},        {72, &Plot::units},      {73, &Plot::rotation},
    {74, &Plot::plotType},     {7, &Plot::styleSheet},  {75, &Plot::standardScale},
    {76, &Plot::shade},        {77, &Plot::resolution}, {78, &Plot::customDpi},
    {147, &Plot::scaleFactor}, {148, &Plot::imageX},    {149, &Plot::imageY},
};

using Layout = OdDbLayout::LayoutData;
using LayoutField = OdDbDxfField<Layout>;
constexpr LayoutField kLayoutStart[] = {
    {1, &Layout::name},
    {70, &Layout::flags},
    {71, &Layout::tabOrder},
};
constexpr LayoutField kLayoutPoints[] = {
    {12, &Layout::base},       {14, &Layout::extentsMin},       {15, &Layout::extentsMax},
    {146, &Layout::elevation}, {13, &Layout::ucsOrigin},        {16, &Layout::ucsX},
    {17, &Layout::ucsY},       {76, &Layout::orthographicView},
};

/// Takes a point of two numbers; false if the tag is none of them.
bool takePair(int code, OdGePoint2d& p, const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (tag.code == code)
    p.x = in.real(tag, p.x);
  else if (tag.code == code + 10)
    p.y = in.real(tag, p.y);
  else
    return false;
  return true;
}

void putReference(int code, OdDbObjectId id, OdDbDxfOut& out) {
  if (id.isValid()) out.reference(code, id);
}

} // namespace

bool OdDbGroup::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (!in.in("AcDbGroup")) return false;
  if (tag.code == 340) {
    if (const OdDbObjectId id = in.reference(tag); !id.isNull()) m_group.entities.push_back(id);
    return true;
  }
  return tag.code == 100 || oddxf::takeTag<Data>(kGroupFields, m_group, tag, in);
}

void OdDbGroup::dxfOut(OdDbDxfOut& out) const {
  out.subclass("AcDbGroup");
  oddxf::putFields<Data>(kGroupFields, m_group, out);
  for (const OdDbObjectId id : m_group.entities) putReference(340, id, out);
}

bool OdDbRasterImageDef::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (!in.in("AcDbRasterImageDef")) return false;
  return tag.code == 100 || oddxf::takeTag<Data>({&kImageVersion, 1}, m_definition, tag, in) ||
         oddxf::takeTag<Data>({&kImagePath, 1}, m_definition, tag, in) ||
         oddxf::takeTag<Data>(kImageEnd, m_definition, tag, in) ||
         takePair(10, m_definition.size, tag, in) || takePair(11, m_definition.pixelSize, tag, in);
}

void OdDbRasterImageDef::dxfOut(OdDbDxfOut& out) const {
  out.subclass("AcDbRasterImageDef");
  oddxf::putField(kImageVersion, m_definition, out);
  oddxf::putField(kImagePath, m_definition, out);
  out.point2d(10, m_definition.size);
  out.point2d(11, m_definition.pixelSize);
  oddxf::putFields<Data>(kImageEnd, m_definition, out);
}

bool OdDbRasterImageDefReactor::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (!in.in("AcDbRasterImageDefReactor")) return false;
  switch (tag.code) {
  case 100:
    return true;
  case 90:
    m_version = in.integer(tag, m_version);
    return true;
  case 330:
    m_image = in.reference(tag);
    return true;
  default:
    return false;
  }
}

void OdDbRasterImageDefReactor::dxfOut(OdDbDxfOut& out) const {
  out.subclass("AcDbRasterImageDefReactor");
  out.integer(90, m_version);
  out.reference(330, m_image);
}

bool OdDbPlotSettings::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (!in.in("AcDbPlotSettings")) return false;
  return tag.code == 100 || oddxf::takeTag<Data>(kPlotFields, m_plot, tag, in);
}

void OdDbPlotSettings::dxfOut(OdDbDxfOut& out) const {
  out.subclass("AcDbPlotSettings");
  oddxf::putFields<Data>(kPlotFields, m_plot, out);
}

bool OdDbLayout::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbPlotSettings::dxfInTag(tag, in)) return true;
  if (!in.in("AcDbLayout")) return false;
  OdDbObjectId* const ids[] = {&m_layout.block, &m_layout.viewport};
  switch (tag.code) {
  case 100:
    return true;
  case 330:
  case 331:
    *ids[tag.code - 330] = in.reference(tag);
    return true;
  case 345:
    m_layout.ucs = in.reference(tag);
    return true;
  case 346:
    m_layout.baseUcs = in.reference(tag);
    return true;
  default:
    return takePair(10, m_layout.limitsMin, tag, in) || takePair(11, m_layout.limitsMax, tag, in) ||
           oddxf::takeTag<Layout>(kLayoutStart, m_layout, tag, in) ||
           oddxf::takeTag<Layout>(kLayoutPoints, m_layout, tag, in);
  }
}

void OdDbLayout::dxfOut(OdDbDxfOut& out) const {
  OdDbPlotSettings::dxfOut(out);
  out.subclass("AcDbLayout");
  oddxf::putFields<Layout>(kLayoutStart, m_layout, out);
  out.point2d(10, m_layout.limitsMin);
  out.point2d(11, m_layout.limitsMax);
  oddxf::putFields<Layout>(kLayoutPoints, m_layout, out);
  out.reference(330, m_layout.block);
  putReference(331, m_layout.viewport, out);
  putReference(345, m_layout.ucs, out);
  putReference(346, m_layout.baseUcs, out);
}
