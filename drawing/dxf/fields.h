// Field tables: what an entity's file entry says, as data.
#pragma once

#include "drawing/dxf/in.h"
#include "drawing/dxf/out.h"
#include "drawing/geometry/extrusion.h"

#include <span>
#include <variant>

/// One field of the record D.
template <class D>
struct OdDbDxfField {
  int code; ///< for points that of x; of an extrusion 39 is the thickness, all else the normal
  std::variant<double D::*, int D::*, OdGePoint3d D::*, OdGeVector3d D::*, OdString D::*,
               OdDbExtrusion D::*>
      member;
  enum Form : std::uint8_t {
    kAlways,
    kUnlessPreset, ///< left out of the file while it has the value of a new record
    kAngle,        ///< degrees in the file
    kAngleUnlessPreset,
  } form = kAlways;

  bool isAngle() const { return form == kAngle || form == kAngleUnlessPreset; }
  bool mayMiss() const { return form == kUnlessPreset || form == kAngleUnlessPreset; }
};

namespace oddxf {

/// Takes a tag into the field that it belongs to; false if it belongs to none.
template <class D>
bool takeTag(std::span<const OdDbDxfField<D>> fields, D& record, const OdDbDxfTag& tag,
             OdDbDxfIn& in) {
  const auto triple = [&](int code, auto& p) {
    switch (tag.code - code) {
    case 0:
      p.x = in.real(tag, p.x);
      return true;
    case 10:
      p.y = in.real(tag, p.y);
      return true;
    case 20:
      p.z = in.real(tag, p.z);
      return true;
    default:
      return false;
    }
  };
  for (const OdDbDxfField<D>& f : fields) {
    if (const auto* point = std::get_if<OdGePoint3d D::*>(&f.member)) {
      if (triple(f.code, record.*(*point))) return true;
    } else if (const auto* vector = std::get_if<OdGeVector3d D::*>(&f.member)) {
      if (triple(f.code, record.*(*vector))) return true;
    } else if (const auto* extrusion = std::get_if<OdDbExtrusion D::*>(&f.member)) {
      OdDbExtrusion& value = record.*(*extrusion);
      if (f.code == 39) {
        if (tag.code != 39) continue;
        value.setThickness(in.real(tag, value.thickness()));
        return true;
      }
      if (tag.code != f.code && tag.code != f.code + 10 && tag.code != f.code + 20) continue;
      OdGeVector3d normal = value.normal();
      triple(f.code, normal);
      value.setNormal(normal);
      return true;
    } else if (f.code == tag.code) {
      if (const auto* number = std::get_if<double D::*>(&f.member)) {
        double& value = record.*(*number);
        value = f.isAngle() ? in.angle(tag, value) : in.real(tag, value);
      } else if (const auto* integer = std::get_if<int D::*>(&f.member)) {
        record.*(*integer) = in.integer(tag, record.*(*integer));
      } else if (const auto* text = std::get_if<OdString D::*>(&f.member)) {
        record.*(*text) = in.text(tag.text);
      }
      return true;
    }
  }
  return false;
}

template <class D>
void putField(const OdDbDxfField<D>& f, const D& record, OdDbDxfOut& out) {
  static const D kPreset{};
  std::visit(
      [&](auto member) {
        const auto& value = record.*member;
        using V = std::remove_cvref_t<decltype(value)>;
        if constexpr (std::is_same_v<V, OdDbExtrusion>) {
          if (f.code == 39) {
            if (!f.mayMiss() || value.thickness() != 0) out.real(39, value.thickness());
          } else if (!f.mayMiss() || value.normal() != OdGeVector3d::zAxis()) {
            out.point(f.code, {value.normal().x, value.normal().y, value.normal().z});
          }
          return;
        } else {
          if (f.mayMiss() && value == kPreset.*member) return;
          if constexpr (std::is_same_v<V, OdGePoint3d>)
            out.point(f.code, value);
          else if constexpr (std::is_same_v<V, OdGeVector3d>)
            out.point(f.code, {value.x, value.y, value.z});
          else if constexpr (std::is_same_v<V, OdString>)
            out.text(f.code, value);
          else if constexpr (std::is_same_v<V, int>)
            out.integer(f.code, value);
          else if (f.isAngle())
            out.angle(f.code, value);
          else
            out.real(f.code, value);
        }
      },
      f.member);
}

/// A normal without length would leave the entity without a plane.
inline void mendNormal(OdGeVector3d& normal, OdDbDxfIn& in) {
  if (!normal.isZeroLength()) return;
  in.damage(QStringLiteral("the normal of an entity has no length"));
  normal = OdGeVector3d::zAxis();
}
inline void mendNormal(OdDbExtrusion& extrusion, OdDbDxfIn& in) {
  OdGeVector3d normal = extrusion.normal();
  mendNormal(normal, in);
  extrusion.setNormal(normal);
}

template <class D>
void putFields(std::span<const OdDbDxfField<D>> fields, const D& record, OdDbDxfOut& out) {
  for (const OdDbDxfField<D>& f : fields) putField(f, record, out);
}

} // namespace oddxf
