// How DIMENSION and ARC_DIMENSION stand in files.
#include "drawing/dxf/fields.h"
#include "drawing/entities/dimension_kinds.h"

namespace {

using Dim = OdDbDimension::Data;
using F = OdDbDxfField<Dim>;

constexpr F kCommonStart[] = {
    {280, &Dim::version},
};
constexpr F kCommon[] = {
    {10, &Dim::definition},
    {11, &Dim::textMiddle},
    {12, &Dim::insertion, F::kUnlessPreset},
    {70, &Dim::flags},
    {1, &Dim::text, F::kUnlessPreset},
    {71, &Dim::attachment},
    {72, &Dim::spacingStyle, F::kUnlessPreset},
    {41, &Dim::spacingFactor, F::kUnlessPreset},
    {42, &Dim::measurement, F::kUnlessPreset},
    {73, &Dim::spare74, F::kUnlessPreset},
    {74, &Dim::flipFirst, F::kUnlessPreset},
    {75, &Dim::flipSecond, F::kUnlessPreset},
    {53, &Dim::textRotation, F::kAngleUnlessPreset},
    {51, &Dim::horizontalDirection, F::kAngleUnlessPreset},
    {210, &Dim::normal, F::kUnlessPreset},
};
constexpr F kAligned[] = {
    {12, &Dim::insertion, F::kUnlessPreset},
    {13, &Dim::first},
    {14, &Dim::second},
    {50, &Dim::rotation, F::kAngleUnlessPreset},
    {52, &Dim::oblique, F::kAngleUnlessPreset},
};
constexpr F kPoints[] = {{13, &Dim::first}, {14, &Dim::second}, {15, &Dim::third}};
constexpr F kArcPoint = {16, &Dim::arcPoint};
constexpr F kRound[] = {{15, &Dim::third}, {40, &Dim::leaderLength, F::kUnlessPreset}};
constexpr F kOrdinateFields[] = {{13, &Dim::first}, {14, &Dim::second}};
constexpr F kArc[] = {
    {70, &Dim::isPartial}, {40, &Dim::arcStart},    {41, &Dim::arcEnd},
    {71, &Dim::hasLeader}, {16, &Dim::leaderFirst}, {17, &Dim::leaderSecond},
};

/// The fields of the kinds by their subclasses.
struct Subclass {
  std::string_view name;
  std::span<const F> fields;
};
constexpr F kAngularFields[] = {kPoints[0], kPoints[1], kPoints[2], kArcPoint};
constexpr F kArcLengthFields[] = {kPoints[0], kPoints[1], kPoints[2], kArc[0], kArc[1],
                                  kArc[2],    kArc[3],    kArc[4],    kArc[5]};
constexpr Subclass kSubclasses[] = {
    {"AcDbAlignedDimension", kAligned},
    {"AcDbRotatedDimension", kAligned},
    {"AcDb2LineAngularDimension", kAngularFields},
    {"AcDb3PointAngularDimension", kPoints},
    {"AcDbRadialDimension", kRound},
    {"AcDbDiametricDimension", kRound},
    {"AcDbOrdinateDimension", kOrdinateFields},
    {"AcDbArcDimension", kArcLengthFields},
};
// Files of R12 have no subclasses, and no code there has two meanings.
constexpr F kAllKinds[] = {kPoints[0], kPoints[1],  kPoints[2],  kArcPoint,
                           kRound[1],  kAligned[3], kAligned[4], kAligned[0]};

} // namespace

