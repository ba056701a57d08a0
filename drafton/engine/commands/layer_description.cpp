// Where files keep the description of a layer: extended data of one application, whose second text
// it is.

#include "drafton/engine/commands/layer_set.h"
#include "drawing/dxf_residue.h"
#include "drawing/dxf_text.h"

namespace drafton {
namespace {

constexpr char kApplication[] = "AcAecLayerStandard";
constexpr int kApplicationCode = 1001;
constexpr int kTextCode = 1000;

/// Extended data as pairs of lines: code and value.
struct TagLines {
  QList<QByteArray> lines;

  explicit TagLines(const QByteArray& bytes)
    : lines(bytes.split('\n')) {
    if (lines.size() % 2 != 0) lines.removeLast();
  }
  qsizetype count() const { return lines.size() / 2; }
  int code(qsizetype i) const { return lines[2 * i].trimmed().toInt(); }
  QByteArray value(qsizetype i) const { return lines[2 * i + 1].trimmed(); }
};

/// The tags of the application: from its name up to the next one's.
struct Range {
  qsizetype begin = 0, end = 0;
};

Range rangeOf(const TagLines& tags) {
  Range range{tags.count(), tags.count()};
  for (qsizetype i = 0; i < tags.count(); ++i) {
    if (tags.code(i) != kApplicationCode) continue;
    if (range.begin < i) return {range.begin, i};
    if (tags.value(i) == kApplication) range.begin = i;
  }
  return range;
}

/// Characters that not every code page has are written by their numbers.
QByteArray escaped(const OdString& text) {
  QByteArray bytes;
  for (const QChar c : text) {
    if (c >= u' ' && c <= u'~')
      bytes += static_cast<char>(c.unicode());
    else if (c > u'~')
      bytes += "\\U+" + QByteArray::number(c.unicode(), 16).rightJustified(4, '0').toUpper();
  }
  return bytes;
}

void registerApplication(OdDbDatabase& database) {
  const auto table = database.getRegAppTableId().openAs<OdDbRegAppTable>(OdDb::kForWrite);
  const OdString name = OdString::fromLatin1(kApplication);
  if (table->has(name)) return;
  const auto record = odrxMake<OdDbRegAppTableRecord>();
  record->setName(name);
  table->add(record);
}

} // namespace

OdString layerDescription(const OdDbLayerTableRecord& layer) {
  if (!layer.residue()) return {};
  const TagLines tags(layer.residue()->xdata);
  const Range range = rangeOf(tags);
  int texts = 0;
  for (qsizetype i = range.begin; i < range.end; ++i)
    if (tags.code(i) == kTextCode && ++texts == 2)
      return oddxf::withoutEscapes(OdString::fromUtf8(tags.value(i)));
  return {};
}

void setLayerDescription(OdDbLayerTableRecord& layer, const OdString& text) {
  // The kept tags have no setter; this one keeps the former state for undo.
  layer.setIsOff(layer.isOff());
  QByteArray& xdata = layer.editResidue().xdata;
  const TagLines tags(xdata);
  const Range old = rangeOf(tags);
  QByteArray kept;
  for (qsizetype i = 0; i < tags.count(); ++i)
    if (i < old.begin || i >= old.end)
      kept += tags.lines[2 * i] + '\n' + tags.lines[2 * i + 1] + '\n';
  if (!text.isEmpty()) {
    registerApplication(*layer.database());
    oddxf::addLines(kept, kApplicationCode, kApplication);
    oddxf::addLines(kept, kTextCode, "");
    const QByteArray value = escaped(text);
    oddxf::addLines(kept, kTextCode, {value.constData(), static_cast<std::size_t>(value.size())});
  }
  xdata = kept;
}

} // namespace drafton
