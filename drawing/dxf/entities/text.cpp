// How TEXT stands in files.
#include "drawing/entities/text.h"
#include "drawing/dxf/fields.h"

namespace {

using TextField = OdDbDxfField<OdDbText::Data>;
constexpr TextField kTextFields[] = {
    {39, &OdDbText::Data::extrusion, TextField::kUnlessPreset},
    {10, &OdDbText::Data::position},
    {40, &OdDbText::Data::height},
    {1, &OdDbText::Data::string},
    {50, &OdDbText::Data::rotation, TextField::kAngleUnlessPreset},
    {41, &OdDbText::Data::widthFactor, TextField::kUnlessPreset},
    {51, &OdDbText::Data::oblique, TextField::kAngleUnlessPreset},
    {71, &OdDbText::Data::generation, TextField::kUnlessPreset},
    {72, &OdDbText::Data::horizontal, TextField::kUnlessPreset},
    {11, &OdDbText::Data::alignment, TextField::kUnlessPreset},
    {210, &OdDbText::Data::extrusion, TextField::kUnlessPreset},
};
constexpr TextField kTextVertical = {73, &OdDbText::Data::vertical, TextField::kUnlessPreset};

} // namespace

bool OdDbText::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  if (!in.in("AcDbText")) return false;
  switch (tag.code) {
  case 100:
    return true;
  case 7:
    m_text.style = in.textStyle(tag.text);
    return true;
  default:
    return oddxf::takeTag<Data>(kTextFields, m_text, tag, in) ||
           oddxf::takeTag<Data>({&kTextVertical, 1}, m_text, tag, in);
  }
}

void OdDbText::dxfInEnd(OdDbDxfIn& in) {
  OdDbEntity::dxfInEnd(in);
  oddxf::mendNormal(m_text.extrusion, in);
}

void OdDbText::putAlignment(OdDbDxfOut& out) const { out.point(11, m_text.alignment); }

void OdDbText::textOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  out.subclass("AcDbText");
  for (const TextField& field : kTextFields) {
    // A fastened text has its second point even where that is the origin.
    if (field.code == 11 && !isDefaultAlignment())
      putAlignment(out);
    else
      oddxf::putField(field, m_text, out);
    if (field.code == 51 && !m_text.style.isNull() &&
        m_text.style != out.database().data().textStyleStandard)
      out.recordName(7, m_text.style, "Standard");
  }
}

void OdDbText::dxfOut(OdDbDxfOut& out) const {
  textOut(out);
  // The marker stands twice. What is kept of the subclass belongs before the second one.
  out.subclass("AcDbText");
  oddxf::putField(kTextVertical, m_text, out);
}