bool OdDbDimension::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  if (in.in("AcDbDimension")) {
    switch (tag.code) {
    case 100:
      return true;
    case 2:
      if (!tag.text.empty()) m_dimension.block = in.block(tag.text);
      return true;
    case 3:
      m_dimension.style = in.dimStyle(tag.text);
      return true;
    case 52:
      m_dimension.oblique = in.angle(tag, 0);
      m_dimension.obliqueFirst = !in.isPlain();
      return true;
    default:
      break;
    }
    if (oddxf::takeTag<Data>(kCommonStart, m_dimension, tag, in) ||
        oddxf::takeTag<Data>(kCommon, m_dimension, tag, in))
      return true;
    return in.isPlain() && oddxf::takeTag<Data>(kAllKinds, m_dimension, tag, in);
  }
  for (const Subclass& subclass : kSubclasses)
    if (in.in(subclass.name))
      return tag.code == 100 || oddxf::takeTag<Data>(subclass.fields, m_dimension, tag, in);
  return false;
}

void OdDbDimension::dxfInEnd(OdDbDxfIn& in) {
  OdDbEntity::dxfInEnd(in);
  oddxf::mendNormal(m_dimension.normal, in);
}

void OdDbDimension::dxfOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  out.subclass("AcDbDimension");
  if (out.version() >= OdDb::kR2010) oddxf::putFields<Data>(kCommonStart, m_dimension, out);
  if (m_dimension.block.isValid()) out.recordName(2, m_dimension.block, "");
  Data written = m_dimension;
  constexpr int kKindBits = 15;
  // Files do not tell the kind of the length of an arc so.
  if (kind() != kArcLength) written.flags = (written.flags & ~kKindBits) | kind();
  for (const F& field : kCommon) {
    if (field.code == 12 && !written.insertion.asVector().isZeroLength())
      out.point(12, written.insertion);
    else if (field.code != 12 &&
             !((field.code >= 73 && field.code <= 75) && out.version() < OdDb::kR2007))
      oddxf::putField(field, written, out);
    if (field.code == 51) out.recordName(3, m_dimension.style, "Standard");
  }
  if (m_dimension.obliqueFirst) out.angle(52, m_dimension.oblique);
  dxfOutKind(out);
}

void OdDbAlignedDimension::dxfOutKind(OdDbDxfOut& out) const {
  out.subclass("AcDbAlignedDimension");
  out.point(13, m_dimension.first);
  out.point(14, m_dimension.second);
  if (m_dimension.oblique != 0 && !m_dimension.obliqueFirst) out.angle(52, m_dimension.oblique);
}

void OdDbRotatedDimension::dxfOutKind(OdDbDxfOut& out) const {
  out.subclass("AcDbAlignedDimension");
  out.point(13, m_dimension.first);
  out.point(14, m_dimension.second);
  out.angle(50, m_dimension.rotation);
  if (m_dimension.oblique != 0 && !m_dimension.obliqueFirst) out.angle(52, m_dimension.oblique);
  out.subclass("AcDbRotatedDimension");
}

void OdDbRadialDimension::dxfOutKind(OdDbDxfOut& out) const {
  out.subclass("AcDbRadialDimension");
  oddxf::putFields<Data>(kRound, m_dimension, out);
}

void OdDbDiametricDimension::dxfOutKind(OdDbDxfOut& out) const {
  out.subclass("AcDbDiametricDimension");
  oddxf::putFields<Data>(kRound, m_dimension, out);
}

void OdDb2LineAngularDimension::dxfOutKind(OdDbDxfOut& out) const {
  out.subclass("AcDb2LineAngularDimension");
  oddxf::putFields<Data>(kAngularFields, m_dimension, out);
}

void OdDb3PointAngularDimension::dxfOutKind(OdDbDxfOut& out) const {
  out.subclass("AcDb3PointAngularDimension");
  oddxf::putFields<Data>(kPoints, m_dimension, out);
}

void OdDbOrdinateDimension::dxfOutKind(OdDbDxfOut& out) const {
  out.subclass("AcDbOrdinateDimension");
  oddxf::putFields<Data>(kOrdinateFields, m_dimension, out);
}

void OdDbArcDimension::dxfOutKind(OdDbDxfOut& out) const {
  out.subclass("AcDbArcDimension");
  oddxf::putFields<Data>(kArcLengthFields, m_dimension, out);
}

void OdDbReadDimension::dxfOutKind(OdDbDxfOut&) const {}
