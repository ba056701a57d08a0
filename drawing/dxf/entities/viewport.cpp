// How VIEWPORT stands in files.
#include "drawing/entities/viewport.h"
#include "drawing/dxf/entities/old_view.h"
#include "drawing/dxf/fields.h"

namespace {

constexpr std::string_view kSubclass = "AcDbViewport";

using View = OdDbViewport::Data;
using ViewField = OdDbDxfField<View>;
constexpr ViewField kSheet[] = {
    {10, &View::center},   {40, &View::width},  {41, &View::height},
    {68, &View::statusId}, {69, &View::number},
};
struct Pair {
  int code;
  OdGePoint2d View::*member;
};
constexpr Pair kPairs[] = {
    {12, &View::viewCenter},
    {13, &View::snapBase},
    {14, &View::snapSpacing},
    {15, &View::gridSpacing},
};
constexpr ViewField kView[] = {
    {16, &View::direction},
    {17, &View::target},
    {42, &View::lens},
    {43, &View::frontClip},
    {44, &View::backClip},
    {45, &View::viewHeight},
    {50, &View::snapAngle, ViewField::kAngle},
    {51, &View::twist, ViewField::kAngle},
    {72, &View::circleZoom},
};
constexpr ViewField kStatus = {90, &View::status};

} // namespace

bool OdDbViewport::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  if (!in.in(kSubclass)) return false;
  switch (tag.code) {
  case 100:
    return true;
  case 331:
  case 341:
    if (const OdDbObjectId layer = in.reference(tag); !layer.isNull())
      m_viewport.frozenLayers.push_back(layer);
    return true;
  case 340:
    m_viewport.clipEntity = in.reference(tag);
    return true;
  default:
    break;
  }
  for (const Pair& pair : kPairs) {
    OdGePoint2d& p = m_viewport.*pair.member;
    if (tag.code != pair.code && tag.code != pair.code + 10) continue;
    (tag.code == pair.code ? p.x : p.y) = in.real(tag, 0);
    return true;
  }
  return oddxf::takeTag<Data>(kSheet, m_viewport, tag, in) ||
         oddxf::takeTag<Data>(kView, m_viewport, tag, in) ||
         oddxf::takeTag<Data>({&kStatus, 1}, m_viewport, tag, in);
}

void OdDbViewport::dxfInEnd(OdDbDxfIn& in) {
  OdDbEntity::dxfInEnd(in);
  oddxf::takeOldView(*this, m_viewport, in);
  oddxf::mendNormal(m_viewport.direction, in);
  for (double* const size : {&m_viewport.width, &m_viewport.height, &m_viewport.viewHeight})
    if (!(*size > 0)) *size = 1;
}

void OdDbViewport::dxfOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  out.subclass("AcDbViewport");
  oddxf::putFields<Data>(kSheet, m_viewport, out);
  for (const Pair& pair : kPairs) out.point2d(pair.code, m_viewport.*pair.member);
  oddxf::putFields<Data>(kView, m_viewport, out);
  for (const OdDbObjectId layer : m_viewport.frozenLayers)
    if (layer.isValid()) out.reference(331, layer);
  oddxf::putField(kStatus, m_viewport, out);
  if (m_viewport.clipEntity.isValid()) out.reference(340, m_viewport.clipEntity);
}
