#include "drawing/tables/kept_record.h"

#include "drawing/checks.h"
#include "drawing/dxf/residue.h"

OdDbKeptRecord::OdDbKeptRecord() = default;

OdDbKeptTags OdDbKeptRecord::kept() const {
  const QByteArray* const lines = residue() ? residue()->of(dxfSubclass()) : nullptr;
  return OdDbKeptTags(lines ? *lines : QByteArray());
}

void OdDbKeptRecord::keep(const OdDbKeptTags& tags) {
  editResidue().edit(dxfSubclass()) = tags.lines();
}

double OdDbKeptRecord::real(int code, double otherwise) const {
  return kept().real(code, otherwise);
}

void OdDbKeptRecord::setReal(int code, double value) {
  odcheck::finite(value);
  OdDbKeptTags tags = kept();
  tags.setReal(code, value);
  keep(tags);
}

OdGePoint2d OdDbKeptRecord::pair(int code, const OdGePoint2d& otherwise) const {
  const OdDbKeptTags tags = kept();
  return {tags.real(code, otherwise.x), tags.real(code + 10, otherwise.y)};
}

void OdDbKeptRecord::setPair(int code, const OdGePoint2d& value) {
  odcheck::finite(value);
  OdDbKeptTags tags = kept();
  tags.setReal(code, value.x);
  tags.setReal(code + 10, value.y);
  keep(tags);
}

OdGePoint3d OdDbKeptRecord::triple(int code, const OdGePoint3d& otherwise) const {
  const OdDbKeptTags tags = kept();
  return {tags.real(code, otherwise.x), tags.real(code + 10, otherwise.y),
          tags.real(code + 20, otherwise.z)};
}

void OdDbKeptRecord::setTriple(int code, const OdGePoint3d& value) {
  odcheck::finite(value);
  OdDbKeptTags tags = kept();
  tags.setReal(code, value.x);
  tags.setReal(code + 10, value.y);
  tags.setReal(code + 20, value.z);
  keep(tags);
}

void OdDbKeptRecord::preset(const OdDbKeptTags& presets) {
  OdDbKeptTags tags = presets;
  for (const OdDbKeptTags::Tag& tag : kept().tags) tags.set(tag.code, tag.value);
  keep(tags);
}
