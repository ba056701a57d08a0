#include "drawing/dxf/newer.h"

#include "drawing/dxf/text.h"

#include <charconv>
#include <string>

namespace {

constexpr int kEmbeddedObject = 101;
// The length of the stored graphics, which has 64 bits in newer files.
constexpr int kShortLength = 92;
constexpr int kLongLength = 160;

struct Row {
  std::string_view subclass;
  int first, last;
  OdDb::DwgVersion since;
};
constexpr Row kRows[] = {
    {"AcDbEntity", 284, 284, OdDb::kR2007}, // shadows
    {"AcDbEntity", 347, 347, OdDb::kR2007}, // material
    {"AcDbEntity", 348, 348, OdDb::kR2010}, // visual style
    {"AcDbEntity", 420, 420, OdDb::kR2004},
    {"AcDbEntity", 430, 430, OdDb::kR2004},
    {"AcDbEntity", 440, 440, OdDb::kR2004},
    {"AcDbLayerTableRecord", 347, 347, OdDb::kR2007},
    {"AcDbLayerTableRecord", 348, 348, OdDb::kR2010},
    {"AcDbLayerTableRecord", 420, 440, OdDb::kR2004},
    {"AcDbBlockTableRecord", 280, 281, OdDb::kR2007},
    {"AcDbViewportTableRecord", 60, 63, OdDb::kR2007},
    {"AcDbViewportTableRecord", 141, 142, OdDb::kR2007},
    {"AcDbViewportTableRecord", 282, 282, OdDb::kR2007},
    {"AcDbViewportTableRecord", 292, 292, OdDb::kR2007},
    {"AcDbViewportTableRecord", 332, 335, OdDb::kR2007},
    {"AcDbViewportTableRecord", 348, 348, OdDb::kR2007},
    {"AcDbViewportTableRecord", 361, 361, OdDb::kR2007},
    {"AcDbViewportTableRecord", 421, 431, OdDb::kR2007},
    {"AcDbViewTableRecord", 73, 73, OdDb::kR2007},
    {"AcDbViewTableRecord", 332, 334, OdDb::kR2007},
    {"AcDbViewTableRecord", 348, 361, OdDb::kR2007},
    {"AcDbDimStyleTableRecord", 49, 50, OdDb::kR2007},
    {"AcDbDimStyleTableRecord", 69, 69, OdDb::kR2007},
    {"AcDbDimStyleTableRecord", 90, 90, OdDb::kR2007},
    {"AcDbDimStyleTableRecord", 290, 290, OdDb::kR2007},
    {"AcDbDimStyleTableRecord", 294, 295, OdDb::kR2010},
    {"AcDbDimStyleTableRecord", 345, 347, OdDb::kR2007},
    {"AcDbViewport", 61, 63, OdDb::kR2007},
    {"AcDbViewport", 141, 142, OdDb::kR2007},
    {"AcDbViewport", 282, 282, OdDb::kR2007},
    {"AcDbViewport", 292, 292, OdDb::kR2007},
    {"AcDbViewport", 332, 335, OdDb::kR2007},
    {"AcDbViewport", 348, 361, OdDb::kR2007},
    {"AcDbViewport", 421, 431, OdDb::kR2007},
    {"AcDbPlotSettings", 76, 78, OdDb::kR2004},
    {"AcDbPlotSettings", 333, 333, OdDb::kR2007},
    {"AcDbMText", 45, 46, OdDb::kR2004},
    {"AcDbMText", 48, 49, OdDb::kR2007},
    {"AcDbMText", 63, 63, OdDb::kR2004},
    {"AcDbMText", 75, 79, OdDb::kR2007},
    {"AcDbMText", 90, 90, OdDb::kR2004},
    {"AcDbMText", 420, 441, OdDb::kR2004},
    {"AcDbHatch", 450, 470, OdDb::kR2004},
    {"AcDbPolyline", 91, 91, OdDb::kR2010},
    {"", 91, 91, OdDb::kR2004}, // of the classes: how many objects there are
};

OdDb::DwgVersion since(std::string_view subclass, int code) {
  for (const Row& row : kRows)
    if (code >= row.first && code <= row.last && row.subclass == subclass) return row.since;
  return OdDb::kR2000;
}

} // namespace

QByteArray oddxf::fitting(const QByteArray& lines, std::string_view subclass,
                          OdDb::DwgVersion version) {
  QByteArray kept;
  kept.reserve(lines.size());
  std::string within(subclass);
  bool embedded = false;
  std::string_view rest(lines.constData(), static_cast<std::size_t>(lines.size()));
  while (!rest.empty()) {
    const std::size_t codeEnd = std::min(rest.find('\n'), rest.size());
    const std::size_t valueEnd = std::min(rest.find('\n', codeEnd + 1), rest.size() - 1);
    const std::string_view tag = rest.substr(0, valueEnd + 1);
    const std::string_view codeText = trimmed(rest.substr(0, codeEnd));
    int code = 0;
    std::from_chars(codeText.data(), codeText.data() + codeText.size(), code);
    const std::string_view value = tag.substr(std::min(codeEnd + 1, tag.size()));
    rest.remove_prefix(tag.size());
    if (code == 100) {
      within = value.substr(0, value.find('\n'));
      embedded = false;
    }
    if (code == kEmbeddedObject) embedded = true;
    if (embedded && version < OdDb::kR2018) continue;
    if (within == "AcDbEntity" && (code == kShortLength || code == kLongLength)) {
      addCode(kept, version >= OdDb::kR2010 ? kLongLength : kShortLength);
      kept.append(value.data(), static_cast<qsizetype>(value.size()));
    } else if (embedded || since(within, code) <= version) {
      kept.append(tag.data(), static_cast<qsizetype>(tag.size()));
    }
  }
  return kept;
}

OdDb::DwgVersion oddxf::sectionSince(std::string_view name) {
  return name == "ACDSDATA" ? OdDb::kR2013 : OdDb::kR2000;
}
