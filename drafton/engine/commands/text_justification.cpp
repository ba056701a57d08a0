#include "drafton/engine/commands/text_justification.h"

namespace drafton {
namespace {

constexpr TextJustification kJustifications[] = {
    {u"Left", OdDb::kTextLeft, OdDb::kTextBase, u"Specify start point of text"},
    {u"Center", OdDb::kTextCenter, OdDb::kTextBase, u"Specify center point of text"},
    {u"Right", OdDb::kTextRight, OdDb::kTextBase, u"Specify right endpoint of text baseline"},
    {u"Align", OdDb::kTextAlign, OdDb::kTextBase, u"Specify first endpoint of text baseline"},
    {u"Middle", OdDb::kTextMid, OdDb::kTextBase, u"Specify middle point of text"},
    {u"Fit", OdDb::kTextFit, OdDb::kTextBase, u"Specify first endpoint of text baseline"},
    {u"TL", OdDb::kTextLeft, OdDb::kTextTop, u"Specify top-left point of text"},
    {u"TC", OdDb::kTextCenter, OdDb::kTextTop, u"Specify top-center point of text"},
    {u"TR", OdDb::kTextRight, OdDb::kTextTop, u"Specify top-right point of text"},
    {u"ML", OdDb::kTextLeft, OdDb::kTextVertMid, u"Specify middle-left point of text"},
    {u"MC", OdDb::kTextCenter, OdDb::kTextVertMid, u"Specify middle point of text"},
    {u"MR", OdDb::kTextRight, OdDb::kTextVertMid, u"Specify middle-right point of text"},
    {u"BL", OdDb::kTextLeft, OdDb::kTextBottom, u"Specify bottom-left point of text"},
    {u"BC", OdDb::kTextCenter, OdDb::kTextBottom, u"Specify bottom-center point of text"},
    {u"BR", OdDb::kTextRight, OdDb::kTextBottom, u"Specify bottom-right point of text"},
};

// Letters reach this part of their height below the base line.
constexpr double kDescent = 1.0 / 3;
constexpr double kLineSpacing = 5.0 / 3;

/// The part of the width that lies left of the point.
double leftPart(OdDb::TextHorzMode mode) {
  switch (mode) {
  case OdDb::kTextCenter:
  case OdDb::kTextMid:
    return 0.5;
  case OdDb::kTextRight:
    return 1;
  case OdDb::kTextLeft:
  case OdDb::kTextAlign:
  case OdDb::kTextFit:
    break;
  }
  return 0;
}

/// How far above the base line the point lies, as a part of the height.
double heightOfPoint(const TextJustification& justification) {
  if (justification.horizontal == OdDb::kTextMid) return 0.5;
  switch (justification.vertical) {
  case OdDb::kTextBottom:
    return -kDescent;
  case OdDb::kTextVertMid:
    return 0.5;
  case OdDb::kTextTop:
    return 1;
  case OdDb::kTextBase:
    break;
  }
  return 0;
}

} // namespace

std::span<const TextJustification> textJustifications() { return kJustifications; }

OdString textJustificationKeywords() {
  QStringList words;
  for (const TextJustification& row : kJustifications) words << OdString::fromUtf16(row.keyword);
  return words.join(u' ');
}

const TextJustification& textJustification(QStringView keyword) {
  for (const TextJustification& row : kJustifications)
    if (keyword == QStringView(row.keyword)) return row;
  return kJustifications[0];
}

const TextJustification& textJustification(OdDb::TextHorzMode horizontal,
                                           OdDb::TextVertMode vertical) {
  for (const TextJustification& row : kJustifications)
    if (row.horizontal == horizontal && row.vertical == vertical) return row;
  return kJustifications[0];
}

OdGePoint3d baseLineStart(const OdGePoint3d& fastened, const TextJustification& justification,
                          const TextBox& box, double rotation) {
  const double back = leftPart(justification.horizontal) * box.width;
  const double down = heightOfPoint(justification) * box.height;
  const double c = std::cos(rotation);
  const double s = std::sin(rotation);
  return {fastened.x - back * c + down * s, fastened.y - back * s - down * c, fastened.z};
}

OdGePoint3d nextTextLine(const OdGePoint3d& point, double height, double rotation) {
  const double step = kLineSpacing * height;
  return {point.x + step * std::sin(rotation), point.y - step * std::cos(rotation), point.z};
}

} // namespace drafton
