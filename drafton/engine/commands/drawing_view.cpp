#include "drafton/engine/commands/drawing_view.h"

#include "drawing/dxf_residue.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace drafton {
namespace {

constexpr std::string_view kSubclass = "AcDbViewportTableRecord";

// Group codes of a viewport.
constexpr int kCenterX = 12;
constexpr int kCenterY = 22;
constexpr int kHeight = 40;
constexpr int kAspect = 41;

constexpr double kUsualAspect = 4.0 / 3;

struct ViewportTag {
  int code;
  double value;
};

/// What a viewport needs besides its view: it fills the window, looks from above, and has neither
/// snap nor grid switched on.
constexpr ViewportTag kNewViewport[] = {
    {10, 0},  {20, 0},  {11, 1},  {21, 1},  {13, 0},      {23, 0},
    {14, 10}, {24, 10}, {15, 10}, {25, 10}, {16, 0},      {26, 0},
    {36, 1},  {17, 0},  {27, 0},  {37, 0},  {kHeight, 1}, {kAspect, kUsualAspect},
    {42, 50}, {43, 0},  {44, 0},  {50, 0},  {51, 0},
};

OdString activeName() { return QStringLiteral("*Active"); }

/// The lines of one tag's value in lines as files have them: a code, its value, and so on.
struct Span {
  qsizetype begin, size;
};

std::optional<Span> findValue(const QByteArray& lines, int code) {
  for (qsizetype at = 0; at < lines.size();) {
    const qsizetype codeEnd = lines.indexOf('\n', at);
    if (codeEnd < 0) break;
    qsizetype valueEnd = lines.indexOf('\n', codeEnd + 1);
    if (valueEnd < 0) valueEnd = lines.size();
    if (lines.mid(at, codeEnd - at).trimmed().toInt() == code)
      return Span{codeEnd + 1, valueEnd - codeEnd - 1};
    at = valueEnd + 1;
  }
  return std::nullopt;
}

double valueOf(const QByteArray& lines, int code, double otherwise) {
  const std::optional<Span> found = findValue(lines, code);
  if (!found) return otherwise;
  bool ok = false;
  const double value = lines.mid(found->begin, found->size).trimmed().toDouble(&ok);
  return ok && std::isfinite(value) ? value : otherwise;
}

void setValue(QByteArray& lines, int code, double value) {
  char text[32];
  const auto [end, error] = std::to_chars(text, text + sizeof text, value);
  QByteArray shown(text, end - text);
  if (!shown.contains('.') && !shown.contains('e')) shown += ".0";
  if (const std::optional<Span> found = findValue(lines, code))
    lines.replace(found->begin, found->size, shown);
  else
    lines += QByteArray::number(code).rightJustified(3) + '\n' + shown + '\n';
}

/// The tags of the active viewport; empty if the drawing has none.
QByteArray activeViewportLines(const OdDbDatabase& database) {
  const auto table = database.getViewportTableId().openAs<OdDbViewportTable>();
  const OdDbObjectPtr record = table->getAt(activeName()).openObject();
  const OdDbDxfResidue* const residue = record ? record->residue() : nullptr;
  if (!residue) return {};
  // Old files have no subclasses.
  const QByteArray* lines = residue->of(kSubclass);
  if (!lines) lines = residue->of("");
  return lines ? *lines : QByteArray();
}

void addActiveViewport(OdDbDatabase& database) {
  const auto table = database.getViewportTableId().openAs<OdDbViewportTable>(OdDb::kForWrite);
  const auto record = odrxMake<OdDbViewportTableRecord>();
  record->setName(activeName());
  QByteArray& lines = record->editResidue().edit(kSubclass);
  for (const ViewportTag& tag : kNewViewport) setValue(lines, tag.code, tag.value);
  table->add(record);
}

} // namespace

DrawingView activeView(const OdDbDatabase& database) {
  const QByteArray lines = activeViewportLines(database);
  DrawingView view;
  view.center = {valueOf(lines, kCenterX, 0), valueOf(lines, kCenterY, 0)};
  view.height = valueOf(lines, kHeight, 1);
  if (!(view.height > 0)) view.height = 1;
  return view;
}

double activeViewAspect(const OdDbDatabase& database) {
  const double aspect = valueOf(activeViewportLines(database), kAspect, kUsualAspect);
  return aspect > 0 ? aspect : kUsualAspect;
}

void setActiveView(OdDbDatabase& database, const DrawingView& view) {
  const auto table = database.getViewportTableId().openAs<OdDbViewportTable>();
  if (!table->has(activeName())) addActiveViewport(database);
  const auto record = table->getAt(activeName()).openAs<OdDbViewportTableRecord>(OdDb::kForWrite);
  // The kept tags have no setter; this one keeps the former state for undo.
  record->setName(record->getName());
  OdDbDxfResidue& residue = record->editResidue();
  QByteArray& lines =
      residue.edit(residue.of(kSubclass) || !residue.of("") ? kSubclass : std::string_view());
  setValue(lines, kCenterX, view.center.x);
  setValue(lines, kCenterY, view.center.y);
  setValue(lines, kHeight, view.height);
}

DrawingView viewOf(const OdGeExtents3d& box, double aspect, double now) {
  const OdGePoint3d& low = box.minPoint();
  const OdGePoint3d& high = box.maxPoint();
  const double height = std::max(high.y - low.y, (high.x - low.x) / aspect);
  return {{(low.x + high.x) / 2, (low.y + high.y) / 2}, height > 0 ? height : now};
}

} // namespace drafton
